#include "topics/basics/konvert.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/basics/konvert_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FormDriver;
namespace konvert = test::konvert;

const QColor kLightGreen(0, 190, 0);
constexpr test::StrokesIn kGraph{{0, 0, 20, 15}};
constexpr test::StrokesIn kExample{{0, 0, 20, 10}};

/// Where 1 Q is a whole number of K.
constexpr int kWhole = 0;

/// a from -5 to 4, b from 0 to 7, 1 Q is n/m K.
test::Script scriptOf(int a, int b, int n, int m) {
    return konvert::slope(a) + konvert::intercept(b) +
           (m == kWhole ? konvert::wholeFactor(n) : konvert::fractionFactor(n, m));
}

class KonvertForm : public test::ScriptedForm<int, int, int, int> {
protected:
    KonvertForm() : ScriptedForm(PageName::Konvert, scriptOf) {}

    FormDriver& open(int a, int b, int n, int m = kWhole) { return ScriptedForm::open(a, b, n, m); }
    void next(int a, int b, int n, int m = kWhole) { ScriptedForm::next(a, b, n, m); }

    void answer(const std::string& slope, const std::string& intercept) const {
        form->type("slope", slope);
        form->type("intercept", intercept);
        form->click("ok");
    }

    void openHelpWithSolution() const {
        form->click("help");
        form->press("showWorkedSolution", Qt::Key_Return);
    }

    [[nodiscard]] double left(const std::string& name) const {
        return graph("helpPanel").leftOf(form->label(name));
    }
    [[nodiscard]] double right(const std::string& name) const {
        return graph("helpPanel").rightOf(form->label(name));
    }

    [[nodiscard]] Stroke bar(double from, double to) const {
        return test::StrokesIn{graph("helpPanel").scale()}.line(from, 5.35, to, 5.35);
    }
    [[nodiscard]] Stroke barOver(const std::string& name) const { return bar(left(name), right(name)); }
    [[nodiscard]] std::vector<Stroke> exampleBars() const { return {bar(1.58, 2.4), bar(3.8, 4.3)}; }
    [[nodiscard]] std::vector<Stroke> barsWith(const std::string& one, const std::string& other) const {
        return {bar(1.58, 2.4), bar(3.8, 4.3), barOver(one), barOver(other)};
    }
};

constexpr const char* kFilledIn[] = {"workedPriceEquals",
                                     "workedSlopeNumerator",
                                     "workedSlopeDenominator",
                                     "workedTimesConvertedUnitPlus",
                                     "workedInterceptNumerator",
                                     "workedInterceptDenominator",
                                     "workedResult"};

constexpr test::FixedText kFixedTexts[]{
    {"priceAxisName", "P"},
    {"quantityAxisName", "Q eller K"},
    {"priceEquals", "P="},
    {"timesConvertedUnitPlus", "K +"},
    {"newExercise", "&Ny opgave"},
    {"ok", "&OK"},
    {"giveAnswer", "&Giv svaret"},
    {"help", "&Hjælp"},
    {"generalRule",
     "Den nye hældning er altså den nuværende hældning divideret med omregningsfaktorens kvadrat, og det nye "
     "konstantled er det nuværende konstantled divideret med omregningsfaktoren."},
    {"generalHeading", "Generel løsning"},
    {"workedHeading", "Aktuel løsning"},
    {"helpPriceAxisName", "P"},
    {"helpQuantityAxisName", "Q eller K"},
    {"helpGivenFunction", "P = -1Q + 10"},
    {"helpConvertedFunction", "P = -0.25K + 5"},
    {"generalPriceEquals", "P= "},
    {"generalSlopeNumerator", "-1"},
    {"generalSlopeDenominator", "2 · 2"},
    {"generalTimesConvertedUnitPlus", "K + "},
    {"generalInterceptNumerator", "10"},
    {"generalInterceptDenominator", "2"},
    {"generalResult", "= -0.25K + 5"},
    {"workedRule", "Hældningen er divideret to gange med omregningsfaktoren, konstantleddet én gang."},
    {"showWorkedSolution", "Vis"},
    {"closeHelp", "&Luk"},
};

TEST_F(KonvertForm, WritesItsWorkedExampleWithTheMarkOfTheLocale) {
    for (const auto& [mark, result] : {std::pair{",", "-0,25K + 5"}, {".", "-0.25K + 5"}}) {
        const DecimalMark written(mark);
        SeededDraws seeded{1};
        const FormDriver f(PageName::Konvert, seeded);
        EXPECT_EQ(f.caption("helpConvertedFunction"), std::string("P = ") + result);
        EXPECT_EQ(f.caption("generalResult"), std::string("= ") + result);
    }
}

TEST_F(KonvertForm, BearsItsFixedTexts) {
    const FormDriver& f = open(-3, 5, 4);
    test::expectTexts(f, kFixedTexts);
    EXPECT_TRUE(f.caption("generalText")
                    .starts_with("Funktionskonvertering vises lettest ud fra et eksempel. Antag, at en vare "
                                 "har afsætningsfunktionen "
                                 "P = -1Q + 10, og at hvert styk tager 2 timer at producere."));
}

TEST_F(KonvertForm, IsBlankUntilItsOpening) {
    const FormDriver unshown = FormDriver::unshown(PageName::Konvert, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Funktionskonvertering");
    EXPECT_EQ(unshown.caption("task") + unshown.caption("givenFunction"), "");
    test::expectHidden(unshown, {"giveAnswer", "wrong", "right", "helpPanel", "workedRule"});
    EXPECT_TRUE(unshown.find<GraphBox>("graphFrame").strokes().empty());
}

TEST_F(KonvertForm, AsksForTheFunctionInTheOtherUnit) {
    const FormDriver& f = open(-3, 5, 4);
    EXPECT_EQ(f.caption("task"),
              " For den viste funktion gælder, at 1 Q svarer til 4 K. Udtryk funktionen i K");
    EXPECT_EQ(f.caption("givenFunction"), "P= -3Q + 5");
    EXPECT_EQ(f.focus(), "slope");
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_FALSE(f.isShown("giveAnswer"));
    for (const char* name : kFilledIn) {
        EXPECT_EQ(f.caption(name), " ") << name;
    }
}

TEST_F(KonvertForm, AsksWithAFractionAsItWasDrawn) {
    const FormDriver& f = open(0, 0, 6, 4);
    EXPECT_EQ(f.caption("task"),
              " For den viste funktion gælder, at 1 Q svarer til 6/4 K. Udtryk funktionen i K");
    EXPECT_EQ(f.caption("givenFunction"), "P= 0Q + 0");
}

TEST_F(KonvertForm, DrawsTheTicksOfBothAxesOnTheFrame) {
    open(-3, 5, 4);
    const test::StrokesIn onFrame{graph("graphFrame").scale()};
    std::vector<Stroke> ticks;
    for (int x = 1; x <= 21; ++x) {
        ticks.push_back(onFrame.line(x, 15.2, x, 15.4));
    }
    for (int y = 0; y <= 15; ++y) {
        ticks.push_back(onFrame.line(0.8, y + 0.2, 1, y + 0.2));
    }
    EXPECT_EQ(strokes("graphFrame"), ticks);
    next(1, 1, 1);
    EXPECT_EQ(strokes("graphFrame"), ticks) << "once, with every exercise";
}

TEST_F(KonvertForm, HasItsGraphAndItsNumbersAtTheTicks) {
    const FormDriver& f = open(-3, 5, 4);
    const GraphBox& frame = graph("graphFrame");
    const GraphBox& inside = graph("graph");
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
    EXPECT_EQ(strokes("graph"), (std::vector<Stroke>{kGraph.line(0, 10, 20, 70)}));
    answer("1", "1");
    form->click("giveAnswer");
    next(2, 7, 1);
    EXPECT_EQ(strokes("graph"), (std::vector<Stroke>{kGraph.line(0, 8, 20, -32)}));
}

TEST_F(KonvertForm, IsSolvedByKeysAlone) {
    const FormDriver& f = open(-3, 5, 4);
    f.type("slope", "-0,19");
    EXPECT_EQ(f.box("slope").content(), "-0.19");
    f.press("slope", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "intercept");
    f.type("intercept", "1,25");
    f.press("intercept", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "ok");
    f.press("ok", Qt::Key_Return);
    test::expectSolved(f);
    script(1, 1, 1, kWhole);
    f.press("newExercise", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("right"));
    EXPECT_EQ(f.focus(), "slope");
}

TEST_F(KonvertForm, EnterInTheLastBoxGoesOnToTheNextExerciseOnceSolved) {
    const FormDriver& f = open(1, 1, 1);
    answer("1", "1");
    f.press("intercept", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "newExercise");
}

TEST_F(KonvertForm, DrawsTheRightFunctionInGreenWhereItIsSolved) {
    open(4, 7, 2);
    answer("1", "3.5");
    EXPECT_EQ(strokes("graph"), (std::vector<Stroke>{kGraph.line(0, 8, 20, -72),
                                                     kGraph.line(0, 11.5F, 20, -8.5F, kLightGreen)}));
}

TEST_F(KonvertForm, DrawsTheSolutionAndNotWhatWasTyped) {
    open(-5, 1, 4, 3);
    answer("-2.81", "0.75");
    const double slope = -5.0F / ((4.0F / 3.0F) * (4.0F / 3.0F));
    const double intercept = 1.0F / (4.0F / 3.0F);
    ASSERT_EQ(strokes("graph").size(), 2U);
    EXPECT_EQ(strokes("graph")[1],
              kGraph.line(0, 15 - intercept, 20, 15 - (20 * slope + intercept), kLightGreen));
}

TEST_F(KonvertForm, TakesTheGivenNumbersWhereTheFactorIsOne) {
    const FormDriver& f = open(-4, 6, 1);
    answer("-4", "6");
    EXPECT_TRUE(f.isShown("right"));
}

TEST_F(KonvertForm, TakesNothingForZeros) {
    const FormDriver& f = open(0, 0, 3);
    f.click("ok");
    EXPECT_TRUE(f.isShown("right"));
}

TEST_F(KonvertForm, MarksOnlyTheWrongSlope) {
    const FormDriver& f = open(-3, 5, 4);
    answer("2", "1.25");
    EXPECT_EQ(colour("slope"), kRed);
    EXPECT_EQ(colour("intercept"), kWhite);
    test::expectWrong(f, "slope");
    EXPECT_EQ(strokes("graph").size(), 1U) << "a wrong answer draws nothing";
}

TEST_F(KonvertForm, MarksOnlyTheWrongConstantAndGoesToTheSlopeAllTheSame) {
    const FormDriver& f = open(-3, 5, 4);
    answer("-0.19", "1.3");
    EXPECT_EQ(colour("slope"), kWhite);
    EXPECT_EQ(colour("intercept"), kRed);
    EXPECT_EQ(f.focus(), "slope");
    answer("7", "1.25");
    EXPECT_EQ(colour("slope"), kRed);
    EXPECT_EQ(colour("intercept"), kWhite) << "what was wrong before is judged anew";
}

TEST_F(KonvertForm, TakesBothEndsOfTheTolerance) {
    for (const auto& [slope, intercept, isRight] : {std::tuple{"2.005", "3.005", true},
                                                    {"1.995", "2.995", true},
                                                    {"2.0051", "3", false},
                                                    {"1.9949", "3", false},
                                                    {"2", "3.0051", false},
                                                    {"2", "2.9949", false}}) {
        const FormDriver& f = open(2, 3, 1);
        answer(slope, intercept);
        EXPECT_EQ(f.isShown("right"), isRight) << slope << " " << intercept;
    }
}

TEST_F(KonvertForm, GivesTheAnswerRoundedWithBothLines) {
    const DecimalMark danish(",");
    const FormDriver& f = open(-3, 5, 4);
    answer("0.5", "2");
    f.click("giveAnswer");
    test::expectContents(f, {{"slope", "-0,188"}, {"intercept", "1,25"}});
    test::expectGiven(f);
    // The green line is the solution as it was before its rounding.
    EXPECT_EQ(strokes("graph"),
              (std::vector<Stroke>{kGraph.line(0, 10, 20, 70), kGraph.line(0, 13, 20, 3, kRed),
                                   kGraph.line(0, 13.75F, 20, 17.5F, kLightGreen)}));
}

TEST_F(KonvertForm, DrawsTheLineOfEmptyBoxesToo) {
    open(-3, 5, 4);
    answer("", "");
    form->click("giveAnswer");
    ASSERT_EQ(strokes("graph").size(), 3U);
    EXPECT_EQ(strokes("graph")[1], kGraph.line(0, 15, 20, 15, kRed));
}

TEST_F(KonvertForm, DrawsTheLineOfWhatStandsInTheBoxesNow) {
    open(-3, 5, 4);
    answer("9", "9");
    form->type("slope", "1");
    form->type("intercept", "2");
    form->click("giveAnswer");
    EXPECT_EQ(strokes("graph")[1], kGraph.line(0, 13, 20, -7, kRed));
}

TEST_F(KonvertForm, SurvivesAnswersOfEverySize) {
    for (const char* typed : {"1e308", "-1e308", "1e39", "1e999", "-"}) {
        const FormDriver& f = open(-3, 5, 4);
        answer(typed, "-1e308");
        f.click("giveAnswer");
        EXPECT_FALSE(f.page().grab().isNull());
        EXPECT_EQ(f.box("slope").content(), "-0.188") << typed;
    }
}

TEST_F(KonvertForm, RoundsTheSlopeOfFourThirdsFromItsSingle) {
    const FormDriver& f = open(-5, 1, 4, 3);
    answer("1", "1");
    f.click("giveAnswer");
    test::expectContents(f, {{"slope", "-2.812"}, {"intercept", "0.75"}});
}

TEST_F(KonvertForm, OpensItsExampleInsteadOfTheTask) {
    const FormDriver& f = open(-3, 5, 4);
    f.click("help");
    EXPECT_TRUE(f.isShown("helpPanel"));
    test::expectHidden(f, {"task", "workedRule"});
    EXPECT_EQ(f.focus(), "showWorkedSolution");
    test::expectTexts(
        f, {{"workedGivenFunction", "P= -3 Q + 5"}, {"workedConversionFactor", "1 Q svarer til 4 K"}});
    EXPECT_EQ(strokes("helpGraph"),
              (std::vector<Stroke>{kExample.line(1, 1, 1, 9), kExample.line(0, 10, 20, 10),
                                   kExample.line(0, 0, 10, 10), kExample.line(0, 5, 20, 10, kLightGreen)}));
    EXPECT_EQ(graph("helpGraph").scale(), (GraphScale{0, 0, 20, 10}));
    EXPECT_EQ(strokes("helpPanel"), exampleBars());
}

TEST_F(KonvertForm, NamesTheFractionInItsHelp) {
    const FormDriver& f = open(2, 0, 3, 8);
    f.click("help");
    EXPECT_EQ(f.caption("workedConversionFactor"), "1 Q svarer til 3/8 K");
}

TEST_F(KonvertForm, MeasuresItsHelpInCentimetres) {
    open(-3, 5, 4);
    const GraphBox& panel = graph("helpPanel");
    EXPECT_NEAR(panel.Control::place().width() / panel.scale().x2, fromTwips(567), 1e-3);
    EXPECT_NEAR(panel.Control::place().height() / panel.scale().y2, fromTwips(567), 1e-3);
}

TEST_F(KonvertForm, WorksOutAWholeFactor) {
    const FormDriver& f = open(-3, 5, 4);
    openHelpWithSolution();
    EXPECT_EQ(f.focus(), "closeHelp");
    EXPECT_TRUE(f.isShown("workedRule"));
    std::string row;
    for (const char* name : kFilledIn) {
        row += f.caption(name) + "|";
    }
    EXPECT_EQ(row, "P= |-3|4 · 4|K + |5|4|= -0.188 K + 1.25|");
    EXPECT_NEAR(left("workedSlopeDenominator"), right("workedPriceEquals") + 0.4, 1e-6);
    EXPECT_NEAR(left("workedTimesConvertedUnitPlus"), right("workedSlopeDenominator") + 0.4, 1e-6);
    EXPECT_NEAR(left("workedSlopeNumerator"), left("workedSlopeDenominator"), 1e-6);
    EXPECT_NEAR(right("workedSlopeNumerator"), right("workedSlopeDenominator"), 1e-6);
    EXPECT_NEAR(left("workedInterceptNumerator"), right("workedTimesConvertedUnitPlus") + 0.3, 1e-6);
    EXPECT_NEAR(right("workedInterceptNumerator"), left("workedInterceptNumerator") + 1, 1e-6);
    EXPECT_NEAR(left("workedInterceptDenominator"), left("workedInterceptNumerator"), 1e-6);
    EXPECT_NEAR(right("workedInterceptDenominator"), right("workedInterceptNumerator"), 1e-6);
    EXPECT_NEAR(left("workedResult"), right("workedInterceptDenominator") + 0.4, 1e-6);
    EXPECT_EQ(strokes("helpPanel"), barsWith("workedSlopeDenominator", "workedInterceptNumerator"));
}

TEST_F(KonvertForm, WorksOutAFraction) {
    const FormDriver& f = open(-3, 5, 3, 8);
    openHelpWithSolution();
    std::string row;
    for (const char* name : kFilledIn) {
        row += f.caption(name) + "|";
    }
    EXPECT_EQ(row, "P=|-3|(3/8) · (3/8)|K + |5|3/8|= -21.333 K + 13.333|");
    EXPECT_FALSE(f.label("workedInterceptNumerator").isAutoSize());
    EXPECT_TRUE(f.label("workedInterceptDenominator").isAutoSize());
    EXPECT_EQ(f.label("workedInterceptDenominator").place().width(),
              f.label("workedInterceptDenominator").textWidth());
    EXPECT_NEAR(left("workedSlopeDenominator"), right("workedPriceEquals") + 0.4, 1e-6);
    EXPECT_NEAR(left("workedTimesConvertedUnitPlus"), right("workedSlopeDenominator") + 0.4, 1e-6);
    EXPECT_NEAR(right("workedSlopeNumerator"), right("workedSlopeDenominator"), 1e-6);
    EXPECT_NEAR(left("workedInterceptDenominator"), right("workedTimesConvertedUnitPlus") + 0.3, 1e-6);
    EXPECT_NEAR(left("workedInterceptNumerator"), left("workedInterceptDenominator"), 1e-6);
    EXPECT_NEAR(right("workedInterceptNumerator"), right("workedInterceptDenominator"), 1e-6);
    EXPECT_NEAR(left("workedResult"), right("workedInterceptDenominator") + 0.4, 1e-6);
    EXPECT_EQ(strokes("helpPanel"), barsWith("workedSlopeDenominator", "workedInterceptDenominator"));
}

TEST_F(KonvertForm, ShowsTheSamePictureEveryTimeItIsAsked) {
    open(-3, 5, 3, 8);
    openHelpWithSolution();
    const std::vector<Stroke> once = strokes("helpPanel");
    std::vector<QRectF> places;
    for (const char* name : kFilledIn) {
        places.push_back(form->label(name).place());
    }
    form->click("showWorkedSolution", "closeHelp");
    openHelpWithSolution();
    EXPECT_EQ(strokes("helpPanel"), once);
    // The example is drawn over itself.
    const std::vector<Stroke> example = strokes("helpGraph");
    ASSERT_EQ(example.size(), 8U);
    EXPECT_TRUE(std::equal(example.begin(), example.begin() + 4, example.begin() + 4));
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(form->label(kFilledIn[i]).place(), places[i]) << kFilledIn[i];
    }
}

TEST_F(KonvertForm, WorksOutAWholeFactorAlikeAfterAFraction) {
    open(-3, 5, 4);
    openHelpWithSolution();
    const std::vector<Stroke> once = strokes("helpPanel");
    next(1, 1, 3, 8);
    openHelpWithSolution();
    next(-3, 5, 4);
    openHelpWithSolution();
    EXPECT_EQ(strokes("helpPanel"), once);
    EXPECT_NEAR(right("workedInterceptDenominator"), left("workedInterceptDenominator") + 1, 1e-6);
}

TEST_F(KonvertForm, KeepsTheWorkedSolutionWhileItsHelpIsClosed) {
    const FormDriver& f = open(-3, 5, 4);
    openHelpWithSolution();
    f.click("closeHelp");
    EXPECT_TRUE(f.isShown("task"));
    EXPECT_FALSE(f.isShown("helpPanel"));
    EXPECT_EQ(f.focus(), "slope");
    f.click("help");
    EXPECT_EQ(f.focus(), "showWorkedSolution");
    EXPECT_EQ(f.caption("workedResult"), "= -0.188 K + 1.25");
    EXPECT_TRUE(f.isShown("workedRule"));
    // The bars of the solution, between the example's and the example's once more.
    EXPECT_EQ(strokes("helpPanel").size(), 6U);
}

TEST_F(KonvertForm, JudgesByTheRoundedSolutionOnceItWasShown) {
    // -0.1875, rounded to -0.188
    open(-3, 5, 4);
    answer("-0.193", "1.25");
    EXPECT_TRUE(form->isShown("wrong"));
    openHelpWithSolution();
    answer("-0.193", "1.25");
    EXPECT_TRUE(form->isShown("right"));
    EXPECT_EQ(strokes("graph")[1], kGraph.line(0, 13.75F, 20, 15 - (20 * -0.188 + 1.25), kLightGreen));
}

TEST_F(KonvertForm, ClosesItsHelpWithARightAnswerAndKeepsTheTaskAway) {
    const FormDriver& f = open(2, 3, 1);
    f.click("help");
    answer("1", "1");
    EXPECT_TRUE(f.isShown("helpPanel")) << "a wrong answer leaves it open";
    answer("2", "3");
    test::expectHidden(f, {"helpPanel", "task"});
    f.click("help", "closeHelp");
    EXPECT_TRUE(f.isShown("task"));
}

TEST_F(KonvertForm, ClosesItsHelpWithTheGivenAnswerAndKeepsTheTaskAway) {
    const FormDriver& f = open(2, 3, 1);
    answer("1", "1");
    f.click("help", "giveAnswer");
    test::expectHidden(f, {"helpPanel", "task"});
    next(1, 1, 1);
    EXPECT_TRUE(f.isShown("task"));
}

TEST_F(KonvertForm, ForgetsEverythingWithTheNextExercise) {
    const FormDriver& f = open(-3, 5, 4);
    answer("1", "1");
    openHelpWithSolution();
    next(1, 1, 1);
    test::expectHidden(f, {"helpPanel", "workedRule", "wrong", "right", "giveAnswer"});
    for (const char* name : kFilledIn) {
        EXPECT_EQ(f.caption(name), " ") << name;
    }
    EXPECT_EQ(f.box("slope").content() + f.box("intercept").content(), "");
    EXPECT_EQ(colour("slope"), kWhite);
    EXPECT_TRUE(strokes("helpPanel").empty());
    f.click("help");
    EXPECT_EQ(strokes("helpPanel"), exampleBars());
}

TEST_F(KonvertForm, HasRoomForTheLongestNumbers) {
    const DecimalMark danish(",");
    for (const int numerator : {3, 7}) {
        const FormDriver& f = open(-5, 7, numerator, 8);
        openHelpWithSolution();
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
        f.click("closeHelp");
        answer("1", "1");
        f.click("giveAnswer");
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    }
}

}  // namespace
}  // namespace tavrune
