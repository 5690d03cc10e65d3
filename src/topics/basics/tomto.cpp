#include "topics/basics/tomto.h"

#include "controls/fraction.h"
#include "controls/frame.h"
#include "controls/panel.h"
#include "graph/graph_box.h"
#include "numeric/judging.h"
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
    buttons({.newExercise = ui_->Command1,
             .ok = ui_->Command2,
             .giveAnswer = ui_->Command3,
             .help = ui_->Command7});
    verdict(OneLabel{ui_->Label5});
    // Kept: from the right-hand field to the left one, against the layout.
    enterChain({ui_->Text2, ui_->Text1}, LastBox::OkOrStay);
    options_ = {{ui_->Option1, Relation::Crossing},
                {ui_->Option2, Relation::Parallel},
                {ui_->Option3, Relation::Coinciding}};
    onClick(ui_->Option1, &Tomto::askForCrossing);
    onClick(ui_->Option2, &Tomto::hideCrossing);
    onClick(ui_->Option3, &Tomto::hideCrossing);
    onClick(ui_->Command5, &Tomto::showWorkedExplicit);
    onClick(ui_->Command6, &Tomto::closeExplicitHelp);
    onClick(ui_->Command10, &Tomto::showWorkedImplicit);
    onClick(ui_->Command4, &Tomto::closeImplicitHelp);
}

Tomto::~Tomto() = default;

std::array<Tomto::Field, 2> Tomto::fields() const {
    return {{{ui_->Text1, state_.solutionQ}, {ui_->Text2, state_.solutionP}}};
}

void Tomto::firstTick() {
    ui_->Label6->setCaption("5");
    ui_->Label7->setCaption("5");
    prepare();
    firstExercise(state_, draws());
    showTask();
    if (ui_->Option1->isChosen()) {
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
    ui_->Picture1->DrawWidth(kThin);
    clearBoxes({ui_->Text1, ui_->Text2});
    ui_->Picture1->Cls();
    // Kept: the numbers on the axes are left as they are.
    ui_->Picture1->Scale(0, 10, 10, 0);
    options_.resetColours();
    ui_->Label1->show();
}

void Tomto::showTask() {
    const auto [l, m] = lineTexts(state_);
    ui_->Label2->setCaption(l);
    ui_->Label3->setCaption(m);
}

void Tomto::askForCrossing() {
    showAll({ui_->Label4, ui_->Picture2});
    focusOn(ui_->Text2);
}

void Tomto::hideCrossing() { hideAll({ui_->Label4, ui_->Picture2}); }

void Tomto::setRange() {
    state_.graphMax = rangeFor(state_);
    const std::string middle = NumberText(state_.graphMax / 2);
    ui_->Label7->setCaption(middle);
    ui_->Label6->setCaption(middle);
}

void Tomto::judge() {
    setRange();
    const float max = state_.graphMax;
    ui_->Picture1->Scale(0, max, max, 0);
    if (isRight(state_, options_.chosen(), ui_->Text1->value(), ui_->Text2->value())) {
        whiten({ui_->Text1, ui_->Text2});
        solved();
        drawLines(state_.formKind == 0 ? kGreen : kBlack);
        ui_->Picture1->DrawWidth(kThin);
        return;
    }
    focusOn(ui_->Text2);
    failed();
    // Hidden fields too, whatever is chosen.
    for (const auto& [box, target] : fields()) {
        box->mark(!isExactly(box->value(), target));
    }
}

void Tomto::giveAnswer() {
    whiten({ui_->Text1, ui_->Text2});
    // Kept: the scale is the judge's; without a judgement it still ends at 10.
    setRange();
    // Kept: the width stays wide until the next exercise.
    drawLines(kGreen);
    options_.choose(state_.relation);
    options_.colour(state_.relation, kGreen);
    if (state_.relation == Relation::Crossing) {
        for (const auto& [box, target] : fields()) {
            box->setContent(NumberText(target));
        }
        showAll({ui_->Picture2, ui_->Label4});
    }
    given();
}

void Tomto::drawLines(const QColor& colour) {
    for (const auto& [atZero, atMax] : graphLines(state_)) {
        ui_->Picture1->Line(0, atZero, state_.graphMax, atMax, colour);
    }
    ui_->Picture1->DrawWidth(kThick);
    if (state_.relation == Relation::Crossing) {
        ui_->Picture1->PSet(state_.solutionQ, state_.solutionP, kBlue);
    }
}

void Tomto::help() {
    if (state_.formTag == "a") {
        if (hasDerivation(state_)) {
            ui_->Picture4->show();
        }
        openPanel(ui_->Picture3, ui_->Command5);
    } else if (state_.formTag == "b") {
        if (hasDerivation(state_)) {
            ui_->Picture6->show();
        }
        openPanel(ui_->Picture5, ui_->Command10);
    }
}

void Tomto::showWorkedExplicit() {
    const ExplicitWorked worked = workedExplicit(state_);
    ui_->Label34->setCaption(worked.equated);
    ui_->Label35->setCaption(worked.collected);
    ui_->Label36->setCaption(worked.q);
    ui_->Label37->setCaption(worked.p);
    showAll({ui_->Label34, ui_->Label35, ui_->Label36, ui_->Label37});
}

void Tomto::closeExplicitHelp() {
    hideAll({ui_->Picture3, ui_->Picture4, ui_->Label34, ui_->Label35, ui_->Label36, ui_->Label37});
}

void Tomto::showWorkedImplicit() {
    const ImplicitWorked worked = workedImplicit(state_);
    const Fraction q(ui_->Label56, ui_->Line10, ui_->Label57);
    q.setTexts(worked.numerator, worked.denominator);
    q.setShown(true);
    ui_->Label58->setLeft(q.right() + kGap);
    ui_->Label58->setCaption(worked.q);
    ui_->Label59->setCaption(worked.inserted);
    ui_->Label60->setCaption(worked.p);
    showAll({ui_->Label54, ui_->Label58, ui_->Label59, ui_->Label60});
}

void Tomto::closeImplicitHelp() {
    hideAll({ui_->Picture5, ui_->Picture6, ui_->Label54, ui_->Label56, ui_->Label57, ui_->Label58,
             ui_->Label59, ui_->Label60, ui_->Line10});
}

}  // namespace tavrune
