#pragma once

#include "support/scripted_draws.h"

/// The draws that give an exercise on average, total and marginal functions.
namespace tavrune::test::gtm {

/// Which function is given.
enum Kind { Avc = 0, Tvc = 1, Mc = 2 };

/// The coefficients of the given function: a from 0 to 4.5 in halves, b from -9 to 0, c from 0 to 9.
struct Numbers {
    double a;
    int b;
    int c;
};

/// a, b, c and the draw that nothing uses. An a of 0 is left to the coin.
[[nodiscard]] inline Script coefficients(const Numbers& k) {
    const Script a =
        k.a == 0 ? Script{cellOf(0, 2)} : Script{cellOf(1, 2), cellOf(static_cast<int>(2 * k.a), 10)};
    return a + Script{cellOf(-k.b, 10), cellOf(k.c, 10), cellOf(3, 20)};
}

/// For "&Ny opgave".
[[nodiscard]] inline Script script(const Numbers& k, Kind kind) {
    return coefficients(k) + Script{cellOf(kind, 3)};
}

/// For the opening, which draws the c of a straight line a second time, from 2 to 7.
[[nodiscard]] inline Script firstScript(const Numbers& k, Kind kind) {
    if (k.a != 0) {
        return script(k, kind);
    }
    return coefficients({0, k.b, 9}) + Script{cellOf(k.c - 2, 6), cellOf(kind, 3)};
}

}  // namespace tavrune::test::gtm
