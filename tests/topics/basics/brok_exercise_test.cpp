#include "topics/basics/brok_exercise.h"

#include <cmath>
#include <numeric>
#include <set>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "numeric/text.h"
#include "support/judged.h"
#include "support/proof.h"
#include "support/scripted_draws.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::eachIs;
using test::Proof;
using test::typedAgain;

/// The draw that gives this part of a fraction.
float part(int value) { return cellOf(value + 10, 20); }

using enum Operation;

float type(Operation t) { return cellOf(static_cast<int>(t), 4); }

BrokState exercise(int a, int b, int c, int d, Operation t) {
    return test::exerciseOf<BrokState>({part(a), part(b), part(c), part(d), type(t)});
}

BrokState withResult(double numerator, double denominator) {
    BrokState state;
    state.resultNumerator = numerator;
    state.resultDenominator = denominator;
    return state;
}

TEST(BrokGenerator, DrawsFourPartsThenTheType) {
    const BrokState s = exercise(-10, 9, 3, -1, Subtract);
    EXPECT_EQ(s.numeratorA, -10);
    EXPECT_EQ(s.denominatorB, 9);
    EXPECT_EQ(s.numeratorC, 3);
    EXPECT_EQ(s.denominatorD, -1);
    EXPECT_EQ(s.operation, Subtract);
}

TEST(BrokGenerator, DrawsAllFourAgainWithoutReseedingWhileOneIsZero) {
    const BrokState s = test::exerciseOf<BrokState>(
        {part(1), part(0), part(3), part(4), part(5), part(6), part(7), part(8), type(Multiply)},
        test::Reseeds{1});
    EXPECT_EQ(s.numeratorA, 5);
    EXPECT_EQ(s.denominatorD, 8);
}

TEST(BrokGenerator, StartsOverWithReseedingWhileTheResultIsZero) {
    const BrokState s = test::exerciseOf<BrokState>(
        {part(1), part(2), part(1), part(2), type(Subtract), part(1), part(2), part(1), part(2), type(Add)},
        test::Reseeds{2});
    EXPECT_EQ(s.operation, Add);
}

struct TypeRow {
    const char* name;
    Operation type;
    int a, b, c, d;
    const char* sign;
    double numerator, denominator;
};

class BrokTypes : public testing::TestWithParam<TypeRow> {};

TEST_P(BrokTypes, StoreTheResultAsComputed) {
    const TypeRow& row = GetParam();
    const BrokState s = exercise(row.a, row.b, row.c, row.d, row.type);
    EXPECT_EQ(s.operation, row.type);
    EXPECT_EQ(operatorSign(s.operation), row.sign);
    EXPECT_EQ(s.resultNumerator, row.numerator);
    EXPECT_EQ(s.resultDenominator, row.denominator);
}

INSTANTIATE_TEST_SUITE_P(Rows, BrokTypes,
                         testing::Values(TypeRow{"Difference", Subtract, 1, 2, 1, 3, "-", 1, 6},
                                         TypeRow{"DifferenceWithOneDenominator", Subtract, 1, 4, 3, 4, "-",
                                                 -2, 4},
                                         TypeRow{"Sum", Add, 1, 2, 1, 3, "+", 5, 6},
                                         TypeRow{"SumOverOneDenominator", Add, 1, 2, 1, 2, "+", 2, 2},
                                         TypeRow{"Product", Multiply, -2, 3, 4, -5, "*", -8, -15},
                                         TypeRow{"Quotient", Divide, 2, 3, 4, 5, "/", 10, 12}),
                         [](const auto& row) { return row.param.name; });

TEST(BrokJudge, TakesAnyFractionOfTheSameValueAndNeitherNumberOfAnother) {
    const BrokState s = withResult(3, 4);
    EXPECT_TRUE(eachIs({true, true}, s, {{3, 4}, {6, 8}, {-3, -4}, {0.75, 1}}));
    EXPECT_TRUE(eachIs({false, false}, s, {{-3, 4}, {4, 3}, {0, 4}, {0.7500001, 1}}));
}

TEST(BrokReduction, OfAnEqualPairIsOne) {
    EXPECT_EQ(reductionText(withResult(2, 2), 2).whole, "1");
    EXPECT_EQ(reductionText(withResult(-2, 2), -2).whole, "-1");
}

TEST(BrokReduction, OfAMultipleIsTheWholeNumber) {
    EXPECT_EQ(reductionText(withResult(-12, 6), -12).whole, "-2");
    EXPECT_EQ(reductionText(withResult(12, 6), 12).whole, "2");
    EXPECT_EQ(reductionText(withResult(5, -1), 5).whole, "-5");
}

TEST(BrokReduction, IsShownForAnUnreducedAnswerOnly) {
    const ReductionText unreduced = reductionText(withResult(6, 8), 6);
    ASSERT_TRUE(unreduced.fraction);
    EXPECT_EQ(unreduced.fraction->numerator, "3");
    EXPECT_EQ(unreduced.fraction->denominator, "4");
    EXPECT_FALSE(unreduced.whole);

    const ReductionText reducedAlready = reductionText(withResult(6, 8), 3);
    EXPECT_FALSE(reducedAlready.fraction);
    EXPECT_FALSE(reducedAlready.whole);
}

TEST(BrokReduction, CarriesTheSignInTheNumerator) {
    const ReductionText text = reductionText(withResult(3, -4), 3);
    ASSERT_TRUE(text.fraction);
    EXPECT_EQ(text.fraction->numerator, "-3");
    EXPECT_EQ(text.fraction->denominator, "4");
    EXPECT_FALSE(reductionText(withResult(3, -4), -3).fraction);
}

TEST(BrokReduction, HoldsSevenFactors) {
    const ReducedFraction r = reduced(withResult(128, 64));
    EXPECT_EQ(r.numerator, 2);
    EXPECT_EQ(r.denominator, 1);
    EXPECT_EQ(reduced(withResult(192, 3)).numerator, 64);
}

TEST(BrokReduction, TakesAStateWithoutAnExercise) {
    EXPECT_FALSE(reduced(BrokState{}).isNegative);
    EXPECT_EQ(reduced(BrokState{}).numerator, 1);
    EXPECT_EQ(reduced(BrokState{}).denominator, 1);
    EXPECT_EQ(operatorSign(BrokState{}.operation), "");
}

TEST(BrokWorked, WritesBracketsRoundNegativesAndTheBlanksOfTheOperator) {
    const BrokWorked sum = workedSolution(exercise(-1, 2, 3, -4, Add));
    EXPECT_EQ(sum.writtenOut.numerator, "(-1)*(-4) + 3*2");
    EXPECT_EQ(sum.writtenOut.denominator, "2*(-4)");
    EXPECT_EQ(sum.computed.numerator, "10");
    EXPECT_EQ(sum.computed.denominator, "-8");

    const BrokWorked difference = workedSolution(exercise(-1, 2, 3, -4, Subtract));
    EXPECT_EQ(difference.writtenOut.numerator, "(-1)*(-4) - 3*2");
    EXPECT_EQ(difference.computed.numerator, "-2");

    const BrokWorked product = workedSolution(exercise(-1, 2, 3, -4, Multiply));
    EXPECT_EQ(product.writtenOut.numerator, "(-1)*3");
    EXPECT_EQ(product.writtenOut.denominator, "2*(-4)");
    EXPECT_EQ(product.computed.numerator, "-3");

    const BrokWorked quotient = workedSolution(exercise(-1, 2, 3, -4, Divide));
    EXPECT_EQ(quotient.writtenOut.numerator, "(-1)*(-4)");
    EXPECT_EQ(quotient.writtenOut.denominator, "2*3");
    EXPECT_EQ(quotient.computed.numerator, "4");
    EXPECT_EQ(quotient.computed.denominator, "6");
}

TEST(BrokWorked, DoesNotShowTheShortcutOfTheGenerator) {
    const BrokWorked worked = workedSolution(exercise(1, 4, 2, 4, Add));
    EXPECT_EQ(worked.computed.numerator, "12");
    EXPECT_EQ(worked.computed.denominator, "16");
}

TEST(BrokWorked, EndsInAWholeNumberAReducedFractionOrNothing) {
    const LastStep whole = workedSolution(exercise(-4, 1, 2, 1, Divide)).last;
    EXPECT_EQ(whole.kind, LastStep::Kind::Whole);
    EXPECT_EQ(whole.numerator, "-2");

    const LastStep one = workedSolution(exercise(1, 2, 1, 2, Add)).last;
    EXPECT_EQ(one.kind, LastStep::Kind::Whole);
    EXPECT_EQ(one.numerator, "1");

    EXPECT_EQ(workedSolution(exercise(1, 2, 1, 3, Add)).last.kind, LastStep::Kind::Irreducible);
    EXPECT_EQ(workedSolution(exercise(-1, 2, 1, 7, Multiply)).last.kind, LastStep::Kind::Irreducible);

    const LastStep reducible = workedSolution(exercise(-2, 3, 1, 4, Multiply)).last;
    EXPECT_EQ(reducible.kind, LastStep::Kind::Reduced);
    EXPECT_EQ(reducible.numerator, "-1");
    EXPECT_EQ(reducible.denominator, "6");
}

TEST(BrokWorked, MovesTheSignOutOfANegativeDenominator) {
    const LastStep last = workedSolution(exercise(1, -2, 1, 7, Multiply)).last;
    EXPECT_EQ(last.kind, LastStep::Kind::Reduced);
    EXPECT_EQ(last.numerator, "-1");
    EXPECT_EQ(last.denominator, "14");
}

struct MethodRow {
    const char* name;
    Operation operation;
    const char* task;
    const char* rule;
    const char* numerator;
    const char* denominator;
};

class BrokMethods : public testing::TestWithParam<MethodRow> {};

TEST_P(BrokMethods, AreOneForEachOperator) {
    const BrokMethod& method = methodFor(GetParam().operation);
    EXPECT_STREQ(method.task, GetParam().task);
    EXPECT_STREQ(method.rule, GetParam().rule);
    EXPECT_STREQ(method.numerator, GetParam().numerator);
    EXPECT_STREQ(method.denominator, GetParam().denominator);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BrokMethods,
    testing::Values(
        MethodRow{"Sum", Add, "Her skal du lægge to brøker sammen",
                  "Find en fællesnævner ved at forlænge begge brøker med den modsatte brøks nævner. Læg "
                  "derefter de to tællere sammen og behold fællesnævneren.",
                  "a*d + c*b", "b*d"},
        MethodRow{"Difference", Subtract, "I denne opgave skal du trække én brøk fra en anden",
                  "Find en fællesnævner ved at forlænge begge brøker med den modsatte brøks nævner. Træk "
                  "derefter de to tællere fra hinanden og behold fællesnævneren.",
                  "a*d - c*b", "b*d"},
        MethodRow{"Product", Multiply, "Her skal du gange to brøker",
                  "Gang tæller med tæller og nævner med nævner", "a*c", "b*d"},
        MethodRow{"Quotient", Divide, "I denne opgave skal du dividere én brøk med en anden",
                  "Man dividerer med en brøk ved at gange med den omvendte: Tæller med nævner og nævner "
                  "med tæller",
                  "a*d", "b*c"}),
    [](const auto& row) { return row.param.name; });

/// Calls `visit` with each of the 19^4 * 4 exercises that can be drawn; those with a result of 0 are no
/// exercises.
template <class Visit>
void forEachExercise(Visit visit) {
    for (int a = -10; a < 10; ++a) {
        for (int b = -10; b < 10; ++b) {
            for (int c = -10; c < 10; ++c) {
                for (int d = -10; d < 10; ++d) {
                    if (a * b * c * d == 0) {
                        continue;
                    }
                    for (const Operation t : {Subtract, Add, Multiply, Divide}) {
                        const bool isZero =
                            (t == Subtract && a * d == b * c) || (t == Add && a * d == -b * c);
                        if (!isZero) {
                            visit(a, b, c, d, t);
                        }
                    }
                }
            }
        }
    }
}

/// True if every text about the result shows it as p/q, reduced with the sign above.
bool isShownAs(const BrokState& s, const LastStep& last, double p, double q) {
    const ReductionText text = reductionText(s, s.resultNumerator);
    if (q == 1) {
        return text.whole == NumberText(p) && last.kind == LastStep::Kind::Whole &&
               last.numerator == NumberText(p);
    }
    const bool isReducedAlready = s.resultNumerator == p;
    const bool beside = isReducedAlready ? !text.fraction && !text.whole
                                         : text.fraction && text.fraction->numerator == NumberText(p) &&
                                               text.fraction->denominator == NumberText(q);
    const bool worked = last.kind == LastStep::Kind::Irreducible
                            ? isReducedAlready && s.resultDenominator == q
                            : last.numerator == NumberText(p) && last.denominator == NumberText(q);
    return beside && worked;
}

/// True if the first fraction of the worked solution inserts these numbers and the next one computes them.
bool isWorkedOut(const BrokWorked& worked, int a, int b, int c, int d, Operation t) {
    const auto product = [](int x, int y) {
        return bracketed(static_cast<float>(x)) + "*" + bracketed(static_cast<float>(y));
    };
    const auto shows = [&worked](const std::string& writtenTop, const std::string& writtenBottom, int top,
                                 int bottom) {
        return worked.writtenOut.numerator == writtenTop && worked.writtenOut.denominator == writtenBottom &&
               worked.computed.numerator == std::to_string(top) &&
               worked.computed.denominator == std::to_string(bottom);
    };
    switch (t) {
        case Multiply:
            return shows(product(a, c), product(b, d), a * c, b * d);
        case Divide:
            return shows(product(a, d), product(b, c), a * d, b * c);
        case Add:
            return shows(product(a, d) + " + " + product(c, b), product(b, d), a * d + c * b, b * d);
        case Subtract:
            break;
    }
    return shows(product(a, d) + " - " + product(c, b), product(b, d), a * d - c * b, b * d);
}

TEST(BrokSpace, IsSolvedByItsOwnAndOnlyByItsOwnValue) {
    Proof proof("Brok", 4);
    int visited = 0;
    forEachExercise([&](int a, int b, int c, int d, Operation t) {
        ++visited;
        proof.visit(Proof::From::WholeSpace, static_cast<int>(t));
        const BrokState s = exercise(a, b, c, d, t);
        const double n = s.resultNumerator;
        const double m = s.resultDenominator;
        // The value by a second way: whole-number arithmetic over the common denominator.
        int top = t == Multiply ? a * c : a * d;
        const int bottom = t == Divide ? b * c : b * d;
        if (t == Add) {
            top += b * c;
        }
        if (t == Subtract) {
            top -= b * c;
        }
        const int divisor = std::gcd(top, bottom) * (bottom < 0 ? -1 : 1);
        const double p = static_cast<double>(top) / divisor;
        const double q = static_cast<double>(bottom) / divisor;

        const ReducedFraction r = reduced(s);
        const BrokWorked worked = workedSolution(s);
        const bool holds = n != 0 && m != 0 && std::abs(n) <= 200 && std::abs(m) <= 100 &&
                           eachIs({true, true}, s, {{n, m}, {-n, -m}, {p, q}, {2 * p, 2 * q}}) &&
                           eachIs({false, false}, s, {{n + 0.001, m}, {n, m + 0.001}, {-n, m}, {0, m}}) &&
                           // Whole numbers, which look alike with either mark.
                           typedAgain(NumberText(n)) == n && typedAgain(NumberText(m)) == m &&
                           r.signedNumerator() == p && r.denominator == q &&
                           isShownAs(s, worked.last, p, q) && isWorkedOut(worked, a, b, c, d, t);
        ASSERT_TRUE(holds) << a << "/" << b << " " << operatorSign(s.operation) << " " << c << "/" << d;
    });
    // 521,284 exercises less those with a result of 0.
    EXPECT_EQ(visited, 517'539);
}

RC_GTEST_PROP(BrokSeeds, GiveEqualTextsForEqualSeeds, (std::uint64_t seed)) {
    SeededDraws one(seed);
    SeededDraws other(seed);
    BrokState s;
    BrokState t;
    newExercise(s, one);
    newExercise(t, other);
    const BrokWorked ws = workedSolution(s);
    const BrokWorked wt = workedSolution(t);
    RC_ASSERT(ws.writtenOut.numerator == wt.writtenOut.numerator);
    RC_ASSERT(ws.computed.denominator == wt.computed.denominator);
    RC_ASSERT(s.operation == t.operation);
}

TEST(BrokSeeds, AreFrozenForAllBuildsAndProcessors) {
    SeededDraws draws(7);
    BrokState s;
    std::string texts;
    for (int i = 0; i < 5; ++i) {
        newExercise(s, draws);
        texts += NumberText(s.numeratorA) + "/" + NumberText(s.denominatorB) + operatorSign(s.operation) +
                 NumberText(s.numeratorC) + "/" + NumberText(s.denominatorD) + " ";
    }
    EXPECT_EQ(texts, "4/-2+1/1 5/7--4/-3 -5/1+-1/-7 -2/-8*6/-10 -2/2/8/-3 ");
}

TEST(BrokSeeds, ReachEveryOperator) {
    std::set<std::optional<Operation>> operations;
    SeededDraws draws(11);
    BrokState s;
    for (int i = 0; i < 200; ++i) {
        newExercise(s, draws);
        operations.insert(s.operation);
    }
    EXPECT_EQ(operations.size(), 4U);
}

}  // namespace
}  // namespace tavrune
