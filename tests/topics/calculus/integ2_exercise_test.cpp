#include "topics/calculus/integ2_exercise.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/judged.h"
#include "support/proof.h"
#include "topics/calculus/integ2_script.h"
#include "topics/calculus/integ2_space.h"

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
using test::integ2::drawOf;
using test::integ2::Family;
using test::integ2::Fate;
using test::integ2::forEachTry;
using test::integ2::Numbers;
using test::integ2::numbers;
using test::integ2::pieces;
using test::integ2::piecesAndKink;
using test::integ2::Point;

constexpr Family kFall = Family::FallThenRise;
constexpr Family kRise = Family::RiseThenFall;
constexpr Family kTwoFalls = Family::TwoFalls;

/// One try that every family takes: the family shows in what it makes of the draws.
const Script kTakenByAll{0.25F, 0.65F, 0.25F, 0.6F, 0.3F, 0.1F, 0.1F};

Integ2State draw(const Script& script) { return test::exerciseOf<Integ2State>(script); }

Integ2State exercise(Family family, const Numbers& n) { return draw(drawOf(family) + numbers(family, n)); }

Family familyOf(const Integ2State& s) {
    if (s.a2 > 0) {
        return kFall;
    }
    return s.a1 > 0 ? kRise : kTwoFalls;
}

/// Calls `visit` with every exercise of a family, as it is told and as it is drawn.
template <class Visit>
void forEachTaken(Family family, Visit visit) {
    forEachTry(family, [&](const Point& p) {
        if (p.fate() == Fate::Taken) {
            visit(p, exercise(p.family, p.n));
        }
    });
}

/// The seven drawn numbers, for comparing.
std::vector<float> drawn(const Integ2State& s) { return {s.a1, s.b1, s.a2, s.b2, s.k, s.v, s.w}; }

Integ2State withTotal(double total) {
    Integ2State state;
    state.total = total;
    return state;
}

TEST(Integ2Generator, DrawsAFallAndARise) {
    const Integ2State s =
        exercise(kFall, {.a1 = 2, .b1 = 6, .a2 = 1, .b2 = 4, .k = 3, .back = 2, .forth = 3});
    EXPECT_EQ(drawn(s), (std::vector<float>{-2, 6, 1, 4, 3, 1, 6}));
    EXPECT_EQ(s.first, 4);
    EXPECT_EQ(s.second, 25.5);
    EXPECT_EQ(s.total, 29.5);
}

TEST(Integ2Generator, DrawsARiseAndAFallInHalves) {
    const Integ2State s =
        exercise(kRise, {.a1 = 3, .b1 = 2, .a2 = 1, .b2 = 7, .k = 4, .back = 1, .forth = 2});
    EXPECT_EQ(drawn(s), (std::vector<float>{1.5F, 2, -0.5F, 7, 4, 3, 6}));
    EXPECT_EQ(s.first, 7.25);
    EXPECT_EQ(s.second, 9);
    EXPECT_EQ(s.total, 16.25);
}

TEST(Integ2Generator, DrawsTwoFallsInHalves) {
    const Integ2State s =
        exercise(kTwoFalls, {.a1 = 1, .b1 = 5, .a2 = 2, .b2 = 1, .k = 6, .back = 3, .forth = 1});
    EXPECT_EQ(drawn(s), (std::vector<float>{-0.5F, 5, -1, 1, 6, 3, 7}));
    EXPECT_EQ(s.first, 8.25);
    EXPECT_EQ(s.second, -5.5);
    EXPECT_EQ(s.total, 2.75);
}

TEST(Integ2Generator, ReachesBothEndsOfEveryRange) {
    constexpr float kLargest = kLargestDraw;
    using Values = std::vector<float>;
    // Equal sizes are no exercise, so one of the smallest is drawn a little larger.
    EXPECT_EQ(drawn(draw({0, 0, 0.3F, 0, 0, 0, 0, 0})), (Values{-1, 2, 1, 1, 2, 1, 3}));
    EXPECT_EQ(drawn(draw({0.33F, kLargest, kLargest, kLargest, kLargest, 0.3F, kLargest, kLargest})),
              (Values{-2, 6, 3, 4, 3, 0, 6}));
    EXPECT_EQ(drawn(draw({0.34F, 0, 0, 0, 0.2F, 0, 0, 0})), (Values{0.5F, 1, -0.5F, 2, 2, 1, 3}));
    EXPECT_EQ(drawn(draw({0.66F, kLargest, kLargest, kLargest, kLargest, 0.5F, kLargest, kLargest})),
              (Values{1.5F, 6, -1.5F, 7, 4, 1, 7}));
    EXPECT_EQ(drawn(draw({0.67F, 0, 0.3F, 0, 0, 0, 0, 0})), (Values{-0.5F, 2, -0.5F, 1, 2, 1, 3}));
    EXPECT_EQ(drawn(draw({kLargest, kLargest, kLargest, kLargest, kLargest, kLargest, kLargest, kLargest})),
              (Values{-1, 5, -1, 2, 6, 3, 9}));
}

struct RefusedRow {
    const char* name;
    Family family;
    /// The draws of the refused try.
    Script refused;
    /// The family of the try that follows.
    Family next;
};

void PrintTo(const RefusedRow& row, std::ostream* out) { *out << row.name; }

class Integ2Refused : public testing::TestWithParam<RefusedRow> {};

TEST_P(Integ2Refused, GoesOnJustThere) {
    const RefusedRow& row = GetParam();
    const Integ2State s =
        test::exerciseOf<Integ2State>(drawOf(row.family) + row.refused + kTakenByAll, test::Reseeds{2});
    EXPECT_EQ(familyOf(s), row.next);
    EXPECT_EQ(drawn(s), drawn(draw(drawOf(row.next) + kTakenByAll)));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Integ2Refused,
    testing::Values(
        RefusedRow{"AFallThatBeginsLowerThanItsRise", kFall, piecesAndKink(kFall, {.b1 = 1, .b2 = 4}), kFall},
        RefusedRow{"AFallThatBeginsWithItsRise", kFall, piecesAndKink(kFall, {.b1 = 4, .b2 = 4}), kFall},
        RefusedRow{"AFallFromLeftOfTheAxis", kFall, numbers(kFall, {.b1 = 5, .b2 = 4, .k = 2, .back = 3}),
                   kFall},
        RefusedRow{"ARiseTooHighAtTheKink", kFall, numbers(kFall, {.b1 = 6, .a2 = 3, .b2 = 1, .k = 5}),
                   kFall},
        RefusedRow{"ARiseThatBeginsHigherThanItsFall", kRise, pieces(kRise, {.b1 = 6, .b2 = 5}), kFall},
        RefusedRow{"ARiseThatBeginsWithItsFall", kRise, pieces(kRise, {.b1 = 3, .b2 = 3}), kFall},
        RefusedRow{"ARiseFromLeftOfTheAxis", kRise, numbers(kRise, {.b1 = 1, .b2 = 2, .k = 2, .back = 3}),
                   kRise},
        RefusedRow{"AFallTooHighWereItARise", kRise, numbers(kRise, {.b1 = 6, .a2 = 3, .b2 = 7, .k = 6}),
                   kRise},
        RefusedRow{"TwoFallsFromLeftOfTheAxis", kTwoFalls, numbers(kTwoFalls, {.b1 = 5, .k = 2, .back = 3}),
                   kTwoFalls},
        RefusedRow{"TwoFallsThatAreOneLine", kTwoFalls,
                   numbers(kTwoFalls, {.a1 = 2, .b1 = 2, .a2 = 2, .b2 = 2, .k = 4}), kTwoFalls}),
    [](const auto& row) { return row.param.name; });

TEST(Integ2Generator, TakesWhatStandsJustOnItsBounds) {
    const Integ2State high = exercise(kFall, {.b1 = 6, .a2 = 3, .b2 = 3, .k = 4});
    EXPECT_EQ(high.a2 * high.k + high.b2, 15);
    const Integ2State rise = exercise(kRise, {.b1 = 6, .a2 = 3, .b2 = 7, .k = 5});
    EXPECT_EQ(-rise.a2 * rise.k + rise.b2, 14.5);
    EXPECT_EQ(exercise(kFall, {.b1 = 2, .k = 3, .back = 3}).v, 0);
    EXPECT_EQ(exercise(kRise, {.b2 = 2, .k = 6, .forth = 3}).w, 9);
    const Integ2State onlySlopesAlike = exercise(kTwoFalls, {.b1 = 2, .b2 = 1});
    EXPECT_EQ(onlySlopesAlike.a1, onlySlopesAlike.a2);
    const Integ2State onlyStartsAlike = exercise(kTwoFalls, {.a1 = 1, .a2 = 2});
    EXPECT_EQ(onlyStartsAlike.b1, onlyStartsAlike.b2);
}

TEST(Integ2Generator, StaysInTheFirstFamilyOnceItIsThere) {
    const Script leaves = drawOf(kRise) + pieces(kRise, {.b1 = 6, .b2 = 1});
    const Script fiveMore = piecesAndKink(kFall, {.b1 = 1, .b2 = 1});
    const Script sevenMore = numbers(kFall, {.b1 = 6, .a2 = 3, .b2 = 4, .k = 6});
    const Integ2State s =
        test::exerciseOf<Integ2State>(leaves + fiveMore + sevenMore + kTakenByAll, test::Reseeds{4});
    EXPECT_EQ(familyOf(s), kFall);
}

/// Notes in which order draws and reseedings come.
class Diary final : public Draws {
public:
    float Rnd() override {
        written += 'R';
        return script_.Rnd();
    }
    void Randomize() override { written += '!'; }

    std::string written;

private:
    ScriptedDraws script_{drawOf(kRise) + pieces(kRise, {.b1 = 6, .b2 = 1}) + kTakenByAll};
};

TEST(Integ2Generator, DrawsTheFamilyOnceAndReseedsBeforeEachTry) {
    Diary draws;
    Integ2State s;
    newExercise(s, draws);
    EXPECT_EQ(draws.written, "R!RRRR!RRRRRRR");
}

TEST(Integ2Generator, DrawsTheFirstFamilyMoreOftenThanAThird) {
    SeededDraws draws(52);
    std::map<Family, int> count;
    constexpr int kExercises = 30'000;
    for (int i = 0; i < kExercises; ++i) {
        Integ2State s;
        newExercise(s, draws);
        ++count[familyOf(s)];
    }
    // Half of the tries at the second family end in the first.
    EXPECT_NEAR(count[kTwoFalls], kExercises / 3.0, 500);
    EXPECT_GT(count[kFall], kExercises * 0.47);
    EXPECT_GT(count[kRise], kExercises * 0.12);
}

// The whole space of draws.

class Integ2Space : public testing::TestWithParam<Family> {
protected:
    /// Calls `visit` with every exercise of the family, as it is told and as it is drawn.
    template <class Visit>
    static void forEachExercise(Visit visit) {
        forEachTaken(GetParam(), visit);
    }
};

INSTANTIATE_TEST_SUITE_P(Families, Integ2Space, testing::Values(kFall, kRise, kTwoFalls),
                         [](const auto& row) {
                             return row.param == kFall   ? "FallThenRise"
                                    : row.param == kRise ? "RiseThenFall"
                                                         : "TwoFalls";
                         });

TEST_P(Integ2Space, TakesAndRefusesJustTheTriesToldOf) {
    std::map<Fate, int> count;
    forEachTry(GetParam(), [&](const Point& p) {
        SCOPED_TRACE(testing::PrintToString(p));
        const Fate fate = p.fate();
        ++count[fate];
        ScriptedDraws draws(p.draws() + kTakenByAll);
        Integ2State s;
        newExercise(s, draws);
        ASSERT_EQ(draws.used(), p.draws().size() + (fate == Fate::Taken ? 0 : kTakenByAll.size()));
        ASSERT_EQ(draws.randomized(), fate == Fate::Taken ? 1 : 2);
        ASSERT_EQ(familyOf(s), fate == Fate::LeftAfterFour ? kFall : p.family);
        if (fate == Fate::Taken) {
            ASSERT_EQ(drawn(s),
                      (std::vector<float>{static_cast<float>(p.slope1()) / 2, static_cast<float>(p.n.b1),
                                          static_cast<float>(p.slope2()) / 2, static_cast<float>(p.n.b2),
                                          static_cast<float>(p.n.k), static_cast<float>(p.v()),
                                          static_cast<float>(p.w())}));
        }
    });
    using Fates = std::map<Fate, int>;
    // 6480, 17010 and 1800 tries.
    const std::map<Family, Fates> told{
        {kFall, {{Fate::Taken, 2952}, {Fate::Again, 828}, {Fate::AgainAfterFive, 2700}}},
        {kRise, {{Fate::Taken, 7776}, {Fate::Again, 729}, {Fate::LeftAfterFour, 8505}}},
        {kTwoFalls, {{Fate::Taken, 1512}, {Fate::Again, 288}}}};
    EXPECT_EQ(count, told.at(GetParam()));
}

TEST_P(Integ2Space, HasItsKinkInsideTheLimitsAndThoseOnTheGraph) {
    forEachExercise([](const Point& p, const Integ2State& s) {
        SCOPED_TRACE(testing::PrintToString(p));
        ASSERT_GE(s.v, 0);
        ASSERT_LE(s.v + 1, s.k);
        ASSERT_GE(s.k, 2);
        ASSERT_LE(s.k, 6);
        ASSERT_GE(s.w, s.k + 1);
        ASSERT_LE(s.w, 9);
    });
}

TEST(Integ2TwoFalls, ComeNoHigherThanFiveAtTheKinkAndAreNeverLeftForTheFirstFamily) {
    double highest = 0;
    forEachTry(kTwoFalls, [&](const Point& p) {
        SCOPED_TRACE(testing::PrintToString(p));
        ScriptedDraws draws(p.draws() + kTakenByAll);
        Integ2State s;
        newExercise(s, draws);
        ASSERT_EQ(familyOf(s), kTwoFalls);
        const double height = std::abs(heightAt(secondPiece(s), s.k));
        ASSERT_LE(height, 5);
        highest = std::max(highest, height);
    });
    EXPECT_EQ(highest, 5);
}

/// By Simpson's rule, which is exact for a line but for rounding.
template <class Height>
double simpson(Height height, double from, double to) {
    return (to - from) / 6 * (height(from) + 4 * height((from + to) / 2) + height(to));
}

TEST_P(Integ2Space, IntegratesEachPieceAsSimpsonsRuleAndWholeNumbersDo) {
    forEachExercise([](const Point& p, const Integ2State& s) {
        SCOPED_TRACE(testing::PrintToString(p));
        ASSERT_EQ(s.first * 4, p.first());
        ASSERT_EQ(s.second * 4, p.second());
        ASSERT_EQ(s.total * 4, p.first() + p.second());
        const auto first = [&p](double q) { return p.slope1() * q / 2 + p.n.b1; };
        const auto second = [&p](double q) { return p.slope2() * q / 2 + p.n.b2; };
        ASSERT_NEAR(s.first, simpson(first, p.v(), p.n.k), 1e-9);
        ASSERT_NEAR(s.second, simpson(second, p.n.k, p.w()), 1e-9);
        for (const double q : {0.0, 2.5, 10.0}) {
            ASSERT_EQ(heightAt(firstPiece(s), q), first(q));
            ASSERT_EQ(heightAt(secondPiece(s), q), second(q));
        }
    });
}

TEST(Integ2Exercises, AreSolvedByWhatTheyShowAndByNothingBesideIt) {
    Proof proof("Integ2", 3);
    for (const Family family : {kFall, kRise, kTwoFalls}) {
        forEachTaken(family, [&](const Point& p, const Integ2State& s) {
            proof.visit(Proof::From::WholeSpace, static_cast<int>(family));
            const double shown = Val(answerText(s));
            ASSERT_EQ(shown * 4, p.first() + p.second()) << testing::PrintToString(p);
            const bool holds = std::isfinite(s.total) && shown == s.total && judge(s, {shown}).isSolved &&
                               inBothMarks([&] { return typedAgain(answerText(s)) == shown; }) &&
                               eachIs({false}, s, {{shown + kJustPast}, {shown - kJustPast}});
            ASSERT_TRUE(holds) << testing::PrintToString(p);
        });
    }
}

/// Reads a worked-out text as mathematics: + - * / with their ranks, brackets, a raised 2, and Q.
class Reader {
public:
    static double valueOf(const std::string& text, double q = 0) {
        Reader reader(text, q);
        const double value = reader.sum();
        EXPECT_EQ(reader.at_, text.size()) << text;
        return value;
    }

private:
    Reader(const std::string& text, double q) : text_(text), q_(q) {}

    bool takes(const std::string& sign) {
        if (text_.compare(at_, sign.size(), sign) != 0) {
            return false;
        }
        at_ += sign.size();
        return true;
    }

    double sum() {
        double value = product();
        while (true) {
            if (takes("+")) {
                value += product();
            } else if (takes("-")) {
                value -= product();
            } else {
                return value;
            }
        }
    }

    double product() {
        double value = factor();
        while (true) {
            if (takes("*")) {
                value *= factor();
            } else if (takes("/")) {
                value /= factor();
            } else if (takes("Q")) {
                value *= q_;
            } else {
                return value;
            }
        }
    }

    double factor() {
        if (takes("-")) {
            return -factor();
        }
        double value = 0;
        if (takes("(")) {
            value = sum();
            EXPECT_TRUE(takes(")")) << text_;
        } else {
            value = number();
        }
        return takes("²") ? value * value : value;
    }

    double number() {
        const std::size_t from = at_;
        while (at_ < text_.size() &&
               (std::isdigit(static_cast<unsigned char>(text_[at_])) != 0 || text_[at_] == '.')) {
            ++at_;
        }
        EXPECT_LT(from, at_) << text_;
        return from < at_ ? std::stod(text_.substr(from, at_ - from)) : std::nan("");
    }

    const std::string& text_;
    double q_;
    std::size_t at_ = 0;
};

std::string rowOf(const Integ2Worked& worked) {
    return worked.upperQuadraticTerm + "²" + worked.upperLinearTerm + worked.lowerQuadraticTerm + "²" +
           worked.lowerLinearTerm;
}

TEST(Integ2Reader, ReadsRanksBracketsSignsAndPowers) {
    EXPECT_EQ(Reader::valueOf("1+2*3-8/4"), 5);
    EXPECT_EQ(Reader::valueOf("((-0.5/2)*4²+3*4)-((-0.5/2)*2²+3*2)"), 3);
    EXPECT_EQ(Reader::valueOf("(-2Q+3)", 5), -7);
}

TEST_P(Integ2Space, WritesRowsThatReadBackAsTheIntegrals) {
    const DecimalMark plain(".");
    forEachExercise([](const Point& p, const Integ2State& s) {
        SCOPED_TRACE(testing::PrintToString(p));
        const Integ2Worked red = workedOut(firstPiece(s));
        const Integ2Worked green = workedOut(secondPiece(s));
        const std::string redRow = rowOf(red);
        const std::string greenRow = rowOf(green);
        ASSERT_EQ(Reader::valueOf(redRow) * 4, p.first());
        ASSERT_EQ(Reader::valueOf(greenRow) * 4, p.second());
        for (const double q : {0.0, 1.0, 2.5}) {
            ASSERT_EQ(Reader::valueOf(red.integrand, q), p.slope1() * q / 2 + p.n.b1);
            ASSERT_EQ(Reader::valueOf(green.integrand, q), p.slope2() * q / 2 + p.n.b2);
        }
    });
}

TEST(Integ2Judge, TakesTheHalfOpenBandRoundTheTotal) {
    const Integ2State s = withTotal(16.25);
    EXPECT_TRUE(eachIs({true}, s, {{s.total + 0.005}}));
    EXPECT_TRUE(eachIs({false}, s, {{s.total - 0.005}}));
    EXPECT_TRUE(eachTextIs(true, s, {"16.25", "16.2451", "16.2549"}));
    EXPECT_TRUE(eachTextIs(false, s, {"16.2449", "16.2551", "-16.25"}));
}

TEST(Integ2Judge, TakesTheHalfOpenBandBelowZeroToo) {
    const Integ2State s = withTotal(-2.75);
    EXPECT_TRUE(eachIs({true}, s, {{s.total + 0.005}}));
    EXPECT_TRUE(eachIs({false}, s, {{s.total - 0.005}}));
}

TEST(Integ2Judge, TakesNothingTypedForAnIntegralOfZero) {
    const Integ2State s = exercise(kTwoFalls, {.a1 = 1, .b1 = 1, .a2 = 1, .b2 = 2, .k = 3});
    EXPECT_EQ(s.first, -0.25);
    EXPECT_EQ(s.second, 0.25);
    EXPECT_TRUE(eachTextIs(true, s, {""}));
    EXPECT_EQ(answerText(s), "0");
}

TEST(Integ2Texts, GiveTheAnswerWithTwoDecimals) {
    const DecimalMark danish(",");
    EXPECT_EQ(answerText(withTotal(16.25)), "16,25");
    EXPECT_EQ(answerText(withTotal(-2.75)), "-2,75");
    EXPECT_EQ(answerText(withTotal(0.125)), "0,13");
    EXPECT_EQ(answerText(withTotal(-0.125)), "-0,13");
}

TEST(Integ2Texts, WriteAPlusBeforeEveryB) {
    const DecimalMark danish(",");
    const Integ2State s =
        exercise(kRise, {.a1 = 3, .b1 = 2, .a2 = 1, .b2 = 7, .k = 4, .back = 1, .forth = 2});
    EXPECT_EQ(workedOut(firstPiece(s)).integrand, "(1,5Q+2)");
    EXPECT_EQ(rowOf(workedOut(firstPiece(s))), "((1,5/2)*4²+2*4)-((1,5/2)*3²+2*3)");
    EXPECT_EQ(workedOut(secondPiece(s)).integrand, "(-0,5Q+7)");
    EXPECT_EQ(rowOf(workedOut(secondPiece(s))), "((-0,5/2)*6²+7*6)-((-0,5/2)*4²+7*4)");

    Integ2State negative = s;
    negative.b2 = -7;
    EXPECT_EQ(workedOut(secondPiece(negative)).integrand, "(-0,5Q+-7)");
    EXPECT_EQ(workedOut(secondPiece(negative)).upperLinearTerm, "+-7*6)");
}

TEST(Integ2Texts, ShowASummandAboveZeroAndBracketWhatStoodThereOtherwise) {
    const DecimalMark danish(",");
    EXPECT_EQ(summandText(7.25, "rest"), "7,25");
    EXPECT_EQ(summandText(0, "7,25"), "(7,25)");
    EXPECT_EQ(summandText(-3, "(7,25)"), "((7,25))");
}

}  // namespace
}  // namespace tavrune
