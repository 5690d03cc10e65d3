#include "topics/addition/vaddi3.h"

#include <algorithm>

#include "controls/text.h"
#include "numeric/text.h"
#include "topics/addition/addition_graphs.h"
#include "topics/addition/ui_vaddi3.h"

namespace tavrune {
namespace {

/// The quantity of function 1 in a stack.
const QColor kStackTeal = rgb(0, 200, 200);

/// Draws a red square. Its strokes step from the middle, which gives other last digits than `drawSquare`.
void drawSquareAt(GraphBox& graph, double quantity, double price) {
    const Figure square(graph, Meaning::Square);
    stepThrough(-kHalfSquare, kHalfSquare, kStroke,
                [&](double offset) { drawSquareStroke(graph, quantity + offset, price); });
}

/// Draws an upright line from the end of one piece to the start of the next.
void drawJoin(GraphBox& graph, const Piece& before, double end, const Piece& after, double start,
              const QColor& colour) {
    graph.Line(end, before.at(end), start, after.at(start), colour);
}

}  // namespace

Vaddi3::Vaddi3(Draws& draws) : ExerciseForm(PageName::Vaddi3, draws), ui_(std::make_unique<Ui::Vaddi3>()) {
    setUp(*ui_);
    rows_ = AnswerRows::of(*design());
    table_ = helpTableOf(*design(), {"wideTablePrice", "part1QuantityOrPrice", "function1OrPart2Quantity",
                                     "function2Quantity", "totalOrPart1TotalQuantity", "part2TotalQuantity"});
    bindEnter();
    onClick(ui_->showPrices, &Vaddi3::showPrices);
    onClick(ui_->showQuantities, &Vaddi3::showQuantities);
    onClick(ui_->showSum, &Vaddi3::showSum);
}

Vaddi3::~Vaddi3() = default;

void Vaddi3::bindEnter() {
    // Backwards through the table: from each box to the first one after it that is shown.
    std::vector<QWidget*> rest{ui_->segment1Slope, ui_->segment2Slope};
    std::vector<AnswerBox*> boxes = rowByRow(table_);
    std::reverse(boxes.begin(), boxes.end());
    for (AnswerBox* box : boxes) {
        enterGoes(box, rest);
        rest.insert(rest.begin(), box);
    }
    enterChainWhileShown(rows_.boxes(), LastBox::OkOrNewExercise);
}

void Vaddi3::newExercise() {
    ui_->quantitiesResult->setCaption("");
    ui_->quantitiesResultRest->setCaption("");
    ui_->helpPanel->hide();
    rows_.blank();
    blank(table_);
    showAsking();
    tavrune::newExercise(state_, draws());
    showTable();
    showTask();
    showRows();
    drawGraphs();
    focusOnTable();
}

void Vaddi3::showTable() {
    for (const TableColumn wide : {TableColumn::WidePrice, TableColumn::Part2Total}) {
        for (AnswerBox* box : boxes(wide)) {
            box->setVisible(state_.isJumpUp());
        }
    }
    ui_->tableHead->setCaption(state_.isJumpUp() ? "P          Q1a       Q1b        Q2    Qtotala  Qtotalb"
                                                 : "              P           Q1          Q2     Qtotal");
    std::vector<const Control*> columns;
    for (const HelpColumn& column : table_) {
        if (column.front()->isShown()) {
            columns.push_back(column.front());
        }
    }
    ui_->tableHead->standOver(columns);
    nameTable();
}

void Vaddi3::nameTable() {
    static constexpr std::array kWide{"pris", "Q1a", "Q1b", "Q2", "Qtotala", "Qtotalb"};
    static constexpr std::array kNarrow{"", "pris", "Q1", "Q2", "Qtotal", ""};
    static constexpr std::array kRows{"første", "anden", "tredje", "fjerde", "femte"};
    const auto& columns = state_.isJumpUp() ? kWide : kNarrow;
    for (std::size_t column = 0; column < table_.size(); ++column) {
        for (std::size_t row = 0; row < kRows.size(); ++row) {
            table_[column][row]->setAccessibleName(
                QString("%1 i %2 række af hjælpeskemaet")
                    .arg(fromUtf8(columns.at(column)), fromUtf8(kRows.at(row))));
        }
    }
}

void Vaddi3::showTask() {
    // Where the parts meet, the common point belongs to the first.
    const bool isJump = state_.isJump();
    ui_->function1Part1EndLess->setVisible(isJump);
    ui_->function1Part1EndLessOrEqual->setVisible(!isJump);
    const std::string kink = NumberText(state_.kinkQuantity);
    ui_->function1Part1End->setCaption(kink);
    ui_->function1Part2Start->setCaption(kink);
    FunctionLabels::of(*design(), "function1Part1")
        .tell(NumberText(state_.slope1Before), NumberText(state_.intercept1Before),
              (isJump ? "0 < Q < " : "0 < Q ≤ ") + kink);
    FunctionLabels::of(*design(), "function1Part2")
        .tell(NumberText(state_.slope1After), NumberText(state_.intercept1After), kink + " < Q, P > 0");
    FunctionLabels::of(*design(), "function2")
        .tell(NumberText(state_.slope2), NumberText(state_.intercept2), "Q > 0, P > 0");
}

void Vaddi3::showRows() {
    const int count = state_.segmentCount();
    const bool isAsked = state_.upperEndAsked;
    const bool hasEnd2 = count >= 3 || isAsked;
    const bool hasEnd3 = count == 4 || isAsked;
    rows_.show(kFirstRow, count >= 2, true);
    rows_.show(kSecondRow, true, hasEnd2);
    rows_.show(kThirdRow, count >= 3, hasEnd3);
    rows_.show(kFourthRow, count == 4, isAsked);
    ui_->segment2LessThanQuantity->setCaption(hasEnd2 ? "<Q<" : "<Q");
    ui_->segment3LessThanQuantity->setCaption(count >= 3 && hasEnd3 ? "<Q<" : "<Q");
    rows_.nameShownBoxes();
}

void Vaddi3::drawGraphs() {
    FramedGraph::of(*design(), "function1").clear(drawFrameTicks);
    FramedGraph::of(*design(), "function2").clear(drawFrameTicks);
    FramedGraph::of(*design(), "result").clear(drawWideFrameTicks);
    const Vaddi3State& s = state_;
    GraphBox& first = *ui_->function1Graph;
    {
        const Figure line(first, Meaning::Line);
        first.Line(0, s.intercept1Before, s.kinkQuantity, s.kinkPriceBefore);
        first.Line(s.kinkQuantity, s.kinkPriceAfter, kFunctionEndQ,
                   kFunctionEndQ * s.slope1After + s.intercept1After);
    }
    if (s.isJump()) {
        first.Line(s.kinkQuantity, s.kinkPriceBefore, s.kinkQuantity, s.kinkPriceAfter);
    }
    ui_->function2Graph->Line(0, s.intercept2, kFunctionEndQ, kFunctionEndQ * s.slope2 + s.intercept2);
}

void Vaddi3::focusOnTable() {
    focusOn(state_.isJumpUp() ? ui_->wideTablePrice1 : ui_->part1QuantityOrPrice1);
}

void Vaddi3::judge() {
    const std::vector<AnswerBox*> boxes = rows_.boxes(answerFields(state_));
    const Vaddi3Answer answer{.typed = valuesOf(boxes), .helpCell = ui_->function1OrPart2Quantity3->value()};
    // Kept (shell-forkert-behind): "FORKERT" of a wrong try is not hidden.
    if (showJudgement(tavrune::judge(state_, answer), boxes,
                      state_.segmentCount() == 1 ? ui_->segment2Slope : ui_->segment1Slope)) {
        drawSum();
    }
}

void Vaddi3::drawSum() {
    const Figure line(*ui_->resultGraph, Meaning::Line);
    const int count = state_.segmentCount();
    for (int i = 0; i < count; ++i) {
        const SumSegment& segment = state_.segments[static_cast<std::size_t>(i)];
        drawPiece(*ui_->resultGraph, segment.piece, i == 0 ? 0 : segment.startQ.number(),
                  i + 1 == count ? kSumEndQ : segment.endQ.number(), kSumGreen);
    }
}

void Vaddi3::drawJoins() {
    const std::vector<SumSegment>& segments = state_.segments;
    for (std::size_t i = 1; i < segments.size(); ++i) {
        const SumSegment& before = segments[i - 1];
        const SumSegment& after = segments[i];
        const bool isUpright = before.endQ == after.startQ;
        const bool isSloping = before.piece.slope != 0 && after.piece.slope != 0;
        if (state_.kinkKind == KinkKind::JumpDown ||
            (state_.isJumpUp() && i == 1 && isUpright && isSloping)) {
            drawJoin(*ui_->resultGraph, before.piece, before.endQ.number(), after.piece,
                     after.startQ.number(), kSumGreen);
        }
    }
}

void Vaddi3::giveAnswer() {
    ui_->helpPanel->hide();
    showGiven();
    drawTypedPieces();
    drawTypedJoins();
    fillTable();
    fillAnswer();
}

void Vaddi3::drawTypedPieces() {
    GraphBox& graph = *ui_->resultGraph;
    const Figure line(graph, Meaning::Line);
    const int count = state_.segmentCount();
    for (int i = 0; i < count; ++i) {
        const int row = rowOf(i, count);
        const bool endsByRow = i + 1 < count || state_.upperEndAsked;
        drawPiece(graph, rows_.typedSegment(row),
                  rows_.box(row, Slot::Start) == nullptr ? 0 : rows_.typed(row, Slot::Start),
                  endsByRow ? rows_.typed(row, Slot::End) : kSumEndQ, kRed);
    }
}

void Vaddi3::drawTypedJoins() {
    for (int row = 1; row < state_.segmentCount(); ++row) {
        const Piece before = rows_.typedSegment(row - 1);
        const Piece after = rows_.typedSegment(row);
        const double end = rows_.typed(row - 1, Slot::End);
        const double start = rows_.typed(row, Slot::Start);
        if (start == end && before.slope != 0 && after.slope != 0) {
            drawJoin(*ui_->resultGraph, before, end, after, start, kRed);
        }
    }
}

void Vaddi3::fillTable() {
    const ColumnRoles columns = columnRoles(state_);
    write(columns.price);
    write(columns.quantity2);
    for (const auto& [part, quantity, total] : columns.function1) {
        write(quantity);
        write(total);
    }
}

void Vaddi3::fillAnswer() {
    rows_.write(answerFields(state_));
    rows_.whiten();
    drawSum();
    drawJoins();
}

void Vaddi3::help() {
    ui_->jumpUpQuantitiesStepText->setVisible(state_.isJumpUp());
    ui_->quantitiesStepText->setVisible(!state_.isJumpUp());
    openPanel(ui_->helpPanel, ui_->showPrices);
}

void Vaddi3::showPrices() {
    write(columnRoles(state_).price);
    drawEndSquares();
    focusOn(ui_->showQuantities);
}

void Vaddi3::drawEndSquares() {
    const Vaddi3State& s = state_;
    GraphBox& first = *ui_->function1Graph;
    drawSquareAt(first, 0, s.intercept1Before);
    drawSquareAt(first, s.kinkQuantity, s.kinkPriceBefore);
    if (s.kinkPriceAfter != s.kinkPriceBefore) {
        drawSquareAt(first, s.kinkQuantity, s.kinkPriceAfter);
    }
    drawSquareAt(first, -s.intercept1After / s.slope1After, 0);

    GraphBox& second = *ui_->function2Graph;
    drawSquareAt(second, 0, s.intercept2);
    if (s.slope2 == 0) {
        drawSquareAt(second, kFunctionEndQ, s.intercept2);
    } else {
        drawSquareAt(second, -s.intercept2 / s.slope2, 0);
    }
}

void Vaddi3::showQuantities() {
    showPrices();
    fillTable();
    drawBands();
    const auto [first, second] = pathTexts(state_);
    ui_->quantitiesResult->setCaption(first);
    ui_->quantitiesResultRest->setCaption(second);
    focusOn(ui_->showSum);
}

void Vaddi3::drawBands() {
    const ColumnRoles columns = columnRoles(state_);
    const Vaddi3State::Column& prices = state_.column(columns.price);
    const auto draw = [this](GraphBox& graph, TableColumn column, std::size_t row, double price,
                             const QColor& colour) {
        if (const TableCell& cell = state_.column(column)[row]; cell.isNumeric()) {
            drawBand(graph, 0, cell.number(), price, colour);
        }
    };
    for (std::size_t row = 1; row < prices.size() && prices[row].isNumeric(); ++row) {
        const double price = prices[row].number();
        for (const ColumnRoles::OfFunction1& of1 : columns.function1) {
            draw(*ui_->function1Graph, of1.quantity, row, price, kBlue);
        }
        draw(*ui_->function2Graph, columns.quantity2, row, price, kBandGreen);
    }
}

void Vaddi3::showSum() {
    ui_->giveAnswer->hide();
    hideVerdict();
    showQuantities();
    ui_->ok->hide();
    focusOn(ui_->closeHelp);
    drawStacks();
    fillAnswer();
}

void Vaddi3::drawStacks() {
    GraphBox& graph = *ui_->resultGraph;
    const ColumnRoles columns = columnRoles(state_);
    const Vaddi3State::Column& prices = state_.column(columns.price);
    for (std::size_t row = 0; row < prices.size() && prices[row].isNumeric(); ++row) {
        const double price = prices[row].number();
        const TableCell& second = state_.column(columns.quantity2)[row];
        for (const auto& [part, quantity, total] : columns.function1) {
            if (!isRowOf(state_, row, part)) {
                continue;
            }
            const TableCell& first = state_.column(quantity)[row];
            if (first.isNumeric()) {
                drawThickLine(graph, 0, first.number(), price, kStackTeal);
            }
            if (second.isNumeric()) {
                drawThickLine(graph, first.isNumeric() ? first.number() : 0,
                              state_.column(total)[row].number(), price, kBandGreen);
            }
        }
    }
}

void Vaddi3::closeHelp() {
    ui_->helpPanel->hide();
    focusOnTable();
}

}  // namespace tavrune
