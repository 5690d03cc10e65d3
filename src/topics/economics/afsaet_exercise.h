#pragma once

#include <string>
#include <vector>

#include "numeric/judgement.h"
#include "topics/economics/afsaet_model.h"

namespace tavrune {

/// The numbers of the answer in the order in which they are typed, with the bounds of the quantity.
struct AfsaetAnswer {
    double a{};
    double b{};
    double Qlo{};
    double Qhi{};

    bool operator==(const AfsaetAnswer&) const = default;
};

[[nodiscard]] AfsaetAnswer answerOf(const AfsaetState& state);

/// Judges a typed a, b, and lower and upper bound of Q: right to the last decimal.
[[nodiscard]] Judgement judge(const AfsaetState& state, const std::vector<double>& typed);

/// What is asked, the two facts and the range.
struct AfsaetTask {
    std::string sentence;
    std::string firstFact;
    std::string secondFact;
    std::string range;
};

[[nodiscard]] AfsaetTask taskTexts(const AfsaetState& state);

/// The ways to the solution, one help panel each.
enum class AfsaetHelp {
    TwoPoints,
    ElasticityAtPointPrice,
    ElasticityAtOtherPrice,
    ElasticityAtPointQuantity,
    ElasticityAtOtherQuantity,
    PointAndSlope,
    TwoElasticities,
    ElasticityAtPriceAndSlope,
    ElasticityAtQuantityAndSlope,
};

[[nodiscard]] AfsaetHelp helpFor(const AfsaetState& state);

/// What a step of a worked solution finds: the slope a, the intercept b, where the line meets an axis, or the
/// other coordinate of a point.
enum class AfsaetUnknown { Slope, Intercept, MaxPrice, MaxQuantity, Quantity, Price };

/// One step of a worked solution: a text, in some behind a fraction.
struct AfsaetStep {
    AfsaetUnknown unknown;
    std::string text;
    /// Both empty where there is no fraction.
    std::string numerator{};
    std::string denominator{};
};

/// Returns the steps of a help panel with the numbers of the exercise, whichever panel it is.
[[nodiscard]] std::vector<AfsaetStep> workedSteps(const AfsaetState& state, AfsaetHelp help);

/// Returns the step of a panel that finds `unknown`, or one without texts if the panel has no such step.
[[nodiscard]] AfsaetStep workedStep(const AfsaetState& state, AfsaetHelp help, AfsaetUnknown unknown);

/// Returns "P = -0.5Q + 4".
[[nodiscard]] std::string equationText(const AfsaetState& state);

}  // namespace tavrune
