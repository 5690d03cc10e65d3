#include "topics/basics/brok.h"

#include "controls/fraction.h"
#include "numeric/text.h"
#include "topics/basics/ui_brok.h"

namespace tavrune {
namespace {

constexpr double kFirstFraction = fromTwips(600);
constexpr double kSecondFraction = fromTwips(2160);
constexpr double kWrittenOutFraction = fromTwips(1080);
constexpr double kGap = 2;

/// "= numerator/denominator", a step of the worked solution.
struct WorkedStep {
    Label* equals;
    Fraction fraction;

    /// What is called `workedComputedEquals`, `workedComputedNumerator` and so on, for the prefix
    /// "workedComputed".
    static WorkedStep of(const QWidget& page, const QString& prefix) {
        return {page.findChild<Label*>(prefix + "Equals"), Fraction::of(page, prefix)};
    }

    void putAfter(const WorkedStep& before) const {
        equals->setLeft(before.fraction.right() + kGap);
        fraction.setLeft(equals->place().right() + kGap);
    }
};

/// The row of the worked solution: the task, then three steps.
struct WorkedRow {
    Fraction first;
    Label* operatorSign;
    Fraction second;
    WorkedStep writtenOut;
    WorkedStep computed;
    WorkedStep reduced;
    /// In the place of the reduced fraction.
    Label* wholeNumber;

    static WorkedRow of(const QWidget& page) {
        return {Fraction::of(page, "workedFirst"),
                page.findChild<Label*>("workedOperatorSign"),
                Fraction::of(page, "workedSecond"),
                WorkedStep::of(page, "workedWrittenOut"),
                WorkedStep::of(page, "workedComputed"),
                WorkedStep::of(page, "workedReduced"),
                page.findChild<Label*>("workedReducedWholeNumber")};
    }

    void write(const BrokState& state) const {
        const BrokWorked worked = workedSolution(state);
        first.setTexts(NumberText(state.numeratorA), NumberText(state.denominatorB));
        operatorSign->setCaption(tavrune::operatorSign(state.operation));
        second.setTexts(NumberText(state.numeratorC), NumberText(state.denominatorD));
        writtenOut.fraction.setTexts(worked.writtenOut.numerator, worked.writtenOut.denominator);
        writtenOut.fraction.setLeft(kWrittenOutFraction);
        computed.fraction.setTexts(worked.computed.numerator, worked.computed.denominator);
        writeLast(worked.last);
    }

    void writeLast(const LastStep& last) const {
        const bool isReduced = last.kind == LastStep::Kind::Reduced;
        reduced.fraction.setTexts(isReduced ? last.numerator : "", isReduced ? last.denominator : "");
        reduced.fraction.setShown(isReduced);
        reduced.equals->setVisible(last.kind != LastStep::Kind::Irreducible);
        wholeNumber->setVisible(last.kind == LastStep::Kind::Whole);
        if (last.kind == LastStep::Kind::Whole) {
            wholeNumber->setCaption(last.numerator);
        }
    }

    /// The row stands round the fraction that is written out, whose place is fixed: backwards from it, then
    /// forwards.
    void layOut() const {
        writtenOut.equals->setLeft(kWrittenOutFraction - kGap - writtenOut.equals->place().width());
        second.setLeft(writtenOut.equals->place().left() - kGap - second.width());
        operatorSign->setLeft(second.left() - kGap - operatorSign->place().width());
        first.setLeft(operatorSign->place().left() - kGap - first.width());
        computed.putAfter(writtenOut);
        reduced.putAfter(computed);
        wholeNumber->setLeft(reduced.equals->place().right() + kGap);
    }
};

}  // namespace

Brok::Brok(Draws& draws) : ExerciseForm(PageName::Brok, draws), ui_(std::make_unique<Ui::Brok>()) {
    setUp(*ui_);
    enterChain({ui_->numerator, ui_->denominator}, LastBox::OkOrStay);
    onClick(ui_->showWorkedSolution, &Brok::showWorkedSolution);
}

Brok::~Brok() = default;

void Brok::newExercise() {
    clearBoxes({ui_->numerator, ui_->denominator});
    closeHelp();
    clearReduction();
    showAsking();

    tavrune::newExercise(state_, draws());

    showTask();
    focusOn(ui_->numerator);
}

void Brok::clearReduction() {
    hideAll({ui_->reducedWholeNumber, ui_->reducedBar, ui_->reducedEquals});
    ui_->reducedNumerator->setCaption("");
    ui_->reducedDenominator->setCaption("");
}

void Brok::showTask() {
    const Fraction first = Fraction::of(*design(), "first");
    first.setTexts(NumberText(state_.numeratorA), NumberText(state_.denominatorB));
    first.setLeft(kFirstFraction);
    const Fraction second = Fraction::of(*design(), "second");
    second.setTexts(NumberText(state_.numeratorC), NumberText(state_.denominatorD));
    second.setLeft(kSecondFraction);
    ui_->operatorSign->setCaption(operatorSign(state_.operation));
}

void Brok::judge() {
    const std::vector<AnswerBox*> boxes{ui_->numerator, ui_->denominator};
    ui_->reducedWholeNumber->hide();
    if (ui_->denominator->value() == 0) {
        whiten(boxes);
        tell("Du må ikke dividere med nul");
        focusOn(ui_->denominator);
        return;
    }
    if (showJudgement(tavrune::judge(state_, valuesOf(boxes)), boxes, ui_->numerator)) {
        showReduction();
    }
}

void Brok::showReduction() {
    const ReductionText text = reductionText(state_, ui_->numerator->value());
    if (text.whole) {
        showAll({ui_->reducedWholeNumber, ui_->reducedEquals});
        ui_->reducedWholeNumber->setCaption(*text.whole);
    } else if (text.fraction) {
        showAll({ui_->reducedEquals, ui_->reducedBar});
        Fraction::of(*design(), "reduced").setTexts(text.fraction->numerator, text.fraction->denominator);
    }
}

void Brok::giveAnswer() {
    whiten({ui_->numerator, ui_->denominator});
    ui_->numerator->setContent(NumberText(state_.resultNumerator));
    ui_->denominator->setContent(NumberText(state_.resultDenominator));
    // The verdict is made ready and not shown.
    showRight();
    showGiven();
    showReduction();
}

void Brok::help() {
    const BrokMethod& method = methodFor(state_.operation);
    ui_->generalOperatorSign->setCaption(operatorSign(state_.operation));
    ui_->generalTask->setCaption(method.task);
    ui_->generalRule->setCaption(method.rule);
    ui_->generalResultNumerator->setCaption(method.numerator);
    ui_->generalResultDenominator->setCaption(method.denominator);
    ui_->generalResultDenominator->setWidth(ui_->generalResultNumerator->place().width());
    ui_->generalResultBar->setRightEnd(ui_->generalResultNumerator->place().right());
    openPanel(ui_->helpPanel, ui_->showWorkedSolution);
}

void Brok::showWorkedSolution() {
    ui_->workedSolution->show();
    const WorkedRow row = WorkedRow::of(*design());
    row.write(state_);
    row.layOut();
}

void Brok::closeHelp() { hideAll({ui_->workedSolution, ui_->helpPanel}); }

}  // namespace tavrune
