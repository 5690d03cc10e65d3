#pragma once

#include <string>

#include "numeric/draws.h"
#include "numeric/judgement.h"
#include "topics/polynomial/polynomial_model.h"

namespace tavrune {

/// One task on the roots of a polynomial of the second degree.
struct RoedderState : RootTask {};

/// Draws three sizes and one of the eighteen patterns. Nothing is drawn again, whatever the number of roots.
void newExercise(RoedderState& state, Draws& draws);

/// Judges the chosen count and the roots that go with it.
[[nodiscard]] Judgement judge(const RoedderState& state, const RootAnswer& answer);

/// Returns the discriminant with its numbers inserted: "d = (-3) ² - 4· 5 · 1 = -11". The blanks round its
/// dots depend on how many of the numbers are negative.
[[nodiscard]] std::string discriminantText(const RoedderState& state);

/// The numbers in the formulas of the roots. Those that are not under a root have brackets if negative.
struct RoedderFormula {
    std::string b;
    /// "- b", the numerator of a double root.
    std::string minusB;
    std::string d;
    std::string denominator;
};

[[nodiscard]] RoedderFormula formulaTexts(const RoedderState& state);

/// The roots to 2 decimals.
struct RoedderAnswer {
    std::string rootOne;
    std::string rootTwo;
};

/// Precondition: the polynomial has roots.
[[nodiscard]] RoedderAnswer answerTexts(const RoedderState& state);

}  // namespace tavrune
