#pragma once

#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"
#include "topics/polynomial/polynomial_model.h"

namespace tavrune {

/// One polynomial whose vertex is asked for.
struct ToppState {
    /// Signed. The size of a is 1 to 3, those of b and c are 0 to 10.
    Polynomial polynomial;
    /// What the task shows. In one pattern it is not what `polynomial` says.
    std::string polynomialText;
    /// b² - 4ac
    double discriminant{};
    /// Its coordinates are 15 or less in size.
    Vertex vertex;
};

/// A shape of the polynomial as the task shows it, and the signs that all else works with.
struct ToppPattern {
    Pattern shown;
    Pattern stored;
};

/// Returns a shape. Precondition: `patternCase` is 1 to 12.
[[nodiscard]] const ToppPattern& toppPatternOf(int patternCase);

/// Returns whether both coordinates are 15 or less in size, so that the vertex can be asked for.
[[nodiscard]] bool isWithinReach(const Vertex& vertex);

/// Draws until the vertex is within reach.
void newExercise(ToppState& state, Draws& draws);

/// Judges a typed Q and P.
[[nodiscard]] Judgement judge(const ToppState& state, const std::vector<double>& typed);

/// Return the coordinates with two decimals, as the student is shown them. Kept (topp-negative-halves): a
/// negative half is rounded away from zero, which typed in is wrong.
[[nodiscard]] std::string answerTextOfQ(const ToppState& state);
[[nodiscard]] std::string answerTextOfP(const ToppState& state);

/// The steps of the worked solution. P comes before Q, against the order of the answer boxes.
struct ToppWorked {
    /// "d = (-5)² - 4 · 1 · 6 = 1"
    std::string discriminant;
    /// -d over 4a
    std::string numeratorOfP;
    std::string denominatorOfP;
    /// -b over 2a
    std::string numeratorOfQ;
    std::string denominatorOfQ;
    /// "T: (P;Q) = (-0.25 ; 2.5)"
    std::string result;
};

[[nodiscard]] ToppWorked workedSolution(const ToppState& state);

}  // namespace tavrune
