#pragma once

#include <cstdlib>
#include <string_view>

namespace tavrune::test {

/// How many seeded exercises a long test plays: `ordinary` of them, or `full` where TAVRUNE_PROOF=full asks
/// for the full counts.
[[nodiscard]] inline int lotSize(int ordinary = 100'000, int full = 1'000'000) {
    const char* const asked = std::getenv("TAVRUNE_PROOF");
    return asked != nullptr && std::string_view(asked) == "full" ? full : ordinary;
}

}  // namespace tavrune::test
