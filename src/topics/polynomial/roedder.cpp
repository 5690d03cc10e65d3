#include "topics/polynomial/roedder.h"

#include "controls/frame.h"
#include "controls/panel.h"
#include "graph/curve.h"
#include "graph/ticks.h"
#include "topics/polynomial/ui_roedder.h"

namespace tavrune {
namespace {

constexpr int kEnd = 15;
constexpr double kHalfTick = 0.5;

}  // namespace

Roedder::Roedder(Draws& draws)
    : ExerciseForm(PageName::Roedder, draws), ui_(std::make_unique<Ui::Roedder>()) {
    setUp(*ui_);
    enterChain({ui_->rootOne, ui_->rootTwo}, LastBox::OkOrStay);
    options_ = {{ui_->twoRoots, RootCount::Two},
                {ui_->doubleRoot, RootCount::Double},
                {ui_->noRoots, RootCount::None}};
    onClick(ui_->twoRoots, &Roedder::askForTwoRoots);
    onClick(ui_->doubleRoot, &Roedder::askForDoubleRoot);
    onClick(ui_->noRoots, &Roedder::askForNoRoots);
    onClick(ui_->showDiscriminant, &Roedder::showDiscriminant);
    onClick(ui_->showRootCount, &Roedder::showRootCount);
    onClick(ui_->showRoots, &Roedder::showSolution);
}

Roedder::~Roedder() = default;

void Roedder::loadStep() { ui_->newExercise->show(); }

void Roedder::newExercise() {
    showAll({ui_->rootsCover, ui_->rootCountCover, ui_->discriminantCover});
    closeHelp();
    drawAxes();
    options_.resetColours();
    options_.chooseNone();
    // Kept: the boxes hold text and colour until an option is picked.
    hideAnswer();
    ui_->ok->hide();

    tavrune::newExercise(state_, draws());

    ui_->givenFunction->setCaption(state_.polynomial);
    ui_->workedFunction->setCaption(state_.polynomial);
    ui_->workedDiscriminant->setCaption(discriminantText(state_));
    clearWorkedSolution();
}

void Roedder::drawAxes() {
    GraphBox& graph = *ui_->graph;
    graph.Cls();
    graph.Scale(-kEnd, kEnd, kEnd, -kEnd);
    graph.Line(0, kEnd, 0, -kEnd);
    graph.Line(-kEnd, 0, kEnd, 0);
    drawTicksAlongX(graph, {.from = -15, .before = 15}, {0.2});
    drawTicksAlongY(graph, {.from = -15, .before = 15}, {0.1});
    for (const double offAxis : {0.2, 0.3}) {
        drawTicksAlongX(graph, {.from = -15, .before = 15, .step = 5}, {offAxis});
        drawTicksAlongY(graph, {.from = -15, .before = 15, .step = 5}, {offAxis});
    }
}

void Roedder::drawCurve(double neverMet) {
    plotCurve(*ui_->graph, [this](double q) { return valueAt(state_.coefficients, q); },
              {.start = -10, .step = 0.05, .neverMet = neverMet, .largest = 2000});
}

void Roedder::drawTick(double root) { ui_->graph->Line(root, -kHalfTick, root, kHalfTick, kRed); }

void Roedder::hideAnswer() {
    hideAll({ui_->rootOne, ui_->rootTwo, ui_->doubleRootCaption, ui_->rootOneCaption, ui_->rootTwoCaption,
             ui_->giveAnswer});
    hideVerdict();
}

void Roedder::nameSecondBox(RootCount count) {
    ui_->rootTwo->setAccessibleName(count == RootCount::Double ? "dobbelt rod" : "rod 2");
}

void Roedder::askForTwoRoots() {
    hideAnswer();
    clearBoxes({ui_->rootOne, ui_->rootTwo});
    nameSecondBox(RootCount::Two);
    showAll({ui_->rootOne, ui_->rootTwo, ui_->rootOneCaption, ui_->rootTwoCaption, ui_->ok});
    focusOn(ui_->rootOne);
}

void Roedder::askForDoubleRoot() {
    hideAnswer();
    whiten({ui_->rootOne, ui_->rootTwo});
    // Kept: the first box is hidden with what it holds, and still decides which box is marked.
    ui_->rootTwo->setContent("");
    nameSecondBox(RootCount::Double);
    showAll({ui_->rootTwo, ui_->doubleRootCaption, ui_->ok});
    focusOn(ui_->rootTwo);
}

void Roedder::askForNoRoots() {
    hideAnswer();
    ui_->ok->show();
    focusOn(ui_->ok);
}

void Roedder::judge() {
    whiten({ui_->rootOne, ui_->rootTwo});
    const TypedRoots typed{.first = ui_->rootOne->value(), .second = ui_->rootTwo->value()};
    if (isRight(state_, options_.chosen(), typed)) {
        solved();
        colourRightOption();
        drawCurve(10);
        return;
    }
    failed();
    if (options_.chosen() == RootCount::Two) {
        drawTick(typed.first);
        drawTick(typed.second);
    } else if (options_.chosen() == RootCount::Double) {
        drawTick(typed.second);
    }
    const RootMarks marks = rootMarks(state_.discriminant, state_.roots, typed);
    ui_->rootOne->mark(marks.first);
    ui_->rootTwo->mark(marks.second);
}

void Roedder::giveAnswer() {
    whiten({ui_->rootOne, ui_->rootTwo});
    options_.resetColours();
    colourRightOption();

    const RootCount count = rootCountOf(state_.discriminant);
    const bool isTwo = count == RootCount::Two;
    const bool isDouble = count == RootCount::Double;
    nameSecondBox(count);
    setShown(isTwo, {ui_->rootOneCaption, ui_->rootTwoCaption, ui_->rootOne});
    setShown(isDouble, {ui_->doubleRootCaption});
    setShown(isTwo || isDouble, {ui_->rootTwo});
    const RoedderAnswer answer = answerTexts(state_);
    if (isTwo) {
        ui_->rootOne->setContent(answer.root1);
        ui_->rootTwo->setContent(answer.root2);
    } else if (isDouble) {
        ui_->rootTwo->setContent(answer.root1);
    }
    drawCurve(state_.coefficients.a < 0 ? 7 : 10);
    given();
}

void Roedder::colourRightOption() { options_.colour(rootCountOf(state_.discriminant), kGreen); }

void Roedder::help() {
    switch (rootCountOf(state_.discriminant)) {
        case RootCount::Two:
            workOutTwoRoots();
            break;
        case RootCount::Double:
            workOutDoubleRoot();
            break;
        case RootCount::None:
            showAll({ui_->workedNoRootsConclusion, ui_->workedNoRootsCase, ui_->workedNoRootsText});
            break;
    }
    openPanel(ui_->helpPanel, ui_->showDiscriminant);
}

void Roedder::workOutTwoRoots() {
    showAll({ui_->workedTwoRootsConclusion, ui_->workedTwoRootsCase, ui_->workedRootOneEquals,
             ui_->workedRootOneLeadingMinus, ui_->workedRootOnePlusRoot, ui_->workedRootOneResultEquals,
             ui_->workedRootTwoEquals, ui_->workedRootTwoLeadingMinus, ui_->workedRootTwoMinusRoot,
             ui_->workedRootTwoResultEquals, ui_->workedRootOneRootSignHook, ui_->workedRootOneRootSignRise,
             ui_->workedRootOneRootSignBar, ui_->workedRootOneBar, ui_->workedRootTwoRootSignHook,
             ui_->workedRootTwoRootSignRise, ui_->workedRootTwoRootSignBar, ui_->workedRootTwoBar});
    const RoedderFormula formula = formulaTexts(state_);
    ui_->workedRootOneCoefficientB->setCaption(formula.b);
    ui_->workedRootTwoCoefficientB->setCaption(formula.b);
    ui_->workedRootOneDiscriminant->setCaption(formula.d);
    ui_->workedRootTwoDiscriminant->setCaption(formula.d);
    ui_->workedRootOneDenominator->setCaption(formula.denominator);
    ui_->workedRootTwoDenominator->setCaption(formula.denominator);
    const RoedderAnswer answer = answerTexts(state_);
    ui_->workedRootOneResult->setCaption(answer.root1);
    ui_->workedRootTwoResult->setCaption(answer.root2);
}

void Roedder::workOutDoubleRoot() {
    showAll({ui_->workedDoubleRootConclusion, ui_->workedDoubleRootCase, ui_->workedDoubleRootEquals,
             ui_->workedDoubleRootResultEquals, ui_->workedDoubleRootBar});
    const RoedderFormula formula = formulaTexts(state_);
    ui_->workedDoubleRootNumerator->setCaption(formula.minusB);
    ui_->workedDoubleRootDenominator->setCaption(formula.denominator);
    ui_->workedDoubleRootResult->setCaption(answerTexts(state_).root1);
}

void Roedder::clearWorkedSolution() {
    // Kept: the places of the numbers are emptied and stay; the rest is hidden until help is asked for.
    for (Label* number :
         {ui_->workedRootOneCoefficientB, ui_->workedRootOneDiscriminant, ui_->workedRootOneDenominator,
          ui_->workedRootOneResult, ui_->workedRootTwoCoefficientB, ui_->workedRootTwoDiscriminant,
          ui_->workedRootTwoDenominator, ui_->workedRootTwoResult, ui_->workedDoubleRootNumerator,
          ui_->workedDoubleRootDenominator, ui_->workedDoubleRootResult}) {
        number->setCaption("");
    }
    hideAll(
        {ui_->workedTwoRootsConclusion,  ui_->workedDoubleRootConclusion, ui_->workedNoRootsConclusion,
         ui_->workedTwoRootsCase,        ui_->workedRootOneEquals,        ui_->workedRootOneLeadingMinus,
         ui_->workedRootOnePlusRoot,     ui_->workedRootOneResultEquals,  ui_->workedRootTwoEquals,
         ui_->workedRootTwoLeadingMinus, ui_->workedRootTwoMinusRoot,     ui_->workedRootTwoResultEquals,
         ui_->workedDoubleRootCase,      ui_->workedDoubleRootEquals,     ui_->workedDoubleRootResultEquals,
         ui_->workedNoRootsCase,         ui_->workedNoRootsText,          ui_->workedRootOneRootSignHook,
         ui_->workedRootOneRootSignRise, ui_->workedRootOneRootSignBar,   ui_->workedRootOneBar,
         ui_->workedRootTwoRootSignHook, ui_->workedRootTwoRootSignRise,  ui_->workedRootTwoRootSignBar,
         ui_->workedRootTwoBar,          ui_->workedDoubleRootBar});
}

void Roedder::showDiscriminant() {
    ui_->discriminantCover->hide();
    focusOn(ui_->showRootCount);
}

void Roedder::showRootCount() {
    hideAll({ui_->discriminantCover, ui_->rootCountCover});
    focusOn(ui_->showRoots);
}

void Roedder::showSolution() {
    hideAll({ui_->discriminantCover, ui_->rootCountCover, ui_->rootsCover});
    focusOn(ui_->closeHelp);
}

void Roedder::closeHelp() { ui_->helpPanel->hide(); }

}  // namespace tavrune
