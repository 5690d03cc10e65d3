#include "topics/basics/tomto_exercise.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <stdexcept>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/lot.h"
#include "support/proof.h"
#include "topics/basics/tomto_script.h"

namespace tavrune {
namespace {

bool isRight(const TomtoState& state, std::optional<Relation> chosen, double q, double p) {
    return judge(state, {chosen, {q, p}}).isSolved;
}

float rangeFor(TomtoState state) {
    setRange(state);
    return state.graphMax;
}

using test::endsIn;
using test::Proof;
using test::ProofDraws;
using test::readsAsItself;
using test::ScriptedDraws;
using test::tomto::Coefficients;
using test::tomto::Explicit;
using test::tomto::Implicit;
using test::tomto::script;

using Generator = void (*)(TomtoState&, Draws&);

/// Draws one exercise on top of `state`. A try that is rejected asks for more draws than there are and
/// throws.
TomtoState exercise(const Coefficients& k, LineForm form, TomtoState state = {},
                    Generator make = newExercise) {
    ScriptedDraws draws(script(k, form));
    make(state, draws);
    EXPECT_TRUE(draws.isUsedUp());
    return state;
}

/// A state that an earlier exercise has left.
TomtoState after(double q, double p) {
    TomtoState state;
    state.solutionQ = q;
    state.solutionP = p;
    return state;
}

/// The coefficients in the order in which they are drawn.
using Values = std::array<float, 6>;
Values coefficientsOf(const TomtoState& s) { return {s.a1, s.c1, s.b1, s.a2, s.c2, s.b2}; }

// -2Q + 8 and 3Q - 5 cross at (2.6; 2.8).
constexpr Coefficients kCrossing{-2, 1, 8, 3, 1, -5};

TEST(TomtoGenerator, DrawsA1C1B1A2C2B2ThenTheKind) {
    const TomtoState s = exercise({-2, -7, 8, 3, 9, -5}, Explicit);
    EXPECT_EQ(coefficientsOf(s), (Values{-2, -7, 8, 3, 9, -5}));
    EXPECT_EQ(s.form, Explicit);
    EXPECT_EQ(s.relation, Relation::Crossing);
    EXPECT_EQ(s.solutionQ, 2.6);
    EXPECT_EQ(s.solutionP, 2.8);
}

TEST(TomtoGenerator, SolvesLinesOfThreeTerms) {
    const TomtoState s = exercise({-9, -10, 9, -10, -9, 9}, Implicit);
    EXPECT_EQ(s.form, Implicit);
    EXPECT_EQ(s.relation, Relation::Crossing);
    EXPECT_EQ(s.solutionQ, 0.47);
    EXPECT_EQ(s.solutionP, 0.47);
}

TEST(TomtoGenerator, ReplacesZerosDrawnByTheButton) {
    // 7Q + 3 and Q + 5: Q = 2/6, P = 32/6.
    const TomtoState s = exercise({0, 0, 0, 0, 0, 0}, Explicit);
    EXPECT_EQ(coefficientsOf(s), (Values{7, 1, 3, 1, 1, 5}));
    EXPECT_EQ(s.solutionQ, 0.33);
    EXPECT_EQ(s.solutionP, 5.33);
}

TEST(TomtoGenerator, ReplacesZerosDrawnByTheOpeningByOthers) {
    // 3Q + 2 and Q + 5: Q = 3/2, P = 13/2.
    const TomtoState s = exercise({0, 0, 0, 0, 0, 0}, Explicit, {}, firstExercise);
    EXPECT_EQ(coefficientsOf(s), (Values{3, 1, 2, 1, 1, 5}));
    EXPECT_EQ(s.solutionQ, 1.5);
    EXPECT_EQ(s.solutionP, 6.5);
}

TEST(TomtoGenerator, TakesInterceptsBySizeWhereTheSlopesAreEqual) {
    const TomtoState s = exercise({4, 1, -3, 4, 2, -8}, Explicit, after(1, 1));
    EXPECT_EQ(s.b1, 3);
    EXPECT_EQ(s.b2, 8);
    // The other kind too, though there the a's alone are no slopes.
    const TomtoState t = exercise({-4, 2, -3, -4, 1, -8}, Implicit);
    EXPECT_EQ(t.b1, 3);
    EXPECT_EQ(t.b2, 8);
}

TEST(TomtoGenerator, LeavesInterceptsAloneWhereTheSlopesDiffer) {
    EXPECT_EQ(exercise(kCrossing, Explicit).b2, -5);
}

TEST(TomtoGenerator, TellsParallelFromCoincidingLinesOfTwoTerms) {
    EXPECT_EQ(exercise({4, 1, 3, 4, 2, 8}, Explicit, after(1, 1)).relation, Relation::Parallel);
    EXPECT_EQ(exercise({4, 1, 3, 4, 2, 3}, Explicit, after(1, 1)).relation, Relation::Coinciding);
    EXPECT_EQ(exercise({4, 1, -3, 4, 2, 3}, Explicit, after(1, 1)).relation, Relation::Coinciding);
}

TEST(TomtoGenerator, SetsQToATruthValueWhereLinesOfTwoTermsDoNotCross) {
    const TomtoState s = exercise({4, 1, 3, 4, 2, 8}, Explicit, after(7.5, 2.25));
    EXPECT_EQ(s.solutionQ, 0);
    EXPECT_EQ(s.solutionP, 2.25);
}

/// How many tries the generator makes with these coefficients before a crossing that stands.
int triesWith(const Coefficients& k, LineForm form, TomtoState state = {}) {
    ScriptedDraws draws(script(k, form) + script(kCrossing, Explicit));
    newExercise(state, draws);
    return draws.randomized();
}

TEST(TomtoGenerator, RepeatsParallelLinesOfTwoTermsWhileTheOldPIsZero) {
    EXPECT_EQ(triesWith({4, 1, 3, 4, 2, 8}, Explicit, after(7.5, 0)), 2);
    EXPECT_EQ(triesWith({4, 1, 3, 4, 2, 8}, Explicit, after(7.5, 0.01)), 1);
}

TEST(TomtoGenerator, RepeatsParallelLinesOfTwoTermsAsTheFirstExercise) {
    ScriptedDraws draws(script({4, 1, 3, 4, 2, 8}, Explicit) + script(kCrossing, Explicit));
    TomtoState s;
    firstExercise(s, draws);
    EXPECT_EQ(s.relation, Relation::Crossing);
    EXPECT_EQ(draws.randomized(), 2);
    EXPECT_TRUE(draws.isUsedUp());
}

TEST(TomtoGenerator, CountsLinesOfThreeTermsAsCoincidingOnlyForOppositeConstants) {
    // The same line twice, and its double: called parallel.
    EXPECT_EQ(exercise({2, 3, 4, 2, 3, 4}, Implicit, after(1, 1)).relation, Relation::Parallel);
    EXPECT_EQ(exercise({2, 3, 4, 4, 6, 8}, Implicit, after(1, 1)).relation, Relation::Parallel);
    // Parallel in truth: called coinciding.
    EXPECT_EQ(exercise({2, 3, 4, 4, 6, -4}, Implicit, after(1, 1)).relation, Relation::Coinciding);
    EXPECT_EQ(exercise({2, 3, -4, -2, -3, 4}, Implicit, after(1, 1)).relation, Relation::Coinciding);
    EXPECT_EQ(exercise({2, 3, 4, 4, 6, 5}, Implicit, after(1, 1)).relation, Relation::Parallel);
}

TEST(TomtoGenerator, NeverCountsLinesOfThreeTermsWithEqualCoefficientsAsCoinciding) {
    // Their constants are taken by size, so none is the other's opposite.
    EXPECT_EQ(exercise({2, 3, 4, 2, 3, -4}, Implicit, after(1, 1)).relation, Relation::Parallel);
}

TEST(TomtoGenerator, KeepsTheOldSolutionWhereLinesOfThreeTermsDoNotCross) {
    const TomtoState s = exercise({2, 3, 4, 4, 6, 5}, Implicit, after(7.5, 2.25));
    EXPECT_EQ(s.solutionQ, 7.5);
    EXPECT_EQ(s.solutionP, 2.25);
    EXPECT_EQ(triesWith({2, 3, 4, 4, 6, 5}, Implicit, after(0, 0)), 1);
}

TEST(TomtoGenerator, StartsOverWithReseedingUnlessTheCrossingIsInTheFirstQuadrant) {
    const Coefficients negativeQ{1, 1, 5, 2, 1, 6};     // (-1; 4)
    const Coefficients negativeP{-1, 1, 2, -2, 1, 5};   // (3; -1)
    const Coefficients onTheAxis{1, 1, 3, -1, 1, 3};    // (0; 3)
    const Coefficients onTheOther{1, 1, -3, -1, 1, 3};  // (3; 0)
    const TomtoState s = test::exerciseOf<TomtoState>(
        script(negativeQ, Explicit) + script(negativeP, Explicit) + script(kCrossing, Explicit),
        test::Reseeds{3});
    EXPECT_EQ(s.solutionQ, 2.6);
    EXPECT_EQ(triesWith(onTheAxis, Explicit), 1);
    EXPECT_EQ(triesWith(onTheOther, Explicit), 1);
}

TEST(TomtoGenerator, KeepsTheSolutionOfARejectedTry) {
    const Coefficients parallel{2, 3, 4, 4, 6, 5};
    // (-1; 4) stays behind: no lines of three terms that do not cross can stand until a crossing follows.
    ScriptedDraws draws(script({1, 1, 5, 2, 1, 6}, Explicit) + script(parallel, Implicit) +
                        script(parallel, Implicit) + script(kCrossing, Explicit));
    TomtoState s = after(1, 1);
    newExercise(s, draws);
    EXPECT_TRUE(draws.isUsedUp());
    EXPECT_EQ(s.relation, Relation::Crossing);

    // The truth value stays behind too.
    ScriptedDraws more(script({4, 1, 3, 4, 2, 8}, Explicit) + script(parallel, Implicit) +
                       script(kCrossing, Explicit));
    s = after(1, 0);
    newExercise(s, more);
    EXPECT_TRUE(more.isUsedUp());
}

TEST(TomtoGenerator, LetsALeftNegativePForceANewDraw) {
    // (3; -1) stays behind: Q becomes 0, P is still negative.
    const TomtoState s =
        test::exerciseOf<TomtoState>(script({-1, 1, 2, -2, 1, 5}, Explicit) +
                                     script({4, 1, 3, 4, 2, 8}, Explicit) + script(kCrossing, Explicit));
    EXPECT_EQ(s.relation, Relation::Crossing);
}

TEST(TomtoGenerator, ForgetsTheRangeOfTheAxes) {
    TomtoState s = after(1, 1);
    s.graphMax = 100;
    EXPECT_EQ(exercise(kCrossing, Explicit, s).graphMax, 0);
}

TEST(TomtoRounding, TakesHalvesUp) {
    // Q = 2/16 = 0.125, P = -7*0.125 + 9 = 8.125.
    const TomtoState s = exercise({-7, 1, 9, 9, 1, 7}, Explicit);
    EXPECT_EQ(s.solutionQ, 0.13);
    EXPECT_EQ(s.solutionP, 8.13);
}

TEST(TomtoRounding, TakesSomeHalvesDownInQByItsExtraStep) {
    // -4Q + 5 and 4Q - 4: Q = 9/8.
    EXPECT_EQ(exercise({-4, 1, 5, 4, 1, -4}, Explicit).solutionQ, 1.12);
    // -10Q + 8 and 6Q - 3: P = 18/16, the same half.
    EXPECT_EQ(exercise({-10, 1, 8, 6, 1, -3}, Explicit).solutionP, 1.13);
}

TEST(TomtoTexts, LeaveNothingBetweenSignAndNumberOfASlope) {
    const auto [l, m] = lineTexts(exercise(kCrossing, Explicit));
    EXPECT_EQ(l, "l: P = -2Q + 8");
    EXPECT_EQ(m, "m: P = 3Q - 5");
}

TEST(TomtoTexts, LeaveOutAnInterceptOfZero) {
    TomtoState s;
    s.form = Explicit;
    s.a1 = 1;
    s.a2 = -1;
    s.b2 = 4;
    EXPECT_EQ(lineTexts(s)[0], "l: P = 1Q");
    EXPECT_EQ(lineTexts(s)[1], "m: P = -1Q + 4");
}

TEST(TomtoTexts, SetLinesOfThreeTermsEqualToZero) {
    const auto [first, second] = lineTexts(exercise({-9, -10, 9, -10, -9, 9}, Implicit));
    EXPECT_EQ(first, "-10P - 9Q + 9 =  0");
    EXPECT_EQ(second, "-9P - 10Q + 9 =  0");
}

TEST(TomtoJudge, TellsOfEachNumberByItselfWhateverIsChosen) {
    TomtoState s;
    s.relation = Relation::Crossing;
    s.solutionQ = 2.6;
    s.solutionP = 2.8;
    for (const std::optional<Relation> chosen :
         {std::optional<Relation>(), std::optional(Relation::Crossing), std::optional(Relation::Parallel)}) {
        EXPECT_EQ(judge(s, {chosen, {2.6, 2.81}}), (Judgement{{true, false}, false}));
    }
}

TEST(TomtoJudge, TakesACrossingByItsExactRoundedCoordinates) {
    const TomtoState s = exercise(kCrossing, Explicit);
    EXPECT_TRUE(isRight(s, Relation::Crossing, Val("2.6"), Val("2.80")));
    EXPECT_FALSE(isRight(s, Relation::Crossing, Val("2.61"), Val("2.8")));
    EXPECT_FALSE(isRight(s, Relation::Crossing, Val("2.6"), Val("2.801")));
    EXPECT_FALSE(isRight(s, Relation::Crossing, Val("2.8"), Val("2.6")));
}

TEST(TomtoJudge, NeedsTheRelation) {
    const TomtoState s = exercise(kCrossing, Explicit);
    EXPECT_FALSE(isRight(s, std::nullopt, s.solutionQ, s.solutionP));
    EXPECT_FALSE(isRight(s, Relation::Parallel, s.solutionQ, s.solutionP));
    EXPECT_FALSE(isRight(s, Relation::Coinciding, s.solutionQ, s.solutionP));
}

TEST(TomtoJudge, AsksForNoCoordinatesOfLinesThatDoNotCross) {
    const TomtoState parallel = exercise({4, 1, 3, 4, 2, 8}, Explicit, after(1, 1));
    EXPECT_TRUE(isRight(parallel, Relation::Parallel, 99, 99));
    EXPECT_FALSE(isRight(parallel, Relation::Coinciding, 99, 99));
    EXPECT_FALSE(isRight(parallel, Relation::Crossing, parallel.solutionQ, parallel.solutionP));
    const TomtoState coinciding = exercise({4, 1, 3, 4, 2, 3}, Explicit, after(1, 1));
    EXPECT_TRUE(isRight(coinciding, Relation::Coinciding, 99, 99));
    EXPECT_FALSE(isRight(coinciding, Relation::Parallel, 99, 99));
}

TEST(TomtoGraph, ReachesToAHundredOnlyForACrossingBeyondTen) {
    EXPECT_EQ(rangeFor(after(10, 10)), 10);
    EXPECT_EQ(rangeFor(after(10.01, 0)), 100);
    EXPECT_EQ(rangeFor(after(0, 10.01)), 100);
}

TEST(TomtoGraph, RunsLinesOfTwoTermsOverTheWholeRange) {
    TomtoState s = exercise(kCrossing, Explicit);
    s.graphMax = 100;
    const auto [l, m] = graphLines(s);
    EXPECT_EQ(l.atZero, 8);
    EXPECT_EQ(l.atMax, -192);
    EXPECT_EQ(m.atZero, -5);
    EXPECT_EQ(m.atMax, 295);
}

TEST(TomtoGraph, SolvesLinesOfThreeTermsForP) {
    TomtoState s = exercise({-9, -10, 9, -10, -9, 9}, Implicit);
    s.graphMax = 10;
    const auto [first, second] = graphLines(s);
    EXPECT_EQ(first.atZero, 9.0F / 10);
    EXPECT_EQ(first.atMax, 10 * -0.9F + 0.9F);
    EXPECT_EQ(second.atZero, 1);
    EXPECT_EQ(second.atMax, 10 * (10.0F / -9) + 1);
}

TEST(TomtoWorked, SetsTwoTermsEqualAndCollects) {
    const ExplicitWorked worked = workedExplicit(exercise(kCrossing, Explicit));
    EXPECT_EQ(worked.equated, "-2Q + 8 = 3Q - 5 =>");
    EXPECT_EQ(worked.collected, "(-2 - 3) * Q = -5 - 8 =>");
    EXPECT_EQ(worked.q, "Q = 13/5 = 2.6");
    EXPECT_EQ(worked.p, "P = -2*(13/5) + 8 = 2.8");
}

TEST(TomtoWorked, BracketsNegativesThatFollowASign) {
    const ExplicitWorked worked = workedExplicit(exercise({3, 1, -5, -2, 1, 8}, Explicit));
    EXPECT_EQ(worked.equated, "3Q - 5 = -2Q + 8 =>");
    EXPECT_EQ(worked.collected, "(3 - (-2)) * Q = 8 - (-5) =>");
    EXPECT_EQ(worked.p, "P = 3*(13/5) - 5 = 2.8");
}

TEST(TomtoWorked, WritesNumbersWithTheLocalesMark) {
    const test::DecimalMark inUse(",");
    EXPECT_EQ(workedExplicit(exercise(kCrossing, Explicit)).q, "Q = 13/5 = 2,6");
}

TEST(TomtoWorked, PutsASignBeforeANegativeQuotient) {
    TomtoState s;
    s.a1 = 1;
    s.a2 = 2;
    s.b1 = 3;
    s.b2 = 5;
    EXPECT_EQ(workedExplicit(s).q, "Q = -2/1 = 0");
    EXPECT_EQ(workedExplicit(s).p, "P = 1*(-2/1) + 3 = 0");
    s.c1 = 1;
    s.c2 = 1;
    EXPECT_EQ(workedImplicit(s).q, "= -2/1 = 0");
}

TEST(TomtoWorked, InsertsQAsAFractionIntoLineOne) {
    const ImplicitWorked worked = workedImplicit(exercise({-9, -10, 9, -10, -9, 9}, Implicit));
    EXPECT_EQ(worked.numerator, "9*(-9) - 9*(-10)");
    EXPECT_EQ(worked.denominator, "-10*(-10) - (-9)*(-9)");
    EXPECT_EQ(worked.q, "= 9/19 = 0.47");
    EXPECT_EQ(worked.inserted, "I   -10*P - 9*(9/19)+9 = 0 ");
    EXPECT_EQ(worked.p, "=> P = 0.47");
}

TEST(TomtoWorked, KeepsBothSignsOfAnInsertedFraction) {
    // n = b1*c2 - b2*c1 = -1, m = a2*c1 - a1*c2 = -3.
    const ImplicitWorked worked = workedImplicit(exercise({1, 1, -3, -2, 1, -2}, Implicit));
    EXPECT_EQ(worked.q, "= 1/3 = 0.33");
    EXPECT_EQ(worked.inserted, "I   1*P + 1*(-1/-3)-3 = 0 ");
}

TEST(TomtoWorked, IsThereOnlyForLinesOfDifferentSlopes) {
    EXPECT_TRUE(hasDerivation(exercise(kCrossing, Explicit)));
    EXPECT_FALSE(hasDerivation(exercise({4, 1, 3, 4, 2, 8}, Explicit, after(1, 1))));
    EXPECT_TRUE(hasDerivation(exercise({-9, -10, 9, -10, -9, 9}, Implicit)));
    EXPECT_FALSE(hasDerivation(exercise({2, 3, 4, 4, 6, 5}, Implicit, after(1, 1))));
}

/// One line in whole numbers: c*P + a*Q + b = 0.
struct WholeLine {
    int c, a, b;
};

WholeLine wholeLine(const TomtoState& s, float c, float a, float b) {
    const int sign = s.form == Explicit ? -1 : 1;
    return {s.form == Explicit ? 1 : static_cast<int>(c), sign * static_cast<int>(a),
            sign * static_cast<int>(b)};
}

/// How a half is settled: the whole hundredths of a quotient that is stored as a single.
using Halves = double (*)(double);
double halvesOfQ(double x) { return std::floor((x + 0.005) * 100); }
double halvesOfP(double x) { return std::floor(x * 100 + 0.5); }

/// True if `rounded` is n/m to 2 decimals: the nearest by whole numbers, and at a half the one that the
/// doubles of this coordinate give.
bool isRoundedQuotient(double rounded, int n, int m, Halves halves) {
    const int by = 2 * std::abs(m);
    const int dividend = 200 * (m < 0 ? -n : n) + std::abs(m);
    const int rest = (dividend % by + by) % by;
    const double single = static_cast<float>(n) / static_cast<float>(m);
    const double hundredths = rest == 0 ? halves(single) : static_cast<double>(dividend - rest) / by;
    return rounded == hundredths / 100;
}

/// True if the worked solution ends in the stored crossing.
bool isWorkedOut(const TomtoState& s) {
    const std::string q = "= " + NumberText(s.solutionQ);
    const std::string p = "= " + NumberText(s.solutionP);
    if (s.form == Explicit) {
        const ExplicitWorked worked = workedExplicit(s);
        return endsIn(worked.q, q) && endsIn(worked.p, p);
    }
    const ImplicitWorked worked = workedImplicit(s);
    return endsIn(worked.q, q) && endsIn(worked.p, p);
}

/// All that holds for every exercise that stands, by a second way of solving it: Cramer's rule in whole
/// numbers.
bool holds(const TomtoState& s) {
    const WholeLine l = wholeLine(s, s.c1, s.a1, s.b1);
    const WholeLine m = wholeLine(s, s.c2, s.a2, s.b2);
    const int d = l.c * m.a - m.c * l.a;
    const double q = s.solutionQ;
    const double p = s.solutionP;
    bool sound = q >= 0 && p >= 0 && (d != 0) == (s.relation == Relation::Crossing) &&
                 (d != 0) == hasDerivation(s) && s.a1 != 0 && s.a2 != 0 && s.b1 != 0 && s.b2 != 0 &&
                 s.c1 != 0 && s.c2 != 0 && isRight(s, s.relation, q, p) && !isRight(s, std::nullopt, q, p);
    for (const Relation other : {Relation::Coinciding, Relation::Parallel, Relation::Crossing}) {
        sound = sound && isRight(s, other, q, p) == (other == s.relation);
    }
    if (d != 0) {
        sound = sound && isRoundedQuotient(q, m.c * l.b - l.c * m.b, d, halvesOfQ) &&
                isRoundedQuotient(p, l.a * m.b - m.a * l.b, d, halvesOfP) &&
                !isRight(s, Relation::Crossing, q + 0.001, p) &&
                !isRight(s, Relation::Crossing, q, p - 0.001) && readsAsItself(q) && readsAsItself(p) &&
                isWorkedOut(s);
    } else if (s.form == Explicit) {
        sound = sound && (s.relation == Relation::Coinciding) == (s.b1 == s.b2);
    } else {
        sound = sound && (s.relation == Relation::Coinciding) == (s.b1 == -s.b2);
    }
    TomtoState drawn = s;
    setRange(drawn);
    for (const auto& [atZero, atMax] : graphLines(drawn)) {
        sound = sound && std::isfinite(atZero) && std::isfinite(atMax);
    }
    return sound;
}

std::string described(const TomtoState& s) {
    const auto [l, m] = lineTexts(s);
    return l + ", " + m + " (" + NumberText(s.solutionQ) + ";" + NumberText(s.solutionP) + ")";
}

int kindOf(const TomtoState& s) {
    return 3 * static_cast<int>(s.form.value()) + static_cast<int>(s.relation);
}

void provePairsOfTwoTerms(Proof& proof) {
    // The c's are drawn and not used, so 160,000 of the draws are all there is.
    std::map<Relation, int> counts;
    int rejected = 0;
    for (int a1 = -10; a1 < 10; ++a1) {
        for (int b1 = -10; b1 < 10; ++b1) {
            for (int a2 = -10; a2 < 10; ++a2) {
                for (int b2 = -10; b2 < 10; ++b2) {
                    const int slope1 = a1 == 0 ? 7 : a1;
                    const int slope2 = a2 == 0 ? 1 : a2;
                    const int dividend = (b1 == 0 ? 3 : b1) - (b2 == 0 ? 5 : b2);
                    const int heights = slope2 * (b1 == 0 ? 3 : b1) - slope1 * (b2 == 0 ? 5 : b2);
                    const int d = slope2 - slope1;
                    if (d != 0 && (dividend * d < 0 || heights * d < 0)) {
                        ++rejected;
                        ScriptedDraws draws(script({a1, 1, b1, a2, 1, b2}, Explicit) +
                                            script(kCrossing, Explicit));
                        TomtoState s;
                        newExercise(s, draws);
                        ASSERT_TRUE(draws.isUsedUp()) << a1 << " " << b1 << " " << a2 << " " << b2;
                        continue;
                    }
                    const TomtoState s = exercise({a1, 1, b1, a2, 1, b2}, Explicit, after(1, 1));
                    ++counts[s.relation];
                    proof.visit(Proof::From::WholeSpace, kindOf(s));
                    ASSERT_TRUE(holds(s)) << described(s);
                }
            }
        }
    }
    EXPECT_EQ(counts[Relation::Crossing], 38'984);
    EXPECT_EQ(counts[Relation::Parallel], 7'539);
    EXPECT_EQ(counts[Relation::Coinciding], 861);
    EXPECT_EQ(rejected, 112'616);
}

/// Makes many exercises, one after the other on one form or each on a form of its own.
void proveSeeded(Proof& proof, Generator make, bool onOneForm, ProofDraws::Ends ends) {
    ProofDraws draws(2004, ends);
    TomtoState s;
    std::map<std::pair<LineForm, Relation>, int> counts;
    int beyondTen = 0;
    for (int i = 0; i < test::lotSize(25'000, 500'000); ++i) {
        if (!onOneForm) {
            s = TomtoState{};
        }
        draws.beginExercise();
        make(s, draws);
        proof.visit(Proof::From::Seeds, kindOf(s));
        ++counts[{s.form.value(), s.relation}];
        beyondTen += rangeFor(s) == 100 ? 1 : 0;
        ASSERT_TRUE(holds(s)) << i << ": " << described(s);
    }
    if (ends != ProofDraws::Ends::None) {
        return;
    }
    for (const LineForm form : {Explicit, Implicit}) {
        EXPECT_GT((counts[{form, Relation::Crossing}]), 2'500);
    }
    EXPECT_GT(beyondTen, 250);
    if (onOneForm) {
        EXPECT_GT((counts[{Explicit, Relation::Parallel}]), 25);
        EXPECT_GT((counts[{Explicit, Relation::Coinciding}]), 25);
        EXPECT_GT((counts[{Implicit, Relation::Parallel}]), 25);
        EXPECT_GT((counts[{Implicit, Relation::Coinciding}]), 2);
    }
}

// Lines of two terms as a whole; of three terms there are 64 million pairs.
TEST(TomtoExercises, AreSolvedByCramersRuleAndByNothingBesideIt) {
    Proof proof("tomto", 6);
    provePairsOfTwoTerms(proof);
    for (const auto ends : {ProofDraws::Ends::None, ProofDraws::Ends::FromZero}) {
        proveSeeded(proof, newExercise, true, ends);
        proveSeeded(proof, firstExercise, false, ends);
    }
}

RC_GTEST_PROP(TomtoSeeds, TakeTheGivenAnswerInTheDanishLocaleOnceItsMarkIsAPoint, (std::uint64_t seed)) {
    const test::DecimalMark inUse(",");
    SeededDraws draws(seed);
    TomtoState s;
    newExercise(s, draws);
    const auto typed = [](double x) {
        std::string text = NumberText(x);
        if (const auto comma = text.find(','); comma != std::string::npos) {
            text[comma] = '.';
        }
        return Val(text);
    };
    RC_ASSERT(isRight(s, s.relation, typed(s.solutionQ), typed(s.solutionP)));
}

TEST(TomtoSeeds, AreFrozenForAllBuildsAndProcessors) {
    SeededDraws draws(7);
    TomtoState s;
    std::string texts;
    for (int i = 0; i < 3; ++i) {
        newExercise(s, draws);
        texts += described(s) + " | ";
    }
    EXPECT_EQ(texts,
              "-2P + 4Q + 1 =  0, -2P + 1Q + 5 =  0 (1.33;3.17) | l: P = 2Q - 3, m: P = 6Q - 9 (1.5;0) | "
              "l: P = -2Q + 3, m: P = 3Q + 3 (0;3) | ");
}

}  // namespace
}  // namespace tavrune
