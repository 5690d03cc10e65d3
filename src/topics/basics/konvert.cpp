#include "topics/basics/konvert.h"

#include <array>
#include <utility>

#include "numeric/text.h"
#include "topics/basics/ui_konvert.h"

namespace tavrune {
namespace {

constexpr const char* kBlankText = " ";

// Lighter than the green of what is right elsewhere.
const QColor kLightGreen = rgb(0, 190, 0);

// The graph.
constexpr int kTopPrice = 15;
constexpr int kLastUnit = 20;

// The frame round it, in whose scale the graph begins one unit from the left and 0.2 from the top. Its ticks
// lead out of the graph.
constexpr int kFrameLeft = 1;
constexpr double kFrameTop = 0.2;
constexpr double kFrameBase = 15.2;
constexpr double kQuantityTickEnd = 15.4;
constexpr double kPriceTickEnd = 0.8;

// The graph of the example in the help.
constexpr int kExampleTop = 10;
constexpr int kExampleLastUnit = 20;
/// How far the P axis keeps off the edges.
constexpr int kExampleInset = 1;

/// A falling line between the axes of the example.
struct ExampleLine {
    int intercept;
    int root;
};

constexpr ExampleLine kExampleGiven{.intercept = 10, .root = 10};
constexpr ExampleLine kExampleConverted{.intercept = 5, .root = 20};

/// The fraction bars of the example, in the centimetres of the help panel.
struct Bar {
    double left;
    double right;
};

constexpr std::array kExampleBars{Bar{1.58, 2.4}, Bar{3.8, 4.3}};
constexpr double kBarHeight = 5.35;

// The worked solution, in centimetres too.
constexpr double kBarWidth = 1;
constexpr double kBeforeBar = 0.3;
constexpr double kGap = 0.4;

/// A fraction whose bar is drawn on the panel.
struct WorkedFraction {
    Label* numerator;
    Label* denominator;

    /// What is called `workedSlopeNumerator` and `workedSlopeDenominator`, for the prefix "workedSlope".
    static WorkedFraction of(const QWidget& page, const QString& prefix) {
        return {page.findChild<Label*>(prefix + "Numerator"), page.findChild<Label*>(prefix + "Denominator")};
    }

    void blank() const {
        numerator->setCaption(kBlankText);
        denominator->setCaption(kBlankText);
    }

    /// Over the denominator, which stands where it is to be.
    void setNumerator(const std::string& text) const {
        numerator->setCaption(text);
        numerator->setLeft(denominator->place().left());
        numerator->setWidth(denominator->place().width());
    }
};

}  // namespace

Konvert::Konvert(Draws& draws)
    : ExerciseForm(PageName::Konvert, draws), ui_(std::make_unique<Ui::Konvert>()) {
    setUp(*ui_);
    enterChain({ui_->slope, ui_->intercept}, LastBox::OkOrNewExercise);
    onClick(ui_->showWorkedSolution, &Konvert::showWorkedSolution);
    ui_->generalResult->setCaption("= " + exampleResult());
    ui_->helpConvertedFunction->setCaption("P = " + exampleResult());
}

Konvert::~Konvert() = default;

void Konvert::newExercise() {
    ui_->helpPanel->hide();
    ui_->helpPanel->Cls();
    blankWorkedSolution();
    ui_->task->show();
    clearBoxes({ui_->slope, ui_->intercept});
    showAsking();

    tavrune::newExercise(state_, draws());

    ui_->task->setCaption(taskText(state_));
    drawTicks();
    ui_->givenFunction->setCaption(functionText(state_));
    ui_->graph->Cls();
    drawFunction(state_.slopeOfQ, state_.interceptOfQ, kBlack);
    focusOn(ui_->slope);
}

void Konvert::blankWorkedSolution() {
    ui_->workedRule->hide();
    WorkedFraction::of(*design(), "workedSlope").blank();
    WorkedFraction::of(*design(), "workedIntercept").blank();
    for (Label* label : {ui_->workedPriceEquals, ui_->workedTimesConvertedUnitPlus, ui_->workedResult}) {
        label->setCaption(kBlankText);
    }
}

void Konvert::drawTicks() {
    GraphBox& frame = *ui_->graphFrame;
    for (int x = kFrameLeft; x <= kFrameLeft + kLastUnit; ++x) {
        const Figure tick(frame, Meaning::TickOfX);
        frame.Line(x, kFrameBase, x, kQuantityTickEnd);
    }
    for (int unit = 0; unit <= kTopPrice; ++unit) {
        const Figure tick(frame, Meaning::TickOfY);
        frame.Line(kPriceTickEnd, kFrameTop + unit, kFrameLeft, kFrameTop + unit);
    }
}

void Konvert::drawFunction(double slope, double intercept, const QColor& colour) {
    ui_->graph->Line(0, intercept, kLastUnit, kLastUnit * slope + intercept, colour);
}

void Konvert::judge() {
    const std::vector<AnswerBox*> boxes{ui_->slope, ui_->intercept};
    hideVerdict();
    ui_->giveAnswer->hide();
    if (showJudgement(tavrune::judge(state_, valuesOf(boxes)), boxes, ui_->slope)) {
        // Kept (konvert-task-away): the task text stays away where help was open; it comes back with "Luk" or
        // the next exercise.
        ui_->helpPanel->hide();
        drawFunction(state_.slopeOfK, state_.interceptOfK, kLightGreen);
    }
}

void Konvert::giveAnswer() {
    // Kept (konvert-task-away): here too.
    ui_->helpPanel->hide();
    drawFunction(ui_->slope->value(), ui_->intercept->value(), kRed);
    drawFunction(state_.slopeOfK, state_.interceptOfK, kLightGreen);
    whiten({ui_->slope, ui_->intercept});
    roundSolution(state_);
    ui_->slope->setContent(NumberText(state_.slopeOfK));
    ui_->intercept->setContent(NumberText(state_.interceptOfK));
    showGiven();
}

void Konvert::help() {
    ui_->task->hide();
    openPanel(ui_->helpPanel, ui_->showWorkedSolution);
    drawExample();
    const KonvertWorked worked = workedSolution(state_);
    ui_->workedGivenFunction->setCaption(worked.function);
    ui_->workedConversionFactor->setCaption(worked.conversion);
}

void Konvert::drawExample() {
    GraphBox& graph = *ui_->helpGraph;
    {
        const Figure axes(graph, Meaning::Axis);
        graph.Line(kExampleInset, kExampleTop - kExampleInset, kExampleInset, kExampleInset);
        graph.Line(0, 0, kExampleLastUnit, 0);
    }
    for (const auto& [line, colour] : {std::pair{kExampleGiven, kBlack}, {kExampleConverted, kLightGreen}}) {
        graph.Line(0, line.intercept, line.root, 0, colour);
    }
    drawExampleBars();
}

void Konvert::drawExampleBars() {
    for (const auto& [left, right] : kExampleBars) {
        ui_->helpPanel->Line(left, kBarHeight, right, kBarHeight);
    }
}

void Konvert::showWorkedSolution() {
    roundSolution(state_);
    focusOn(ui_->closeHelp);
    ui_->workedRule->show();
    layOutWorkedSolution();
    ui_->helpPanel->Cls();
    drawExampleBars();
    drawBarOver(ui_->workedSlopeDenominator);
    drawBarOver(ui_->workedInterceptDenominator);
}

void Konvert::layOutWorkedSolution() {
    const GraphBox& panel = *ui_->helpPanel;
    const auto placeAfter = [&panel](const Label* before, double gap, Label* label) {
        panel.placeLeft(*label, panel.rightOf(*before) + gap);
    };
    const KonvertWorked worked = workedSolution(state_);
    const WorkedFraction slope = WorkedFraction::of(*design(), "workedSlope");
    ui_->workedPriceEquals->setCaption(worked.priceEquals);
    slope.denominator->setCaption(worked.squaredFactor);
    placeAfter(ui_->workedPriceEquals, kGap, slope.denominator);
    ui_->workedTimesConvertedUnitPlus->setCaption("K + ");
    placeAfter(slope.denominator, kGap, ui_->workedTimesConvertedUnitPlus);
    slope.setNumerator(worked.slope);

    // A whole factor stands under a bar of fixed width, a fraction under one of its own.
    const WorkedFraction intercept = WorkedFraction::of(*design(), "workedIntercept");
    const bool isWhole = state_.factorKind == FactorKind::Whole;
    intercept.denominator->setAutoSize(!isWhole);
    intercept.denominator->setCaption(worked.factor);
    if (isWhole) {
        panel.setWidthOf(*intercept.denominator, kBarWidth);
    }
    placeAfter(ui_->workedTimesConvertedUnitPlus, kBeforeBar, intercept.denominator);
    intercept.setNumerator(worked.intercept);

    ui_->workedResult->setCaption(worked.result);
    placeAfter(intercept.denominator, kGap, ui_->workedResult);
}

void Konvert::drawBarOver(const Label* label) {
    const GraphBox* panel = ui_->helpPanel;
    ui_->helpPanel->Line(panel->leftOf(*label), kBarHeight, panel->rightOf(*label), kBarHeight);
}

void Konvert::closeHelp() {
    ui_->helpPanel->hide();
    ui_->task->show();
    focusOn(ui_->slope);
}

}  // namespace tavrune
