#pragma once

#include "support/scripted_draws.h"

namespace tavrune::test {

/// A straight function as it is drawn: whole numbers, the slope -4..4, the intercept 0..4.
struct DrawnFunction {
    int slope;
    int intercept;
};

/// The draws of one function. A level one can come from either side of the coin.
[[nodiscard]] inline Script scriptOf(bool isFallingDrawn, int size, int intercept) {
    return {isFallingDrawn ? 0.25F : 0.5F, cellOf(size, 5), cellOf(intercept, 5)};
}

[[nodiscard]] inline Script scriptOf(const DrawnFunction& f) {
    return scriptOf(f.slope < 0, f.slope < 0 ? -f.slope : f.slope, f.intercept);
}

/// The draws of an exercise.
[[nodiscard]] inline Script scriptOf(const DrawnFunction& function1, const DrawnFunction& function2) {
    return scriptOf(function1) + scriptOf(function2);
}

}  // namespace tavrune::test
