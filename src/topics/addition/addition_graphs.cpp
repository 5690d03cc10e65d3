#include "topics/addition/addition_graphs.h"

namespace tavrune {
namespace {

/// The left edge of a square that ends with the graph.
constexpr double kLeftOfLastSquare = 9.85;
constexpr double kSquareSize = 2 * kHalfSquare;

constexpr double kHalfThickness = 0.1;
constexpr double kThickness = 2 * kHalfThickness;

// The ticks of twenty-one whole numbers along 18 units of a frame.
constexpr double kFirstWideTick = 1;
constexpr double kLastWideTick = 19.1;
constexpr double kWideTickStep = 0.9;

}  // namespace

FramedGraph FramedGraph::of(const QWidget& page, const QString& prefix) {
    return {page.findChild<GraphBox*>(prefix + "GraphFrame"), page.findChild<GraphBox*>(prefix + "Graph")};
}

void FramedGraph::clear(void (*drawTicks)(GraphBox& frame)) const {
    graph->Cls();
    drawTicks(*frame);
}

void drawTickOfQ(GraphBox& frame, double x, double top, double bottom) {
    const Figure tick(frame, Meaning::TickOfX);
    frame.Line(x, top, x, bottom);
}

void drawTickOfP(GraphBox& frame, double y) {
    const Figure tick(frame, Meaning::TickOfY);
    frame.Line(0.8, y, 1, y);
}

void drawFrameTicks(GraphBox& frame) {
    stepThrough(kFirstTick, kLastTick, kTickStep, [&frame](double t) {
        drawTickOfQ(frame, t + 0.8, 8.2, 8.4);
        drawTickOfP(frame, t);
    });
}

void drawWideFrameTicks(GraphBox& frame) {
    stepThrough(kFirstTick, kLastTick, kTickStep, [&frame](double t) { drawTickOfP(frame, t + 0.8); });
    stepThrough(kFirstWideTick, kLastWideTick, kWideTickStep,
                [&frame](double t) { drawTickOfQ(frame, t, 9, 9.2); });
}

void drawPiece(GraphBox& graph, const Piece& piece, double from, double to, const QColor& colour) {
    graph.Line(from, piece.at(from), to, piece.at(to), colour);
}

void drawSquareStroke(GraphBox& graph, double x, double price) {
    graph.Line({x, price, kHalfSquare}, {x, price, -kHalfSquare}, kRed);
}

void drawSquare(GraphBox& graph, const TableCell& quantity, double price) {
    double left = kOffTheGraph;
    if (quantity.isUnbounded()) {
        left = kLeftOfLastSquare;
    } else if (quantity.isNumeric()) {
        left = quantity.number() - kHalfSquare;
    }
    const Figure square(graph, Meaning::Square);
    stepThrough(left, left + kSquareSize, kStroke, [&](double x) { drawSquareStroke(graph, x, price); });
}

void drawThickLine(GraphBox& graph, double from, double to, double price, const QColor& colour) {
    const Figure line(graph, Meaning::ThickLine);
    stepThrough(-kHalfThickness, kHalfThickness, kStroke, [&](double t) {
        graph.Line({from, price, t}, {to, price, t}, colour);
    });
}

void drawBand(GraphBox& graph, double from, double to, double price, const QColor& colour) {
    const double base = price == 0 ? 0 : price - kHalfThickness;
    const Figure band(graph, Meaning::ThickLine);
    stepThrough(base, base + kThickness, kStroke, [&](double y) { graph.Line(from, y, to, y, colour); });
}

}  // namespace tavrune
