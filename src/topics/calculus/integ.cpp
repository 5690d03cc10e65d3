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
    enterChain({ui_->integral}, LastBox::OkOrStay);
    onClick(ui_->showWorkedSolution, &Integ::uncover);
}

Integ::~Integ() = default;

void Integ::loadStep() { ui_->newExercise->show(); }

void Integ::newExercise() {
    ui_->helpPanel->hide();
    ui_->workedSolutionCover->show();
    drawAxes();

    tavrune::newExercise(state_, draws());

    writeTexts();
    clearBoxes({ui_->integral});
    showAsking();
    ui_->newExercise->show();
    focusOn(ui_->integral);
    drawCurve(kLargestOfTask);
}

void Integ::drawAxes() {
    GraphBox& graph = *ui_->graph;
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
    ui_->givenFunction->setCaption(functionText(state_));
    ui_->workedFunction->setCaption(worked.function);
    ui_->workedNumbersIntegrand->setCaption(worked.integrand);
    write({ui_->workedPrimitiveCubicTerm, ui_->workedPrimitiveCube, ui_->workedPrimitiveQuadraticTerm,
           ui_->workedPrimitiveSquare, ui_->workedPrimitiveLinearTerm},
          worked.primitive);
    write(
        {ui_->workedLettersUpperCubicTerm, ui_->workedLettersUpperCube, ui_->workedLettersUpperQuadraticTerm,
         ui_->workedLettersUpperSquare, ui_->workedLettersUpperLinearTerm},
        worked.upperWithLetters);
    write(
        {ui_->workedLettersLowerCubicTerm, ui_->workedLettersLowerCube, ui_->workedLettersLowerQuadraticTerm,
         ui_->workedLettersLowerSquare, ui_->workedLettersLowerLinearTerm},
        worked.lowerWithLetters);
    write(
        {ui_->workedNumbersUpperCubicTerm, ui_->workedNumbersUpperCube, ui_->workedNumbersUpperQuadraticTerm,
         ui_->workedNumbersUpperSquare, ui_->workedNumbersUpperLinearTerm},
        worked.upperWithNumbers);
    write(
        {ui_->workedNumbersLowerCubicTerm, ui_->workedNumbersLowerCube, ui_->workedNumbersLowerQuadraticTerm,
         ui_->workedNumbersLowerSquare, ui_->workedNumbersLowerLinearTerm},
        worked.lowerWithNumbers);
    ui_->workedResult->setCaption(worked.value);
    ui_->integralSign->setAccessibleName(
        QString("integralet fra %1 til %2 af p dQ =")
            .arg(fromUtf8(NumberText(state_.v)), fromUtf8(NumberText(state_.w))));
    for (Label* upper : {ui_->upperLimit, ui_->workedNumbersUpperLimit}) {
        upper->setCaption(NumberText(state_.w));
    }
    for (Label* lower : {ui_->lowerLimit, ui_->workedNumbersLowerLimit}) {
        lower->setCaption(NumberText(state_.v));
    }
}

void Integ::drawCurve(double largest) {
    GraphBox& graph = *ui_->graph;
    if (state_.a == 0) {
        graph.Line(-kFarQ, valueAt(state_, -kFarQ), kFarQ, valueAt(state_, kFarQ));
        return;
    }
    plotCurve(graph, [this](double q) { return valueAt(state_, q); },
              {.start = -10, .step = 0.05, .neverMet = 10, .largest = largest});
}

void Integ::hatchArea() {
    hatch(
        *ui_->graph, [this](double q) { return valueAt(state_, q); }, static_cast<int>(state_.v),
        static_cast<int>(state_.w), kBlue);
}

void Integ::judge() {
    hideVerdict();
    const bool right = isRight(state_, ui_->integral->value());
    ui_->integral->mark(!right);
    if (right) {
        solved();
        hatchArea();
        return;
    }
    failed();
    focusOn(ui_->integral);
}

void Integ::giveAnswer() {
    ui_->integral->setContent(answerText(state_));
    whiten({ui_->integral});
    given();
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
    const auto& u = *ui_;
    const double left = u.workedPriceEquals->place().left();
    layOutRow({u.workedPriceEquals, u.workedFunction, u.workedPrimitiveEquals, u.workedPrimitiveCubicTerm,
               u.workedPrimitiveCube, u.workedPrimitiveQuadraticTerm, u.workedPrimitiveSquare,
               u.workedPrimitiveLinearTerm},
              left);
    layOutRow({u.workedLettersIntegrandHead, u.workedLettersIntegrandSquare, u.workedLettersIntegrandTail,
               u.workedLettersDifferentialEquals},
              u.workedLettersIntegrandHead->place().left());
    // The upper part takes the last five of its labels; the others stay empty.
    layOutRow({u.emptyBeforeCubicTerm, u.emptyBeforeCube, u.emptyBeforeQuadraticTerm, u.emptyBeforeSquare,
               u.workedLettersUpperCubicTerm, u.workedLettersUpperCube, u.workedLettersUpperQuadraticTerm,
               u.workedLettersUpperSquare, u.workedLettersUpperLinearTerm, u.workedLettersLowerCubicTerm,
               u.workedLettersLowerCube, u.workedLettersLowerQuadraticTerm, u.workedLettersLowerSquare,
               u.workedLettersLowerLinearTerm},
              left);
    layOutRow({u.workedNumbersIntegrand, u.workedNumbersDifferentialEquals},
              u.workedNumbersIntegrand->place().left());
    layOutRow({u.workedNumbersUpperCubicTerm, u.workedNumbersUpperCube, u.workedNumbersUpperQuadraticTerm,
               u.workedNumbersUpperSquare, u.workedNumbersUpperLinearTerm, u.workedNumbersLowerCubicTerm,
               u.workedNumbersLowerCube, u.workedNumbersLowerQuadraticTerm, u.workedNumbersLowerSquare,
               u.workedNumbersLowerLinearTerm},
              left);
}

void Integ::uncover() {
    ui_->workedSolutionCover->hide();
    focusOn(ui_->closeHelp);
}

void Integ::closeHelp() {
    ui_->helpPanel->hide();
    ui_->workedSolutionCover->show();
}

}  // namespace tavrune
