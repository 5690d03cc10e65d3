#pragma once

#include "support/scripted_draws.h"

/// The draws that give an exercise P = aQ + b with its factor, part by part.
namespace tavrune::test::konvert {

inline constexpr float kHeads = 0.25F;
inline constexpr float kTails = 0.5F;

/// a from -5 to 4.
[[nodiscard]] inline Script slope(int a) {
    return a < 0 ? Script{kHeads, cellOf(-a, 6)} : Script{kTails, cellOf(a, 5)};
}

/// b from 0 to 7.
[[nodiscard]] inline Script intercept(int b) { return {cellOf(b, 8)}; }

/// 1 Q is f K; f from 1 to 8.
[[nodiscard]] inline Script wholeFactor(int f) { return {kHeads, cellOf(f - 1, 8)}; }

/// One try at a fraction: n/m with a drawn numerator, and 1/m without.
[[nodiscard]] inline Script fraction(int n, int m) { return {kHeads, cellOf(n - 1, 8), cellOf(m - 1, 8)}; }
[[nodiscard]] inline Script oneOver(int m) { return {kTails, cellOf(m - 1, 8)}; }

/// 1 Q is n/m K.
[[nodiscard]] inline Script fractionFactor(int n, int m) { return Script{kTails} + fraction(n, m); }

}  // namespace tavrune::test::konvert
