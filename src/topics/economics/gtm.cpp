#include "topics/economics/gtm.h"

#include <array>
#include <span>
#include <utility>

#include <QRegularExpression>

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
    static const GtmEach<Colours> kColours{.average = {rgb(0, 190, 0), rgb(255, 190, 0)},
                                           .total = {kBlue, rgb(255, 0, 255)},
                                           .marginal = {rgb(200, 90, 0), rgb(255, 90, 0)}};
    return kColours.of(function);
}

// The graph begins at 0 both ways.
constexpr double kLargestQuantity = 10;
constexpr double kHighestCost = 20;

// The formulas of a step: level with the rows of the general solution. In two of them exponents stand nearer.
constexpr double kNearExponent = fromTwips(100);
constexpr std::array kTwoRows{FormulaPlace{8}, FormulaPlace{30}};
constexpr std::array kDerivativeRows{FormulaPlace{8}, FormulaPlace{52}, FormulaPlace{72}};
constexpr std::array kIntegralRows{FormulaPlace{8}, FormulaPlace{32, kNearExponent}, FormulaPlace{60}};
constexpr std::array kQuotientOfIntegralRows{FormulaPlace{8, kNearExponent}, FormulaPlace{30}};

/// What a step of the help leads from and to, and what it shows.
struct Plan {
    GtmFunction from = GtmFunction::Average;
    GtmFunction to = GtmFunction::Average;
    std::vector<Formula> (*worked)(const GtmState&) = nullptr;
    std::span<const FormulaPlace> places{};
};

/// The steps where a function is given.
constexpr GtmEach<std::array<Plan, 2>> kPlans{
    .average = {Plan{GtmFunction::Average, GtmFunction::Total, workedProduct, kTwoRows},
                Plan{GtmFunction::Total, GtmFunction::Marginal, workedDerivative, kDerivativeRows}},
    .total = {Plan{GtmFunction::Total, GtmFunction::Average, workedQuotient, kTwoRows},
              Plan{GtmFunction::Total, GtmFunction::Marginal, workedDerivative, kDerivativeRows}},
    .marginal = {Plan{GtmFunction::Marginal, GtmFunction::Total, workedIntegral, kIntegralRows},
                 Plan{GtmFunction::Total, GtmFunction::Average, workedQuotientOfIntegral,
                      kQuotientOfIntegralRows}},
};

// What the controls of a function are called after: those of the diagram by the word, all others by the
// letters.
constexpr GtmEach<const char*> kWords{.average = "Average", .total = "Total", .marginal = "Marginal"};
constexpr GtmEach<const char*> kLetters{.average = "Avc", .total = "Tvc", .marginal = "Mc"};

QString wordFor(GtmFunction function) { return kWords.of(function); }
QString lettersOf(GtmFunction function) { return kLetters.of(function); }

}  // namespace

Gtm::Gtm(Draws& draws) : ExerciseForm(PageName::Gtm, draws), ui_(std::make_unique<Ui::Gtm>()) {
    setUp(*ui_);
    functions_ = {.average = bind(GtmFunction::Average),
                  .total = bind(GtmFunction::Total),
                  .marginal = bind(GtmFunction::Marginal)};
    for (const GtmFunction function : kGtmFunctions) {
        const auto& [a, b, c] = functions_.of(function).boxes;
        boxes_.insert(boxes_.end(), {a, b, c});
    }
    enterChain(boxes_, LastBox::OkOrStay);
    onClick(ui_->closeAvcGivenHelp, &Gtm::closeHelp);
    onClick(ui_->closeTvcGivenHelp, &Gtm::closeHelp);
    onClick(ui_->closeMcGivenHelp, &Gtm::closeHelpAndBlackenNames);
}

Gtm::~Gtm() = default;

Gtm::Function Gtm::bind(GtmFunction function) {
    const QString letters = lettersOf(function);
    const QString given = letters.toLower() + "Given";
    Function found{.boxes = boxesOf(function),
                   .name = design()->findChild<Label*>("diagram" + wordFor(function)),
                   .help = design()->findChild<Panel*>(given + "HelpPanel"),
                   .steps = {}};
    for (const Plan& plan : kPlans.of(function)) {
        const QString to = lettersOf(plan.to);
        auto* const button = design()->findChild<Button*>("show" + letters + "Given" + to);
        auto* const box = design()->findChild<Panel*>(given + to + "Step");
        onClick(button, [this, box, &plan] {
            // The box comes last: labels are made faster where nothing is seen.
            showFormulas(*box, plan.worked(state_), plan.places);
            box->show();
        });
        found.steps.push_back(
            {button, box, linesOf("wayFrom" + wordFor(plan.from) + "To" + wordFor(plan.to))});
    }
    return found;
}

Gtm::Boxes Gtm::boxesOf(GtmFunction function) const {
    const auto box = [this, name = lettersOf(function).toLower()](const char* term) {
        return design()->findChild<AnswerBox*>(name + term);
    };
    return function == GtmFunction::Total
               ? Boxes{box("CubicCoefficient"), box("QuadraticCoefficient"), box("LinearCoefficient")}
               : Boxes{box("QuadraticCoefficient"), box("LinearCoefficient"), box("Constant")};
}

QList<LineControl*> Gtm::linesOf(const QString& prefix) const {
    return design()->findChildren<LineControl*>(QRegularExpression('^' + prefix));
}

void Gtm::opened() {
    ui_->graph->Scale(0, kHighestCost, kLargestQuantity, 0);
    prepare();
    firstExercise(state_, draws());
    showTask(GtmReach::Opening);
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
    clearBoxes(boxes_);
}

void Gtm::showTask(GtmReach reach) {
    const auto& [a, b, c] = functions_.of(state_.given).boxes;
    const GtmTerms<std::string> texts = taskTexts(state_.of(state_.given));
    a->setContent(texts.a);
    b->setContent(texts.b);
    c->setContent(texts.c);
    draw(curveOfTask(state_, reach), kBlack);
}

void Gtm::draw(const GtmCurve& curve, const QColor& colour) {
    const Figure figure(*ui_->graph, Meaning::Line);
    for (std::size_t i = 1; i < curve.size(); ++i) {
        ui_->graph->Line(curve[i - 1].q, curve[i - 1].y, curve[i].q, curve[i].y, colour);
    }
}

void Gtm::judge() {
    const std::vector<double> typed = valuesOf(boxes_);
    const Judgement judgement = tavrune::judge(state_, typed);
    for (const GtmFunction function : kGtmFunctions) {
        const auto& [right, wrong] = coloursOf(function);
        draw(curveOfTry(function, coefficientsOf(function, typed)),
             isRight(function, judgement) ? right : wrong);
    }
    showJudgement(judgement, boxes_, ui_->avcQuadraticCoefficient);
}

void Gtm::giveAnswer() {
    for (const GtmFunction function : kGtmFunctions) {
        const auto& [a, b, c] = functions_.of(function).boxes;
        const GtmCoefficients& right = state_.of(function);
        for (const auto& [box, coefficient] : {std::pair{a, right.a}, {b, right.b}, {c, right.c}}) {
            box->mark(false);
            box->setContent(NumberText(coefficient));
        }
    }
    for (const GtmFunction function : {GtmFunction::Average, GtmFunction::Marginal, GtmFunction::Total}) {
        draw(curveOfAnswer(state_, function), coloursOf(function).right);
    }
    showGiven();
}

void Gtm::help() {
    // Kept (gtm-red-left): what an earlier exercise has left red stays red.
    const Function& given = functions_.of(state_.given);
    given.name->setTextColour(kRed);
    for (const Step& step : given.steps) {
        for (LineControl* line : step.way) {
            line->setColour(kRed);
        }
    }
    const GtmMethod& method = methodFor(state_.given);
    ui_->diagramStep1Text->setCaption(method.step1);
    ui_->diagramStep2Text->setCaption(method.step2);
    ui_->diagramHelpPanel->show();
    openPanel(given.help, given.steps.front().button);
}

void Gtm::hideSteps() {
    ui_->diagramHelpPanel->hide();
    for (const GtmFunction function : kGtmFunctions) {
        functions_.of(function).help->hide();
    }
    for (const GtmFunction function : kGtmFunctions) {
        for (const Step& step : functions_.of(function).steps) {
            step.box->hide();
        }
    }
}

// Kept (gtm-red-name): the name of the given function stays red where AVC or TVC is given.
void Gtm::closeHelp() {
    hideSteps();
    for (LineControl* line : linesOf("wayFrom")) {
        line->setColour(kBlack);
    }
}

void Gtm::closeHelpAndBlackenNames() {
    closeHelp();
    for (const GtmFunction function : kGtmFunctions) {
        functions_.of(function).name->setTextColour(kBlack);
    }
}

}  // namespace tavrune
