#include "topics/basics/konvert_exercise.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/judged.h"
#include "support/proof.h"
#include "topics/basics/konvert_script.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::DecimalMark;
using test::eachIs;
using test::kJustPast;
using test::kLargestDraw;
using test::Proof;
using test::readsAsItself;
using test::Script;
using test::ScriptedDraws;
using test::konvert::fraction;
using test::konvert::fractionFactor;
using test::konvert::intercept;
using test::konvert::kHeads;
using test::konvert::kTails;
using test::konvert::oneOver;
using test::konvert::slope;
using test::konvert::wholeFactor;

KonvertState exercise(const Script& script) {
    return test::exerciseOf<KonvertState>(script, test::Reseeds{1});
}

TEST(KonvertGenerator, DrawsSlopeConstantAndAWholeFactor) {
    const KonvertState s = exercise({kHeads, cellOf(3, 6), cellOf(5, 8), kHeads, cellOf(1, 8)});
    EXPECT_EQ(s.slopeOfQ, -3);
    EXPECT_EQ(s.interceptOfQ, 5);
    EXPECT_EQ(s.factorKind, FactorKind::Whole);
    EXPECT_EQ(s.factor, 2);
    EXPECT_EQ(s.slopeOfK, -0.75);
    EXPECT_EQ(s.interceptOfK, 2.5);
}

TEST(KonvertGenerator, DrawsAFractionWithADrawnNumerator) {
    const KonvertState s =
        exercise({kTails, cellOf(4, 5), cellOf(7, 8), kTails, kHeads, cellOf(2, 8), cellOf(3, 8)});
    EXPECT_EQ(s.slopeOfQ, 4);
    EXPECT_EQ(s.interceptOfQ, 7);
    EXPECT_EQ(s.factorKind, FactorKind::Fraction);
    EXPECT_EQ(s.factorNumerator, 3);
    EXPECT_EQ(s.factorDenominator, 4);
    EXPECT_EQ(s.factor, 0.75F);
}

TEST(KonvertGenerator, LeavesTheNumeratorAtOneForTails) {
    const KonvertState s = exercise(slope(1) + intercept(1) + Script{kTails} + oneOver(4));
    EXPECT_EQ(s.factorNumerator, 1);
    EXPECT_EQ(s.factorDenominator, 4);
    EXPECT_EQ(s.slopeOfK, 16);
    EXPECT_EQ(s.interceptOfK, 4);
}

TEST(KonvertGenerator, TakesAHalfForTailsAndLessForHeads) {
    constexpr float kBelowHalf = 0.5F - 1.0F / (1U << 24U);
    EXPECT_EQ(exercise({kBelowHalf, kLargestDraw, 0, kBelowHalf, 0}).slopeOfQ, -5);
    EXPECT_EQ(exercise({0.5F, kLargestDraw, kLargestDraw, kBelowHalf, kLargestDraw}).slopeOfQ, 4);
    EXPECT_EQ(exercise({0.5F, kLargestDraw, kLargestDraw, kBelowHalf, kLargestDraw}).interceptOfQ, 7);
    EXPECT_EQ(exercise({0.5F, kLargestDraw, kLargestDraw, kBelowHalf, kLargestDraw}).factor, 8);
}

TEST(KonvertGenerator, DrawsOnlyTheFractionAgainWhileItIsOne) {
    // 1/1 by tails, 5/5 by heads, then 1/3: the numerator is 1 again before each coin.
    const KonvertState s =
        exercise(slope(2) + intercept(3) + Script{kTails} + oneOver(1) + fraction(5, 5) + oneOver(3));
    EXPECT_EQ(s.slopeOfQ, 2);
    EXPECT_EQ(s.interceptOfQ, 3);
    EXPECT_EQ(s.factorNumerator, 1);
    EXPECT_EQ(s.factorDenominator, 3);
}

TEST(KonvertGenerator, DrawsEverythingAgainWithReseedingWhileTheSlopeIsTooSteep) {
    const KonvertState s =
        test::exerciseOf<KonvertState>(slope(1) + intercept(1) + fractionFactor(1, 8) +       // 64
                                           slope(-2) + intercept(2) + fractionFactor(1, 6) +  // -72
                                           slope(3) + intercept(4) + wholeFactor(1),
                                       test::Reseeds{3});
    EXPECT_EQ(s.slopeOfQ, 3);
    EXPECT_EQ(s.interceptOfQ, 4);
    EXPECT_EQ(s.factorKind, FactorKind::Whole);
}

TEST(KonvertGenerator, KeepsASlopeOfFifty) {
    EXPECT_NEAR(exercise(slope(2) + intercept(0) + fractionFactor(1, 5)).slopeOfK, 50, 1e-5);
    EXPECT_NEAR(exercise(slope(-2) + intercept(0) + fractionFactor(1, 5)).slopeOfK, -50, 1e-5);
}

TEST(KonvertGenerator, DividesInSinglePrecision) {
    const KonvertState s = exercise(slope(-5) + intercept(1) + fractionFactor(4, 3));
    EXPECT_EQ(s.factor, 4.0F / 3.0F);
    EXPECT_EQ(s.slopeOfK, static_cast<double>(-5.0F / (s.factor * s.factor)));
    EXPECT_EQ(s.interceptOfK, static_cast<double>(1.0F / s.factor));
    EXPECT_NE(s.slopeOfK, -2.8125);
}

TEST(KonvertGenerator, MayAskForNothingButZeros) {
    for (const Script& zero : {Script{kHeads, 0}, Script{kTails, 0}}) {
        KonvertState s = exercise(zero + intercept(0) + wholeFactor(3));
        EXPECT_EQ(functionText(s), "P= 0Q + 0");
        EXPECT_EQ(s.slopeOfK, 0);
        EXPECT_EQ(s.interceptOfK, 0);
        roundSolution(s);
        EXPECT_EQ(workedSolution(s).result, "= 0 K + 0");
    }
}

TEST(KonvertGenerator, GivesTheOldFunctionForAFactorOfOne) {
    const KonvertState s = exercise(slope(-4) + intercept(6) + wholeFactor(1));
    EXPECT_EQ(s.slopeOfK, -4);
    EXPECT_EQ(s.interceptOfK, 6);
}

TEST(KonvertRounding, TakesTheSlopeAwayFromZeroAndTheConstantUp) {
    KonvertState s;
    s.slopeOfK = -2.0005;
    s.interceptOfK = 0.0625;
    roundSolution(s);
    EXPECT_EQ(s.slopeOfK, -2.001);
    EXPECT_EQ(s.interceptOfK, 0.063);
    s.slopeOfK = 0.0625;
    s.interceptOfK = -0.0625;
    roundSolution(s);
    EXPECT_EQ(s.slopeOfK, 0.063);
    EXPECT_EQ(s.interceptOfK, -0.062);
}

TEST(KonvertRounding, StartsFromTheDigitsOfTheSingle) {
    KonvertState s = exercise(slope(-5) + intercept(1) + fractionFactor(4, 3));
    roundSolution(s);
    EXPECT_EQ(s.slopeOfK, -2.812);
    EXPECT_EQ(s.interceptOfK, 0.75);
}

TEST(KonvertTexts, TellAWholeFactor) {
    KonvertState s = exercise(slope(-3) + intercept(5) + wholeFactor(4));
    roundSolution(s);
    EXPECT_EQ(taskText(s), " For den viste funktion gælder, at 1 Q svarer til 4 K. Udtryk funktionen i K");
    EXPECT_EQ(functionText(s), "P= -3Q + 5");
    EXPECT_EQ(workedSolution(s).function, "P= -3 Q + 5");
    EXPECT_EQ(workedSolution(s).conversion, "1 Q svarer til 4 K");
    const DecimalMark danish(",");
    const KonvertWorked worked = workedSolution(s);
    EXPECT_EQ(worked.priceEquals, "P= ");
    EXPECT_EQ(worked.slope, "-3");
    EXPECT_EQ(worked.squaredFactor, "4 · 4");
    EXPECT_EQ(worked.intercept, "5");
    EXPECT_EQ(worked.factor, "4");
    EXPECT_EQ(worked.result, "= -0,188 K + 1,25");
}

TEST(KonvertTexts, TellAFractionUnreduced) {
    KonvertState s = exercise(slope(2) + intercept(7) + fractionFactor(6, 4));
    roundSolution(s);
    EXPECT_EQ(taskText(s), " For den viste funktion gælder, at 1 Q svarer til 6/4 K. Udtryk funktionen i K");
    EXPECT_EQ(workedSolution(s).conversion, "1 Q svarer til 6/4 K");
    const KonvertWorked worked = workedSolution(s);
    EXPECT_EQ(worked.priceEquals, "P=");
    EXPECT_EQ(worked.squaredFactor, "(6/4) · (6/4)");
    EXPECT_EQ(worked.factor, "6/4");
    EXPECT_EQ(worked.result, "= 0.889 K + 4.667");
}

TEST(KonvertTexts, ShowTheFactorOfThisExerciseAfterOneOfTheOtherKind) {
    ScriptedDraws draws(slope(1) + intercept(1) + fractionFactor(3, 4) +  //
                        slope(1) + intercept(1) + wholeFactor(5));
    KonvertState s;
    newExercise(s, draws);
    newExercise(s, draws);
    EXPECT_EQ(workedSolution(s).conversion, "1 Q svarer til 5 K");
    EXPECT_EQ(workedSolution(s).squaredFactor, "5 · 5");
}

struct Space {
    Proof proof{"Konvert", 2};
    int accepted = 0;
    int rejected = 0;
    std::set<int> slopes;
    std::set<int> constants;
    std::set<std::string> factors;
};

/// True if a number to three decimals is the nearest one to the exact quotient.
bool isRoundedTo3(double rounded, double exact) {
    return std::abs(rounded - exact) <= 0.0005 + 1e-5 &&
           std::abs(rounded * 1000 - std::round(rounded * 1000)) < 1e-6;
}

/// Holds if this exercise is solved by its own solution, rounded or not, and by nothing farther off.
bool isSound(KonvertState s, double exactSlope, double exactIntercept) {
    const auto solvedBy = [&s](double slope, double intercept) {
        return judge(s, {slope, intercept}).isSolved;
    };
    const bool isNearExact =
        std::abs(s.slopeOfK - exactSlope) < 1e-5 && std::abs(s.interceptOfK - exactIntercept) < 1e-5;
    const bool takesOwn = solvedBy(s.slopeOfK, s.interceptOfK) && solvedBy(exactSlope, exactIntercept);
    bool takesOthers = false;
    for (const double nudge : {-kJustPast, kJustPast, 1.0}) {
        takesOthers = takesOthers || solvedBy(s.slopeOfK + nudge, s.interceptOfK) ||
                      solvedBy(s.slopeOfK, s.interceptOfK + nudge);
    }
    roundSolution(s);
    const KonvertState once = s;
    roundSolution(s);
    const bool staysRounded = s.slopeOfK == once.slopeOfK && s.interceptOfK == once.interceptOfK;
    const bool takesRounded = solvedBy(exactSlope, exactIntercept) && isRoundedTo3(s.slopeOfK, exactSlope) &&
                              isRoundedTo3(s.interceptOfK, exactIntercept) && readsAsItself(s.slopeOfK) &&
                              readsAsItself(s.interceptOfK);
    const KonvertWorked worked = workedSolution(s);
    const bool isWorkedOut =
        worked.slope == NumberText(s.slopeOfQ) && worked.intercept == NumberText(s.interceptOfQ) &&
        worked.result == "= " + NumberText(s.slopeOfK) + " K + " + NumberText(s.interceptOfK);
    return isNearExact && takesOwn && !takesOthers && staysRounded && takesRounded && isWorkedOut;
}

/// Draws one exercise and, for a slope that is too steep, a last one that shows the rejection.
void visit(Space& space, const Script& slopeDraws, int a, int b, const Script& factorDraws, int n, int m) {
    ScriptedDraws draws(slopeDraws + intercept(b) + factorDraws + slope(4) + intercept(7) + wholeFactor(7));
    KonvertState s;
    newExercise(s, draws);
    const double exactSlope = static_cast<double>(a * m * m) / (n * n);
    const bool isTooSteep = std::abs(a) * m * m > 50 * n * n;
    ASSERT_EQ(draws.randomized(), isTooSteep ? 2 : 1) << a << " " << n << "/" << m;
    if (isTooSteep) {
        ++space.rejected;
        return;
    }
    ++space.accepted;
    space.proof.visit(Proof::From::WholeSpace, static_cast<int>(s.factorKind));
    space.slopes.insert(a);
    space.constants.insert(b);
    space.factors.insert(workedSolution(s).conversion);
    ASSERT_TRUE(isSound(s, exactSlope, static_cast<double>(b) * m / n))
        << functionText(s) << ", " << workedSolution(s).conversion;
}

TEST(KonvertSpace, IsSolvedByItsOwnAndOnlyByItsOwnSolution) {
    Space space;
    const auto visitFactors = [&space](const Script& slopeDraws, int a, int b) {
        for (int m = 1; m <= 8; ++m) {
            visit(space, slopeDraws, a, b, wholeFactor(m), m, 1);
            for (int n = 1; n <= 8; ++n) {
                if (n != m) {
                    visit(space, slopeDraws, a, b, fractionFactor(n, m), n, m);
                }
            }
            if (m != 1) {
                visit(space, slopeDraws, a, b, Script{kTails} + oneOver(m), 1, m);
            }
        }
    };
    for (int b = 0; b < 8; ++b) {
        for (int size = 0; size < 6; ++size) {
            visitFactors({kHeads, cellOf(size, 6)}, -size, b);
        }
        for (int size = 0; size < 5; ++size) {
            visitFactors({kTails, cellOf(size, 5)}, size, b);
        }
    }
    // 11 ways to a slope, 8 constants, 8 + 56 + 7 ways to a factor.
    EXPECT_EQ(space.accepted + space.rejected, 11 * 8 * 71);
    EXPECT_GT(space.rejected, 0);
    EXPECT_EQ(space.slopes.size(), 10U);
    EXPECT_EQ(space.constants.size(), 8U);
    EXPECT_EQ(space.factors.size(), 64U);
}

TEST(KonvertSeeds, AreFrozenForAllBuildsAndProcessors) {
    SeededDraws draws(7);
    KonvertState s;
    std::string texts;
    for (int i = 0; i < 4; ++i) {
        newExercise(s, draws);
        texts += functionText(s) + " " + workedSolution(s).factor + "; ";
    }
    EXPECT_EQ(texts, "P= 2Q + 4 7/8; P= -2Q + 1 5; P= -1Q + 2 1; P= 0Q + 4 5; ");
}

TEST(KonvertSeeds, GiveEachKindAboutAsOften) {
    SeededDraws draws(11);
    KonvertState s;
    int fractions = 0;
    for (int i = 0; i < 10'000; ++i) {
        newExercise(s, draws);
        fractions += s.factorKind == FactorKind::Fraction ? 1 : 0;
        ASSERT_TRUE(std::abs(s.slopeOfK) <= 50 && std::abs(s.interceptOfK) <= 56) << functionText(s);
    }
    EXPECT_GT(fractions, 4'000);
    EXPECT_LT(fractions, 5'500);
}

TEST(KonvertJudge, TakesBothEndsOfEachNumbersTolerance) {
    KonvertState s;
    s.slopeOfK = -0.25;
    s.interceptOfK = 5;
    EXPECT_TRUE(eachIs({true, true}, s, {{-0.25, 5}, {-0.255, 5}, {-0.245, 5}, {-0.25, 5.005}}));
    EXPECT_TRUE(eachIs({false, true}, s, {{-0.2551, 5}}));
    EXPECT_TRUE(eachIs({true, false}, s, {{-0.25, 4.9949}}));
}

}  // namespace
}  // namespace tavrune
