#pragma once

#include <QColor>

namespace tavrune {

/// The Danish word for a colour: that of the nearest of those that are drawn with. nameOf(kRed) -> "rød"
[[nodiscard]] const char* nameOf(const QColor& colour);

}  // namespace tavrune
