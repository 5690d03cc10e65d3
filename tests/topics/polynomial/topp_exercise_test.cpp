#include "topics/polynomial/topp_exercise.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/judged.h"
#include "support/proof.h"
#include "support/scripted_draws.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::DecimalMark;
using test::eachIs;
using test::inBothMarks;
using test::kJustPast;
using test::kLargestDraw;
using test::Proof;
using test::ScriptedDraws;
using test::typedAgain;

std::vector<float> script(int a, int b, int c, int patternCase) {
    return {cellOf(a - 1, 3), cellOf(b - 1, 10), cellOf(c - 1, 10), cellOf(patternCase - 1, 11)};
}

/// 1Q²-5Q+6, which is accepted.
const std::vector<float> kAccepted = script(1, 5, 6, 3);

std::vector<float> operator+(std::vector<float> first, const std::vector<float>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

ToppState exercise(int a, int b, int c, int patternCase) {
    return test::exerciseOf<ToppState>(script(a, b, c, patternCase));
}

/// True if the first four draws are taken for an exercise.
bool areAccepted(int a, int b, int c, int patternCase) {
    ScriptedDraws draws(script(a, b, c, patternCase) + kAccepted);
    ToppState state;
    newExercise(state, draws);
    EXPECT_EQ(draws.used() % 4, 0U);
    return draws.used() == 4;
}

ToppState withVertex(float q, double p) {
    ToppState state;
    state.vertex.q = q;
    state.vertex.p = p;
    return state;
}

ToppWorked workedOf(float a, float b, float c) {
    ToppState state;
    state.polynomial = {a, b, c};
    state.discriminant = discriminantOf(state.polynomial);
    const Vertex vertex = vertexOf(state.polynomial);
    state.vertex.q = vertex.q;
    state.vertex.p = vertex.p;
    return workedSolution(state);
}

struct PatternRow {
    int patternCase;
    const char* text;
    float a, b, c;
};

class ToppPatterns : public testing::TestWithParam<PatternRow> {};

TEST_P(ToppPatterns, GiveTextAndStoredSigns) {
    const PatternRow& row = GetParam();
    const Polynomial drawn{2, 3, 4};
    const ToppPattern& pattern = toppPatternOf(row.patternCase);
    EXPECT_EQ(polynomialText(pattern.shown, drawn), row.text);
    const Polynomial stored = withSigns(pattern.stored, drawn);
    EXPECT_EQ(stored.a, row.a);
    EXPECT_EQ(stored.b, row.b);
    EXPECT_EQ(stored.c, row.c);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ToppPatterns,
    testing::Values(PatternRow{1, "2Q²", 2, 0, 0}, PatternRow{2, "2Q²+4", 2, 0, 4},
                    PatternRow{3, "2Q²-3Q+4", 2, -3, 4}, PatternRow{4, "2Q²-4", 2, 0, -4},
                    PatternRow{5, "2Q²-3Q", 2, -3, 0}, PatternRow{6, "2Q²-3Q-4", 2, -3, -4},
                    PatternRow{7, "-2Q²+3Q+4", -2, 3, 4}, PatternRow{8, "-2Q²-3Q", -2, 3, 0},
                    PatternRow{9, "-2Q²+3Q-4", -2, 3, -4}, PatternRow{10, "-2Q²+4", -2, 0, 4},
                    PatternRow{11, "-2Q²-4", -2, 0, -4}, PatternRow{12, "-2Q²", -2, 0, 0}),
    [](const auto& row) { return "Case" + std::to_string(row.param.patternCase); });

TEST(ToppGenerator, DrawsTheThreeSizesThenThePattern) {
    const ToppState s = exercise(2, 7, 3, 6);
    EXPECT_EQ(s.polynomial.a, 2);
    EXPECT_EQ(s.polynomial.b, -7);
    EXPECT_EQ(s.polynomial.c, -3);
    EXPECT_EQ(s.polynomialText, "2Q²-7Q-3");
    EXPECT_EQ(s.discriminant, 73);
    EXPECT_EQ(s.vertex.q, 1.75F);
    EXPECT_EQ(s.vertex.p, -9.125);
}

TEST(ToppGenerator, ReachesBothEndsOfEachRange) {
    ToppState s = test::exerciseOf<ToppState>({0, 0, 0, 0});
    EXPECT_EQ(s.polynomialText, "1Q²");

    s = test::exerciseOf<ToppState>({kLargestDraw, kLargestDraw, kLargestDraw, kLargestDraw});
    EXPECT_EQ(s.polynomialText, "-3Q²-10");
    EXPECT_EQ(s.polynomial.b, 0);

    s = test::exerciseOf<ToppState>({kLargestDraw, kLargestDraw, kLargestDraw, cellOf(2, 11)});
    EXPECT_EQ(s.polynomialText, "3Q²-10Q+10");
}

TEST(ToppGenerator, NeverDrawsTheTwelfthPattern) {
    SeededDraws draws(12);
    for (int i = 0; i < 20'000; ++i) {
        ToppState s;
        newExercise(s, draws);
        ASSERT_FALSE(s.polynomial.a < 0 && s.polynomial.b == 0 && s.polynomial.c == 0);
    }
}

TEST(ToppGenerator, ReseedsBeforeEachSetOfDraws) {
    for (const auto& [draws, reseeds] :
         {std::pair{kAccepted, test::Reseeds{1}},
          {script(1, 10, 1, 5) + script(1, 9, 1, 5) + kAccepted, test::Reseeds{3}}}) {
        EXPECT_EQ(test::exerciseOf<ToppState>(draws, reseeds).polynomialText, "1Q²-5Q+6") << reseeds.times;
    }
}

TEST(ToppGenerator, DrawsAllFourAgainWhileTheVertexIsOutOfReach) {
    const ToppState s = test::exerciseOf<ToppState>(script(1, 10, 1, 5) + script(1, 10, 10, 7) + kAccepted);
    EXPECT_EQ(s.polynomialText, "1Q²-5Q+6");
    EXPECT_EQ(s.vertex.p, -0.25);
}

TEST(ToppGenerator, AllowsAVertexAtFifteen) {
    EXPECT_TRUE(areAccepted(1, 10, 10, 3));
    EXPECT_EQ(exercise(1, 10, 10, 3).vertex.p, -15);
    EXPECT_FALSE(areAccepted(1, 10, 9, 3));
    EXPECT_TRUE(areAccepted(1, 6, 6, 7));
    EXPECT_EQ(exercise(1, 6, 6, 7).vertex.p, 15);
    EXPECT_FALSE(areAccepted(1, 6, 7, 7));
}

TEST(ToppGenerator, WouldAcceptAVertexLeftOfTheAxisThoughNoneCanBeDrawn) {
    EXPECT_TRUE(isWithinReach({-15, 0}));
    EXPECT_TRUE(isWithinReach({15, 0}));
    EXPECT_TRUE(isWithinReach({-2.5F, 3}));
    EXPECT_TRUE(isWithinReach({0, -15}));
    EXPECT_TRUE(isWithinReach({0, 15}));
    EXPECT_FALSE(isWithinReach({-15.01F, 0}));
    EXPECT_FALSE(isWithinReach({15.01F, 0}));
    EXPECT_FALSE(isWithinReach({0, -15.01}));
    EXPECT_FALSE(isWithinReach({0, 15.01}));
}

TEST(ToppGenerator, WantsTheVertexOfPlusBWhereCaseEightShowsMinusB) {
    const ToppState s = exercise(1, 4, 7, 8);
    EXPECT_EQ(s.polynomialText, "-1Q²-4Q");
    EXPECT_EQ(s.polynomial.b, 4);
    EXPECT_EQ(s.vertex.q, 2);
    EXPECT_EQ(s.vertex.p, 4);
    EXPECT_EQ(judge(s, {2, 4}), solvedIfAllRight({true, true}));
    EXPECT_EQ(judge(s, {-2, 4}), solvedIfAllRight({false, true}));
}

TEST(ToppGenerator, DividesSinglesForQAndADoubleForP) {
    const ToppState s = exercise(3, 1, 1, 3);
    EXPECT_EQ(s.vertex.q, 1.0F / 6);
    EXPECT_EQ(s.vertex.p, 11.0 / 12);
}

TEST(ToppJudge, TakesTheHalfOpenBandRoundTheUnroundedVertex) {
    const ToppState s = withVertex(1.75F, -9.125);
    EXPECT_TRUE(eachIs({true, true}, s, {{1.75, -9.125}, {1.755, -9.12}, {1.74501, -9.12999}}));
    EXPECT_TRUE(eachIs({false, false}, s, {{1.745, -9.13}, {1.75501, -9.11999}}));
}

TEST(ToppJudge, TellsTheTwoCoordinatesApart) {
    const ToppState s = withVertex(2, 4);
    EXPECT_TRUE(eachIs({true, false}, s, {{2, 3}}));
    EXPECT_TRUE(eachIs({false, true}, s, {{3, 4}}));
    EXPECT_TRUE(eachIs({false, false}, s, {{4, 2}}));
}

TEST(ToppJudge, TakesNothingTypedForTheVertexOfABareSquare) {
    EXPECT_TRUE(eachIs({true, true}, exercise(3, 5, 5, 1), {{Val(""), Val("")}}));
}

TEST(ToppTexts, GiveTheAnswerWithTwoDecimals) {
    const DecimalMark danish(",");
    const ToppState s = withVertex(5.0F / 3, -0.125);
    EXPECT_EQ(answerTextOfQ(s), "1,67");
    EXPECT_EQ(answerTextOfP(s), "-0,13");
    EXPECT_EQ(answerTextOfQ(exercise(2, 5, 5, 1)), "0");
    EXPECT_EQ(answerTextOfP(exercise(2, 5, 5, 1)), "0");
}

struct DiscriminantRow {
    const char* name;
    float a, b, c;
    const char* text;
};

class ToppDiscriminant : public testing::TestWithParam<DiscriminantRow> {};

TEST_P(ToppDiscriminant, BracketsTheNegativeOnes) {
    const DiscriminantRow& row = GetParam();
    EXPECT_EQ(workedOf(row.a, row.b, row.c).discriminant, row.text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ToppDiscriminant,
    testing::Values(DiscriminantRow{"None", 1, 5, 6, "d = 5 ² - 4 · 1 · 6 = 1"},
                    DiscriminantRow{"NoneWithZeros", 2, 0, 0, "d = 0 ² - 4 · 2 · 0 = 0"},
                    DiscriminantRow{"B", 1, -5, 6, "d = (-5)² - 4 · 1 · 6 = 1"},
                    DiscriminantRow{"C", 1, 5, -6, "d = 5² - 4 · 1 · (-6) = 49"},
                    DiscriminantRow{"A", -1, 5, 6, "d = 5² - 4 · (-1) · 6 = 49"},
                    DiscriminantRow{"AAndB", -1, -5, 6, "d = (-5)² - 4 · (-1) · 6 = 49"},
                    DiscriminantRow{"AAndC", -1, 1, -6, "d = 1² - 4 · (-1) · (-6) = -23"},
                    DiscriminantRow{"BAndC", 1, -5, -6, "d = (-5)² - 4 · 1 · (-6) = 49"},
                    DiscriminantRow{"All", -1, -5, -6, "d = (-5)² - 4 · (-1) · (-6) = 1"}),
    [](const auto& row) { return row.param.name; });

TEST(ToppWorkedSolution, BracketsNegativesInItsFractions) {
    const ToppWorked positive = workedOf(1, 5, 6);
    EXPECT_EQ(positive.numeratorOfQ, "-5");
    EXPECT_EQ(positive.denominatorOfQ, "2·1");
    EXPECT_EQ(positive.numeratorOfP, "-1");
    EXPECT_EQ(positive.denominatorOfP, "4·1");

    const ToppWorked negative = workedOf(-3, -1, -2);
    EXPECT_EQ(negative.numeratorOfQ, "-(-1)");
    EXPECT_EQ(negative.denominatorOfQ, "2·(-3)");
    EXPECT_EQ(negative.numeratorOfP, "-(-23)");
    EXPECT_EQ(negative.denominatorOfP, "4·(-3)");
}

TEST(ToppWorkedSolution, WritesAZeroBehindItsMinus) {
    const ToppWorked worked = workedSolution(exercise(2, 5, 5, 1));
    EXPECT_EQ(worked.numeratorOfQ, "-0");
    EXPECT_EQ(worked.numeratorOfP, "-0");
    EXPECT_EQ(worked.result, "T: (P;Q) = (0 ; 0)");
}

TEST(ToppWorkedSolution, TellsPBeforeQ) {
    const DecimalMark danish(",");
    EXPECT_EQ(workedOf(1, -5, 6).result, "T: (P;Q) = (-0,25 ; 2,5)");
    EXPECT_EQ(workedOf(-3, 10, 6).result, "T: (P;Q) = (14,33 ; 1,67)");
}

/// A set of draws with what is to come of it, by whole-number arithmetic.
struct SpacePoint {
    int drawnA, drawnB, drawnC, patternCase;
    int a, b, c;
    std::string text;

    [[nodiscard]] int discriminant() const { return b * b - 4 * a * c; }
    [[nodiscard]] double q() const { return -b / (2.0 * a); }
    [[nodiscard]] double p() const { return -discriminant() / (4.0 * a); }
    [[nodiscard]] bool isAccepted() const {
        return std::abs(discriminant()) <= 60 * std::abs(a) && std::abs(b) <= 30 * std::abs(a);
    }
    /// P is below 0 and ends in a 5 at the third decimal: an eighth.
    [[nodiscard]] bool isHalfHundredthBelowZero() const { return p() < 0 && std::fmod(p() * 8, 2) == -1; }
};

std::string termText(const std::string& sign, int size, const std::string& power) {
    return sign + std::to_string(size) + power;
}

SpacePoint pointOf(int a, int b, int c, int patternCase) {
    struct Row {
        int a, b, c;
        const char* signOfB;
    };
    constexpr std::array kRows{Row{1, 0, 0, ""},   Row{1, 0, 1, ""},   Row{1, -1, 1, "-"},
                               Row{1, 0, -1, ""},  Row{1, -1, 0, "-"}, Row{1, -1, -1, "-"},
                               Row{-1, 1, 1, "+"}, Row{-1, 1, 0, "-"}, Row{-1, 1, -1, "+"},
                               Row{-1, 0, 1, ""},  Row{-1, 0, -1, ""}};
    const Row& row = kRows.at(static_cast<std::size_t>(patternCase - 1));
    return {a,
            b,
            c,
            patternCase,
            row.a * a,
            row.b * b,
            row.c * c,
            termText(row.a < 0 ? "-" : "", a, "Q²") + (row.b == 0 ? "" : termText(row.signOfB, b, "Q")) +
                (row.c == 0 ? "" : termText(row.c < 0 ? "-" : "+", c, ""))};
}

/// Calls `visit` with every set of draws.
template <class Visit>
void forEachDraw(Visit visit) {
    for (int a = 1; a <= 3; ++a) {
        for (int b = 1; b <= 10; ++b) {
            for (int c = 1; c <= 10; ++c) {
                for (int patternCase = 1; patternCase <= 11; ++patternCase) {
                    visit(pointOf(a, b, c, patternCase));
                }
            }
        }
    }
}

std::string inBrackets(int x) { return x < 0 ? "(" + std::to_string(x) + ")" : std::to_string(x); }

TEST(ToppSpace, RejectsJustTheVerticesOutOfReach) {
    int accepted = 0;
    int rejected = 0;
    forEachDraw([&](const SpacePoint& e) {
        ++(e.isAccepted() ? accepted : rejected);
        ASSERT_EQ(areAccepted(e.drawnA, e.drawnB, e.drawnC, e.patternCase), e.isAccepted()) << e.text;
    });
    EXPECT_EQ(accepted, 3072);
    EXPECT_EQ(rejected, 228);
}

TEST(ToppSpace, HasNoVertexLeftOfTheAxis) {
    forEachDraw([](const SpacePoint& e) {
        ASSERT_GE(e.q(), 0) << e.text;
        ASSERT_LE(e.q(), 5) << e.text;
    });
}

TEST(ToppSpace, HasItsVertexWhereTheParabolaIsSymmetric) {
    forEachDraw([](const SpacePoint& e) {
        if (!e.isAccepted()) {
            return;
        }
        const ToppState s = exercise(e.drawnA, e.drawnB, e.drawnC, e.patternCase);
        ASSERT_EQ(s.polynomialText, e.text);
        ASSERT_EQ(s.polynomial.a, e.a) << e.text;
        ASSERT_EQ(s.polynomial.b, e.b) << e.text;
        ASSERT_EQ(s.polynomial.c, e.c) << e.text;
        ASSERT_EQ(s.discriminant, e.discriminant()) << e.text;
        ASSERT_NEAR(valueAt(s.polynomial, s.vertex.q), s.vertex.p, 1e-6) << e.text;
        const double beside = valueAt(s.polynomial, s.vertex.q + 1.0);
        ASSERT_NEAR(beside, valueAt(s.polynomial, s.vertex.q - 1.0), 1e-5) << e.text;
        ASSERT_EQ(beside > s.vertex.p, e.a > 0) << e.text;
    });
}

TEST(ToppSpace, IsSolvedByItsVertexAndByNothingBesideIt) {
    forEachDraw([&](const SpacePoint& e) {
        if (!e.isAccepted()) {
            return;
        }
        const ToppState s = exercise(e.drawnA, e.drawnB, e.drawnC, e.patternCase);
        ASSERT_TRUE(eachIs({true, true}, s, {{e.q(), e.p()}})) << e.text;
        const double q = Val(answerTextOfQ(s));
        const double p = Val(answerTextOfP(s));
        ASSERT_NEAR(q, e.q(), 0.00501) << e.text;
        ASSERT_NEAR(p, e.p(), 0.00501) << e.text;
        ASSERT_TRUE(eachIs({false, false}, s, {{q + 0.011, p + 0.011}, {q - 0.011, p - 0.011}})) << e.text;
        for (const double past : {kJustPast, -kJustPast}) {
            ASSERT_TRUE(eachIs({false, true}, s, {{s.vertex.q + past, e.p()}})) << e.text;
            ASSERT_TRUE(eachIs({true, false}, s, {{e.q(), s.vertex.p + past}})) << e.text;
        }
    });
}

// Rounded away from zero, a negative half lands on the open end of its own band.
TEST(ToppSpace, JudgesTheShownAnswerWrongForJustTheNegativeHalvesOfP) {
    Proof proof("Topp", 11);
    std::map<double, int> missed;
    forEachDraw([&](const SpacePoint& e) {
        if (!e.isAccepted()) {
            return;
        }
        const ToppState s = exercise(e.drawnA, e.drawnB, e.drawnC, e.patternCase);
        proof.visit(Proof::From::WholeSpace, e.patternCase);
        const Judgement own = judge(s, {Val(answerTextOfQ(s)), Val(answerTextOfP(s))});
        ASSERT_TRUE(inBothMarks([&] {
            return judge(s, {typedAgain(answerTextOfQ(s)), typedAgain(answerTextOfP(s))}) == own;
        }));
        const bool isShownOtherwise = e.patternCase == 8;
        if (isShownOtherwise) {
            // Its own vertex lies on the other side of the axis.
            ASSERT_FALSE(judge(s, {-e.q(), e.p()}).isRight[0]) << e.text;
            proof.unsolvable("shown with -b and judged with +b");
        } else if (!own.isRight[1]) {
            proof.unsolvable("negative halves of P shown rounded away from zero");
        }
        ASSERT_TRUE(own.isRight[0]) << e.text;
        ASSERT_EQ(own.isRight[1], !e.isHalfHundredthBelowZero()) << e.text;
        if (!own.isRight[1]) {
            ++missed[e.p()];
        }
    });
    const std::map<double, int> expected{
        {-14.125, 2}, {-13.125, 3}, {-12.125, 3}, {-11.125, 4}, {-10.125, 14}, {-9.875, 1},  {-9.125, 5},
        {-8.875, 2},  {-8.125, 5},  {-7.875, 2},  {-7.125, 5},  {-6.875, 3},   {-6.125, 14}, {-5.875, 3},
        {-5.125, 5},  {-4.875, 3},  {-4.125, 5},  {-3.875, 4},  {-3.125, 14},  {-2.875, 4},  {-2.125, 5},
        {-1.875, 4},  {-1.125, 14}, {-0.875, 4},  {-0.125, 14}};
    EXPECT_EQ(missed, expected);
    int count = 0;
    for (const auto& [p, times] : missed) {
        count += times;
    }
    EXPECT_EQ(count, 142);
}

TEST(ToppSpace, IsWorkedOutInWholeNumbers) {
    std::set<std::string> squares;
    forEachDraw([&](const SpacePoint& e) {
        if (!e.isAccepted()) {
            return;
        }
        const ToppState s = exercise(e.drawnA, e.drawnB, e.drawnC, e.patternCase);
        const ToppWorked worked = workedSolution(s);
        const std::string a = inBrackets(e.a);
        const std::string square = e.a < 0 || e.b < 0 || e.c < 0 ? "²" : " ²";
        squares.insert(square);
        ASSERT_EQ(worked.discriminant, "d = " + inBrackets(e.b) + square + " - 4 · " + a + " · " +
                                           inBrackets(e.c) + " = " + std::to_string(e.discriminant()));
        ASSERT_EQ(worked.numeratorOfP, "-" + inBrackets(e.discriminant()));
        ASSERT_EQ(worked.denominatorOfP, "4·" + a);
        ASSERT_EQ(worked.numeratorOfQ, "-" + inBrackets(e.b));
        ASSERT_EQ(worked.denominatorOfQ, "2·" + a);
        ASSERT_EQ(worked.result, "T: (P;Q) = (" + answerTextOfP(s) + " ; " + answerTextOfQ(s) + ")");
    });
    EXPECT_EQ(squares.size(), 2U);
}

RC_GTEST_PROP(ToppGeneratorProperty, GivesASolvableExerciseForEverySeed, (std::uint64_t seed)) {
    SeededDraws draws(seed);
    ToppState s;
    for (int i = 0; i < 100; ++i) {
        newExercise(s, draws);
        RC_ASSERT(std::isfinite(s.vertex.q) && std::abs(s.vertex.q) <= 15);
        RC_ASSERT(std::isfinite(s.vertex.p) && std::abs(s.vertex.p) <= 15);
        RC_ASSERT(judge(s, {s.vertex.q, s.vertex.p}) == solvedIfAllRight({true, true}));
    }
}

}  // namespace
}  // namespace tavrune
