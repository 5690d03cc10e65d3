#include "topics/addition/addition_graphs.h"

namespace tavrune {
namespace {

constexpr double kTop = 10;
constexpr double kStroke = 0.05;

// The ticks of eleven whole numbers along 8 units of a frame.
constexpr double kFirstTick = 0.2;
constexpr double kLastTick = 8.5;
constexpr double kTickStep = 0.8;

}  // namespace

void drawFrameTicks(GraphBox& frame) {
    stepThrough(kFirstTick, kLastTick, kTickStep, [&frame](double t) {
        frame.Line(t + 0.8, 8.2, t + 0.8, 8.4);
        frame.Line(0.8, t, 1, t);
    });
}

void drawWideFrameTicks(GraphBox& frame) {
    stepThrough(kFirstTick, kLastTick, kTickStep,
                [&frame](double t) { frame.Line(0.8, t + 0.8, 1, t + 0.8); });
    stepThrough(1, 19.1, 0.9, [&frame](double t) { frame.Line(t, 9, t, 9.2); });
}

void drawPiece(GraphBox& box, double top, const Piece& piece, double from, double to, const QColor& colour) {
    box.Line(from, top - piece.at(from), to, top - piece.at(to), colour);
}

void drawMark(GraphBox& box, const TableCell& quantity, double price) {
    double left = -5;
    if (quantity.isUnbounded()) {
        left = 9.85;
    } else if (quantity.isNumeric()) {
        left = quantity.number() - 0.15;
    }
    stepThrough(left, left + 0.3, kStroke,
                [&box, price](double x) { box.Line(x, kTop - price - 0.15, x, kTop - price + 0.15, kRed); });
}

void drawThickLine(GraphBox& box, double from, double to, double middle, const QColor& colour) {
    stepThrough(-0.1, 0.1, kStroke, [&](double t) { box.Line(from, middle - t, to, middle - t, colour); });
}

void drawBand(GraphBox& box, double from, double to, double price, const QColor& colour) {
    const double base = price == 0 ? 0 : price - 0.1;
    stepThrough(base, base + 0.2, kStroke, [&](double y) { box.Line(from, kTop - y, to, kTop - y, colour); });
}

}  // namespace tavrune
