#include "topics/polynomial/rogt.h"

#include "controls/frame.h"
#include "graph/curve.h"
#include "graph/ticks.h"
#include "topics/polynomial/ui_rogt.h"

namespace tavrune {
namespace {

constexpr double kHalfTick = 0.5;

}  // namespace

Rogt::Rogt(Draws& draws) : ExerciseForm(PageName::Rogt, draws), ui_(std::make_unique<Ui::Rogt>()) {
    setUp(*ui_);
    buttons({.newExercise = ui_->Command5,
             .ok = ui_->Command1,
             .giveAnswer = ui_->Command9,
             .help = ui_->Command2});
    verdict(TwoLabels{.right = ui_->Label10, .wrong = ui_->Label9});
    // Kept: the vertex is walked from its right-hand box to the left one, against the layout.
    enterChain({ui_->Text10, ui_->Text11, ui_->Text15, ui_->Text14}, LastBox::OkOrStay);
    options_ = {
        {ui_->Option1, RootCount::Two}, {ui_->Option2, RootCount::Double}, {ui_->Option3, RootCount::None}};
    onClick(ui_->Option1, &Rogt::askForTwoRoots);
    onClick(ui_->Option2, &Rogt::askForADoubleRoot);
    onClick(ui_->Option3, &Rogt::askForTheVertexOnly);
}

Rogt::~Rogt() = default;

void Rogt::loadStep() { ui_->Command5->show(); }

std::vector<AnswerBox*> Rogt::chosenRootBoxes() const {
    switch (options_.chosen().value_or(RootCount::None)) {
        case RootCount::Two:
            return {ui_->Text10, ui_->Text11};
        case RootCount::Double:
            return {ui_->Text11};
        case RootCount::None:
            break;
    }
    return {};
}

void Rogt::colourRightOption() {
    // Kept: two roots get no green.
    switch (rootCountOf(state_.discriminant)) {
        case RootCount::Two:
            break;
        case RootCount::Double:
            options_.colour(RootCount::Double, kGreen);
            break;
        case RootCount::None:
            options_.colour(RootCount::None, kGreen);
            break;
    }
}

void Rogt::newExercise() {
    drawAxes();
    options_.chooseNone();
    options_.resetColours();
    hideRootFields();
    hideVerdict();
    hideAll({ui_->Command1, ui_->Command9});

    tavrune::newExercise(state_, draws());

    ui_->Label29->setCaption(state_.polynomialText);
    clearBoxes({ui_->Text10, ui_->Text11, ui_->Text14, ui_->Text15});
}

void Rogt::drawAxes() {
    GraphBox& graph = *ui_->Picture1;
    graph.Cls();
    graph.Scale(-15, 15, 15, -15);
    graph.Line(0, 15, 0, -15);
    graph.Line(-15, 0, 15, 0);
    drawTicksAlongX(graph, {.from = -15, .before = 15}, {0.2});
    drawTicksAlongY(graph, {.from = -15, .before = 15}, {0.1});
    drawTicksAlongX(graph, {.from = -15, .before = 15, .step = 5}, {0.3});
    drawTicksAlongY(graph, {.from = -15, .before = 15, .step = 5}, {0.2});
    drawTicksAlongX(graph, {.from = -15, .before = 15, .step = 5}, {0.4});
    drawTicksAlongY(graph, {.from = -15, .before = 15, .step = 5}, {0.3});
}

void Rogt::drawCurve() {
    plotCurve(*ui_->Picture1, [this](double q) { return valueAt(state_.coefficients, q); },
              {.start = -7, .step = 0.05, .neverMet = 7, .largest = 1000});
}

void Rogt::hideRootFields() { hideAll({ui_->Text10, ui_->Text11, ui_->Label3, ui_->Label4, ui_->Label7}); }

void Rogt::beginEntry() {
    // What the boxes hold and their colours stay.
    hideRootFields();
    hideVerdict();
    ui_->Command9->hide();
    showAll({ui_->Command1, ui_->Command5});
}

void Rogt::nameSecondBox(RootCount count) {
    ui_->Text11->setAccessibleName(count == RootCount::Double ? "dobbelt rod" : "rod 2");
}

void Rogt::askForTwoRoots() {
    beginEntry();
    nameSecondBox(RootCount::Two);
    showAll({ui_->Label3, ui_->Label4, ui_->Text10, ui_->Text11});
    focusOn(ui_->Text10);
}

void Rogt::askForADoubleRoot() {
    beginEntry();
    nameSecondBox(RootCount::Double);
    showAll({ui_->Label7, ui_->Text11});
    focusOn(ui_->Text11);
}

void Rogt::askForTheVertexOnly() {
    beginEntry();
    focusOn(ui_->Text15);
}

void Rogt::judge() {
    hideVerdict();
    const bool rootsRight = judgeRoots();
    const bool vertexRight = judgeVertex();
    if (rootsRight || vertexRight) {
        // "FORKERT", where it is shown too, lies in front.
        showRight();
    }
    if (!rootsRight || !vertexRight) {
        showWrong();
        showAll({ui_->Command1, ui_->Command9});
        focusOnWrongBox();
        return;
    }
    focusOn(ui_->Command5);
    hideAll({ui_->Command1, ui_->Command9});
    drawCurve();
}

bool Rogt::judgeRoots() {
    whiten({ui_->Text10, ui_->Text11});
    const TypedRoots typed{.first = ui_->Text10->value(), .second = ui_->Text11->value()};
    if (rootsAreRight(state_, options_.chosen(), typed)) {
        colourRightOption();
        return true;
    }
    for (const AnswerBox* box : chosenRootBoxes()) {
        const double root = box->value();
        ui_->Picture1->Line(root, -kHalfTick, root, kHalfTick, kRed);
    }
    // Hidden boxes too, whatever is chosen.
    const RootMarks marks = rootMarks(state_.discriminant, state_.roots, typed);
    ui_->Text10->mark(marks.first);
    ui_->Text11->mark(marks.second);
    return false;
}

bool Rogt::judgeVertex() {
    const VertexMatch match = matchVertex(state_, ui_->Text14->value(), ui_->Text15->value());
    ui_->Text14->mark(!match.q);
    ui_->Text15->mark(!match.p);
    return match.isRight();
}

void Rogt::focusOnWrongBox() {
    // The last of these that is red and shown gets it; without one the focus stays.
    for (AnswerBox* box : {ui_->Text14, ui_->Text15, ui_->Text11, ui_->Text10}) {
        if (box->backColour() == kRed && box->isShown()) {
            focusOn(box);
        }
    }
}

void Rogt::giveAnswer() {
    given();
    drawCurve();
    options_.resetColours();
    whiten({ui_->Text10, ui_->Text11, ui_->Text14, ui_->Text15});
    const RogtAnswer answer = answerOf(state_);
    hideRootFields();
    nameSecondBox(rootCountOf(state_.discriminant));
    switch (rootCountOf(state_.discriminant)) {
        case RootCount::Two:
            showAll({ui_->Label3, ui_->Label4, ui_->Text10, ui_->Text11});
            ui_->Text10->setContent(answer.root1);
            ui_->Text11->setContent(answer.root2);
            break;
        case RootCount::Double:
            showAll({ui_->Label7, ui_->Text11});
            ui_->Text11->setContent(answer.root1);
            break;
        case RootCount::None:
            break;
    }
    ui_->Text14->setContent(answer.vertexQ);
    ui_->Text15->setContent(answer.vertexP);
    colourRightOption();
}

void Rogt::help() { tell("Ønsker du hjælp, bør du søge den i 'Rødder' eller 'Toppunkt'"); }

}  // namespace tavrune
