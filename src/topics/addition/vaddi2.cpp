#include "topics/addition/vaddi2.h"

#include "controls/panel.h"
#include "numeric/text.h"
#include "topics/addition/addition_graphs.h"
#include "topics/addition/ui_vaddi2.h"

namespace tavrune {
namespace {

constexpr double kTop = 10;
/// Where the given functions end.
constexpr double kLastQ = 10;
/// Where the sum ends on the graph, and well past it.
constexpr double kLastSumQ = 20;
constexpr double kBeyondQ = 50;

/// The rows of the answer in which a lone segment stands, and the one below it.
constexpr int kLoneRow = 1;
constexpr int kLastRow = 2;

/// A thick level line round a price; standing on the axis for the price 0.
void drawBar(GraphBox& box, double from, double to, double price, const QColor& colour) {
    drawThickLine(box, from, to, price == 0 ? 9.9 : kTop - price, colour);
}

}  // namespace

Vaddi2::Vaddi2(Draws& draws)
    : ExerciseForm(PageName::Vaddi2, draws), ui_(std::make_unique<Ui::Vaddi2>()), rows_({}) {
    setUp(*ui_);
    rows_ = AnswerRows({{ui_->Text21, ui_->Text22, nullptr, ui_->Text23},
                        {ui_->Text24, ui_->Text25, ui_->Text26, ui_->Text27},
                        {ui_->Text28, ui_->Text29, ui_->Text30, ui_->Text31}});
    columnP_ = {ui_->Text1, ui_->Text2, ui_->Text3, ui_->Text4};
    given_ = {{{ui_->Label1,
                ui_->Label2,
                ui_->Label3,
                ui_->Picture1,
                ui_->Picture4,
                {ui_->Text5, ui_->Text6, ui_->Text7, ui_->Text8},
                kBlue},
               {ui_->Label4,
                ui_->Label5,
                ui_->Label6,
                ui_->Picture2,
                ui_->Picture5,
                {ui_->Text9, ui_->Text10, ui_->Text11, ui_->Text12},
                kBandGreen},
               {ui_->Label31,
                ui_->Label32,
                ui_->Label33,
                ui_->Picture6,
                ui_->Picture7,
                {ui_->Text13, ui_->Text14, ui_->Text15, ui_->Text16},
                kBlack}}};
    columnQtotal_ = {ui_->Text17, ui_->Text18, ui_->Text19, ui_->Text20};
    ui_->Label62->standOver({ui_->Text1, ui_->Text5, ui_->Text9, ui_->Text13, ui_->Text17});
    buttons({.newExercise = ui_->Command1,
             .ok = ui_->Command2,
             .giveAnswer = ui_->Command4,
             .help = ui_->Command3});
    verdict(TwoLabels{.right = ui_->Label75, .wrong = ui_->Label74, .darkUntilFirstTick = true});
    chainBoxes();
    onClick(ui_->Vis1, &Vaddi2::showPrices);
    onClick(ui_->Vis2, &Vaddi2::showQuantities);
    onClick(ui_->Vis3, &Vaddi2::showSum);
    onClick(ui_->Command7, &Vaddi2::closeHelp);
}

Vaddi2::~Vaddi2() = default;

void Vaddi2::chainBoxes() {
    std::vector<AnswerBox*> table;
    for (std::size_t row = 0; row < columnP_.size(); ++row) {
        table.push_back(columnP_[row]);
        for (const GivenFunction& function : given_) {
            table.push_back(function.quantities[row]);
        }
        table.push_back(columnQtotal_[row]);
    }
    for (std::size_t i = 0; i + 1 < table.size(); ++i) {
        enterGoes(table[i], {table[i + 1]});
    }
    enterGoes(table.back(), {ui_->Text21, ui_->Text24});
    enterChainWhileShown({ui_->Text21, ui_->Text22, ui_->Text23, ui_->Text24, ui_->Text25, ui_->Text26,
                          ui_->Text27, ui_->Text28, ui_->Text29, ui_->Text30, ui_->Text31},
                         LastBox::OkOrNewExercise);
}

void Vaddi2::firstTick() {
    ExerciseForm::firstTick();
    ui_->Label49->hide();
}

void Vaddi2::newExercise() {
    closePanel();
    ui_->Label25->setCaption("");
    ui_->Label27->setCaption("");
    focusOn(ui_->Text1);
    tavrune::newExercise(state_, draws());
    showRows();
    showTask();
    drawGraphs();
}

void Vaddi2::showRows() {
    const int count = state_.segmentCount;
    const bool isEndAsked = state_.upperEndAsked();
    setShown(count > 1, {ui_->Label63, ui_->Text21, ui_->Label64, ui_->Text22, ui_->Label65, ui_->Label9,
                         ui_->Label13, ui_->Text23});
    // A lone segment begins at its start, a second one after it.
    ui_->Label23->setVisible(count == 1);
    setShown(count == 3 || isEndAsked, {ui_->Label11, ui_->Text27});
    setShown(count == 3,
             {ui_->Label70, ui_->Text28, ui_->Label71, ui_->Text29, ui_->Label72, ui_->Text30, ui_->Label73});
    setShown(count == 3 && isEndAsked, {ui_->Label44, ui_->Text31});
    rows_.nameShownBoxes();
}

void Vaddi2::showTask() {
    rows_.blank();
    blankColumn(columnP_);
    blankColumn(columnQtotal_);
    showAsking();
    for (std::size_t f = 0; f < given_.size(); ++f) {
        blankColumn(given_[f].quantities);
        given_[f].slope->setCaption(NumberText(state_.slope[f]));
        given_[f].intercept->setCaption(NumberText(state_.intercept[f]));
        given_[f].task->setAccessibleName(
            wholeFunction(given_[f].slope->caption(), given_[f].intercept->caption(), "Q ≥ 0, P ≥ 0"));
    }
}

void Vaddi2::drawGraphs() {
    ui_->Picture9->Cls();
    drawWideFrameTicks(*ui_->Picture8);
    for (std::size_t f = 0; f < given_.size(); ++f) {
        given_[f].graph->Cls();
        drawFrameTicks(*given_[f].frame);
        drawPiece(*given_[f].graph, kTop, state_.function(f), 0, kLastQ);
    }
}

void Vaddi2::judge() {
    rows_.whiten();
    const std::vector<AnswerField> fields = answerFields(state_);
    if (rows_.areFit(fields)) {
        // Kept: "FORKERT" of a wrong try is not hidden; "RIGTIGT" lies in front of it.
        solved();
        drawSum(kLastSumQ);
        return;
    }
    failed();
    rows_.mark(fields);
    focusOn(state_.segmentCount == 1 ? ui_->Text24 : ui_->Text21);
}

void Vaddi2::drawSum(double lastQ) {
    const int last = state_.segmentCount - 1;
    for (int s = 0; s <= last; ++s) {
        const double to = s == last ? lastQ : state_.endOf(s).number();
        drawPiece(*ui_->Picture9, kTop, state_.segment(s), state_.startOf(s).number(), to, kSumGreen);
    }
}

void Vaddi2::giveAnswer() {
    closePanel();
    drawTypedSum();
    drawSum(state_.upperEndAsked() ? state_.upperEnd().number() : kBeyondQ);
    fillTable();
    fillAnswer();
    given();
}

void Vaddi2::drawTypedSum() {
    GraphBox& box = *ui_->Picture9;
    const auto typedEnd = [this](int row, bool isLast) {
        return isLast && !state_.upperEndAsked() ? kBeyondQ : rows_.typed(row, Slot::End);
    };
    if (state_.segmentCount == 1) {
        const Piece typed = rows_.typedSegment(kLoneRow);
        // Kept: the far end takes its intercept from the row below, which is hidden and blank.
        const Piece atFarEnd{typed.slope, rows_.typed(kLastRow, Slot::Intercept)};
        const double from = rows_.typed(kLoneRow, Slot::Start);
        const double to = typedEnd(kLoneRow, true);
        box.Line(from, kTop - typed.at(from), to, kTop - atFarEnd.at(to), kRed);
        return;
    }
    for (int row = 0; row < state_.segmentCount; ++row) {
        const double from = row == 0 ? 0 : rows_.typed(row, Slot::Start);
        drawPiece(box, kTop, rows_.typedSegment(row), from, typedEnd(row, row == state_.segmentCount - 1),
                  kRed);
    }
}

void Vaddi2::fillTable() {
    writeColumn(columnP_, state_.tableP);
    for (std::size_t f = 0; f < given_.size(); ++f) {
        writeColumn(given_[f].quantities, state_.tableQ[f]);
    }
    writeColumn(columnQtotal_, state_.tableQtotal);
}

void Vaddi2::fillAnswer() {
    rows_.whiten();
    for (const AnswerField& field : answerFields(state_)) {
        rows_.write(field.row, field.slot, field.target.value);
    }
}

void Vaddi2::help() {
    // It stands half beside the panel.
    ui_->Label251->hide();
    openPanel(ui_->Picture10, ui_->Vis1);
}

void Vaddi2::closePanel() {
    ui_->Picture10->hide();
    ui_->Label251->show();
}

void Vaddi2::showPrices() {
    focusOn(ui_->Vis2);
    writeColumn(columnP_, state_.tableP);
    const double edge = state_.direction == 1 ? kTop : 0;
    for (std::size_t f = 0; f < given_.size(); ++f) {
        const Vaddi2State::Column& quantities = state_.tableQ[f];
        GraphBox& box = *given_[f].graph;
        // One that starts beyond a level function has no quantities, and no marks.
        for (std::size_t row = 0; row < quantities.size(); ++row) {
            if (quantities[row].isBlank()) {
                continue;
            }
            const double price = state_.tableP[row].number();
            drawMark(box, 0.0, price);
            if (state_.slope[f] == 0) {
                drawMark(box, TableCell::unbounded(), price);
            }
            // Kept: the mark on the edge stands at the first quantity, not at the last.
            if (!state_.isAnyLevel()) {
                drawMark(box, quantities[row], edge);
            }
            break;
        }
    }
}

void Vaddi2::showQuantities() {
    showPrices();
    focusOn(ui_->Vis3);
    const std::array<std::string, 2> lines = pathLines(state_);
    ui_->Label25->setCaption(lines[0]);
    ui_->Label27->setCaption(lines[1]);
    for (std::size_t f = 0; f < given_.size(); ++f) {
        for (std::size_t row = 0; row < state_.tableP.size(); ++row) {
            if (const TableCell& quantity = state_.tableQ[f][row]; quantity.isNumeric()) {
                drawBar(*given_[f].graph, 0, quantity.number(), state_.tableP[row].number(), given_[f].band);
            }
        }
    }
    fillTable();
}

void Vaddi2::showSum() {
    showQuantities();
    ui_->Command2->hide();
    focusOn(ui_->Command7);
    for (std::size_t row = 1; row < state_.tableP.size(); ++row) {
        drawStack(row);
    }
    drawSum(kBeyondQ);
    fillAnswer();
}

void Vaddi2::drawStack(std::size_t row) {
    double from = 0;
    for (std::size_t f = 0; f < given_.size(); ++f) {
        const TableCell& quantity = state_.tableQ[f][row];
        if (quantity.isNumeric()) {
            const double to = from + quantity.number();
            drawBar(*ui_->Picture9, from, to, state_.tableP[row].number(), given_[f].band);
            from = to;
        }
    }
}

void Vaddi2::closeHelp() {
    closePanel();
    focusOn(ui_->Text1);
}

}  // namespace tavrune
