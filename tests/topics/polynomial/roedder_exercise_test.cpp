#include "topics/polynomial/roedder_exercise.h"

#include <cmath>
#include <set>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/proof.h"
#include "support/scripted_draws.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::DecimalMark;
using test::inBothMarks;
using test::kJustPast;
using test::kLargestDraw;
using test::Proof;
using test::ScriptedDraws;
using test::typedAgain;

/// The exercise of three sizes and a pattern.
RoedderState exercise(int a, int b, int c, int patternCase) {
    return test::exerciseOf<RoedderState>(
        {cellOf(a - 1, 5), cellOf(b - 1, 5), cellOf(c - 1, 5), cellOf(patternCase - 1, 18)});
}

TEST(RoedderGenerator, MakesJustThisExerciseOfItsDraws) {
    const RoedderState s = exercise(2, 5, 3, 9);
    EXPECT_EQ(s.coefficients.a, 2);
    EXPECT_EQ(s.coefficients.b, -5);
    EXPECT_EQ(s.coefficients.c, -3);
    EXPECT_EQ(s.polynomialText, "2Q²-5Q-3");
    EXPECT_EQ(s.discriminant, 49);
    EXPECT_EQ(s.roots.rootOne, 3);
    EXPECT_EQ(s.roots.rootTwo, -0.5);
}

/// Writes down in which order it is asked.
class NotedDraws final : public Draws {
public:
    float Rnd() override {
        asked += 'u';
        return 0;
    }
    void Randomize() override { asked += 'R'; }

    std::string asked;
};

TEST(RoedderGenerator, ReseedsBeforeTheSizesAndBeforeThePattern) {
    NotedDraws draws;
    RoedderState s;
    newExercise(s, draws);
    EXPECT_EQ(draws.asked, "RuuuRu");
    EXPECT_EQ(s.polynomialText, "1Q²+1Q+1");
}

TEST(RoedderGenerator, ReachesTheEndsOfItsRanges) {
    const RoedderState s =
        test::exerciseOf<RoedderState>({kLargestDraw, kLargestDraw, kLargestDraw, kLargestDraw});
    EXPECT_EQ(s.polynomialText, "-5Q²-5Q-5");
}

TEST(RoedderGenerator, LeavesTheRootsAloneWhereThereAreNone) {
    ScriptedDraws draws{cellOf(1, 5), cellOf(4, 5), cellOf(2, 5), cellOf(8, 18), 0, 0, 0, 0};
    RoedderState s;
    newExercise(s, draws);
    newExercise(s, draws);
    EXPECT_EQ(s.discriminant, -3);
    EXPECT_EQ(s.roots.rootOne, 3);
    EXPECT_EQ(s.roots.rootTwo, -0.5);
}

struct DiscriminantRow {
    const char* negative;
    int a, b, c;
    int patternCase;
    const char* text;
};

class DiscriminantTexts : public testing::TestWithParam<DiscriminantRow> {};

TEST_P(DiscriminantTexts, HaveTheBlanksOfTheirRow) {
    const auto& [negative, a, b, c, patternCase, text] = GetParam();
    EXPECT_EQ(discriminantText(exercise(a, b, c, patternCase)), text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DiscriminantTexts,
    testing::Values(DiscriminantRow{"None", 2, 3, 4, 1, "d = 3 ² - 4 ·2·4=-23"},
                    DiscriminantRow{"B", 2, 3, 4, 6, "d = (-3) ² - 4· 2 · 4 = -23"},
                    DiscriminantRow{"C", 2, 3, 4, 5, "d = 3 ² - 4· 2 · (-4) = 41"},
                    DiscriminantRow{"A", 2, 3, 4, 10, "d = 3 ² - 4· (-2) · 4 = 41"},
                    DiscriminantRow{"AAndB", 2, 3, 4, 16, "d = (-3) ² - 4 · (-2) · 4 = 41"},
                    DiscriminantRow{"AAndC", 2, 3, 4, 12, "d = 3 ² - 4 · (-2) · (-4) = -23"},
                    DiscriminantRow{"BAndC", 2, 3, 4, 9, "d = (-3) ² - 4 · 2 · (-4) = 41"},
                    DiscriminantRow{"All", 2, 3, 4, 18, "d = (-3) ² - 4 · (-2) · (-4) = -23"},
                    DiscriminantRow{"NoneOfTwoZeros", 2, 3, 4, 2, "d = 0 ² - 4 ·2·0=0"},
                    DiscriminantRow{"AOfTwoZeros", 2, 3, 4, 15, "d = 0 ² - 4· (-2) · 0 = 0"}),
    [](const auto& row) { return row.param.negative; });

TEST(RoedderFormulas, PutNegativeNumbersInBrackets) {
    const RoedderFormula negative = formulaTexts(exercise(5, 5, 5, 16));
    EXPECT_EQ(negative.b, "(-5)");
    EXPECT_EQ(negative.minusB, "- (-5)");
    EXPECT_EQ(negative.d, "125");
    EXPECT_EQ(negative.denominator, "2 · (-5)");
    const RoedderFormula positive = formulaTexts(exercise(1, 4, 4, 1));
    EXPECT_EQ(positive.b, "4");
    EXPECT_EQ(positive.minusB, "- 4");
    EXPECT_EQ(positive.d, "0");
    EXPECT_EQ(positive.denominator, "2 · 1");
    EXPECT_EQ(formulaTexts(exercise(3, 1, 1, 2)).minusB, "- 0");
}

TEST(RoedderAnswers, HaveTwoDecimalsAndTheMarkOfTheLocale) {
    const DecimalMark comma(",");
    const RoedderAnswer answer = answerTexts(exercise(5, 5, 5, 9));
    EXPECT_EQ(answer.rootOne, "1,62");
    EXPECT_EQ(answer.rootTwo, "-0,62");
}

TEST(RoedderAnswers, AreNeverMinusZero) {
    const RoedderAnswer answer = answerTexts(exercise(3, 1, 1, 15));
    EXPECT_EQ(answer.rootOne, "0");
    EXPECT_EQ(answer.rootTwo, "0");
}

bool isRight(const RoedderState& s, std::optional<RootCount> chosen, const std::vector<double>& typed) {
    return judge(s, {chosen, typed}).isSolved;
}

TEST(RoedderJudge, TakesNothingForTheDoubleRootZero) {
    EXPECT_TRUE(isRight(exercise(3, 1, 1, 2), RootCount::Double, {0, Val("")}));
    EXPECT_FALSE(isRight(exercise(3, 1, 1, 2), RootCount::Two, {0, 0}));
}

// What the pattern cases come to, written down by hand: the sign of each term, or 0.
constexpr int kSigns[18][3] = {{1, 1, 1},  {1, 0, 0},   {1, 1, 0},   {1, 0, 1},   {1, 1, -1},  {1, -1, 1},
                               {1, 0, -1}, {1, -1, 0},  {1, -1, -1}, {-1, 1, 1},  {-1, 1, 0},  {-1, 1, -1},
                               {-1, 0, 1}, {-1, 0, -1}, {-1, 0, 0},  {-1, -1, 1}, {-1, -1, 0}, {-1, -1, -1}};

std::string inBrackets(int n) { return n < 0 ? "(" + std::to_string(n) + ")" : std::to_string(n); }

std::string term(int n, const std::string& power) {
    return n == 0 ? "" : (n > 0 ? "+" : "") + std::to_string(n) + power;
}

// What stands before b, a, c and d, by whether a, b and c are negative; the blanks differ from row to row.
constexpr const char* kAroundNumbers[2][2][2][4] = {{{{"d = ", " ² - 4 ·", "·", "="},                //
                                                      {"d = ", " ² - 4· ", " · (", ") = "}},         // c
                                                     {{"d = (", ") ² - 4· ", " · ", " = "},          // b
                                                      {"d = (", ") ² - 4 · ", " · (", ") = "}}},     // b, c
                                                    {{{"d = ", " ² - 4· (", ") · ", " = "},          // a
                                                      {"d = ", " ² - 4 · (", ") · (", ") = "}},      // a, c
                                                     {{"d = (", ") ² - 4 · (", ") · ", " = "},       // a, b
                                                      {"d = (", ") ² - 4 · (", ") · (", ") = "}}}};  // all

std::string discriminantRow(int a, int b, int c) {
    const auto& [beforeB, beforeA, beforeC, beforeD] =
        kAroundNumbers[a < 0 ? 1 : 0][b < 0 ? 1 : 0][c < 0 ? 1 : 0];
    return beforeB + std::to_string(b) + beforeA + std::to_string(a) + beforeC + std::to_string(c) + beforeD +
           std::to_string(b * b - 4 * a * c);
}

bool isRootOf(int a, int b, int c, double q) { return std::abs(a * q * q + b * q + c) < 1e-9; }

TEST(RoedderSpace, IsSolvedByItsOwnAnswerAndByNothingNear) {
    Proof proof("Rødder", 18);
    int visited = 0;
    int counted[3] = {};
    for (int draw = 0; draw < 5 * 5 * 5 * 18; ++draw) {
        const int* sign = kSigns[draw % 18];
        const int sizes[] = {draw / 450 + 1, draw / 90 % 5 + 1, draw / 18 % 5 + 1};
        const int a = sign[0] * sizes[0];
        const int b = sign[1] * sizes[1];
        const int c = sign[2] * sizes[2];
        const RoedderState s = exercise(sizes[0], sizes[1], sizes[2], draw % 18 + 1);
        SCOPED_TRACE(s.polynomialText);
        ++visited;
        proof.visit(Proof::From::WholeSpace, draw % 18 + 1);

        ASSERT_EQ(s.coefficients.a, a);
        ASSERT_EQ(s.coefficients.b, b);
        ASSERT_EQ(s.coefficients.c, c);
        ASSERT_EQ(s.polynomialText, std::to_string(a) + "Q²" + term(b, "Q") + term(c, ""));
        const int d = b * b - 4 * a * c;
        ASSERT_EQ(s.discriminant, d);
        ASSERT_EQ(discriminantText(s), discriminantRow(a, b, c));
        const RoedderFormula formula = formulaTexts(s);
        ASSERT_EQ(formula.b, inBrackets(b));
        ASSERT_EQ(formula.minusB, "- " + inBrackets(b));
        ASSERT_EQ(formula.d, std::to_string(d));
        ASSERT_EQ(formula.denominator, "2 · " + inBrackets(a));

        const RootCount count = d > 0 ? RootCount::Two : d == 0 ? RootCount::Double : RootCount::None;
        ++counted[static_cast<int>(count)];
        if (count == RootCount::None) {
            ASSERT_TRUE(isRight(s, RootCount::None, {7, 7}));
            ASSERT_FALSE(isRight(s, RootCount::Double, {0, 0}));
            ASSERT_FALSE(isRight(s, RootCount::Two, {0, 0}));
            continue;
        }
        ASSERT_TRUE(isRootOf(a, b, c, s.roots.rootOne));
        ASSERT_TRUE(isRootOf(a, b, c, s.roots.rootTwo));
        ASSERT_EQ(s.roots.rootOne == s.roots.rootTwo, d == 0);
        ASSERT_EQ(s.roots.rootOne > s.roots.rootTwo, d > 0 && a > 0);
        const RoedderAnswer answer = answerTexts(s);
        const double q1 = Val(answer.rootOne);
        const double q2 = Val(answer.rootTwo);
        ASSERT_TRUE(inBothMarks([&] {
            const RoedderAnswer shown = answerTexts(s);
            return typedAgain(shown.rootOne) == q1 && typedAgain(shown.rootTwo) == q2;
        }));
        const auto [rootOne, rootTwo] = s.roots;
        ASSERT_FALSE(isRight(s, RootCount::None, {q1, q2}));
        if (count == RootCount::Double) {
            ASSERT_TRUE(isRight(s, RootCount::Double, {99, q1}));
            ASSERT_FALSE(isRight(s, RootCount::Double, {rootOne, rootOne + kJustPast}));
            ASSERT_FALSE(isRight(s, RootCount::Double, {rootOne, rootOne - kJustPast}));
            ASSERT_FALSE(isRight(s, RootCount::Two, {q1, q1}));
            continue;
        }
        ASSERT_TRUE(isRight(s, RootCount::Two, {q1, q2}));
        ASSERT_TRUE(isRight(s, RootCount::Two, {q2, q1}));
        ASSERT_FALSE(isRight(s, RootCount::Two, {q1, q1}));
        ASSERT_FALSE(isRight(s, RootCount::Two, {q2, q2}));
        for (const double past : {kJustPast, -kJustPast}) {
            for (const double other : {rootOne, rootTwo}) {
                const double near = (other == rootOne ? rootTwo : rootOne) + past;
                ASSERT_EQ(judge(s, {RootCount::Two, {near, other}}), (Judgement{{false, true}, false}));
                ASSERT_EQ(judge(s, {RootCount::Two, {other, near}}), (Judgement{{true, false}, false}));
            }
        }
        ASSERT_FALSE(isRight(s, RootCount::Double, {q1, q2}));
        ASSERT_FALSE(isRight(s, {}, {q1, q2}));
    }
    EXPECT_EQ(visited, 2250);
    EXPECT_EQ(counted[0] + counted[1] + counted[2], 2250);
    for (const int kind : counted) {
        EXPECT_GT(kind, 200);
    }
}

RC_GTEST_PROP(RoedderSeeds, StayWithinTheDrawnRanges, (std::uint64_t seed)) {
    SeededDraws draws(seed);
    RoedderState s;
    newExercise(s, draws);
    for (const float coefficient : {s.coefficients.a, s.coefficients.b, s.coefficients.c}) {
        RC_ASSERT(-5 <= coefficient);
        RC_ASSERT(coefficient <= 5);
        RC_ASSERT(coefficient == std::floor(coefficient));
    }
    RC_ASSERT(s.coefficients.a != 0);
    RC_ASSERT(s.polynomialText.find("+-") == std::string::npos);
}

TEST(RoedderSeeds, ReachEveryPattern) {
    std::set<std::string> shapes;
    SeededDraws draws(11);
    RoedderState s;
    for (int i = 0; i < 2000; ++i) {
        newExercise(s, draws);
        std::string shape;
        for (const float coefficient : {s.coefficients.a, s.coefficients.b, s.coefficients.c}) {
            shape += coefficient == 0 ? "0" : signOf(coefficient);
        }
        shapes.insert(shape);
    }
    EXPECT_EQ(shapes.size(), 18U);
}

TEST(RoedderSeeds, AreFrozenForAllBuildsAndProcessors) {
    SeededDraws draws(7);
    RoedderState s;
    std::string texts;
    for (int i = 0; i < 5; ++i) {
        newExercise(s, draws);
        texts += s.polynomialText + " " + NumberText(s.discriminant) + "|";
    }
    EXPECT_EQ(texts, "-4Q²+3Q 9|3Q²-4Q+5 -44|-2Q²+1Q 1|3Q²-1Q 1|-1Q²+5Q+1 29|");
}

}  // namespace
}  // namespace tavrune
