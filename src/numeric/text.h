#pragma once

#include <string>
#include <string_view>

namespace tavrune {

/// The largest finite double. `Val` returns it, or its negative, for every text that spells a larger number.
inline constexpr double kLargestTyped = 1.7976931348623157e308;

/// Returns the number at the beginning of a text, or 0 if there is none. The text may be any bytes. The
/// result is never a NaN nor an infinity. The time is linear in the length of the text.
///
/// A number is an optional sign, digits, an optional point and digits, an optional exponent; the decimal mark
/// is the point in every locale. Blanks, tabs and line feeds are skipped everywhere. What does not belong to
/// the number ends it.
///
/// Val("12abc") -> 12, Val("1,5") -> 1, Val("2/3") -> 2, Val("- .5") -> -0.5, Val("1e1") -> 10,
/// Val("1e") -> 1
[[nodiscard]] double Val(std::string_view text);

/// Sets the decimal mark, in UTF-8, that `NumberText` writes. The program does this once, from the locale of
/// the user.
void setDecimalMark(std::string_view mark);
[[nodiscard]] const std::string& decimalMark();

/// Returns a number as the user sees it: rounded to the digits of its type (7 for a single, 15 for a double),
/// with the decimal mark of the locale, without trailing zeros or a plus sign, never "-0". It has an exponent
/// if its size is below 0.0001 or if it has more whole digits than its type.
///
/// NumberText(2.50F) -> "2,5" on a Danish system, NumberText(1.0F / 3) -> "0,3333333"
[[nodiscard]] std::string NumberText(float x);
[[nodiscard]] std::string NumberText(double x);
[[nodiscard]] std::string NumberText(int x);

/// Returns a number with a point as its decimal mark in every locale, so that `Val` reads it back.
/// Precondition: `x` is a multiple of 0.5 and not negative.
/// fixedPointText(2.5) -> "2.5", fixedPointText(0.5) -> "0.5", fixedPointText(3) -> "3"
[[nodiscard]] std::string fixedPointText(double x);

/// Returns the number, in brackets if it is negative. bracketed(-7) -> "(-7)", bracketed(0) -> "0"
template <class Number>
[[nodiscard]] std::string bracketed(Number x) {
    return x < 0 ? "(" + NumberText(x) + ")" : NumberText(x);
}

/// Returns "-" for a negative number, otherwise "+".
template <class Number>
[[nodiscard]] std::string signOf(Number x) {
    return x < 0 ? "-" : "+";
}

/// Returns the number without its sign. sizeText(-3) -> "3"
template <class Number>
[[nodiscard]] std::string sizeText(Number x) {
    return NumberText(x < 0 ? -x : x);
}

}  // namespace tavrune
