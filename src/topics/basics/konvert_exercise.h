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
    float slopeOfQ{};
    float interceptOfQ{};
    FactorKind factorKind = FactorKind::Whole;
    /// Only for a fraction.
    float factorNumerator = 1;
    float factorDenominator = 1;
    float factor = 1;
    /// The solution: quotients of singles, with the digits of singles until they are rounded.
    double slopeOfK{};
    double interceptOfK{};
};

/// Draws until the new slope lies from -50 to 50.
void newExercise(KonvertState& state, Draws& draws);

/// Judges a typed slope and intercept: right if 0.005 or less from the stored solution.
[[nodiscard]] Judgement judge(const KonvertState& state, const std::vector<double>& typed);

/// Rounds the stored solution to 3 decimals, with which it is judged and drawn from then on.
void roundSolution(KonvertState& state);

/// Returns what is asked, with the factor as it was drawn: "3" or "3/8".
[[nodiscard]] std::string taskText(const KonvertState& state);

/// Returns the function as it stands on the graph: "P= 3Q + 5".
[[nodiscard]] std::string functionText(const KonvertState& state);

/// Returns the result of the example of the general solution, with the decimal mark of the locale:
/// "-0.25K + 5".
[[nodiscard]] std::string exampleResult();

/// The worked solution: the task as it shows it, then the parts of P = slope/(factor · factor) K +
/// intercept/factor = result.
struct KonvertWorked {
    /// "P= 3 Q + 5"
    std::string function;
    /// "1 Q svarer til 3/8 K"
    std::string conversion;
    std::string priceEquals;
    std::string slope;
    std::string squaredFactor;
    std::string intercept;
    std::string factor;
    std::string result;
};

[[nodiscard]] KonvertWorked workedSolution(const KonvertState& state);

}  // namespace tavrune
