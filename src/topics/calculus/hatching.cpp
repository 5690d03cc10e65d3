#include "topics/calculus/hatching.h"

namespace tavrune {
namespace {

constexpr double kStep = 0.01;

}  // namespace

void hatch(GraphBox& graph, const Curve& curve, int from, int to, const QColor& colour) {
    const Figure area(graph, Meaning::Hatching);
    // The running sum misses the end by the last digits of a double; as a single it meets it.
    for (double x = from; static_cast<float>(x) < static_cast<float>(to); x += kStep) {
        graph.Line(x, 0, x, curve(x), colour);
    }
}

}  // namespace tavrune
