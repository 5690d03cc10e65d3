#pragma once

#include <functional>

#include "graph/graph_box.h"

namespace tavrune {

/// The height of a curve at x.
using Curve = std::function<double(double)>;

/// Where a curve begins, how wide its pieces are, and the size of y at which it ends.
struct CurveRange {
    double start;
    double step;
    double largest;
};

/// Draws a curve in black as a chain of pieces. The piece whose beginning passes the size is still drawn.
void plotCurve(GraphBox& graph, const Curve& curve, const CurveRange& range);

}  // namespace tavrune
