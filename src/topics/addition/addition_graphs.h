#pragma once

#include "controls/control.h"
#include "graph/graph_box.h"
#include "topics/addition/addition_model.h"

namespace tavrune {

/// The green of the right sum.
inline const QColor kSumGreen = rgb(0, 190, 0);
/// The quantity of the second function.
inline const QColor kBandGreen = rgb(0, 255, 0);

/// Where the given functions end on their graphs. It is an int, so that its product with a single is a
/// single.
inline constexpr int kFunctionEndQ = 10;
/// Where the sum of quantities ends on its graph.
inline constexpr double kSumEndQ = 20;

/// From one stroke of a thick line or a square to the next.
inline constexpr double kStroke = 0.05;
/// From the middle of a red square to its edges.
inline constexpr double kHalfSquare = 0.15;
/// Out of sight on either axis: the place of a square that has no quantity or no price.
inline constexpr double kOffTheGraph = -5;

// The ticks of eleven whole numbers along 8 units of a frame.
inline constexpr double kFirstTick = 0.2;
inline constexpr double kLastTick = 8.5;
inline constexpr double kTickStep = 0.8;

/// Calls `action` with `from`, `from` + `step` and so on, up to `to`. The numbers are a running sum of
/// doubles, whose last digits decide how many there are. Precondition: `step` is above 0, and not so small
/// that adding it leaves the sum as it is.
template <class Action>
void stepThrough(double from, double to, double step, Action action) {
    for (double at = from; at <= to; at += step) {
        action(at);
    }
}

/// A graph in its frame.
struct FramedGraph {
    GraphBox* frame = nullptr;
    GraphBox* graph = nullptr;

    /// Returns what is called `function1GraphFrame` and `function1Graph`, for the prefix "function1".
    [[nodiscard]] static FramedGraph of(const QWidget& page, const QString& prefix);

    /// Clears the graph and draws the ticks of its frame, which keeps identical ones once.
    void clear(void (*drawTicks)(GraphBox& frame)) const;
};

/// Draws an upright tick of a quantity.
void drawTickOfQ(GraphBox& frame, double x, double top, double bottom);
/// Draws a tick of a price, at the left edge of the graph.
void drawTickOfP(GraphBox& frame, double y);
/// Draws the ticks round a graph of 0..10 on both axes.
void drawFrameTicks(GraphBox& frame);
/// Draws the ticks round a graph of 0..20 in Q and 0..10 in P.
void drawWideFrameTicks(GraphBox& frame);

// On all graphs, though not on their frames, prices are counted up from the lower edge.
/// Draws a piece of a function from Q = `from` to Q = `to`.
void drawPiece(GraphBox& graph, const Piece& piece, double from, double to, const QColor& colour = kBlack);

/// Draws a red square of upright strokes at a quantity and a price: out of sight for a blank quantity, at the
/// right edge for "oo".
void drawSquare(GraphBox& graph, const TableCell& quantity, double price);
/// Draws one stroke of a red square.
void drawSquareStroke(GraphBox& graph, double x, double price);

/// Draws a thick level line from Q = `from` to Q = `to`, as much of it above the price as below.
void drawThickLine(GraphBox& graph, double from, double to, double price, const QColor& colour);

/// Draws a thick level line from Q = `from` to Q = `to` at a price. For the price 0 it stands on the axis.
void drawBand(GraphBox& graph, double from, double to, double price, const QColor& colour);

}  // namespace tavrune
