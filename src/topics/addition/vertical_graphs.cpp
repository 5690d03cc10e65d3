#include "topics/addition/vertical_graphs.h"

namespace tavrune {

void drawTallFrameTicks(GraphBox& frame) {
    stepThrough(0.2, 8.5, 0.8, [&frame](double t) { frame.Line(t + 0.8, 19.5, t + 0.8, 19.75); });
    stepThrough(1, 19.6, 0.925, [&frame](double t) { frame.Line(0.8, t, 1, t); });
}

void drawLevelMark(GraphBox& box, double quantity, double price) {
    stepThrough(-0.15, 0.15, 0.05, [&](double t) {
        const double y = kFunctionTop - price + t;
        box.Line(quantity - 0.15, y, quantity + 0.15, y, kRed);
    });
}

void drawUprights(GraphBox& box, const std::vector<double>& quantities) {
    box.DrawStyle(LineStyle::Dotted);
    for (const double quantity : quantities) {
        box.Line(quantity, 0, quantity, kFunctionTop);
    }
    box.DrawStyle(LineStyle::Solid);
}

void drawSum(GraphBox& box, const VerticalSum& sum) {
    for (std::size_t segment = 0; segment < sum.segments.size(); ++segment) {
        const double from = segment == 0 ? 0 : sum.breaks[segment - 1];
        const double to = segment == sum.last() ? kLastGivenQ : sum.breaks[segment];
        drawPiece(box, kSumTop, sum.segments[segment], from, to, kSumGreen);
    }
}

void drawTypedSum(GraphBox& box, const AnswerRows& rows, const VerticalSum& sum) {
    const int last = sum.rowOfSegment(sum.last());
    for (int row = 0; row <= last; ++row) {
        const double from = row == 0 ? 0 : rows.typed(row, Slot::Start);
        const bool isEndTyped = row != last || sum.upperEndAsked;
        const double to = isEndTyped ? rows.typed(row, Slot::End) : kLastGivenQ;
        drawPiece(box, kSumTop, rows.typedSegment(row), from, to, kRed);
    }
}

}  // namespace tavrune
