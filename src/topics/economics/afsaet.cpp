#include "topics/economics/afsaet.h"

#include <algorithm>
#include <array>
#include <utility>

#include "controls/fraction.h"
#include "controls/line_control.h"
#include "numeric/text.h"
#include "topics/economics/ui_afsaet.h"

namespace tavrune {
namespace {

// Lighter than the green of the verdict.
const QColor kLightGreen = rgb(0, 190, 0);
/// Between a fraction and the text behind it.
constexpr double kGap = 6;

/// The steps of a help panel, in their order.
struct Plan {
    AfsaetHelp help;
    /// What the names of its controls begin with.
    const char* prefix;
    std::vector<AfsaetUnknown> steps;
};

const std::vector<Plan>& plans() {
    using enum AfsaetUnknown;
    static const std::vector<Plan> kPlans{
        {AfsaetHelp::TwoPoints, "twoPoints", {Slope, Intercept}},
        {AfsaetHelp::ElasticityAtPointPrice, "epAtPointPrice", {Slope, Intercept}},
        {AfsaetHelp::ElasticityAtOtherPrice, "epAtOtherPrice", {Slope, Intercept}},
        {AfsaetHelp::ElasticityAtPointQuantity, "epAtPointQuantity", {Slope, Intercept}},
        {AfsaetHelp::ElasticityAtOtherQuantity, "epAtOtherQuantity", {Slope, Intercept}},
        {AfsaetHelp::PointAndSlope, "pointAndSlope", {Intercept}},
        {AfsaetHelp::TwoElasticities, "twoElasticities", {MaxPrice, MaxQuantity, Slope}},
        {AfsaetHelp::ElasticityAtPriceAndSlope, "epAtPriceAndSlope", {Quantity, Intercept}},
        {AfsaetHelp::ElasticityAtQuantityAndSlope, "epAtQuantityAndSlope", {Price, Intercept}},
    };
    return kPlans;
}

/// Returns what the names of the controls of a step end in.
QString nameOf(AfsaetUnknown unknown) {
    static constexpr std::array kNames{"Slope", "Intercept", "MaxPrice", "MaxQuantity", "Quantity", "Price"};
    return kNames.at(static_cast<std::size_t>(unknown));
}

/// "twoPoints" -> "TwoPoints"
QString capitalised(const QString& name) { return name.left(1).toUpper() + name.mid(1); }

}  // namespace

Afsaet::Afsaet(Draws& draws) : ExerciseForm(PageName::Afsaet, draws), ui_(std::make_unique<Ui::Afsaet>()) {
    setUp(*ui_);
    boxes_ = {ui_->slope, ui_->intercept, ui_->rangeStart, ui_->rangeEnd};
    enterChain(boxes_, LastBox::OkOrStay);
    helps_ = helpPanels();
    for (const HelpPanel& help : helps_) {
        for (const Step& step : help.steps) {
            onClick(step.button, [this, &help, &step] { showStep(help, step); });
        }
        onClick(help.close, [this, &help] { closePanel(help); });
    }
}

Afsaet::~Afsaet() = default;

QWidget* Afsaet::Step::shown() const {
    return panel != nullptr ? static_cast<QWidget*>(panel) : static_cast<QWidget*>(text);
}

Afsaet::Step Afsaet::stepOf(const QString& prefix, AfsaetUnknown unknown) const {
    const QString worked = prefix + "Worked" + nameOf(unknown);
    auto* const panel = design()->findChild<Panel*>(prefix + nameOf(unknown) + "Step");
    return {.unknown = unknown,
            .name = worked,
            .button = design()->findChild<Button*>("show" + capitalised(prefix) + nameOf(unknown)),
            .text = design()->findChild<Label*>(panel != nullptr ? worked + "Result" : worked),
            .panel = panel};
}

std::vector<Afsaet::HelpPanel> Afsaet::helpPanels() const {
    std::vector<HelpPanel> panels;
    for (const Plan& plan : plans()) {
        const QString prefix = plan.prefix;
        std::vector<Step> steps;
        for (const AfsaetUnknown unknown : plan.steps) {
            steps.push_back(stepOf(prefix, unknown));
        }
        panels.push_back({.help = plan.help,
                          .panel = design()->findChild<Panel*>(prefix + "HelpPanel"),
                          .close = design()->findChild<Button*>("close" + capitalised(prefix) + "Help"),
                          .steps = std::move(steps),
                          .heading = design()->findChild<Label*>(prefix + "WorkedResultHeading"),
                          .equation = design()->findChild<Label*>(prefix + "WorkedResult")});
    }
    return panels;
}

void Afsaet::newExercise() {
    clearBoxes(boxes_);
    ui_->graph->Cls();
    showAsking();

    tavrune::newExercise(state_, draws());

    const AfsaetTask task = taskTexts(state_);
    ui_->task->setCaption(task.sentence);
    ui_->firstFact->setCaption(task.firstFact);
    ui_->secondFact->setCaption(task.secondFact);
    ui_->givenRange->setCaption(task.range);
    for (const HelpPanel& help : helps_) {
        closePanel(help);
    }
}

void Afsaet::drawLine(const AfsaetAnswer& line, const QColor& colour) {
    const auto& [a, b, Qlo, Qhi] = line;
    ui_->graph->Line(Qlo, a * Qlo + b, Qhi, a * Qhi + b, colour);
}

void Afsaet::judge() {
    const std::vector<double> typed = valuesOf(boxes_);
    if (showJudgement(tavrune::judge(state_, typed), boxes_, ui_->slope)) {
        drawLine(answerOf(state_), kLightGreen);
    } else {
        drawLine({typed[0], typed[1], typed[2], typed[3]}, kRed);
    }
}

void Afsaet::giveAnswer() {
    const AfsaetAnswer answer = answerOf(state_);
    whiten(boxes_);
    for (const auto& [box, number] : {std::pair{ui_->slope, answer.a},
                                      {ui_->intercept, answer.b},
                                      {ui_->rangeStart, answer.Qlo},
                                      {ui_->rangeEnd, answer.Qhi}}) {
        box->setContent(NumberText(number));
    }
    showGiven();
    drawLine(answer, kLightGreen);
}

void Afsaet::help() {
    const AfsaetHelp wanted = helpFor(state_);
    const auto help = std::find_if(helps_.begin(), helps_.end(),
                                   [wanted](const HelpPanel& each) { return each.help == wanted; });
    openPanel(help->panel, help->steps.front().button);
}

void Afsaet::showStep(const HelpPanel& help, const Step& step) {
    const AfsaetStep worked = workedStep(state_, help.help, step.unknown);
    step.text->setCaption(worked.text);
    if (step.panel != nullptr) {
        const Fraction fraction(step.panel->findChild<Label*>(step.name + "Numerator"),
                                step.panel->findChild<LineControl*>(step.name + "Bar"),
                                step.panel->findChild<Label*>(step.name + "Denominator"));
        fraction.setTexts(worked.numerator, worked.denominator);
        step.text->setLeft(fraction.right() + kGap);
    }
    step.shown()->show();
    if (step.unknown == help.steps.back().unknown) {
        help.equation->setCaption(equationText(state_));
        showAll({help.heading, help.equation});
    }
}

void Afsaet::closePanel(const HelpPanel& help) {
    help.panel->hide();
    for (const Step& step : help.steps) {
        step.shown()->hide();
    }
    hideAll({help.heading, help.equation});
    focusOn(ui_->slope);
}

}  // namespace tavrune
