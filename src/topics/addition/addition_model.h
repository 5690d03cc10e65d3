#pragma once

#include <string>
#include <variant>
#include <vector>

#include "numeric/judgement.h"

namespace tavrune {

/// A cell of a help table: a number, a blank where there is no value, "oo" where a level line has any
/// quantity at its own price, or nothing at all as long as no exercise has filled it.
class TableCell {
public:
    TableCell() = default;
    // Numbers stand where cells are wanted throughout.
    TableCell(double number) : content_(number) {}

    [[nodiscard]] static TableCell blank() { return TableCell(Blank{}); }
    [[nodiscard]] static TableCell unbounded() { return TableCell(Unbounded{}); }

    /// Nothing has filled it yet: its text is empty, its number 0.
    [[nodiscard]] bool isEmpty() const { return std::holds_alternative<std::monostate>(content_); }
    [[nodiscard]] bool isBlank() const { return std::holds_alternative<Blank>(content_); }
    [[nodiscard]] bool isUnbounded() const { return std::holds_alternative<Unbounded>(content_); }
    /// Neither blank nor "oo".
    [[nodiscard]] bool isNumeric() const { return !isBlank() && !isUnbounded(); }

    /// Throws ArithmeticFailure, a type mismatch, for a blank and for "oo".
    [[nodiscard]] double number() const;

    /// As the student sees it: the number, " ", "oo" or nothing.
    [[nodiscard]] std::string text() const;

    /// Two numbers are equal as numbers; all else is equal where it reads the same.
    bool operator==(const TableCell&) const = default;

private:
    struct Blank {
        bool operator==(const Blank&) const = default;
    };
    struct Unbounded {
        bool operator==(const Unbounded&) const = default;
    };

    using Content = std::variant<std::monostate, Blank, Unbounded, double>;

    explicit TableCell(Content content) : content_(content) {}

    Content content_;
};

/// The cell through one of the rounding rules if it is a number, otherwise as it is.
[[nodiscard]] TableCell rounded(const TableCell& cell, double (*rule)(double));

/// "( 0 ; 10 ) til ( 2.5 ; 5 )": a segment of the sum by its ends, quantity before price.
[[nodiscard]] std::string stretchText(const TableCell& fromQ, const TableCell& fromP, const TableCell& toQ,
                                      const TableCell& toP);

/// A straight piece of a function, P = slope·Q + intercept.
struct Piece {
    double slope = 0;
    double intercept = 0;

    [[nodiscard]] double at(double q) const { return slope * q + intercept; }
};

/// The highest price on the graph of a given function.
inline constexpr double kTopPrice = 10;

/// A level line along an edge of the graph of a given function.
[[nodiscard]] bool isOnEdge(const Piece& piece);

/// Which way the functions run that are added by their quantities. The sum goes from price to price the same
/// way.
enum class Direction { Rising, Falling };

/// +1 for rising functions, -1 for falling ones: of prices times it, the sum comes to the lower one first.
[[nodiscard]] constexpr int factorOf(Direction direction) { return direction == Direction::Rising ? 1 : -1; }

/// The edge of the graph at which the sum ends, unless a level function ends it before.
[[nodiscard]] constexpr double endPrice(Direction direction) {
    return direction == Direction::Rising ? kTopPrice : 0;
}

/// How a typed value is tested against its target, for the verdict and for the red mark.
enum class Rule {
    /// target - 0.005 < typed <= target + 0.005. Kept (addition-white-lower-end): a value just at the lower
    /// end is wrong and stays white.
    Near,
    /// As `Near`, and a value just at the lower end turns red as well.
    NearAllMarked,
    /// Both ends fit.
    NearClosed,
    Exactly,
    /// Kept (addition-any-break): the verdict compares the truth of target - 0.005 < typed, as -1 or 0, with
    /// target + 0.005, so that any value fits a target above 0. The mark goes by the true bounds.
    Chained,
};

struct Target {
    double value = 0;
    Rule rule = Rule::Near;

    [[nodiscard]] bool isFit(double typed) const;
    /// True if a wrong answer turns the field red.
    [[nodiscard]] bool isMarked(double typed) const;
};

/// What a field of an answer row asks for.
enum class Slot { Slope, Intercept, Start, End };

// The rows of an answer, from the top.
inline constexpr int kFirstRow = 0;
inline constexpr int kSecondRow = 1;
inline constexpr int kThirdRow = 2;
inline constexpr int kFourthRow = 3;
/// The row of a segment that is the whole sum.
inline constexpr int kLoneRow = kSecondRow;

/// One field that is judged: its row, what it asks for, and its target.
struct AnswerField {
    int row;
    Slot slot;
    Target target;
};

/// Judges what is typed in the fields, in their order: solved where each is fit, right what is not marked.
/// Precondition: one value for each field.
[[nodiscard]] Judgement judge(const std::vector<AnswerField>& fields, const std::vector<double>& typed);

/// The row in which a segment, counted from 0, is typed.
[[nodiscard]] constexpr int rowOf(int segment, int segmentCount) {
    return segmentCount == 1 ? kLoneRow : segment;
}

}  // namespace tavrune
