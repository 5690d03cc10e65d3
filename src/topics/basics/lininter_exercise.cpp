#include "topics/basics/lininter_exercise.h"

#include <cmath>

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

/// Half the width of a cross, and the length of an arrowhead's strokes along each axis.
constexpr double kReach = 0.35;
constexpr float kFarthestTarget = 16;
constexpr double kSteepest = 2.5;
constexpr double kFlattest = 0.45;

void drawPoints(LininterState& s, Draws& draws) {
    do {
        draws.Randomize();
        for (float* const coordinate : {&s.Qa, &s.Pa, &s.Qb, &s.Pb}) {
            *coordinate = Int(draws.Rnd() * 10) + 1;
        }
    } while (s.Qa == s.Qb || s.Pa == s.Pb);
}

void drawLine(LininterState& s, Draws& draws) {
    do {
        drawPoints(s, draws);
        s.lineSlope = (s.Pa - s.Pb) / (s.Qa - s.Qb);
        s.lineIntercept = -s.lineSlope * s.Qa + s.Pa;
    } while (std::abs(s.lineSlope) > kSteepest || std::abs(s.lineSlope) < kFlattest);
}

bool isQGiven(const LininterState& s) { return s.given == Coordinate::Quantity; }

void drawGivenQ(LininterState& s, Draws& draws) {
    do {
        s.givenQ = Int(draws.Rnd() * 8) + 1;
        s.target = s.lineSlope * s.givenQ + s.lineIntercept;
    } while (std::abs(s.target) >= kFarthestTarget);
}

void drawGivenP(LininterState& s, Draws& draws) {
    do {
        s.givenP = Int(draws.Rnd() * 8) + 1;
        s.target = (s.givenP - s.lineIntercept) / s.lineSlope;
    } while (std::abs(s.target) >= kFarthestTarget);
}

float lineAt(const LininterState& s, float q) { return s.lineSlope * q + s.lineIntercept; }

std::string pointText(const char* name, float q, float p) {
    return std::string(name) + " : ( " + NumberText(q) + " ; " + NumberText(p) + " )";
}

std::string difference(float from, float to) { return NumberText(to) + " - " + NumberText(from); }

/// "4 - ( 3 - 8 )·(-0.67) = 7.33", with a coordinate of A, the way to the given point, and the ratio.
std::string stepsText(float start, float from, float given, double ratio, double result) {
    return NumberText(start) + " - ( " + NumberText(from) + " - " + NumberText(given) + " )·" +
           bracketed(ratio) + " = " + NumberText(result);
}

/// The two ways along which the strokes of an arrowhead run from its tip.
struct Barbs {
    int x1, y1, x2, y2;
};

// By where the head points.
constexpr Barbs kUp{-1, -1, 1, -1};
constexpr Barbs kDown{-1, 1, 1, 1};
constexpr Barbs kLeft{1, 1, 1, -1};
constexpr Barbs kRight{-1, 1, -1, -1};

struct Point {
    double x, y;
};

/// A barb's end lies beside `base`, which may miss the tip by the last digit of a single.
Segment barb(Point tip, Point base, int x, int y) {
    return {tip.x, tip.y, base.x + x * kReach, base.y + y * kReach};
}

}  // namespace

void newExercise(LininterState& state, Draws& draws) {
    drawLine(state, draws);
    draws.Randomize();
    state.given = draws.Rnd() < 0.5 ? Coordinate::Quantity : Coordinate::Price;
    if (isQGiven(state)) {
        drawGivenQ(state, draws);
    } else {
        drawGivenP(state, draws);
    }
}

Judgement judge(const LininterState& state, const std::vector<double>& typed) {
    return solvedIfAllRight({isHalfOpenNear(typed.at(0), state.target)});
}

std::string answerText(const LininterState& state) { return NumberText(RoundSigned2(state.target)); }

std::string textOfA(const LininterState& state) { return pointText("A", state.Qa, state.Pa); }

std::string textOfB(const LininterState& state) { return pointText("B", state.Qb, state.Pb); }

LininterTask task(const LininterState& state) {
    if (isQGiven(state)) {
        return {"Q", NumberText(state.givenQ), "P"};
    }
    return {"P", NumberText(state.givenP), "Q"};
}

LininterWorked workedSolution(const LininterState& s) {
    const std::string changeOfP = difference(s.Pa, s.Pb);
    const std::string changeOfQ = difference(s.Qa, s.Qb);
    if (isQGiven(s)) {
        const float ratio = (s.Pb - s.Pa) / (s.Qb - s.Qa);
        const double shown = RoundSigned2(ratio);
        const double result = RoundSigned2(s.Pa - (s.Qa - s.givenQ) * ratio);
        return {changeOfP, changeOfQ, " = " + NumberText(shown),
                "P=" + stepsText(s.Pa, s.Qa, s.givenQ, shown, result)};
    }
    const float ratio = (s.Qb - s.Qa) / (s.Pb - s.Pa);
    const double shown = RoundSigned2(ratio);
    const double result = RoundSigned2(s.Qa - (s.Pa - s.givenP) * ratio);
    return {changeOfQ, changeOfP, " = " + NumberText(shown),
            "Q = " + stepsText(s.Qa, s.Pa, s.givenP, shown, result)};
}

Cross crossAt(double x, double y) {
    return {Segment{x - kReach, y, x + kReach, y}, Segment{x, y - kReach, x, y + kReach}};
}

Cross crossOfTyped(const LininterState& state, double typed) {
    return isQGiven(state) ? crossAt(state.givenQ, typed) : crossAt(typed, state.givenP);
}

Segment lineThroughPoints(const LininterState& state) {
    return {kLeftmostQ, lineAt(state, kLeftmostQ), kRightmostQ, lineAt(state, kRightmostQ)};
}

std::array<Segment, 2> guideLines(const LininterState& s) {
    if (isQGiven(s)) {
        const float y = lineAt(s, s.givenQ);
        return {Segment{s.givenQ, 0, s.givenQ, y}, Segment{0, s.target, s.givenQ, y}};
    }
    const float y = lineAt(s, s.target);
    return {Segment{0, s.givenP, s.target, y}, Segment{s.target, 0, s.target, y}};
}

std::array<Segment, 4> arrowheads(const LininterState& s, Occasion occasion) {
    const bool isNegative = s.target < 0;
    Point onLine{s.target, s.givenP};
    Point base{s.target, lineAt(s, s.target)};
    Barbs toLine = isNegative ? kLeft : kRight;
    Point onAxis{s.target, 0};
    Barbs toAxis = kDown;
    if (isQGiven(s)) {
        // Kept (lininter-astray-head): where a right answer below 0 is judged, the head stands over the
        // target instead of the given Q, away from the guide line.
        const bool isAstray = isNegative && occasion == Occasion::Judged;
        const float x = isAstray ? s.target : s.givenQ;
        onLine = base = {x, lineAt(s, x)};
        toLine = isNegative ? kDown : kUp;
        onAxis = {0, s.target};
        toAxis = kLeft;
    }
    return {barb(onLine, base, toLine.x1, toLine.y1), barb(onLine, base, toLine.x2, toLine.y2),
            barb(onAxis, onAxis, toAxis.x1, toAxis.y1), barb(onAxis, onAxis, toAxis.x2, toAxis.y2)};
}

}  // namespace tavrune
