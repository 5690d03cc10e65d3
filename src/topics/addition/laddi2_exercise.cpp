#include "topics/addition/laddi2_exercise.h"

#include <algorithm>
#include <optional>

#include "numeric/arithmetic.h"
#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

constexpr float kFallingShareBefore = 0.7F;
constexpr float kFallingShareAfter = 0.5F;
const std::string kQuantity = "X";
constexpr std::size_t kIntervalsInFirstLine = 2;

double drawKink(Draws& draws) { return Int(draws.Rnd() * 5) + 3; }

/// A level piece stands at a price of 1..9, never on an edge, so that none is rejected.
Piece drawAfter(double kink, Draws& draws) {
    const bool isFalling = draws.Rnd() < kFallingShareAfter;
    const double slope = drawSlope(draws, isFalling);
    const double priceAtKink = Int(draws.Rnd() * 5) + (isFalling ? 5 : 1);
    return {slope, priceAtKink - kink * slope};
}

bool endsBeforeItsKink(const KinkedFunction& f) { return f.before.slope < 0 && zeroOf(f.before) <= f.kink; }

void drawFunctions(KinkedFunction& function1, KinkedFunction& function2, Draws& draws) {
    draws.Randomize();
    function1.kink = drawKink(draws);
    function2.kink = drawKink(draws);
    do {
        function1.before = drawPieceFromAxis(draws, kFallingShareBefore);
    } while (endsBeforeItsKink(function1) || isOnEdge(function1.before));
    // Kept (laddi2-drawn-back): if function 2 ends before its kink, the second piece of function 1 is drawn
    // again too; if function 2 lies on an edge, it alone is drawn again.
    do {
        function1.after = drawAfter(function1.kink, draws);
        do {
            function2.before = drawPieceFromAxis(draws, kFallingShareBefore);
        } while (isOnEdge(function2.before));
    } while (endsBeforeItsKink(function2));
    function2.after = drawAfter(function2.kink, draws);
}

/// Returns the piece of a function that is added in the segment up to the break point `end`; nothing beyond
/// the zero of the function.
std::optional<Piece> pieceUpTo(double end, const KinkedFunction& f) {
    if (end <= f.kink) {
        return f.before;
    }
    return end <= f.zero() ? std::optional(f.after) : std::nullopt;
}

/// The pieces that make a segment: one of each function, or of the one that is left.
struct Addends {
    Piece one;
    std::optional<Piece> other;

    [[nodiscard]] Piece sum() const { return other ? addedUp(one, *other) : one; }
};

Addends addendsUpTo(double end, const Laddi2State& s) {
    const std::optional<Piece> of1 = pieceUpTo(end, s.function1);
    const std::optional<Piece> of2 = pieceUpTo(end, s.function2);
    // No break point lies beyond both zeros.
    return of1 ? Addends{*of1, of2} : Addends{of2.value(), std::nullopt};
}

void solve(Laddi2State& s) {
    const double zero1 = s.function1.zero();
    const double zero2 = s.function2.zero();
    s.breakPoints = {s.function1.kink, s.function2.kink, zero1, zero2};
    std::sort(s.breakPoints.begin(), s.breakPoints.end());
    s.breakPoints.erase(std::unique(s.breakPoints.begin(), s.breakPoints.end()), s.breakPoints.end());

    s.sum.segments.clear();
    for (const double end : s.breakPoints) {
        s.sum.segments.push_back(addendsUpTo(end, s).sum());
    }
    s.sum.breaks.assign(s.breakPoints.begin(), s.breakPoints.end() - 1);
    s.sum.upperEndAsked = s.function1.after.slope < 0 && s.function2.after.slope < 0;
    if (s.sum.upperEndAsked) {
        s.sum.upperEnd = RoundUp2(std::max(zero1, zero2));
    }
}

}  // namespace

void newExercise(Laddi2State& s, Draws& draws) {
    drawFunctions(s.function1, s.function2, draws);
    solve(s);
}

Judgement judge(const Laddi2State& s, const std::vector<double>& typed) {
    return judge(answerFields(s.sum), typed);
}

std::string secondPieceText(const Piece& piece) {
    return piece.intercept < 0 ? "P=    Q -       for    <Q, P>0" : "P=    Q +      for    <Q, P>0";
}

std::string intervalsHeading(const VerticalSum& sum) {
    return sum.segments.size() == 1 ? "Definitonsintervallet bliver:" : "Definitonsintervallerne bliver:";
}

std::array<std::string, 2> intervalsTexts(const VerticalSum& sum) {
    std::array<std::string, 2> lines;
    for (std::size_t segment = 0; segment <= sum.last(); ++segment) {
        std::string& line = lines.at(segment < kIntervalsInFirstLine ? 0 : 1);
        line += rangeText(sum, segment, kQuantity);
        if (segment != sum.last()) {
            line += segment + 1 == sum.last() ? " og " : ", ";
        }
    }
    return lines;
}

std::string segmentText(const Laddi2State& s, std::size_t segment) {
    const auto [one, other] = addendsUpTo(s.breakPoints.at(segment), s);
    const std::string terms =
        other ? workedSumText(one, *other)
              : NumberText(one.slope) + "Q " + signOf(one.intercept) + " " + sizeText(one.intercept);
    return "P = " + terms + " for " + rangeText(s.sum, segment, kQuantity);
}

}  // namespace tavrune
