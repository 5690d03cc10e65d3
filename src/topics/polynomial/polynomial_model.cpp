#include "topics/polynomial/polynomial_model.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

constexpr int kLargestSize = 5;

using namespace signs;

constexpr std::array kPatterns{
    Pattern{P, P, P}, Pattern{P, O, O}, Pattern{P, P, O}, Pattern{P, O, P}, Pattern{P, P, M},
    Pattern{P, M, P}, Pattern{P, O, M}, Pattern{P, M, O}, Pattern{P, M, M}, Pattern{M, P, P},
    Pattern{M, P, O}, Pattern{M, P, M}, Pattern{M, O, P}, Pattern{M, O, M}, Pattern{M, O, O},
    Pattern{M, M, P}, Pattern{M, M, O}, Pattern{M, M, M},
};
constexpr int kPatternCount = kPatterns.size();

std::string laterTerm(Term term, float size, const char* power) {
    if (term == Term::Absent) {
        return "";
    }
    return (term == Term::Minus ? "-" : "+") + NumberText(size) + power;
}

/// Returns whether the count is right and the boxes that it asks for hold the roots.
bool areRight(const RootTask& task, std::optional<RootCount> chosen, double first, double second) {
    const Roots& roots = task.roots;
    if (chosen != rootCountOf(task.discriminant)) {
        return false;
    }
    if (chosen == RootCount::None) {
        return true;
    }
    if (chosen == RootCount::Double) {
        return isHalfOpenNear(second, roots.rootOne);
    }
    const bool inOrder = isHalfOpenNear(first, roots.rootOne) && isHalfOpenNear(second, roots.rootTwo);
    const bool swapped = isHalfOpenNear(first, roots.rootTwo) && isHalfOpenNear(second, roots.rootOne);
    return inOrder || swapped;
}

/// Returns the number of the box that holds a root, or 0. The first root is looked for in both boxes, then
/// the second one.
int boxWithRoot(const Roots& roots, double first, double second) {
    for (const double root : {roots.rootOne, roots.rootTwo}) {
        if (isHalfOpenNear(first, root)) {
            return 1;
        }
        if (isHalfOpenNear(second, root)) {
            return 2;
        }
    }
    return 0;
}

}  // namespace

const Pattern& patternOf(int patternCase) { return kPatterns.at(static_cast<std::size_t>(patternCase - 1)); }

Polynomial drawSizes(Draws& draws) {
    Polynomial drawn;
    for (float* const size : {&drawn.a, &drawn.b, &drawn.c}) {
        *size = Int(draws.Rnd() * kLargestSize) + 1;
    }
    return drawn;
}

const Pattern& drawPattern(Draws& draws) {
    return patternOf(static_cast<int>(Int(draws.Rnd() * kPatternCount)) + 1);
}

Polynomial withSigns(const Pattern& pattern, const Polynomial& drawn) {
    return {withSign(pattern.a, drawn.a), withSign(pattern.b, drawn.b), withSign(pattern.c, drawn.c)};
}

std::string polynomialText(const Pattern& pattern, const Polynomial& drawn) {
    return NumberText(withSign(pattern.a, drawn.a)) + "Q²" + laterTerm(pattern.b, drawn.b, "Q") +
           laterTerm(pattern.c, drawn.c, "");
}

int negativesOf(const Polynomial& p) {
    return static_cast<int>(
        std::ranges::count_if(std::array{p.a, p.b, p.c}, [](float coefficient) { return coefficient < 0; }));
}

double valueAt(const Polynomial& p, double q) { return p.a * power(q, 2) + p.b * q + p.c; }

double discriminantOf(const Polynomial& p) { return power(p.b, 2) - 4 * p.a * p.c; }

Roots rootsOf(const Polynomial& p) {
    const double root = std::sqrt(discriminantOf(p));
    return {(-p.b + root) / (2 * p.a), (-p.b - root) / (2 * p.a)};
}

Vertex vertexOf(const Polynomial& p) { return {-p.b / (2 * p.a), -discriminantOf(p) / (4 * p.a)}; }

void setPolynomial(RootTask& task, const Pattern& pattern, const Polynomial& drawn) {
    task.coefficients = withSigns(pattern, drawn);
    task.polynomialText = polynomialText(pattern, drawn);
    task.discriminant = discriminantOf(task.coefficients);
    if (task.discriminant >= 0) {
        task.roots = rootsOf(task.coefficients);
    }
}

RootCount rootCountOf(double discriminant) {
    if (discriminant > 0) {
        return RootCount::Two;
    }
    return discriminant == 0 ? RootCount::Double : RootCount::None;
}

const char* nameOfSecondRoot(RootCount count) { return count == RootCount::Double ? "dobbelt rod" : "rod 2"; }

Judgement judge(const RootTask& task, const RootAnswer& answer) {
    const double first = answer.typed.at(0);
    const double second = answer.typed.at(1);
    if (areRight(task, answer.chosen, first, second)) {
        return solvedIfAllRight({true, true});
    }
    const int right = task.discriminant > 0 ? boxWithRoot(task.roots, first, second) : 0;
    return {.isRight = {right == 1, right == 2}, .isSolved = false};
}

}  // namespace tavrune
