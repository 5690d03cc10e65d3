#pragma once

#include <vector>

#include "topics/addition/addition_graphs.h"
#include "topics/addition/answer_rows.h"
#include "topics/addition/vertical_model.h"

namespace tavrune {

/// Draws the ticks round the tall graph of 0..10 in Q and 0..20 in P on which the sum stands.
void drawTallFrameTicks(GraphBox& frame);

/// Draws a red square of level strokes at a quantity and a price.
void drawLevelSquare(GraphBox& graph, double quantity, double price);

/// Draws a dotted line at each quantity, from top to bottom of the graph of a given function. Lines that are
/// drawn afterwards are solid.
void drawUprights(GraphBox& graph, const std::vector<double>& quantities);

/// Draws the segments of the right sum in green, the last one to Q = 10 whether it has an upper end or not.
void drawSum(GraphBox& graph, const VerticalSum& sum);

/// Draws in red what is typed in the rows down to the one of the last segment. Kept (addition-hidden-row):
/// the rows above a lone segment too, from what stands in their hidden boxes.
void drawTypedSum(GraphBox& graph, const AnswerRows& rows, const VerticalSum& sum);

}  // namespace tavrune
