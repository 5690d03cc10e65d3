#include "topics/addition/laddi2.h"

#include "numeric/text.h"
#include "topics/addition/ui_laddi2.h"
#include "topics/addition/vertical_graphs.h"

namespace tavrune {
namespace {

void drawFunction(GraphBox& graph, const KinkedFunction& f) {
    const Figure line(graph, Meaning::Line);
    drawPiece(graph, f.before, 0, f.kink);
    drawPiece(graph, f.after, f.kink, kFunctionEndQ);
}

void drawEndSquares(GraphBox& graph, const KinkedFunction& f) {
    drawLevelSquare(graph, 0, f.before.at(0));
    drawLevelSquare(graph, f.kink, f.before.at(f.kink));
    drawLevelSquare(graph, f.kink, f.after.at(f.kink));
    if (f.after.slope < 0) {
        drawLevelSquare(graph, f.zero(), 0);
    }
}

}  // namespace

Laddi2::Laddi2(Draws& draws) : VerticalForm(PageName::Laddi2, draws), ui_(std::make_unique<Ui::Laddi2>()) {
    setUp(*ui_);
    segmentResults_ = numbered<Label>(*design(), "segment%1Result");
    enterChainWhileShown(rows().boxes(), LastBox::OkOrNewExercise);
    onClick(ui_->showIntervals, &Laddi2::showIntervals);
    onClick(ui_->showFunctions, &Laddi2::showSum);
}

Laddi2::~Laddi2() = default;

void Laddi2::newExercise() {
    ui_->helpPanel->hide();
    for (Label* text : {ui_->intervalsHeading, ui_->intervalsResult, ui_->intervalsResultRest}) {
        text->setCaption("");
    }
    for (Label* text : segmentResults_) {
        text->setCaption("");
    }
    tavrune::newExercise(state_, draws());
    showTask();
    showRows();
    askForSum();
}

void Laddi2::showTask() {
    tellFunction("function1", state_.function1);
    tellFunction("function2", state_.function2);
    clearGraphs();
    drawFunction(*ui_->function1Graph, state_.function1);
    drawFunction(*ui_->function2Graph, state_.function2);
}

void Laddi2::tellFunction(const QString& name, const KinkedFunction& function) {
    const std::string kink = NumberText(function.kink);
    const auto tellPart = [&](const QString& part, const Piece& piece, const std::string& where) {
        const auto labels = FunctionLabels::of(*design(), part);
        const std::string slope = NumberText(piece.slope);
        labels.tell(slope, NumberText(piece.intercept), where);
        // The sign of the intercept stands in the text.
        labels.fill(slope, sizeText(piece.intercept));
        return labels;
    };
    tellPart(name + "Part1", function.before, "0 ≤ Q ≤ " + kink);
    tellPart(name + "Part2", function.after, kink + " < Q, P > 0")
        .text->setCaption(secondPieceText(function.after));
    design()->findChild<Label*>(name + "Part1End")->setCaption(kink);
    design()->findChild<Label*>(name + "Part2Start")->setCaption(kink);
}

/// A row is shown if it has a segment; its end if another segment follows, or if the upper end is asked for.
void Laddi2::showRows() {
    const int first = state_.sum.rowOfSegment(0);
    const int last = state_.sum.rowOfSegment(state_.sum.last());
    for (int row = 0; row < rows().count(); ++row) {
        rows().show(row, first <= row && row <= last, row < last || state_.sum.upperEndAsked);
    }
}

void Laddi2::showIntervals() {
    focusOn(ui_->showFunctions);
    drawEndSquares(*ui_->function1Graph, state_.function1);
    drawEndSquares(*ui_->function2Graph, state_.function2);
    // `kNeverEnds` lies beyond the graph, and is not seen.
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
    for (std::size_t segment = 0; segment <= state_.sum.last(); ++segment) {
        segmentResults_[segment]->setCaption(segmentText(state_, segment));
    }
}

void Laddi2::closeHelp() {
    ui_->helpPanel->hide();
    focusOnFirstRow();
}

}  // namespace tavrune
