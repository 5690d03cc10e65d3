#include "topics/polynomial/roedder_exercise.h"

#include <array>

#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

/// What stands between the numbers of "d = b ² - 4 · a · c = d".
struct Spacing {
    const char* beforeA;
    const char* beforeC;
    const char* beforeD;
};

// Kept (roedder-uneven-blanks): none, one, and two or three negative numbers have blanks of their own.
constexpr std::array kSpacing{
    Spacing{" ² - 4 ·", "·", "="},
    Spacing{" ² - 4· ", " · ", " = "},
    Spacing{" ² - 4 · ", " · ", " = "},
    Spacing{" ² - 4 · ", " · ", " = "},
};

}  // namespace

void newExercise(RoedderState& state, Draws& draws) {
    draws.Randomize();
    const Polynomial drawn = drawSizes(draws);
    draws.Randomize();
    setPolynomial(state, drawPattern(draws), drawn);
}

Judgement judge(const RoedderState& state, const RootAnswer& answer) {
    return judge(static_cast<const RootTask&>(state), answer);
}

std::string discriminantText(const RoedderState& state) {
    const auto& [a, b, c] = state.coefficients;
    const Spacing& spacing = kSpacing.at(static_cast<std::size_t>(negativesOf(state.coefficients)));
    return "d = " + bracketed(b) + spacing.beforeA + bracketed(a) + spacing.beforeC + bracketed(c) +
           spacing.beforeD + NumberText(state.discriminant);
}

RoedderFormula formulaTexts(const RoedderState& state) {
    const std::string b = bracketed(state.coefficients.b);
    return {.b = b,
            .minusB = "- " + b,
            .d = NumberText(state.discriminant),
            .denominator = "2 · " + bracketed(state.coefficients.a)};
}

RoedderAnswer answerTexts(const RoedderState& state) {
    return {.rootOne = NumberText(RoundSigned2(state.roots.rootOne)),
            .rootTwo = NumberText(RoundSigned2(state.roots.rootTwo))};
}

}  // namespace tavrune
