#pragma once

#include <optional>
#include <string>

#include "numeric/draws.h"
#include "topics/polynomial/polynomial_model.h"

namespace tavrune {

/// One polynomial, whose roots and vertex are asked for together.
struct RogtState {
    /// With the signs that the task shows.
    Polynomial coefficients;
    std::string polynomialText;
    double discriminant = 0;
    /// Written only where the discriminant is not below 0, and read only there.
    Roots roots;
    Vertex vertex;
};

/// Draws once: how many roots there are is left to chance.
void newExercise(RogtState& s, Draws& draws);

[[nodiscard]] bool rootsAreRight(const RogtState& s, std::optional<RootCount> chosen,
                                 const TypedRoots& typed);

/// Which coordinates of the typed vertex are right.
struct VertexMatch {
    bool q = false;
    bool p = false;

    [[nodiscard]] bool isRight() const { return q && p; }
    bool operator==(const VertexMatch&) const = default;
};

[[nodiscard]] VertexMatch matchVertex(const RogtState& s, double q, double p);

/// What "&Giv svaret" writes, to 2 decimals; a double root is in both, and without roots they are empty.
///
/// Kept (rogt-negative-halves): a negative half such as -0.125 is shown as -0.13, which typed in would be
/// wrong, since the tolerance is open below.
struct RogtAnswer {
    std::string root1;
    std::string root2;
    std::string vertexQ;
    std::string vertexP;
};

[[nodiscard]] RogtAnswer answerOf(const RogtState& s);

}  // namespace tavrune
