#pragma once

#include <string>
#include <vector>

#include "numeric/draws.h"

namespace tavrune {

/// What is known of the demand function.
enum class AfsaetKind {
    TwoPoints = 0,
    PointAndElasticityAtPrice,
    PointAndElasticityAtQuantity,
    PointAndSlope,
    TwoElasticities,
    ElasticityAtPriceAndSlope,
    ElasticityAtQuantityAndSlope,
};

/// Both axes of the graph end here.
inline constexpr int kAfsaetEnd = 10;

/// How the range of validity is told.
enum class AfsaetInterval { InPrices, InQuantities };

/// One demand function P = aQ + b with its range of validity.
///
/// All numbers are computed as singles (but for two factors, 0.8 and 1.5, which make doubles of what they
/// meet) and, where they are doubles here, rounded to 2 decimals at the end.
struct AfsaetState {
    AfsaetKind kind = AfsaetKind::TwoPoints;
    AfsaetInterval interval = AfsaetInterval::InPrices;
    /// The answer, with the bounds of the quantity: a < 0 and 3 <= b <= 10.
    double a = 0;
    double b = 0;
    double Qlo = 0;
    double Qhi = 0;
    /// Two points, the first one up and to the left. What a kind neither draws nor computes is of no account.
    double P1 = 0;
    double Q1 = 0;
    double P2 = 0;
    double Q2 = 0;
    /// -6 to -2; -1 by a draw of just 0.
    float Ep = 0;
    float Ep2 = 0;
    float slope = 0;
    /// Whole. Only where the interval is told in prices.
    float Plo = 0;
    float Phi = 0;
    /// Where the line meets the axes, for two elasticities only. Qmax is whole.
    double Pmax = 0;
    float Qmax = 0;
};

/// Draws until a kind, its numbers and its interval go together, with a new kind at each try.
void newExercise(AfsaetState& state, Draws& draws);

/// One of something for each number of the answer: a, b, and the lower and the upper bound of Q, in the order
/// in which they are typed.
template <class T>
struct AfsaetFields {
    T a{};
    T b{};
    T Qlo{};
    T Qhi{};

    bool operator==(const AfsaetFields&) const = default;
};

using AfsaetAnswer = AfsaetFields<double>;

[[nodiscard]] AfsaetAnswer answerOf(const AfsaetState& state);

/// What `judge` gives for the answer.
inline constexpr AfsaetFields<bool> kAfsaetAllRight{true, true, true, true};

/// Which of the four are right, to the last decimal.
[[nodiscard]] AfsaetFields<bool> judge(const AfsaetState& state, const AfsaetAnswer& typed);

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

/// The steps of a panel, with the numbers of the exercise also where `helpFor` tells another one.
[[nodiscard]] std::vector<AfsaetStep> workedSteps(const AfsaetState& state, AfsaetHelp help);

/// The step of a panel that finds `unknown`; one without texts if the panel has none.
[[nodiscard]] AfsaetStep workedStep(const AfsaetState& state, AfsaetHelp help, AfsaetUnknown unknown);

/// "P = -0.5Q + 4"
[[nodiscard]] std::string equationText(const AfsaetState& state);

}  // namespace tavrune
