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
    setPolynomial(s, drawPattern(draws), drawn);
    s.vertex = vertexOf(s.coefficients);
}

RogtJudgement judge(const RogtState& s, const RootAnswer& answer) {
    const Judgement roots = judge(static_cast<const RootTask&>(s), answer);
    const Judgement vertex = solvedIfAllRight(
        {isHalfOpenNear(answer.typed.at(2), s.vertex.q), isHalfOpenNear(answer.typed.at(3), s.vertex.p)});
    RogtJudgement judgement{roots, roots.isSolved, vertex.isSolved};
    judgement.isRight.insert(judgement.isRight.end(), vertex.isRight.begin(), vertex.isRight.end());
    judgement.isSolved = roots.isSolved && vertex.isSolved;
    return judgement;
}

RogtAnswer answerOf(const RogtState& s) {
    RogtAnswer answer{
        .rootOne = "", .rootTwo = "", .vertexQ = rounded(s.vertex.q), .vertexP = rounded(s.vertex.p)};
    if (rootCountOf(s.discriminant) != RootCount::None) {
        answer.rootOne = rounded(s.roots.rootOne);
        answer.rootTwo = rounded(s.roots.rootTwo);
    }
    return answer;
}

}  // namespace tavrune
