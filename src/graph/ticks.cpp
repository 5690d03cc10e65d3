#include "graph/ticks.h"

namespace tavrune {

void drawTicksAlongX(GraphBox& graph, const TickRun& run, std::initializer_list<double> offAxis) {
    for (int x = run.from; x < run.before; x += run.step) {
        for (const double off : offAxis) {
            graph.PSet(x, off);
        }
    }
}

void drawTicksAlongY(GraphBox& graph, const TickRun& run, std::initializer_list<double> offAxis) {
    for (int y = run.from; y < run.before; y += run.step) {
        for (const double off : offAxis) {
            graph.PSet(off, y);
        }
    }
}

}  // namespace tavrune
