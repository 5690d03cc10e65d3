#pragma once

#include "controls/control.h"
#include "graph/graph_box.h"
#include "topics/addition/addition_model.h"

namespace tavrune {

/// The green of the right sum.
inline const QColor kSumGreen = rgb(0, 190, 0);
/// The quantity of the second function.
inline const QColor kBandGreen = rgb(0, 255, 0);

/// Where the given functions end on their graphs. A whole number, so that a single times it stays a single.
inline constexpr int kLastGivenQ = 10;
/// Where the sum of quantities ends on its graph.
inline constexpr double kLastSumQ = 20;

/// From one stroke of a thick line or a mark to the next.
inline constexpr double kStroke = 0.05;
/// From the middle of a mark to its edges.
inline constexpr double kHalfMark = 0.15;
/// Out of sight on either axis, where the mark lies that has no quantity or no price.
inline constexpr double kBesideTheBox = -5;

// The ticks of eleven whole numbers along 8 units of a frame.
inline constexpr double kFirstTick = 0.2;
inline constexpr double kLastTick = 8.5;
inline constexpr double kTickStep = 0.8;

/// Runs `action` with `from`, `from` + `step`, .. up to `to`: a running sum of doubles, so that the number of
/// passes is that of the sum. `step` is above 0, and the ends are near enough for it to move the sum.
template <class Action>
void stepThrough(double from, double to, double step, Action action) {
    for (double at = from; at <= to; at += step) {
        action(at);
    }
}

// Ticks, drawn with each exercise: the frames keep identical ones once. Those of quantities stand upright,
// those of prices lead up to the left edge of the graph.
void drawTickOfQ(GraphBox& frame, double x, double top, double bottom);
void drawTickOfP(GraphBox& frame, double y);
/// Round a graph of 0..10 on both axes.
void drawFrameTicks(GraphBox& frame);
/// Round a graph of 0..20 in Q and 0..10 in P.
void drawWideFrameTicks(GraphBox& frame);

// Prices are counted up on all boxes but the frames.
/// A piece of a function from Q = `from` to Q = `to`.
void drawPiece(GraphBox& box, const Piece& piece, double from, double to, const QColor& colour = kBlack);

/// A red square at a quantity and a price, of upright strokes: beside the box for a blank quantity, at the
/// right edge for "oo".
void drawMark(GraphBox& box, const TableCell& quantity, double price);
/// One of its strokes.
void drawMarkStroke(GraphBox& box, double x, double price);

/// A thick level line from Q = `from` to Q = `to`, as much of it above the price as below.
void drawThickLine(GraphBox& box, double from, double to, double price, const QColor& colour);

/// A thick level line from Q = `from` to Q = `to` at a price, standing on the axis for the price 0.
void drawBand(GraphBox& box, double from, double to, double price, const QColor& colour);

}  // namespace tavrune
