#pragma once

#include <string>

#include "numeric/draws.h"
#include "numeric/judgement.h"
#include "topics/polynomial/polynomial_model.h"

namespace tavrune {

/// One polynomial, whose roots and vertex are asked for together.
struct RogtState : RootTask {
    Vertex vertex;
};

/// Draws three sizes and one of the eighteen patterns. Nothing is drawn again, whatever the number of roots.
void newExercise(RogtState& s, Draws& draws);

/// Solved if both parts of the answer are right. Right roots leave both of their boxes right.
struct RogtJudgement : Judgement {
    bool rootsAreRight{};
    bool vertexIsRight{};
};

/// Judges the chosen count with what is typed for both roots, and for Q and P of the vertex.
[[nodiscard]] RogtJudgement judge(const RogtState& s, const RootAnswer& answer);

/// What "&Giv svaret" writes, to 2 decimals. A double root stands in both texts; without roots they are
/// empty.
///
/// Kept (rogt-negative-halves): a negative half such as -0.125 is shown as -0.13, which typed in would be
/// wrong, since the tolerance is open below.
struct RogtAnswer {
    std::string rootOne;
    std::string rootTwo;
    std::string vertexQ;
    std::string vertexP;
};

[[nodiscard]] RogtAnswer answerOf(const RogtState& s);

}  // namespace tavrune
