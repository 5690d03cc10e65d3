#include "topics/calculus/integ2.h"

#include <cmath>
#include <optional>

#include "controls/panel.h"
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

/// Where the last dot of a segment stands.
enum class LastDot { AtItsEnd, BeyondTheGraph };

/// Dots a segment between two quantities; a dot beyond the largest y is its last.
LastDot plot(GraphBox& graph, const Integ2Segment& segment, float from, float to) {
    const Figure curve(graph, Meaning::DottedCurve);
    // As in the hatching: the running sum meets its end as a single.
    for (double x = from; static_cast<float>(x) < to; x += kStep) {
        const double y = heightAt(segment, x);
        graph.PSet(x, y);
        if (std::abs(y) > kLargestY) {
            return LastDot::BeyondTheGraph;
        }
    }
    return LastDot::AtItsEnd;
}

/// Dots both segments; gives where the second one ends.
LastDot plotSegments(GraphBox& graph, const Integ2State& state) {
    const Integ2Segment first = firstSegment(state);
    const Integ2Segment second = secondSegment(state);
    std::optional<Figure> broken;
    if (heightAt(first, state.k) == heightAt(second, state.k)) {
        broken.emplace(graph, Meaning::DottedCurve);
    }
    plot(graph, first, 0, state.k);
    return plot(graph, second, state.k, kRightEnd);
}

void hatchSegment(GraphBox& graph, const Integ2Segment& segment, const QColor& colour) {
    hatch(
        graph, [&segment](double q) { return heightAt(segment, q); }, static_cast<int>(segment.lowerLimit),
        static_cast<int>(segment.upperLimit), colour);
}

void hatchSegments(GraphBox& graph, const Integ2State& state, const QColor& first, const QColor& second) {
    hatchSegment(graph, firstSegment(state), first);
    hatchSegment(graph, secondSegment(state), second);
}

/// Both segments as one area.
void hatchArea(GraphBox& graph, const Integ2State& state) {
    const Figure area(graph, Meaning::Hatching);
    hatchSegments(graph, state, kBlue, kBlue);
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

/// What the names of the controls of a segment begin with, in the task and in the help.
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
    fillHelp(kWorkedFirst, firstSegment(state_));
    fillHelp(kWorkedSecond, secondSegment(state_));
    plotSegments(*ui_->graph, state_);
    // Kept (integ2-focus-left): where the second segment leaves the graph upwards, the focus stays where it
    // is.
    if (plotSegments(*ui_->helpGraph, state_) == LastDot::AtItsEnd) {
        focusOn(ui_->integral);
    }
}

Label* Integ2::label(const QString& segment, const char* name) const {
    return design()->findChild<Label*>(segment + name);
}

void Integ2::showTask() {
    showSegment(kFirst, firstSegment(state_));
    showSegment(kSecond, secondSegment(state_));
    ui_->segment1End->setCaption(NumberText(state_.k));
    ui_->segment2Start->setCaption(NumberText(state_.k));
    nameTask();
    layOutFromFirst({ui_->segment1ZeroLessThanQuantity, ui_->segment1End});
    const double afterFor = layOutFromFirst({ui_->segment2ValidFor});
    layOutRow({ui_->segment2Start, ui_->segment2QuantityBelowTen}, afterFor + kGap);
}

void Integ2::showSegment(const QString& segment, const Integ2Segment& shown) const {
    label(segment, "Slope")->setCaption(NumberText(shown.slope));
    label(segment, "Intercept")->setCaption(NumberText(shown.intercept));
    label(segment, "LowerLimit")->setCaption(NumberText(shown.lowerLimit));
    label(segment, "UpperLimit")->setCaption(NumberText(shown.upperLimit));
    layOutFromFirst(
        labelsOf(*design(), segment, {"PriceEquals", "Slope", "TimesQuantity", "Plus", "Intercept"}));
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

void Integ2::fillHelp(const QString& segment, const Integ2Segment& worked) const {
    const Integ2Worked texts = workedOut(worked);
    label(segment, "UpperLimit")->setCaption(NumberText(worked.upperLimit));
    label(segment, "LowerLimit")->setCaption(NumberText(worked.lowerLimit));
    label(segment, "Integrand")->setCaption(texts.integrand);
    label(segment, "UpperQuadraticTerm")->setCaption(texts.upperQuadraticTerm);
    label(segment, "UpperLinearTerm")->setCaption(texts.upperLinearTerm);
    label(segment, "LowerQuadraticTerm")->setCaption(texts.lowerQuadraticTerm);
    label(segment, "LowerLinearTerm")->setCaption(texts.lowerLinearTerm);
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
    layOutWorkedSegment(kWorkedFirst);
    layOutWorkedSegment(kWorkedSecond);
    const double afterFirst = layOutTerm(ui_->workedSumSegment1, ui_->workedSumSegment1->place().left());
    const double afterPlus = layOutRow({ui_->workedSumPlus}, afterFirst);
    layOutRow({ui_->workedResult}, layOutTerm(ui_->workedSumSegment2, afterPlus));
}

void Integ2::layOutWorkedSegment(const QString& segment) const {
    layOutRow(labelsOf(*design(), segment, {"Integrand", "DifferentialEquals"}), kIntegrandLeft,
              kAfterIntegrand);
    layOutFromFirst(labelsOf(*design(), segment,
                             {"UpperQuadraticTerm", "UpperSquare", "UpperLinearTerm", "LowerQuadraticTerm",
                              "LowerSquare", "LowerLinearTerm", "Result"}));
}

void Integ2::showWorkedSolution() {
    ui_->workedSolutionCover->hide();
    focusOn(ui_->closeHelp);
    hatchSegments(*ui_->helpGraph, state_, kRed, kGreen);
}

void Integ2::closeHelp() {
    ui_->workedSolutionCover->show();
    ui_->helpPanel->hide();
}

}  // namespace tavrune
