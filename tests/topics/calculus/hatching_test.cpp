#include "topics/calculus/hatching.h"

#include <gtest/gtest.h>

#include "support/strokes.h"

namespace tavrune {
namespace {

TEST(Hatch, StandsOnTheAxisAndReachesTheCurve) {
    GraphBox graph;
    graph.Scale(0, 20, 10, -10);
    const test::StrokesIn in{graph.scale()};
    hatch(
        graph, [](double x) { return 3 - 2 * x; }, 1, 2, kBlue);
    ASSERT_EQ(graph.strokes().size(), 100U);
    EXPECT_EQ(graph.strokes().front(), in.line(1, 0, 1, 1, kBlue));
    double x = 1;
    for (const Stroke& line : graph.strokes()) {
        ASSERT_EQ(line, in.line(x, 0, x, 3 - 2 * x, kBlue));
        x += 0.01;
    }
}

TEST(Hatch, HasAHundredLinesForEachUnitBetweenAnyTwoWholeEnds) {
    for (int from = 0; from <= 10; ++from) {
        for (int to = from; to <= 10; ++to) {
            GraphBox graph;
            hatch(
                graph, [](double x) { return x; }, from, to, kRed);
            ASSERT_EQ(graph.strokes().size(), 100U * static_cast<unsigned>(to - from)) << from << ".." << to;
        }
    }
}

}  // namespace
}  // namespace tavrune
