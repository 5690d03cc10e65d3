#include "topics/addition/vaddi3.h"

#include "controls/panel.h"
#include "controls/text.h"
#include "numeric/text.h"
#include "topics/addition/addition_graphs.h"
#include "topics/addition/ui_vaddi3.h"

namespace tavrune {
namespace {

constexpr double kTop = 10;
/// Where the given functions end, and the sum.
constexpr int kLastQ = 10;
constexpr double kLastSumQ = 20;
constexpr double kStroke = 0.05;

/// The quantity of function 1 in a stack.
const QColor kStackTeal = rgb(0, 200, 200);

/// A red square at a quantity and a price.
void drawEndMark(GraphBox& box, double quantity, double price) {
    constexpr double kHalf = 0.15;
    stepThrough(-kHalf, kHalf, kStroke, [&](double offset) {
        const double x = quantity + offset;
        box.Line(x, kTop - price - kHalf, x, kTop - price + kHalf, kRed);
    });
}

/// An upright line where one piece passes into the next.
void drawJoin(GraphBox& box, const Piece& before, double end, const Piece& after, double start,
              const QColor& colour) {
    box.Line(end, kTop - before.at(end), start, kTop - after.at(start), colour);
}

}  // namespace

Vaddi3::Vaddi3(Draws& draws)
    : ExerciseForm(PageName::Vaddi3, draws), ui_(std::make_unique<Ui::Vaddi3>()), rows_({}) {
    setUp(*ui_);
    buttons({.newExercise = ui_->Command1,
             .ok = ui_->Command2,
             .giveAnswer = ui_->Command4,
             .help = ui_->Command3});
    verdict(TwoLabels{.right = ui_->Label49, .wrong = ui_->Label45, .darkUntilFirstTick = true});
    bindBoxes();
    bindEnter();
    onClick(ui_->Vis1, &Vaddi3::showPrices);
    onClick(ui_->Vis2, &Vaddi3::showQuantities);
    onClick(ui_->Vis3, &Vaddi3::showSum);
    onClick(ui_->Luk, &Vaddi3::closeHelp);
}

Vaddi3::~Vaddi3() = default;

void Vaddi3::bindBoxes() {
    rows_ = AnswerRows({{ui_->Text1, ui_->Text2, nullptr, ui_->Text3},
                        {ui_->Text4, ui_->Text5, ui_->Text6, ui_->Text7},
                        {ui_->Text8, ui_->Text9, ui_->Text10, ui_->Text36},
                        {ui_->Text37, ui_->Text38, ui_->Text39, ui_->Text47}});
    table_ = {{{ui_->Text11, ui_->Text17, ui_->Text23, ui_->Text29, ui_->Text35},
               {ui_->Text12, ui_->Text18, ui_->Text24, ui_->Text30, ui_->Text40},
               {ui_->Text13, ui_->Text19, ui_->Text25, ui_->Text31, ui_->Text41},
               {ui_->Text14, ui_->Text20, ui_->Text26, ui_->Text32, ui_->Text42},
               {ui_->Text15, ui_->Text21, ui_->Text27, ui_->Text33, ui_->Text43},
               {ui_->Text16, ui_->Text22, ui_->Text28, ui_->Text34, ui_->Text44}}};
}

void Vaddi3::bindEnter() {
    // Backwards through the table: from each box to the first one after it that is shown.
    std::vector<QWidget*> rest{ui_->Text1, ui_->Text4};
    for (std::size_t row = table_.front().size(); row-- > 0;) {
        for (std::size_t column = table_.size(); column-- > 0;) {
            enterGoes(table_[column][row], rest);
            rest.insert(rest.begin(), table_[column][row]);
        }
    }
    enterChainWhileShown(
        {ui_->Text1, ui_->Text2, ui_->Text3, ui_->Text4, ui_->Text5, ui_->Text6, ui_->Text7, ui_->Text8,
         ui_->Text9, ui_->Text10, ui_->Text36, ui_->Text37, ui_->Text38, ui_->Text39, ui_->Text47},
        LastBox::OkOrNewExercise);
}

void Vaddi3::firstTick() {
    ExerciseForm::firstTick();
    ui_->Label64->hide();
}

void Vaddi3::newExercise() {
    ui_->Label1->setCaption("");
    ui_->Label2->setCaption("");
    ui_->Picture5->hide();
    blankBoxes();
    showAsking();
    tavrune::newExercise(state_, draws());
    showTable();
    showTask();
    showRows();
    drawGraphs();
    focusOnTable();
}

void Vaddi3::blankBoxes() {
    rows_.blank();
    for (const HelpColumn& column : table_) {
        blankColumn(column);
    }
}

void Vaddi3::showTable() {
    for (const HelpColumn* wide : {&table_.front(), &table_.back()}) {
        for (AnswerBox* box : *wide) {
            box->setVisible(state_.isJumpUp());
        }
    }
    ui_->Label9->setCaption(state_.isJumpUp() ? "P          Q1a       Q1b        Q2    Qtotala  Qtotalb"
                                              : "              P           Q1          Q2     Qtotal");
    std::vector<const Control*> columns;
    for (const HelpColumn& column : table_) {
        if (column.front()->isShown()) {
            columns.push_back(column.front());
        }
    }
    ui_->Label9->standOver(columns);
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
                QString("hjælpeskema, %1, %2 række")
                    .arg(fromUtf8(columns.at(column)), fromUtf8(kRows.at(row))));
        }
    }
}

void Vaddi3::showTask() {
    ui_->Label27->setCaption(NumberText(state_.firstSlope));
    ui_->Label28->setCaption(NumberText(state_.firstIntercept));
    ui_->Label29->setCaption(NumberText(state_.kinkQuantity));
    ui_->Label31->setCaption(NumberText(state_.secondSlope));
    ui_->Label32->setCaption(NumberText(state_.secondIntercept));
    ui_->Label33->setCaption(NumberText(state_.kinkQuantity));
    ui_->Label35->setCaption(NumberText(state_.slope2));
    ui_->Label36->setCaption(NumberText(state_.intercept2));
    // Parts that meet share their point, which then belongs to the first.
    const bool isJump = state_.kinkKind == KinkKind::JumpDown || state_.isJumpUp();
    ui_->Label3->setVisible(isJump);
    ui_->Label41->setVisible(!isJump);
    const std::string kink = NumberText(state_.kinkQuantity);
    ui_->Label26->setAccessibleName(wholeFunction(ui_->Label27->caption(), ui_->Label28->caption(),
                                                  (isJump ? "0 < Q < " : "0 < Q ≤ ") + kink));
    ui_->Label30->setAccessibleName(
        wholeFunction(ui_->Label31->caption(), ui_->Label32->caption(), kink + " < Q, P > 0"));
    ui_->Label34->setAccessibleName(
        wholeFunction(ui_->Label35->caption(), ui_->Label36->caption(), "Q > 0, P > 0"));
}

void Vaddi3::showRows() {
    const int count = state_.segmentCount();
    const bool isAsked = state_.upperEndAsked;
    setShown(count >= 2, {ui_->Label11, ui_->Text1, ui_->Label13, ui_->Text2, ui_->Label15, ui_->Text3});
    const bool hasSecondEnd = count >= 3 || isAsked;
    ui_->Text7->setVisible(hasSecondEnd);
    ui_->Label21->setCaption(hasSecondEnd ? "<Q<" : "<Q");
    setShown(count >= 3,
             {ui_->Label22, ui_->Text8, ui_->Label23, ui_->Text9, ui_->Label24, ui_->Text10, ui_->Label25});
    const bool hasThirdEnd = count == 4 || (count == 3 && isAsked);
    ui_->Text36->setVisible(hasThirdEnd);
    ui_->Label25->setCaption(hasThirdEnd ? "<Q<" : "<Q");
    setShown(count == 4,
             {ui_->Label37, ui_->Text37, ui_->Label38, ui_->Text38, ui_->Label39, ui_->Text39, ui_->Label40});
    setShown(count == 4 && isAsked, {ui_->LabelUpperEnd, ui_->Text47});
    rows_.nameShownBoxes();
}

void Vaddi3::drawGraphs() {
    for (GraphBox* box : {ui_->Picture3, ui_->Picture4, ui_->Picture7}) {
        box->Cls();
    }
    drawFrameTicks(*ui_->Picture1);
    drawFrameTicks(*ui_->Picture2);
    drawWideFrameTicks(*ui_->Picture6);
    drawGivenFunctions();
}

void Vaddi3::drawGivenFunctions() {
    const Vaddi3State& s = state_;
    GraphBox& first = *ui_->Picture4;
    const double kinkQ = s.kinkQuantity;
    const double kinkFirst = kTop - s.priceAtKinkFirst;
    const double kinkSecond = kTop - s.priceAtKinkSecond;
    first.Line(0, kTop - s.firstIntercept, kinkQ, kinkFirst);
    first.Line(kinkQ, kinkSecond, kLastQ, kTop - (kLastQ * s.secondSlope + s.secondIntercept));
    if (s.kinkKind == KinkKind::JumpDown || s.isJumpUp()) {
        first.Line(kinkQ, kinkFirst, kinkQ, kinkSecond);
    }
    ui_->Picture3->Line(0, kTop - s.intercept2, kLastQ, kTop - (kLastQ * s.slope2 + s.intercept2));
}

void Vaddi3::focusOnTable() { focusOn(state_.isJumpUp() ? ui_->Text11 : ui_->Text12); }

void Vaddi3::judge() {
    rows_.whiten();
    std::vector<AnswerField> fields = answerFields(state_);
    if (rows_.areFit(fields) && isUpperEndRight()) {
        // Kept: "FORKERT" of a wrong try is not hidden; "RIGTIGT" lies in front of it.
        solved();
        drawSum();
        return;
    }
    failed();
    if (const auto upperEnd = upperEndField(state_)) {
        fields.push_back(*upperEnd);
    }
    rows_.mark(fields);
    focusOn(state_.segmentCount() == 1 ? ui_->Text4 : ui_->Text1);
}

bool Vaddi3::isUpperEndRight() const {
    const auto asked = upperEndField(state_);
    if (!asked) {
        return true;
    }
    // Kept: with three segments the verdict reads a box of the help table; the red mark goes by the field.
    const AnswerBox* const read =
        state_.segmentCount() == 3 ? ui_->Text25 : rows_.box(asked->row, asked->slot);
    return asked->target.isFit(read->value());
}

void Vaddi3::drawSum() {
    const int count = state_.segmentCount();
    for (int i = 0; i < count; ++i) {
        const SumSegment& segment = state_.segments[static_cast<std::size_t>(i)];
        drawPiece(*ui_->Picture7, kTop, segment.piece, i == 0 ? 0 : segment.startQ.number(),
                  i + 1 == count ? kLastSumQ : segment.endQ.number(), kSumGreen);
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
            drawJoin(*ui_->Picture7, before.piece, before.endQ.number(), after.piece, after.startQ.number(),
                     kSumGreen);
        }
    }
}

void Vaddi3::giveAnswer() {
    ui_->Picture5->hide();
    given();
    drawTypedSum();
    fillTable(true);
    fillAnswer();
}

void Vaddi3::drawTypedSum() {
    GraphBox& box = *ui_->Picture7;
    const int count = state_.segmentCount();
    for (int i = 0; i < count; ++i) {
        const int row = rowOf(i, count);
        const bool endsByRow = i + 1 < count || state_.upperEndAsked;
        drawPiece(box, kTop, rows_.typedSegment(row),
                  rows_.box(row, Slot::Start) == nullptr ? 0 : rows_.typed(row, Slot::Start),
                  endsByRow ? rows_.typed(row, Slot::End) : kLastSumQ, kRed);
    }
    for (int row = 1; row < count; ++row) {
        const Piece before = rows_.typedSegment(row - 1);
        const Piece after = rows_.typedSegment(row);
        const double end = rows_.typed(row - 1, Slot::End);
        const double start = rows_.typed(row, Slot::Start);
        if (start == end && before.slope != 0 && after.slope != 0) {
            drawJoin(box, before, end, after, start, kRed);
        }
    }
}

void Vaddi3::fillTable(bool withQuantities) {
    const HelpColumns columns = helpColumns(state_);
    const auto write = [this](std::size_t column) { writeColumn(table_[column], state_.helpTable[column]); };
    write(columns.price);
    if (!withQuantities) {
        return;
    }
    write(columns.quantity2);
    for (std::size_t part = 0; part < columns.totals.size(); ++part) {
        write(columns.quantities1[part]);
        write(columns.totals[part]);
    }
}

void Vaddi3::fillAnswer() {
    // The targets are the answer.
    for (const AnswerField& field : answerFields(state_)) {
        rows_.write(field.row, field.slot, field.target.value);
    }
    if (const auto upperEnd = upperEndField(state_)) {
        rows_.write(upperEnd->row, upperEnd->slot, upperEnd->target.value);
    }
    rows_.whiten();
    drawSum();
    drawJoins();
}

void Vaddi3::help() {
    ui_->Label42->setVisible(state_.isJumpUp());
    ui_->Label5->setVisible(!state_.isJumpUp());
    openPanel(ui_->Picture5, ui_->Vis1);
}

void Vaddi3::showPrices() {
    fillTable(false);
    markEnds();
    focusOn(ui_->Vis2);
}

void Vaddi3::markEnds() {
    const Vaddi3State& s = state_;
    GraphBox& first = *ui_->Picture4;
    drawEndMark(first, 0, s.firstIntercept);
    drawEndMark(first, s.kinkQuantity, s.priceAtKinkFirst);
    if (s.priceAtKinkSecond != s.priceAtKinkFirst) {
        drawEndMark(first, s.kinkQuantity, s.priceAtKinkSecond);
    }
    drawEndMark(first, -s.secondIntercept / s.secondSlope, 0);

    GraphBox& second = *ui_->Picture3;
    drawEndMark(second, 0, s.intercept2);
    if (s.slope2 == 0) {
        drawEndMark(second, kLastQ, s.intercept2);
    } else {
        drawEndMark(second, -s.intercept2 / s.slope2, 0);
    }
}

void Vaddi3::showQuantities() {
    showPrices();
    fillTable(true);
    drawBands();
    const auto [first, second] = pathTexts(state_);
    ui_->Label1->setCaption(first);
    ui_->Label2->setCaption(second);
    focusOn(ui_->Vis3);
}

void Vaddi3::drawBands() {
    const HelpColumns columns = helpColumns(state_);
    const Vaddi3State::Column& prices = state_.helpTable[columns.price];
    const auto draw = [this](GraphBox& box, std::size_t column, std::size_t row, double price,
                             const QColor& colour) {
        if (const TableCell& cell = state_.helpTable[column][row]; cell.isNumeric()) {
            drawBand(box, 0, cell.number(), price, colour);
        }
    };
    for (std::size_t row = 1; row < prices.size() && prices[row].isNumeric(); ++row) {
        const double price = prices[row].number();
        for (const std::size_t column : columns.quantities1) {
            draw(*ui_->Picture4, column, row, price, kBlue);
        }
        draw(*ui_->Picture3, columns.quantity2, row, price, kBandGreen);
    }
}

void Vaddi3::showSum() {
    ui_->Command4->hide();
    hideVerdict();
    showQuantities();
    ui_->Command2->hide();
    focusOn(ui_->Luk);
    drawStacks();
    fillAnswer();
}

void Vaddi3::drawStacks() {
    GraphBox& box = *ui_->Picture7;
    const HelpColumns columns = helpColumns(state_);
    const Vaddi3State::Column& prices = state_.helpTable[columns.price];
    for (std::size_t row = 0; row < prices.size() && prices[row].isNumeric(); ++row) {
        const double price = prices[row].number();
        const TableCell& second = state_.helpTable[columns.quantity2][row];
        for (std::size_t part = 0; part < columns.totals.size(); ++part) {
            if (!isRowOf(state_, row, part)) {
                continue;
            }
            const TableCell& first = state_.helpTable[columns.quantities1[part]][row];
            if (first.isNumeric()) {
                drawThickLine(box, 0, first.number(), kTop - price, kStackTeal);
            }
            if (second.isNumeric()) {
                drawThickLine(box, first.isNumeric() ? first.number() : 0,
                              state_.helpTable[columns.totals[part]][row].number(), kTop - price, kBandGreen);
            }
        }
    }
}

void Vaddi3::closeHelp() {
    ui_->Picture5->hide();
    focusOnTable();
}

}  // namespace tavrune
