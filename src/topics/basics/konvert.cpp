#include "topics/basics/konvert.h"

#include <utility>

#include "numeric/judging.h"
#include "numeric/text.h"
#include "topics/basics/ui_konvert.h"

namespace tavrune {
namespace {

// Lighter than the green of what is right elsewhere.
const QColor kLightGreen = rgb(0, 190, 0);

// The graph: its second axis runs downwards, so a price is counted up from the base.
constexpr int kBase = 15;
constexpr int kLastUnit = 20;

// The frame round it, in whose scale the graph begins one unit from the left and 0.2 from the top.
constexpr double kFirstTick = 0.2;
constexpr double kFrameBase = 15.2;

// The worked solution, in the centimetres of the help panel.
constexpr double kBarHeight = 5.35;
constexpr double kBarWidth = 1;
constexpr double kBeforeBar = 0.3;
constexpr double kGap = 0.4;

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
    drawFunction(state_.givenSlope, state_.givenConstant, kBlack);
    focusOn(ui_->slope);
}

void Konvert::blankWorkedSolution() {
    ui_->workedRule->hide();
    for (Label* label : {ui_->workedPriceEquals, ui_->workedSlopeNumerator, ui_->workedSlopeDenominator,
                         ui_->workedTimesConvertedUnitPlus, ui_->workedInterceptNumerator,
                         ui_->workedInterceptDenominator, ui_->workedResult}) {
        label->setCaption(" ");
    }
}

void Konvert::drawTicks() {
    for (int x = 1; x <= kLastUnit + 1; ++x) {
        ui_->graphFrame->Line(x, kFrameBase, x, 15.4);
    }
    for (int unit = 0; unit <= kBase; ++unit) {
        ui_->graphFrame->Line(0.8, kFirstTick + unit, 1, kFirstTick + unit);
    }
}

void Konvert::drawFunction(double slope, double constant, const QColor& colour) {
    ui_->graph->Line(0, kBase - constant, kLastUnit, kBase - (kLastUnit * slope + constant), colour);
}

void Konvert::judge() {
    hideVerdict();
    ui_->giveAnswer->hide();
    bool allRight = true;
    for (const auto& [box, target] :
         {std::pair{ui_->slope, state_.newSlope}, {ui_->intercept, state_.newConstant}}) {
        const bool isRight = isClosedNear(box->value(), target);
        box->mark(!isRight);
        allRight = allRight && isRight;
    }
    if (!allRight) {
        failed();
        focusOn(ui_->slope);
        return;
    }
    solved();
    // Kept: the task text stays away where help was open; it comes back with "Luk" or the
    // next exercise.
    ui_->helpPanel->hide();
    drawFunction(state_.newSlope, state_.newConstant, kLightGreen);
}

void Konvert::giveAnswer() {
    // Kept: the task text stays away here too.
    ui_->helpPanel->hide();
    drawFunction(ui_->slope->value(), ui_->intercept->value(), kRed);
    drawFunction(state_.newSlope, state_.newConstant, kLightGreen);
    whiten({ui_->slope, ui_->intercept});
    roundSolution(state_);
    ui_->slope->setContent(NumberText(state_.newSlope));
    ui_->intercept->setContent(NumberText(state_.newConstant));
    given();
}

void Konvert::help() {
    ui_->task->hide();
    openPanel(ui_->helpPanel, ui_->showWorkedSolution);
    GraphBox* example = ui_->helpGraph;
    example->Line(1, 1, 1, 9);
    example->Line(0, 10, 20, 10);
    example->Line(0, 0, 10, 10);
    example->Line(0, 5, 20, 10, kLightGreen);
    drawExampleBars();
    const KonvertGiven texts = givenTexts(state_);
    ui_->workedGivenFunction->setCaption(texts.function);
    ui_->workedConversionFactor->setCaption(texts.conversion);
}

void Konvert::drawExampleBars() {
    ui_->helpPanel->Line(1.58, kBarHeight, 2.4, kBarHeight);
    ui_->helpPanel->Line(3.8, kBarHeight, 4.3, kBarHeight);
}

void Konvert::showWorkedSolution() {
    roundSolution(state_);
    focusOn(ui_->closeHelp);
    ui_->workedRule->show();
    layOutWorkedSolution();
    ui_->helpPanel->Cls();
    drawExampleBars();
    drawBarOver(ui_->workedSlopeDenominator);
    drawBarOver(state_.factorKind == FactorKind::Whole ? ui_->workedInterceptNumerator
                                                       : ui_->workedInterceptDenominator);
}

void Konvert::layOutWorkedSolution() {
    const GraphBox& panel = *ui_->helpPanel;
    const auto placeAfter = [&panel](const Label* before, double gap, Label* label) {
        panel.placeLeft(*label, panel.rightOf(*before) + gap);
    };
    const KonvertWorked worked = workedSolution(state_);
    ui_->workedPriceEquals->setCaption(worked.opening);
    ui_->workedSlopeDenominator->setCaption(worked.squaredFactor);
    placeAfter(ui_->workedPriceEquals, kGap, ui_->workedSlopeDenominator);
    ui_->workedTimesConvertedUnitPlus->setCaption("K + ");
    placeAfter(ui_->workedSlopeDenominator, kGap, ui_->workedTimesConvertedUnitPlus);
    ui_->workedSlopeNumerator->setCaption(worked.slope);
    ui_->workedSlopeNumerator->setLeft(ui_->workedSlopeDenominator->place().left());
    ui_->workedSlopeNumerator->setWidth(ui_->workedSlopeDenominator->place().width());

    // A whole factor stands under a bar of fixed width, a fraction under one of its own.
    const bool isWhole = state_.factorKind == FactorKind::Whole;
    ui_->workedInterceptDenominator->setAutoSize(!isWhole);
    ui_->workedInterceptDenominator->setCaption(worked.factor);
    if (isWhole) {
        panel.setWidthOf(*ui_->workedInterceptDenominator, kBarWidth);
    }
    placeAfter(ui_->workedTimesConvertedUnitPlus, kBeforeBar, ui_->workedInterceptDenominator);
    ui_->workedInterceptNumerator->setCaption(worked.constant);
    ui_->workedInterceptNumerator->setLeft(ui_->workedInterceptDenominator->place().left());
    ui_->workedInterceptNumerator->setWidth(ui_->workedInterceptDenominator->place().width());

    ui_->workedResult->setCaption(worked.result);
    placeAfter(ui_->workedInterceptDenominator, kGap, ui_->workedResult);
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
