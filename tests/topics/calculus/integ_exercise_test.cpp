#include "topics/calculus/integ_exercise.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <set>
#include <string>
#include <tuple>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/judged.h"
#include "support/proof.h"
#include "support/scripted_draws.h"
#include "topics/calculus/integ_reader.h"
#include "topics/calculus/integ_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::eachIs;
using test::eachTextIs;
using test::inBothMarks;
using test::IntegDraws;
using test::IntegReader;
using test::kJustPast;
using test::kLargestDraw;
using test::Proof;
using test::Script;
using test::ScriptedDraws;
using test::typedAgain;

constexpr int kShapes = 26;

/// p = 1Q²+1Q+1 from 1 to 2, which is accepted.
constexpr IntegDraws kAccepted{1, 1, 1, 2, 1, 1};

IntegState exercise(const IntegDraws& drawn) { return test::exerciseOf<IntegState>(drawn.script()); }

/// How many draws went by before the exercise that was drawn last.
std::size_t thrownAway(const Script& tried) {
    ScriptedDraws draws(tried + kAccepted.script());
    IntegState state;
    newExercise(state, draws);
    return draws.isUsedUp() ? tried.size() : 0;
}

/// The pieces of a row, with this between them.
std::string joined(const IntegRow& row, const std::string& between = "") {
    return row.cubicTerm + between + row.cube + between + row.quadraticTerm + between + row.square + between +
           row.linearTerm;
}

std::string withBars(const IntegRow& row) { return joined(row, "|"); }

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size()) {
        text.replace(at, what.size(), by);
    }
    return text;
}

/// A row of labels; the raised 2 or 3 that two shapes put behind the closing bracket counts as before it.
std::string readable(const IntegRow& row) { return replaced(replaced(joined(row), ")³", "³)"), ")²", "²)"); }

/// The integrand as it stands in its three labels, the middle one shown for a square only.
std::string integrandRow(const IntegState& s, const IntegWorked& worked) {
    return worked.integrandHead + (s.a != 0 ? "²" : "") + worked.integrandTail;
}

struct ShapeRow {
    int shape;
    const char* function;
    const char* functionInHelp;
    const char* integrandRow;
    const char* integrand;
    const char* primitive;
    const char* upper;
    const char* lower;
};

class IntegShapes : public testing::TestWithParam<ShapeRow> {};

TEST_P(IntegShapes, GiveEveryTextToTheLetter) {
    const ShapeRow& row = GetParam();
    const IntegState s = exercise({2, 3, 4, 5, 1, row.shape});
    const IntegWorked worked = workedSolution(s);
    EXPECT_EQ(functionText(s), row.function);
    EXPECT_EQ(worked.function, row.functionInHelp);
    EXPECT_EQ(integrandRow(s, worked), row.integrandRow);
    EXPECT_EQ(worked.integrand, row.integrand);
    EXPECT_EQ(withBars(worked.primitive), row.primitive);
    EXPECT_EQ(withBars(worked.upperWithLetters), row.upper);
    EXPECT_EQ(withBars(worked.lowerWithLetters), row.lower);
    EXPECT_EQ(withBars(worked.upperWithNumbers), replaced(row.upper, "w", "5"));
    EXPECT_EQ(withBars(worked.lowerWithNumbers), replaced(row.lower, "v", "1"));
}

// One shape a line.
// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Rows, IntegShapes,
    testing::Values(
        ShapeRow{1, "2Q²+3Q+4", "2Q²+3Q+4", "(2Q²+3Q + 4)", "(2Q²+3Q+4)", "(2/3)·Q|³|+(3/2)·Q|²|+4·Q", "((2/3)·w|³|+(3/2)·w|²|+4·w)", "- ((2/3)·v|³|+(3/2)·v|²|+4·v)"},
        ShapeRow{2, "2Q²", "2Q²", "(2Q²)", "(2Q²)", "(2/3)·Q|³|||", "((2/3)·w)|³|||", "- ((2/3)·v)|³|||"},
        ShapeRow{3, "2Q²+3Q", "2Q²+3Q", "(2Q²+3Q)", "(2Q²+3Q)", "(2/3)·Q|³|+(3/2)·Q|²|", "((2/3)·w|³|+(3/2)·w)|²|", "- ((2/3)·v|³|+(3/2)·v)|²|"},
        ShapeRow{4, "2Q²+4", "2Q²+4", "(2Q²+4)", "(2Q²+4)", "(2/3)·Q|³|||+4·Q", "((2/3)·w|³|||+4·w)", "- ((2/3)·v|³|||+4·v)"},
        ShapeRow{5, "3Q+4", "3Q+4", "(3Q + 4)", "(3Q+4)", "||(3/2)·Q|²|+4·Q", "||((3/2)·w|²|+4·w)", "||- ((3/2)·v|²|+4·v)"},
        ShapeRow{6, "3Q-4", "3Q - 4", "(3Q -4)", "(3Q-4)", "||(3/2)·Q|²|-4·Q", "||((3/2)·w|²|-4·w)", "||- ((3/2)·v|²|-4·v)"},
        ShapeRow{7, "-3Q-4", "-3Q - 4", "(-3Q -4)", "(-3Q-4)", "||(-3/2)·Q|²|-4·Q", "||((-3/2)·w|²|-4·w)", "||- ((-3/2)·v|²|-4·v)"},
        ShapeRow{8, "-3Q+4", "-3Q + 4", "(-3Q + 4)", "(-3Q+4)", "||(-3/2)·Q|²|+4·Q", "||((-3/2)·w|²|+4·w)", "||- ((-3/2)·v|²|+4·v)"},
        ShapeRow{9, "-3Q", "-3Q", "-3Q", "-3Q", "||(-3/2)·Q|²|", "||((-3/2)·w|²|)", "||- ((-3/2)·v|²|)"},
        ShapeRow{10, "3Q", "3Q", "3Q", "3Q", "||(3/2)·Q|²|", "||((3/2)·w|²|)", "||- ((3/2)·v|²|)"},
        ShapeRow{11, "4", "4", "4", "4", "||||4·Q", "||||(4·w)", "-(4·v)||||"},
        ShapeRow{12, "-4", "-4", "-4", "-4", "||||-4·Q", "||||((-4)·w)", "- ((-4)·v)||||"},
        ShapeRow{13, "2Q²+3Q-4", "2Q²+3Q-4", "(2Q²+3Q -4)", "(2Q²+3Q-4)", "(2/3)·Q|³|+(3/2)·Q|²|-4·Q", "((2/3)·w|³|+(3/2)·w|²|-4·w)", "- ((2/3)·v|³|+(3/2)·v|²|-4·v)"},
        ShapeRow{14, "2Q²-3Q+4", "2Q²-3Q+4", "(2Q² -3Q + 4)", "(2Q²-3Q+4)", "(2/3)·Q|³|-(3/2)·Q|²|+4·Q", "((2/3)·w|³|-(3/2)·w|²|+4·w)", "- ((2/3)·v|³|-(3/2)·v|²|+4·v)"},
        ShapeRow{15, "2Q²-4", "2Q²-4", "(2Q² -4)", "(2Q²-4)", "(2/3)·Q|³|||-4·Q", "((2/3)·w|³|||-4·w)", "- ((2/3)·v|³|||-4·v)"},
        ShapeRow{16, "2Q²-3Q", "2Q²-3Q", "(2Q² -3Q)", "(2Q²-3Q)", "(2/3)·Q|³|-(3/2)·Q|²|", "((2/3)·w|³|-(3/2)·w|²|)", "- ((2/3)·v|³|-(3/2)·v|²|)"},
        ShapeRow{17, "2Q²-3Q-4", "2Q²-3Q-4", "(2Q² -3Q -4)", "(2Q²-3Q-4)", "(2/3)·Q|³|-(3/2)·Q|²|-4·Q", "((2/3)·w|³|-(3/2)·w|²|-4·w)", "- ((2/3)·v|³|-(3/2)·v|²|-4·v)"},
        ShapeRow{18, "-2Q²+3Q+4", "-2Q²+3Q+4", "(-2Q²+3Q + 4)", "(-2Q²+3Q+4)", "(-2/3)·Q|³|+(3/2)·Q|²|+4·Q", "((-2/3)·w|³|+(3/2)·w|²|+4·w)", "- ((-2/3)·v|³|+(3/2)·v|²|+4·v)"},
        ShapeRow{19, "-2Q²+3Q", "-2Q²+3Q", "(-2Q²+3Q)", "(-2Q²+3Q)", "(-2/3)·Q|³|+(3/2)·Q|²|", "((-2/3)·w|³|+(3/2)·w|²|)", "- ((-2/3)·v|³|+(3/2)·v|²|)"},
        ShapeRow{20, "-2Q²+3Q-4", "-2Q²+3Q-4", "(-2Q²+3Q -4)", "(-2Q²+3Q-4)", "(-2/3)·Q|³|+(3/2)·Q|²|-4·Q", "((-2/3)·w|³|+(3/2)·w|²|-4·w)", "- ((-2/3)·v|³|+(3/2)·v|²|-4·v)"},
        ShapeRow{21, "-2Q²+4", "-2Q²+4", "(-2Q²+4)", "(-2Q²+4)", "(-2/3)·Q|³|||+4·Q", "((-2/3)·w|³|||+4·w)", "- ((-2/3)·v|³|||+4·v)"},
        ShapeRow{22, "-2Q²-4", "-2Q²-4", "(-2Q² -4)", "(-2Q²-4)", "(-2/3)·Q|³|||-4·Q", "((-2/3)·w|³|||-4·w)", "- ((-2/3)·v|³|||-4·v)"},
        ShapeRow{23, "-2Q²", "-2Q²", "(-2Q²)", "(-2Q²)", "(-2/3)·Q|³|||", "((-2/3)·w|³|||)", "- ((-2/3)·v|³|||)"},
        ShapeRow{24, "-2Q²-3Q+4", "-2Q²-3Q+4", "(-2Q² -3Q + 4)", "(-2Q²-3Q+4)", "(-2/3)·Q|³|-(3/2)·Q|²|+4·Q", "((-2/3)·w|³|-(3/2)·w|²|+4·w)", "- ((-2/3)·v|³|-(3/2)·v|²|+4·v)"},
        ShapeRow{25, "-2Q²-3Q", "-2Q²-3Q", "(-2Q² -3Q)", "(-2Q²-3Q)", "(-2/3)·Q|³|-(3/2)·Q|²|", "((-2/3)·w|³|-(3/2)·w|²|)", "- ((-2/3)·v|³|-(3/2)·v|²|)"},
        ShapeRow{26, "-2Q²-3Q-4", "-2Q²-3Q-4", "(-2Q² -3Q -4)", "(-2Q²-3Q-4)", "(-2/3)·Q|³|-(3/2)·Q|²|-4·Q", "((-2/3)·w|³|-(3/2)·w|²|-4·w)", "- ((-2/3)·v|³|-(3/2)·v|²|-4·v)"}),
    [](const auto& row) { return "Shape" + std::to_string(row.param.shape); });
// clang-format on

TEST(IntegGenerator, DrawsTheThreeSizesThenTheLimitsThenTheShape) {
    const IntegState s = exercise({3, 2, 5, 6, 4, 17});
    EXPECT_EQ(s.a, 3);
    EXPECT_EQ(s.b, -2);
    EXPECT_EQ(s.c, -5);
    EXPECT_EQ(s.w, 6);
    EXPECT_EQ(s.v, 4);
    EXPECT_EQ(s.shape, 17);
    EXPECT_EQ(s.integral, 122);
}

TEST(IntegGenerator, ReachesBothEndsOfEachRange) {
    IntegState s = test::exerciseOf<IntegState>({0, 0, 0, test::cellOf(1, 7), 0, 0});
    EXPECT_EQ(functionText(s), "1Q²+1Q+1");
    EXPECT_EQ(s.w, 2);
    EXPECT_EQ(s.v, 1);

    // 4Q²+4Q+5 is far beyond 60 at 6, a linear p is not.
    const float top = kLargestDraw;
    s = test::exerciseOf<IntegState>({top, top, top, top, top, test::cellOf(4, 26)});
    EXPECT_EQ(functionText(s), "4Q+5");
    EXPECT_EQ(s.w, 7);
    EXPECT_EQ(s.v, 6);

    s = test::exerciseOf<IntegState>({top, top, top, top, 0, top});
    EXPECT_EQ(functionText(s), "-4Q²-4Q-5");
}

TEST(IntegGenerator, ThrowsLimitsInTheWrongOrderAwayBeforeTheShapeIsDrawn) {
    for (const auto& [w, v] : {std::pair{1, 1}, std::pair{1, 2}, std::pair{6, 6}, std::pair{3, 6}}) {
        EXPECT_EQ(thrownAway(IntegDraws{1, 1, 1, w, v, 1}.scriptOfLimits()), 5U) << w << " " << v;
    }
}

TEST(IntegGenerator, DrawsAllSixAgainWherePIsBeyondSixtyAtTheLowerLimit) {
    EXPECT_EQ(thrownAway(IntegDraws{4, 1, 1, 5, 4, 1}.script()), 6U);
    EXPECT_EQ(thrownAway(IntegDraws{4, 1, 1, 5, 4, 26}.script()), 6U);
    EXPECT_EQ(exercise({3, 3, 3, 5, 4, 2}).integral, 61);
}

TEST(IntegGenerator, AllowsSixtyAtTheLowerLimitAndAnythingAtTheUpperOne) {
    // 2Q²+1Q+5 is 60 at 5; 2Q²+2Q+1 is 61.
    EXPECT_EQ(valueAt(exercise({2, 1, 5, 6, 5, 1}), 5), 60);
    EXPECT_EQ(thrownAway(IntegDraws{2, 2, 1, 6, 5, 1}.script()), 6U);
    EXPECT_EQ(valueAt(exercise({2, 1, 5, 6, 5, 26}), 5), -60);
    EXPECT_EQ(thrownAway(IntegDraws{2, 2, 1, 6, 5, 26}.script()), 6U);
    EXPECT_EQ(valueAt(exercise({4, 4, 5, 7, 1, 1}), 7), 229);
}

TEST(IntegGenerator, ReseedsBeforeEachTry) {
    const IntegState s =
        test::exerciseOf<IntegState>(IntegDraws{1, 1, 1, 1, 3, 1}.scriptOfLimits() +
                                         IntegDraws{4, 1, 1, 5, 4, 1}.script() + kAccepted.script(),
                                     test::Reseeds{3});
    EXPECT_EQ(functionText(s), "1Q²+1Q+1");
}

TEST(IntegGenerator, DividesSinglesAndRaisesDoubles) {
    const IntegState s = exercise({1, 1, 1, 7, 6, 2});
    const double third = 1.0F / 3;
    EXPECT_EQ(s.integral, third * 343 - third * 216);
    EXPECT_NE(s.integral, 343 / 3.0 - 216 / 3.0);
}

TEST(IntegJudge, IsOpenBelowAndClosedAboveRoundTheUnroundedIntegral) {
    for (const int shape : {1, 2, 9, 12, 26}) {
        const IntegState s = exercise({1, 3, 2, 4, 2, shape});
        EXPECT_TRUE(eachIs({true}, s, {{s.integral + 0.005}, {s.integral - 0.0049}, {s.integral}})) << shape;
        EXPECT_TRUE(eachIs({false}, s, {{s.integral - 0.005}, {s.integral + 0.0051}})) << shape;
    }
}

TEST(IntegJudge, WantsTwoDecimalsOfAThird) {
    // 1Q² from 1 to 2: 7/3.
    const IntegState s = exercise({1, 1, 1, 2, 1, 2});
    EXPECT_TRUE(eachTextIs(true, s, {"2.33", "2.3333"}));
    EXPECT_TRUE(eachTextIs(false, s, {"2.3", "2.34"}));
}

TEST(IntegJudge, TakesNothingTypedForZero) {
    // 1Q-3 from 2 to 4.
    const IntegState s = exercise({1, 1, 3, 4, 2, 6});
    EXPECT_EQ(s.integral, 0);
    EXPECT_TRUE(eachTextIs(true, s, {""}));
    EXPECT_EQ(answerText(s), "0");
}

TEST(IntegTexts, GiveTheValueWithTwoDecimalsAndTheMarkInUse) {
    const DecimalMark danish(",");
    const IntegState s = exercise({1, 1, 1, 2, 1, 2});
    EXPECT_EQ(answerText(s), "2,33");
    EXPECT_EQ(workedSolution(s).value, "= 2,33");
    // -7/3 - 3/2
    EXPECT_EQ(workedSolution(exercise({1, 1, 1, 2, 1, 25})).value, "= -3,83");
    EXPECT_EQ(workedSolution(exercise({1, 1, 3, 4, 2, 12})).value, "= -6");
}

TEST(IntegTexts, PrintALoneNegativeConstantWithItsSign) {
    const IntegState s = exercise({1, 1, 3, 4, 2, 12});
    EXPECT_EQ(functionText(s), "-3");
    EXPECT_EQ(s.c, -3);
}

/// A set of draws with what is to come of it, by whole-number arithmetic.
struct SpacePoint {
    IntegDraws drawn;
    int a, b, c;

    [[nodiscard]] int pAt(int q) const { return a * q * q + b * q + c; }
    [[nodiscard]] double exactPAt(double q) const { return a * q * q + b * q + c; }
    [[nodiscard]] bool hasLimitsInOrder() const { return drawn.w > drawn.v; }
    [[nodiscard]] bool isAccepted() const { return hasLimitsInOrder() && std::abs(pAt(drawn.v)) <= 60; }
    /// Exact for a p of the second degree.
    [[nodiscard]] double bySimpson() const {
        const double middle = (drawn.w + drawn.v) / 2.0;
        return (drawn.w - drawn.v) / 6.0 * (pAt(drawn.v) + 4 * exactPAt(middle) + pAt(drawn.w));
    }
};

SpacePoint pointOf(const IntegDraws& drawn) {
    constexpr std::array<std::array<int, 3>, kShapes> kSigns{{
        {1, 1, 1},   {1, 0, 0},  {1, 1, 0},   {1, 0, 1},   {0, 1, 1},    {0, 1, -1},  {0, -1, -1},
        {0, -1, 1},  {0, -1, 0}, {0, 1, 0},   {0, 0, 1},   {0, 0, -1},   {1, 1, -1},  {1, -1, 1},
        {1, 0, -1},  {1, -1, 0}, {1, -1, -1}, {-1, 1, 1},  {-1, 1, 0},   {-1, 1, -1}, {-1, 0, 1},
        {-1, 0, -1}, {-1, 0, 0}, {-1, -1, 1}, {-1, -1, 0}, {-1, -1, -1},
    }};
    const auto& [a, b, c] = kSigns.at(static_cast<std::size_t>(drawn.shape - 1));
    return {drawn, a * drawn.a, b * drawn.b, c * drawn.c};
}

/// Calls `visit` with every set of draws: 4 · 4 · 5 sizes, 7 · 6 limits, 26 shapes.
template <class Visit>
void forEachDraw(Visit visit) {
    for (int cell = 0; cell < 4 * 4 * 5 * 7 * 6 * kShapes; ++cell) {
        int rest = cell;
        const auto next = [&rest](int cells) {
            const int drawn = rest % cells + 1;
            rest /= cells;
            return drawn;
        };
        const int shape = next(kShapes);
        const int v = next(6);
        const int w = next(7);
        const int c = next(5);
        const int b = next(4);
        const int a = next(4);
        visit(pointOf({a, b, c, w, v, shape}));
    }
}

template <class Visit>
void forEachExercise(Visit visit) {
    forEachDraw([&](const SpacePoint& point) {
        if (point.isAccepted()) {
            visit(point, exercise(point.drawn));
        }
    });
}

TEST(IntegSpace, ThrowsAwayJustWhatHasNoOrderedLimitsOrIsBeyondSixty) {
    int accepted = 0;
    int beyond = 0;
    forEachDraw([&](const SpacePoint& point) {
        if (!point.hasLimitsInOrder()) {
            return;
        }
        ++(point.isAccepted() ? accepted : beyond);
        ScriptedDraws draws(point.drawn.script() + kAccepted.script());
        IntegState s;
        newExercise(s, draws);
        ASSERT_EQ(draws.used(), point.isAccepted() ? 6U : 12U) << functionText(s);
    });
    EXPECT_EQ(accepted + beyond, 4 * 4 * 5 * 21 * kShapes);
    EXPECT_EQ(beyond, 3'304);
}

TEST(IntegSpace, ReachesEveryShapeAndEveryPairOfLimits) {
    std::set<int> shapes;
    std::set<std::tuple<float, float, float>> functions;
    std::set<std::pair<float, float>> limits;
    forEachExercise([&](const SpacePoint& point, const IntegState& s) {
        ASSERT_EQ(std::tuple(s.a, s.b, s.c), std::tuple(point.a, point.b, point.c));
        ASSERT_EQ(s.w, point.drawn.w);
        ASSERT_EQ(s.v, point.drawn.v);
        shapes.insert(s.shape);
        functions.insert({s.a, s.b, s.c});
        limits.insert({s.w, s.v});
    });
    EXPECT_EQ(shapes.size(), 26U);
    EXPECT_EQ(limits.size(), 21U);
    // Signed sizes of a, b and c, each 0 too, without the three zeros.
    EXPECT_EQ(functions.size(), 9U * 9 * 11 - 1);
}

TEST(IntegSpace, HasWholeLimitsTheLowerAtLeastOneAndLessThanTheUpper) {
    forEachExercise([](const SpacePoint&, const IntegState& s) {
        ASSERT_EQ(s.v, std::floor(s.v)) << functionText(s);
        ASSERT_EQ(s.w, std::floor(s.w)) << functionText(s);
        ASSERT_GE(s.v, 1) << functionText(s);
        ASSERT_LT(s.v, s.w) << functionText(s);
        ASSERT_LE(s.w, 7) << functionText(s);
    });
}

TEST(IntegSpace, AgreesWithSimpsonsRule) {
    forEachExercise([](const SpacePoint& point, const IntegState& s) {
        // A third as a single is off in its eighth digit.
        ASSERT_NEAR(s.integral, point.bySimpson(), 3e-5) << functionText(s);
        ASSERT_EQ(valueAt(s, point.drawn.w), point.pAt(point.drawn.w)) << functionText(s);
        ASSERT_EQ(valueAt(s, 1.5), point.exactPAt(1.5)) << functionText(s);
    });
}

TEST(IntegSpace, IsSolvedByItsShownAnswerAndByNothingBesideIt) {
    Proof proof("Integ", 26);
    forEachExercise([&proof](const SpacePoint& point, const IntegState& s) {
        proof.visit(Proof::From::WholeSpace, s.shape);
        const double shown = Val(answerText(s));
        ASSERT_NEAR(shown, point.bySimpson(), 0.00501) << functionText(s);
        ASSERT_TRUE(judge(s, {shown}).isSolved) << functionText(s);
        ASSERT_TRUE(inBothMarks([&] { return typedAgain(answerText(s)) == shown; })) << functionText(s);
        ASSERT_TRUE(eachIs(
            {false}, s, {{shown + 0.01}, {shown - 0.01}, {s.integral + kJustPast}, {s.integral - kJustPast}}))
            << functionText(s);
        ASSERT_EQ(workedSolution(s).value, "= " + answerText(s));
    });
}

TEST(IntegSpace, ReadsItsFunctionBackFromEveryText) {
    forEachExercise([](const SpacePoint& point, const IntegState& s) {
        const IntegWorked worked = workedSolution(s);
        for (const std::string& text : {functionText(s), worked.function, worked.integrand}) {
            // Three points tell a p of the second degree.
            for (const int q : {-1, 2, 3}) {
                ASSERT_EQ(IntegReader::valueOf(text, {.Q = static_cast<double>(q)}), point.pAt(q)) << text;
            }
            ASSERT_EQ(text.find("+-"), std::string::npos) << text;
        }
        // Behind a blank a minus is both the sign of its term and of its number.
        const std::string row = integrandRow(s, worked);
        ASSERT_EQ(IntegReader::valueOf(row, {.Q = 3}), point.pAt(3)) << row;
        ASSERT_EQ(worked.integrandTail.empty(), point.a == 0) << row;
        ASSERT_EQ(replaced(row, " ", ""), worked.integrand);
    });
}

TEST(IntegSpace, ReadsItsIntegralBackFromThePrimitiveAndFromBothDifferences) {
    forEachExercise([](const SpacePoint& point, const IntegState& s) {
        const IntegWorked worked = workedSolution(s);
        const double w = point.drawn.w;
        const double v = point.drawn.v;
        const double integral = point.bySimpson();
        const std::string primitive = joined(worked.primitive);
        const double atW = IntegReader::valueOf(primitive, {.Q = w});
        ASSERT_NEAR(atW - IntegReader::valueOf(primitive, {.Q = v}), integral, 1e-9) << primitive;

        const std::string upper = readable(worked.upperWithLetters);
        const std::string lower = readable(worked.lowerWithLetters);
        ASSERT_NEAR(IntegReader::valueOf(upper, {.w = w}), atW, 1e-9) << upper;
        ASSERT_NEAR(IntegReader::valueOf(upper + lower, {.w = w, .v = v}), integral, 1e-9) << upper + lower;

        const std::string numbers = readable(worked.upperWithNumbers) + readable(worked.lowerWithNumbers);
        ASSERT_NEAR(IntegReader::valueOf(numbers), integral, 1e-9) << numbers;
        for (const std::string& text : {primitive, upper + lower, numbers}) {
            ASSERT_EQ(text.find("+-"), std::string::npos) << text;
        }
    });
}

RC_GTEST_PROP(IntegGenerator, DrawsFromAnySeedWhatItsOwnAnswerSolves, (std::uint64_t seed)) {
    SeededDraws draws(seed);
    IntegState s;
    newExercise(s, draws);
    RC_ASSERT(std::isfinite(s.integral));
    RC_ASSERT(std::abs(valueAt(s, s.v)) <= 60);
    RC_ASSERT(judge(s, {Val(answerText(s))}).isSolved);
}

}  // namespace
}  // namespace tavrune
