#include "topics/addition/vertical_graphs.h"

namespace tavrune {
namespace {

// The ticks of twenty-one whole numbers up the tall frame.
constexpr double kFirstTallTick = 1;
constexpr double kLastTallTick = 19.6;
constexpr double kTallTickStep = 0.925;

}  // namespace

void drawTallFrameTicks(GraphBox& frame) {
    stepThrough(kFirstTick, kLastTick, kTickStep,
                [&frame](double t) { drawTickOfQ(frame, t + 0.8, 19.5, 19.75); });
    stepThrough(kFirstTallTick, kLastTallTick, kTallTickStep, [&frame](double t) { drawTickOfP(frame, t); });
}

void drawLevelSquare(GraphBox& graph, double quantity, double price) {
    const Figure square(graph, Meaning::Square);
    stepThrough(-kHalfSquare, kHalfSquare, kStroke, [&](double t) {
        graph.Line({quantity - kHalfSquare, price, -t}, {quantity + kHalfSquare, price, -t}, kRed);
    });
}

void drawUprights(GraphBox& graph, const std::vector<double>& quantities) {
    graph.DrawStyle(LineStyle::Dotted);
    for (const double quantity : quantities) {
        graph.Line(quantity, kTopPrice, quantity, 0);
    }
    graph.DrawStyle(LineStyle::Solid);
}

void drawSum(GraphBox& graph, const VerticalSum& sum) {
    const Figure line(graph, Meaning::Line);
    for (std::size_t segment = 0; segment < sum.segments.size(); ++segment) {
        const double from = segment == 0 ? 0 : sum.breaks[segment - 1];
        const double to = segment == sum.last() ? kFunctionEndQ : sum.breaks[segment];
        drawPiece(graph, sum.segments[segment], from, to, kSumGreen);
    }
}

void drawTypedSum(GraphBox& graph, const AnswerRows& rows, const VerticalSum& sum) {
    const Figure line(graph, Meaning::Line);
    const int last = sum.rowOfSegment(sum.last());
    for (int row = 0; row <= last; ++row) {
        const double from = row == 0 ? 0 : rows.typed(row, Slot::Start);
        const bool isEndTyped = row != last || sum.upperEndAsked;
        const double to = isEndTyped ? rows.typed(row, Slot::End) : kFunctionEndQ;
        drawPiece(graph, rows.typedSegment(row), from, to, kRed);
    }
}

}  // namespace tavrune
