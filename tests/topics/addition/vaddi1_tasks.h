#pragma once

#include <string>

#include "support/scripted_draws.h"

namespace tavrune::test {

/// Two straight functions as they are drawn: +1 both rising, -1 both falling.
struct Vaddi1Task {
    int direction;
    int slope1;
    int intercept1;
    int slope2;
    int intercept2;

    /// Not both are level, and no level one lies on an edge of the graph.
    [[nodiscard]] bool isAccepted() const {
        const auto isOnEdge = [](int slope, int intercept) {
            return slope == 0 && (intercept == 0 || intercept == 10);
        };
        return (slope1 != 0 || slope2 != 0) && !isOnEdge(slope1, intercept1) && !isOnEdge(slope2, intercept2);
    }

    [[nodiscard]] bool isSloping() const { return slope1 != 0 && slope2 != 0; }
};

[[nodiscard]] inline std::string nameOf(const Vaddi1Task& t) {
    const auto function = [](int slope, int intercept) {
        return std::to_string(slope) + "Q+" + std::to_string(intercept);
    };
    return std::string(t.direction == 1 ? "rising " : "falling ") + function(t.slope1, t.intercept1) +
           " and " + function(t.slope2, t.intercept2);
}

/// The draws that give this task.
[[nodiscard]] inline Script scriptOf(const Vaddi1Task& t) {
    const float direction = t.direction == 1 ? 0.1F : 0.9F;
    const int lowest1 = t.direction == 1 ? 0 : 5;
    return {direction, cellOf(t.direction * t.slope1, 6), cellOf(t.intercept1 - lowest1, 6),
            cellOf(t.direction * t.slope2, 6), cellOf(t.intercept2 - 5, 6)};
}

/// Calls `visit` with every task that draws can spell, the rejected ones too.
template <class Visit>
void forEachVaddi1Draw(Visit visit) {
    for (const int direction : {1, -1}) {
        for (int slope1 = 0; slope1 <= 5; ++slope1) {
            for (int intercept1 = 0; intercept1 <= 5; ++intercept1) {
                for (int slope2 = 0; slope2 <= 5; ++slope2) {
                    for (int intercept2 = 5; intercept2 <= 10; ++intercept2) {
                        visit(Vaddi1Task{direction, direction * slope1, intercept1 + (direction == 1 ? 0 : 5),
                                         direction * slope2, intercept2});
                    }
                }
            }
        }
    }
}

}  // namespace tavrune::test
