#pragma once

#include <vector>

#include "graph/graph_box.h"
#include "topics/addition/addition_graphs.h"
#include "topics/addition/answer_rows.h"
#include "topics/addition/vertical_model.h"

namespace tavrune {

/// Ticks round the tall graph of 0..10 in Q and 0..20 in P on which the sum stands, drawn with each exercise:
/// its frame keeps identical ones once.
void drawTallFrameTicks(GraphBox& frame);

/// A red square at a quantity and a price of a given function, of level strokes.
void drawLevelMark(GraphBox& box, double quantity, double price);

/// Dotted lines from top to bottom of a given function's box. The box draws solid lines again afterwards.
void drawUprights(GraphBox& box, const std::vector<double>& quantities);

/// The segments of the right sum, in its green, the last to Q = 10 whether it has an upper end or not.
void drawSum(GraphBox& box, const VerticalSum& sum);

/// In red, what is typed in the rows down to the one of the last segment. Kept (addition-hidden-row): the
/// rows above a lone segment too, from what stands in their hidden boxes.
void drawTypedSum(GraphBox& box, const AnswerRows& rows, const VerticalSum& sum);

}  // namespace tavrune
