#include "topics/calculus/diff.h"

#include "controls/panel.h"
#include "controls/row.h"
#include "graph/curve.h"
#include "graph/ticks.h"
#include "numeric/text.h"
#include "topics/calculus/ui_diff.h"

namespace tavrune {
namespace {

/// How far a tangent reaches to either side of the point.
constexpr int kReach = 2;
constexpr int kReachBesideParabola = 3;
constexpr double kStep = 0.04;
/// Before the number at the end of a sentence.
constexpr double kGap = 4;

}  // namespace

Diff::Diff(Draws& draws) : ExerciseForm(PageName::Diff, draws), ui_(std::make_unique<Ui::Diff>()) {
    setUp(*ui_);
    buttons({.newExercise = ui_->Command15,
             .ok = ui_->Command13,
             .giveAnswer = ui_->Command14,
             .help = ui_->Command1});
    verdict(TwoLabels{.right = ui_->Label10, .wrong = ui_->Label27});
    enterChain({ui_->Text1}, LastBox::OkOrStay);
    onClick(ui_->Command4, &Diff::showDerivative);
    onClick(ui_->Command5, &Diff::showDerivativeAtPoint);
    onClick(ui_->Command2, &Diff::closeHelp);
}

Diff::~Diff() = default;

void Diff::loadStep() { ui_->Command15->show(); }

void Diff::newExercise() {
    hideAll({ui_->Picture2, ui_->Label37, ui_->Label47, ui_->Label18});
    ui_->Label6->show();
    drawAxes();
    ui_->Command15->hide();

    tavrune::newExercise(state_, draws());

    showTask();
    clearBoxes({ui_->Text1});
    showAll({ui_->Label5, ui_->Label1, ui_->Label25, ui_->Command15});
    showAsking();
    focusOn(ui_->Text1);
    drawCurve();
}

void Diff::drawAxes() {
    GraphBox& graph = *ui_->Picture1;
    graph.Cls();
    graph.Scale(-1, 65, 8, -65);
    graph.Line(0, 65, 0, -65);
    graph.Line(-65, 0, 65, 0);
    drawTicksAlongX(graph, {.from = -10, .before = 10, .step = 5}, {2});
    drawTicksAlongX(graph, {.from = -2, .before = 10}, {1, 1.5});
    drawTicksAlongY(graph, {.from = -70, .before = 70, .step = 10}, {0.05, 0.1, 0.075});
}

void Diff::showTask() {
    const DiffTexts texts = textsOf(state_);
    ui_->Label5->setCaption(texts.polynomial);
    ui_->Label25->setCaption(NumberText(state_.pointQ));
    layOutRow({ui_->Label1, ui_->Label25}, ui_->Label1->place().left(), kGap);
    ui_->Label49->setCaption(texts.workedPolynomial);
    ui_->Label37->setCaption(texts.derivative);
    ui_->Label7->setCaption(texts.atPoint);
    ui_->Label47->setCaption(texts.derivativeAtPoint);
    ui_->Label18->setCaption(texts.value);
}

void Diff::drawCurve() {
    const CurveRange parabola{.start = -10, .step = kStep, .neverMet = 10, .largest = 2000};
    const CurveRange cubic{.start = -7, .step = kStep, .neverMet = 7, .largest = 5000};
    plotCurve(
        *ui_->Picture1, [this](double q) { return curveAt(state_, q); },
        hasParabola(state_) ? parabola : cubic);
}

void Diff::drawTangent(double slope, double reach, const QColor& colour) {
    const double right = state_.pointQ + reach;
    const double left = state_.pointQ - reach;
    ui_->Picture1->Line(right, tangentAt(state_, slope, right), left, tangentAt(state_, slope, left), colour);
}

void Diff::drawRightTangent() {
    drawTangent(state_.slopeAtPoint, hasParabola(state_) ? kReachBesideParabola : kReach, kGreen);
}

void Diff::drawTypedTangent(double slope) { drawTangent(slope, kReach, kRed); }

void Diff::judge() {
    const double typed = ui_->Text1->value();
    const bool right = isRight(state_, typed);
    ui_->Text1->mark(!right);
    // Kept: no verdict is hidden first, so "FORKERT" stays behind a later "RIGTIGT".
    if (right) {
        solved();
        drawRightTangent();
        return;
    }
    failed();
    focusOn(ui_->Text1);
    drawTypedTangent(typed);
}

void Diff::giveAnswer() {
    const double typed = ui_->Text1->value();
    whiten({ui_->Text1});
    ui_->Text1->setContent(NumberText(state_.slopeAtPoint));
    given();
    drawRightTangent();
    drawTypedTangent(typed);
}

void Diff::help() {
    ui_->Label26->setCaption("P = aQ³ + bQ² + cQ + d");
    // Kept: the power of the first term, though 2 would be right.
    ui_->Label30->setCaption("P'= 3aQ³ + 2bQ + c");
    openPanel(ui_->Picture2, ui_->Command4);
}

void Diff::showDerivative() {
    ui_->Label37->show();
    focusOn(ui_->Command5);
}

void Diff::showDerivativeAtPoint() {
    showAll({ui_->Label47, ui_->Label18, ui_->Label37});
    focusOn(ui_->Command2);
}

void Diff::closeHelp() {
    // Kept: the steps that have been shown stay shown until the next exercise.
    ui_->Picture2->hide();
    ui_->Label6->show();
    focusOn(ui_->Text1);
}

}  // namespace tavrune
