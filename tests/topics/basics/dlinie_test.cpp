#include "topics/basics/dlinie.h"

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/fixed_texts.h"
#include "support/form_driver.h"
#include "support/looks.h"
#include "support/strokes.h"
#include "topics/basics/dlinie_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FormDriver;
using test::ScriptedDraws;
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

class DlinieForm : public testing::Test {
protected:
    void script(LineTask task, const Numbers& n) { draws.append(test::dlinie::script(task, n)); }

    FormDriver& open(LineTask task, const Numbers& numbers = {}) {
        script(task, numbers);
        form = std::make_unique<FormDriver>(PageName::Dlinie, draws);
        return *form;
    }

    void next(LineTask task, const Numbers& numbers = {}) {
        script(task, numbers);
        form->click("Command1");
    }

    void answer(const std::string& slope, const std::string& intercept) const {
        form->type("Text1", slope);
        form->type("Text2", intercept);
        form->click("Command2");
    }

    [[nodiscard]] QColor colour(const std::string& box) const { return form->box(box).backColour(); }

    /// What was drawn since the axes.
    [[nodiscard]] std::vector<Stroke> drawn() const {
        const std::vector<Stroke> first = axes();
        std::vector<Stroke> all = form->find<GraphBox>("Picture1").strokes();
        std::vector<Stroke> later = test::strokesFrom(form->find<GraphBox>("Picture1"), first.size());
        all.resize(all.size() - later.size());
        EXPECT_EQ(all, first);
        return later;
    }

    [[nodiscard]] std::vector<std::string> shownPanels() const {
        std::vector<std::string> shown;
        for (const char* name : {"Picture2", "Picture3", "Picture4", "Picture5", "Picture6", "Picture7",
                                 "Picture8", "Picture9"}) {
            if (form->isShown(name)) {
                shown.emplace_back(name);
            }
        }
        return shown;
    }

    using Names = std::vector<std::string>;

    ScriptedDraws draws;
    std::unique_ptr<FormDriver> form;
};

TEST_F(DlinieForm, IsBlankUntilItsFirstTick) {
    const FormDriver unshown = FormDriver::unshown(PageName::Dlinie, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Den rette linie");
    for (const char* empty : {"Label1", "Label3", "Label4"}) {
        EXPECT_EQ(unshown.caption(empty), "") << empty;
    }
    for (const char* hidden :
         {"Command3", "Labelf", "Picture2", "Picture3", "Label26", "Label27", "Picture4", "Label34",
          "Label35", "Picture5", "Picture6", "Picture7", "Picture8", "Picture9"}) {
        EXPECT_FALSE(unshown.isShown(hidden)) << hidden;
    }
    EXPECT_TRUE(unshown.find<GraphBox>("Picture1").strokes().empty());
    EXPECT_EQ(unshown.find<GraphBox>("Picture1").backColour(), kWhite);
}

TEST_F(DlinieForm, AsksInTheFrameOfTheEquation) {
    const FormDriver& f = open(LineTask::SlopeAndPoint, {.x1 = -4, .y1 = 5, .slopeGiven = -3});
    EXPECT_EQ(f.caption("Label1"),
              "Du kender en ret linies hældningskoeficient og et punkt på linien. Bestem liniens forskrift.");
    EXPECT_EQ(f.caption("Label3"), "Hældningskoefficienten(a) = -3");
    EXPECT_EQ(f.caption("Label4"), "(X,Y) = (-4,5)");
    for (const char* bold : {"Label1", "Label3", "Label4"}) {
        EXPECT_TRUE(f.label(bold).font().bold()) << bold;
    }
    EXPECT_EQ(f.caption("Label5"), "Liniens ligning er:");
    EXPECT_EQ(f.caption("Label10"), "Y =");
    EXPECT_EQ(f.caption("Label2"), "X +");
    EXPECT_EQ(f.caption("Label12"), "X");
    EXPECT_EQ(f.caption("Label11"), "Y");
    EXPECT_EQ(f.focus(), "Text1");
    EXPECT_EQ(shownPanels(), Names{});
}

TEST_F(DlinieForm, DrawsAxesAndDotsInItsScale) {
    const FormDriver& f = open(LineTask::TwoPoints);
    const GraphBox& graph = f.find<GraphBox>("Picture1");
    EXPECT_EQ(graph.scale(), kGraph.scale);
    EXPECT_EQ(graph.strokes(), axes());
    EXPECT_EQ(graph.strokes().size(), 2U + 20U + 19U);
    next(LineTask::BothCrosses);
    EXPECT_EQ(graph.strokes(), axes()) << "drawn anew, in the scale of the first tick";
}

TEST_F(DlinieForm, HasItsScaleFromTheFirstTickOnly) {
    open(LineTask::TwoPoints);
    auto& graph = form->find<GraphBox>("Picture1");
    graph.Scale(0, 1, 1, 0);
    next(LineTask::TwoPoints);
    EXPECT_EQ(graph.scale(), (GraphScale{0, 1, 1, 0}));
}

TEST_F(DlinieForm, PlacesTheTickLabelsInUnitsOfTheScale) {
    const FormDriver& f = open(LineTask::TwoPoints);
    const auto& graph = f.find<GraphBox>("Picture1");
    const double unit = graph.Control::place().width() / 20;
    EXPECT_EQ(graph.Control::place().size(), QSizeF(267, 267));
    struct Row {
        const char* label;
        const char* caption;
        double left, top;
    };
    for (const Row& row : {Row{"Label6", "5", 4.7, -0.2}, Row{"Label7", "-5", -1, -4.5},
                           Row{"Label8", "-5", -5.2, -0.2}, Row{"Label9", "5", -0.8, 5.3}}) {
        const Label& label = f.label(row.label);
        EXPECT_EQ(label.caption(), row.caption) << row.label;
        EXPECT_EQ(label.parentWidget(), &graph) << row.label;
        EXPECT_NEAR(label.place().left(), (row.left + 10) * unit, 0.001) << row.label;
        EXPECT_NEAR(label.place().top(), (10 - row.top) * unit, 0.001) << row.label;
    }
}

TEST_F(DlinieForm, MayHaveASlopeOfZeroInItsFirstExerciseOnly) {
    const FormDriver& f = open(LineTask::SlopeAndXCross, {.slopeGiven = 0, .xCross = 4});
    EXPECT_EQ(f.caption("Label3"), "Hældningskoefficient(a) = 0");
    answer("0", "0");
    EXPECT_EQ(f.caption("Labelf"), "RIGTIGT");
    EXPECT_EQ(drawn(), std::vector{graphOf(0, 0, kGreen)});

    // The next exercise draws on until the slope is not 0; the kind stays.
    script(LineTask::SlopeAndPoint, {.slopeGiven = 0});
    draws.append(test::dlinie::numbers({.slopeGiven = 1}));
    f.click("Command1");
    EXPECT_EQ(f.caption("Label3"), "Hældningskoefficienten(a) = 1");
    EXPECT_TRUE(draws.isUsedUp());
}

TEST_F(DlinieForm, IsSolvedByKeysAlone) {
    const FormDriver& f = open(LineTask::SlopeAndYCross, {.slopeGiven = -2, .yCross = 3});
    f.type("Text1", "-2");
    f.press("Text1", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Text2");
    f.type("Text2", "3");
    f.press("Text2", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Command2");
    f.press("Command2", Qt::Key_Return);
    EXPECT_EQ(f.caption("Labelf"), "RIGTIGT");
    EXPECT_EQ(f.label("Labelf").backColour(), kGreen);
    EXPECT_TRUE(f.isShown("Labelf"));
    EXPECT_FALSE(f.isShown("Command2"));
    EXPECT_FALSE(f.isShown("Command3"));
    EXPECT_EQ(f.focus(), "Command1");
    EXPECT_EQ(drawn(), std::vector{graphOf(-2, 3, kGreen)});
    script(LineTask::SlopeAndYCross, {.yCross = 7});
    f.press("Command1", Qt::Key_Return);
    EXPECT_EQ(f.caption("Label4"), "Y = 7");
    EXPECT_FALSE(f.isShown("Labelf"));
    EXPECT_EQ(f.focus(), "Text1");
    EXPECT_EQ(drawn(), std::vector<Stroke>{});
}

TEST_F(DlinieForm, MarksAWrongInterceptAloneAndStillDrawsTheLineOfTheStudent) {
    const FormDriver& f = open(LineTask::SlopeAndYCross, {.slopeGiven = 2, .yCross = 3});
    answer("2", "4.5");
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_EQ(colour("Text2"), kRed);
    EXPECT_EQ(drawn(), std::vector{graphOf(2, 4.5, kRed)});
    EXPECT_EQ(f.caption("Labelf"), "FORKERT");
    EXPECT_EQ(f.label("Labelf").backColour(), kRed);
    EXPECT_TRUE(f.isShown("Labelf"));
    EXPECT_TRUE(f.isShown("Command2"));
    EXPECT_TRUE(f.isShown("Command3"));
    EXPECT_EQ(f.focus(), "Text1");
}

TEST_F(DlinieForm, MarksAWrongSlopeAlone) {
    open(LineTask::SlopeAndYCross, {.slopeGiven = 2, .yCross = 3});
    answer("-2", "+3");
    EXPECT_EQ(colour("Text1"), kRed);
    EXPECT_EQ(colour("Text2"), kWhite);
    EXPECT_EQ(drawn(), std::vector{graphOf(-2, 3, kRed)});
}

TEST_F(DlinieForm, KeepsTheLinesOfEarlierTriesUntilTheNextExercise) {
    const FormDriver& f = open(LineTask::SlopeAndYCross, {.slopeGiven = 2, .yCross = 3});
    answer("1", "1");
    answer("", "abc");
    answer("2", "3");
    EXPECT_EQ(drawn(), (std::vector{graphOf(1, 1, kRed), graphOf(0, 0, kRed), graphOf(2, 3, kGreen)}));
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_EQ(colour("Text2"), kWhite);
    EXPECT_EQ(f.caption("Labelf"), "RIGTIGT");
    next(LineTask::BothCrosses);
    EXPECT_EQ(drawn(), std::vector<Stroke>{});
}

TEST_F(DlinieForm, TakesEmptyFieldsForTheLineAlongTheXAxis) {
    open(LineTask::BothCrosses, {.yCross = 0, .xCross = 5});
    form->click("Command2");
    EXPECT_EQ(form->caption("Labelf"), "RIGTIGT");
    EXPECT_EQ(drawn(), std::vector{graphOf(0, 0, kGreen)});
}

TEST_F(DlinieForm, WantsMinusAThirdWithTwoDecimals) {
    const FormDriver& f = open(LineTask::TwoPoints, {.x1 = 0, .y1 = 1, .x2 = 3, .y2 = 0});
    answer("-0.333", "1");
    EXPECT_EQ(f.caption("Labelf"), "FORKERT");
    EXPECT_EQ(colour("Text1"), kRed);
    answer("-0,33", "1");
    EXPECT_EQ(f.caption("Labelf"), "RIGTIGT");
    EXPECT_EQ(drawn().back(), graphOf(-0.33, 1, kGreen));
}

TEST_F(DlinieForm, SurvivesNumbersThatNoPictureCanShow) {
    const FormDriver& f = open(LineTask::SlopeAndYCross);
    for (const char* huge : {"1e308", "-1e308", "9e99999", "-1e-320"}) {
        for (const char* other : {"1e308", "-1e308", "0"}) {
            answer(huge, other);
            EXPECT_EQ(f.caption("Labelf"), "FORKERT");
            EXPECT_FALSE(f.page().grab().isNull());
        }
    }
    f.box("Text1").setContent(std::string(1000000, '9'));
    f.click("Command2");
    EXPECT_EQ(drawn().size(), 13U);
}

TEST_F(DlinieForm, GivesThePositiveInterceptWithItsPlus) {
    const FormDriver& f = open(LineTask::SlopeAndYCross, {.slopeGiven = -4, .yCross = 3});
    answer("1", "1");
    f.click("Command3");
    EXPECT_EQ(f.box("Text1").content(), "-4");
    EXPECT_EQ(f.box("Text2").content(), "+3");
    EXPECT_EQ(f.box("Text2").value(), 3);
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_EQ(colour("Text2"), kWhite);
    EXPECT_EQ(drawn(), (std::vector{graphOf(1, 1, kRed), graphOf(-4, 3, kGreen)}));
    for (const char* hidden : {"Command2", "Command3", "Labelf"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_EQ(f.focus(), "Command1");
}

TEST_F(DlinieForm, GivesANegativeInterceptAsItIs) {
    const DecimalMark comma(",");
    const FormDriver& f = open(LineTask::TwoPoints, {.x1 = -3, .y1 = 2, .x2 = 9, .y2 = -7});
    answer("1", "1");
    f.click("Command3");
    EXPECT_EQ(f.box("Text1").content(), "-0,75");
    EXPECT_EQ(f.box("Text2").content(), "-0,25");
}

TEST_F(DlinieForm, GivesTheLineAlongTheXAxisAsZeroPlusZero) {
    const FormDriver& f = open(LineTask::BothCrosses, {.yCross = 0, .xCross = 7});
    answer("1", "1");
    f.click("Command3");
    EXPECT_EQ(f.box("Text1").content(), "0");
    EXPECT_EQ(f.box("Text2").content(), "+0");
}

TEST_F(DlinieForm, WithoutAKindKeepsTheTaskOnScreenAndHasNoHelp) {
    const FormDriver& f = open(LineTask::SlopeAndYCross, {.slopeGiven = 2, .yCross = 3});
    answer("1", "1");
    next(LineTask::None, {.x1 = 8, .slopeGiven = 4, .yCross = 9});
    EXPECT_EQ(f.caption("Label1"),
              "Du kender en ret linies hældningskoefficient og liniens skæring med Y-aksen. Bestem liniens "
              "forskrift.");
    EXPECT_EQ(f.caption("Label3"), "Hældningskoefficient(a) = 2");
    EXPECT_EQ(f.caption("Label4"), "Y = 3");
    EXPECT_EQ(f.box("Text1").content(), "");
    EXPECT_EQ(drawn(), std::vector<Stroke>{});
    EXPECT_EQ(dynamic_cast<const Dlinie&>(f.page()).state().yCross, 9);
    f.click("Command4");
    EXPECT_EQ(shownPanels(), Names{});
    answer("2", "3");
    EXPECT_EQ(f.caption("Labelf"), "RIGTIGT");
}

TEST_F(DlinieForm, WithoutAKindAtItsFirstTickIsBlankAndAnsweredByZeros) {
    const FormDriver& f = open(LineTask::None);
    EXPECT_EQ(f.caption("Label1") + f.caption("Label3") + f.caption("Label4"), "");
    answer("1", "0");
    EXPECT_EQ(colour("Text1"), kRed);
    answer("0", "0");
    EXPECT_EQ(f.caption("Labelf"), "RIGTIGT");
}

TEST_F(DlinieForm, WhitensItsBoxesWithTheNextExercise) {
    open(LineTask::SlopeAndYCross);
    answer("1", "1");
    next(LineTask::SlopeAndYCross);
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_EQ(colour("Text2"), kWhite);
}

TEST_F(DlinieForm, EnterInTheLastBoxDoesNothingOnceSolved) {
    const FormDriver& f = open(LineTask::SlopeAndYCross, {.slopeGiven = 2, .yCross = 3});
    answer("2", "3");
    f.box("Text2").setFocus();
    f.press("Text2", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Text2");
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
    f.type("Text1", "12");
    f.click("Command4");
    EXPECT_EQ(shownPanels(), Names{row.panel});
    if (row.firstVis != nullptr) {
        EXPECT_EQ(f.focus(), row.firstVis);
        EXPECT_EQ(f.button(row.firstVis).caption(), "Vis");
    } else {
        EXPECT_EQ(f.focus(), "Command4") << "there is no step to go to";
    }
    EXPECT_EQ(f.button(row.close).caption(), "&Luk");
    EXPECT_EQ(f.find(row.close).parentWidget(), &f.find(row.panel));
    showEveryStep();
    f.click(row.close);
    EXPECT_EQ(shownPanels(), Names{});
    for (const char* hidden : {"Label26", "Label27", "Label34", "Label35"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_EQ(f.box("Text1").content(), "12");
    EXPECT_EQ(drawn(), std::vector<Stroke>{});
}

TEST_P(DliniePanels, StayThroughJudgingAndTheAnswerAndGoWithTheNextExercise) {
    const PanelRow& row = GetParam();
    const FormDriver& f = open(row.task);
    f.click("Command4");
    showEveryStep();
    const Names shown = shownPanels();
    answer("987", "1");
    EXPECT_EQ(shownPanels(), shown);
    f.click("Command3");
    EXPECT_EQ(shownPanels(), shown);
    f.click(row.close);
    f.click("Command4");
    EXPECT_EQ(shownPanels(), Names{row.panel}) << "the steps are hidden again";
    showEveryStep();
    next(LineTask::None);
    EXPECT_EQ(shownPanels(), Names{});
    for (const char* hidden : {"Label26", "Label27", "Label34", "Label35"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_EQ(f.focus(), "Text1");
}

TEST_P(DliniePanels, StayThroughARightJudging) {
    const PanelRow& row = GetParam();
    const FormDriver& f = open(row.task);
    f.click("Command4");
    showEveryStep();
    const Names shown = shownPanels();
    const DlinieState& state = dynamic_cast<const Dlinie&>(f.page()).state();
    answer(NumberText(state.slope), NumberText(state.intercept));
    ASSERT_EQ(f.caption("Labelf"), "RIGTIGT");
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
    for (const char* name : {"Command1", "Command2", "Command3", "Command4"}) {
        EXPECT_FALSE(panel.intersects(f.button(name).place())) << name;
    }
    for (const char* name : {"Text1", "Text2"}) {
        EXPECT_FALSE(panel.intersects(f.box(name).place())) << name;
    }
    EXPECT_TRUE(panel.contains(f.find<GraphBox>("Picture1").Control::place()));
    EXPECT_EQ(f.find<Panel>(row.panel).backColour(), kWhite);
}

TEST_P(DliniePanels, HaveRoomForTheLongestNumbers) {
    for (const char* mark : {".", ","}) {
        const DecimalMark inUse(mark);
        for (const Numbers& n : {Numbers{-10, -10, 9, 9, -5, -10, -9}, Numbers{-10, -10, -9, 9, -5, 9, -10},
                                 Numbers{-10, -10, -3, -4, -4, -10, -7}}) {
            const FormDriver& f = open(GetParam().task, n);
            answer("1", "1");
            f.click("Command3");
            EXPECT_EQ(test::flawsOf(f.page()), Names{});
            f.click("Command4");
            showEveryStep();
            EXPECT_EQ(test::flawsOf(f.page()), Names{});
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DliniePanels,
    testing::Values(PanelRow{"TwoPoints", LineTask::TwoPoints, "Picture2", "Command5", "Command7"},
                    PanelRow{"SlopeAndPoint", LineTask::SlopeAndPoint, "Picture4", "Command8", "Command9"},
                    PanelRow{"SlopeAndYCross", LineTask::SlopeAndYCross, "Picture5", nullptr, "Command10"},
                    PanelRow{"SlopeAndXCross", LineTask::SlopeAndXCross, "Picture6", "Command11",
                             "Command12"},
                    PanelRow{"BothCrosses", LineTask::BothCrosses, "Picture8", "Command13", "Command14"}),
    [](const auto& row) { return row.param.name; });

constexpr test::FixedText kFixedTexts[]{
    {"Label5", "Liniens ligning er:"},
    {"Label10", "Y ="},
    {"Label2", "X +"},
    {"Label12", "X"},
    {"Label11", "Y"},
    {"Command1", "&Ny opgave"},
    {"Command2", "&OK"},
    {"Command3", "&Giv svaret"},
    {"Command4", "&Hjælp"},
    // Two points.
    {"Label13", "Generel løsning"},
    {"Label14", "Aktuel løsning"},
    {"Label15", "Find først hældningskoefficienten a"},
    {"Label16", "a ="},
    {"Label17", "y1 - y2"},
    {"Label18", "x1 - x2"},
    {"Label22", "Find derefter b"},
    {"Label23",
     "Her beytter vi, at alle punkter på linien skal 'passe' ind i liniens ligning. Det gælder "
     "også punktet (x1,y1). Derfor får vi at: "},
    {"Label24", "y1 = a*x1 + b   =>"},
    {"Label25", "b = y1 - a*x1"},
    {"Label19", "a = "},
    {"Command5", "Vis"},
    {"Command6", "Vis"},
    {"Command7", "&Luk"},
    // A slope and a point.
    {"Label29", "Generel løsning"},
    {"Label30", "Aktuel løsning"},
    {"Label31",
     "Du kender hældningskoefficienten a. Bestem b ved at indsætte det kendte punkt i den "
     "rette linies ligning."},
    {"Label32", "y1 = a*x1 + b  =>"},
    {"Label33", "b = y1 - a*x1"},
    {"Command8", "Vis"},
    {"Command9", "&Luk"},
    // A slope and the crossing of the Y axis.
    {"Label36",
     "Denne komplicerede opgave går ud på at finde ud af at a = hældningskoefficienten og b = "
     "skæringen med y-aksen."},
    {"Command10", "&Luk"},
    // A slope and the crossing of the X axis.
    {"Label37", "Generel løsning"},
    {"Label38", "Aktuel løsning"},
    {"Label39",
     "Du kender hældningskoefficienten a og skæringen med x - aksen,  X.                      "
     "                                      Når du kender skæringen med x-aksen kender du også "
     "et punkt, nemlig (X, 0), da y-værdien til liniens og x-aksens skæringspunkt er 0."},
    {"Label40",
     "Nu kender du altså hældningskoefficienten og et punkt. Derfor kan du sætte de kendte "
     "værdier ind i liniens ligning, og løse den mht. b."},
    {"Label41", "Y = a*X + b    => "},
    {"Label42", "0 = a*X + b    =>"},
    {"Label43", "b = -a*X"},
    {"Command11", "Vis"},
    {"Command12", "&Luk"},
    // Both crossings.
    {"Label48", "Generel løsning"},
    {"Label49", "Aktuel løsning"},
    {"Label50", "b svarer til skæringen med y - aksen og er dermed allerede kendt."},
    {"Label51",
     "Vi kender udover b også to punkter, nemlig liniens skæringspunkter med x -  og y - aksen. "
     "1.-koordinatet til skæringspunktet med y - aksen og 2. - koordinatet til skæringspunktet "
     "med x - aksen er begge 0.   "},
    {"Label52",
     "Koordinatsættene til de to kendte punkter bliver dermed      I  (0, y1), hvor y1 er "
     "skæringen med y - aksen    og      "},
    {"Label53", "   II  (x2, 0), hvor x2 er skæringen til x-aksen. "},
    {"Label54", "a ="},
    {"Label55", "y1 - y2"},
    {"Label56", "x1 - x2"},
    {"Label57", "=>"},
    {"Label58", "a ="},
    {"Label59", "y1 - 0"},
    {"Label60", "0 - x2"},
    {"Label61", "= -(y1/x2)"},
    {"Label62", "a ="},
    {"Command13", "Vis"},
    {"Command14", "&Luk"},
};

TEST_F(DlinieForm, BearsItsFixedTextsToTheLetter) {
    const FormDriver& f = open(LineTask::TwoPoints);
    test::expectTexts(f, kFixedTexts);
}

TEST_F(DlinieForm, WorksTheSlopeOfTwoPointsOutAsAFraction) {
    const FormDriver& f = open(LineTask::TwoPoints, {.x1 = -3, .y1 = 2, .x2 = 4, .y2 = -1});
    f.click("Command4");
    f.press("Command5", Qt::Key_Return);
    EXPECT_EQ(shownPanels(), (Names{"Picture2", "Picture3"}));
    const Label& numerator = f.label("Label20");
    const Label& denominator = f.label("Label21");
    EXPECT_EQ(numerator.caption(), "2 - (-1)");
    EXPECT_EQ(denominator.caption(), "-3 - 4");
    EXPECT_EQ(f.caption("Label28"), "= 3/-7 = -0.43");
    EXPECT_FALSE(f.isShown("Label26"));
    EXPECT_EQ(numerator.place().left(), fromTwips(480));
    EXPECT_EQ(denominator.place().left(), fromTwips(480));
    EXPECT_EQ(numerator.place().width(), numerator.textWidth());
    EXPECT_EQ(denominator.place().width(), numerator.place().width());
    const QLineF bar = f.find<LineControl>("Line2").ends();
    EXPECT_EQ(bar.x1(), fromTwips(480));
    EXPECT_EQ(bar.x2(), numerator.place().right());
    EXPECT_GT(f.label("Label28").place().left(), bar.x2());
}

TEST_F(DlinieForm, WorksTheInterceptOfTwoPointsOutWithADecimalSlope) {
    const FormDriver& f = open(LineTask::TwoPoints, {.x1 = -3, .y1 = 2, .x2 = 9, .y2 = -7});
    f.click("Command4");
    f.click("Command6");
    EXPECT_EQ(shownPanels(), Names{"Picture2"}) << "each step by itself";
    EXPECT_TRUE(f.isShown("Label26"));
    EXPECT_TRUE(f.isShown("Label27"));
    EXPECT_EQ(f.caption("Label26"), "2 = (-0.75)*(-3) + b   => ");
    EXPECT_EQ(f.caption("Label27"), "b = 2 - (-0.75)*(-3) = -0.25");
}

TEST_F(DlinieForm, WorksTheInterceptOfTwoPointsOutWithASlopeAsAFraction) {
    const FormDriver& f = open(LineTask::TwoPoints, {.x1 = -3, .y1 = 2, .x2 = 4, .y2 = -1});
    f.click("Command4");
    f.click("Command6");
    EXPECT_EQ(f.caption("Label26"), "2 = (3/-7)*(-3) + b   => ");
    EXPECT_EQ(f.caption("Label27"), "b = 2 - (3/-7)*(-3) = 0.71");
}

TEST_F(DlinieForm, WorksTheKnownPointOut) {
    const FormDriver& f = open(LineTask::SlopeAndPoint, {.x1 = -4, .y1 = 5, .slopeGiven = -3});
    f.click("Command4");
    EXPECT_FALSE(f.isShown("Label34"));
    f.click("Command8");
    EXPECT_TRUE(f.isShown("Label34"));
    EXPECT_TRUE(f.isShown("Label35"));
    EXPECT_EQ(f.caption("Label34"), "5 = (-3)*(-4) + b =>");
    EXPECT_EQ(f.caption("Label35"), "b = 5 - (-3)*(-4) = -7");
}

TEST_F(DlinieForm, WorksTheCrossingOfTheXAxisOut) {
    const FormDriver& f = open(LineTask::SlopeAndXCross, {.slopeGiven = -2, .xCross = -9});
    f.click("Command4");
    f.click("Command11");
    EXPECT_EQ(shownPanels(), (Names{"Picture6", "Picture7"}));
    EXPECT_EQ(f.caption("Label44"), "Y = -2*(-9) + b   =>");
    EXPECT_EQ(f.caption("Label45"), "0 = -2*(-9) + b   =>");
    EXPECT_EQ(f.caption("Label46"), "b = -(-2)*(-9)");
    EXPECT_EQ(f.caption("Label47"), "= -18");
}

TEST_F(DlinieForm, WorksTheSlopeOfBothCrossingsOut) {
    const FormDriver& f = open(LineTask::BothCrosses, {.yCross = -4, .xCross = -6});
    f.click("Command4");
    f.click("Command13");
    EXPECT_EQ(shownPanels(), (Names{"Picture8", "Picture9"}));
    EXPECT_EQ(f.caption("Label63"), "-4 - 0");
    EXPECT_EQ(f.caption("Label64"), "0 - (-6)");
    EXPECT_EQ(f.caption("Label65"), "= -(-4/-6) = -0.67");
}

}  // namespace
}  // namespace tavrune
