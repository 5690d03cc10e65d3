#pragma once

#include <array>
#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"
#include "topics/addition/addition_model.h"
#include "topics/addition/vertical_model.h"

namespace tavrune {

/// A function of two straight pieces, which need not meet at its kink. Whole numbers throughout.
struct KinkedFunction {
    /// 3..7.
    double kink{};
    /// Slope -4..4, intercept 0..4; above P = 0 all the way to the kink.
    Piece before;
    /// Slope -4..4; at the kink its price is 5..9 if it falls, 1..5 if it rises.
    Piece after;

    /// Returns where the second piece comes down to P = 0, beyond the kink; `kNeverEnds` if it does not fall.
    [[nodiscard]] double zero() const { return after.slope < 0 ? zeroOf(after) : kNeverEnds; }
};

/// Two functions with a kink each, and their vertical sum.
struct Laddi2State {
    KinkedFunction function1;
    KinkedFunction function2;

    /// The quantities at which a piece of either function ends, rising, each once; `kNeverEnds` is one of
    /// them if a function never ends. There are two to four.
    std::vector<double> breakPoints;
    /// Has a segment up to each break point. The upper end is rounded. Kept (addition-unseen-end): it is
    /// written with the answer of every later exercise, unseen where there is none.
    VerticalSum sum;
};

/// Draws both functions until no first piece ends before its kink, and adds them up.
void newExercise(Laddi2State& state, Draws& draws);

/// Judges what is typed in the `answerFields` of the sum.
[[nodiscard]] Judgement judge(const Laddi2State& state, const std::vector<double>& typed);

/// Returns the text of a second piece with gaps for its numbers: "P=    Q -       for    <Q, P>0".
[[nodiscard]] std::string secondPieceText(const Piece& piece);

/// Returns "Definitonsintervallerne bliver:", or its singular.
[[nodiscard]] std::string intervalsHeading(const VerticalSum& sum);

/// Returns the intervals of the segments, two in the first line and the others in the second:
/// "0<X<3, 3<X<4.25, " and "4.25<X<5 og 5<X"
[[nodiscard]] std::array<std::string, 2> intervalsTexts(const VerticalSum& sum);

/// Returns "P = (-1 + 4)Q + (8 - 15) = 3Q + -7 for 3<X<5", or "P = 4Q - 15 for 5<X" where only one function
/// is left.
[[nodiscard]] std::string segmentText(const Laddi2State& state, std::size_t segment);

}  // namespace tavrune
