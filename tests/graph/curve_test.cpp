#include "graph/curve.h"

#include <cmath>

#include <gtest/gtest.h>

#include "support/strokes.h"

namespace tavrune {
namespace {

TEST(PlotCurve, ChainsPiecesAlongARunningSum) {
    GraphBox graph;
    const Curve curve = [](double x) { return x * x + 2 * x + 3; };
    plotCurve(graph, curve, {.start = -7, .step = 0.05, .exactEnd = 7, .largest = 1000});
    ASSERT_GT(graph.strokes().size(), 500U);
    const test::StrokesIn in{graph.scale()};
    double x = -7;
    for (const Stroke& piece : graph.strokes()) {
        ASSERT_EQ(piece, in.line(x, curve(x), x + 0.05, curve(x + 0.05)));
        x += 0.05;
    }
}

TEST(PlotCurve, EndsWithTheFirstPieceThatBeginsBeyondTheSize) {
    GraphBox graph;
    plotCurve(graph, [](double x) { return 5 * x * x; }, {-7, 0.05, 7, 1000});
    const Stroke& last = graph.strokes().back();
    const Stroke& before = graph.strokes().at(graph.strokes().size() - 2);
    EXPECT_GT(std::abs(last.y1), 1000);
    EXPECT_LE(std::abs(before.y1), 1000);
}

TEST(PlotCurve, EndsAtOnceWhereItBeginsBeyondTheSize) {
    GraphBox graph;
    plotCurve(graph, [](double x) { return 50 * x * x; }, {-7, 0.05, 7, 1000});
    EXPECT_EQ(graph.strokes().size(), 1U);
}

TEST(PlotCurve, GoesOnAsLongAsTheSizeIsOnlyMet) {
    GraphBox graph;
    plotCurve(graph, [](double x) { return x; }, {.start = 0, .step = 1, .exactEnd = 100, .largest = 2});
    EXPECT_EQ(graph.strokes().size(), 4U);
}

TEST(PlotCurve, EndsWhereItMeetsItsExactEnd) {
    GraphBox graph;
    plotCurve(graph, [](double x) { return x; }, {.start = 0, .step = 1, .exactEnd = 3, .largest = 100});
    EXPECT_EQ(graph.strokes().size(), 3U);
}

TEST(PlotCurve, NeverMeetsItsExactEnd) {
    for (const CurveRange range :
         {CurveRange{-10, 0.05, 10, 2000}, CurveRange{-10, 0.05, 7, 2000}, CurveRange{-7, 0.05, 7, 1000},
          CurveRange{-10, 0.04, 10, 2000}, CurveRange{-7, 0.04, 7, 5000}}) {
        double x = range.start;
        for (int step = 0; step < 2000; ++step) {
            x += range.step;
            EXPECT_NE(x, range.exactEnd);
        }
    }
}

}  // namespace
}  // namespace tavrune
