#pragma once

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
    double a{};
    double b{};
    double Qlo{};
    double Qhi{};
    /// Two points, the first one up and to the left. Not every kind uses all of these numbers.
    double P1{};
    double Q1{};
    double P2{};
    double Q2{};
    /// -6 to -2; -1 by a draw of just 0.
    float Ep{};
    float Ep2{};
    float slope{};
    /// Whole. Only where the interval is told in prices.
    float Plo{};
    float Phi{};
    /// Where the line meets the axes, for two elasticities only. Qmax is whole.
    double Pmax{};
    float Qmax{};
};

/// Draws until a kind, its numbers and its interval go together, with a new kind at each try.
void newExercise(AfsaetState& state, Draws& draws);

}  // namespace tavrune
