#include "topics/polynomial/topp_exercise.h"

#include <array>
#include <cmath>

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

constexpr int kLargestA = 3;
constexpr int kLargestBOrC = 10;
/// Kept (topp-twelfth-pattern): the twelfth is never drawn.
constexpr int kPatternsDrawn = 11;
constexpr int kReach = 15;

using namespace signs;

constexpr ToppPattern asShown(Term a, Term b, Term c) { return {{a, b, c}, {a, b, c}}; }

constexpr std::array kPatterns{
    asShown(P, O, O),
    asShown(P, O, P),
    asShown(P, M, P),
    asShown(P, O, M),
    asShown(P, M, O),
    asShown(P, M, M),
    asShown(M, P, P),
    // Kept (topp-minus-b): the task shows -bQ, and the vertex wanted is that of +bQ.
    ToppPattern{.shown = {M, M, O}, .stored = {M, P, O}},
    asShown(M, P, M),
    asShown(M, O, P),
    asShown(M, O, M),
    asShown(M, O, O),
};

void drawPolynomial(ToppState& s, Draws& draws) {
    draws.Randomize();
    Polynomial drawn;
    drawn.a = Int(draws.Rnd() * kLargestA) + 1;
    drawn.b = Int(draws.Rnd() * kLargestBOrC) + 1;
    drawn.c = Int(draws.Rnd() * kLargestBOrC) + 1;
    const auto patternCase = static_cast<int>(Int(draws.Rnd() * kPatternsDrawn) + 1);
    const ToppPattern& pattern = toppPatternOf(patternCase);
    s.polynomial = withSigns(pattern.stored, drawn);
    s.polynomialText = polynomialText(pattern.shown, drawn);
}

std::string discriminantText(const ToppState& s) {
    const auto& [a, b, c] = s.polynomial;
    // Kept (topp-square-apart): only without any brackets the square stands apart from its base.
    const char* const square = negativesOf(s.polynomial) > 0 ? "²" : " ²";
    return "d = " + bracketed(b) + square + " - 4 · " + bracketed(a) + " · " + bracketed(c) + " = " +
           NumberText(s.discriminant);
}

}  // namespace

const ToppPattern& toppPatternOf(int patternCase) {
    return kPatterns.at(static_cast<std::size_t>(patternCase - 1));
}

bool isWithinReach(const Vertex& vertex) {
    return std::abs(vertex.q) <= kReach && std::abs(vertex.p) <= kReach;
}

void newExercise(ToppState& state, Draws& draws) {
    do {
        drawPolynomial(state, draws);
        state.discriminant = discriminantOf(state.polynomial);
        state.vertex = vertexOf(state.polynomial);
    } while (!isWithinReach(state.vertex));
}

Judgement judge(const ToppState& state, const std::vector<double>& typed) {
    return solvedIfAllRight(
        {isHalfOpenNear(typed.at(0), state.vertex.q), isHalfOpenNear(typed.at(1), state.vertex.p)});
}

std::string answerTextOfQ(const ToppState& state) { return NumberText(RoundSigned2(state.vertex.q)); }

std::string answerTextOfP(const ToppState& state) { return NumberText(RoundSigned2(state.vertex.p)); }

ToppWorked workedSolution(const ToppState& s) {
    return {.discriminant = discriminantText(s),
            .numeratorOfP = "-" + bracketed(s.discriminant),
            .denominatorOfP = "4·" + bracketed(s.polynomial.a),
            .numeratorOfQ = "-" + bracketed(s.polynomial.b),
            .denominatorOfQ = "2·" + bracketed(s.polynomial.a),
            .result = "T: (P;Q) = (" + answerTextOfP(s) + " ; " + answerTextOfQ(s) + ")"};
}

}  // namespace tavrune
