#include "topics/polynomial/topp.h"

#include "controls/fraction.h"
#include "controls/row.h"
#include "graph/axes.h"
#include "graph/curve.h"
#include "topics/polynomial/ui_topp.h"

namespace tavrune {
namespace {

/// Half the width of the cross at the student's point.
constexpr double kReach = 0.5;
/// Around the fractions of the worked solution.
constexpr double kGap = 4;

const Axes& axes() {
    static const Axes kAxes{
        .scale = {-2, 15, 15, -15},
        .level = {-20, 20},
        .upright = {20, -20},
        .ticks = {{.along = Along::X, .from = -15, .before = 15, .offAxis = {0.2}},
                  {.along = Along::Y, .from = -15, .before = 15, .offAxis = {0.1}},
                  {.along = Along::X, .from = -15, .before = 15, .step = 5, .offAxis = {0.3}},
                  {.along = Along::Y, .from = -15, .before = 15, .step = 5, .offAxis = {0.2}},
                  {.along = Along::X, .from = -15, .before = 20, .step = 5, .offAxis = {0.4}},
                  {.along = Along::Y, .from = -15, .before = 15, .step = 5, .offAxis = {0.3}}}};
    return kAxes;
}

}  // namespace

Topp::Topp(Draws& draws) : ExerciseForm(PageName::Topp, draws), ui_(std::make_unique<Ui::Topp>()) {
    setUp(*ui_);
    // Kept (topp-right-to-left): from the right-hand box to the left-hand one.
    enterChain({ui_->vertexPrice, ui_->vertexQuantity}, LastBox::OkOrStay);
    onClick(ui_->showWorkedSolution, &Topp::showWorkedSolution);
}

Topp::~Topp() = default;

void Topp::newExercise() {
    ui_->helpPanel->hide();
    ui_->workedSolutionCover->show();
    drawAxes(*ui_->graph, axes());

    tavrune::newExercise(state_, draws());

    showTask();
    fillHelp();
    ui_->newExercise->show();
    showAsking();
    focusOn(ui_->vertexPrice);
}

void Topp::showTask() {
    ui_->task->setCaption("Bestem toppunktet i følgende andengradspolynomium");
    ui_->givenFunction->setCaption(state_.polynomialText);
    clearBoxes({ui_->vertexQuantity, ui_->vertexPrice});
    showAll({ui_->task, ui_->priceEquals, ui_->vertexEquals, ui_->vertexQuantity, ui_->vertexSemicolon,
             ui_->vertexPrice, ui_->vertexClosingBracket});
}

void Topp::fillHelp() {
    const ToppWorked worked = workedSolution(state_);
    ui_->workedFunction->setCaption(state_.polynomialText);
    ui_->workedDiscriminant->setCaption(worked.discriminant);
    ui_->workedResult->setCaption(worked.result);
    const Fraction p = Fraction::of(*design(), "workedVertexPrice");
    p.setTexts(worked.numeratorOfP, worked.denominatorOfP);
    const Fraction q = Fraction::of(*design(), "workedVertexQuantity");
    q.setTexts(worked.numeratorOfQ, worked.denominatorOfQ);

    p.setLeft(layOutFromFirst({ui_->workedVertexEquals, ui_->workedVertexOpeningBracket}, kGap) + kGap);
    q.setLeft(layOutRow({ui_->workedVertexSemicolon}, p.right() + kGap) + kGap);
    layOutRow({ui_->workedVertexClosingBracket}, q.right() + kGap);
}

void Topp::drawCurve() {
    plotCurve(*ui_->graph, [this](double q) { return valueAt(state_.polynomial, q); },
              {.start = -7, .step = 0.05, .largest = 1000});
}

void Topp::drawTypedVertex(double q, double p) {
    const Figure cross(*ui_->graph, Meaning::Cross);
    ui_->graph->Line(q - kReach, p, q + kReach, p, kRed);
    ui_->graph->Line(q, p - kReach, q, p + kReach, kRed);
}

void Topp::judge() {
    hideVerdict();
    const std::vector<AnswerBox*> boxes{ui_->vertexQuantity, ui_->vertexPrice};
    const Judgement judgement = tavrune::judge(state_, valuesOf(boxes));
    if (showJudgement(judgement, boxes, judgement.isRight[1] ? ui_->vertexQuantity : ui_->vertexPrice)) {
        drawCurve();
    }
}

void Topp::giveAnswer() {
    const double typedQ = ui_->vertexQuantity->value();
    const double typedP = ui_->vertexPrice->value();
    whiten({ui_->vertexQuantity, ui_->vertexPrice});
    ui_->vertexQuantity->setContent(answerTextOfQ(state_));
    ui_->vertexPrice->setContent(answerTextOfP(state_));
    showGiven();
    drawTypedVertex(typedQ, typedP);
    drawCurve();
}

void Topp::help() { openPanel(ui_->helpPanel, ui_->showWorkedSolution); }

void Topp::showWorkedSolution() {
    ui_->workedSolutionCover->hide();
    focusOn(ui_->closeHelp);
}

void Topp::closeHelp() {
    ui_->helpPanel->hide();
    focusOn(ui_->vertexPrice);
}

}  // namespace tavrune
