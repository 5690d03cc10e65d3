#include "topics/calculus/diff_exercise.h"

#include <array>
#include <cmath>

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

constexpr int kLargestA = 3;
constexpr int kLargestAOfSteepPatterns = 2;
constexpr int kLargestB = 4;
constexpr int kLargestOther = 5;
constexpr int kLastQuadratic = 16;
// Kept (diff-cubics-as-parabolas): the first two cubics count as quadratics wherever the curve is concerned.
constexpr int kLastWithParabola = 18;
/// What the curve may be at the point, in size.
constexpr int kReach = 60;

using namespace signs;

// clang-format off
constexpr std::array kPatterns{
    // aQ²+bQ+c
    DiffPattern{P, P, P}, DiffPattern{P, O, O}, DiffPattern{P, P, O}, DiffPattern{P, O, P},
    DiffPattern{P, P, M}, DiffPattern{P, M, P}, DiffPattern{P, O, M}, DiffPattern{P, M, O},
    DiffPattern{P, M, M}, DiffPattern{M, P, P}, DiffPattern{M, P, O}, DiffPattern{M, P, M},
    DiffPattern{M, O, P}, DiffPattern{M, M, P}, DiffPattern{M, M, O}, DiffPattern{M, M, M},
    // aQ³+bQ²+cQ+d
    DiffPattern{P, P, P, P}, DiffPattern{P, P, P, M},
    DiffPattern{P, P, P, O}, DiffPattern{P, P, M, P}, DiffPattern{P, P, O, P}, DiffPattern{P, M, P, P},
    DiffPattern{P, O, P, P}, DiffPattern{P, P, M, M}, DiffPattern{P, P, O, O}, DiffPattern{P, M, M, M},
    DiffPattern{P, O, O, O}, DiffPattern{P, O, O, P}, DiffPattern{P, P, M, O}, DiffPattern{P, O, M, O},
    DiffPattern{P, M, O, M}, DiffPattern{P, M, M, O}, DiffPattern{P, O, O, M}, DiffPattern{P, M, O, O},
    DiffPattern{P, O, P, M}, DiffPattern{P, M, O, P}, DiffPattern{P, M, M, P}, DiffPattern{P, M, P, M},
    DiffPattern{M, P, P, M}, DiffPattern{M, P, P, O}, DiffPattern{M, P, M, M}, DiffPattern{M, P, M, P},
    DiffPattern{M, P, O, P}, DiffPattern{M, P, O, O}, DiffPattern{M, O, O, O}, DiffPattern{M, P, O, M},
    // Kept (diff-pattern-twice): the second of these is in the list twice.
    DiffPattern{M, M, O, O}, DiffPattern{M, P, P, O}, DiffPattern{M, M, M, M}, DiffPattern{M, P, P, P},
};
// clang-format on

bool isQuadratic(int patternCase) { return patternCase <= kLastQuadratic; }

/// A whole number from 1 to `largest`.
float drawUpTo(float largest, Draws& draws) { return Int(draws.Rnd() * largest) + 1; }

double slopeOf(const DiffState& s) {
    if (isQuadratic(s.patternCase)) {
        return 2 * s.coefficientA * s.pointQ + s.coefficientB;
    }
    return 3 * s.coefficientA * power(s.pointQ, 2) + 2 * s.coefficientB * s.pointQ + s.coefficientC;
}

void drawPolynomial(DiffState& s, Draws& draws) {
    draws.Randomize();
    float a = drawUpTo(kLargestA, draws);
    const float b = drawUpTo(kLargestB, draws);
    const float c = drawUpTo(kLargestOther, draws);
    const float d = drawUpTo(kLargestOther, draws);
    s.pointQ = drawUpTo(kLargestOther, draws);
    s.patternCase = static_cast<int>(drawUpTo(kPatterns.size(), draws));
    if (!hasParabola(s)) {
        a = drawUpTo(kLargestAOfSteepPatterns, draws);
    }
    const DiffPattern& pattern = diffPatternOf(s.patternCase);
    s.coefficientA = withSign(pattern.a, a);
    s.coefficientB = withSign(pattern.b, b);
    s.coefficientC = withSign(pattern.c, c);
    s.coefficientD = withSign(pattern.d, d);
    s.slopeAtPoint = slopeOf(s);
}

/// How a sign stands between two terms: "2Q+3", "2Q +3", "2Q + 3".
enum class SignStyle { Tight, Led, Apart };

/// Where the blanks are not the same in all patterns.
struct Blanks {
    SignStyle bOfTask = SignStyle::Led;
    const char* afterPolynomial = "";
    SignStyle bOfDerivative = SignStyle::Led;
    SignStyle cOfDerivative = SignStyle::Apart;
    const char* afterDerivative = "";
};

// Patterns whose texts have slips of their own, by their places in the list.
constexpr int kSquarePlusBPlusC = 1;
constexpr int kSquareMinusB = 8;
constexpr int kCubePlusBPlusD = 21;
constexpr int kCubePlusB = 25;
constexpr int kCubeMinusB = 34;
constexpr int kCubePlusCMinusD = 35;
/// The cubics from here on, of which this is aQ³-bQ²+d, write the derivative as the quadratics do.
constexpr int kFirstCubicWithBApart = 36;

// Kept (diff-uneven-blanks): the slips of single patterns.
Blanks blanksOf(int patternCase) {
    Blanks blanks;
    if (isQuadratic(patternCase) || patternCase >= kFirstCubicWithBApart) {
        blanks.bOfDerivative = SignStyle::Apart;
    }
    switch (patternCase) {
        case kSquarePlusBPlusC:
            blanks.afterPolynomial = " ";
            blanks.bOfDerivative = SignStyle::Led;
            break;
        case kSquareMinusB:
            blanks.bOfTask = SignStyle::Apart;
            break;
        case kCubePlusBPlusD:
        case kCubePlusB:
            blanks.afterDerivative = "  ";
            break;
        case kCubeMinusB:
            blanks.afterPolynomial = " ";
            break;
        case kCubePlusCMinusD:
            blanks.cOfDerivative = SignStyle::Led;
            break;
        default:
            break;
    }
    return blanks;
}

/// The sign of a coefficient and what is said of its size; nothing for an absent term.
std::string term(float coefficient, SignStyle style, const std::string& size) {
    if (coefficient == 0) {
        return "";
    }
    const std::string before = style == SignStyle::Tight ? "" : " ";
    const std::string after = style == SignStyle::Apart ? " " : "";
    return before + signOf(coefficient) + after + size;
}

std::string polynomialText(const DiffState& s, const std::string& start, SignStyle styleOfB) {
    const std::string a = NumberText(s.coefficientA);
    const std::string b = sizeText(s.coefficientB);
    const std::string c = sizeText(s.coefficientC);
    const std::string end = blanksOf(s.patternCase).afterPolynomial;
    if (isQuadratic(s.patternCase)) {
        return start + a + "Q²" + term(s.coefficientB, styleOfB, b + "Q") +
               term(s.coefficientC, SignStyle::Led, c) + end;
    }
    const SignStyle styleOfD = s.coefficientC == 0 ? SignStyle::Led : SignStyle::Tight;
    return start + a + "Q³" + term(s.coefficientB, styleOfB, b + "Q²") +
           term(s.coefficientC, SignStyle::Led, c + "Q") +
           term(s.coefficientD, styleOfD, sizeText(s.coefficientD)) + end;
}

std::string taskPolynomial(const DiffState& s) {
    return polynomialText(s, std::signbit(s.coefficientA) ? "P= " : "P=  ", blanksOf(s.patternCase).bOfTask);
}

std::string workedPolynomial(const DiffState& s) {
    const std::string blank = isQuadratic(s.patternCase) ? "" : " ";
    return polynomialText(s, (std::signbit(s.coefficientA) ? "P=" : "P= ") + blank, SignStyle::Led);
}

std::string derivative(const DiffState& s) {
    const Blanks blanks = blanksOf(s.patternCase);
    const std::string a = bracketed(s.coefficientA);
    const std::string b = sizeText(s.coefficientB);
    if (isQuadratic(s.patternCase)) {
        return "P'=2·" + a + "Q" + term(s.coefficientB, blanks.bOfDerivative, b);
    }
    return "P'=3·" + a + "Q²" + term(s.coefficientB, blanks.bOfDerivative, "2·" + b + "Q") +
           term(s.coefficientC, blanks.cOfDerivative, sizeText(s.coefficientC)) + blanks.afterDerivative;
}

/// "P'(2)="
std::string derivativeName(const DiffState& s) { return "P'(" + NumberText(s.pointQ) + ")="; }

std::string derivativeAtPoint(const DiffState& s) {
    const std::string x = NumberText(s.pointQ);
    const std::string a = bracketed(s.coefficientA);
    const std::string b = sizeText(s.coefficientB);
    if (isQuadratic(s.patternCase)) {
        return derivativeName(s) + "2·" + a + "·" + x + term(s.coefficientB, SignStyle::Tight, b);
    }
    const SignStyle styleOfC = s.coefficientB == 0 ? SignStyle::Led : SignStyle::Tight;
    return derivativeName(s) + "3·" + a + "·" + x + "²" +
           term(s.coefficientB, SignStyle::Led, "2·" + b + "·" + x) +
           term(s.coefficientC, styleOfC, sizeText(s.coefficientC));
}

}  // namespace

const DiffPattern& diffPatternOf(int patternCase) {
    return kPatterns.at(static_cast<std::size_t>(patternCase - 1));
}

void newExercise(DiffState& state, Draws& draws) {
    do {
        drawPolynomial(state, draws);
    } while (std::abs(curveAt(state, state.pointQ)) > kReach);
}

Judgement judge(const DiffState& state, const std::vector<double>& typed) {
    return solvedIfAllRight({isHalfOpenNear(typed.at(0), state.slopeAtPoint)});
}

bool hasParabola(const DiffState& state) { return state.patternCase <= kLastWithParabola; }

double curveAt(const DiffState& s, double q) {
    if (hasParabola(s)) {
        return s.coefficientA * power(q, 2) + s.coefficientB * q + s.coefficientC;
    }
    return s.coefficientA * power(q, 3) + s.coefficientB * power(q, 2) + s.coefficientC * q + s.coefficientD;
}

double tangentAt(const DiffState& s, double slope, double q) {
    return slope * q - slope * s.pointQ + curveAt(s, s.pointQ);
}

DiffTexts textsOf(const DiffState& state) {
    return {.polynomial = taskPolynomial(state),
            .workedPolynomial = workedPolynomial(state),
            .derivative = derivative(state),
            .atPoint = "For Q = " + NumberText(state.pointQ) + " fås",
            .derivativeAtPoint = derivativeAtPoint(state),
            .value = derivativeName(state) + NumberText(state.slopeAtPoint)};
}

}  // namespace tavrune
