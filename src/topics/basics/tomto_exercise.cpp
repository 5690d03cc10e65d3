#include "topics/basics/tomto_exercise.h"

#include <cmath>

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

/// What a drawn zero is replaced by where the two generators differ.
struct ZeroReplacements {
    float a1;
    float b1;
};

constexpr ZeroReplacements kFirst{.a1 = 3, .b1 = 2};
constexpr ZeroReplacements kLater{.a1 = 7, .b1 = 3};

constexpr int kLineForms = 2;

bool isImplicit(const TomtoState& s) { return s.form == LineForm::Implicit; }

/// -10 to 9.
float drawCoefficient(Draws& draws) { return Int(draws.Rnd() * 20 - 10); }

void replaceZero(float& coefficient, float replacement) {
    if (coefficient == 0) {
        coefficient = replacement;
    }
}

void drawCoefficients(TomtoState& s, Draws& draws, const ZeroReplacements& zeros) {
    s.a1 = drawCoefficient(draws);
    s.c1 = drawCoefficient(draws);
    s.b1 = drawCoefficient(draws);
    s.a2 = drawCoefficient(draws);
    s.c2 = drawCoefficient(draws);
    s.b2 = drawCoefficient(draws);
    replaceZero(s.b2, 5);
    replaceZero(s.a2, 1);
    replaceZero(s.c1, 1);
    replaceZero(s.c2, 1);
    replaceZero(s.a1, zeros.a1);
    replaceZero(s.b1, zeros.b1);
    if (s.a2 - s.a1 == 0) {
        s.b1 = std::abs(s.b1);
        s.b2 = std::abs(s.b2);
    }
}

void solveExplicit(TomtoState& s) {
    const float d = s.a2 - s.a1;
    if (d == 0) {
        // Kept (tomto-truth-q): Q is not cleared, it becomes a truth value: -1 where the old P is 0, which
        // forces a new draw.
        s.solutionQ = s.solutionP == 0 ? -1 : 0;
        const bool differ = s.a1 / s.a2 - s.b1 / s.b2 != 0;
        s.relation = differ ? Relation::Parallel : Relation::Coinciding;
        return;
    }
    s.relation = Relation::Crossing;
    s.solutionQ = (s.b1 - s.b2) / d;
    s.solutionP = (s.a2 * s.b1 - s.a1 * s.b2) / d;
}

void solveImplicit(TomtoState& s) {
    const float d = s.a1 * s.c2 - s.a2 * s.c1;
    if (d == 0) {
        // Kept (tomto-opposite-constants): the comparison is chained, so b2/b1 is compared with a truth
        // value, -1 for true. Lines count as coinciding only where b2 = -b1, whatever they truly are.
        const float truth = s.a2 / s.a1 == s.c2 / s.c1 ? -1 : 0;
        s.relation = truth == s.b2 / s.b1 ? Relation::Coinciding : Relation::Parallel;
        return;
    }
    s.relation = Relation::Crossing;
    s.solutionP = (s.a1 * -s.b2 - s.a2 * -s.b1) / d;
    s.solutionQ = (s.c1 * s.b2 - s.c2 * s.b1) / d;
}

/// Kept (tomto-q-rounded-twice): Q goes through a rounding of its own before the one that both share. In
/// doubles, (x + 0.005) * 100 can fall short of the whole number that x * 100 + 0.5 reaches, so a half may go
/// down in Q and up in P: 1.125 is 1.12 as Q and 1.13 as P. What is stored is what is judged.
void roundSolution(TomtoState& s) {
    const double r = std::signbit(s.solutionQ) ? 0.004999 : 0.005;
    s.solutionQ = Int((s.solutionQ + r) * 100) / 100;
    s.solutionQ = RoundSigned2(s.solutionQ);
    s.solutionP = RoundSigned2(s.solutionP);
}

void generate(TomtoState& s, Draws& draws, const ZeroReplacements& zeros) {
    do {
        s.graphMax = 0;
        draws.Randomize();
        drawCoefficients(s, draws, zeros);
        s.form = static_cast<LineForm>(Int(draws.Rnd() * kLineForms));
        if (isImplicit(s)) {
            solveImplicit(s);
        } else {
            solveExplicit(s);
        }
        roundSolution(s);
    } while (s.solutionQ < 0 || s.solutionP < 0);
}

/// A term after a first one: its sign between blanks, then its size.
std::string term(float x) { return " " + signOf(x) + " " + sizeText(x); }

std::string explicitText(const std::string& name, float a, float b) {
    return name + ": P = " + NumberText(a) + "Q" + (b == 0 ? "" : term(b));
}

std::string implicitText(float c, float a, float b) {
    return NumberText(c) + "P" + term(a) + "Q" + term(b) + " =  0";
}

GraphLine explicitLine(float graphMax, float a, float b) { return {b, graphMax * a + b}; }

GraphLine implicitLine(float graphMax, float a, float b, float c) {
    return {-b / c, graphMax * (-a / c) - b / c};
}

/// A quotient with its sign before it, both parts by size. signedQuotientText(3, -7) -> "-3/7"
std::string signedQuotientText(float n, float m) {
    const bool isNegative = n != 0 && std::signbit(n) != std::signbit(m);
    return (isNegative ? "-" : "") + sizeText(n) + "/" + sizeText(m);
}

}  // namespace

void firstExercise(TomtoState& state, Draws& draws) { generate(state, draws, kFirst); }

void newExercise(TomtoState& state, Draws& draws) { generate(state, draws, kLater); }

std::array<std::string, 2> lineTexts(const TomtoState& s) {
    if (isImplicit(s)) {
        return {implicitText(s.c1, s.a1, s.b1), implicitText(s.c2, s.a2, s.b2)};
    }
    return {explicitText("l", s.a1, s.b1), explicitText("m", s.a2, s.b2)};
}

Judgement judge(const TomtoState& state, const ChosenAnswer<Relation>& answer) {
    Judgement judgement = solvedIfAllRight(
        {isExactly(answer.typed.at(0), state.solutionQ), isExactly(answer.typed.at(1), state.solutionP)});
    judgement.isSolved =
        answer.chosen == state.relation && (answer.chosen != Relation::Crossing || judgement.isSolved);
    return judgement;
}

void setRange(TomtoState& state) {
    state.graphMax = state.solutionQ > kShortAxis || state.solutionP > kShortAxis ? kLongAxis : kShortAxis;
}

std::array<GraphLine, 2> graphLines(const TomtoState& s) {
    if (isImplicit(s)) {
        return {implicitLine(s.graphMax, s.a1, s.b1, s.c1), implicitLine(s.graphMax, s.a2, s.b2, s.c2)};
    }
    return {explicitLine(s.graphMax, s.a1, s.b1), explicitLine(s.graphMax, s.a2, s.b2)};
}

bool hasDerivation(const TomtoState& s) { return isImplicit(s) ? s.a1 / s.a2 != s.c1 / s.c2 : s.a1 != s.a2; }

ExplicitWorked workedExplicit(const TomtoState& s) {
    const std::string quotient = signedQuotientText(s.b2 - s.b1, s.a1 - s.a2);
    return {
        .equated = NumberText(s.a1) + "Q" + term(s.b1) + " = " + NumberText(s.a2) + "Q" + term(s.b2) + " =>",
        .collected = "(" + NumberText(s.a1) + " - " + bracketed(s.a2) + ") * Q = " + NumberText(s.b2) +
                     " - " + bracketed(s.b1) + " =>",
        .q = "Q = " + quotient + " = " + NumberText(s.solutionQ),
        .p = "P = " + NumberText(s.a1) + "*(" + quotient + ")" + term(s.b1) + " = " + NumberText(s.solutionP),
    };
}

ImplicitWorked workedImplicit(const TomtoState& s) {
    const float n = s.b1 * s.c2 - s.b2 * s.c1;
    const float m = s.a2 * s.c1 - s.a1 * s.c2;
    return {
        .numerator =
            NumberText(s.b1) + "*" + bracketed(s.c2) + " - " + bracketed(s.b2) + "*" + bracketed(s.c1),
        .denominator =
            NumberText(s.a2) + "*" + bracketed(s.c1) + " - " + bracketed(s.a1) + "*" + bracketed(s.c2),
        .q = "= " + signedQuotientText(n, m) + " = " + NumberText(s.solutionQ),
        .inserted = "I   " + NumberText(s.c1) + "*P" + term(s.a1) + "*(" + NumberText(n) + "/" +
                    NumberText(m) + ")" + signOf(s.b1) + sizeText(s.b1) + " = 0 ",
        .p = "=> P = " + NumberText(s.solutionP),
    };
}

}  // namespace tavrune
