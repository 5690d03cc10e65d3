#pragma once

#include "support/scripted_draws.h"
#include "topics/basics/lininter_exercise.h"

/// The draws that give an exercise on the line through two points.
namespace tavrune::test::lininter {

/// 1 to 10.
[[nodiscard]] inline float coordinate(int value) { return cellOf(value - 1, 10); }

/// 1 to 8.
[[nodiscard]] inline float given(int value) { return cellOf(value - 1, 8); }

[[nodiscard]] inline float choice(Coordinate which) { return which == Coordinate::Quantity ? 0.25F : 0.75F; }

/// One try at the points A and B.
[[nodiscard]] inline Script points(int qa, int pa, int qb, int pb) {
    return {coordinate(qa), coordinate(pa), coordinate(qb), coordinate(pb)};
}

[[nodiscard]] inline Script script(int qa, int pa, int qb, int pb, Coordinate which, int value) {
    return points(qa, pa, qb, pb) + Script{choice(which), given(value)};
}

}  // namespace tavrune::test::lininter
