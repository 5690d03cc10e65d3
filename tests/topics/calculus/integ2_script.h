#pragma once

#include "support/scripted_draws.h"

/// The draws that give an exercise on a function with a kink.
namespace tavrune::test::integ2 {

enum class Family { FallThenRise = 1, RiseThenFall = 2, TwoFalls = 3 };

[[nodiscard]] inline Script drawOf(Family family) { return {cellOf(static_cast<int>(family) - 1, 3)}; }

/// One try within a family: the sizes as they are drawn, without sign and not yet halved, then the kink and
/// how far the limits lie from it.
struct Numbers {
    int a1 = 1;
    int b1 = 1;
    int a2 = 1;
    int b2 = 1;
    int k = 2;
    int back = 1;
    int forth = 1;
};

/// How many values each of the first four draws of a family has.
struct Ranges {
    int a1;
    int b1;
    int a2;
    int b2;
};

[[nodiscard]] constexpr Ranges rangesOf(Family family) {
    switch (family) {
        case Family::RiseThenFall:
            return {3, 6, 3, 7};
        case Family::TwoFalls:
            return {2, 5, 2, 2};
        case Family::FallThenRise:
            break;
    }
    return {2, 6, 3, 4};
}

[[nodiscard]] inline Script pieces(Family family, const Numbers& n) {
    const Ranges of = rangesOf(family);
    return {cellOf(n.a1 - 1, of.a1), cellOf(n.b1 - 1, of.b1), cellOf(n.a2 - 1, of.a2),
            cellOf(n.b2 - 1, of.b2)};
}

[[nodiscard]] inline Script kink(const Numbers& n) { return {cellOf(n.k - 2, 5)}; }

[[nodiscard]] inline Script piecesAndKink(Family family, const Numbers& n) {
    return pieces(family, n) + kink(n);
}

[[nodiscard]] inline Script limits(const Numbers& n) {
    return {cellOf(n.back - 1, 3), cellOf(n.forth - 1, 3)};
}

/// One whole try.
[[nodiscard]] inline Script numbers(Family family, const Numbers& n) {
    return piecesAndKink(family, n) + limits(n);
}

[[nodiscard]] inline Script script(Family family, const Numbers& n) {
    return drawOf(family) + numbers(family, n);
}

}  // namespace tavrune::test::integ2
