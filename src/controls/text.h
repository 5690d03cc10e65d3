#pragma once

#include <string_view>

#include <QString>

namespace tavrune {

/// Converts a text of an exercise for Qt.
[[nodiscard]] inline QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace tavrune
