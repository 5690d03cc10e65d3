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
    graphs({.function1 = {ui_->function1GraphFrame, ui_->function1Graph},
            .function2 = {ui_->function2GraphFrame, ui_->function2Graph},
            .sum = {ui_->resultGraphFrame, ui_->resultGraph}});
    answerRows({{ui_->segment1Slope, ui_->segment1Intercept, nullptr, ui_->segment1End},
                {ui_->segment2Slope, ui_->segment2Intercept, ui_->segment2Start, ui_->segment2End},
                {ui_->segment3Slope, ui_->segment3Intercept, ui_->segment3Start, ui_->segment3End},
                {ui_->segment4Slope, ui_->segment4Intercept, ui_->segment4Start, ui_->segment4End}});
    helpPanel(ui_->helpPanel, ui_->showIntervals);
    buttons(
        {.newExercise = ui_->newExercise, .ok = ui_->ok, .giveAnswer = ui_->giveAnswer, .help = ui_->help});
    verdict(TwoLabels{.right = ui_->right, .wrong = ui_->wrong, .darkUntilFirstTick = true});
    enterChain({ui_->segment1Slope, ui_->segment1Intercept, ui_->segment1End, ui_->segment2Slope,
                ui_->segment2Intercept, ui_->segment2Start},
               LastBox::OkOrNewExercise);
    enterGoes(ui_->segment2Start, {ui_->segment2End, ui_->ok, ui_->newExercise});
    enterGoes(ui_->segment2End, {ui_->segment3Slope, ui_->ok, ui_->newExercise});
    enterChain({ui_->segment3Slope, ui_->segment3Intercept, ui_->segment3Start}, LastBox::OkOrNewExercise);
    enterGoes(ui_->segment3Start, {ui_->segment3End, ui_->ok, ui_->newExercise});
    enterGoes(ui_->segment3End, {ui_->segment4Slope, ui_->ok, ui_->newExercise});
    enterChain({ui_->segment4Slope, ui_->segment4Intercept, ui_->segment4Start}, LastBox::OkOrNewExercise);
    enterGoes(ui_->segment4Start, {ui_->segment4End, ui_->ok, ui_->newExercise});
    enterGoes(ui_->segment4End, {ui_->ok, ui_->newExercise});
    onClick(ui_->showIntervals, &Laddi2::showIntervals);
    onClick(ui_->showFunctions, &Laddi2::showSum);
    onClick(ui_->closeHelp, &Laddi2::closeHelp);
}

Laddi2::~Laddi2() = default;

void Laddi2::firstTick() {
    VerticalForm::firstTick();
    ui_->openingBlank->hide();
}

void Laddi2::newExercise() {
    ui_->helpPanel->hide();
    for (Label* text : {ui_->intervalsHeading, ui_->intervalsResult, ui_->intervalsResultRest,
                        ui_->segment1Result, ui_->segment2Result, ui_->segment3Result, ui_->segment4Result}) {
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
    fill({ui_->function1Part1Slope, ui_->function1Part1Intercept, ui_->function1Part1End}, function1.before,
         function1.kink);
    fill({ui_->function1Part2Slope, ui_->function1Part2Intercept, ui_->function1Part2Start}, function1.after,
         function1.kink);
    fill({ui_->function2Part1Slope, ui_->function2Part1Intercept, ui_->function2Part1End}, function2.before,
         function2.kink);
    fill({ui_->function2Part2Slope, ui_->function2Part2Intercept, ui_->function2Part2Start}, function2.after,
         function2.kink);
    for (const auto& [before, after, f] :
         {std::tuple{ui_->function1Part1Text, ui_->function1Part2Text, function1},
          {ui_->function2Part1Text, ui_->function2Part2Text, function2}}) {
        tellWhole(before, f.before, "0 ≤ Q ≤ " + NumberText(f.kink));
        tellWhole(after, f.after, NumberText(f.kink) + " < Q, P > 0");
    }
    ui_->function1Part2Text->setCaption(secondPieceText(function1.after));
    ui_->function2Part2Text->setCaption(secondPieceText(function2.after));
    clearGraphs();
    drawFunction(*ui_->function1Graph, function1);
    drawFunction(*ui_->function2Graph, function2);
}

void Laddi2::showRows() {
    showRow(
        0,
        {ui_->segment1Slope, ui_->segment1Intercept, ui_->segment1PriceEquals, ui_->segment1TimesQuantityPlus,
         ui_->segment1ZeroLessThanQuantity, ui_->segment1StartLessOrEqual},
        {ui_->segment1End, ui_->segment1EndLessOrEqual});
    showRow(1,
            {ui_->segment2Slope, ui_->segment2Intercept, ui_->segment2Start, ui_->segment2PriceEquals,
             ui_->segment2TimesQuantityPlus, ui_->segment2ValidFor, ui_->segment2LessThanQuantity},
            {ui_->segment2End, ui_->segment2EndLessOrEqual});
    showRow(2,
            {ui_->segment3Slope, ui_->segment3Intercept, ui_->segment3Start, ui_->segment3PriceEquals,
             ui_->segment3TimesQuantityPlus, ui_->segment3ValidFor, ui_->segment3LessThanQuantity},
            {ui_->segment3End, ui_->segment3EndLessOrEqual});
    showRow(3,
            {ui_->segment4Slope, ui_->segment4Intercept, ui_->segment4Start, ui_->segment4PriceEquals,
             ui_->segment4TimesQuantityPlus, ui_->segment4ValidFor, ui_->segment4LessThanQuantity},
            {ui_->segment4End, ui_->segment4EndLessOrEqual});
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
    focusOn(ui_->showFunctions);
    markEnds(*ui_->function1Graph, state_.function1);
    markEnds(*ui_->function2Graph, state_.function2);
    // The one at which a function never ends falls beside the box.
    std::vector<double> ends = state_.breakPoints;
    if (state_.sum.upperEndAsked) {
        ends.push_back(state_.sum.upperEnd);
    }
    drawUprights(*ui_->function1Graph, ends);
    drawUprights(*ui_->function2Graph, ends);
    ui_->intervalsHeading->setCaption(intervalsHeading(state_.sum));
    const auto [first, second] = intervalsTexts(state_.sum);
    ui_->intervalsResult->setCaption(first);
    ui_->intervalsResultRest->setCaption(second);
}

void Laddi2::showSum() {
    showIntervals();
    focusOn(ui_->closeHelp);
    Label* const lines[]{ui_->segment1Result, ui_->segment2Result, ui_->segment3Result, ui_->segment4Result};
    for (std::size_t segment = 0; segment <= state_.sum.last(); ++segment) {
        lines[segment]->setCaption(segmentText(state_, segment));
    }
}

void Laddi2::closeHelp() {
    ui_->helpPanel->hide();
    focusOnFirstRow();
}

}  // namespace tavrune
