#pragma once

#include <optional>

#include <QLineF>
#include <QRectF>

namespace tavrune {

/// The part of a line that lies within `bounds`, ends included; nothing if no part does. Infinite ends are
/// taken for the largest singles; a line with a NaN has no part anywhere. Exact for coordinates of any size,
/// in a fixed number of steps.
[[nodiscard]] std::optional<QLineF> clipped(const QLineF& line, const QRectF& bounds);

}  // namespace tavrune
