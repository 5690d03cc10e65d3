#include "graph/axes.h"

#include <QImage>
#include <QtMath>

#include <gtest/gtest.h>

#include "support/strokes.h"

namespace tavrune {
namespace {

constexpr GraphScale kScale{-15, 15, 15, -15};
const test::StrokesIn kIn{kScale};

/// What is drawn after the two lines.
std::vector<Stroke> marksOf(const std::vector<TickRun>& ticks) {
    GraphBox graph;
    drawAxes(graph, {.scale = kScale, .level = {-15, 15}, .upright = {15, -15}, .ticks = ticks});
    return test::strokesFrom(graph, 2);
}

TEST(Axes, StandAloneInTheirScaleTheUprightOneFirst) {
    GraphBox graph;
    graph.Line(1, 2, 3, 4, kRed);
    drawAxes(graph, {.scale = {-2, 15, 15, -15}, .level = {-20, 20}, .upright = {30, -30}, .ticks = {}});
    const test::StrokesIn in{{-2, 15, 15, -15}};
    EXPECT_EQ(graph.scale(), in.scale);
    EXPECT_EQ(graph.strokes(), (std::vector<Stroke>{in.line(0, 30, 0, -30), in.line(-20, 0, 20, 0)}));
    for (const Stroke& line : graph.strokes()) {
        EXPECT_EQ(line.meaning, Meaning::Axis);
    }
}

TEST(Ticks, LeaveBeforeTheirEnd) {
    const std::vector<Stroke> wanted{kIn.point(-1, 0.2), kIn.point(0, 0.2), kIn.point(1, 0.2),
                                     kIn.point(0.1, -10), kIn.point(0.1, 0)};
    EXPECT_EQ(marksOf({{.along = Along::X, .from = -1, .before = 2, .offAxis = {0.2}},
                       {.along = Along::Y, .from = -10, .before = 10, .step = 10, .offAxis = {0.1}}}),
              wanted);
}

TEST(Ticks, StandSideBySideWhereSeveralDistancesAreGiven) {
    const std::vector<Stroke> wanted{kIn.point(0, 0.2), kIn.point(0, 0.4), kIn.point(1, 0.2),
                                     kIn.point(1, 0.4), kIn.point(0.1, 5), kIn.point(0.3, 5)};
    EXPECT_EQ(marksOf({{.along = Along::X, .from = 0, .before = 2, .offAxis = {0.2, 0.4}},
                       {.along = Along::Y, .from = 5, .before = 6, .offAxis = {0.1, 0.3}}}),
              wanted);
}

TEST(Ticks, AreDrawnInTheOrderOfTheirRuns) {
    const TickRun x{.along = Along::X, .from = 0, .before = 1, .offAxis = {0.2}};
    const TickRun y{.along = Along::Y, .from = 0, .before = 1, .offAxis = {0.1}};
    EXPECT_EQ(marksOf({y, x, y}),
              (std::vector<Stroke>{kIn.point(0.1, 0), kIn.point(0, 0.2), kIn.point(0.1, 0)}));
}

TEST(Ticks, SayWhichOfTheirCoordinatesTheyMark) {
    const std::vector<Stroke> marks =
        marksOf({{.along = Along::X, .from = 1, .before = 2, .offAxis = {0.2}},
                 {.along = Along::Y, .from = 1, .before = 2, .offAxis = {0.2}}});
    ASSERT_EQ(marks.size(), 2U);
    EXPECT_EQ(marks[0].meaning, Meaning::TickOfX);
    EXPECT_EQ(marks[1].meaning, Meaning::TickOfY);
}

/// How far from an axis, in pixels, what stands at a tick begins and ends, nearest first.
std::vector<int> edgesFrom(const QImage& picture, QPoint outside, QPoint step) {
    std::vector<int> edges;
    bool wasInked = false;
    for (int i = 0; i < 40; ++i) {
        const bool isInked = picture.pixelColor(outside + i * step) == kBlack;
        if (isInked != wasInked) {
            edges.push_back(i);
        }
        wasInked = isInked;
    }
    return edges;
}

/// Of the tick at 5 of both axes of a graph of 100 by 100 units, with points at these distances.
std::vector<std::vector<int>> edgesAtFive(const std::vector<double>& offAxis, double zoom) {
    GraphBox graph;
    graph.setPlace({0, 0, 100, 100});
    graph.setZoom(zoom);
    drawAxes(graph, {.scale = kScale,
                     .level = {-15, 15},
                     .upright = {15, -15},
                     .ticks = {{.along = Along::X, .from = 5, .before = 6, .offAxis = offAxis},
                               {.along = Along::Y, .from = 5, .before = 6, .offAxis = offAxis}}});
    const QImage picture = graph.grab().toImage();
    // Away from all ticks: the first pixel of the level axis, and the one after the upright one.
    QPoint corner(0, 0);
    while (picture.pixelColor(2, corner.y()) != kBlack) {
        corner.ry() += 1;
    }
    while (picture.pixelColor(corner.x(), 2) != kBlack) {
        corner.rx() += 1;
    }
    while (picture.pixelColor(corner.x(), 2) == kBlack) {
        corner.rx() += 1;
    }
    const double size = picture.width();
    return {edgesFrom(picture, {qFloor(size * 20 / 30), corner.y() - 1}, {0, -1}),
            edgesFrom(picture, {corner.x(), qFloor(size * 10 / 30)}, {1, 0})};
}

TEST(Ticks, TouchTheirAxisAndEachOtherAsInTheDesignAtEveryZoom) {
    for (const std::vector<double>& offAxis :
         {std::vector{0.3}, {0.4}, {0.7}, {1.6}, {0.3, 0.7, 1.0}, {0.4, 0.7, 1.0}, {0.7, 1.6}, {0.6, 1.1}}) {
        const auto design = edgesAtFive(offAxis, 1);
        ASSERT_FALSE(design[0].empty() || design[1].empty()) << offAxis[0];
        for (const double zoom : {1.25, 1.37, 1.5, 1.73, 2.0, 2.2, 2.61, 3.0, 4.0}) {
            const auto zoomed = edgesAtFive(offAxis, zoom);
            for (const std::size_t axis : {0U, 1U}) {
                ASSERT_EQ(zoomed[axis].size(), design[axis].size()) << zoom << ", " << offAxis[0];
                for (std::size_t i = 0; i < design[axis].size(); ++i) {
                    EXPECT_NEAR(zoomed[axis][i], design[axis][i] * zoom, 0.5) << zoom << ", " << offAxis[0];
                }
            }
        }
    }
}

}  // namespace
}  // namespace tavrune
