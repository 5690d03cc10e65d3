#include "topics/addition/vaddi2.h"

#include "controls/panel.h"
#include "numeric/text.h"
#include "topics/addition/addition_graphs.h"
#include "topics/addition/ui_vaddi2.h"

namespace tavrune {
namespace {

/// Well past the end of the sum on its graph.
constexpr double kBeyondQ = 50;
/// The middle of a thick line that stands on the axis.
constexpr double kOnTheAxis = 0.1;

/// A thick level line round a price; standing on the axis for the price 0.
void drawBar(GraphBox& box, double from, double to, double price, const QColor& colour) {
    drawThickLine(box, from, to, price == 0 ? kOnTheAxis : price, colour);
}

}  // namespace

Vaddi2::Vaddi2(Draws& draws) : ExerciseForm(PageName::Vaddi2, draws), ui_(std::make_unique<Ui::Vaddi2>()) {
    setUp(*ui_);
    rows_ = AnswerRows::of(*design());
    columnP_ = helpColumnOf(*design(), "price");
    const std::array bands{kBlue, kBandGreen, QColor(kBlack)};
    for (std::size_t f = 0; f < given_.size(); ++f) {
        const QString name = QString("function%1").arg(f + 1);
        given_[f] = {GivenFunction::of(*design(), name), FramedGraph::of(*design(), name),
                     helpColumnOf(*design(), name + "Quantity"), bands[f]};
    }
    columnQtotal_ = helpColumnOf(*design(), "totalQuantity");
    ui_->tableHead->standOver({ui_->price1, ui_->function1Quantity1, ui_->function2Quantity1,
                               ui_->function3Quantity1, ui_->totalQuantity1});
    chainBoxes();
    onClick(ui_->showPrices, &Vaddi2::showPrices);
    onClick(ui_->showQuantities, &Vaddi2::showQuantities);
    onClick(ui_->showSum, &Vaddi2::showSum);
}

Vaddi2::~Vaddi2() = default;

void Vaddi2::chainBoxes() {
    std::vector<AnswerBox*> table;
    for (std::size_t row = 0; row < columnP_.size(); ++row) {
        table.push_back(columnP_[row]);
        for (const Given& given : given_) {
            table.push_back(given.quantities[row]);
        }
        table.push_back(columnQtotal_[row]);
    }
    enterChain(table, {ui_->segment1Slope, ui_->segment2Slope});
    enterChainWhileShown(rows_.boxes(), LastBox::OkOrNewExercise);
}

void Vaddi2::newExercise() {
    closePanel();
    ui_->quantitiesResult->setCaption("");
    ui_->quantitiesResultRest->setCaption("");
    focusOn(ui_->price1);
    tavrune::newExercise(state_, draws());
    showRows();
    showTask();
    drawGraphs();
}

void Vaddi2::showRows() {
    const int count = state_.segmentCount;
    const bool isEndAsked = state_.upperEndAsked();
    rows_.show(kFirstRow, count > 1, true);
    rows_.show(kSecondRow, true, count == 3 || isEndAsked);
    rows_.show(kThirdRow, count == 3, isEndAsked);
    rows_.showStartSign(kLoneRow, count == 1);
    rows_.nameShownBoxes();
}

void Vaddi2::showTask() {
    rows_.blank();
    blankColumn(columnP_);
    blankColumn(columnQtotal_);
    showAsking();
    for (std::size_t f = 0; f < given_.size(); ++f) {
        blankColumn(given_[f].quantities);
        given_[f].function.tell(NumberText(state_.slope[f]), NumberText(state_.intercept[f]), "Q ≥ 0, P ≥ 0");
    }
}

void Vaddi2::drawGraphs() {
    ui_->resultGraph->Cls();
    drawWideFrameTicks(*ui_->resultGraphFrame);
    for (std::size_t f = 0; f < given_.size(); ++f) {
        given_[f].graph.box->Cls();
        drawFrameTicks(*given_[f].graph.frame);
        drawPiece(*given_[f].graph.box, state_.function(f), 0, kLastGivenQ);
    }
}

void Vaddi2::judge() {
    const std::vector<AnswerBox*> boxes = rows_.boxes(answerFields(state_));
    // Kept (shell-forkert-behind): "FORKERT" of a wrong try is not hidden.
    if (showJudgement(tavrune::judge(state_, valuesOf(boxes)), boxes,
                      state_.segmentCount == 1 ? ui_->segment2Slope : ui_->segment1Slope)) {
        drawSum(kLastSumQ);
    }
}

void Vaddi2::drawSum(double lastQ) {
    const Figure line(*ui_->resultGraph, Meaning::Line);
    const int last = state_.segmentCount - 1;
    for (int s = 0; s <= last; ++s) {
        const double to = s == last ? lastQ : state_.endOf(s).number();
        drawPiece(*ui_->resultGraph, state_.segment(s), state_.startOf(s).number(), to, kSumGreen);
    }
}

void Vaddi2::giveAnswer() {
    closePanel();
    drawTypedSum();
    drawSum(state_.upperEndAsked() ? state_.upperEnd().number() : kBeyondQ);
    fillTable();
    fillAnswer();
    showGiven();
}

void Vaddi2::drawTypedSum() {
    GraphBox& box = *ui_->resultGraph;
    const Figure line(box, Meaning::Line);
    const auto typedEnd = [this](int row, bool isLast) {
        return isLast && !state_.upperEndAsked() ? kBeyondQ : rows_.typed(row, Slot::End);
    };
    if (state_.segmentCount == 1) {
        const Piece typed = rows_.typedSegment(kLoneRow);
        // Kept (vaddi2-far-end): the far end takes its intercept from the row below, which is hidden and
        // blank.
        const Piece atFarEnd{typed.slope, rows_.typed(kThirdRow, Slot::Intercept)};
        const double from = rows_.typed(kLoneRow, Slot::Start);
        const double to = typedEnd(kLoneRow, true);
        box.Line(from, typed.at(from), to, atFarEnd.at(to), kRed);
        return;
    }
    for (int row = 0; row < state_.segmentCount; ++row) {
        const double from = row == kFirstRow ? 0 : rows_.typed(row, Slot::Start);
        drawPiece(box, rows_.typedSegment(row), from, typedEnd(row, row == state_.segmentCount - 1), kRed);
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
    ui_->resultQuantityAxisName->hide();
    openPanel(ui_->helpPanel, ui_->showPrices);
}

void Vaddi2::closePanel() {
    ui_->helpPanel->hide();
    ui_->resultQuantityAxisName->show();
}

void Vaddi2::showPrices() {
    focusOn(ui_->showQuantities);
    writeColumn(columnP_, state_.tableP);
    const double edge = endPrice(state_.direction);
    for (std::size_t f = 0; f < given_.size(); ++f) {
        const Vaddi2State::Column& quantities = state_.tableQ[f];
        GraphBox& box = *given_[f].graph.box;
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
            // Kept (vaddi2-edge-mark): the mark on the edge stands at the first quantity, not at the last.
            if (!state_.isAnyLevel()) {
                drawMark(box, quantities[row], edge);
            }
            break;
        }
    }
}

void Vaddi2::showQuantities() {
    showPrices();
    focusOn(ui_->showSum);
    const std::array<std::string, 2> lines = pathLines(state_);
    ui_->quantitiesResult->setCaption(lines[0]);
    ui_->quantitiesResultRest->setCaption(lines[1]);
    for (std::size_t f = 0; f < given_.size(); ++f) {
        for (std::size_t row = 0; row < state_.tableP.size(); ++row) {
            if (const TableCell& quantity = state_.tableQ[f][row]; quantity.isNumeric()) {
                drawBar(*given_[f].graph.box, 0, quantity.number(), state_.tableP[row].number(),
                        given_[f].band);
            }
        }
    }
    fillTable();
}

void Vaddi2::showSum() {
    showQuantities();
    ui_->ok->hide();
    focusOn(ui_->closeHelp);
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
            drawBar(*ui_->resultGraph, from, to, state_.tableP[row].number(), given_[f].band);
            from = to;
        }
    }
}

void Vaddi2::closeHelp() {
    closePanel();
    focusOn(ui_->price1);
}

}  // namespace tavrune
