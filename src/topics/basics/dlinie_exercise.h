#pragma once

#include <optional>
#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"

namespace tavrune {

/// What is known of the line.
enum class LineTask {
    /// Kept (dlinie-no-kind): one draw in 5000 gives it, and nothing new is asked then.
    None = 0,
    TwoPoints,
    SlopeAndPoint,
    SlopeAndYCross,
    SlopeAndXCross,
    BothCrosses,
};

/// One task on the straight line Y = slope * X + intercept.
struct DlinieState {
    LineTask taskType = LineTask::None;
    float x1{};
    float y1{};
    float x2{};
    float y2{};
    float slopeGiven{};
    float xCross{};
    float yCross{};
    /// The answer to 2 decimals. It outlives the exercise: a `LineTask::None` is judged by the last one.
    double slope{};
    double intercept{};
};

/// Whether the drawn slope may be 0.
enum class ZeroSlope { Rejected, Allowed };

/// Draws the kind of task once, then the numbers until x1 and x2 differ, the line crosses the X axis beside 0
/// and, unless allowed, the slope is not 0.
void newExercise(DlinieState& state, Draws& draws, ZeroSlope zeroSlope = ZeroSlope::Rejected);

/// Judges a typed slope and intercept: right are the stored ones, to the last decimal.
[[nodiscard]] Judgement judge(const DlinieState& state, const std::vector<double>& typed);

/// Returns the intercept as the answer has it after "X": "+3", "+0", "-3".
[[nodiscard]] std::string interceptAnswer(const DlinieState& state);

/// What is asked, and the two facts.
struct DlinieTask {
    std::string sentence;
    std::string firstFact;
    std::string secondFact;
};

/// Returns the texts of the task, or nothing for a `LineTask::None`.
[[nodiscard]] std::optional<DlinieTask> taskTexts(const DlinieState& state);

/// "a = numerator/denominator", and what it comes to.
struct DlinieSlopeStep {
    std::string numerator;
    std::string denominator;
    std::string result;
};

/// Returns the step that finds the slope between the two points.
[[nodiscard]] DlinieSlopeStep slopeBetweenPoints(const DlinieState& state);

/// Returns the step that finds the slope between the points on the axes.
[[nodiscard]] DlinieSlopeStep slopeBetweenCrosses(const DlinieState& state);

/// A point put into the equation of the line, and the equation solved for b.
struct DlinieInterceptStep {
    std::string inserted;
    std::string solved;
};

/// Returns the step with the first of the two points. A slope of more than two decimals is written as a
/// fraction.
[[nodiscard]] DlinieInterceptStep interceptFromFirstPoint(const DlinieState& state);

/// Returns the step with the one point that is known, where the slope is known too.
[[nodiscard]] DlinieInterceptStep interceptFromPoint(const DlinieState& state);

/// The point on the X axis put into the equation, and the equation solved for b.
struct DlinieCrossStep {
    std::string inserted;
    std::string withZero;
    std::string solved;
    std::string result;
};

[[nodiscard]] DlinieCrossStep interceptFromXCross(const DlinieState& state);

}  // namespace tavrune
