#pragma once

#include <initializer_list>

#include "graph/graph_box.h"
#include "topics/polynomial/polynomial_model.h"

namespace tavrune {

/// Tick points along one axis: from -15 in steps of `step`, a little off the axis, leaving before `end`.
struct TickRow {
    double offAxis;
    int step;
    int end = 15;
};

/// Points (x, offAxis).
void drawTicksOnQ(GraphBox& graph, const TickRow& row);
/// Points (offAxis, y).
void drawTicksOnP(GraphBox& graph, const TickRow& row);

/// Where a curve begins, and the size of P at which it ends. `neverMet` is compared with the running sum of
/// steps, which misses it: the size ends every curve.
struct CurveRange {
    double start;
    double neverMet;
    double largest;
};

/// Draws the parabola in black as a chain of pieces 0.05 wide. The piece whose beginning passes the size is
/// still drawn.
void plotCurve(GraphBox& graph, const Polynomial& polynomial, const CurveRange& range);

}  // namespace tavrune
