#pragma once

namespace tavrune {

/// The one tolerance of the program, absolute.
inline constexpr double kTolerance = 0.005;

/// True if the typed value is the stored one, as doubles.
[[nodiscard]] constexpr bool isExactly(double typed, double stored) { return typed == stored; }

/// stored - 0.005 < typed <= stored + 0.005. isHalfOpenNear(3.12, 3.125) -> false, 3.13 -> true
[[nodiscard]] constexpr bool isHalfOpenNear(double typed, double stored) {
    return stored - kTolerance < typed && typed <= stored + kTolerance;
}

/// stored - 0.005 <= typed <= stored + 0.005
[[nodiscard]] constexpr bool isClosedNear(double typed, double stored) {
    return !(stored + kTolerance < typed || typed < stored - kTolerance);
}

}  // namespace tavrune
