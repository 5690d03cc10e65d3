#include "topics/addition/laddi1_exercise.h"

#include <algorithm>

#include "numeric/arithmetic.h"
#include "numeric/rounding.h"

namespace tavrune {
namespace {

constexpr float kFallingShare = 0.5F;
const std::string kQuantity = "Q";

/// Kept (laddi1-origin): a falling line through the origin counts as never ending.
double endOf(const Piece& function) {
    const double zero = function.slope == 0 ? kNeverEnds : zeroOf(function);
    return zero <= 0 ? kNeverEnds : zero;
}

void drawFunctions(Laddi1State& s, Draws& draws) {
    do {
        draws.Randomize();
        s.function1 = drawPieceFromAxis(draws, kFallingShare);
    } while (isOnEdge(s.function1));
    // Kept (laddi1-axis): function 2 may be the axis P = 0.
    s.function2 = drawPieceFromAxis(draws, kFallingShare);
}

void goOnWith(Laddi1State& s, const Piece& function, double kink) {
    s.segmentCount = 2;
    s.secondSegment = function;
    s.kinkQuantity = kink;
}

void solve(Laddi1State& s) {
    s.firstSegment = addedUp(s.function1, s.function2);
    const double end1 = endOf(s.function1);
    const double end2 = endOf(s.function2);
    if (end1 < end2) {
        goOnWith(s, s.function2, end1);
    } else if (end2 < end1) {
        goOnWith(s, s.function1, end2);
    } else {
        s.segmentCount = 1;
        s.kinkQuantity = 0;
    }
    s.upperEndAsked = s.function1.slope < 0 && s.function2.slope < 0;
    if (s.upperEndAsked) {
        s.upperEnd = std::max(zeroOf(s.function1), zeroOf(s.function2));
    }
}

}  // namespace

void newExercise(Laddi1State& s, Draws& draws) {
    drawFunctions(s, draws);
    solve(s);
}

VerticalSum sumOf(const Laddi1State& s) {
    VerticalSum sum{{s.firstSegment}, {}, s.upperEndAsked, s.upperEnd};
    if (s.segmentCount == 2) {
        sum.segments.push_back(s.secondSegment);
        sum.breaks.push_back(s.kinkQuantity);
    }
    return sum;
}

Judgement judge(const Laddi1State& s, const std::vector<double>& typed) {
    return judge(answerFields(sumOf(s)), typed);
}

void roundKink(Laddi1State& s) { s.kinkQuantity = RoundUp2(s.kinkQuantity); }

std::string functionText(const Piece& function) { return "P= " + termsText(function); }

std::string intervalsText(const Laddi1State& s) {
    const VerticalSum sum = sumOf(s);
    const std::string first = rangeText(sum, 0, kQuantity);
    return s.segmentCount == 1
               ? "Definitionsintervallet bliver: " + first + "."
               : "Definitionsintervallerne bliver: " + first + " og " + rangeText(sum, 1, kQuantity) + ".";
}

std::string firstSegmentText(const Laddi1State& s) {
    return "P= " + workedSumText(s.function1, s.function2) + " for " + rangeText(sumOf(s), 0, kQuantity);
}

std::string secondSegmentText(const Laddi1State& s) {
    return functionText(s.secondSegment) + " for " + rangeText(sumOf(s), 1, kQuantity);
}

}  // namespace tavrune
