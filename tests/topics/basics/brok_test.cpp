#include "topics/basics/brok.h"

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/form_driver.h"
#include "support/looks.h"
#include "support/scripted_draws.h"
#include "support/verdict.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::FormDriver;
using test::ScriptedDraws;

using enum Operation;

float part(int value) { return cellOf(value + 10, 20); }

class BrokForm : public testing::Test {
protected:
    void script(int a, int b, int c, int d, Operation type) {
        draws.append({part(a), part(b), part(c), part(d), cellOf(static_cast<int>(type), 4)});
    }

    FormDriver& open(int a, int b, int c, int d, Operation type) {
        script(a, b, c, d, type);
        form = std::make_unique<FormDriver>(PageName::Brok, draws);
        return *form;
    }

    void answer(const std::string& n, const std::string& m) const {
        form->type("numerator", n);
        form->type("denominator", m);
        form->click("ok");
    }

    [[nodiscard]] QColor colour(const std::string& box) const { return form->box(box).backColour(); }

    ScriptedDraws draws;
    std::unique_ptr<FormDriver> form;
};

TEST_F(BrokForm, IsBlankUntilItsOpening) {
    const FormDriver unshown = FormDriver::unshown(PageName::Brok, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Brøker");
    EXPECT_EQ(unshown.caption("task"), "Løs opgaven");
    EXPECT_EQ(unshown.caption("firstNumerator"), "");
    for (const char* hidden : {"giveAnswer", "verdict", "reducedEquals", "reducedBar", "reducedWholeNumber",
                               "helpPanel", "workedSolution"}) {
        EXPECT_FALSE(unshown.isShown(hidden)) << hidden;
    }
}

TEST_F(BrokForm, LaysTheTaskOutAsTwoFractions) {
    const FormDriver& f = open(-10, 3, 2, -4, Add);
    EXPECT_EQ(f.caption("firstNumerator"), "-10");
    EXPECT_EQ(f.caption("firstDenominator"), "3");
    EXPECT_EQ(f.caption("operatorSign"), "+");
    EXPECT_EQ(f.caption("secondNumerator"), "2");
    EXPECT_EQ(f.caption("secondDenominator"), "-4");
    EXPECT_EQ(f.caption("answerEquals"), "=");
    EXPECT_EQ(f.focus(), "numerator");
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_FALSE(f.isShown("giveAnswer"));
}

TEST_F(BrokForm, MakesTheBarAsWideAsTheWiderNumber) {
    const FormDriver& f = open(-10, 3, 2, -4, Add);
    const Label& a = f.label("firstNumerator");
    const Label& b = f.label("firstDenominator");
    EXPECT_FALSE(b.isAutoSize());
    EXPECT_TRUE(a.isAutoSize());
    EXPECT_EQ(a.place().width(), a.textWidth());
    EXPECT_EQ(b.place().width(), a.place().width());
    EXPECT_EQ(a.place().left(), fromTwips(600));
    EXPECT_EQ(f.find<LineControl>("firstBar").ends().x2(), b.place().right());
    EXPECT_EQ(f.find<LineControl>("firstBar").ends().x1(), fromTwips(600));

    const Label& d = f.label("secondDenominator");
    EXPECT_FALSE(f.label("secondNumerator").isAutoSize());
    EXPECT_EQ(f.label("secondNumerator").place().width(), d.textWidth());
    EXPECT_EQ(d.place().left(), fromTwips(2160));
    EXPECT_EQ(f.find<LineControl>("secondBar").ends().x2(), d.place().right());
}

TEST_F(BrokForm, TakesAutoSizeFromTheFirstOfTwoEquallyWideNumbers) {
    const FormDriver& f = open(2, 3, 4, 5, Add);
    EXPECT_FALSE(f.label("firstNumerator").isAutoSize());
    EXPECT_TRUE(f.label("firstDenominator").isAutoSize());
    EXPECT_FALSE(f.label("secondNumerator").isAutoSize());
    EXPECT_TRUE(f.label("secondDenominator").isAutoSize());
}

TEST_F(BrokForm, IsSolvedByKeysAlone) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    f.type("numerator", "5");
    f.press("numerator", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "denominator");
    f.type("denominator", "6");
    f.press("denominator", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "ok");
    f.press("ok", Qt::Key_Return);
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
    EXPECT_EQ(f.label("verdict").backColour(), QColor(0, 130, 0));
    EXPECT_TRUE(f.isShown("verdict"));
    EXPECT_EQ(f.focus(), "newExercise");
    script(1, 2, 1, 5, Add);
    f.press("newExercise", Qt::Key_Return);
    EXPECT_EQ(f.caption("secondDenominator"), "5");
    EXPECT_FALSE(f.isShown("verdict"));
    EXPECT_EQ(f.focus(), "numerator");
}

TEST_F(BrokForm, MarksBothBoxesOfAWrongAnswer) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    answer("5", "7");
    EXPECT_EQ(colour("numerator"), kRed);
    EXPECT_EQ(colour("denominator"), kRed);
    test::expectWrong(f, "numerator");
}

TEST_F(BrokForm, MayBeTriedAgainAndAgain) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    for (int i = 0; i < 5; ++i) {
        answer(std::to_string(100 + i), "7");
        EXPECT_TRUE(f.isShown("giveAnswer"));
    }
    answer("-10", "-12");
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
    EXPECT_EQ(colour("numerator"), kWhite);
    EXPECT_FALSE(f.isShown("ok"));
    EXPECT_FALSE(f.isShown("giveAnswer"));
}

TEST_F(BrokForm, TellsThatZeroDividesNothing) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    for (const char* n : {"5", "", "abc", "0"}) {
        for (const char* m : {"0", "", "abc"}) {
            answer(n, m);
            EXPECT_EQ(f.answerMessage(), "Du må ikke dividere med nul") << n << "/" << m;
            EXPECT_EQ(f.focus(), "denominator");
            EXPECT_FALSE(f.isShown("verdict"));
            EXPECT_EQ(colour("denominator"), kWhite);
            EXPECT_EQ(f.box("numerator").content(), n);
            EXPECT_EQ(f.box("denominator").content(), m);
        }
    }
}

TEST_F(BrokForm, LeavesTheVerdictStandingBehindTheMessage) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    answer("5", "7");
    answer("5", "0");
    EXPECT_EQ(f.answerMessage(), "Du må ikke dividere med nul");
    EXPECT_TRUE(f.isShown("verdict"));
    EXPECT_EQ(f.caption("verdict"), "FORKERT");
    EXPECT_TRUE(f.isShown("giveAnswer"));
}

TEST_F(BrokForm, TakesAnEmptyNumeratorForAWrongZero) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    answer("", "6");
    EXPECT_EQ(f.caption("verdict"), "FORKERT");
}

TEST_F(BrokForm, ShowsOneWhereTheResultIsOne) {
    const FormDriver& f = open(1, 2, 1, 2, Add);
    answer("2", "2");
    EXPECT_EQ(f.caption("reducedWholeNumber"), "1");
    EXPECT_TRUE(f.isShown("reducedWholeNumber"));
    EXPECT_TRUE(f.isShown("reducedEquals"));
    EXPECT_FALSE(f.isShown("reducedBar"));
}

TEST_F(BrokForm, ShowsTheReducedFormOfAnUnreducedAnswer) {
    const FormDriver& f = open(1, 2, 1, 4, Add);  // 6/8
    answer("6", "8");
    EXPECT_EQ(f.caption("reducedNumerator"), "3");
    EXPECT_EQ(f.caption("reducedDenominator"), "4");
    EXPECT_TRUE(f.isShown("reducedBar"));
    EXPECT_TRUE(f.isShown("reducedEquals"));
    EXPECT_FALSE(f.isShown("reducedWholeNumber"));
}

TEST_F(BrokForm, ShowsNothingMoreForAReducedAnswer) {
    const FormDriver& f = open(1, 2, 1, 4, Add);
    answer("3", "4");
    EXPECT_EQ(f.caption("reducedNumerator"), "");
    EXPECT_FALSE(f.isShown("reducedBar"));
    EXPECT_FALSE(f.isShown("reducedEquals"));
}

TEST_F(BrokForm, ShowsMinusThreeOverFourForThreeOverMinusFour) {
    const FormDriver& f = open(-3, 2, 1, 2, Multiply);  // -3/4
    answer("3", "-4");
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
    EXPECT_EQ(f.caption("reducedNumerator"), "-3");
    EXPECT_EQ(f.caption("reducedDenominator"), "4");
}

TEST_F(BrokForm, ShowsAWholeNumberForMinusTwelveSixths) {
    const FormDriver& f = open(-4, 2, 3, 3, Multiply);  // -12/6
    answer("-12", "6");
    EXPECT_EQ(f.caption("reducedWholeNumber"), "-2");
}

TEST_F(BrokForm, GivesTheUnreducedAnswerWithTheReducedBesideIt) {
    const FormDriver& f = open(1, 2, 1, 4, Add);
    answer("1", "9");
    f.click("giveAnswer");
    EXPECT_EQ(f.box("numerator").content(), "6");
    EXPECT_EQ(f.box("denominator").content(), "8");
    EXPECT_EQ(colour("numerator"), kWhite);
    EXPECT_EQ(colour("denominator"), kWhite);
    EXPECT_EQ(f.caption("reducedNumerator"), "3");
    EXPECT_FALSE(f.isShown("verdict"));
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT") << "made ready, not shown";
    EXPECT_FALSE(f.isShown("ok"));
    EXPECT_FALSE(f.isShown("giveAnswer"));
    EXPECT_EQ(f.focus(), "newExercise");
}

TEST_F(BrokForm, ForgetsEverythingWithTheNextExercise) {
    const FormDriver& f = open(1, 2, 1, 4, Add);
    answer("6", "8");
    f.click("help");
    f.click("showWorkedSolution");
    script(1, 2, 1, 3, Add);
    f.click("newExercise");
    for (const char* hidden : {"helpPanel", "workedSolution", "reducedWholeNumber", "reducedEquals",
                               "reducedBar", "verdict", "giveAnswer"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_EQ(f.caption("reducedNumerator") + f.caption("reducedDenominator"), "");
    EXPECT_EQ(f.box("numerator").content() + f.box("denominator").content(), "");
}

TEST_F(BrokForm, EnterInTheLastBoxDoesNothingOnceSolved) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    answer("5", "6");
    f.box("denominator").setFocus();
    f.press("denominator", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "denominator");
}

TEST_F(BrokForm, OpensTheGeneralMethodOfItsOperator) {
    const FormDriver& f = open(1, 2, 1, 3, Subtract);
    f.click("help");
    EXPECT_TRUE(f.isShown("helpPanel"));
    EXPECT_FALSE(f.isShown("workedSolution"));
    EXPECT_EQ(f.focus(), "showWorkedSolution");
    EXPECT_EQ(f.caption("generalOperatorSign"), "-");
    EXPECT_EQ(f.caption("generalTask"), "I denne opgave skal du trække én brøk fra en anden");
    EXPECT_EQ(f.caption("generalResultNumerator"), "a*d - c*b");
    EXPECT_EQ(f.caption("generalResultDenominator"), "b*d");
    EXPECT_EQ(f.label("generalResultDenominator").place().width(),
              f.label("generalResultNumerator").place().width());
    EXPECT_EQ(f.find<LineControl>("generalResultBar").ends().x2(),
              f.label("generalResultNumerator").place().right());
}

TEST_F(BrokForm, HasTheHeadingsAndButtonsOfAPanel) {
    const FormDriver& f = open(1, 2, 1, 3, Subtract);
    EXPECT_EQ(f.caption("generalHeading"), "Generel løsning");
    EXPECT_EQ(f.caption("workedHeading"), "Aktuel løsning");
    EXPECT_EQ(f.button("showWorkedSolution").caption(), "Vis");
    EXPECT_EQ(f.button("closeHelp").caption(), "&Luk");
    for (const auto& [label, text] : {std::pair{"generalFirstNumerator", "a"},
                                      {"generalFirstDenominator", "b"},
                                      {"generalSecondNumerator", "c"},
                                      {"generalSecondDenominator", "d"}}) {
        EXPECT_EQ(f.caption(label), text);
    }
}

TEST_F(BrokForm, WorksTheTaskOutInARow) {
    const FormDriver& f = open(-1, 2, 3, -4, Add);  // 10/-8
    f.click("help");
    f.press("showWorkedSolution", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("workedSolution"));
    std::string row;
    for (const char* piece : {"workedFirstNumerator", "workedFirstDenominator", "workedOperatorSign",
                              "workedSecondNumerator", "workedSecondDenominator", "workedWrittenOutEquals",
                              "workedWrittenOutNumerator", "workedWrittenOutDenominator",
                              "workedComputedEquals", "workedComputedNumerator", "workedComputedDenominator",
                              "workedReducedEquals", "workedReducedNumerator", "workedReducedDenominator"}) {
        row += f.caption(piece) + "|";
    }
    EXPECT_EQ(row, "-1|2|+|3|-4|=|(-1)*(-4) + 3*2|2*(-4)|=|10|-8|=|-5|4|");
    EXPECT_FALSE(f.isShown("workedReducedWholeNumber"));
    EXPECT_EQ(f.label("workedWrittenOutNumerator").place().left(), fromTwips(1080));
    EXPECT_EQ(f.label("workedWrittenOutDenominator").place().width(),
              f.label("workedWrittenOutNumerator").place().width());
    EXPECT_EQ(f.find<LineControl>("workedWrittenOutBar").ends().x2(),
              f.label("workedWrittenOutNumerator").place().right());
}

TEST_F(BrokForm, EndsTheRowInAWholeNumber) {
    const FormDriver& f = open(-4, 2, 3, 3, Multiply);
    f.click("help");
    f.click("showWorkedSolution");
    EXPECT_EQ(f.caption("workedReducedWholeNumber"), "-2");
    EXPECT_TRUE(f.isShown("workedReducedWholeNumber"));
    EXPECT_TRUE(f.isShown("workedReducedEquals"));
    for (const char* hidden : {"workedReducedNumerator", "workedReducedDenominator", "workedReducedBar"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
}

TEST_F(BrokForm, EndsTheRowEarlyWhereNothingCancels) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    f.click("help");
    f.click("showWorkedSolution");
    for (const char* hidden : {"workedReducedEquals", "workedReducedNumerator", "workedReducedDenominator",
                               "workedReducedBar", "workedReducedWholeNumber"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
}

TEST_F(BrokForm, ShowsTheEndOfTheRowAgainAfterAShorterOne) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    f.click("help");
    f.click("showWorkedSolution");
    script(1, 2, 1, 4, Add);
    f.click("newExercise");
    f.click("help");
    f.click("showWorkedSolution");
    for (const char* shown :
         {"workedReducedEquals", "workedReducedNumerator", "workedReducedDenominator", "workedReducedBar"}) {
        EXPECT_TRUE(f.isShown(shown)) << shown;
    }
    EXPECT_EQ(f.caption("workedReducedNumerator"), "3");
}

TEST_F(BrokForm, ClosesItsHelpAndKeepsWhatWasTyped) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    f.type("numerator", "4");
    f.click("help");
    f.click("showWorkedSolution");
    f.click("closeHelp");
    EXPECT_FALSE(f.isShown("helpPanel"));
    EXPECT_FALSE(f.isShown("workedSolution"));
    EXPECT_EQ(f.box("numerator").content(), "4");
}

TEST_F(BrokForm, HasRoomForTheLongestNumbers) {
    for (const Operation type : {Subtract, Add, Multiply, Divide}) {
        const FormDriver& f = open(-10, -10, -10, 9, type);
        answer("1", "1");
        f.click("giveAnswer");
        f.click("help");
        f.click("showWorkedSolution");
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{}) << operatorSign(type);
    }
}

}  // namespace
}  // namespace tavrune
