#include "topics/addition/vertical_graphs.h"

#include <memory>

#include <gtest/gtest.h>

#include "support/strokes.h"

namespace tavrune {
namespace {

const test::StrokesIn kFunction{{0, 0, 10, 10}};
const test::StrokesIn kSum{{0, 0, 10, 20}};

/// A box in a scale that nothing has been drawn on.
struct Frame : GraphBox {
    explicit Frame(const GraphScale& scale) { Scale(scale.x1, scale.y1, scale.x2, scale.y2); }
};

/// One on which prices are counted up.
struct Box : Frame {
    explicit Box(const GraphScale& scale) : Frame(scale) { setCountsUp(true); }
};

TEST(VerticalTicks, StandAtElevenQuantitiesAndTwentyOnePrices) {
    const test::StrokesIn in{{0, 0, 11, 21}};
    Frame frame(in.scale);
    drawTallFrameTicks(frame);
    std::vector<Stroke> expected;
    for (double t = 0.2; t <= 8.5; t += 0.8) {
        expected.push_back(in.line(t + 0.8, 19.5, t + 0.8, 19.75));
    }
    EXPECT_EQ(expected.size(), 11U);
    for (double t = 1; t <= 19.6; t += 0.925) {
        expected.push_back(in.line(0.8, t, 1, t));
    }
    EXPECT_EQ(expected.size(), 32U);
    EXPECT_EQ(frame.strokes(), expected);
    EXPECT_NEAR(frame.strokes().back().y1, 19.5, 1e-5);
    EXPECT_NEAR(frame.strokes()[10].x1, 9, 1e-5);
}

TEST(VerticalMark, IsASquareOfSixLevelStrokesByTheRunningSum) {
    Box box(kFunction.scale);
    drawLevelSquare(box, 4.0 / 3, 0);
    drawLevelSquare(box, 0, 4);
    std::vector<Stroke> expected;
    const double steps[]{-0.15,
                         -0.15 + 0.05,
                         -0.15 + 0.05 + 0.05,
                         -0.15 + 0.05 + 0.05 + 0.05,
                         -0.15 + 0.05 + 0.05 + 0.05 + 0.05,
                         -0.15 + 0.05 + 0.05 + 0.05 + 0.05 + 0.05};
    for (const double t : steps) {
        expected.push_back(kFunction.line(4.0 / 3 - 0.15, 10 + t, 4.0 / 3 + 0.15, 10 + t, kRed));
    }
    for (const double t : steps) {
        expected.push_back(kFunction.line(-0.15, 6 + t, 0.15, 6 + t, kRed));
    }
    EXPECT_EQ(box.strokes(), expected);
}

TEST(VerticalUprights, AreDottedFromTopToBottomAndLeaveSolidLinesBehind) {
    Box box(kFunction.scale);
    drawUprights(box, {0.75, 4});
    box.Line(1, 8, 3, 6);
    EXPECT_EQ(box.strokes(),
              (std::vector<Stroke>{kFunction.line(0.75, 0, 0.75, 10, kBlack, LineStyle::Dotted),
                                   kFunction.line(4, 0, 4, 10, kBlack, LineStyle::Dotted),
                                   kFunction.line(1, 2, 3, 4)}));
}

TEST(VerticalSumLines, RunFromBreakToBreakAndTheLastToTheEndOfTheAxis) {
    Box box(kSum.scale);
    const QColor green(0, 190, 0);
    drawSum(box, {{{1, 2}}, {}, false, 0});
    EXPECT_EQ(box.strokes(), std::vector<Stroke>{kSum.line(0, 18, 10, 8, green)});
    box.Cls();
    drawSum(box, {{{1, 2}, {-1, 6}, {0, 5}}, {3, 4.5}, true, 7});
    EXPECT_EQ(box.strokes(),
              (std::vector<Stroke>{kSum.line(0, 18, 3, 15, green), kSum.line(3, 17, 4.5, 18.5, green),
                                   kSum.line(4.5, 15, 10, 15, green)}));
}

class TypedRows : public testing::Test {
protected:
    // Four rows of four boxes; the first has no start.
    TypedRows() {
        for (int row = 0; row < 4; ++row) {
            AnswerRows::Row boxes{};
            for (AnswerBox** box : {&boxes.slope, &boxes.intercept, &boxes.start, &boxes.end}) {
                if (row > 0 || box != &boxes.start) {
                    owned.push_back(std::make_unique<AnswerBox>());
                    *box = owned.back().get();
                }
            }
            rows.push_back(boxes);
        }
    }

    void type(std::size_t row, const char* slope, const char* intercept, const char* start, const char* end) {
        const AnswerRows::Row& boxes = rows.at(row);
        boxes.slope->setContent(slope);
        boxes.intercept->setContent(intercept);
        if (boxes.start != nullptr) {
            boxes.start->setContent(start);
        }
        boxes.end->setContent(end);
    }

    [[nodiscard]] std::vector<Stroke> drawn(const VerticalSum& sum) const {
        Box box(kSum.scale);
        drawTypedSum(box, AnswerRows(rows), sum);
        return box.strokes();
    }

    std::vector<std::unique_ptr<AnswerBox>> owned;
    std::vector<AnswerRows::Row> rows;
};

TEST_F(TypedRows, AreDrawnDownToTheLastSegmentFromStartToEnd) {
    type(0, "1", "2", "", "3");
    type(1, "-1", "6", "4", "5");
    type(2, "0", "5", "6", "7");
    type(3, "9", "9", "9", "9");
    const VerticalSum three{{{}, {}, {}}, {1, 2}, false, 0};
    const std::vector<Stroke> first{kSum.line(0, 18, 3, 15, kRed), kSum.line(4, 18, 5, 19, kRed)};
    std::vector<Stroke> expected = first;
    expected.push_back(kSum.line(6, 15, 10, 15, kRed));
    EXPECT_EQ(drawn(three), expected);
    VerticalSum ending = three;
    ending.upperEndAsked = true;
    expected.back() = kSum.line(6, 15, 7, 15, kRed);
    EXPECT_EQ(drawn(ending), expected);
}

TEST_F(TypedRows, AreDrawnAboveALoneSegmentTooFromTheirBlanks) {
    type(0, " ", " ", "", " ");
    type(1, "2", "1", "0", " ");
    EXPECT_EQ(drawn({{{}}, {}, false, 0}),
              (std::vector<Stroke>{kSum.line(0, 20, 0, 20, kRed), kSum.line(0, 19, 10, -1, kRed)}));
}

}  // namespace
}  // namespace tavrune
