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
    buttons({.newExercise = ui_->Command6,
             .ok = ui_->Command2,
             .giveAnswer = ui_->Command10,
             .help = ui_->Command1});
    verdict(TwoLabels{.right = ui_->Label2_0, .wrong = ui_->Label9});
    enterChain({ui_->Text8, ui_->Text9}, LastBox::OkOrStay);
    options_ = {
        {ui_->Option1, RootCount::Two}, {ui_->Option2, RootCount::Double}, {ui_->Option3, RootCount::None}};
    onClick(ui_->Option1, &Roedder::askForTwoRoots);
    onClick(ui_->Option2, &Roedder::askForDoubleRoot);
    onClick(ui_->Option3, &Roedder::askForNoRoots);
    onClick(ui_->Command5, &Roedder::showDiscriminant);
    onClick(ui_->Command4, &Roedder::showRootCount);
    onClick(ui_->Command7, &Roedder::showSolution);
    onClick(ui_->Command3, &Roedder::closeHelp);
}

Roedder::~Roedder() = default;

void Roedder::loadStep() { ui_->Command6->show(); }

void Roedder::newExercise() {
    showAll({ui_->Label88, ui_->Label89, ui_->Label90});
    closeHelp();
    drawAxes();
    options_.resetColours();
    options_.chooseNone();
    // Kept: the boxes hold text and colour until an option is picked.
    hideAnswer();
    ui_->Command2->hide();

    tavrune::newExercise(state_, draws());

    ui_->Label91->setCaption(state_.polynomial);
    ui_->Label92->setCaption(state_.polynomial);
    ui_->Label45->setCaption(discriminantText(state_));
    clearWorkedSolution();
}

void Roedder::drawAxes() {
    GraphBox& graph = *ui_->Picture1;
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
    plotCurve(*ui_->Picture1, [this](double q) { return valueAt(state_.coefficients, q); },
              {.start = -10, .step = 0.05, .neverMet = neverMet, .largest = 2000});
}

void Roedder::drawTick(double root) { ui_->Picture1->Line(root, -kHalfTick, root, kHalfTick, kRed); }

void Roedder::hideAnswer() {
    hideAll({ui_->Text8, ui_->Text9, ui_->Label1_0, ui_->Label3_0, ui_->Label4_0, ui_->Command10});
    hideVerdict();
}

void Roedder::nameSecondBox(RootCount count) {
    ui_->Text9->setAccessibleName(count == RootCount::Double ? "dobbelt rod" : "rod 2");
}

void Roedder::askForTwoRoots() {
    hideAnswer();
    clearBoxes({ui_->Text8, ui_->Text9});
    nameSecondBox(RootCount::Two);
    showAll({ui_->Text8, ui_->Text9, ui_->Label3_0, ui_->Label4_0, ui_->Command2});
    focusOn(ui_->Text8);
}

void Roedder::askForDoubleRoot() {
    hideAnswer();
    whiten({ui_->Text8, ui_->Text9});
    // Kept: the first box is hidden with what it holds, and still decides which box is marked.
    ui_->Text9->setContent("");
    nameSecondBox(RootCount::Double);
    showAll({ui_->Text9, ui_->Label1_0, ui_->Command2});
    focusOn(ui_->Text9);
}

void Roedder::askForNoRoots() {
    hideAnswer();
    ui_->Command2->show();
    focusOn(ui_->Command2);
}

void Roedder::judge() {
    whiten({ui_->Text8, ui_->Text9});
    const TypedRoots typed{.first = ui_->Text8->value(), .second = ui_->Text9->value()};
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
    ui_->Text8->mark(marks.first);
    ui_->Text9->mark(marks.second);
}

void Roedder::giveAnswer() {
    whiten({ui_->Text8, ui_->Text9});
    options_.resetColours();
    colourRightOption();

    const RootCount count = rootCountOf(state_.discriminant);
    const bool isTwo = count == RootCount::Two;
    const bool isDouble = count == RootCount::Double;
    nameSecondBox(count);
    setShown(isTwo, {ui_->Label3_0, ui_->Label4_0, ui_->Text8});
    setShown(isDouble, {ui_->Label1_0});
    setShown(isTwo || isDouble, {ui_->Text9});
    const RoedderAnswer answer = answerTexts(state_);
    if (isTwo) {
        ui_->Text8->setContent(answer.root1);
        ui_->Text9->setContent(answer.root2);
    } else if (isDouble) {
        ui_->Text9->setContent(answer.root1);
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
            showAll({ui_->Label56, ui_->Label81, ui_->Label82});
            break;
    }
    openPanel(ui_->Picture2, ui_->Command5);
}

void Roedder::workOutTwoRoots() {
    showAll({ui_->Label54, ui_->Label57, ui_->Label58, ui_->Label59, ui_->Label61, ui_->Label72, ui_->Label65,
             ui_->Label66, ui_->Label68, ui_->Label73, ui_->Line10, ui_->Line11, ui_->Line12, ui_->Line13,
             ui_->Line14, ui_->Line15, ui_->Line16, ui_->Line17});
    const RoedderFormula formula = formulaTexts(state_);
    ui_->Label60->setCaption(formula.b);
    ui_->Label67->setCaption(formula.b);
    ui_->Label62->setCaption(formula.d);
    ui_->Label69->setCaption(formula.d);
    ui_->Label64->setCaption(formula.denominator);
    ui_->Label71->setCaption(formula.denominator);
    const RoedderAnswer answer = answerTexts(state_);
    ui_->Label74->setCaption(answer.root1);
    ui_->Label75->setCaption(answer.root2);
}

void Roedder::workOutDoubleRoot() {
    showAll({ui_->Label55, ui_->Label76, ui_->Label77, ui_->Label83, ui_->Line18});
    const RoedderFormula formula = formulaTexts(state_);
    ui_->Label78->setCaption(formula.minusB);
    ui_->Label80->setCaption(formula.denominator);
    ui_->Label84->setCaption(answerTexts(state_).root1);
}

void Roedder::clearWorkedSolution() {
    // Kept: the places of the numbers are emptied and stay; the rest is hidden until help is asked for.
    for (Label* number : {ui_->Label60, ui_->Label62, ui_->Label64, ui_->Label74, ui_->Label67, ui_->Label69,
                          ui_->Label71, ui_->Label75, ui_->Label78, ui_->Label80, ui_->Label84}) {
        number->setCaption("");
    }
    hideAll({ui_->Label54, ui_->Label55, ui_->Label56, ui_->Label57, ui_->Label58, ui_->Label59, ui_->Label61,
             ui_->Label72, ui_->Label65, ui_->Label66, ui_->Label68, ui_->Label73, ui_->Label76, ui_->Label77,
             ui_->Label83, ui_->Label81, ui_->Label82, ui_->Line10,  ui_->Line11,  ui_->Line12,  ui_->Line13,
             ui_->Line14,  ui_->Line15,  ui_->Line16,  ui_->Line17,  ui_->Line18});
}

void Roedder::showDiscriminant() {
    ui_->Label90->hide();
    focusOn(ui_->Command4);
}

void Roedder::showRootCount() {
    hideAll({ui_->Label90, ui_->Label89});
    focusOn(ui_->Command7);
}

void Roedder::showSolution() {
    hideAll({ui_->Label90, ui_->Label89, ui_->Label88});
    focusOn(ui_->Command3);
}

void Roedder::closeHelp() { ui_->Picture2->hide(); }

}  // namespace tavrune
