#include "topics/basics/dlinie.h"

#include <algorithm>
#include <array>

#include "controls/fraction.h"
#include "graph/axes.h"
#include "numeric/text.h"
#include "topics/basics/ui_dlinie.h"

namespace tavrune {
namespace {

constexpr int kEnd = 10;
constexpr double kFractionLeft = fromTwips(480);
constexpr double kGap = 6;

// Kept (dlinie-missing-dots): the far ends go without a dot, and the Y axis without its lowest.
Axes axesIn(const GraphScale& scale) {
    return {.scale = scale,
            .level = {-kEnd, kEnd},
            .upright = {kEnd, -kEnd},
            .ticks = {{.along = Along::X, .from = -kEnd, .before = kEnd, .offAxis = {0.1}},
                      {.along = Along::Y, .from = -kEnd + 1, .before = kEnd, .offAxis = {0.07}}}};
}

/// A number at an axis, and where its top left corner stands.
struct AxisNumber {
    const char* name;
    double x;
    double y;
};

constexpr std::array kAxisNumbers{AxisNumber{"xMark5", 4.7, -0.2}, AxisNumber{"yMarkMinus5", -1, -4.5},
                                  AxisNumber{"xMarkMinus5", -5.2, -0.2}, AxisNumber{"yMark5", -0.8, 5.3}};

/// The help for one kind of task, by the names of the controls.
struct LineHelp {
    LineTask task;
    const char* panel;
    const char* close;
    /// "Vis" of the first step; null where there is no step to show.
    const char* firstStep;
    /// What its steps show, null behind the last.
    std::array<const char*, 3> shownBySteps;
};

constexpr std::array kHelps{
    LineHelp{LineTask::TwoPoints,
             "twoPointsHelpPanel",
             "closeTwoPointsHelp",
             "showTwoPointsSlope",
             {"twoPointsSlopeStep", "twoPointsWorkedPointInserted", "twoPointsWorkedIntercept"}},
    LineHelp{LineTask::SlopeAndPoint,
             "slopeAndPointHelpPanel",
             "closeSlopeAndPointHelp",
             "showSlopeAndPointIntercept",
             {"slopeAndPointWorkedPointInserted", "slopeAndPointWorkedIntercept"}},
    LineHelp{LineTask::SlopeAndYCross, "slopeAndYCrossHelpPanel", "closeSlopeAndYCrossHelp", nullptr, {}},
    LineHelp{LineTask::SlopeAndXCross,
             "slopeAndXCrossHelpPanel",
             "closeSlopeAndXCrossHelp",
             "showSlopeAndXCrossIntercept",
             {"slopeAndXCrossInterceptStep"}},
    LineHelp{LineTask::BothCrosses,
             "bothCrossesHelpPanel",
             "closeBothCrossesHelp",
             "showBothCrossesSlope",
             {"bothCrossesSlopeStep"}},
};

QWidget* control(const QWidget& page, const char* name) { return page.findChild<QWidget*>(name); }

void closePanel(const QWidget& page, const LineHelp& help) {
    control(page, help.panel)->hide();
    for (const char* name : help.shownBySteps) {
        if (name != nullptr) {
            control(page, name)->hide();
        }
    }
}

/// Lays out "a = numerator/denominator = result" in a row: for the prefix "twoPointsWorkedSlope" what is
/// called `twoPointsWorkedSlopeNumerator` and so on.
void showSlope(const QWidget& page, const QString& prefix, const DlinieSlopeStep& step) {
    const Fraction fraction = Fraction::of(page, prefix);
    fraction.setTexts(step.numerator, step.denominator);
    fraction.setLeft(kFractionLeft);
    auto* const result = page.findChild<Label*>(prefix + "Result");
    result->setCaption(step.result);
    result->setLeft(fraction.right() + kGap);
}

}  // namespace

Dlinie::Dlinie(Draws& draws) : ExerciseForm(PageName::Dlinie, draws), ui_(std::make_unique<Ui::Dlinie>()) {
    setUp(*ui_);
    enterChain({ui_->slope, ui_->intercept}, LastBox::OkOrStay);
    onClick(ui_->showTwoPointsSlope, &Dlinie::showSlopeOfTwoPoints);
    onClick(ui_->showTwoPointsIntercept, &Dlinie::showInterceptOfTwoPoints);
    onClick(ui_->showSlopeAndPointIntercept, &Dlinie::showInterceptOfPoint);
    onClick(ui_->showSlopeAndXCrossIntercept, &Dlinie::showInterceptOfXCross);
    onClick(ui_->showBothCrossesSlope, &Dlinie::showSlopeOfBothCrosses);
    for (const LineHelp& help : kHelps) {
        onClick(design()->findChild<Button*>(help.close), [this, &help] { closePanel(*design(), help); });
    }
}

Dlinie::~Dlinie() = default;

void Dlinie::opened() {
    ui_->graph->Scale(-kEnd, kEnd, kEnd, -kEnd);
    // Kept (dlinie-level-first): the first exercise alone may have a slope of 0.
    ask(ZeroSlope::Allowed);
}

void Dlinie::newExercise() {
    whiten({ui_->slope, ui_->intercept});
    ask(ZeroSlope::Rejected);
    for (const LineHelp& help : kHelps) {
        closePanel(*design(), help);
    }
}

void Dlinie::ask(ZeroSlope zeroSlope) {
    showAsking();
    ui_->slope->setContent("");
    ui_->intercept->setContent("");
    drawAxes(*ui_->graph, axesIn(ui_->graph->scale()));
    for (const auto& [name, x, y] : kAxisNumbers) {
        ui_->graph->place(*design()->findChild<Label*>(name), x, y);
    }

    tavrune::newExercise(state_, draws(), zeroSlope);

    // Without a kind the texts of the last exercise stay.
    if (const auto task = taskTexts(state_)) {
        ui_->task->setCaption(task->sentence);
        ui_->firstFact->setCaption(task->firstFact);
        ui_->secondFact->setCaption(task->secondFact);
    }
    focusOn(ui_->slope);
}

void Dlinie::drawLine(double slope, double intercept, const QColor& colour) {
    ui_->graph->Line(-kEnd, slope * -kEnd + intercept, kEnd, slope * kEnd + intercept, colour);
}

void Dlinie::judge() {
    const std::vector<AnswerBox*> boxes{ui_->slope, ui_->intercept};
    const std::vector<double> typed = valuesOf(boxes);
    if (showJudgement(tavrune::judge(state_, typed), boxes, ui_->slope)) {
        drawLine(state_.slope, state_.intercept, kGreen);
    } else {
        drawLine(typed[0], typed[1], kRed);
    }
}

void Dlinie::giveAnswer() {
    showGiven();
    ui_->slope->setContent(NumberText(state_.slope));
    ui_->intercept->setContent(interceptAnswer(state_));
    drawLine(state_.slope, state_.intercept, kGreen);
    whiten({ui_->slope, ui_->intercept});
}

void Dlinie::help() {
    const auto* const help = std::find_if(kHelps.begin(), kHelps.end(), [this](const LineHelp& candidate) {
        return candidate.task == state_.taskType;
    });
    if (help == kHelps.end()) {
        return;
    }
    QWidget* const panel = control(*design(), help->panel);
    if (help->firstStep == nullptr) {
        // The focus stays.
        panel->show();
    } else {
        openPanel(panel, control(*design(), help->firstStep));
    }
}

void Dlinie::showSlopeOfTwoPoints() {
    ui_->twoPointsSlopeStep->show();
    showSlope(*design(), "twoPointsWorkedSlope", slopeBetweenPoints(state_));
}

void Dlinie::showInterceptOfTwoPoints() {
    const DlinieInterceptStep step = interceptFromFirstPoint(state_);
    showAll({ui_->twoPointsWorkedPointInserted, ui_->twoPointsWorkedIntercept});
    ui_->twoPointsWorkedPointInserted->setCaption(step.inserted);
    ui_->twoPointsWorkedIntercept->setCaption(step.solved);
}

void Dlinie::showInterceptOfPoint() {
    const DlinieInterceptStep step = interceptFromPoint(state_);
    showAll({ui_->slopeAndPointWorkedPointInserted, ui_->slopeAndPointWorkedIntercept});
    ui_->slopeAndPointWorkedPointInserted->setCaption(step.inserted);
    ui_->slopeAndPointWorkedIntercept->setCaption(step.solved);
}

void Dlinie::showInterceptOfXCross() {
    const DlinieCrossStep step = interceptFromXCross(state_);
    ui_->slopeAndXCrossInterceptStep->show();
    ui_->slopeAndXCrossWorkedXInserted->setCaption(step.inserted);
    ui_->slopeAndXCrossWorkedYInserted->setCaption(step.withZero);
    ui_->slopeAndXCrossWorkedIntercept->setCaption(step.solved);
    ui_->slopeAndXCrossWorkedResult->setCaption(step.result);
}

void Dlinie::showSlopeOfBothCrosses() {
    ui_->bothCrossesSlopeStep->show();
    showSlope(*design(), "bothCrossesWorkedSlope", slopeBetweenCrosses(state_));
}

}  // namespace tavrune
