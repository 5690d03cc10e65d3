#pragma once

#include <cstdlib>
#include <string_view>

namespace tavrune::test {

/// TAVRUNE_PROOF=full asks for the full counts, which take hours.
inline bool isFullProof() {
    const char* const asked = std::getenv("TAVRUNE_PROOF");
    return asked != nullptr && std::string_view(asked) == "full";
}

/// A whole number from the environment, or `otherwise`.
inline long long numberFromEnvironment(const char* name, long long otherwise) {
    const char* const asked = std::getenv(name);
    return asked == nullptr || *asked == '\0' ? otherwise : std::atoll(asked);
}

#ifdef TAVRUNE_SANITIZED
inline constexpr bool kIsSanitized = true;
#else
inline constexpr bool kIsSanitized = false;
#endif

}  // namespace tavrune::test
