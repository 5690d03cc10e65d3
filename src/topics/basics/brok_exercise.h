#pragma once

#include <optional>
#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"

namespace tavrune {

/// What is done with the two fractions, in the order in which it is drawn.
enum class Operation { Subtract, Add, Multiply, Divide };

/// One task on two fractions, a/b and c/d. The result is never 0.
struct BrokState {
    float numeratorA{};
    float denominatorB{};
    float numeratorC{};
    float denominatorD{};
    /// Nothing until there is an exercise.
    std::optional<Operation> operation;
    /// The result as computed: not reduced, and either part may be negative.
    double resultNumerator{};
    double resultDenominator{};
};

/// Returns "-", "+", "*" or "/", or nothing for no operation.
[[nodiscard]] std::string operatorSign(std::optional<Operation> operation);

/// Draws until the result is not 0.
void newExercise(BrokState& state, Draws& draws);

/// Judges a typed n/m: both are right if its value is that of the result, whether reduced or not and wherever
/// the sign stands; otherwise both are wrong. Precondition: m is not 0.
[[nodiscard]] Judgement judge(const BrokState& state, const std::vector<double>& typed);

/// The result with all common factors cancelled, by size alone. The sign is kept beside it.
struct ReducedFraction {
    double numerator;
    double denominator;
    bool isNegative;

    [[nodiscard]] bool isOne() const { return numerator == denominator; }
    [[nodiscard]] bool isWhole() const { return denominator == 1; }
    [[nodiscard]] double signedNumerator() const { return isNegative ? -numerator : numerator; }
};

/// Returns the result with its common factors cancelled; before the first exercise, 1/1.
[[nodiscard]] ReducedFraction reduced(const BrokState& state);

struct FractionText {
    std::string numerator;
    std::string denominator;
};

/// What stands after the answer once the exercise is over: a whole number, a reduced fraction, or nothing if
/// the typed numerator is the reduced one already.
struct ReductionText {
    std::optional<std::string> whole;
    std::optional<FractionText> fraction;
};

[[nodiscard]] ReductionText reductionText(const BrokState& state, double typedNumerator);

/// The general method for an operation.
struct BrokMethod {
    const char* task;
    const char* rule;
    const char* numerator;
    const char* denominator;
};

/// Returns the method for an operation; for none, that for a division.
[[nodiscard]] const BrokMethod& methodFor(std::optional<Operation> operation);

/// The last step of the worked solution.
struct LastStep {
    enum class Kind { Whole, Irreducible, Reduced };
    Kind kind;
    /// The whole number, or the reduced fraction; "-" stands before the numerator of a negative one.
    std::string numerator;
    std::string denominator;
};

/// The worked solution with the numbers of the task: one fraction with the numbers written out, the next
/// computed.
struct BrokWorked {
    FractionText writtenOut;
    FractionText computed;
    LastStep last;
};

/// Returns the worked solution; without an exercise, that of a division of zeros.
[[nodiscard]] BrokWorked workedSolution(const BrokState& state);

}  // namespace tavrune
