#pragma once

#include <initializer_list>

#include "graph/graph_box.h"

namespace tavrune {

/// Where the tick points of an axis stand: from `from` in whole steps, leaving before `before`.
struct TickRun {
    int from;
    int before;
    int step = 1;
};

/// Points (x, off), for each x of the run one at each height of `offAxis`.
void drawTicksAlongX(GraphBox& graph, const TickRun& run, std::initializer_list<double> offAxis);
/// Points (off, y), for each y of the run one at each distance of `offAxis`.
void drawTicksAlongY(GraphBox& graph, const TickRun& run, std::initializer_list<double> offAxis);

}  // namespace tavrune
