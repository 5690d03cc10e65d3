#include "topics/polynomial/rogt_exercise.h"

#include "numeric/judging.h"
#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

std::string rounded(double x) { return NumberText(RoundSigned2(x)); }

}  // namespace

void newExercise(RogtState& s, Draws& draws) {
    draws.Randomize();
    const Polynomial drawn = drawSizes(draws);
    const Pattern& pattern = drawPattern(draws);
    s.coefficients = withSigns(pattern, drawn);
    s.polynomialText = polynomialText(pattern, drawn);
    s.discriminant = discriminantOf(s.coefficients);
    if (s.discriminant >= 0) {
        s.roots = rootsOf(s.coefficients);
    }
    s.vertex = vertexOf(s.coefficients);
}

bool rootsAreRight(const RogtState& s, std::optional<RootCount> chosen, const TypedRoots& typed) {
    return rootsAreRight(s.discriminant, s.roots, chosen, typed);
}

VertexMatch matchVertex(const RogtState& s, double q, double p) {
    return {.q = isHalfOpenNear(q, s.vertex.q), .p = isHalfOpenNear(p, s.vertex.p)};
}

RogtAnswer answerOf(const RogtState& s) {
    RogtAnswer answer{
        .root1 = "", .root2 = "", .vertexQ = rounded(s.vertex.q), .vertexP = rounded(s.vertex.p)};
    if (rootCountOf(s.discriminant) != RootCount::None) {
        answer.root1 = rounded(s.roots.root1);
        answer.root2 = rounded(s.roots.root2);
    }
    return answer;
}

}  // namespace tavrune
