#include "topics/basics/konvert_exercise.h"

#include <cmath>

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

constexpr double kSteepest = 50;

bool isHeads(Draws& draws) { return 0.5 > draws.Rnd(); }

float drawUpToEight(Draws& draws) { return Int(draws.Rnd() * 8) + 1; }

void drawFraction(KonvertState& s, Draws& draws) {
    do {
        s.factorNumerator = 1;
        if (isHeads(draws)) {
            s.factorNumerator = drawUpToEight(draws);
        }
        s.factorDenominator = drawUpToEight(draws);
    } while (s.factorNumerator == s.factorDenominator);
    s.factor = s.factorNumerator / s.factorDenominator;
}

std::string factorText(const KonvertState& s) {
    return s.factorKind == FactorKind::Fraction
               ? NumberText(s.factorNumerator) + "/" + NumberText(s.factorDenominator)
               : NumberText(s.factor);
}

}  // namespace

void newExercise(KonvertState& state, Draws& draws) {
    do {
        draws.Randomize();
        state.slopeOfQ = isHeads(draws) ? Fix(draws.Rnd() * -6) : Int(draws.Rnd() * 5);
        state.interceptOfQ = Int(draws.Rnd() * 8);
        if (isHeads(draws)) {
            state.factorKind = FactorKind::Whole;
            state.factor = drawUpToEight(draws);
        } else {
            state.factorKind = FactorKind::Fraction;
            drawFraction(state, draws);
        }
        state.slopeOfK = state.slopeOfQ / (state.factor * state.factor);
        state.interceptOfK = state.interceptOfQ / state.factor;
    } while (std::abs(state.slopeOfK) > kSteepest);
}

Judgement judge(const KonvertState& state, const std::vector<double>& typed) {
    return solvedIfAllRight(
        {isClosedNear(typed.at(0), state.slopeOfK), isClosedNear(typed.at(1), state.interceptOfK)});
}

void roundSolution(KonvertState& state) {
    // Kept (konvert-two-roundings): halves go away from zero in the slope and up in the intercept.
    state.slopeOfK = RoundSigned3(state.slopeOfK);
    state.interceptOfK = RoundUp3(state.interceptOfK);
}

std::string taskText(const KonvertState& state) {
    return " For den viste funktion gælder, at 1 Q svarer til " + factorText(state) +
           " K. Udtryk funktionen i K";
}

std::string functionText(const KonvertState& state) {
    return "P= " + NumberText(state.slopeOfQ) + "Q + " + NumberText(state.interceptOfQ);
}

std::string exampleResult() { return NumberText(-0.25) + "K + 5"; }

KonvertWorked workedSolution(const KonvertState& state) {
    const std::string factor = factorText(state);
    const bool isFraction = state.factorKind == FactorKind::Fraction;
    return {"P= " + NumberText(state.slopeOfQ) + " Q + " + NumberText(state.interceptOfQ),
            "1 Q svarer til " + factor + " K",
            isFraction ? "P=" : "P= ",
            NumberText(state.slopeOfQ),
            isFraction ? "(" + factor + ") · (" + factor + ")" : factor + " · " + factor,
            NumberText(state.interceptOfQ),
            factor,
            "= " + NumberText(state.slopeOfK) + " K + " + NumberText(state.interceptOfK)};
}

}  // namespace tavrune
