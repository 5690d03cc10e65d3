#include "topics/basics/dlinie_exercise.h"

#include <cmath>
#include <cstdlib>
#include <set>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/judged.h"
#include "support/proof.h"
#include "topics/basics/dlinie_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::eachIs;
using test::endsIn;
using test::inBothMarks;
using test::kLargestDraw;
using test::Proof;
using test::ScriptedDraws;
using test::typedAgain;
using test::dlinie::kind;
using test::dlinie::Numbers;
using test::dlinie::numbers;
using test::dlinie::script;

DlinieState exercise(LineTask task, const Numbers& drawn, ZeroSlope zeroSlope = ZeroSlope::Allowed) {
    ScriptedDraws draws(script(task, drawn));
    DlinieState state;
    newExercise(state, draws, zeroSlope);
    EXPECT_TRUE(draws.isUsedUp());
    return state;
}

bool isSolvedBy(const DlinieState& s, double a, double b) { return judge(s, {a, b}).isSolved; }

/// The kind that one draw gives.
LineTask taskOf(float draw) {
    ScriptedDraws draws{draw};
    draws.append(numbers({}));
    DlinieState state;
    newExercise(state, draws);
    return state.taskType;
}

TEST(DlinieGenerator, DrawsTheKindThenTheNumbersInTheirOrder) {
    const DlinieState s = exercise(LineTask::TwoPoints, {-10, 9, 3, -1, -5, 8, -7});
    EXPECT_EQ(s.taskType, LineTask::TwoPoints);
    EXPECT_EQ(s.x1, -10);
    EXPECT_EQ(s.y1, 9);
    EXPECT_EQ(s.x2, 3);
    EXPECT_EQ(s.y2, -1);
    EXPECT_EQ(s.slopeGiven, -5);
    EXPECT_EQ(s.yCross, 8);
    EXPECT_EQ(s.xCross, -7);
}

TEST(DlinieGenerator, DrawsTheNumbersButNotTheKindAgainWhileTheyWillNotDo) {
    ScriptedDraws draws{kind(LineTask::BothCrosses)};
    draws.append(numbers({.x1 = 4, .x2 = 4}));
    draws.append(numbers({.xCross = 0}));
    draws.append(numbers({.slopeGiven = 0}));
    draws.append(numbers({.yCross = 3, .xCross = -1}));
    DlinieState s;
    newExercise(s, draws);
    EXPECT_EQ(s.taskType, LineTask::BothCrosses);
    EXPECT_EQ(s.slope, 3);
    EXPECT_EQ(s.intercept, 3);
    EXPECT_EQ(draws.randomized(), 1);
    EXPECT_TRUE(draws.isUsedUp());
}

TEST(DlinieGenerator, TakesASlopeOfZeroWhereItIsAllowed) {
    const DlinieState s = exercise(LineTask::SlopeAndPoint, {.slopeGiven = 0}, ZeroSlope::Allowed);
    EXPECT_EQ(s.slope, 0);
    EXPECT_EQ(s.intercept, 2);
}

TEST(DlinieGenerator, RejectsEqualAbscissasAndACrossingAtZeroWhereAZeroSlopeIsAllowed) {
    ScriptedDraws draws{kind(LineTask::SlopeAndYCross)};
    draws.append(numbers({.x1 = 4, .x2 = 4, .slopeGiven = 0}));
    draws.append(numbers({.slopeGiven = 0, .xCross = 0}));
    draws.append(numbers({.slopeGiven = 0, .yCross = 7}));
    DlinieState s;
    newExercise(s, draws, ZeroSlope::Allowed);
    EXPECT_EQ(s.intercept, 7);
    EXPECT_TRUE(draws.isUsedUp());
}

TEST(DlinieGenerator, DrawsEachKindFromAFifthLessAThousandth) {
    EXPECT_EQ(taskOf(0), LineTask::None);
    EXPECT_EQ(taskOf(0.00019F), LineTask::None);
    EXPECT_EQ(taskOf(0.00021F), LineTask::TwoPoints);
    EXPECT_EQ(taskOf(0.2001F), LineTask::TwoPoints);
    EXPECT_EQ(taskOf(0.2003F), LineTask::SlopeAndPoint);
    EXPECT_EQ(taskOf(0.4003F), LineTask::SlopeAndYCross);
    EXPECT_EQ(taskOf(0.6003F), LineTask::SlopeAndXCross);
    EXPECT_EQ(taskOf(0.8001F), LineTask::SlopeAndXCross);
    EXPECT_EQ(taskOf(0.8003F), LineTask::BothCrosses);
    EXPECT_EQ(taskOf(kLargestDraw), LineTask::BothCrosses);
}

TEST(DlinieGenerator, WithoutAKindDrawsNewNumbersAndKeepsTheAnswer) {
    ScriptedDraws draws{kind(LineTask::TwoPoints)};
    draws.append(numbers({.x1 = 0, .y1 = 1, .x2 = 3, .y2 = 0}));
    draws.append({kind(LineTask::None)});
    draws.append(numbers({.x1 = 7, .y1 = 8, .yCross = 9}));
    DlinieState s;
    newExercise(s, draws);
    newExercise(s, draws);
    EXPECT_EQ(s.taskType, LineTask::None);
    EXPECT_EQ(s.x1, 7);
    EXPECT_EQ(s.yCross, 9);
    EXPECT_EQ(s.slope, -0.33);
    EXPECT_EQ(s.intercept, 1);
    EXPECT_FALSE(taskTexts(s));
}

TEST(DlinieGenerator, WithoutAnyKindYetHasZerosForItsAnswer) {
    const DlinieState s = exercise(LineTask::None, {});
    EXPECT_TRUE(isSolvedBy(s, 0, 0));
    EXPECT_FALSE(taskTexts(s));
}

struct KindRow {
    const char* name;
    LineTask task;
    Numbers numbers;
    const char* sentence;
    const char* firstFact;
    const char* secondFact;
    double slope;
    double intercept;
};

class DlinieKinds : public testing::TestWithParam<KindRow> {};

TEST_P(DlinieKinds, AskAndStoreTheRoundedAnswer) {
    const KindRow& row = GetParam();
    const DlinieState s = exercise(row.task, row.numbers);
    const auto task = taskTexts(s);
    ASSERT_TRUE(task);
    EXPECT_EQ(task->sentence, row.sentence);
    EXPECT_EQ(task->firstFact, row.firstFact);
    EXPECT_EQ(task->secondFact, row.secondFact);
    EXPECT_EQ(s.slope, row.slope);
    EXPECT_EQ(s.intercept, row.intercept);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DlinieKinds,
    testing::Values(
        KindRow{"TwoPoints", LineTask::TwoPoints, Numbers{.x1 = -10, .y1 = 9, .x2 = 3, .y2 = -1},
                "Bestem forskriften for den rette linie gennem følgende to punkter:", "1. (X,Y) = (-10,9)",
                "2. (X,Y) = (3,-1)", -0.77, 1.31},
        KindRow{
            "SlopeAndPoint", LineTask::SlopeAndPoint, Numbers{.x1 = -4, .y1 = 5, .slopeGiven = -3},
            "Du kender en ret linies hældningskoeficient og et punkt på linien. Bestem liniens forskrift.",
            "Hældningskoefficienten(a) = -3", "(X,Y) = (-4,5)", -3, -7},
        KindRow{"SlopeAndYCross", LineTask::SlopeAndYCross, Numbers{.slopeGiven = 4, .yCross = -10},
                "Du kender en ret linies hældningskoefficient og liniens skæring med Y-aksen. Bestem liniens "
                "forskrift.",
                "Hældningskoefficient(a) = 4", "Y = -10", 4, -10},
        KindRow{"SlopeAndXCross", LineTask::SlopeAndXCross, Numbers{.slopeGiven = -5, .xCross = 9},
                "Du kender en ret linies hældningskoefficient og liniens skæring med X-aksen. Bestem liniens "
                "forskrift.",
                "Hældningskoefficient(a) = -5", "X = 9", -5, 45},
        KindRow{"BothCrosses", LineTask::BothCrosses, Numbers{.yCross = 8, .xCross = -7},
                "Du kender en ret linies skæring med X-aksen og Y-aksen. Bestem liniens forskrift.", "X = -7",
                "Y = 8", 1.14, 8},
        KindRow{"BothCrossesInTheOrigin", LineTask::BothCrosses, Numbers{.yCross = 0, .xCross = -7},
                "Du kender en ret linies skæring med X-aksen og Y-aksen. Bestem liniens forskrift.", "X = -7",
                "Y = 0", 0, 0}),
    [](const auto& row) { return row.param.name; });

TEST(DlinieGenerator, MakesTheInterceptOfTwoPointsFromTheUnroundedSlope) {
    // 1/3 and 1/3: from the slope as shown, 0.33, the intercept would be 0.36.
    const DlinieState s = exercise(LineTask::TwoPoints, {.x1 = 8, .y1 = 3, .x2 = 5, .y2 = 2});
    EXPECT_EQ(s.slope, 0.33);
    EXPECT_EQ(s.intercept, 0.33);
}

TEST(DlinieGenerator, RoundsHalvesAwayFromZero) {
    // Eighths, as the points stand 8 apart.
    EXPECT_EQ(exercise(LineTask::TwoPoints, {.x1 = 0, .y1 = 0, .x2 = 8, .y2 = 1}).slope, 0.13);
    EXPECT_EQ(exercise(LineTask::TwoPoints, {.x1 = 0, .y1 = 1, .x2 = 8, .y2 = 0}).slope, -0.13);
}

TEST(DlinieGenerator, NeverStoresANegativeZero) {
    for (const int xCross : {-7, 7}) {
        const DlinieState s = exercise(LineTask::BothCrosses, {.yCross = 0, .xCross = xCross});
        EXPECT_FALSE(std::signbit(s.slope));
        EXPECT_EQ(slopeBetweenCrosses(s).result, std::string("= -(0/") + NumberText(xCross) + ") = 0");
    }
}

TEST(DlinieJudge, WantsTwoDecimalsOfMinusAThird) {
    const DlinieState s = exercise(LineTask::TwoPoints, {.x1 = 0, .y1 = 1, .x2 = 3, .y2 = 0});
    EXPECT_EQ(s.slope, -0.33);
    EXPECT_TRUE(isSolvedBy(s, Val("-0.33"), 1));
    EXPECT_FALSE(isSolvedBy(s, Val("-0.333"), 1));
    EXPECT_FALSE(isSolvedBy(s, Val("0.33"), 1));
}

TEST(DlinieJudge, TellsWhichOfTheTwoIsWrong) {
    const DlinieState s = exercise(LineTask::SlopeAndYCross, {.slopeGiven = 2, .yCross = 3});
    EXPECT_TRUE(eachIs({true, false}, s, {{2, 4}}));
    EXPECT_TRUE(eachIs({false, true}, s, {{1, 3}}));
    EXPECT_TRUE(eachIs({true, true}, s, {{2, 3}}));
}

TEST(DlinieAnswer, BearsAPlusUnlessItIsNegative) {
    const auto answer = [](int yCross) {
        return interceptAnswer(exercise(LineTask::SlopeAndYCross, {.yCross = yCross}));
    };
    EXPECT_EQ(answer(3), "+3");
    EXPECT_EQ(answer(0), "+0");
    EXPECT_EQ(answer(-3), "-3");
    EXPECT_EQ(Val(answer(3)), 3);
}

TEST(DlinieWorked, WritesTheSlopeOfTwoPointsAsDifferences) {
    const DlinieSlopeStep step =
        slopeBetweenPoints(exercise(LineTask::TwoPoints, {.x1 = -3, .y1 = 2, .x2 = 4, .y2 = -1}));
    EXPECT_EQ(step.numerator, "2 - (-1)");
    EXPECT_EQ(step.denominator, "-3 - 4");
    EXPECT_EQ(step.result, "= 3/-7 = -0.43");
}

TEST(DlinieWorked, InsertsASlopeOfAtMostTwoDecimals) {
    // -9/12
    const DlinieInterceptStep step =
        interceptFromFirstPoint(exercise(LineTask::TwoPoints, {.x1 = -3, .y1 = 2, .x2 = 9, .y2 = -7}));
    EXPECT_EQ(step.inserted, "2 = (-0.75)*(-3) + b   => ");
    EXPECT_EQ(step.solved, "b = 2 - (-0.75)*(-3) = -0.25");

    const DlinieInterceptStep whole =
        interceptFromFirstPoint(exercise(LineTask::TwoPoints, {.x1 = 3, .y1 = -2, .x2 = 1, .y2 = -6}));
    EXPECT_EQ(whole.inserted, "-2 = 2*3 + b   => ");
    EXPECT_EQ(whole.solved, "b = -2 - 2*3 = -8");
}

TEST(DlinieWorked, InsertsALongerSlopeAsAFraction) {
    const DlinieInterceptStep step =
        interceptFromFirstPoint(exercise(LineTask::TwoPoints, {.x1 = -3, .y1 = 2, .x2 = 4, .y2 = -1}));
    EXPECT_EQ(step.inserted, "2 = (3/-7)*(-3) + b   => ");
    EXPECT_EQ(step.solved, "b = 2 - (3/-7)*(-3) = 0.71");
    // Three decimals are too many.
    EXPECT_EQ(
        interceptFromFirstPoint(exercise(LineTask::TwoPoints, {.x1 = 8, .y1 = 1, .x2 = 0, .y2 = 0})).inserted,
        "1 = (1/8)*8 + b   => ");
}

TEST(DlinieWorked, InsertsTheKnownPoint) {
    const DlinieInterceptStep step =
        interceptFromPoint(exercise(LineTask::SlopeAndPoint, {.x1 = -4, .y1 = 5, .slopeGiven = -3}));
    EXPECT_EQ(step.inserted, "5 = (-3)*(-4) + b =>");
    EXPECT_EQ(step.solved, "b = 5 - (-3)*(-4) = -7");
}

TEST(DlinieWorked, InsertsTheCrossingOfTheXAxis) {
    const DlinieCrossStep step =
        interceptFromXCross(exercise(LineTask::SlopeAndXCross, {.slopeGiven = -2, .xCross = -9}));
    EXPECT_EQ(step.inserted, "Y = -2*(-9) + b   =>");
    EXPECT_EQ(step.withZero, "0 = -2*(-9) + b   =>");
    EXPECT_EQ(step.solved, "b = -(-2)*(-9)");
    EXPECT_EQ(step.result, "= -18");
}

TEST(DlinieWorked, WritesTheSlopeOfBothCrossings) {
    const DlinieSlopeStep step =
        slopeBetweenCrosses(exercise(LineTask::BothCrosses, {.yCross = -4, .xCross = -6}));
    EXPECT_EQ(step.numerator, "-4 - 0");
    EXPECT_EQ(step.denominator, "0 - (-6)");
    EXPECT_EQ(step.result, "= -(-4/-6) = -0.67");
}

TEST(DlinieWorked, UsesTheMarkOfTheLocale) {
    const DecimalMark comma(",");
    const DlinieState s = exercise(LineTask::TwoPoints, {.x1 = -3, .y1 = 2, .x2 = 9, .y2 = -7});
    EXPECT_EQ(slopeBetweenPoints(s).result, "= 9/-12 = -0,75");
    EXPECT_EQ(interceptFromFirstPoint(s).solved, "b = 2 - (-0,75)*(-3) = -0,25");
    EXPECT_EQ(interceptAnswer(s), "-0,25");
}

/// n/d in hundredths, halves away from zero, by whole numbers alone.
int hundredths(int n, int d) {
    const int size = std::abs(n);
    const int by = std::abs(d);
    const int rounded = (200 * size + by) / (2 * by);
    return (n < 0) == (d < 0) ? rounded : -rounded;
}

/// A number of hundredths as a student types it.
std::string typed(int hundredths) {
    const int size = std::abs(hundredths);
    return (hundredths < 0 ? "-" : "") + std::to_string(size / 100) + (size % 100 < 10 ? ".0" : ".") +
           std::to_string(size % 100);
}

/// True if the steps of the help that this kind of task has end in the answer.
bool isWorkedOut(const DlinieState& s) {
    const std::string slope = " = " + NumberText(s.slope);
    const std::string intercept = "= " + NumberText(s.intercept);
    switch (s.taskType) {
        case LineTask::TwoPoints:
            return endsIn(slopeBetweenPoints(s).result, slope) &&
                   endsIn(interceptFromFirstPoint(s).solved, intercept);
        case LineTask::SlopeAndPoint:
            return endsIn(interceptFromPoint(s).solved, intercept);
        case LineTask::SlopeAndXCross:
            return interceptFromXCross(s).result == intercept;
        case LineTask::BothCrosses:
            return endsIn(slopeBetweenCrosses(s).result, slope);
        case LineTask::SlopeAndYCross:
        case LineTask::None:
            return true;
    }
    return false;
}

/// True if just these two numbers of hundredths solve the exercise, and one that is not is the one marked.
bool isSolvedByJust(const DlinieState& s, int slopeHundredths, int interceptHundredths) {
    const double a = Val(typed(slopeHundredths));
    const double b = Val(typed(interceptHundredths));
    const std::vector<std::vector<double>> wrongSlopes{
        {Val(typed(slopeHundredths + 1)), b}, {Val(typed(slopeHundredths - 1)), b}, {a + 0.001, b}};
    const std::vector<std::vector<double>> wrongIntercepts{
        {a, Val(typed(interceptHundredths + 1))}, {a, Val(typed(interceptHundredths - 1))}, {a, b - 0.001}};
    return std::isfinite(s.slope) && std::isfinite(s.intercept) && isSolvedBy(s, a, b) && inBothMarks([&s] {
               return isSolvedBy(s, typedAgain(NumberText(s.slope)), typedAgain(interceptAnswer(s)));
           }) &&
           eachIs({false, true}, s, wrongSlopes) && eachIs({true, false}, s, wrongIntercepts) &&
           isWorkedOut(s);
}

/// Draws the exercise, and holds it against the answer in hundredths.
bool isProved(Proof& proof, LineTask task, const Numbers& drawn, int slopeHundredths,
              int interceptHundredths) {
    proof.visit(Proof::From::WholeSpace, static_cast<int>(task));
    return isSolvedByJust(exercise(task, drawn), slopeHundredths, interceptHundredths);
}

void proveTwoPoints(Proof& proof) {
    int visited = 0;
    for (int x1 = -10; x1 < 10; ++x1) {
        for (int x2 = -10; x2 < 10; ++x2) {
            for (int y1 = -10; y1 < 10 && x1 != x2; ++y1) {
                for (int y2 = -10; y2 < 10; ++y2) {
                    ++visited;
                    const int dx = x1 - x2;
                    const int dy = y1 - y2;
                    ASSERT_TRUE(isProved(proof, LineTask::TwoPoints, {.x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2},
                                         hundredths(dy, dx), hundredths(y1 * dx - dy * x1, dx)))
                        << x1 << "," << y1 << " " << x2 << "," << y2;
                }
            }
        }
    }
    EXPECT_EQ(visited, 20 * 19 * 20 * 20);
}

void proveGivenSlopes(Proof& proof) {
    int visited = 0;
    for (int a = -5; a < 5; ++a) {
        for (int x = -10; x < 10; ++x) {
            for (int y = -10; y < 10; ++y) {
                ++visited;
                const Numbers point{.x1 = x, .y1 = y, .x2 = x == 3 ? 4 : 3, .slopeGiven = a};
                ASSERT_TRUE(isProved(proof, LineTask::SlopeAndPoint, point, 100 * a, 100 * (y - a * x)));
            }
            ASSERT_TRUE(
                isProved(proof, LineTask::SlopeAndYCross, {.slopeGiven = a, .yCross = x}, 100 * a, 100 * x));
            if (x != 0) {
                ASSERT_TRUE(isProved(proof, LineTask::SlopeAndXCross, {.slopeGiven = a, .xCross = x}, 100 * a,
                                     -100 * a * x));
            }
        }
    }
    EXPECT_EQ(visited, 10 * 20 * 20);
}

void proveBothCrosses(Proof& proof) {
    int visited = 0;
    for (int y = -10; y < 10; ++y) {
        for (int x = -10; x < 10; ++x) {
            if (x != 0) {
                ++visited;
                ASSERT_TRUE(isProved(proof, LineTask::BothCrosses, {.yCross = y, .xCross = x},
                                     hundredths(-y, x), 100 * y));
            }
        }
    }
    EXPECT_EQ(visited, 20 * 19);
}

// Where no kind of task is drawn, the answer before stays the right one.
void proveNoTask(Proof& proof) {
    DlinieState s = exercise(LineTask::TwoPoints, {.x1 = 1, .y1 = 2, .x2 = 8, .y2 = 1});
    const DlinieState before = s;
    ScriptedDraws draws(script(LineTask::None, {.x1 = 3, .y1 = 5, .x2 = 4, .y2 = -5}));
    newExercise(s, draws);
    proof.visit(Proof::From::WholeSpace, static_cast<int>(s.taskType));
    EXPECT_FALSE(taskTexts(s));
    EXPECT_TRUE(isSolvedBy(s, before.slope, before.intercept));
}

TEST(DlinieSpace, IsSolvedByWholeNumberArithmetic) {
    Proof proof("dlinie", 6);
    proveTwoPoints(proof);
    proveGivenSlopes(proof);
    proveBothCrosses(proof);
    proveNoTask(proof);
}

RC_GTEST_PROP(DlinieSeeds, StayWithinTheDrawnRangesAndAreSolvedByTheirOwnAnswer, (std::uint64_t seed)) {
    SeededDraws draws(seed);
    DlinieState s;
    newExercise(s, draws);
    RC_ASSERT(s.x1 != s.x2);
    RC_ASSERT(s.xCross != 0);
    RC_ASSERT(s.slopeGiven != 0);
    for (const float drawn : {s.x1, s.x2, s.y1, s.y2, s.xCross, s.yCross}) {
        RC_ASSERT(-10 <= drawn);
        RC_ASSERT(drawn <= 9);
        RC_ASSERT(drawn == std::floor(drawn));
    }
    RC_ASSERT(-5 <= s.slopeGiven);
    RC_ASSERT(s.slopeGiven <= 4);
    RC_ASSERT(isSolvedBy(s, Val(NumberText(s.slope)), Val(interceptAnswer(s))));
}

TEST(DlinieSeeds, ReachEveryKindAndEveryValue) {
    std::set<LineTask> kinds;
    std::set<float> slopes;
    std::set<float> coordinates;
    SeededDraws draws(11);
    DlinieState s;
    for (int i = 0; i < 2000; ++i) {
        newExercise(s, draws);
        kinds.insert(s.taskType);
        slopes.insert(s.slopeGiven);
        coordinates.insert({s.x1, s.x2, s.y1, s.y2, s.yCross});
    }
    EXPECT_GE(kinds.size(), 5U);
    EXPECT_EQ(slopes.size(), 9U) << "-5 to 4 without 0";
    EXPECT_EQ(coordinates.size(), 20U);
}

TEST(DlinieSeeds, AreFrozenForAllBuildsAndProcessors) {
    SeededDraws draws(7);
    DlinieState s;
    std::string texts;
    for (int i = 0; i < 5; ++i) {
        newExercise(s, draws);
        const auto task = taskTexts(s);
        ASSERT_TRUE(task);
        texts +=
            task->firstFact + " " + task->secondFact + ": " + NumberText(s.slope) + interceptAnswer(s) + "|";
    }
    EXPECT_EQ(texts,
              "Hældningskoefficient(a) = 2 X = -4: 2+8|"
              "Hældningskoefficienten(a) = -4 (X,Y) = (-7,1): -4-27|"
              "1. (X,Y) = (6,0) 2. (X,Y) = (-10,-2): 0.13-0.75|"
              "X = 3 Y = 3: -1+3|"
              "Hældningskoefficienten(a) = -5 (X,Y) = (3,-8): -5+7|");
}

}  // namespace
}  // namespace tavrune
