#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"
#include "topics/addition/addition_model.h"

namespace tavrune {

/// Three straight functions and their horizontal sum. Every exercise sets all of it, except the segments
/// that it does not have.
struct Vaddi2State {
    static constexpr std::size_t kFunctions = 3;

    /// Whole numbers. At most one function is level.
    std::array<Piece, kFunctions> functions;
    Direction direction = Direction::Rising;

    /// The prices from the outer start on, one row each, and where the sum ends. Rows that the sum does not
    /// reach are blank.
    using Column = std::array<TableCell, kFunctions + 1>;
    Column tableP;
    /// A column for each function.
    std::array<Column, kFunctions> tableQ;
    Column tableQtotal;

    int segmentCount = 1;
    std::array<Piece, kFunctions> segments;

    /// Returns whether one of the functions is level.
    [[nodiscard]] bool isAnyLevel() const;
    /// Returns whether the sum ends at P = 0.
    [[nodiscard]] bool upperEndAsked() const { return direction == Direction::Falling && !isAnyLevel(); }

    // The quantities at which a segment begins and ends. The end of a sum with a level function is no number.
    [[nodiscard]] const TableCell& startOf(int s) const { return tableQtotal[static_cast<std::size_t>(s)]; }
    [[nodiscard]] const TableCell& endOf(int s) const { return tableQtotal[static_cast<std::size_t>(s) + 1]; }
    /// Returns the last of the totals, which is a number if the upper end is asked for.
    [[nodiscard]] const TableCell& upperEnd() const { return endOf(segmentCount - 1); }
};

/// Draws until at most one function is level, and none lies on an edge of the graph; then fills the help
/// table and the answer.
void newExercise(Vaddi2State& state, Draws& draws);

/// Fills the help table and the answer for the functions that are there.
void solve(Vaddi2State& state);

/// Returns the fields that are judged; the help table is not among them.
[[nodiscard]] std::vector<AnswerField> answerFields(const Vaddi2State& state);

/// Judges what is typed in the `answerFields`.
[[nodiscard]] Judgement judge(const Vaddi2State& state, const std::vector<double>& typed);

/// Returns the path of the sum in two lines: "Her fra ( 0 ; 9 ) til ( 2 ; 7 ), fra ( 2 ; 7 ) til ( 5 ; 5 ) og
/// fra " and "( 5 ; 5 ) til ( 17.5 ; 0 )." The second is empty with fewer than three segments.
[[nodiscard]] std::array<std::string, 2> pathTexts(const Vaddi2State& state);

}  // namespace tavrune
