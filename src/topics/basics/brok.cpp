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
    buttons({.newExercise = ui_->Command1,
             .ok = ui_->Command2,
             .giveAnswer = ui_->Command3,
             .help = ui_->Command4});
    verdict(OneLabel{ui_->Label6});
    enterChain({ui_->Text1, ui_->Text2}, LastBox::OkOrStay);
    onClick(ui_->Command5, &Brok::showWorkedSolution);
    onClick(ui_->Command6, &Brok::closeHelp);
}

Brok::~Brok() = default;

void Brok::newExercise() {
    clearBoxes({ui_->Text1, ui_->Text2});
    hideAll({ui_->Picture2, ui_->Picture1, ui_->Label12, ui_->Line4, ui_->Label10});
    showAsking();
    ui_->Label9->setCaption("");
    ui_->Label11->setCaption("");

    tavrune::newExercise(state_, draws());

    layOutFractions();
    ui_->Label3->setCaption(state_.operatorText);
    focusOn(ui_->Text1);
}

void Brok::layOutFractions() {
    const Fraction first(ui_->Label1, ui_->Line1, ui_->Label2);
    first.setTexts(NumberText(state_.numeratorA), NumberText(state_.denominatorB));
    first.setLeft(kFirstFraction);
    const Fraction second(ui_->Label4, ui_->Line2, ui_->Label5);
    second.setTexts(NumberText(state_.numeratorC), NumberText(state_.denominatorD));
    second.setLeft(kSecondFraction);
}

void Brok::judge() {
    ui_->Label12->hide();
    whiten({ui_->Text1, ui_->Text2});
    const double n = ui_->Text1->value();
    const double m = ui_->Text2->value();
    if (m == 0) {
        tell("Du må ikke dividere med nul");
        focusOn(ui_->Text2);
        return;
    }
    if (isRight(state_, n, m)) {
        solved();
        showReduction();
    } else {
        failed();
        focusOn(ui_->Text1);
        ui_->Text1->mark(true);
        ui_->Text2->mark(true);
    }
}

void Brok::showReduction() {
    const ReductionText text = reductionText(state_, ui_->Text1->value());
    if (text.whole) {
        showAll({ui_->Label12, ui_->Label10});
        ui_->Label12->setCaption(*text.whole);
    } else if (text.fraction) {
        showAll({ui_->Label10, ui_->Line4});
        Fraction(ui_->Label9, ui_->Line4, ui_->Label11)
            .setTexts(text.fraction->numerator, text.fraction->denominator);
    }
}

void Brok::giveAnswer() {
    whiten({ui_->Text1, ui_->Text2});
    ui_->Text1->setContent(NumberText(state_.resultNumerator));
    ui_->Text2->setContent(NumberText(state_.resultDenominator));
    // The verdict is made ready and not shown.
    showRight();
    given();
    showReduction();
}

void Brok::help() {
    const BrokMethod& method = methodFor(state_.operatorText);
    ui_->Label17->setCaption(state_.operatorText);
    ui_->Label15->setCaption(method.task);
    ui_->Label24->setCaption(method.rule);
    ui_->Label21->setCaption(method.numerator);
    ui_->Label22->setCaption(method.denominator);
    ui_->Label22->setWidth(ui_->Label21->place().width());
    ui_->Line7->setRightEnd(ui_->Label21->place().right());
    openPanel(ui_->Picture1, ui_->Command5);
}

void Brok::showWorkedSolution() {
    const BrokWorked worked = workedSolution(state_);
    ui_->Picture2->show();

    const Fraction first(ui_->brokk_0, ui_->Line8, ui_->brokk_1);
    first.setTexts(NumberText(state_.numeratorA), NumberText(state_.denominatorB));
    ui_->brokk_2->setCaption(state_.operatorText);
    const Fraction second(ui_->brokk_3, ui_->Line9, ui_->brokk_4);
    second.setTexts(NumberText(state_.numeratorC), NumberText(state_.denominatorD));

    const Fraction middle(ui_->brokk_6, ui_->Line10, ui_->brokk_7);
    middle.setTexts(worked.middle.numerator, worked.middle.denominator);
    middle.setLeft(kMiddleFraction);
    const Fraction computed(ui_->brokk_9, ui_->Line11, ui_->brokk_10);
    computed.setTexts(worked.computed.numerator, worked.computed.denominator);

    const LastStep& last = worked.last;
    const bool isReduced = last.kind == LastStep::Kind::Reduced;
    const Fraction reduced(ui_->brokk_12, ui_->Line12, ui_->brokk_13);
    reduced.setTexts(isReduced ? last.numerator : "", isReduced ? last.denominator : "");
    reduced.setShown(isReduced);
    ui_->brokk_11->setVisible(last.kind != LastStep::Kind::Irreducible);
    ui_->Label23->setVisible(last.kind == LastStep::Kind::Whole);
    if (last.kind == LastStep::Kind::Whole) {
        ui_->Label23->setCaption(last.numerator);
    }

    // The row stands round the middle fraction, whose place is fixed: backwards from it, then forwards.
    const double equals = kMiddleFraction - kGap - ui_->brokk_5->place().width();
    ui_->brokk_5->setLeft(equals);
    second.setLeft(equals - kGap - second.width());
    ui_->brokk_2->setLeft(ui_->brokk_3->place().left() - kGap - ui_->brokk_2->place().width());
    first.setLeft(ui_->brokk_2->place().left() - kGap - first.width());
    ui_->brokk_8->setLeft(middle.right() + kGap);
    computed.setLeft(ui_->brokk_8->place().right() + kGap);
    ui_->brokk_11->setLeft(computed.right() + kGap);
    reduced.setLeft(ui_->brokk_11->place().right() + kGap);
    ui_->Label23->setLeft(ui_->brokk_11->place().right() + kGap);
}

void Brok::closeHelp() { hideAll({ui_->Picture2, ui_->Picture1}); }

}  // namespace tavrune
