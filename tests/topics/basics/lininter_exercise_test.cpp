#include "topics/basics/lininter_exercise.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/judged.h"
#include "support/proof.h"
#include "topics/basics/lininter_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::eachIs;
using test::eachTextIs;
using test::inBothMarks;
using test::kJustPast;
using test::kLargestDraw;
using test::Proof;
using test::Script;
using test::ScriptedDraws;
using test::typedAgain;
using test::lininter::coordinate;
using test::lininter::given;
using test::lininter::points;
using test::lininter::script;

/// The coordinates of the points in the order in which they are drawn.
std::array<float, 4> coordinatesOf(const LininterState& s) { return {s.Qa, s.Pa, s.Qb, s.Pb}; }

LininterState exercise(int qa, int pa, int qb, int pb, Coordinate which, int g) {
    return test::exerciseOf<LininterState>(script(qa, pa, qb, pb, which, g));
}

LininterState withTarget(float target) {
    LininterState state;
    state.target = target;
    return state;
}

/// An exercise whose first points are these; the ones that follow are accepted. True if the first are too.
bool areAccepted(int qa, int pa, int qb, int pb) {
    ScriptedDraws draws(points(qa, pa, qb, pb) + script(1, 2, 3, 6, Coordinate::Quantity, 4));
    LininterState s;
    newExercise(s, draws);
    return s.Qa == static_cast<float>(qa) && s.Pa == static_cast<float>(pa) &&
           s.Qb == static_cast<float>(qb) && s.Pb == static_cast<float>(pb);
}

TEST(LininterGenerator, DrawsTheFourCoordinatesThenTheDirectionThenTheGivenOne) {
    const LininterState s = exercise(1, 2, 3, 6, Coordinate::Quantity, 4);
    EXPECT_EQ(coordinatesOf(s), (std::array{1.0F, 2.0F, 3.0F, 6.0F}));
    EXPECT_EQ(s.lineSlope, 2);
    EXPECT_EQ(s.lineIntercept, 0);
    EXPECT_EQ(s.given, Coordinate::Quantity);
    EXPECT_EQ(s.givenQ, 4);
    EXPECT_EQ(s.target, 8);
}

TEST(LininterGenerator, AsksForQWhereTheDirectionDrawIsAHalfOrMore) {
    const LininterState s = exercise(1, 2, 3, 6, Coordinate::Price, 5);
    EXPECT_EQ(s.givenP, 5);
    EXPECT_EQ(s.target, 2.5F);

    const LininterState half = test::exerciseOf<LininterState>(
        {coordinate(1), coordinate(2), coordinate(3), coordinate(6), 0.5F, given(5)});
    EXPECT_EQ(half.given, Coordinate::Price);

    const LininterState justBelow = test::exerciseOf<LininterState>(
        {coordinate(1), coordinate(2), coordinate(3), coordinate(6), 0.49999997F, given(5)});
    EXPECT_EQ(justBelow.given, Coordinate::Quantity);
}

TEST(LininterGenerator, KeepsTheGivenCoordinateOfTheOtherDirection) {
    LininterState s = test::exerciseOf<LininterState>(script(1, 2, 3, 6, Coordinate::Quantity, 4));
    ScriptedDraws next(script(1, 2, 3, 6, Coordinate::Price, 5));
    newExercise(s, next);
    EXPECT_EQ(s.givenQ, 4);
    EXPECT_EQ(s.givenP, 5);
}

TEST(LininterGenerator, ReachesBothEndsOfEachRange) {
    const LininterState s =
        test::exerciseOf<LininterState>({0, kLargestDraw, kLargestDraw, 0, 0.25F, kLargestDraw});
    EXPECT_EQ(coordinatesOf(s), (std::array{1.0F, 10.0F, 10.0F, 1.0F}));
    EXPECT_EQ(s.givenQ, 8);
    EXPECT_EQ(s.target, 3);
}

TEST(LininterGenerator, ReseedsBeforeThePointsAndBeforeTheDirection) {
    const LininterState s =
        test::exerciseOf<LininterState>(script(1, 2, 3, 6, Coordinate::Quantity, 4), test::Reseeds{2});
    EXPECT_EQ(s.target, 8);
}

TEST(LininterGenerator, DrawsAllFourAgainWithReseedingWhileACoordinateIsShared) {
    const LininterState s = test::exerciseOf<LininterState>(
        points(3, 2, 3, 6) + points(1, 6, 3, 6) + script(1, 2, 3, 6, Coordinate::Quantity, 4),
        test::Reseeds{4});
    EXPECT_EQ(s.Qa, 1);
    EXPECT_EQ(s.target, 8);
}

TEST(LininterGenerator, DrawsAllFourAgainWithReseedingWhileTheLineIsTooSteepOrTooFlat) {
    const LininterState s = test::exerciseOf<LininterState>(
        points(1, 1, 2, 4) + points(1, 1, 6, 3) + script(1, 2, 3, 6, Coordinate::Quantity, 4),
        test::Reseeds{4});
    EXPECT_EQ(s.lineSlope, 2);
}

TEST(LininterGenerator, AllowsSlopesOfTwoAndAHalfAndOfAHalf) {
    EXPECT_TRUE(areAccepted(1, 1, 3, 6));
    EXPECT_TRUE(areAccepted(1, 6, 3, 1));
    EXPECT_TRUE(areAccepted(1, 1, 3, 2));
    EXPECT_TRUE(areAccepted(3, 1, 1, 2));
}

TEST(LininterGenerator, RejectsSlopesOfThreeAndOfTwoFifths) {
    EXPECT_FALSE(areAccepted(1, 1, 2, 4));
    EXPECT_FALSE(areAccepted(1, 4, 2, 1));
    EXPECT_FALSE(areAccepted(1, 1, 6, 3));
    EXPECT_FALSE(areAccepted(6, 1, 1, 3));
}

TEST(LininterGenerator, DrawsOnlyTheGivenCoordinateAgainWhileTheTargetIsSixteenOrMore) {
    // Q = 8 gives 16.
    const LininterState s = test::exerciseOf<LininterState>(
        script(1, 2, 3, 6, Coordinate::Quantity, 8) + Script{given(7)}, test::Reseeds{2});
    EXPECT_EQ(s.givenQ, 7);
    EXPECT_EQ(s.target, 14);
}

TEST(LininterGenerator, DrawsOnlyTheGivenCoordinateAgainInBothDirectionsAndBelowZero) {
    // Q = 1 gives -16.5.
    const LininterState s =
        test::exerciseOf<LininterState>(script(8, 1, 10, 6, Coordinate::Quantity, 1) + Script{given(2)});
    EXPECT_EQ(s.target, -14);

    // Q = 22 - 2P
    const LininterState far = test::exerciseOf<LininterState>(
        script(2, 10, 4, 9, Coordinate::Price, 1) + Script{given(3), given(4)}, test::Reseeds{2});
    EXPECT_EQ(far.givenP, 4);
    EXPECT_EQ(far.target, 14);
}

TEST(LininterGenerator, TakesATargetJustBelowSixteen) {
    // 16 by whole numbers; singles put it below.
    EXPECT_EQ(exercise(1, 2, 4, 9, Coordinate::Quantity, 7).target, 15.999999F);
}

TEST(LininterGenerator, ComputesInSingles) {
    const LininterState s = exercise(1, 2, 4, 7, Coordinate::Quantity, 8);
    const float slope = 5.0F / 3.0F;
    EXPECT_EQ(s.lineSlope, slope);
    EXPECT_EQ(s.lineIntercept, -slope * 1.0F + 2.0F);
    EXPECT_EQ(s.target, slope * 8.0F + s.lineIntercept);
    EXPECT_NE(static_cast<double>(s.target), 5.0 / 3 * 8 + 1.0 / 3);
}

TEST(LininterJudge, TakesTheHalfOpenBandRoundTheUnroundedTarget) {
    EXPECT_TRUE(eachTextIs(true, withTarget(3.125F), {"3.12001", "3.125", "3.13"}));
    EXPECT_TRUE(eachTextIs(false, withTarget(3.125F), {"3.12", "3.13001", "-3.125", ""}));
}

TEST(LininterJudge, TakesNothingTypedForAZero) {
    EXPECT_TRUE(eachTextIs(true, withTarget(0), {""}));
    EXPECT_TRUE(eachTextIs(true, withTarget(0.004F), {"abc"}));
    EXPECT_TRUE(eachTextIs(false, withTarget(0.0051F), {""}));
}

TEST(LininterTexts, NameThePointsAndTheTask) {
    const LininterState q = exercise(10, 2, 7, 6, Coordinate::Quantity, 4);
    EXPECT_EQ(textOfA(q), "A : ( 10 ; 2 )");
    EXPECT_EQ(textOfB(q), "B : ( 7 ; 6 )");
    EXPECT_STREQ(task(q).givenLetter, "Q");
    EXPECT_EQ(task(q).given, "4");
    EXPECT_STREQ(task(q).askedLetter, "P");

    const LininterState p = exercise(10, 2, 7, 6, Coordinate::Price, 5);
    EXPECT_STREQ(task(p).givenLetter, "P");
    EXPECT_EQ(task(p).given, "5");
    EXPECT_STREQ(task(p).askedLetter, "Q");
}

TEST(LininterTexts, GiveTheAnswerWithTwoDecimalsHalvesAwayFromZero) {
    EXPECT_EQ(answerText(withTarget(3.125F)), "3.13");
    EXPECT_EQ(answerText(withTarget(-3.125F)), "-3.13");
    EXPECT_EQ(answerText(withTarget(2.5F)), "2.5");
    EXPECT_EQ(answerText(withTarget(-4.8e-7F)), "0");
    const DecimalMark danish(",");
    EXPECT_EQ(answerText(withTarget(2.0F / 3)), "0,67");
}

void expectWorked(const LininterState& state, const LininterWorked& expected) {
    const LininterWorked worked = workedSolution(state);
    EXPECT_EQ(worked.numerator, expected.numerator);
    EXPECT_EQ(worked.denominator, expected.denominator);
    EXPECT_EQ(worked.ratio, expected.ratio);
    EXPECT_EQ(worked.result, expected.result);
}

TEST(LininterWorked, BearsTheChangesFromAToB) {
    expectWorked(exercise(1, 2, 4, 7, Coordinate::Quantity, 8),
                 {"7 - 2", "4 - 1", " = 1.67", "P=2 - ( 1 - 8 )·1.67 = 13.67"});

    expectWorked(exercise(1, 2, 4, 7, Coordinate::Price, 8),
                 {"4 - 1", "7 - 2", " = 0.6", "Q = 1 - ( 2 - 8 )·0.6 = 4.6"});
}

TEST(LininterWorked, WritesANegativeRatioInBrackets) {
    expectWorked(exercise(4, 6, 1, 8, Coordinate::Quantity, 8),
                 {"8 - 6", "1 - 4", " = -0.67", "P=6 - ( 4 - 8 )·(-0.67) = 3.33"});

    expectWorked(exercise(4, 6, 1, 8, Coordinate::Price, 1),
                 {"1 - 4", "8 - 6", " = -1.5", "Q = 4 - ( 6 - 1 )·(-1.5) = 11.5"});
}

TEST(LininterWorked, ComputesTheResultFromTheUnroundedRatio) {
    // 2 - (1 - 8) * 1.67 would be 13.69.
    EXPECT_EQ(workedSolution(exercise(1, 2, 4, 7, Coordinate::Quantity, 8)).result,
              "P=2 - ( 1 - 8 )·1.67 = 13.67");
}

TEST(LininterDrawing, CrossesAtTheTypedValueInTheGivenDirection) {
    EXPECT_EQ(crossOfTyped(exercise(1, 2, 3, 6, Coordinate::Quantity, 4), 1.5), crossAt(4, 1.5));
    EXPECT_EQ(crossOfTyped(exercise(1, 2, 3, 6, Coordinate::Price, 5), 1.5), crossAt(1.5, 5));
    const Cross expected{Segment{4 - 0.35, 8, 4 + 0.35, 8}, Segment{4, 8 - 0.35, 4, 8 + 0.35}};
    EXPECT_EQ(crossAt(4, 8), expected);
}

TEST(LininterDrawing, LeadsGuideLinesFromBothAxesToOnePointOfTheLine) {
    const std::array q{Segment{4, 0, 4, 8}, Segment{0, 8, 4, 8}};
    EXPECT_EQ(guideLines(exercise(1, 2, 3, 6, Coordinate::Quantity, 4)), q);
    const std::array p{Segment{0, 5, 2.5, 5}, Segment{2.5, 0, 2.5, 5}};
    EXPECT_EQ(guideLines(exercise(1, 2, 3, 6, Coordinate::Price, 5)), p);
}

TEST(LininterDrawing, EndsGuideLinesOnTheLineWhereSinglesPutItBesideTheGivenP) {
    const LininterState s = exercise(1, 1, 4, 3, Coordinate::Price, 6);
    EXPECT_EQ(s.target, 8.499999F);
    const std::array guides{Segment{0, 6, 8.499999F, 5.9999995F},
                            Segment{8.499999F, 0, 8.499999F, 5.9999995F}};
    EXPECT_EQ(guideLines(s), guides);
}

constexpr double kH = 0.35;
using Heads = std::array<Segment, 4>;

struct HeadRow {
    const char* name;
    LininterState (*make)();
    Heads judged;
    Heads given;
};

class LininterHeads : public testing::TestWithParam<HeadRow> {};

TEST_P(LininterHeads, PointFromTheGivenValueToTheAnswer) {
    const HeadRow& row = GetParam();
    EXPECT_EQ(arrowheads(row.make(), Occasion::Judged), row.judged);
    EXPECT_EQ(arrowheads(row.make(), Occasion::Given), row.given);
}

constexpr Heads kUp{Segment{4, 8, 4 - kH, 8 - kH}, Segment{4, 8, 4 + kH, 8 - kH}, Segment{0, 8, kH, 8 + kH},
                    Segment{0, 8, kH, 8 - kH}};
constexpr Heads kAstray{Segment{-12, -38, -12 - kH, -38 + kH}, Segment{-12, -38, -12 + kH, -38 + kH},
                        Segment{0, -12, kH, -12 + kH}, Segment{0, -12, kH, -12 - kH}};
constexpr Heads kDown{Segment{1, -12, 1 - kH, -12 + kH}, Segment{1, -12, 1 + kH, -12 + kH},
                      Segment{0, -12, kH, -12 + kH}, Segment{0, -12, kH, -12 - kH}};
constexpr Heads kRightwards{Segment{2.5, 5, 2.5 - kH, 5 + kH}, Segment{2.5, 5, 2.5 - kH, 5 - kH},
                            Segment{2.5, 0, 2.5 - kH, kH}, Segment{2.5, 0, 2.5 + kH, kH}};
constexpr Heads kLeftwards{Segment{-8, 1, -8 + kH, 1 + kH}, Segment{-8, 1, -8 + kH, 1 - kH},
                           Segment{-8, 0, -8 - kH, kH}, Segment{-8, 0, -8 + kH, kH}};

// The line through (1; 1) and (4; 3) at P = 6. In singles the point on it misses the given P by a digit.
constexpr double kQBeside = 8.499999F;
constexpr double kPBeside = 5.9999995F;
constexpr Heads kBeside{Segment{kQBeside, 6, kQBeside - kH, kPBeside + kH},
                        Segment{kQBeside, 6, kQBeside - kH, kPBeside - kH},
                        Segment{kQBeside, 0, kQBeside - kH, kH}, Segment{kQBeside, 0, kQBeside + kH, kH}};

INSTANTIATE_TEST_SUITE_P(
    Rows, LininterHeads,
    testing::Values(HeadRow{"QGivenTargetAbove", [] { return exercise(1, 2, 3, 6, Coordinate::Quantity, 4); },
                            kUp, kUp},
                    HeadRow{"QGivenTargetBelow",
                            [] { return exercise(9, 4, 10, 6, Coordinate::Quantity, 1); }, kAstray, kDown},
                    HeadRow{"PGivenTargetAbove", [] { return exercise(1, 2, 3, 6, Coordinate::Price, 5); },
                            kRightwards, kRightwards},
                    HeadRow{"PGivenTipBesideTheLine",
                            [] { return exercise(1, 1, 4, 3, Coordinate::Price, 6); }, kBeside, kBeside},
                    HeadRow{"PGivenTargetBelow", [] { return exercise(2, 6, 4, 7, Coordinate::Price, 1); },
                            kLeftwards, kLeftwards}),
    [](const auto& row) { return row.param.name; });

TEST(LininterDrawing, TakesAZeroForOneOfTheUpperRows) {
    const LininterState s = exercise(3, 1, 4, 2, Coordinate::Quantity, 2);
    ASSERT_EQ(s.target, 0);
    EXPECT_EQ(arrowheads(s, Occasion::Judged).front(), (Segment{2, 0, 2 - kH, -kH}));
}

/// An exercise of the whole space with its target by whole-number arithmetic, as a fraction.
struct SpacePoint {
    int qa, pa, qb, pb;
    Coordinate which;
    int given;
    int numerator;
    int denominator;

    [[nodiscard]] double exact() const { return static_cast<double>(numerator) / denominator; }
    [[nodiscard]] bool isOnTheEdge() const { return std::abs(numerator) == 16 * std::abs(denominator); }
    [[nodiscard]] bool isHalfHundredthBelowZero() const {
        return exact() < 0 && 1000 * numerator % denominator == 0 &&
               std::abs(1000 * numerator / denominator) % 10 == 5;
    }
};

/// Calls `visit` with every exercise whose target is 16 or less in size.
template <class Visit>
void forEachExercise(Visit visit) {
    for (int code = 0; code < 10'000; ++code) {
        const int qa = code / 1000 + 1;
        const int pa = code / 100 % 10 + 1;
        const int qb = code / 10 % 10 + 1;
        const int pb = code % 10 + 1;
        const int dq = qb - qa;
        const int dp = pb - pa;
        const bool isLine = dq != 0 && dp != 0 && 2 * std::abs(dp) <= 5 * std::abs(dq) &&
                            20 * std::abs(dp) >= 9 * std::abs(dq);
        for (int g = 1; isLine && g <= 8; ++g) {
            for (const SpacePoint& e :
                 {SpacePoint{qa, pa, qb, pb, Coordinate::Quantity, g, pa * dq + (g - qa) * dp, dq},
                  SpacePoint{qa, pa, qb, pb, Coordinate::Price, g, qa * dp + (g - pa) * dq, dp}}) {
                if (std::abs(e.numerator) <= 16 * std::abs(e.denominator)) {
                    visit(e);
                }
            }
        }
    }
}

/// What is drawn for an exercise, composed anew from its points: the line's value in singles, then the table
/// of guide lines and heads entry by entry.
struct Drawing {
    std::array<Segment, 2> guides;
    Heads judged;
    Heads given;
};

Drawing drawingOf(const SpacePoint& e) {
    const auto single = [](int value) { return static_cast<float>(value); };
    const float slope = single(e.pa - e.pb) / single(e.qa - e.qb);
    const float intercept = -slope * single(e.qa) + single(e.pa);
    const auto y = [&](float x) { return slope * x + intercept; };
    const float g = single(e.given);
    if (e.which == Coordinate::Quantity) {
        const float t = y(g);
        const Segment up{0, t, kH, t + kH};
        const Segment down{0, t, kH, t - kH};
        const std::array guides{Segment{g, 0, g, t}, Segment{0, t, g, t}};
        if (t < 0) {
            const float astray = y(t);
            return {
                guides,
                {Segment{t, astray, t - kH, astray + kH}, Segment{t, astray, t + kH, astray + kH}, up, down},
                {Segment{g, t, g - kH, t + kH}, Segment{g, t, g + kH, t + kH}, up, down}};
        }
        const Heads heads{Segment{g, t, g - kH, t - kH}, Segment{g, t, g + kH, t - kH}, up, down};
        return {guides, heads, heads};
    }
    const float t = (g - intercept) / slope;
    const double side = t < 0 ? kH : -kH;
    const Heads heads{Segment{t, g, t + side, y(t) + kH}, Segment{t, g, t + side, y(t) - kH},
                      Segment{t, 0, t - kH, kH}, Segment{t, 0, t + kH, kH}};
    return {{Segment{0, g, t, y(t)}, Segment{t, 0, t, y(t)}}, heads, heads};
}

/// True if the exercise can be drawn, which is then in `s`: singles reject most targets of just 16.
bool isDrawn(const SpacePoint& e, LininterState& s) {
    Script all = script(e.qa, e.pa, e.qb, e.pb, e.which, e.given);
    const std::size_t own = all.size();
    // One of the eight lies nearer to the points.
    for (int g = 1; g <= 8; ++g) {
        all.push_back(given(g));
    }
    ScriptedDraws draws(all);
    newExercise(s, draws);
    return draws.used() == own;
}

/// The number that a text ends in.
double lastNumber(const std::string& text) { return typedAgain(text.substr(text.rfind("= ") + 2)); }

/// True if the worked solution shows the points' differences, their ratio and the target.
bool isWorkedOut(const LininterState& s, const SpacePoint& e) {
    const LininterWorked worked = workedSolution(s);
    const std::string ofQ = std::to_string(e.qb) + " - " + std::to_string(e.qa);
    const std::string ofP = std::to_string(e.pb) + " - " + std::to_string(e.pa);
    const bool isQ = e.which == Coordinate::Quantity;
    const double dq = e.qb - e.qa;
    const double dp = e.pb - e.pa;
    return worked.numerator == (isQ ? ofP : ofQ) && worked.denominator == (isQ ? ofQ : ofP) &&
           std::abs(lastNumber(worked.ratio) - (isQ ? dp / dq : dq / dp)) < 0.00501 &&
           std::abs(lastNumber(worked.result) - e.exact()) < 0.00501;
}

TEST(LininterSpace, IsSolvedByItsOwnAndOnlyByItsOwnValue) {
    Proof proof("Lininter", 4);
    int visited = 0;
    int ownAnswerMissed = 0;
    forEachExercise([&](const SpacePoint& e) {
        LininterState s;
        const bool isTaken = isDrawn(e, s);
        ASSERT_TRUE(isTaken || e.isOnTheEdge());
        if (!isTaken) {
            return;
        }
        ++visited;
        proof.visit(Proof::From::WholeSpace,
                    (s.given == Coordinate::Quantity ? 0 : 2) + (s.target < 0 ? 1 : 0));
        const double own = typedAgain(answerText(s));
        const double exact = e.exact();

        const bool isOwnRight = judge(s, {own}).isSolved;
        if (!isOwnRight) {
            proof.unsolvable("negative halves shown rounded away from zero");
        }
        ownAnswerMissed += isOwnRight ? 0 : 1;
        bool holds = (isOwnRight || e.isHalfHundredthBelowZero()) && std::abs(s.target - exact) < 1e-5 &&
                     std::abs(own - exact) < 0.00501 && eachIs({true}, s, {{exact}, {s.target}}) &&
                     eachIs({false}, s, {{s.target + kJustPast}, {s.target - kJustPast}}) &&
                     inBothMarks([&] { return typedAgain(answerText(s)) == own && isWorkedOut(s, e); });

        const Drawing drawing = drawingOf(e);
        holds = holds && guideLines(s) == drawing.guides &&
                arrowheads(s, Occasion::Judged) == drawing.judged &&
                arrowheads(s, Occasion::Given) == drawing.given;
        ASSERT_TRUE(holds) << "A " << e.qa << ";" << e.pa << " B " << e.qb << ";" << e.pb << " given "
                           << (s.given == Coordinate::Quantity ? "Q " : "P ") << e.given;
    });
    // 78,696, and 8 on the edge.
    EXPECT_EQ(visited, 78'704);
    // Rounded away from zero they land on the open end of their own band.
    EXPECT_EQ(ownAnswerMissed, 2);
}

TEST(LininterSpace, RejectsATargetOfSixteenUnlessSinglesPutItBelow) {
    int onTheEdge = 0;
    int accepted = 0;
    forEachExercise([&](const SpacePoint& e) {
        if (!e.isOnTheEdge()) {
            return;
        }
        ++onTheEdge;
        LininterState s;
        const bool isTaken = isDrawn(e, s);
        ASSERT_LT(std::abs(s.target), 16);
        if (isTaken) {
            ++accepted;
            ASSERT_NEAR(std::abs(s.target), 16, 1e-5);
            ASSERT_EQ(answerText(s), e.exact() < 0 ? "-16" : "16");
            ASSERT_TRUE(judge(s, {e.exact()}).isSolved);
        }
    });
    EXPECT_EQ(onTheEdge, 364);
    EXPECT_EQ(accepted, 8);
}

double lineAtGiven(const LininterState& s) { return guideLines(s)[0].y2; }

TEST(LininterSpace, HoldsZerosThatSinglesPutBelowZero) {
    int zeros = 0;
    int below = 0;
    forEachExercise([&](const SpacePoint& e) {
        if (e.numerator != 0) {
            return;
        }
        ++zeros;
        const LininterState s = exercise(e.qa, e.pa, e.qb, e.pb, e.which, e.given);
        ASSERT_EQ(answerText(s), "0");
        ASSERT_TRUE(judge(s, {0}).isSolved);
        if (s.target < 0) {
            ++below;
            ASSERT_EQ(arrowheads(s, Occasion::Given)[0].y2, lineAtGiven(s) + kH);
        }
    });
    EXPECT_EQ(zeros, 1'420);
    EXPECT_EQ(below, 18);
}

TEST(LininterSeeds, AreFrozenForAllBuildsAndProcessors) {
    SeededDraws draws(7);
    LininterState s;
    std::string texts;
    for (int i = 0; i < 3; ++i) {
        newExercise(s, draws);
        texts += textOfA(s) + textOfB(s) + workedSolution(s).result + "\n";
    }
    EXPECT_EQ(texts,
              "A : ( 8 ; 5 )B : ( 6 ; 6 )P=5 - ( 8 - 7 )·(-0.5) = 5.5\n"
              "A : ( 3 ; 6 )B : ( 5 ; 2 )P=6 - ( 3 - 4 )·(-2) = 4\n"
              "A : ( 5 ; 7 )B : ( 10 ; 4 )Q = 5 - ( 7 - 5 )·(-1.67) = 8.33\n");
}

}  // namespace
}  // namespace tavrune
