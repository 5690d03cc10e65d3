#include "topics/calculus/integ2_exercise.h"

#include <cmath>

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

enum class Family { FallThenRise = 1, RiseThenFall = 2, TwoFalls = 3 };

/// What becomes of one try at the numbers.
enum class Try { Taken, Again, LeftForFallThenRise };

constexpr int kFamilies = 3;
/// From the kink to either limit.
constexpr int kLargestReach = 3;
/// The kink is one of so many whole numbers, from the smallest on.
constexpr int kKinks = 5;
constexpr int kSmallestKink = 2;
/// Of the second piece at the kink.
constexpr int kLargestHeight = 15;

/// A whole number from 1 to `largest`.
float drawUpTo(int largest, Draws& draws) { return Int(draws.Rnd() * static_cast<float>(largest)) + 1; }

void drawKink(Integ2State& s, Draws& draws) { s.k = Int(draws.Rnd() * kKinks) + kSmallestKink; }

void drawLimits(Integ2State& s, Draws& draws) {
    s.v = s.k - drawUpTo(kLargestReach, draws);
    s.w = s.k + drawUpTo(kLargestReach, draws);
}

/// Whether the limits begin left of the graph. They end on it: no kink is above 6, and w is at most 3 more.
bool beginOutside(const Integ2State& s) { return s.v < 0; }

bool isTooHigh(const Integ2State& s) { return std::abs(s.a2 * s.k + s.b2) > kLargestHeight; }

Try tryFallThenRise(Integ2State& s, Draws& draws) {
    s.a1 = -drawUpTo(2, draws);
    s.b1 = drawUpTo(6, draws);
    s.a2 = drawUpTo(3, draws);
    s.b2 = drawUpTo(4, draws);
    drawKink(s, draws);
    if (s.b1 <= s.b2) {
        return Try::Again;
    }
    drawLimits(s, draws);
    return beginOutside(s) || isTooHigh(s) ? Try::Again : Try::Taken;
}

Try tryRiseThenFall(Integ2State& s, Draws& draws) {
    s.a1 = drawUpTo(3, draws) / 2;
    s.b1 = drawUpTo(6, draws);
    s.a2 = drawUpTo(3, draws) / 2;
    s.b2 = drawUpTo(7, draws);
    if (s.b1 >= s.b2) {
        return Try::LeftForFallThenRise;
    }
    drawKink(s, draws);
    drawLimits(s, draws);
    // Kept (integ2-height-as-rise): the height is that of the piece before it is made to fall.
    if (beginOutside(s) || isTooHigh(s)) {
        return Try::Again;
    }
    s.a2 = -s.a2;
    return Try::Taken;
}

Try tryTwoFalls(Integ2State& s, Draws& draws) {
    s.a1 = -drawUpTo(2, draws) / 2;
    s.b1 = drawUpTo(5, draws);
    s.a2 = -drawUpTo(2, draws) / 2;
    s.b2 = drawUpTo(2, draws);
    drawKink(s, draws);
    drawLimits(s, draws);
    const bool isOneLine = s.a1 == s.a2 && s.b1 == s.b2;
    return beginOutside(s) || isOneLine ? Try::Again : Try::Taken;
}

Try tryFamily(Family family, Integ2State& s, Draws& draws) {
    switch (family) {
        case Family::RiseThenFall:
            return tryRiseThenFall(s, draws);
        case Family::TwoFalls:
            return tryTwoFalls(s, draws);
        case Family::FallThenRise:
            break;
    }
    return tryFallThenRise(s, draws);
}

double primitiveAt(double q, const Integ2Piece& piece) {
    return piece.slope / 2 * power(q, 2) + piece.intercept * q;
}

double integralOf(const Integ2Piece& piece) {
    return primitiveAt(piece.upperLimit, piece) - primitiveAt(piece.lowerLimit, piece);
}

}  // namespace

void newExercise(Integ2State& state, Draws& draws) {
    auto family = static_cast<Family>(static_cast<int>(Int(draws.Rnd() * kFamilies)) + 1);
    Try outcome = Try::Again;
    while (outcome != Try::Taken) {
        draws.Randomize();
        outcome = tryFamily(family, state, draws);
        if (outcome == Try::LeftForFallThenRise) {
            family = Family::FallThenRise;
        }
    }
    state.first = integralOf(firstPiece(state));
    state.second = integralOf(secondPiece(state));
    state.total = state.first + state.second;
}

Integ2Piece firstPiece(const Integ2State& s) {
    return {.slope = s.a1, .intercept = s.b1, .lowerLimit = s.v, .upperLimit = s.k};
}

Integ2Piece secondPiece(const Integ2State& s) {
    return {.slope = s.a2, .intercept = s.b2, .lowerLimit = s.k, .upperLimit = s.w};
}

double heightAt(const Integ2Piece& piece, double q) { return piece.slope * q + piece.intercept; }

Judgement judge(const Integ2State& state, const std::vector<double>& typed) {
    return solvedIfAllRight({isHalfOpenNear(typed.at(0), state.total)});
}

std::string answerText(const Integ2State& state) { return NumberText(RoundSigned2(state.total)); }

Integ2Worked workedOut(const Integ2Piece& piece) {
    const std::string quotient = "((" + NumberText(piece.slope) + "/2)*";
    const std::string linear = "+" + NumberText(piece.intercept) + "*";
    return {.integrand = "(" + NumberText(piece.slope) + "Q+" + NumberText(piece.intercept) + ")",
            .upperQuadraticTerm = quotient + NumberText(piece.upperLimit),
            .upperLinearTerm = linear + NumberText(piece.upperLimit) + ")",
            .lowerQuadraticTerm = "-" + quotient + NumberText(piece.lowerLimit),
            .lowerLinearTerm = linear + NumberText(piece.lowerLimit) + ")"};
}

std::string summandText(double integral, const std::string& shownSoFar) {
    return integral > 0 ? NumberText(integral) : "(" + shownSoFar + ")";
}

}  // namespace tavrune
