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

RogtJudgement judge(const RogtState& s, const RootAnswer& answer) {
    const Judgement roots = judge(s.discriminant, s.roots, answer);
    const Judgement vertex = solvedIfAllRight(
        {isHalfOpenNear(answer.typed.at(2), s.vertex.q), isHalfOpenNear(answer.typed.at(3), s.vertex.p)});
    RogtJudgement judgement{roots, roots.isSolved, vertex.isSolved};
    judgement.isRight.insert(judgement.isRight.end(), vertex.isRight.begin(), vertex.isRight.end());
    judgement.isSolved = roots.isSolved && vertex.isSolved;
    return judgement;
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
