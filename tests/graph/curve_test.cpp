#include "graph/curve.h"

#include <cmath>

#include <gtest/gtest.h>

#include "support/strokes.h"

namespace tavrune {
namespace {

TEST(PlotCurve, ChainsPiecesAlongARunningSum) {
    GraphBox graph;
    const Curve curve = [](double x) { return x * x + 2 * x + 3; };
    plotCurve(graph, curve, {.start = -7, .step = 0.05, .largest = 1000});
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
    plotCurve(graph, [](double x) { return 5 * x * x; }, {-7, 0.05, 1000});
    const Stroke& last = graph.strokes().back();
    const Stroke& before = graph.strokes().at(graph.strokes().size() - 2);
    EXPECT_GT(std::abs(last.y1), 1000);
    EXPECT_LE(std::abs(before.y1), 1000);
}

TEST(PlotCurve, EndsAtOnceWhereItBeginsBeyondTheSize) {
    GraphBox graph;
    plotCurve(graph, [](double x) { return 50 * x * x; }, {-7, 0.05, 1000});
    EXPECT_EQ(graph.strokes().size(), 1U);
}

TEST(PlotCurve, GoesOnAsLongAsTheSizeIsOnlyMet) {
    GraphBox graph;
    plotCurve(graph, [](double x) { return x; }, {.start = 0, .step = 1, .largest = 2});
    EXPECT_EQ(graph.strokes().size(), 4U);
}

}  // namespace
}  // namespace tavrune
