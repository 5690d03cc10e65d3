#include "topics/basics/dlinie.h"

#include "controls/fraction.h"
#include "controls/panel.h"
#include "graph/graph_box.h"
#include "graph/ticks.h"
#include "numeric/text.h"
#include "topics/basics/ui_dlinie.h"

namespace tavrune {
namespace {

constexpr int kEnd = 10;
constexpr double kFractionLeft = fromTwips(480);
constexpr double kGap = 6;

/// Lays out "a = numerator/denominator = result" in a row.
void showSlope(const DlinieSlopeStep& step, const Fraction& fraction, Label* result) {
    fraction.setTexts(step.numerator, step.denominator);
    fraction.setLeft(kFractionLeft);
    result->setCaption(step.result);
    result->setLeft(fraction.right() + kGap);
}

}  // namespace

Dlinie::Dlinie(Draws& draws) : ExerciseForm(PageName::Dlinie, draws), ui_(std::make_unique<Ui::Dlinie>()) {
    setUp(*ui_);
    enterChain({ui_->slope, ui_->intercept}, LastBox::OkOrStay);
    onClick(ui_->showTwoPointsSlope, &Dlinie::showSlopeOfTwoPoints);
    onClick(ui_->showTwoPointsIntercept, &Dlinie::showInterceptOfTwoPoints);
    onClick(ui_->closeTwoPointsHelp, &Dlinie::closeTwoPoints);
    onClick(ui_->showSlopeAndPointIntercept, &Dlinie::showInterceptOfPoint);
    onClick(ui_->closeSlopeAndPointHelp, &Dlinie::closeSlopeAndPoint);
    onClick(ui_->closeSlopeAndYCrossHelp, &Dlinie::closeSlopeAndYCross);
    onClick(ui_->showSlopeAndXCrossIntercept, &Dlinie::showInterceptOfXCross);
    onClick(ui_->closeSlopeAndXCrossHelp, &Dlinie::closeSlopeAndXCross);
    onClick(ui_->showBothCrossesSlope, &Dlinie::showSlopeOfBothCrosses);
    onClick(ui_->closeBothCrossesHelp, &Dlinie::closeBothCrosses);
}

Dlinie::~Dlinie() = default;

void Dlinie::firstTick() {
    ui_->graph->Scale(-kEnd, kEnd, kEnd, -kEnd);
    // Kept: the first exercise alone may have a slope of 0.
    ask(ZeroSlope::Allowed);
}

void Dlinie::newExercise() {
    whiten({ui_->slope, ui_->intercept});
    ask(ZeroSlope::Rejected);
    closeTwoPoints();
    closeSlopeAndPoint();
    closeSlopeAndYCross();
    closeSlopeAndXCross();
    closeBothCrosses();
}

void Dlinie::ask(ZeroSlope zeroSlope) {
    showAsking();
    ui_->graph->Cls();
    ui_->slope->setContent("");
    ui_->intercept->setContent("");
    drawAxes();

    tavrune::newExercise(state_, draws(), zeroSlope);

    // Without a kind the texts of the last exercise stay.
    if (const auto task = taskTexts(state_)) {
        ui_->task->setCaption(task->sentence);
        ui_->firstFact->setCaption(task->firstFact);
        ui_->secondFact->setCaption(task->secondFact);
    }
    focusOn(ui_->slope);
}

void Dlinie::drawAxes() {
    GraphBox& graph = *ui_->graph;
    graph.Line(0, kEnd, 0, -kEnd);
    graph.Line(-kEnd, 0, kEnd, 0);
    // Kept: the far ends go without a dot, and the Y axis without its lowest.
    drawTicksAlongX(graph, {.from = -kEnd, .before = kEnd}, {0.1});
    drawTicksAlongY(graph, {.from = -kEnd + 1, .before = kEnd}, {0.07});
    graph.place(*ui_->xMark5, 4.7, -0.2);
    graph.place(*ui_->yMarkMinus5, -1, -4.5);
    graph.place(*ui_->xMarkMinus5, -5.2, -0.2);
    graph.place(*ui_->yMark5, -0.8, 5.3);
}

void Dlinie::drawLine(double slope, double intercept, const QColor& colour) {
    ui_->graph->Line(-kEnd, slope * -kEnd + intercept, kEnd, slope * kEnd + intercept, colour);
}

void Dlinie::judge() {
    const double slope = ui_->slope->value();
    const double intercept = ui_->intercept->value();
    const DlinieJudgement judgement = judged(state_, slope, intercept);
    ui_->slope->mark(!judgement.slopeIsRight);
    ui_->intercept->mark(!judgement.interceptIsRight);
    if (judgement.isRight()) {
        solved();
        drawLine(state_.slope, state_.intercept, kGreen);
    } else {
        drawLine(slope, intercept, kRed);
        failed();
        focusOn(ui_->slope);
    }
}

void Dlinie::giveAnswer() {
    given();
    ui_->slope->setContent(NumberText(state_.slope));
    ui_->intercept->setContent(interceptAnswer(state_));
    drawLine(state_.slope, state_.intercept, kGreen);
    whiten({ui_->slope, ui_->intercept});
}

void Dlinie::help() {
    switch (state_.taskType) {
        case LineTask::None:
            break;
        case LineTask::TwoPoints:
            openPanel(ui_->twoPointsHelpPanel, ui_->showTwoPointsSlope);
            break;
        case LineTask::SlopeAndPoint:
            openPanel(ui_->slopeAndPointHelpPanel, ui_->showSlopeAndPointIntercept);
            break;
        case LineTask::SlopeAndYCross:
            // It has no step to show, so the focus stays.
            ui_->slopeAndYCrossHelpPanel->show();
            break;
        case LineTask::SlopeAndXCross:
            openPanel(ui_->slopeAndXCrossHelpPanel, ui_->showSlopeAndXCrossIntercept);
            break;
        case LineTask::BothCrosses:
            openPanel(ui_->bothCrossesHelpPanel, ui_->showBothCrossesSlope);
            break;
    }
}

void Dlinie::showSlopeOfTwoPoints() {
    ui_->twoPointsSlopeStep->show();
    showSlope(slopeBetweenPoints(state_),
              Fraction(ui_->twoPointsWorkedSlopeNumerator, ui_->twoPointsWorkedSlopeBar,
                       ui_->twoPointsWorkedSlopeDenominator),
              ui_->twoPointsWorkedSlopeResult);
}

void Dlinie::showInterceptOfTwoPoints() {
    const DlinieInterceptStep step = interceptFromFirstPoint(state_);
    showAll({ui_->twoPointsWorkedPointInserted, ui_->twoPointsWorkedIntercept});
    ui_->twoPointsWorkedPointInserted->setCaption(step.inserted);
    ui_->twoPointsWorkedIntercept->setCaption(step.solved);
}

void Dlinie::showInterceptOfPoint() {
    const DlinieInterceptStep step = interceptFromPoint(state_);
    showAll({ui_->slopeAndPointWorkedPointInserted, ui_->slopeAndPointWorkedIntercept});
    ui_->slopeAndPointWorkedPointInserted->setCaption(step.inserted);
    ui_->slopeAndPointWorkedIntercept->setCaption(step.solved);
}

void Dlinie::showInterceptOfXCross() {
    const DlinieCrossStep step = interceptFromXCross(state_);
    ui_->slopeAndXCrossInterceptStep->show();
    ui_->slopeAndXCrossWorkedXInserted->setCaption(step.inserted);
    ui_->slopeAndXCrossWorkedYInserted->setCaption(step.withZero);
    ui_->slopeAndXCrossWorkedIntercept->setCaption(step.solved);
    ui_->slopeAndXCrossWorkedResult->setCaption(step.result);
}

void Dlinie::showSlopeOfBothCrosses() {
    ui_->bothCrossesSlopeStep->show();
    showSlope(slopeBetweenCrosses(state_),
              Fraction(ui_->bothCrossesWorkedSlopeNumerator, ui_->bothCrossesWorkedSlopeBar,
                       ui_->bothCrossesWorkedSlopeDenominator),
              ui_->bothCrossesWorkedSlopeResult);
}

void Dlinie::closeTwoPoints() {
    hideAll({ui_->twoPointsHelpPanel, ui_->twoPointsSlopeStep, ui_->twoPointsWorkedPointInserted,
             ui_->twoPointsWorkedIntercept});
}

void Dlinie::closeSlopeAndPoint() {
    hideAll({ui_->slopeAndPointWorkedPointInserted, ui_->slopeAndPointWorkedIntercept,
             ui_->slopeAndPointHelpPanel});
}

void Dlinie::closeSlopeAndYCross() { ui_->slopeAndYCrossHelpPanel->hide(); }

void Dlinie::closeSlopeAndXCross() {
    hideAll({ui_->slopeAndXCrossHelpPanel, ui_->slopeAndXCrossInterceptStep});
}

void Dlinie::closeBothCrosses() { hideAll({ui_->bothCrossesHelpPanel, ui_->bothCrossesSlopeStep}); }

}  // namespace tavrune
