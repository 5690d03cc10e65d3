#pragma once

#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"

namespace tavrune {

/// A function in two linear pieces, P1 = a1 Q + b1 up to the kink k and P2 = a2 Q + b2 after it, whose
/// integral from v to w is asked for. The pieces need not meet at k.
struct Integ2State {
    float a1{};
    float b1{};
    float a2{};
    float b2{};
    float k{};
    /// 0 <= v < k < w <= 9, all whole.
    float v{};
    float w{};
    /// The integral from v to k, the one from k to w, and their sum; all unrounded.
    double first{};
    double second{};
    double total{};
};

/// One of the two pieces, P = slope Q + intercept, and the limits between which it is integrated.
struct Integ2Piece {
    float slope{};
    float intercept{};
    float lowerLimit{};
    float upperLimit{};
};

/// Draws until the limits stand on the graph and the pieces are of one of three families: a fall and a
/// rise, a rise and a fall, two falls.
void newExercise(Integ2State& state, Draws& draws);

/// The piece from v to k, and the one from k to w.
[[nodiscard]] Integ2Piece firstPiece(const Integ2State& state);
[[nodiscard]] Integ2Piece secondPiece(const Integ2State& state);

/// The height of a piece at q, wherever q lies.
[[nodiscard]] double heightAt(const Integ2Piece& piece, double q);

/// Judges the typed integral.
[[nodiscard]] Judgement judge(const Integ2State& state, const std::vector<double>& typed);

/// The whole integral with two decimals, as the student is shown it.
[[nodiscard]] std::string answerText(const Integ2State& state);

/// One of the two integrals as the help works it out. A raised 2 stands after each of the quadratic terms. No
/// sign is looked at: "+" stands before every intercept.
struct Integ2Worked {
    /// "(-1Q+3)"
    std::string integrand;
    /// "((-1/2)*4" and "+3*4)"
    std::string upperQuadraticTerm;
    std::string upperLinearTerm;
    /// "-((-1/2)*2" and "+3*2)"
    std::string lowerQuadraticTerm;
    std::string lowerLinearTerm;
};

[[nodiscard]] Integ2Worked workedOut(const Integ2Piece& piece);

/// What a term of the last sum shows from now on: its integral if that is above 0, otherwise what it has
/// shown so far, in brackets. summandText(0, "5") -> "(5)"
[[nodiscard]] std::string summandText(double integral, const std::string& shownSoFar);

}  // namespace tavrune
