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
    buttons({.newExercise = ui_->Command1,
             .ok = ui_->Command2,
             .giveAnswer = ui_->Command3,
             .help = ui_->Command4});
    verdict(OneLabel{ui_->Labelr});
    enterChain({ui_->Text1, ui_->Text2, ui_->Text3, ui_->Text4}, LastBox::OkOrStay);
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
         ui.Picture2,
         ui.Command7,
         {{ui.Command5, ui.Label212, ui.Picture3, ui.Label210, ui.Line201, ui.Label211},
          {ui.Command6, ui.Label213}},
         ui.Label214,
         ui.Label215},
        {AfsaetHelp::ElasticityAtPointPrice,
         ui.Picture4,
         ui.Command10,
         {{ui.Command8, ui.Label232, ui.Picture5, ui.Label230, ui.Line221, ui.Label231},
          {ui.Command9, ui.Label233}},
         ui.Label234,
         ui.Label235},
        {AfsaetHelp::ElasticityAtOtherPrice,
         ui.Picture6,
         ui.Command13,
         {{ui.Command11, ui.Label264, ui.Picture7, ui.Label262, ui.Line243, ui.Label263},
          {ui.Command12, ui.Label265}},
         ui.Label266,
         ui.Label267},
        {AfsaetHelp::ElasticityAtPointQuantity,
         ui.Picture8,
         ui.Command16,
         {{ui.Command14, ui.Label292, ui.Picture9, ui.Label290, ui.Line281, ui.Label291},
          {ui.Command15, ui.Label293}},
         ui.Label294,
         ui.Label295},
        {AfsaetHelp::ElasticityAtOtherQuantity,
         ui.Picture10,
         ui.Command19,
         {{ui.Command17, ui.Label323, ui.Picture11, ui.Label321, ui.Line303, ui.Label322},
          {ui.Command18, ui.Label324}},
         ui.Label325,
         ui.Label326},
        {AfsaetHelp::PointAndSlope,
         ui.Picture12,
         ui.Command21,
         {{ui.Command20, ui.Label345}},
         ui.Label346,
         ui.Label347},
        {AfsaetHelp::TwoElasticities,
         ui.Picture13,
         ui.Command25,
         {{ui.Command22, ui.Label373}, {ui.Command23, ui.Label374}, {ui.Command24, ui.Label375}},
         ui.Label376,
         ui.Label377},
        {AfsaetHelp::ElasticityAtPriceAndSlope,
         ui.Picture14,
         ui.Command28,
         {{ui.Command26, ui.Label388}, {ui.Command27, ui.Label389}},
         ui.Label390,
         ui.Label391},
        {AfsaetHelp::ElasticityAtQuantityAndSlope,
         ui.Picture15,
         ui.Command31,
         {{ui.Command29, ui.Label408}, {ui.Command30, ui.Label409}},
         ui.Label410,
         ui.Label411},
    }};
}

std::array<AnswerBox*, 4> Afsaet::answerBoxes() const {
    return {ui_->Text1, ui_->Text2, ui_->Text3, ui_->Text4};
}

void Afsaet::newExercise() {
    clearBoxes({ui_->Text1, ui_->Text2, ui_->Text3, ui_->Text4});
    ui_->Picture1->Cls();
    showAsking();

    tavrune::newExercise(state_, draws());

    const AfsaetTask task = taskTexts(state_);
    ui_->Label1->setCaption(task.sentence);
    ui_->Label4->setCaption(task.firstFact);
    ui_->Label5->setCaption(task.secondFact);
    ui_->Label104->setCaption(task.range);
    for (const HelpPanel& help : helps_) {
        closeHelp(help);
    }
}

void Afsaet::drawLine(const AfsaetAnswer& line, const QColor& colour) {
    const auto& [a, b, Qlo, Qhi] = line;
    ui_->Picture1->Line(Qlo, kTop - (a * Qlo + b), Qhi, kTop - (a * Qhi + b), colour);
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
        focusOn(ui_->Text1);
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
    focusOn(ui_->Text1);
}

}  // namespace tavrune
