#include "topics/basics/lininter.h"

#include <array>

#include "controls/text.h"
#include "graph/axes.h"
#include "topics/basics/ui_lininter.h"

namespace tavrune {
namespace {

constexpr double kTopmostP = 16.5;
constexpr int kLowestP = -5;
/// The name of a point stands below it.
constexpr double kNameDrop = 0.5;

// Ticks stand at whole numbers; none is at the right edge.
const Axes& axes() {
    static const Axes kAxes{.scale = {kLeftmostQ, kTopmostP, kRightmostQ, kLowestP},
                            .level = {kLeftmostQ, kRightmostQ},
                            .upright = {kTopmostP, kLowestP},
                            .ticks = {{.along = Along::X,
                                       .from = static_cast<int>(kLeftmostQ),
                                       .before = static_cast<int>(kRightmostQ),
                                       .offAxis = {0.1}},
                                      {.along = Along::Y, .from = kLowestP, .before = 17, .offAxis = {0.1}}}};
    return kAxes;
}

}  // namespace

Lininter::Lininter(Draws& draws)
    : ExerciseForm(PageName::Lininter, draws), ui_(std::make_unique<Ui::Lininter>()) {
    setUp(*ui_);
    enterChain({ui_->askedCoordinate}, LastBox::OkOrStay);
    onClick(ui_->showPriceSolution, &Lininter::showPriceSolution);
    onClick(ui_->showQuantitySolution, &Lininter::showQuantitySolution);
}

Lininter::~Lininter() = default;

void Lininter::newExercise() {
    drawAxes(*ui_->graph, axes());
    ui_->showPriceSolution->setEnabled(false);
    ui_->showQuantitySolution->setEnabled(false);
    closeHelp();
    showAsking();
    clearBoxes({ui_->askedCoordinate});

    tavrune::newExercise(state_, draws());

    showTask();
    drawPoints();
    focusOn(ui_->askedCoordinate);
}

void Lininter::showTask() {
    ui_->pointA->setCaption(textOfA(state_));
    ui_->pointB->setCaption(textOfB(state_));
    const LininterTask asked = task(state_);
    ui_->givenLetter->setCaption(asked.givenLetter);
    ui_->givenCoordinate->setCaption(asked.given);
    ui_->askedLetter->setCaption(asked.askedLetter);
    ui_->askedCoordinate->setAccessibleName(
        QString("det nye punkts %1-koordinat").arg(fromUtf8(asked.askedLetter)));
}

void Lininter::drawPoints() {
    drawFigure(Meaning::Cross, crossAt(state_.Qa, state_.Pa), kBlue);
    drawFigure(Meaning::Cross, crossAt(state_.Qb, state_.Pb), kBlue);
    showAll({ui_->pointAName, ui_->pointBName});
    ui_->graph->place(*ui_->pointAName, state_.Qa, state_.Pa - kNameDrop);
    ui_->graph->place(*ui_->pointBName, state_.Qb, state_.Pb - kNameDrop);
}

void Lininter::judge() {
    hideVerdict();
    if (showJudgement(tavrune::judge(state_, {ui_->askedCoordinate->value()}), {ui_->askedCoordinate},
                      ui_->askedCoordinate)) {
        drawSolution();
        drawArrowheads(Occasion::Judged);
    }
}

void Lininter::giveAnswer() {
    showGiven();
    const double typed = ui_->askedCoordinate->value();
    ui_->askedCoordinate->setContent(answerText(state_));
    whiten({ui_->askedCoordinate});
    drawSolution();
    drawFigure(Meaning::Cross, crossOfTyped(state_, typed), kRed);
    drawArrowheads(Occasion::Given);
}

void Lininter::drawSolution() {
    draw(std::array{lineThroughPoints(state_)}, kBlue);
    draw(guideLines(state_), kGreen);
}

void Lininter::drawArrowheads(Occasion occasion) {
    const std::array strokes = arrowheads(state_, occasion);
    drawFigure(Meaning::Arrowhead, std::span(strokes).first(2), kGreen);
    drawFigure(Meaning::Arrowhead, std::span(strokes).last(2), kGreen);
}

void Lininter::drawFigure(Meaning meaning, std::span<const Segment> segments, const QColor& colour) {
    const Figure figure(*ui_->graph, meaning);
    draw(segments, colour);
}

void Lininter::draw(std::span<const Segment> segments, const QColor& colour) {
    for (const Segment& s : segments) {
        ui_->graph->Line(s.x1, s.y1, s.x2, s.y2, colour);
    }
}

Lininter::Solution Lininter::solution() const {
    if (state_.given == Coordinate::Quantity) {
        return {Fraction::of(*design(), "workedSlope"), ui_->workedSlope, ui_->workedPrice,
                ui_->showPriceSolution};
    }
    return {Fraction::of(*design(), "workedInverseSlope"), ui_->workedInverseSlope, ui_->workedQuantity,
            ui_->showQuantitySolution};
}

void Lininter::help() {
    // Only the solution for the coordinate asked for is filled; what the other column holds stays covered.
    const LininterWorked worked = workedSolution(state_);
    const auto& [fraction, ratio, result, button] = solution();
    fraction.setTexts(worked.numerator, worked.denominator);
    ratio->setCaption(worked.ratio);
    ratio->setLeft(fraction.right());
    result->setCaption(worked.result);

    button->setEnabled(true);
    ui_->workedSolution->show();
    openPanel(ui_->helpPanel, button);
}

void Lininter::showPriceSolution() {
    ui_->priceSolutionCover->hide();
    focusOn(ui_->closeHelp);
}

void Lininter::showQuantitySolution() {
    ui_->quantitySolutionCover->hide();
    focusOn(ui_->closeHelp);
}

void Lininter::closeHelp() {
    ui_->helpPanel->hide();
    showAll({ui_->priceSolutionCover, ui_->quantitySolutionCover});
}

}  // namespace tavrune
