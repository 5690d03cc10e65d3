#pragma once

#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"
#include "topics/addition/addition_model.h"
#include "topics/addition/vertical_model.h"

namespace tavrune {

/// Two straight functions and their vertical sum.
struct Laddi1State {
    /// Whole numbers: slopes -4..4, intercepts 0..4.
    Piece function1;
    Piece function2;

    int segmentCount = 1;
    /// The sum of both functions, whole numbers.
    Piece firstSegment;
    /// The function that goes on after the kink. Kept (laddi1-stale-segment): an exercise of one segment
    /// leaves it as it was.
    Piece secondSegment;
    /// 0 with one segment. Unrounded until the first step of the help.
    double kinkQuantity{};
    /// Both functions fall.
    bool upperEndAsked{};
    /// Unrounded. Kept (addition-unseen-end): it is written with the answer of every later exercise, unseen
    /// where there is none.
    double upperEnd{};
};

/// Draws function 1 until it is not the axis P = 0, then function 2, and adds them up.
void newExercise(Laddi1State& state, Draws& draws);

/// Returns the sum as it is asked for.
[[nodiscard]] VerticalSum sumOf(const Laddi1State& state);

/// Judges what is typed in the `answerFields` of the sum.
[[nodiscard]] Judgement judge(const Laddi1State& state, const std::vector<double>& typed);

/// Rounds the kink to the two decimals that the help shows. Kept (laddi1-rounded-kink): judging and drawing
/// go by the rounded kink from then on.
void roundKink(Laddi1State& state);

/// Returns "P= -3Q + 4".
[[nodiscard]] std::string functionText(const Piece& function);

/// Returns "Definitionsintervallerne bliver: 0<Q<1.33 og 1.33<Q<2."
[[nodiscard]] std::string intervalsText(const Laddi1State& state);

/// Returns "P= (-3 - 1)Q + (4 + 2) = -4Q + 6 for 0<Q<1.33".
[[nodiscard]] std::string firstSegmentText(const Laddi1State& state);

/// Returns "P= -1Q + 2 for 1.33<Q<2". Precondition: there are two segments.
[[nodiscard]] std::string secondSegmentText(const Laddi1State& state);

}  // namespace tavrune
