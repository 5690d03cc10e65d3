#pragma once

#include <optional>
#include <span>
#include <vector>

#include <QLineF>
#include <QRectF>

#include "graph/graph_box.h"

namespace tavrune {

/// Those of one figure.
using Strokes = std::span<const Stroke>;
using Points = std::vector<QPointF>;

/// What can be seen in a scale, in the coordinates of the mathematics: on a scale that runs downwards, y is
/// counted up from the lower border. In a scale without width or height nothing is seen.
class View {
public:
    explicit View(const GraphScale& scale);

    /// The part of a stroke that is seen.
    [[nodiscard]] std::optional<QLineF> seen(const Stroke& stroke) const;
    [[nodiscard]] std::vector<QLineF> seen(Strokes figure) const;

    /// A line as far as it is seen, in as many runs as it comes into sight or has gaps.
    [[nodiscard]] std::vector<Points> seenRuns(Strokes line) const;

    /// A stroke, seen or not.
    [[nodiscard]] QLineF whole(const Stroke& stroke) const;
    /// The middle of a figure, seen or not.
    [[nodiscard]] QPointF middleOf(Strokes figure) const;

    [[nodiscard]] double leftmost() const { return bounds_.left(); }
    [[nodiscard]] double rightmost() const { return bounds_.right(); }
    [[nodiscard]] double lowest() const { return runsDown() ? 0 : bounds_.top(); }
    [[nodiscard]] double highest() const { return lowest() + bounds_.height(); }

private:
    [[nodiscard]] bool runsDown() const { return scale_.y1 < scale_.y2; }
    [[nodiscard]] QPointF upright(QPointF p) const;
    [[nodiscard]] bool areNear(QPointF p, QPointF q) const;

    GraphScale scale_;
    QRectF bounds_;
};

/// Round all the lines. Precondition: there is one at least.
[[nodiscard]] QRectF boundsOf(const std::vector<QLineF>& lines);

}  // namespace tavrune
