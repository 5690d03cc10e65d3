#include "topics/addition/vertical_form.h"

#include "numeric/rounding.h"
#include "topics/addition/vertical_graphs.h"

namespace tavrune {
namespace {

/// The sum as the answer shows it. Kept (addition-unseen-end): the upper end is written whether it is asked
/// for or not.
void write(const AnswerRows& rows, const VerticalSum& sum) {
    for (std::size_t segment = 0; segment < sum.segments.size(); ++segment) {
        const int row = sum.rowOfSegment(segment);
        rows.write(row, Slot::Slope, sum.segments[segment].slope);
        rows.write(row, Slot::Intercept, sum.segments[segment].intercept);
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
        drawSum(*result_.box, right);
    }
}

void VerticalForm::giveAnswer() {
    helpPanel()->hide();
    const VerticalSum right = sum();
    drawTypedSum(*result_.box, rows_, right);
    rows_.whiten();
    drawSum(*result_.box, right);
    write(rows_, right);
    showGiven();
}

void VerticalForm::help() { openPanel(helpPanel(), helpPanel()->findChild<Button*>("showIntervals")); }

void VerticalForm::clearGraphs() {
    drawFrameTicks(*function1_.frame);
    drawFrameTicks(*function2_.frame);
    drawTallFrameTicks(*result_.frame);
    for (const FramedGraph& graph : {function1_, function2_, result_}) {
        graph.box->Cls();
    }
}

void VerticalForm::askForSum() {
    rows_.blank();
    rows_.nameShownBoxes();
    focusOnFirstRow();
    showAsking();
}

AnswerBox* VerticalForm::firstBox() const { return rows_.box(sum().rowOfSegment(0), Slot::Slope); }

}  // namespace tavrune
