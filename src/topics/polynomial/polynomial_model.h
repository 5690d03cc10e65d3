#pragma once

#include <optional>
#include <string>

#include "numeric/draws.h"
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

/// What stands in the two root boxes; a double root is typed in the second.
struct TypedRoots {
    double first = 0;
    double second = 0;
};

/// True if the chosen count is the right one and the boxes that it asks for hold the roots, in either order.
/// Nothing is right as long as nothing is chosen.
[[nodiscard]] bool rootsAreRight(double discriminant, const Roots& roots, std::optional<RootCount> chosen,
                                 const TypedRoots& typed);

/// Which root boxes turn red after a wrong answer. What is chosen does not matter.
struct RootMarks {
    bool first = false;
    bool second = false;

    bool operator==(const RootMarks&) const = default;
};

/// Both for fewer than two roots. Otherwise the first box that holds a root, in a fixed order of tests,
/// leaves the other one red; both, if none does. The same right root typed twice leaves the second red.
[[nodiscard]] RootMarks rootMarks(double discriminant, const Roots& roots, const TypedRoots& typed);

}  // namespace tavrune
