#include "topics/addition/laddi1.h"

#include "topics/addition/ui_laddi1.h"
#include "topics/addition/vertical_graphs.h"

namespace tavrune {
namespace {

void drawEndSquares(GraphBox& graph, const Piece& function) {
    drawLevelSquare(graph, 0, function.intercept);
    if (function.slope < 0) {
        drawLevelSquare(graph, zeroOf(function), 0);
    }
}

}  // namespace

Laddi1::Laddi1(Draws& draws) : VerticalForm(PageName::Laddi1, draws), ui_(std::make_unique<Ui::Laddi1>()) {
    setUp(*ui_);
    enterChainWhileShown(rows().boxes(), LastBox::OkOrNewExercise);
    onClick(ui_->showIntervals, &Laddi1::showIntervals);
    onClick(ui_->showFunctions, &Laddi1::showSum);
}

Laddi1::~Laddi1() = default;

void Laddi1::newExercise() {
    hideAll({ui_->helpPanel, ui_->loneSegmentStep, ui_->twoSegmentsStep});
    for (Label* text :
         {ui_->intervalsResult, ui_->loneSegmentResult, ui_->segment1Result, ui_->segment2Result}) {
        text->setCaption("");
    }
    tavrune::newExercise(state_, draws());
    showTask();
    showRows();
    askForSum();
}

void Laddi1::showTask() {
    ui_->function1Formula->setCaption(functionText(state_.function1));
    ui_->function2Formula->setCaption(functionText(state_.function2));
    clearGraphs();
    drawPiece(*ui_->function1Graph, state_.function1, 0, kFunctionEndQ);
    drawPiece(*ui_->function2Graph, state_.function2, 0, kFunctionEndQ);
}

void Laddi1::showRows() {
    const bool isOne = state_.segmentCount == 1;
    rows().show(kFirstRow, !isOne, true);
    rows().show(kSecondRow, true, state_.upperEndAsked);
    rows().showStartSign(kLoneRow, isOne);
}

void Laddi1::showIntervals() {
    focusOn(ui_->showFunctions);
    drawEndSquares(*ui_->function1Graph, state_.function1);
    drawEndSquares(*ui_->function2Graph, state_.function2);
    // With one segment the kink stands at Q = 0, and has a line too.
    std::vector<double> ends{state_.kinkQuantity};
    if (state_.upperEndAsked) {
        ends.push_back(state_.upperEnd);
    }
    drawUprights(*ui_->function1Graph, ends);
    drawUprights(*ui_->function2Graph, ends);
    roundKink(state_);
    ui_->intervalsResult->setCaption(intervalsText(state_));
}

void Laddi1::showSum() {
    showIntervals();
    focusOn(ui_->closeHelp);
    const bool isOne = state_.segmentCount == 1;
    ui_->loneSegmentStep->setVisible(isOne);
    ui_->twoSegmentsStep->setVisible(!isOne);
    if (isOne) {
        ui_->loneSegmentResult->setCaption(firstSegmentText(state_));
    } else {
        ui_->segment1Result->setCaption(firstSegmentText(state_));
        ui_->segment2Result->setCaption(secondSegmentText(state_));
    }
}

void Laddi1::closeHelp() {
    hideAll({ui_->helpPanel, ui_->loneSegmentStep, ui_->twoSegmentsStep});
    focusOnFirstRow();
}

}  // namespace tavrune
