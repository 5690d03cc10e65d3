#include "topics/basics/brok.h"

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/form_driver.h"
#include "support/looks.h"
#include "support/scripted_draws.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::FormDriver;
using test::ScriptedDraws;

enum Type { Minus = 0, Plus = 1, Times = 2, By = 3 };

float part(int value) { return cellOf(value + 10, 20); }

class BrokForm : public testing::Test {
protected:
    void script(int a, int b, int c, int d, Type type) {
        draws.append({part(a), part(b), part(c), part(d), cellOf(type, 4)});
    }

    FormDriver& open(int a, int b, int c, int d, Type type) {
        script(a, b, c, d, type);
        form = std::make_unique<FormDriver>(PageName::Brok, draws);
        return *form;
    }

    void answer(const std::string& n, const std::string& m) const {
        form->type("Text1", n);
        form->type("Text2", m);
        form->click("Command2");
    }

    [[nodiscard]] QColor colour(const std::string& box) const { return form->box(box).backColour(); }

    ScriptedDraws draws;
    std::unique_ptr<FormDriver> form;
};

TEST_F(BrokForm, IsBlankUntilItsFirstTick) {
    const FormDriver unshown = FormDriver::unshown(PageName::Brok, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Brøker");
    EXPECT_EQ(unshown.caption("Label8"), "Løs opgaven");
    EXPECT_EQ(unshown.caption("Label1"), "");
    for (const char* hidden : {"Command3", "Label6", "Label10", "Line4", "Label12", "Picture1", "Picture2"}) {
        EXPECT_FALSE(unshown.isShown(hidden)) << hidden;
    }
}

TEST_F(BrokForm, LaysTheTaskOutAsTwoFractions) {
    const FormDriver& f = open(-10, 3, 2, -4, Plus);
    EXPECT_EQ(f.caption("Label1"), "-10");
    EXPECT_EQ(f.caption("Label2"), "3");
    EXPECT_EQ(f.caption("Label3"), "+");
    EXPECT_EQ(f.caption("Label4"), "2");
    EXPECT_EQ(f.caption("Label5"), "-4");
    EXPECT_EQ(f.caption("Label7"), "=");
    EXPECT_EQ(f.focus(), "Text1");
    EXPECT_TRUE(f.isShown("Command2"));
    EXPECT_FALSE(f.isShown("Command3"));
}

TEST_F(BrokForm, MakesTheBarAsWideAsTheWiderNumber) {
    const FormDriver& f = open(-10, 3, 2, -4, Plus);
    const Label& a = f.label("Label1");
    const Label& b = f.label("Label2");
    EXPECT_FALSE(b.isAutoSize());
    EXPECT_TRUE(a.isAutoSize());
    EXPECT_EQ(a.place().width(), a.textWidth());
    EXPECT_EQ(b.place().width(), a.place().width());
    EXPECT_EQ(a.place().left(), fromTwips(600));
    EXPECT_EQ(f.find<LineControl>("Line1").ends().x2(), b.place().right());
    EXPECT_EQ(f.find<LineControl>("Line1").ends().x1(), fromTwips(600));

    const Label& d = f.label("Label5");
    EXPECT_FALSE(f.label("Label4").isAutoSize());
    EXPECT_EQ(f.label("Label4").place().width(), d.textWidth());
    EXPECT_EQ(d.place().left(), fromTwips(2160));
    EXPECT_EQ(f.find<LineControl>("Line2").ends().x2(), d.place().right());
}

TEST_F(BrokForm, TakesAutoSizeFromTheFirstOfTwoEquallyWideNumbers) {
    const FormDriver& f = open(2, 3, 4, 5, Plus);
    EXPECT_FALSE(f.label("Label1").isAutoSize());
    EXPECT_TRUE(f.label("Label2").isAutoSize());
    EXPECT_FALSE(f.label("Label4").isAutoSize());
    EXPECT_TRUE(f.label("Label5").isAutoSize());
}

TEST_F(BrokForm, IsSolvedByKeysAlone) {
    const FormDriver& f = open(1, 2, 1, 3, Plus);
    f.type("Text1", "5");
    f.press("Text1", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Text2");
    f.type("Text2", "6");
    f.press("Text2", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Command2");
    f.press("Command2", Qt::Key_Return);
    EXPECT_EQ(f.caption("Label6"), "RIGTIGT");
    EXPECT_EQ(f.label("Label6").backColour(), QColor(0, 130, 0));
    EXPECT_TRUE(f.isShown("Label6"));
    EXPECT_EQ(f.focus(), "Command1");
    script(1, 2, 1, 5, Plus);
    f.press("Command1", Qt::Key_Return);
    EXPECT_EQ(f.caption("Label5"), "5");
    EXPECT_FALSE(f.isShown("Label6"));
    EXPECT_EQ(f.focus(), "Text1");
}

TEST_F(BrokForm, MarksBothBoxesOfAWrongAnswer) {
    const FormDriver& f = open(1, 2, 1, 3, Plus);
    answer("5", "7");
    EXPECT_EQ(colour("Text1"), kRed);
    EXPECT_EQ(colour("Text2"), kRed);
    EXPECT_EQ(f.caption("Label6"), "FORKERT");
    EXPECT_EQ(f.label("Label6").backColour(), QColor(255, 0, 0));
    EXPECT_TRUE(f.isShown("Command2"));
    EXPECT_TRUE(f.isShown("Command3"));
    EXPECT_EQ(f.focus(), "Text1");
}

TEST_F(BrokForm, MayBeTriedAgainAndAgain) {
    const FormDriver& f = open(1, 2, 1, 3, Plus);
    for (int i = 0; i < 5; ++i) {
        answer(std::to_string(100 + i), "7");
        EXPECT_TRUE(f.isShown("Command3"));
    }
    answer("-10", "-12");
    EXPECT_EQ(f.caption("Label6"), "RIGTIGT");
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_FALSE(f.isShown("Command2"));
    EXPECT_FALSE(f.isShown("Command3"));
}

TEST_F(BrokForm, TellsThatZeroDividesNothing) {
    const FormDriver& f = open(1, 2, 1, 3, Plus);
    for (const char* n : {"5", "", "abc", "0"}) {
        for (const char* m : {"0", "", "abc"}) {
            answer(n, m);
            EXPECT_EQ(f.answerMessage(), "Du må ikke dividere med nul") << n << "/" << m;
            EXPECT_EQ(f.focus(), "Text2");
            EXPECT_FALSE(f.isShown("Label6"));
            EXPECT_EQ(colour("Text2"), kWhite);
            EXPECT_EQ(f.box("Text1").content(), n);
            EXPECT_EQ(f.box("Text2").content(), m);
        }
    }
}

TEST_F(BrokForm, LeavesTheVerdictStandingBehindTheMessage) {
    const FormDriver& f = open(1, 2, 1, 3, Plus);
    answer("5", "7");
    answer("5", "0");
    EXPECT_EQ(f.answerMessage(), "Du må ikke dividere med nul");
    EXPECT_TRUE(f.isShown("Label6"));
    EXPECT_EQ(f.caption("Label6"), "FORKERT");
    EXPECT_TRUE(f.isShown("Command3"));
}

TEST_F(BrokForm, TakesAnEmptyNumeratorForAWrongZero) {
    const FormDriver& f = open(1, 2, 1, 3, Plus);
    answer("", "6");
    EXPECT_EQ(f.caption("Label6"), "FORKERT");
}

TEST_F(BrokForm, ShowsOneWhereTheResultIsOne) {
    const FormDriver& f = open(1, 2, 1, 2, Plus);
    answer("2", "2");
    EXPECT_EQ(f.caption("Label12"), "1");
    EXPECT_TRUE(f.isShown("Label12"));
    EXPECT_TRUE(f.isShown("Label10"));
    EXPECT_FALSE(f.isShown("Line4"));
}

TEST_F(BrokForm, ShowsTheReducedFormOfAnUnreducedAnswer) {
    const FormDriver& f = open(1, 2, 1, 4, Plus);  // 6/8
    answer("6", "8");
    EXPECT_EQ(f.caption("Label9"), "3");
    EXPECT_EQ(f.caption("Label11"), "4");
    EXPECT_TRUE(f.isShown("Line4"));
    EXPECT_TRUE(f.isShown("Label10"));
    EXPECT_FALSE(f.isShown("Label12"));
}

TEST_F(BrokForm, ShowsNothingMoreForAReducedAnswer) {
    const FormDriver& f = open(1, 2, 1, 4, Plus);
    answer("3", "4");
    EXPECT_EQ(f.caption("Label9"), "");
    EXPECT_FALSE(f.isShown("Line4"));
    EXPECT_FALSE(f.isShown("Label10"));
}

TEST_F(BrokForm, ShowsMinusThreeOverFourForThreeOverMinusFour) {
    const FormDriver& f = open(-3, 2, 1, 2, Times);  // -3/4
    answer("3", "-4");
    EXPECT_EQ(f.caption("Label6"), "RIGTIGT");
    EXPECT_EQ(f.caption("Label9"), "-3");
    EXPECT_EQ(f.caption("Label11"), "4");
}

TEST_F(BrokForm, ShowsAWholeNumberForMinusTwelveSixths) {
    const FormDriver& f = open(-4, 2, 3, 3, Times);  // -12/6
    answer("-12", "6");
    EXPECT_EQ(f.caption("Label12"), "-2");
}

TEST_F(BrokForm, GivesTheUnreducedAnswerWithTheReducedBesideIt) {
    const FormDriver& f = open(1, 2, 1, 4, Plus);
    answer("1", "9");
    f.click("Command3");
    EXPECT_EQ(f.box("Text1").content(), "6");
    EXPECT_EQ(f.box("Text2").content(), "8");
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_EQ(colour("Text2"), kWhite);
    EXPECT_EQ(f.caption("Label9"), "3");
    EXPECT_FALSE(f.isShown("Label6"));
    EXPECT_EQ(f.caption("Label6"), "RIGTIGT") << "made ready, not shown";
    EXPECT_FALSE(f.isShown("Command2"));
    EXPECT_FALSE(f.isShown("Command3"));
    EXPECT_EQ(f.focus(), "Command1");
}

TEST_F(BrokForm, ForgetsEverythingWithTheNextExercise) {
    const FormDriver& f = open(1, 2, 1, 4, Plus);
    answer("6", "8");
    f.click("Command4");
    f.click("Command5");
    script(1, 2, 1, 3, Plus);
    f.click("Command1");
    for (const char* hidden : {"Picture1", "Picture2", "Label12", "Label10", "Line4", "Label6", "Command3"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_EQ(f.caption("Label9") + f.caption("Label11"), "");
    EXPECT_EQ(f.box("Text1").content() + f.box("Text2").content(), "");
}

TEST_F(BrokForm, EnterInTheLastBoxDoesNothingOnceSolved) {
    const FormDriver& f = open(1, 2, 1, 3, Plus);
    answer("5", "6");
    f.box("Text2").setFocus();
    f.press("Text2", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Text2");
}

TEST_F(BrokForm, OpensTheGeneralMethodOfItsOperator) {
    const FormDriver& f = open(1, 2, 1, 3, Minus);
    f.click("Command4");
    EXPECT_TRUE(f.isShown("Picture1"));
    EXPECT_FALSE(f.isShown("Picture2"));
    EXPECT_EQ(f.focus(), "Command5");
    EXPECT_EQ(f.caption("Label17"), "-");
    EXPECT_EQ(f.caption("Label15"), "I denne opgave skal du trække én brøk fra en anden");
    EXPECT_EQ(f.caption("Label21"), "a*d - c*b");
    EXPECT_EQ(f.caption("Label22"), "b*d");
    EXPECT_EQ(f.label("Label22").place().width(), f.label("Label21").place().width());
    EXPECT_EQ(f.find<LineControl>("Line7").ends().x2(), f.label("Label21").place().right());
}

TEST_F(BrokForm, HasTheHeadingsAndButtonsOfAPanel) {
    const FormDriver& f = open(1, 2, 1, 3, Minus);
    EXPECT_EQ(f.caption("Label13"), "Generel løsning");
    EXPECT_EQ(f.caption("Label14"), "Aktuel løsning");
    EXPECT_EQ(f.button("Command5").caption(), "Vis");
    EXPECT_EQ(f.button("Command6").caption(), "&Luk");
    for (const auto& [label, text] :
         {std::pair{"Label16", "a"}, {"Label18", "b"}, {"Label19", "c"}, {"Label20", "d"}}) {
        EXPECT_EQ(f.caption(label), text);
    }
}

TEST_F(BrokForm, WorksTheTaskOutInARow) {
    const FormDriver& f = open(-1, 2, 3, -4, Plus);  // 10/-8
    f.click("Command4");
    f.press("Command5", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("Picture2"));
    std::string row;
    for (const char* piece :
         {"brokk_0", "brokk_1", "brokk_2", "brokk_3", "brokk_4", "brokk_5", "brokk_6", "brokk_7", "brokk_8",
          "brokk_9", "brokk_10", "brokk_11", "brokk_12", "brokk_13"}) {
        row += f.caption(piece) + "|";
    }
    EXPECT_EQ(row, "-1|2|+|3|-4|=|(-1)*(-4) + 3*2|2*(-4)|=|10|-8|=|-5|4|");
    EXPECT_FALSE(f.isShown("Label23"));
    EXPECT_EQ(f.label("brokk_6").place().left(), fromTwips(1080));
    EXPECT_EQ(f.label("brokk_7").place().width(), f.label("brokk_6").place().width());
    EXPECT_EQ(f.find<LineControl>("Line10").ends().x2(), f.label("brokk_6").place().right());
}

TEST_F(BrokForm, EndsTheRowInAWholeNumber) {
    const FormDriver& f = open(-4, 2, 3, 3, Times);
    f.click("Command4");
    f.click("Command5");
    EXPECT_EQ(f.caption("Label23"), "-2");
    EXPECT_TRUE(f.isShown("Label23"));
    EXPECT_TRUE(f.isShown("brokk_11"));
    for (const char* hidden : {"brokk_12", "brokk_13", "Line12"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
}

TEST_F(BrokForm, EndsTheRowEarlyWhereNothingCancels) {
    const FormDriver& f = open(1, 2, 1, 3, Plus);
    f.click("Command4");
    f.click("Command5");
    for (const char* hidden : {"brokk_11", "brokk_12", "brokk_13", "Line12", "Label23"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
}

TEST_F(BrokForm, ShowsTheEndOfTheRowAgainAfterAShorterOne) {
    const FormDriver& f = open(1, 2, 1, 3, Plus);
    f.click("Command4");
    f.click("Command5");
    script(1, 2, 1, 4, Plus);
    f.click("Command1");
    f.click("Command4");
    f.click("Command5");
    for (const char* shown : {"brokk_11", "brokk_12", "brokk_13", "Line12"}) {
        EXPECT_TRUE(f.isShown(shown)) << shown;
    }
    EXPECT_EQ(f.caption("brokk_12"), "3");
}

TEST_F(BrokForm, ClosesItsHelpAndKeepsWhatWasTyped) {
    const FormDriver& f = open(1, 2, 1, 3, Plus);
    f.type("Text1", "4");
    f.click("Command4");
    f.click("Command5");
    f.click("Command6");
    EXPECT_FALSE(f.isShown("Picture1"));
    EXPECT_FALSE(f.isShown("Picture2"));
    EXPECT_EQ(f.box("Text1").content(), "4");
}

TEST_F(BrokForm, HasRoomForTheLongestNumbers) {
    for (const Type type : {Minus, Plus, Times, By}) {
        const FormDriver& f = open(-10, -10, -10, 9, type);
        answer("1", "1");
        f.click("Command3");
        f.click("Command4");
        f.click("Command5");
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{}) << type;
    }
}

}  // namespace
}  // namespace tavrune
