#pragma once

namespace tavrune {

/// To 2 decimals, halves away from zero. RoundSigned2(0.125) -> 0.13, RoundSigned2(-0.125) -> -0.13
/// All idioms work on doubles; the last step is a whole number divided by a power of ten, so the result is
/// the double nearest to the decimal and equals what `Val` reads of the same decimal.
[[nodiscard]] double RoundSigned2(double x);

/// As `RoundSigned2` with the addend 0.499999 in place of 0.49999 below 0: the addition forms use this one.
/// RoundSigned2Fine(-0.12499995) -> -0.12, where RoundSigned2 gives -0.13
[[nodiscard]] double RoundSigned2Fine(double x);

/// To 3 decimals, halves away from zero. RoundSigned3(-2.0005) -> -2.001
[[nodiscard]] double RoundSigned3(double x);

/// To 1 decimal, halves up. RoundUp1(0.25) -> 0.3, RoundUp1(-0.25) -> -0.2
[[nodiscard]] double RoundUp1(double x);

/// To 2 decimals, halves up, for negative numbers too. RoundUp2(0.125) -> 0.13, RoundUp2(-0.125) -> -0.12
[[nodiscard]] double RoundUp2(double x);

/// To 3 decimals, halves up. RoundUp3(0.0625) -> 0.063, RoundUp3(-0.0625) -> -0.062
[[nodiscard]] double RoundUp3(double x);

}  // namespace tavrune
