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
enum class Part { BeforeKink, AfterKink };

/// The parts of function 1 on which a price lies, a bit for each. Where two rows have one price, the higher
/// value is kept.
enum class Parts : unsigned { None = 0, BeforeKink = 1, AfterKink = 2, Both = BeforeKink | AfterKink };

/// The columns of the help table, named as on the form, where part 1 is the one before the kink. At a jump
/// up, each part of function 1 has its own quantity and its own total; otherwise the outer columns are blank,
/// and the price stands one column to the right.
enum class TableColumn {
    WidePrice,
    Part1QuantityOrPrice,
    Function1OrPart2Quantity,
    Function2Quantity,
    TotalOrPart1Total,
    Part2Total
};
inline constexpr std::size_t kTableColumns = 6;
static_assert(TableColumn(kTableColumns - 1) == TableColumn::Part2Total);

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
    /// Function 1 before the kink, and after it.
    float slope1Before{};
    float intercept1Before{};
    float slope1After{};
    double intercept1After{};
    float kinkQuantity{};
    /// Where the two parts stand at the kink. The second is a double where its part is drawn for itself.
    float kinkPriceBefore{};
    double kinkPriceAfter{};
    /// Function 2, level for a slope of 0.
    float slope2{};
    float intercept2{};

    static constexpr std::size_t kTableRows = 5;
    using Column = std::array<TableCell, kTableRows>;
    /// Rounded; rows by falling price, blank below the last. `columnRoles` tells what its columns hold.
    std::array<Column, kTableColumns> helpTable;
    /// Not shown: the parts of function 1 on which the price of each row lies; none below the last.
    std::array<Parts, kTableRows> partsOfRows{};
    /// 1 to 4.
    std::vector<SumSegment> segments;
    /// The sum falls to P = 0. It does not if function 2 is level.
    bool upperEndAsked{};
    TableCell upperEnd;

    [[nodiscard]] Column& column(TableColumn column) { return helpTable[static_cast<std::size_t>(column)]; }
    [[nodiscard]] const Column& column(TableColumn column) const {
        return helpTable[static_cast<std::size_t>(column)];
    }
    [[nodiscard]] int segmentCount() const { return static_cast<int>(segments.size()); }
    /// Returns whether the two parts of function 1 do not meet.
    [[nodiscard]] bool isJump() const { return kinkKind == KinkKind::JumpDown || isJumpUp(); }
    /// Returns whether function 1 has two quantities at some prices.
    [[nodiscard]] bool isJumpUp() const { return kinkKind == KinkKind::JumpUp; }
};

/// Which columns of the help table hold what.
struct ColumnRoles {
    /// The columns of a quantity of function 1 and of the total with it.
    struct OfFunction1 {
        Part part;
        TableColumn quantity;
        TableColumn total;
    };

    TableColumn price;
    /// At a jump up one for each part; otherwise a single one, `BeforeKink`, for the whole function.
    std::vector<OfFunction1> function1;
    TableColumn quantity2;
};

/// Returns what the columns hold in this exercise.
[[nodiscard]] ColumnRoles columnRoles(const Vaddi3State& state);

/// Draws the two functions and adds them. Kept (vaddi3-zero-slope): throws ArithmeticFailure, a division by
/// zero, if a slope of function 1 is drawn as 0, which only a draw of just 0 gives.
void newExercise(Vaddi3State& state, Draws& draws);

/// Returns whether row `row` of the help table is filled and, at a jump up, lies on this part of function 1.
[[nodiscard]] bool isRowOf(const Vaddi3State& state, std::size_t row, Part part);

/// Returns the fields that are judged. If the upper end is asked for, it is the last.
[[nodiscard]] std::vector<AnswerField> answerFields(const Vaddi3State& state);

/// What is typed.
struct Vaddi3Answer {
    /// The values of the `answerFields`.
    std::vector<double> typed;
    /// The value in the third row of the help table, under Q1, or Q1b at a jump up.
    double helpCell{};
};

/// Judges the answer.
[[nodiscard]] Judgement judge(const Vaddi3State& state, const Vaddi3Answer& answer);

/// Returns the path of the sum in two lines.
[[nodiscard]] std::array<std::string, 2> pathTexts(const Vaddi3State& state);

}  // namespace tavrune
