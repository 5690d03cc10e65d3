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
    buttons({.newExercise = ui_->Command1,
             .ok = ui_->Command2,
             .giveAnswer = ui_->Command4,
             .help = ui_->Hjaelp});
    verdict(TwoLabels{.right = ui_->Label10, .wrong = ui_->Label9, .darkUntilFirstTick = true});
    enterChain({ui_->Text1, ui_->Text2}, LastBox::OkOrNewExercise);
    onClick(ui_->Vis, &Konvert::showWorkedSolution);
    onClick(ui_->Luk, &Konvert::closeHelp);
    ui_->Label42_0->setCaption("= " + exampleResult());
    ui_->Label235->setCaption("P = " + exampleResult());
}

Konvert::~Konvert() = default;

void Konvert::newExercise() {
    ui_->Picture3->hide();
    ui_->Picture3->Cls();
    blankWorkedSolution();
    ui_->Label1->show();
    clearBoxes({ui_->Text1, ui_->Text2});
    showAsking();

    tavrune::newExercise(state_, draws());

    ui_->Label1->setCaption(taskText(state_));
    drawTicks();
    ui_->Label4->setCaption(functionText(state_));
    ui_->Picture2->Cls();
    drawFunction(state_.givenSlope, state_.givenConstant, kBlack);
    focusOn(ui_->Text1);
}

void Konvert::blankWorkedSolution() {
    ui_->Label41->hide();
    for (Label* label : {ui_->Label12_1, ui_->Label20_1, ui_->Label16_1, ui_->Label18_1, ui_->Label28_1,
                         ui_->Label24_1, ui_->Label42}) {
        label->setCaption(" ");
    }
}

void Konvert::drawTicks() {
    for (int x = 1; x <= kLastUnit + 1; ++x) {
        ui_->Picture1->Line(x, kFrameBase, x, 15.4);
    }
    for (int unit = 0; unit <= kBase; ++unit) {
        ui_->Picture1->Line(0.8, kFirstTick + unit, 1, kFirstTick + unit);
    }
}

void Konvert::drawFunction(double slope, double constant, const QColor& colour) {
    ui_->Picture2->Line(0, kBase - constant, kLastUnit, kBase - (kLastUnit * slope + constant), colour);
}

void Konvert::judge() {
    hideVerdict();
    ui_->Command4->hide();
    bool allRight = true;
    for (const auto& [box, target] :
         {std::pair{ui_->Text1, state_.newSlope}, {ui_->Text2, state_.newConstant}}) {
        const bool isRight = isClosedNear(box->value(), target);
        box->mark(!isRight);
        allRight = allRight && isRight;
    }
    if (!allRight) {
        failed();
        focusOn(ui_->Text1);
        return;
    }
    solved();
    // Kept: the task text stays away where help was open; it comes back with "Luk" or the
    // next exercise.
    ui_->Picture3->hide();
    drawFunction(state_.newSlope, state_.newConstant, kLightGreen);
}

void Konvert::giveAnswer() {
    // Kept: the task text stays away here too.
    ui_->Picture3->hide();
    drawFunction(ui_->Text1->value(), ui_->Text2->value(), kRed);
    drawFunction(state_.newSlope, state_.newConstant, kLightGreen);
    whiten({ui_->Text1, ui_->Text2});
    roundSolution(state_);
    ui_->Text1->setContent(NumberText(state_.newSlope));
    ui_->Text2->setContent(NumberText(state_.newConstant));
    given();
}

void Konvert::help() {
    ui_->Label1->hide();
    openPanel(ui_->Picture3, ui_->Vis);
    GraphBox* example = ui_->Picture4;
    example->Line(1, 1, 1, 9);
    example->Line(0, 10, 20, 10);
    example->Line(0, 0, 10, 10);
    example->Line(0, 5, 20, 10, kLightGreen);
    drawExampleBars();
    const KonvertGiven texts = givenTexts(state_);
    ui_->Label39->setCaption(texts.function);
    ui_->Label40->setCaption(texts.conversion);
}

void Konvert::drawExampleBars() {
    ui_->Picture3->Line(1.58, kBarHeight, 2.4, kBarHeight);
    ui_->Picture3->Line(3.8, kBarHeight, 4.3, kBarHeight);
}

void Konvert::showWorkedSolution() {
    roundSolution(state_);
    focusOn(ui_->Luk);
    ui_->Label41->show();
    layOutWorkedSolution();
    ui_->Picture3->Cls();
    drawExampleBars();
    drawBarOver(ui_->Label16_1);
    drawBarOver(state_.factorKind == FactorKind::Whole ? ui_->Label28_1 : ui_->Label24_1);
}

void Konvert::layOutWorkedSolution() {
    const GraphBox& panel = *ui_->Picture3;
    const auto placeAfter = [&panel](const Label* before, double gap, Label* label) {
        panel.placeLeft(*label, panel.rightOf(*before) + gap);
    };
    const KonvertWorked worked = workedSolution(state_);
    ui_->Label12_1->setCaption(worked.opening);
    ui_->Label16_1->setCaption(worked.squaredFactor);
    placeAfter(ui_->Label12_1, kGap, ui_->Label16_1);
    ui_->Label18_1->setCaption("K + ");
    placeAfter(ui_->Label16_1, kGap, ui_->Label18_1);
    ui_->Label20_1->setCaption(worked.slope);
    ui_->Label20_1->setLeft(ui_->Label16_1->place().left());
    ui_->Label20_1->setWidth(ui_->Label16_1->place().width());

    // A whole factor stands under a bar of fixed width, a fraction under one of its own.
    const bool isWhole = state_.factorKind == FactorKind::Whole;
    ui_->Label24_1->setAutoSize(!isWhole);
    ui_->Label24_1->setCaption(worked.factor);
    if (isWhole) {
        panel.setWidthOf(*ui_->Label24_1, kBarWidth);
    }
    placeAfter(ui_->Label18_1, kBeforeBar, ui_->Label24_1);
    ui_->Label28_1->setCaption(worked.constant);
    ui_->Label28_1->setLeft(ui_->Label24_1->place().left());
    ui_->Label28_1->setWidth(ui_->Label24_1->place().width());

    ui_->Label42->setCaption(worked.result);
    placeAfter(ui_->Label24_1, kGap, ui_->Label42);
}

void Konvert::drawBarOver(const Label* label) {
    const GraphBox* panel = ui_->Picture3;
    ui_->Picture3->Line(panel->leftOf(*label), kBarHeight, panel->rightOf(*label), kBarHeight);
}

void Konvert::closeHelp() {
    ui_->Picture3->hide();
    ui_->Label1->show();
    focusOn(ui_->Text1);
}

}  // namespace tavrune
