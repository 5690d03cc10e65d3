#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <ostream>
#include <tuple>
#include <utility>

#include "topics/economics/afsaet_reader.h"
#include "topics/economics/afsaet_script.h"

/// Every try at an exercise on a demand function that can be drawn, and what is to come of it.
///
/// All kinds draw two prices and two quantities, of 10 values each, and an elasticity, of 6; these decide
/// whether there are denominators. The second elasticity and the slope, of 6 values too, count for the kinds
/// that use them, for the others they are any. So there are 60,000 or 360,000 sets of numbers, and of each
/// that is not left at once as many tries as the coin and the bounds have ways to fall.
namespace tavrune::test::afsaet {

/// Compares and cuts by exact numbers, and notes where these are just at an edge: singles, which the
/// generator computes in, may fall to either side of it.
class Edges {
public:
    bool isAbove(double x, double limit) {
        areMet_ = areMet_ || std::abs(x - limit) < kReach;
        return x > limit + kReach;
    }

    double whole(double x) {
        areMet_ = areMet_ || std::abs(x - std::round(x)) < kReach;
        return std::floor(x + kReach);
    }

    [[nodiscard]] bool areMet() const { return areMet_; }

private:
    /// No number that is met here comes so near to an edge without being just there.
    static constexpr double kReach = 1e-4;
    bool areMet_ = false;
};

/// What is to come of a try.
struct Fate {
    bool isTaken = true;
    AfsaetInterval interval = AfsaetInterval::InQuantities;
    /// As they are told.
    double lower = 0;
    double upper = 0;
    bool isOnEdge = false;
};

/// One try by exact numbers.
class Try {
public:
    /// Both values of the coin and all cells of the bounds' draws are for the caller to set.
    bool isHeads = false;
    std::array<int, 2> cells{};

    /// Precondition: index < setsOf(kind)
    Try(AfsaetKind kind, int index) : within_(index % 3 == 0 ? 1.0 / 4096 : 4095.0 / 4096) {
        int rest = index;
        const auto next = [&rest](int values) { return std::exchange(rest, rest / values) % values; };
        drawn_.kind = kind;
        drawn_.P1 = next(10);
        drawn_.Q2 = next(10);
        drawn_.P2 = next(10);
        drawn_.Q1 = next(10);
        drawn_.Ep = -1 - next(6);
        drawn_.Ep2 = -1 - (kind == AfsaetKind::TwoElasticities ? next(6) : index / 7 % 6);
        drawn_.slope = -1 - (usesSlope(kind) ? next(6) : index / 11 % 6);
        const int Q1 = std::max(drawn_.Q1, 1);
        n_ = drawn_;
        n_.P1 = std::max(drawn_.P1, drawn_.P2);
        n_.P2 = std::min(drawn_.P1, drawn_.P2);
        n_.Q1 = std::min(Q1, drawn_.Q2);
        n_.Q2 = std::max(Q1, drawn_.Q2);
        isLeftAtOnce_ = hasZeroDenominator() || isNoLine();
        if (!isLeftAtOnce_) {
            std::tie(a_, b_) = solve(facts());
            const bool isBounded = kind == AfsaetKind::PointAndElasticityAtPrice ||
                                   kind == AfsaetKind::PointAndElasticityAtQuantity;
            isLeftAtOnce_ = isBounded && (a_ >= 0 || edges_.isAbove(end(), kAfsaetEnd));
        }
    }

    [[nodiscard]] static bool usesSlope(AfsaetKind kind) {
        return kind == AfsaetKind::PointAndSlope || kind == AfsaetKind::ElasticityAtPriceAndSlope ||
               kind == AfsaetKind::ElasticityAtQuantityAndSlope;
    }

    [[nodiscard]] static int setsOf(AfsaetKind kind) {
        return 60'000 * (kind == AfsaetKind::TwoElasticities || usesSlope(kind) ? 6 : 1);
    }

    [[nodiscard]] bool flipsCoin() const {
        return !isLeftAtOnce_ && n_.kind != AfsaetKind::PointAndElasticityAtQuantity;
    }

    /// What the draws behind the coin are multiplied by, before they are cut; -1 for none.
    [[nodiscard]] std::array<double, 2> factors() const {
        switch (n_.kind) {
            case AfsaetKind::TwoPoints:
                return isHeads ? std::array{1.0 * n_.P2, 10.0 - n_.P1} : std::array{1.0 * n_.Q1, 0.0};
            case AfsaetKind::PointAndElasticityAtPrice:
                if (n_.P1 > n_.P2) {
                    return {isHeads ? 10.0 - n_.P1 : n_.Q1, -1};
                }
                return isHeads ? std::array{std::floor(n_.P1 / 2.0), std::floor(10 - n_.P1 / 2.0)}
                               : std::array{n_.Q1 / 2.0, -1.0};
            case AfsaetKind::PointAndSlope:
                return {isHeads ? n_.P1 / 2.0 : -1, -1};
            case AfsaetKind::TwoElasticities:
                return {isToldInPrices() ? -1.0 : n_.Q1, -1};
            case AfsaetKind::ElasticityAtPriceAndSlope:
            case AfsaetKind::ElasticityAtQuantityAndSlope:
                return {isHeads ? -1.0 : 2.0, -1};
            case AfsaetKind::PointAndElasticityAtQuantity:
                break;
        }
        return {-1, -1};
    }

    /// In how many ways a draw falls that is multiplied by `factor`.
    [[nodiscard]] int cellsOf(double factor) const {
        const int all = std::max(1, static_cast<int>(std::ceil(factor)));
        // Two elasticities add 1 before they cut. Next to a power of two, a single has no room for that, and
        // the largest draw alone gives one more.
        const bool isRoundedUp =
            n_.kind == AfsaetKind::TwoElasticities && factor > 0 && (all & (all - 1)) == 0;
        return isRoundedUp ? all + 1 : all;
    }

    /// The draws, each near an end of those that are alike.
    [[nodiscard]] Script script() const {
        Script script = numbers(drawn_, within_);
        if (flipsCoin()) {
            script.push_back(isHeads ? std::nextafter(0.5F, 1.0F) : 0.5F);
            for (std::size_t at = 0; at < cells.size(); ++at) {
                const double factor = factors().at(at);
                if (factor == 0) {
                    script.push_back(static_cast<float>(within_));
                } else if (factor > 0) {
                    script.push_back(drawIn(cells.at(at), factor, within_));
                }
            }
        }
        return script;
    }

    /// What is told, if it is.
    [[nodiscard]] Facts facts() const {
        const std::pair<double, double> first{n_.P1, n_.Q1};
        const auto bFrom = [this](double P) { return P - P / n_.Ep; };
        const auto endFrom = [](double Q, int Ep) { return Q * (1 - Ep); };
        switch (n_.kind) {
            case AfsaetKind::TwoPoints:
                return {.points = {first, {n_.P2, n_.Q2}}};
            case AfsaetKind::PointAndElasticityAtPrice:
                return {.points = {first}, .b = bFrom(n_.P2)};
            case AfsaetKind::PointAndElasticityAtQuantity:
                return {.points = {first}, .Qmax = endFrom(n_.Q2, n_.Ep)};
            case AfsaetKind::PointAndSlope:
                return {.points = {first}, .slope = n_.slope};
            case AfsaetKind::TwoElasticities:
                return {.b = bFrom(n_.P1), .Qmax = endFrom(n_.Q1, n_.Ep2)};
            case AfsaetKind::ElasticityAtPriceAndSlope:
                return {.slope = n_.slope, .b = bFrom(n_.P1)};
            case AfsaetKind::ElasticityAtQuantityAndSlope:
                return {.slope = n_.slope, .Qmax = endFrom(n_.Q1, n_.Ep)};
        }
        return {};
    }

    [[nodiscard]] Fate fate() const {
        Edges edges = edges_;
        Fate fate{.isTaken = false};
        if (!isLeftAtOnce_) {
            fate = bounds(edges);
            fate.isTaken = fate.isTaken && !edges.isAbove(3, b_) && !edges.isAbove(b_, 10);
        }
        fate.isOnEdge = edges.areMet();
        return fate;
    }

    friend void PrintTo(const Try& t, std::ostream* out) {
        const Numbers& n = t.n_;
        *out << "kind " << static_cast<int>(n.kind) << ", (" << n.P1 << ";" << n.Q1 << ") (" << n.P2 << ";"
             << n.Q2 << ") Ep " << n.Ep << " Ep2 " << n.Ep2 << " slope " << n.slope
             << (t.isHeads ? " heads " : " tails ") << t.cells[0] << " " << t.cells[1];
    }

private:
    Numbers drawn_;
    /// With the first point up and to the left.
    Numbers n_;
    double within_;
    bool isLeftAtOnce_ = false;
    double a_ = 0;
    double b_ = 0;
    Edges edges_;

    [[nodiscard]] bool hasZeroDenominator() const {
        return n_.Q1 == 0 || n_.Ep * n_.P1 == (n_.Ep - 1) * n_.P2;
    }
    [[nodiscard]] bool isNoLine() const {
        return n_.kind == AfsaetKind::TwoPoints && (n_.P1 == n_.P2 || n_.Q1 == n_.Q2);
    }

    /// The quantity at which the line ends.
    [[nodiscard]] double end() const { return -b_ / a_; }
    [[nodiscard]] double price(double Q) const { return a_ * Q + b_; }
    [[nodiscard]] double quantity(double P) const { return (P - b_) / a_; }

    /// Two elasticities are told in prices where the line falls by 2 at least on the graph.
    [[nodiscard]] bool isToldInPrices() const { return isHeads && !Edges().isAbove(2, -10 * a_); }

    [[nodiscard]] static Fate inQuantities(double lower, double upper) {
        return {.lower = lower, .upper = upper};
    }
    [[nodiscard]] static Fate inPrices(double lower, double upper) {
        return {.interval = AfsaetInterval::InPrices, .lower = lower, .upper = upper};
    }
    [[nodiscard]] Fate inPricesOnGraph(double lower, double upper, Edges& edges) const {
        return inPrices(edges.isAbove(price(kAfsaetEnd), lower) ? n_.P2 : lower,
                        edges.isAbove(upper, b_) ? n_.P1 : upper);
    }

    [[nodiscard]] Fate bounds(Edges& edges) const {
        switch (n_.kind) {
            case AfsaetKind::TwoPoints:
                return isHeads ? inPricesOnGraph(n_.P2 - cells[0], n_.P1 + cells[1], edges)
                               : inQuantities(n_.Q1 - cells[0], n_.Q2 + 1);
            case AfsaetKind::PointAndElasticityAtPrice:
                return n_.P1 == n_.P2 ? atPointPrice(edges) : atOtherPrice(edges);
            case AfsaetKind::PointAndElasticityAtQuantity:
                return inQuantities(n_.Q1 - n_.Q1 / 2, n_.Q2 + edges.whole((end() - n_.Q2) / 2));
            case AfsaetKind::PointAndSlope:
                return pointAndSlope(edges);
            case AfsaetKind::TwoElasticities:
                return twoElasticities(edges);
            case AfsaetKind::ElasticityAtPriceAndSlope:
                return elasticityAndSlope(n_.P1, edges);
            case AfsaetKind::ElasticityAtQuantityAndSlope:
                return elasticityAndSlope(n_.slope * n_.Ep * n_.Q1, edges);
        }
        return {};
    }

    [[nodiscard]] Fate atPointPrice(Edges& edges) const {
        return isHeads ? inPricesOnGraph(n_.P1 / 2 - cells[0], n_.P1 + n_.P1 / 2 + cells[1], edges)
                       : inQuantities(n_.Q1 / 2 - cells[0], upperBeyond(n_.Q1, edges));
    }

    [[nodiscard]] Fate atOtherPrice(Edges& edges) const {
        return isHeads ? inPricesOnGraph(n_.P2 - n_.P2 / 2, n_.P1 + cells[0], edges)
                       : inQuantities(n_.Q1 - cells[0], upperBeyond(quantity(n_.P2), edges));
    }

    /// Half of the way from Q to the end of the line, in whole numbers.
    [[nodiscard]] double upperBeyond(double Q, Edges& edges) const {
        return edges.whole(Q) + edges.whole((end() - Q) / 2);
    }

    [[nodiscard]] Fate pointAndSlope(Edges& edges) const {
        if (isHeads) {
            return inPrices(n_.P1 - n_.P1 / 2 - cells[0], n_.P1 + edges.whole((b_ - n_.P1) / 2));
        }
        const int lower = n_.Q1 - n_.Q1 / 2;
        const double upper = edges.whole(end());
        return inQuantities(lower == upper ? 0 : lower, upper);
    }

    [[nodiscard]] Fate twoElasticities(Edges& edges) const {
        // Just there, singles may choose the other way to tell it.
        edges.isAbove(2, -10 * a_);
        if (!isToldInPrices()) {
            const double last = std::min(end(), 1.0 * kAfsaetEnd);
            Fate fate = inQuantities(n_.Q1 - 1 - cells[0], n_.Q1 + edges.whole(0.8 * (last - n_.Q1)));
            fate.isTaken =
                !edges.isAbove(n_.P1, price(fate.lower)) && !edges.isAbove(price(fate.upper), n_.P1);
            return fate;
        }
        Fate fate = inPrices(edges.whole(std::max(price(kAfsaetEnd), 0.0)) + 1, edges.whole(b_));
        fate.isTaken =
            !edges.isAbove(quantity(fate.upper), n_.Q1) && !edges.isAbove(n_.Q1, quantity(fate.lower));
        return fate;
    }

    [[nodiscard]] Fate elasticityAndSlope(int P, Edges& edges) const {
        if (isHeads) {
            return inPrices(P - P / 2, P + edges.whole((b_ - P) / 1.5));
        }
        const double upper = edges.whole(std::min(end(), 1.0 * kAfsaetEnd));
        Fate fate = inQuantities(cells[0] == upper ? 0 : cells[0], upper);
        fate.isTaken = fate.lower != fate.upper;
        return fate;
    }
};

/// Calls `visit` with all tries that come of every `stride`th set of numbers.
template <class Visit>
void forEachTry(AfsaetKind kind, int stride, Visit visit) {
    for (int index = 0; index < Try::setsOf(kind); index += stride) {
        Try t(kind, index);
        if (!t.flipsCoin()) {
            visit(t);
            continue;
        }
        for (const bool isHeads : {false, true}) {
            t.isHeads = isHeads;
            const auto [first, second] = t.factors();
            for (t.cells[0] = 0; t.cells[0] < t.cellsOf(first); ++t.cells[0]) {
                for (t.cells[1] = 0; t.cells[1] < t.cellsOf(second); ++t.cells[1]) {
                    visit(t);
                }
            }
        }
    }
}

/// The draws of a try and, once it is left, those of an exercise that is taken. A generator that wants more
/// than these is stopped by a throw.
class TryDraws final : public Draws {
public:
    TryDraws(Script oneTry, Script taken) : try_(std::move(oneTry)), taken_(std::move(taken)) {}

    float Rnd() override {
        if (tries_ > 1) {
            return taken_.at(next_++);
        }
        // On an edge one more can be wanted than exact numbers say.
        const std::size_t at = used_++;
        return at == try_.size() ? 0.5F : try_.at(at);
    }
    void Randomize() override { ++tries_; }

    /// True if just the draws of the try were taken and, if it was left, just those of the exercise.
    [[nodiscard]] bool isUsedUp() const {
        return used_ == try_.size() && next_ == (isTaken() ? 0 : taken_.size());
    }
    [[nodiscard]] bool isTaken() const { return tries_ == 1; }

private:
    Script try_;
    Script taken_;
    std::size_t used_ = 0;
    std::size_t next_ = 0;
    int tries_ = 0;
};

}  // namespace tavrune::test::afsaet
