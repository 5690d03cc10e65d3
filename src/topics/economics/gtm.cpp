#include "topics/economics/gtm.h"

#include "graph/graph_box.h"
#include "numeric/text.h"
#include "topics/economics/formula_rows.h"
#include "topics/economics/ui_gtm.h"

namespace tavrune {
namespace {

struct Colours {
    QColor right;
    QColor wrong;
};

const Colours& coloursOf(GtmFunction function) {
    static const std::array<Colours, 3> kColours{
        {{rgb(0, 190, 0), rgb(255, 190, 0)}, {kBlue, rgb(255, 0, 255)}, {rgb(200, 90, 0), rgb(255, 90, 0)}}};
    return kColours.at(static_cast<std::size_t>(function));
}

}  // namespace

Gtm::Gtm(Draws& draws) : ExerciseForm(PageName::Gtm, draws), ui_(std::make_unique<Ui::Gtm>()) {
    setUp(*ui_);
    buttons({.newExercise = ui_->Command1,
             .ok = ui_->Command2,
             .giveAnswer = ui_->Command3,
             .help = ui_->Hjaelp});
    verdict(OneLabel{ui_->Labelt});
    boxes_ = {{{ui_->Text1, ui_->Text2, ui_->Text3},
               {ui_->Text4, ui_->Text5, ui_->Text6},
               {ui_->Text7, ui_->Text8, ui_->Text9}}};
    enterChain({ui_->Text1, ui_->Text2, ui_->Text3, ui_->Text4, ui_->Text5, ui_->Text6, ui_->Text7,
                ui_->Text8, ui_->Text9},
               LastBox::OkOrStay);
    integrate_ = {ui_->Line1_0, ui_->Line1_1, ui_->Line1_2, ui_->Line1_3};
    differentiate_ = {ui_->Line2_0, ui_->Line2_1, ui_->Line2_2, ui_->Line2_3};
    divide_ = {ui_->Line3_0, ui_->Line3_1, ui_->Line3_2, ui_->Line3_3};
    multiply_ = {ui_->Line4_0, ui_->Line4_1, ui_->Line4_2, ui_->Line4_3};
    bindSteps();
    onClick(ui_->Command6, &Gtm::closeHelp);
    onClick(ui_->Command9, &Gtm::closeHelp);
    onClick(ui_->Command12, &Gtm::closeHelpAndBlackenNames);
}

Gtm::~Gtm() = default;

void Gtm::bindSteps() {
    struct Step {
        Button* vis;
        Panel* box;
        std::vector<Formula> (*worked)(const GtmState&);
        // Level with the rows of the general solution.
        std::vector<double> tops;
    };
    const std::vector<double> twoRows{8, 30};
    const std::vector<double> derivative{8, 52, 72};
    const std::vector<double> integral{8, 32, 60};
    const Step steps[]{{ui_->Command4, ui_->Picture2, workedProduct, twoRows},
                       {ui_->Command5, ui_->Picture9, workedDerivative, derivative},
                       {ui_->Command7, ui_->Picture4, workedQuotient, twoRows},
                       {ui_->Command8, ui_->Picture5, workedDerivative, derivative},
                       {ui_->Command10, ui_->Picture7, workedIntegral, integral},
                       {ui_->Command11, ui_->Picture8, workedQuotientOfIntegral, twoRows}};
    for (const Step& step : steps) {
        onClick(step.vis, [this, step] {
            step.box->show();
            showFormulas(*step.box, step.worked(state_), step.tops);
        });
    }
}

const Gtm::Boxes& Gtm::boxesOf(GtmFunction function) const {
    return boxes_.at(static_cast<std::size_t>(function));
}

void Gtm::firstTick() {
    ui_->Picture1->Scale(0, 20, 10, 0);
    prepare();
    firstExercise(state_, draws());
    showTask(GtmReach::FirstTick);
}

void Gtm::newExercise() {
    prepare();
    hideSteps();
    ui_->Picture1->Cls();
    tavrune::newExercise(state_, draws());
    showTask(GtmReach::Later);
}

void Gtm::prepare() {
    focusOn(ui_->Text1);
    showAsking();
    for (const auto& [a, b, c] : boxes_) {
        clearBoxes({a, b, c});
    }
}

void Gtm::showTask(GtmReach reach) {
    const Boxes& boxes = boxesOf(state_.given);
    const std::array<std::string, 3> texts = taskTexts(state_.of(state_.given));
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes.at(i)->setContent(texts.at(i));
    }
    draw(curveOfTask(state_, reach), kBlack);
}

void Gtm::draw(const GtmCurve& curve, const QColor& colour) {
    for (std::size_t i = 1; i < curve.size(); ++i) {
        ui_->Picture1->Line(curve[i - 1].q, curve[i - 1].y, curve[i].q, curve[i].y, colour);
    }
}

void Gtm::judge() {
    bool isSolved = true;
    for (const GtmFunction function : kGtmFunctions) {
        const auto& [a, b, c] = boxesOf(function);
        const GtmCoefficients typed{a->value(), b->value(), c->value()};
        const auto [isARight, isBRight, isCRight] = tavrune::judge(state_, function, typed);
        a->mark(!isARight);
        b->mark(!isBRight);
        c->mark(!isCRight);
        const bool isRight = isARight && isBRight && isCRight;
        isSolved = isSolved && isRight;
        draw(curveOfTry(function, typed), isRight ? coloursOf(function).right : coloursOf(function).wrong);
    }
    if (isSolved) {
        solved();
        return;
    }
    failed();
    focusOn(ui_->Text1);
}

void Gtm::giveAnswer() {
    for (const GtmFunction function : kGtmFunctions) {
        const Boxes& boxes = boxesOf(function);
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            boxes.at(i)->mark(false);
            boxes.at(i)->setContent(NumberText(state_.of(function).at(i)));
        }
    }
    for (const GtmFunction function : {GtmFunction::Average, GtmFunction::Marginal, GtmFunction::Total}) {
        draw(curveOfAnswer(state_, function), coloursOf(function).right);
    }
    given();
}

Gtm::Guide Gtm::guide() const {
    switch (state_.given) {
        case GtmFunction::Average:
            return {ui_->Label27, {&multiply_, &differentiate_}, ui_->PictureHlpGen, ui_->Command4};
        case GtmFunction::Total:
            return {ui_->Label26, {&differentiate_, &divide_}, ui_->Picture3, ui_->Command7};
        case GtmFunction::Marginal:
            break;
    }
    return {ui_->Label25, {&divide_, &integrate_}, ui_->Picture6, ui_->Command10};
}

void Gtm::help() {
    // Kept: what an earlier exercise has left red stays red.
    const Guide guide = this->guide();
    guide.name->setTextColour(kRed);
    for (const Way* way : guide.ways) {
        for (LineControl* line : *way) {
            line->setColour(kRed);
        }
    }
    const GtmMethod& method = methodFor(state_.given);
    ui_->Labelhlp_0->setCaption(method.first);
    ui_->Labelhlp_1->setCaption(method.second);
    ui_->Picturehlp->show();
    openPanel(guide.panel, guide.firstVis);
}

void Gtm::hideSteps() {
    hideAll({ui_->Picturehlp, ui_->PictureHlpGen, ui_->Picture3, ui_->Picture6, ui_->Picture2, ui_->Picture9,
             ui_->Picture4, ui_->Picture5, ui_->Picture7, ui_->Picture8});
}

// Kept: the name of the given function stays red where AVC or TVC is given.
void Gtm::closeHelp() {
    hideSteps();
    for (const Way* way : {&integrate_, &differentiate_, &divide_, &multiply_}) {
        for (LineControl* line : *way) {
            line->setColour(kBlack);
        }
    }
}

void Gtm::closeHelpAndBlackenNames() {
    closeHelp();
    for (Label* name : {ui_->Label25, ui_->Label26, ui_->Label27}) {
        name->setTextColour(kBlack);
    }
}

}  // namespace tavrune
