#include "topics/basics/tomto.h"

#include "numeric/text.h"
#include "topics/basics/ui_tomto.h"

namespace tavrune {
namespace {

constexpr int kThin = 1;
constexpr int kThick = 3;
constexpr double kGap = 4;

}  // namespace

Tomto::Tomto(Draws& draws) : ExerciseForm(PageName::Tomto, draws), ui_(std::make_unique<Ui::Tomto>()) {
    setUp(*ui_);
    // Kept (tomto-right-to-left): from the right-hand field to the left one, against the layout.
    enterChain({ui_->crossingPointPrice, ui_->crossingPointQuantity}, LastBox::OkOrStay);
    options_ = {{ui_->crossing, Relation::Crossing},
                {ui_->parallel, Relation::Parallel},
                {ui_->coinciding, Relation::Coinciding}};
    onClick(ui_->crossing, &Tomto::askForCrossing);
    onClick(ui_->parallel, &Tomto::hideCrossing);
    onClick(ui_->coinciding, &Tomto::hideCrossing);
    onClick(ui_->showExplicitWorkedSolution, &Tomto::showWorkedExplicit);
    onClick(ui_->closeExplicitHelp, &Tomto::closeExplicitHelp);
    onClick(ui_->showImplicitWorkedSolution, &Tomto::showWorkedImplicit);
    onClick(ui_->closeImplicitHelp, &Tomto::closeImplicitHelp);
}

Tomto::~Tomto() = default;

void Tomto::opened() {
    showAxisMiddles(kShortAxis);
    prepare();
    firstExercise(state_, draws());
    showTask();
    if (ui_->crossing->isChosen()) {
        askForCrossing();
    }
}

void Tomto::newExercise() {
    prepare();
    tavrune::newExercise(state_, draws());
    showTask();
    options_.chooseNone();
    closeImplicitHelp();
    closeExplicitHelp();
}

void Tomto::prepare() {
    showAsking();
    hideCrossing();
    ui_->graph->DrawWidth(kThin);
    clearBoxes({ui_->crossingPointQuantity, ui_->crossingPointPrice});
    ui_->graph->Cls();
    // Kept (tomto-axis-numbers): the numbers on the axes are left as they are.
    ui_->graph->Scale(0, kShortAxis, kShortAxis, 0);
    options_.resetColours();
    ui_->equationsBackground->show();
}

void Tomto::showTask() {
    const auto [l, m] = lineTexts(state_);
    ui_->givenEquation1->setCaption(l);
    ui_->givenEquation2->setCaption(m);
}

void Tomto::askForCrossing() {
    showAll({ui_->crossingPointEquals, ui_->crossingPoint});
    focusOn(ui_->crossingPointPrice);
}

void Tomto::hideCrossing() { hideAll({ui_->crossingPointEquals, ui_->crossingPoint}); }

void Tomto::setRange() {
    tavrune::setRange(state_);
    showAxisMiddles(state_.graphMax);
}

void Tomto::showAxisMiddles(float upperEnd) {
    const std::string middle = NumberText(upperEnd / 2);
    ui_->quantityMarkMiddle->setCaption(middle);
    ui_->priceMarkMiddle->setCaption(middle);
}

void Tomto::judge() {
    setRange();
    const float max = state_.graphMax;
    ui_->graph->Scale(0, max, max, 0);
    // Marked while they are hidden too, whatever is chosen.
    const std::vector<AnswerBox*> boxes{ui_->crossingPointQuantity, ui_->crossingPointPrice};
    if (showJudgement(tavrune::judge(state_, {options_.chosen(), valuesOf(boxes)}), boxes,
                      ui_->crossingPointPrice)) {
        drawLines(state_.form == LineForm::Implicit ? kBlack : kGreen);
        ui_->graph->DrawWidth(kThin);
    }
}

void Tomto::giveAnswer() {
    whiten({ui_->crossingPointQuantity, ui_->crossingPointPrice});
    // Kept (tomto-unjudged-scale): the scale is the judge's; without a judgement it still ends at 10.
    setRange();
    // Kept (tomto-wide-pen): the width stays wide until the next exercise.
    drawLines(kGreen);
    options_.choose(state_.relation);
    options_.colour(state_.relation, kGreen);
    if (state_.relation == Relation::Crossing) {
        ui_->crossingPointQuantity->setContent(NumberText(state_.solutionQ));
        ui_->crossingPointPrice->setContent(NumberText(state_.solutionP));
        showAll({ui_->crossingPoint, ui_->crossingPointEquals});
    }
    showGiven();
}

void Tomto::drawLines(const QColor& colour) {
    for (const auto& [atZero, atMax] : graphLines(state_)) {
        ui_->graph->Line(0, atZero, state_.graphMax, atMax, colour);
    }
    ui_->graph->DrawWidth(kThick);
    if (state_.relation == Relation::Crossing) {
        ui_->graph->PSet(state_.solutionQ, state_.solutionP, kBlue);
    }
}

void Tomto::help() {
    if (!state_.form) {
        return;
    }
    const bool isExplicit = state_.form == LineForm::Explicit;
    if (hasDerivation(state_)) {
        (isExplicit ? ui_->explicitDerivation : ui_->implicitDerivation)->show();
    }
    if (isExplicit) {
        openPanel(ui_->explicitHelpPanel, ui_->showExplicitWorkedSolution);
    } else {
        openPanel(ui_->implicitHelpPanel, ui_->showImplicitWorkedSolution);
    }
}

void Tomto::showWorkedExplicit() {
    const ExplicitWorked worked = workedExplicit(state_);
    ui_->explicitWorkedEquated->setCaption(worked.equated);
    ui_->explicitWorkedCollected->setCaption(worked.collected);
    ui_->explicitWorkedQuantity->setCaption(worked.q);
    ui_->explicitWorkedPrice->setCaption(worked.p);
    showAll({ui_->explicitWorkedEquated, ui_->explicitWorkedCollected, ui_->explicitWorkedQuantity,
             ui_->explicitWorkedPrice});
}

void Tomto::closeExplicitHelp() {
    hideAll({ui_->explicitHelpPanel, ui_->explicitDerivation, ui_->explicitWorkedEquated,
             ui_->explicitWorkedCollected, ui_->explicitWorkedQuantity, ui_->explicitWorkedPrice});
}

void Tomto::showWorkedImplicit() {
    const ImplicitWorked worked = workedImplicit(state_);
    const Fraction q = implicitQuantity();
    q.setTexts(worked.numerator, worked.denominator);
    q.setShown(true);
    ui_->implicitWorkedQuantity->setLeft(q.right() + kGap);
    ui_->implicitWorkedQuantity->setCaption(worked.q);
    ui_->implicitWorkedInserted->setCaption(worked.inserted);
    ui_->implicitWorkedPrice->setCaption(worked.p);
    showAll({ui_->implicitWorkedQuantityEquals, ui_->implicitWorkedQuantity, ui_->implicitWorkedInserted,
             ui_->implicitWorkedPrice});
}

void Tomto::closeImplicitHelp() {
    hideAll({ui_->implicitHelpPanel, ui_->implicitDerivation, ui_->implicitWorkedQuantityEquals,
             ui_->implicitWorkedQuantity, ui_->implicitWorkedInserted, ui_->implicitWorkedPrice});
    implicitQuantity().setShown(false);
}

Fraction Tomto::implicitQuantity() const { return Fraction::of(*design(), "implicitWorkedQuantity"); }

}  // namespace tavrune
