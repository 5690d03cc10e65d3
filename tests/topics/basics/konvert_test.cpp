#include "topics/basics/konvert.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "support/decimal_mark.h"
#include "support/fixed_texts.h"
#include "support/form_driver.h"
#include "support/looks.h"
#include "support/strokes.h"
#include "topics/basics/konvert_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FormDriver;
using test::ScriptedDraws;
namespace konvert = test::konvert;

const QColor kLightGreen(0, 190, 0);
constexpr test::StrokesIn kGraph{{0, 0, 20, 15}};
constexpr test::StrokesIn kExample{{0, 0, 20, 10}};

class KonvertForm : public testing::Test {
protected:
    /// a from -5 to 4, b from 0 to 7, 1 Q is f K.
    void script(int a, int b, int f) {
        draws.append(konvert::slope(a) + konvert::constant(b) + konvert::wholeFactor(f));
    }

    /// 1 Q is n/m K.
    void script(int a, int b, int n, int m) {
        draws.append(konvert::slope(a) + konvert::constant(b) + konvert::fractionFactor(n, m));
    }

    template <class... Numbers>
    FormDriver& open(Numbers... numbers) {
        script(numbers...);
        form = std::make_unique<FormDriver>(PageName::Konvert, draws);
        return *form;
    }

    template <class... Numbers>
    void next(Numbers... numbers) {
        script(numbers...);
        form->click("Command1");
    }

    void answer(const std::string& slope, const std::string& constant) const {
        form->type("Text1", slope);
        form->type("Text2", constant);
        form->click("Command2");
    }

    void openHelpWithSolution() const {
        form->click("Hjaelp");
        form->press("Vis", Qt::Key_Return);
    }

    [[nodiscard]] QColor colour(const std::string& box) const { return form->box(box).backColour(); }

    [[nodiscard]] const GraphBox& graph(const std::string& name) const { return form->find<GraphBox>(name); }

    [[nodiscard]] double left(const std::string& name) const {
        return graph("Picture3").leftOf(form->label(name));
    }
    [[nodiscard]] double right(const std::string& name) const {
        return graph("Picture3").rightOf(form->label(name));
    }

    [[nodiscard]] const std::vector<Stroke>& drawnOn(const std::string& name) const {
        return graph(name).strokes();
    }

    [[nodiscard]] Stroke bar(double from, double to) const {
        return test::StrokesIn{graph("Picture3").scale()}.line(from, 5.35, to, 5.35);
    }
    [[nodiscard]] Stroke barOver(const std::string& name) const { return bar(left(name), right(name)); }
    [[nodiscard]] std::vector<Stroke> exampleBars() const { return {bar(1.58, 2.4), bar(3.8, 4.3)}; }
    [[nodiscard]] std::vector<Stroke> barsWith(const std::string& one, const std::string& other) const {
        return {bar(1.58, 2.4), bar(3.8, 4.3), barOver(one), barOver(other)};
    }

    ScriptedDraws draws;
    std::unique_ptr<FormDriver> form;
};

constexpr const char* kFilledIn[] = {"Label12_1", "Label20_1", "Label16_1", "Label18_1",
                                     "Label28_1", "Label24_1", "Label42"};

constexpr test::FixedText kFixedTexts[]{
    {"Label2", "P"},
    {"Label3", "Q eller K"},
    {"Label7", "P="},
    {"Label8", "K +"},
    {"Command1", "&Ny opgave"},
    {"Command2", "&OK"},
    {"Command4", "&Giv svaret"},
    {"Hjaelp", "&Hjælp"},
    {"Label6",
     "Den nye hældning er altså den nuværende hældning divideret med omregningsfaktorens kvadrat, og det nye "
     "konstantled er det nuværende konstantled divideret med omregningsfaktoren."},
    {"Label230", "Generel løsning"},
    {"Label231", "Aktuel løsning"},
    {"Label232", "P"},
    {"Label233", "Q eller K"},
    {"Label234", "P = -1Q + 10"},
    {"Label235", "P = -0.25K + 5"},
    {"Label12_0", "P= "},
    {"Label20_0", "-1"},
    {"Label16_0", "2 · 2"},
    {"Label18_0", "K + "},
    {"Label28_0", "10"},
    {"Label24_0", "2"},
    {"Label42_0", "= -0.25K + 5"},
    {"Label41", "Hældningen er divideret to gange med omregningsfaktoren, konstantleddet én gang."},
    {"Vis", "Vis"},
    {"Luk", "&Luk"},
};

TEST_F(KonvertForm, WritesItsWorkedExampleWithTheMarkOfTheLocale) {
    for (const auto& [mark, result] : {std::pair{",", "-0,25K + 5"}, {".", "-0.25K + 5"}}) {
        const DecimalMark written(mark);
        SeededDraws seeded{1};
        const FormDriver f(PageName::Konvert, seeded);
        EXPECT_EQ(f.caption("Label235"), std::string("P = ") + result);
        EXPECT_EQ(f.caption("Label42_0"), std::string("= ") + result);
    }
}

TEST_F(KonvertForm, BearsItsFixedTexts) {
    const FormDriver& f = open(-3, 5, 4);
    test::expectTexts(f, kFixedTexts);
    EXPECT_TRUE(f.caption("Label5").starts_with(
        "Funktionskonvertering vises lettest ud fra et eksempel. Antag, at en vare har afsætningsfunktionen "
        "P = -1Q + 10, og at hvert styk tager 2 timer at producere."));
}

TEST_F(KonvertForm, IsBlankUntilItsFirstTick) {
    const FormDriver unshown = FormDriver::unshown(PageName::Konvert, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Funktionskonvertering");
    EXPECT_EQ(unshown.caption("Label1") + unshown.caption("Label4"), "");
    for (const char* hidden : {"Command4", "Label9", "Label10", "Picture3", "Label41"}) {
        EXPECT_FALSE(unshown.isShown(hidden)) << hidden;
    }
    EXPECT_TRUE(unshown.find<GraphBox>("Picture1").strokes().empty());
}

TEST_F(KonvertForm, AsksForTheFunctionInTheOtherUnit) {
    const FormDriver& f = open(-3, 5, 4);
    EXPECT_EQ(f.caption("Label1"),
              " For den viste funktion gælder, at 1 Q svarer til 4 K. Udtryk funktionen i K");
    EXPECT_EQ(f.caption("Label4"), "P= -3Q + 5");
    EXPECT_EQ(f.focus(), "Text1");
    EXPECT_TRUE(f.isShown("Command2"));
    EXPECT_FALSE(f.isShown("Command4"));
    for (const char* name : kFilledIn) {
        EXPECT_EQ(f.caption(name), " ") << name;
    }
}

TEST_F(KonvertForm, AsksWithAFractionAsItWasDrawn) {
    const FormDriver& f = open(0, 0, 6, 4);
    EXPECT_EQ(f.caption("Label1"),
              " For den viste funktion gælder, at 1 Q svarer til 6/4 K. Udtryk funktionen i K");
    EXPECT_EQ(f.caption("Label4"), "P= 0Q + 0");
}

TEST_F(KonvertForm, DrawsTheTicksOfBothAxesOnTheFrame) {
    open(-3, 5, 4);
    const test::StrokesIn onFrame{graph("Picture1").scale()};
    std::vector<Stroke> ticks;
    for (int x = 1; x <= 21; ++x) {
        ticks.push_back(onFrame.line(x, 15.2, x, 15.4));
    }
    for (int y = 0; y <= 15; ++y) {
        ticks.push_back(onFrame.line(0.8, y + 0.2, 1, y + 0.2));
    }
    EXPECT_EQ(drawnOn("Picture1"), ticks);
    next(1, 1, 1);
    EXPECT_EQ(drawnOn("Picture1"), ticks) << "once, with every exercise";
}

TEST_F(KonvertForm, HasItsGraphAndItsNumbersAtTheTicks) {
    const FormDriver& f = open(-3, 5, 4);
    const GraphBox& frame = graph("Picture1");
    const GraphBox& inside = graph("Picture2");
    EXPECT_NEAR(frame.leftOf(inside), 1, 1e-6);
    EXPECT_NEAR(frame.rightOf(inside), 21, 1e-6);
    const GraphScale s = frame.scale();
    const double unit = frame.Control::place().height() / (s.y2 - s.y1);
    EXPECT_NEAR(s.y1 + inside.Control::place().top() / unit, 0.2, 1e-6);
    EXPECT_NEAR(s.y1 + inside.Control::place().bottom() / unit, 15.2, 1e-6);
    EXPECT_EQ(inside.scale(), (GraphScale{0, 0, 20, 15}));

    std::string first;
    std::string second;
    for (const Label* label : f.page().findChildren<Label*>()) {
        const std::string text = label->caption();
        if (label->parentWidget() != &frame || text.find_first_not_of("0123456789") != std::string::npos) {
            continue;
        }
        const QPointF middle = label->place().center();
        const bool isBelow = middle.y() > inside.Control::place().bottom();
        const double number = std::stod(text);
        (isBelow ? first : second) += text + " ";
        if (isBelow) {
            EXPECT_NEAR(s.x1 + middle.x() / unit, number + 1, 0.01) << text;
        } else {
            EXPECT_NEAR(s.y1 + middle.y() / unit, 15.2 - number, 0.01) << text;
        }
    }
    EXPECT_EQ(first, "0 2 4 6 8 10 12 14 16 18 20 ");
    EXPECT_EQ(second, "0 2 4 6 8 10 12 14 ");
}

TEST_F(KonvertForm, DrawsTheFunctionInBlackAndOnlyTheOneThatIsAsked) {
    open(-3, 5, 4);
    EXPECT_EQ(drawnOn("Picture2"), (std::vector<Stroke>{kGraph.line(0, 10, 20, 70)}));
    answer("1", "1");
    form->click("Command4");
    next(2, 7, 1);
    EXPECT_EQ(drawnOn("Picture2"), (std::vector<Stroke>{kGraph.line(0, 8, 20, -32)}));
}

TEST_F(KonvertForm, IsSolvedByKeysAlone) {
    const FormDriver& f = open(-3, 5, 4);
    f.type("Text1", "-0,19");
    EXPECT_EQ(f.box("Text1").content(), "-0.19");
    f.press("Text1", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Text2");
    f.type("Text2", "1,25");
    f.press("Text2", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Command2");
    f.press("Command2", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("Label10"));
    EXPECT_FALSE(f.isShown("Label9"));
    EXPECT_FALSE(f.isShown("Command2"));
    EXPECT_FALSE(f.isShown("Command4"));
    EXPECT_EQ(f.focus(), "Command1");
    script(1, 1, 1);
    f.press("Command1", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("Label10"));
    EXPECT_EQ(f.focus(), "Text1");
}

TEST_F(KonvertForm, EnterInTheLastBoxGoesOnToTheNextExerciseOnceSolved) {
    const FormDriver& f = open(1, 1, 1);
    answer("1", "1");
    f.press("Text2", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Command1");
}

TEST_F(KonvertForm, DrawsTheRightFunctionInGreenWhereItIsSolved) {
    open(4, 7, 2);
    answer("1", "3.5");
    EXPECT_EQ(drawnOn("Picture2"), (std::vector<Stroke>{kGraph.line(0, 8, 20, -72),
                                                        kGraph.line(0, 11.5F, 20, -8.5F, kLightGreen)}));
}

TEST_F(KonvertForm, DrawsTheSolutionAndNotWhatWasTyped) {
    open(-5, 1, 4, 3);
    answer("-2.81", "0.75");
    const double slope = -5.0F / ((4.0F / 3.0F) * (4.0F / 3.0F));
    const double constant = 1.0F / (4.0F / 3.0F);
    ASSERT_EQ(drawnOn("Picture2").size(), 2U);
    EXPECT_EQ(drawnOn("Picture2")[1],
              kGraph.line(0, 15 - constant, 20, 15 - (20 * slope + constant), kLightGreen));
}

TEST_F(KonvertForm, TakesTheGivenNumbersWhereTheFactorIsOne) {
    const FormDriver& f = open(-4, 6, 1);
    answer("-4", "6");
    EXPECT_TRUE(f.isShown("Label10"));
}

TEST_F(KonvertForm, TakesNothingForZeros) {
    const FormDriver& f = open(0, 0, 3);
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label10"));
}

TEST_F(KonvertForm, MarksOnlyTheWrongSlope) {
    const FormDriver& f = open(-3, 5, 4);
    answer("2", "1.25");
    EXPECT_EQ(colour("Text1"), kRed);
    EXPECT_EQ(colour("Text2"), kWhite);
    EXPECT_TRUE(f.isShown("Label9"));
    EXPECT_FALSE(f.isShown("Label10"));
    EXPECT_TRUE(f.isShown("Command2"));
    EXPECT_TRUE(f.isShown("Command4"));
    EXPECT_EQ(f.focus(), "Text1");
    EXPECT_EQ(drawnOn("Picture2").size(), 1U) << "a wrong answer draws nothing";
}

TEST_F(KonvertForm, MarksOnlyTheWrongConstantAndGoesToTheSlopeAllTheSame) {
    const FormDriver& f = open(-3, 5, 4);
    answer("-0.19", "1.3");
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_EQ(colour("Text2"), kRed);
    EXPECT_EQ(f.focus(), "Text1");
    answer("7", "1.25");
    EXPECT_EQ(colour("Text1"), kRed);
    EXPECT_EQ(colour("Text2"), kWhite) << "what was wrong before is judged anew";
}

TEST_F(KonvertForm, TakesBothEndsOfTheTolerance) {
    for (const auto& [slope, constant, isRight] : {std::tuple{"2.005", "3.005", true},
                                                   {"1.995", "2.995", true},
                                                   {"2.0051", "3", false},
                                                   {"1.9949", "3", false},
                                                   {"2", "3.0051", false},
                                                   {"2", "2.9949", false}}) {
        const FormDriver& f = open(2, 3, 1);
        answer(slope, constant);
        EXPECT_EQ(f.isShown("Label10"), isRight) << slope << " " << constant;
    }
}

TEST_F(KonvertForm, GivesTheAnswerRoundedWithBothLines) {
    const DecimalMark danish(",");
    const FormDriver& f = open(-3, 5, 4);
    answer("0.5", "2");
    f.click("Command4");
    EXPECT_EQ(f.box("Text1").content(), "-0,188");
    EXPECT_EQ(f.box("Text2").content(), "1,25");
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_EQ(colour("Text2"), kWhite);
    EXPECT_EQ(f.focus(), "Command1");
    for (const char* hidden : {"Label9", "Label10", "Command2", "Command4"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    // The green line is the solution as it was before its rounding.
    EXPECT_EQ(drawnOn("Picture2"),
              (std::vector<Stroke>{kGraph.line(0, 10, 20, 70), kGraph.line(0, 13, 20, 3, kRed),
                                   kGraph.line(0, 13.75F, 20, 17.5F, kLightGreen)}));
}

TEST_F(KonvertForm, DrawsTheLineOfEmptyBoxesToo) {
    open(-3, 5, 4);
    answer("", "");
    form->click("Command4");
    ASSERT_EQ(drawnOn("Picture2").size(), 3U);
    EXPECT_EQ(drawnOn("Picture2")[1], kGraph.line(0, 15, 20, 15, kRed));
}

TEST_F(KonvertForm, DrawsTheLineOfWhatStandsInTheBoxesNow) {
    open(-3, 5, 4);
    answer("9", "9");
    form->type("Text1", "1");
    form->type("Text2", "2");
    form->click("Command4");
    EXPECT_EQ(drawnOn("Picture2")[1], kGraph.line(0, 13, 20, -7, kRed));
}

TEST_F(KonvertForm, SurvivesAnswersOfEverySize) {
    for (const char* typed : {"1e308", "-1e308", "1e39", "1e999", "-"}) {
        const FormDriver& f = open(-3, 5, 4);
        answer(typed, "-1e308");
        f.click("Command4");
        EXPECT_FALSE(f.page().grab().isNull());
        EXPECT_EQ(f.box("Text1").content(), "-0.188") << typed;
    }
}

TEST_F(KonvertForm, RoundsTheSlopeOfFourThirdsFromItsSingle) {
    const FormDriver& f = open(-5, 1, 4, 3);
    answer("1", "1");
    f.click("Command4");
    EXPECT_EQ(f.box("Text1").content(), "-2.812");
    EXPECT_EQ(f.box("Text2").content(), "0.75");
}

TEST_F(KonvertForm, OpensItsExampleInsteadOfTheTask) {
    const FormDriver& f = open(-3, 5, 4);
    f.click("Hjaelp");
    EXPECT_TRUE(f.isShown("Picture3"));
    EXPECT_FALSE(f.isShown("Label1"));
    EXPECT_FALSE(f.isShown("Label41"));
    EXPECT_EQ(f.focus(), "Vis");
    EXPECT_EQ(f.caption("Label39"), "P= -3 Q + 5");
    EXPECT_EQ(f.caption("Label40"), "1 Q svarer til 4 K");
    EXPECT_EQ(drawnOn("Picture4"),
              (std::vector<Stroke>{kExample.line(1, 1, 1, 9), kExample.line(0, 10, 20, 10),
                                   kExample.line(0, 0, 10, 10), kExample.line(0, 5, 20, 10, kLightGreen)}));
    EXPECT_EQ(graph("Picture4").scale(), (GraphScale{0, 0, 20, 10}));
    EXPECT_EQ(drawnOn("Picture3"), exampleBars());
}

TEST_F(KonvertForm, NamesTheFractionInItsHelp) {
    const FormDriver& f = open(2, 0, 3, 8);
    f.click("Hjaelp");
    EXPECT_EQ(f.caption("Label40"), "1 Q svarer til 3/8 K");
}

TEST_F(KonvertForm, MeasuresItsHelpInCentimetres) {
    open(-3, 5, 4);
    const GraphBox& panel = graph("Picture3");
    EXPECT_NEAR(panel.Control::place().width() / panel.scale().x2, fromTwips(567), 1e-3);
    EXPECT_NEAR(panel.Control::place().height() / panel.scale().y2, fromTwips(567), 1e-3);
}

TEST_F(KonvertForm, WorksOutAWholeFactor) {
    const FormDriver& f = open(-3, 5, 4);
    openHelpWithSolution();
    EXPECT_EQ(f.focus(), "Luk");
    EXPECT_TRUE(f.isShown("Label41"));
    std::string row;
    for (const char* name : kFilledIn) {
        row += f.caption(name) + "|";
    }
    EXPECT_EQ(row, "P= |-3|4 · 4|K + |5|4|= -0.188 K + 1.25|");
    EXPECT_NEAR(left("Label16_1"), right("Label12_1") + 0.4, 1e-6);
    EXPECT_NEAR(left("Label18_1"), right("Label16_1") + 0.4, 1e-6);
    EXPECT_NEAR(left("Label20_1"), left("Label16_1"), 1e-6);
    EXPECT_NEAR(right("Label20_1"), right("Label16_1"), 1e-6);
    EXPECT_NEAR(left("Label28_1"), right("Label18_1") + 0.3, 1e-6);
    EXPECT_NEAR(right("Label28_1"), left("Label28_1") + 1, 1e-6);
    EXPECT_NEAR(left("Label24_1"), left("Label28_1"), 1e-6);
    EXPECT_NEAR(right("Label24_1"), right("Label28_1"), 1e-6);
    EXPECT_NEAR(left("Label42"), right("Label24_1") + 0.4, 1e-6);
    EXPECT_EQ(drawnOn("Picture3"), barsWith("Label16_1", "Label28_1"));
}

TEST_F(KonvertForm, WorksOutAFraction) {
    const FormDriver& f = open(-3, 5, 3, 8);
    openHelpWithSolution();
    std::string row;
    for (const char* name : kFilledIn) {
        row += f.caption(name) + "|";
    }
    EXPECT_EQ(row, "P=|-3|(3/8) · (3/8)|K + |5|3/8|= -21.333 K + 13.333|");
    EXPECT_FALSE(f.label("Label28_1").isAutoSize());
    EXPECT_TRUE(f.label("Label24_1").isAutoSize());
    EXPECT_EQ(f.label("Label24_1").place().width(), f.label("Label24_1").textWidth());
    EXPECT_NEAR(left("Label16_1"), right("Label12_1") + 0.4, 1e-6);
    EXPECT_NEAR(left("Label18_1"), right("Label16_1") + 0.4, 1e-6);
    EXPECT_NEAR(right("Label20_1"), right("Label16_1"), 1e-6);
    EXPECT_NEAR(left("Label24_1"), right("Label18_1") + 0.3, 1e-6);
    EXPECT_NEAR(left("Label28_1"), left("Label24_1"), 1e-6);
    EXPECT_NEAR(right("Label28_1"), right("Label24_1"), 1e-6);
    EXPECT_NEAR(left("Label42"), right("Label24_1") + 0.4, 1e-6);
    EXPECT_EQ(drawnOn("Picture3"), barsWith("Label16_1", "Label24_1"));
}

TEST_F(KonvertForm, ShowsTheSamePictureEveryTimeItIsAsked) {
    open(-3, 5, 3, 8);
    openHelpWithSolution();
    const std::vector<Stroke> once = drawnOn("Picture3");
    std::vector<QRectF> places;
    for (const char* name : kFilledIn) {
        places.push_back(form->label(name).place());
    }
    form->click("Vis");
    form->click("Luk");
    openHelpWithSolution();
    EXPECT_EQ(drawnOn("Picture3"), once);
    // The example is drawn over itself.
    const std::vector<Stroke> example = drawnOn("Picture4");
    ASSERT_EQ(example.size(), 8U);
    EXPECT_TRUE(std::equal(example.begin(), example.begin() + 4, example.begin() + 4));
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(form->label(kFilledIn[i]).place(), places[i]) << kFilledIn[i];
    }
}

TEST_F(KonvertForm, WorksOutAWholeFactorAlikeAfterAFraction) {
    open(-3, 5, 4);
    openHelpWithSolution();
    const std::vector<Stroke> once = drawnOn("Picture3");
    next(1, 1, 3, 8);
    openHelpWithSolution();
    next(-3, 5, 4);
    openHelpWithSolution();
    EXPECT_EQ(drawnOn("Picture3"), once);
    EXPECT_NEAR(right("Label24_1"), left("Label24_1") + 1, 1e-6);
}

TEST_F(KonvertForm, KeepsTheWorkedSolutionWhileItsHelpIsClosed) {
    const FormDriver& f = open(-3, 5, 4);
    openHelpWithSolution();
    f.click("Luk");
    EXPECT_FALSE(f.isShown("Picture3"));
    EXPECT_TRUE(f.isShown("Label1"));
    EXPECT_EQ(f.focus(), "Text1");
    f.click("Hjaelp");
    EXPECT_EQ(f.focus(), "Vis");
    EXPECT_EQ(f.caption("Label42"), "= -0.188 K + 1.25");
    EXPECT_TRUE(f.isShown("Label41"));
    // The bars of the solution, between the example's and the example's once more.
    EXPECT_EQ(drawnOn("Picture3").size(), 6U);
}

TEST_F(KonvertForm, JudgesByTheRoundedSolutionOnceItWasShown) {
    // -0.1875, rounded to -0.188
    open(-3, 5, 4);
    answer("-0.193", "1.25");
    EXPECT_TRUE(form->isShown("Label9"));
    openHelpWithSolution();
    answer("-0.193", "1.25");
    EXPECT_TRUE(form->isShown("Label10"));
    EXPECT_EQ(drawnOn("Picture2")[1], kGraph.line(0, 13.75F, 20, 15 - (20 * -0.188 + 1.25), kLightGreen));
}

TEST_F(KonvertForm, ClosesItsHelpWithARightAnswerAndKeepsTheTaskAway) {
    const FormDriver& f = open(2, 3, 1);
    f.click("Hjaelp");
    answer("1", "1");
    EXPECT_TRUE(f.isShown("Picture3")) << "a wrong answer leaves it open";
    answer("2", "3");
    EXPECT_FALSE(f.isShown("Picture3"));
    EXPECT_FALSE(f.isShown("Label1"));
    f.click("Hjaelp");
    f.click("Luk");
    EXPECT_TRUE(f.isShown("Label1"));
}

TEST_F(KonvertForm, ClosesItsHelpWithTheGivenAnswerAndKeepsTheTaskAway) {
    const FormDriver& f = open(2, 3, 1);
    answer("1", "1");
    f.click("Hjaelp");
    f.click("Command4");
    EXPECT_FALSE(f.isShown("Picture3"));
    EXPECT_FALSE(f.isShown("Label1"));
    next(1, 1, 1);
    EXPECT_TRUE(f.isShown("Label1"));
}

TEST_F(KonvertForm, ForgetsEverythingWithTheNextExercise) {
    const FormDriver& f = open(-3, 5, 4);
    answer("1", "1");
    openHelpWithSolution();
    next(1, 1, 1);
    for (const char* hidden : {"Picture3", "Label41", "Label9", "Label10", "Command4"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    for (const char* name : kFilledIn) {
        EXPECT_EQ(f.caption(name), " ") << name;
    }
    EXPECT_EQ(f.box("Text1").content() + f.box("Text2").content(), "");
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_TRUE(drawnOn("Picture3").empty());
    f.click("Hjaelp");
    EXPECT_EQ(drawnOn("Picture3"), exampleBars());
}

TEST_F(KonvertForm, HasRoomForTheLongestNumbers) {
    const DecimalMark danish(",");
    for (const int numerator : {3, 7}) {
        const FormDriver& f = open(-5, 7, numerator, 8);
        openHelpWithSolution();
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
        f.click("Luk");
        answer("1", "1");
        f.click("Command4");
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    }
}

}  // namespace
}  // namespace tavrune
