#include "topics/basics/tomto.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/basics/tomto_script.h"

namespace tavrune {
namespace {

using test::FormDriver;
using test::tomto::Coefficients;
using test::tomto::Explicit;
using test::tomto::Implicit;

constexpr test::StrokesIn kToTen{{0, 10, 10, 0}};
constexpr test::StrokesIn kToAHundred{{0, 100, 100, 0}};
constexpr int kThick = 3;

struct Task {
    Coefficients coefficients;
    LineForm form;
};

constexpr Task kCrossing{{-2, 1, 8, 3, 1, -5}, Explicit};             // (2.6; 2.8)
constexpr Task kFarCrossing{{1, 1, 1, 2, 1, -10}, Explicit};          // (11; 12)
constexpr Task kNearCrossing{{-1, 1, 9, 1, 1, -8}, Explicit};         // (8.5; 0.5)
constexpr Task kFarInQOnly{{-1, 2, 4, -2, 5, 4}, Implicit};           // (12; 4)
constexpr Task kFarInPOnly{{2, 1, 7, 5, 1, 1}, Explicit};             // (2; 11)
constexpr Task kParallel{{4, 1, 3, 4, 2, 8}, Explicit};               // needs an old P other than 0
constexpr Task kCoinciding{{4, 1, 3, 4, 2, 3}, Explicit};             // the same
constexpr Task kCrossingOfThree{{-9, -10, 9, -10, -9, 9}, Implicit};  // (0.47; 0.47)
constexpr Task kParallelOfThree{{2, 3, 4, 4, 6, 5}, Implicit};
constexpr Task kCoincidingOfThree{{2, 3, 4, 4, 6, -4}, Implicit};

test::Script scriptOf(const Task& t) { return test::tomto::script(t.coefficients, t.form); }

class TomtoForm : public test::ScriptedForm<const Task&> {
protected:
    TomtoForm() : ScriptedForm(PageName::Tomto, scriptOf) {}

    /// Opens with a crossing, so that lines of two terms that do not cross can follow.
    FormDriver& openThen(const Task& task) {
        open(kCrossing);
        next(task);
        return *form;
    }

    void answer(const std::string& q, const std::string& p) const {
        form->click("crossing");
        form->type("crossingPointQuantity", q);
        form->type("crossingPointPrice", p);
        form->click("ok");
    }

    void choose(const std::string& option) const { form->click(option, "ok"); }

    [[nodiscard]] std::string choices() const {
        std::string chosen;
        for (const char* option : {"crossing", "parallel", "coinciding"}) {
            chosen += form->option(option).isChosen() ? 'x' : '-';
        }
        return chosen;
    }
};

constexpr test::FixedText kFixedTexts[]{
    {"task", "Bestem det eventuelle skæringspunkt mellem de to rette linier:"},
    {"relationChoice", "Linierne"},
    {"crossing", "skærer hinanden"},
    {"parallel", "er parallelle"},
    {"coinciding", "er sammenfaldende"},
    {"crossingPointEquals", "Skæringspunktets koordinater: (Q;P) ="},
    {"crossingPointOpeningBracket", "("},
    {"crossingPointSemicolon", ";"},
    {"crossingPointClosingBracket", ")"},
    {"priceMark0", "0"},
    {"quantityMark0", "0"},
    {"priceAxisName", "P"},
    {"quantityAxisName", "Q"},
    {"newExercise", "&Ny opgave"},
    {"ok", "&OK"},
    {"giveAnswer", "&Giv svaret"},
    {"help", "&Hjælp"},
    // Lines of two terms, with the table of decisions.
    {"explicitEquation1Form", "De to linier er af typen P = a1*Q + b1"},
    {"explicitEquation2Form", "P = a2*Q + b2"},
    {"explicitTask",
     "Du skal nu finde ud af om de to linier er sammenfaldende, parallele eller om de skærer hinanden. "
     "I sidste tilfælde skal du finde skæringspunktets koordinater"},
    {"explicitSlopesDiffer", "a1 ≠ a2"},
    {"explicitCrossingArrow", "=>"},
    {"explicitCrossingOutcome", "linierne skærer  hinanden"},
    {"explicitSlopesEqual", "a1 = a2"},
    {"explicitInterceptsDiffer", "b1 ≠ b2"},
    {"explicitParallelArrow", "=>"},
    {"explicitParallelOutcome", "linierne er parallelle"},
    {"explicitInterceptsEqual", "b1 = b2"},
    {"explicitCoincidingArrow", "=>"},
    {"explicitCoincidingOutcome", "linierne er sammenfaldende"},
    {"explicitGeneralHeading", "Teoretisk løsning"},
    {"explicitWorkedHeading", "Aktuel løsning"},
    {"explicitGeneralText", "Find skæringspunktets koordinater"},
    {"explicitGeneralEquated", "a1Q + b1 = a2Q + b2 =>"},
    {"explicitGeneralCollected", "(a1 - a2) * Q = b2 - b1 =>"},
    {"explicitGeneralQuantity", "Q = (b2 - b1)/(a1 - a2)"},
    {"explicitGeneralPrice", "P = a1Q + b1"},
    {"showExplicitWorkedSolution", "Vis"},
    {"closeExplicitHelp", "Luk"},
    // Lines of three terms.
    {"implicitEquation1Form", "De to linier er af typen   c1*P + a1*Q + b1 = 0"},
    {"implicitEquation2Form", "c2*P + a2*Q + b2 = 0"},
    {"implicitCrossingRule", "a1/a2    c1/c2  => linierne  skærer hinanden"},
    {"implicitParallelRule", "a1/a2 = c1/c2    b1/b2  => linierne er parallelle"},
    {"implicitCoincidingRule", "a1/a2 = c1/c2 = b1/b2  => linierne er sammenfaldende   "},
    {"implicitCrossingNotEqual", "≠"},
    {"implicitParallelNotEqual", "≠"},
    {"implicitGeneralText", "Skæringspunktets koordinater findes først generelt.                 "},
    {"implicitGeneralScaleText", "Ligning I ganges igennem med c2 og ligning II med c1"},
    {"implicitGeneralScaledEquation1", "I   c2*c1*P+c2*a1*Q+c2*b1=0"},
    {"implicitGeneralScaledEquation2", "II  c1*c2*P+c1*a2*Q+c1*b2=0 "},
    {"implicitGeneralSubtractText", "Ligning II trækkes fra ligning I"},
    {"implicitGeneralDifference", "(a1*c2-a2*c1)*Q+b1*c2-b2*c1=0"},
    {"implicitGeneralQuantityEquals", "Q ="},
    {"implicitGeneralQuantityNumerator", "b1*c2 - b2*c1         "},
    {"implicitGeneralQuantityDenominator", "a2*c1 - a1*c2"},
    {"implicitGeneralInsertText",
     "Q Isoleres. Indsæt værdier i udtrykket for Q. Sæt derefter den fundne Q-værdi ind i ligning I eller "
     "II og løs ligningen mht. P"},
    {"implicitWorkedQuantityEquals", "Q = "},
    {"showImplicitWorkedSolution", "Vis"},
    {"closeImplicitHelp", "&Luk"},
};

TEST_F(TomtoForm, StandsReadyBeforeItsOpening) {
    const FormDriver f = FormDriver::unshown(PageName::Tomto, draws);
    EXPECT_EQ(f.page().windowTitle().toStdString(), "Tavrune - 2 ligninger med 2 ubekendte");
    EXPECT_EQ(f.caption("givenEquation1") + f.caption("givenEquation2"), "");
    test::expectTexts(f, kFixedTexts);
    test::expectHidden(
        f, {"crossingPointEquals", "crossingPoint", "verdict", "giveAnswer", "explicitHelpPanel",
            "explicitDerivation", "implicitHelpPanel", "implicitDerivation", "explicitWorkedEquated",
            "explicitWorkedCollected", "explicitWorkedQuantity", "explicitWorkedPrice",
            "implicitWorkedQuantityEquals", "implicitWorkedQuantityNumerator",
            "implicitWorkedQuantityDenominator", "implicitWorkedQuantity", "implicitWorkedInserted",
            "implicitWorkedPrice", "implicitWorkedQuantityBar"});
}

TEST_F(TomtoForm, HasAGraphOfItsSizeWithTicksBesideIt) {
    const FormDriver& f = open(kCrossing);
    const QRectF box = static_cast<const Control&>(graph()).place();
    EXPECT_EQ(box.size(), QSizeF(fromTwips(3645), fromTwips(3645)));
    EXPECT_EQ(graph().backColour(), kWhite);
    // A tenth of the box apart, on whole units; the last one stands on the box's own edge.
    const auto offset = [&box](int part) {
        return std::min(std::round(box.width() * part / 10), box.width() - 1);
    };
    int tenths = 0;
    for (const char* name : {"priceTick10", "priceTick9", "priceTick8", "priceTick7", "priceTick6",
                             "priceTick5", "priceTick4", "priceTick3", "priceTick2", "priceTick1"}) {
        const QRectF tick = f.find<LineControl>(name).place();
        EXPECT_EQ(tick.right(), box.left()) << name;
        EXPECT_EQ(tick.top() - box.top(), offset(tenths++)) << name;
    }
    tenths = 0;
    for (const char* name : {"quantityTick0", "quantityTick1", "quantityTick2", "quantityTick3",
                             "quantityTick4", "quantityTick5", "quantityTick6", "quantityTick7",
                             "quantityTick8", "quantityTick9", "quantityTick10"}) {
        const QRectF tick = f.find<LineControl>(name).place();
        EXPECT_EQ(tick.top(), box.bottom()) << name;
        EXPECT_EQ(tick.left() - box.left(), offset(tenths++)) << name;
    }
}

TEST_F(TomtoForm, ShowsTheTwoLinesAndAsksForTheirRelationFirst) {
    const FormDriver& f = open(kCrossing);
    test::expectTexts(f, {{"givenEquation1", "l: P = -2Q + 8"}, {"givenEquation2", "m: P = 3Q - 5"}});
    EXPECT_EQ(choices(), "---");
    test::expectShown(f, {"ok", "equationsBackground"});
    test::expectHidden(f, {"crossingPoint", "crossingPointEquals"});
    EXPECT_EQ(f.caption("priceMarkMiddle") + f.caption("quantityMarkMiddle"), "55");
    EXPECT_EQ(graph().scale(), kToTen.scale);
    EXPECT_TRUE(strokes().empty());
}

TEST_F(TomtoForm, ShowsLinesOfThreeTerms) {
    const FormDriver& f = open(kCrossingOfThree);
    test::expectTexts(f,
                      {{"givenEquation1", "-10P - 9Q + 9 =  0"}, {"givenEquation2", "-9P - 10Q + 9 =  0"}});
}

TEST_F(TomtoForm, OpensWithItsOwnReplacementsForZeros) {
    const FormDriver& f = open({{0, 0, 0, 0, 0, 0}, Explicit});
    test::expectTexts(f, {{"givenEquation1", "l: P = 3Q + 2"}, {"givenEquation2", "m: P = 1Q + 5"}});
    next({{0, 0, 0, 0, 0, 0}, Explicit});
    test::expectTexts(f, {{"givenEquation1", "l: P = 7Q + 3"}, {"givenEquation2", "m: P = 1Q + 5"}});
}

TEST_F(TomtoForm, RepeatsTheDrawWhereItWouldOpenWithParallelLinesOfTwoTerms) {
    script(kParallel);
    const FormDriver& f = open(kCrossing);
    EXPECT_EQ(f.caption("givenEquation1"), "l: P = -2Q + 8");
    EXPECT_EQ(draws.randomized(), 2);
}

TEST_F(TomtoForm, OpensTheFieldsForACrossingAndStartsInTheRightHandOne) {
    const FormDriver& f = open(kCrossing);
    f.click("crossing");
    test::expectShown(f, {"crossingPoint", "crossingPointEquals"});
    EXPECT_EQ(f.focus(), "crossingPointPrice");
    EXPECT_LT(f.box("crossingPointQuantity").place().left(), f.box("crossingPointPrice").place().left());
}

TEST_F(TomtoForm, ClosesTheFieldsForTheOtherRelations) {
    const FormDriver& f = open(kCrossing);
    for (const char* other : {"parallel", "coinciding"}) {
        f.click("crossing", other);
        EXPECT_FALSE(f.isShown("crossingPoint")) << other;
        EXPECT_FALSE(f.isShown("crossingPointEquals")) << other;
    }
}

TEST_F(TomtoForm, IsSolvedByKeysAloneFromRightToLeft) {
    const FormDriver& f = open(kCrossing);
    f.press("crossing", Qt::Key_Space);
    EXPECT_EQ(f.focus(), "crossingPointPrice");
    f.type("crossingPointPrice", "2,8");
    f.press("crossingPointPrice", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "crossingPointQuantity");
    f.type("crossingPointQuantity", "2,6");
    f.press("crossingPointQuantity", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "ok");
    f.press("ok", Qt::Key_Return);
    test::expectSolved(f);
}

TEST_F(TomtoForm, EnterInTheLastBoxDoesNothingOnceSolved) {
    const FormDriver& f = open(kCrossing);
    answer("2.6", "2.8");
    f.box("crossingPointQuantity").setFocus();
    f.press("crossingPointQuantity", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "crossingPointQuantity");
}

TEST_F(TomtoForm, DrawsTheTrueLinesAndTheirCrossing) {
    open(kCrossing);
    answer("2.6", "2.8");
    EXPECT_EQ(strokes(),
              (std::vector<Stroke>{kToTen.line(0, 8, 10, -12, kGreen), kToTen.line(0, -5, 10, 25, kGreen),
                                   kToTen.point(2.6, 2.8, kBlue, kThick)}));
    graph().PSet(1, 1);
    EXPECT_EQ(strokes().back().width, 1) << "the width goes back";
}

TEST_F(TomtoForm, DrawsLinesOfThreeTermsInBlackOnceSolved) {
    open(kCrossingOfThree);
    answer("0.47", "0.47");
    ASSERT_TRUE(isRight());
    EXPECT_EQ(strokes(), (std::vector<Stroke>{kToTen.line(0, 0.9F, 10, 10 * -0.9F + 0.9F, kBlack),
                                              kToTen.line(0, 1, 10, 10 * (10.0F / -9) + 1, kBlack),
                                              kToTen.point(0.47, 0.47, kBlue, kThick)}));
}

TEST_F(TomtoForm, MarksEachWrongCoordinateByItself) {
    const FormDriver& f = open(kCrossing);
    answer("2.6", "2.9");
    test::expectWrong(f, "crossingPointPrice");
    EXPECT_EQ(colour("crossingPointQuantity"), kWhite);
    EXPECT_EQ(colour("crossingPointPrice"), kRed);
    answer("2.61", "2.8");
    EXPECT_EQ(colour("crossingPointQuantity"), kRed);
    EXPECT_EQ(colour("crossingPointPrice"), kWhite);
    EXPECT_TRUE(strokes().empty());
}

TEST_F(TomtoForm, IsWrongWithoutAChoice) {
    const FormDriver& f = open(kCrossing);
    f.click("ok");
    EXPECT_TRUE(isWrong());
    EXPECT_EQ(f.focus(), "ok") << "the fields are hidden";
    EXPECT_EQ(colour("crossingPointQuantity"), kRed) << "and marked all the same";
    EXPECT_EQ(colour("crossingPointPrice"), kRed);
}

TEST_F(TomtoForm, MarksHiddenFieldsByTheirNumbersWhateverIsChosen) {
    const FormDriver& f = open(kCrossing);
    f.click("crossing");
    f.type("crossingPointQuantity", "2.6");
    f.type("crossingPointPrice", "2.8");
    for (const char* other : {"parallel", "coinciding"}) {
        choose(other);
        EXPECT_TRUE(isWrong()) << other;
        EXPECT_EQ(colour("crossingPointQuantity"), kWhite);
        EXPECT_EQ(colour("crossingPointPrice"), kWhite);
    }
    EXPECT_FALSE(f.isShown("crossingPoint"));
}

TEST_F(TomtoForm, TakesParallelLinesByTheChoiceAlone) {
    const FormDriver& f = openThen(kParallel);
    test::expectTexts(f, {{"givenEquation1", "l: P = 4Q + 3"}, {"givenEquation2", "m: P = 4Q + 8"}});
    answer("5", "5");
    EXPECT_TRUE(isWrong());
    EXPECT_EQ(colour("crossingPointQuantity"), kRed);
    choose("parallel");
    EXPECT_TRUE(isRight());
    EXPECT_FALSE(f.isShown("crossingPoint"));
    EXPECT_EQ(colour("crossingPointQuantity"), kWhite);
    EXPECT_EQ(colour("crossingPointPrice"), kWhite);
    EXPECT_EQ(f.box("crossingPointQuantity").content(), "5");
    EXPECT_EQ(strokes(),
              (std::vector<Stroke>{kToTen.line(0, 3, 10, 43, kGreen), kToTen.line(0, 8, 10, 48, kGreen)}));
    graph().PSet(1, 1);
    EXPECT_EQ(strokes().back().width, 1);
}

TEST_F(TomtoForm, ClearsWhatAWrongTryLeftInHiddenFields) {
    const FormDriver& f = openThen(kParallel);
    answer("5", "5");
    choose("coinciding");
    EXPECT_TRUE(isWrong());
    EXPECT_EQ(colour("crossingPointQuantity"), kRed);
    next(kCrossing);
    EXPECT_EQ(colour("crossingPointQuantity"), kWhite);
    EXPECT_EQ(f.box("crossingPointQuantity").content() + f.box("crossingPointPrice").content(), "");
}

TEST_F(TomtoForm, TakesCoincidingLinesByTheChoiceAlone) {
    openThen(kCoinciding);
    choose("parallel");
    EXPECT_TRUE(isWrong());
    choose("coinciding");
    EXPECT_TRUE(isRight());
    EXPECT_EQ(strokes(),
              (std::vector<Stroke>{kToTen.line(0, 3, 10, 43, kGreen), kToTen.line(0, 3, 10, 43, kGreen)}));
}

TEST_F(TomtoForm, CountsParallelLinesOfThreeTermsWithOppositeConstantsAsCoinciding) {
    open(kCoincidingOfThree);
    choose("parallel");
    EXPECT_TRUE(isWrong());
    choose("coinciding");
    EXPECT_TRUE(isRight());
}

TEST_F(TomtoForm, CountsTheSameLineOfThreeTermsTwiceAsParallel) {
    open({{2, 3, 4, 2, 3, 4}, Implicit});
    choose("coinciding");
    EXPECT_TRUE(isWrong());
    choose("parallel");
    EXPECT_TRUE(isRight());
}

TEST_F(TomtoForm, ReachesToAHundredForACrossingBeyondTen) {
    const FormDriver& f = open(kFarCrossing);
    EXPECT_EQ(f.caption("priceMarkMiddle"), "5");
    answer("1", "1");
    EXPECT_EQ(f.caption("priceMarkMiddle"), "50") << "at a wrong try too";
    EXPECT_EQ(f.caption("quantityMarkMiddle"), "50");
    EXPECT_EQ(graph().scale(), kToAHundred.scale);
    answer("11", "12");
    EXPECT_TRUE(isRight());
    EXPECT_EQ(strokes(), (std::vector<Stroke>{kToAHundred.line(0, 1, 100, 101, kGreen),
                                              kToAHundred.line(0, -10, 100, 190, kGreen),
                                              kToAHundred.point(11, 12, kBlue, kThick)}));
}

TEST_F(TomtoForm, ReachesToAHundredForACrossingBeyondTenInQAlone) {
    const FormDriver& f = open(kFarInQOnly);
    answer("12", "4");
    EXPECT_TRUE(isRight());
    EXPECT_EQ(f.caption("priceMarkMiddle") + f.caption("quantityMarkMiddle"), "5050");
    EXPECT_EQ(graph().scale(), kToAHundred.scale);
    EXPECT_EQ(strokes(), (std::vector<Stroke>{kToAHundred.line(0, -2, 100, 48),
                                              kToAHundred.line(0, -0.8F, 100, 100 * 0.4F - 0.8F),
                                              kToAHundred.point(12, 4, kBlue, kThick)}));
}

TEST_F(TomtoForm, ReachesToAHundredForACrossingBeyondTenInPAlone) {
    const FormDriver& f = open(kFarInPOnly);
    answer("2", "11");
    EXPECT_TRUE(isRight());
    EXPECT_EQ(f.caption("priceMarkMiddle") + f.caption("quantityMarkMiddle"), "5050");
    EXPECT_EQ(graph().scale(), kToAHundred.scale);
    EXPECT_EQ(strokes(), (std::vector<Stroke>{kToAHundred.line(0, 7, 100, 207, kGreen),
                                              kToAHundred.line(0, 1, 100, 501, kGreen),
                                              kToAHundred.point(2, 11, kBlue, kThick)}));
}

TEST_F(TomtoForm, StaysAtTenForACrossingWithinTen) {
    const FormDriver& f = open(kNearCrossing);
    answer("8.5", "0.5");
    EXPECT_TRUE(isRight());
    EXPECT_EQ(f.caption("priceMarkMiddle"), "5");
    EXPECT_EQ(graph().scale(), kToTen.scale);
}

TEST_F(TomtoForm, LeavesTheNumbersOnTheAxesUntilTheNextJudging) {
    const FormDriver& f = open(kFarCrossing);
    answer("11", "12");
    next(kCrossing);
    EXPECT_EQ(graph().scale(), kToTen.scale);
    EXPECT_EQ(f.caption("priceMarkMiddle") + f.caption("quantityMarkMiddle"), "5050");
    f.click("ok");
    EXPECT_EQ(f.caption("priceMarkMiddle") + f.caption("quantityMarkMiddle"), "55");
}

TEST_F(TomtoForm, GivesACrossing) {
    const FormDriver& f = open(kCrossing);
    choose("parallel");
    f.click("giveAnswer");
    EXPECT_EQ(choices(), "x--");
    EXPECT_EQ(f.option("crossing").backColour(), kGreen);
    EXPECT_NE(f.option("parallel").backColour(), kGreen);
    test::expectShown(f, {"crossingPoint", "crossingPointEquals"});
    test::expectContents(f, {{"crossingPointQuantity", "2.6"}, {"crossingPointPrice", "2.8"}});
    test::expectGiven(f);
    EXPECT_EQ(strokes(),
              (std::vector<Stroke>{kToTen.line(0, 8, 10, -12, kGreen), kToTen.line(0, -5, 10, 25, kGreen),
                                   kToTen.point(2.6, 2.8, kBlue, kThick)}));
}

TEST_F(TomtoForm, WritesAGivenCrossingWithTheLocalesMark) {
    const test::DecimalMark inUse(",");
    const FormDriver& f = open(kCrossing);
    answer("1", "1");
    f.click("giveAnswer");
    EXPECT_EQ(f.box("crossingPointQuantity").content(), "2,6");
}

TEST_F(TomtoForm, GivesParallelLinesAndLeavesTheFieldsAsTheyAre) {
    const FormDriver& f = openThen(kParallel);
    answer("5", "6");
    f.click("giveAnswer");
    EXPECT_EQ(choices(), "-x-");
    EXPECT_EQ(f.option("parallel").backColour(), kGreen);
    EXPECT_TRUE(f.isShown("crossingPoint")) << "setting an option is no click";
    EXPECT_EQ(f.box("crossingPointQuantity").content(), "5");
    EXPECT_EQ(colour("crossingPointQuantity"), kWhite);
    EXPECT_EQ(strokes().size(), 2U);
}

TEST_F(TomtoForm, GivesCoincidingLines) {
    const FormDriver& f = openThen(kCoinciding);
    choose("parallel");
    f.click("giveAnswer");
    EXPECT_EQ(choices(), "--x");
    EXPECT_EQ(f.option("coinciding").backColour(), kGreen);
    EXPECT_FALSE(f.isShown("crossingPoint"));
}

TEST_F(TomtoForm, DrawsGivenLinesOfThreeTermsInGreen) {
    open(kCrossingOfThree);
    answer("1", "1");
    form->click("giveAnswer");
    ASSERT_EQ(strokes().size(), 3U);
    EXPECT_EQ(strokes()[0], kToTen.line(0, 0.9F, 10, 10 * -0.9F + 0.9F, kGreen));
    EXPECT_EQ(strokes()[1].colour, kGreen);
}

TEST_F(TomtoForm, KeepsThePenWideFromAGivenAnswerToTheNextExercise) {
    open(kParallelOfThree);
    choose("coinciding");
    form->click("giveAnswer");
    graph().PSet(1, 1);
    EXPECT_EQ(strokes().back().width, 3);
    next(kCrossing);
    EXPECT_TRUE(strokes().empty());
    graph().PSet(1, 1);
    EXPECT_EQ(strokes().back().width, 1);
}

TEST_F(TomtoForm, GivesAFarCrossingUnjudgedOnAxesThatStillEndAtTen) {
    const FormDriver& f = open(kFarCrossing);
    f.button("giveAnswer").click();
    EXPECT_EQ(f.caption("priceMarkMiddle") + f.caption("quantityMarkMiddle"), "5050");
    EXPECT_EQ(graph().scale(), kToTen.scale);
    EXPECT_EQ(strokes(),
              (std::vector<Stroke>{kToTen.line(0, 1, 100, 101, kGreen), kToTen.line(0, -10, 100, 190, kGreen),
                                   kToTen.point(11, 12, kBlue, kThick)}));
}

TEST_F(TomtoForm, ForgetsEverythingWithTheNextExercise) {
    const FormDriver& f = open(kCrossing);
    const QColor face = f.option("crossing").backColour();
    answer("1", "1");
    f.click("giveAnswer", "help", "showExplicitWorkedSolution");
    next(kCrossingOfThree);
    EXPECT_EQ(choices(), "---");
    EXPECT_EQ(f.option("crossing").backColour(), face);
    test::expectHidden(f, {"crossingPoint", "crossingPointEquals", "verdict", "giveAnswer",
                           "explicitHelpPanel", "explicitDerivation", "explicitWorkedEquated",
                           "explicitWorkedCollected", "explicitWorkedQuantity", "explicitWorkedPrice"});
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_EQ(f.box("crossingPointQuantity").content() + f.box("crossingPointPrice").content(), "");
    EXPECT_TRUE(strokes().empty());
    EXPECT_EQ(f.focus(), "newExercise") << "the focus stays where it is";
}

TEST_F(TomtoForm, TeachesLinesOfTwoTerms) {
    const FormDriver& f = open(kCrossing);
    f.click("help");
    test::expectShown(f, {"explicitHelpPanel", "explicitDerivation"});
    EXPECT_FALSE(f.isShown("implicitHelpPanel"));
    EXPECT_EQ(f.focus(), "showExplicitWorkedSolution");
    EXPECT_FALSE(f.isShown("explicitWorkedEquated"));
    test::expectTexts(f, kFixedTexts);
}

TEST_F(TomtoForm, WorksLinesOfTwoTermsOut) {
    const FormDriver& f = open(kCrossing);
    f.click("help");
    f.press("showExplicitWorkedSolution", Qt::Key_Return);
    test::expectTexts(f, {{"explicitWorkedEquated", "-2Q + 8 = 3Q - 5 =>"},
                          {"explicitWorkedCollected", "(-2 - 3) * Q = -5 - 8 =>"},
                          {"explicitWorkedQuantity", "Q = 13/5 = 2.6"},
                          {"explicitWorkedPrice", "P = -2*(13/5) + 8 = 2.8"}});
    test::expectShown(f, {"explicitWorkedEquated", "explicitWorkedCollected", "explicitWorkedQuantity",
                          "explicitWorkedPrice"});
    f.click("closeExplicitHelp");
    test::expectHidden(f, {"explicitHelpPanel", "explicitDerivation", "explicitWorkedEquated",
                           "explicitWorkedCollected", "explicitWorkedQuantity", "explicitWorkedPrice"});
}

TEST_F(TomtoForm, TeachesNoDerivationForEqualSlopes) {
    const FormDriver& f = openThen(kParallel);
    f.click("help");
    EXPECT_TRUE(f.isShown("explicitHelpPanel"));
    EXPECT_FALSE(f.isShown("explicitDerivation"));
    EXPECT_EQ(f.focus(), "help");
    next(kParallelOfThree);
    f.click("help");
    EXPECT_TRUE(f.isShown("implicitHelpPanel"));
    EXPECT_FALSE(f.isShown("implicitDerivation"));
    EXPECT_EQ(f.focus(), "help");
}

TEST_F(TomtoForm, TeachesLinesOfThreeTerms) {
    const FormDriver& f = open(kCrossingOfThree);
    f.click("help");
    test::expectShown(f, {"implicitHelpPanel", "implicitDerivation"});
    EXPECT_FALSE(f.isShown("explicitHelpPanel"));
    EXPECT_EQ(f.focus(), "showImplicitWorkedSolution");
    test::expectTexts(f, kFixedTexts);
}

TEST_F(TomtoForm, WorksLinesOfThreeTermsOut) {
    const FormDriver& f = open(kCrossingOfThree);
    f.click("help");
    f.press("showImplicitWorkedSolution", Qt::Key_Return);
    test::expectTexts(f, {{"implicitWorkedQuantityNumerator", "9*(-9) - 9*(-10)"},
                          {"implicitWorkedQuantityDenominator", "-10*(-10) - (-9)*(-9)"},
                          {"implicitWorkedQuantity", "= 9/19 = 0.47"},
                          {"implicitWorkedInserted", "I   -10*P - 9*(9/19)+9 = 0 "},
                          {"implicitWorkedPrice", "=> P = 0.47"}});
    const char* const revealed[] = {"implicitWorkedQuantityEquals",
                                    "implicitWorkedQuantityNumerator",
                                    "implicitWorkedQuantityDenominator",
                                    "implicitWorkedQuantity",
                                    "implicitWorkedInserted",
                                    "implicitWorkedPrice",
                                    "implicitWorkedQuantityBar"};
    test::expectShown(f, revealed);
    f.click("closeImplicitHelp");
    test::expectHidden(f, revealed);
    test::expectHidden(f, {"implicitHelpPanel", "implicitDerivation"});
}

TEST_F(TomtoForm, RunsTheBarToTheEndOfTheWiderNumber) {
    const FormDriver& f = open(kCrossingOfThree);
    f.click("help", "showImplicitWorkedSolution");
    EXPECT_EQ(f.find<LineControl>("implicitWorkedQuantityBar").ends().x2(),
              f.label("implicitWorkedQuantityDenominator").place().right());
    EXPECT_EQ(f.label("implicitWorkedQuantityDenominator").place().width(),
              f.label("implicitWorkedQuantityDenominator").textWidth())
        << "the wider one";
    // The shorter texts that follow are not measured by the longer ones.
    next({{1, 1, -3, -2, 1, -2}, Implicit});
    f.click("help", "showImplicitWorkedSolution");
    EXPECT_EQ(f.caption("implicitWorkedQuantityNumerator"), "-3*1 - (-2)*1");
    EXPECT_EQ(f.find<LineControl>("implicitWorkedQuantityBar").ends().x2(),
              f.label("implicitWorkedQuantityNumerator").place().left() +
                  f.label("implicitWorkedQuantityNumerator").textWidth());
}

TEST_F(TomtoForm, ClosesHelpOfThreeTermsWithTheNextExercise) {
    const FormDriver& f = open(kCrossingOfThree);
    f.click("help", "showImplicitWorkedSolution");
    next(kCrossing);
    test::expectHidden(f, {"implicitHelpPanel", "implicitDerivation", "implicitWorkedQuantityEquals",
                           "implicitWorkedQuantityNumerator", "implicitWorkedQuantityBar"});
}

TEST_F(TomtoForm, KeepsWhatWasTypedWhileHelpComesAndGoes) {
    const FormDriver& f = open(kCrossing);
    f.click("crossing");
    f.type("crossingPointQuantity", "4");
    f.click("help", "closeExplicitHelp");
    EXPECT_EQ(f.box("crossingPointQuantity").content(), "4");
    EXPECT_EQ(choices(), "x--");
    EXPECT_TRUE(f.isShown("crossingPoint"));
}

TEST_F(TomtoForm, TakesAnyTypedText) {
    const FormDriver& f = open(kCrossing);
    for (const char* text : {"", "abc", "1e308", "-1e308", "2.6.6"}) {
        answer(text, text);
        EXPECT_TRUE(isWrong()) << text;
    }
    f.box("crossingPointQuantity").setContent(std::string(1'000'000, '9'));
    f.click("ok");
    EXPECT_TRUE(isWrong());
}

TEST_F(TomtoForm, HasRoomForTheLongestNumbers) {
    const FormDriver& f = open({{-10, -10, 6, 7, -10, -4}, Implicit});
    f.click("help", "showImplicitWorkedSolution");
    EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    next({{-10, 8, 7, 5, 6, -3}, Explicit});
    f.click("help", "showExplicitWorkedSolution");
    EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    f.click("closeExplicitHelp");
    answer("11.11", "111.11");
    f.click("giveAnswer");
    EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
}

}  // namespace
}  // namespace tavrune
