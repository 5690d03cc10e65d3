#pragma once

#include <string>
#include <string_view>

namespace tavrune {

/// The largest size that `Val` gives: the largest finite double. Longer numbers are cut down to it.
inline constexpr double kLargestTyped = 1.7976931348623157e308;

/// The number that a text begins with; 0 if it begins with none. Any bytes may come in; never fails, never a
/// NaN, size at most `kLargestTyped`, time linear in the length of the text.
///
/// Blanks, tabs and line feeds are skipped before and between the digits. Then: an optional sign, digits, an
/// optional point and digits, an optional exponent. The first character that cannot go on ends the number.
/// The mark is the point, in every locale.
///
/// Val("12abc") -> 12, Val("1,5") -> 1, Val("2/3") -> 2, Val("- .5") -> -0.5, Val("1e1") -> 10, Val("1e") ->
/// 1
[[nodiscard]] double Val(std::string_view text);

/// Sets the mark that `NumberText` writes, in UTF-8; done once, at the start, from the user's locale.
void setDecimalMark(std::string_view mark);
[[nodiscard]] const std::string& decimalMark();

/// A number as the user sees it: the shortest text that holds it in the digits of its kind (7 for a single,
/// 15 for a double), the locale's mark, no trailing zeros, no plus sign, never "-0". Exponent form only for
/// a size below 0.0001 or with more whole digits than the kind has.
///
/// NumberText(2.50F) -> "2,5" on a Danish system, NumberText(1.0F / 3) -> "0,3333333"
[[nodiscard]] std::string NumberText(float x);
[[nodiscard]] std::string NumberText(double x);
[[nodiscard]] std::string NumberText(int x);

/// A number >= 0 in half steps with the point as its mark in every locale, so that `Val` reads it back.
/// fixedPointText(2.5) -> "2.5", fixedPointText(0.5) -> "0.5", fixedPointText(3) -> "3"
[[nodiscard]] std::string fixedPointText(double x);

/// The number, in brackets if it is negative. bracketed(-7) -> "(-7)", bracketed(0) -> "0"
template <class Number>
[[nodiscard]] std::string bracketed(Number x) {
    return x < 0 ? "(" + NumberText(x) + ")" : NumberText(x);
}

/// "-" for a negative number, otherwise "+".
template <class Number>
[[nodiscard]] std::string signOf(Number x) {
    return x < 0 ? "-" : "+";
}

/// The number without its sign. sizeText(-3) -> "3"
template <class Number>
[[nodiscard]] std::string sizeText(Number x) {
    return NumberText(x < 0 ? -x : x);
}

}  // namespace tavrune
