#include "topics/basics/lininter.h"

#include "controls/fraction.h"
#include "controls/panel.h"
#include "controls/text.h"
#include "graph/graph_box.h"
#include "graph/ticks.h"
#include "topics/basics/ui_lininter.h"

namespace tavrune {
namespace {

constexpr double kTopmostP = 16.5;
constexpr double kLowestP = -5;
/// How far the tick dots stand off their axis.
constexpr double kOffAxis = 0.1;
/// The name of a point stands below it.
constexpr double kNameDrop = 0.5;

}  // namespace

Lininter::Lininter(Draws& draws)
    : ExerciseForm(PageName::Lininter, draws), ui_(std::make_unique<Ui::Lininter>()) {
    setUp(*ui_);
    buttons({.newExercise = ui_->Command3,
             .ok = ui_->Command1,
             .giveAnswer = ui_->Command2,
             .help = ui_->Command10});
    verdict(TwoLabels{.right = ui_->Label19, .wrong = ui_->Label18});
    enterChain({ui_->Text1}, LastBox::OkOrStay);
    onClick(ui_->Command11, &Lininter::uncoverLeft);
    onClick(ui_->Command12, &Lininter::uncoverRight);
    onClick(ui_->Command13, &Lininter::closeHelp);
}

Lininter::~Lininter() = default;

void Lininter::newExercise() {
    drawAxes();
    ui_->Command11->setEnabled(false);
    ui_->Command12->setEnabled(false);
    showAll({ui_->Label99, ui_->Label100});
    ui_->Picture2->hide();
    showAll({ui_->Label3, ui_->Label9, ui_->Label13, ui_->Label14, ui_->Label15, ui_->Label16, ui_->Label17,
             ui_->Text1});
    showAsking();
    clearBoxes({ui_->Text1});

    tavrune::newExercise(state_, draws());

    ui_->Label3->setCaption(textOfA(state_));
    ui_->Label9->setCaption(textOfB(state_));
    const LininterTask asked = task(state_);
    ui_->Label13->setCaption(asked.givenLetter);
    ui_->Label15->setCaption(asked.given);
    ui_->Label16->setCaption(asked.askedLetter);
    ui_->Text1->setAccessibleName(QString("det nye punkts %1-koordinat").arg(fromUtf8(asked.askedLetter)));
    drawPoints();
    focusOn(ui_->Text1);
}

void Lininter::drawAxes() {
    GraphBox& graph = *ui_->Picture1;
    graph.Cls();
    graph.Scale(kLeftmostQ, kTopmostP, kRightmostQ, kLowestP);
    graph.Line(0, kTopmostP, 0, kLowestP);
    graph.Line(kLeftmostQ, 0, kRightmostQ, 0);
    drawTicksAlongX(graph, {.from = -7, .before = 15}, {kOffAxis});
    drawTicksAlongY(graph, {.from = -5, .before = 17}, {kOffAxis});
}

void Lininter::drawPoints() {
    draw(crossAt(state_.Qa, state_.Pa), kBlue);
    draw(crossAt(state_.Qb, state_.Pb), kBlue);
    showAll({ui_->Label26, ui_->Label27});
    ui_->Picture1->place(*ui_->Label26, state_.Qa, state_.Pa - kNameDrop);
    ui_->Picture1->place(*ui_->Label27, state_.Qb, state_.Pb - kNameDrop);
}

void Lininter::judge() {
    hideVerdict();
    if (!isRight(state_, ui_->Text1->value())) {
        failed();
        focusOn(ui_->Text1);
        ui_->Text1->mark(true);
        return;
    }
    whiten({ui_->Text1});
    solved();
    drawSolution();
    draw(arrowheads(state_, Occasion::Judged), kGreen);
}

void Lininter::giveAnswer() {
    given();
    const double typed = ui_->Text1->value();
    ui_->Text1->setContent(answerText(state_));
    whiten({ui_->Text1});
    drawSolution();
    draw(crossOfTyped(state_, typed), kRed);
    draw(arrowheads(state_, Occasion::Given), kGreen);
}

void Lininter::drawSolution() {
    draw(std::array{lineThroughPoints(state_)}, kBlue);
    draw(guideLines(state_), kGreen);
}

void Lininter::draw(std::span<const Segment> segments, const QColor& colour) {
    for (const Segment& s : segments) {
        ui_->Picture1->Line(s.x1, s.y1, s.x2, s.y2, colour);
    }
}

void Lininter::help() {
    // Only the solution that fits the direction is filled; what the other column holds stays covered.
    const LininterWorked worked = workedSolution(state_);
    const bool isLeft = isQGiven(state_);
    const Fraction fraction = isLeft ? Fraction(ui_->Label91, ui_->Line3, ui_->Label92)
                                     : Fraction(ui_->Label95, ui_->Line4, ui_->Label96);
    Label* const ratio = isLeft ? ui_->Label93 : ui_->Label97;
    fraction.setTexts(worked.numerator, worked.denominator);
    ratio->setCaption(worked.ratio);
    ratio->setLeft(fraction.right());
    (isLeft ? ui_->Label94 : ui_->Label98)->setCaption(worked.result);

    Button* const vis = isLeft ? ui_->Command11 : ui_->Command12;
    vis->setEnabled(true);
    ui_->Picture3->show();
    openPanel(ui_->Picture2, vis);
}

void Lininter::uncoverLeft() {
    ui_->Label99->hide();
    focusOn(ui_->Command13);
}

void Lininter::uncoverRight() {
    ui_->Label100->hide();
    focusOn(ui_->Command13);
}

void Lininter::closeHelp() {
    ui_->Picture2->hide();
    showAll({ui_->Label99, ui_->Label100});
}

}  // namespace tavrune
