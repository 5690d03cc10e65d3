#include "topics/polynomial/rogt.h"

#include "graph/axes.h"
#include "graph/curve.h"
#include "topics/polynomial/ui_rogt.h"

namespace tavrune {
namespace {

/// Where the axes end.
constexpr int kEnd = 15;
/// Half the height of the line at a wrong root.
constexpr double kHalfTick = 0.5;

const Axes& axes() {
    static const Axes kAxes{
        .scale = {-kEnd, kEnd, kEnd, -kEnd},
        .level = {-kEnd, kEnd},
        .upright = {kEnd, -kEnd},
        .ticks = {{.along = Along::X, .from = -kEnd, .before = kEnd, .offAxis = {0.2}},
                  {.along = Along::Y, .from = -kEnd, .before = kEnd, .offAxis = {0.1}},
                  {.along = Along::X, .from = -kEnd, .before = kEnd, .step = 5, .offAxis = {0.3}},
                  {.along = Along::Y, .from = -kEnd, .before = kEnd, .step = 5, .offAxis = {0.2}},
                  {.along = Along::X, .from = -kEnd, .before = kEnd, .step = 5, .offAxis = {0.4}},
                  {.along = Along::Y, .from = -kEnd, .before = kEnd, .step = 5, .offAxis = {0.3}}}};
    return kAxes;
}

}  // namespace

Rogt::Rogt(Draws& draws) : ExerciseForm(PageName::Rogt, draws), ui_(std::make_unique<Ui::Rogt>()) {
    setUp(*ui_);
    // Kept (rogt-right-to-left): the vertex is walked from its right-hand box to the left one, against the
    // layout.
    enterChain({ui_->rootOne, ui_->rootTwo, ui_->vertexPrice, ui_->vertexQuantity}, LastBox::OkOrStay);
    options_ = {{ui_->twoRoots, RootCount::Two},
                {ui_->doubleRoot, RootCount::Double},
                {ui_->noRoots, RootCount::None}};
    onClick(ui_->twoRoots, &Rogt::askForTwoRoots);
    onClick(ui_->doubleRoot, &Rogt::askForADoubleRoot);
    onClick(ui_->noRoots, &Rogt::askForTheVertexOnly);
}

Rogt::~Rogt() = default;

std::vector<AnswerBox*> Rogt::chosenRootBoxes() const {
    switch (options_.chosen().value_or(RootCount::None)) {
        case RootCount::Two:
            return {ui_->rootOne, ui_->rootTwo};
        case RootCount::Double:
            return {ui_->rootTwo};
        case RootCount::None:
            break;
    }
    return {};
}

void Rogt::colourRightOption() {
    // Kept (rogt-no-green): two roots get no green.
    if (const RootCount count = rootCountOf(state_.discriminant); count != RootCount::Two) {
        options_.colour(count, kGreen);
    }
}

void Rogt::newExercise() {
    drawAxes(*ui_->graph, axes());
    options_.chooseNone();
    options_.resetColours();
    hideRootFields();
    hideVerdict();
    hideAll({ui_->ok, ui_->giveAnswer});

    tavrune::newExercise(state_, draws());

    ui_->givenFunction->setCaption(state_.polynomialText);
    clearBoxes({ui_->rootOne, ui_->rootTwo, ui_->vertexQuantity, ui_->vertexPrice});
}

void Rogt::drawCurve() {
    plotCurve(*ui_->graph, [this](double q) { return valueAt(state_.coefficients, q); },
              {.start = -7, .step = 0.05, .largest = 1000});
}

void Rogt::hideRootFields() {
    hideAll({ui_->rootOne, ui_->rootTwo, ui_->rootOneCaption, ui_->rootTwoCaption, ui_->doubleRootCaption});
}

void Rogt::beginEntry() {
    // What the boxes hold and their colours stay.
    hideRootFields();
    hideVerdict();
    ui_->giveAnswer->hide();
    ui_->ok->show();
}

void Rogt::nameSecondBox(RootCount count) { ui_->rootTwo->setAccessibleName(nameOfSecondRoot(count)); }

void Rogt::askForTwoRoots() {
    beginEntry();
    nameSecondBox(RootCount::Two);
    showAll({ui_->rootOneCaption, ui_->rootTwoCaption, ui_->rootOne, ui_->rootTwo});
    focusOn(ui_->rootOne);
}

void Rogt::askForADoubleRoot() {
    beginEntry();
    nameSecondBox(RootCount::Double);
    showAll({ui_->doubleRootCaption, ui_->rootTwo});
    focusOn(ui_->rootTwo);
}

void Rogt::askForTheVertexOnly() {
    beginEntry();
    focusOn(ui_->vertexPrice);
}

void Rogt::judge() {
    // Marked while they are hidden too, whatever is chosen.
    const std::vector<AnswerBox*> boxes{ui_->rootOne, ui_->rootTwo, ui_->vertexQuantity, ui_->vertexPrice};
    const RogtJudgement judgement = tavrune::judge(state_, {options_.chosen(), valuesOf(boxes)});
    hideVerdict();
    if (judgement.rootsAreRight) {
        colourRightOption();
    } else {
        drawTypedRoots();
    }
    if (judgement.rootsAreRight || judgement.vertexIsRight) {
        // "FORKERT", where it is shown too, lies in front.
        showRight();
    }
    if (showJudgement(judgement, boxes, nullptr)) {
        drawCurve();
    } else {
        focusOnWrongBox();
    }
}

void Rogt::drawTypedRoots() {
    for (const AnswerBox* box : chosenRootBoxes()) {
        const Figure tick(*ui_->graph, Meaning::Dash);
        const double root = box->value();
        ui_->graph->Line(root, -kHalfTick, root, kHalfTick, kRed);
    }
}

void Rogt::focusOnWrongBox() {
    // The last of these that is marked and shown gets it; without one the focus stays.
    for (AnswerBox* box : {ui_->vertexQuantity, ui_->vertexPrice, ui_->rootTwo, ui_->rootOne}) {
        if (box->isMarked() && box->isShown()) {
            focusOn(box);
        }
    }
}

void Rogt::giveAnswer() {
    showGiven();
    drawCurve();
    whiten({ui_->rootOne, ui_->rootTwo, ui_->vertexQuantity, ui_->vertexPrice});
    const RogtAnswer answer = answerOf(state_);
    hideRootFields();
    nameSecondBox(rootCountOf(state_.discriminant));
    switch (rootCountOf(state_.discriminant)) {
        case RootCount::Two:
            showAll({ui_->rootOneCaption, ui_->rootTwoCaption, ui_->rootOne, ui_->rootTwo});
            ui_->rootOne->setContent(answer.rootOne);
            ui_->rootTwo->setContent(answer.rootTwo);
            break;
        case RootCount::Double:
            showAll({ui_->doubleRootCaption, ui_->rootTwo});
            ui_->rootTwo->setContent(answer.rootOne);
            break;
        case RootCount::None:
            break;
    }
    ui_->vertexQuantity->setContent(answer.vertexQ);
    ui_->vertexPrice->setContent(answer.vertexP);
    colourRightOption();
}

void Rogt::help() { tell("Ønsker du hjælp, bør du søge den i 'Rødder' eller 'Toppunkt'"); }

}  // namespace tavrune
