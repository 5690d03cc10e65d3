#pragma once

#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"

namespace tavrune {

/// One function p = aQ² + bQ + c and the limits between which it is integrated. Drawn numbers: whole, and
/// singles.
struct IntegState {
    /// Signed; 0 where the shape has no such term. Sizes 1 to 4, 1 to 4 and 1 to 5.
    float a{};
    float b{};
    float c{};
    /// The upper limit, 2 to 7.
    float w{};
    /// The lower limit, 1 to 6, less than w.
    float v{};
    /// 1 to 26: which terms p has, and with which signs.
    int shape{};
    /// From v to w, unrounded.
    double integral{};
};

/// Draws until v is less than w and p at v is 60 or less in size.
void newExercise(IntegState& state, Draws& draws);

/// Returns p at Q.
[[nodiscard]] double valueAt(const IntegState& state, double q);

/// Judges the typed integral.
[[nodiscard]] Judgement judge(const IntegState& state, const std::vector<double>& typed);

/// Returns the integral with two decimals, as the student is shown it.
[[nodiscard]] std::string answerText(const IntegState& state);

/// Returns p as the task shows it: "-2Q²+3Q-4".
[[nodiscard]] std::string functionText(const IntegState& state);

/// A sum of terms cut into labels. What an exercise has no term for is empty; together they read as the sum.
struct IntegRow {
    std::string cubicTerm;
    /// The raised 3 of the cubic term, and the raised 2 of the quadratic one.
    std::string cube;
    std::string quadraticTerm;
    std::string square;
    std::string linearTerm;
};

/// The steps of the worked solution.
struct IntegWorked {
    /// p: as the task shows it, in some shapes with blanks.
    std::string function;
    /// "(2/3)·Q", "³", "-(3/2)·Q", "²", "+4·Q"
    IntegRow primitive;
    /// p after the first integral sign: what stands before the raised 2, and what stands after it. Without a
    /// square all of it is the head.
    std::string integrandHead;
    std::string integrandTail;
    /// P at both limits, the limits as letters: "((2/3)·w", "³", ...; "- ((2/3)·v", "³", ...
    IntegRow upperWithLetters;
    IntegRow lowerWithLetters;
    /// p after the second integral sign, and P with the limits as numbers.
    std::string integrand;
    IntegRow upperWithNumbers;
    IntegRow lowerWithNumbers;
    /// "= 12.67"
    std::string value;
};

[[nodiscard]] IntegWorked workedSolution(const IntegState& state);

}  // namespace tavrune
