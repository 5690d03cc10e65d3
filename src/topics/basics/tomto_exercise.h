#pragma once

#include <array>
#include <optional>
#include <string>

#include "numeric/draws.h"
#include "numeric/judgement.h"

namespace tavrune {

/// How two lines lie to each other.
enum class Relation { Coinciding = 0, Parallel = 1, Crossing = 2 };

/// How the lines are written: P = aQ + b, or cP + aQ + b = 0. In the order in which it is drawn.
enum class LineForm { Explicit, Implicit };

/// The two upper ends that the axes can have.
inline constexpr float kShortAxis = 10;
inline constexpr float kLongAxis = 100;

/// One task on two straight lines in P and Q, which cross in the first quadrant if they cross at all.
struct TomtoState {
    /// Nothing until there is an exercise; lines count as explicit then.
    std::optional<LineForm> form;
    /// Whole numbers; only the implicit form uses the c's.
    float a1{};
    float b1{};
    float c1{};
    float a2{};
    float b2{};
    float c2{};
    Relation relation = Relation::Crossing;
    /// The crossing, to 2 decimals. Lines that do not cross leave both as an earlier exercise or try has set
    /// them, and an old value can make the generator draw once more.
    double solutionQ{};
    double solutionP{};
    /// The upper end of both axes, short or long; 0 until the exercise is judged or answered.
    float graphMax{};
};

/// Draws the exercise that a form opens with.
void firstExercise(TomtoState& state, Draws& draws);

/// Draws every later exercise, with other numbers in place of zeros.
void newExercise(TomtoState& state, Draws& draws);

/// Returns the two lines as the task writes them.
[[nodiscard]] std::array<std::string, 2> lineTexts(const TomtoState& state);

/// Judges the chosen relation with a typed Q and P. It is solved if the relation is right and, for crossing
/// lines, both numbers are the rounded coordinates; not as long as nothing is chosen. The numbers are right
/// by themselves, whatever is chosen.
[[nodiscard]] Judgement judge(const TomtoState& state, const ChosenAnswer<Relation>& answer);

/// Sets an upper end of the axes with which the crossing is on the graph.
void setRange(TomtoState& state);

/// The heights of a line at Q = 0 and at Q = graphMax.
struct GraphLine {
    float atZero;
    float atMax;
};

[[nodiscard]] std::array<GraphLine, 2> graphLines(const TomtoState& state);

/// Returns whether the slopes differ, so that there is a derivation to show.
[[nodiscard]] bool hasDerivation(const TomtoState& state);

/// The crossing worked out for lines P = aQ + b, a step each.
struct ExplicitWorked {
    std::string equated;
    std::string collected;
    std::string q;
    std::string p;
};

/// Precondition: a1 != a2.
[[nodiscard]] ExplicitWorked workedExplicit(const TomtoState& state);

/// The crossing worked out for lines cP + aQ + b = 0: Q as a fraction and computed, then P from line 1.
struct ImplicitWorked {
    std::string numerator;
    std::string denominator;
    std::string q;
    std::string inserted;
    std::string p;
};

/// Precondition: a2*c1 != a1*c2.
[[nodiscard]] ImplicitWorked workedImplicit(const TomtoState& state);

}  // namespace tavrune
