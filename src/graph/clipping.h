#pragma once

#include <optional>

#include <QLineF>
#include <QRectF>

namespace tavrune {

/// The part of a line that lies within `bounds`, ends included; nothing if no part does. Infinite ends are
/// taken for numbers far beyond every single; a line with a NaN has no part anywhere. Never fails, in a fixed
/// number of steps; of a line with huge ends, what is left of the digits decides the place.
[[nodiscard]] std::optional<QLineF> clipped(const QLineF& line, const QRectF& bounds);

}  // namespace tavrune
