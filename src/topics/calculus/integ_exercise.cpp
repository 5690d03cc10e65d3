#include "topics/calculus/integ_exercise.h"

#include <array>
#include <cmath>

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/rounding.h"
#include "numeric/term.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

constexpr int kLargestAOrB = 4;
constexpr int kLargestC = 5;
constexpr int kLargestW = 7;
constexpr int kLargestV = 6;
/// What p may be at v, in size. At w it may be more, and the curve leaves the graph.
constexpr int kReach = 60;

using namespace signs;

/// Every choice of signs and zeros but the one without any term.
constexpr std::array kShapes{
    Pattern{P, P, P}, Pattern{P, O, O}, Pattern{P, P, O}, Pattern{P, O, P}, Pattern{O, P, P},
    Pattern{O, P, M}, Pattern{O, M, M}, Pattern{O, M, P}, Pattern{O, M, O}, Pattern{O, P, O},
    Pattern{O, O, P}, Pattern{O, O, M}, Pattern{P, P, M}, Pattern{P, M, P}, Pattern{P, O, M},
    Pattern{P, M, O}, Pattern{P, M, M}, Pattern{M, P, P}, Pattern{M, P, O}, Pattern{M, P, M},
    Pattern{M, O, P}, Pattern{M, O, M}, Pattern{M, O, O}, Pattern{M, M, P}, Pattern{M, M, O},
    Pattern{M, M, M},
};
constexpr int kShapeCount = kShapes.size();

// Where single shapes leave the rules of the texts below.

/// Kept (integ-blanks-in-help): the help shows bQ+c with blanks round its sign, and no other sum; nor bQ+c
/// without any minus.
bool hasBlanks(const IntegState& s) { return s.a == 0 && (std::signbit(s.b) || std::signbit(s.c)); }

/// Kept (integ-early-bracket): in aQ² and aQ²+bQ without any minus the closing bracket stands before the
/// raised 2 or 3 of the last term, not behind it.
bool closesBeforeRaised(const IntegState& s) { return s.a > 0 && s.b >= 0 && s.c == 0; }

/// Kept (integ-bare-constant): no blank and no bracket of its own for a positive constant.
constexpr const char* kLowerOfPositiveConstant = "-(";

/// The term that a sum begins with carries its own sign; a later one prints its size behind a sign.
std::string term(float coefficient, bool isFirst, const std::string& blank = "") {
    return isFirst ? NumberText(coefficient) : blank + signOf(coefficient) + blank + sizeText(coefficient);
}

std::string sum(const IntegState& s, const std::string& blank = "") {
    std::string text;
    if (s.a != 0) {
        text += NumberText(s.a) + "Q²";
    }
    if (s.b != 0) {
        text += term(s.b, text.empty(), blank) + "Q";
    }
    if (s.c != 0) {
        text += term(s.c, text.empty(), blank);
    }
    return text;
}

std::string inBrackets(const std::string& text) { return "(" + text + ")"; }

/// A lone Q² is bracketed too, a lone Q or number is not.
bool isBracketed(const IntegState& s) { return s.a != 0 || (s.b != 0 && s.c != 0); }

/// Behind the first integral sign a negative coefficient stands with its own minus behind a blank.
std::string tailTerm(float coefficient, const char* plus) {
    return (std::signbit(coefficient) ? " " : plus) + NumberText(coefficient);
}

constexpr const char* kPlusBehindSquare = "+";
constexpr const char* kPlusBehindQ = " + ";

std::string integrandHead(const IntegState& s) {
    if (s.a != 0) {
        return "(" + NumberText(s.a) + "Q";
    }
    if (isBracketed(s)) {
        return inBrackets(NumberText(s.b) + "Q" + tailTerm(s.c, kPlusBehindQ));
    }
    return sum(s);
}

std::string integrandTail(const IntegState& s) {
    if (s.a == 0) {
        return "";
    }
    std::string text;
    if (s.b != 0) {
        text += tailTerm(s.b, kPlusBehindSquare) + "Q";
    }
    if (s.c != 0) {
        text += tailTerm(s.c, s.b != 0 ? kPlusBehindQ : kPlusBehindSquare);
    }
    return text + ")";
}

/// The terms of P at `at`, the first one behind `lead`.
IntegRow terms(const IntegState& s, const std::string& lead, const std::string& at) {
    IntegRow row;
    const bool bIsFirst = s.a == 0;
    if (s.a != 0) {
        row.cubicTerm = lead + "(" + NumberText(s.a) + "/3)·" + at;
        row.cube = "³";
    }
    if (s.b != 0) {
        row.quadraticTerm = bIsFirst ? lead + "(" + NumberText(s.b) : signOf(s.b) + "(" + sizeText(s.b);
        row.quadraticTerm += "/2)·" + at;
        row.square = "²";
    }
    if (s.c != 0) {
        row.linearTerm = term(s.c, bIsFirst && s.b == 0) + "·" + at;
    }
    return row;
}

bool isConstant(const IntegState& s) { return s.a == 0 && s.b == 0; }

/// P at a limit, in brackets.
IntegRow bracketedTerms(const IntegState& s, const std::string& lead, const std::string& at) {
    IntegRow row = terms(s, lead, at);
    if (closesBeforeRaised(s)) {
        (s.b != 0 ? row.quadraticTerm : row.cubicTerm) += ")";
    } else {
        row.linearTerm += ")";
    }
    return row;
}

/// "(3·w)" and "-(3·v)", or "((-3)·w)" and "- ((-3)·v)".
std::string constantAt(const IntegState& s, const char* leadIfPositive, const char* leadIfNegative,
                       const std::string& at) {
    return (std::signbit(s.c) ? leadIfNegative : leadIfPositive) + bracketed(s.c) + "·" + at + ")";
}

IntegRow upperAt(const IntegState& s, const std::string& at) {
    if (isConstant(s)) {
        IntegRow row;
        row.linearTerm = constantAt(s, "(", "(", at);
        return row;
    }
    return bracketedTerms(s, "(", at);
}

IntegRow lowerAt(const IntegState& s, const std::string& at) {
    if (isConstant(s)) {
        // It follows the upper one, which stands in the last label of its row, in the first one of its own.
        IntegRow row;
        row.cubicTerm = constantAt(s, kLowerOfPositiveConstant, "- (", at);
        return row;
    }
    return bracketedTerms(s, "- (", at);
}

bool drawFunctionAndLimits(IntegState& s, Draws& draws) {
    draws.Randomize();
    s.a = Int(draws.Rnd() * kLargestAOrB) + 1;
    s.b = Int(draws.Rnd() * kLargestAOrB) + 1;
    s.c = Int(draws.Rnd() * kLargestC) + 1;
    s.w = Int(draws.Rnd() * kLargestW) + 1;
    s.v = Int(draws.Rnd() * kLargestV) + 1;
    if (s.w <= s.v) {
        return false;
    }
    s.shape = static_cast<int>(Int(draws.Rnd() * kShapeCount) + 1);
    const Pattern& shape = kShapes.at(static_cast<std::size_t>(s.shape - 1));
    s.a = withSign(shape.a, s.a);
    s.b = withSign(shape.b, s.b);
    s.c = withSign(shape.c, s.c);
    return std::abs(valueAt(s, s.v)) <= kReach;
}

double primitiveAt(const IntegState& s, float q) {
    return s.a / 3 * power(q, 3) + s.b / 2 * power(q, 2) + s.c * q;
}

}  // namespace

void newExercise(IntegState& state, Draws& draws) {
    while (!drawFunctionAndLimits(state, draws)) {
    }
    state.integral = primitiveAt(state, state.w) - primitiveAt(state, state.v);
}

double valueAt(const IntegState& s, double q) { return s.a * power(q, 2) + s.b * q + s.c; }

Judgement judge(const IntegState& state, const std::vector<double>& typed) {
    return solvedIfAllRight({isHalfOpenNear(typed.at(0), state.integral)});
}

std::string answerText(const IntegState& state) { return NumberText(RoundSigned2(state.integral)); }

std::string functionText(const IntegState& state) { return sum(state); }

IntegWorked workedSolution(const IntegState& s) {
    return {.function = sum(s, hasBlanks(s) ? " " : ""),
            .primitive = terms(s, "", "Q"),
            .integrandHead = integrandHead(s),
            .integrandTail = integrandTail(s),
            .upperWithLetters = upperAt(s, "w"),
            .lowerWithLetters = lowerAt(s, "v"),
            .integrand = isBracketed(s) ? inBrackets(sum(s)) : sum(s),
            .upperWithNumbers = upperAt(s, NumberText(s.w)),
            .lowerWithNumbers = lowerAt(s, NumberText(s.v)),
            .value = "= " + answerText(s)};
}

}  // namespace tavrune
