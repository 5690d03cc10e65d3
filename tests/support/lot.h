#pragma once

#include <algorithm>
#include <cstdlib>

namespace tavrune::test {

/// How many seeded exercises a long test plays: as many as the ordinary run can bear, or TAVRUNE_PROOF of
/// them where that is more.
[[nodiscard]] inline int lotSize() {
    constexpr int kOrdinary = 100'000;
    const char* const asked = std::getenv("TAVRUNE_PROOF");
    return asked == nullptr ? kOrdinary : std::max(kOrdinary, std::atoi(asked));
}

}  // namespace tavrune::test
