#pragma once

#include <array>
#include <span>
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
    // Not explicit, so that tables can be written as rows of numbers.
    TableCell(double number) : content_(number) {}

    [[nodiscard]] static TableCell blank() { return TableCell(Blank{}); }
    [[nodiscard]] static TableCell unbounded() { return TableCell(Unbounded{}); }

    /// Returns whether no exercise has filled it yet.
    [[nodiscard]] bool isEmpty() const { return std::holds_alternative<std::monostate>(content_); }
    [[nodiscard]] bool isBlank() const { return std::holds_alternative<Blank>(content_); }
    [[nodiscard]] bool isUnbounded() const { return std::holds_alternative<Unbounded>(content_); }
    /// Returns whether it is neither blank nor "oo".
    [[nodiscard]] bool isNumeric() const { return !isBlank() && !isUnbounded(); }

    /// Returns the number, 0 for an empty cell. Throws ArithmeticFailure, a type mismatch, for a blank and
    /// for "oo".
    [[nodiscard]] double number() const;

    /// Returns what the student sees: the number, " ", "oo" or nothing.
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

/// Returns the cell rounded by `rule` if it is a number, otherwise as it is.
[[nodiscard]] TableCell rounded(const TableCell& cell, double (*rule)(double));

/// Returns a segment of the sum by its ends, quantity before price: "( 0 ; 10 ) til ( 2.5 ; 5 )".
[[nodiscard]] std::string stretchText(const TableCell& fromQ, const TableCell& fromP, const TableCell& toQ,
                                      const TableCell& toP);

/// Returns the path of the sum from one segment to the next, the first two in the first line and the others
/// in the second: "Her fra ( 0 ; 9 ) til ( 3 ; 6 ) og fra ( 3 ; 6 ) til ( 9 ; 0 )." Precondition: there are
/// four segments at most.
[[nodiscard]] std::array<std::string, 2> pathTexts(const std::vector<std::string>& stretches);

/// Returns the path of a sum whose segments run from row to row of a help table. Precondition: the columns
/// have more rows than there are segments.
[[nodiscard]] std::array<std::string, 2> pathTexts(std::span<const TableCell> quantities,
                                                   std::span<const TableCell> prices, int segmentCount);

/// A straight piece of a function, P = slope·Q + intercept.
struct Piece {
    double slope{};
    double intercept{};

    [[nodiscard]] double at(double q) const { return slope * q + intercept; }

    bool operator==(const Piece&) const = default;
};

/// Returns the piece as the answer has it: its slope through `RoundSigned2Fine`, its intercept through
/// `RoundUp2`.
[[nodiscard]] Piece rounded(const Piece& piece);

/// The highest price on the graph of a given function.
inline constexpr double kTopPrice = 10;

/// Returns whether a piece is a level line along an edge of the graph of a given function.
[[nodiscard]] bool isOnEdge(const Piece& piece);

/// Which way the functions run that are added by their quantities. The sum goes from price to price the same
/// way.
enum class Direction { Rising, Falling };

/// Returns +1 for rising functions and -1 for falling ones. The sum starts at the price that is lowest when
/// multiplied by it.
[[nodiscard]] constexpr int factorOf(Direction direction) { return direction == Direction::Rising ? 1 : -1; }

/// Returns the price at which the sum ends, at an edge of the graph, unless a level function ends it before.
[[nodiscard]] constexpr double endPrice(Direction direction) {
    return direction == Direction::Rising ? kTopPrice : 0;
}

/// How a typed value is compared with its target, for the verdict and for the red mark.
enum class Rule {
    /// target - 0.005 < typed <= target + 0.005. Kept (addition-white-lower-end): a value just at the lower
    /// end is wrong and stays white.
    Near,
    /// As `Near`, and a value just at the lower end turns red as well.
    NearAllMarked,
    /// As `Near`, but a value just at the lower end is right.
    NearClosed,
    Exactly,
    /// Kept (addition-any-break): the verdict compares the truth of target - 0.005 < typed, as -1 or 0, with
    /// target + 0.005, so that any value fits a target above 0. The mark goes by the true bounds.
    Chained,
};

struct Target {
    double value{};
    Rule rule = Rule::Near;

    /// Returns whether the verdict takes the value for right.
    [[nodiscard]] bool isFit(double typed) const;
    /// Returns whether the field turns red if the answer is wrong.
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

/// Returns what is solved if every value is fit, and right where it is not marked. Precondition: there is a
/// value for each field, in the order of the fields.
[[nodiscard]] Judgement judge(const std::vector<AnswerField>& fields, const std::vector<double>& typed);

/// Returns the row in which a segment, counted from 0, is typed.
[[nodiscard]] constexpr int rowOf(int segment, int segmentCount) {
    return segmentCount == 1 ? kLoneRow : segment;
}

}  // namespace tavrune
