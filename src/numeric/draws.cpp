#include "numeric/draws.h"

#include <chrono>

namespace tavrune {
namespace {

constexpr int kUnusedBits = 64 - 24;
constexpr float kStep = 1.0F / (1U << 24U);

/// Returns a number of which every bit depends on all bits of `x` (the finaliser of SplitMix64): otherwise
/// neighbouring seeds would give similar streams.
std::uint64_t spread(std::uint64_t x) {
    x += 0x9e3779b97f4a7c15U;
    x = (x ^ (x >> 30U)) * 0xbf58476d1ce4e5b9U;
    x = (x ^ (x >> 27U)) * 0x94d049bb133111ebU;
    return x ^ (x >> 31U);
}

std::uint64_t clockTicks() {
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

}  // namespace

SeededDraws::SeededDraws(std::uint64_t seed) : engine_(spread(seed)) {}

float SeededDraws::Rnd() {
    return static_cast<float>(engine_() >> static_cast<unsigned>(kUnusedBits)) * kStep;
}

void SeededDraws::stir(std::uint64_t seed) { engine_.seed(spread(seed ^ engine_())); }

ClockDraws::ClockDraws() : SeededDraws(clockTicks()) {}

// `stir` uses the old state too: a loop that reseeds several times within one tick of the clock must not draw
// the same numbers again.
void ClockDraws::Randomize() { stir(clockTicks()); }

}  // namespace tavrune
