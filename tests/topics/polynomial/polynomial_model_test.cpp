#include "topics/polynomial/polynomial_model.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "support/scripted_draws.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::kLargestDraw;
using test::ScriptedDraws;

RootTask taskOf(double discriminant, const Roots& roots) {
    RootTask task;
    task.discriminant = discriminant;
    task.roots = roots;
    return task;
}

struct PatternRow {
    int patternCase;
    const char* text;
    float a, b, c;
};

class Patterns : public testing::TestWithParam<PatternRow> {};

TEST_P(Patterns, GiveTextAndSigns) {
    const Polynomial drawn{2, 3, 4};
    const Pattern& pattern = patternOf(GetParam().patternCase);
    EXPECT_EQ(polynomialText(pattern, drawn), GetParam().text);
    const Polynomial p = withSigns(pattern, drawn);
    EXPECT_EQ(p.a, GetParam().a);
    EXPECT_EQ(p.b, GetParam().b);
    EXPECT_EQ(p.c, GetParam().c);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Patterns,
    testing::Values(PatternRow{1, "2Q²+3Q+4", 2, 3, 4}, PatternRow{2, "2Q²", 2, 0, 0},
                    PatternRow{3, "2Q²+3Q", 2, 3, 0}, PatternRow{4, "2Q²+4", 2, 0, 4},
                    PatternRow{5, "2Q²+3Q-4", 2, 3, -4}, PatternRow{6, "2Q²-3Q+4", 2, -3, 4},
                    PatternRow{7, "2Q²-4", 2, 0, -4}, PatternRow{8, "2Q²-3Q", 2, -3, 0},
                    PatternRow{9, "2Q²-3Q-4", 2, -3, -4}, PatternRow{10, "-2Q²+3Q+4", -2, 3, 4},
                    PatternRow{11, "-2Q²+3Q", -2, 3, 0}, PatternRow{12, "-2Q²+3Q-4", -2, 3, -4},
                    PatternRow{13, "-2Q²+4", -2, 0, 4}, PatternRow{14, "-2Q²-4", -2, 0, -4},
                    PatternRow{15, "-2Q²", -2, 0, 0}, PatternRow{16, "-2Q²-3Q+4", -2, -3, 4},
                    PatternRow{17, "-2Q²-3Q", -2, -3, 0}, PatternRow{18, "-2Q²-3Q-4", -2, -3, -4}),
    [](const auto& row) { return "Case" + std::to_string(row.param.patternCase); });

TEST(PolynomialText, WritesACoefficientOfOneOut) {
    EXPECT_EQ(polynomialText(patternOf(1), {1, 1, 1}), "1Q²+1Q+1");
    EXPECT_EQ(polynomialText(patternOf(15), {1, 1, 1}), "-1Q²");
}

TEST(Polynomials, AreDrawnWithSizesUpToFiveAndOneOfEighteenPatterns) {
    ScriptedDraws draws{0, cellOf(2, 5), kLargestDraw, 0, kLargestDraw};
    const Polynomial drawn = drawSizes(draws);
    EXPECT_EQ(drawn.a, 1);
    EXPECT_EQ(drawn.b, 3);
    EXPECT_EQ(drawn.c, 5);
    EXPECT_EQ(&drawPattern(draws), &patternOf(1));
    EXPECT_EQ(&drawPattern(draws), &patternOf(18));
    EXPECT_TRUE(draws.isUsedUp());
}

TEST(Polynomials, HaveTheirRootsWhereTheyAreZero) {
    for (float a = -5; a <= 5; ++a) {
        for (float b = -5; b <= 5; ++b) {
            for (float c = -5; c <= 5; ++c) {
                const Polynomial p{a, b, c};
                if (a == 0 || discriminantOf(p) < 0) {
                    continue;
                }
                const Roots roots = rootsOf(p);
                EXPECT_NEAR(valueAt(p, roots.rootOne), 0, 1e-9);
                EXPECT_NEAR(valueAt(p, roots.rootTwo), 0, 1e-9);
                EXPECT_NEAR(roots.rootOne + roots.rootTwo, -b / a, 1e-6);
                EXPECT_EQ(roots.rootOne == roots.rootTwo, discriminantOf(p) == 0);
            }
        }
    }
}

TEST(Polynomials, AreSymmetricRoundTheirVertex) {
    for (const Polynomial& p : {Polynomial{1, 4, 1}, Polynomial{-2, 3, 5}, Polynomial{3, -5, -2}}) {
        const Vertex vertex = vertexOf(p);
        EXPECT_NEAR(valueAt(p, vertex.q), vertex.p, 1e-6);
        EXPECT_NEAR(valueAt(p, vertex.q + 1.0), valueAt(p, vertex.q - 1.0), 1e-5);
    }
}

TEST(Vertex, HasTheDigitsOfASingleInItsQuotientOfSingles) {
    const Vertex vertex = vertexOf({3, 1, 1});
    EXPECT_EQ(vertex.q, -1.0F / 6);
    EXPECT_EQ(vertex.p, 11.0 / 12);
}

TEST(RootCount, FollowsTheDiscriminant) {
    EXPECT_EQ(rootCountOf(1), RootCount::Two);
    EXPECT_EQ(rootCountOf(0), RootCount::Double);
    EXPECT_EQ(rootCountOf(-1), RootCount::None);
}

const Roots kRoots{.rootOne = 2, .rootTwo = -1};

bool areRight(double discriminant, const Roots& roots, std::optional<RootCount> chosen,
              const std::vector<double>& typed) {
    const Judgement judgement = judge(taskOf(discriminant, roots), {chosen, typed});
    EXPECT_TRUE(!judgement.isSolved || judgement.isRight == (std::vector{true, true}));
    return judgement.isSolved;
}

TEST(RootsAreRight, InEitherOrder) {
    EXPECT_TRUE(areRight(9, kRoots, RootCount::Two, {2, -1}));
    EXPECT_TRUE(areRight(9, kRoots, RootCount::Two, {-1, 2}));
    EXPECT_FALSE(areRight(9, kRoots, RootCount::Two, {2, 2}));
    EXPECT_FALSE(areRight(9, kRoots, RootCount::Double, {2, -1}));
    EXPECT_FALSE(areRight(9, kRoots, RootCount::None, {2, -1}));
    EXPECT_FALSE(areRight(9, kRoots, {}, {2, -1}));
}

TEST(RootsAreRight, WithADoubleRootInTheSecondBox) {
    EXPECT_TRUE(areRight(0, {2, 2}, RootCount::Double, {0, 2}));
    EXPECT_FALSE(areRight(0, {2, 2}, RootCount::Double, {2, 0}));
    EXPECT_FALSE(areRight(0, {2, 2}, RootCount::Two, {2, 2}));
}

TEST(RootsAreRight, WithNoneWhateverIsTyped) {
    EXPECT_TRUE(areRight(-3, {}, RootCount::None, {7, 7}));
    EXPECT_FALSE(areRight(-3, {}, RootCount::Double, {0, 0}));
}

TEST(RootsAreRight, OpenBelowAndClosedAboveTheTolerance) {
    EXPECT_TRUE(areRight(9, kRoots, RootCount::Two, {2 + 0.005, -1}));
    EXPECT_FALSE(areRight(9, kRoots, RootCount::Two, {2 - 0.005, -1}));
}

struct MarkRow {
    const char* name;
    double discriminant;
    std::vector<double> typed;
    std::vector<bool> isRight;
};

class RootMarkRows : public testing::TestWithParam<MarkRow> {};

TEST_P(RootMarkRows, DecideByTheFirstTrueTestWhateverIsChosen) {
    using enum RootCount;
    const auto& [name, discriminant, typed, isRight] = GetParam();
    for (const std::optional<RootCount> chosen : {std::optional<RootCount>(), {Two}, {Double}, {None}}) {
        const Judgement judgement = judge(taskOf(discriminant, kRoots), {chosen, typed});
        EXPECT_TRUE(judgement.isSolved ? chosen == rootCountOf(discriminant) : judgement.isRight == isRight);
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, RootMarkRows,
                         testing::Values(MarkRow{"FirstHoldsRoot1", 9, {2, 7}, {true, false}},
                                         MarkRow{"SecondHoldsRoot1", 9, {7, 2}, {false, true}},
                                         MarkRow{"FirstHoldsRoot2", 9, {-1, 7}, {true, false}},
                                         MarkRow{"SecondHoldsRoot2", 9, {7, -1}, {false, true}},
                                         MarkRow{"TheSameRootTwice", 9, {2, 2}, {true, false}},
                                         MarkRow{"TheOtherRootTwice", 9, {-1, -1}, {true, false}},
                                         MarkRow{"NoRoot", 9, {7, 8}, {false, false}},
                                         MarkRow{"DoubleRoot", 0, {2, 2}, {false, false}},
                                         MarkRow{"NoRootsAtAll", -1, {2, -1}, {false, false}}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace tavrune
