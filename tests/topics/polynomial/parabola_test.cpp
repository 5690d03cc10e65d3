#include "topics/polynomial/parabola.h"

#include <cmath>

#include <gtest/gtest.h>

namespace tavrune {
namespace {

TEST(Ticks, LeaveBeforeTheirEnd) {
    GraphBox graph;
    drawTicksOnQ(graph, {.offAxis = 0.2, .step = 1});
    ASSERT_EQ(graph.strokes().size(), 30U);
    EXPECT_EQ(graph.strokes().front().x1, -15);
    EXPECT_EQ(graph.strokes().front().y1, 0.2F);
    EXPECT_EQ(graph.strokes().back().x1, 14);
    graph.Cls();
    drawTicksOnP(graph, {.offAxis = 0.3, .step = 5});
    ASSERT_EQ(graph.strokes().size(), 6U);
    EXPECT_EQ(graph.strokes().back().y1, 10);
    graph.Cls();
    drawTicksOnQ(graph, {.offAxis = 0.4, .step = 5, .end = 20});
    EXPECT_EQ(graph.strokes().back().x1, 15);
}

TEST(PlotCurve, ChainsPiecesAlongARunningSum) {
    GraphBox graph;
    const Polynomial p{1, 2, 3};
    plotCurve(graph, p, {.start = -7, .neverMet = 7, .largest = 1000});
    double x = -7;
    for (const Stroke& piece : graph.strokes()) {
        EXPECT_EQ(piece.kind, Stroke::Kind::Line);
        EXPECT_EQ(piece.colour, kBlack);
        ASSERT_EQ(piece.x1, static_cast<float>(x));
        ASSERT_EQ(piece.y1, static_cast<float>(valueAt(p, x)));
        ASSERT_EQ(piece.x2, static_cast<float>(x + 0.05));
        ASSERT_EQ(piece.y2, static_cast<float>(valueAt(p, x + 0.05)));
        x += 0.05;
    }
}

TEST(PlotCurve, EndsWithTheFirstPieceThatBeginsBeyondTheSize) {
    GraphBox graph;
    const Polynomial p{5, 0, 0};
    plotCurve(graph, p, {.start = -7, .neverMet = 7, .largest = 1000});
    const Stroke& last = graph.strokes().back();
    const Stroke& before = graph.strokes().at(graph.strokes().size() - 2);
    EXPECT_GT(std::abs(last.y1), 1000);
    EXPECT_LE(std::abs(before.y1), 1000);
}

TEST(PlotCurve, EndsAtOnceWhereItBeginsBeyondTheSize) {
    GraphBox graph;
    plotCurve(graph, {50, 0, 0}, {.start = -7, .neverMet = 7, .largest = 1000});
    EXPECT_EQ(graph.strokes().size(), 1U);
}

TEST(PlotCurve, NeverMeetsItsExactEnd) {
    for (const CurveRange range :
         {CurveRange{-10, 10, 2000}, CurveRange{-10, 7, 2000}, CurveRange{-7, 7, 1000}}) {
        double x = range.start;
        for (int step = 0; step < 2000; ++step) {
            x += 0.05;
            EXPECT_NE(x, range.neverMet);
        }
    }
}

}  // namespace
}  // namespace tavrune
