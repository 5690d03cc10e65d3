#pragma once

#include <array>
#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"

namespace tavrune {

/// A coordinate of a point: Q is the quantity, P the price.
enum class Coordinate { Quantity, Price };

/// Two points A and B in the plane of Q (across) and P (up), and one coordinate of a third point on their
/// line. The other coordinate is asked for.
struct LininterState {
    /// Whole, 1 to 10. The points differ in both coordinates.
    float Qa{};
    float Pa{};
    float Qb{};
    float Pb{};
    /// P = lineSlope * Q + lineIntercept, unrounded. The size of the slope is 0.45 to 2.5.
    float lineSlope{};
    float lineIntercept{};
    /// The coordinate of the third point that is given. The other is asked for.
    Coordinate given = Coordinate::Quantity;
    /// Whole, 1 to 8. Only the given one is drawn; the other keeps its old value.
    float givenQ{};
    float givenP{};
    /// The coordinate asked for, unrounded, less than 16 in size.
    float target{};
};

/// Draws until the line is neither too steep nor too flat, then which coordinate is given, then the given
/// coordinate until the point lies near the graph.
void newExercise(LininterState& state, Draws& draws);

/// Judges the typed coordinate.
[[nodiscard]] Judgement judge(const LininterState& state, const std::vector<double>& typed);

/// Returns the target with two decimals, as the student is shown it. Kept (lininter-negative-halves): a
/// negative half is rounded away from zero, which typed in is wrong.
[[nodiscard]] std::string answerText(const LininterState& state);

/// Return "A : ( 3 ; 4 )" and the same for B.
[[nodiscard]] std::string textOfA(const LininterState& state);
[[nodiscard]] std::string textOfB(const LininterState& state);

/// The task: one letter is given with a number, the other one is asked for.
struct LininterTask {
    const char* givenLetter;
    std::string given;
    const char* askedLetter;
};

[[nodiscard]] LininterTask task(const LininterState& state);

/// The worked solution for the coordinate asked for. The result is computed from the unrounded ratio, so that
/// it can differ in its last decimal from what the shown ratio gives.
struct LininterWorked {
    std::string numerator;
    std::string denominator;
    std::string ratio;
    std::string result;
};

[[nodiscard]] LininterWorked workedSolution(const LininterState& state);

/// A straight stroke in the plane of Q and P.
struct Segment {
    double x1;
    double y1;
    double x2;
    double y2;

    bool operator==(const Segment&) const = default;
};

/// The axes' range, to which the line through A and B is drawn.
inline constexpr float kLeftmostQ = -7;
inline constexpr float kRightmostQ = 15;

/// A cross: the level stroke, then the upright one.
using Cross = std::array<Segment, 2>;

[[nodiscard]] Cross crossAt(double x, double y);

/// Returns a cross at the point that has `typed` as the coordinate asked for.
[[nodiscard]] Cross crossOfTyped(const LininterState& state, double typed);

/// Returns the line through A and B, over the whole width of the graph.
[[nodiscard]] Segment lineThroughPoints(const LininterState& state);

/// Returns the line from the given coordinate to its point, and the one from the answer to the same point.
[[nodiscard]] std::array<Segment, 2> guideLines(const LininterState& state);

/// What the arrowheads are drawn for.
enum class Occasion { Judged, Given };

/// Returns two strokes for the head on the line, then two for the head on the axis.
[[nodiscard]] std::array<Segment, 4> arrowheads(const LininterState& state, Occasion occasion);

}  // namespace tavrune
