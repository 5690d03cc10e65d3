#include "topics/basics/lininter.h"

#include <gtest/gtest.h>

#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/basics/lininter_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FormDriver;

constexpr test::StrokesIn kGraph{{-7, 16.5, 15, -5}};
// Two axes, 22 ticks on each of them, and two crosses of two strokes.
constexpr std::size_t kStrokesOfTask = 50;

/// True if both ends lie within the scale.
bool isInside(const Stroke& s) {
    const auto isBetween = [](float least, float x, float most) { return least <= x && x <= most; };
    return isBetween(-7, s.x1, 15) && isBetween(-7, s.x2, 15) && isBetween(-5, s.y1, 16.5F) &&
           isBetween(-5, s.y2, 16.5F);
}

class LininterForm : public test::ScriptedForm<int, int, int, int, Coordinate, int> {
protected:
    LininterForm() : ScriptedForm(PageName::Lininter, test::lininter::script) {}

    // One exercise for each row of the table of arrowheads; the line is P = 2Q, P = 2Q - 14 or P = Q/2 + 5.
    FormDriver& openQAbove() { return open(1, 2, 3, 6, Coordinate::Quantity, 4); }   // P is 8.
    FormDriver& openQBelow() { return open(9, 4, 10, 6, Coordinate::Quantity, 1); }  // P is -12.
    FormDriver& openPAbove() { return open(1, 2, 3, 6, Coordinate::Price, 5); }      // Q is 2.5.
    FormDriver& openPBelow() { return open(2, 6, 4, 7, Coordinate::Price, 1); }      // Q is -8.

    void answer(const std::string& typed) const {
        form->type("askedCoordinate", typed);
        form->click("ok");
    }

    void giveAfter(const std::string& typed) const {
        answer(typed);
        form->click("giveAnswer");
    }

    /// What was drawn after the task.
    [[nodiscard]] std::vector<Stroke> drawnLater() const {
        return test::strokesFrom(graph(), kStrokesOfTask);
    }
};

TEST_F(LininterForm, IsBlankUntilItsOpening) {
    const FormDriver unshown = FormDriver::unshown(PageName::Lininter, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Lineær interpolation/ekstrapolation");
    test::expectBlank(unshown, {"pointA", "pointB", "givenLetter", "givenCoordinate", "askedLetter",
                                "workedPrice", "workedQuantity"});
    test::expectHidden(
        unshown, {"giveAnswer", "wrong", "right", "helpPanel", "workedSolution", "pointAName", "pointBName"});
    EXPECT_FALSE(unshown.button("showPriceSolution").isEnabled());
    EXPECT_FALSE(unshown.button("showQuantitySolution").isEnabled());
}

constexpr test::FixedText kFixedTexts[]{
    {"givenPointsHeading", "Givet følgende to punkter:"},
    {"givenCaption", "Givet:"},
    {"askedCaption", "Bestem:"},
    {"newPointCondition", "Så det nye punkt (P;Q) ligger på linien gennem A og B."},
    {"givenEquals", "="},
    {"askedEquals", "="},
    {"quantityMark5", "5"},
    {"quantityMark10", "10"},
    {"originMark", "0"},
    {"priceMark5", "5"},
    {"priceMark10", "10"},
    {"priceMark15", "15"},
    {"pointAName", "A"},
    {"pointBName", "B"},
    {"priceAxisName", "P"},
    {"quantityAxisName", "Q"},
    {"newExercise", "&Ny opgave"},
    {"ok", "&OK"},
    {"giveAnswer", "&Giv svaret"},
    {"help", "&Hjælp"},
    {"generalHeading", "Generel løsning"},
    {"generalText",
     "Princippet for lineær interpolation og ekstrapolation er det samme. Vi vil finde den rette linie, "
     "som går gennem de to givne punkter A og B. Derpå indsætter vi det opgivne Q eller P, og finder "
     "derpå det manglende koordinat, så det fremkomne punkt ligger på linien."},
    {"generalQuantityGivenHeading", "Interpolation og ekstrapolation hvor Q-koordinat kendes."},
    {"generalPriceGivenHeading", "Interpolation og ekstrapolation hvor P-koordinat kendes."},
    {"generalSlopeText",
     "Kendes to punkter A og B, findes ændringen i P-værdien i forhold til ændringen i Q-værdien ved at "
     "gå fra A til B."},
    {"generalInverseSlopeText",
     "Kendes to punkter A og B, findes ændringen i Q-værdien i forhold til ændringen i P-værdien ved at "
     "gå fra A til B."},
    {"generalPriceText", "Givet et nyt punkts Q-værdi kan punktets P-værdi nu findes."},
    {"generalQuantityText", "Givet et nyt punkts P-værdi kan punktets Q-værdi nu findes."},
    {"generalSlopeNumerator", "Pb - Pa"},
    {"generalSlopeDenominator", "Qb - Qa"},
    {"generalSlope", "α"},
    {"generalInverseSlopeNumerator", "Qb - Qa"},
    {"generalInverseSlopeDenominator", "Pb - Pa"},
    {"generalInverseSlope", "ω"},
    {"generalPriceRule", "P = Pa - ( Qa - Q )·"},
    {"generalPriceRuleSlope", "α"},
    {"generalQuantityRule", "Q = Qa - ( Pa - P )·"},
    {"generalQuantityRuleInverseSlope", "ω"},
    {"workedHeading", "Aktuel løsning"},
    {"generalSlopeEquals", "="},
    {"generalInverseSlopeEquals", "="},
    {"showPriceSolution", "Vis"},
    {"showQuantitySolution", "Vis"},
    {"closeHelp", "&Luk"},
};

TEST_F(LininterForm, BearsItsFixedTexts) {
    const FormDriver& f = openQAbove();
    f.click("help");
    test::expectTexts(f, kFixedTexts);
    for (const char* onGraph :
         {"quantityMark5", "quantityMark10", "originMark", "priceMark5", "priceMark10", "priceMark15",
          "pointAName", "pointBName", "priceAxisName", "quantityAxisName"}) {
        EXPECT_EQ(f.label(onGraph).parentWidget(), &graph()) << onGraph;
    }
}

TEST_F(LininterForm, GivesQAndAsksForP) {
    const FormDriver& f = openQAbove();
    test::expectTexts(f, {{"pointA", "A : ( 1 ; 2 )"},
                          {"pointB", "B : ( 3 ; 6 )"},
                          {"givenLetter", "Q"},
                          {"givenEquals", "="},
                          {"givenCoordinate", "4"},
                          {"askedLetter", "P"},
                          {"askedEquals", "="}});
    EXPECT_EQ(f.focus(), "askedCoordinate");
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_FALSE(f.isShown("giveAnswer"));
}

TEST_F(LininterForm, GivesPAndAsksForQ) {
    const FormDriver& f = openPAbove();
    test::expectTexts(f, {{"givenLetter", "P"}, {"givenCoordinate", "5"}, {"askedLetter", "Q"}});
}

TEST_F(LininterForm, DrawsAxesThenTicksThenACrossForEachPoint) {
    openQAbove();
    std::vector<Stroke> expected{kGraph.line(0, 16.5, 0, -5, kBlack), kGraph.line(-7, 0, 15, 0, kBlack)};
    for (int x = -7; x <= 14; ++x) {
        expected.push_back(kGraph.point(x, 0.1));
    }
    for (int y = -5; y <= 16; ++y) {
        expected.push_back(kGraph.point(0.1, y));
    }
    expected.push_back(kGraph.line(0.65, 2, 1.35, 2, kBlue));
    expected.push_back(kGraph.line(1, 1.65, 1, 2.35, kBlue));
    expected.push_back(kGraph.line(2.65, 6, 3.35, 6, kBlue));
    expected.push_back(kGraph.line(3, 5.65, 3, 6.35, kBlue));
    ASSERT_EQ(expected.size(), kStrokesOfTask);
    EXPECT_EQ(graph().strokes(), expected);
}

TEST_F(LininterForm, PutsTheNamesByThePoints) {
    const FormDriver& f = openPBelow();
    test::expectShown(f, {"pointAName", "pointBName"});
    const double unitsToOne = graph().Control::place().height() / 21.5;
    EXPECT_NEAR(graph().leftOf(f.label("pointAName")), 2, 1e-6);
    EXPECT_NEAR(f.label("pointAName").place().top(), (16.5 - 5.5) * unitsToOne, 1e-6);
    EXPECT_NEAR(graph().leftOf(f.label("pointBName")), 4, 1e-6);
    EXPECT_NEAR(f.label("pointBName").place().top(), (16.5 - 6.5) * unitsToOne, 1e-6);
}

TEST_F(LininterForm, ClearsTheGraphWithEachExercise) {
    const FormDriver& f = openQAbove();
    answer("8");
    EXPECT_GT(graph().strokes().size(), kStrokesOfTask);
    next(9, 4, 10, 6, Coordinate::Quantity, 1);
    EXPECT_EQ(graph().strokes().size(), kStrokesOfTask);
    EXPECT_EQ(graph().scale(), kGraph.scale);
    EXPECT_NEAR(graph().leftOf(f.label("pointAName")), 9, 1e-6);
}

TEST_F(LininterForm, IsSolvedByKeysAlone) {
    const FormDriver& f = openPAbove();
    f.type("askedCoordinate", "2,5");
    f.press("askedCoordinate", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "ok");
    f.press("ok", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(f.focus(), "newExercise");
    script(1, 2, 3, 6, Coordinate::Quantity, 4);
    f.press("newExercise", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("right"));
    EXPECT_EQ(f.caption("givenLetter"), "Q");
    EXPECT_EQ(f.box("askedCoordinate").content(), "");
    EXPECT_EQ(f.focus(), "askedCoordinate");
}

TEST_F(LininterForm, MarksAWrongAnswerAndDrawsNothing) {
    const FormDriver& f = openQAbove();
    answer("7");
    test::expectWrong(f, "askedCoordinate");
    EXPECT_EQ(f.box("askedCoordinate").backColour(), kRed);
    EXPECT_EQ(f.box("askedCoordinate").content(), "7");
    EXPECT_TRUE(drawnLater().empty());
}

TEST_F(LininterForm, StaysRedUntilARightAnswer) {
    const FormDriver& f = openQAbove();
    answer("7");
    f.type("askedCoordinate", "8");
    EXPECT_EQ(f.box("askedCoordinate").backColour(), kRed);
    f.click("ok");
    test::expectSolved(f);
}

TEST_F(LininterForm, StaysRedUntilTheAnswerIsGivenOrTheNextExercise) {
    const FormDriver& f = openQAbove();
    giveAfter("7");
    EXPECT_EQ(f.box("askedCoordinate").backColour(), kWhite);
    next(1, 2, 3, 6, Coordinate::Quantity, 4);
    answer("7");
    next(1, 2, 3, 6, Coordinate::Quantity, 4);
    EXPECT_EQ(f.box("askedCoordinate").backColour(), kWhite);
    EXPECT_FALSE(f.isShown("wrong"));
}

TEST_F(LininterForm, TakesTheHalfOpenBandRoundTheTarget) {
    const FormDriver& f = open(2, 4, 10, 9, Coordinate::Quantity, 1);  // 3.375
    for (const char* wrong : {"3.37", "3.38001", "3.4", "", "abc", "3,4"}) {
        answer(wrong);
        EXPECT_TRUE(f.isShown("wrong")) << wrong;
    }
    answer("3.37001");
    EXPECT_TRUE(f.isShown("right"));
    for (const char* right : {"3.38", "3.375"}) {
        next(2, 4, 10, 9, Coordinate::Quantity, 1);
        answer(right);
        EXPECT_TRUE(f.isShown("right")) << right;
    }
}

TEST_F(LininterForm, DrawsLineGuidesAndHeadsForQGivenAndATargetAbove) {
    openQAbove();
    answer("8");
    const std::vector<Stroke> expected{
        kGraph.line(-7, -14, 15, 30, kBlue),   kGraph.line(4, 0, 4, 8, kGreen),
        kGraph.line(0, 8, 4, 8, kGreen),       kGraph.line(4, 8, 3.65, 7.65, kGreen),
        kGraph.line(4, 8, 4.35, 7.65, kGreen), kGraph.line(0, 8, 0.35, 8.35, kGreen),
        kGraph.line(0, 8, 0.35, 7.65, kGreen),
    };
    EXPECT_EQ(drawnLater(), expected);
}

TEST_F(LininterForm, DrawsTheHeadAstrayWhereATargetBelowIsJudged) {
    openQBelow();
    answer("-12");
    const std::vector<Stroke> expected{
        kGraph.line(-7, -28, 15, 16, kBlue),           kGraph.line(1, 0, 1, -12, kGreen),
        kGraph.line(0, -12, 1, -12, kGreen),           kGraph.line(-12, -38, -12.35, -37.65, kGreen),
        kGraph.line(-12, -38, -11.65, -37.65, kGreen), kGraph.line(0, -12, 0.35, -11.65, kGreen),
        kGraph.line(0, -12, 0.35, -12.35, kGreen),
    };
    EXPECT_EQ(drawnLater(), expected);
}

TEST_F(LininterForm, DrawsTheProperHeadWhereATargetBelowIsGiven) {
    openQBelow();
    giveAfter("3");
    const std::vector<Stroke> expected{
        kGraph.line(-7, -28, 15, 16, kBlue),       kGraph.line(1, 0, 1, -12, kGreen),
        kGraph.line(0, -12, 1, -12, kGreen),       kGraph.line(0.65, 3, 1.35, 3, kRed),
        kGraph.line(1, 2.65, 1, 3.35, kRed),       kGraph.line(1, -12, 0.65, -11.65, kGreen),
        kGraph.line(1, -12, 1.35, -11.65, kGreen), kGraph.line(0, -12, 0.35, -11.65, kGreen),
        kGraph.line(0, -12, 0.35, -12.35, kGreen),
    };
    EXPECT_EQ(drawnLater(), expected);
}

TEST_F(LininterForm, DrawsLineGuidesAndHeadsForPGivenAndATargetAbove) {
    openPAbove();
    answer("2.5");
    const std::vector<Stroke> expected{
        kGraph.line(-7, -14, 15, 30, kBlue),     kGraph.line(0, 5, 2.5, 5, kGreen),
        kGraph.line(2.5, 0, 2.5, 5, kGreen),     kGraph.line(2.5, 5, 2.15, 5.35, kGreen),
        kGraph.line(2.5, 5, 2.15, 4.65, kGreen), kGraph.line(2.5, 0, 2.15, 0.35, kGreen),
        kGraph.line(2.5, 0, 2.85, 0.35, kGreen),
    };
    EXPECT_EQ(drawnLater(), expected);
}

TEST_F(LininterForm, DrawsLineGuidesCrossAndHeadsForPGivenAndATargetBelow) {
    openPBelow();
    giveAfter("4");
    const std::vector<Stroke> expected{
        kGraph.line(-7, 1.5, 15, 12.5, kBlue),   kGraph.line(0, 1, -8, 1, kGreen),
        kGraph.line(-8, 0, -8, 1, kGreen),       kGraph.line(3.65, 1, 4.35, 1, kRed),
        kGraph.line(4, 0.65, 4, 1.35, kRed),     kGraph.line(-8, 1, -7.65, 1.35, kGreen),
        kGraph.line(-8, 1, -7.65, 0.65, kGreen), kGraph.line(-8, 0, -8.35, 0.35, kGreen),
        kGraph.line(-8, 0, -7.65, 0.35, kGreen),
    };
    EXPECT_EQ(drawnLater(), expected);
}

TEST_F(LininterForm, DrawsTheHeadAstrayOnTheBoxWhereTheLineIsSeenThere) {
    // P = Q/2 - 3: P is -1 at Q = 4; the line's value at -1 is -3.5.
    open(8, 1, 10, 2, Coordinate::Quantity, 4);
    answer("-1");
    const std::vector<Stroke> heads = test::strokesFrom(graph(), kStrokesOfTask + 3);
    const std::vector<Stroke> expected{
        kGraph.line(-1, -3.5, -1.35, -3.15, kGreen),
        kGraph.line(-1, -3.5, -0.65, -3.15, kGreen),
        kGraph.line(0, -1, 0.35, -0.65, kGreen),
        kGraph.line(0, -1, 0.35, -1.35, kGreen),
    };
    EXPECT_EQ(heads, expected);
    for (const Stroke& stroke : heads) {
        EXPECT_TRUE(isInside(stroke));
    }
}

TEST_F(LininterForm, StandsATargetJustBelowSixteenInsideTheBox) {
    open(1, 2, 4, 9, Coordinate::Quantity, 7);
    answer("15.999");
    EXPECT_TRUE(form->isShown("right"));
    const std::vector<Stroke> guidesAndHeads = test::strokesFrom(graph(), kStrokesOfTask + 1);
    ASSERT_EQ(guidesAndHeads.size(), 6U);
    EXPECT_EQ(guidesAndHeads.front(), kGraph.line(7, 0, 7, 15.999999F, kGreen));
    for (const Stroke& stroke : guidesAndHeads) {
        EXPECT_TRUE(isInside(stroke));
    }
}

TEST_F(LininterForm, DrawsEverythingByTheLineWhereSinglesPutItBesideTheGivenP) {
    // P = 2Q/3 + 1/3: 6 is met at 8.5, and the line's value there is not quite 6.
    constexpr float kQ = 8.499999F;
    constexpr float kP = 5.9999995F;
    open(1, 1, 4, 3, Coordinate::Price, 6);
    answer("8.5");
    const float slope = 2.0F / 3;
    const float intercept = -slope + 1;
    const Stroke through = kGraph.line(-7, slope * -7 + intercept, 15, slope * 15 + intercept, kBlue);
    const std::vector<Stroke> guides{kGraph.line(0, 6, kQ, kP, kGreen), kGraph.line(kQ, 0, kQ, kP, kGreen)};
    const std::vector<Stroke> heads{
        kGraph.line(kQ, 6, kQ - 0.35, kP + 0.35, kGreen), kGraph.line(kQ, 6, kQ - 0.35, kP - 0.35, kGreen),
        kGraph.line(kQ, 0, kQ - 0.35, 0.35, kGreen), kGraph.line(kQ, 0, kQ + 0.35, 0.35, kGreen)};
    EXPECT_EQ(drawnLater(),
              (std::vector<Stroke>{through, guides[0], guides[1], heads[0], heads[1], heads[2], heads[3]}));
    open(1, 1, 4, 3, Coordinate::Price, 6);
    giveAfter("2");
    EXPECT_EQ(form->box("askedCoordinate").content(), "8.5");
    EXPECT_EQ(
        drawnLater(),
        (std::vector<Stroke>{through, guides[0], guides[1], kGraph.line(1.65, 6, 2.35, 6, kRed),
                             kGraph.line(2, 5.65, 2, 6.35, kRed), heads[0], heads[1], heads[2], heads[3]}));
}

TEST_F(LininterForm, CrossesAtZeroWhereNothingWasTyped) {
    openQAbove();
    giveAfter("");
    const std::vector<Stroke> later = drawnLater();
    ASSERT_EQ(later.size(), 9U);
    EXPECT_EQ(later[3], kGraph.line(3.65, 0, 4.35, 0, kRed));
    EXPECT_EQ(later[4], kGraph.line(4, -0.35, 4, 0.35, kRed));
}

TEST_F(LininterForm, GivesTheAnswerInTheLocaleAndCrossesAtWhatWasTypedBefore) {
    const DecimalMark danish(",");
    const FormDriver& f = open(1, 2, 4, 7, Coordinate::Quantity, 8);  // 13.666...
    giveAfter("13,6");
    EXPECT_EQ(f.box("askedCoordinate").content(), "13,67");
    EXPECT_EQ(drawnLater()[3], kGraph.line(7.65, 13.6, 8.35, 13.6, kRed));
    test::expectGiven(f);
}

TEST_F(LininterForm, TakesAnyTypedText) {
    const FormDriver& f = openQAbove();
    for (const std::string& typed : test::kRoughTexts) {
        f.box("askedCoordinate").setContent(typed);
        f.click("ok", "giveAnswer");
        EXPECT_FALSE(f.page().grab().isNull());
        EXPECT_EQ(f.box("askedCoordinate").content(), "8");
        next(1, 2, 3, 6, Coordinate::Quantity, 4);
    }
}

TEST_F(LininterForm, ExplainsBothDirections) {
    const FormDriver& f = openQAbove();
    f.click("help");
    test::expectShown(f, {"helpPanel", "workedSolution"});
}

TEST_F(LininterForm, OpensOnlyTheSolutionOfItsDirection) {
    const FormDriver& q = openQAbove();
    q.click("help");
    EXPECT_TRUE(q.button("showPriceSolution").isEnabled());
    EXPECT_FALSE(q.button("showQuantitySolution").isEnabled());
    EXPECT_EQ(q.focus(), "showPriceSolution");
    test::expectTexts(q, {{"workedSlopeNumerator", "6 - 2"},
                          {"workedSlopeDenominator", "3 - 1"},
                          {"workedSlope", " = 2"},
                          {"workedPrice", "P=2 - ( 1 - 4 )·2 = 8"},
                          {"workedQuantity", ""}});

    script(2, 6, 4, 7, Coordinate::Price, 1);
    q.click("newExercise");
    EXPECT_FALSE(q.button("showPriceSolution").isEnabled());
    EXPECT_FALSE(q.button("showQuantitySolution").isEnabled());
    q.click("help");
    EXPECT_FALSE(q.button("showPriceSolution").isEnabled());
    EXPECT_TRUE(q.button("showQuantitySolution").isEnabled());
    EXPECT_EQ(q.focus(), "showQuantitySolution");
    test::expectTexts(q, {{"workedInverseSlopeNumerator", "4 - 2"},
                          {"workedInverseSlopeDenominator", "7 - 6"},
                          {"workedInverseSlope", " = 2"},
                          {"workedQuantity", "Q = 2 - ( 6 - 1 )·2 = -8"}});
}

TEST_F(LininterForm, LeavesTheOtherSolutionFromBeforeUnderItsCover) {
    const FormDriver& f = openQAbove();
    f.click("help", "showPriceSolution");
    script(2, 6, 4, 7, Coordinate::Price, 1);
    f.click("newExercise", "help");
    EXPECT_EQ(f.caption("workedPrice"), "P=2 - ( 1 - 4 )·2 = 8");
    EXPECT_TRUE(f.isShown("priceSolutionCover"));
}

TEST_F(LininterForm, UncoversTheSolutionAndGoesToTheCloseButton) {
    const FormDriver& q = openQAbove();
    q.click("help");
    test::expectShown(q, {"priceSolutionCover", "quantitySolutionCover"});
    q.press("showPriceSolution", Qt::Key_Return);
    EXPECT_TRUE(q.isShown("quantitySolutionCover"));
    EXPECT_FALSE(q.isShown("priceSolutionCover"));
    EXPECT_EQ(q.focus(), "closeHelp");

    const FormDriver& p = openPAbove();
    p.click("help");
    p.press("showQuantitySolution", Qt::Key_Return);
    EXPECT_TRUE(p.isShown("priceSolutionCover"));
    EXPECT_FALSE(p.isShown("quantitySolutionCover"));
    EXPECT_EQ(p.focus(), "closeHelp");
}

TEST_F(LininterForm, CoversTheSolutionsAgainWhenThePanelCloses) {
    const FormDriver& f = openQAbove();
    f.click("help", "showPriceSolution", "closeHelp");
    test::expectShown(f, {"priceSolutionCover", "quantitySolutionCover"});
    EXPECT_FALSE(f.isShown("helpPanel"));
    EXPECT_TRUE(f.button("showPriceSolution").isEnabled());
}

TEST_F(LininterForm, CoversTheSolutionsAgainWithTheNextExercise) {
    const FormDriver& f = openQAbove();
    f.click("help", "showPriceSolution");
    next(1, 2, 3, 6, Coordinate::Quantity, 4);
    EXPECT_TRUE(f.isShown("priceSolutionCover"));
    EXPECT_FALSE(f.isShown("helpPanel"));
}

TEST_F(LininterForm, KeepsAnOpenSolutionWhereHelpIsAskedForAgain) {
    const FormDriver& f = openQAbove();
    f.click("help", "showPriceSolution", "help");
    EXPECT_FALSE(f.isShown("priceSolutionCover"));
    EXPECT_EQ(f.focus(), "showPriceSolution");
}

TEST_F(LininterForm, LeavesThePanelOpenWhileTheExerciseGoesOn) {
    const FormDriver& f = openQAbove();
    f.click("help");
    answer("7");
    EXPECT_TRUE(f.isShown("helpPanel"));
    f.click("giveAnswer");
    EXPECT_TRUE(f.isShown("helpPanel"));
    EXPECT_EQ(f.box("askedCoordinate").content(), "8");
}

TEST_F(LininterForm, CoversTheWholeSolutionAndNothingElse) {
    const FormDriver& f = open(10, 10, 7, 3, Coordinate::Quantity, 3);
    f.click("help");
    const QRect left = f.find("priceSolutionCover").geometry();
    const QRect right = f.find("quantitySolutionCover").geometry();
    for (const char* covered :
         {"workedSlopeNumerator", "workedSlopeBar", "workedSlopeDenominator", "workedSlope", "workedPrice"}) {
        EXPECT_TRUE(left.contains(f.find(covered).geometry())) << covered;
        EXPECT_FALSE(right.intersects(f.find(covered).geometry())) << covered;
    }
    for (const char* covered : {"workedInverseSlopeNumerator", "workedInverseSlopeBar",
                                "workedInverseSlopeDenominator", "workedInverseSlope", "workedQuantity"}) {
        EXPECT_TRUE(right.contains(f.find(covered).geometry())) << covered;
        EXPECT_FALSE(left.intersects(f.find(covered).geometry())) << covered;
    }
    EXPECT_FALSE(left.intersects(f.find("workedHeading").geometry()));
    EXPECT_EQ(f.label("priceSolutionCover").backColour(), kWhite);
    EXPECT_TRUE(f.find("priceSolutionCover").autoFillBackground());
    EXPECT_TRUE(f.find("quantitySolutionCover").autoFillBackground());
}

TEST_F(LininterForm, HasRoomForTheLongestNumbers) {
    const DecimalMark danish(",");
    for (const Coordinate which : {Coordinate::Quantity, Coordinate::Price}) {
        const bool isQ = which == Coordinate::Quantity;
        const FormDriver& f =
            isQ ? open(10, 10, 7, 3, Coordinate::Quantity, 3) : open(3, 10, 10, 6, Coordinate::Price, 8);
        giveAfter("-123456.75");
        f.click("help");
        f.click(isQ ? "showPriceSolution" : "showQuantitySolution");
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    }
}

}  // namespace
}  // namespace tavrune
