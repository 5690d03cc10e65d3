#pragma once

namespace tavrune {

/// How far a typed answer may be from the right one, everywhere in the program.
inline constexpr double kTolerance = 0.005;

/// Returns whether the typed value equals the stored one.
[[nodiscard]] constexpr bool isExactly(double typed, double stored) { return typed == stored; }

/// Returns whether stored - 0.005 < typed <= stored + 0.005. isHalfOpenNear(3.12, 3.125) -> false, 3.13 ->
/// true
[[nodiscard]] constexpr bool isHalfOpenNear(double typed, double stored) {
    return stored - kTolerance < typed && typed <= stored + kTolerance;
}

/// Returns whether stored - 0.005 <= typed <= stored + 0.005.
[[nodiscard]] constexpr bool isClosedNear(double typed, double stored) {
    return !(stored + kTolerance < typed || typed < stored - kTolerance);
}

}  // namespace tavrune
