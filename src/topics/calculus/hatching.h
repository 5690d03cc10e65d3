#pragma once

#include "graph/curve.h"

namespace tavrune {

/// Fills the area between the axis and a curve from `from` to `to` with upright lines, 100 for each unit of
/// Q and none at `to`.
void hatch(GraphBox& graph, const Curve& curve, int from, int to, const QColor& colour);

}  // namespace tavrune
