#pragma once

namespace tavrune {

// All of these return the double nearest to a decimal number, so that the result equals what `Val` reads of
// that number: the last step divides a whole number by a power of ten.

/// Rounds to 2 decimals, halves away from zero. RoundSigned2(0.125) -> 0.13, RoundSigned2(-0.125) -> -0.13
[[nodiscard]] double RoundSigned2(double x);

/// As `RoundSigned2`, but below 0 it adds 0.499999 instead of 0.49999; for the addition forms.
/// RoundSigned2Fine(-0.12499995) -> -0.12, but RoundSigned2(-0.12499995) -> -0.13
[[nodiscard]] double RoundSigned2Fine(double x);

/// Rounds to 3 decimals, halves away from zero. RoundSigned3(-2.0005) -> -2.001
[[nodiscard]] double RoundSigned3(double x);

/// Rounds to 1 decimal, halves up. RoundUp1(0.25) -> 0.3, RoundUp1(-0.25) -> -0.2
[[nodiscard]] double RoundUp1(double x);

/// Rounds to 2 decimals, halves up, below 0 too. RoundUp2(0.125) -> 0.13, RoundUp2(-0.125) -> -0.12
[[nodiscard]] double RoundUp2(double x);

/// Rounds to 3 decimals, halves up. RoundUp3(0.0625) -> 0.063, RoundUp3(-0.0625) -> -0.062
[[nodiscard]] double RoundUp3(double x);

}  // namespace tavrune
