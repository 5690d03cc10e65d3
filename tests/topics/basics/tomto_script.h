#pragma once

#include "support/scripted_draws.h"
#include "topics/basics/tomto_exercise.h"

/// The draws that give an exercise on two lines.
namespace tavrune::test::tomto {

using enum LineForm;

/// The coefficients in the order in which they are drawn, each from -10 to 9.
struct Coefficients {
    int a1, c1, b1, a2, c2, b2;
};

[[nodiscard]] inline Script script(const Coefficients& k, LineForm form) {
    const auto coefficient = [](int value) { return cellOf(value + 10, 20); };
    return {coefficient(k.a1),
            coefficient(k.c1),
            coefficient(k.b1),
            coefficient(k.a2),
            coefficient(k.c2),
            coefficient(k.b2),
            cellOf(static_cast<int>(form), 2)};
}

}  // namespace tavrune::test::tomto
