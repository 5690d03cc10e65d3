#pragma once

#include "support/scripted_draws.h"

/// The draws that give an exercise on the line through two points.
namespace tavrune::test::lininter {

enum Direction { GivenQ, GivenP };

/// 1 to 10.
[[nodiscard]] inline float coordinate(int value) { return cellOf(value - 1, 10); }

/// 1 to 8.
[[nodiscard]] inline float given(int value) { return cellOf(value - 1, 8); }

[[nodiscard]] inline float direction(Direction d) { return d == GivenQ ? 0.25F : 0.75F; }

/// One try at the points A and B.
[[nodiscard]] inline Script points(int qa, int pa, int qb, int pb) {
    return {coordinate(qa), coordinate(pa), coordinate(qb), coordinate(pb)};
}

[[nodiscard]] inline Script script(int qa, int pa, int qb, int pb, Direction d, int g) {
    return points(qa, pa, qb, pb) + Script{direction(d), given(g)};
}

}  // namespace tavrune::test::lininter
