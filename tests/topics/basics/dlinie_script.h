#pragma once

#include "support/scripted_draws.h"
#include "topics/basics/dlinie_exercise.h"

/// The draws that give an exercise on a straight line.
namespace tavrune::test::dlinie {

/// The numbers of one exercise; the defaults are never rejected.
struct Numbers {
    int x1 = 1;
    int y1 = 2;
    int x2 = 3;
    int y2 = 5;
    int slopeGiven = 2;
    int yCross = -4;
    int xCross = 6;
};

[[nodiscard]] inline float kind(LineTask task) {
    return task == LineTask::None ? 0.0001F : cellOf(static_cast<int>(task) - 1, 5);
}

/// One try at the numbers.
[[nodiscard]] inline Script numbers(const Numbers& n) {
    const auto coordinate = [](int value) { return cellOf(value + 10, 20); };
    return {coordinate(n.x1),
            coordinate(n.x2),
            coordinate(n.y1),
            coordinate(n.y2),
            cellOf(n.slopeGiven + 5, 10),
            coordinate(n.yCross),
            coordinate(n.xCross)};
}

[[nodiscard]] inline Script script(LineTask task, const Numbers& n) {
    return Script{kind(task)} + numbers(n);
}

}  // namespace tavrune::test::dlinie
