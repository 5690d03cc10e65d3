#pragma once

#include <cstddef>
#include <cstdlib>
#include <string_view>

// There under the sanitizers only.
extern "C" {
[[gnu::weak]] void __asan_init();
[[gnu::weak]] std::size_t __sanitizer_get_current_allocated_bytes();
[[gnu::weak]] void __sanitizer_set_death_callback(void (*callback)());
}

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

/// True if the program has been linked with the address sanitizer. The tests themselves are compiled without
/// it.
inline bool isWatched() { return &__asan_init != nullptr; }

}  // namespace tavrune::test
