#include "topics/calculus/integ2.h"

#include <cmath>

#include "controls/panel.h"
#include "controls/row.h"
#include "controls/text.h"
#include "graph/curve.h"
#include "graph/ticks.h"
#include "numeric/text.h"
#include "topics/calculus/hatching.h"
#include "topics/calculus/ui_integ2.h"

namespace tavrune {
namespace {

constexpr double kStep = 0.01;
constexpr int kRightEnd = 10;
constexpr double kLargestY = 20;
/// Where the integrands of the worked solution begin, and what lies between them and their "dQ =".
constexpr double kIntegrandLeft = fromTwips(4200);
constexpr double kAfterIntegrand = fromTwips(20);
/// Between a word of the task and the number after it.
constexpr double kGap = 3;
/// The widest that a term of the last sum may become.
constexpr double kWidestTerm = 140;

void drawAxes(GraphBox& graph) {
    graph.Cls();
    graph.Scale(0, 20, 10, -10);
    graph.Line(0, 20, 0, -10);
    graph.Line(0, 0, 20, 0);
    drawTicksAlongX(graph, {.from = -7, .before = 20}, {0.1});
    drawTicksAlongY(graph, {.from = -10, .before = 20}, {0.05, 0.075, 0.1});
}

/// Dots a piece from `from` on and gives true if it has come to `to`; a dot beyond the largest y is its last.
bool dot(GraphBox& graph, const Curve& piece, float from, float to) {
    // As in the hatching: the running sum meets its end as a single.
    for (double x = from; static_cast<float>(x) < to; x += kStep) {
        const double y = piece(x);
        graph.PSet(x, y);
        if (std::abs(y) > kLargestY) {
            return false;
        }
    }
    return true;
}

/// Sets a term of the last sum and gives its right edge. Bracketed too often to fit, it shows its middle.
double layOutTerm(Label* label, double left) {
    layOutRow({label}, left);
    if (label->place().width() > kWidestTerm) {
        label->setAutoSize(false);
        label->setWidth(kWidestTerm);
    }
    return label->place().right();
}

}  // namespace

Integ2::Integ2(Draws& draws) : ExerciseForm(PageName::Integ2, draws), ui_(std::make_unique<Ui::Integ2>()) {
    setUp(*ui_);
    buttons({.newExercise = ui_->Command3,
             .ok = ui_->Command1,
             .giveAnswer = ui_->Command2,
             .help = ui_->Command4});
    verdict(TwoLabels{.right = ui_->Label15, .wrong = ui_->Label16});
    enterChain({ui_->Text1}, LastBox::OkOrStay);
    onClick(ui_->Command6, &Integ2::uncover);
    onClick(ui_->Command5, &Integ2::closeHelp);
}

Integ2::~Integ2() = default;

void Integ2::newExercise() {
    closeHelp();
    drawAxes(*ui_->Picture1);
    drawAxes(*ui_->Picture3);
    clearBoxes({ui_->Text1});
    showAsking();

    tavrune::newExercise(state_, draws());

    showTask();
    fillHelp();
    plotPieces(*ui_->Picture1);
    // Kept: where the pieces leave the graph upwards, the focus stays where it is.
    if (plotPieces(*ui_->Picture3)) {
        focusOn(ui_->Text1);
    }
}

void Integ2::showTask() {
    ui_->Label2->setCaption(NumberText(state_.a1));
    ui_->Label5->setCaption(NumberText(state_.b1));
    ui_->Label7->setCaption(NumberText(state_.a2));
    ui_->Label10->setCaption(NumberText(state_.b2));
    ui_->Label13->setCaption(NumberText(state_.v));
    ui_->Label28->setCaption(NumberText(state_.w));
    for (Label* kink : {ui_->Label18, ui_->Label20, ui_->Label12, ui_->Label29}) {
        kink->setCaption(NumberText(state_.k));
    }
    nameTask();
    layOutRow({ui_->Label202, ui_->Label2, ui_->Label203, ui_->Label204, ui_->Label5},
              ui_->Label202->place().left());
    layOutRow({ui_->Label205, ui_->Label18}, ui_->Label205->place().left());
    layOutRow({ui_->Label206, ui_->Label7, ui_->Label207, ui_->Label208, ui_->Label10},
              ui_->Label206->place().left());
    const double afterFor = layOutRow({ui_->Label209}, ui_->Label209->place().left());
    layOutRow({ui_->Label20, ui_->Label210}, afterFor + kGap);
}

void Integ2::nameTask() {
    const auto text = [](auto x) { return fromUtf8(NumberText(x)); };
    const QString k = text(state_.k);
    ui_->Label202->setAccessibleName(
        QString("P1 = %1Q + %2 for 0 < Q < %3").arg(text(state_.a1), text(state_.b1), k));
    ui_->Label206->setAccessibleName(
        QString("P2 = %1Q + %2 for %3 < Q < 10").arg(text(state_.a2), text(state_.b2), k));
    ui_->Label211->setAccessibleName(QString("integralet fra %1 til %2 af P1 dQ").arg(text(state_.v), k));
    ui_->Label213->setAccessibleName(
        QString("plus integralet fra %1 til %2 af P2 dQ =").arg(k, text(state_.w)));
}

void Integ2::fillHelp() {
    ui_->Label258->setCaption(NumberText(state_.k));
    ui_->Label259->setCaption(NumberText(state_.v));
    const Integ2Worked red = workedFirst(state_);
    ui_->Label71->setCaption(red.integrand);
    ui_->Label260->setCaption(red.upperSquared);
    ui_->Label262->setCaption(red.upperLinear);
    ui_->Label263->setCaption(red.lowerSquared);
    ui_->Label265->setCaption(red.lowerLinear);

    ui_->Label269->setCaption(NumberText(state_.w));
    ui_->Label270->setCaption(NumberText(state_.k));
    const Integ2Worked green = workedSecond(state_);
    ui_->Label83->setCaption(green.integrand);
    ui_->Label271->setCaption(green.upperSquared);
    ui_->Label273->setCaption(green.upperLinear);
    ui_->Label274->setCaption(green.lowerSquared);
    ui_->Label276->setCaption(green.lowerLinear);
}

bool Integ2::plotPieces(GraphBox& graph) const {
    dot(
        graph, [this](double q) { return heightOfFirst(state_, q); }, 0, state_.k);
    return dot(
        graph, [this](double q) { return heightOfSecond(state_, q); }, state_.k, kRightEnd);
}

void Integ2::hatchPieces(GraphBox& graph, const QColor& first, const QColor& second) const {
    const int kink = static_cast<int>(state_.k);
    hatch(
        graph, [this](double q) { return heightOfFirst(state_, q); }, static_cast<int>(state_.v), kink,
        first);
    hatch(
        graph, [this](double q) { return heightOfSecond(state_, q); }, kink, static_cast<int>(state_.w),
        second);
}

void Integ2::judge() {
    hideVerdict();
    const bool right = isRight(state_, ui_->Text1->value());
    ui_->Text1->mark(!right);
    if (right) {
        solved();
        hatchPieces(*ui_->Picture1, kBlue, kBlue);
        return;
    }
    failed();
    focusOn(ui_->Text1);
}

void Integ2::giveAnswer() {
    ui_->Text1->setContent(answerText(state_));
    whiten({ui_->Text1});
    given();
    hatchPieces(*ui_->Picture1, kBlue, kBlue);
}

void Integ2::help() {
    ui_->Label96->setCaption(" = " + NumberText(state_.first));
    ui_->Label101->setCaption(" = " + NumberText(state_.second));
    ui_->Label103->setCaption(" = " + NumberText(state_.total));
    // Kept: an integral that is not above 0 never shows; what stood there gets one more pair of brackets at
    // each opening, over all exercises.
    ui_->Label93->setCaption(summandText(state_.first, ui_->Label93->caption()));
    ui_->Label98->setCaption(summandText(state_.second, ui_->Label98->caption()));
    layOutHelp();
    openPanel(ui_->Picture2, ui_->Command6);
}

void Integ2::layOutHelp() {
    layOutRow({ui_->Label71, ui_->Label74}, kIntegrandLeft, kAfterIntegrand);
    layOutRow({ui_->Label260, ui_->Label261, ui_->Label262, ui_->Label263, ui_->Label264, ui_->Label265,
               ui_->Label96},
              ui_->Label260->place().left());
    layOutRow({ui_->Label83, ui_->Label104}, kIntegrandLeft, kAfterIntegrand);
    layOutRow({ui_->Label271, ui_->Label272, ui_->Label273, ui_->Label274, ui_->Label275, ui_->Label276,
               ui_->Label101},
              ui_->Label271->place().left());

    const double afterFirst = layOutTerm(ui_->Label93, ui_->Label93->place().left());
    const double afterPlus = layOutRow({ui_->Label278}, afterFirst);
    layOutRow({ui_->Label103}, layOutTerm(ui_->Label98, afterPlus));
}

void Integ2::uncover() {
    ui_->Picture4->hide();
    focusOn(ui_->Command5);
    hatchPieces(*ui_->Picture3, kRed, kGreen);
}

void Integ2::closeHelp() {
    ui_->Picture4->show();
    ui_->Picture2->hide();
}

}  // namespace tavrune
