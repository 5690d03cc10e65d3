#include "topics/addition/vaddi2.h"

#include "numeric/text.h"
#include "topics/addition/ui_vaddi2.h"

namespace tavrune {
namespace {

/// Well past the end of the sum on its graph.
constexpr double kBeyondQ = 50;
/// The middle of a thick line that stands on the axis.
constexpr double kOnTheAxis = 0.1;

/// Draws a thick level line round a price. For the price 0 it stands on the axis.
void drawBar(GraphBox& graph, double from, double to, double price, const QColor& colour) {
    drawThickLine(graph, from, to, price == 0 ? kOnTheAxis : price, colour);
}

}  // namespace

Vaddi2::Vaddi2(Draws& draws) : ExerciseForm(PageName::Vaddi2, draws), ui_(std::make_unique<Ui::Vaddi2>()) {
    setUp(*ui_);
    rows_ = AnswerRows::of(*design());
    table_ = helpTableOf(
        *design(), {"price", "function1Quantity", "function2Quantity", "function3Quantity", "totalQuantity"});
    const std::array bands{kBlue, kBandGreen, QColor(kBlack)};
    for (std::size_t f = 0; f < functions_.size(); ++f) {
        const QString name = QString("function%1").arg(f + 1);
        functions_[f] = {FunctionLabels::of(*design(), name), FramedGraph::of(*design(), name), table_[f + 1],
                         bands[f]};
    }
    ui_->tableHead->standOver({ui_->price1, ui_->function1Quantity1, ui_->function2Quantity1,
                               ui_->function3Quantity1, ui_->totalQuantity1});
    enterChain(rowByRow(table_), {ui_->segment1Slope, ui_->segment2Slope});
    enterChainWhileShown(rows_.boxes(), LastBox::OkOrNewExercise);
    onClick(ui_->showPrices, &Vaddi2::showPrices);
    onClick(ui_->showQuantities, &Vaddi2::showQuantities);
    onClick(ui_->showSum, &Vaddi2::showSum);
}

Vaddi2::~Vaddi2() = default;

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
    blank(table_);
    showAsking();
    for (std::size_t f = 0; f < functions_.size(); ++f) {
        const auto& [slope, intercept] = state_.functions[f];
        functions_[f].labels.tell(NumberText(slope), NumberText(intercept), "Q ≥ 0, P ≥ 0");
    }
}

void Vaddi2::drawGraphs() {
    FramedGraph::of(*design(), "result").clear(drawWideFrameTicks);
    for (std::size_t f = 0; f < functions_.size(); ++f) {
        functions_[f].framed.clear(drawFrameTicks);
        drawPiece(*functions_[f].framed.graph, state_.functions[f], 0, kFunctionEndQ);
    }
}

void Vaddi2::judge() {
    const std::vector<AnswerBox*> boxes = rows_.boxes(answerFields(state_));
    // Kept (shell-forkert-behind): "FORKERT" of a wrong try is not hidden.
    if (showJudgement(tavrune::judge(state_, valuesOf(boxes)), boxes,
                      state_.segmentCount == 1 ? ui_->segment2Slope : ui_->segment1Slope)) {
        drawSum(kSumEndQ);
    }
}

void Vaddi2::drawSum(double lastQ) {
    const Figure line(*ui_->resultGraph, Meaning::Line);
    const int last = state_.segmentCount - 1;
    for (int s = 0; s <= last; ++s) {
        const double to = s == last ? lastQ : state_.endOf(s).number();
        drawPiece(*ui_->resultGraph, state_.segments[static_cast<std::size_t>(s)], state_.startOf(s).number(),
                  to, kSumGreen);
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
    GraphBox& graph = *ui_->resultGraph;
    const Figure line(graph, Meaning::Line);
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
        graph.Line(from, typed.at(from), to, atFarEnd.at(to), kRed);
        return;
    }
    for (int row = 0; row < state_.segmentCount; ++row) {
        const double from = row == kFirstRow ? 0 : rows_.typed(row, Slot::Start);
        drawPiece(graph, rows_.typedSegment(row), from, typedEnd(row, row == state_.segmentCount - 1), kRed);
    }
}

void Vaddi2::fillTable() {
    writeColumn(table_.front(), state_.tableP);
    for (std::size_t f = 0; f < functions_.size(); ++f) {
        writeColumn(functions_[f].quantities, state_.tableQ[f]);
    }
    writeColumn(table_.back(), state_.tableQtotal);
}

void Vaddi2::fillAnswer() {
    rows_.whiten();
    rows_.write(answerFields(state_));
}

void Vaddi2::help() {
    // The panel covers it only in part.
    ui_->resultQuantityAxisName->hide();
    openPanel(ui_->helpPanel, ui_->showPrices);
}

void Vaddi2::closePanel() {
    ui_->helpPanel->hide();
    ui_->resultQuantityAxisName->show();
}

void Vaddi2::showPrices() {
    focusOn(ui_->showQuantities);
    writeColumn(table_.front(), state_.tableP);
    const double edge = endPrice(state_.direction);
    for (std::size_t f = 0; f < functions_.size(); ++f) {
        const Vaddi2State::Column& quantities = state_.tableQ[f];
        GraphBox& graph = *functions_[f].framed.graph;
        // A function that starts beyond a level one has no quantities, and no squares.
        for (std::size_t row = 0; row < quantities.size(); ++row) {
            if (quantities[row].isBlank()) {
                continue;
            }
            const double price = state_.tableP[row].number();
            drawSquare(graph, 0.0, price);
            if (state_.functions[f].slope == 0) {
                drawSquare(graph, TableCell::unbounded(), price);
            }
            // Kept (vaddi2-edge-mark): the square on the edge stands at the first quantity, not at the last.
            if (!state_.isAnyLevel()) {
                drawSquare(graph, quantities[row], edge);
            }
            break;
        }
    }
}

void Vaddi2::showQuantities() {
    showPrices();
    focusOn(ui_->showSum);
    const std::array<std::string, 2> lines = pathTexts(state_);
    ui_->quantitiesResult->setCaption(lines[0]);
    ui_->quantitiesResultRest->setCaption(lines[1]);
    for (std::size_t f = 0; f < functions_.size(); ++f) {
        for (std::size_t row = 0; row < state_.tableP.size(); ++row) {
            if (const TableCell& quantity = state_.tableQ[f][row]; quantity.isNumeric()) {
                drawBar(*functions_[f].framed.graph, 0, quantity.number(), state_.tableP[row].number(),
                        functions_[f].band);
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
    for (std::size_t f = 0; f < functions_.size(); ++f) {
        const TableCell& quantity = state_.tableQ[f][row];
        if (quantity.isNumeric()) {
            const double to = from + quantity.number();
            drawBar(*ui_->resultGraph, from, to, state_.tableP[row].number(), functions_[f].band);
            from = to;
        }
    }
}

void Vaddi2::closeHelp() {
    closePanel();
    focusOn(ui_->price1);
}

}  // namespace tavrune
