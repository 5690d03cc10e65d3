#include "topics/addition/laddi2_exercise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/decimal_mark.h"
#include "topics/addition/judged_fields.h"
#include "topics/addition/laddi2_order.h"

namespace tavrune {
namespace {

using test::afterScriptOf;
using test::beforeScriptOf;
using test::cellOf;
using test::DecimalMark;
using test::DrawnKinked;
using test::drawnOf;
using test::DrawnPiece;
using test::kAt3EndsAt12;
using test::kAt3EndsAt4And4th;
using test::kAt3EndsAt6;
using test::kAt3EndsAt8;
using test::kAt3Rises;
using test::kAt4EndsAt10;
using test::kAt4EndsAt6;
using test::kAt4EndsAt6Too;
using test::kAt4IsLevel;
using test::kAt4Rises;
using test::kAt5EndsAt10;
using test::kAt5EndsAt6And4th;
using test::kAt5EndsAt8;
using test::kAt5IsLevel;
using test::kAt5Rises;
using test::kAt6EndsAt11;
using test::kinkScriptOf;
using test::kLargestDraw;
using test::Order;
using test::orderOf;
using test::Script;
using test::ScriptedDraws;
using test::scriptOf;

Laddi2State exercise(const DrawnKinked& function1, const DrawnKinked& function2) {
    ScriptedDraws draws(scriptOf(function1, function2));
    Laddi2State state;
    newExercise(state, draws);
    EXPECT_TRUE(draws.isUsedUp());
    EXPECT_EQ(draws.used(), 14U);
    return state;
}

std::vector<DrawnPiece> drawnOf(const std::vector<Piece>& pieces) {
    std::vector<DrawnPiece> drawn;
    drawn.reserve(pieces.size());
    for (const Piece& piece : pieces) {
        drawn.push_back(drawnOf(piece));
    }
    return drawn;
}

void expectFunction(const KinkedFunction& actual, const DrawnKinked& expected) {
    EXPECT_EQ(actual.kink, expected.kink);
    EXPECT_EQ(actual.before.slope, expected.before.slope);
    EXPECT_EQ(actual.before.intercept, expected.before.intercept);
    EXPECT_EQ(actual.after.slope, expected.after.slope);
    EXPECT_EQ(actual.after.intercept, expected.after.intercept);
}

struct ExerciseRow {
    const char* name;
    DrawnKinked function1, function2;
    int orderCase;
    int merged;
    std::vector<double> breakPoints;
    std::vector<DrawnPiece> segments;
    std::optional<double> upperEnd;
};

class Laddi2Exercises : public testing::TestWithParam<ExerciseRow> {};

TEST_P(Laddi2Exercises, AddUp) {
    const ExerciseRow& row = GetParam();
    const Order order = orderOf(row.function1, row.function2);
    ASSERT_EQ(order.orderCase, row.orderCase);
    ASSERT_EQ(order.merged(), row.merged);
    const Laddi2State s = exercise(row.function1, row.function2);
    expectFunction(s.function1, row.function1);
    expectFunction(s.function2, row.function2);
    EXPECT_EQ(s.breakPoints, row.breakPoints);
    EXPECT_EQ(drawnOf(s.sum.segments), row.segments);
    EXPECT_EQ(s.sum.breaks, std::vector<double>(row.breakPoints.begin(), row.breakPoints.end() - 1));
    EXPECT_EQ(s.sum.upperEndAsked, row.upperEnd.has_value());
    EXPECT_EQ(s.sum.upperEnd, row.upperEnd.value_or(0));
}

INSTANTIATE_TEST_SUITE_P(
    Orders, Laddi2Exercises,
    testing::Values(
        ExerciseRow{"FirstEndsBeforeSecondBends",
                    kAt3EndsAt4And4th,
                    kAt5EndsAt10,
                    1,
                    0,
                    {3, 4.25, 5, 10},
                    {{1, 6}, {-4, 21}, {0, 4}, {-1, 10}},
                    10},
        ExerciseRow{"FirstEndsBeforeSecondBendsAndRises",
                    kAt3EndsAt4And4th,
                    kAt5Rises,
                    1,
                    0,
                    {3, 4.25, 5, 100},
                    {{1, 6}, {-4, 21}, {0, 4}, {2, -9}},
                    {}},
        ExerciseRow{"FirstBendsFirstAndEndsFirst",
                    kAt3EndsAt8,
                    kAt5EndsAt10,
                    2,
                    0,
                    {3, 5, 8, 10},
                    {{1, 6}, {-1, 12}, {-2, 18}, {-1, 10}},
                    10},
        ExerciseRow{"FirstEndsWhereSecondBends",
                    kAt3EndsAt6,
                    kAt6EndsAt11,
                    2,
                    2,
                    {3, 6, 11},
                    {{3, 2}, {0, 12}, {-1, 11}},
                    11},
        ExerciseRow{"FirstEndsAndSecondIsLevel",
                    kAt3EndsAt6,
                    kAt5IsLevel,
                    2,
                    0,
                    {3, 5, 6, 100},
                    {{1, 6}, {-2, 16}, {-2, 19}, {0, 7}},
                    {}},
        ExerciseRow{"FirstBendsFirstAndEndsLast",
                    kAt3EndsAt12,
                    kAt5EndsAt6And4th,
                    3,
                    0,
                    {3, 5, 6.25, 12},
                    {{1, 6}, {-1, 16}, {-5, 37}, {-1, 12}},
                    12},
        ExerciseRow{"FirstBendsFirstAndBothEndAtOnce",
                    kAt3EndsAt8,
                    kAt5EndsAt8,
                    3,
                    3,
                    {3, 5, 8},
                    {{1, 6}, {-1, 12}, {-3, 24}},
                    8},
        ExerciseRow{"FirstBendsFirstAndNeitherEnds",
                    kAt3Rises,
                    kAt5IsLevel,
                    3,
                    3,
                    {3, 5, 100},
                    {{1, 6}, {1, 2}, {1, 5}},
                    {}},
        ExerciseRow{"FirstBendsFirstAndOnlySecondEnds",
                    kAt3Rises,
                    kAt5EndsAt8,
                    3,
                    0,
                    {3, 5, 8, 100},
                    {{1, 6}, {1, 2}, {-1, 14}, {1, -2}},
                    {}},
        ExerciseRow{"SecondEndsBeforeFirstBends",
                    kAt5EndsAt10,
                    kAt3EndsAt4And4th,
                    4,
                    0,
                    {3, 4.25, 5, 10},
                    {{1, 6}, {-4, 21}, {0, 4}, {-1, 10}},
                    10},
        ExerciseRow{"SecondEndsBeforeFirstBendsAndIsLevel",
                    kAt5IsLevel,
                    kAt3EndsAt4And4th,
                    4,
                    0,
                    {3, 4.25, 5, 100},
                    {{1, 6}, {-4, 21}, {0, 4}, {0, 7}},
                    {}},
        ExerciseRow{"SecondBendsFirstAndEndsFirst",
                    kAt5EndsAt10,
                    kAt3EndsAt8,
                    5,
                    0,
                    {3, 5, 8, 10},
                    {{1, 6}, {-1, 12}, {-2, 18}, {-1, 10}},
                    10},
        ExerciseRow{"SecondEndsWhereFirstBends",
                    kAt6EndsAt11,
                    kAt3EndsAt6,
                    5,
                    2,
                    {3, 6, 11},
                    {{3, 2}, {0, 12}, {-1, 11}},
                    11},
        ExerciseRow{"BothBendAtOnceAndSecondEndsFirst",
                    kAt4EndsAt10,
                    kAt4EndsAt6,
                    5,
                    1,
                    {4, 6, 10},
                    {{3, 4}, {-5, 34}, {-1, 10}},
                    10},
        ExerciseRow{"BothBendAtOnceAndOnlySecondEnds",
                    kAt4Rises,
                    kAt4EndsAt6Too,
                    5,
                    1,
                    {4, 6, 100},
                    {{3, 4}, {1, 3}, {4, -15}},
                    {}},
        ExerciseRow{"SecondBendsFirstAndEndsLast",
                    kAt5EndsAt6And4th,
                    kAt3EndsAt12,
                    6,
                    0,
                    {3, 5, 6.25, 12},
                    {{1, 6}, {-1, 16}, {-5, 37}, {-1, 12}},
                    12},
        ExerciseRow{"SecondBendsFirstAndBothEndAtOnce",
                    kAt5EndsAt8,
                    kAt3EndsAt8,
                    6,
                    3,
                    {3, 5, 8},
                    {{1, 6}, {-1, 12}, {-3, 24}},
                    8},
        ExerciseRow{"SecondBendsFirstAndNeitherEnds",
                    kAt5Rises,
                    kAt3Rises,
                    6,
                    3,
                    {3, 5, 100},
                    {{1, 6}, {1, 2}, {3, -11}},
                    {}},
        ExerciseRow{"BothBendAtOnceAndFirstEndsFirst",
                    kAt4EndsAt6,
                    kAt4EndsAt10,
                    6,
                    1,
                    {4, 6, 10},
                    {{3, 4}, {-5, 34}, {-1, 10}},
                    10},
        ExerciseRow{
            "BothBendAtOnceAndEndAtOnce", kAt4EndsAt6, kAt4EndsAt6Too, 6, 13, {4, 6}, {{3, 4}, {-7, 42}}, 6},
        ExerciseRow{
            "BothBendAtOnceAndNeitherEnds", kAt4Rises, kAt4IsLevel, 6, 13, {4, 100}, {{3, 4}, {4, -12}}, {}}),
    [](const auto& row) { return row.param.name; });

// The first piece that falls and yet gets past its kink: there is but one.
TEST(Laddi2Exercises, MayBeginWithAFallingPieceThatReachesItsKink) {
    const Laddi2State s = exercise({3, {-1, 4}, {-2, 11}}, {3, {-1, 4}, {2, -5}});
    EXPECT_EQ(s.breakPoints, (std::vector<double>{3, 5.5, 100}));
    EXPECT_EQ(drawnOf(s.sum.segments), (std::vector<DrawnPiece>{{-2, 8}, {0, 6}, {2, -5}}));
}

TEST(Laddi2Exercises, RoundTheUpperEndButNotTheBreakPoints) {
    const Laddi2State s = exercise({3, {1, 2}, {-3, 16}}, {4, {0, 3}, {-3, 20}});
    EXPECT_EQ(s.breakPoints, (std::vector<double>{3, 4, 16.0 / 3, 20.0 / 3}));
    EXPECT_EQ(s.sum.breaks, (std::vector<double>{3, 4, 16.0 / 3}));
    EXPECT_EQ(s.sum.upperEnd, 6.67);
}

TEST(Laddi2Exercises, KeepTheUpperEndOfAnEarlierOneWhereTheyHaveNone) {
    ScriptedDraws draws(scriptOf(kAt3EndsAt8, kAt5EndsAt10) + scriptOf(kAt3Rises, kAt5EndsAt10));
    Laddi2State s;
    newExercise(s, draws);
    newExercise(s, draws);
    EXPECT_FALSE(s.sum.upperEndAsked);
    EXPECT_EQ(s.sum.upperEnd, 10);
}

TEST(Laddi2Generator, TakesTheKinksThenCoinSlopeAndInterceptOfEachPiece) {
    const Laddi2State s = test::exerciseOf<Laddi2State>(
        {0.1F, 0.9F, 0.8F, 0.5F, 0.3F, 0.2F, 0.7F, 0.9F, 0.9F, 0.3F, 0.7F, 0.7F, 0.3F, 0.1F},
        test::Reseeds{1});
    expectFunction(s.function1, {3, {2, 1}, {-3, 9 + 9}});
    expectFunction(s.function2, {7, {1, 3}, {1, 1 - 7}});
}

TEST(Laddi2Generator, ReachesBothEndsOfEachRange) {
    Laddi2State s = test::exerciseOf<Laddi2State>(
        {0, 0, 0.7F, 0, kLargestDraw, 0, 0, 0, 0.7F, kLargestDraw, 0, 0.5F, 0, 0});
    expectFunction(s.function1, {3, {0, 4}, {0, 5}});
    expectFunction(s.function2, {3, {4, 0}, {0, 1}});
    const float most = kLargestDraw;
    s = test::exerciseOf<Laddi2State>(
        {most, most, 0.7F, most, most, 0, most, most, 0.7F, most, most, 0.5F, most, most});
    expectFunction(s.function1, {7, {4, 4}, {-4, 9 + 28}});
    expectFunction(s.function2, {7, {4, 4}, {4, 5 - 28}});
    s = test::exerciseOf<Laddi2State>(
        {most, most, 0.7F, most, most, 0.5F, most, 0, 0.7F, most, most, 0.5F, most, 0});
    expectFunction(s.function1, {7, {4, 4}, {4, 1 - 28}});
}

// The share of falling first pieces is a single: a draw of just 0.7 is not below it.
TEST(Laddi2Generator, LetsAFirstPieceRiseFromTheSingleSevenTenthsOn) {
    const Script rest = afterScriptOf(3, {0, 3}) + beforeScriptOf({1, 1}) + afterScriptOf(3, {0, 3});
    const float below = std::nextafter(0.7F, 0.0F);
    const Laddi2State rising =
        test::exerciseOf<Laddi2State>(kinkScriptOf(3, 3) + Script{0.7F, cellOf(1, 5), cellOf(4, 5)} + rest);
    EXPECT_EQ(rising.function1.before.slope, 1);
    const Laddi2State falling =
        test::exerciseOf<Laddi2State>(kinkScriptOf(3, 3) + Script{below, cellOf(1, 5), cellOf(4, 5)} + rest);
    EXPECT_EQ(falling.function1.before.slope, -1);
}

TEST(Laddi2Generator, LetsASecondPieceRiseFromOneHalfOn) {
    const auto drawn = [](float coin) {
        const Laddi2State s = test::exerciseOf<Laddi2State>(
            kinkScriptOf(4, 5) + beforeScriptOf({1, 1}) + Script{coin, cellOf(2, 5), cellOf(0, 5)} +
            beforeScriptOf({1, 1}) + afterScriptOf(5, {0, 3}));
        return drawnOf(s.function1.after);
    };
    EXPECT_EQ(drawn(0.5F), (DrawnPiece{2, 1 - 8}));
    EXPECT_EQ(drawn(std::nextafter(0.5F, 0.0F)), (DrawnPiece{-2, 5 + 8}));
}

TEST(Laddi2Generator, DrawsALevelSecondOneOnEitherSideOfItsCoinAndNeverRejectsIt) {
    for (int place = 0; place < 5; ++place) {
        for (const bool isFallingDrawn : {true, false}) {
            const Laddi2State s = test::exerciseOf<Laddi2State>(
                kinkScriptOf(4, 5) + beforeScriptOf({1, 1}) + afterScriptOf(isFallingDrawn, 0, place) +
                beforeScriptOf({1, 1}) + afterScriptOf(isFallingDrawn, 0, place));
            const DrawnPiece expected{0, place + (isFallingDrawn ? 5 : 1)};
            EXPECT_EQ(drawnOf(s.function1.after), expected);
            EXPECT_EQ(drawnOf(s.function2.after), expected);
            EXPECT_EQ(s.breakPoints, (std::vector<double>{4, 5, 100}));
        }
    }
}

struct RejectRow {
    const char* name;
    int kink;
    bool isFallingDrawn;
    DrawnPiece before;
    bool isRejected;
    /// It ends before its kink; otherwise it is the axis.
    bool endsEarly;
};

class Laddi2Rejection : public testing::TestWithParam<RejectRow> {
protected:
    [[nodiscard]] static Script beforeScript() {
        return beforeScriptOf(GetParam().isFallingDrawn, std::abs(GetParam().before.slope),
                              GetParam().before.intercept);
    }
};

TEST_P(Laddi2Rejection, DrawsOnlyThatPartOfFunction1Again) {
    const RejectRow& row = GetParam();
    const DrawnKinked other{3, {0, 1}, {0, 3}};
    Script script = kinkScriptOf(row.kink, 3) + beforeScript();
    if (row.isRejected) {
        script = script + beforeScript() + beforeScriptOf({4, 2});
    }
    ScriptedDraws draws(script + afterScriptOf(row.kink, {0, 2}) + beforeScriptOf(other.before) +
                        afterScriptOf(3, other.after));
    Laddi2State s;
    newExercise(s, draws);
    EXPECT_TRUE(draws.isUsedUp());
    EXPECT_EQ(draws.used(), row.isRejected ? 20U : 14U);
    EXPECT_EQ(draws.randomized(), 1);
    expectFunction(s.function1, {row.kink, row.isRejected ? DrawnPiece{4, 2} : row.before, {0, 2}});
    expectFunction(s.function2, other);
}

TEST_P(Laddi2Rejection, GoesBackFromFunction2ToTheSecondPartOfFunction1OrStays) {
    const RejectRow& row = GetParam();
    const DrawnPiece afterAtFirst{-4, 9 + 12};
    const DrawnPiece afterThen{-1, 6 + 3};
    Script script =
        kinkScriptOf(3, row.kink) + beforeScriptOf({2, 3}) + afterScriptOf(3, afterAtFirst) + beforeScript();
    if (row.isRejected) {
        script = row.endsEarly ? script + afterScriptOf(3, {2, -1}) + beforeScript() +
                                     afterScriptOf(3, afterThen) + beforeScriptOf({4, 2})
                               : script + beforeScript() + beforeScriptOf({4, 2});
    }
    ScriptedDraws draws(script + afterScriptOf(row.kink, {0, 3}));
    Laddi2State s;
    newExercise(s, draws);
    EXPECT_TRUE(draws.isUsedUp());
    EXPECT_EQ(draws.used(), !row.isRejected ? 14U : row.endsEarly ? 26U : 20U);
    EXPECT_EQ(draws.randomized(), 1);
    expectFunction(s.function1, {3, {2, 3}, row.isRejected && row.endsEarly ? afterThen : afterAtFirst});
    expectFunction(s.function2, {row.kink, row.isRejected ? DrawnPiece{4, 2} : row.before, {0, 3}});
}

INSTANTIATE_TEST_SUITE_P(FirstPieces, Laddi2Rejection,
                         testing::Values(RejectRow{"EndingBeforeTheKink", 5, true, {-1, 4}, true, true},
                                         RejectRow{"EndingAtTheKink", 4, true, {-1, 4}, true, true},
                                         RejectRow{"EndingAtTheFirstKink", 3, true, {-1, 3}, true, true},
                                         RejectRow{"EndingAfterTheKink", 3, true, {-1, 4}, false, false},
                                         RejectRow{"FallingFromTheOrigin", 3, true, {-2, 0}, true, true},
                                         RejectRow{"FallingSteeply", 3, true, {-4, 4}, true, true},
                                         RejectRow{"TheAxisByFalling", 3, true, {0, 0}, true, false},
                                         RejectRow{"TheAxisByRising", 7, false, {0, 0}, true, false},
                                         RejectRow{"LevelByFalling", 7, true, {0, 1}, false, false},
                                         RejectRow{"LevelByRising", 7, false, {0, 4}, false, false},
                                         RejectRow{"RisingFromTheOrigin", 7, false, {1, 0}, false, false}),
                         [](const auto& row) { return row.param.name; });

// Back to the second piece of function 1, then only to function 2's own, then on.
TEST(Laddi2Generator, MixesBothWaysOfGoingBack) {
    const Laddi2State s = test::exerciseOf<Laddi2State>(
        kinkScriptOf(3, 7) + beforeScriptOf({0, 2}) + afterScriptOf(3, {1, 0}) + beforeScriptOf(true, 0, 0) +
            beforeScriptOf({-1, 4}) + afterScriptOf(3, {-1, 8}) + beforeScriptOf(false, 0, 0) +
            beforeScriptOf(true, 0, 0) + beforeScriptOf({1, 3}) + afterScriptOf(7, {-4, 36}),
        test::Reseeds{1});
    expectFunction(s.function1, {3, {0, 2}, {-1, 8}});
    expectFunction(s.function2, {7, {1, 3}, {-4, 36}});
}

TEST(Laddi2Generator, DrawsTheKinksOnlyOnce) {
    const Laddi2State s = test::exerciseOf<Laddi2State>(kinkScriptOf(6, 5) + beforeScriptOf({-3, 1}) +
                                                        beforeScriptOf({1, 1}) + afterScriptOf(6, {0, 2}) +
                                                        beforeScriptOf({-2, 4}) + afterScriptOf(6, {0, 4}) +
                                                        beforeScriptOf({0, 1}) + afterScriptOf(5, {0, 8}));
    EXPECT_EQ(s.function1.kink, 6);
    EXPECT_EQ(s.function2.kink, 5);
}

struct TextRow {
    const char* name;
    DrawnKinked function1, function2;
    const char* first;
    const char* second;
    std::vector<std::string> segments;
};

class Laddi2Texts : public testing::TestWithParam<TextRow> {};

TEST_P(Laddi2Texts, TellTheIntervalsAndTheSegments) {
    const DecimalMark danish(",");
    const TextRow& row = GetParam();
    const Laddi2State s = exercise(row.function1, row.function2);
    EXPECT_EQ(intervalsHeading(s.sum), "Definitonsintervallerne bliver:");
    const auto [first, second] = intervalsTexts(s.sum);
    EXPECT_EQ(first, row.first);
    EXPECT_EQ(second, row.second);
    ASSERT_EQ(s.sum.segments.size(), row.segments.size());
    for (std::size_t segment = 0; segment < row.segments.size(); ++segment) {
        EXPECT_EQ(segmentText(s, segment), row.segments[segment]);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Laddi2Texts,
    testing::Values(
        TextRow{"TwoSegments",
                kAt4Rises,
                kAt4IsLevel,
                "0<X<4 og 4<X",
                "",
                {"P = (3 + 0)Q + (1 + 3) = 3Q + 4 for 0<X<4", "P = (4 + 0)Q + (-15 + 3) = 4Q + -12 for 4<X"}},
        TextRow{"TwoSegmentsWithAnUpperEnd",
                {4, {3, 1}, {-3, 20}},
                {4, {0, 3}, {-3, 20}},
                "0<X<4 og 4<X<6,67",
                "",
                {"P = (3 + 0)Q + (1 + 3) = 3Q + 4 for 0<X<4",
                 "P = (-3 - 3)Q + (20 + 20) = -6Q + 40 for 4<X<6,67"}},
        TextRow{"ThreeSegments",
                kAt3Rises,
                kAt5Rises,
                "0<X<3, 3<X<5 og ",
                "5<X",
                {"P = (1 + 0)Q + (2 + 4) = 1Q + 6 for 0<X<3", "P = (1 + 0)Q + (-2 + 4) = 1Q + 2 for 3<X<5",
                 "P = (1 + 2)Q + (-2 - 9) = 3Q + -11 for 5<X"}},
        TextRow{"ThreeSegmentsWithAnUpperEnd",
                kAt4EndsAt10,
                kAt4EndsAt6,
                "0<X<4, 4<X<6 og ",
                "6<X<10",
                {"P = (0 + 3)Q + (3 + 1) = 3Q + 4 for 0<X<4",
                 "P = (-1 - 4)Q + (10 + 24) = -5Q + 34 for 4<X<6", "P = -1Q + 10 for 6<X<10"}},
        TextRow{
            "FourSegments",
            kAt3EndsAt4And4th,
            kAt5Rises,
            "0<X<3, 3<X<4,25, ",
            "4,25<X<5 og 5<X",
            {"P = (1 + 0)Q + (2 + 4) = 1Q + 6 for 0<X<3", "P = (-4 + 0)Q + (17 + 4) = -4Q + 21 for 3<X<4,25",
             "P = 0Q + 4 for 4,25<X<5", "P = 2Q - 9 for 5<X"}},
        TextRow{"FourSegmentsWithAnUpperEnd",
                kAt5EndsAt6And4th,
                kAt3EndsAt12,
                "0<X<3, 3<X<5, ",
                "5<X<6,25 og 6,25<X<12",
                {"P = (0 + 1)Q + (4 + 2) = 1Q + 6 for 0<X<3", "P = (0 - 1)Q + (4 + 12) = -1Q + 16 for 3<X<5",
                 "P = (-4 - 1)Q + (25 + 12) = -5Q + 37 for 5<X<6,25", "P = -1Q + 12 for 6,25<X<12"}}),
    [](const auto& row) { return row.param.name; });

TEST(Laddi2Texts, HaveALineForTheNumbersOfASecondPieceByTheSignOfItsIntercept) {
    EXPECT_EQ(secondPieceText({2, -9}), "P=    Q -       for    <Q, P>0");
    EXPECT_EQ(secondPieceText({2, 0}), "P=    Q +      for    <Q, P>0");
    EXPECT_EQ(secondPieceText({-2, 15}), "P=    Q +      for    <Q, P>0");
}

// The side of the coin leaves no sign on a level piece: not "-0", and " + " before it.
TEST(Laddi2Texts, ShowALevelPieceThatWasDrawnAsFallingWithoutASign) {
    const Laddi2State s = test::exerciseOf<Laddi2State>(
        kinkScriptOf(4, 4) + beforeScriptOf(true, 0, 3) + afterScriptOf(true, 0, 1) +
        beforeScriptOf(true, 0, 2) + afterScriptOf(true, 0, 0));
    EXPECT_EQ(s.breakPoints, (std::vector<double>{4, 100}));
    EXPECT_EQ(segmentText(s, 0), "P = (0 + 0)Q + (3 + 2) = 0Q + 5 for 0<X<4");
    EXPECT_EQ(segmentText(s, 1), "P = (0 + 0)Q + (6 + 5) = 0Q + 11 for 4<X");
}

// No two functions have a sum of one segment; a lone one would be told so.
TEST(Laddi2Texts, TellALoneInterval) {
    const VerticalSum lone{{{1, 2}}, {}, false, 0};
    EXPECT_EQ(intervalsHeading(lone), "Definitonsintervallet bliver:");
    EXPECT_EQ(intervalsTexts(lone), (std::array<std::string, 2>{"0<X", ""}));
    EXPECT_EQ(intervalsTexts({{{1, 2}}, {}, true, 7.5}), (std::array<std::string, 2>{"0<X<7.5", ""}));
}

const AnswerField* fieldOf(const std::vector<AnswerField>& fields, int row, Slot slot) {
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const AnswerField& f) { return f.row == row && f.slot == slot; });
    return found == fields.end() ? nullptr : &*found;
}

// Breaks typed wrongly do not decide the verdict.
TEST(Laddi2Judge, TakesAnyValueForABreakButMarksItOnceAnythingElseIsWrong) {
    const std::vector<AnswerField> fields =
        answerFields(exercise({3, {1, 2}, {-3, 16}}, {4, {0, 3}, {-3, 20}}).sum);
    const double breaks[]{3, 4, 16.0 / 3};
    for (int at = 0; at < 3; ++at) {
        for (const AnswerField* field :
             {fieldOf(fields, at, Slot::End), fieldOf(fields, at + 1, Slot::Start)}) {
            ASSERT_NE(field, nullptr);
            const double target = breaks[at];
            EXPECT_EQ(field->target.value, target);
            for (const double typed : {-1e308, 0.0, target - 0.0051, target - 0.005, target, target + 0.005,
                                       target + 0.0051, 77.0, 1e308}) {
                EXPECT_TRUE(field->target.isFit(typed)) << typed;
                EXPECT_EQ(field->target.isMarked(typed), std::abs(typed - target) > 0.00505) << typed;
            }
        }
    }
}

TEST(Laddi2Judge, WantsTheUpperEndNearItsTwoDecimalsBothBoundsIncluded) {
    const std::vector<AnswerField> fields =
        answerFields(exercise({3, {1, 2}, {-3, 16}}, {4, {0, 3}, {-3, 20}}).sum);
    const AnswerField* end = fieldOf(fields, 3, Slot::End);
    ASSERT_NE(end, nullptr);
    test::expectJudged(end->target, {6.67 - 0.005, 6.667, 6.67, 6.67 + 0.005}, {0.0, 6.6649, 6.6751});
}

TEST(Laddi2Judge, AsksForAnUpperEndOnlyWhereBothSecondPiecesFall) {
    for (const auto& [f1, f2] :
         {std::pair{kAt3Rises, kAt5EndsAt8}, {kAt3EndsAt8, kAt5Rises}, {kAt3EndsAt6, kAt5IsLevel}}) {
        EXPECT_EQ(fieldOf(answerFields(exercise(f1, f2).sum), 3, Slot::End), nullptr);
    }
}

}  // namespace
}  // namespace tavrune
