#include "topics/calculus/integ2.h"

#include <cmath>
#include <optional>

#include "controls/row.h"
#include "controls/text.h"
#include "graph/axes.h"
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

const Axes& axes() {
    static const Axes kAxes{
        .scale = {0, 20, 10, -10},
        .level = {0, 20},
        .upright = {20, -10},
        .ticks = {{.along = Along::X, .from = -7, .before = 20, .offAxis = {0.1}},
                  {.along = Along::Y, .from = -10, .before = 20, .offAxis = {0.05, 0.075, 0.1}}}};
    return kAxes;
}

/// Where the last dot of a piece stands.
enum class LastDot { AtItsEnd, BeyondTheGraph };

/// Dots a piece between two quantities; a dot beyond the largest y is its last.
LastDot plot(GraphBox& graph, const Integ2Piece& piece, float from, float to) {
    const Figure curve(graph, Meaning::DottedCurve);
    // As in the hatching: the running sum meets its end as a single.
    for (double x = from; static_cast<float>(x) < to; x += kStep) {
        const double y = heightAt(piece, x);
        graph.PSet(x, y);
        if (std::abs(y) > kLargestY) {
            return LastDot::BeyondTheGraph;
        }
    }
    return LastDot::AtItsEnd;
}

/// Dots both pieces. Returns where the second one ends.
LastDot plotPieces(GraphBox& graph, const Integ2State& state) {
    const Integ2Piece first = firstPiece(state);
    const Integ2Piece second = secondPiece(state);
    std::optional<Figure> broken;
    if (heightAt(first, state.k) == heightAt(second, state.k)) {
        broken.emplace(graph, Meaning::DottedCurve);
    }
    plot(graph, first, 0, state.k);
    return plot(graph, second, state.k, kRightEnd);
}

void hatchPiece(GraphBox& graph, const Integ2Piece& piece, const QColor& colour) {
    hatch(
        graph, [&piece](double q) { return heightAt(piece, q); }, static_cast<int>(piece.lowerLimit),
        static_cast<int>(piece.upperLimit), colour);
}

void hatchPieces(GraphBox& graph, const Integ2State& state, const QColor& first, const QColor& second) {
    hatchPiece(graph, firstPiece(state), first);
    hatchPiece(graph, secondPiece(state), second);
}

/// Both pieces as one area.
void hatchArea(GraphBox& graph, const Integ2State& state) {
    const Figure area(graph, Meaning::Hatching);
    hatchPieces(graph, state, kBlue, kBlue);
}

/// Kept (integ2-brackets): what a term of the last sum shows depends on what it has shown so far, over all
/// exercises. An integral that is not above 0 never shows; what stood there gets one more pair of brackets
/// each time.
void showSummand(Label* term, double integral) { term->setCaption(summandText(integral, term->caption())); }

/// Lays out a term of the last sum and gives its right edge. Bracketed too often to fit, it shows its middle.
double layOutTerm(Label* label, double left) {
    layOutRow({label}, left);
    if (label->place().width() > kWidestTerm) {
        label->setAutoSize(false);
        label->setWidth(kWidestTerm);
    }
    return label->place().right();
}

/// What the names of the controls of a piece begin with, in the task and in the help.
constexpr const char* kFirst = "segment1";
constexpr const char* kSecond = "segment2";
constexpr const char* kWorkedFirst = "workedSegment1";
constexpr const char* kWorkedSecond = "workedSegment2";

}  // namespace

Integ2::Integ2(Draws& draws) : ExerciseForm(PageName::Integ2, draws), ui_(std::make_unique<Ui::Integ2>()) {
    setUp(*ui_);
    enterChain({ui_->integral}, LastBox::OkOrStay);
    onClick(ui_->showWorkedSolution, &Integ2::showWorkedSolution);
}

Integ2::~Integ2() = default;

void Integ2::newExercise() {
    closeHelp();
    drawAxes(*ui_->graph, axes());
    drawAxes(*ui_->helpGraph, axes());
    clearBoxes({ui_->integral});
    showAsking();

    tavrune::newExercise(state_, draws());

    showTask();
    fillHelp(kWorkedFirst, firstPiece(state_));
    fillHelp(kWorkedSecond, secondPiece(state_));
    plotPieces(*ui_->graph, state_);
    // Kept (integ2-focus-left): where the second piece leaves the graph upwards, the focus stays where it
    // is.
    if (plotPieces(*ui_->helpGraph, state_) == LastDot::AtItsEnd) {
        focusOn(ui_->integral);
    }
}

Label* Integ2::label(const QString& prefix, const char* name) const {
    return design()->findChild<Label*>(prefix + name);
}

void Integ2::showTask() {
    showPiece(kFirst, firstPiece(state_));
    showPiece(kSecond, secondPiece(state_));
    ui_->segment1End->setCaption(NumberText(state_.k));
    ui_->segment2Start->setCaption(NumberText(state_.k));
    nameTask();
    layOutFromFirst({ui_->segment1ZeroLessThanQuantity, ui_->segment1End});
    const double afterFor = layOutFromFirst({ui_->segment2ValidFor});
    layOutRow({ui_->segment2Start, ui_->segment2QuantityBelowTen}, afterFor + kGap);
}

void Integ2::showPiece(const QString& prefix, const Integ2Piece& shown) const {
    label(prefix, "Slope")->setCaption(NumberText(shown.slope));
    label(prefix, "Intercept")->setCaption(NumberText(shown.intercept));
    label(prefix, "LowerLimit")->setCaption(NumberText(shown.lowerLimit));
    label(prefix, "UpperLimit")->setCaption(NumberText(shown.upperLimit));
    layOutFromFirst(
        labelsOf(*design(), prefix, {"PriceEquals", "Slope", "TimesQuantity", "Plus", "Intercept"}));
}

void Integ2::nameTask() {
    const auto text = [](auto x) { return fromUtf8(NumberText(x)); };
    const QString k = text(state_.k);
    ui_->segment1PriceEquals->setAccessibleName(
        QString("P1 = %1Q + %2 for 0 < Q < %3").arg(text(state_.a1), text(state_.b1), k));
    ui_->segment2PriceEquals->setAccessibleName(
        QString("P2 = %1Q + %2 for %3 < Q < 10").arg(text(state_.a2), text(state_.b2), k));
    ui_->segment1IntegralSign->setAccessibleName(
        QString("integralet fra %1 til %2 af P1 dQ").arg(text(state_.v), k));
    ui_->segment2IntegralSign->setAccessibleName(
        QString("plus integralet fra %1 til %2 af P2 dQ =").arg(k, text(state_.w)));
}

void Integ2::fillHelp(const QString& prefix, const Integ2Piece& worked) const {
    const Integ2Worked texts = workedOut(worked);
    label(prefix, "UpperLimit")->setCaption(NumberText(worked.upperLimit));
    label(prefix, "LowerLimit")->setCaption(NumberText(worked.lowerLimit));
    label(prefix, "Integrand")->setCaption(texts.integrand);
    label(prefix, "UpperQuadraticTerm")->setCaption(texts.upperQuadraticTerm);
    label(prefix, "UpperLinearTerm")->setCaption(texts.upperLinearTerm);
    label(prefix, "LowerQuadraticTerm")->setCaption(texts.lowerQuadraticTerm);
    label(prefix, "LowerLinearTerm")->setCaption(texts.lowerLinearTerm);
}

void Integ2::judge() {
    hideVerdict();
    if (showJudgement(tavrune::judge(state_, {ui_->integral->value()}), {ui_->integral}, ui_->integral)) {
        hatchArea(*ui_->graph, state_);
    }
}

void Integ2::giveAnswer() {
    ui_->integral->setContent(answerText(state_));
    whiten({ui_->integral});
    showGiven();
    hatchArea(*ui_->graph, state_);
}

void Integ2::help() {
    ui_->workedSegment1Result->setCaption(" = " + NumberText(state_.first));
    ui_->workedSegment2Result->setCaption(" = " + NumberText(state_.second));
    ui_->workedResult->setCaption(" = " + NumberText(state_.total));
    showSummand(ui_->workedSumSegment1, state_.first);
    showSummand(ui_->workedSumSegment2, state_.second);
    layOutHelp();
    openPanel(ui_->helpPanel, ui_->showWorkedSolution);
}

void Integ2::layOutHelp() {
    layOutWorkedPiece(kWorkedFirst);
    layOutWorkedPiece(kWorkedSecond);
    const double afterFirst = layOutTerm(ui_->workedSumSegment1, ui_->workedSumSegment1->place().left());
    const double afterPlus = layOutRow({ui_->workedSumPlus}, afterFirst);
    layOutRow({ui_->workedResult}, layOutTerm(ui_->workedSumSegment2, afterPlus));
}

void Integ2::layOutWorkedPiece(const QString& prefix) const {
    layOutRow(labelsOf(*design(), prefix, {"Integrand", "DifferentialEquals"}), kIntegrandLeft,
              kAfterIntegrand);
    layOutFromFirst(labelsOf(*design(), prefix,
                             {"UpperQuadraticTerm", "UpperSquare", "UpperLinearTerm", "LowerQuadraticTerm",
                              "LowerSquare", "LowerLinearTerm", "Result"}));
}

void Integ2::showWorkedSolution() {
    ui_->workedSolutionCover->hide();
    focusOn(ui_->closeHelp);
    hatchPieces(*ui_->helpGraph, state_, kRed, kGreen);
}

void Integ2::closeHelp() {
    ui_->workedSolutionCover->show();
    ui_->helpPanel->hide();
}

}  // namespace tavrune
