#include "topics/addition/laddi2_exercise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "numeric/rounding.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/lot.h"
#include "topics/addition/judged_fields.h"
#include "topics/addition/laddi2_script.h"

namespace tavrune {
namespace {

using test::afterScriptOf;
using test::beforeScriptOf;
using test::cellOf;
using test::DecimalMark;
using test::DrawnKinked;
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
using test::lotSize;
using test::Proof;
using test::ProofDraws;
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

DrawnPiece drawnOf(const Piece& piece) {
    return {static_cast<int>(piece.slope), static_cast<int>(piece.intercept)};
}

DrawnKinked drawnOf(const KinkedFunction& f) {
    return {static_cast<int>(f.kink), drawnOf(f.before), drawnOf(f.after)};
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

// Quantities at which pieces end are whole twelfths: exact whole numbers. A function that does not end has
// its end at 100.
constexpr int kTwelfths = 12;
constexpr int kNever = 100 * kTwelfths;

int zeroInTwelfths(const DrawnKinked& f) {
    return f.after.slope >= 0 ? kNever : kTwelfths * f.after.intercept / -f.after.slope;
}

/// The order in which the ends of two functions follow one another, and them in that order.
struct Order {
    int orderCase;
    std::vector<int> ends;
};

/// Decided by the ends themselves, in the six cases that there are.
Order orderOf(const DrawnKinked& f1, const DrawnKinked& f2) {
    const int k1 = f1.kink * kTwelfths;
    const int k2 = f2.kink * kTwelfths;
    const int z1 = zeroInTwelfths(f1);
    const int z2 = zeroInTwelfths(f2);
    if (k1 < k2) {
        if (z1 < k2) {
            return {1, {k1, z1, k2, z2}};
        }
        return z1 < z2 ? Order{2, {k1, k2, z1, z2}} : Order{3, {k1, k2, z2, z1}};
    }
    if (z2 < k1) {
        return {4, {k2, z2, k1, z1}};
    }
    return z2 < z1 ? Order{5, {k2, k1, z2, z1}} : Order{6, {k2, k1, z1, z2}};
}

/// Which neighbours are equal: "1" for the first pair, "13" for the first and the last.
std::string mergedOf(const std::vector<int>& ends) {
    std::string merged;
    for (std::size_t at = 0; at + 1 < ends.size(); ++at) {
        if (ends[at] == ends[at + 1]) {
            merged += static_cast<char>('1' + at);
        }
    }
    return merged;
}

std::vector<int> withoutRepeats(std::vector<int> ends) {
    ends.erase(std::unique(ends.begin(), ends.end()), ends.end());
    return ends;
}

struct ExerciseRow {
    const char* name;
    DrawnKinked function1, function2;
    int orderCase;
    /// The pairs of equal neighbours, from 1 at the left.
    const char* merged;
    std::vector<double> breakPoints;
    std::vector<DrawnPiece> segments;
    std::optional<double> upperEnd;
};

class Laddi2Exercises : public testing::TestWithParam<ExerciseRow> {};

TEST_P(Laddi2Exercises, AddUp) {
    const ExerciseRow& row = GetParam();
    const Order order = orderOf(row.function1, row.function2);
    ASSERT_EQ(order.orderCase, row.orderCase);
    ASSERT_EQ(mergedOf(order.ends), row.merged);
    const Laddi2State s = exercise(row.function1, row.function2);
    expectFunction(s.function1, row.function1);
    expectFunction(s.function2, row.function2);
    EXPECT_EQ(s.breakPoints, row.breakPoints);
    EXPECT_EQ(drawnOf(s.sum.segments), row.segments);
    EXPECT_EQ(s.sum.breaks, std::vector<double>(row.breakPoints.begin(), row.breakPoints.end() - 1));
    EXPECT_EQ(s.sum.upperEndAsked, row.upperEnd.has_value());
    EXPECT_EQ(s.sum.upperEnd, row.upperEnd.value_or(0));
}

INSTANTIATE_TEST_SUITE_P(Orders, Laddi2Exercises,
                         testing::Values(ExerciseRow{"FirstEndsBeforeSecondBends",
                                                     kAt3EndsAt4And4th,
                                                     kAt5EndsAt10,
                                                     1,
                                                     "",
                                                     {3, 4.25, 5, 10},
                                                     {{1, 6}, {-4, 21}, {0, 4}, {-1, 10}},
                                                     10},
                                         ExerciseRow{"FirstEndsBeforeSecondBendsAndRises",
                                                     kAt3EndsAt4And4th,
                                                     kAt5Rises,
                                                     1,
                                                     "",
                                                     {3, 4.25, 5, 100},
                                                     {{1, 6}, {-4, 21}, {0, 4}, {2, -9}},
                                                     {}},
                                         ExerciseRow{"FirstBendsFirstAndEndsFirst",
                                                     kAt3EndsAt8,
                                                     kAt5EndsAt10,
                                                     2,
                                                     "",
                                                     {3, 5, 8, 10},
                                                     {{1, 6}, {-1, 12}, {-2, 18}, {-1, 10}},
                                                     10},
                                         ExerciseRow{"FirstEndsWhereSecondBends",
                                                     kAt3EndsAt6,
                                                     kAt6EndsAt11,
                                                     2,
                                                     "2",
                                                     {3, 6, 11},
                                                     {{3, 2}, {0, 12}, {-1, 11}},
                                                     11},
                                         ExerciseRow{"FirstEndsAndSecondIsLevel",
                                                     kAt3EndsAt6,
                                                     kAt5IsLevel,
                                                     2,
                                                     "",
                                                     {3, 5, 6, 100},
                                                     {{1, 6}, {-2, 16}, {-2, 19}, {0, 7}},
                                                     {}},
                                         ExerciseRow{"FirstBendsFirstAndEndsLast",
                                                     kAt3EndsAt12,
                                                     kAt5EndsAt6And4th,
                                                     3,
                                                     "",
                                                     {3, 5, 6.25, 12},
                                                     {{1, 6}, {-1, 16}, {-5, 37}, {-1, 12}},
                                                     12},
                                         ExerciseRow{"FirstBendsFirstAndBothEndAtOnce",
                                                     kAt3EndsAt8,
                                                     kAt5EndsAt8,
                                                     3,
                                                     "3",
                                                     {3, 5, 8},
                                                     {{1, 6}, {-1, 12}, {-3, 24}},
                                                     8},
                                         ExerciseRow{"FirstBendsFirstAndNeitherEnds",
                                                     kAt3Rises,
                                                     kAt5IsLevel,
                                                     3,
                                                     "3",
                                                     {3, 5, 100},
                                                     {{1, 6}, {1, 2}, {1, 5}},
                                                     {}},
                                         ExerciseRow{"FirstBendsFirstAndOnlySecondEnds",
                                                     kAt3Rises,
                                                     kAt5EndsAt8,
                                                     3,
                                                     "",
                                                     {3, 5, 8, 100},
                                                     {{1, 6}, {1, 2}, {-1, 14}, {1, -2}},
                                                     {}},
                                         ExerciseRow{"SecondEndsBeforeFirstBends",
                                                     kAt5EndsAt10,
                                                     kAt3EndsAt4And4th,
                                                     4,
                                                     "",
                                                     {3, 4.25, 5, 10},
                                                     {{1, 6}, {-4, 21}, {0, 4}, {-1, 10}},
                                                     10},
                                         ExerciseRow{"SecondEndsBeforeFirstBendsAndIsLevel",
                                                     kAt5IsLevel,
                                                     kAt3EndsAt4And4th,
                                                     4,
                                                     "",
                                                     {3, 4.25, 5, 100},
                                                     {{1, 6}, {-4, 21}, {0, 4}, {0, 7}},
                                                     {}},
                                         ExerciseRow{"SecondBendsFirstAndEndsFirst",
                                                     kAt5EndsAt10,
                                                     kAt3EndsAt8,
                                                     5,
                                                     "",
                                                     {3, 5, 8, 10},
                                                     {{1, 6}, {-1, 12}, {-2, 18}, {-1, 10}},
                                                     10},
                                         ExerciseRow{"SecondEndsWhereFirstBends",
                                                     kAt6EndsAt11,
                                                     kAt3EndsAt6,
                                                     5,
                                                     "2",
                                                     {3, 6, 11},
                                                     {{3, 2}, {0, 12}, {-1, 11}},
                                                     11},
                                         ExerciseRow{"BothBendAtOnceAndSecondEndsFirst",
                                                     kAt4EndsAt10,
                                                     kAt4EndsAt6,
                                                     5,
                                                     "1",
                                                     {4, 6, 10},
                                                     {{3, 4}, {-5, 34}, {-1, 10}},
                                                     10},
                                         ExerciseRow{"BothBendAtOnceAndOnlySecondEnds",
                                                     kAt4Rises,
                                                     kAt4EndsAt6Too,
                                                     5,
                                                     "1",
                                                     {4, 6, 100},
                                                     {{3, 4}, {1, 3}, {4, -15}},
                                                     {}},
                                         ExerciseRow{"SecondBendsFirstAndEndsLast",
                                                     kAt5EndsAt6And4th,
                                                     kAt3EndsAt12,
                                                     6,
                                                     "",
                                                     {3, 5, 6.25, 12},
                                                     {{1, 6}, {-1, 16}, {-5, 37}, {-1, 12}},
                                                     12},
                                         ExerciseRow{"SecondBendsFirstAndBothEndAtOnce",
                                                     kAt5EndsAt8,
                                                     kAt3EndsAt8,
                                                     6,
                                                     "3",
                                                     {3, 5, 8},
                                                     {{1, 6}, {-1, 12}, {-3, 24}},
                                                     8},
                                         ExerciseRow{"SecondBendsFirstAndNeitherEnds",
                                                     kAt5Rises,
                                                     kAt3Rises,
                                                     6,
                                                     "3",
                                                     {3, 5, 100},
                                                     {{1, 6}, {1, 2}, {3, -11}},
                                                     {}},
                                         ExerciseRow{"BothBendAtOnceAndFirstEndsFirst",
                                                     kAt4EndsAt6,
                                                     kAt4EndsAt10,
                                                     6,
                                                     "1",
                                                     {4, 6, 10},
                                                     {{3, 4}, {-5, 34}, {-1, 10}},
                                                     10},
                                         ExerciseRow{"BothBendAtOnceAndEndAtOnce",
                                                     kAt4EndsAt6,
                                                     kAt4EndsAt6Too,
                                                     6,
                                                     "13",
                                                     {4, 6},
                                                     {{3, 4}, {-7, 42}},
                                                     6},
                                         ExerciseRow{"BothBendAtOnceAndNeitherEnds",
                                                     kAt4Rises,
                                                     kAt4IsLevel,
                                                     6,
                                                     "13",
                                                     {4, 100},
                                                     {{3, 4}, {4, -12}},
                                                     {}}),
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

// What follows looks at seeded exercises, each against sums in whole numbers that know the functions alone.

// No piece ends on an odd 24th.
constexpr int kUnit = 24;
// No function that ends does so beyond 16.
constexpr int kLastQ = 17;

/// The price of a function where it is defined, in 24ths, at q 24ths.
std::optional<int> priceAt(const DrawnKinked& f, int q) {
    const DrawnPiece& piece = q < f.kink * kUnit ? f.before : f.after;
    const int price = piece.slope * q + piece.intercept * kUnit;
    return price > 0 ? std::optional(price) : std::nullopt;
}

std::optional<int> trueSum(const DrawnKinked& f1, const DrawnKinked& f2, int q) {
    const std::optional<int> one = priceAt(f1, q);
    const std::optional<int> other = priceAt(f2, q);
    return one || other ? std::optional(one.value_or(0) + other.value_or(0)) : std::nullopt;
}

std::string described(const DrawnKinked& f) {
    const auto piece = [](const DrawnPiece& p) {
        return std::to_string(p.slope) + "Q+" + std::to_string(p.intercept);
    };
    return piece(f.before) + " to " + std::to_string(f.kink) + ", then " + piece(f.after) + "; ";
}

/// The first quantity, in 24ths, at which the segments are not the true sum.
std::optional<int> firstDeviation(const Laddi2State& s, const DrawnKinked& f1, const DrawnKinked& f2) {
    const std::vector<DrawnPiece> segments = drawnOf(s.sum.segments);
    std::size_t at = 0;
    for (int q = 1; q < kLastQ * kUnit; q += 2) {
        while (at < s.sum.breaks.size() && q > s.sum.breaks[at] * kUnit) {
            ++at;
        }
        std::optional<int> answer = segments[at].slope * q + segments[at].intercept * kUnit;
        if (s.sum.upperEndAsked && q > s.breakPoints.back() * kUnit) {
            answer = std::nullopt;
        }
        if (answer != trueSum(f1, f2, q)) {
            return q;
        }
    }
    return std::nullopt;
}

bool isWithinTheDrawnRanges(const KinkedFunction& f) {
    const DrawnKinked drawn = drawnOf(f);
    const auto isWhole = [](const Piece& p) {
        return p.slope == std::trunc(p.slope) && p.intercept == std::trunc(p.intercept);
    };
    const int price = drawn.after.slope * drawn.kink + drawn.after.intercept;
    const auto isIn = [](int x, int least, int most) { return least <= x && x <= most; };
    return f.kink == drawn.kink && isIn(drawn.kink, 3, 7) && isWhole(f.before) && isWhole(f.after) &&
           isIn(drawn.before.slope, -1, 4) && isIn(drawn.before.intercept, 0, 4) &&
           isIn(drawn.after.slope, -4, 4) &&
           isIn(price, drawn.after.slope < 0 ? 5 : 1, drawn.after.slope > 0 ? 5 : 9);
}

// Numbers that a field can hold: each reads as itself once it is written and typed again.
TEST(Laddi2Lot, HasOnlyAnswersThatReadAsThemselves) {
    for (int whole = -100; whole <= 100; ++whole) {
        ASSERT_EQ(Val(NumberText(static_cast<double>(whole))), whole);
    }
    for (int twelfths = 0; twelfths <= kLastQ * kTwelfths; ++twelfths) {
        const double shown = RoundUp2(static_cast<double>(twelfths) / kTwelfths);
        ASSERT_EQ(Val(NumberText(shown)), shown);
        ASSERT_EQ(RoundUp2(shown), shown);
    }
}

TEST(Laddi2Lot, GivesTheTrueSumPointByPointFromEndToEnd) {
    SeededDraws draws(71);
    Laddi2State s;
    for (int n = 0; n < lotSize(); ++n) {
        newExercise(s, draws);
        const DrawnKinked f1 = drawnOf(s.function1);
        const DrawnKinked f2 = drawnOf(s.function2);
        const auto told = [&] { return described(f1) + described(f2) + "exercise " + std::to_string(n); };
        ASSERT_TRUE(isWithinTheDrawnRanges(s.function1)) << told();
        ASSERT_TRUE(isWithinTheDrawnRanges(s.function2)) << told();
        ASSERT_EQ(firstDeviation(s, f1, f2), std::nullopt) << told();
        const std::vector<int> ends = withoutRepeats(orderOf(f1, f2).ends);
        ASSERT_EQ(s.breakPoints.size(), ends.size()) << told();
        ASSERT_EQ(s.sum.segments.size(), ends.size()) << told();
        for (std::size_t at = 0; at < ends.size(); ++at) {
            ASSERT_EQ(s.breakPoints[at], static_cast<double>(ends[at]) / kTwelfths) << told();
            if (at + 1 < ends.size()) {
                ASSERT_EQ(s.sum.breaks.at(at), s.breakPoints[at]) << told();
            }
        }
        ASSERT_EQ(s.sum.upperEndAsked, ends.back() < kNever) << told();
        if (s.sum.upperEndAsked) {
            ASSERT_NEAR(s.sum.upperEnd, s.breakPoints.back(), 0.005) << told();
        }
    }
}

// Two segments to four, in each order that the ends can have, with each pair of equal ones that it allows.
TEST(Laddi2Lot, ReachesEveryOrderWithEveryWayOfMerging) {
    SeededDraws draws(72);
    Laddi2State s;
    std::map<std::pair<int, std::string>, int> found;
    std::set<std::pair<std::size_t, bool>> counts;
    for (int n = 0; n < lotSize(); ++n) {
        newExercise(s, draws);
        const Order order = orderOf(drawnOf(s.function1), drawnOf(s.function2));
        ++found[{order.orderCase, mergedOf(order.ends)}];
        counts.insert({s.sum.segments.size(), s.sum.upperEndAsked});
    }
    std::set<std::pair<int, std::string>> kinds;
    for (const auto& [kind, times] : found) {
        kinds.insert(kind);
    }
    EXPECT_EQ(kinds, (std::set<std::pair<int, std::string>>{{1, ""},
                                                            {2, ""},
                                                            {2, "2"},
                                                            {3, ""},
                                                            {3, "3"},
                                                            {4, ""},
                                                            {5, ""},
                                                            {5, "1"},
                                                            {5, "2"},
                                                            {6, ""},
                                                            {6, "1"},
                                                            {6, "13"},
                                                            {6, "3"}}));
    EXPECT_EQ(counts, (std::set<std::pair<std::size_t, bool>>{
                          {2, false}, {2, true}, {3, false}, {3, true}, {4, false}, {4, true}}));
}

/// What "&Giv svaret" writes into a field.
double shownAnswer(const AnswerField& field) {
    const double value = field.target.value;
    return field.slot == Slot::Start || field.slot == Slot::End ? RoundUp2(value) : value;
}

TEST(Laddi2Lot, IsSolvedByItsAnswerAndByNoOtherCoefficientOrUpperEnd) {
    Proof proof("Laddi2", 13);
    const auto prove = [&proof](const Laddi2State& s, int n) {
        const DrawnKinked f1 = drawnOf(s.function1);
        const DrawnKinked f2 = drawnOf(s.function2);
        const auto& [orderCase, ends] = orderOf(f1, f2);
        proof.visit(Proof::From::Seeds, 100 * orderCase + static_cast<int>(Val(mergedOf(ends))));
        const std::vector<AnswerField> fields = answerFields(s.sum);
        const std::size_t count = s.sum.segments.size();
        ASSERT_EQ(fields.size(), 2 * count + 2 * (count - 1) + (s.sum.upperEndAsked ? 1U : 0U));
        ASSERT_TRUE(test::isSolvedByTargets(s, fields)) << described(f1) << described(f2) << n;
        ASSERT_EQ(test::flawOfJudging(fields, shownAnswer), "") << described(f1) << described(f2) << n;
        ASSERT_EQ(firstDeviation(s, f1, f2), std::nullopt) << described(f1) << described(f2) << n;
    };
    Laddi2State s;
    for (const auto ends : {ProofDraws::Ends::None, ProofDraws::Ends::FromZero}) {
        ProofDraws draws(71, ends);
        const int count = ends == ProofDraws::Ends::None ? lotSize(20'000) : lotSize(5'000, 200'000);
        for (int n = 0; n < count && !testing::Test::HasFatalFailure(); ++n) {
            draws.beginExercise();
            newExercise(s, draws);
            prove(s, n);
        }
    }
}

/// Reads a text from its front.
class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool take(std::string_view expected) {
        const bool isThere = rest_.substr(0, expected.size()) == expected;
        if (isThere) {
            rest_.remove_prefix(expected.size());
        }
        return isThere;
    }

    /// Takes it, or remembers that it was not there.
    void want(std::string_view expected) { isGood_ = take(expected) && isGood_; }

    double number() {
        const std::size_t length = std::min(rest_.find_first_not_of("-0123456789."), rest_.size());
        isGood_ = length > 0 && isGood_;
        const double value = Val(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return value;
    }

    /// A number behind a sign that stands apart: " - 3".
    double apart() {
        const bool isNegative = take(" - ");
        if (!isNegative) {
            want(" + ");
        }
        const double size = number();
        isGood_ = size >= 0 && isGood_;
        return isNegative ? -size : size;
    }

    [[nodiscard]] bool isReadUp() const { return isGood_ && rest_.empty(); }

private:
    std::string_view rest_;
    bool isGood_ = true;
};

/// "0<X<3", with its upper bound if it has one.
struct Range {
    double from = 0;
    std::optional<double> to;
};

Range readRange(Reader& reader) {
    Range range;
    range.from = reader.number();
    reader.want("<X");
    if (reader.take("<")) {
        range.to = reader.number();
    }
    return range;
}

struct ReadSegment {
    std::vector<Piece> addends;
    Piece sum;
    Range range;
    bool isGood;
};

ReadSegment readSegment(const std::string& text) {
    Reader reader(text);
    ReadSegment read{};
    reader.want("P = ");
    if (reader.take("(")) {
        Piece one;
        Piece other;
        one.slope = reader.number();
        other.slope = reader.apart();
        reader.want(")Q + (");
        one.intercept = reader.number();
        other.intercept = reader.apart();
        reader.want(") = ");
        read.sum.slope = reader.number();
        reader.want("Q + ");
        read.sum.intercept = reader.number();
        read.addends = {one, other};
    } else {
        read.sum.slope = reader.number();
        reader.want("Q");
        read.sum.intercept = reader.apart();
        read.addends = {read.sum};
    }
    reader.want(" for ");
    read.range = readRange(reader);
    read.isGood = reader.isReadUp();
    return read;
}

/// True if a piece is the one of this function just below the end of a range.
bool belongsTo(const KinkedFunction& f, const Piece& piece, double q) {
    const Piece& expected = q < f.kink ? f.before : f.after;
    return piece.slope == expected.slope && piece.intercept == expected.intercept && expected.at(q) > 0;
}

TEST(Laddi2Lot, TellsInItsTextsWhatIsAskedFor) {
    SeededDraws draws(74);
    Laddi2State s;
    for (int n = 0; n < lotSize() / 10; ++n) {
        newExercise(s, draws);
        const std::size_t count = s.sum.segments.size();
        const auto [first, second] = intervalsTexts(s.sum);
        const std::string intervals = first + second;
        Reader list(intervals);
        double from = 0;
        for (std::size_t segment = 0; segment < count; ++segment) {
            const std::string text = segmentText(s, segment);
            const bool isLast = segment + 1 == count;
            if (segment > 0) {
                list.want(isLast ? " og " : ", ");
            }
            const Range interval = readRange(list);
            const ReadSegment read = readSegment(text);
            ASSERT_TRUE(read.isGood) << text;
            ASSERT_EQ(interval.from, read.range.from) << text << intervals;
            ASSERT_EQ(interval.to, read.range.to) << text << intervals;
            ASSERT_EQ(read.range.from, from) << text;
            ASSERT_EQ(read.range.to.has_value(), !isLast || s.sum.upperEndAsked) << text;
            if (read.range.to) {
                from = *read.range.to;
                ASSERT_NEAR(from, s.breakPoints[segment], 0.005) << text;
            }
            ASSERT_EQ(read.sum.slope, s.sum.segments[segment].slope) << text;
            ASSERT_EQ(read.sum.intercept, s.sum.segments[segment].intercept) << text;
            // Midway there is no end of a piece.
            const double start = segment == 0 ? 0 : s.breakPoints[segment - 1];
            const double midway = (start + s.breakPoints[segment]) / 2;
            Piece added;
            for (const Piece& addend : read.addends) {
                added = addedUp(added, addend);
            }
            ASSERT_EQ(added.slope, read.sum.slope) << text;
            ASSERT_EQ(added.intercept, read.sum.intercept) << text;
            ASSERT_TRUE(belongsTo(s.function1, read.addends.front(), midway) ||
                        belongsTo(s.function2, read.addends.front(), midway))
                << text;
            if (read.addends.size() == 2) {
                ASSERT_TRUE(belongsTo(s.function1, read.addends.front(), midway)) << text;
                ASSERT_TRUE(belongsTo(s.function2, read.addends.back(), midway)) << text;
            }
        }
        ASSERT_TRUE(list.isReadUp()) << intervals;
        ASSERT_EQ(second.empty(), count == 2) << intervals;
    }
}

TEST(Laddi2Seeds, AreFrozenForAllBuildsAndProcessors) {
    SeededDraws draws(2024);
    Laddi2State s;
    std::string functions;
    for (int n = 0; n < 2; ++n) {
        newExercise(s, draws);
        functions += described(drawnOf(s.function1)) + described(drawnOf(s.function2));
    }
    EXPECT_EQ(functions,
              "2Q+2 to 6, then 0Q+6; 0Q+2 to 3, then -2Q+12; "
              "3Q+0 to 4, then -1Q+9; 1Q+2 to 3, then -2Q+13; ");
}

}  // namespace
}  // namespace tavrune
