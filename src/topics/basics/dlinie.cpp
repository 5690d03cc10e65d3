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
    buttons({.newExercise = ui_->Command1,
             .ok = ui_->Command2,
             .giveAnswer = ui_->Command3,
             .help = ui_->Command4});
    verdict(OneLabel{ui_->Labelf});
    enterChain({ui_->Text1, ui_->Text2}, LastBox::OkOrStay);
    onClick(ui_->Command5, &Dlinie::showSlopeOfTwoPoints);
    onClick(ui_->Command6, &Dlinie::showInterceptOfTwoPoints);
    onClick(ui_->Command7, &Dlinie::closeTwoPoints);
    onClick(ui_->Command8, &Dlinie::showInterceptOfPoint);
    onClick(ui_->Command9, &Dlinie::closeSlopeAndPoint);
    onClick(ui_->Command10, &Dlinie::closeSlopeAndYCross);
    onClick(ui_->Command11, &Dlinie::showInterceptOfXCross);
    onClick(ui_->Command12, &Dlinie::closeSlopeAndXCross);
    onClick(ui_->Command13, &Dlinie::showSlopeOfBothCrosses);
    onClick(ui_->Command14, &Dlinie::closeBothCrosses);
}

Dlinie::~Dlinie() = default;

void Dlinie::firstTick() {
    ui_->Picture1->Scale(-kEnd, kEnd, kEnd, -kEnd);
    // Kept: the first exercise alone may have a slope of 0.
    ask(ZeroSlope::Allowed);
}

void Dlinie::newExercise() {
    whiten({ui_->Text1, ui_->Text2});
    ask(ZeroSlope::Rejected);
    closeTwoPoints();
    closeSlopeAndPoint();
    closeSlopeAndYCross();
    closeSlopeAndXCross();
    closeBothCrosses();
}

void Dlinie::ask(ZeroSlope zeroSlope) {
    showAsking();
    ui_->Picture1->Cls();
    ui_->Text1->setContent("");
    ui_->Text2->setContent("");
    drawAxes();

    tavrune::newExercise(state_, draws(), zeroSlope);

    // Without a kind the texts of the last exercise stay.
    if (const auto task = taskTexts(state_)) {
        ui_->Label1->setCaption(task->sentence);
        ui_->Label3->setCaption(task->firstFact);
        ui_->Label4->setCaption(task->secondFact);
    }
    focusOn(ui_->Text1);
}

void Dlinie::drawAxes() {
    GraphBox& graph = *ui_->Picture1;
    graph.Line(0, kEnd, 0, -kEnd);
    graph.Line(-kEnd, 0, kEnd, 0);
    // Kept: the far ends go without a dot, and the Y axis without its lowest.
    drawTicksAlongX(graph, {.from = -kEnd, .before = kEnd}, {0.1});
    drawTicksAlongY(graph, {.from = -kEnd + 1, .before = kEnd}, {0.07});
    graph.place(*ui_->Label6, 4.7, -0.2);
    graph.place(*ui_->Label7, -1, -4.5);
    graph.place(*ui_->Label8, -5.2, -0.2);
    graph.place(*ui_->Label9, -0.8, 5.3);
}

void Dlinie::drawLine(double slope, double intercept, const QColor& colour) {
    ui_->Picture1->Line(-kEnd, slope * -kEnd + intercept, kEnd, slope * kEnd + intercept, colour);
}

void Dlinie::judge() {
    const double slope = ui_->Text1->value();
    const double intercept = ui_->Text2->value();
    const DlinieJudgement judgement = judged(state_, slope, intercept);
    ui_->Text1->mark(!judgement.slopeIsRight);
    ui_->Text2->mark(!judgement.interceptIsRight);
    if (judgement.isRight()) {
        solved();
        drawLine(state_.slope, state_.intercept, kGreen);
    } else {
        drawLine(slope, intercept, kRed);
        failed();
        focusOn(ui_->Text1);
    }
}

void Dlinie::giveAnswer() {
    given();
    ui_->Text1->setContent(NumberText(state_.slope));
    ui_->Text2->setContent(interceptAnswer(state_));
    drawLine(state_.slope, state_.intercept, kGreen);
    whiten({ui_->Text1, ui_->Text2});
}

void Dlinie::help() {
    switch (state_.taskType) {
        case LineTask::None:
            break;
        case LineTask::TwoPoints:
            openPanel(ui_->Picture2, ui_->Command5);
            break;
        case LineTask::SlopeAndPoint:
            openPanel(ui_->Picture4, ui_->Command8);
            break;
        case LineTask::SlopeAndYCross:
            // It has no step to show, so the focus stays.
            ui_->Picture5->show();
            break;
        case LineTask::SlopeAndXCross:
            openPanel(ui_->Picture6, ui_->Command11);
            break;
        case LineTask::BothCrosses:
            openPanel(ui_->Picture8, ui_->Command13);
            break;
    }
}

void Dlinie::showSlopeOfTwoPoints() {
    ui_->Picture3->show();
    showSlope(slopeBetweenPoints(state_), Fraction(ui_->Label20, ui_->Line2, ui_->Label21), ui_->Label28);
}

void Dlinie::showInterceptOfTwoPoints() {
    const DlinieInterceptStep step = interceptFromFirstPoint(state_);
    showAll({ui_->Label26, ui_->Label27});
    ui_->Label26->setCaption(step.inserted);
    ui_->Label27->setCaption(step.solved);
}

void Dlinie::showInterceptOfPoint() {
    const DlinieInterceptStep step = interceptFromPoint(state_);
    showAll({ui_->Label34, ui_->Label35});
    ui_->Label34->setCaption(step.inserted);
    ui_->Label35->setCaption(step.solved);
}

void Dlinie::showInterceptOfXCross() {
    const DlinieCrossStep step = interceptFromXCross(state_);
    ui_->Picture7->show();
    ui_->Label44->setCaption(step.inserted);
    ui_->Label45->setCaption(step.withZero);
    ui_->Label46->setCaption(step.solved);
    ui_->Label47->setCaption(step.result);
}

void Dlinie::showSlopeOfBothCrosses() {
    ui_->Picture9->show();
    showSlope(slopeBetweenCrosses(state_), Fraction(ui_->Label63, ui_->Line5, ui_->Label64), ui_->Label65);
}

void Dlinie::closeTwoPoints() { hideAll({ui_->Picture2, ui_->Picture3, ui_->Label26, ui_->Label27}); }

void Dlinie::closeSlopeAndPoint() { hideAll({ui_->Label34, ui_->Label35, ui_->Picture4}); }

void Dlinie::closeSlopeAndYCross() { ui_->Picture5->hide(); }

void Dlinie::closeSlopeAndXCross() { hideAll({ui_->Picture6, ui_->Picture7}); }

void Dlinie::closeBothCrosses() { hideAll({ui_->Picture8, ui_->Picture9}); }

}  // namespace tavrune
