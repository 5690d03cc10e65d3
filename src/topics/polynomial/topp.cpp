#include "topics/polynomial/topp.h"

#include "controls/fraction.h"
#include "controls/panel.h"
#include "controls/row.h"
#include "graph/curve.h"
#include "graph/ticks.h"
#include "topics/polynomial/ui_topp.h"

namespace tavrune {
namespace {

/// Half the width of the cross at the student's point.
constexpr double kReach = 0.5;
/// Around the fractions of the worked solution.
constexpr double kGap = 4;

}  // namespace

Topp::Topp(Draws& draws) : ExerciseForm(PageName::Topp, draws), ui_(std::make_unique<Ui::Topp>()) {
    setUp(*ui_);
    buttons({.newExercise = ui_->Command7,
             .ok = ui_->Command3,
             .giveAnswer = ui_->Command11,
             .help = ui_->Command1});
    verdict(TwoLabels{.right = ui_->Label10, .wrong = ui_->Label27});
    // Kept: from the right-hand box to the left-hand one.
    enterChain({ui_->Text16, ui_->Text7}, LastBox::OkOrStay);
    onClick(ui_->Command2, &Topp::uncover);
    onClick(ui_->Command4, &Topp::closeHelp);
}

Topp::~Topp() = default;

void Topp::loadStep() { ui_->Command7->show(); }

void Topp::newExercise() {
    ui_->Picture2->hide();
    ui_->Label49->show();
    drawAxes();
    ui_->Command7->hide();

    tavrune::newExercise(state_, draws());

    ui_->Label22->setCaption("Bestem toppunktet i følgende andengradspolynomium");
    ui_->Label1->setCaption(state_.polynomialText);
    ui_->Label61->setCaption(state_.polynomialText);
    fillHelp();
    clearBoxes({ui_->Text7, ui_->Text16});
    showAll({ui_->Label22, ui_->Label5, ui_->Label2, ui_->Text7, ui_->Label14, ui_->Text16, ui_->Label15,
             ui_->Command7});
    showAsking();
    focusOn(ui_->Text16);
}

void Topp::drawAxes() {
    GraphBox& graph = *ui_->Picture1;
    graph.Cls();
    graph.Scale(-2, 15, 15, -15);
    graph.Line(0, 20, 0, -20);
    graph.Line(-20, 0, 20, 0);
    drawTicksAlongX(graph, {.from = -15, .before = 15}, {0.2});
    drawTicksAlongY(graph, {.from = -15, .before = 15}, {0.1});
    drawTicksAlongX(graph, {.from = -15, .before = 15, .step = 5}, {0.3});
    drawTicksAlongY(graph, {.from = -15, .before = 15, .step = 5}, {0.2});
    drawTicksAlongX(graph, {.from = -15, .before = 20, .step = 5}, {0.4});
    drawTicksAlongY(graph, {.from = -15, .before = 15, .step = 5}, {0.3});
}

void Topp::fillHelp() {
    const ToppWorked worked = workedSolution(state_);
    ui_->Label51->setCaption(worked.discriminant);
    ui_->Label48->setCaption(worked.result);
    const Fraction p(ui_->Label45, ui_->Line3, ui_->Label46);
    p.setTexts(worked.numeratorOfP, worked.denominatorOfP);
    const Fraction q(ui_->Label43, ui_->Line4, ui_->Label44);
    q.setTexts(worked.numeratorOfQ, worked.denominatorOfQ);

    const double left = ui_->Label39->place().left();
    p.setLeft(layOutRow({ui_->Label39, ui_->Label40}, left, kGap) + kGap);
    q.setLeft(layOutRow({ui_->Label42}, p.right() + kGap) + kGap);
    layOutRow({ui_->Label41}, q.right() + kGap);
}

void Topp::drawCurve() {
    plotCurve(*ui_->Picture1, [this](double q) { return valueAt(state_.polynomial, q); },
              {.start = -7, .step = 0.05, .neverMet = 7, .largest = 1000});
}

void Topp::judge() {
    hideVerdict();
    const ToppVerdict right = tavrune::judge(state_, ui_->Text7->value(), ui_->Text16->value());
    ui_->Text7->mark(!right.q);
    ui_->Text16->mark(!right.p);
    if (right.q && right.p) {
        solved();
        drawCurve();
        return;
    }
    failed();
    focusOn(right.p ? ui_->Text7 : ui_->Text16);
}

void Topp::giveAnswer() {
    const double typedQ = ui_->Text7->value();
    const double typedP = ui_->Text16->value();
    whiten({ui_->Text7, ui_->Text16});
    ui_->Text7->setContent(answerTextOfQ(state_));
    ui_->Text16->setContent(answerTextOfP(state_));
    given();
    ui_->Picture1->Line(typedQ - kReach, typedP, typedQ + kReach, typedP, kRed);
    ui_->Picture1->Line(typedQ, typedP - kReach, typedQ, typedP + kReach, kRed);
    drawCurve();
}

void Topp::help() { openPanel(ui_->Picture2, ui_->Command2); }

void Topp::uncover() {
    ui_->Label49->hide();
    focusOn(ui_->Command4);
}

void Topp::closeHelp() {
    ui_->Picture2->hide();
    focusOn(ui_->Text16);
}

}  // namespace tavrune
