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
constexpr int kLargestLimit = 9;
/// Of the second piece at the kink.
constexpr int kLargestHeight = 15;

void drawKink(Integ2State& s, Draws& draws) { s.k = Int(draws.Rnd() * 5) + 2; }

void drawLimits(Integ2State& s, Draws& draws) {
    s.v = s.k - (Int(draws.Rnd() * 3) + 1);
    s.w = s.k + (Int(draws.Rnd() * 3) + 1);
}

// Kept, though of the three only v < 0 can be drawn.
bool areLimitsOutside(const Integ2State& s) { return s.v >= s.w || s.v < 0 || s.w > kLargestLimit; }

bool isTooHigh(const Integ2State& s) { return std::abs(s.a2 * s.k + s.b2) > kLargestHeight; }

Try tryFallThenRise(Integ2State& s, Draws& draws) {
    s.a1 = -(Int(draws.Rnd() * 2) + 1);
    s.b1 = Int(draws.Rnd() * 6) + 1;
    s.a2 = Int(draws.Rnd() * 3) + 1;
    s.b2 = Int(draws.Rnd() * 4) + 1;
    drawKink(s, draws);
    if (s.b1 <= s.b2) {
        return Try::Again;
    }
    drawLimits(s, draws);
    return areLimitsOutside(s) || isTooHigh(s) ? Try::Again : Try::Taken;
}

Try tryRiseThenFall(Integ2State& s, Draws& draws) {
    s.a1 = (Int(draws.Rnd() * 3) + 1) / 2;
    s.b1 = Int(draws.Rnd() * 6) + 1;
    s.a2 = (Int(draws.Rnd() * 3) + 1) / 2;
    s.b2 = Int(draws.Rnd() * 7) + 1;
    if (s.b1 >= s.b2) {
        return Try::LeftForFallThenRise;
    }
    drawKink(s, draws);
    drawLimits(s, draws);
    // Kept: the height is that of the piece before it is made to fall.
    if (areLimitsOutside(s) || isTooHigh(s)) {
        return Try::Again;
    }
    s.a2 = -s.a2;
    return Try::Taken;
}

Try tryTwoFalls(Integ2State& s, Draws& draws) {
    s.a1 = -(Int(draws.Rnd() * 2) + 1) / 2;
    s.b1 = Int(draws.Rnd() * 5) + 1;
    s.a2 = -(Int(draws.Rnd() * 2) + 1) / 2;
    s.b2 = Int(draws.Rnd() * 2) + 1;
    drawKink(s, draws);
    drawLimits(s, draws);
    const bool isOneLine = s.a1 == s.a2 && s.b1 == s.b2;
    if (areLimitsOutside(s) || isOneLine) {
        return Try::Again;
    }
    // Kept, though no two falls come that high.
    return isTooHigh(s) ? Try::LeftForFallThenRise : Try::Taken;
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

double primitiveAt(double q, float a, float b) { return a / 2 * Power(q, 2) + b * q; }

void integrate(Integ2State& s) {
    s.first = primitiveAt(s.k, s.a1, s.b1) - primitiveAt(s.v, s.a1, s.b1);
    s.second = primitiveAt(s.w, s.a2, s.b2) - primitiveAt(s.k, s.a2, s.b2);
    s.total = s.first + s.second;
}

Integ2Worked workedOut(float a, float b, float upper, float lower) {
    const std::string quotient = "((" + NumberText(a) + "/2)*";
    const std::string linear = "+" + NumberText(b) + "*";
    return {.integrand = "(" + NumberText(a) + "Q+" + NumberText(b) + ")",
            .upperSquared = quotient + NumberText(upper),
            .upperLinear = linear + NumberText(upper) + ")",
            .lowerSquared = "-" + quotient + NumberText(lower),
            .lowerLinear = linear + NumberText(lower) + ")"};
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
    integrate(state);
}

double heightOfFirst(const Integ2State& state, double q) { return state.a1 * q + state.b1; }

double heightOfSecond(const Integ2State& state, double q) { return state.a2 * q + state.b2; }

bool isRight(const Integ2State& state, double typed) { return isHalfOpenNear(typed, state.total); }

std::string answerText(const Integ2State& state) { return NumberText(RoundSigned2(state.total)); }

Integ2Worked workedFirst(const Integ2State& s) { return workedOut(s.a1, s.b1, s.k, s.v); }

Integ2Worked workedSecond(const Integ2State& s) { return workedOut(s.a2, s.b2, s.w, s.k); }

std::string summandText(double integral, const std::string& shown) {
    return integral > 0 ? NumberText(integral) : "(" + shown + ")";
}

}  // namespace tavrune
