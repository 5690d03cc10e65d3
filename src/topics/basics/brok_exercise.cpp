#include "topics/basics/brok_exercise.h"

#include <array>
#include <cmath>
#include <numeric>

#include "numeric/arithmetic.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

constexpr int kOperations = 4;

/// -10 to 9.
float drawPart(Draws& draws) { return Int(draws.Rnd() * 20 - 10); }

void drawParts(BrokState& s, Draws& draws) {
    do {
        s.numeratorA = drawPart(draws);
        s.denominatorB = drawPart(draws);
        s.numeratorC = drawPart(draws);
        s.denominatorD = drawPart(draws);
    } while (s.numeratorA * s.denominatorB * s.numeratorC * s.denominatorD == 0);
}

void solve(BrokState& s, Operation operation) {
    const float a = s.numeratorA;
    const float b = s.denominatorB;
    const float c = s.numeratorC;
    const float d = s.denominatorD;
    const bool sameDenominator = b == d;
    s.operation = operation;
    switch (operation) {
        case Operation::Subtract:
            s.resultNumerator = sameDenominator ? a - c : a * d - b * c;
            s.resultDenominator = sameDenominator ? b : b * d;
            break;
        case Operation::Add:
            s.resultNumerator = sameDenominator ? a + c : a * d + b * c;
            s.resultDenominator = sameDenominator ? b : b * d;
            break;
        case Operation::Multiply:
            s.resultNumerator = a * c;
            s.resultDenominator = b * d;
            break;
        case Operation::Divide:
            s.resultNumerator = a * d;
            s.resultDenominator = c * b;
            break;
    }
}

LastStep lastStep(const BrokState& s) {
    const ReducedFraction r = reduced(s);
    const std::string numerator = (r.isNegative ? "-" : "") + NumberText(r.numerator);
    if (r.isWhole() || r.isOne()) {
        return {LastStep::Kind::Whole, numerator, ""};
    }
    if (std::abs(s.resultNumerator) == r.numerator && !std::signbit(s.resultDenominator)) {
        return {LastStep::Kind::Irreducible, "", ""};
    }
    return {LastStep::Kind::Reduced, numerator, NumberText(r.denominator)};
}

}  // namespace

std::string operatorSign(std::optional<Operation> operation) {
    static constexpr std::array kSigns{"-", "+", "*", "/"};
    return operation ? kSigns.at(static_cast<std::size_t>(*operation)) : "";
}

void newExercise(BrokState& state, Draws& draws) {
    do {
        draws.Randomize();
        drawParts(state, draws);
        solve(state, static_cast<Operation>(Int(draws.Rnd() * kOperations)));
    } while (state.resultNumerator == 0);
}

Judgement judge(const BrokState& state, const std::vector<double>& typed) {
    const bool isRight = typed.at(0) / typed.at(1) == state.resultNumerator / state.resultDenominator;
    return solvedIfAllRight({isRight, isRight});
}

ReducedFraction reduced(const BrokState& state) {
    const double numerator = state.resultNumerator;
    const double denominator = state.resultDenominator;
    if (numerator == 0) {
        return {1, 1, false};
    }
    const double common = std::gcd(static_cast<int>(numerator), static_cast<int>(denominator));
    return {std::abs(numerator) / common, std::abs(denominator) / common,
            std::signbit(numerator) != std::signbit(denominator)};
}

ReductionText reductionText(const BrokState& state, double typedNumerator) {
    const ReducedFraction r = reduced(state);
    ReductionText text;
    if (r.isOne()) {
        text.whole = r.isNegative ? "-1" : "1";
    } else if (r.isWhole()) {
        text.whole = NumberText(r.signedNumerator());
    } else if (typedNumerator != r.signedNumerator()) {
        text.fraction = {NumberText(r.signedNumerator()), NumberText(r.denominator)};
    }
    return text;
}

const BrokMethod& methodFor(std::optional<Operation> operation) {
    static constexpr BrokMethod kAdd{
        "Her skal du lægge to brøker sammen",
        "Find en fællesnævner ved at forlænge begge brøker med den modsatte brøks nævner. Læg derefter de to "
        "tællere sammen og behold fællesnævneren.",
        "a*d + c*b", "b*d"};
    static constexpr BrokMethod kSubtract{"I denne opgave skal du trække én brøk fra en anden",
                                          "Find en fællesnævner ved at forlænge begge brøker med den "
                                          "modsatte brøks nævner. Træk derefter de to "
                                          "tællere fra hinanden og behold fællesnævneren.",
                                          "a*d - c*b", "b*d"};
    static constexpr BrokMethod kMultiply{"Her skal du gange to brøker",
                                          "Gang tæller med tæller og nævner med nævner", "a*c", "b*d"};
    static constexpr BrokMethod kDivide{"I denne opgave skal du dividere én brøk med en anden",
                                        "Man dividerer med en brøk ved at gange med den omvendte: Tæller med "
                                        "nævner og nævner med tæller",
                                        "a*d", "b*c"};
    switch (operation.value_or(Operation::Divide)) {
        case Operation::Subtract:
            return kSubtract;
        case Operation::Add:
            return kAdd;
        case Operation::Multiply:
            return kMultiply;
        case Operation::Divide:
            break;
    }
    return kDivide;
}

BrokWorked workedSolution(const BrokState& s) {
    const float a = s.numeratorA;
    const float b = s.denominatorB;
    const float c = s.numeratorC;
    const float d = s.denominatorD;
    const auto times = [](float x, float y) { return bracketed(x) + "*" + bracketed(y); };
    BrokWorked worked{{"", times(b, d)}, {"", NumberText(b * d)}, lastStep(s)};
    switch (s.operation.value_or(Operation::Divide)) {
        case Operation::Subtract:
            worked.writtenOut.numerator = times(a, d) + " - " + times(c, b);
            worked.computed.numerator = NumberText(a * d - c * b);
            break;
        case Operation::Add:
            worked.writtenOut.numerator = times(a, d) + " + " + times(c, b);
            worked.computed.numerator = NumberText(a * d + c * b);
            break;
        case Operation::Multiply:
            worked.writtenOut.numerator = times(a, c);
            worked.computed.numerator = NumberText(a * c);
            break;
        case Operation::Divide:
            worked.writtenOut = {times(a, d), times(b, c)};
            worked.computed = {NumberText(a * d), NumberText(b * c)};
            break;
    }
    return worked;
}

}  // namespace tavrune
