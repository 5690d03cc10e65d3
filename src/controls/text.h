#pragma once

#include <string_view>

#include <QString>

namespace tavrune {

/// UTF-8, as exercises give it, to what Qt shows.
[[nodiscard]] inline QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace tavrune
