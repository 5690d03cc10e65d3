#include "topics/polynomial/parabola.h"

#include <cmath>

namespace tavrune {
namespace {

constexpr int kFirstTick = -15;
constexpr double kStep = 0.05;

}  // namespace

void drawTicksOnQ(GraphBox& graph, const TickRow& row) {
    for (int x = kFirstTick; x < row.end; x += row.step) {
        graph.PSet(x, row.offAxis);
    }
}

void drawTicksOnP(GraphBox& graph, const TickRow& row) {
    for (int y = kFirstTick; y < row.end; y += row.step) {
        graph.PSet(row.offAxis, y);
    }
}

void plotCurve(GraphBox& graph, const Polynomial& polynomial, const CurveRange& range) {
    // The running sum of the step is part of where the pieces lie.
    double x = range.start;
    while (true) {
        const double y = valueAt(polynomial, x);
        graph.Line(x, y, x + kStep, valueAt(polynomial, x + kStep));
        x += kStep;
        if (std::abs(y) > range.largest || x == range.neverMet) {
            return;
        }
    }
}

}  // namespace tavrune
