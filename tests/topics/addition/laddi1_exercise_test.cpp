#include "topics/addition/laddi1_exercise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "numeric/rounding.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "topics/addition/judged_fields.h"
#include "topics/addition/laddi1_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::DrawnFunction;
using test::flawOfJudging;
using test::kLargestDraw;
using test::Proof;
using test::Script;
using test::ScriptedDraws;
using test::scriptOf;

Laddi1State exercise(const DrawnFunction& function1, const DrawnFunction& function2) {
    return test::exerciseOf<Laddi1State>(scriptOf(function1, function2));
}

struct ExerciseRow {
    const char* name;
    DrawnFunction function1, function2;
    int segmentCount;
    DrawnFunction first;
    /// Where there are two segments.
    DrawnFunction second;
    double kink;
    std::optional<double> upperEnd;
};

class Laddi1Exercises : public testing::TestWithParam<ExerciseRow> {};

TEST_P(Laddi1Exercises, AddUp) {
    const ExerciseRow& row = GetParam();
    const Laddi1State s = exercise(row.function1, row.function2);
    EXPECT_EQ(s.function1.slope, row.function1.slope);
    EXPECT_EQ(s.function1.intercept, row.function1.intercept);
    EXPECT_EQ(s.function2.slope, row.function2.slope);
    EXPECT_EQ(s.function2.intercept, row.function2.intercept);
    EXPECT_EQ(s.segmentCount, row.segmentCount);
    EXPECT_EQ(s.firstSegment.slope, row.first.slope);
    EXPECT_EQ(s.firstSegment.intercept, row.first.intercept);
    EXPECT_EQ(s.secondSegment.slope, row.second.slope);
    EXPECT_EQ(s.secondSegment.intercept, row.second.intercept);
    EXPECT_EQ(s.kinkQuantity, row.kink);
    EXPECT_EQ(s.upperEndAsked, row.upperEnd.has_value());
    EXPECT_EQ(s.upperEnd, row.upperEnd.value_or(0));
}

constexpr DrawnFunction kNone{0, 0};

INSTANTIATE_TEST_SUITE_P(
    Rows, Laddi1Exercises,
    testing::Values(ExerciseRow{"BothRising", {2, 1}, {3, 0}, 1, {5, 1}, kNone, 0, {}},
                    ExerciseRow{"RisingAndLevel", {2, 1}, {0, 3}, 1, {2, 4}, kNone, 0, {}},
                    ExerciseRow{"BothLevel", {0, 2}, {0, 3}, 1, {0, 5}, kNone, 0, {}},
                    ExerciseRow{"TheFirstEndsFirst", {-3, 4}, {-1, 2}, 2, {-4, 6}, {-1, 2}, 4.0 / 3, 2.0},
                    ExerciseRow{"TheSecondEndsFirst", {-1, 2}, {-3, 4}, 2, {-4, 6}, {-1, 2}, 4.0 / 3, 2.0},
                    ExerciseRow{"BothEndAtOnce", {-1, 2}, {-2, 4}, 1, {-3, 6}, kNone, 0, 2.0},
                    ExerciseRow{"FallingAndRising", {-2, 3}, {1, 1}, 2, {-1, 4}, {1, 1}, 1.5, {}},
                    ExerciseRow{"RisingAndFalling", {4, 0}, {-4, 3}, 2, {0, 3}, {4, 0}, 0.75, {}},
                    ExerciseRow{"LevelAndFalling", {0, 2}, {-1, 4}, 2, {-1, 6}, {0, 2}, 4, {}},
                    // The second function is the axis itself, and goes on.
                    ExerciseRow{"FallingAndTheAxis", {-2, 4}, {0, 0}, 2, {-2, 4}, {0, 0}, 2, {}},
                    // A falling line through the origin never ends, but for the upper end it ends at once.
                    ExerciseRow{"FallingFromTheOriginFirst", {-1, 0}, {-1, 3}, 2, {-2, 3}, {-1, 0}, 3, 3.0},
                    ExerciseRow{"FallingFromTheOriginSecond", {-1, 3}, {-2, 0}, 2, {-3, 3}, {-2, 0}, 3, 3.0},
                    ExerciseRow{"BothFallingFromTheOrigin", {-1, 0}, {-2, 0}, 1, {-3, 0}, kNone, 0, 0.0},
                    ExerciseRow{"FallingFromTheOriginAndRising", {-1, 0}, {2, 1}, 1, {1, 1}, kNone, 0, {}}),
    [](const auto& row) { return row.param.name; });

TEST(Laddi1Generator, TakesTheCoinThenTheSlopeThenTheInterceptOfEachFunction) {
    const Laddi1State s = test::exerciseOf<Laddi1State>({0.49F, 0.7F, 0.5F, 0.5F, 0.3F, 0.9F});
    EXPECT_EQ(s.function1, (Piece{-3, 2}));
    EXPECT_EQ(s.function2, (Piece{1, 4}));
}

TEST(Laddi1Generator, LetsAFunctionRiseFromOneHalfOn) {
    const float belowHalf = std::nextafter(0.5F, 0.0F);
    const Laddi1State s = test::exerciseOf<Laddi1State>({belowHalf, 0.7F, 0.5F, 0.5F, 0.7F, 0.5F});
    EXPECT_EQ(s.function1.slope, -3);
    EXPECT_EQ(s.function2.slope, 3);
}

TEST(Laddi1Generator, ReachesBothEndsOfEachRange) {
    const Laddi1State falling =
        test::exerciseOf<Laddi1State>({0, kLargestDraw, kLargestDraw, 0, kLargestDraw, 0});
    EXPECT_EQ(falling.function1, (Piece{-4, 4}));
    EXPECT_EQ(falling.function2, (Piece{-4, 0}));
    const Laddi1State rising =
        test::exerciseOf<Laddi1State>({0.5F, kLargestDraw, 0, kLargestDraw, kLargestDraw, kLargestDraw});
    EXPECT_EQ(rising.function1, (Piece{4, 0}));
    EXPECT_EQ(rising.function2, (Piece{4, 4}));
}

TEST(Laddi1Generator, DrawsTheFirstFunctionAgainWhileItIsTheAxisAndReseedsEachTime) {
    const Laddi1State s = test::exerciseOf<Laddi1State>(
        scriptOf(true, 0, 0) + scriptOf(false, 0, 0) + scriptOf({-3, 4}, {0, 0}), test::Reseeds{3});
    EXPECT_EQ(s.function1.slope, -3);
    EXPECT_EQ(s.function2, (Piece{0, 0}));
}

TEST(Laddi1Generator, NeverRejectsTheSecondFunctionNorReseedsForIt) {
    for (const bool isFallingDrawn : {true, false}) {
        const Laddi1State s = test::exerciseOf<Laddi1State>(
            scriptOf(DrawnFunction{0, 1}) + scriptOf(isFallingDrawn, 0, 0), test::Reseeds{1});
        EXPECT_EQ(s.function2, (Piece{0, 0}));
    }
}

TEST(Laddi1Generator, KeepsTheUpperEndAndTheSecondSegmentWhereAnExerciseHasNone) {
    ScriptedDraws draws(scriptOf({-3, 4}, {-1, 2}) + scriptOf({2, 1}, {3, 0}));
    Laddi1State s;
    newExercise(s, draws);
    newExercise(s, draws);
    EXPECT_FALSE(s.upperEndAsked);
    EXPECT_EQ(s.upperEnd, 2);
    EXPECT_EQ(s.secondSegment, (Piece{-1, 2}));
    EXPECT_EQ(s.kinkQuantity, 0);
}

struct TextRow {
    const char* name;
    DrawnFunction function1, function2;
    const char* intervals;
    const char* first;
    const char* second;
};

class Laddi1Texts : public testing::TestWithParam<TextRow> {};

TEST_P(Laddi1Texts, TellTheIntervalsAndTheFunctions) {
    const DecimalMark danish(",");
    const TextRow& row = GetParam();
    Laddi1State s = exercise(row.function1, row.function2);
    for (const bool isRounded : {false, true}) {
        EXPECT_EQ(intervalsText(s), row.intervals) << isRounded;
        EXPECT_EQ(firstSegmentText(s), row.first) << isRounded;
        if (s.segmentCount == 2) {
            EXPECT_EQ(secondSegmentText(s), row.second) << isRounded;
        }
        roundKink(s);
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, Laddi1Texts,
                         testing::Values(TextRow{"OneSegment",
                                                 {2, 1},
                                                 {3, 0},
                                                 "Definitionsintervallet bliver: 0<Q.",
                                                 "P= (2 + 3)Q + (1 + 0) = 5Q + 1 for 0<Q",
                                                 ""},
                                         TextRow{"OneSegmentWithAnUpperEnd",
                                                 {-3, 4},
                                                 {-3, 4},
                                                 "Definitionsintervallet bliver: 0<Q<1,33.",
                                                 "P= (-3 - 3)Q + (4 + 4) = -6Q + 8 for 0<Q<1,33",
                                                 ""},
                                         TextRow{"TwoSegments",
                                                 {-3, 4},
                                                 {1, 2},
                                                 "Definitionsintervallerne bliver: 0<Q<1,33 og 1,33<Q.",
                                                 "P= (-3 + 1)Q + (4 + 2) = -2Q + 6 for 0<Q<1,33",
                                                 "P= 1Q + 2 for 1,33<Q"},
                                         TextRow{"TwoSegmentsWithAnUpperEnd",
                                                 {-3, 2},
                                                 {-3, 4},
                                                 "Definitionsintervallerne bliver: 0<Q<0,67 og 0,67<Q<1,33.",
                                                 "P= (-3 - 3)Q + (2 + 4) = -6Q + 6 for 0<Q<0,67",
                                                 "P= -3Q + 4 for 0,67<Q<1,33"},
                                         TextRow{"FromThreeToThree",
                                                 {-1, 0},
                                                 {-1, 3},
                                                 "Definitionsintervallerne bliver: 0<Q<3 og 3<Q<3.",
                                                 "P= (-1 - 1)Q + (0 + 3) = -2Q + 3 for 0<Q<3",
                                                 "P= -1Q + 0 for 3<Q<3"},
                                         TextRow{"LevelFunctions",
                                                 {0, 2},
                                                 {0, 0},
                                                 "Definitionsintervallet bliver: 0<Q.",
                                                 "P= (0 + 0)Q + (2 + 0) = 0Q + 2 for 0<Q",
                                                 ""}),
                         [](const auto& row) { return row.param.name; });

TEST(Laddi1Texts, ShowPlainNumbersAlsoNegativeOnesAndNoMinusBeforeAZero) {
    EXPECT_EQ(functionText({-4, 2}), "P= -4Q + 2");
    EXPECT_EQ(functionText({-0.0, 0}), "P= 0Q + 0");
}

TEST(Laddi1Kink, IsRoundedToTwoDecimalsAndStaysThereWhileTheUpperEndIsNot) {
    Laddi1State s = exercise({-3, 2}, {-3, 4});
    EXPECT_EQ(s.kinkQuantity, 2.0 / 3);
    for (int again = 0; again < 3; ++again) {
        roundKink(s);
        EXPECT_EQ(s.kinkQuantity, 0.67);
        EXPECT_EQ(s.upperEnd, 4.0 / 3);
    }
}

const AnswerField& fieldOf(const std::vector<AnswerField>& fields, int row, Slot slot) {
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const AnswerField& f) { return f.row == row && f.slot == slot; });
    if (found == fields.end()) {
        throw std::out_of_range("no such field");
    }
    return *found;
}

// A kink typed wrongly does not decide the verdict.
TEST(Laddi1Judge, TakesAnyValueForTheKinkButMarksItOnceAnythingElseIsWrong) {
    const std::vector<AnswerField> fields = answerFields(sumOf(exercise({-3, 4}, {-1, 2})));
    for (const AnswerField& kink : {fieldOf(fields, 0, Slot::End), fieldOf(fields, 1, Slot::Start)}) {
        for (const double typed : {-1e308, -5.0, 0.0, 1.32, 1.33, 1.34, 77.0, 1e308}) {
            EXPECT_TRUE(kink.target.isFit(typed)) << typed;
            EXPECT_EQ(kink.target.isMarked(typed), typed != 1.33) << typed;
        }
    }
}

TEST(Laddi1Judge, MarksTheKinkByTheRoundedOneOnceItIsRounded) {
    Laddi1State s = exercise({-3, 4}, {-1, 2});
    const auto isMarked = [&s](double typed) {
        return fieldOf(answerFields(sumOf(s)), 0, Slot::End).target.isMarked(typed);
    };
    EXPECT_TRUE(isMarked(1.327));
    EXPECT_FALSE(isMarked(1.338));
    roundKink(s);
    EXPECT_FALSE(isMarked(1.327));
    EXPECT_TRUE(isMarked(1.338));
}

TEST(Laddi1Judge, WantsTheUpperEndWithinItsUnroundedBounds) {
    const Target end = fieldOf(answerFields(sumOf(exercise({-3, 2}, {-3, 4}))), 1, Slot::End).target;
    test::expectJudged(end, {4.0 / 3 - 0.005, 1.33, 4.0 / 3, 1.338, 4.0 / 3 + 0.005},
                       {0.0, 1.328, 1.339, 2.0});
}

TEST(Laddi1Judge, WantsALoneSegmentToBeginAtJustZero) {
    const Target start = fieldOf(answerFields(sumOf(exercise({2, 1}, {3, 0}))), 1, Slot::Start).target;
    test::expectJudged(start, {Val(" "), Val("-0")}, {0.004});
}

// The whole space: 50 draws of function 1, of which 2 are rejected, times 50 of function 2.

struct SpacePoint {
    bool isFallingDrawn1;
    DrawnFunction function1;
    bool isFallingDrawn2;
    DrawnFunction function2;

    [[nodiscard]] Script script1() const {
        return scriptOf(isFallingDrawn1, std::abs(function1.slope), function1.intercept);
    }
    [[nodiscard]] Script script2() const {
        return scriptOf(isFallingDrawn2, std::abs(function2.slope), function2.intercept);
    }
    [[nodiscard]] bool isRejected() const { return function1.slope == 0 && function1.intercept == 0; }
    [[nodiscard]] std::string text() const {
        const auto one = [](const DrawnFunction& f) {
            return std::to_string(f.slope) + "Q+" + std::to_string(f.intercept);
        };
        return one(function1) + " and " + one(function2);
    }
};

/// Calls `visit` with every draw of a function: the side of the coin, and the function.
template <class Visit>
void forEachFunction(Visit visit) {
    for (const bool isFallingDrawn : {true, false}) {
        for (int size = 0; size <= 4; ++size) {
            for (int intercept = 0; intercept <= 4; ++intercept) {
                visit(isFallingDrawn, DrawnFunction{isFallingDrawn ? -size : size, intercept});
            }
        }
    }
}

template <class Visit>
void forEachDraw(Visit visit) {
    forEachFunction([&](bool isFallingDrawn1, const DrawnFunction& function1) {
        forEachFunction([&](bool isFallingDrawn2, const DrawnFunction& function2) {
            visit(SpacePoint{isFallingDrawn1, function1, isFallingDrawn2, function2});
        });
    });
}

template <class Visit>
void forEachExercise(Visit visit) {
    forEachDraw([&](const SpacePoint& e) {
        if (!e.isRejected()) {
            ScriptedDraws draws(e.script1() + e.script2());
            Laddi1State s;
            newExercise(s, draws);
            ASSERT_TRUE(draws.isUsedUp()) << e.text();
            ASSERT_EQ(draws.randomized(), 1) << e.text();
            visit(e, s);
        }
    });
}

bool fallsFromTheOrigin(const DrawnFunction& f) { return f.slope < 0 && f.intercept == 0; }

// Prices and quantities in 24ths, which no end of a function falls on: whole numbers throughout.
constexpr int kUnit = 24;

/// The price of a function, where it is defined.
std::optional<int> priceAt(const DrawnFunction& f, int q) {
    const int price = f.slope * q + f.intercept * kUnit;
    return price >= 0 ? std::optional(price) : std::nullopt;
}

std::optional<int> trueSum(const SpacePoint& e, int q) {
    const std::optional<int> one = priceAt(e.function1, q);
    const std::optional<int> other = priceAt(e.function2, q);
    if (!one && !other) {
        return std::nullopt;
    }
    return one.value_or(0) + other.value_or(0);
}

/// The price that the segments of the answer give.
std::optional<double> answerAt(const Laddi1State& s, double q) {
    if (s.upperEndAsked && q > s.upperEnd) {
        return std::nullopt;
    }
    const Piece segment = s.segmentCount == 2 && q > s.kinkQuantity ? s.secondSegment : s.firstSegment;
    return segment.at(q);
}

/// True if the segments give the true sum at every point of the grid.
bool isTrueSum(const SpacePoint& e, const Laddi1State& s) {
    for (int q = 1; q < 10 * kUnit; q += 2) {
        const std::optional<int> expected = trueSum(e, q);
        const std::optional<double> given = answerAt(s, static_cast<double>(q) / kUnit);
        if (expected.has_value() != given.has_value() ||
            (expected && std::abs(*given - static_cast<double>(*expected) / kUnit) > 1e-9)) {
            return false;
        }
    }
    return true;
}

TEST(Laddi1Space, HoldsTwoThousandFourHundredExercisesOfEveryKind) {
    int rejected = 0;
    std::set<std::array<int, 4>> kinds;
    int accepted = 0;
    forEachDraw([&](const SpacePoint& e) {
        if (!e.isRejected()) {
            ++accepted;
            return;
        }
        ++rejected;
        ScriptedDraws draws(e.script1() + scriptOf(DrawnFunction{1, 1}) + e.script2());
        Laddi1State s;
        newExercise(s, draws);
        ASSERT_TRUE(draws.isUsedUp()) << e.text();
        ASSERT_EQ(draws.randomized(), 2) << e.text();
        ASSERT_EQ(s.function1.slope, 1) << e.text();
    });
    EXPECT_EQ(accepted, 2400);
    EXPECT_EQ(rejected, 100);
    const auto sign = [](int x) { return (x > 0) - (x < 0); };
    forEachExercise([&](const SpacePoint& e, const Laddi1State& s) {
        kinds.insert({sign(e.function1.slope), sign(e.function2.slope), s.segmentCount,
                      static_cast<int>(s.upperEndAsked)});
    });
    // Two falling ones have an upper end, with one segment or two; a falling one with another has two, or one
    // where it starts at the origin; all else has one.
    const std::set<std::array<int, 4>> expected{{-1, -1, 1, 1}, {-1, -1, 2, 1}, {-1, 0, 1, 0}, {-1, 0, 2, 0},
                                                {-1, 1, 1, 0},  {-1, 1, 2, 0},  {0, -1, 1, 0}, {0, -1, 2, 0},
                                                {1, -1, 1, 0},  {1, -1, 2, 0},  {0, 0, 1, 0},  {0, 1, 1, 0},
                                                {1, 0, 1, 0},   {1, 1, 1, 0}};
    EXPECT_EQ(kinds, expected);
}

TEST(Laddi1Space, GivesTheTrueSumPointByPoint) {
    int compared = 0;
    forEachExercise([&](const SpacePoint& e, const Laddi1State& s) {
        if (fallsFromTheOrigin(e.function1) || fallsFromTheOrigin(e.function2)) {
            return;
        }
        ++compared;
        ASSERT_TRUE(isTrueSum(e, s)) << e.text();
        ASSERT_EQ(s.firstSegment.slope, e.function1.slope + e.function2.slope) << e.text();
        ASSERT_EQ(s.firstSegment.intercept, e.function1.intercept + e.function2.intercept) << e.text();
    });
    EXPECT_EQ(compared, 2024);
}

// A falling line through the origin is added as if it went on below P = 0.
TEST(Laddi1Space, AddsAFallingLineThroughTheOriginAsOneThatNeverEnds) {
    int deviating = 0;
    int ended = 0;
    forEachExercise([&](const SpacePoint& e, const Laddi1State& s) {
        const bool isFirst = fallsFromTheOrigin(e.function1);
        const bool isSecond = fallsFromTheOrigin(e.function2);
        if (!isFirst && !isSecond) {
            return;
        }
        if (isFirst && isSecond) {
            // Both: the sum ends where it begins.
            ++ended;
            ASSERT_EQ(s.segmentCount, 1) << e.text();
            ASSERT_TRUE(s.upperEndAsked) << e.text();
            ASSERT_EQ(s.upperEnd, 0) << e.text();
            return;
        }
        ++deviating;
        ASSERT_FALSE(isTrueSum(e, s)) << e.text();
        const DrawnFunction& endless = isFirst ? e.function1 : e.function2;
        const DrawnFunction& other = isFirst ? e.function2 : e.function1;
        ASSERT_EQ(s.segmentCount, other.slope < 0 ? 2 : 1) << e.text();
        if (other.slope < 0) {
            const double zero = -static_cast<double>(other.intercept) / other.slope;
            ASSERT_EQ(s.kinkQuantity, zero) << e.text();
            ASSERT_EQ(s.secondSegment.slope, endless.slope) << e.text();
            ASSERT_EQ(s.secondSegment.intercept, 0) << e.text();
            ASSERT_EQ(s.upperEnd, zero) << e.text();
        }
    });
    EXPECT_EQ(deviating, 360);
    EXPECT_EQ(ended, 16);
}

/// What "&Giv svaret" writes into a field.
double shownAnswer(const AnswerField& field) {
    const double value = field.target.value;
    return field.slot == Slot::Start || field.slot == Slot::End ? RoundUp2(value) : value;
}

/// True if the worked solution ends in the answer.
bool isInItsTexts(const Laddi1State& s) {
    const auto line = [](const Piece& p) {
        return NumberText(p.slope) + "Q + " + NumberText(p.intercept) + " for ";
    };
    const std::string end = s.upperEndAsked ? "<" + NumberText(RoundUp2(s.upperEnd)) : "";
    const std::string first = " = " + line(s.firstSegment) + "0<Q";
    if (s.segmentCount == 1) {
        return test::endsIn(firstSegmentText(s), first + end);
    }
    const std::string kink = NumberText(RoundUp2(s.kinkQuantity));
    return test::endsIn(firstSegmentText(s), first + "<" + kink) &&
           secondSegmentText(s) == "P= " + line(s.secondSegment) + kink + "<Q" + end;
}

TEST(Laddi1Space, IsSolvedByItsAnswerAndByNoOtherCoefficientOrUpperEnd) {
    Proof proof("Laddi1", 14);
    const auto sign = [](double x) { return (x > 0) - (x < 0); };
    forEachExercise([&](const SpacePoint& e, Laddi1State s) {
        proof.visit(Proof::From::WholeSpace, 100 * sign(s.function1.slope) + 10 * sign(s.function2.slope) +
                                                 2 * s.segmentCount + (s.upperEndAsked ? 1 : 0));
        if (!isTrueSum(e, s)) {
            proof.unsolvable("judged as if a falling line through the origin went on below P = 0");
        }
        for (const bool isRounded : {false, true}) {
            const std::vector<AnswerField> fields = answerFields(sumOf(s));
            ASSERT_EQ(fields.size(), (s.segmentCount == 1 ? 3U : 6U) + (s.upperEndAsked ? 1U : 0U));
            ASSERT_TRUE(test::isSolvedByTargets(s, fields)) << e.text() << isRounded;
            ASSERT_EQ(flawOfJudging(fields, shownAnswer), "") << e.text() << isRounded;
            ASSERT_TRUE(isInItsTexts(s)) << e.text() << isRounded;
            roundKink(s);
        }
    });
}

TEST(Laddi1Space, HasItsKinkWithinReachAndMovesItByRoundingByLessThanAHundredth) {
    forEachExercise([](const SpacePoint& e, Laddi1State s) {
        const double kink = s.kinkQuantity;
        ASSERT_EQ(kink > 0, s.segmentCount == 2) << e.text();
        ASSERT_LE(kink, 4) << e.text();
        roundKink(s);
        ASSERT_NEAR(s.kinkQuantity, kink, 0.005) << e.text();
        ASSERT_EQ(s.kinkQuantity, Val(NumberText(s.kinkQuantity))) << e.text();
    });
}

}  // namespace
}  // namespace tavrune
