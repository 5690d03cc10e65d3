#pragma once

#include <vector>

#include "graph/graph_box.h"

namespace tavrune {

enum class Along { X, Y };

/// Ticks of an axis: points from `from` on in whole steps, leaving before `before`; at each step one at each
/// distance of `offAxis` from the axis.
struct TickRun {
    Along along;
    int from;
    int before;
    int step = 1;
    std::vector<double> offAxis;
};

/// The axes of a graph, with the scale that they stand in.
struct Axes {
    struct Ends {
        double from;
        double to;
    };

    GraphScale scale;
    /// Of the level axis from left to right, of the upright one from top to bottom.
    Ends level;
    Ends upright;
    /// In the order drawn.
    std::vector<TickRun> ticks;
};

/// Clears a graph, sets its scale, and draws the upright axis, the level one and their ticks.
void drawAxes(GraphBox& graph, const Axes& axes);

}  // namespace tavrune
