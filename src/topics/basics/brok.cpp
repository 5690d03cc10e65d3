#include "topics/basics/brok.h"

#include "controls/fraction.h"
#include "controls/panel.h"
#include "numeric/text.h"
#include "topics/basics/ui_brok.h"

namespace tavrune {
namespace {

constexpr double kFirstFraction = fromTwips(600);
constexpr double kSecondFraction = fromTwips(2160);
constexpr double kMiddleFraction = fromTwips(1080);
constexpr double kGap = 2;

}  // namespace

Brok::Brok(Draws& draws) : ExerciseForm(PageName::Brok, draws), ui_(std::make_unique<Ui::Brok>()) {
    setUp(*ui_);
    enterChain({ui_->numerator, ui_->denominator}, LastBox::OkOrStay);
    onClick(ui_->showWorkedSolution, &Brok::showWorkedSolution);
}

Brok::~Brok() = default;

void Brok::newExercise() {
    clearBoxes({ui_->numerator, ui_->denominator});
    hideAll(
        {ui_->solutionStep, ui_->helpPanel, ui_->reducedWholeNumber, ui_->reducedBar, ui_->reducedEquals});
    showAsking();
    ui_->reducedNumerator->setCaption("");
    ui_->reducedDenominator->setCaption("");

    tavrune::newExercise(state_, draws());

    layOutFractions();
    ui_->operatorSign->setCaption(state_.operatorText);
    focusOn(ui_->numerator);
}

void Brok::layOutFractions() {
    const Fraction first(ui_->firstNumerator, ui_->firstBar, ui_->firstDenominator);
    first.setTexts(NumberText(state_.numeratorA), NumberText(state_.denominatorB));
    first.setLeft(kFirstFraction);
    const Fraction second(ui_->secondNumerator, ui_->secondBar, ui_->secondDenominator);
    second.setTexts(NumberText(state_.numeratorC), NumberText(state_.denominatorD));
    second.setLeft(kSecondFraction);
}

void Brok::judge() {
    ui_->reducedWholeNumber->hide();
    whiten({ui_->numerator, ui_->denominator});
    const double n = ui_->numerator->value();
    const double m = ui_->denominator->value();
    if (m == 0) {
        tell("Du må ikke dividere med nul");
        focusOn(ui_->denominator);
        return;
    }
    if (isRight(state_, n, m)) {
        solved();
        showReduction();
    } else {
        failed();
        focusOn(ui_->numerator);
        ui_->numerator->mark(true);
        ui_->denominator->mark(true);
    }
}

void Brok::showReduction() {
    const ReductionText text = reductionText(state_, ui_->numerator->value());
    if (text.whole) {
        showAll({ui_->reducedWholeNumber, ui_->reducedEquals});
        ui_->reducedWholeNumber->setCaption(*text.whole);
    } else if (text.fraction) {
        showAll({ui_->reducedEquals, ui_->reducedBar});
        Fraction(ui_->reducedNumerator, ui_->reducedBar, ui_->reducedDenominator)
            .setTexts(text.fraction->numerator, text.fraction->denominator);
    }
}

void Brok::giveAnswer() {
    whiten({ui_->numerator, ui_->denominator});
    ui_->numerator->setContent(NumberText(state_.resultNumerator));
    ui_->denominator->setContent(NumberText(state_.resultDenominator));
    // The verdict is made ready and not shown.
    showRight();
    given();
    showReduction();
}

void Brok::help() {
    const BrokMethod& method = methodFor(state_.operatorText);
    ui_->generalOperatorSign->setCaption(state_.operatorText);
    ui_->generalTask->setCaption(method.task);
    ui_->generalRule->setCaption(method.rule);
    ui_->generalResultNumerator->setCaption(method.numerator);
    ui_->generalResultDenominator->setCaption(method.denominator);
    ui_->generalResultDenominator->setWidth(ui_->generalResultNumerator->place().width());
    ui_->generalResultBar->setRightEnd(ui_->generalResultNumerator->place().right());
    openPanel(ui_->helpPanel, ui_->showWorkedSolution);
}

void Brok::showWorkedSolution() {
    const BrokWorked worked = workedSolution(state_);
    ui_->solutionStep->show();

    const Fraction first(ui_->workedFirstNumerator, ui_->workedFirstBar, ui_->workedFirstDenominator);
    first.setTexts(NumberText(state_.numeratorA), NumberText(state_.denominatorB));
    ui_->workedOperatorSign->setCaption(state_.operatorText);
    const Fraction second(ui_->workedSecondNumerator, ui_->workedSecondBar, ui_->workedSecondDenominator);
    second.setTexts(NumberText(state_.numeratorC), NumberText(state_.denominatorD));

    const Fraction middle(ui_->workedWrittenOutNumerator, ui_->workedWrittenOutBar,
                          ui_->workedWrittenOutDenominator);
    middle.setTexts(worked.middle.numerator, worked.middle.denominator);
    middle.setLeft(kMiddleFraction);
    const Fraction computed(ui_->workedComputedNumerator, ui_->workedComputedBar,
                            ui_->workedComputedDenominator);
    computed.setTexts(worked.computed.numerator, worked.computed.denominator);

    const LastStep& last = worked.last;
    const bool isReduced = last.kind == LastStep::Kind::Reduced;
    const Fraction reduced(ui_->workedReducedNumerator, ui_->workedReducedBar, ui_->workedReducedDenominator);
    reduced.setTexts(isReduced ? last.numerator : "", isReduced ? last.denominator : "");
    reduced.setShown(isReduced);
    ui_->workedReducedEquals->setVisible(last.kind != LastStep::Kind::Irreducible);
    ui_->workedReducedWholeNumber->setVisible(last.kind == LastStep::Kind::Whole);
    if (last.kind == LastStep::Kind::Whole) {
        ui_->workedReducedWholeNumber->setCaption(last.numerator);
    }

    // The row stands round the middle fraction, whose place is fixed: backwards from it, then forwards.
    const double equals = kMiddleFraction - kGap - ui_->workedWrittenOutEquals->place().width();
    ui_->workedWrittenOutEquals->setLeft(equals);
    second.setLeft(equals - kGap - second.width());
    ui_->workedOperatorSign->setLeft(ui_->workedSecondNumerator->place().left() - kGap -
                                     ui_->workedOperatorSign->place().width());
    first.setLeft(ui_->workedOperatorSign->place().left() - kGap - first.width());
    ui_->workedComputedEquals->setLeft(middle.right() + kGap);
    computed.setLeft(ui_->workedComputedEquals->place().right() + kGap);
    ui_->workedReducedEquals->setLeft(computed.right() + kGap);
    reduced.setLeft(ui_->workedReducedEquals->place().right() + kGap);
    ui_->workedReducedWholeNumber->setLeft(ui_->workedReducedEquals->place().right() + kGap);
}

void Brok::closeHelp() { hideAll({ui_->solutionStep, ui_->helpPanel}); }

}  // namespace tavrune
