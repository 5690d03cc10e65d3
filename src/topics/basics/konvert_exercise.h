#pragma once

#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"

namespace tavrune {

/// Whether one unit Q is a whole number of units K, or a fraction of them.
enum class FactorKind { Whole = 1, Fraction = 2 };

/// A function P = aQ + b and the factor f of its conversion: 1 Q is f K, so P = a/f² K + b/f.
struct KonvertState {
    float givenSlope = 0;
    float givenConstant = 0;
    FactorKind factorKind = FactorKind::Whole;
    /// Only for a fraction.
    float factorNumerator = 1;
    float factorDenominator = 1;
    float factor = 1;
    /// Quotients of singles, with the digits of singles, until they are rounded.
    double newSlope = 0;
    double newConstant = 0;
};

/// Draws until the new slope lies from -50 to 50.
void newExercise(KonvertState& state, Draws& draws);

/// Judges a typed slope and constant: right within 0.005 of the solution as it is stored, both ends included.
[[nodiscard]] Judgement judge(const KonvertState& state, const std::vector<double>& typed);

/// Rounds the solution where it is stored: from then on it is judged and drawn with 3 decimals.
void roundSolution(KonvertState& state);

/// What is asked, with the factor as it was drawn: "3" or "3/8".
[[nodiscard]] std::string taskText(const KonvertState& state);

/// "P= 3Q + 5", as it stands on the graph.
[[nodiscard]] std::string functionText(const KonvertState& state);

/// "-0.25K + 5": what the general solution comes to in its own example, with the mark of the locale.
[[nodiscard]] std::string exampleResult();

/// What the worked solution shows of this exercise.
struct KonvertGiven {
    std::string function;
    std::string conversion;
};

[[nodiscard]] KonvertGiven givenTexts(const KonvertState& state);

/// The parts of P = slope/(factor · factor) K + constant/factor = result.
struct KonvertWorked {
    std::string priceEquals;
    std::string slope;
    std::string squaredFactor;
    std::string constant;
    std::string factor;
    std::string result;
};

[[nodiscard]] KonvertWorked workedSolution(const KonvertState& state);

}  // namespace tavrune
