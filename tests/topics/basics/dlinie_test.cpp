#include "topics/basics/dlinie.h"

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/basics/dlinie_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FormDriver;
using test::dlinie::Numbers;

constexpr test::StrokesIn kGraph{{-10, 10, 10, -10}};

/// The line Y = a * X + b from one side of the box to the other.
Stroke graphOf(double a, double b, const QColor& colour) {
    return kGraph.line(-10, a * -10 + b, 10, a * 10 + b, colour);
}

std::vector<Stroke> axes() {
    std::vector<Stroke> strokes{kGraph.line(0, 10, 0, -10), kGraph.line(-10, 0, 10, 0)};
    for (int x = -10; x <= 9; ++x) {
        strokes.push_back(kGraph.point(x, 0.1));
    }
    for (int y = -9; y <= 9; ++y) {
        strokes.push_back(kGraph.point(0.07, y));
    }
    return strokes;
}

class DlinieForm : public test::ScriptedForm<LineTask, const Numbers&> {
protected:
    DlinieForm() : ScriptedForm(PageName::Dlinie, test::dlinie::script) {}

    FormDriver& open(LineTask task, const Numbers& numbers = {}) { return ScriptedForm::open(task, numbers); }
    void next(LineTask task, const Numbers& numbers = {}) { ScriptedForm::next(task, numbers); }

    void answer(const std::string& slope, const std::string& intercept) const {
        form->type("slope", slope);
        form->type("intercept", intercept);
        form->click("ok");
    }

    /// What was drawn since the axes.
    [[nodiscard]] std::vector<Stroke> drawn() const {
        const std::vector<Stroke> first = axes();
        std::vector<Stroke> all = form->find<GraphBox>("graph").strokes();
        std::vector<Stroke> later = test::strokesFrom(form->find<GraphBox>("graph"), first.size());
        all.resize(all.size() - later.size());
        EXPECT_EQ(all, first);
        return later;
    }

    [[nodiscard]] std::vector<std::string> shownPanels() const {
        std::vector<std::string> shown;
        for (const char* name :
             {"twoPointsHelpPanel", "twoPointsSlopeStep", "slopeAndPointHelpPanel", "slopeAndYCrossHelpPanel",
              "slopeAndXCrossHelpPanel", "slopeAndXCrossInterceptStep", "bothCrossesHelpPanel",
              "bothCrossesSlopeStep"}) {
            if (form->isShown(name)) {
                shown.emplace_back(name);
            }
        }
        return shown;
    }

    using Names = std::vector<std::string>;
};

TEST_F(DlinieForm, IsBlankUntilItsOpening) {
    const FormDriver unshown = FormDriver::unshown(PageName::Dlinie, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Den rette linie");
    test::expectBlank(unshown, {"task", "firstFact", "secondFact"});
    test::expectHidden(
        unshown,
        {"giveAnswer", "verdict", "twoPointsHelpPanel", "twoPointsSlopeStep", "twoPointsWorkedPointInserted",
         "twoPointsWorkedIntercept", "slopeAndPointHelpPanel", "slopeAndPointWorkedPointInserted",
         "slopeAndPointWorkedIntercept", "slopeAndYCrossHelpPanel", "slopeAndXCrossHelpPanel",
         "slopeAndXCrossInterceptStep", "bothCrossesHelpPanel", "bothCrossesSlopeStep"});
    EXPECT_TRUE(unshown.find<GraphBox>("graph").strokes().empty());
    EXPECT_EQ(unshown.find<GraphBox>("graph").backColour(), kWhite);
}

TEST_F(DlinieForm, AsksInTheFrameOfTheEquation) {
    const FormDriver& f = open(LineTask::SlopeAndPoint, {.x1 = -4, .y1 = 5, .slopeGiven = -3});
    EXPECT_EQ(f.caption("task"),
              "Du kender en ret linies hældningskoeficient og et punkt på linien. Bestem liniens forskrift.");
    test::expectTexts(f, {{"firstFact", "Hældningskoefficienten(a) = -3"}, {"secondFact", "(X,Y) = (-4,5)"}});
    for (const char* bold : {"task", "firstFact", "secondFact"}) {
        EXPECT_TRUE(f.label(bold).font().bold()) << bold;
    }
    test::expectTexts(f, {{"lineEquationIs", "Liniens ligning er:"},
                          {"yEquals", "Y ="},
                          {"timesXPlus", "X +"},
                          {"xAxisName", "X"},
                          {"yAxisName", "Y"}});
    EXPECT_EQ(f.focus(), "slope");
    EXPECT_EQ(shownPanels(), Names{});
}

TEST_F(DlinieForm, DrawsAxesAndDotsInItsScale) {
    const FormDriver& f = open(LineTask::TwoPoints);
    const GraphBox& graph = f.find<GraphBox>("graph");
    EXPECT_EQ(graph.scale(), kGraph.scale);
    EXPECT_EQ(graph.strokes(), axes());
    EXPECT_EQ(graph.strokes().size(), 2U + 20U + 19U);
    next(LineTask::BothCrosses);
    EXPECT_EQ(graph.strokes(), axes()) << "drawn anew, in the scale of the opening";
}

TEST_F(DlinieForm, HasItsScaleFromTheOpeningOnly) {
    open(LineTask::TwoPoints);
    auto& graph = form->find<GraphBox>("graph");
    graph.Scale(0, 1, 1, 0);
    next(LineTask::TwoPoints);
    EXPECT_EQ(graph.scale(), (GraphScale{0, 1, 1, 0}));
}

TEST_F(DlinieForm, PlacesTheTickLabelsInUnitsOfTheScale) {
    const FormDriver& f = open(LineTask::TwoPoints);
    const auto& graph = f.find<GraphBox>("graph");
    const double unit = graph.Control::place().width() / 20;
    EXPECT_EQ(graph.Control::place().size(), QSizeF(267, 267));
    struct Row {
        const char* label;
        const char* caption;
        double left, top;
    };
    for (const Row& row : {Row{"xMark5", "5", 4.7, -0.2}, Row{"yMarkMinus5", "-5", -1, -4.5},
                           Row{"xMarkMinus5", "-5", -5.2, -0.2}, Row{"yMark5", "5", -0.8, 5.3}}) {
        const Label& label = f.label(row.label);
        EXPECT_EQ(label.caption(), row.caption) << row.label;
        EXPECT_EQ(label.parentWidget(), &graph) << row.label;
        EXPECT_NEAR(label.place().left(), (row.left + 10) * unit, 0.001) << row.label;
        EXPECT_NEAR(label.place().top(), (10 - row.top) * unit, 0.001) << row.label;
    }
}

TEST_F(DlinieForm, MayHaveASlopeOfZeroInItsFirstExerciseOnly) {
    const FormDriver& f = open(LineTask::SlopeAndXCross, {.slopeGiven = 0, .xCross = 4});
    EXPECT_EQ(f.caption("firstFact"), "Hældningskoefficient(a) = 0");
    answer("0", "0");
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
    EXPECT_EQ(drawn(), std::vector{graphOf(0, 0, kGreen)});

    // The next exercise draws on until the slope is not 0; the kind stays.
    script(LineTask::SlopeAndPoint, {.slopeGiven = 0});
    draws.append(test::dlinie::numbers({.slopeGiven = 1}));
    f.click("newExercise");
    EXPECT_EQ(f.caption("firstFact"), "Hældningskoefficienten(a) = 1");
    EXPECT_TRUE(draws.isUsedUp());
}

TEST_F(DlinieForm, IsSolvedByKeysAlone) {
    const FormDriver& f = open(LineTask::SlopeAndYCross, {.slopeGiven = -2, .yCross = 3});
    f.type("slope", "-2");
    f.press("slope", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "intercept");
    f.type("intercept", "3");
    f.press("intercept", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "ok");
    f.press("ok", Qt::Key_Return);
    test::expectSolved(f);
    EXPECT_EQ(drawn(), std::vector{graphOf(-2, 3, kGreen)});
    script(LineTask::SlopeAndYCross, {.yCross = 7});
    f.press("newExercise", Qt::Key_Return);
    EXPECT_EQ(f.caption("secondFact"), "Y = 7");
    EXPECT_FALSE(f.isShown("verdict"));
    EXPECT_EQ(f.focus(), "slope");
    EXPECT_EQ(drawn(), std::vector<Stroke>{});
}

TEST_F(DlinieForm, MarksAWrongInterceptAloneAndStillDrawsTheLineOfTheStudent) {
    const FormDriver& f = open(LineTask::SlopeAndYCross, {.slopeGiven = 2, .yCross = 3});
    answer("2", "4.5");
    EXPECT_EQ(colour("slope"), kWhite);
    EXPECT_EQ(colour("intercept"), kRed);
    EXPECT_EQ(drawn(), std::vector{graphOf(2, 4.5, kRed)});
    test::expectWrong(f, "slope");
}

TEST_F(DlinieForm, MarksAWrongSlopeAlone) {
    open(LineTask::SlopeAndYCross, {.slopeGiven = 2, .yCross = 3});
    answer("-2", "+3");
    EXPECT_EQ(colour("slope"), kRed);
    EXPECT_EQ(colour("intercept"), kWhite);
    EXPECT_EQ(drawn(), std::vector{graphOf(-2, 3, kRed)});
}

TEST_F(DlinieForm, KeepsTheLinesOfEarlierTriesUntilTheNextExercise) {
    const FormDriver& f = open(LineTask::SlopeAndYCross, {.slopeGiven = 2, .yCross = 3});
    answer("1", "1");
    answer("", "abc");
    answer("2", "3");
    EXPECT_EQ(drawn(), (std::vector{graphOf(1, 1, kRed), graphOf(0, 0, kRed), graphOf(2, 3, kGreen)}));
    EXPECT_EQ(colour("slope"), kWhite);
    EXPECT_EQ(colour("intercept"), kWhite);
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
    next(LineTask::BothCrosses);
    EXPECT_EQ(drawn(), std::vector<Stroke>{});
}

TEST_F(DlinieForm, TakesEmptyFieldsForTheLineAlongTheXAxis) {
    open(LineTask::BothCrosses, {.yCross = 0, .xCross = 5});
    form->click("ok");
    EXPECT_EQ(form->caption("verdict"), "RIGTIGT");
    EXPECT_EQ(drawn(), std::vector{graphOf(0, 0, kGreen)});
}

TEST_F(DlinieForm, WantsMinusAThirdWithTwoDecimals) {
    const FormDriver& f = open(LineTask::TwoPoints, {.x1 = 0, .y1 = 1, .x2 = 3, .y2 = 0});
    answer("-0.333", "1");
    EXPECT_EQ(f.caption("verdict"), "FORKERT");
    EXPECT_EQ(colour("slope"), kRed);
    answer("-0,33", "1");
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
    EXPECT_EQ(drawn().back(), graphOf(-0.33, 1, kGreen));
}

TEST_F(DlinieForm, SurvivesNumbersThatNoPictureCanShow) {
    const FormDriver& f = open(LineTask::SlopeAndYCross);
    for (const char* huge : {"1e308", "-1e308", "9e99999", "-1e-320"}) {
        for (const char* other : {"1e308", "-1e308", "0"}) {
            answer(huge, other);
            EXPECT_EQ(f.caption("verdict"), "FORKERT");
            EXPECT_FALSE(f.page().grab().isNull());
        }
    }
    f.box("slope").setContent(std::string(1000000, '9'));
    f.click("ok");
    EXPECT_EQ(drawn().size(), 13U);
}

TEST_F(DlinieForm, GivesThePositiveInterceptWithItsPlus) {
    const FormDriver& f = open(LineTask::SlopeAndYCross, {.slopeGiven = -4, .yCross = 3});
    answer("1", "1");
    f.click("giveAnswer");
    test::expectContents(f, {{"slope", "-4"}, {"intercept", "+3"}});
    EXPECT_EQ(f.box("intercept").value(), 3);
    EXPECT_EQ(drawn(), (std::vector{graphOf(1, 1, kRed), graphOf(-4, 3, kGreen)}));
    test::expectGiven(f);
}

TEST_F(DlinieForm, GivesANegativeInterceptAsItIs) {
    const DecimalMark comma(",");
    const FormDriver& f = open(LineTask::TwoPoints, {.x1 = -3, .y1 = 2, .x2 = 9, .y2 = -7});
    answer("1", "1");
    f.click("giveAnswer");
    test::expectContents(f, {{"slope", "-0,75"}, {"intercept", "-0,25"}});
}

TEST_F(DlinieForm, GivesTheLineAlongTheXAxisAsZeroPlusZero) {
    const FormDriver& f = open(LineTask::BothCrosses, {.yCross = 0, .xCross = 7});
    answer("1", "1");
    f.click("giveAnswer");
    test::expectContents(f, {{"slope", "0"}, {"intercept", "+0"}});
}

TEST_F(DlinieForm, WithoutAKindKeepsTheTaskOnScreenAndHasNoHelp) {
    const FormDriver& f = open(LineTask::SlopeAndYCross, {.slopeGiven = 2, .yCross = 3});
    answer("1", "1");
    next(LineTask::None, {.x1 = 8, .slopeGiven = 4, .yCross = 9});
    EXPECT_EQ(f.caption("task"),
              "Du kender en ret linies hældningskoefficient og liniens skæring med Y-aksen. Bestem liniens "
              "forskrift.");
    test::expectTexts(f, {{"firstFact", "Hældningskoefficient(a) = 2"}, {"secondFact", "Y = 3"}});
    EXPECT_EQ(f.box("slope").content(), "");
    EXPECT_EQ(drawn(), std::vector<Stroke>{});
    EXPECT_EQ(dynamic_cast<const Dlinie&>(f.page()).state().yCross, 9);
    f.click("help");
    EXPECT_EQ(shownPanels(), Names{});
    answer("2", "3");
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
}

TEST_F(DlinieForm, WithoutAKindAtItsOpeningIsBlankAndAnsweredByZeros) {
    const FormDriver& f = open(LineTask::None);
    EXPECT_EQ(f.caption("task") + f.caption("firstFact") + f.caption("secondFact"), "");
    answer("1", "0");
    EXPECT_EQ(colour("slope"), kRed);
    answer("0", "0");
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
}

TEST_F(DlinieForm, WhitensItsBoxesWithTheNextExercise) {
    open(LineTask::SlopeAndYCross);
    answer("1", "1");
    next(LineTask::SlopeAndYCross);
    EXPECT_EQ(colour("slope"), kWhite);
    EXPECT_EQ(colour("intercept"), kWhite);
}

TEST_F(DlinieForm, EnterInTheLastBoxDoesNothingOnceSolved) {
    const FormDriver& f = open(LineTask::SlopeAndYCross, {.slopeGiven = 2, .yCross = 3});
    answer("2", "3");
    f.box("intercept").setFocus();
    f.press("intercept", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "intercept");
}

struct PanelRow {
    const char* name;
    LineTask task;
    const char* panel;
    const char* firstVis;
    const char* close;
};

class DliniePanels : public DlinieForm, public testing::WithParamInterface<PanelRow> {
protected:
    void showEveryStep() const {
        for (Button* button : form->page().findChildren<Button*>()) {
            if (button->caption() == "Vis" && button->isVisible()) {
                form->click(button->objectName().toStdString());
            }
        }
    }
};

TEST_P(DliniePanels, OpenByKindAndCloseWhole) {
    const PanelRow& row = GetParam();
    const FormDriver& f = open(row.task);
    f.type("slope", "12");
    f.click("help");
    EXPECT_EQ(shownPanels(), Names{row.panel});
    if (row.firstVis != nullptr) {
        EXPECT_EQ(f.focus(), row.firstVis);
        EXPECT_EQ(f.button(row.firstVis).caption(), "Vis");
    } else {
        EXPECT_EQ(f.focus(), "help") << "there is no step to go to";
    }
    EXPECT_EQ(f.button(row.close).caption(), "&Luk");
    EXPECT_EQ(f.find(row.close).parentWidget(), &f.find(row.panel));
    showEveryStep();
    f.click(row.close);
    EXPECT_EQ(shownPanels(), Names{});
    test::expectHidden(f, {"twoPointsWorkedPointInserted", "twoPointsWorkedIntercept",
                           "slopeAndPointWorkedPointInserted", "slopeAndPointWorkedIntercept"});
    EXPECT_EQ(f.box("slope").content(), "12");
    EXPECT_EQ(drawn(), std::vector<Stroke>{});
}

TEST_P(DliniePanels, StayThroughJudgingAndTheAnswerAndGoWithTheNextExercise) {
    const PanelRow& row = GetParam();
    const FormDriver& f = open(row.task);
    f.click("help");
    showEveryStep();
    const Names shown = shownPanels();
    answer("987", "1");
    EXPECT_EQ(shownPanels(), shown);
    f.click("giveAnswer");
    EXPECT_EQ(shownPanels(), shown);
    f.click(row.close, "help");
    EXPECT_EQ(shownPanels(), Names{row.panel}) << "the steps are hidden again";
    showEveryStep();
    next(LineTask::None);
    EXPECT_EQ(shownPanels(), Names{});
    test::expectHidden(f, {"twoPointsWorkedPointInserted", "twoPointsWorkedIntercept",
                           "slopeAndPointWorkedPointInserted", "slopeAndPointWorkedIntercept"});
    EXPECT_EQ(f.focus(), "slope");
}

TEST_P(DliniePanels, StayThroughARightJudging) {
    const PanelRow& row = GetParam();
    const FormDriver& f = open(row.task);
    f.click("help");
    showEveryStep();
    const Names shown = shownPanels();
    const DlinieState& state = dynamic_cast<const Dlinie&>(f.page()).state();
    answer(NumberText(state.slope), NumberText(state.intercept));
    ASSERT_EQ(f.caption("verdict"), "RIGTIGT");
    EXPECT_EQ(shownPanels(), shown);
    EXPECT_EQ(shown.front(), row.panel);
}

TEST_P(DliniePanels, HaveTwoHeadingsUnlessThereIsNothingToWorkOut) {
    const PanelRow& row = GetParam();
    const FormDriver& f = open(row.task);
    Names headings;
    for (const Label* label : f.find<Panel>(row.panel).findChildren<Label*>()) {
        if (label->caption() == "Generel løsning" || label->caption() == "Aktuel løsning") {
            headings.push_back(label->caption());
        }
    }
    EXPECT_EQ(headings, row.firstVis == nullptr ? Names{} : (Names{"Generel løsning", "Aktuel løsning"}));
}

TEST_P(DliniePanels, LeaveTheButtonsAndTheAnswerInReach) {
    const PanelRow& row = GetParam();
    const FormDriver& f = open(row.task);
    const QRectF panel = f.find<Panel>(row.panel).place();
    for (const char* name : {"newExercise", "ok", "giveAnswer", "help"}) {
        EXPECT_FALSE(panel.intersects(f.button(name).place())) << name;
    }
    for (const char* name : {"slope", "intercept"}) {
        EXPECT_FALSE(panel.intersects(f.box(name).place())) << name;
    }
    EXPECT_TRUE(panel.contains(f.find<GraphBox>("graph").Control::place()));
    EXPECT_EQ(f.find<Panel>(row.panel).backColour(), kWhite);
}

TEST_P(DliniePanels, HaveRoomForTheLongestNumbers) {
    for (const char* mark : {".", ","}) {
        const DecimalMark inUse(mark);
        for (const Numbers& n : {Numbers{-10, -10, 9, 9, -5, -10, -9}, Numbers{-10, -10, -9, 9, -5, 9, -10},
                                 Numbers{-10, -10, -3, -4, -4, -10, -7}}) {
            const FormDriver& f = open(GetParam().task, n);
            answer("1", "1");
            f.click("giveAnswer");
            EXPECT_EQ(test::flawsOf(f.page()), Names{});
            f.click("help");
            showEveryStep();
            EXPECT_EQ(test::flawsOf(f.page()), Names{});
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DliniePanels,
    testing::Values(PanelRow{"TwoPoints", LineTask::TwoPoints, "twoPointsHelpPanel", "showTwoPointsSlope",
                             "closeTwoPointsHelp"},
                    PanelRow{"SlopeAndPoint", LineTask::SlopeAndPoint, "slopeAndPointHelpPanel",
                             "showSlopeAndPointIntercept", "closeSlopeAndPointHelp"},
                    PanelRow{"SlopeAndYCross", LineTask::SlopeAndYCross, "slopeAndYCrossHelpPanel", nullptr,
                             "closeSlopeAndYCrossHelp"},
                    PanelRow{"SlopeAndXCross", LineTask::SlopeAndXCross, "slopeAndXCrossHelpPanel",
                             "showSlopeAndXCrossIntercept", "closeSlopeAndXCrossHelp"},
                    PanelRow{"BothCrosses", LineTask::BothCrosses, "bothCrossesHelpPanel",
                             "showBothCrossesSlope", "closeBothCrossesHelp"}),
    [](const auto& row) { return row.param.name; });

constexpr test::FixedText kFixedTexts[]{
    {"lineEquationIs", "Liniens ligning er:"},
    {"yEquals", "Y ="},
    {"timesXPlus", "X +"},
    {"xAxisName", "X"},
    {"yAxisName", "Y"},
    {"newExercise", "&Ny opgave"},
    {"ok", "&OK"},
    {"giveAnswer", "&Giv svaret"},
    {"help", "&Hjælp"},
    // Two points.
    {"twoPointsGeneralHeading", "Generel løsning"},
    {"twoPointsWorkedHeading", "Aktuel løsning"},
    {"twoPointsGeneralSlopeText", "Find først hældningskoefficienten a"},
    {"twoPointsGeneralSlopeEquals", "a ="},
    {"twoPointsGeneralSlopeNumerator", "y1 - y2"},
    {"twoPointsGeneralSlopeDenominator", "x1 - x2"},
    {"twoPointsGeneralInterceptText", "Find derefter b"},
    {"twoPointsGeneralInterceptReason",
     "Her beytter vi, at alle punkter på linien skal 'passe' ind i liniens ligning. Det gælder "
     "også punktet (x1,y1). Derfor får vi at: "},
    {"twoPointsGeneralPointInserted", "y1 = a*x1 + b   =>"},
    {"twoPointsGeneralIntercept", "b = y1 - a*x1"},
    {"twoPointsWorkedSlopeEquals", "a = "},
    {"showTwoPointsSlope", "Vis"},
    {"showTwoPointsIntercept", "Vis"},
    {"closeTwoPointsHelp", "&Luk"},
    // A slope and a point.
    {"slopeAndPointGeneralHeading", "Generel løsning"},
    {"slopeAndPointWorkedHeading", "Aktuel løsning"},
    {"slopeAndPointGeneralText",
     "Du kender hældningskoefficienten a. Bestem b ved at indsætte det kendte punkt i den "
     "rette linies ligning."},
    {"slopeAndPointGeneralPointInserted", "y1 = a*x1 + b  =>"},
    {"slopeAndPointGeneralIntercept", "b = y1 - a*x1"},
    {"showSlopeAndPointIntercept", "Vis"},
    {"closeSlopeAndPointHelp", "&Luk"},
    // A slope and the crossing of the Y axis.
    {"slopeAndYCrossText",
     "Denne komplicerede opgave går ud på at finde ud af at a = hældningskoefficienten og b = "
     "skæringen med y-aksen."},
    {"closeSlopeAndYCrossHelp", "&Luk"},
    // A slope and the crossing of the X axis.
    {"slopeAndXCrossGeneralHeading", "Generel løsning"},
    {"slopeAndXCrossWorkedHeading", "Aktuel løsning"},
    {"slopeAndXCrossGeneralPointText",
     "Du kender hældningskoefficienten a og skæringen med x - aksen,  X.                      "
     "                                      Når du kender skæringen med x-aksen kender du også "
     "et punkt, nemlig (X, 0), da y-værdien til liniens og x-aksens skæringspunkt er 0."},
    {"slopeAndXCrossGeneralInterceptText",
     "Nu kender du altså hældningskoefficienten og et punkt. Derfor kan du sætte de kendte "
     "værdier ind i liniens ligning, og løse den mht. b."},
    {"slopeAndXCrossGeneralXInserted", "Y = a*X + b    => "},
    {"slopeAndXCrossGeneralYInserted", "0 = a*X + b    =>"},
    {"slopeAndXCrossGeneralIntercept", "b = -a*X"},
    {"showSlopeAndXCrossIntercept", "Vis"},
    {"closeSlopeAndXCrossHelp", "&Luk"},
    // Both crossings.
    {"bothCrossesGeneralHeading", "Generel løsning"},
    {"bothCrossesWorkedHeading", "Aktuel løsning"},
    {"bothCrossesGeneralInterceptText", "b svarer til skæringen med y - aksen og er dermed allerede kendt."},
    {"bothCrossesGeneralPointsText",
     "Vi kender udover b også to punkter, nemlig liniens skæringspunkter med x -  og y - aksen. "
     "1.-koordinatet til skæringspunktet med y - aksen og 2. - koordinatet til skæringspunktet "
     "med x - aksen er begge 0.   "},
    {"bothCrossesGeneralYCrossText",
     "Koordinatsættene til de to kendte punkter bliver dermed      I  (0, y1), hvor y1 er "
     "skæringen med y - aksen    og      "},
    {"bothCrossesGeneralXCrossText", "   II  (x2, 0), hvor x2 er skæringen til x-aksen. "},
    {"bothCrossesGeneralSlopeEquals", "a ="},
    {"bothCrossesGeneralSlopeNumerator", "y1 - y2"},
    {"bothCrossesGeneralSlopeDenominator", "x1 - x2"},
    {"bothCrossesGeneralArrow", "=>"},
    {"bothCrossesGeneralZerosSlopeEquals", "a ="},
    {"bothCrossesGeneralZerosNumerator", "y1 - 0"},
    {"bothCrossesGeneralZerosDenominator", "0 - x2"},
    {"bothCrossesGeneralSlopeResult", "= -(y1/x2)"},
    {"bothCrossesWorkedSlopeEquals", "a ="},
    {"showBothCrossesSlope", "Vis"},
    {"closeBothCrossesHelp", "&Luk"},
};

TEST_F(DlinieForm, BearsItsFixedTextsToTheLetter) {
    const FormDriver& f = open(LineTask::TwoPoints);
    test::expectTexts(f, kFixedTexts);
}

TEST_F(DlinieForm, WorksTheSlopeOfTwoPointsOutAsAFraction) {
    const FormDriver& f = open(LineTask::TwoPoints, {.x1 = -3, .y1 = 2, .x2 = 4, .y2 = -1});
    f.click("help");
    f.press("showTwoPointsSlope", Qt::Key_Return);
    EXPECT_EQ(shownPanels(), (Names{"twoPointsHelpPanel", "twoPointsSlopeStep"}));
    const Label& numerator = f.label("twoPointsWorkedSlopeNumerator");
    const Label& denominator = f.label("twoPointsWorkedSlopeDenominator");
    EXPECT_EQ(numerator.caption(), "2 - (-1)");
    EXPECT_EQ(denominator.caption(), "-3 - 4");
    EXPECT_EQ(f.caption("twoPointsWorkedSlopeResult"), "= 3/-7 = -0.43");
    EXPECT_FALSE(f.isShown("twoPointsWorkedPointInserted"));
    EXPECT_EQ(numerator.place().left(), fromTwips(480));
    EXPECT_EQ(denominator.place().left(), fromTwips(480));
    EXPECT_EQ(numerator.place().width(), numerator.textWidth());
    EXPECT_EQ(denominator.place().width(), numerator.place().width());
    const QLineF bar = f.find<LineControl>("twoPointsWorkedSlopeBar").ends();
    EXPECT_EQ(bar.x1(), fromTwips(480));
    EXPECT_EQ(bar.x2(), numerator.place().right());
    EXPECT_GT(f.label("twoPointsWorkedSlopeResult").place().left(), bar.x2());
}

TEST_F(DlinieForm, WorksTheInterceptOfTwoPointsOutWithADecimalSlope) {
    const FormDriver& f = open(LineTask::TwoPoints, {.x1 = -3, .y1 = 2, .x2 = 9, .y2 = -7});
    f.click("help", "showTwoPointsIntercept");
    EXPECT_EQ(shownPanels(), Names{"twoPointsHelpPanel"}) << "each step by itself";
    test::expectShown(f, {"twoPointsWorkedPointInserted", "twoPointsWorkedIntercept"});
    test::expectTexts(f, {{"twoPointsWorkedPointInserted", "2 = (-0.75)*(-3) + b   => "},
                          {"twoPointsWorkedIntercept", "b = 2 - (-0.75)*(-3) = -0.25"}});
}

TEST_F(DlinieForm, WorksTheInterceptOfTwoPointsOutWithASlopeAsAFraction) {
    const FormDriver& f = open(LineTask::TwoPoints, {.x1 = -3, .y1 = 2, .x2 = 4, .y2 = -1});
    f.click("help", "showTwoPointsIntercept");
    test::expectTexts(f, {{"twoPointsWorkedPointInserted", "2 = (3/-7)*(-3) + b   => "},
                          {"twoPointsWorkedIntercept", "b = 2 - (3/-7)*(-3) = 0.71"}});
}

TEST_F(DlinieForm, WorksTheKnownPointOut) {
    const FormDriver& f = open(LineTask::SlopeAndPoint, {.x1 = -4, .y1 = 5, .slopeGiven = -3});
    f.click("help");
    EXPECT_FALSE(f.isShown("slopeAndPointWorkedPointInserted"));
    f.click("showSlopeAndPointIntercept");
    test::expectShown(f, {"slopeAndPointWorkedPointInserted", "slopeAndPointWorkedIntercept"});
    test::expectTexts(f, {{"slopeAndPointWorkedPointInserted", "5 = (-3)*(-4) + b =>"},
                          {"slopeAndPointWorkedIntercept", "b = 5 - (-3)*(-4) = -7"}});
}

TEST_F(DlinieForm, WorksTheCrossingOfTheXAxisOut) {
    const FormDriver& f = open(LineTask::SlopeAndXCross, {.slopeGiven = -2, .xCross = -9});
    f.click("help", "showSlopeAndXCrossIntercept");
    EXPECT_EQ(shownPanels(), (Names{"slopeAndXCrossHelpPanel", "slopeAndXCrossInterceptStep"}));
    test::expectTexts(f, {{"slopeAndXCrossWorkedXInserted", "Y = -2*(-9) + b   =>"},
                          {"slopeAndXCrossWorkedYInserted", "0 = -2*(-9) + b   =>"},
                          {"slopeAndXCrossWorkedIntercept", "b = -(-2)*(-9)"},
                          {"slopeAndXCrossWorkedResult", "= -18"}});
}

TEST_F(DlinieForm, WorksTheSlopeOfBothCrossingsOut) {
    const FormDriver& f = open(LineTask::BothCrosses, {.yCross = -4, .xCross = -6});
    f.click("help", "showBothCrossesSlope");
    EXPECT_EQ(shownPanels(), (Names{"bothCrossesHelpPanel", "bothCrossesSlopeStep"}));
    test::expectTexts(f, {{"bothCrossesWorkedSlopeNumerator", "-4 - 0"},
                          {"bothCrossesWorkedSlopeDenominator", "0 - (-6)"},
                          {"bothCrossesWorkedSlopeResult", "= -(-4/-6) = -0.67"}});
}

}  // namespace
}  // namespace tavrune
