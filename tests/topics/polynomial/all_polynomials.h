#pragma once

#include "numeric/draws.h"
#include "support/scripted_draws.h"

namespace tavrune::test {

constexpr int kPolynomials = 5 * 5 * 5 * 18;

/// Every exercise of three sizes and a pattern that there is, one after the other and then over again.
class AllPolynomials final : public Draws {
public:
    float Rnd() override {
        const int place = asked_++ % 4;
        if (place == 0) {
            exercise_ = (exercise_ + 1) % kPolynomials;
        }
        const int cells[] = {exercise_ / 450, exercise_ / 90 % 5, exercise_ / 18 % 5, exercise_ % 18};
        return cellOf(cells[place], place == 3 ? 18 : 5);
    }
    void Randomize() override {}

private:
    int exercise_ = -1;
    int asked_ = 0;
};

}  // namespace tavrune::test
