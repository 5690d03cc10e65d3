#include "topics/economics/afsaet_model.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "numeric/arithmetic.h"
#include "numeric/rounding.h"

namespace tavrune {
namespace {

constexpr int kEnd = kAfsaetEnd;
constexpr int kSmallestB = 3;

enum class Outcome { Rejected, Accepted };

/// An exercise in the making, with every number in the kind in which it is computed.
struct Attempt {
    AfsaetKind kind = AfsaetKind::TwoPoints;
    AfsaetInterval interval = AfsaetInterval::InPrices;
    float P1{};
    float P2{};
    float Q1{};
    float Q2{};
    float Ep{};
    float Ep2{};
    float slope{};
    float a{};
    float b{};
    float Plo{};
    float Phi{};
    float Pmax{};
    float Qmax{};
    /// Doubles because some kinds compute them as such; the others store singles here.
    double Qlo{};
    double Qhi{};

    /// Where the line meets the Q axis. a is not 0.
    [[nodiscard]] float qCross() const { return -b / a; }

    /// In single or double precision, as Q is.
    template <class Quantity>
    [[nodiscard]] Quantity priceAt(Quantity Q) const {
        return a * Q + b;
    }
    template <class Price>
    [[nodiscard]] Price quantityAt(Price P) const {
        return (P - b) / a;
    }
};

AfsaetInterval drawInterval(Draws& draws) {
    return draws.Rnd() > 0.5 ? AfsaetInterval::InPrices : AfsaetInterval::InQuantities;
}

/// The denominators of the kinds that can be 0. Every kind wants them all, also those that it does not use:
/// so P1 and Q1 are above 0.
bool hasZeroDenominator(const Attempt& t) { return t.Q1 == 0 || t.Ep * (t.P1 - t.P2) + t.P2 == 0; }

void tellInQuantities(Attempt& t, double Qlo, double Qhi) {
    t.interval = AfsaetInterval::InQuantities;
    t.Qlo = Qlo;
    t.Qhi = Qhi;
}

/// Sets the quantities to those at Plo and Phi. A bound that leaves the graph goes to its point: this is done
/// once for each at most, since both points lie on the graph.
void tellInPricesWithinGraph(Attempt& t) {
    t.interval = AfsaetInterval::InPrices;
    while (true) {
        const float Qhi = t.quantityAt(t.Plo);
        const float Qlo = t.quantityAt(t.Phi);
        t.Qlo = Qlo;
        t.Qhi = Qhi;
        if (Qlo < 0) {
            t.Phi = t.P1;
        } else if (Qhi > kEnd) {
            t.Plo = t.P2;
        } else {
            return;
        }
    }
}

Outcome fromTwoPoints(Attempt& t, Draws& draws) {
    if (t.Q1 == t.Q2 || t.P1 == t.P2) {
        return Outcome::Rejected;
    }
    t.a = (t.P1 - t.P2) / (t.Q1 - t.Q2);
    t.b = -t.a * t.Q1 + t.P1;
    if (drawInterval(draws) == AfsaetInterval::InPrices) {
        t.Plo = t.P2 - Int(draws.Rnd() * t.P2);
        t.Phi = t.P1 + Int(draws.Rnd() * (kEnd - t.P1));
        tellInPricesWithinGraph(t);
    } else {
        const float Qlo = t.Q1 - Int(draws.Rnd() * t.Q1);
        // Kept (afsaet-idle-draw): the draw has no say, the bound is always one above the point.
        draws.Rnd();
        tellInQuantities(t, Qlo, t.Q2 + 1);
    }
    return Outcome::Accepted;
}

Outcome fromElasticityAtPointPrice(Attempt& t, Draws& draws) {
    t.a = t.P1 / (t.Ep * t.Q1);
    t.b = t.P1 - t.a * t.Q1;
    const float Qcap = t.qCross();
    if (Qcap > kEnd) {
        return Outcome::Rejected;
    }
    if (drawInterval(draws) == AfsaetInterval::InPrices) {
        t.Plo = Int(t.P2 / 2) - Int(draws.Rnd() * Int(t.P2 / 2));
        t.Phi = (t.P1 + Int(t.P1 / 2)) + Int(draws.Rnd() * Int(kEnd - t.P1 / 2));
        tellInPricesWithinGraph(t);
    } else {
        const float Qlo = Int(t.Q1 / 2) - Int(draws.Rnd() * (t.Q1 / 2));
        const float QatP2 = t.quantityAt(t.P2);
        tellInQuantities(t, Qlo, Int(QatP2) + Int((Qcap - QatP2) / 2));
    }
    return Outcome::Accepted;
}

Outcome fromElasticityAtOtherPrice(Attempt& t, Draws& draws) {
    t.Q2 = (t.P2 * t.Q1) / (t.Ep * (t.P1 - t.P2) + t.P2);
    if (t.Q2 <= t.Q1) {
        return Outcome::Rejected;
    }
    t.a = (t.P2 - t.P1) / (t.Q2 - t.Q1);
    t.b = t.P1 - t.a * t.Q1;
    const float Qcap = t.qCross();
    if (Qcap > kEnd) {
        return Outcome::Rejected;
    }
    if (drawInterval(draws) == AfsaetInterval::InPrices) {
        t.Plo = t.P2 - Int(t.P2 / 2);
        t.Phi = t.P1 + Int(draws.Rnd() * (kEnd - t.P1));
        tellInPricesWithinGraph(t);
    } else {
        const float Qlo = t.Q1 - Int(draws.Rnd() * t.Q1);
        tellInQuantities(t, Qlo, Int(t.Q2) + Int((Qcap - t.Q2) / 2));
    }
    return Outcome::Accepted;
}

Outcome fromPointAndElasticityAtPrice(Attempt& t, Draws& draws) {
    return t.P1 == t.P2 ? fromElasticityAtPointPrice(t, draws) : fromElasticityAtOtherPrice(t, draws);
}

Outcome fromPointAndElasticityAtQuantity(Attempt& t, Draws& /*draws*/) {
    if (t.Q1 == t.Q2) {
        t.a = t.P1 / (t.Ep * t.Q1);
    } else {
        t.P2 = (t.Ep * t.P1 * t.Q2) / ((t.Q1 - t.Q2) + t.Ep * t.Q2);
        t.a = (t.P2 - t.P1) / (t.Q2 - t.Q1);
    }
    t.b = t.P1 - t.a * t.Q1;
    t.Qmax = t.qCross();
    if (t.Qmax > kEnd) {
        return Outcome::Rejected;
    }
    tellInQuantities(t, t.Q1 - Int(t.Q1 / 2), t.Q2 + Int((t.Qmax - t.Q2) / 2));
    return Outcome::Accepted;
}

Outcome fromPointAndSlope(Attempt& t, Draws& draws) {
    t.a = t.slope;
    t.b = t.P1 - t.slope * t.Q1;
    if (drawInterval(draws) == AfsaetInterval::InPrices) {
        t.interval = AfsaetInterval::InPrices;
        t.Plo = (t.P1 - Int(t.P1 / 2)) - Int(draws.Rnd() * (t.P1 / 2));
        t.Phi = t.P1 + Int((t.b - t.P1) / 2);
        t.Qlo = t.quantityAt(t.Phi);
        t.Qhi = t.quantityAt(t.Plo);
    } else {
        const float Qlo = t.Q1 - Int(t.Q1 / 2);
        const float Qhi = Int(t.qCross());
        tellInQuantities(t, Qlo == Qhi ? 0 : Qlo, Qhi);
    }
    return Outcome::Accepted;
}

Outcome fromTwoElasticities(Attempt& t, Draws& draws) {
    t.b = -t.P1 / t.Ep + t.P1;
    t.Qmax = -t.Ep2 * t.Q1 + t.Q1;
    t.a = -t.b / t.Qmax;
    t.Pmax = t.b;
    const float Qcap = std::min(t.qCross(), static_cast<float>(kEnd));
    const float floorPrice = std::max(kEnd * t.a + t.b, 0.0F);
    const bool fallsEnough = -kEnd * t.a >= 2;
    if (drawInterval(draws) == AfsaetInterval::InPrices && fallsEnough) {
        t.interval = AfsaetInterval::InPrices;
        t.Plo = Int(floorPrice + 1);
        t.Phi = Int(t.b);
        t.Qlo = t.quantityAt(t.Phi);
        t.Qhi = t.quantityAt(t.Plo);
        return t.Qlo > t.Q1 || t.Qhi < t.Q1 ? Outcome::Rejected : Outcome::Accepted;
    }
    // Kept (afsaet-bound-below-zero): the largest draw is rounded up by the addition, to -1 for some Q1.
    const float Qlo = t.Q1 - Int(draws.Rnd() * t.Q1 + 1);
    const double Qhi = t.Q1 + Int((Qcap - t.Q1) * 0.8);
    tellInQuantities(t, Qlo, Qhi);
    // The point at P1 is to lie between them; that at Q1 does.
    return t.priceAt(Qlo) < t.P1 || t.priceAt(Qhi) > t.P1 ? Outcome::Rejected : Outcome::Accepted;
}

Outcome tellWithSlope(Attempt& t, Draws& draws) {
    if (drawInterval(draws) == AfsaetInterval::InPrices) {
        t.interval = AfsaetInterval::InPrices;
        const double Phi = t.P1 + Int((t.b - t.P1) / 1.5);
        t.Plo = t.P1 - Int(t.P1 / 2);
        t.Phi = static_cast<float>(Phi);
        t.Qlo = t.quantityAt(Phi);
        t.Qhi = t.quantityAt(t.Plo);
        return Outcome::Accepted;
    }
    const double Qlo = Int(draws.Rnd() + 0.5);
    const float Qhi = Int(t.qCross());
    // Kept (afsaet-empty-interval): where the line meets the axis below 1, "1<Q<0" can be told.
    tellInQuantities(t, Qlo == Qhi ? 0 : Qlo, Qhi);
    return t.Qlo == t.Qhi ? Outcome::Rejected : Outcome::Accepted;
}

Outcome fromElasticityAtPriceAndSlope(Attempt& t, Draws& draws) {
    t.a = t.slope;
    t.Q1 = (t.P1 / t.slope) / t.Ep;
    t.b = t.P1 - t.a * t.Q1;
    return tellWithSlope(t, draws);
}

Outcome fromElasticityAtQuantityAndSlope(Attempt& t, Draws& draws) {
    t.a = t.slope;
    t.P1 = t.a * t.Ep * t.Q1;
    t.b = t.P1 - t.a * t.Q1;
    return tellWithSlope(t, draws);
}

/// In the order of the kinds.
constexpr std::array kWays{
    fromTwoPoints,       fromPointAndElasticityAtPrice, fromPointAndElasticityAtQuantity, fromPointAndSlope,
    fromTwoElasticities, fromElasticityAtPriceAndSlope, fromElasticityAtQuantityAndSlope,
};

constexpr int kKinds = static_cast<int>(kWays.size());

float drawCoordinate(Draws& draws) { return Int(draws.Rnd() * kEnd); }

// Kept (afsaet-rare-minus-one): -1 only from a draw of 0.
float drawNegative(Draws& draws) { return Int(-draws.Rnd() * 5) - 1; }

/// The numbers that all kinds draw.
Attempt drawAttempt(Draws& draws) {
    draws.Randomize();
    Attempt t;
    t.kind = static_cast<AfsaetKind>(Int(draws.Rnd() * kKinds));
    t.P1 = drawCoordinate(draws);
    t.P2 = drawCoordinate(draws);
    t.Q1 = drawCoordinate(draws);
    t.Q2 = drawCoordinate(draws);
    t.Ep = drawNegative(draws);
    t.Ep2 = drawNegative(draws);
    t.slope = drawNegative(draws);
    // Kept (afsaet-q1-zero): Q1 can become 0 again when the two change places.
    if (t.Q1 == 0) {
        t.Q1 = 1;
    }
    std::tie(t.P2, t.P1) = std::minmax({t.P1, t.P2});
    std::tie(t.Q1, t.Q2) = std::minmax({t.Q1, t.Q2});
    return t;
}

bool isAcceptable(Attempt& t, Draws& draws) {
    if (hasZeroDenominator(t) || kWays.at(static_cast<std::size_t>(t.kind))(t, draws) == Outcome::Rejected) {
        return false;
    }
    // Every way makes a line that falls.
    return t.b >= kSmallestB && t.b <= kEnd;
}

AfsaetState rounded(const Attempt& t) {
    return {.kind = t.kind,
            .interval = t.interval,
            .a = RoundSigned2(t.a),
            .b = RoundSigned2(t.b),
            .Qlo = RoundSigned2(t.Qlo),
            .Qhi = RoundSigned2(t.Qhi),
            .P1 = RoundSigned2(t.P1),
            .Q1 = RoundSigned2(t.Q1),
            .P2 = RoundSigned2(t.P2),
            .Q2 = RoundSigned2(t.Q2),
            .Ep = t.Ep,
            .Ep2 = t.Ep2,
            .slope = t.slope,
            .Plo = t.Plo,
            .Phi = t.Phi,
            .Pmax = RoundSigned2(t.Pmax),
            .Qmax = t.Qmax};
}

}  // namespace

void newExercise(AfsaetState& state, Draws& draws) {
    Attempt attempt;
    do {
        attempt = drawAttempt(draws);
    } while (!isAcceptable(attempt, draws));
    state = rounded(attempt);
}

}  // namespace tavrune
