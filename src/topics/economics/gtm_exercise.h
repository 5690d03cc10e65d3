#pragma once

#include <array>
#include <string>
#include <vector>

#include "numeric/draws.h"
#include "numeric/judgement.h"

namespace tavrune {

/// The three cost functions of one product: AVC = aQ² + bQ + c, TVC = aQ³ + bQ² + cQ and MC = aQ² + bQ + c,
/// each with coefficients of its own.
enum class GtmFunction { Average, Total, Marginal };

inline constexpr std::array kGtmFunctions{GtmFunction::Average, GtmFunction::Total, GtmFunction::Marginal};

/// One of something for each function.
template <class T>
struct GtmEach {
    T average{};
    T total{};
    T marginal{};

    [[nodiscard]] constexpr const T& of(GtmFunction function) const {
        switch (function) {
            case GtmFunction::Average:
                return average;
            case GtmFunction::Total:
                return total;
            case GtmFunction::Marginal:
                break;
        }
        return marginal;
    }
};

/// One of something for each term of a function, in falling powers of Q.
template <class T>
struct GtmTerms {
    T a{};
    T b{};
    T c{};

    bool operator==(const GtmTerms&) const = default;
};

using GtmCoefficients = GtmTerms<double>;

/// One function of a product, from which the other two are to be found.
///
/// The first coefficients of AVC and TVC are rounded to two decimals. All others are multiples of a half and
/// exact.
struct GtmState {
    GtmCoefficients avc{};
    GtmCoefficients tvc{};
    GtmCoefficients mc{};
    GtmFunction given = GtmFunction::Average;

    [[nodiscard]] const GtmCoefficients& of(GtmFunction function) const;

    bool operator==(const GtmState&) const = default;
};

/// Draws the exercise of "&Ny opgave", again until neither the given function nor MC nor AVC goes below the
/// axis.
void newExercise(GtmState& s, Draws& draws);

/// Draws the exercise of the opening. Kept (gtm-looser-opening): by looser rules, so that only here MC can
/// fall for ever, and c is drawn a second time.
void firstExercise(GtmState& s, Draws& draws);

/// Returns the coefficients as a task shows them: a with a point in every locale, so that `Val` can read it.
[[nodiscard]] GtmTerms<std::string> taskTexts(const GtmCoefficients& given);

/// Judges the typed coefficients of all three functions, function by function in the order of
/// `kGtmFunctions`: right to the digit, those of the given function too.
[[nodiscard]] Judgement judge(const GtmState& s, const std::vector<double>& typed);

/// Returns the coefficients of one function. Precondition: nine are typed.
[[nodiscard]] GtmCoefficients coefficientsOf(GtmFunction function, const std::vector<double>& typed);

/// Returns whether all coefficients of a function are right.
[[nodiscard]] bool isRight(GtmFunction function, const Judgement& judgement);

/// Returns the height of a function at Q.
[[nodiscard]] double heightAt(GtmFunction function, const GtmCoefficients& coefficients, double q);

struct GtmPoint {
    double q;
    double y;
};

/// The points of a curve, which are joined by lines. Of fewer than two nothing is drawn.
using GtmCurve = std::vector<GtmPoint>;

/// How far the curve of the task runs: a parabola of the opening farther than later ones.
enum class GtmReach { Opening, Later };

[[nodiscard]] GtmCurve curveOfTask(const GtmState& s, GtmReach reach);

/// Returns the curve of what was typed, whatever the numbers. One that does not come near the axis within
/// 10,000 units of Q has no points; one ends where no single can hold its height.
[[nodiscard]] GtmCurve curveOfTry(GtmFunction function, const GtmCoefficients& typed);

[[nodiscard]] GtmCurve curveOfAnswer(const GtmState& s, GtmFunction function);

/// The two texts below the diagram of the help, one for each step.
struct GtmMethod {
    const char* step1 = "";
    const char* step2 = "";
};

[[nodiscard]] const GtmMethod& methodFor(GtmFunction given);

/// A label of a formula.
struct FormulaPiece {
    enum class Kind { Text, IntegralSign, Fraction };

    /// Of a fraction, what stands below its bar; above it is a 1.
    std::string text;
    /// Raised behind the Q with which the text begins; empty for none.
    std::string exponent{};
    Kind kind = Kind::Text;
};

/// A row of labels side by side.
using Formula = std::vector<FormulaPiece>;

// The steps of the worked solutions, formula by formula.
/// From AVC to TVC.
[[nodiscard]] std::vector<Formula> workedProduct(const GtmState& s);
/// From TVC to MC.
[[nodiscard]] std::vector<Formula> workedDerivative(const GtmState& s);
/// From TVC to AVC, where TVC is given.
[[nodiscard]] std::vector<Formula> workedQuotient(const GtmState& s);
/// From MC to TVC.
[[nodiscard]] std::vector<Formula> workedIntegral(const GtmState& s);
/// From TVC to AVC, where MC is given.
[[nodiscard]] std::vector<Formula> workedQuotientOfIntegral(const GtmState& s);

}  // namespace tavrune
