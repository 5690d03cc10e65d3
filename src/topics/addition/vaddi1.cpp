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
    rows_ = AnswerRows(
        {{ui_->Text4, ui_->Text5, nullptr, ui_->Text6}, {ui_->Text1, ui_->Text2, ui_->Text3, ui_->Text20}});
    columnP_ = {ui_->Text7, ui_->Text8, ui_->Text9};
    columnQ1_ = {ui_->Text10, ui_->Text11, ui_->Text12};
    columnQ2_ = {ui_->Text13, ui_->Text14, ui_->Text15};
    columnQtotal_ = {ui_->Text16, ui_->Text17, ui_->Text18};
    ui_->Label40->standOver({ui_->Text7, ui_->Text10, ui_->Text13, ui_->Text16});
    buttons({.newExercise = ui_->Command1,
             .ok = ui_->Command2,
             .giveAnswer = ui_->Command4,
             .help = ui_->Command3});
    verdict(TwoLabels{.right = ui_->Label42, .wrong = ui_->Label41, .darkUntilFirstTick = true});
    enterChain({ui_->Text7, ui_->Text10, ui_->Text13, ui_->Text16, ui_->Text8, ui_->Text11, ui_->Text14,
                ui_->Text17, ui_->Text9, ui_->Text12, ui_->Text15, ui_->Text18},
               LastBox::OkOrStay);
    enterGoes(ui_->Text18, {ui_->Text4, ui_->Text1});
    enterChain({ui_->Text4, ui_->Text5, ui_->Text6, ui_->Text1, ui_->Text2, ui_->Text3, ui_->Text20},
               LastBox::OkOrNewExercise);
    enterGoes(ui_->Text3, {ui_->Text20, ui_->Command2, ui_->Command1});
    onClick(ui_->Vis1, &Vaddi1::showPrices);
    onClick(ui_->Vis2, &Vaddi1::showQuantities);
    onClick(ui_->Vis3, &Vaddi1::showSum);
    onClick(ui_->Command5, &Vaddi1::closeHelp);
}

Vaddi1::~Vaddi1() = default;

void Vaddi1::firstTick() {
    newExercise();
    ui_->Label30->hide();
    giveFinalWrongColour();
}

void Vaddi1::newExercise() {
    ui_->Label23->setCaption("");
    ui_->Picture3->hide();
    drawTask(state_, draws());
    showRows();
    showTask();
    drawGraphs();
    focusOn(ui_->Text7);
    solve(state_);
}

void Vaddi1::showRows() {
    const bool isOne = isOneSegment(state_);
    setShown(!isOne, {ui_->Label35, ui_->Label36, ui_->Label37, ui_->Label9_0, ui_->Text4, ui_->Text5,
                      ui_->Text6, ui_->Label11});
    // A lone segment begins at its start, a second one after it.
    ui_->Label13->setVisible(isOne);
    setShown(hasUpperEnd(state_), {ui_->Text20, ui_->Label9_1});
    rows_.nameShownBoxes();
}

void Vaddi1::showTask() {
    rows_.blank();
    for (const HelpColumn& column : {columnP_, columnQ1_, columnQ2_, columnQtotal_}) {
        blankColumn(column);
    }
    showAsking();
    ui_->Label2->setCaption(NumberText(state_.slope1));
    ui_->Label3->setCaption(NumberText(state_.intercept1));
    ui_->Label5->setCaption(NumberText(state_.slope2));
    ui_->Label6->setCaption(NumberText(state_.intercept2));
    for (const auto& [whole, slope, intercept] :
         {std::array{ui_->Label1, ui_->Label2, ui_->Label3}, {ui_->Label4, ui_->Label5, ui_->Label6}}) {
        whole->setAccessibleName(wholeFunction(slope->caption(), intercept->caption(), "Q ≥ 0, P ≥ 0"));
    }
}

void Vaddi1::drawGraphs() {
    for (GraphBox* box : {ui_->Picture5, ui_->Picture4, ui_->Picture7}) {
        box->Cls();
    }
    drawFrameTicks(*ui_->Picture1);
    drawFrameTicks(*ui_->Picture2);
    drawWideFrameTicks(*ui_->Picture6);
    drawPiece(*ui_->Picture4, kTop, state_.function1(), 0, kLastQ);
    drawPiece(*ui_->Picture5, kTop, state_.function2(), 0, kLastQ);
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
    focusOn(ui_->Text4->isShown() ? ui_->Text4 : ui_->Text1);
}

void Vaddi1::drawSum() {
    GraphBox& box = *ui_->Picture7;
    if (state_.segmentCount == 2) {
        drawPiece(box, kTop, state_.firstSegment(), 0, state_.kinkQuantity, kSumGreen);
        drawPiece(box, kTop, state_.secondSegment(), state_.kinkQuantity, kLastSumQ, kSumGreen);
    } else {
        drawPiece(box, kTop, state_.secondSegment(), 0, kLastSumQ, kSumGreen);
    }
}

void Vaddi1::giveAnswer() {
    ui_->Picture3->hide();
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
    GraphBox& box = *ui_->Picture7;
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
    drawPiece(*ui_->Picture7, kTop, state_.firstSegment(), 0, state_.kinkQuantity, kSumGreen);
    drawPiece(*ui_->Picture7, kTop, state_.secondSegment(), state_.kinkQuantity, kLastSumQ, kSumGreen);
}

void Vaddi1::help() { openPanel(ui_->Picture3, ui_->Vis1); }

void Vaddi1::showPrices() {
    writeColumn(columnP_, state_.tableP);
    markEnds(*ui_->Picture4, state_.tableQ1);
    markEnds(*ui_->Picture5, state_.tableQ2);
    focusOn(ui_->Vis2);
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
            drawBand(*ui_->Picture4, 0, state_.tableQ1[row].number(), state_.tableP[row].number(), kBlue);
        }
        if (state_.tableQ2[row].isNumeric()) {
            drawBand(*ui_->Picture5, 0, state_.tableQ2[row].number(), state_.tableP[row].number(),
                     kBandGreen);
        }
    }
    writeColumn(columnQ1_, state_.tableQ1);
    writeColumn(columnQ2_, state_.tableQ2);
    writeColumn(columnQtotal_, state_.tableQtotal);
    ui_->Label23->setCaption(pathText(state_));
    focusOn(ui_->Vis3);
}

void Vaddi1::showSum() {
    showQuantities();
    ui_->Command2->hide();
    focusOn(ui_->Command5);
    drawStack(1);
    // Kept: a blank price is not 10 either, and fails.
    if (state_.tableP[2] != TableCell(kTop)) {
        drawStack(2);
    }
    fillAnswer();
}

void Vaddi1::drawStack(std::size_t row) {
    GraphBox& box = *ui_->Picture7;
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
    ui_->Picture3->hide();
    focusOn(ui_->Text7);
}

}  // namespace tavrune
