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

void drawPiece(GraphBox& box, const Piece& piece, double from, double to, const QColor& colour) {
    box.Line(from, piece.at(from), to, piece.at(to), colour);
}

void drawMarkStroke(GraphBox& box, double x, double price) {
    box.Line({x, price, kHalfMark}, {x, price, -kHalfMark}, kRed);
}

void drawMark(GraphBox& box, const TableCell& quantity, double price) {
    double left = kBesideTheBox;
    if (quantity.isUnbounded()) {
        left = kLeftOfLastMark;
    } else if (quantity.isNumeric()) {
        left = quantity.number() - kHalfMark;
    }
    const Figure mark(box, Meaning::EndMark);
    stepThrough(left, left + kMarkSize, kStroke, [&](double x) { drawMarkStroke(box, x, price); });
}

void drawThickLine(GraphBox& box, double from, double to, double price, const QColor& colour) {
    const Figure line(box, Meaning::ThickLine);
    stepThrough(-kHalfThickness, kHalfThickness, kStroke, [&](double t) {
        box.Line({from, price, t}, {to, price, t}, colour);
    });
}

void drawBand(GraphBox& box, double from, double to, double price, const QColor& colour) {
    const double base = price == 0 ? 0 : price - kHalfThickness;
    const Figure band(box, Meaning::ThickLine);
    stepThrough(base, base + kThickness, kStroke, [&](double y) { box.Line(from, y, to, y, colour); });
}

}  // namespace tavrune
