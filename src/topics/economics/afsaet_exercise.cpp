#include "topics/economics/afsaet_exercise.h"

#include <algorithm>
#include <array>

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

/// In the order of the kinds.
constexpr std::array kTaskSentences{
    "Bestem forskriften for den lineære afsætningsfunktion gennem følgende to punkter:",
    "Du kender et punkt på en lineær afsætningsfunktion og priselasticiteten til en bestemt pris på samme "
    "funktion. Bestem afsætningsfunktionens forskrift.",
    "Du kender et punkt på en lineær afsætnigsfunktion og priselasticiteten ved en bestemt mængde på samme "
    "funktion. Bestem afsætningsfunktionens forskrift.",
    "Du kender et punkt på en lineær afsætningsfunktion samt dens hældningskoefficient. Bestem "
    "afsætningsfunktionens forskrift.",
    "På en lineær afsætningsfunktion kender du priselasticiteten ved en bestemt pris samt priselasticiteten "
    "ved en bestemt mængde. Bestem afsætningsfunktionens forskrift.",
    "På en lineær afsætningsfunktion kender du priselasticiteten ved en bestemt pris og "
    "afsætningsfunktionens hældningskoefficient. Bestem afsætningsfunktionens forskrift.",
    "På en lineær afsætningsfunktion kender du priselasticiteten ved en bestemt mængde samt "
    "afsætningsfuktionens hældningskoefficient. Bestem afsætningsfunktionens forskrift.",
};

std::string pointText(double P, double Q) { return "(" + NumberText(P) + ";" + NumberText(Q) + ")"; }

std::string quotientText(double numerator, double denominator) {
    return NumberText(numerator) + "/" + NumberText(denominator);
}

std::string firstFact(const AfsaetState& s) {
    switch (s.kind) {
        case AfsaetKind::TwoPoints:
            return "(P1; Q1) = " + pointText(s.P1, s.Q1);
        case AfsaetKind::PointAndElasticityAtPrice:
        case AfsaetKind::PointAndElasticityAtQuantity:
            return "(P1; Q1) = " + pointText(s.P1, s.Q1) + " ";
        case AfsaetKind::PointAndSlope:
            return "(P; Q) = " + pointText(s.P1, s.Q1) + " ";
        case AfsaetKind::TwoElasticities:
            return "Ep. =  " + NumberText(s.Ep) + "   P = " + NumberText(s.P1);
        case AfsaetKind::ElasticityAtPriceAndSlope:
            return "Ep. = " + NumberText(s.Ep) + "   P = " + NumberText(s.P1);
        case AfsaetKind::ElasticityAtQuantityAndSlope:
            return "Ep. = " + NumberText(s.Ep) + "    Q = " + NumberText(s.Q1);
    }
    return {};
}

std::string secondFact(const AfsaetState& s) {
    switch (s.kind) {
        case AfsaetKind::TwoPoints:
            return "(P2; Q2) = " + pointText(s.P2, s.Q2);
        case AfsaetKind::PointAndElasticityAtPrice:
            return "Ep. = " + NumberText(s.Ep) + "   P2 = " + NumberText(s.P2);
        case AfsaetKind::PointAndElasticityAtQuantity:
            // Kept (afsaet-ep-without-point): without the point behind "Ep".
            return "Ep = " + NumberText(s.Ep) + "   Q2 = " + NumberText(s.Q2);
        case AfsaetKind::TwoElasticities:
            return "Ep. =  " + NumberText(s.Ep2) + "   Q = " + NumberText(s.Q1);
        case AfsaetKind::PointAndSlope:
        case AfsaetKind::ElasticityAtPriceAndSlope:
        case AfsaetKind::ElasticityAtQuantityAndSlope:
            return "Hældningskoefficienten(a) = " + NumberText(s.slope);
    }
    return {};
}

std::string rangeText(const AfsaetState& s) {
    const std::string range = s.interval == AfsaetInterval::InPrices
                                  ? NumberText(s.Plo) + "<P<" + NumberText(s.Phi)
                                  : NumberText(s.Qlo) + "<Q<" + NumberText(s.Qhi);
    switch (s.kind) {
        case AfsaetKind::PointAndElasticityAtQuantity:
            return "Denne funktion er gyldig i intervallet " + range;
        case AfsaetKind::PointAndSlope:
            return "I intervallet " + range + " er funktionen retlinet.";
        default:
            return "Funktionen gælder i intervallet " + range;
    }
}

/// "b = P1 - (slope)*Q1 = ", and what it comes to.
AfsaetStep interceptStep(const AfsaetState& s, const std::string& slope) {
    return {AfsaetUnknown::Intercept,
            "b = " + NumberText(s.P1) + " - (" + slope + ")*" + NumberText(s.Q1) + " = " + NumberText(s.b)};
}

std::string differenceText(double minuend, double subtrahend) {
    return NumberText(minuend) + " - " + NumberText(subtrahend);
}

std::vector<AfsaetStep> stepsOfTwoPoints(const AfsaetState& s) {
    return {{.unknown = AfsaetUnknown::Slope,
             .text = "= " + NumberText(s.a),
             .numerator = differenceText(s.P1, s.P2),
             .denominator = differenceText(s.Q1, s.Q2)},
            interceptStep(s, NumberText(s.a))};
}

std::vector<AfsaetStep> stepsOfElasticityAtPoint(const AfsaetState& s) {
    const std::string slope = quotientText(s.P1, s.Ep * s.Q1);
    return {{.unknown = AfsaetUnknown::Slope,
             .text = "= " + slope + " = " + NumberText(s.a),
             .numerator = NumberText(s.P1),
             .denominator = NumberText(s.Ep) + "*" + NumberText(s.Q1)},
            interceptStep(s, slope)};
}

std::vector<AfsaetStep> stepsOfElasticityBesidePoint(const AfsaetState& s) {
    const std::string slope = quotientText(s.P1 - s.P2, s.Q1 - s.Q2);
    return {{.unknown = AfsaetUnknown::Slope,
             .text = "= " + slope + " = " + NumberText(s.a),
             .numerator = differenceText(s.P1, s.P2),
             .denominator = differenceText(s.Q1, s.Q2)},
            interceptStep(s, slope)};
}

std::vector<AfsaetStep> stepsOfTwoElasticities(const AfsaetState& s) {
    const std::string P1 = NumberText(s.P1);
    const std::string Q1 = NumberText(s.Q1);
    const std::string Pmax = NumberText(s.Pmax);
    const std::string Qmax = NumberText(s.Qmax);
    const std::string fraction = quotientText(s.P1 * s.Ep - s.P1, s.Ep);
    // Whether 2 decimals hold all of Pmax.
    const bool isShort = Int(s.Pmax * 100) / 100 == -s.P1 / s.Ep + s.P1;
    const std::string quotient = isShort ? "-" + Pmax + "/" + Qmax : "-(" + fraction + ")/" + Qmax;
    return {
        {AfsaetUnknown::MaxPrice,
         "Pmax = " + P1 + " - " + P1 + "/" + NumberText(s.Ep) + " = " + fraction + " = " + Pmax},
        {AfsaetUnknown::MaxQuantity, "Qmax = " + Q1 + " - " + Q1 + "*" + NumberText(s.Ep2) + " = " + Qmax},
        {AfsaetUnknown::Slope, "a = " + quotient + " = " + NumberText(s.a)}};
}

std::vector<AfsaetStep> stepsOfElasticityAtPriceAndSlope(const AfsaetState& s) {
    const std::string P1 = NumberText(s.P1);
    const std::string Q1 = NumberText(s.Q1);
    const std::string a = NumberText(s.a);
    const std::string fraction = quotientText(s.P1, s.Ep * s.a);
    // Whether 2 decimals hold all of Q1.
    const bool isShort = Int(s.Q1 * 100) / 100 == s.P1 / (s.Ep * s.a);
    const std::string product = "(" + NumberText(s.Ep) + "*" + a + ")";
    return {{AfsaetUnknown::Quantity,
             "Q = " + P1 + "/" + product + " = " + (isShort ? "" : fraction + " = ") + Q1},
            {AfsaetUnknown::Intercept, "b = " + P1 + " - (" + a + "*" +
                                           (isShort ? Q1 : "(" + fraction + ")") + ") = " + NumberText(s.b)}};
}

std::vector<AfsaetStep> stepsOfElasticityAtQuantityAndSlope(const AfsaetState& s) {
    return {{AfsaetUnknown::Price, "P = " + NumberText(s.a) + "*(" + NumberText(s.Ep) + ")*" +
                                       NumberText(s.Q1) + " = " + NumberText(s.P1)},
            interceptStep(s, NumberText(s.a))};
}

}  // namespace

AfsaetAnswer answerOf(const AfsaetState& state) { return {state.a, state.b, state.Qlo, state.Qhi}; }

Judgement judge(const AfsaetState& state, const std::vector<double>& typed) {
    return solvedIfAllRight({isExactly(typed.at(0), state.a), isExactly(typed.at(1), state.b),
                             isExactly(typed.at(2), state.Qlo), isExactly(typed.at(3), state.Qhi)});
}

AfsaetTask taskTexts(const AfsaetState& state) {
    return {.sentence = kTaskSentences.at(static_cast<std::size_t>(state.kind)),
            .firstFact = firstFact(state),
            .secondFact = secondFact(state),
            .range = rangeText(state)};
}

AfsaetHelp helpFor(const AfsaetState& state) {
    switch (state.kind) {
        case AfsaetKind::TwoPoints:
            return AfsaetHelp::TwoPoints;
        case AfsaetKind::PointAndElasticityAtPrice:
            return state.P1 == state.P2 ? AfsaetHelp::ElasticityAtPointPrice
                                        : AfsaetHelp::ElasticityAtOtherPrice;
        case AfsaetKind::PointAndElasticityAtQuantity:
            return state.Q1 == state.Q2 ? AfsaetHelp::ElasticityAtPointQuantity
                                        : AfsaetHelp::ElasticityAtOtherQuantity;
        case AfsaetKind::PointAndSlope:
            return AfsaetHelp::PointAndSlope;
        case AfsaetKind::TwoElasticities:
            return AfsaetHelp::TwoElasticities;
        case AfsaetKind::ElasticityAtPriceAndSlope:
            return AfsaetHelp::ElasticityAtPriceAndSlope;
        case AfsaetKind::ElasticityAtQuantityAndSlope:
            return AfsaetHelp::ElasticityAtQuantityAndSlope;
    }
    return AfsaetHelp::TwoPoints;
}

std::vector<AfsaetStep> workedSteps(const AfsaetState& state, AfsaetHelp help) {
    switch (help) {
        case AfsaetHelp::TwoPoints:
            return stepsOfTwoPoints(state);
        case AfsaetHelp::ElasticityAtPointPrice:
        case AfsaetHelp::ElasticityAtPointQuantity:
            return stepsOfElasticityAtPoint(state);
        case AfsaetHelp::ElasticityAtOtherPrice:
        case AfsaetHelp::ElasticityAtOtherQuantity:
            return stepsOfElasticityBesidePoint(state);
        case AfsaetHelp::PointAndSlope:
            return {interceptStep(state, NumberText(state.a))};
        case AfsaetHelp::TwoElasticities:
            return stepsOfTwoElasticities(state);
        case AfsaetHelp::ElasticityAtPriceAndSlope:
            return stepsOfElasticityAtPriceAndSlope(state);
        case AfsaetHelp::ElasticityAtQuantityAndSlope:
            return stepsOfElasticityAtQuantityAndSlope(state);
    }
    return {};
}

AfsaetStep workedStep(const AfsaetState& state, AfsaetHelp help, AfsaetUnknown unknown) {
    const std::vector<AfsaetStep> steps = workedSteps(state, help);
    const auto step = std::find_if(steps.begin(), steps.end(),
                                   [unknown](const AfsaetStep& each) { return each.unknown == unknown; });
    return step == steps.end() ? AfsaetStep{.unknown = unknown, .text = ""} : *step;
}

std::string equationText(const AfsaetState& state) {
    return "P = " + NumberText(state.a) + "Q + " + NumberText(state.b);
}

}  // namespace tavrune
