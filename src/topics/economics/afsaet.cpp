#include "topics/economics/afsaet.h"

#include <algorithm>

#include "controls/fraction.h"
#include "controls/panel.h"
#include "graph/graph_box.h"
#include "numeric/text.h"
#include "topics/economics/ui_afsaet.h"

namespace tavrune {
namespace {

// Lighter than the green of the verdict.
const QColor kLightGreen = rgb(0, 190, 0);
/// The price at the top of the graph, whose own scale runs downwards.
constexpr int kTop = 10;
constexpr double kGap = 6;

}  // namespace

Afsaet::Afsaet(Draws& draws) : ExerciseForm(PageName::Afsaet, draws), ui_(std::make_unique<Ui::Afsaet>()) {
    setUp(*ui_);
    enterChain({ui_->slope, ui_->intercept, ui_->rangeStart, ui_->rangeEnd}, LastBox::OkOrStay);
    helps_ = helpPanels();
    for (const HelpPanel& help : helps_) {
        for (std::size_t number = 0; number < help.steps.size(); ++number) {
            onClick(help.steps[number].vis, [this, &help, number] { showStep(help, number); });
        }
        onClick(help.close, [this, &help] { closeHelp(help); });
    }
}

Afsaet::~Afsaet() = default;

/// In the order of `AfsaetHelp`.
std::array<Afsaet::HelpPanel, kAfsaetHelps> Afsaet::helpPanels() const {
    const Ui::Afsaet& ui = *ui_;
    return {{
        {AfsaetHelp::TwoPoints,
         ui.twoPointsHelpPanel,
         ui.closeTwoPointsHelp,
         {{ui.showTwoPointsSlope, ui.twoPointsWorkedSlopeResult, ui.twoPointsSlopeStep,
           ui.twoPointsWorkedSlopeNumerator, ui.twoPointsWorkedSlopeBar, ui.twoPointsWorkedSlopeDenominator},
          {ui.showTwoPointsIntercept, ui.twoPointsWorkedIntercept}},
         ui.twoPointsWorkedResultHeading,
         ui.twoPointsWorkedResult},
        {AfsaetHelp::ElasticityAtPointPrice,
         ui.epAtPointPriceHelpPanel,
         ui.closeEpAtPointPriceHelp,
         {{ui.showEpAtPointPriceSlope, ui.epAtPointPriceWorkedSlopeResult, ui.epAtPointPriceSlopeStep,
           ui.epAtPointPriceWorkedSlopeNumerator, ui.epAtPointPriceWorkedSlopeBar,
           ui.epAtPointPriceWorkedSlopeDenominator},
          {ui.showEpAtPointPriceIntercept, ui.epAtPointPriceWorkedIntercept}},
         ui.epAtPointPriceWorkedResultHeading,
         ui.epAtPointPriceWorkedResult},
        {AfsaetHelp::ElasticityAtOtherPrice,
         ui.epAtOtherPriceHelpPanel,
         ui.closeEpAtOtherPriceHelp,
         {{ui.showEpAtOtherPriceSlope, ui.epAtOtherPriceWorkedSlopeResult, ui.epAtOtherPriceSlopeStep,
           ui.epAtOtherPriceWorkedSlopeNumerator, ui.epAtOtherPriceWorkedSlopeBar,
           ui.epAtOtherPriceWorkedSlopeDenominator},
          {ui.showEpAtOtherPriceIntercept, ui.epAtOtherPriceWorkedIntercept}},
         ui.epAtOtherPriceWorkedResultHeading,
         ui.epAtOtherPriceWorkedResult},
        {AfsaetHelp::ElasticityAtPointQuantity,
         ui.epAtPointQuantityHelpPanel,
         ui.closeEpAtPointQuantityHelp,
         {{ui.showEpAtPointQuantitySlope, ui.epAtPointQuantityWorkedSlopeResult,
           ui.epAtPointQuantitySlopeStep, ui.epAtPointQuantityWorkedSlopeNumerator,
           ui.epAtPointQuantityWorkedSlopeBar, ui.epAtPointQuantityWorkedSlopeDenominator},
          {ui.showEpAtPointQuantityIntercept, ui.epAtPointQuantityWorkedIntercept}},
         ui.epAtPointQuantityWorkedResultHeading,
         ui.epAtPointQuantityWorkedResult},
        {AfsaetHelp::ElasticityAtOtherQuantity,
         ui.epAtOtherQuantityHelpPanel,
         ui.closeEpAtOtherQuantityHelp,
         {{ui.showEpAtOtherQuantitySlope, ui.epAtOtherQuantityWorkedSlopeResult,
           ui.epAtOtherQuantitySlopeStep, ui.epAtOtherQuantityWorkedSlopeNumerator,
           ui.epAtOtherQuantityWorkedSlopeBar, ui.epAtOtherQuantityWorkedSlopeDenominator},
          {ui.showEpAtOtherQuantityIntercept, ui.epAtOtherQuantityWorkedIntercept}},
         ui.epAtOtherQuantityWorkedResultHeading,
         ui.epAtOtherQuantityWorkedResult},
        {AfsaetHelp::PointAndSlope,
         ui.pointAndSlopeHelpPanel,
         ui.closePointAndSlopeHelp,
         {{ui.showPointAndSlopeIntercept, ui.pointAndSlopeWorkedIntercept}},
         ui.pointAndSlopeWorkedResultHeading,
         ui.pointAndSlopeWorkedResult},
        {AfsaetHelp::TwoElasticities,
         ui.twoElasticitiesHelpPanel,
         ui.closeTwoElasticitiesHelp,
         {{ui.showTwoElasticitiesMaxPrice, ui.twoElasticitiesWorkedMaxPrice},
          {ui.showTwoElasticitiesMaxQuantity, ui.twoElasticitiesWorkedMaxQuantity},
          {ui.showTwoElasticitiesSlope, ui.twoElasticitiesWorkedSlope}},
         ui.twoElasticitiesWorkedResultHeading,
         ui.twoElasticitiesWorkedResult},
        {AfsaetHelp::ElasticityAtPriceAndSlope,
         ui.epAtPriceAndSlopeHelpPanel,
         ui.closeEpAtPriceAndSlopeHelp,
         {{ui.showEpAtPriceAndSlopeQuantity, ui.epAtPriceAndSlopeWorkedQuantity},
          {ui.showEpAtPriceAndSlopeIntercept, ui.epAtPriceAndSlopeWorkedIntercept}},
         ui.epAtPriceAndSlopeWorkedResultHeading,
         ui.epAtPriceAndSlopeWorkedResult},
        {AfsaetHelp::ElasticityAtQuantityAndSlope,
         ui.epAtQuantityAndSlopeHelpPanel,
         ui.closeEpAtQuantityAndSlopeHelp,
         {{ui.showEpAtQuantityAndSlopePrice, ui.epAtQuantityAndSlopeWorkedPrice},
          {ui.showEpAtQuantityAndSlopeIntercept, ui.epAtQuantityAndSlopeWorkedIntercept}},
         ui.epAtQuantityAndSlopeWorkedResultHeading,
         ui.epAtQuantityAndSlopeWorkedResult},
    }};
}

std::array<AnswerBox*, 4> Afsaet::answerBoxes() const {
    return {ui_->slope, ui_->intercept, ui_->rangeStart, ui_->rangeEnd};
}

void Afsaet::newExercise() {
    clearBoxes({ui_->slope, ui_->intercept, ui_->rangeStart, ui_->rangeEnd});
    ui_->graph->Cls();
    showAsking();

    tavrune::newExercise(state_, draws());

    const AfsaetTask task = taskTexts(state_);
    ui_->task->setCaption(task.sentence);
    ui_->firstFact->setCaption(task.firstFact);
    ui_->secondFact->setCaption(task.secondFact);
    ui_->givenRange->setCaption(task.range);
    for (const HelpPanel& help : helps_) {
        closeHelp(help);
    }
}

void Afsaet::drawLine(const AfsaetAnswer& line, const QColor& colour) {
    const auto& [a, b, Qlo, Qhi] = line;
    ui_->graph->Line(Qlo, kTop - (a * Qlo + b), Qhi, kTop - (a * Qhi + b), colour);
}

void Afsaet::judge() {
    const std::array<AnswerBox*, 4> boxes = answerBoxes();
    AfsaetAnswer typed{};
    std::transform(boxes.begin(), boxes.end(), typed.begin(),
                   [](const AnswerBox* box) { return box->value(); });
    const std::array<bool, 4> right = tavrune::judge(state_, typed);
    bool allRight = true;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i]->mark(!right[i]);
        allRight = allRight && right[i];
    }
    if (allRight) {
        solved();
        drawLine(answerOf(state_), kLightGreen);
    } else {
        failed();
        drawLine(typed, kRed);
        focusOn(ui_->slope);
    }
}

void Afsaet::giveAnswer() {
    const std::array<AnswerBox*, 4> boxes = answerBoxes();
    const AfsaetAnswer answer = answerOf(state_);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i]->mark(false);
        boxes[i]->setContent(NumberText(answer[i]));
    }
    given();
    drawLine(answer, kLightGreen);
}

void Afsaet::help() {
    const HelpPanel& help = helps_.at(static_cast<std::size_t>(helpFor(state_)));
    openPanel(help.panel, help.steps.front().vis);
}

void Afsaet::showStep(const HelpPanel& help, std::size_t number) {
    const Step& step = help.steps[number];
    const AfsaetStep worked = workedSteps(state_, help.help).at(number);
    step.text->setCaption(worked.text);
    if (step.box != nullptr) {
        const Fraction fraction(step.numerator, step.bar, step.denominator);
        fraction.setTexts(worked.numerator, worked.denominator);
        step.text->setLeft(fraction.right() + kGap);
        step.box->show();
    } else {
        step.text->show();
    }
    if (number + 1 == help.steps.size()) {
        help.equation->setCaption(equationText(state_));
        showAll({help.heading, help.equation});
    }
}

void Afsaet::closeHelp(const HelpPanel& help) {
    help.panel->hide();
    for (const Step& step : help.steps) {
        if (step.box != nullptr) {
            step.box->hide();
        } else {
            step.text->hide();
        }
    }
    hideAll({help.heading, help.equation});
    focusOn(ui_->slope);
}

}  // namespace tavrune
