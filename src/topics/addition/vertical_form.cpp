#include "topics/addition/vertical_form.h"

#include "numeric/rounding.h"
#include "topics/addition/vertical_graphs.h"

namespace tavrune {
namespace {

/// Writes the right sum. Kept (addition-unseen-end): the upper end is written whether it is asked
/// for or not.
void write(const AnswerRows& rows, const VerticalSum& sum) {
    for (std::size_t segment = 0; segment < sum.segments.size(); ++segment) {
        rows.write(sum.rowOfSegment(segment), sum.segments[segment]);
    }
    for (std::size_t at = 0; at < sum.breaks.size(); ++at) {
        rows.write(sum.rowOfSegment(at), Slot::End, RoundUp2(sum.breaks[at]));
        rows.write(sum.rowOfSegment(at + 1), Slot::Start, RoundUp2(sum.breaks[at]));
    }
    if (sum.breaks.empty()) {
        rows.write(sum.rowOfSegment(0), Slot::Start, 0);
    }
    rows.write(sum.rowOfSegment(sum.last()), Slot::End, RoundUp2(sum.upperEnd));
}

}  // namespace

void VerticalForm::bindGraphsAndRows() {
    function1_ = FramedGraph::of(*design(), "function1");
    function2_ = FramedGraph::of(*design(), "function2");
    result_ = FramedGraph::of(*design(), "result");
    rows_ = AnswerRows::of(*design());
}

void VerticalForm::judge() {
    hideVerdict();
    const VerticalSum right = sum();
    const std::vector<AnswerBox*> boxes = rows_.boxes(answerFields(right));
    if (showJudgement(judged(valuesOf(boxes)), boxes, firstBox())) {
        drawSum(*result_.graph, right);
    }
}

void VerticalForm::giveAnswer() {
    helpPanel()->hide();
    const VerticalSum right = sum();
    drawTypedSum(*result_.graph, rows_, right);
    rows_.whiten();
    drawSum(*result_.graph, right);
    write(rows_, right);
    showGiven();
}

void VerticalForm::help() { openPanel(helpPanel(), helpPanel()->findChild<Button*>("showIntervals")); }

void VerticalForm::clearGraphs() {
    function1_.clear(drawFrameTicks);
    function2_.clear(drawFrameTicks);
    result_.clear(drawTallFrameTicks);
}

void VerticalForm::askForSum() {
    rows_.blank();
    rows_.nameShownBoxes();
    focusOnFirstRow();
    showAsking();
}

AnswerBox* VerticalForm::firstBox() const { return rows_.box(sum().rowOfSegment(0), Slot::Slope); }

}  // namespace tavrune
