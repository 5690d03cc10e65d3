#include "topics/addition/vaddi1_exercise.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/scripted_draws.h"
#include "topics/addition/judged_fields.h"
#include "topics/addition/vaddi1_tasks.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::DecimalMark;
using test::forEachVaddi1Draw;
using test::kLargestDraw;
using test::Proof;
using test::ScriptedDraws;
using test::scriptOf;
using Task = test::Vaddi1Task;

constexpr Task kFalling{-1, -4, 8, -3, 10};
constexpr Task kRising{1, 2, 1, 5, 6};
constexpr Task kLevelFirst{-1, 0, 8, -2, 5};
constexpr Task kSecondThenLevel{-1, 0, 6, -3, 10};
constexpr Task kLevelSecond{-1, -2, 5, 0, 8};
constexpr Task kFirstThenLevel{-1, -3, 10, 0, 6};
constexpr Task kSameStart{-1, -3, 7, -3, 7};
constexpr Task kOverflow{1, 5, 3, 2, 10};

void draw(Vaddi1State& s, const Task& task) {
    ScriptedDraws draws(scriptOf(task));
    drawTask(s, draws);
    EXPECT_TRUE(draws.isUsedUp()) << nameOf(task);
}

void play(Vaddi1State& s, const Task& task) {
    draw(s, task);
    solve(s);
}

Vaddi1State exercise(const Task& task) {
    Vaddi1State s;
    play(s, task);
    return s;
}

Task taskOf(const Vaddi1State& s) {
    return {factorOf(s.direction), static_cast<int>(s.function1.slope),
            static_cast<int>(s.function1.intercept), static_cast<int>(s.function2.slope),
            static_cast<int>(s.function2.intercept)};
}

std::string textOf(const Vaddi1State::Column& column) {
    return column[0].text() + "|" + column[1].text() + "|" + column[2].text();
}

// The generator.

TEST(Vaddi1Generator, DrawsTheDirectionThenSlopeAndInterceptOfEach) {
    ScriptedDraws rising{0.1F, cellOf(2, 6), cellOf(4, 6), cellOf(5, 6), cellOf(3, 6)};
    Vaddi1State s;
    drawTask(s, rising);
    EXPECT_EQ(nameOf(taskOf(s)), "rising 2Q+4 and 5Q+8");

    ScriptedDraws falling{0.9F, cellOf(2, 6), cellOf(4, 6), cellOf(5, 6), cellOf(3, 6)};
    drawTask(s, falling);
    EXPECT_EQ(nameOf(taskOf(s)), "falling -2Q+9 and -5Q+8");
}

TEST(Vaddi1Generator, FallsFromTwentySixHundredthsOn) {
    const std::vector<float> rest{cellOf(1, 6), cellOf(1, 6), cellOf(1, 6), cellOf(1, 6)};
    ScriptedDraws draws;
    Vaddi1State s;
    for (const auto& [direction, wanted] : {std::pair{0.0F, Direction::Rising},
                                            {std::nextafter(0.26F, 0.0F), Direction::Rising},
                                            {0.26F, Direction::Falling},
                                            {kLargestDraw, Direction::Falling}}) {
        draws.append({direction});
        draws.append(rest);
        drawTask(s, draws);
        EXPECT_EQ(s.direction, wanted) << direction;
    }
}

TEST(Vaddi1Generator, ReachesBothEndsOfEachRange) {
    Vaddi1State s;
    ScriptedDraws highest{0, kLargestDraw, kLargestDraw, kLargestDraw, kLargestDraw};
    drawTask(s, highest);
    EXPECT_EQ(nameOf(taskOf(s)), "rising 5Q+5 and 5Q+10");
    ScriptedDraws lowest{0, cellOf(1, 6), 0, 0, 0};
    drawTask(s, lowest);
    EXPECT_EQ(nameOf(taskOf(s)), "rising 1Q+0 and 0Q+5");
    ScriptedDraws steepest{kLargestDraw, kLargestDraw, kLargestDraw, kLargestDraw, kLargestDraw};
    drawTask(s, steepest);
    EXPECT_EQ(nameOf(taskOf(s)), "falling -5Q+10 and -5Q+10");
    ScriptedDraws flattest{kLargestDraw, 0, 0, cellOf(1, 6), 0};
    drawTask(s, flattest);
    EXPECT_EQ(nameOf(taskOf(s)), "falling 0Q+5 and -1Q+5");
}

TEST(Vaddi1Generator, ReseedsOnceAndDrawsAllFiveAgain) {
    for (const Task& rejected : {Task{1, 0, 3, 0, 7}, Task{1, 0, 0, 3, 7}, Task{1, 2, 3, 0, 10},
                                 Task{-1, 0, 7, 0, 7}, Task{-1, 0, 10, -3, 7}, Task{-1, -2, 7, 0, 10}}) {
        ScriptedDraws draws(scriptOf(rejected) + scriptOf(rejected) + scriptOf(kRising));
        Vaddi1State s;
        drawTask(s, draws);
        EXPECT_TRUE(draws.isUsedUp()) << nameOf(rejected);
        EXPECT_EQ(nameOf(taskOf(s)), nameOf(kRising)) << nameOf(rejected);
        EXPECT_EQ(draws.randomized(), 1) << nameOf(rejected);
    }
}

TEST(Vaddi1Generator, DrawsTheDirectionAnewOnEveryPass) {
    ScriptedDraws draws(scriptOf({1, 0, 3, 0, 7}) + scriptOf(kFalling));
    Vaddi1State s;
    drawTask(s, draws);
    EXPECT_EQ(s.direction, Direction::Falling);
}

TEST(Vaddi1Generator, ReachesEveryTaskAboutAQuarterOfThemRising) {
    SeededDraws draws(7);
    std::set<std::string> reached;
    int rising = 0;
    constexpr int kDrawn = 60'000;
    for (int i = 0; i < kDrawn; ++i) {
        Vaddi1State s;
        drawTask(s, draws);
        reached.insert(nameOf(taskOf(s)));
        rising += s.direction == Direction::Rising ? 1 : 0;
    }
    EXPECT_EQ(reached.size(), 2400U);
    EXPECT_NEAR(static_cast<double>(rising) / kDrawn, 0.26, 0.01);
}

// Tables and answers, a row each.

struct SolutionRow {
    const char* name;
    Task task;
    const char* tableP;
    const char* tableQ1;
    const char* tableQ2;
    const char* tableQtotal;
    int segmentCount;
    Piece first;
    double kinkQuantity;
    Piece second;
    const char* upperEnd;
};

class Vaddi1Solution : public testing::TestWithParam<SolutionRow> {};

TEST_P(Vaddi1Solution, FillsTheTableAndTheSegments) {
    const SolutionRow& row = GetParam();
    const Vaddi1State s = exercise(row.task);
    EXPECT_EQ(textOf(s.tableP), row.tableP);
    EXPECT_EQ(textOf(s.tableQ1), row.tableQ1);
    EXPECT_EQ(textOf(s.tableQ2), row.tableQ2);
    EXPECT_EQ(textOf(s.tableQtotal), row.tableQtotal);
    EXPECT_EQ(s.segmentCount, row.segmentCount);
    EXPECT_EQ(s.firstSegment.slope, row.first.slope);
    EXPECT_EQ(s.firstSegment.intercept, row.first.intercept);
    EXPECT_EQ(s.kinkQuantity, row.kinkQuantity);
    EXPECT_EQ(s.secondSegment.slope, row.second.slope);
    EXPECT_EQ(s.secondSegment.intercept, row.second.intercept);
    EXPECT_EQ(s.upperEnd.text(), row.upperEnd);
    EXPECT_EQ(s.upperEndAsked, *row.upperEnd != '\0');
    EXPECT_EQ(hasUpperEnd(s), s.upperEndAsked);
    EXPECT_EQ(isOneSegment(s), row.segmentCount == 1);
}

// Named by which function is level and which way they run.
INSTANTIATE_TEST_SUITE_P(Rows, Vaddi1Solution,
                         testing::Values(SolutionRow{"ALevelDemandFirstAbove",
                                                     kLevelFirst,
                                                     "8|8| ",
                                                     "0|oo| ",
                                                     " | | ",
                                                     "0|oo|oo",
                                                     1,
                                                     {0, 0},
                                                     0,
                                                     {0, 8},
                                                     ""},
                                         SolutionRow{"ALevelDemandFirstWithSameStart",
                                                     {-1, 0, 7, -2, 7},
                                                     "7|7| ",
                                                     "0|oo| ",
                                                     "0|0| ",
                                                     "0|oo|oo",
                                                     1,
                                                     {0, 0},
                                                     0,
                                                     {0, 7},
                                                     ""},
                                         SolutionRow{"ALevelSupplyFirstBelow",
                                                     {1, 0, 3, 2, 7},
                                                     "3|3| ",
                                                     "0|oo| ",
                                                     " | | ",
                                                     "0|oo|oo",
                                                     1,
                                                     {0, 0},
                                                     0,
                                                     {0, 3},
                                                     ""},
                                         SolutionRow{"ALevelSupplyFirstWithSameStart",
                                                     {1, 0, 5, 2, 5},
                                                     "5|5| ",
                                                     "0|oo| ",
                                                     "0|0| ",
                                                     "0|oo|oo",
                                                     1,
                                                     {0, 0},
                                                     0,
                                                     {0, 5},
                                                     ""},
                                         SolutionRow{"BSecondThenLevelFirst",
                                                     kSecondThenLevel,
                                                     "10|6|6",
                                                     " |0|oo",
                                                     "0|1.33|1.33",
                                                     "0|1.33|oo",
                                                     2,
                                                     {-3, 10},
                                                     1.33,
                                                     {0, 6},
                                                     ""},
                                         SolutionRow{"CLevelDemandSecondAboveInTheFirstExercise",
                                                     kLevelSecond,
                                                     "8|8| ",
                                                     " | | ",
                                                     "0|oo| ",
                                                     "0|| ",
                                                     1,
                                                     {0, 0},
                                                     0,
                                                     {0, 8},
                                                     ""},
                                         SolutionRow{"CLevelDemandSecondWithSameStart",
                                                     {-1, -2, 7, 0, 7},
                                                     "7|7| ",
                                                     "0|0| ",
                                                     "0|oo| ",
                                                     "0|| ",
                                                     1,
                                                     {0, 0},
                                                     0,
                                                     {0, 7},
                                                     ""},
                                         SolutionRow{"CLevelSupplySecondWithSameStart",
                                                     {1, 2, 5, 0, 5},
                                                     "5|5| ",
                                                     "0|0| ",
                                                     "0|oo| ",
                                                     "0|| ",
                                                     1,
                                                     {0, 0},
                                                     0,
                                                     {0, 5},
                                                     ""},
                                         SolutionRow{"DFirstThenLevelDemandSecond",
                                                     kFirstThenLevel,
                                                     "10|6|6",
                                                     "0|1.33|1.33",
                                                     " |0|oo",
                                                     "0|1.33| ",
                                                     2,
                                                     {-3, 10},
                                                     1.33,
                                                     {0, 6},
                                                     ""},
                                         SolutionRow{"DFirstThenLevelSupplySecond",
                                                     {1, 4, 0, 0, 7},
                                                     "0|7|7",
                                                     "0|1.75|1.75",
                                                     " |0|oo",
                                                     "0|1.75| ",
                                                     2,
                                                     {4, 0},
                                                     1.75,
                                                     {0, 7},
                                                     ""},
                                         SolutionRow{"FallingWithTheSecondOuter",
                                                     kFalling,
                                                     "10|8|0",
                                                     " |0|2",
                                                     "0|0.67|3.33",
                                                     "0|0.67|5.33",
                                                     2,
                                                     {-3, 10},
                                                     0.67,
                                                     {-1.72, 9.15},
                                                     "5.33"},
                                         SolutionRow{"FallingWithTheFirstOuter",
                                                     {-1, -1, 9, -2, 6},
                                                     "9|6|0",
                                                     "0|3|9",
                                                     " |0|3",
                                                     "0|3|12",
                                                     2,
                                                     {-1, 9},
                                                     3,
                                                     {-0.67, 8},
                                                     "12"},
                                         SolutionRow{"RisingWithTheFirstOuter",
                                                     kRising,
                                                     "1|6|10",
                                                     "0|2.5|4.5",
                                                     " |0|0.8",
                                                     "0|2.5|5.3",
                                                     2,
                                                     {2, 1},
                                                     2.5,
                                                     {1.43, 2.43},
                                                     ""},
                                         SolutionRow{"FallingFromOneStart",
                                                     kSameStart,
                                                     "7|0| ",
                                                     "0|2.33| ",
                                                     "0|2.33| ",
                                                     "0|4.67| ",
                                                     1,
                                                     {-3, 7},
                                                     0,
                                                     {-1.5, 7},
                                                     "4.67"},
                                         SolutionRow{"RisingFromOneStart",
                                                     {1, 1, 5, 5, 5},
                                                     "5|10| ",
                                                     "0|5| ",
                                                     "0|1| ",
                                                     "0|6| ",
                                                     1,
                                                     {5, 5},
                                                     0,
                                                     {0.83, 5},
                                                     ""},
                                         SolutionRow{"RisingToAStartAtTenByAnInexactQuotient",
                                                     {1, 3, 0, 2, 10},
                                                     "0|10|10",
                                                     "0|3.33|3.33",
                                                     " |0|0",
                                                     "0|3.33|3.33",
                                                     2,
                                                     {3, 0},
                                                     3.33,
                                                     {0, 10},
                                                     ""},
                                         SolutionRow{"FallingTheWidest",
                                                     {-1, -1, 10, -1, 10},
                                                     "10|0| ",
                                                     "0|10| ",
                                                     "0|10| ",
                                                     "0|20| ",
                                                     1,
                                                     {-1, 10},
                                                     0,
                                                     {-0.5, 10},
                                                     "20"}),
                         [](const auto& row) { return row.param.name; });

TEST(Vaddi1Solution, EndsTheWidestSumAtTheEndOfItsAxis) {
    EXPECT_EQ(exercise({-1, -1, 10, -1, 10}).upperEnd, TableCell(20.0));
}

TEST(Vaddi1Solution, GivesTwoRowsOnePriceWhereTheSecondSupplyStartsAtTen) {
    forEachVaddi1Draw([](const Task& t) {
        if (t.direction != 1 || t.intercept2 != 10 || !t.isAccepted() || !t.isSloping()) {
            return;
        }
        Vaddi1State s;
        draw(s, t);
        try {
            solve(s);
        } catch (const ArithmeticFailure&) {
            return;
        }
        ASSERT_EQ(s.tableP[1], TableCell(10.0)) << nameOf(t);
        ASSERT_EQ(s.tableP[2], TableCell(10.0)) << nameOf(t);
    });
}

TEST(Vaddi1Solution, IsAlwaysOneSegmentForALevelFirstSupply) {
    forEachVaddi1Draw([](const Task& t) {
        if (t.direction == 1 && t.slope1 == 0 && t.isAccepted()) {
            ASSERT_EQ(exercise(t).segmentCount, 1) << nameOf(t);
        }
    });
}

TEST(Vaddi1Solution, RoundsANegativeHalfAwayFromZero) {
    // -1.875 on paper.
    EXPECT_EQ(exercise({-1, -3, 7, -5, 7}).secondSegment.slope, -1.88);
}

TEST(Vaddi1Solution, RoundsAPositiveHalfAsTheDoubleFallsOut) {
    // 1.875 on paper, a little less as a double.
    EXPECT_EQ(exercise({1, 3, 5, 5, 5}).secondSegment.slope, 1.87);
}

TEST(Vaddi1Solution, GoesThroughTheRoundedKink) {
    const Vaddi1State s = exercise(kFalling);
    const double sum = 2 + 10.0 / 3;
    EXPECT_EQ(s.secondSegment.slope, std::round(100 * 8 / (0.67 - sum)) / 100);
    EXPECT_NE(s.secondSegment.slope, std::round(100 * 8 / (2.0 / 3 - sum)) / 100);
}

// What outlives an exercise.

struct StaleRow {
    const char* name;
    Task before;
    const char* tableQtotal;
};

class Vaddi1StaleTotal : public testing::TestWithParam<StaleRow> {};

TEST_P(Vaddi1StaleTotal, IsTheThirdOneOfTheExerciseBefore) {
    Vaddi1State s;
    play(s, GetParam().before);
    play(s, kLevelSecond);
    EXPECT_EQ(textOf(s.tableQtotal), GetParam().tableQtotal);
}

INSTANTIATE_TEST_SUITE_P(Rows, Vaddi1StaleTotal,
                         testing::Values(StaleRow{"AfterFallingOnes", kFalling, "0|5.33| "},
                                         StaleRow{"AfterRisingOnes", kRising, "0|5.3| "},
                                         StaleRow{"AfterA", kLevelFirst, "0|oo| "},
                                         StaleRow{"AfterB", kSecondThenLevel, "0|oo| "},
                                         StaleRow{"AfterC", kLevelSecond, "0| | "},
                                         StaleRow{"AfterD", kFirstThenLevel, "0| | "},
                                         StaleRow{"AfterOneStart", kSameStart, "0| | "}),
                         [](const auto& row) { return row.param.name; });

TEST(Vaddi1State, KeepsTheFirstPairInAnExerciseWithALevelLoneSegment) {
    Vaddi1State s;
    play(s, kFalling);
    play(s, kLevelFirst);
    EXPECT_EQ(s.segmentCount, 1);
    EXPECT_EQ(s.firstSegment.slope, -3);
    EXPECT_EQ(s.firstSegment.intercept, 10);
    EXPECT_EQ(s.kinkQuantity, 0);
}

TEST(Vaddi1State, KeepsAskingForTheUpperEndThatWasLastSet) {
    Vaddi1State s;
    play(s, kRising);
    EXPECT_FALSE(s.upperEndAsked);
    EXPECT_TRUE(s.upperEnd.isEmpty());
    play(s, kFalling);
    for (const Task& later : {kRising, kLevelFirst, kSecondThenLevel, kLevelSecond, kFirstThenLevel}) {
        play(s, later);
        EXPECT_TRUE(s.upperEndAsked) << nameOf(later);
        EXPECT_EQ(s.upperEnd.text(), "5.33") << nameOf(later);
        EXPECT_FALSE(hasUpperEnd(s)) << nameOf(later);
    }
    play(s, kSameStart);
    EXPECT_EQ(s.upperEnd.text(), "4.67");
}

TEST(Vaddi1State, KeepsWhatTheExerciseBeforeHasLeftWhereTheNextOverflows) {
    Vaddi1State s;
    play(s, kFalling);
    draw(s, kOverflow);
    EXPECT_THROW(solve(s), ArithmeticFailure);
    EXPECT_EQ(s.function2.intercept, 10);
    EXPECT_EQ(s.secondSegment.slope, -1.72);
    EXPECT_EQ(s.secondSegment.intercept, 9.15);
    EXPECT_EQ(s.tableQtotal[2].text(), "5.33");
    EXPECT_EQ(s.upperEnd.text(), "5.33");
}

// What is judged.

struct Asked {
    int row;
    Slot slot;
    double target;

    bool operator==(const Asked&) const = default;
};

std::vector<Asked> askedOf(const Vaddi1State& s) {
    std::vector<Asked> asked;
    for (const AnswerField& field : answerFields(s)) {
        EXPECT_EQ(field.target.rule, Rule::Near);
        asked.push_back({field.row, field.slot, field.target.value});
    }
    return asked;
}

TEST(Vaddi1Fields, AreSevenForTwoSegmentsWithAnUpperEnd) {
    EXPECT_EQ(askedOf(exercise(kFalling)), (std::vector<Asked>{{0, Slot::Slope, -3},
                                                               {0, Slot::Intercept, 10},
                                                               {0, Slot::End, 0.67},
                                                               {1, Slot::Slope, -1.72},
                                                               {1, Slot::Intercept, 9.15},
                                                               {1, Slot::Start, 0.67},
                                                               {1, Slot::End, 5.33}}));
}

TEST(Vaddi1Fields, AreSixForTwoSegmentsWithout) {
    EXPECT_EQ(askedOf(exercise(kRising)), (std::vector<Asked>{{0, Slot::Slope, 2},
                                                              {0, Slot::Intercept, 1},
                                                              {0, Slot::End, 2.5},
                                                              {1, Slot::Slope, 1.43},
                                                              {1, Slot::Intercept, 2.43},
                                                              {1, Slot::Start, 2.5}}));
}

TEST(Vaddi1Fields, AreThoseOfTheSecondRowForALoneSegment) {
    EXPECT_EQ(askedOf(exercise(kLevelSecond)),
              (std::vector<Asked>{{1, Slot::Slope, 0}, {1, Slot::Intercept, 8}, {1, Slot::Start, 0}}));
    EXPECT_EQ(
        askedOf(exercise(kSameStart)),
        (std::vector<Asked>{
            {1, Slot::Slope, -1.5}, {1, Slot::Intercept, 7}, {1, Slot::Start, 0}, {1, Slot::End, 4.67}}));
}

TEST(Vaddi1Fields, StillHoldTheUpperEndOfAnEarlierExercise) {
    Vaddi1State s;
    play(s, kFalling);
    play(s, kLevelSecond);
    EXPECT_EQ(askedOf(s).back(), (Asked{1, Slot::End, 5.33}));
    EXPECT_EQ(askedOf(s).size(), 4U);
}

TEST(Vaddi1Fields, TakeNothingTypedForAStartAtZero) {
    const std::vector<AnswerField> fields = answerFields(exercise(kSameStart));
    EXPECT_TRUE(fields[2].target.isFit(Val(" ")));
}

// The text of the second step.

TEST(Vaddi1PathText, GoesFromEndToEnd) {
    EXPECT_EQ(pathText(exercise(kFalling)),
              "Her fra ( 0 ; 10 ) til ( 0.67 ; 8 ) og fra ( 0.67 ; 8 ) til ( 5.33 ; 0 ).");
    EXPECT_EQ(pathText(exercise(kSameStart)), "Her fra ( 0 ; 7 ) til ( 4.67 ; 0 ).");
    EXPECT_EQ(pathText(exercise(kLevelFirst)), "Her fra ( 0 ; 8 ) til ( oo ; 8 ).");
    EXPECT_EQ(pathText(exercise(kSecondThenLevel)),
              "Her fra ( 0 ; 10 ) til ( 1.33 ; 6 ) og fra ( 1.33 ; 6 ) til ( oo ; 6 ).");
    EXPECT_EQ(pathText(exercise(kFirstThenLevel)),
              "Her fra ( 0 ; 10 ) til ( 1.33 ; 6 ) og fra ( 1.33 ; 6 ) til (   ; 6 ).");
    EXPECT_EQ(pathText(exercise(kLevelSecond)), "Her fra ( 0 ; 8 ) til (  ; 8 ).");
}

TEST(Vaddi1PathText, HasTheMarkOfTheLocale) {
    const DecimalMark danish(",");
    EXPECT_EQ(pathText(exercise(kSameStart)), "Her fra ( 0 ; 7 ) til ( 4,67 ; 0 ).");
}

// The whole space of draws, against what can be reckoned without it.

/// The quantity of one function at a price: none beyond its start, any at the price of a level one.
double quantityAt(double price, int direction, int slope, int intercept) {
    if (slope == 0) {
        return direction * (price - intercept) >= 0 ? std::numeric_limits<double>::infinity() : 0;
    }
    return std::max(0.0, (price - intercept) / slope);
}

double sumAt(double price, const Task& t) {
    return quantityAt(price, t.direction, t.slope1, t.intercept1) +
           quantityAt(price, t.direction, t.slope2, t.intercept2);
}

/// The price at which both together have this quantity, by halving; NaN if they never have it on the graph.
double priceFor(double quantity, const Task& t) {
    double enough = t.direction == 1 ? 10 : 0;
    double tooLittle = 10 - enough;
    if (sumAt(enough, t) < quantity) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    for (int i = 0; i < 45; ++i) {
        const double middle = (enough + tooLittle) / 2;
        (sumAt(middle, t) >= quantity ? enough : tooLittle) = middle;
    }
    return enough;
}

/// A fraction of whole numbers, its denominator above 0.
struct Ratio {
    long long numerator;
    long long denominator;

    [[nodiscard]] Ratio plus(const Ratio& other) const {
        return {numerator * other.denominator + other.numerator * denominator,
                denominator * other.denominator};
    }
    [[nodiscard]] double value() const {
        return static_cast<double>(numerator) / static_cast<double>(denominator);
    }
    /// Halves up; wants a ratio that is not negative.
    [[nodiscard]] long long hundredths() const { return (200 * numerator + denominator) / (2 * denominator); }
    [[nodiscard]] double rounded() const { return static_cast<double>(hundredths()) / 100; }
};

Ratio quantityOf(int price, int slope, int intercept) {
    const int sign = slope < 0 ? -1 : 1;
    return {sign * (price - intercept), sign * slope};
}

/// Ten less the first start, by a slope with which the quotient has no third decimal.
bool overflows(const Task& t) {
    return t.direction == 1 && t.isSloping() && t.intercept2 == 10 &&
           (100 * (10 - t.intercept1)) % t.slope1 == 0;
}

template <class Visit>
void forEachExercise(Visit visit) {
    forEachVaddi1Draw([&visit](const Task& t) {
        if (t.isAccepted() && !overflows(t) && !testing::Test::HasFatalFailure()) {
            visit(t, exercise(t));
        }
    });
}

TEST(Vaddi1Space, AcceptsTwentyFourHundredOfItsDraws) {
    int drawn = 0;
    int accepted = 0;
    forEachVaddi1Draw([&](const Task& t) {
        ++drawn;
        ScriptedDraws draws(scriptOf(t) + scriptOf(kRising));
        Vaddi1State s;
        drawTask(s, draws);
        const bool isTaken = draws.used() == 5;
        accepted += isTaken ? 1 : 0;
        ASSERT_EQ(isTaken, t.isAccepted()) << nameOf(t);
        ASSERT_EQ(nameOf(taskOf(s)), nameOf(isTaken ? t : kRising));
    });
    EXPECT_EQ(drawn, 2592);
    EXPECT_EQ(accepted, 2400);
}

TEST(Vaddi1Space, OverflowsJustWhereTheSecondSupplyStartsAtTenAndTheKinkIsExact) {
    int failed = 0;
    forEachVaddi1Draw([&failed](const Task& t) {
        if (!t.isAccepted()) {
            return;
        }
        Vaddi1State s;
        draw(s, t);
        try {
            solve(s);
            ASSERT_FALSE(overflows(t)) << nameOf(t);
        } catch (const ArithmeticFailure& failure) {
            ASSERT_TRUE(overflows(t)) << nameOf(t);
            ASSERT_EQ(failure.kind(), ArithmeticFailure::Kind::Overflow);
            ++failed;
        }
    });
    EXPECT_EQ(failed, 130);
}

TEST(Vaddi1Space, HasTwentyTasksWhoseTinyDenominatorGivesALevelLineAtTen) {
    int found = 0;
    forEachExercise([&found](const Task& t, const Vaddi1State& s) {
        if (t.direction == 1 && t.isSloping() && t.intercept2 == 10) {
            ++found;
            ASSERT_EQ(s.secondSegment.slope, 0) << nameOf(t);
            ASSERT_EQ(s.secondSegment.intercept, 10) << nameOf(t);
        }
    });
    EXPECT_EQ(found, 20);
}

/// What a cell of a quantity column says of the function beside it.
void expectCell(const TableCell& cell, const TableCell& price, bool isSecondAtItsPrice, const Task& t,
                int slope, int intercept) {
    if (price.isBlank()) {
        ASSERT_TRUE(cell.isBlank());
        return;
    }
    const int p = static_cast<int>(price.number());
    if (t.direction * (p - intercept) < 0) {
        ASSERT_TRUE(cell.isBlank()) << "the function has not started at " << p;
    } else if (p == intercept && slope == 0) {
        ASSERT_EQ(cell.text(), isSecondAtItsPrice ? "oo" : "0");
    } else {
        ASSERT_NE(slope, 0);
        ASSERT_EQ(cell, TableCell(quantityOf(p, slope, intercept).rounded()));
    }
}

TEST(Vaddi1Space, HasTheQuantityOfEachFunctionAtEachPriceInItsTable) {
    forEachExercise([](const Task& t, const Vaddi1State& s) {
        SCOPED_TRACE(nameOf(t));
        for (std::size_t row = 0; row < 3; ++row) {
            const bool isSecond = row > 0 && s.tableP[row] == s.tableP[row - 1];
            expectCell(s.tableQ1[row], s.tableP[row], isSecond, t, t.slope1, t.intercept1);
            expectCell(s.tableQ2[row], s.tableP[row], isSecond, t, t.slope2, t.intercept2);
        }
    });
}

TEST(Vaddi1Space, HasTheSumOfSlopingFunctionsInItsTotals) {
    forEachExercise([](const Task& t, const Vaddi1State& s) {
        if (!t.isSloping()) {
            return;
        }
        for (std::size_t row = 0; row < 3; ++row) {
            if (s.tableP[row].isBlank()) {
                ASSERT_TRUE(s.tableQtotal[row].isBlank()) << nameOf(t);
                continue;
            }
            const int p = static_cast<int>(s.tableP[row].number());
            Ratio sum{0, 1};
            for (const auto& [slope, intercept] :
                 {std::pair{t.slope1, t.intercept1}, {t.slope2, t.intercept2}}) {
                if (t.direction * (p - intercept) > 0) {
                    sum = sum.plus(quantityOf(p, slope, intercept));
                }
            }
            ASSERT_EQ(s.tableQtotal[row], TableCell(sum.rounded())) << nameOf(t) << " at " << p;
        }
    });
}

TEST(Vaddi1Space, HasItsPricesInTheirOrderFromTheStart) {
    forEachExercise([](const Task& t, const Vaddi1State& s) {
        ASSERT_LE(t.direction * s.tableP[0].number(), t.direction * s.tableP[1].number()) << nameOf(t);
        if (!s.tableP[2].isBlank()) {
            ASSERT_LE(t.direction * s.tableP[1].number(), t.direction * s.tableP[2].number()) << nameOf(t);
        }
        ASSERT_EQ(s.tableP[2].isBlank(), s.segmentCount == 1) << nameOf(t);
    });
}

// Three things part an answer from the true sum: the line goes through a kink that is off by at most 0.005,
// which is at most 0.005 times the steepest slope in P; and its slope and intercept are off by 0.005 each.
TEST(Vaddi1Space, SpellsTheTrueSumPointByPoint) {
    int compared = 0;
    forEachExercise([&compared](const Task& t, const Vaddi1State& s) {
        const double offAtKink = s.segmentCount == 2 ? 0.005 * std::abs(s.firstSegment.slope) : 0;
        for (double q = 0.25; q <= 20; q += 0.25) {
            const double price = priceFor(q, t);
            if (std::isnan(price)) {
                break;
            }
            ++compared;
            const bool isFirst = s.segmentCount == 2 && q < s.kinkQuantity;
            const double answered = (isFirst ? s.firstSegment : s.secondSegment).at(q);
            const bool isExact = isFirst ? q < s.kinkQuantity - 0.005 : s.secondSegment.slope == 0;
            const double tolerance = isExact ? 1e-9 : offAtKink + 0.005 * q + 0.005;
            const bool isNearKink = std::abs(q - s.kinkQuantity) <= 0.005;
            ASSERT_NEAR(answered, price, (isNearKink ? offAtKink : 0) + tolerance + 1e-9)
                << nameOf(t) << " at Q = " << q;
        }
        const double last = sumAt(t.direction == 1 ? 10 : 0, t);
        ASSERT_EQ(std::isinf(last), !t.isSloping()) << nameOf(t);
        if (hasUpperEnd(s)) {
            ASSERT_NEAR(s.upperEnd.number(), last, 0.005 + 1e-9) << nameOf(t);
        }
    });
    EXPECT_GT(compared, 50'000);
}

TEST(Vaddi1Space, RoundsTheLineFromTheRoundedKinkToTheEndOfTheSum) {
    int halves = 0;
    const auto expectRounded = [&halves](double rounded, double exact, const Task& t) {
        ASSERT_EQ(std::round(rounded * 100) / 100, rounded) << nameOf(t);
        const double rest = std::abs(exact * 100 - std::floor(exact * 100) - 0.5);
        if (rest > 1e-6) {
            ASSERT_EQ(rounded, std::round(exact * 100) / 100) << nameOf(t);
        } else {
            ++halves;
            ASSERT_NEAR(rounded, exact, 0.005 + 1e-9) << nameOf(t);
        }
    };
    forEachExercise([&](const Task& t, const Vaddi1State& s) {
        if (!t.isSloping() || (t.direction == 1 && t.intercept2 == 10)) {
            return;
        }
        const bool isFirstOuter = t.direction * (t.intercept2 - t.intercept1) > 0;
        const int inner = isFirstOuter ? t.intercept2 : t.intercept1;
        const Ratio kink = isFirstOuter ? quantityOf(inner, t.slope1, t.intercept1)
                                        : quantityOf(inner, t.slope2, t.intercept2);
        const int end = t.direction == 1 ? 10 : 0;
        const Ratio sum =
            quantityOf(end, t.slope1, t.intercept1).plus(quantityOf(end, t.slope2, t.intercept2));
        const double slope = (end - inner) / sum.plus({-kink.hundredths(), 100}).value();
        ASSERT_EQ(s.kinkQuantity, kink.rounded()) << nameOf(t);
        expectRounded(s.secondSegment.slope, slope, t);
        expectRounded(s.secondSegment.intercept, end - slope * sum.value(), t);
    });
    EXPECT_LT(halves, 200);
}

TEST(Vaddi1Space, IsSolvedByItsOwnAnswerAndByNothingBesideIt) {
    Proof proof("Vaddi1", 6);
    const auto visit = [&proof](const Task& t, const Vaddi1State& s) {
        proof.visit(Proof::From::WholeSpace,
                    10 * t.direction + 2 * (isOneSegment(s) ? 1 : 2) + (hasUpperEnd(s) ? 1 : 0));
    };
    forEachVaddi1Draw([&](const Task& t) {
        if (t.isAccepted() && overflows(t)) {
            Vaddi1State s;
            draw(s, t);
            visit(t, s);
            proof.unsolvable("end the program by an overflow");
        }
    });
    forEachExercise([&](const Task& t, const Vaddi1State& s) {
        visit(t, s);
        ASSERT_TRUE(test::isSolvedByTargets(s, answerFields(s))) << nameOf(t);
        ASSERT_EQ(test::flawOfJudging(answerFields(s), [](const AnswerField& f) { return f.target.value; }),
                  "")
            << nameOf(t);
        if (!hasUpperEnd(s)) {
            proof.unsolvable("without an upper end, where one was asked for before");
        }
        for (const auto& [row, slot, target] : answerFields(s)) {
            const std::string at = nameOf(t) + ", row " + std::to_string(row) + ", slot " +
                                   std::to_string(static_cast<int>(slot));
            ASSERT_TRUE(target.isFit(Val(NumberText(target.value)))) << at;
            for (const double beside : {-1.0, -0.01, 0.01, 1.0}) {
                ASSERT_FALSE(target.isFit(Val(NumberText(target.value + beside)))) << at;
                ASSERT_TRUE(target.isMarked(Val(NumberText(target.value + beside)))) << at;
            }
            ASSERT_FALSE(target.isFit(target.value - kTolerance)) << at;
            ASSERT_FALSE(target.isMarked(target.value - kTolerance)) << at;
            ASSERT_TRUE(target.isFit(target.value + kTolerance)) << at;
        }
    });
}

TEST(Vaddi1Space, CannotBeSolvedWithoutAnUpperEndAfterOneWasAskedFor) {
    forEachVaddi1Draw([](const Task& t) {
        if (!t.isAccepted() || overflows(t)) {
            return;
        }
        Vaddi1State s;
        play(s, kFalling);
        play(s, t);
        const AnswerField last = answerFields(s).back();
        ASSERT_EQ(last.slot, Slot::End) << nameOf(t);
        if (!hasUpperEnd(s)) {
            ASSERT_EQ(last.target.value, 5.33) << nameOf(t);
        }
        ASSERT_FALSE(last.target.isFit(Val(" "))) << nameOf(t);
        ASSERT_TRUE(last.target.isMarked(Val(" "))) << nameOf(t);
    });
}

TEST(Vaddi1Space, HasNoAnswerThatIsNotFinite) {
    forEachExercise([](const Task& t, const Vaddi1State& s) {
        for (const AnswerField& field : answerFields(s)) {
            ASSERT_TRUE(std::isfinite(field.target.value)) << nameOf(t);
            ASSERT_LE(std::abs(field.target.value), 20) << nameOf(t);
        }
    });
}

}  // namespace
}  // namespace tavrune
