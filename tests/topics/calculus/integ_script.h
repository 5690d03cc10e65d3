#pragma once

#include "support/scripted_draws.h"

namespace tavrune::test {

/// The six draws of an exercise. Where w is not larger than v, the shape is not asked for.
struct IntegDraws {
    int a;
    int b;
    int c;
    int w;
    int v;
    int shape;

    [[nodiscard]] Script script() const {
        return {cellOf(a - 1, 4), cellOf(b - 1, 4), cellOf(c - 1, 5),
                cellOf(w - 1, 7), cellOf(v - 1, 6), cellOf(shape - 1, 26)};
    }

    /// The draws that are made before limits in the wrong order are thrown away.
    [[nodiscard]] Script scriptOfLimits() const {
        Script limits = script();
        limits.pop_back();
        return limits;
    }
};

}  // namespace tavrune::test
