#include "support/student.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "support/form_driver.h"

namespace tavrune::test {
namespace {

class AStudent : public testing::Test {
protected:
    SeededDraws draws{1};
    SeededDraws sameDraws{1};
};

TEST_F(AStudent, SeesTheVerdictThatStandsInFront) {
    const FormDriver form(PageName::Konvert, draws);
    EXPECT_EQ(form.verdict(), "");
    form.answerWrongly();
    EXPECT_EQ(form.verdict(), "FORKERT");
    form.label("right").show();
    EXPECT_EQ(form.verdict(), "RIGTIGT");
}

TEST_F(AStudent, MeetsTheStepsOfTheHelpFromWhereTheFocusStands) {
    const FormDriver form(PageName::Vaddi2, draws);
    EXPECT_EQ(form.nextStep({}), nullptr);
    EXPECT_EQ(form.closeButton(), nullptr);
    form.click("help");
    EXPECT_EQ(form.helpPanels(), std::set<std::string>{"helpPanel"});
    EXPECT_EQ(form.nextStep({}), &form.button("showPrices"));
    EXPECT_EQ(form.nextStep({&form.button("showPrices")}), &form.button("showQuantities"));
    EXPECT_EQ(form.closeButton(), &form.button("closeHelp"));
    form.button("showSum").setFocus();
    EXPECT_EQ(form.nextStep({}), &form.button("showSum"));
}

TEST_F(AStudent, ShowsAllStepsButTheOneNamed) {
    const FormDriver form(PageName::Vaddi2, draws);
    form.click("help");
    form.showAllSteps("showSum");
    EXPECT_NE(form.caption("quantitiesResult"), "");
    EXPECT_TRUE(form.isShown("ok"));
    form.showAllSteps();
    EXPECT_FALSE(form.isShown("ok"));
}

TEST_F(AStudent, WritesAnAnswerAsItWasGiven) {
    const FormDriver asking(PageName::Roedder, draws);
    const FormDriver answering(PageName::Roedder, sameDraws);
    const Answer answer = asking.giveUp("twoRoots");
    EXPECT_NE(answer.option, "");
    answering.write(answer);
    answering.click("ok");
    EXPECT_EQ(answering.verdict(), "RIGTIGT");
    EXPECT_TRUE(answering.redBoxes().empty());
}

TEST_F(AStudent, LeavesHelpTablesOutOfAnAnswer) {
    const FormDriver asking(PageName::Vaddi2, draws);
    const FormDriver answering(PageName::Vaddi2, sameDraws);
    answering.write(asking.giveUp());
    EXPECT_EQ(answering.box("price1").content(), " ");
    EXPECT_NE(answering.box("segment2Slope").content(), " ");
}

TEST_F(AStudent, FailsAtOnceWhereAControlIsNotThere) {
    const FormDriver form(PageName::Konvert, draws);
    EXPECT_THROW(form.click("numerator"), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(form.box("ok")), std::invalid_argument);
}

}  // namespace
}  // namespace tavrune::test
