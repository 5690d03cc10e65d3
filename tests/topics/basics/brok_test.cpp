#include "topics/basics/brok.h"

#include <gtest/gtest.h>

#include "controls/fraction.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::FormDriver;

using enum Operation;

float part(int value) { return cellOf(value + 10, 20); }

test::Script scriptOf(int a, int b, int c, int d, Operation type) {
    return {part(a), part(b), part(c), part(d), cellOf(static_cast<int>(type), 4)};
}

class BrokForm : public test::ScriptedForm<int, int, int, int, Operation> {
protected:
    BrokForm() : ScriptedForm(PageName::Brok, scriptOf) {}

    void answer(const std::string& n, const std::string& m) const {
        form->type("numerator", n);
        form->type("denominator", m);
        form->click("ok");
    }
};

TEST_F(BrokForm, IsBlankUntilItsOpening) {
    const FormDriver unshown = FormDriver::unshown(PageName::Brok, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Brøker");
    test::expectTexts(unshown, {{"task", "Løs opgaven"}, {"firstNumerator", ""}});
    test::expectHidden(unshown, {"giveAnswer", "verdict", "reducedEquals", "reducedBar", "reducedWholeNumber",
                                 "helpPanel", "workedSolution"});
}

TEST_F(BrokForm, LaysTheTaskOutAsTwoFractions) {
    const FormDriver& f = open(-10, 3, 2, -4, Add);
    test::expectTexts(f, {{"firstNumerator", "-10"},
                          {"firstDenominator", "3"},
                          {"operatorSign", "+"},
                          {"secondNumerator", "2"},
                          {"secondDenominator", "-4"},
                          {"answerEquals", "="}});
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
    test::expectHidden(f, {"ok", "giveAnswer"});
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
    test::expectShown(f, {"reducedWholeNumber", "reducedEquals"});
    EXPECT_FALSE(f.isShown("reducedBar"));
}

TEST_F(BrokForm, ShowsTheReducedFormOfAnUnreducedAnswer) {
    const FormDriver& f = open(1, 2, 1, 4, Add);  // 6/8
    answer("6", "8");
    test::expectTexts(f, {{"reducedNumerator", "3"}, {"reducedDenominator", "4"}});
    test::expectShown(f, {"reducedBar", "reducedEquals"});
    EXPECT_FALSE(f.isShown("reducedWholeNumber"));
}

TEST_F(BrokForm, ShowsNothingMoreForAReducedAnswer) {
    const FormDriver& f = open(1, 2, 1, 4, Add);
    answer("3", "4");
    EXPECT_EQ(f.caption("reducedNumerator"), "");
    test::expectHidden(f, {"reducedBar", "reducedEquals"});
}

TEST_F(BrokForm, ShowsMinusThreeOverFourForThreeOverMinusFour) {
    const FormDriver& f = open(-3, 2, 1, 2, Multiply);  // -3/4
    answer("3", "-4");
    test::expectTexts(f, {{"verdict", "RIGTIGT"}, {"reducedNumerator", "-3"}, {"reducedDenominator", "4"}});
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
    test::expectContents(f, {{"numerator", "6"}, {"denominator", "8"}});
    EXPECT_EQ(colour("numerator"), kWhite);
    EXPECT_EQ(colour("denominator"), kWhite);
    EXPECT_EQ(f.caption("reducedNumerator"), "3");
    EXPECT_FALSE(f.isShown("verdict"));
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT") << "made ready, not shown";
    test::expectHidden(f, {"ok", "giveAnswer"});
    EXPECT_EQ(f.focus(), "newExercise");
}

TEST_F(BrokForm, ForgetsEverythingWithTheNextExercise) {
    const FormDriver& f = open(1, 2, 1, 4, Add);
    answer("6", "8");
    f.click("help", "showWorkedSolution");
    next(1, 2, 1, 3, Add);
    test::expectHidden(f, {"helpPanel", "workedSolution", "reducedWholeNumber", "reducedEquals", "reducedBar",
                           "verdict", "giveAnswer"});
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
    test::expectTexts(f, {{"generalOperatorSign", "-"},
                          {"generalTask", "I denne opgave skal du trække én brøk fra en anden"},
                          {"generalResultNumerator", "a*d - c*b"},
                          {"generalResultDenominator", "b*d"}});
    EXPECT_EQ(f.label("generalResultDenominator").place().width(),
              f.label("generalResultNumerator").place().width());
    EXPECT_EQ(f.find<LineControl>("generalResultBar").ends().x2(),
              f.label("generalResultNumerator").place().right());
}

TEST_F(BrokForm, HasTheHeadingsAndButtonsOfAPanel) {
    const FormDriver& f = open(1, 2, 1, 3, Subtract);
    test::expectTexts(f, {{"generalHeading", "Generel løsning"},
                          {"workedHeading", "Aktuel løsning"},
                          {"showWorkedSolution", "Vis"},
                          {"closeHelp", "&Luk"},
                          {"generalFirstNumerator", "a"},
                          {"generalFirstDenominator", "b"},
                          {"generalSecondNumerator", "c"},
                          {"generalSecondDenominator", "d"}});
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

TEST_F(BrokForm, LeavesTheSameGapBetweenAllPiecesOfTheRow) {
    for (const auto& [a, b, c, d, operation] :
         {std::tuple{-1, 2, 3, -4, Add}, {-4, 2, 3, 3, Multiply}, {9, 8, -10, 7, Subtract}}) {
        const FormDriver& f = open(a, b, c, d, operation);
        f.click("help", "showWorkedSolution");
        const auto fraction = [&f](const char* prefix) {
            const Fraction found = Fraction::of(f.page(), prefix);
            return std::pair{found.left(), found.right()};
        };
        const auto label = [&f](const char* name) {
            const QRectF place = f.label(name).place();
            return std::pair{place.left(), place.right()};
        };
        const bool isWhole = f.isShown("workedReducedWholeNumber");
        const std::vector row{fraction("workedFirst"),
                              label("workedOperatorSign"),
                              fraction("workedSecond"),
                              label("workedWrittenOutEquals"),
                              fraction("workedWrittenOut"),
                              label("workedComputedEquals"),
                              fraction("workedComputed"),
                              label("workedReducedEquals"),
                              isWhole ? label("workedReducedWholeNumber") : fraction("workedReduced")};
        EXPECT_EQ(row[4].first, fromTwips(1080));
        for (std::size_t i = 1; i < row.size(); ++i) {
            EXPECT_NEAR(row[i].first - row[i - 1].second, 2, 1e-9) << a << "/" << b << ", piece " << i;
        }
    }
}

TEST_F(BrokForm, EndsTheRowInAWholeNumber) {
    const FormDriver& f = open(-4, 2, 3, 3, Multiply);
    f.click("help", "showWorkedSolution");
    EXPECT_EQ(f.caption("workedReducedWholeNumber"), "-2");
    test::expectShown(f, {"workedReducedWholeNumber", "workedReducedEquals"});
    test::expectHidden(f, {"workedReducedNumerator", "workedReducedDenominator", "workedReducedBar"});
}

TEST_F(BrokForm, EndsTheRowEarlyWhereNothingCancels) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    f.click("help", "showWorkedSolution");
    test::expectHidden(f, {"workedReducedEquals", "workedReducedNumerator", "workedReducedDenominator",
                           "workedReducedBar", "workedReducedWholeNumber"});
}

TEST_F(BrokForm, ShowsTheEndOfTheRowAgainAfterAShorterOne) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    f.click("help", "showWorkedSolution");
    script(1, 2, 1, 4, Add);
    f.click("newExercise", "help", "showWorkedSolution");
    test::expectShown(
        f, {"workedReducedEquals", "workedReducedNumerator", "workedReducedDenominator", "workedReducedBar"});
    EXPECT_EQ(f.caption("workedReducedNumerator"), "3");
}

TEST_F(BrokForm, ClosesItsHelpAndKeepsWhatWasTyped) {
    const FormDriver& f = open(1, 2, 1, 3, Add);
    f.type("numerator", "4");
    f.click("help", "showWorkedSolution", "closeHelp");
    test::expectHidden(f, {"helpPanel", "workedSolution"});
    EXPECT_EQ(f.box("numerator").content(), "4");
}

TEST_F(BrokForm, HasRoomForTheLongestNumbers) {
    for (const Operation type : {Subtract, Add, Multiply, Divide}) {
        const FormDriver& f = open(-10, -10, -10, 9, type);
        answer("1", "1");
        f.click("giveAnswer", "help", "showWorkedSolution");
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{}) << operatorSign(type);
    }
}

}  // namespace
}  // namespace tavrune
