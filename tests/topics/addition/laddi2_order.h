#pragma once

#include <array>
#include <cstddef>

#include "topics/addition/laddi2_exercise.h"
#include "topics/addition/laddi2_script.h"

/// The exercises of Laddi2 in whole numbers.
namespace tavrune::test {

/// The piece without what it may have beyond a whole number.
[[nodiscard]] inline DrawnPiece drawnOf(const Piece& piece) {
    return {static_cast<int>(piece.slope), static_cast<int>(piece.intercept)};
}

[[nodiscard]] inline DrawnKinked drawnOf(const KinkedFunction& f) {
    return {static_cast<int>(f.kink), drawnOf(f.before), drawnOf(f.after)};
}

// Quantities at which pieces end are whole twelfths: exact whole numbers. A function that does not end has
// its end at 100.
inline constexpr int kTwelfths = 12;
inline constexpr int kNever = 100 * kTwelfths;

[[nodiscard]] inline int zeroInTwelfths(const DrawnKinked& f) {
    return f.after.slope >= 0 ? kNever : kTwelfths * f.after.intercept / -f.after.slope;
}

/// The order in which the ends of two functions follow one another, and them in that order.
struct Order {
    int orderCase;
    std::array<int, 4> ends;

    /// Which neighbours are equal, from 1 at the left: 1 for the first pair, 13 for the first and the last.
    [[nodiscard]] int merged() const {
        int pairs = 0;
        for (std::size_t at = 1; at < ends.size(); ++at) {
            if (ends[at - 1] == ends[at]) {
                pairs = 10 * pairs + static_cast<int>(at);
            }
        }
        return pairs;
    }
};

/// Decided by the ends themselves, in the six cases that there are.
[[nodiscard]] inline Order orderOf(const DrawnKinked& f1, const DrawnKinked& f2) {
    const int k1 = f1.kink * kTwelfths;
    const int k2 = f2.kink * kTwelfths;
    const int z1 = zeroInTwelfths(f1);
    const int z2 = zeroInTwelfths(f2);
    if (k1 < k2) {
        if (z1 < k2) {
            return {1, {k1, z1, k2, z2}};
        }
        return z1 < z2 ? Order{2, {k1, k2, z1, z2}} : Order{3, {k1, k2, z2, z1}};
    }
    if (z2 < k1) {
        return {4, {k2, z2, k1, z1}};
    }
    return z2 < z1 ? Order{5, {k2, k1, z2, z1}} : Order{6, {k2, k1, z1, z2}};
}

}  // namespace tavrune::test
