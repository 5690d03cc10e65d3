#pragma once

#include <string>

#include "numeric/draws.h"
#include "numeric/judgement.h"
#include "numeric/term.h"

namespace tavrune {

/// P = aQ² + bQ + c. Drawn numbers: whole, and singles.
struct Polynomial {
    float a{};
    float b{};
    float c{};
};

/// Returns one of the eighteen shapes of a polynomial. Precondition: `patternCase` is 1 to 18.
[[nodiscard]] const Pattern& patternOf(int patternCase);

/// Draws the sizes of a, b and c, 1 to 5 each.
[[nodiscard]] Polynomial drawSizes(Draws& draws);

/// Draws one of the eighteen shapes.
[[nodiscard]] const Pattern& drawPattern(Draws& draws);

/// Returns the drawn sizes with the signs of the pattern, 0 for absent terms.
[[nodiscard]] Polynomial withSigns(const Pattern& pattern, const Polynomial& drawn);

/// Returns the polynomial as the task shows it: without blanks and absent terms, with signs from the pattern,
/// so that "+-" never stands there, and with coefficients of 1: "-1Q²+3Q-2".
[[nodiscard]] std::string polynomialText(const Pattern& pattern, const Polynomial& drawn);

/// Returns how many of the coefficients are below 0.
[[nodiscard]] int negativesOf(const Polynomial& p);

/// Returns P at Q. The square is a double, and so is all that it is added to.
[[nodiscard]] double valueAt(const Polynomial& p, double q);

/// Returns b² - 4ac, a whole number.
[[nodiscard]] double discriminantOf(const Polynomial& p);

/// Unrounded, the one with the larger numerator first.
struct Roots {
    double rootOne{};
    double rootTwo{};
};

/// Returns both roots, a double one twice. Precondition: the discriminant is not below 0.
[[nodiscard]] Roots rootsOf(const Polynomial& p);

/// Unrounded: -b/(2a) is a quotient of singles, -d/(4a) one of a double.
struct Vertex {
    float q{};
    double p{};
};

[[nodiscard]] Vertex vertexOf(const Polynomial& p);

/// A polynomial whose roots are asked for.
struct RootTask {
    /// With the signs that the task shows.
    Polynomial coefficients;
    /// "5Q²-3Q+1"
    std::string polynomialText;
    double discriminant{};
    /// Written only where the polynomial has roots, and read only there.
    Roots roots;
};

/// Sets a polynomial, and finds its roots.
void setPolynomial(RootTask& task, const Pattern& pattern, const Polynomial& drawn);

/// How many roots there are.
enum class RootCount { Two, Double, None };

/// Returns how many roots a polynomial of this discriminant has.
[[nodiscard]] RootCount rootCountOf(double discriminant);

/// Returns what screen readers call the second root box: it takes the second of two roots, or the double one.
[[nodiscard]] const char* nameOfSecondRoot(RootCount count);

/// The chosen count and the values of the two root boxes, of which a double root is typed in the second.
/// Other values may follow.
using RootAnswer = ChosenAnswer<RootCount>;

/// Judges the chosen count and what is typed in the two root boxes. It is solved if the count is right and
/// the boxes that it asks for hold the roots, in either order; not as long as nothing is chosen. Then both
/// boxes are right. Otherwise, whatever is chosen, both are wrong if the polynomial has fewer than two roots.
/// If it has two, the first box in which a root is found is right and the other one wrong, even if it holds
/// the same root.
[[nodiscard]] Judgement judge(const RootTask& task, const RootAnswer& answer);

}  // namespace tavrune
