#include "topics/calculus/integ.h"

#include "controls/row.h"
#include "controls/text.h"
#include "graph/axes.h"
#include "graph/curve.h"
#include "numeric/text.h"
#include "topics/calculus/hatching.h"
#include "topics/calculus/ui_integ.h"

namespace tavrune {
namespace {

/// Where the line of a linear p ends.
constexpr int kFarQ = 15;
constexpr double kLargestOfTask = 2000;
constexpr double kLargestOfAnswer = 1000;

const Axes& axes() {
    static const Axes kAxes{
        .scale = {-1, 65, 8, -65},
        .level = {-15, 15},
        .upright = {65, -65},
        .ticks = {{.along = Along::X, .from = -15, .before = 15, .offAxis = {0.25}},
                  {.along = Along::X, .from = -15, .before = 15, .step = 5, .offAxis = {0.5, 0.7, 0.9}},
                  {.along = Along::Y, .from = -70, .before = 70, .step = 10, .offAxis = {0.05, 0.075, 0.1}}}};
    return kAxes;
}

}  // namespace

IntegRowLabels IntegRowLabels::of(const QWidget& page, const QString& prefix) {
    return {.cubicTerm = page.findChild<Label*>(prefix + "CubicTerm"),
            .cube = page.findChild<Label*>(prefix + "Cube"),
            .quadraticTerm = page.findChild<Label*>(prefix + "QuadraticTerm"),
            .square = page.findChild<Label*>(prefix + "Square"),
            .linearTerm = page.findChild<Label*>(prefix + "LinearTerm")};
}

void IntegRowLabels::write(const IntegRow& row) const {
    cubicTerm->setCaption(row.cubicTerm);
    cube->setCaption(row.cube);
    quadraticTerm->setCaption(row.quadraticTerm);
    square->setCaption(row.square);
    linearTerm->setCaption(row.linearTerm);
}

double IntegRowLabels::layOut(double left) const {
    return layOutRow({cubicTerm, cube, quadraticTerm, square, linearTerm}, left);
}

Integ::Integ(Draws& draws) : ExerciseForm(PageName::Integ, draws), ui_(std::make_unique<Ui::Integ>()) {
    setUp(*ui_);
    enterChain({ui_->integral}, LastBox::OkOrStay);
    onClick(ui_->showWorkedSolution, &Integ::showWorkedSolution);
    rows_ = {.primitive = IntegRowLabels::of(*design(), "workedPrimitive"),
             .upperWithLetters = IntegRowLabels::of(*design(), "workedLettersUpper"),
             .lowerWithLetters = IntegRowLabels::of(*design(), "workedLettersLower"),
             .upperWithNumbers = IntegRowLabels::of(*design(), "workedNumbersUpper"),
             .lowerWithNumbers = IntegRowLabels::of(*design(), "workedNumbersLower")};
}

Integ::~Integ() = default;

void Integ::newExercise() {
    ui_->helpPanel->hide();
    ui_->workedSolutionCover->show();
    drawAxes(*ui_->graph, axes());

    tavrune::newExercise(state_, draws());

    showTask();
    fillHelp();
    clearBoxes({ui_->integral});
    showAsking();
    focusOn(ui_->integral);
    drawCurve(kLargestOfTask);
}

void Integ::showTask() {
    ui_->givenFunction->setCaption(functionText(state_));
    ui_->integralSign->setAccessibleName(
        QString("integralet fra %1 til %2 af p dQ =")
            .arg(fromUtf8(NumberText(state_.v)), fromUtf8(NumberText(state_.w))));
    ui_->upperLimit->setCaption(NumberText(state_.w));
    ui_->lowerLimit->setCaption(NumberText(state_.v));
}

void Integ::fillHelp() {
    const IntegWorked worked = workedSolution(state_);
    ui_->workedFunction->setCaption(worked.function);
    rows_.primitive.write(worked.primitive);
    rows_.upperWithLetters.write(worked.upperWithLetters);
    rows_.lowerWithLetters.write(worked.lowerWithLetters);
    ui_->workedNumbersUpperLimit->setCaption(NumberText(state_.w));
    ui_->workedNumbersLowerLimit->setCaption(NumberText(state_.v));
    ui_->workedNumbersIntegrand->setCaption(worked.integrand);
    rows_.upperWithNumbers.write(worked.upperWithNumbers);
    rows_.lowerWithNumbers.write(worked.lowerWithNumbers);
    ui_->workedResult->setCaption(worked.value);
}

void Integ::drawCurve(double largest) {
    GraphBox& graph = *ui_->graph;
    if (state_.a == 0) {
        graph.Line(-kFarQ, valueAt(state_, -kFarQ), kFarQ, valueAt(state_, kFarQ));
        return;
    }
    plotCurve(graph, [this](double q) { return valueAt(state_, q); },
              {.start = -10, .step = 0.05, .largest = largest});
}

void Integ::hatchArea() {
    hatch(
        *ui_->graph, [this](double q) { return valueAt(state_, q); }, static_cast<int>(state_.v),
        static_cast<int>(state_.w), kBlue);
}

void Integ::judge() {
    hideVerdict();
    if (showJudgement(tavrune::judge(state_, {ui_->integral->value()}), {ui_->integral}, ui_->integral)) {
        hatchArea();
    }
}

void Integ::giveAnswer() {
    ui_->integral->setContent(answerText(state_));
    whiten({ui_->integral});
    showGiven();
    drawCurve(kLargestOfAnswer);
    hatchArea();
}

void Integ::help() {
    const IntegWorked worked = workedSolution(state_);
    ui_->workedLettersIntegrandHead->setCaption(worked.integrandHead);
    ui_->workedLettersIntegrandTail->setCaption(worked.integrandTail);
    setShown(state_.a != 0, {ui_->workedLettersIntegrandSquare, ui_->workedLettersIntegrandTail});
    ui_->generalPrimitive->setCaption("p=aQ² + bQ + c   =>   P= (a/3)Q³ + (b/2)Q² + (c/1)Q + k");
    ui_->generalResult->setCaption("((a/3)w³ + (b/2)w² +(c/1)w) - ((a/3)v³ + (b/2)v²  +  (c/1)v)");
    layOutHelp();
    openPanel(ui_->helpPanel, ui_->showWorkedSolution);
}

void Integ::layOutHelp() {
    const double left = ui_->workedPriceEquals->place().left();
    rows_.primitive.layOut(
        layOutRow({ui_->workedPriceEquals, ui_->workedFunction, ui_->workedPrimitiveEquals}, left));
    layOutFromFirst({ui_->workedLettersIntegrandHead, ui_->workedLettersIntegrandSquare,
                     ui_->workedLettersIntegrandTail, ui_->workedLettersDifferentialEquals});
    rows_.lowerWithLetters.layOut(rows_.upperWithLetters.layOut(left));
    layOutFromFirst({ui_->workedNumbersIntegrand, ui_->workedNumbersDifferentialEquals});
    rows_.lowerWithNumbers.layOut(rows_.upperWithNumbers.layOut(left));
}

void Integ::showWorkedSolution() {
    ui_->workedSolutionCover->hide();
    focusOn(ui_->closeHelp);
}

void Integ::closeHelp() {
    ui_->helpPanel->hide();
    ui_->workedSolutionCover->show();
}

}  // namespace tavrune
