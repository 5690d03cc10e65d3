#include "topics/polynomial/polynomial_model.h"

#include <array>
#include <cmath>

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

constexpr int kLargestSize = 5;

constexpr Term M = Term::Minus;
constexpr Term O = Term::Absent;
constexpr Term P = Term::Plus;

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

double valueAt(const Polynomial& p, double q) { return p.a * power(q, 2) + p.b * q + p.c; }

double discriminantOf(const Polynomial& p) { return power(p.b, 2) - 4 * p.a * p.c; }

Roots rootsOf(const Polynomial& p) {
    const double root = std::sqrt(discriminantOf(p));
    return {(-p.b + root) / (2 * p.a), (-p.b - root) / (2 * p.a)};
}

Vertex vertexOf(const Polynomial& p) { return {-p.b / (2 * p.a), -discriminantOf(p) / (4 * p.a)}; }

RootCount rootCountOf(double discriminant) {
    if (discriminant > 0) {
        return RootCount::Two;
    }
    return discriminant == 0 ? RootCount::Double : RootCount::None;
}

const char* nameOfSecondRoot(RootCount count) { return count == RootCount::Double ? "dobbelt rod" : "rod 2"; }

bool rootsAreRight(double discriminant, const Roots& roots, std::optional<RootCount> chosen,
                   const TypedRoots& typed) {
    if (chosen != rootCountOf(discriminant)) {
        return false;
    }
    if (chosen == RootCount::None) {
        return true;
    }
    if (chosen == RootCount::Double) {
        return isHalfOpenNear(typed.second, roots.root1);
    }
    const bool inOrder =
        isHalfOpenNear(typed.first, roots.root1) && isHalfOpenNear(typed.second, roots.root2);
    const bool swapped =
        isHalfOpenNear(typed.first, roots.root2) && isHalfOpenNear(typed.second, roots.root1);
    return inOrder || swapped;
}

RootMarks rootMarks(double discriminant, const Roots& roots, const TypedRoots& typed) {
    constexpr RootMarks kFirst{.first = true, .second = false};
    constexpr RootMarks kSecond{.first = false, .second = true};
    constexpr RootMarks kBoth{.first = true, .second = true};
    if (discriminant <= 0) {
        return kBoth;
    }
    if (isHalfOpenNear(typed.first, roots.root1)) {
        return kSecond;
    }
    if (isHalfOpenNear(typed.second, roots.root1)) {
        return kFirst;
    }
    if (isHalfOpenNear(typed.first, roots.root2)) {
        return kSecond;
    }
    if (isHalfOpenNear(typed.second, roots.root2)) {
        return kFirst;
    }
    return kBoth;
}

}  // namespace tavrune
