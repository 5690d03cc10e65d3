#include "topics/economics/gtm_exercise.h"

#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <regex>
#include <set>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/judged.h"
#include "support/proof.h"
#include "topics/economics/gtm_script.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::DecimalMark;
using test::eachIs;
using test::kLargestDraw;
using test::Proof;
using test::readsAsItself;
using test::Script;
using test::ScriptedDraws;
using test::gtm::Avc;
using test::gtm::coefficients;
using test::gtm::firstScript;
using test::gtm::Kind;
using test::gtm::Mc;
using test::gtm::Numbers;
using test::gtm::script;
using test::gtm::Tvc;

/// The right coefficients of all functions, as they are typed.
std::vector<double> typed(const GtmState& s) {
    std::vector<double> all;
    for (const auto& [a, b, c] : {s.avc, s.tvc, s.mc}) {
        all.insert(all.end(), {a, b, c});
    }
    return all;
}

const std::vector<bool> kAllRight(9, true);

std::vector<bool> allRightBut(std::size_t wrong) {
    std::vector<bool> isRight = kAllRight;
    isRight.at(wrong) = false;
    return isRight;
}

using Generator = void (*)(GtmState&, Draws&);

GtmState made(Generator generate, const Script& draws) {
    ScriptedDraws scripted(draws);
    GtmState s;
    generate(s, scripted);
    EXPECT_TRUE(scripted.isUsedUp());
    return s;
}

GtmState next(const Numbers& k, Kind kind) { return made(newExercise, script(k, kind)); }
GtmState first(const Numbers& k, Kind kind) { return made(firstExercise, firstScript(k, kind)); }

/// Q² - 2Q + 4, which every kind of either generator takes.
const Numbers kPlain{1, -2, 4};

/// True if the draws are taken for an exercise; otherwise all is drawn again.
bool isAccepted(Generator generate, const Script& draws) {
    ScriptedDraws scripted(draws + script(kPlain, Avc));
    GtmState s;
    generate(s, scripted);
    const bool accepted = scripted.used() == draws.size();
    EXPECT_EQ(scripted.isUsedUp(), !accepted);
    EXPECT_EQ(scripted.randomized(), accepted ? 1 : 2);
    return accepted;
}

bool isAccepted(const Numbers& k, Kind kind) { return isAccepted(newExercise, script(k, kind)); }
bool isAcceptedFirst(const Numbers& k, Kind kind) { return isAccepted(firstExercise, firstScript(k, kind)); }

/// True if the draws are thrown away before the kind is drawn.
bool isRejectedBeforeTheKind(Generator generate, const Numbers& k) {
    ScriptedDraws scripted(coefficients(k) + script(kPlain, Avc));
    GtmState s;
    generate(s, scripted);
    return scripted.isUsedUp() && scripted.randomized() == 2;
}

struct KindRow {
    const char* name;
    Numbers drawn;
    Kind kind;
    GtmState state;
};

class GtmKinds : public testing::TestWithParam<KindRow> {};

TEST_P(GtmKinds, AreCompletedAlikeByBothGenerators) {
    const KindRow& row = GetParam();
    EXPECT_EQ(next(row.drawn, row.kind), row.state);
    EXPECT_EQ(first(row.drawn, row.kind), row.state);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, GtmKinds,
    testing::Values(
        KindRow{
            "Average", {1.5, -3, 8}, Avc, {{1.5, -3, 8}, {1.5, -3, 8}, {4.5, -6, 8}, GtmFunction::Average}},
        KindRow{"Total", {1.5, -3, 8}, Tvc, {{1.5, -3, 8}, {1.5, -3, 8}, {4.5, -6, 8}, GtmFunction::Total}},
        KindRow{"MarginalInThirds",
                {2, -3, 8},
                Mc,
                {{0.67, -1.5, 8}, {0.67, -1.5, 8}, {2, -3, 8}, GtmFunction::Marginal}},
        KindRow{"MarginalOfAHalf",
                {0.5, -4, 9},
                Mc,
                {{0.17, -2, 9}, {0.17, -2, 9}, {0.5, -4, 9}, GtmFunction::Marginal}},
        KindRow{
            "MarginalExact", {4.5, 0, 3}, Mc, {{1.5, 0, 3}, {1.5, 0, 3}, {4.5, 0, 3}, GtmFunction::Marginal}},
        KindRow{"Constant", {0, 0, 5}, Tvc, {{0, 0, 5}, {0, 0, 5}, {0, 0, 5}, GtmFunction::Total}}),
    [](const auto& row) { return row.param.name; });

TEST(GtmGenerator, DrawsCoinThenAThenBThenCThenOneForNothingThenTheKind) {
    ScriptedDraws withA(script({2.5, -4, 7}, Tvc));
    GtmState s;
    newExercise(s, withA);
    EXPECT_EQ(withA.used(), 6U);
    EXPECT_EQ(withA.randomized(), 1);
    EXPECT_EQ(s.tvc, (GtmCoefficients{2.5, -4, 7}));

    ScriptedDraws withoutA(script({0, 0, 7}, Tvc));
    newExercise(s, withoutA);
    EXPECT_EQ(withoutA.used(), 5U);
    EXPECT_EQ(s.tvc, (GtmCoefficients{0, 0, 7}));
}

TEST(GtmGenerator, TossesAFairCoinForA) {
    GtmState s = made(newExercise, Script{0.5F, cellOf(2, 10), 0, cellOf(4, 10), 0, 0});
    EXPECT_EQ(s.avc.a, 1);
    s = made(newExercise, Script{0.49999F, 0, cellOf(4, 10), 0, 0});
    EXPECT_EQ(s.avc.a, 0);
}

TEST(GtmGenerator, CanDrawAZeroForAAlthoughTheCoinAllowsMore) {
    EXPECT_EQ(made(newExercise, Script{0.5F, 0, 0, cellOf(4, 10), 0, 0}).avc, (GtmCoefficients{0, 0, 4}));
    // The opening then draws c anew, as for any other a of 0.
    EXPECT_EQ(made(firstExercise, Script{0.5F, 0, 0, cellOf(9, 10), 0, cellOf(3, 6), 0}).avc,
              (GtmCoefficients{0, 0, 5}));
}

TEST(GtmGenerator, ReachesBothEndsOfEachRange) {
    EXPECT_EQ(made(newExercise, Script{0, 0, 0, 0, 0}).avc, (GtmCoefficients{0, 0, 0}));
    const Script highest(6, kLargestDraw);
    const GtmState s = made(newExercise, highest);
    EXPECT_EQ(s.given, GtmFunction::Marginal);
    EXPECT_EQ(s.mc, (GtmCoefficients{4.5, -9, 9}));
    EXPECT_EQ(s.avc, (GtmCoefficients{1.5, -4.5, 9}));
}

TEST(GtmGenerator, DoesNotUseItsFourthDraw) {
    for (const float unused : {0.0F, 0.3F, kLargestDraw}) {
        const GtmState s =
            made(newExercise, Script{0.9F, cellOf(3, 10), cellOf(2, 10), cellOf(4, 10), unused, 0});
        EXPECT_EQ(s.avc, (GtmCoefficients{1.5, -2, 4}));
    }
}

TEST(GtmGenerator, TakesALineOnlyIfItIsLevel) {
    for (int b = -9; b <= -1; ++b) {
        EXPECT_TRUE(isRejectedBeforeTheKind(newExercise, {0, b, 5})) << b;
    }
    for (const Kind kind : {Avc, Tvc, Mc}) {
        const GtmState s = next({0, 0, 5}, kind);
        EXPECT_EQ(s.avc, (GtmCoefficients{0, 0, 5}));
        EXPECT_EQ(s.tvc, (GtmCoefficients{0, 0, 5}));
        EXPECT_EQ(s.mc, (GtmCoefficients{0, 0, 5}));
    }
}

TEST(GtmGenerator, RejectsAParabolaThatCrossesTheAxisBeforeItDrawsTheKind) {
    EXPECT_TRUE(isRejectedBeforeTheKind(newExercise, {1, -5, 6}));
    EXPECT_FALSE(isRejectedBeforeTheKind(newExercise, {1, -4, 4}));
    // Touching it will do, where MC is given.
    EXPECT_TRUE(isAccepted({1, -4, 4}, Mc));
}

TEST(GtmGenerator, RejectsAnMcThatCrossesTheAxisWhereAvcOrTvcIsGiven) {
    // MC = 3Q² - 8Q + 4 crosses, 3Q² - 6Q + 4 does not.
    for (const Kind kind : {Avc, Tvc}) {
        EXPECT_FALSE(isAccepted({1, -4, 4}, kind));
        EXPECT_TRUE(isAccepted({1, -3, 4}, kind));
        // MC = 3Q² - 6Q + 3 just touches.
        EXPECT_TRUE(isAccepted({1, -3, 3}, kind));
        EXPECT_FALSE(isAcceptedFirst({1, -4, 4}, kind));
        EXPECT_TRUE(isAcceptedFirst({1, -3, 3}, kind));
    }
}

TEST(GtmGenerator, MultipliesAQuarterOfTheSquareByAWhereMcIsGiven) {
    // 4.5²/4 * 1.5 is 7.59, though the vertex of 1.5Q² - 4.5Q + 7 lies above the axis.
    EXPECT_TRUE(isAccepted({4.5, -9, 9}, Mc));
    EXPECT_FALSE(isAccepted({4.5, -9, 7}, Mc));
    EXPECT_GT(7 - 4.5 * 4.5 / (4 * 1.5), 0);
}

TEST(GtmGenerator, MultipliesTheSquareForADoubleByTheThirdAsASingle) {
    // 4/3 as a single lies above 4/3; with a single for the square the product would come out as just 3.
    EXPECT_EQ(3.0F * 3.0F / 4 * (4.0F / 3), 3);
    EXPECT_FALSE(isAccepted({4, -6, 3}, Mc));
}

TEST(GtmFirstExercise, MultipliesAQuarterOfTheSquareByAWhateverIsGiven) {
    // 4 - 16/4 * 1 = 0: neither below nor above; 16/4 * 1.5 = 6 is more than 5, though 1.5Q² - 4Q + 5 keeps
    // clear of the axis.
    EXPECT_FALSE(isRejectedBeforeTheKind(firstExercise, {1, -4, 4}));
    EXPECT_TRUE(isRejectedBeforeTheKind(firstExercise, {1.5, -4, 5}));
    EXPECT_FALSE(isRejectedBeforeTheKind(newExercise, {1.5, -4, 5}));
    // And a parabola that crosses is taken, with MC given: 0.5Q² - 4Q + 4.
    EXPECT_TRUE(isAcceptedFirst({0.5, -4, 4}, Mc));
    EXPECT_TRUE(isRejectedBeforeTheKind(newExercise, {0.5, -4, 4}));
}

TEST(GtmFirstExercise, DrawsTheConstantOfALineAnewFromTwoToSeven) {
    std::set<double> constants;
    for (int c = 2; c <= 7; ++c) {
        ScriptedDraws draws(firstScript({0, 0, c}, Avc));
        GtmState s;
        firstExercise(s, draws);
        EXPECT_EQ(draws.used(), 6U);
        EXPECT_EQ(s.avc, (GtmCoefficients{0, 0, static_cast<double>(c)}));
        constants.insert(s.avc.c);
    }
    EXPECT_EQ(constants.size(), 6U);
}

TEST(GtmFirstExercise, KeepsTheConstantOfAParabola) { EXPECT_EQ(first({1, 0, 9}, Avc).avc.c, 9); }

TEST(GtmFirstExercise, TakesAFallingLineOnlyAsMc) {
    EXPECT_FALSE(isAcceptedFirst({0, -3, 5}, Avc));
    EXPECT_FALSE(isAcceptedFirst({0, -3, 5}, Tvc));
    const GtmState s = first({0, -3, 5}, Mc);
    EXPECT_EQ(s.mc, (GtmCoefficients{0, -3, 5}));
    EXPECT_EQ(s.avc, (GtmCoefficients{0, -1.5, 5}));
    EXPECT_EQ(s.tvc, (GtmCoefficients{0, -1.5, 5}));
}

TEST(GtmFirstExercise, DrawsEverythingAgainAfterARejectionByTheKind) {
    ScriptedDraws draws(firstScript({0, -3, 5}, Avc) + firstScript({1, -4, 4}, Tvc) +
                        firstScript({0, 0, 6}, Tvc));
    GtmState s;
    firstExercise(s, draws);
    EXPECT_TRUE(draws.isUsedUp());
    EXPECT_EQ(draws.randomized(), 3);
    EXPECT_EQ(s.tvc, (GtmCoefficients{0, 0, 6}));
    EXPECT_EQ(s.given, GtmFunction::Total);
}

/// All texts of a formula in one, exponents and fractions among them.
std::string textOf(const Formula& formula) {
    std::string all;
    for (const FormulaPiece& piece : formula) {
        if (piece.kind == FormulaPiece::Kind::Fraction) {
            all += "1/";
        }
        all += piece.exponent.empty() ? piece.text : "Q^" + piece.exponent + piece.text.substr(1);
    }
    return all;
}

/// The three coefficients that a row of the worked solution is written with, if it is one of those that have
/// some.
std::optional<GtmCoefficients> coefficientsIn(const Formula& row) {
    static const std::string number = R"((-?[\d.]+))";
    static const std::string later = R"(([+-][\d.]+))";
    static const std::array rows{
        std::regex(".*[ (]" + number + R"(Q\^3 )" + later + R"(Q\^2 )" + later + "Q.*"),
        std::regex(".*[ (]" + number + R"(Q\^2 )" + later + "Q " + later + ".*"),
        std::regex(R"(3 \* )" + number + R"(Q\^2 \+ 2 \* )" + number + "Q " + later),
        std::regex(R"(= 1/3\* )" + number + R"(Q\^3 \+ 1/2\* )" + number + R"(Q\^2 )" + later + "Q"),
    };
    const std::string text = textOf(row);
    std::smatch read;
    const bool isRead = std::any_of(rows.begin(), rows.end(), [&](const std::regex& shape) {
        return std::regex_match(text, read, shape);
    });
    return isRead ? std::optional(GtmCoefficients{Val(read[1].str()), Val(read[2].str()), Val(read[3].str())})
                  : std::nullopt;
}

/// True if the rows are written with just these functions, one after the other.
bool areWrittenWith(const std::vector<Formula>& rows, const std::vector<GtmCoefficients>& functions) {
    return std::equal(
        rows.begin(), rows.end(), functions.begin(), functions.end(),
        [](const Formula& row, const GtmCoefficients& function) { return coefficientsIn(row) == function; });
}

/// True if both steps of the worked solution lead from the given function to the other two.
bool isWorkedOut(const GtmState& s) {
    switch (s.given) {
        case GtmFunction::Average:
            return areWrittenWith(workedProduct(s), {s.avc, s.tvc}) &&
                   areWrittenWith(workedDerivative(s), {s.tvc, s.tvc, s.mc});
        case GtmFunction::Total:
            return areWrittenWith(workedQuotient(s), {s.tvc, s.avc}) &&
                   areWrittenWith(workedDerivative(s), {s.tvc, s.tvc, s.mc});
        case GtmFunction::Marginal:
            break;
    }
    return areWrittenWith(workedIntegral(s), {s.mc, s.mc, s.tvc}) &&
           areWrittenWith(workedQuotientOfIntegral(s), {s.tvc, s.avc});
}

/// Calls `visit` with each set of draws: 2a, the size of b, and c.
template <class Visit>
void forEachDraw(Visit visit) {
    for (int twiceA = 0; twiceA <= 9; ++twiceA) {
        for (int b = 0; b <= 9; ++b) {
            for (int c = 0; c <= 9; ++c) {
                for (const Kind kind : {Avc, Tvc, Mc}) {
                    visit(twiceA, b, c, kind);
                }
            }
        }
    }
}

/// In whole numbers: 96 times the height that is compared with 0.
bool isKindAccepted(int twiceA, int b, int c, Kind kind) {
    // Of all that come out as just 0, one third is a single above it.
    const bool isAboveItsThird = twiceA == 8 && b == 6 && c == 3;
    return kind == Mc ? twiceA == 0 || (b * b * twiceA <= 96 * c && !isAboveItsThird)
                      : 4 * b * b <= 6 * twiceA * c;
}

TEST(GtmSpace, IsRejectedJustWhereWholeNumbersSaySo) {
    std::map<Kind, int> accepted;
    forEachDraw([&](int twiceA, int b, int c, Kind kind) {
        const bool expected = b * b <= 2 * twiceA * c && isKindAccepted(twiceA, b, c, kind);
        accepted[kind] += expected ? 1 : 0;
        const Script draws = script({twiceA / 2.0, -b, c}, kind);
        if (b * b > 2 * twiceA * c) {
            ASSERT_TRUE(isRejectedBeforeTheKind(newExercise, {twiceA / 2.0, -b, c}));
        } else {
            ASSERT_EQ(isAccepted(newExercise, draws), expected)
                << twiceA << " " << b << " " << c << " " << kind;
        }
    });
    EXPECT_EQ(accepted, (std::map<Kind, int>{{Avc, 517}, {Tvc, 517}, {Mc, 554}}));
}

TEST(GtmSpace, IsRejectedAtTheOpeningJustWhereWholeNumbersSaySo) {
    std::map<Kind, int> accepted;
    forEachDraw([&](int twiceA, int b, int c, Kind kind) {
        if (twiceA == 0 && (c < 2 || c > 7)) {
            return;
        }
        const Numbers k{twiceA / 2.0, -b, c};
        if (twiceA != 0 && b * b * twiceA > 8 * c) {
            ASSERT_TRUE(isRejectedBeforeTheKind(firstExercise, k));
            return;
        }
        const bool expected = isKindAccepted(twiceA, b, c, kind);
        accepted[kind] += expected ? 1 : 0;
        ASSERT_EQ(isAcceptedFirst(k, kind), expected) << twiceA << " " << b << " " << c << " " << kind;
    });
    EXPECT_EQ(accepted, (std::map<Kind, int>{{Avc, 281}, {Tvc, 281}, {Mc, 371}}));
}

/// The three functions, found from the texts of the given one in whole numbers.
GtmState solved(GtmFunction given, const GtmTerms<std::string>& texts) {
    const auto halves = [](const std::string& text) { return std::lround(2 * Val(text)); };
    const long a = halves(texts.a);
    const long b = halves(texts.b);
    const long c = halves(texts.c);
    const auto half = [](long x) { return static_cast<double>(x) / 2; };
    GtmState s;
    s.given = given;
    if (given == GtmFunction::Marginal) {
        // A third of a/2 in hundredths, halves up.
        const auto hundredths = static_cast<double>((100 * a + 3) / 6);
        s.mc = {half(a), half(b), half(c)};
        s.avc = {hundredths / 100, half(b) / 2, half(c)};
    } else {
        s.avc = {half(a), half(b), half(c)};
        s.mc = {half(3 * a), half(2 * b), half(c)};
    }
    s.tvc = s.avc;
    return s;
}

/// True if the three functions are those of one product: TVC is AVC times Q, and its slope is MC, but for
/// what the rounding of a third takes.
bool isOneProduct(const GtmState& s) {
    bool holds = true;
    for (double q = -2; q <= 10; q += 0.75) {
        const double total = heightAt(GtmFunction::Total, s.tvc, q);
        holds = holds && std::abs(heightAt(GtmFunction::Average, s.avc, q) * q - total) < 1e-9;
        // A cubic's slope is that of the chord round it, but for a·h².
        const double h = 1.0 / 64;
        const double chord =
            (heightAt(GtmFunction::Total, s.tvc, q + h) - heightAt(GtmFunction::Total, s.tvc, q - h)) /
            (2 * h);
        const double rounding = s.given == GtmFunction::Marginal ? 3 * 0.00501 * q * q : 0;
        const double marginal = heightAt(GtmFunction::Marginal, s.mc, q);
        holds = holds && std::abs(chord - s.tvc.a * h * h - marginal) < rounding + 1e-6;
    }
    return holds;
}

/// True if each function's coefficients, as they would be shown, are right, and each one beside it is wrong,
/// alone.
bool isJudged(const GtmState& s) {
    const std::vector<double> right = typed(s);
    bool holds = eachIs(kAllRight, s, {right});
    for (std::size_t at = 0; at < right.size(); ++at) {
        std::vector<double> below = right;
        std::vector<double> above = right;
        below[at] -= 0.001;
        above[at] += 0.001;
        holds = holds && std::isfinite(right[at]) && readsAsItself(right[at]) &&
                eachIs(allRightBut(at), s, {below, above});
    }
    return holds;
}

TEST(GtmSpace, IsSolvedFromTheTextsOfTheGivenFunctionAndByNothingBesideIt) {
    Proof proof("Gtm", 6);
    const auto prove = [&proof](const GtmState& s, bool isFirst) {
        proof.visit(Proof::From::WholeSpace, 3 * (isFirst ? 1 : 0) + static_cast<int>(s.given));
        const bool holds = s == solved(s.given, taskTexts(s.of(s.given))) && isOneProduct(s) && isJudged(s) &&
                           isWorkedOut(s);
        ASSERT_TRUE(holds) << textOf(workedProduct(s).back()) << ", given " << static_cast<int>(s.given);
    };
    forEachDraw([&](int twiceA, int b, int c, Kind kind) {
        if (!isKindAccepted(twiceA, b, c, kind)) {
            return;
        }
        const Numbers k{twiceA / 2.0, -b, c};
        if (b * b <= 2 * twiceA * c) {
            prove(next(k, kind), false);
        }
        if (twiceA == 0 ? c >= 2 && c <= 7 : b * b * twiceA <= 8 * c) {
            prove(first(k, kind), true);
        }
    });
}

class GtmSeeds : public testing::TestWithParam<Generator> {};

TEST_P(GtmSeeds, AreSolvedFromTheTextsOfTheGivenFunction) {
    const DecimalMark danish(",");
    SeededDraws draws(62);
    std::set<GtmFunction> kinds;
    for (int i = 0; i < 100'000; ++i) {
        GtmState s;
        GetParam()(s, draws);
        kinds.insert(s.given);
        ASSERT_EQ(s, solved(s.given, taskTexts(s.of(s.given)))) << i;
        ASSERT_TRUE(eachIs(kAllRight, s, {typed(s)})) << i;
        for (std::size_t at = static_cast<std::size_t>(i % 3); at < kAllRight.size(); at += 3) {
            std::vector<double> nudged = typed(s);
            nudged[at] += 0.01;
            ASSERT_TRUE(eachIs(allRightBut(at), s, {nudged})) << i;
        }
    }
    EXPECT_EQ(kinds.size(), 3U);
}

TEST_P(GtmSeeds, GiveProductAndDerivativeUpToTheRounding) {
    SeededDraws draws(63);
    for (int i = 0; i < 100'000; ++i) {
        GtmState s;
        GetParam()(s, draws);
        const double q = 0.25 * (i % 60);
        const double total = heightAt(GtmFunction::Total, s.tvc, q);
        ASSERT_NEAR(heightAt(GtmFunction::Average, s.avc, q) * q, total, 1e-9) << i;
        // A cubic's slope is that of the chord round it, but for a·h².
        const double h = 1.0 / 64;
        const double chord =
            (heightAt(GtmFunction::Total, s.tvc, q + h) - heightAt(GtmFunction::Total, s.tvc, q - h)) /
            (2 * h);
        const double rounding = s.given == GtmFunction::Marginal ? 3 * 0.00501 * q * q : 0;
        ASSERT_NEAR(chord - s.tvc.a * h * h, heightAt(GtmFunction::Marginal, s.mc, q), rounding + 1e-6) << i;
    }
}

TEST_P(GtmSeeds, KeepMcOffTheAxisWhereAnotherFunctionIsGiven) {
    SeededDraws draws(64);
    for (int i = 0; i < 20'000; ++i) {
        GtmState s;
        GetParam()(s, draws);
        if (s.given != GtmFunction::Marginal) {
            const auto& [a, b, c] = s.mc;
            ASSERT_LE(b * b - 4 * a * c, 0) << i;
        }
        ASSERT_GE(s.mc.c, 0);
        ASSERT_LE(s.mc.c, 9);
        ASSERT_LE(s.mc.b, 0);
        ASSERT_GE(s.mc.b, -18);
    }
}

INSTANTIATE_TEST_SUITE_P(Generators, GtmSeeds,
                         testing::Values(static_cast<Generator>(newExercise), firstExercise),
                         [](const auto& row) { return row.index == 0 ? "Later" : "First"; });

TEST(GtmTaskTexts, WriteAWithThePointInEveryLocale) {
    const DecimalMark danish(",");
    using Texts = GtmTerms<std::string>;
    EXPECT_EQ(taskTexts({0.5, -3, 9}), (Texts{"0.5", "-3", "9"}));
    EXPECT_EQ(taskTexts({1.5, 0, 0}), (Texts{"1.5", "0", "0"}));
    EXPECT_EQ(taskTexts({4.5, -9, 1}), (Texts{"4.5", "-9", "1"}));
    EXPECT_EQ(taskTexts({3, -1, 2}), (Texts{"3", "-1", "2"}));
    EXPECT_EQ(taskTexts({0, -0.0, 7}), (Texts{"0", "0", "7"}));
}

/// True if the right answer stays right with this text for one of its numbers; else that one alone is wrong.
bool takes(const GtmState& s, std::size_t at, const char* text) {
    std::vector<double> all = typed(s);
    all.at(at) = Val(text);
    const bool isRight = judge(s, all).isSolved;
    EXPECT_TRUE(eachIs(isRight ? kAllRight : allRightBut(at), s, {all})) << at << ' ' << text;
    for (const GtmFunction function : kGtmFunctions) {
        EXPECT_EQ(tavrune::isRight(function, judge(s, all)), coefficientsOf(function, all) == s.of(function));
    }
    return isRight;
}

TEST(GtmJudge, WantsTheRoundedThirdToTheDigit) {
    const GtmState s = next({0.5, -4, 9}, Mc);
    // The first of AVC and of TVC.
    for (const std::size_t at : {0U, 3U}) {
        EXPECT_TRUE(takes(s, at, "0.17"));
        EXPECT_TRUE(takes(s, at, ".170"));
        EXPECT_FALSE(takes(s, at, "0.1667"));
        EXPECT_FALSE(takes(s, at, "0.16"));
    }
    EXPECT_TRUE(takes(s, 6, "0.5"));
    EXPECT_FALSE(takes(s, 6, "0.51"));
}

TEST(GtmJudge, TellsTheCoefficientsApartThoseOfTheGivenFunctionToo) {
    const GtmState s = next(kPlain, Tvc);
    EXPECT_EQ(typed(s), (std::vector<double>{1, -2, 4, 1, -2, 4, 3, -4, 4}));
    for (std::size_t at = 0; at < kAllRight.size(); ++at) {
        EXPECT_FALSE(takes(s, at, "5"));
    }
}

constexpr std::size_t pieces(const GtmCurve& curve) { return curve.empty() ? 0 : curve.size() - 1; }

TEST(GtmCurves, RunTheParabolaOfATaskToElevenAndThatOfTheOpeningToFifteen) {
    for (const Kind kind : {Avc, Mc}) {
        const GtmState s = next(kPlain, kind);
        const GtmCurve later = curveOfTask(s, GtmReach::Later);
        EXPECT_EQ(pieces(later), 131U);
        EXPECT_EQ(later.front().q, -2);
        EXPECT_NEAR(later.back().q, 11.1, 1e-9);
        const GtmCurve atFirst = curveOfTask(s, GtmReach::Opening);
        EXPECT_EQ(pieces(atFirst), 171U);
        EXPECT_NEAR(atFirst.back().q, 15.1, 1e-9);
    }
}

TEST(GtmCurves, RunTheCubicOfATaskToFifteenAndEndItBeforeFourHundred) {
    const GtmState level = next({0, 0, 5}, Tvc);
    const GtmState steep = next({4.5, 0, 5}, Tvc);
    for (const GtmReach reach : {GtmReach::Opening, GtmReach::Later}) {
        EXPECT_EQ(pieces(curveOfTask(level, reach)), 171U);
        const GtmCurve curve = curveOfTask(steep, reach);
        EXPECT_EQ(curve.front().q, -2);
        EXPECT_LE(curve.back().y, 400);
        const double beyond = curve.back().q + 0.1;
        EXPECT_GT(heightAt(GtmFunction::Total, steep.tvc, beyond), 400);
    }
}

TEST(GtmCurves, LieOnTheFunctionAlongARunningSum) {
    const GtmState s = next({1.5, -3, 8}, Tvc);
    double q = -2;
    for (const GtmPoint& p : curveOfTask(s, GtmReach::Later)) {
        ASSERT_EQ(p.q, q);
        ASSERT_NEAR(p.y, ((1.5 * q - 3) * q + 8) * q, 1e-9);
        q += 0.1;
    }
}

TEST(GtmCurves, NeverMeetQOfExactlyZero) {
    for (int start = -4; start < 0; ++start) {
        double q = start;
        for (int step = 0; step < 300; ++step) {
            q += 0.1;
            ASSERT_NE(q, 0) << start;
        }
    }
}

TEST(GtmCurves, RunTheAnswersOverTheirWholeRange) {
    const GtmState level = next({0, 0, 5}, Avc);
    const GtmCurve avc = curveOfAnswer(level, GtmFunction::Average);
    EXPECT_EQ(pieces(avc), 191U);
    EXPECT_EQ(avc.front().q, -4);
    const GtmCurve mc = curveOfAnswer(level, GtmFunction::Marginal);
    EXPECT_EQ(pieces(mc), 230U);
    EXPECT_EQ(mc.front().q, -2);
    const GtmCurve tvc = curveOfAnswer(level, GtmFunction::Total);
    EXPECT_EQ(pieces(tvc), 240U);
    EXPECT_EQ(tvc.front().q, -4);
}

TEST(GtmCurves, DrawTheAnswerOfAvcHoweverHighItIs) {
    const GtmCurve avc = curveOfAnswer(next({4.5, 0, 9}, Avc), GtmFunction::Average);
    EXPECT_EQ(pieces(avc), 191U);
    EXPECT_GT(avc.back().y, 1000);
}

TEST(GtmCurves, EndTheAnswerOfMcWithThePieceThatPassesOneHundredAndTen) {
    const GtmCurve mc = curveOfAnswer(next({4.5, 0, 9}, Avc), GtmFunction::Marginal);
    EXPECT_EQ(mc.front().q, -2);
    EXPECT_GT(mc.back().y, 110);
    EXPECT_LE(mc.at(mc.size() - 2).y, 110);
    // Below the axis as above it: the falling MC of an opening.
    const GtmCurve falling = curveOfAnswer(first({0, -9, 5}, Mc), GtmFunction::Marginal);
    EXPECT_LT(falling.back().y, -110);
    EXPECT_GE(falling.at(falling.size() - 2).y, -110);
}

TEST(GtmCurves, BeginTheAnswerOfMcBelowOneHundred) {
    // 13.5Q² - 18Q + 9 is 99 at Q = -2.
    GtmState s;
    s.mc = {13.5, -18, 9};
    EXPECT_EQ(curveOfAnswer(s, GtmFunction::Marginal).front().q, -2);
    s.mc = {13.5, -18, 10};
    EXPECT_EQ(curveOfAnswer(s, GtmFunction::Marginal).front().q, -1);
}

TEST(GtmCurves, BeginTheAnswerOfTvcBelowTwoHundredAndEndItBeforeFourHundred) {
    // TVC is -4.5 * 64 - 36 at Q = -4, -121.5 - 27 at Q = -3.
    const GtmCurve tvc = curveOfAnswer(next({4.5, 0, 9}, Tvc), GtmFunction::Total);
    EXPECT_EQ(tvc.front().q, -3);
    EXPECT_LE(tvc.back().y, 400);
    GtmState s;
    s.tvc = {0, 0, 50};
    EXPECT_EQ(curveOfAnswer(s, GtmFunction::Total).front().q, -3);
    s.tvc = {0, 0, 49};
    EXPECT_EQ(curveOfAnswer(s, GtmFunction::Total).front().q, -4);
}

TEST(GtmCurves, RunTheTriesOverTheirWholeRange) {
    EXPECT_EQ(pieces(curveOfTry(GtmFunction::Average, {0, 0, 5})), 181U);
    EXPECT_EQ(pieces(curveOfTry(GtmFunction::Total, {0, 0, 5})), 230U);
    EXPECT_EQ(pieces(curveOfTry(GtmFunction::Marginal, {0, 0, 5})), 181U);
    for (const GtmFunction function : kGtmFunctions) {
        EXPECT_EQ(curveOfTry(function, {0, 0, 5}).front().q, -3);
    }
}

TEST(GtmCurves, BeginTheTryOfAvcAtTwoThousandAndThatOfTvcBelowIt) {
    EXPECT_EQ(pieces(curveOfTry(GtmFunction::Average, {0, 0, 2000})), 1U);
    EXPECT_EQ(pieces(curveOfTry(GtmFunction::Average, {0, 0, 2000.5})), 0U);
    EXPECT_EQ(curveOfTry(GtmFunction::Average, {0, 1000, 5000}).front().q, -3);
    EXPECT_EQ(curveOfTry(GtmFunction::Average, {0, 1000, 5001}).size(), 0U);
    // bQ² at Q = -3 is nine times b.
    EXPECT_EQ(curveOfTry(GtmFunction::Total, {0, 2000.0 / 9, 0}).front().q, -2);
    EXPECT_EQ(curveOfTry(GtmFunction::Total, {0, 222, 0}).front().q, -3);
}

TEST(GtmCurves, BeginTheTryOfMcBelowTwoHundred) {
    EXPECT_EQ(curveOfTry(GtmFunction::Marginal, {0, 0, 200}).size(), 0U);
    EXPECT_EQ(curveOfTry(GtmFunction::Marginal, {0, 0, -200}).size(), 0U);
    EXPECT_EQ(pieces(curveOfTry(GtmFunction::Marginal, {0, 0, -199.5})), 181U);
    EXPECT_EQ(curveOfTry(GtmFunction::Marginal, {0, 100, 400}).front().q, -3);
    EXPECT_EQ(curveOfTry(GtmFunction::Marginal, {0, -100, 0}).front().q, -1);
}

TEST(GtmCurves, EndTheTryOfAvcWithThePieceThatPassesFourHundredUpwardsOnly) {
    const GtmCurve rising = curveOfTry(GtmFunction::Average, {0, 100, 0});
    EXPECT_GT(rising.back().y, 400);
    EXPECT_LE(rising.at(rising.size() - 2).y, 400);
    // From 450 at Q = -3 to 435.
    EXPECT_EQ(pieces(curveOfTry(GtmFunction::Average, {0, -150, 0})), 1U);
    const GtmCurve falling = curveOfTry(GtmFunction::Average, {-100, 0, 0});
    EXPECT_EQ(pieces(falling), 181U);
    EXPECT_LT(falling.back().y, -20'000);
    EXPECT_EQ(pieces(curveOfTry(GtmFunction::Average, {0, 0, 400})), 181U);
}

TEST(GtmCurves, EndTheTryOfMcWithThePieceThatPassesTwoHundredAndTenUpwardsOnly) {
    const GtmCurve rising = curveOfTry(GtmFunction::Marginal, {0, 50, 0});
    EXPECT_GT(rising.back().y, 210);
    EXPECT_LE(rising.at(rising.size() - 2).y, 210);
    EXPECT_EQ(pieces(curveOfTry(GtmFunction::Marginal, {-10, 0, 0})), 181U);
}

TEST(GtmCurves, EndTheTryOfTvcBeforeFourHundredUpOrDown) {
    const GtmCurve rising = curveOfTry(GtmFunction::Total, {0, 0, 50});
    EXPECT_LE(rising.back().y, 400);
    EXPECT_GT(50 * (rising.back().q + 0.1), 400);
    const GtmCurve falling = curveOfTry(GtmFunction::Total, {0, 0, -50});
    EXPECT_GE(falling.back().y, -400);
    EXPECT_LT(-50 * (falling.back().q + 0.1), -400);
    // A first point beyond 400 has nothing to go on to.
    EXPECT_EQ(curveOfTry(GtmFunction::Total, {0, 0, -600}).size(), 1U);
    // Just 400 is not beyond.
    const GtmCurve touching = curveOfTry(GtmFunction::Total, {0, 0, 400 / (-3 + 0.1)});
    ASSERT_GT(touching.size(), 2U);
    EXPECT_EQ(touching[1].y, 400);
}

TEST(GtmCurves, SeekTheFirstPointFarOut) {
    const GtmCurve curve = curveOfTry(GtmFunction::Marginal, {0, -1, 9000});
    EXPECT_EQ(curve.front().q, 8801);
    EXPECT_EQ(pieces(curve), 1U);
}

TEST(GtmCurves, SeekTheFirstPointForTenThousandStepsAndNoMore) {
    EXPECT_EQ(curveOfTry(GtmFunction::Marginal, {0, -1, 10'196}).front().q, 9997);
    EXPECT_TRUE(curveOfTry(GtmFunction::Marginal, {0, -1, 10'197}).empty());
}

/// Numbers that a task does not reckon with, a hundred rows of nine.
std::vector<GtmEach<GtmCoefficients>> hostileRows() {
    const std::array hostile{1e308,  -1e308, kLargestTyped, 1e300,  -1e39,  3.5e38, 1e20,
                             -1e15,  1e9,    400.0,         -400.0, 1e-308, 5e5,    -123456.75,
                             2000.0, 0.0,    1e154,         -1e103, 1999.9, -200.0};
    std::vector<GtmEach<GtmCoefficients>> rows;
    for (std::size_t row = 0; row < 100; ++row) {
        const auto pick = [&](std::size_t i) { return hostile[(row * (2 * i + 1) + i * 7 + row / 20) % 20]; };
        rows.push_back(
            {{pick(0), pick(1), pick(2)}, {pick(3), pick(4), pick(5)}, {pick(6), pick(7), pick(8)}});
    }
    std::size_t row = 0;
    for (auto function : {&GtmEach<GtmCoefficients>::average, &GtmEach<GtmCoefficients>::total,
                          &GtmEach<GtmCoefficients>::marginal}) {
        for (auto coefficient : {&GtmCoefficients::a, &GtmCoefficients::b, &GtmCoefficients::c}) {
            rows.at(row) = {{1, -2, 4}, {1, -2, 4}, {3, -4, 4}};
            rows.at(row).*function.*coefficient = 1e308;
            ++row;
        }
    }
    return rows;
}

TEST(GtmCurves, AreBoundedWhateverIsTyped) {
    constexpr double kLargestSingle = std::numeric_limits<float>::max();
    const auto rows = hostileRows();
    ASSERT_EQ(rows.size(), 100U);
    for (const auto& row : rows) {
        for (const GtmFunction function : kGtmFunctions) {
            const GtmCurve curve = curveOfTry(function, row.of(function));
            ASSERT_LE(curve.size(), 231U);
            for (const GtmPoint& p : curve) {
                ASSERT_TRUE(std::abs(p.y) <= kLargestSingle) << p.y;
            }
        }
    }
}

TEST(GtmCurves, DrawNothingOfHugeNumbers) {
    for (const double huge : {1e308, -1e308}) {
        for (const GtmFunction function : kGtmFunctions) {
            EXPECT_EQ(pieces(curveOfTry(function, {huge, -2, 4})), 0U);
            EXPECT_EQ(pieces(curveOfTry(function, {1, huge, 4})), 0U);
            EXPECT_EQ(pieces(curveOfTry(function, {1, -2, huge})), 0U);
            EXPECT_EQ(pieces(curveOfTry(function, {huge, -huge, huge})), 0U);
        }
    }
}

std::vector<std::string> textsOf(const std::vector<Formula>& formulas) {
    std::vector<std::string> texts;
    texts.reserve(formulas.size());
    for (const Formula& formula : formulas) {
        texts.push_back(textOf(formula));
    }
    return texts;
}

using Texts = std::vector<std::string>;

TEST(GtmWorked, MultipliesAvcByQ) {
    const DecimalMark danish(",");
    EXPECT_EQ(textsOf(workedProduct(next({1.5, -3, 8}, Avc))),
              (Texts{"TVC = Q*(1,5Q^2 -3Q +8)", "= 1,5Q^3 -3Q^2 +8Q"}));
    EXPECT_EQ(textsOf(workedProduct(next({0, 0, 5}, Avc))),
              (Texts{"TVC = Q*(0Q^2 +0Q +5)", "= 0Q^3 +0Q^2 +5Q"}));
}

TEST(GtmWorked, DifferentiatesTvcWithoutASignBeforeTheMiddleCoefficient) {
    const DecimalMark danish(",");
    EXPECT_EQ(textsOf(workedDerivative(next({1.5, -3, 8}, Tvc))),
              (Texts{"TVC = 1,5Q^3 -3Q^2 +8Q", "3 * 1,5Q^2 + 2 * -3Q +8", "= 4,5Q^2 -6Q +8"}));
    EXPECT_EQ(textsOf(workedDerivative(next({0, 0, 5}, Tvc))),
              (Texts{"TVC = 0Q^3 +0Q^2 +5Q", "3 * 0Q^2 + 2 * 0Q +5", "= 0Q^2 +0Q +5"}));
}

TEST(GtmWorked, DividesTvcByQ) {
    const DecimalMark danish(",");
    EXPECT_EQ(textsOf(workedQuotient(next({1.5, -3, 8}, Tvc))),
              (Texts{"AVC = (1,5Q^3 -3Q^2 +8Q)/Q", "= 1,5Q^2 -3Q +8"}));
}

TEST(GtmWorked, IntegratesMcWithRealFractions) {
    const DecimalMark danish(",");
    const GtmState s = next({0.5, -3, 9}, Mc);
    EXPECT_EQ(textsOf(workedIntegral(s)),
              (Texts{"TVC = ∫(0,5Q^2 -3Q +9)", "= 1/3* 0,5Q^3 + 1/2* -3Q^2 +9Q", "= 0,17Q^3 -1,5Q^2 +9Q"}));
    EXPECT_EQ(textsOf(workedQuotientOfIntegral(s)),
              (Texts{"AVC= (0,17Q^3 -1,5Q^2 +9Q)/Q", "= 0,17Q^2 -1,5Q +9"}));
}

TEST(GtmWorked, KeepsFixedPiecesAndCoefficientsApart) {
    std::vector<std::string> pieceTexts;
    const std::vector<Formula> worked = workedDerivative(next({1.5, -3, 8}, Avc));
    for (const FormulaPiece& piece : worked.at(1)) {
        pieceTexts.push_back(piece.text);
    }
    EXPECT_EQ(pieceTexts, (Texts{"3 *", " ", "1.5", "Q ", "+ ", "2 *", " ", "-3", "Q ", "+8"}));
}

TEST(GtmWorked, ShowsANegativeZeroAsAPositiveOne) {
    GtmState s;
    s.avc = s.tvc = {0, -0.0, 5};
    EXPECT_EQ(textOf(workedProduct(s).at(1)), "= 0Q^3 +0Q^2 +5Q");
}

}  // namespace
}  // namespace tavrune
