#pragma once

#include <array>
#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"
#include "topics/addition/addition_model.h"

namespace tavrune {

/// The shape of a function of two straight parts, where the first passes into the second.
enum class KinkKind { JumpDown = 0, JumpUp = 1, Steeper = 2, Flatter = 3 };

/// One of the two parts of function 1.
enum class Part { First, Second };

/// On which parts of function 1 a price lies, a bit for each. Of rows of one price, that with the highest
/// value stays.
enum class Parts : unsigned { None = 0, First = 1, Second = 2, Both = First | Second };

/// The columns of the help table as they stand on the form. At a jump up, each part of function 1 has its own
/// quantity and its own total; otherwise the outer columns are blank, and the price moves one to the right.
enum class TableColumn {
    WidePrice,
    Part1QuantityOrPrice,
    Function1OrPart2Quantity,
    Function2Quantity,
    TotalOrPart1Total,
    Part2Total
};
inline constexpr std::size_t kTableColumns = 6;

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

    static constexpr std::size_t kTableRows = 5;
    using Column = std::array<TableCell, kTableRows>;
    /// Rounded; rows by falling price, blank below the last. See `HelpColumns` for what stands where.
    std::array<Column, kTableColumns> helpTable;
    /// Not shown: on which parts of function 1 the price of each row lies; none below the last.
    std::array<Parts, kTableRows> partsOfRows{};
    /// 1 to 4.
    std::vector<SumSegment> segments;
    /// Where a falling sum meets P = 0; there is none over a level function.
    bool upperEndAsked = false;
    TableCell upperEnd;

    [[nodiscard]] Column& column(TableColumn column) { return helpTable[static_cast<std::size_t>(column)]; }
    [[nodiscard]] const Column& column(TableColumn column) const {
        return helpTable[static_cast<std::size_t>(column)];
    }
    [[nodiscard]] int segmentCount() const { return static_cast<int>(segments.size()); }
    /// At a jump up function 1 has two quantities at some prices.
    [[nodiscard]] bool isJumpUp() const { return kinkKind == KinkKind::JumpUp; }
};

/// What the columns of the help table hold.
struct HelpColumns {
    /// A quantity of function 1, and the total with it.
    struct OfFunction1 {
        Part part;
        TableColumn quantity;
        TableColumn total;
    };

    TableColumn price;
    /// One for each part at a jump up; otherwise one, as the first part, for the whole function.
    std::vector<OfFunction1> function1;
    TableColumn quantity2;
};

[[nodiscard]] HelpColumns helpColumns(const Vaddi3State& state);

/// Draws the two functions and adds them. Kept (vaddi3-zero-slope): a slope of function 1 that comes out as
/// 0, which only a draw of just 0 gives, ends in a division by zero.
void newExercise(Vaddi3State& state, Draws& draws);

/// True if row `row` of the help table is filled, and lies, at a jump up, on this part of function 1.
[[nodiscard]] bool isRowOf(const Vaddi3State& state, std::size_t row, Part part);

/// The fields that are judged; the upper end is the last, if it is asked.
[[nodiscard]] std::vector<AnswerField> answerFields(const Vaddi3State& state);

/// What is typed.
struct Vaddi3Answer {
    /// In the `answerFields`.
    std::vector<double> typed;
    /// In the third row of the help table, under Q1, or Q1b at a jump up.
    double helpCell = 0;
};

[[nodiscard]] Judgement judge(const Vaddi3State& state, const Vaddi3Answer& answer);

/// "Her fra ( 0 ; 9 ) til ( 3 ; 6 ) og fra ( 3 ; 6 ) til ( 9 ; 0 ).": the segments, in two lines from the
/// third on.
[[nodiscard]] std::array<std::string, 2> pathTexts(const Vaddi3State& state);

}  // namespace tavrune
