#include "topics/polynomial/roedder.h"

#include <algorithm>
#include <array>
#include <vector>

#include "graph/axes.h"
#include "graph/curve.h"
#include "topics/polynomial/ui_roedder.h"

namespace tavrune {
namespace {

/// Where the axes end.
constexpr int kEnd = 15;
/// Half the height of the line at a wrong root.
constexpr double kHalfTick = 0.5;

/// A part of the worked solution, and the count that it belongs to. Its controls are called after it.
struct WorkedPart {
    const char* name;
    RootCount count;
};

constexpr std::array kWorkedParts{
    WorkedPart{"workedTwoRoots", RootCount::Two}, WorkedPart{"workedRootOne", RootCount::Two},
    WorkedPart{"workedRootTwo", RootCount::Two},  WorkedPart{"workedDoubleRoot", RootCount::Double},
    WorkedPart{"workedNoRoots", RootCount::None},
};

/// The controls of a part of the worked solution.
struct WorkedControls {
    std::vector<Label*> numbers;
    std::vector<QWidget*> wordsAndLines;

    [[nodiscard]] static WorkedControls of(const QWidget& page, const QString& part);
};

bool isNumberOf(const QString& part, const QString& name) {
    static constexpr std::array kNumbers{"CoefficientB", "Discriminant", "Numerator", "Denominator",
                                         "Result"};
    return std::any_of(kNumbers.begin(), kNumbers.end(),
                       [&](const char* number) { return name == part + number; });
}

WorkedControls WorkedControls::of(const QWidget& page, const QString& part) {
    WorkedControls controls;
    for (QWidget* control : page.findChildren<QWidget*>()) {
        const QString name = control->objectName();
        if (isNumberOf(part, name)) {
            controls.numbers.push_back(qobject_cast<Label*>(control));
        } else if (name.startsWith(part)) {
            controls.wordsAndLines.push_back(control);
        }
    }
    return controls;
}

const Axes& axes() {
    static const Axes kAxes{
        .scale = {-kEnd, kEnd, kEnd, -kEnd},
        .level = {-kEnd, kEnd},
        .upright = {kEnd, -kEnd},
        .ticks = {{.along = Along::X, .from = -kEnd, .before = kEnd, .offAxis = {0.2}},
                  {.along = Along::Y, .from = -kEnd, .before = kEnd, .offAxis = {0.1}},
                  {.along = Along::X, .from = -kEnd, .before = kEnd, .step = 5, .offAxis = {0.2}},
                  {.along = Along::Y, .from = -kEnd, .before = kEnd, .step = 5, .offAxis = {0.2}},
                  {.along = Along::X, .from = -kEnd, .before = kEnd, .step = 5, .offAxis = {0.3}},
                  {.along = Along::Y, .from = -kEnd, .before = kEnd, .step = 5, .offAxis = {0.3}}}};
    return kAxes;
}

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
    onClick(ui_->showRoots, &Roedder::showRoots);
}

Roedder::~Roedder() = default;

void Roedder::newExercise() {
    showAll({ui_->rootsCover, ui_->rootCountCover, ui_->discriminantCover});
    closeHelp();
    drawAxes(*ui_->graph, axes());
    options_.resetColours();
    options_.chooseNone();
    // Kept (roedder-old-answer): the boxes hold text and colour until an option is picked.
    hideAnswer();
    ui_->ok->hide();

    tavrune::newExercise(state_, draws());

    ui_->givenFunction->setCaption(state_.polynomialText);
    ui_->workedFunction->setCaption(state_.polynomialText);
    ui_->workedDiscriminant->setCaption(discriminantText(state_));
    clearWorkedSolution();
}

void Roedder::drawCurve() {
    plotCurve(*ui_->graph, [this](double q) { return valueAt(state_.coefficients, q); },
              {.start = -10, .step = 0.05, .largest = 2000});
}

void Roedder::drawTick(double root) {
    const Figure tick(*ui_->graph, Meaning::Dash);
    ui_->graph->Line(root, -kHalfTick, root, kHalfTick, kRed);
}

void Roedder::hideAnswer() {
    hideAll({ui_->rootOne, ui_->rootTwo, ui_->doubleRootCaption, ui_->rootOneCaption, ui_->rootTwoCaption,
             ui_->giveAnswer});
    hideVerdict();
}

void Roedder::nameSecondBox(RootCount count) { ui_->rootTwo->setAccessibleName(nameOfSecondRoot(count)); }

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
    // Kept (roedder-hidden-box): the first box is hidden with what it holds, and still decides which box is
    // marked.
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
    const std::vector<AnswerBox*> boxes{ui_->rootOne, ui_->rootTwo};
    const RootAnswer answer{options_.chosen(), valuesOf(boxes)};
    // The focus stays after a wrong try.
    if (showJudgement(tavrune::judge(state_, answer), boxes, nullptr)) {
        colourRightOption();
        drawCurve();
        return;
    }
    if (answer.chosen == RootCount::Two) {
        drawTick(answer.typed[0]);
    }
    if (answer.chosen == RootCount::Two || answer.chosen == RootCount::Double) {
        drawTick(answer.typed[1]);
    }
}

void Roedder::giveAnswer() {
    whiten({ui_->rootOne, ui_->rootTwo});
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
        ui_->rootOne->setContent(answer.rootOne);
        ui_->rootTwo->setContent(answer.rootTwo);
    } else if (isDouble) {
        ui_->rootTwo->setContent(answer.rootOne);
    }
    drawCurve();
    showGiven();
}

void Roedder::colourRightOption() { options_.colour(rootCountOf(state_.discriminant), kGreen); }

void Roedder::help() {
    const RootCount count = rootCountOf(state_.discriminant);
    showWorked(count);
    if (count == RootCount::Two) {
        fillWorkedTwoRoots();
    } else if (count == RootCount::Double) {
        fillWorkedDoubleRoot();
    }
    openPanel(ui_->helpPanel, ui_->showDiscriminant);
}

void Roedder::showWorked(RootCount count) {
    for (const WorkedPart& part : kWorkedParts) {
        if (part.count == count) {
            for (QWidget* control : WorkedControls::of(*design(), part.name).wordsAndLines) {
                control->show();
            }
        }
    }
}

void Roedder::fillWorkedTwoRoots() {
    const RoedderFormula formula = formulaTexts(state_);
    const RoedderAnswer answer = answerTexts(state_);
    ui_->workedRootOneCoefficientB->setCaption(formula.b);
    ui_->workedRootOneDiscriminant->setCaption(formula.d);
    ui_->workedRootOneDenominator->setCaption(formula.denominator);
    ui_->workedRootOneResult->setCaption(answer.rootOne);
    ui_->workedRootTwoCoefficientB->setCaption(formula.b);
    ui_->workedRootTwoDiscriminant->setCaption(formula.d);
    ui_->workedRootTwoDenominator->setCaption(formula.denominator);
    ui_->workedRootTwoResult->setCaption(answer.rootTwo);
}

void Roedder::fillWorkedDoubleRoot() {
    const RoedderFormula formula = formulaTexts(state_);
    ui_->workedDoubleRootNumerator->setCaption(formula.minusB);
    ui_->workedDoubleRootDenominator->setCaption(formula.denominator);
    ui_->workedDoubleRootResult->setCaption(answerTexts(state_).rootOne);
}

void Roedder::clearWorkedSolution() {
    for (const WorkedPart& part : kWorkedParts) {
        const WorkedControls controls = WorkedControls::of(*design(), part.name);
        // Kept (roedder-empty-places): the places of the numbers are emptied and stay; the rest is hidden
        // until help is asked for.
        for (Label* number : controls.numbers) {
            number->setCaption("");
        }
        for (QWidget* control : controls.wordsAndLines) {
            control->hide();
        }
    }
}

void Roedder::showDiscriminant() {
    ui_->discriminantCover->hide();
    focusOn(ui_->showRootCount);
}

void Roedder::showRootCount() {
    hideAll({ui_->discriminantCover, ui_->rootCountCover});
    focusOn(ui_->showRoots);
}

void Roedder::showRoots() {
    hideAll({ui_->discriminantCover, ui_->rootCountCover, ui_->rootsCover});
    focusOn(ui_->closeHelp);
}

void Roedder::closeHelp() { ui_->helpPanel->hide(); }

}  // namespace tavrune
