#include "topics/addition/addition_graphs.h"

namespace tavrune {
namespace {

/// The left edge of a mark that ends with the box.
constexpr double kLeftOfLastMark = 9.85;
constexpr double kMarkSize = 2 * kHalfMark;

constexpr double kHalfThickness = 0.1;
constexpr double kThickness = 2 * kHalfThickness;

// The ticks of twenty-one whole numbers along 18 units of a frame.
constexpr double kFirstWideTick = 1;
constexpr double kLastWideTick = 19.1;
constexpr double kWideTickStep = 0.9;

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
    stepThrough(kFirstWideTick, kLastWideTick, kWideTickStep,
                [&frame](double t) { frame.Line(t, 9, t, 9.2); });
}

void drawPiece(GraphBox& box, double top, const Piece& piece, double from, double to, const QColor& colour) {
    box.Line(from, top - piece.at(from), to, top - piece.at(to), colour);
}

void drawMark(GraphBox& box, const TableCell& quantity, double price) {
    double left = kBesideTheBox;
    if (quantity.isUnbounded()) {
        left = kLeftOfLastMark;
    } else if (quantity.isNumeric()) {
        left = quantity.number() - kHalfMark;
    }
    stepThrough(left, left + kMarkSize, kStroke, [&box, price](double x) {
        box.Line(x, kTopPrice - price - kHalfMark, x, kTopPrice - price + kHalfMark, kRed);
    });
}

void drawThickLine(GraphBox& box, double from, double to, double middle, const QColor& colour) {
    stepThrough(-kHalfThickness, kHalfThickness, kStroke,
                [&](double t) { box.Line(from, middle - t, to, middle - t, colour); });
}

void drawBand(GraphBox& box, double from, double to, double price, const QColor& colour) {
    const double base = price == 0 ? 0 : price - kHalfThickness;
    stepThrough(base, base + kThickness, kStroke,
                [&](double y) { box.Line(from, kTopPrice - y, to, kTopPrice - y, colour); });
}

}  // namespace tavrune
