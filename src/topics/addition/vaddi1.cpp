#include "topics/addition/vaddi1.h"

#include "numeric/text.h"
#include "topics/addition/ui_vaddi1.h"

namespace tavrune {

Vaddi1::Vaddi1(Draws& draws) : ExerciseForm(PageName::Vaddi1, draws), ui_(std::make_unique<Ui::Vaddi1>()) {
    setUp(*ui_);
    rows_ = AnswerRows::of(*design());
    table_ = helpTableOf(*design(), {"price", "function1Quantity", "function2Quantity", "totalQuantity"});
    ui_->tableHead->standOver(
        {ui_->price1, ui_->function1Quantity1, ui_->function2Quantity1, ui_->totalQuantity1});
    enterChain(rowByRow(table_), {ui_->segment1Slope, ui_->segment2Slope});
    enterChainWhileShown(rows_.boxes(), LastBox::OkOrNewExercise);
    onClick(ui_->showPrices, &Vaddi1::showPrices);
    onClick(ui_->showQuantities, &Vaddi1::showQuantities);
    onClick(ui_->showSum, &Vaddi1::showSum);
}

Vaddi1::~Vaddi1() = default;

void Vaddi1::opened() {
    newExercise();
    giveFinalWrongColour();
}

void Vaddi1::newExercise() {
    ui_->quantitiesResult->setCaption("");
    ui_->helpPanel->hide();
    drawTask(state_, draws());
    showRows();
    showTask();
    drawGraphs();
    focusOn(ui_->price1);
    solve(state_);
}

void Vaddi1::showRows() {
    const bool isOne = isOneSegment(state_);
    rows_.show(kFirstRow, !isOne, true);
    rows_.show(kSecondRow, true, hasUpperEnd(state_));
    rows_.showStartSign(kLoneRow, isOne);
    rows_.nameShownBoxes();
}

void Vaddi1::showTask() {
    rows_.blank();
    blank(table_);
    showAsking();
    for (const auto& [name, function] :
         {std::pair{"function1", state_.function1}, {"function2", state_.function2}}) {
        FunctionLabels::of(*design(), name)
            .tell(NumberText(function.slope), NumberText(function.intercept), "Q ≥ 0, P ≥ 0");
    }
}

void Vaddi1::drawGraphs() {
    FramedGraph::of(*design(), "function1").clear(drawFrameTicks);
    FramedGraph::of(*design(), "function2").clear(drawFrameTicks);
    FramedGraph::of(*design(), "result").clear(drawWideFrameTicks);
    drawPiece(*ui_->function1Graph, state_.function1, 0, kFunctionEndQ);
    drawPiece(*ui_->function2Graph, state_.function2, 0, kFunctionEndQ);
}

void Vaddi1::judge() {
    const std::vector<AnswerBox*> boxes = rows_.boxes(answerFields(state_));
    // Kept (shell-forkert-behind): "FORKERT" of a wrong try is not hidden.
    if (showJudgement(tavrune::judge(state_, valuesOf(boxes)), boxes,
                      ui_->segment1Slope->isShown() ? ui_->segment1Slope : ui_->segment2Slope)) {
        drawSum();
    }
}

void Vaddi1::drawSum() {
    GraphBox& graph = *ui_->resultGraph;
    const Figure line(graph, Meaning::Line);
    if (state_.segmentCount == 2) {
        drawPiece(graph, state_.firstSegment, 0, state_.kinkQuantity, kSumGreen);
    }
    drawPiece(graph, state_.secondSegment, state_.kinkQuantity, kSumEndQ, kSumGreen);
}

void Vaddi1::giveAnswer() {
    ui_->helpPanel->hide();
    drawTypedSum();
    fillTable();
    fillAnswer();
    showGiven();
}

void Vaddi1::fillTable() {
    auto column = table_.begin();
    for (const auto* cells : {&state_.tableP, &state_.tableQ1, &state_.tableQ2, &state_.tableQtotal}) {
        writeColumn(*column++, *cells);
    }
}

void Vaddi1::drawTypedSum() {
    GraphBox& graph = *ui_->resultGraph;
    const Figure line(graph, Meaning::Line);
    // Kept (vaddi1-hidden-row): with one segment too, from what stands in the hidden row.
    drawPiece(graph, rows_.typedSegment(kFirstRow), 0, rows_.typed(kFirstRow, Slot::End), kRed);
    const double end = state_.upperEndAsked ? rows_.typed(kSecondRow, Slot::End) : kSumEndQ;
    drawPiece(graph, rows_.typedSegment(kSecondRow), rows_.typed(kSecondRow, Slot::Start), end, kRed);
}

void Vaddi1::fillAnswer() {
    rows_.write(kSecondRow, state_.secondSegment);
    rows_.write(kSecondRow, Slot::Start, state_.kinkQuantity);
    rows_.write(kFirstRow, state_.firstSegment);
    rows_.write(kFirstRow, Slot::End, state_.kinkQuantity);
    rows_.write(kSecondRow, Slot::End, state_.upperEnd);
    rows_.whiten();
    const Figure line(*ui_->resultGraph, Meaning::Line);
    // Kept (vaddi1-lone-dot): always as two segments, of which the first collapses to a dot with one.
    drawPiece(*ui_->resultGraph, state_.firstSegment, 0, state_.kinkQuantity, kSumGreen);
    drawPiece(*ui_->resultGraph, state_.secondSegment, state_.kinkQuantity, kSumEndQ, kSumGreen);
}

void Vaddi1::help() { openPanel(ui_->helpPanel, ui_->showPrices); }

void Vaddi1::showPrices() {
    writeColumn(table_.front(), state_.tableP);
    drawEndSquares(*ui_->function1Graph, state_.tableQ1);
    drawEndSquares(*ui_->function2Graph, state_.tableQ2);
    focusOn(ui_->showQuantities);
}

void Vaddi1::drawEndSquares(GraphBox& graph, const Vaddi1State::Column& quantities) {
    const auto& [startPrice, middlePrice, lastPrice] = state_.tableP;
    const auto& [start, middle, last] = quantities;
    drawSquare(graph, start, startPrice.number());
    if (start.isBlank() || last.isBlank()) {
        drawSquare(graph, middle, middlePrice.number());
    }
    if (middlePrice != lastPrice || middle != last) {
        drawSquare(graph, last, lastPrice.isBlank() ? kOffTheGraph : lastPrice.number());
    }
}

void Vaddi1::showQuantities() {
    showPrices();
    for (const std::size_t row : {Vaddi1State::kMiddleRow, Vaddi1State::kLastRow}) {
        if (state_.tableQ1[row].isNumeric()) {
            drawBand(*ui_->function1Graph, 0, state_.tableQ1[row].number(), state_.tableP[row].number(),
                     kBlue);
        }
        if (state_.tableQ2[row].isNumeric()) {
            drawBand(*ui_->function2Graph, 0, state_.tableQ2[row].number(), state_.tableP[row].number(),
                     kBandGreen);
        }
    }
    fillTable();
    ui_->quantitiesResult->setCaption(pathText(state_));
    focusOn(ui_->showSum);
}

void Vaddi1::showSum() {
    showQuantities();
    ui_->ok->hide();
    focusOn(ui_->closeHelp);
    drawStack(Vaddi1State::kMiddleRow);
    // Kept (vaddi1-blank-price): a blank price is not the top one either, and fails.
    if (state_.tableP[Vaddi1State::kLastRow] != TableCell(kTopPrice)) {
        drawStack(Vaddi1State::kLastRow);
    }
    fillAnswer();
}

void Vaddi1::drawStack(std::size_t row) {
    GraphBox& graph = *ui_->resultGraph;
    const double price = state_.tableP[row].number();
    const TableCell& first = state_.tableQ1[row];
    const TableCell& second = state_.tableQ2[row];
    if (first.isNumeric()) {
        drawBand(graph, 0, first.number(), price, kBlue);
        if (second.isNumeric()) {
            drawBand(graph, first.number(), first.number() + second.number(), price, kBandGreen);
        }
    } else if (state_.tableQ2[Vaddi1State::kLastRow].isNumeric()) {
        // Kept (vaddi1-cell-below): the middle row asks for the cell below its own.
        drawBand(graph, 0, second.number(), price, kBandGreen);
    }
}

void Vaddi1::closeHelp() {
    ui_->helpPanel->hide();
    focusOn(ui_->price1);
}

}  // namespace tavrune
