#include "topics/calculus/integ.h"

#include "controls/panel.h"
#include "controls/row.h"
#include "controls/text.h"
#include "graph/curve.h"
#include "graph/ticks.h"
#include "numeric/text.h"
#include "topics/calculus/hatching.h"
#include "topics/calculus/ui_integ.h"

namespace tavrune {
namespace {

/// Where the line of a linear p ends.
constexpr int kFarQ = 15;
constexpr double kLargestOfTask = 2000;
constexpr double kLargestOfAnswer = 1000;

/// Five labels, one for each piece.
void write(std::initializer_list<Label*> labels, const IntegRow& row) {
    const std::string* piece = row.data();
    for (Label* label : labels) {
        label->setCaption(*piece++);
    }
}

}  // namespace

Integ::Integ(Draws& draws) : ExerciseForm(PageName::Integ, draws), ui_(std::make_unique<Ui::Integ>()) {
    setUp(*ui_);
    buttons({.newExercise = ui_->Command8,
             .ok = ui_->Command4,
             .giveAnswer = ui_->Command12,
             .help = ui_->Command1});
    verdict(TwoLabels{.right = ui_->Label10, .wrong = ui_->Label27});
    enterChain({ui_->Text22}, LastBox::OkOrStay);
    onClick(ui_->Command2, &Integ::uncover);
    onClick(ui_->Command3, &Integ::closeHelp);
}

Integ::~Integ() = default;

void Integ::loadStep() { ui_->Command8->show(); }

void Integ::newExercise() {
    ui_->Picture2->hide();
    ui_->Picture3->show();
    drawAxes();

    tavrune::newExercise(state_, draws());

    writeTexts();
    clearBoxes({ui_->Text22});
    showAsking();
    ui_->Command8->show();
    focusOn(ui_->Text22);
    drawCurve(kLargestOfTask);
}

void Integ::drawAxes() {
    GraphBox& graph = *ui_->Picture1;
    graph.Cls();
    graph.Scale(-1, 65, 8, -65);
    graph.Line(0, 65, 0, -65);
    graph.Line(-15, 0, 15, 0);
    drawTicksAlongX(graph, {.from = -15, .before = 15}, {0.25});
    drawTicksAlongX(graph, {.from = -15, .before = 15, .step = 5}, {0.5, 0.7, 0.9});
    drawTicksAlongY(graph, {.from = -70, .before = 70, .step = 10}, {0.05, 0.075, 0.1});
}

void Integ::writeTexts() {
    const IntegWorked worked = workedSolution(state_);
    ui_->Label6->setCaption(functionText(state_));
    ui_->Label48->setCaption(worked.function);
    ui_->Label72->setCaption(worked.integrand);
    write({ui_->Label94, ui_->Label95, ui_->Label96, ui_->Label97, ui_->Label98}, worked.primitive);
    write({ui_->Label57, ui_->Label58, ui_->Label59, ui_->Label60, ui_->Label61}, worked.upperWithLetters);
    write({ui_->Label62, ui_->Label63, ui_->Label64, ui_->Label65, ui_->Label66}, worked.lowerWithLetters);
    write({ui_->Label77, ui_->Label78, ui_->Label79, ui_->Label80, ui_->Label81}, worked.upperWithNumbers);
    write({ui_->Label82, ui_->Label83, ui_->Label84, ui_->Label85, ui_->Label86}, worked.lowerWithNumbers);
    ui_->Label87->setCaption(worked.value);
    ui_->Label51->setAccessibleName(QString("integralet fra %1 til %2 af p dQ =")
                                        .arg(fromUtf8(NumberText(state_.v)), fromUtf8(NumberText(state_.w))));
    for (Label* upper : {ui_->Label11, ui_->Label46}) {
        upper->setCaption(NumberText(state_.w));
    }
    for (Label* lower : {ui_->Label12, ui_->Label47}) {
        lower->setCaption(NumberText(state_.v));
    }
}

void Integ::drawCurve(double largest) {
    GraphBox& graph = *ui_->Picture1;
    if (state_.a == 0) {
        graph.Line(-kFarQ, valueAt(state_, -kFarQ), kFarQ, valueAt(state_, kFarQ));
        return;
    }
    plotCurve(graph, [this](double q) { return valueAt(state_, q); },
              {.start = -10, .step = 0.05, .neverMet = 10, .largest = largest});
}

void Integ::hatchArea() {
    hatch(
        *ui_->Picture1, [this](double q) { return valueAt(state_, q); }, static_cast<int>(state_.v),
        static_cast<int>(state_.w), kBlue);
}

void Integ::judge() {
    hideVerdict();
    const bool right = isRight(state_, ui_->Text22->value());
    ui_->Text22->mark(!right);
    if (right) {
        solved();
        hatchArea();
        return;
    }
    failed();
    focusOn(ui_->Text22);
}

void Integ::giveAnswer() {
    ui_->Text22->setContent(answerText(state_));
    whiten({ui_->Text22});
    given();
    drawCurve(kLargestOfAnswer);
    hatchArea();
}

void Integ::help() {
    const IntegWorked worked = workedSolution(state_);
    ui_->Label30->setCaption(worked.integrandHead);
    ui_->Label32->setCaption(worked.integrandTail);
    setShown(state_.a != 0, {ui_->Label31, ui_->Label32});
    ui_->Label1->setCaption("p=aQ² + bQ + c   =>   P= (a/3)Q³ + (b/2)Q² + (c/1)Q + k");
    ui_->Label44->setCaption("((a/3)w³ + (b/2)w² +(c/1)w) - ((a/3)v³ + (b/2)v²  +  (c/1)v)");
    layOutHelp();
    openPanel(ui_->Picture2, ui_->Command2);
}

void Integ::layOutHelp() {
    const auto& u = *ui_;
    const double left = u.Label203->place().left();
    layOutRow({u.Label203, u.Label48, u.Label204, u.Label94, u.Label95, u.Label96, u.Label97, u.Label98},
              left);
    layOutRow({u.Label30, u.Label31, u.Label32, u.Label33}, u.Label30->place().left());
    // The upper part takes the last five of its labels; the others stay empty.
    layOutRow({u.Label53, u.Label54, u.Label55, u.Label56, u.Label57, u.Label58, u.Label59, u.Label60,
               u.Label61, u.Label62, u.Label63, u.Label64, u.Label65, u.Label66},
              left);
    layOutRow({u.Label72, u.Label205}, u.Label72->place().left());
    layOutRow({u.Label77, u.Label78, u.Label79, u.Label80, u.Label81, u.Label82, u.Label83, u.Label84,
               u.Label85, u.Label86},
              left);
}

void Integ::uncover() {
    ui_->Picture3->hide();
    focusOn(ui_->Command3);
}

void Integ::closeHelp() {
    ui_->Picture2->hide();
    ui_->Picture3->show();
}

}  // namespace tavrune
