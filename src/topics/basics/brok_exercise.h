#pragma once

#include <optional>
#include <string>

#include "numeric/draws.h"

namespace tavrune {

/// One task on two fractions, a/b and c/d. The result is never 0.
struct BrokState {
    float numeratorA = 0;
    float denominatorB = 0;
    float numeratorC = 0;
    float denominatorD = 0;
    /// "+", "-", "*" or "/".
    std::string operatorText;
    /// The result as computed: not reduced, with the sign wherever it falls.
    double resultNumerator = 0;
    double resultDenominator = 0;
};

/// Draws until the result is not 0.
void newExercise(BrokState& state, Draws& draws);

/// True if n/m is the result as a value, unreduced and with the sign anywhere. Precondition: m != 0.
[[nodiscard]] bool isRight(const BrokState& state, double n, double m);

/// The result with all common factors cancelled, by size alone. The sign is kept beside it.
struct ReducedFraction {
    double numerator;
    double denominator;
    bool isNegative;

    [[nodiscard]] bool isOne() const { return numerator == denominator; }
    [[nodiscard]] bool isWhole() const { return denominator == 1; }
    [[nodiscard]] double signedNumerator() const { return isNegative ? -numerator : numerator; }
};

/// Cancels by prime factors. At most seven of them are multiplied, which is enough for all results that can
/// be drawn: numerators up to 200 in size, denominators up to 100.
[[nodiscard]] ReducedFraction reduced(const BrokState& state);

struct FractionText {
    std::string numerator;
    std::string denominator;
};

/// What stands behind the answer once the exercise is over: a whole number, a reduced fraction, or nothing
/// where the typed numerator is the reduced one already.
struct ReductionText {
    std::optional<std::string> whole;
    std::optional<FractionText> fraction;
};

[[nodiscard]] ReductionText reductionText(const BrokState& state, double typedNumerator);

/// The general method for an operator.
struct BrokMethod {
    const char* task;
    const char* rule;
    const char* numerator;
    const char* denominator;
};

[[nodiscard]] const BrokMethod& methodFor(const std::string& operatorText);

/// The last step of the worked solution.
struct LastStep {
    enum class Kind { Whole, Irreducible, Reduced };
    Kind kind;
    /// The whole number, or the reduced fraction; "-" stands before the numerator of a negative one.
    std::string numerator;
    std::string denominator;
};

/// The worked solution with the numbers of the task: the middle fraction is written out, the next is
/// computed.
struct BrokWorked {
    FractionText middle;
    FractionText computed;
    LastStep last;
};

[[nodiscard]] BrokWorked workedSolution(const BrokState& state);

}  // namespace tavrune
