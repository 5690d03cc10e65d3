#include "topics/basics/dlinie_exercise.h"

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

/// Without `LineTask::None`, which only the shift makes possible.
constexpr int kLineTasks = 5;
constexpr double kShift = 0.001;

/// -10 to 9.
float drawCoordinate(Draws& draws) { return Int(draws.Rnd() * 20 - 10); }

void drawNumbers(DlinieState& s, Draws& draws, ZeroSlope zeroSlope) {
    do {
        s.x1 = drawCoordinate(draws);
        s.x2 = drawCoordinate(draws);
        s.y1 = drawCoordinate(draws);
        s.y2 = drawCoordinate(draws);
        s.slopeGiven = Int(draws.Rnd() * 10 - 5);
        s.yCross = drawCoordinate(draws);
        s.xCross = drawCoordinate(draws);
    } while (s.x1 == s.x2 || s.xCross == 0 || (s.slopeGiven == 0 && zeroSlope == ZeroSlope::Rejected));
}

/// Slope and intercept as computed: quotients of drawn numbers are singles, and the intercept is made from
/// the slope before it is rounded.
void solve(DlinieState& s) {
    switch (s.taskType) {
        case LineTask::None:
            break;
        case LineTask::TwoPoints: {
            const float slope = (s.y1 - s.y2) / (s.x1 - s.x2);
            s.slope = slope;
            s.intercept = -slope * s.x1 + s.y1;
            break;
        }
        case LineTask::SlopeAndPoint:
            s.slope = s.slopeGiven;
            s.intercept = -s.slopeGiven * s.x1 + s.y1;
            break;
        case LineTask::SlopeAndYCross:
            s.slope = s.slopeGiven;
            s.intercept = s.yCross;
            break;
        case LineTask::SlopeAndXCross:
            s.slope = s.slopeGiven;
            s.intercept = -s.slopeGiven * s.xCross;
            break;
        case LineTask::BothCrosses:
            s.slope = -s.yCross / s.xCross;
            s.intercept = s.yCross;
            break;
    }
}

std::string pointText(float x, float y) { return "(" + NumberText(x) + "," + NumberText(y) + ")"; }

std::string quotientText(float numerator, float denominator) {
    return NumberText(numerator) + "/" + NumberText(denominator);
}

/// The first point in the equation of a line whose slope is written as `slope`.
DlinieInterceptStep insertFirstPoint(const DlinieState& s, const std::string& slope, const char* tail) {
    const std::string y = NumberText(s.y1);
    const std::string product = slope + "*" + bracketed(s.x1);
    return {y + " = " + product + tail, "b = " + y + " - " + product + " = " + NumberText(s.intercept)};
}

}  // namespace

void newExercise(DlinieState& state, Draws& draws, ZeroSlope zeroSlope) {
    draws.Randomize();
    state.taskType = static_cast<LineTask>(Int(draws.Rnd() * kLineTasks - kShift) + 1);
    drawNumbers(state, draws, zeroSlope);
    solve(state);
    state.slope = RoundSigned2(state.slope);
    state.intercept = RoundSigned2(state.intercept);
}

Judgement judge(const DlinieState& state, const std::vector<double>& typed) {
    return solvedIfAllRight({isExactly(typed.at(0), state.slope), isExactly(typed.at(1), state.intercept)});
}

std::string interceptAnswer(const DlinieState& state) {
    return (state.intercept >= 0 ? "+" : "") + NumberText(state.intercept);
}

std::optional<DlinieTask> taskTexts(const DlinieState& s) {
    switch (s.taskType) {
        case LineTask::TwoPoints:
            return DlinieTask{"Bestem forskriften for den rette linie gennem følgende to punkter:",
                              "1. (X,Y) = " + pointText(s.x1, s.y1), "2. (X,Y) = " + pointText(s.x2, s.y2)};
        case LineTask::SlopeAndPoint:
            return DlinieTask{
                "Du kender en ret linies hældningskoeficient og et punkt på linien. Bestem "
                "liniens forskrift.",
                "Hældningskoefficienten(a) = " + NumberText(s.slopeGiven),
                "(X,Y) = " + pointText(s.x1, s.y1)};
        case LineTask::SlopeAndYCross:
            return DlinieTask{
                "Du kender en ret linies hældningskoefficient og liniens skæring med Y-aksen. "
                "Bestem liniens forskrift.",
                "Hældningskoefficient(a) = " + NumberText(s.slopeGiven), "Y = " + NumberText(s.yCross)};
        case LineTask::SlopeAndXCross:
            return DlinieTask{
                "Du kender en ret linies hældningskoefficient og liniens skæring med X-aksen. "
                "Bestem liniens forskrift.",
                "Hældningskoefficient(a) = " + NumberText(s.slopeGiven), "X = " + NumberText(s.xCross)};
        case LineTask::BothCrosses:
            return DlinieTask{
                "Du kender en ret linies skæring med X-aksen og Y-aksen. Bestem liniens forskrift.",
                "X = " + NumberText(s.xCross), "Y = " + NumberText(s.yCross)};
        case LineTask::None:
            break;
    }
    return {};
}

DlinieSlopeStep slopeBetweenPoints(const DlinieState& s) {
    return {NumberText(s.y1) + " - " + bracketed(s.y2), NumberText(s.x1) + " - " + bracketed(s.x2),
            "= " + quotientText(s.y1 - s.y2, s.x1 - s.x2) + " = " + NumberText(s.slope)};
}

DlinieSlopeStep slopeBetweenCrosses(const DlinieState& s) {
    return {NumberText(s.yCross) + " - 0", "0 - " + bracketed(s.xCross),
            "= -(" + quotientText(s.yCross, s.xCross) + ") = " + NumberText(s.slope)};
}

DlinieInterceptStep interceptFromFirstPoint(const DlinieState& s) {
    const float dy = s.y1 - s.y2;
    const float dx = s.x1 - s.x2;
    const float hundredth = 100 * dy / dx;
    const bool hasTwoDecimals = hundredth == Int(hundredth);
    return insertFirstPoint(s, hasTwoDecimals ? bracketed(s.slope) : "(" + quotientText(dy, dx) + ")",
                            " + b   => ");
}

DlinieInterceptStep interceptFromPoint(const DlinieState& s) {
    return insertFirstPoint(s, bracketed(s.slope), " + b =>");
}

DlinieCrossStep interceptFromXCross(const DlinieState& s) {
    const std::string product = NumberText(s.slopeGiven) + "*" + bracketed(s.xCross);
    return {"Y = " + product + " + b   =>", "0 = " + product + " + b   =>",
            "b = -" + bracketed(s.slopeGiven) + "*" + bracketed(s.xCross), "= " + NumberText(s.intercept)};
}

}  // namespace tavrune
