#pragma once

#include <cmath>
#include <vector>

#include "support/strokes.h"

namespace tavrune::test {

/// The curve of ax²+bx+c from -7 on, until it has left all that can be seen.
[[nodiscard]] inline std::vector<Stroke> curveIn(const StrokesIn& in, double a, double b, double c) {
    std::vector<Stroke> pieces;
    double y = 0;
    for (double x = -7; std::abs(y) <= 1000; x += 0.05) {
        const double next = x + 0.05;
        y = a * x * x + b * x + c;
        pieces.push_back(in.line(x, y, next, a * next * next + b * next + c));
    }
    return pieces;
}

}  // namespace tavrune::test
