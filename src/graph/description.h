#pragma once

#include <string>
#include <vector>

#include "graph/graph_box.h"

namespace tavrune {

/// What is drawn, in Danish words and numbers, in the order drawn: the axes by the scale, then lines with
/// their ends, curves, points, hatchings, each once. Only what can be seen is told of; however much is drawn,
/// the number of words is bounded.
///
/// Points are told in the coordinates of the mathematics: on a scale that runs downwards, y is counted up
/// from the lower border.
///
/// describe({}, {-10, 10, 10, -10}) -> "Vandret akse fra -10 til 10, lodret akse fra -10 til 10. Ellers tom."
[[nodiscard]] std::string describe(const std::vector<Stroke>& strokes, const GraphScale& scale);

/// As `describe`, without a word on the axes; empty for nothing that can be seen.
///
/// describeFigures({a line}) -> "Linie fra (0; 8) til (4; 0), grøn."
[[nodiscard]] std::string describeFigures(const std::vector<Stroke>& strokes);

}  // namespace tavrune
