#include "topics/addition/vaddi1.h"

#include <array>

#include "controls/panel.h"
#include "numeric/text.h"
#include "topics/addition/addition_graphs.h"
#include "topics/addition/ui_vaddi1.h"

namespace tavrune {
namespace {

constexpr double kTop = 10;
/// Where the given functions end, and the sum.
constexpr double kLastQ = 10;
constexpr double kLastSumQ = 20;

}  // namespace

Vaddi1::Vaddi1(Draws& draws)
    : ExerciseForm(PageName::Vaddi1, draws), ui_(std::make_unique<Ui::Vaddi1>()), rows_({}) {
    setUp(*ui_);
    rows_ = AnswerRows({{ui_->segment1Slope, ui_->segment1Intercept, nullptr, ui_->segment1End},
                        {ui_->segment2Slope, ui_->segment2Intercept, ui_->segment2Start, ui_->segment2End}});
    columnP_ = {ui_->price1, ui_->price2, ui_->price3};
    columnQ1_ = {ui_->function1Quantity1, ui_->function1Quantity2, ui_->function1Quantity3};
    columnQ2_ = {ui_->function2Quantity1, ui_->function2Quantity2, ui_->function2Quantity3};
    columnQtotal_ = {ui_->totalQuantity1, ui_->totalQuantity2, ui_->totalQuantity3};
    ui_->tableHead->standOver(
        {ui_->price1, ui_->function1Quantity1, ui_->function2Quantity1, ui_->totalQuantity1});
    buttons(
        {.newExercise = ui_->newExercise, .ok = ui_->ok, .giveAnswer = ui_->giveAnswer, .help = ui_->help});
    verdict(TwoLabels{.right = ui_->right, .wrong = ui_->wrong, .darkUntilFirstTick = true});
    enterChain({ui_->price1, ui_->function1Quantity1, ui_->function2Quantity1, ui_->totalQuantity1,
                ui_->price2, ui_->function1Quantity2, ui_->function2Quantity2, ui_->totalQuantity2,
                ui_->price3, ui_->function1Quantity3, ui_->function2Quantity3, ui_->totalQuantity3},
               LastBox::OkOrStay);
    enterGoes(ui_->totalQuantity3, {ui_->segment1Slope, ui_->segment2Slope});
    enterChain({ui_->segment1Slope, ui_->segment1Intercept, ui_->segment1End, ui_->segment2Slope,
                ui_->segment2Intercept, ui_->segment2Start, ui_->segment2End},
               LastBox::OkOrNewExercise);
    enterGoes(ui_->segment2Start, {ui_->segment2End, ui_->ok, ui_->newExercise});
    onClick(ui_->showPrices, &Vaddi1::showPrices);
    onClick(ui_->showQuantities, &Vaddi1::showQuantities);
    onClick(ui_->showSum, &Vaddi1::showSum);
    onClick(ui_->closeHelp, &Vaddi1::closeHelp);
}

Vaddi1::~Vaddi1() = default;

void Vaddi1::firstTick() {
    newExercise();
    ui_->openingBlank->hide();
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
    setShown(!isOne, {ui_->segment1PriceEquals, ui_->segment1TimesQuantityPlus,
                      ui_->segment1ZeroLessThanQuantity, ui_->segment1EndLessOrEqual, ui_->segment1Slope,
                      ui_->segment1Intercept, ui_->segment1End, ui_->segment1StartLessOrEqual});
    // A lone segment begins at its start, a second one after it.
    ui_->segment2StartLessOrEqual->setVisible(isOne);
    setShown(hasUpperEnd(state_), {ui_->segment2End, ui_->segment2EndLessOrEqual});
    rows_.nameShownBoxes();
}

void Vaddi1::showTask() {
    rows_.blank();
    for (const HelpColumn& column : {columnP_, columnQ1_, columnQ2_, columnQtotal_}) {
        blankColumn(column);
    }
    showAsking();
    ui_->function1Slope->setCaption(NumberText(state_.slope1));
    ui_->function1Intercept->setCaption(NumberText(state_.intercept1));
    ui_->function2Slope->setCaption(NumberText(state_.slope2));
    ui_->function2Intercept->setCaption(NumberText(state_.intercept2));
    for (const auto& [whole, slope, intercept] :
         {std::array{ui_->function1Text, ui_->function1Slope, ui_->function1Intercept},
          {ui_->function2Text, ui_->function2Slope, ui_->function2Intercept}}) {
        whole->setAccessibleName(wholeFunction(slope->caption(), intercept->caption(), "Q ≥ 0, P ≥ 0"));
    }
}

void Vaddi1::drawGraphs() {
    for (GraphBox* box : {ui_->function2Graph, ui_->function1Graph, ui_->resultGraph}) {
        box->Cls();
    }
    drawFrameTicks(*ui_->function1GraphFrame);
    drawFrameTicks(*ui_->function2GraphFrame);
    drawWideFrameTicks(*ui_->resultGraphFrame);
    drawPiece(*ui_->function1Graph, kTop, state_.function1(), 0, kLastQ);
    drawPiece(*ui_->function2Graph, kTop, state_.function2(), 0, kLastQ);
}

void Vaddi1::judge() {
    rows_.whiten();
    const std::vector<AnswerField> fields = answerFields(state_);
    if (rows_.areFit(fields)) {
        // Kept: "FORKERT" of a wrong try is not hidden; "RIGTIGT" lies in front of it.
        solved();
        drawSum();
        return;
    }
    failed();
    rows_.mark(fields);
    focusOn(ui_->segment1Slope->isShown() ? ui_->segment1Slope : ui_->segment2Slope);
}

void Vaddi1::drawSum() {
    GraphBox& box = *ui_->resultGraph;
    if (state_.segmentCount == 2) {
        drawPiece(box, kTop, state_.firstSegment(), 0, state_.kinkQuantity, kSumGreen);
        drawPiece(box, kTop, state_.secondSegment(), state_.kinkQuantity, kLastSumQ, kSumGreen);
    } else {
        drawPiece(box, kTop, state_.secondSegment(), 0, kLastSumQ, kSumGreen);
    }
}

void Vaddi1::giveAnswer() {
    ui_->helpPanel->hide();
    drawTypedSum();
    for (const auto& [column, cells] : {std::pair{columnP_, state_.tableP},
                                        {columnQ1_, state_.tableQ1},
                                        {columnQ2_, state_.tableQ2},
                                        {columnQtotal_, state_.tableQtotal}}) {
        writeColumn(column, cells);
    }
    fillAnswer();
    given();
}

void Vaddi1::drawTypedSum() {
    GraphBox& box = *ui_->resultGraph;
    // Kept: with one segment too, from what stands in the hidden row.
    drawPiece(box, kTop, rows_.typedSegment(0), 0, rows_.typed(0, Slot::End), kRed);
    const double end = state_.upperEndAsked ? rows_.typed(1, Slot::End) : kLastSumQ;
    drawPiece(box, kTop, rows_.typedSegment(1), rows_.typed(1, Slot::Start), end, kRed);
}

void Vaddi1::fillAnswer() {
    const auto write = [this](int row, const Piece& segment) {
        rows_.write(row, Slot::Slope, segment.slope);
        rows_.write(row, Slot::Intercept, segment.intercept);
    };
    write(1, state_.secondSegment());
    rows_.write(1, Slot::Start, state_.kinkQuantity);
    write(0, state_.firstSegment());
    rows_.write(0, Slot::End, state_.kinkQuantity);
    rows_.write(1, Slot::End, state_.upperEnd);
    rows_.whiten();
    // Kept: always as two segments, of which the first collapses to a dot with one.
    drawPiece(*ui_->resultGraph, kTop, state_.firstSegment(), 0, state_.kinkQuantity, kSumGreen);
    drawPiece(*ui_->resultGraph, kTop, state_.secondSegment(), state_.kinkQuantity, kLastSumQ, kSumGreen);
}

void Vaddi1::help() { openPanel(ui_->helpPanel, ui_->showPrices); }

void Vaddi1::showPrices() {
    writeColumn(columnP_, state_.tableP);
    markEnds(*ui_->function1Graph, state_.tableQ1);
    markEnds(*ui_->function2Graph, state_.tableQ2);
    focusOn(ui_->showQuantities);
}

void Vaddi1::markEnds(GraphBox& box, const Vaddi1State::Column& quantities) {
    const Vaddi1State::Column& prices = state_.tableP;
    drawMark(box, quantities[0], prices[0].number());
    if (quantities[0].isBlank() || quantities[2].isBlank()) {
        drawMark(box, quantities[1], prices[1].number());
    }
    if (prices[1] != prices[2] || quantities[1] != quantities[2]) {
        drawMark(box, quantities[2], prices[2].isBlank() ? -5 : prices[2].number());
    }
}

void Vaddi1::showQuantities() {
    showPrices();
    for (const std::size_t row : {std::size_t{1}, std::size_t{2}}) {
        if (state_.tableQ1[row].isNumeric()) {
            drawBand(*ui_->function1Graph, 0, state_.tableQ1[row].number(), state_.tableP[row].number(),
                     kBlue);
        }
        if (state_.tableQ2[row].isNumeric()) {
            drawBand(*ui_->function2Graph, 0, state_.tableQ2[row].number(), state_.tableP[row].number(),
                     kBandGreen);
        }
    }
    writeColumn(columnQ1_, state_.tableQ1);
    writeColumn(columnQ2_, state_.tableQ2);
    writeColumn(columnQtotal_, state_.tableQtotal);
    ui_->quantitiesResult->setCaption(pathText(state_));
    focusOn(ui_->showSum);
}

void Vaddi1::showSum() {
    showQuantities();
    ui_->ok->hide();
    focusOn(ui_->closeHelp);
    drawStack(1);
    // Kept: a blank price is not 10 either, and fails.
    if (state_.tableP[2] != TableCell(kTop)) {
        drawStack(2);
    }
    fillAnswer();
}

void Vaddi1::drawStack(std::size_t row) {
    GraphBox& box = *ui_->resultGraph;
    const double price = state_.tableP[row].number();
    const TableCell& first = state_.tableQ1[row];
    const TableCell& second = state_.tableQ2[row];
    if (first.isNumeric()) {
        drawBand(box, 0, first.number(), price, kBlue);
        if (second.isNumeric()) {
            drawBand(box, first.number(), first.number() + second.number(), price, kBandGreen);
        }
    } else if (state_.tableQ2[2].isNumeric()) {
        // Kept: the second row asks for the cell below its own.
        drawBand(box, 0, second.number(), price, kBandGreen);
    }
}

void Vaddi1::closeHelp() {
    ui_->helpPanel->hide();
    focusOn(ui_->price1);
}

}  // namespace tavrune
