#include "topics/addition/addition_graphs.h"

#include <gtest/gtest.h>

#include "support/strokes.h"

namespace tavrune {
namespace {

/// A box of 0..10 both ways on which prices are counted up, and a frame of the same scale.
class AdditionGraph : public testing::Test {
protected:
    AdditionGraph() {
        box.Scale(0, 0, 10, 10);
        box.setCountsUp(true);
        frame.Scale(0, 0, 10, 10);
    }

    GraphBox box;
    GraphBox frame;
    test::StrokesIn in{{0, 0, 10, 10}};
};

TEST(StepThrough, RunsByTheRunningSum) {
    const auto steps = [](double from, double to, double step) {
        int count = 0;
        stepThrough(from, to, step, [&count](double) { ++count; });
        return count;
    };
    EXPECT_EQ(steps(0, 0.2, 0.05), 5);
    // Six steps of 0.05 from -0.15 end a little above 0.15.
    EXPECT_EQ(steps(-0.15, -0.15 + 0.3, 0.05), 6);
    EXPECT_EQ(steps(1.85, 1.85 + 0.3, 0.05), 7);
    EXPECT_EQ(steps(1, 0, 0.05), 0);
    EXPECT_EQ(steps(1, 1, 0.05), 1);
}

TEST_F(AdditionGraph, HasElevenTicksOnEachAxisOfAFrame) {
    drawFrameTicks(frame);
    std::vector<Stroke> expected;
    for (int i = 0; i <= 10; ++i) {
        const double t = 0.2 + 0.8 * i;
        expected.push_back(in.line(t + 0.8, 8.2, t + 0.8, 8.4));
        expected.push_back(in.line(0.8, t, 1, t));
    }
    EXPECT_EQ(frame.strokes(), expected);
}

TEST_F(AdditionGraph, HasElevenTicksInPAndThenTwentyOneInQOfAWideFrame) {
    drawWideFrameTicks(frame);
    std::vector<Stroke> expected;
    for (int i = 0; i <= 10; ++i) {
        expected.push_back(in.line(0.8, 1 + 0.8 * i, 1, 1 + 0.8 * i));
    }
    for (int i = 0; i <= 20; ++i) {
        expected.push_back(in.line(1 + 0.9 * i, 9, 1 + 0.9 * i, 9.2));
    }
    EXPECT_EQ(frame.strokes(), expected);
}

TEST_F(AdditionGraph, KeepsTheTicksOfAThousandExercisesOnce) {
    frame.setKeepsOnce(true);
    for (int exercise = 0; exercise < 1000; ++exercise) {
        drawWideFrameTicks(frame);
    }
    EXPECT_EQ(frame.strokes().size(), 32U);
}

TEST_F(AdditionGraph, DrawsAPieceUpFromTheLowerBorder) {
    drawPiece(box, {-3, 10}, 0, 10);
    drawPiece(box, {-3, 10}, 0.5, 2, kSumGreen);
    EXPECT_EQ(box.strokes(),
              (std::vector<Stroke>{in.line(0, 0, 10, 30), in.line(0.5, 1.5, 2, 6, rgb(0, 190, 0))}));
}

struct SquareRow {
    const char* name;
    TableCell quantity;
    double left;
    int strokes;
};

class Square : public AdditionGraph, public testing::WithParamInterface<SquareRow> {};

TEST_P(Square, IsMadeOfUprightStrokes) {
    const SquareRow& row = GetParam();
    drawSquare(box, row.quantity, 8);
    std::vector<Stroke> expected;
    double x = row.left;
    for (int i = 0; i < row.strokes; ++i) {
        expected.push_back(in.line(x, 1.85, x, 2.15, kRed));
        x += 0.05;
    }
    EXPECT_EQ(box.strokes(), expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, Square,
                         testing::Values(SquareRow{"AtZero", 0.0, -0.15, 6},
                                         SquareRow{"WithOneStrokeMore", 2.0, 1.85, 7},
                                         SquareRow{"AtTwoDecimals", 0.67, 0.67 - 0.15, 6},
                                         SquareRow{"OffTheGraphForABlank", TableCell::blank(), -5, 7},
                                         SquareRow{"AtTheRightEdgeForOo", TableCell::unbounded(), 9.85, 6}),
                         [](const auto& row) { return row.param.name; });

TEST_F(AdditionGraph, HasASquareForAPriceBelowIt) {
    drawSquare(box, TableCell::blank(), -5);
    ASSERT_EQ(box.strokes().size(), 7U);
    EXPECT_EQ(box.strokes().front(), in.line(-5, 14.85, -5, 15.15, kRed));
}

TEST_F(AdditionGraph, IsClearedAndItsFrameGetsTicks) {
    drawPiece(box, {-3, 10}, 0, 10);
    FramedGraph{&frame, &box}.clear([](GraphBox& cleared) { drawTickOfP(cleared, 3); });
    EXPECT_TRUE(box.strokes().empty());
    EXPECT_EQ(frame.strokes(), (std::vector<Stroke>{in.line(0.8, 3, 1, 3)}));
}

TEST_F(AdditionGraph, DrawsAThickLineOfFiveStrokesRoundItsMiddle) {
    drawThickLine(box, 1, 4, 7, kSumGreen);
    std::vector<Stroke> expected;
    for (int i = -2; i <= 2; ++i) {
        expected.push_back(in.line(1, 3 - 0.05 * i, 4, 3 - 0.05 * i, rgb(0, 190, 0)));
    }
    EXPECT_EQ(box.strokes(), expected);
}

struct BandRow {
    const char* name;
    double price;
    double base;
    int strokes;
};

class Band : public AdditionGraph, public testing::WithParamInterface<BandRow> {};

TEST_P(Band, IsARunOfLevelStrokes) {
    const BandRow& row = GetParam();
    drawBand(box, 0.67, 4, row.price, kBandGreen);
    std::vector<Stroke> expected;
    double y = row.base;
    for (int i = 0; i < row.strokes; ++i) {
        expected.push_back(in.line(0.67, 10 - y, 4, 10 - y, rgb(0, 255, 0)));
        y += 0.05;
    }
    EXPECT_EQ(box.strokes(), expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, Band,
                         testing::Values(BandRow{"StandsOnTheAxisForThePriceZero", 0, 0, 5},
                                         BandRow{"LiesRoundItsPrice", 5, 4.9, 5},
                                         BandRow{"HasOneStrokeLessFromEightOn", 8, 7.9, 4}),
                         [](const auto& row) { return row.param.name; });

TEST_F(AdditionGraph, DrawsABandOfNoLengthForAQuantityOfZero) {
    drawBand(box, 0, 0, 10, kBlue);
    for (const Stroke& stroke : box.strokes()) {
        EXPECT_EQ(stroke.x1, stroke.x2);
        EXPECT_EQ(stroke.colour, kBlue);
    }
    EXPECT_EQ(box.strokes().size(), 4U);
}

}  // namespace
}  // namespace tavrune
