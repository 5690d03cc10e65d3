#pragma once

#include <array>
#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"
#include "topics/addition/addition_model.h"

namespace tavrune {

/// Two straight functions and their horizontal sum. It lives as long as the form: what an exercise does not
/// set keeps the value that an earlier one has left.
struct Vaddi1State {
    /// Whole numbers.
    Piece function1;
    Piece function2;
    Direction direction = Direction::Rising;

    // The rows of the help table: the start of the sum, its kink or, without one, its end, and the end after
    // the kink.
    static constexpr std::size_t kStartRow = 0;
    static constexpr std::size_t kMiddleRow = 1;
    static constexpr std::size_t kLastRow = 2;
    using Column = std::array<TableCell, 3>;
    Column tableP;
    Column tableQ1;
    Column tableQ2;
    /// Kept (vaddi1-stale-total): its third cell reaches into the next exercise with a level second function.
    Column tableQtotal;

    /// From Q = 0 to the kink. Kept (vaddi1-stale-segment): a level lone segment leaves it as it was.
    Piece firstSegment;
    /// 0 with one segment.
    double kinkQuantity{};
    /// The second segment, or the only one.
    Piece secondSegment;
    int segmentCount = 1;
    /// Where a falling sum meets P = 0.
    TableCell upperEnd;
    /// Kept (vaddi1-latch): it stays set after the first exercise that has an upper end, so every later one
    /// is judged with it.
    bool upperEndAsked{};
};

/// Draws until not both functions are level, and none of them lies on an edge of the graph.
void drawTask(Vaddi1State& state, Draws& draws);

/// Returns whether the drawn functions add up to one segment: both start at one price, or a level one ends
/// the sum before the other one starts.
[[nodiscard]] bool isOneSegment(const Vaddi1State& state);

/// Returns whether the sum of the drawn functions ends at P = 0.
[[nodiscard]] bool hasUpperEnd(const Vaddi1State& state);

/// Fills the help table and the answer. Kept (vaddi1-overflow): throws ArithmeticFailure, an overflow, for
/// two rising functions of which the second has the intercept 10 and whose kink has two decimals at most.
void solve(Vaddi1State& state);

/// Returns the fields that are judged; the help table is not among them.
[[nodiscard]] std::vector<AnswerField> answerFields(const Vaddi1State& state);

/// Judges what is typed in the `answerFields`.
[[nodiscard]] Judgement judge(const Vaddi1State& state, const std::vector<double>& typed);

/// Returns "Her fra ( 0 ; 10 ) til ( 2.5 ; 5 ) og fra ( 2.5 ; 5 ) til ( 12.5 ; 0 )."
[[nodiscard]] std::string pathText(const Vaddi1State& state);

}  // namespace tavrune
