#include "topics/addition/laddi1.h"

#include "controls/panel.h"
#include "topics/addition/ui_laddi1.h"
#include "topics/addition/vertical_graphs.h"

namespace tavrune {

Laddi1::Laddi1(Draws& draws) : VerticalForm(PageName::Laddi1, draws), ui_(std::make_unique<Ui::Laddi1>()) {
    setUp(*ui_);
    graphs({.function1 = {ui_->Picture2, ui_->Picture3},
            .function2 = {ui_->Picture1, ui_->Picture4},
            .sum = {ui_->Picture5, ui_->Picture6}});
    answerRows(
        {{ui_->Text1, ui_->Text2, nullptr, ui_->Text3}, {ui_->Text4, ui_->Text5, ui_->Text6, ui_->Text7}});
    helpPanel(ui_->Picture7, ui_->Vis1);
    buttons({.newExercise = ui_->Command1,
             .ok = ui_->Command2,
             .giveAnswer = ui_->Command4,
             .help = ui_->Command6});
    verdict(TwoLabels{.right = ui_->Label23, .wrong = ui_->Label22});
    enterChain({ui_->Text1, ui_->Text2, ui_->Text3, ui_->Text4, ui_->Text5, ui_->Text6, ui_->Text7},
               LastBox::OkOrNewExercise);
    enterGoes(ui_->Text6, {ui_->Text7, ui_->Command2, ui_->Command1});
    onClick(ui_->Vis1, &Laddi1::showIntervals);
    onClick(ui_->Vis2, &Laddi1::showSum);
    onClick(ui_->Luk, &Laddi1::closeHelp);
}

Laddi1::~Laddi1() = default;

void Laddi1::firstTick() {
    VerticalForm::firstTick();
    ui_->Label53->hide();
}

void Laddi1::newExercise() {
    hideAll({ui_->Picture7, ui_->Picture8, ui_->Picture9});
    for (Label* text : {ui_->Label46, ui_->Label48, ui_->Label51, ui_->Label54}) {
        text->setCaption("");
    }
    tavrune::newExercise(state_, draws());
    showTask();
    showRows();
    startAsking();
}

void Laddi1::showTask() {
    ui_->Label5->setCaption(functionText(state_.function1()));
    ui_->Label3->setCaption(functionText(state_.function2()));
    clearGraphs();
    drawPiece(*ui_->Picture3, kFunctionTop, state_.function1(), 0, kLastGivenQ);
    drawPiece(*ui_->Picture4, kFunctionTop, state_.function2(), 0, kLastGivenQ);
}

void Laddi1::showRows() {
    const bool isOne = state_.segmentCount == 1;
    setShown(!isOne, {ui_->Text1, ui_->Text2, ui_->Text3, ui_->Label9, ui_->Label11, ui_->Label13,
                      ui_->Label37, ui_->Label39});
    // A lone segment begins at its start, a second one after it.
    ui_->Label38->setVisible(isOne);
    setShown(state_.upperEndAsked, {ui_->Text7, ui_->Label4});
}

void Laddi1::showIntervals() {
    focusOn(ui_->Vis2);
    markEnds(*ui_->Picture3, state_.function1());
    markEnds(*ui_->Picture4, state_.function2());
    // With one segment too, at Q = 0.
    std::vector<double> ends{state_.kinkQuantity};
    if (state_.upperEndAsked) {
        ends.push_back(state_.upperEnd);
    }
    drawUprights(*ui_->Picture3, ends);
    drawUprights(*ui_->Picture4, ends);
    roundKink(state_);
    ui_->Label46->setCaption(intervalsText(state_));
}

void Laddi1::markEnds(GraphBox& box, const Piece& function) {
    drawLevelMark(box, 0, function.intercept);
    if (function.slope < 0) {
        drawLevelMark(box, zeroOf(function), 0);
    }
}

void Laddi1::showSum() {
    showIntervals();
    focusOn(ui_->Luk);
    const bool isOne = state_.segmentCount == 1;
    ui_->Picture8->setVisible(isOne);
    ui_->Picture9->setVisible(!isOne);
    if (isOne) {
        ui_->Label48->setCaption(firstSegmentText(state_));
    } else {
        ui_->Label51->setCaption(firstSegmentText(state_));
        ui_->Label54->setCaption(secondSegmentText(state_));
    }
}

void Laddi1::closeHelp() {
    hideAll({ui_->Picture7, ui_->Picture8, ui_->Picture9});
    focusOnFirstRow();
}

}  // namespace tavrune
