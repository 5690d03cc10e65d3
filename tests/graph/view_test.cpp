#include "graph/view.h"

#include <gtest/gtest.h>

#include "support/strokes.h"

namespace tavrune {
namespace {

Stroke line(double x1, double y1, double x2, double y2) {
    return test::StrokesIn{GraphScale()}.line(x1, y1, x2, y2);
}

TEST(View, SeesThePartOfAStrokeThatLiesInItsScale) {
    const View view({-10, 10, 10, -10});
    EXPECT_EQ(view.seen(line(-20, 4, 3, 4)), QLineF(-10, 4, 3, 4));
    EXPECT_EQ(view.seen(line(-20, 14, 3, 14)), std::nullopt);
    EXPECT_EQ(view.whole(line(-20, 14, 3, 14)), QLineF(-20, 14, 3, 14));
}

TEST(View, CountsUpFromTheLowerBorderOfAScaleThatRunsDown) {
    const View view({0, 0, 20, 15});
    EXPECT_EQ(view.seen(line(0, 3, 8, 11)), QLineF(0, 12, 8, 4));
    EXPECT_EQ(view.lowest(), 0);
    EXPECT_EQ(view.highest(), 15);
}

TEST(View, SeesNothingInAScaleWithoutWidth) {
    EXPECT_EQ(View({3, 10, 3, -10}).seen(line(3, 0, 3, 1)), std::nullopt);
}

TEST(View, TellsTheRunsOfALineWithAGapApart) {
    const std::vector<Stroke> strokes{line(0, 8, 4, 4), line(4, 4, 6, 4), line(6, 2, 8, 2)};
    EXPECT_EQ(View({-10, 10, 10, -10}).seenRuns(strokes),
              (std::vector<Points>{{{0, 8}, {4, 4}, {6, 4}}, {{6, 2}, {8, 2}}}));
}

TEST(View, TellsTheRunsOfALineThatLeavesAndComesBackApart) {
    const std::vector<Stroke> strokes{line(0, 8, 2, 12), line(2, 12, 6, 12), line(6, 12, 8, 8)};
    EXPECT_EQ(View({-10, 10, 10, -10}).seenRuns(strokes),
              (std::vector<Points>{{{0, 8}, {1, 10}}, {{7, 10}, {8, 8}}}));
}

/// How many runs are seen of a line that goes out of a square of 25 and comes back.
std::size_t runsOver(const std::vector<Stroke>& line) { return View({0, 25, 25, 0}).seenRuns(line).size(); }

TEST(View, TakesALineForOneThatComesBackWhereItHasLeft) {
    // A gap of 8 % of the scale, and of a little more.
    EXPECT_EQ(runsOver({line(2, 24, 4, 26), line(4, 26, 6, 24)}), 1U);
    EXPECT_EQ(runsOver({line(2, 24, 4, 26), line(4, 26, 6.25, 24)}), 2U);
    EXPECT_EQ(runsOver({line(24, 2, 26, 4), line(26, 4, 24, 6)}), 1U);
    EXPECT_EQ(runsOver({line(24, 2, 26, 4), line(26, 4, 24, 6.25)}), 2U);
}

TEST(View, TellsTheRunsApartOfALineThatGoesOnWhereNobodySeesIt) {
    EXPECT_EQ(runsOver({line(2, 24, 4, 26), line(4, 26, 4, 30), line(4, 30, 4, 26), line(4, 26, 6, 24)}), 2U);
    EXPECT_EQ(runsOver({line(2, 24, 4, 26), line(4.5, 26, 5, 24)}), 2U) << "it goes on elsewhere";
    EXPECT_EQ(runsOver({line(24, 1, 26, 3), line(26, 3, 24, 24)}), 2U) << "it comes back far up";
}

TEST(View, HasTheHeightOfAScaleWithoutOne) {
    const View view({-10, 3, 10, 3});
    EXPECT_EQ(view.lowest(), 3);
    EXPECT_EQ(view.highest(), 3);
    EXPECT_EQ(view.seen(line(0, 3, 1, 3)), std::nullopt);
}

TEST(View, HasTheMiddleOfAFigureOfWhichHalfIsSeen) {
    const std::vector<Stroke> strokes{line(9, 4, 11, 4), line(9, 6, 11, 6)};
    EXPECT_EQ(View({-10, 10, 10, -10}).middleOf(strokes), QPointF(10, 5));
}

TEST(BoxAround, HasALineWithoutHeight) {
    EXPECT_EQ(boundsOf({{1, 2, 5, 2}, {0, 2, 1, 2}}), QRectF(0, 2, 5, 0));
}

}  // namespace
}  // namespace tavrune
