#include "graph/curve.h"

#include <cmath>

namespace tavrune {

void plotCurve(GraphBox& graph, const Curve& curve, const CurveRange& range) {
    const Figure figure(graph, Meaning::Line);
    // The running sum of the steps is where the pieces lie.
    double x = range.start;
    double y{};
    do {
        y = curve(x);
        graph.Line(x, y, x + range.step, curve(x + range.step));
        x += range.step;
    } while (std::abs(y) <= range.largest);
}

}  // namespace tavrune
