#include "topics/basics/konvert_exercise.h"

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
        state.givenSlope = isHeads(draws) ? Fix(draws.Rnd() * -6) : Int(draws.Rnd() * 5);
        state.givenConstant = Int(draws.Rnd() * 8);
        if (isHeads(draws)) {
            state.factorKind = FactorKind::Whole;
            state.factor = drawUpToEight(draws);
        } else {
            state.factorKind = FactorKind::Fraction;
            drawFraction(state, draws);
        }
        state.newSlope = state.givenSlope / (state.factor * state.factor);
        state.newConstant = state.givenConstant / state.factor;
    } while (state.newSlope < -kSteepest || state.newSlope > kSteepest);
}

Judgement judge(const KonvertState& state, const std::vector<double>& typed) {
    return solvedIfAllRight(
        {isClosedNear(typed.at(0), state.newSlope), isClosedNear(typed.at(1), state.newConstant)});
}

void roundSolution(KonvertState& state) {
    // Kept (konvert-two-roundings): halves go away from zero in the slope and up in the constant.
    state.newSlope = RoundSigned3(state.newSlope);
    state.newConstant = RoundUp3(state.newConstant);
}

std::string taskText(const KonvertState& state) {
    return " For den viste funktion gælder, at 1 Q svarer til " + factorText(state) +
           " K. Udtryk funktionen i K";
}

std::string functionText(const KonvertState& state) {
    return "P= " + NumberText(state.givenSlope) + "Q + " + NumberText(state.givenConstant);
}

std::string exampleResult() { return NumberText(-0.25) + "K + 5"; }

KonvertGiven givenTexts(const KonvertState& state) {
    return {"P= " + NumberText(state.givenSlope) + " Q + " + NumberText(state.givenConstant),
            "1 Q svarer til " + factorText(state) + " K"};
}

KonvertWorked workedSolution(const KonvertState& state) {
    const std::string factor = factorText(state);
    const bool isFraction = state.factorKind == FactorKind::Fraction;
    return {isFraction ? "P=" : "P= ",
            NumberText(state.givenSlope),
            isFraction ? "(" + factor + ") · (" + factor + ")" : factor + " · " + factor,
            NumberText(state.givenConstant),
            factor,
            "= " + NumberText(state.newSlope) + " K + " + NumberText(state.newConstant)};
}

}  // namespace tavrune
