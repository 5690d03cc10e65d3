#include "topics/polynomial/topp.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include <gtest/gtest.h>

#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/polynomial/curve.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::DecimalMark;
using test::FormDriver;

const GraphScale kScale{-2, 15, 15, -15};
// Two axes, then the ticks: 30 on each axis, 6 on each, 7 and 6.
constexpr std::size_t kStrokesOfTask = 87;

const test::StrokesIn kIn{kScale};

test::Script scriptOf(int a, int b, int c, int patternCase) {
    return {cellOf(a - 1, 3), cellOf(b - 1, 10), cellOf(c - 1, 10), cellOf(patternCase - 1, 11)};
}

class ToppForm : public test::ScriptedForm<int, int, int, int> {
protected:
    ToppForm() : ScriptedForm(PageName::Topp, scriptOf) {}

    FormDriver& openPlain() { return open(1, 5, 6, 3); }     // 1Q²-5Q+6: the vertex is (2.5;-0.25).
    FormDriver& openNegative() { return open(1, 6, 5, 7); }  // -1Q²+6Q+5: the vertex is (3;14).

    void answer(const std::string& q, const std::string& p) const {
        form->type("vertexPrice", p);
        form->type("vertexQuantity", q);
        form->click("ok");
    }

    void giveAfter(const std::string& q, const std::string& p) const {
        answer(q, p);
        form->click("giveAnswer");
    }

    /// What was drawn after the task.
    [[nodiscard]] std::vector<Stroke> drawnLater() const {
        return test::strokesFrom(graph(), kStrokesOfTask);
    }
};

TEST_F(ToppForm, HidesTheButtonOfTheNextExerciseUntilItIsOnScreen) {
    const FormDriver unshown = FormDriver::unshown(PageName::Topp, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Andengradspolynomiet - Toppunkt");
    test::expectHidden(unshown, {"newExercise", "giveAnswer", "right", "wrong", "helpPanel"});
    test::expectBlank(unshown,
                      {"workedFunction", "task", "workedResult", "workedDiscriminant", "givenFunction"});
}

TEST_F(ToppForm, AsksForTheVertex) {
    const FormDriver& f = openPlain();
    test::expectTexts(f, {{"task", "Bestem toppunktet i følgende andengradspolynomium"},
                          {"priceEquals", "P ="},
                          {"givenFunction", "1Q²-5Q+6"},
                          {"vertexEquals", "Toppunkt: (Q;P) = ("},
                          {"vertexSemicolon", " ;"},
                          {"vertexClosingBracket", ")"}});
    test::expectShown(
        f, {"task", "priceEquals", "givenFunction", "vertexEquals", "vertexQuantity", "vertexSemicolon",
            "vertexPrice", "vertexClosingBracket", "ok", "newExercise", "workedSolutionCover"});
    test::expectHidden(f, {"giveAnswer", "right", "wrong", "helpPanel"});
}

TEST_F(ToppForm, NamesTheAxesAndTheirTicks) {
    const FormDriver& f = openPlain();
    test::expectTexts(f, {{"priceAxisName", "P"}, {"quantityAxisName", "Q"}});
    std::multiset<std::string> captions;
    for (const Label* label : graph().findChildren<Label*>()) {
        captions.insert(label->caption());
    }
    EXPECT_EQ(captions, (std::multiset<std::string>{"-10", "-5", "5", "10", "5", "10", "P", "Q"}));
}

TEST_F(ToppForm, StartsInTheRightHandBoxAndGoesToTheLeftHandOne) {
    const FormDriver& f = openPlain();
    EXPECT_EQ(f.focus(), "vertexPrice");
    EXPECT_GT(f.box("vertexPrice").place().left(), f.box("vertexQuantity").place().left());
    f.press("vertexPrice", Qt::Key_Return);
    test::expectWayByEnter(f, {"vertexQuantity", "ok"});
}

TEST_F(ToppForm, DrawsAxesThenRowsOfTicks) {
    openPlain();
    std::vector<Stroke> expected{kIn.line(0, 20, 0, -20), kIn.line(-20, 0, 20, 0)};
    for (int x = -15; x < 15; ++x) {
        expected.push_back(kIn.point(x, 0.2));
    }
    for (int y = -15; y < 15; ++y) {
        expected.push_back(kIn.point(0.1, y));
    }
    for (const int x : {-15, -10, -5, 0, 5, 10}) {
        expected.push_back(kIn.point(x, 0.3));
    }
    for (const int y : {-15, -10, -5, 0, 5, 10}) {
        expected.push_back(kIn.point(0.2, y));
    }
    for (const int x : {-15, -10, -5, 0, 5, 10, 15}) {
        expected.push_back(kIn.point(x, 0.4));
    }
    for (const int y : {-15, -10, -5, 0, 5, 10}) {
        expected.push_back(kIn.point(0.3, y));
    }
    ASSERT_EQ(expected.size(), kStrokesOfTask);
    EXPECT_EQ(graph().strokes(), expected);
}

TEST_F(ToppForm, DrawsTheAxesOnceHoweverManyVerticesAreOutOfReach) {
    script(1, 10, 1, 5);
    script(1, 10, 10, 7);
    const FormDriver& f = openPlain();
    EXPECT_EQ(graph().strokes().size(), kStrokesOfTask);
    test::expectTexts(f, {{"givenFunction", "1Q²-5Q+6"}, {"workedFunction", "1Q²-5Q+6"}});
}

TEST_F(ToppForm, ClearsTheGraphWithEachExercise) {
    openPlain();
    giveAfter("1", "1");
    EXPECT_GT(graph().strokes().size(), kStrokesOfTask);
    next(1, 6, 5, 7);
    EXPECT_EQ(graph().strokes().size(), kStrokesOfTask);
    EXPECT_EQ(form->caption("givenFunction"), "-1Q²+6Q+5");
}

TEST_F(ToppForm, IsSolvedByKeysAlone) {
    const FormDriver& f = openPlain();
    f.type("vertexPrice", "-0,25");
    f.press("vertexPrice", Qt::Key_Return);
    f.type("vertexQuantity", "2,5");
    f.press("vertexQuantity", Qt::Key_Return);
    f.press("ok", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(f.focus(), "newExercise");
    script(1, 6, 5, 7);
    f.press("newExercise", Qt::Key_Return);
    test::expectShown(f, {"newExercise", "ok"});
    EXPECT_FALSE(f.isShown("right"));
    test::expectContents(f, {{"vertexQuantity", ""}, {"vertexPrice", ""}});
    EXPECT_EQ(f.focus(), "vertexPrice");
}

TEST_F(ToppForm, DrawsTheCurveAndLeavesOnlyTheNextExerciseWhenSolved) {
    const FormDriver& f = openPlain();
    answer("1", "1");
    answer("2.5", "-0.25");
    test::expectSolved(f);
    EXPECT_EQ(drawnLater(), test::curveIn(kIn, 1, -5, 6));
    f.box("vertexQuantity").setFocus();
    f.press("vertexQuantity", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "vertexQuantity");
}

TEST_F(ToppForm, DrawsADownwardCurve) {
    openNegative();
    answer("3", "14");
    EXPECT_EQ(drawnLater(), test::curveIn(kIn, -1, 6, 5));
}

struct MarkRow {
    const char* name;
    const char* q;
    const char* p;
    bool isQRed;
    bool isPRed;
    const char* focus;
};

class ToppMarks : public ToppForm, public testing::WithParamInterface<MarkRow> {};

TEST_P(ToppMarks, ShowWhichCoordinateIsWrong) {
    const MarkRow& row = GetParam();
    const FormDriver& f = openPlain();
    answer(row.q, row.p);
    EXPECT_EQ(f.box("vertexQuantity").backColour(), row.isQRed ? kRed : kWhite);
    EXPECT_EQ(f.box("vertexPrice").backColour(), row.isPRed ? kRed : kWhite);
    test::expectWrong(f, row.focus);
    EXPECT_EQ(f.box("vertexQuantity").content(), row.q);
    EXPECT_EQ(f.box("vertexPrice").content(), row.p);
    EXPECT_TRUE(drawnLater().empty());
}

INSTANTIATE_TEST_SUITE_P(Rows, ToppMarks,
                         testing::Values(MarkRow{"OnlyQIsRight", "2.5", "1", false, true, "vertexPrice"},
                                         MarkRow{"OnlyPIsRight", "1", "-0.25", true, false, "vertexQuantity"},
                                         MarkRow{"NeitherIsRight", "1", "1", true, true, "vertexPrice"},
                                         MarkRow{"TheyAreSwapped", "-0.25", "2.5", true, true, "vertexPrice"},
                                         MarkRow{"NothingIsTyped", "", "", true, true, "vertexPrice"}),
                         [](const auto& row) { return row.param.name; });

TEST_F(ToppForm, WhitensABoxThatHasBecomeRight) {
    const FormDriver& f = openPlain();
    answer("1", "1");
    answer("2.5", "1");
    EXPECT_EQ(f.box("vertexQuantity").backColour(), kWhite);
    EXPECT_EQ(f.box("vertexPrice").backColour(), kRed);
    next(1, 6, 5, 7);
    EXPECT_EQ(f.box("vertexPrice").backColour(), kWhite);
    test::expectHidden(f, {"wrong", "giveAnswer"});
}

TEST_F(ToppForm, TakesTheHalfOpenBandRoundTheVertex) {
    const FormDriver& f = openPlain();
    for (const char* wrong : {"2.49499", "2.495", "2.506"}) {
        answer(wrong, "-0.25");
        EXPECT_EQ(f.box("vertexQuantity").backColour(), kRed) << wrong;
    }
    for (const char* right : {"2.49501", "2.505"}) {
        answer(right, "0");
        EXPECT_EQ(f.box("vertexQuantity").backColour(), kWhite) << right;
    }
}

TEST_F(ToppForm, TakesTwoEmptyBoxesForTheVertexOfABareSquare) {
    const FormDriver& f = open(2, 3, 4, 1);
    EXPECT_EQ(f.caption("givenFunction"), "2Q²");
    f.click("ok");
    EXPECT_TRUE(f.isShown("right"));
}

TEST_F(ToppForm, WantsTheVertexOfPlusBWhereCaseEightShowsMinusB) {
    const FormDriver& f = open(1, 4, 7, 8);
    test::expectTexts(f, {{"givenFunction", "-1Q²-4Q"},
                          {"workedFunction", "-1Q²-4Q"},
                          {"workedDiscriminant", "d = 4² - 4 · (-1) · 0 = 16"}});
    answer("-2", "4");
    EXPECT_TRUE(f.isShown("wrong"));
    answer("2", "4");
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(drawnLater(), test::curveIn(kIn, -1, 4, 0));
}

TEST_F(ToppForm, GivesTheAnswerWithACrossAtWhatWasTyped) {
    const DecimalMark danish(",");
    const FormDriver& f = openPlain();
    giveAfter("3", "-4,5");
    test::expectContents(f, {{"vertexQuantity", "2,5"}, {"vertexPrice", "-0,25"}});
    test::expectGiven(f);
    const std::vector<Stroke> cross{kIn.line(2.5, -4.5, 3.5, -4.5, kRed), kIn.line(3, -5, 3, -4, kRed)};
    EXPECT_EQ(drawnLater(), cross + test::curveIn(kIn, 1, -5, 6));
}

TEST_F(ToppForm, CrossesAtWhatStandsInTheBoxesWhenTheAnswerIsAskedFor) {
    const FormDriver& f = openPlain();
    answer("1", "1");
    f.type("vertexQuantity", "4");
    f.type("vertexPrice", "");
    f.click("giveAnswer");
    const std::vector<Stroke> later = drawnLater();
    ASSERT_GT(later.size(), 2U);
    EXPECT_EQ(later[0], kIn.line(3.5, 0, 4.5, 0, kRed));
    EXPECT_EQ(later[1], kIn.line(4, -0.5, 4, 0.5, kRed));
}

TEST_F(ToppForm, TakesAnyTypedText) {
    const FormDriver& f = openPlain();
    for (const std::string& typed : test::kRoughTexts) {
        f.box("vertexQuantity").setContent(typed);
        f.box("vertexPrice").setContent(typed);
        f.click("ok", "giveAnswer");
        EXPECT_FALSE(f.page().grab().isNull());
        EXPECT_EQ(f.box("vertexQuantity").content(), "2.5");
        next(1, 5, 6, 3);
    }
}

TEST_F(ToppForm, ExplainsTheGeneralSolution) {
    const FormDriver& f = openPlain();
    test::expectTexts(f, {{"generalHeading", "Generel løsning"},
                          {"generalFunction", "P = aQ² + bQ + c"},
                          {"generalDiscriminant", "d = b² - 4 · a · c"},
                          {"generalText", "Toppunktet (T) findes ved hjælp af følgende formel:"},
                          {"generalVertexEquals", "T: (P; Q) ="},
                          {"generalVertexOpeningBracket", "("},
                          {"generalVertexPriceNumerator", "-d"},
                          {"generalVertexPriceDenominator", "4 · a"},
                          {"generalVertexSemicolon", ";"},
                          {"generalVertexQuantityNumerator", "-b"},
                          {"generalVertexQuantityDenominator", "2 · a"},
                          {"generalVertexClosingBracket", ")"},
                          {"workedHeading", "Aktuel løsning"},
                          {"workedPriceEquals", "P="},
                          {"workedVertexEquals", "T: (P;Q) ="},
                          {"workedVertexOpeningBracket", "("},
                          {"workedVertexSemicolon", ";"},
                          {"workedVertexClosingBracket", ")"},
                          {"showWorkedSolution", "Vis"},
                          {"closeHelp", "&Luk"}});
}

TEST_F(ToppForm, WorksTheSolutionOutWithTheNumbersOfTheExercise) {
    const DecimalMark danish(",");
    const FormDriver& f = openPlain();
    test::expectTexts(f, {{"workedFunction", "1Q²-5Q+6"},
                          {"workedDiscriminant", "d = (-5)² - 4 · 1 · 6 = 1"},
                          {"workedVertexPriceNumerator", "-1"},
                          {"workedVertexPriceDenominator", "4·1"},
                          {"workedVertexQuantityNumerator", "-(-5)"},
                          {"workedVertexQuantityDenominator", "2·1"},
                          {"workedResult", "T: (P;Q) = (-0,25 ; 2,5)"}});
    next(2, 5, 6, 11);
    test::expectTexts(f, {{"workedFunction", "-2Q²-6"},
                          {"workedDiscriminant", "d = 0² - 4 · (-2) · (-6) = -48"},
                          {"workedVertexPriceNumerator", "-(-48)"},
                          {"workedVertexPriceDenominator", "4·(-2)"},
                          {"workedVertexQuantityNumerator", "-0"},
                          {"workedVertexQuantityDenominator", "2·(-2)"},
                          {"workedResult", "T: (P;Q) = (-6 ; 0)"}});
}

TEST_F(ToppForm, OpensItsHelpCoveredAndUncoversIt) {
    const FormDriver& f = openPlain();
    f.click("help");
    test::expectShown(f, {"helpPanel", "workedSolutionCover"});
    EXPECT_EQ(f.focus(), "showWorkedSolution");
    f.press("showWorkedSolution", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("workedSolutionCover"));
    EXPECT_EQ(f.focus(), "closeHelp");
    f.press("closeHelp", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("helpPanel"));
    EXPECT_EQ(f.focus(), "vertexPrice");
}

TEST_F(ToppForm, StaysUncoveredUntilTheNextExercise) {
    const FormDriver& f = openPlain();
    f.click("help", "showWorkedSolution", "closeHelp", "help");
    EXPECT_FALSE(f.isShown("workedSolutionCover"));
    EXPECT_EQ(f.focus(), "showWorkedSolution");
    next(1, 6, 5, 7);
    EXPECT_TRUE(f.isShown("workedSolutionCover"));
    EXPECT_FALSE(f.isShown("helpPanel"));
}

TEST_F(ToppForm, LeavesThePanelOpenWhileTheExerciseGoesOn) {
    const FormDriver& f = openPlain();
    f.click("help");
    answer("1", "1");
    EXPECT_TRUE(f.isShown("helpPanel"));
    f.click("giveAnswer");
    EXPECT_TRUE(f.isShown("helpPanel"));
    EXPECT_EQ(f.box("vertexQuantity").content(), "2.5");
}

TEST(ToppCover, LiesInFrontOfTheSolutionBelowThePolynomialAndOfNothingElse) {
    const std::set<std::string> solution{"workedDiscriminant",         "workedVertexEquals",
                                         "workedVertexOpeningBracket", "workedVertexPriceNumerator",
                                         "workedVertexPriceBar",       "workedVertexPriceDenominator",
                                         "workedVertexSemicolon",      "workedVertexQuantityNumerator",
                                         "workedVertexQuantityBar",    "workedVertexQuantityDenominator",
                                         "workedVertexClosingBracket", "workedResult"};
    SeededDraws draws(3);
    const FormDriver f(PageName::Topp, draws);
    const Label& cover = f.label("workedSolutionCover");
    EXPECT_EQ(cover.backColour(), kWhite);
    EXPECT_TRUE(cover.autoFillBackground());
    EXPECT_EQ(cover.caption(), "");
    const auto inPanel = f.find("helpPanel").findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    const QObjectList& siblings = cover.parent()->children();
    for (int exercise = 0; exercise < 500; ++exercise) {
        SCOPED_TRACE(f.caption("workedFunction"));
        std::size_t covered = 0;
        for (const QWidget* widget : inPanel) {
            const std::string name = widget->objectName().toStdString();
            if (solution.contains(name)) {
                ++covered;
                ASSERT_TRUE(cover.geometry().contains(widget->geometry())) << name;
                ASSERT_GT(siblings.indexOf(&cover), siblings.indexOf(widget)) << name;
            } else if (widget != &cover) {
                ASSERT_FALSE(cover.geometry().intersects(widget->geometry())) << name;
            }
        }
        ASSERT_EQ(covered, solution.size());
        f.button("newExercise").click();
    }
}

TEST_F(ToppForm, SetsItsFormulaSideBySideWithBarsAsWideAsTheFractions) {
    const FormDriver& f = open(3, 10, 10, 3);
    double right = 0;
    for (const char* name :
         {"workedVertexEquals", "workedVertexOpeningBracket", "workedVertexPriceNumerator",
          "workedVertexSemicolon", "workedVertexQuantityNumerator", "workedVertexClosingBracket"}) {
        EXPECT_GE(f.label(name).place().left(), right) << name;
        EXPECT_LE(f.label(name).place().left(), std::max(right, 320.0) + 4) << name;
        right = f.label(name).place().right();
    }
    const std::array<std::string, 3> fractions[]{
        {"workedVertexPriceNumerator", "workedVertexPriceBar", "workedVertexPriceDenominator"},
        {"workedVertexQuantityNumerator", "workedVertexQuantityBar", "workedVertexQuantityDenominator"}};
    for (const auto& [numerator, bar, denominator] : fractions) {
        const QLineF ends = f.find<LineControl>(bar).ends();
        EXPECT_EQ(ends.x1(), f.label(numerator).place().left());
        EXPECT_EQ(ends.x2(), f.label(numerator).place().right());
        EXPECT_EQ(f.label(denominator).place().left(), f.label(numerator).place().left());
        EXPECT_EQ(f.label(denominator).place().width(), f.label(numerator).place().width());
        EXPECT_GT(ends.y1(), f.label(numerator).place().top());
        EXPECT_LT(ends.y1(), f.label(denominator).place().top());
    }
}

TEST_F(ToppForm, HasRoomForTheLongestNumbers) {
    const DecimalMark danish(",");
    for (const int patternCase : {3, 6, 7, 9}) {
        const int c = patternCase == 3 || patternCase == 9 ? 10 : 6;
        const FormDriver& f = open(3, 10, c, patternCase);
        giveAfter("-123456.75", "-123456.75");
        f.click("help", "showWorkedSolution");
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    }
}

}  // namespace
}  // namespace tavrune
