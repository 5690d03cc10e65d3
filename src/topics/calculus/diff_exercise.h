#pragma once

#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"
#include "numeric/term.h"

namespace tavrune {

/// A polynomial and the point at which its derivative is asked for: a quadratic aQ²+bQ+c in the patterns 1 to
/// 16, from 17 on a cubic aQ³+bQ²+cQ+d. All numbers are whole.
struct DiffState {
    /// Signed, 0 for an absent term.
    float coefficientA{};
    float coefficientB{};
    float coefficientC{};
    float coefficientD{};
    /// 1 to 5
    float pointQ{};
    /// 1 to 50
    int patternCase = 1;
    double slopeAtPoint{};
};

/// A shape of the polynomial. A quadratic has no d.
struct DiffPattern {
    Term a;
    Term b;
    Term c;
    Term d = Term::Absent;
};

/// Returns a shape. Precondition: `patternCase` is 1 to 50.
[[nodiscard]] const DiffPattern& diffPatternOf(int patternCase);

/// Draws until the curve at the point is 60 or less in size.
void newExercise(DiffState& state, Draws& draws);

/// Judges the typed derivative.
[[nodiscard]] Judgement judge(const DiffState& state, const std::vector<double>& typed);

/// Returns whether the graph is the parabola aQ²+bQ+c: that of the quadratics, and of two of the cubics.
[[nodiscard]] bool hasParabola(const DiffState& state);

/// Returns the height of the curve at q.
[[nodiscard]] double curveAt(const DiffState& state, double q);

/// Returns the height at q of the line of this slope through the point of the curve.
[[nodiscard]] double tangentAt(const DiffState& state, double slope, double q);

/// What the form shows of an exercise.
struct DiffTexts {
    /// "P=  2Q³ -1Q² +3Q+4": of the task, and of the worked solution with slightly other blanks.
    std::string polynomial;
    std::string workedPolynomial;
    /// "P'=3·2Q² -2·1Q + 3"
    std::string derivative;
    /// "For Q = 2 fås"
    std::string atPoint;
    /// "P'(2)=3·2·2² -2·1·2+3"
    std::string derivativeAtPoint;
    /// "P'(2)=23"
    std::string value;
};

[[nodiscard]] DiffTexts textsOf(const DiffState& state);

}  // namespace tavrune
