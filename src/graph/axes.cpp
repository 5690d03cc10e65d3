#include "graph/axes.h"

namespace tavrune {
namespace {

void drawTicks(GraphBox& graph, const TickRun& run) {
    const bool isAlongX = run.along == Along::X;
    const Figure ticks(graph, isAlongX ? Meaning::TickOfX : Meaning::TickOfY);
    for (int at = run.from; at < run.before; at += run.step) {
        for (const double off : run.offAxis) {
            graph.PSet(isAlongX ? at : off, isAlongX ? off : at);
        }
    }
}

}  // namespace

void drawAxes(GraphBox& graph, const Axes& axes) {
    graph.Cls();
    const auto& [x1, y1, x2, y2] = axes.scale;
    graph.Scale(x1, y1, x2, y2);
    {
        const Figure lines(graph, Meaning::Axis);
        graph.Line(0, axes.upright.from, 0, axes.upright.to);
        graph.Line(axes.level.from, 0, axes.level.to, 0);
    }
    for (const TickRun& run : axes.ticks) {
        drawTicks(graph, run);
    }
}

}  // namespace tavrune
