#pragma once

#include <string>

#include "numeric/draws.h"
#include "numeric/judgement.h"
#include "numeric/term.h"

namespace tavrune {

/// P = aQ² + bQ + c. Drawn numbers: whole, and singles.
struct Polynomial {
    float a = 0;
    float b = 0;
    float c = 0;
};

struct Pattern {
    Term a;
    Term b;
    Term c;
};

/// The eighteen shapes of a polynomial, `patternCase` 1 to 18.
[[nodiscard]] const Pattern& patternOf(int patternCase);

/// Draws three sizes, 1 to 5 each: a, b and c.
[[nodiscard]] Polynomial drawSizes(Draws& draws);

/// Draws one of the eighteen shapes.
[[nodiscard]] const Pattern& drawPattern(Draws& draws);

/// The drawn sizes with the signs of the pattern; absent terms are 0.
[[nodiscard]] Polynomial withSigns(const Pattern& pattern, const Polynomial& drawn);

/// The polynomial as the task shows it: no blanks, signs from the pattern, so "+-" never stands there, absent
/// terms left out, a coefficient 1 written out. "-1Q²+3Q-2"
[[nodiscard]] std::string polynomialText(const Pattern& pattern, const Polynomial& drawn);

/// P at Q. The square is a double, and so is all that it is added to.
[[nodiscard]] double valueAt(const Polynomial& p, double q);

/// b² - 4ac, a whole number.
[[nodiscard]] double discriminantOf(const Polynomial& p);

/// Unrounded, the larger numerator first. Only where the discriminant is not below 0.
struct Roots {
    double root1 = 0;
    double root2 = 0;
};

[[nodiscard]] Roots rootsOf(const Polynomial& p);

/// Unrounded: -b/(2a) is a quotient of singles, -d/(4a) one of a double.
struct Vertex {
    float q = 0;
    double p = 0;
};

[[nodiscard]] Vertex vertexOf(const Polynomial& p);

/// How many roots the student says there are.
enum class RootCount { Two, Double, None };

/// The count that a discriminant stands for.
[[nodiscard]] RootCount rootCountOf(double discriminant);

/// What screen readers call the second root box: it takes the second of two roots, or the double one.
[[nodiscard]] const char* nameOfSecondRoot(RootCount count);

/// The values of the two root boxes; a double root is typed in the second. Further ones may follow.
using RootAnswer = ChosenAnswer<RootCount>;

/// Judges the chosen count and what is typed in the two root boxes. It is solved if the count is right and
/// the boxes that it asks for hold the roots, in either order; not as long as nothing is chosen. Both boxes
/// are right then. Otherwise, whatever is chosen, neither is for fewer than two roots; for two, the first box
/// that holds a root, in a fixed order of tests, is right and the other one wrong. The same right root typed
/// twice leaves the second wrong.
[[nodiscard]] Judgement judge(double discriminant, const Roots& roots, const RootAnswer& answer);

}  // namespace tavrune
