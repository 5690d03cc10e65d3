#include "graph/ticks.h"

#include <gtest/gtest.h>

#include "support/strokes.h"

namespace tavrune {
namespace {

TEST(Ticks, LeaveBeforeTheirEnd) {
    GraphBox graph;
    graph.Scale(-15, 15, 15, -15);
    const test::StrokesIn in{graph.scale()};
    drawTicksAlongX(graph, {.from = -1, .before = 2}, {0.2});
    drawTicksAlongY(graph, {.from = -10, .before = 10, .step = 10}, {0.1});
    const std::vector<Stroke> wanted{in.point(-1, 0.2), in.point(0, 0.2), in.point(1, 0.2),
                                     in.point(0.1, -10), in.point(0.1, 0)};
    EXPECT_EQ(graph.strokes(), wanted);
}

TEST(Ticks, StandSideBySideWhereSeveralDistancesAreGiven) {
    GraphBox graph;
    graph.Scale(-15, 15, 15, -15);
    const test::StrokesIn in{graph.scale()};
    drawTicksAlongX(graph, {.from = 0, .before = 2}, {0.2, 0.4});
    drawTicksAlongY(graph, {.from = 5, .before = 6}, {0.1, 0.3});
    const std::vector<Stroke> wanted{in.point(0, 0.2), in.point(0, 0.4), in.point(1, 0.2),
                                     in.point(1, 0.4), in.point(0.1, 5), in.point(0.3, 5)};
    EXPECT_EQ(graph.strokes(), wanted);
}

}  // namespace
}  // namespace tavrune
