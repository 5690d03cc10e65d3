#include "graph/axes.h"

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

}  // namespace
}  // namespace tavrune
