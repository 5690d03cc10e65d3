#include "topics/economics/gtm_exercise.h"

#include <cmath>
#include <limits>
#include <utility>

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

/// The drawn coefficients, and what is made of them: singles until they are rounded.
using Drawn = GtmTerms<float>;

constexpr int kFunctions = static_cast<int>(kGtmFunctions.size());

Drawn drawCoefficients(Draws& draws) {
    draws.Randomize();
    Drawn d{};
    if (Int(draws.Rnd() * 2) == 1) {
        d.a = Int(draws.Rnd() * 10) / 2;
    }
    d.b = -Int(draws.Rnd() * 10);
    d.c = Int(draws.Rnd() * 10);
    // Kept (gtm-idle-draw): a draw that nothing uses. It keeps the stream as it is.
    static_cast<void>(draws.Rnd());
    return d;
}

/// Above 0 where aQ² + bQ + c crosses the axis.
double discriminantOf(float a, float b, float c) { return power(b, 2) - 4 * a * c; }

/// For a line, its height. Kept (gtm-times-a): the quarter of b² is multiplied by a, where the height of a
/// vertex wants a division.
double lowestOf(float a, float b, float c) { return -power(b, 2) / 4 * a + c; }

/// Draws which function is given and makes the other two of it. False if they are rejected.
bool completeExercise(GtmState& s, const Drawn& drawn, Draws& draws) {
    const auto& [a, b, c] = drawn;
    s.given = kGtmFunctions.at(static_cast<std::size_t>(Int(draws.Rnd() * kFunctions)));
    if (s.given == GtmFunction::Marginal) {
        const float avcA = a / 3;
        const float avcB = b / 2;
        if (lowestOf(avcA, avcB, c) < 0) {
            return false;
        }
        s.mc = {a, b, c};
        s.avc = {RoundSigned2(avcA), avcB, c};
    } else {
        if (discriminantOf(3 * a, 2 * b, c) > 0) {
            return false;
        }
        s.mc = {3 * a, 2 * b, c};
        s.avc = {RoundSigned2(a), b, c};
    }
    s.tvc = s.avc;
    return true;
}

constexpr double kStep = 0.1;
constexpr int kMostSteps = 10'000;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLargestSingle = std::numeric_limits<float>::max();

/// Where the points of a curve lie. The first is the first of `start`, `start` + 1, ... that is low enough;
/// from there the curve goes on in steps of 0.1.
struct Plot {
    double start{};
    /// The point beyond this is the last.
    double lastQ{};
    /// The first point is nearer to the axis than this ...
    double firstWithin = kInfinity;
    /// ... or just as near.
    bool firstMayReach = false;
    /// The curve ends before a point that is farther from the axis, up or down.
    double endsBefore = kLargestSingle;
    /// It ends with a point that is farther up.
    double endsAbove = kInfinity;
    /// It ends with a point that is farther up or down.
    double endsBeyond = kInfinity;

    [[nodiscard]] bool mayBegin(double y) const {
        const double size = std::abs(y);
        return size < firstWithin || (firstMayReach && size == firstWithin);
    }
    [[nodiscard]] bool reaches(double y) const { return std::abs(y) <= endsBefore; }
    [[nodiscard]] bool goesOnFrom(const GtmPoint& p) const {
        return p.q <= lastQ && p.y <= endsAbove && std::abs(p.y) <= endsBeyond;
    }
};

constexpr Plot kParabolaOfFirstTask{.start = -2, .lastQ = 15};
constexpr Plot kParabolaOfTask{.start = -2, .lastQ = 11};
constexpr Plot kCubicOfTask{.start = -2, .lastQ = 15, .firstWithin = 2000, .endsBefore = 400};

// An exact Q = 0 would be moved to -0.05 on the curves of AVC, but the running sum of the steps always misses
// it.
constexpr GtmEach<Plot> kPlotsOfTry{
    .average = {.start = -3, .lastQ = 15.05, .firstWithin = 2000, .firstMayReach = true, .endsAbove = 400},
    .total = {.start = -3, .lastQ = 20, .firstWithin = 2000, .endsBefore = 400},
    .marginal = {.start = -3, .lastQ = 15, .firstWithin = 200, .endsAbove = 210},
};
constexpr GtmEach<Plot> kPlotsOfAnswer{
    .average = {.start = -4, .lastQ = 15.05},
    .total = {.start = -4, .lastQ = 20, .firstWithin = 200, .endsBefore = 400},
    .marginal = {.start = -2, .lastQ = 21, .firstWithin = 100, .endsBeyond = 110},
};

GtmCurve pointsOf(GtmFunction function, const GtmCoefficients& coefficients, const Plot& plot) {
    const auto pointAt = [&](double q) { return GtmPoint{q, heightAt(function, coefficients, q)}; };
    GtmPoint p = pointAt(plot.start);
    for (int steps = 0; !plot.mayBegin(p.y); ++steps) {
        if (steps == kMostSteps) {
            return {};
        }
        p = pointAt(p.q + 1);
    }
    GtmCurve points{p};
    do {
        p = pointAt(p.q + kStep);
        if (!plot.reaches(p.y)) {
            break;
        }
        points.push_back(p);
    } while (plot.goesOnFrom(p));
    return points;
}

/// A coefficient behind the first one: a negative number brings its own sign.
std::string withSign(double coefficient) { return (coefficient < 0 ? "" : "+") + NumberText(coefficient); }

/// Composes a formula from left to right.
class FormulaWriter {
public:
    FormulaWriter& text(std::string text) { return add({.text = std::move(text)}); }
    FormulaWriter& q(int power) {
        return add({.text = "Q ", .exponent = power > 1 ? std::to_string(power) : ""});
    }
    FormulaWriter& integralSign() { return add({.text = "∫", .kind = FormulaPiece::Kind::IntegralSign}); }
    FormulaWriter& oneOver(const char* denominator) {
        return add({.text = denominator, .kind = FormulaPiece::Kind::Fraction});
    }

    /// "3 * 2Q²": a term as it is differentiated.
    FormulaWriter& product(const char* factor, double coefficient, int power) {
        return text(factor).text(" ").text(NumberText(coefficient)).q(power);
    }
    /// "1/3 * 2Q³": a term as it is integrated.
    FormulaWriter& share(const char* denominator, double coefficient, int power) {
        return oneOver(denominator).text("* " + NumberText(coefficient)).q(power);
    }

    /// A polynomial in falling powers, of which `power` is the highest.
    FormulaWriter& chain(const GtmCoefficients& coefficients, int power) {
        const auto& [a, b, c] = coefficients;
        text(NumberText(a)).q(power).text(withSign(b)).q(power - 1).text(withSign(c));
        return power > 2 ? text("Q") : *this;
    }

    operator Formula() const { return formula_; }

private:
    FormulaWriter& add(FormulaPiece piece) {
        formula_.push_back(std::move(piece));
        return *this;
    }

    Formula formula_;
};

/// Where the coefficients of a function begin in an answer.
std::size_t firstOf(GtmFunction function) { return 3 * static_cast<std::size_t>(function); }

}  // namespace

const GtmCoefficients& GtmState::of(GtmFunction function) const {
    return *GtmEach<const GtmCoefficients*>{&avc, &tvc, &mc}.of(function);
}

void newExercise(GtmState& s, Draws& draws) {
    while (true) {
        const Drawn drawn = drawCoefficients(draws);
        // Where a is not 0, this keeps the vertex from lying below the axis too: -b²/(4a) + c >= 0.
        const bool isAccepted = discriminantOf(drawn.a, drawn.b, drawn.c) <= 0;
        if (isAccepted && completeExercise(s, drawn, draws)) {
            return;
        }
    }
}

void firstExercise(GtmState& s, Draws& draws) {
    while (true) {
        Drawn drawn = drawCoefficients(draws);
        if (drawn.a == 0) {
            drawn.c = Int(draws.Rnd() * 6 + 2);
        }
        const bool isAccepted = lowestOf(drawn.a, drawn.b, drawn.c) >= 0;
        if (isAccepted && completeExercise(s, drawn, draws)) {
            return;
        }
    }
}

GtmTerms<std::string> taskTexts(const GtmCoefficients& given) {
    const auto& [a, b, c] = given;
    return {fixedPointText(a), NumberText(b), NumberText(c)};
}

Judgement judge(const GtmState& s, const std::vector<double>& typed) {
    std::vector<bool> isRight;
    for (const GtmFunction function : kGtmFunctions) {
        const auto& [a, b, c] = s.of(function);
        const GtmCoefficients typedOnes = coefficientsOf(function, typed);
        isRight.insert(isRight.end(),
                       {isExactly(typedOnes.a, a), isExactly(typedOnes.b, b), isExactly(typedOnes.c, c)});
    }
    return solvedIfAllRight(std::move(isRight));
}

GtmCoefficients coefficientsOf(GtmFunction function, const std::vector<double>& typed) {
    const std::size_t first = firstOf(function);
    return {typed.at(first), typed.at(first + 1), typed.at(first + 2)};
}

bool isRight(GtmFunction function, const Judgement& judgement) {
    const std::size_t first = firstOf(function);
    return judgement.isRight.at(first) && judgement.isRight.at(first + 1) && judgement.isRight.at(first + 2);
}

double heightAt(GtmFunction function, const GtmCoefficients& coefficients, double q) {
    const auto& [a, b, c] = coefficients;
    if (function == GtmFunction::Total) {
        return a * power(q, 3) + b * power(q, 2) + c * q;
    }
    return a * power(q, 2) + b * q + c;
}

GtmCurve curveOfTask(const GtmState& s, GtmReach reach) {
    const Plot& parabola = reach == GtmReach::Opening ? kParabolaOfFirstTask : kParabolaOfTask;
    return pointsOf(s.given, s.of(s.given), s.given == GtmFunction::Total ? kCubicOfTask : parabola);
}

GtmCurve curveOfTry(GtmFunction function, const GtmCoefficients& typed) {
    return pointsOf(function, typed, kPlotsOfTry.of(function));
}

GtmCurve curveOfAnswer(const GtmState& s, GtmFunction function) {
    return pointsOf(function, s.of(function), kPlotsOfAnswer.of(function));
}

const GtmMethod& methodFor(GtmFunction given) {
    static constexpr const char* kDifferentiate =
        " Når du skal fra TVC til MC skal du differentiere TVC-funktionen. Det gøres ved ledvis at gange "
        "koefficienten med eksponenten og derefter trække én fra eksponenten (se evt differentialregning).";
    static constexpr GtmEach<GtmMethod> kMethods{
        .average = {" Du kender her AVC-funktionen. Du skal nu først finde TVC-funktionen og derefter "
                    "MC-funktionen. Metoden er vist i diagrammet ovenfor. Først skal du gange AVC med "
                    "mængden(Q).Derved får du TVC.",
                    kDifferentiate},
        .total = {" Du kender her TVC-funktionen og skal finde AVC-funktionen samt MC-funktonen. Som det "
                  "fremgår af diagrammet ovenfor findes AVC-funktionen ved at dividere TVC-funktionen med "
                  "antallet(Q).",
                  kDifferentiate},
        .marginal = {" Du kender MC-funktionen og skal, som det fremgår af diagrammet ovenfor, først finde "
                     "TVC-funktionen og derefter AVC-funktionen. TVC-funktionen finder du ved at integrere "
                     "MC-funktionen (se evt. integralregning).",
                     " AVC-funktionen findes nu ved at dividere TVC-funktionen med antallet (Q)."},
    };
    return kMethods.of(given);
}

std::vector<Formula> workedProduct(const GtmState& s) {
    return {FormulaWriter().text("TVC =").text(" Q*(").chain(s.avc, 2).text(")"),
            FormulaWriter().text("=").text(" ").chain(s.avc, 3)};
}

std::vector<Formula> workedDerivative(const GtmState& s) {
    const auto& [a, b, c] = s.tvc;
    return {FormulaWriter().text("TVC =").text(" ").chain(s.tvc, 3),
            FormulaWriter().product("3 *", a, 2).text("+ ").product("2 *", b, 1).text(withSign(c)),
            FormulaWriter().text("=").text(" ").chain(s.mc, 2)};
}

std::vector<Formula> workedQuotient(const GtmState& s) {
    return {FormulaWriter().text("AVC =").text(" (").chain(s.tvc, 3).text(")/Q"),
            FormulaWriter().text("=").text(" ").chain(s.tvc, 2)};
}

std::vector<Formula> workedIntegral(const GtmState& s) {
    const auto& [a, b, c] = s.mc;
    return {FormulaWriter().text("TVC =").text(" ").integralSign().text("(").chain(s.mc, 2).text(")"),
            FormulaWriter()
                .text("=")
                .text(" ")
                .share("3", a, 3)
                .text("+ ")
                .share("2", b, 2)
                .text(withSign(c))
                .text("Q"),
            FormulaWriter().text("=").text(" ").chain(s.tvc, 3)};
}

std::vector<Formula> workedQuotientOfIntegral(const GtmState& s) {
    return {FormulaWriter().text("AVC=").text(" (").chain(s.avc, 3).text(")/Q"),
            FormulaWriter().text("=").text(" ").chain(s.avc, 2)};
}

}  // namespace tavrune
