#include "graph/view.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "graph/clipping.h"

namespace tavrune {
namespace {

/// How far apart, as a part of the width and height of the scale, a curve may leave the graph and come back
/// and still go on.
constexpr double kGap = 0.08;

bool areJoined(const Stroke& one, const Stroke& next) { return one.x2 == next.x1 && one.y2 == next.y1; }

}  // namespace

View::View(const GraphScale& scale)
    : scale_(scale), bounds_(QRectF(QPointF(scale.x1, scale.y1), QPointF(scale.x2, scale.y2)).normalized()) {}

std::optional<QLineF> View::seen(const Stroke& stroke) const {
    const auto part = clipped(QLineF(stroke.x1, stroke.y1, stroke.x2, stroke.y2), bounds_);
    if (bounds_.isEmpty() || !part) {
        return std::nullopt;
    }
    return QLineF(upright(part->p1()), upright(part->p2()));
}

std::vector<QLineF> View::seen(Strokes figure) const {
    std::vector<QLineF> parts;
    for (const Stroke& stroke : figure) {
        if (const auto part = seen(stroke)) {
            parts.push_back(*part);
        }
    }
    return parts;
}

std::vector<Points> View::seenRuns(Strokes line) const {
    std::vector<Points> runs;
    const Stroke* last = nullptr;
    for (const Stroke& stroke : line) {
        const auto part = seen(stroke);
        if (part &&
            !(last != nullptr && areJoined(*last, stroke) && areNear(runs.back().back(), part->p1()))) {
            runs.push_back({part->p1()});
        }
        if (part) {
            runs.back().push_back(part->p2());
        }
        last = part ? &stroke : nullptr;
    }
    return runs;
}

QLineF View::whole(const Stroke& stroke) const {
    return {upright({stroke.x1, stroke.y1}), upright({stroke.x2, stroke.y2})};
}

QPointF View::middleOf(Strokes figure) const {
    std::vector<QLineF> lines;
    std::transform(figure.begin(), figure.end(), std::back_inserter(lines),
                   [this](const Stroke& stroke) { return whole(stroke); });
    return boundsOf(lines).center();
}

QPointF View::upright(QPointF p) const { return runsDown() ? QPointF(p.x(), scale_.turned(p.y())) : p; }

bool View::areNear(QPointF p, QPointF q) const {
    return std::abs(p.x() - q.x()) <= kGap * bounds_.width() &&
           std::abs(p.y() - q.y()) <= kGap * bounds_.height();
}

QRectF boundsOf(const std::vector<QLineF>& lines) {
    QPointF least = lines.front().p1();
    QPointF most = least;
    for (const QLineF& line : lines) {
        for (const QPointF p : {line.p1(), line.p2()}) {
            least = {std::min(least.x(), p.x()), std::min(least.y(), p.y())};
            most = {std::max(most.x(), p.x()), std::max(most.y(), p.y())};
        }
    }
    return {least, most};
}

}  // namespace tavrune
