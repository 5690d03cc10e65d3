#include "topics/addition/laddi2.h"

#include <tuple>

#include "controls/panel.h"
#include "numeric/text.h"
#include "topics/addition/ui_laddi2.h"
#include "topics/addition/vertical_graphs.h"

namespace tavrune {
namespace {

/// The gaps of the line of a piece.
struct Gaps {
    Label* slope;
    Label* intercept;
    Label* kink;
};

void tellWhole(Label* task, const Piece& piece, const std::string& where) {
    task->setAccessibleName(wholeFunction(NumberText(piece.slope), NumberText(piece.intercept), where));
}

void fill(const Gaps& gaps, const Piece& piece, double kink) {
    gaps.slope->setCaption(NumberText(piece.slope));
    gaps.intercept->setCaption(sizeText(piece.intercept));
    gaps.kink->setCaption(NumberText(kink));
}

void drawFunction(GraphBox& box, const KinkedFunction& f) {
    drawPiece(box, kFunctionTop, f.before, 0, f.kink);
    drawPiece(box, kFunctionTop, f.after, f.kink, kLastGivenQ);
}

void markEnds(GraphBox& box, const KinkedFunction& f) {
    drawLevelMark(box, 0, f.before.at(0));
    drawLevelMark(box, f.kink, f.before.at(f.kink));
    drawLevelMark(box, f.kink, f.after.at(f.kink));
    if (f.after.slope < 0) {
        drawLevelMark(box, f.zero(), 0);
    }
}

}  // namespace

Laddi2::Laddi2(Draws& draws) : VerticalForm(PageName::Laddi2, draws), ui_(std::make_unique<Ui::Laddi2>()) {
    setUp(*ui_);
    graphs({.function1 = {ui_->Picture2, ui_->Picture3},
            .function2 = {ui_->Picture1, ui_->Picture4},
            .sum = {ui_->Picture5, ui_->Picture6}});
    answerRows({{ui_->Text1, ui_->Text2, nullptr, ui_->Text3},
                {ui_->Text4, ui_->Text5, ui_->Text6, ui_->Text7},
                {ui_->Text8, ui_->Text9, ui_->Text10, ui_->Text11},
                {ui_->Text12, ui_->Text13, ui_->Text14, ui_->Text15}});
    helpPanel(ui_->Picture7, ui_->Vis1);
    buttons({.newExercise = ui_->Command1,
             .ok = ui_->Command2,
             .giveAnswer = ui_->Command4,
             .help = ui_->Command3});
    verdict(TwoLabels{.right = ui_->Label40, .wrong = ui_->Label39, .darkUntilFirstTick = true});
    enterChain({ui_->Text1, ui_->Text2, ui_->Text3, ui_->Text4, ui_->Text5, ui_->Text6},
               LastBox::OkOrNewExercise);
    enterGoes(ui_->Text6, {ui_->Text7, ui_->Command2, ui_->Command1});
    enterGoes(ui_->Text7, {ui_->Text8, ui_->Command2, ui_->Command1});
    enterChain({ui_->Text8, ui_->Text9, ui_->Text10}, LastBox::OkOrNewExercise);
    enterGoes(ui_->Text10, {ui_->Text11, ui_->Command2, ui_->Command1});
    enterGoes(ui_->Text11, {ui_->Text12, ui_->Command2, ui_->Command1});
    enterChain({ui_->Text12, ui_->Text13, ui_->Text14}, LastBox::OkOrNewExercise);
    enterGoes(ui_->Text14, {ui_->Text15, ui_->Command2, ui_->Command1});
    enterGoes(ui_->Text15, {ui_->Command2, ui_->Command1});
    onClick(ui_->Vis1, &Laddi2::showIntervals);
    onClick(ui_->Vis2, &Laddi2::showSum);
    onClick(ui_->Luk, &Laddi2::closeHelp);
}

Laddi2::~Laddi2() = default;

void Laddi2::firstTick() {
    VerticalForm::firstTick();
    ui_->Label83->hide();
}

void Laddi2::newExercise() {
    ui_->Picture7->hide();
    for (Label* text :
         {ui_->Label70, ui_->Label71, ui_->Label72, ui_->Label73, ui_->Label74, ui_->Label75, ui_->Label76}) {
        text->setCaption("");
    }
    tavrune::newExercise(state_, draws());
    showTask();
    showRows();
    startAsking();
}

void Laddi2::showTask() {
    const KinkedFunction& function1 = state_.function1;
    const KinkedFunction& function2 = state_.function2;
    fill({ui_->Label2, ui_->Label3, ui_->Label4}, function1.before, function1.kink);
    fill({ui_->Label6, ui_->Label41, ui_->Label42}, function1.after, function1.kink);
    fill({ui_->Label44, ui_->Label45, ui_->Label46}, function2.before, function2.kink);
    fill({ui_->Label48, ui_->Label49, ui_->Label50}, function2.after, function2.kink);
    for (const auto& [before, after, f] :
         {std::tuple{ui_->Label1, ui_->Label5, function1}, {ui_->Label43, ui_->Label47, function2}}) {
        tellWhole(before, f.before, "0 ≤ Q ≤ " + NumberText(f.kink));
        tellWhole(after, f.after, NumberText(f.kink) + " < Q, P > 0");
    }
    ui_->Label5->setCaption(secondPieceText(function1.after));
    ui_->Label47->setCaption(secondPieceText(function2.after));
    clearGraphs();
    drawFunction(*ui_->Picture3, function1);
    drawFunction(*ui_->Picture4, function2);
}

void Laddi2::showRows() {
    showRow(0, {ui_->Text1, ui_->Text2, ui_->Label301, ui_->Label302, ui_->Label303, ui_->Label304},
            {ui_->Text3, ui_->Label305});
    showRow(1,
            {ui_->Text4, ui_->Text5, ui_->Text6, ui_->Label311, ui_->Label312, ui_->Label313, ui_->Label314},
            {ui_->Text7, ui_->Label315});
    showRow(2,
            {ui_->Text8, ui_->Text9, ui_->Text10, ui_->Label321, ui_->Label322, ui_->Label323, ui_->Label324},
            {ui_->Text11, ui_->Label325});
    showRow(
        3,
        {ui_->Text12, ui_->Text13, ui_->Text14, ui_->Label331, ui_->Label332, ui_->Label333, ui_->Label334},
        {ui_->Text15, ui_->Label335});
}

/// A row is shown if it holds a segment; its end if the segment gives way to another, or its end is asked
/// for.
void Laddi2::showRow(int row, std::initializer_list<QWidget*> controls, std::initializer_list<QWidget*> end) {
    const int first = state_.sum.rowOfSegment(0);
    const int last = state_.sum.rowOfSegment(state_.sum.last());
    const bool isUsed = first <= row && row <= last;
    setShown(isUsed, controls);
    setShown(isUsed && (row < last || state_.sum.upperEndAsked), end);
}

void Laddi2::showIntervals() {
    focusOn(ui_->Vis2);
    markEnds(*ui_->Picture3, state_.function1);
    markEnds(*ui_->Picture4, state_.function2);
    // The one at which a function never ends falls beside the box.
    std::vector<double> ends = state_.breakPoints;
    if (state_.sum.upperEndAsked) {
        ends.push_back(state_.sum.upperEnd);
    }
    drawUprights(*ui_->Picture3, ends);
    drawUprights(*ui_->Picture4, ends);
    ui_->Label70->setCaption(intervalsHeading(state_.sum));
    const auto [first, second] = intervalsTexts(state_.sum);
    ui_->Label71->setCaption(first);
    ui_->Label72->setCaption(second);
}

void Laddi2::showSum() {
    showIntervals();
    focusOn(ui_->Luk);
    Label* const lines[]{ui_->Label73, ui_->Label74, ui_->Label75, ui_->Label76};
    for (std::size_t segment = 0; segment <= state_.sum.last(); ++segment) {
        lines[segment]->setCaption(segmentText(state_, segment));
    }
}

void Laddi2::closeHelp() {
    ui_->Picture7->hide();
    focusOnFirstRow();
}

}  // namespace tavrune
