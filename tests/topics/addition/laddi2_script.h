#pragma once

#include <cmath>

#include "support/scripted_draws.h"

namespace tavrune::test {

/// A straight piece as it is drawn, in whole numbers.
struct DrawnPiece {
    int slope;
    int intercept;

    bool operator==(const DrawnPiece&) const = default;
};

/// A function with a kink as it is drawn. The first piece has an intercept of 0..4; at the kink the second
/// has a price of 5..9 if it falls, of 1..5 if it rises, of either if it is level.
struct DrawnKinked {
    int kink;
    DrawnPiece before;
    DrawnPiece after;
};

[[nodiscard]] inline Script kinkScriptOf(int kink1, int kink2) {
    return {cellOf(kink1 - 3, 5), cellOf(kink2 - 3, 5)};
}

/// The sides of a coin that a piece falls below: its last draw that does, and its first that does not.
[[nodiscard]] inline float coinOf(bool isFalling, float share) {
    return isFalling ? std::nextafter(share, 0.0F) : share;
}

/// A level piece can come from either side of the coin.
[[nodiscard]] inline Script beforeScriptOf(bool isFallingDrawn, int size, int intercept) {
    return {coinOf(isFallingDrawn, 0.7F), cellOf(size, 5), cellOf(intercept, 5)};
}

[[nodiscard]] inline Script beforeScriptOf(const DrawnPiece& p) {
    return beforeScriptOf(p.slope < 0, p.slope < 0 ? -p.slope : p.slope, p.intercept);
}

/// `place` is 0 for the lowest of the five prices at the kink.
[[nodiscard]] inline Script afterScriptOf(bool isFallingDrawn, int size, int place) {
    return {coinOf(isFallingDrawn, 0.5F), cellOf(size, 5), cellOf(place, 5)};
}

[[nodiscard]] inline Script afterScriptOf(int kink, const DrawnPiece& p) {
    const int price = p.slope * kink + p.intercept;
    const bool isFallingDrawn = p.slope < 0 || (p.slope == 0 && price > 5);
    return afterScriptOf(isFallingDrawn, p.slope < 0 ? -p.slope : p.slope, price - (isFallingDrawn ? 5 : 1));
}

/// The draws of an exercise.
[[nodiscard]] inline Script scriptOf(const DrawnKinked& f1, const DrawnKinked& f2) {
    return kinkScriptOf(f1.kink, f2.kink) + beforeScriptOf(f1.before) + afterScriptOf(f1.kink, f1.after) +
           beforeScriptOf(f2.before) + afterScriptOf(f2.kink, f2.after);
}

// Functions that the exercises of the tests are put together from, by their kink and where they end.
inline constexpr DrawnKinked kAt3EndsAt4And4th{3, {1, 2}, {-4, 17}};
inline constexpr DrawnKinked kAt3EndsAt6{3, {1, 2}, {-2, 12}};
inline constexpr DrawnKinked kAt3EndsAt8{3, {1, 2}, {-1, 8}};
inline constexpr DrawnKinked kAt3EndsAt12{3, {1, 2}, {-1, 12}};
inline constexpr DrawnKinked kAt3Rises{3, {1, 2}, {1, -2}};
inline constexpr DrawnKinked kAt5EndsAt6And4th{5, {0, 4}, {-4, 25}};
inline constexpr DrawnKinked kAt5EndsAt8{5, {0, 4}, {-2, 16}};
inline constexpr DrawnKinked kAt5EndsAt10{5, {0, 4}, {-1, 10}};
inline constexpr DrawnKinked kAt5Rises{5, {0, 4}, {2, -9}};
inline constexpr DrawnKinked kAt5IsLevel{5, {0, 4}, {0, 7}};
inline constexpr DrawnKinked kAt6EndsAt11{6, {2, 0}, {-1, 11}};
inline constexpr DrawnKinked kAt4EndsAt6{4, {3, 1}, {-4, 24}};
inline constexpr DrawnKinked kAt4EndsAt6Too{4, {0, 3}, {-3, 18}};
inline constexpr DrawnKinked kAt4EndsAt10{4, {0, 3}, {-1, 10}};
inline constexpr DrawnKinked kAt4Rises{4, {3, 1}, {4, -15}};
inline constexpr DrawnKinked kAt4IsLevel{4, {0, 3}, {0, 3}};

}  // namespace tavrune::test
