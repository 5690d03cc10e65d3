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
    double slope1 = 0;
    double intercept1 = 0;
    double slope2 = 0;
    double intercept2 = 0;

    int segmentCount = 1;
    /// The sum of both functions, whole numbers.
    double firstSlope = 0;
    double firstIntercept = 0;
    /// The function that goes on after the kink. Kept (laddi1-stale-segment): a lone segment leaves it as it
    /// was.
    double secondSlope = 0;
    double secondIntercept = 0;
    /// 0 with one segment. Unrounded until the first step of the help.
    double kinkQuantity = 0;
    /// Both functions fall.
    bool upperEndAsked = false;
    /// Unrounded. Kept (addition-unseen-end): it is written with the answer of every later exercise, unseen
    /// where there is none.
    double upperEnd = 0;

    [[nodiscard]] Piece function1() const { return {slope1, intercept1}; }
    [[nodiscard]] Piece function2() const { return {slope2, intercept2}; }
    [[nodiscard]] Piece firstSegment() const { return {firstSlope, firstIntercept}; }
    [[nodiscard]] Piece secondSegment() const { return {secondSlope, secondIntercept}; }
};

/// Draws function 1 until it is not the axis P = 0, then function 2, and adds them up.
void newExercise(Laddi1State& state, Draws& draws);

[[nodiscard]] VerticalSum sumOf(const Laddi1State& state);

/// Judges what is typed in the `answerFields` of the sum.
[[nodiscard]] Judgement judge(const Laddi1State& state, const std::vector<double>& typed);

/// To the two decimals that the help shows. Kept (laddi1-rounded-kink): judging and drawing go by the rounded
/// kink from then on.
void roundKink(Laddi1State& state);

/// "P= -3Q + 4"
[[nodiscard]] std::string functionText(const Piece& function);

/// "Definitionsintervallerne bliver: 0<Q<1.33 og 1.33<Q<2."
[[nodiscard]] std::string intervalsText(const Laddi1State& state);

/// "P= (-3 - 1)Q + (4 + 2) = -4Q + 6 for 0<Q<1.33"
[[nodiscard]] std::string firstSegmentText(const Laddi1State& state);

/// "P= -1Q + 2 for 1.33<Q<2". Wants two segments.
[[nodiscard]] std::string secondSegmentText(const Laddi1State& state);

}  // namespace tavrune
