#pragma once

#include <cstdint>
#include <sstream>
#include <string>

namespace tavrune::test {

/// A short name for a text that nobody could read: the same for the same text in every build and on every
/// processor, and hardly ever for another.
[[nodiscard]] inline std::string digest(const std::string& text) {
    std::uint32_t hash = 2166136261U;
    for (const char letter : text) {
        hash = (hash ^ static_cast<unsigned char>(letter)) * 16777619U;
    }
    std::ostringstream hex;
    hex << std::hex << hash;
    return hex.str();
}

}  // namespace tavrune::test
