#include "graph/clipping.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace tavrune {
namespace {

// Far beyond every single that a scale of this program can blow up, far below what overflows in a product.
constexpr double kLargest = 1e100;

QPointF bounded(QPointF p) {
    return {std::clamp(p.x(), -kLargest, kLargest), std::clamp(p.y(), -kLargest, kLargest)};
}

/// Where the line crosses an upright or level edge. What runs along the other axis stays just on its place.
QPointF crossingX(QPointF a, QPointF b, double x) {
    return {x, a.y() + (b.y() - a.y()) * ((x - a.x()) / (b.x() - a.x()))};
}
QPointF crossingY(QPointF a, QPointF b, double y) {
    return {a.x() + (b.x() - a.x()) * ((y - a.y()) / (b.y() - a.y())), y};
}

using Crossing = QPointF (*)(QPointF, QPointF, double);

struct Edge {
    double at;
    /// How far a point lies inside this edge; below 0 outside.
    double (*inside)(QPointF, double);
    Crossing crossing;
};

}  // namespace

std::optional<QLineF> clipped(const QLineF& line, const QRectF& bounds) {
    if (std::isnan(line.x1()) || std::isnan(line.y1()) || std::isnan(line.x2()) || std::isnan(line.y2())) {
        return std::nullopt;
    }
    const std::array edges{
        Edge{bounds.left(), [](QPointF p, double at) { return p.x() - at; }, crossingX},
        Edge{bounds.right(), [](QPointF p, double at) { return at - p.x(); }, crossingX},
        Edge{bounds.top(), [](QPointF p, double at) { return p.y() - at; }, crossingY},
        Edge{bounds.bottom(), [](QPointF p, double at) { return at - p.y(); }, crossingY},
    };
    QPointF a = bounded(line.p1());
    QPointF b = bounded(line.p2());
    for (const Edge& edge : edges) {
        const bool aIsOut = edge.inside(a, edge.at) < 0;
        const bool bIsOut = edge.inside(b, edge.at) < 0;
        if (aIsOut && bIsOut) {
            return std::nullopt;
        }
        if (aIsOut) {
            a = edge.crossing(a, b, edge.at);
        }
        if (bIsOut) {
            b = edge.crossing(a, b, edge.at);
        }
    }
    return QLineF(a, b);
}

}  // namespace tavrune
