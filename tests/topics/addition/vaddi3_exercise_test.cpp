#include "topics/addition/vaddi3_exercise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <iostream>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <utility>

#include <gtest/gtest.h>

#include "numeric/arithmetic.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/exact.h"
#include "support/lot.h"
#include "topics/addition/vaddi3_market.h"
#include "topics/addition/vaddi3_tasks.h"

namespace tavrune {
namespace {

using enum TableColumn;
using test::cellOf;
using test::DecimalMark;
using test::Exact;
using test::exact;
using test::Functions;
using test::Proof;
using test::Script;
using test::ScriptedDraws;
using test::scriptOf;
using test::startsFlat;
using test::Vaddi3Task;

Vaddi3State exerciseOf(const Vaddi3Task& task) {
    return test::exerciseOf<Vaddi3State>(scriptOf(task), test::Reseeds{1});
}

std::string columnText(const Vaddi3State::Column& column) {
    std::string text;
    for (const TableCell& cell : column) {
        text += (text.empty() ? "" : "|") + cell.text();
    }
    return text;
}

/// "a" for the first part, "b" for the second.
std::string partsText(const Vaddi3State& s) {
    const std::map<Parts, std::string> names{
        {Parts::None, "-"}, {Parts::BeforeKink, "a"}, {Parts::AfterKink, "b"}, {Parts::Both, "ab"}};
    std::string text;
    for (const Parts parts : s.partsOfRows) {
        text += (text.empty() ? "" : "|") + names.at(parts);
    }
    return text;
}

std::string sumText(const Vaddi3State& s) {
    std::string text;
    for (const SumSegment& segment : s.segments) {
        text += (text.empty() ? "P=" : "; P=") + NumberText(segment.piece.slope) + "Q+" +
                NumberText(segment.piece.intercept) + " " + segment.startQ.text() + "<Q<" +
                segment.endQ.text();
    }
    return text;
}

// The draw.

TEST(Vaddi3Draw, GivesAJumpDown) {
    const Vaddi3State s = exerciseOf({KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, -3, 7});
    EXPECT_EQ(s.kinkKind, KinkKind::JumpDown);
    EXPECT_EQ(s.intercept1Before, 9);
    EXPECT_EQ(s.slope1Before, -0.5F);
    EXPECT_EQ(s.kinkQuantity, 4);
    EXPECT_EQ(s.kinkPriceBefore, 7);
    EXPECT_EQ(s.slope1After, -2);
    EXPECT_EQ(s.intercept1After, 13);
    EXPECT_EQ(s.kinkPriceAfter, 5);
    EXPECT_EQ(s.slope2, -3);
    EXPECT_EQ(s.intercept2, 7);
}

TEST(Vaddi3Draw, GivesAJumpUp) {
    const Vaddi3State s = exerciseOf({KinkKind::JumpUp, 9, -4, 1, -0.7F, 0.3F, -1, 5});
    EXPECT_EQ(s.slope1Before, -4);
    EXPECT_EQ(s.kinkPriceBefore, 5);
    EXPECT_EQ(s.slope1After, -0.7F);
    EXPECT_EQ(s.intercept1After, 7);
    // A double, of the single slope.
    EXPECT_EQ(s.kinkPriceAfter, static_cast<double>(-0.7F) + 7);
}

TEST(Vaddi3Draw, GivesAKinkWhosePartsMeet) {
    const Vaddi3State steeper = exerciseOf({KinkKind::Steeper, 6, -0.8F, 5, -2, 0, -1, 8});
    EXPECT_EQ(steeper.kinkPriceBefore, 2);
    EXPECT_EQ(steeper.kinkPriceAfter, 2);
    EXPECT_EQ(steeper.intercept1After, 12);

    const Vaddi3State flatter = exerciseOf({KinkKind::Flatter, 7, -3, 1, -0.7F, 0, -1, 8});
    EXPECT_EQ(flatter.kinkPriceBefore, 4);
    EXPECT_EQ(flatter.kinkPriceAfter, 4);
    EXPECT_EQ(flatter.intercept1After, 4.7);
}

TEST(Vaddi3Draw, CutsAKinkFarOutToEightOnlyAtAJumpDown) {
    EXPECT_EQ(exerciseOf({KinkKind::JumpDown, 9, -0.2F, 30, -2, 0.25F, -3, 7}).kinkQuantity, 8);
    EXPECT_EQ(exerciseOf({KinkKind::Steeper, 5, -0.7F, 5, -2, 0, -3, 7}).kinkQuantity, 5);
}

/// A first try that does not suit, then an exercise: the kind is drawn once, everything else anew.
struct Rejection {
    const char* name;
    KinkKind kind;
    Script rejected;
};

class Vaddi3Rejects : public testing::TestWithParam<Rejection> {};

INSTANTIATE_TEST_SUITE_P(
    Tries, Vaddi3Rejects,
    testing::Values(
        // 6 / 0.1 is 60.
        Rejection{"AJumpDownThatEndsBeyondFifty", KinkKind::JumpDown, {cellOf(1, 5), cellOf(0, 8)}},
        // -0.5 * 8 + 5 is 1.
        Rejection{"AJumpDownFromOne", KinkKind::JumpDown,
                  test::firstPartOf({KinkKind::JumpDown, 5, -0.5F, 8, 0, 0, 0, 0})},
        // The kink stands at 1.4, and the second part would begin at 0.
        Rejection{"AJumpDownToNothing", KinkKind::JumpDown,
                  test::firstPartOf({KinkKind::JumpDown, 5, -0.6F, 6, -2, 0, 0, 0}) +
                      test::secondPartOf({KinkKind::JumpDown, 5, -0.6F, 6, -2, 0, 0, 0})},
        // 5 / 5 is 1.
        Rejection{"AJumpUpThatEndsAtOne", KinkKind::JumpUp, {cellOf(0, 5), cellOf(2, 3)}},
        // 9 / 0.8 is 11.25.
        Rejection{"ASteepeningThatEndsBeyondEight", KinkKind::Steeper, {cellOf(4, 5), cellOf(7, 8)}},
        // -0.8 * 5 + 5 is 1.
        Rejection{"ASteepeningFromOne", KinkKind::Steeper,
                  test::firstPartOf({KinkKind::Steeper, 5, -0.8F, 5, 0, 0, 0, 0})},
        Rejection{"AFlatteningThatEndsAtOne", KinkKind::Flatter, {cellOf(0, 5), cellOf(2, 3)}}),
    [](const auto& row) { return row.param.name; });

TEST_P(Vaddi3Rejects, AndGoesBackToTheFirstIntercept) {
    const std::map<KinkKind, Vaddi3Task> tasks{{KinkKind::JumpDown, test::kTwoSegments},
                                               {KinkKind::JumpUp, test::kFourSegments},
                                               {KinkKind::Steeper, test::kSteeper},
                                               {KinkKind::Flatter, test::kFlatter}};
    const Vaddi3Task& task = tasks.at(GetParam().kind);
    const Vaddi3State s = test::exerciseOf<Vaddi3State>(
        test::kindOf(task.kind) + GetParam().rejected + GetParam().rejected + test::firstPartOf(task) +
            test::secondPartOf(task) + test::secondFunctionOf(task),
        test::Reseeds{1});
    EXPECT_EQ(s.kinkKind, task.kind);
    EXPECT_EQ(sumText(s), sumText(exerciseOf(task)));
}

TEST(Vaddi3Draw, TakesAJumpDownThatEndsAtFifty) {
    EXPECT_EQ(exerciseOf({KinkKind::JumpDown, 5, -0.1F, 3, -2, 0.5F, -1, 5}).slope1Before, -0.1F);
}

TEST(Vaddi3Draw, TakesTheFlattestSteepSlopeForADrawOfZero) {
    const Vaddi3State s =
        test::exerciseOf<Vaddi3State>(test::kindOf(KinkKind::Flatter) + Script{cellOf(4, 5), 0, 0.5F} +
                                      Script{cellOf(3, 8), cellOf(1, 5), cellOf(2, 5)});
    EXPECT_EQ(s.slope1Before, -2);
    EXPECT_EQ(s.kinkQuantity, 2);
}

TEST(Vaddi3Draw, ReachesEveryValueOfEveryNumber) {
    std::map<KinkKind, std::set<std::string>> first;
    std::map<KinkKind, std::set<std::string>> second;
    std::set<std::string> starts;
    std::set<std::string> slopes2;
    std::set<std::string> starts2;
    SeededDraws draws(75);
    Vaddi3State s;
    for (int i = 0; i < 20'000; ++i) {
        newExercise(s, draws);
        first[s.kinkKind].insert(NumberText(s.slope1Before));
        second[s.kinkKind].insert(NumberText(s.slope1After));
        starts.insert(NumberText(s.intercept1Before));
        slopes2.insert(NumberText(s.slope2));
        starts2.insert(NumberText(s.intercept2));
    }
    const std::set<std::string> flat{"-0.1", "-0.2", "-0.3", "-0.4", "-0.5", "-0.6", "-0.7", "-0.8"};
    const std::set<std::string> steepFirst{"-3", "-4", "-5"};
    const std::set<std::string> steepSecond{"-1", "-2", "-3", "-4"};
    EXPECT_EQ(first[KinkKind::JumpDown], flat);
    EXPECT_EQ(first[KinkKind::JumpUp], steepFirst);
    // Flatter ones end beyond 8.
    EXPECT_EQ(first[KinkKind::Steeper], (std::set<std::string>{"-0.7", "-0.8"}));
    EXPECT_EQ(first[KinkKind::Flatter], steepFirst);
    EXPECT_EQ(second[KinkKind::JumpDown], steepSecond);
    EXPECT_EQ(second[KinkKind::JumpUp], flat);
    EXPECT_EQ(second[KinkKind::Steeper], steepSecond);
    EXPECT_EQ(second[KinkKind::Flatter], flat);
    EXPECT_EQ(starts, (std::set<std::string>{"5", "6", "7", "8", "9"}));
    EXPECT_EQ(slopes2, (std::set<std::string>{"0", "-1", "-2", "-3", "-4"}));
    EXPECT_EQ(starts2, starts);
}

// The sum, of every kind with function 2 at every place.

struct SumCase {
    const char* name;
    Vaddi3Task task;
    std::string prices;
    std::string sum;
};

class Vaddi3Sum : public testing::TestWithParam<SumCase> {};

// One case a line.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Of, Vaddi3Sum, testing::ValuesIn(std::vector<SumCase>{
        {"JumpDownBelowFunction2", {KinkKind::JumpDown, 8, -0.5F, 4, -2, 0.25F, -2, 9}, "9 8 6 4 0",
         "P=-2Q+9 0<Q<0.5; P=-0.4Q+8.2 0.5<Q<5.5; P=-2Q+17 5.5<Q<6.5; P=-1Q+10.5 6.5<Q<10.5"},
        {"JumpDownWithEqualStarts", {KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, -2, 9}, "9 7 5 0",
         "P=-0.4Q+9 0<Q<5; P=-2Q+17 5<Q<6; P=-1Q+11 6<Q<11"},
        {"JumpDownUnderFunction2BeforeTheJump", {KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, -2, 8}, "9 8 7 5 0",
         "P=-0.5Q+9 0<Q<2; P=-0.4Q+8.8 2<Q<4.5; P=-2Q+16 4.5<Q<5.5; P=-1Q+10.5 5.5<Q<10.5"},
        {"JumpDownWithFunction2AtTheFirstKinkPrice", {KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, -3, 7}, "9 7 5 0",
         "P=-0.5Q+9 0<Q<4; P=-3Q+19 4<Q<4.67; P=-1.2Q+10.6 4.67<Q<8.83"},
        {"JumpDownOverFunction2InTheJump", {KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, -1, 6}, "9 7 6 5 0",
         "P=-0.5Q+9 0<Q<4; P=-1Q+10 4<Q<5; P=-0.67Q+8.33 5<Q<12.5"},
        {"JumpDownWithFunction2AtTheSecondKinkPrice", {KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, -4, 5}, "9 7 5 0",
         "P=-0.5Q+9 0<Q<4; P=-1.33Q+10.33 4<Q<7.75"},
        {"JumpDownWithFunction2BelowTheJump", {KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.1F, -1, 5}, "9 7 6 5 0",
         "P=-0.5Q+9 0<Q<4; P=-2Q+14 4<Q<4.5; P=-0.67Q+8 4.5<Q<12"},
        {"JumpUpBelowFunction2", {KinkKind::JumpUp, 8, -4, 1, -0.5F, 0.5F, -2, 9}, "9 8 6.5 4 0",
         "P=-2Q+9 0<Q<0.5; P=-1.33Q+8.67 0.5<Q<3.5; P=-0.4Q+7.4 2.25<Q<18.5"},
        {"JumpUpWithEqualStarts", {KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, -2, 9}, "9 6 3 0",
         "P=-1.2Q+9 0<Q<5; P=-0.4Q+7.4 3.5<Q<18.5"},
        {"JumpUpUnderFunction2AboveTheJump", {KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, -2, 8}, "9 8 6 3 0",
         "P=-3Q+9 0<Q<0.33; P=-1.2Q+8.4 0.33<Q<4.5; P=-0.4Q+7.2 3<Q<18"},
        {"JumpUpWithFunction2AtTheSecondKinkPrice", {KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, -2, 6}, "9 6 3 0",
         "P=-3Q+9 0<Q<1; P=-1.2Q+7.2 1<Q<3.5; P=-0.4Q+6.8 2<Q<17"},
        {"JumpUpWithFunction2InTheJump", {KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, -2, 5}, "9 6 5 3 0",
         "P=-3Q+9 0<Q<1.33; P=-1.2Q+6.6 1.33<Q<3; P=-0.5Q+7 2<Q<4; P=-0.4Q+6.6 4<Q<16.5"},
        {"JumpUpWithFunction2AtTheFirstKinkPrice", {KinkKind::JumpUp, 9, -4, 1, -0.5F, 0.3F, -2, 5}, "9 6.5 5 0",
         "P=-4Q+9 0<Q<1; P=-0.5Q+7 1<Q<4; P=-0.4Q+6.6 4<Q<16.5"},
        {"JumpUpWithFunction2BelowTheJump", {KinkKind::JumpUp, 9, -3, 1, -0.4F, 0.6F, -2, 5}, "9 7.6 6 5 0",
         "P=-3Q+9 0<Q<1; P=-0.4Q+8 1<Q<7.5; P=-0.33Q+7.5 7.5<Q<22.5"},
        {"SteeperBelowFunction2", {KinkKind::Steeper, 6, -0.8F, 5, -2, 0, -1, 8}, "8 6 2 0",
         "P=-1Q+8 0<Q<2; P=-0.44Q+6.89 2<Q<11; P=-0.67Q+9.33 11<Q<14"},
        {"SteeperWithEqualStarts", {KinkKind::Steeper, 6, -0.8F, 5, -2, 0, -1, 6}, "6 2 0",
         "P=-0.44Q+6 0<Q<9; P=-0.67Q+8 9<Q<12"},
        {"SteeperOverFunction2BeforeTheKink", {KinkKind::Steeper, 6, -0.8F, 5, -2, 0, -2, 5}, "6 5 2 0",
         "P=-0.8Q+6 0<Q<1.25; P=-0.57Q+5.71 1.25<Q<6.5; P=-1Q+8.5 6.5<Q<8.5"},
        {"SteeperWithFunction2BelowTheKink", {KinkKind::Steeper, 6, -0.8F, 1, -2, 0, -2, 5}, "6 5.2 5 0",
         "P=-0.8Q+6 0<Q<1; P=-2Q+7.2 1<Q<1.1; P=-1Q+6.1 1.1<Q<6.1"},
        {"FlatterBelowFunction2", {KinkKind::Flatter, 8, -4, 1, -0.5F, 0, -3, 9}, "9 8 4 0",
         "P=-3Q+9 0<Q<0.33; P=-1.71Q+8.57 0.33<Q<2.67; P=-0.43Q+5.14 2.67<Q<12"},
        {"FlatterWithEqualStarts", {KinkKind::Flatter, 9, -4, 1, -0.5F, 0, -1, 9}, "9 5 0",
         "P=-0.8Q+9 0<Q<5; P=-0.33Q+6.67 5<Q<20"},
        {"FlatterOverFunction2BeforeTheKink", {KinkKind::Flatter, 9, -4, 1, -0.5F, 0, -2, 7}, "9 7 5 0",
         "P=-4Q+9 0<Q<0.5; P=-1.33Q+7.67 0.5<Q<2; P=-0.4Q+5.8 2<Q<14.5"},
        {"FlatterWithFunction2AtTheKink", {KinkKind::Flatter, 9, -4, 1, -0.5F, 0, -2, 5}, "9 5 0",
         "P=-4Q+9 0<Q<1; P=-0.4Q+5.4 1<Q<13.5"},
        {"FlatterWithFunction2BelowTheKink", {KinkKind::Flatter, 9, -3, 1, -0.4F, 0, -2, 5}, "9 6 5 0",
         "P=-3Q+9 0<Q<1; P=-0.4Q+6.4 1<Q<3.5; P=-0.33Q+6.17 3.5<Q<18.5"},
        {"JumpDownBelowALevel", {KinkKind::JumpDown, 8, -0.5F, 4, -2, 0.25F, 0, 9}, "9 8 6 4 0",
         "P=0Q+9 0<Q<oo"},
        {"JumpDownFromALevel", {KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, 0, 9}, "9 7 5 0",
         "P=0Q+9 0<Q<oo"},
        {"JumpDownOverALevelBeforeTheJump", {KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, 0, 8}, "9 8 7 5 0",
         "P=-0.5Q+9 0<Q<2; P=0Q+8 2<Q<oo"},
        {"JumpDownOverALevelAtTheFirstKinkPrice", {KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, 0, 7}, "9 7 5 0",
         "P=-0.5Q+9 0<Q<4; P=0Q+7 4<Q<oo"},
        {"JumpDownOverALevelInTheJump", {KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, 0, 6}, "9 7 6 5 0",
         "P=-0.5Q+9 0<Q<4; P=0Q+6 4<Q<oo"},
        {"JumpDownOverALevelAtTheSecondKinkPrice", {KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, 0, 5}, "9 7 5 0",
         "P=-0.5Q+9 0<Q<4; P=0Q+5 4<Q<oo"},
        {"JumpDownOverALevelBelowTheJump", {KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.1F, 0, 5}, "9 7 6 5 0",
         "P=-0.5Q+9 0<Q<4; P=-2Q+14 4<Q<4.5; P=0Q+5 4.5<Q<oo"},
        {"JumpUpBelowALevel", {KinkKind::JumpUp, 8, -4, 1, -0.5F, 0.5F, 0, 9}, "9 8 6.5 4 0",
         "P=0Q+9 0<Q<oo"},
        {"JumpUpFromALevel", {KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, 0, 9}, "9 6 3 0",
         "P=0Q+9 0<Q<oo"},
        {"JumpUpOverALevelAboveTheJump", {KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, 0, 8}, "9 8 6 3 0",
         "P=-3Q+9 0<Q<0.33; P=0Q+8 0.33<Q<oo"},
        {"JumpUpOverALevelAtTheSecondKinkPrice", {KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, 0, 6}, "9 6 3 0",
         "P=-3Q+9 0<Q<1; P=0Q+6 1<Q<oo"},
        {"JumpUpOverALevelInTheJump", {KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, 0, 5}, "9 6 5 3 0",
         "P=-3Q+9 0<Q<1.33; P=0Q+5 1.33<Q<oo"},
        {"JumpUpOverALevelAtTheFirstKinkPrice", {KinkKind::JumpUp, 9, -4, 1, -0.5F, 0.3F, 0, 5}, "9 6.5 5 0",
         "P=-4Q+9 0<Q<1; P=0Q+5 1<Q<oo"},
        {"JumpUpOverALevelBelowTheJump", {KinkKind::JumpUp, 9, -3, 1, -0.4F, 0.6F, 0, 5}, "9 7.6 6 5 0",
         "P=-3Q+9 0<Q<1; P=-0.4Q+8 1<Q<7.5; P=0Q+5 7.5<Q<oo"},
        {"SteeperBelowALevel", {KinkKind::Steeper, 6, -0.8F, 5, -2, 0, 0, 8}, "8 6 2 0",
         "P=0Q+8 0<Q<oo"},
        {"SteeperFromALevel", {KinkKind::Steeper, 6, -0.8F, 5, -2, 0, 0, 6}, "6 2 0",
         "P=0Q+6 0<Q<oo"},
        {"SteeperOverALevelBeforeTheKink", {KinkKind::Steeper, 6, -0.8F, 5, -2, 0, 0, 5}, "6 5 2 0",
         "P=-0.8Q+6 0<Q<1.25; P=0Q+5 1.25<Q<oo"},
        {"SteeperOverALevelBelowTheKink", {KinkKind::Steeper, 6, -0.8F, 1, -2, 0, 0, 5}, "6 5.2 5 0",
         "P=-0.8Q+6 0<Q<1; P=-2Q+7.2 1<Q<1.1; P=0Q+5 1.1<Q<oo"},
        {"FlatterBelowALevel", {KinkKind::Flatter, 8, -4, 1, -0.5F, 0, 0, 9}, "9 8 4 0",
         "P=0Q+9 0<Q<oo"},
        {"FlatterFromALevel", {KinkKind::Flatter, 9, -4, 1, -0.5F, 0, 0, 9}, "9 5 0",
         "P=0Q+9 0<Q<oo"},
        {"FlatterOverALevelBeforeTheKink", {KinkKind::Flatter, 9, -4, 1, -0.5F, 0, 0, 7}, "9 7 5 0",
         "P=-4Q+9 0<Q<0.5; P=0Q+7 0.5<Q<oo"},
        {"FlatterOverALevelAtTheKink", {KinkKind::Flatter, 9, -4, 1, -0.5F, 0, 0, 5}, "9 5 0",
         "P=-4Q+9 0<Q<1; P=0Q+5 1<Q<oo"},
        {"FlatterOverALevelBelowTheKink", {KinkKind::Flatter, 9, -3, 1, -0.4F, 0, 0, 5}, "9 6 5 0",
         "P=-3Q+9 0<Q<1; P=-0.4Q+6.4 1<Q<3.5; P=0Q+5 3.5<Q<oo"},
    }), [](const auto& row) { return row.param.name; });
// clang-format on

TEST_P(Vaddi3Sum, HasItsPricesAndSegments) {
    const Vaddi3State s = exerciseOf(GetParam().task);
    EXPECT_EQ(sumText(s), GetParam().sum);
    std::string prices;
    for (const TableCell& cell : s.column(columnRoles(s).price)) {
        prices += cell.isBlank() ? "" : (prices.empty() ? "" : " ") + cell.text();
    }
    EXPECT_EQ(prices, GetParam().prices);
    EXPECT_EQ(s.upperEndAsked, GetParam().task.slope2 != 0);
    EXPECT_EQ(s.upperEnd, s.segments.back().endQ);
}

// The help table.

TEST(Vaddi3Table, ShiftsByOneColumnWhereFunction1HasOneQuantityAtEveryPrice) {
    const Vaddi3State s = exerciseOf(test::kThreeSegments);
    EXPECT_EQ(columnText(s.column(WidePrice)), " | | | | ");
    EXPECT_EQ(columnText(s.column(Part1QuantityOrPrice)), "9|7|5|0| ");
    EXPECT_EQ(columnText(s.column(Function1OrPart2Quantity)), "0|4|4|6.5| ");
    EXPECT_EQ(columnText(s.column(Function2Quantity)), "0|1|2|4.5| ");
    EXPECT_EQ(columnText(s.column(TotalOrPart1Total)), "0|5|6|11| ");
    EXPECT_EQ(columnText(s.column(Part2Total)), " | | | | ");
    EXPECT_EQ(s.upperEnd.text(), "11");
}

TEST(Vaddi3Table, HasAColumnForEachPartAtAJumpUp) {
    const Vaddi3State s = exerciseOf(test::kFourSegments);
    EXPECT_EQ(columnText(s.column(WidePrice)), "9|6|5|3|0");
    EXPECT_EQ(columnText(s.column(Part1QuantityOrPrice)), "0|1|1.33|2|0");
    EXPECT_EQ(columnText(s.column(Function1OrPart2Quantity)), "0|2|4|8|14");
    EXPECT_EQ(columnText(s.column(Function2Quantity)), " | |0|1|2.5");
    EXPECT_EQ(columnText(s.column(TotalOrPart1Total)), "0|1|1.33|3|2.5");
    EXPECT_EQ(columnText(s.column(Part2Total)), "0|2|4|9|16.5");
    EXPECT_EQ(partsText(s), "a|b|ab|a|b");
    EXPECT_EQ(s.upperEnd.text(), "16.5");
}

TEST(Vaddi3Table, IsBlankOnlyAboveTheStartOfAFunction) {
    const Vaddi3State above = exerciseOf({KinkKind::JumpUp, 8, -4, 1, -0.5F, 0.5F, -2, 9});
    EXPECT_EQ(columnText(above.column(Part1QuantityOrPrice)), " |0|0.38|1|0");
    EXPECT_EQ(columnText(above.column(Function1OrPart2Quantity)), " |0|1|6|14");
    EXPECT_EQ(columnText(above.column(TotalOrPart1Total)), "0|0.5|1.63|3.5|4.5");
    const Vaddi3State below = exerciseOf(test::kTwoSegments);
    EXPECT_EQ(columnText(below.column(Function2Quantity)), " | |0|1.25| ");
    EXPECT_EQ(columnText(below.column(TotalOrPart1Total)), "0|4|4|7.75| ");
}

TEST(Vaddi3Table, HasAnyQuantityBelowALevelFunction) {
    const Vaddi3State s = exerciseOf(test::kTwoOverALevel);
    EXPECT_EQ(columnText(s.column(Part1QuantityOrPrice)), "9|7|6|5|0");
    EXPECT_EQ(columnText(s.column(Function1OrPart2Quantity)), "0|4|4|4|6.5");
    EXPECT_EQ(columnText(s.column(Function2Quantity)), " | |0|oo|oo");
    EXPECT_EQ(columnText(s.column(TotalOrPart1Total)), "0|4|4|oo|oo");
    const Vaddi3State both = exerciseOf(test::kThreeOverALevel);
    EXPECT_EQ(columnText(both.column(Function2Quantity)), " | | |0|oo");
    EXPECT_EQ(columnText(both.column(TotalOrPart1Total)), "0|0.47|1|0|oo");
    EXPECT_EQ(columnText(both.column(Part2Total)), "0|1|5|7.5|oo");
}

TEST(Vaddi3Table, MergesEqualPricesAndBlanksTheRowsThatAreLeft) {
    // The two kink prices and the start of function 2 are one.
    const Vaddi3State three = exerciseOf(test::kFlatter);
    EXPECT_EQ(columnText(three.column(Part1QuantityOrPrice)), "9|5|0| | ");
    EXPECT_EQ(columnText(three.column(TotalOrPart1Total)), "0|1|13.5| | ");
    // A merged row at a jump up stays on both parts.
    const Vaddi3State higher = exerciseOf({KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, -2, 6});
    EXPECT_EQ(partsText(higher), "a|ab|a|b|-");
    const Vaddi3State lower = exerciseOf({KinkKind::JumpUp, 9, -4, 1, -0.5F, 0.3F, -2, 5});
    EXPECT_EQ(partsText(lower), "a|b|ab|b|-");
    const Vaddi3State start = exerciseOf({KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, -2, 9});
    EXPECT_EQ(partsText(start), "a|b|a|b|-");
}

TEST(Vaddi3Table, LosesASegmentToAMergedRow) {
    EXPECT_EQ(exerciseOf({KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, -2, 8}).segmentCount(), 4);
    EXPECT_EQ(exerciseOf({KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, -2, 7}).segmentCount(), 3);
}

TEST(Vaddi3Table, SaysOnWhichPartsARowLies) {
    const Vaddi3State up = exerciseOf(test::kFourSegments);
    const auto parts = [](const Vaddi3State& s, Part part) {
        std::string rows;
        for (std::size_t row = 0; row < 5; ++row) {
            rows += isRowOf(s, row, part) ? '1' : '0';
        }
        return rows;
    };
    EXPECT_EQ(parts(up, Part::BeforeKink), "10110");
    EXPECT_EQ(parts(up, Part::AfterKink), "01101");
    EXPECT_EQ(parts(exerciseOf(test::kThreeSegments), Part::BeforeKink), "11110");
}

TEST(Vaddi3Table, KeepsThePrecisionOfItsNumbers) {
    // 0.525, from a price that is a double: as a single it would come out below the half.
    const Vaddi3State s = exerciseOf({KinkKind::JumpUp, 8, -4, 1, -0.1F, 0.3F, -1, 9});
    ASSERT_EQ(s.intercept1After, 6);
    EXPECT_EQ(columnText(s.column(Part1QuantityOrPrice)), " |0|0.53|1|0");
    // 7.125, from singles alone: as doubles they would come out below the half.
    const Vaddi3State singles = exerciseOf({KinkKind::JumpDown, 7, -0.2F, 8, -4, 0.1F, -3, 9});
    EXPECT_EQ(singles.segments[1].piece.intercept, 7.13);
}

// The sentence of the second step.

TEST(Vaddi3Path, HasAPartForEachSegment) {
    using Lines = std::array<std::string, 2>;
    EXPECT_EQ(pathTexts(exerciseOf(test::kOneSegment)), (Lines{"Her fra ( 0 ; 9 ) til ( oo ; 9 ).", ""}));
    EXPECT_EQ(pathTexts(exerciseOf(test::kTwoSegments)),
              (Lines{"Her fra ( 0 ; 9 ) til ( 4 ; 7 ) og fra ( 4 ; 5 ) til ( 7.75 ; 0 ).", ""}));
    EXPECT_EQ(pathTexts(exerciseOf(test::kThreeSegments)),
              (Lines{"Her fra ( 0 ; 9 ) til ( 5 ; 7 ), fra ( 5 ; 7 ) til ( 6 ; 5 ) og fra ",
                     "( 6 ; 5 ) til ( 11 ; 0 )."}));
    EXPECT_EQ(pathTexts(exerciseOf(test::kFourSegments)),
              (Lines{"Her fra ( 0 ; 9 ) til ( 1.33 ; 5 ), fra ( 1.33 ; 5 ) til ( 3 ; 3 ), fra ",
                     "( 2 ; 6 ) til ( 4 ; 5 ) og fra ( 4 ; 5 ) til ( 16.5 ; 0 )."}));
    EXPECT_EQ(pathTexts(exerciseOf(test::kTwoOverALevel)),
              (Lines{"Her fra ( 0 ; 9 ) til ( 4 ; 7 ) og fra ( 4 ; 6 ) til ( oo ; 6 ).", ""}));
}

// The judge.

std::string fieldsText(const Vaddi3State& s) {
    std::string text;
    for (const AnswerField& field : answerFields(s)) {
        constexpr std::array kSlots{"s", "i", "<", ">"};
        const bool isUpperEnd = field.target.rule == Rule::NearClosed;
        text += (isUpperEnd ? "end " : "") + std::to_string(field.row) +
                (isUpperEnd ? " " : kSlots.at(static_cast<std::size_t>(field.slot))) +
                NumberText(field.target.value) + " ";
    }
    return text + (s.upperEndAsked ? "" : "no end ");
}

TEST(Vaddi3Judge, AsksForTheFieldsOfEachNumberOfSegments) {
    EXPECT_EQ(fieldsText(exerciseOf(test::kOneSegment)), "1s0 1i9 1<0 no end ");
    EXPECT_EQ(fieldsText(exerciseOf(test::kTwoSegments)), "0s-0.5 0i9 0>4 1s-1.33 1i10.33 1<4 end 1 7.75 ");
    EXPECT_EQ(fieldsText(exerciseOf(test::kThreeSegments)),
              "0s-0.4 0i9 0>5 1s-2 1i17 1<5 1>6 2s-1 2i11 2<6 end 2 11 ");
    EXPECT_EQ(fieldsText(exerciseOf(test::kFourSegments)),
              "0s-3 0i9 0>1.33 1s-1.2 1i6.6 1<1.33 1>3 2s-0.5 2i7 2<2 2>4 3s-0.4 3i6.6 3<4 end 3 16.5 ");
    EXPECT_EQ(fieldsText(exerciseOf(test::kTwoOverALevel)), "0s-0.5 0i9 0>4 1s0 1i6 1<4 no end ");
    EXPECT_EQ(fieldsText(exerciseOf(test::kThreeOverALevel)),
              "0s-3 0i9 0>1 1s-0.4 1i8 1<1 1>7.5 2s0 2i5 2<7.5 no end ");
}

TEST(Vaddi3Judge, MarksWhateverFails) {
    std::vector<AnswerField> fields = answerFields(exerciseOf(test::kFourSegments));
    // The upper end, which has both its ends.
    fields.pop_back();
    for (const AnswerField& field : fields) {
        const double target = field.target.value;
        for (const double off : {-0.01, -0.005, -0.004, 0.0, 0.004, 0.005, 0.01}) {
            EXPECT_NE(field.target.isFit(target + off), field.target.isMarked(target + off))
                << target << " " << off;
        }
        EXPECT_TRUE(field.target.isFit(target + 0.005));
        EXPECT_FALSE(field.target.isFit(target - 0.005));
    }
}

TEST(Vaddi3Judge, TakesBothEndsOfTheUpperEnd) {
    const Target end = answerFields(exerciseOf(test::kFourSegments)).back().target;
    test::expectJudged(end, {16.5 + 0.005, 16.5 - 0.005}, {16.5 + 0.0051, 16.5 - 0.0051});
}

TEST(Vaddi3Judge, HasNoToleranceForTheStartOfALoneSegment) {
    const std::vector<AnswerField> fields = answerFields(exerciseOf(test::kOneSegment));
    test::expectJudged(fields[2].target, {0}, {0.001});
}

/// What is judged of the right numbers, with something else in the field of the upper end.
Judgement judged(const Vaddi3State& s, double upperEnd, double helpCell) {
    std::vector<double> typed;
    for (const AnswerField& field : answerFields(s)) {
        typed.push_back(field.target.value);
    }
    typed.back() = upperEnd;
    return judge(s, {.typed = typed, .helpCell = helpCell});
}

TEST(Vaddi3Judge, GoesByTheHelpCellForTheUpperEndOfThreeSegmentsButMarksItsField) {
    const Vaddi3State three = exerciseOf(test::kThreeSegments);
    EXPECT_EQ(judged(three, 11, 11), solvedIfAllRight(std::vector<bool>(11, true)));
    EXPECT_EQ(judged(three, 11, 0), (Judgement{std::vector<bool>(11, true), false}));
    Judgement marked{std::vector<bool>(11, true), true};
    marked.isRight.back() = false;
    EXPECT_EQ(judged(three, 0, 11), marked);
    marked.isSolved = false;
    EXPECT_EQ(judged(three, 0, 0), marked);
}

TEST(Vaddi3Judge, LeavesTheHelpCellAloneWithAnotherNumberOfSegmentsOrNoUpperEnd) {
    const Vaddi3State four = exerciseOf(test::kFourSegments);
    EXPECT_TRUE(judged(four, 16.5, 0).isSolved);
    EXPECT_FALSE(judged(four, 0, 16.5).isSolved);
    EXPECT_TRUE(judged(exerciseOf(test::kThreeOverALevel), 7.5, 0).isSolved);
}

// Many exercises against the functions that were drawn.

/// Draws the exercise of a seed; every fourth one has many draws at the ends of what can be drawn. Once in a
/// million or so, a draw of just 0 gives a slope of 0, which fails as told: then false.
bool isDrawn(Vaddi3State& s, int seed) {
    using Ends = test::ProofDraws::Ends;
    test::ProofDraws draws(static_cast<std::uint64_t>(seed), seed % 4 == 3 ? Ends::AboveZero : Ends::None);
    try {
        newExercise(s, draws);
    } catch (const ArithmeticFailure& failure) {
        EXPECT_EQ(failure.kind(), ArithmeticFailure::Kind::DivisionByZero) << "seed " << seed;
        EXPECT_TRUE(s.slope1Before == 0 || s.slope1After == 0) << "seed " << seed;
        return false;
    }
    return true;
}

/// Runs through the lot; `failed` gets those that fail.
template <class Action, class Failed>
void forEachExercise(Action action, Failed failed) {
    Vaddi3State s;
    for (int seed = 0; seed < test::lotSize() && !testing::Test::HasFatalFailure(); ++seed) {
        if (isDrawn(s, seed)) {
            action(s, seed);
        } else {
            failed(s, seed);
        }
    }
}

template <class Action>
void forEachExercise(Action action) {
    forEachExercise(action, [](const Vaddi3State&, int) {});
}

/// Where the start of function 2 lies on function 1.
enum class Place {
    AboveFunction1,
    AtItsStart,
    AboveTheKink,
    AtTheFirstPrice,
    Between,
    AtTheSecondPrice,
    Below
};

Place standsAt(const Vaddi3State& s) {
    const double start = s.intercept2;
    const double lower = std::min<double>(s.kinkPriceBefore, s.kinkPriceAfter);
    const double higher = std::max<double>(s.kinkPriceBefore, s.kinkPriceAfter);
    if (start >= s.intercept1Before) {
        return start > s.intercept1Before ? Place::AboveFunction1 : Place::AtItsStart;
    }
    if (start == s.kinkPriceBefore) {
        return Place::AtTheFirstPrice;
    }
    if (start == s.kinkPriceAfter) {
        return Place::AtTheSecondPrice;
    }
    return start > higher ? Place::AboveTheKink : (start < lower ? Place::Below : Place::Between);
}

TEST(Vaddi3Exercises, ReachEveryKindWithEveryPositionOfFunction2) {
    std::map<KinkKind, std::set<Place>> sloping;
    std::map<KinkKind, std::set<Place>> level;
    std::map<KinkKind, std::set<int>> counts;
    SeededDraws draws(750);
    Vaddi3State s;
    for (int i = 0; i < 40'000; ++i) {
        newExercise(s, draws);
        (s.slope2 == 0 ? level : sloping)[s.kinkKind].insert(standsAt(s));
        counts[s.kinkKind].insert(s.segmentCount());
    }
    const std::set<Place> jump{
        Place::AboveFunction1, Place::AtItsStart,       Place::AboveTheKink, Place::AtTheFirstPrice,
        Place::Between,        Place::AtTheSecondPrice, Place::Below};
    const std::set<Place> flatter{Place::AboveFunction1, Place::AtItsStart, Place::AboveTheKink,
                                  Place::AtTheFirstPrice, Place::Below};
    // A steepening kink never stands at one of the starts of function 2.
    const std::set<Place> steeper{Place::AboveFunction1, Place::AtItsStart, Place::AboveTheKink,
                                  Place::Below};
    for (auto& places : {sloping, level}) {
        EXPECT_EQ(places.at(KinkKind::JumpDown), jump);
        EXPECT_EQ(places.at(KinkKind::JumpUp), jump);
        EXPECT_EQ(places.at(KinkKind::Steeper), steeper);
        EXPECT_EQ(places.at(KinkKind::Flatter), flatter);
    }
    EXPECT_EQ(counts[KinkKind::JumpDown], (std::set<int>{1, 2, 3, 4}));
    EXPECT_EQ(counts[KinkKind::JumpUp], (std::set<int>{1, 2, 3, 4}));
    EXPECT_EQ(counts[KinkKind::Steeper], (std::set<int>{1, 2, 3}));
    EXPECT_EQ(counts[KinkKind::Flatter], (std::set<int>{1, 2, 3}));
}

TEST(Vaddi3Exercises, AreRightInTheirOwnFieldsButForThreeSegmentsWithAnUpperEnd) {
    // With three segments the verdict reads the third cell of the third row of the help table instead.
    int exercises = 0;
    int slips = 0;
    int helpedByTheTable = 0;
    forEachExercise([&](const Vaddi3State& s, int seed) {
        ++exercises;
        if (s.segmentCount() != 3 || !s.upperEndAsked) {
            return;
        }
        ++slips;
        const Target target = answerFields(s).back().target;
        EXPECT_FALSE(target.isFit(0)) << "an empty cell gives no right answer, seed " << seed;
        const TableCell& cell = s.column(Function1OrPart2Quantity)[2];
        helpedByTheTable += cell.isNumeric() && target.isFit(cell.number()) ? 1 : 0;
    });
    std::cout << "    " << 100.0 * slips / exercises
              << " % of the exercises have three segments and an upper end; a right help table solves "
              << helpedByTheTable << " of them\n";
    EXPECT_GT(slips, exercises / 3);
    EXPECT_EQ(helpedByTheTable, 0);
}

TEST(Vaddi3Exercises, ReadTheSameWithTheDanishMark) {
    const DecimalMark inUse(",");
    EXPECT_EQ(sumText(exerciseOf(test::kTwoSegments)), "P=-0,5Q+9 0<Q<4; P=-1,33Q+10,33 4<Q<7,75");
}

// The whole space. A draw is one of 2^24, but all that it gives is a whole number, so that it falls into a
// few cells of draws that behave alike:
//
//     kind                                                4 cells
//     start of function 1                                 5
//     slope before the kink    flat 8, steep 4            and one draw, 0, for no slope if it is to be flat
//     quantity of the kink     1 to 8                     as many as fit before function 1 comes to 0
//     slope after the kink     steep 4, flat 8            and one draw, 0, for no slope
//     intercept after the kink 1 to 8                     at a jump only, by the prices left for it
//     slope of function 2      5
//     start of function 2      5
//
// Each exercise comes of one cell each, so that the space is small enough to be walked from cell to cell: by
// the least draw of each cell, and by the greatest.

constexpr int kAllDraws = 1 << 24;

/// So many draws from a bound, singles may round to the other side of it.
constexpr int kOfSingles = 32;

/// The draws that give one whole number.
struct Cell {
    int whole;
    float least;
    float greatest;
};

/// The cells of the draws u by the whole number not above `at0` + `change`·u; `unsure` draws at the bounds
/// between two cells are left out.
std::vector<Cell> cellsOf(Exact at0, Exact change, int unsure = 0) {
    const auto floorOf = [](Exact x) { return static_cast<int>(std::floor(x.value())); };
    const auto drawOf = [](int number) { return static_cast<float>(number) / kAllDraws; };
    if (change == Exact(0)) {
        return {{floorOf(at0), 0, test::kLargestDraw}};
    }
    std::vector<Cell> cells;
    const Exact at1 = at0 + change;
    for (int whole = floorOf(std::min(at0, at1)); Exact(whole) <= std::max(at0, at1); ++whole) {
        const Exact reached = (Exact(whole) - at0) / change * kAllDraws;
        const Exact left = (Exact(whole + 1) - at0) / change * kAllDraws;
        const bool isRising = Exact(0) < change;
        int least = isRising ? -floorOf(Exact(0) - reached) : floorOf(left) + 1;
        int greatest = isRising ? -floorOf(Exact(0) - left) - 1 : floorOf(reached);
        if (greatest < 0 || least >= kAllDraws) {
            continue;
        }
        least = least <= 0 ? 0 : least + unsure;
        greatest = greatest >= kAllDraws - 1 ? kAllDraws - 1 : std::max(least, greatest - unsure);
        cells.push_back({whole, drawOf(least), drawOf(greatest)});
    }
    return cells;
}

/// What is drawn up to some place, and the draws for it: the least, and the greatest.
struct Way {
    Functions functions;
    std::array<Script, 2> scripts;

    [[nodiscard]] Way with(const Cell& cell) const {
        return {functions, {scripts[0] + Script{cell.least}, scripts[1] + Script{cell.greatest}}};
    }
};

/// The ways to a function 1 of one kind, the kind first.
struct FirstFunctions {
    std::vector<Way> taken;
    /// It is drawn again.
    std::vector<Way> rejected;
    /// One of its slopes is 0.
    std::vector<Way> failing;
};

void addPartsAfter(FirstFunctions& all, const Way& before, Exact kinkPrice) {
    const KinkKind kind = before.functions.kind;
    const bool isSteep = startsFlat(kind);
    for (const Cell& slope : isSteep ? cellsOf(0, -4) : cellsOf(0, -8)) {
        Way way = before.with(slope);
        way.functions.slopeAfter = isSteep ? slope.whole : slope.whole / 10.0;
        const Exact drop = exact(way.functions.slopeAfter) * exact(way.functions.kink);
        std::vector<Way>& ways = slope.whole == 0 ? all.failing : all.taken;
        if (kind == KinkKind::Steeper || kind == KinkKind::Flatter) {
            way.functions.interceptAfter = (kinkPrice - drop).value();
            ways.push_back(way);
            continue;
        }
        // From half below the first part towards 1.5; from 1.5 above it towards its start.
        const Exact start = exact(way.functions.start1);
        const Exact from = kinkPrice + (isSteep ? Exact(-1, 2) : Exact(3, 2));
        const Exact to = isSteep ? Exact(3, 2) : start;
        for (const Cell& intercept : cellsOf(from - drop, to - from, kOfSingles)) {
            Way jump = way.with(intercept);
            jump.functions.interceptAfter = intercept.whole;
            (drop + intercept.whole < Exact(1) ? all.rejected : ways).push_back(jump);
        }
    }
}

void addKinks(FirstFunctions& all, const Way& line, Exact zero) {
    const KinkKind kind = line.functions.kind;
    for (Cell quantity : cellsOf(1, zero - 1, kOfSingles)) {
        // A jump down is at 8 at most.
        constexpr int kFarthest = 8;
        if (kind == KinkKind::JumpDown && quantity.whole >= kFarthest) {
            quantity.greatest = test::kLargestDraw;
            if (quantity.whole > kFarthest) {
                continue;
            }
        }
        Way way = line.with(quantity);
        way.functions.kink = quantity.whole;
        const Exact price = exact(way.functions.slopeBefore) * quantity.whole + exact(way.functions.start1);
        if (startsFlat(kind) && price <= Exact(1)) {
            all.rejected.push_back(way);
        } else {
            addPartsAfter(all, way, price);
        }
    }
}

FirstFunctions firstFunctionsOf(KinkKind kind) {
    FirstFunctions all;
    const Cell kindCell = cellsOf(0, 4).at(static_cast<std::size_t>(kind));
    const bool isFlat = startsFlat(kind);
    for (const Cell& start : cellsOf(5, 5)) {
        // Three times a draw does not always fit into a single.
        for (const Cell& slope : isFlat ? cellsOf(0, -8) : cellsOf(-2, -3, 1)) {
            Way way = Way{}.with(kindCell).with(start).with(slope);
            way.functions = {.kind = kind,
                             .start1 = static_cast<double>(start.whole),
                             .slopeBefore = isFlat ? slope.whole / 10.0 : slope.whole};
            if (slope.whole == 0) {
                all.failing.push_back(way);
                continue;
            }
            const Exact zero = Exact(-start.whole) / exact(way.functions.slopeBefore);
            if (zero <= Exact(1) || zero > Exact(kind == KinkKind::JumpDown ? 50 : 8)) {
                all.rejected.push_back(way);
            } else {
                addKinks(all, way, zero);
            }
        }
    }
    return all;
}

const std::map<KinkKind, FirstFunctions>& firstFunctions() {
    static const std::map<KinkKind, FirstFunctions> all = [] {
        std::map<KinkKind, FirstFunctions> found;
        for (const KinkKind kind :
             {KinkKind::JumpDown, KinkKind::JumpUp, KinkKind::Steeper, KinkKind::Flatter}) {
            found[kind] = firstFunctionsOf(kind);
        }
        return found;
    }();
    return all;
}

/// The ways to function 2 alone.
std::vector<Way> secondFunctions() {
    std::vector<Way> all;
    for (const Cell& slope : cellsOf(0, 5)) {
        for (const Cell& start : cellsOf(5, 5)) {
            Way way = Way{}.with(slope).with(start);
            way.functions.slope2 = -slope.whole;
            way.functions.start2 = start.whole;
            all.push_back(way);
        }
    }
    return all;
}

Way operator+(const Way& first, const Way& second) {
    Way way{first.functions, {first.scripts[0] + second.scripts[0], first.scripts[1] + second.scripts[1]}};
    way.functions.slope2 = second.functions.slope2;
    way.functions.start2 = second.functions.start2;
    return way;
}

std::string textOf(const Way& way) {
    std::ostringstream text;
    const Functions& f = way.functions;
    text << "kind " << static_cast<int>(f.kind) << ", " << f.slopeBefore << "Q+" << f.start1 << " up to "
         << f.kink << ", then " << f.slopeAfter << "Q+" << f.interceptAfter << "; " << f.slope2 << "Q+"
         << f.start2;
    return text.str();
}

/// Draws the exercise of a way, after another: the least and the greatest of its draws give the same.
void draw(Vaddi3State& s, const Way& way) {
    const auto least = test::exerciseOf<Vaddi3State>(way.scripts[0], test::Reseeds{1});
    ScriptedDraws draws(way.scripts[1]);
    newExercise(s, draws);
    EXPECT_TRUE(draws.isUsedUp() && test::readOff(least) == test::readOff(s)) << textOf(way);
}

/// How many ways to each kind of function 1 there are.
std::map<KinkKind, std::size_t> countsOf(std::vector<Way> FirstFunctions::*ways) {
    std::map<KinkKind, std::size_t> counts;
    for (const auto& [kind, first] : firstFunctions()) {
        counts[kind] = (first.*ways).size();
    }
    return counts;
}

std::map<KinkKind, std::size_t> perKind(std::size_t jumpDown, std::size_t jumpUp, std::size_t steeper,
                                        std::size_t flatter) {
    return {{KinkKind::JumpDown, jumpDown},
            {KinkKind::JumpUp, jumpUp},
            {KinkKind::Steeper, steeper},
            {KinkKind::Flatter, flatter}};
}

TEST(Vaddi3Space, HasSoManyExercises) {
    // Without a jump, 15 parts before the kink with 4 after it, and 32 with 8.
    EXPECT_EQ(countsOf(&FirstFunctions::taken), perKind(4448, 968, 15 * 4, 32 * 8));
    // All of these with each function 2: 143,300 exercises.
    EXPECT_EQ(secondFunctions().size(), 25U);
    EXPECT_EQ(countsOf(&FirstFunctions::rejected), perKind(44, 1, 42, 1));
    // 5 of those that start flat fail before the kink.
    EXPECT_EQ(countsOf(&FirstFunctions::failing), perKind(1117, 105, 5 + 15, 32));
}

/// The kind of an exercise for the proof: that of function 1, and whether function 2 is level.
int proofKindOf(const Vaddi3State& s) { return 2 * static_cast<int>(s.kinkKind) + (s.slope2 == 0 ? 1 : 0); }

void enter(Proof& proof, Proof::From from, const Vaddi3State& s) {
    proof.visit(from, proofKindOf(s));
    if (s.segmentCount() == 3 && s.upperEndAsked) {
        proof.unsolvable("with three segments and an upper end, judged by a cell of the help table");
    }
}

TEST(Vaddi3Space, IsTheTrueSumInEveryExerciseThatCanBeDrawn) {
    Proof proof("Vaddi3", 8);
    const int stride = test::lotSize(29, 1);
    int number = 0;
    Vaddi3State s;
    test::Halves halves;
    std::set<Functions> firsts;
    std::set<Functions> seconds;
    const std::vector<Way> ways = secondFunctions();
    for (const Way& second : ways) {
        seconds.insert(second.functions);
    }
    for (const auto& [kind, first] : firstFunctions()) {
        for (const Way& way : first.taken) {
            EXPECT_TRUE(firsts.insert(way.functions).second) << "twice: " << textOf(way);
            for (const Way& second : ways) {
                if (++number % stride == 0) {
                    const Way whole = way + second;
                    draw(s, whole);
                    ASSERT_EQ(test::flawOf(s, whole.functions, number), "") << textOf(whole);
                    halves.count(s, whole.functions);
                    enter(proof, Proof::From::WholeSpace, s);
                }
            }
        }
    }
    EXPECT_EQ(halves, (stride == 1 ? test::Halves{8761, 2250} : test::Halves{311, 73}));
    // Seeds give nothing else.
    forEachExercise(
        [&](const Vaddi3State& drawn, int seed) {
            Functions first = test::readOff(drawn);
            const Functions second{.slope2 = std::exchange(first.slope2, 0),
                                   .start2 = std::exchange(first.start2, 0)};
            ASSERT_TRUE(firsts.contains(first) && seconds.contains(second)) << "seed " << seed;
            enter(proof, Proof::From::Seeds, drawn);
        },
        [&proof](const Vaddi3State& failed, int /*seed*/) {
            proof.visit(Proof::From::Seeds, proofKindOf(failed));
            proof.unsolvable("with a draw of just 0 for a slope, ending the program");
        });
}

TEST(Vaddi3Space, IsDrawnAgainFromTheFirstInterceptWhereverItDoesNotSuit) {
    Vaddi3State s;
    const Way second = secondFunctions().front();
    for (const auto& [kind, first] : firstFunctions()) {
        for (const Way& way : first.rejected) {
            Way again = first.taken.front() + second;
            for (std::size_t i = 0; i < way.scripts.size(); ++i) {
                // The kind is drawn once.
                again.scripts[i].erase(again.scripts[i].begin());
                again.scripts[i] = way.scripts[i] + again.scripts[i];
            }
            draw(s, again);
            EXPECT_TRUE(test::readOff(s) == again.functions) << "after " << textOf(way);
        }
    }
}

/// How a script fails that is used up by then.
std::optional<ArithmeticFailure::Kind> failureOf(const Script& script) {
    ScriptedDraws draws(script);
    Vaddi3State s;
    try {
        newExercise(s, draws);
    } catch (const ArithmeticFailure& failure) {
        EXPECT_TRUE(draws.isUsedUp());
        return failure.kind();
    }
    return std::nullopt;
}

TEST(Vaddi3Space, FailsOnEverySlopeOfZero) {
    const Way second = secondFunctions().back();
    for (const auto& [kind, first] : firstFunctions()) {
        for (const Way& way : first.failing) {
            // It fails before the kink as soon as it is drawn, after it when the sum is made.
            const bool isAtOnce = way.functions.slopeBefore == 0;
            for (const Script& script : (isAtOnce ? way : way + second).scripts) {
                EXPECT_EQ(failureOf(script), ArithmeticFailure::Kind::DivisionByZero) << textOf(way);
            }
        }
    }
}

}  // namespace
}  // namespace tavrune
