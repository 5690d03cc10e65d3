#pragma once

#include "support/scripted_draws.h"

namespace tavrune::test {

/// The draws of a derivative task. From pattern 19 on the first draw of a is dropped for another.
struct DiffDraws {
    int a = 1;
    int b = 1;
    int c = 1;
    int d = 1;
    int x = 1;
    int patternCase = 1;
    int dropped = 3;

    [[nodiscard]] bool drawsATwice() const { return patternCase > 18; }

    [[nodiscard]] Script script() const {
        Script draws{cellOf((drawsATwice() ? dropped : a) - 1, 3),
                     cellOf(b - 1, 4),
                     cellOf(c - 1, 5),
                     cellOf(d - 1, 5),
                     cellOf(x - 1, 5),
                     cellOf(patternCase - 1, 50)};
        if (drawsATwice()) {
            draws.push_back(cellOf(a - 1, 2));
        }
        return draws;
    }
};

}  // namespace tavrune::test
