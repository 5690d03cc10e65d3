#include "topics/calculus/integ2.h"

#include <cmath>

#include "controls/panel.h"
#include "controls/row.h"
#include "controls/text.h"
#include "graph/curve.h"
#include "graph/ticks.h"
#include "numeric/text.h"
#include "topics/calculus/hatching.h"
#include "topics/calculus/ui_integ2.h"

namespace tavrune {
namespace {

constexpr double kStep = 0.01;
constexpr int kRightEnd = 10;
constexpr double kLargestY = 20;
/// Where the integrands of the worked solution begin, and what lies between them and their "dQ =".
constexpr double kIntegrandLeft = fromTwips(4200);
constexpr double kAfterIntegrand = fromTwips(20);
/// Between a word of the task and the number after it.
constexpr double kGap = 3;
/// The widest that a term of the last sum may become.
constexpr double kWidestTerm = 140;

void drawAxes(GraphBox& graph) {
    graph.Cls();
    graph.Scale(0, 20, 10, -10);
    graph.Line(0, 20, 0, -10);
    graph.Line(0, 0, 20, 0);
    drawTicksAlongX(graph, {.from = -7, .before = 20}, {0.1});
    drawTicksAlongY(graph, {.from = -10, .before = 20}, {0.05, 0.075, 0.1});
}

/// Dots a piece from `from` on and gives true if it has come to `to`; a dot beyond the largest y is its last.
bool dot(GraphBox& graph, const Curve& piece, float from, float to) {
    // As in the hatching: the running sum meets its end as a single.
    for (double x = from; static_cast<float>(x) < to; x += kStep) {
        const double y = piece(x);
        graph.PSet(x, y);
        if (std::abs(y) > kLargestY) {
            return false;
        }
    }
    return true;
}

/// Sets a term of the last sum and gives its right edge. Bracketed too often to fit, it shows its middle.
double layOutTerm(Label* label, double left) {
    layOutRow({label}, left);
    if (label->place().width() > kWidestTerm) {
        label->setAutoSize(false);
        label->setWidth(kWidestTerm);
    }
    return label->place().right();
}

}  // namespace

Integ2::Integ2(Draws& draws) : ExerciseForm(PageName::Integ2, draws), ui_(std::make_unique<Ui::Integ2>()) {
    setUp(*ui_);
    enterChain({ui_->integral}, LastBox::OkOrStay);
    onClick(ui_->showWorkedSolution, &Integ2::uncover);
}

Integ2::~Integ2() = default;

void Integ2::newExercise() {
    closeHelp();
    drawAxes(*ui_->graph);
    drawAxes(*ui_->helpGraph);
    clearBoxes({ui_->integral});
    showAsking();

    tavrune::newExercise(state_, draws());

    showTask();
    fillHelp();
    plotPieces(*ui_->graph);
    // Kept: where the pieces leave the graph upwards, the focus stays where it is.
    if (plotPieces(*ui_->helpGraph)) {
        focusOn(ui_->integral);
    }
}

void Integ2::showTask() {
    ui_->segment1Slope->setCaption(NumberText(state_.a1));
    ui_->segment1Intercept->setCaption(NumberText(state_.b1));
    ui_->segment2Slope->setCaption(NumberText(state_.a2));
    ui_->segment2Intercept->setCaption(NumberText(state_.b2));
    ui_->segment1LowerLimit->setCaption(NumberText(state_.v));
    ui_->segment2UpperLimit->setCaption(NumberText(state_.w));
    for (Label* kink :
         {ui_->segment1End, ui_->segment2Start, ui_->segment1UpperLimit, ui_->segment2LowerLimit}) {
        kink->setCaption(NumberText(state_.k));
    }
    nameTask();
    layOutRow({ui_->segment1PriceEquals, ui_->segment1Slope, ui_->segment1TimesQuantity, ui_->segment1Plus,
               ui_->segment1Intercept},
              ui_->segment1PriceEquals->place().left());
    layOutRow({ui_->segment1ZeroLessThanQuantity, ui_->segment1End},
              ui_->segment1ZeroLessThanQuantity->place().left());
    layOutRow({ui_->segment2PriceEquals, ui_->segment2Slope, ui_->segment2TimesQuantity, ui_->segment2Plus,
               ui_->segment2Intercept},
              ui_->segment2PriceEquals->place().left());
    const double afterFor = layOutRow({ui_->segment2ValidFor}, ui_->segment2ValidFor->place().left());
    layOutRow({ui_->segment2Start, ui_->segment2QuantityBelowTen}, afterFor + kGap);
}

void Integ2::nameTask() {
    const auto text = [](auto x) { return fromUtf8(NumberText(x)); };
    const QString k = text(state_.k);
    ui_->segment1PriceEquals->setAccessibleName(
        QString("P1 = %1Q + %2 for 0 < Q < %3").arg(text(state_.a1), text(state_.b1), k));
    ui_->segment2PriceEquals->setAccessibleName(
        QString("P2 = %1Q + %2 for %3 < Q < 10").arg(text(state_.a2), text(state_.b2), k));
    ui_->segment1IntegralSign->setAccessibleName(
        QString("integralet fra %1 til %2 af P1 dQ").arg(text(state_.v), k));
    ui_->segment2IntegralSign->setAccessibleName(
        QString("plus integralet fra %1 til %2 af P2 dQ =").arg(k, text(state_.w)));
}

void Integ2::fillHelp() {
    ui_->workedSegment1UpperLimit->setCaption(NumberText(state_.k));
    ui_->workedSegment1LowerLimit->setCaption(NumberText(state_.v));
    const Integ2Worked red = workedFirst(state_);
    ui_->workedSegment1Integrand->setCaption(red.integrand);
    ui_->workedSegment1UpperQuadraticTerm->setCaption(red.upperSquared);
    ui_->workedSegment1UpperLinearTerm->setCaption(red.upperLinear);
    ui_->workedSegment1LowerQuadraticTerm->setCaption(red.lowerSquared);
    ui_->workedSegment1LowerLinearTerm->setCaption(red.lowerLinear);

    ui_->workedSegment2UpperLimit->setCaption(NumberText(state_.w));
    ui_->workedSegment2LowerLimit->setCaption(NumberText(state_.k));
    const Integ2Worked green = workedSecond(state_);
    ui_->workedSegment2Integrand->setCaption(green.integrand);
    ui_->workedSegment2UpperQuadraticTerm->setCaption(green.upperSquared);
    ui_->workedSegment2UpperLinearTerm->setCaption(green.upperLinear);
    ui_->workedSegment2LowerQuadraticTerm->setCaption(green.lowerSquared);
    ui_->workedSegment2LowerLinearTerm->setCaption(green.lowerLinear);
}

bool Integ2::plotPieces(GraphBox& graph) const {
    dot(
        graph, [this](double q) { return heightOfFirst(state_, q); }, 0, state_.k);
    return dot(
        graph, [this](double q) { return heightOfSecond(state_, q); }, state_.k, kRightEnd);
}

void Integ2::hatchPieces(GraphBox& graph, const QColor& first, const QColor& second) const {
    const int kink = static_cast<int>(state_.k);
    hatch(
        graph, [this](double q) { return heightOfFirst(state_, q); }, static_cast<int>(state_.v), kink,
        first);
    hatch(
        graph, [this](double q) { return heightOfSecond(state_, q); }, kink, static_cast<int>(state_.w),
        second);
}

void Integ2::judge() {
    hideVerdict();
    const bool right = isRight(state_, ui_->integral->value());
    ui_->integral->mark(!right);
    if (right) {
        solved();
        hatchPieces(*ui_->graph, kBlue, kBlue);
        return;
    }
    failed();
    focusOn(ui_->integral);
}

void Integ2::giveAnswer() {
    ui_->integral->setContent(answerText(state_));
    whiten({ui_->integral});
    given();
    hatchPieces(*ui_->graph, kBlue, kBlue);
}

void Integ2::help() {
    ui_->workedSegment1Result->setCaption(" = " + NumberText(state_.first));
    ui_->workedSegment2Result->setCaption(" = " + NumberText(state_.second));
    ui_->workedResult->setCaption(" = " + NumberText(state_.total));
    // Kept: an integral that is not above 0 never shows; what stood there gets one more pair of brackets at
    // each opening, over all exercises.
    ui_->workedSumSegment1->setCaption(summandText(state_.first, ui_->workedSumSegment1->caption()));
    ui_->workedSumSegment2->setCaption(summandText(state_.second, ui_->workedSumSegment2->caption()));
    layOutHelp();
    openPanel(ui_->helpPanel, ui_->showWorkedSolution);
}

void Integ2::layOutHelp() {
    layOutRow({ui_->workedSegment1Integrand, ui_->workedSegment1DifferentialEquals}, kIntegrandLeft,
              kAfterIntegrand);
    layOutRow({ui_->workedSegment1UpperQuadraticTerm, ui_->workedSegment1UpperSquare,
               ui_->workedSegment1UpperLinearTerm, ui_->workedSegment1LowerQuadraticTerm,
               ui_->workedSegment1LowerSquare, ui_->workedSegment1LowerLinearTerm, ui_->workedSegment1Result},
              ui_->workedSegment1UpperQuadraticTerm->place().left());
    layOutRow({ui_->workedSegment2Integrand, ui_->workedSegment2DifferentialEquals}, kIntegrandLeft,
              kAfterIntegrand);
    layOutRow({ui_->workedSegment2UpperQuadraticTerm, ui_->workedSegment2UpperSquare,
               ui_->workedSegment2UpperLinearTerm, ui_->workedSegment2LowerQuadraticTerm,
               ui_->workedSegment2LowerSquare, ui_->workedSegment2LowerLinearTerm, ui_->workedSegment2Result},
              ui_->workedSegment2UpperQuadraticTerm->place().left());

    const double afterFirst = layOutTerm(ui_->workedSumSegment1, ui_->workedSumSegment1->place().left());
    const double afterPlus = layOutRow({ui_->workedSumPlus}, afterFirst);
    layOutRow({ui_->workedResult}, layOutTerm(ui_->workedSumSegment2, afterPlus));
}

void Integ2::uncover() {
    ui_->workedSolutionCover->hide();
    focusOn(ui_->closeHelp);
    hatchPieces(*ui_->helpGraph, kRed, kGreen);
}

void Integ2::closeHelp() {
    ui_->workedSolutionCover->show();
    ui_->helpPanel->hide();
}

}  // namespace tavrune
