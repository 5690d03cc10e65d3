#pragma once

#include <cstddef>
#include <ostream>
#include <vector>

#include <gtest/gtest.h>

#include "graph/graph_box.h"

namespace tavrune {

/// How a stroke reads where a test fails.
inline void PrintTo(const Stroke& s, std::ostream* out) {
    *out << "\n(" << s.x1 << ", " << s.y1 << ")";
    if (s.kind == Stroke::Kind::Line) {
        *out << "-(" << s.x2 << ", " << s.y2 << ")";
    }
    *out << " " << s.colour.name().toStdString() << (s.style == LineStyle::Dotted ? " dotted" : "")
         << " width " << s.width << " in (" << s.scale.x1 << ", " << s.scale.y1 << ")-(" << s.scale.x2 << ", "
         << s.scale.y2 << ")";
}

/// The strokes of two pictures, one after the other.
[[nodiscard]] inline std::vector<Stroke> operator+(std::vector<Stroke> first,
                                                   const std::vector<Stroke>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

namespace test {

/// Writes strokes as a test expects them, all in one scale.
struct StrokesIn {
    GraphScale scale;

    [[nodiscard]] Stroke line(double x1, double y1, double x2, double y2, const QColor& colour = kBlack,
                              LineStyle style = LineStyle::Solid, int width = 1) const {
        const auto single = [](double x) { return static_cast<float>(x); };
        return {
            Stroke::Kind::Line, single(x1), single(y1), single(x2), single(y2), colour, style, width, scale};
    }

    [[nodiscard]] Stroke point(double x, double y, const QColor& colour = kBlack, int width = 1) const {
        Stroke stroke = line(x, y, x, y, colour, LineStyle::Solid, width);
        stroke.kind = Stroke::Kind::Point;
        return stroke;
    }
};

/// What stands on a box from stroke `first` on. Fewer strokes than that fail the test.
[[nodiscard]] inline std::vector<Stroke> strokesFrom(const GraphBox& box, std::size_t first) {
    const std::vector<Stroke>& all = box.strokes();
    if (all.size() < first) {
        ADD_FAILURE() << "only " << all.size() << " strokes stand on the box";
        return {};
    }
    return {all.begin() + static_cast<std::ptrdiff_t>(first), all.end()};
}

}  // namespace test
}  // namespace tavrune
