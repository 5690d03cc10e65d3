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
    boxes_ = {{{ui_->avcQuadraticCoefficient, ui_->avcLinearCoefficient, ui_->avcConstant},
               {ui_->tvcCubicCoefficient, ui_->tvcQuadraticCoefficient, ui_->tvcLinearCoefficient},
               {ui_->mcQuadraticCoefficient, ui_->mcLinearCoefficient, ui_->mcConstant}}};
    enterChain({ui_->avcQuadraticCoefficient, ui_->avcLinearCoefficient, ui_->avcConstant,
                ui_->tvcCubicCoefficient, ui_->tvcQuadraticCoefficient, ui_->tvcLinearCoefficient,
                ui_->mcQuadraticCoefficient, ui_->mcLinearCoefficient, ui_->mcConstant},
               LastBox::OkOrStay);
    integrate_ = {ui_->wayFromMarginalToTotalStartLeg, ui_->wayFromMarginalToTotalEndLeg,
                  ui_->wayFromMarginalToTotalUpperBarb, ui_->wayFromMarginalToTotalLowerBarb};
    differentiate_ = {ui_->wayFromTotalToMarginalStartLeg, ui_->wayFromTotalToMarginalEndLeg,
                      ui_->wayFromTotalToMarginalUpperBarb, ui_->wayFromTotalToMarginalLowerBarb};
    divide_ = {ui_->wayFromTotalToAverageStartLeg, ui_->wayFromTotalToAverageEndLeg,
               ui_->wayFromTotalToAverageLeftBarb, ui_->wayFromTotalToAverageRightBarb};
    multiply_ = {ui_->wayFromAverageToTotalStartLeg, ui_->wayFromAverageToTotalEndLeg,
                 ui_->wayFromAverageToTotalLeftBarb, ui_->wayFromAverageToTotalRightBarb};
    bindSteps();
    onClick(ui_->closeAvcGivenHelp, &Gtm::closeHelp);
    onClick(ui_->closeTvcGivenHelp, &Gtm::closeHelp);
    onClick(ui_->closeMcGivenHelp, &Gtm::closeHelpAndBlackenNames);
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
    const Step steps[]{{ui_->showAvcGivenTvc, ui_->avcGivenTvcStep, workedProduct, twoRows},
                       {ui_->showAvcGivenMc, ui_->avcGivenMcStep, workedDerivative, derivative},
                       {ui_->showTvcGivenAvc, ui_->tvcGivenAvcStep, workedQuotient, twoRows},
                       {ui_->showTvcGivenMc, ui_->tvcGivenMcStep, workedDerivative, derivative},
                       {ui_->showMcGivenTvc, ui_->mcGivenTvcStep, workedIntegral, integral},
                       {ui_->showMcGivenAvc, ui_->mcGivenAvcStep, workedQuotientOfIntegral, twoRows}};
    for (const Step& step : steps) {
        onClick(step.vis, [this, step] {
            // The box comes last: labels are made faster where nothing is seen.
            showFormulas(*step.box, step.worked(state_), step.tops);
            step.box->show();
        });
    }
}

const Gtm::Boxes& Gtm::boxesOf(GtmFunction function) const {
    return boxes_.at(static_cast<std::size_t>(function));
}

void Gtm::firstTick() {
    ui_->graph->Scale(0, 20, 10, 0);
    prepare();
    firstExercise(state_, draws());
    showTask(GtmReach::FirstTick);
}

void Gtm::newExercise() {
    prepare();
    hideSteps();
    ui_->graph->Cls();
    tavrune::newExercise(state_, draws());
    showTask(GtmReach::Later);
}

void Gtm::prepare() {
    focusOn(ui_->avcQuadraticCoefficient);
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
        ui_->graph->Line(curve[i - 1].q, curve[i - 1].y, curve[i].q, curve[i].y, colour);
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
    focusOn(ui_->avcQuadraticCoefficient);
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
            return {ui_->diagramAverage,
                    {&multiply_, &differentiate_},
                    ui_->avcGivenHelpPanel,
                    ui_->showAvcGivenTvc};
        case GtmFunction::Total:
            return {
                ui_->diagramTotal, {&differentiate_, &divide_}, ui_->tvcGivenHelpPanel, ui_->showTvcGivenAvc};
        case GtmFunction::Marginal:
            break;
    }
    return {ui_->diagramMarginal, {&divide_, &integrate_}, ui_->mcGivenHelpPanel, ui_->showMcGivenTvc};
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
    ui_->diagramStep1Text->setCaption(method.first);
    ui_->diagramStep2Text->setCaption(method.second);
    ui_->diagramHelpPanel->show();
    openPanel(guide.panel, guide.firstVis);
}

void Gtm::hideSteps() {
    hideAll({ui_->diagramHelpPanel, ui_->avcGivenHelpPanel, ui_->tvcGivenHelpPanel, ui_->mcGivenHelpPanel,
             ui_->avcGivenTvcStep, ui_->avcGivenMcStep, ui_->tvcGivenAvcStep, ui_->tvcGivenMcStep,
             ui_->mcGivenTvcStep, ui_->mcGivenAvcStep});
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
    for (Label* name : {ui_->diagramMarginal, ui_->diagramTotal, ui_->diagramAverage}) {
        name->setTextColour(kBlack);
    }
}

}  // namespace tavrune
