#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "numeric/draws.h"
#include "topics/addition/addition_model.h"

namespace tavrune {

/// The shape of a function of two straight parts, where the first passes into the second.
enum class KinkKind { JumpDown = 0, JumpUp = 1, Steeper = 2, Flatter = 3 };

/// A segment of the sum between its upper and its lower end, rounded.
struct SumSegment {
    Piece piece;
    TableCell startQ;
    TableCell startP;
    /// "oo" for a level segment.
    TableCell endQ;
    TableCell endP;
};

/// A falling function of two parts and a straight one, with their horizontal sum.
struct Vaddi3State {
    KinkKind kinkKind = KinkKind::JumpDown;
    /// Function 1 up to the kink, and from there on.
    float firstSlope = 0;
    float firstIntercept = 0;
    float secondSlope = 0;
    double secondIntercept = 0;
    float kinkQuantity = 0;
    /// Where the two parts stand at the kink. The second is a double where its part is drawn for itself.
    float priceAtKinkFirst = 0;
    double priceAtKinkSecond = 0;
    /// Function 2, level for a slope of 0.
    float slope2 = 0;
    float intercept2 = 0;

    using Column = std::array<TableCell, 5>;
    /// Rounded; rows by falling price, blank below the last. See `HelpColumns` for what stands where.
    std::array<Column, 7> helpTable;
    /// 1 to 4.
    std::vector<SumSegment> segments;
    /// Where a falling sum meets P = 0; there is none over a level function.
    bool upperEndAsked = false;
    TableCell upperEnd;

    [[nodiscard]] int segmentCount() const { return static_cast<int>(segments.size()); }
    /// At a jump up function 1 has two quantities at some prices.
    [[nodiscard]] bool isJumpUp() const { return kinkKind == KinkKind::JumpUp; }
};

/// What the columns of the help table hold. At a jump up, each part of function 1 has its own quantity and
/// its own total; otherwise the table is narrower and begins in its second column.
struct HelpColumns {
    std::size_t price;
    std::vector<std::size_t> quantities1;
    std::size_t quantity2;
    /// One for each of `quantities1`.
    std::vector<std::size_t> totals;

    /// Not shown: on which parts of function 1 a row's price lies, 1 for the first, 2 for the second, 3 for
    /// both.
    static constexpr std::size_t kOwner = 6;
};

[[nodiscard]] HelpColumns helpColumns(const Vaddi3State& state);

/// Draws the two functions and adds them. A slope of function 1 that comes out as 0, which only a draw of
/// just 0 gives, ends in a division by zero.
void newExercise(Vaddi3State& state, Draws& draws);

/// True if row `row` of the help table lies on part `part`, 0 or 1, of function 1.
[[nodiscard]] bool isRowOf(const Vaddi3State& state, std::size_t row, std::size_t part);

/// The fields that are judged, but for the upper end.
[[nodiscard]] std::vector<AnswerField> answerFields(const Vaddi3State& state);
/// The field of the upper end, if it is asked.
[[nodiscard]] std::optional<AnswerField> upperEndField(const Vaddi3State& state);

/// "Her fra ( 0 ; 9 ) til ( 3 ; 6 ) og fra ( 3 ; 6 ) til ( 9 ; 0 ).": the segments, in two lines from the
/// third on.
[[nodiscard]] std::array<std::string, 2> pathTexts(const Vaddi3State& state);

}  // namespace tavrune
