#include "topics/polynomial/rogt_exercise.h"

#include <cmath>
#include <functional>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/proof.h"
#include "support/scripted_draws.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::inBothMarks;
using test::kJustPast;
using test::Proof;
using test::ScriptedDraws;
using test::typedAgain;

/// The sizes in the order in which they are drawn, and the pattern.
struct Drawn {
    int a, b, c, patternCase;
};

std::string textOf(const Drawn& d) {
    std::ostringstream text;
    text << "a " << d.a << ", b " << d.b << ", c " << d.c << ", case " << d.patternCase;
    return text.str();
}

RogtState exercise(const Drawn& d, RogtState state = {}) {
    ScriptedDraws draws{cellOf(d.a - 1, 5), cellOf(d.b - 1, 5), cellOf(d.c - 1, 5),
                        cellOf(d.patternCase - 1, 18)};
    newExercise(state, draws);
    EXPECT_TRUE(draws.isUsedUp());
    EXPECT_EQ(draws.randomized(), 1);
    return state;
}

/// All that can be drawn.
void forEveryExercise(const std::function<void(const Drawn&, const RogtState&)>& check) {
    for (int a = 1; a <= 5; ++a) {
        for (int b = 1; b <= 5; ++b) {
            for (int c = 1; c <= 5; ++c) {
                for (int patternCase = 1; patternCase <= 18; ++patternCase) {
                    const Drawn drawn{a, b, c, patternCase};
                    SCOPED_TRACE(textOf(drawn));
                    check(drawn, exercise(drawn));
                }
            }
        }
    }
}

/// Reads "-1Q²+3Q-2" back term by term.
Polynomial read(const std::string& text) {
    Polynomial p;
    const std::string square = "Q²";
    const std::size_t end = text.find(square);
    p.a = std::stof(text.substr(0, end));
    std::string rest = text.substr(end + square.size());
    if (const std::size_t linear = rest.find('Q'); linear != std::string::npos) {
        p.b = std::stof(rest.substr(0, linear));
        rest = rest.substr(linear + 1);
    }
    if (!rest.empty()) {
        p.c = std::stof(rest);
    }
    return p;
}

/// What the boxes hold when the shown answer is typed as it stands.
std::vector<double> rootsIn(const RogtAnswer& answer) {
    return {typedAgain(answer.rootOne), typedAgain(answer.rootTwo)};
}

bool rootsAreRight(const RogtState& s, std::optional<RootCount> chosen, std::vector<double> roots) {
    roots.insert(roots.end(), {s.vertex.q, s.vertex.p});
    const RogtJudgement judgement = judge(s, {chosen, roots});
    EXPECT_TRUE(judgement.vertexIsRight);
    EXPECT_EQ(judgement.isSolved, judgement.rootsAreRight);
    EXPECT_TRUE(!judgement.isSolved || judgement == solvedIfAllRight({true, true, true, true}));
    return judgement.rootsAreRight;
}

/// Which coordinates of the vertex are right, beside right roots.
std::vector<bool> rightOf(const RogtState& s, double q, double p) {
    const RogtJudgement judgement =
        judge(s, {rootCountOf(s.discriminant), {s.roots.rootOne, s.roots.rootTwo, q, p}});
    EXPECT_TRUE(judgement.rootsAreRight);
    const std::vector<bool>& isRight = judgement.isRight;
    EXPECT_TRUE(isRight.at(0) && isRight.at(1));
    EXPECT_EQ(judgement.vertexIsRight, isRight.at(2) && isRight.at(3));
    EXPECT_EQ(judgement.isSolved, judgement.vertexIsRight);
    return {isRight.begin() + 2, isRight.end()};
}

TEST(RogtGenerator, DrawsAThenBThenCThenThePattern) {
    const RogtState s = exercise({2, 3, 4, 16});
    EXPECT_EQ(s.coefficients.a, -2);
    EXPECT_EQ(s.coefficients.b, -3);
    EXPECT_EQ(s.coefficients.c, 4);
    EXPECT_EQ(s.polynomialText, "-2Q²-3Q+4");
    EXPECT_EQ(s.discriminant, 41);
    EXPECT_EQ(s.roots.rootOne, (3 + std::sqrt(41.0)) / -4);
    EXPECT_EQ(s.roots.rootTwo, (3 - std::sqrt(41.0)) / -4);
    EXPECT_EQ(s.vertex.q, -0.75F);
    EXPECT_EQ(s.vertex.p, 5.125);
}

TEST(RogtGenerator, TakesTheEndsOfItsRanges) {
    const float most = test::kLargestDraw;
    EXPECT_EQ(test::exerciseOf<RogtState>({0, 0, 0, 0}).polynomialText, "1Q²+1Q+1");
    EXPECT_EQ(test::exerciseOf<RogtState>({most, most, most, most}).polynomialText, "-5Q²-5Q-5");
}

TEST(RogtGenerator, RejectsNothing) {
    ScriptedDraws draws;
    constexpr int kExercises = 18;
    for (int patternCase = 1; patternCase <= kExercises; ++patternCase) {
        draws.append({cellOf(0, 5), cellOf(0, 5), cellOf(0, 5), cellOf(patternCase - 1, 18)});
    }
    RogtState s;
    for (int i = 0; i < kExercises; ++i) {
        newExercise(s, draws);
        EXPECT_EQ(draws.used(), 4U * static_cast<std::size_t>(i + 1));
    }
    EXPECT_EQ(draws.randomized(), kExercises);
}

TEST(RogtGenerator, ReachesEverySizeAndEveryPattern) {
    SeededDraws draws(31);
    RogtState s;
    std::set<std::string> texts;
    for (int i = 0; i < 100'000; ++i) {
        newExercise(s, draws);
        texts.insert(s.polynomialText);
    }
    std::set<std::string> all;
    forEveryExercise(
        [&all](const Drawn& /*drawn*/, const RogtState& each) { all.insert(each.polynomialText); });
    EXPECT_EQ(texts, all);
    // Eight shapes of three terms, eight of two and two of one.
    EXPECT_EQ(all.size(), 8U * 125 + 8U * 25 + 2U * 5);
}

TEST(RogtGenerator, StoresTheSignsThatTheTaskShows) {
    forEveryExercise([](const Drawn& d, const RogtState& s) {
        const Polynomial shown = read(s.polynomialText);
        ASSERT_EQ(s.coefficients.a, shown.a);
        ASSERT_EQ(s.coefficients.b, shown.b);
        ASSERT_EQ(s.coefficients.c, shown.c);
        ASSERT_EQ(std::abs(shown.a), static_cast<float>(d.a));
        ASSERT_TRUE(shown.b == 0 || std::abs(shown.b) == static_cast<float>(d.b));
        ASSERT_TRUE(shown.c == 0 || std::abs(shown.c) == static_cast<float>(d.c));
        ASSERT_EQ(s.polynomialText.find("+-"), std::string::npos);
        ASSERT_EQ(s.polynomialText.find(' '), std::string::npos);
    });
}

TEST(RogtGenerator, LeavesTheNumberOfRootsToChance) {
    int two = 0;
    int twofold = 0;
    int none = 0;
    forEveryExercise([&](const Drawn& /*d*/, const RogtState& s) {
        const Polynomial& p = s.coefficients;
        const auto exact = static_cast<int>(p.b * p.b) - 4 * static_cast<int>(p.a) * static_cast<int>(p.c);
        ASSERT_EQ(s.discriminant, exact);
        two += exact > 0 ? 1 : 0;
        twofold += exact == 0 ? 1 : 0;
        none += exact < 0 ? 1 : 0;
    });
    EXPECT_EQ(two, 1330);
    EXPECT_EQ(twofold, 266);
    EXPECT_EQ(none, 654);
}

TEST(RogtGenerator, FindsRootsThatSolveThePolynomial) {
    forEveryExercise([](const Drawn& /*d*/, const RogtState& s) {
        if (s.discriminant < 0) {
            return;
        }
        ASSERT_NEAR(valueAt(s.coefficients, s.roots.rootOne), 0, 1e-9);
        ASSERT_NEAR(valueAt(s.coefficients, s.roots.rootTwo), 0, 1e-9);
        ASSERT_EQ(s.roots.rootOne == s.roots.rootTwo, s.discriminant == 0);
        // The larger root first for a parabola that opens upwards.
        ASSERT_EQ(s.roots.rootOne > s.roots.rootTwo, s.discriminant > 0 && s.coefficients.a > 0);
    });
}

TEST(RogtGenerator, FindsTheVertexRoundWhichTheParabolaIsSymmetric) {
    forEveryExercise([](const Drawn& /*d*/, const RogtState& s) {
        const double q = s.vertex.q;
        ASSERT_TRUE(std::isfinite(q) && std::isfinite(s.vertex.p));
        ASSERT_NEAR(valueAt(s.coefficients, q), s.vertex.p, 1e-5);
        ASSERT_NEAR(valueAt(s.coefficients, q + 2), valueAt(s.coefficients, q - 2), 1e-5);
    });
}

TEST(RogtGenerator, KeepsTheRootsOfAnEarlierPolynomialWhereItFindsNone) {
    const RogtState before = exercise({1, 3, 2, 6});
    const RogtState s = exercise({1, 1, 1, 1}, before);
    EXPECT_LT(s.discriminant, 0);
    EXPECT_EQ(s.roots.rootOne, before.roots.rootOne);
    const RogtAnswer answer = answerOf(s);
    EXPECT_EQ(answer.rootOne + answer.rootTwo, "");
}

TEST(RogtJudge, TakesEverySolutionAndNoNudgedOne) {
    constexpr double kNudge = kJustPast;
    forEveryExercise([](const Drawn& /*d*/, const RogtState& s) {
        const double q = s.vertex.q;
        const double p = s.vertex.p;
        ASSERT_EQ(rightOf(s, q, p), (std::vector{true, true}));
        ASSERT_EQ(rightOf(s, q + kNudge, p), (std::vector{false, true}));
        ASSERT_EQ(rightOf(s, q, p - kNudge), (std::vector{true, false}));
        ASSERT_EQ(rightOf(s, q - kNudge, p + kNudge), (std::vector{false, false}));

        const RootCount count = rootCountOf(s.discriminant);
        const auto [rootOne, rootTwo] = s.roots;
        for (const RootCount chosen : {RootCount::Two, RootCount::Double, RootCount::None}) {
            ASSERT_EQ(rootsAreRight(s, chosen, {rootOne, rootTwo}), chosen == count);
            ASSERT_EQ(rootsAreRight(s, chosen, {rootTwo, rootOne}), chosen == count);
            ASSERT_EQ(rootsAreRight(s, chosen, {rootOne, rootTwo + kNudge}),
                      chosen == count && count == RootCount::None);
        }
        ASSERT_FALSE(rootsAreRight(s, std::nullopt, {rootOne, rootTwo}));
        ASSERT_EQ(rootsAreRight(s, RootCount::Two, {rootOne, rootOne}), false);
    });
}

TEST(RogtJudge, IsOpenBelowAndClosedAbove) {
    const RogtState s = exercise({2, 2, 5, 1});  // (-0.5; 4.5)
    EXPECT_EQ(rightOf(s, -0.5 + 0.005, 4.5 + 0.005), (std::vector{true, true}));
    EXPECT_EQ(rightOf(s, -0.5 - 0.005, 4.5 - 0.005), (std::vector{false, false}));
}

TEST(RogtAnswer, IsJudgedRightButForItsNegativeHalves) {
    const auto isHalf = [](double x) {
        const double hundredths = std::abs(x) * 100;
        return hundredths - std::floor(hundredths) == 0.5;
    };
    Proof proof("Rogt", 18);
    int wrongQ = 0;
    int wrongP = 0;
    forEveryExercise([&](const Drawn& d, const RogtState& s) {
        proof.visit(Proof::From::WholeSpace, d.patternCase);
        const RogtAnswer answer = answerOf(s);
        ASSERT_TRUE(inBothMarks(
            [&s] { return rootsAreRight(s, rootCountOf(s.discriminant), rootsIn(answerOf(s))); }));
        const std::vector<bool> match = rightOf(s, typedAgain(answer.vertexQ), typedAgain(answer.vertexP));
        ASSERT_TRUE(inBothMarks([&] {
            const RogtAnswer shown = answerOf(s);
            return rightOf(s, typedAgain(shown.vertexQ), typedAgain(shown.vertexP)) == match;
        }));
        if (!match[0] || !match[1]) {
            proof.unsolvable("negative halves of the vertex shown rounded away from zero");
        }
        ASSERT_EQ(match[0], !(s.vertex.q < 0 && isHalf(s.vertex.q))) << answer.vertexQ;
        ASSERT_EQ(match[1], !(s.vertex.p < 0 && isHalf(s.vertex.p))) << answer.vertexP;
        wrongQ += match[0] ? 0 : 1;
        wrongP += match[1] ? 0 : 1;
    });
    EXPECT_EQ(wrongQ, 90);
    EXPECT_EQ(wrongP, 90);
}

TEST(RogtAnswer, ShowsANegativeHalfThatWouldBeWrongIfTyped) {
    const RogtState s = exercise({4, 1, 1, 3});  // 4Q²+1Q, vertex at -0.125
    EXPECT_EQ(s.vertex.q, -0.125F);
    const test::DecimalMark point(".");
    EXPECT_EQ(answerOf(s).vertexQ, "-0.13");
    EXPECT_FALSE(rightOf(s, -0.13, s.vertex.p)[0]);
    EXPECT_TRUE(rightOf(s, -0.12, s.vertex.p)[0]);
}

TEST(RogtAnswer, HasTwoDecimalsWithTheMarkInUse) {
    const RogtState s = exercise({2, 3, 4, 16});
    const test::DecimalMark comma(",");
    const RogtAnswer answer = answerOf(s);
    EXPECT_EQ(answer.rootOne, "-2,35");
    EXPECT_EQ(answer.rootTwo, "0,85");
    EXPECT_EQ(answer.vertexQ, "-0,75");
    EXPECT_EQ(answer.vertexP, "5,13");
}

TEST(RogtAnswer, ShowsNoSignAtAZero) {
    const RogtState s = exercise({1, 1, 1, 15});  // -1Q²
    const RogtAnswer answer = answerOf(s);
    EXPECT_EQ(answer.rootOne + answer.rootTwo + answer.vertexQ + answer.vertexP, "0000");
}

}  // namespace
}  // namespace tavrune
