// One suite over every exercise form in the list of pages: a form is under it from its first day.

#include <algorithm>
#include <map>
#include <set>

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QScrollArea>
#include <QTest>

#include <gtest/gtest.h>

#include "conformance/form_suite.h"
#include "support/decimal_mark.h"
#include "support/expect.h"
#include "support/looks.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FormDriver;
using test::FormFacts;
using test::looks;
using test::nameOf;

const QColor kRightOfTwo(0, 128, 0);

class EveryForm : public test::FormSuite {
protected:
    static void chooseOption(const FormDriver& form) {
        if (!facts().option.empty()) {
            form.click(facts().option);
        }
    }

    static void answerWrongly(const FormDriver& form) {
        form.answerWrongly(facts().option);
        ASSERT_EQ(form.verdict(), "FORKERT");
    }

    /// Opens the help, or hears what it says, with every step.
    static void openWholeHelp(const FormDriver& form) {
        form.click("help");
        static_cast<void>(form.answerMessage());
        form.showAllSteps();
        static_cast<void>(hasFailed());
    }

    /// White, and empty but for those that tell what is given.
    static void expectFreshBoxes(const FormDriver& form) {
        int filled = 0;
        for (const AnswerBox* box : form.boxes()) {
            EXPECT_EQ(box->backColour(), kWhite) << nameOf(*box);
            filled += box->text().trimmed().isEmpty() ? 0 : 1;
        }
        EXPECT_EQ(filled, facts().except.filledBoxes);
    }
};

INSTANTIATE_TEST_SUITE_P(Forms, EveryForm, testing::ValuesIn(test::allForms()), test::asciiName);

/// The forms with one main panel whatever the exercise.
class EveryPanel : public EveryForm {};

std::vector<FormFacts> formsWithAPanel() {
    std::vector<FormFacts> forms = test::allForms();
    forms.erase(std::remove_if(forms.begin(), forms.end(), [](const FormFacts& f) { return !f.hasOnePanel; }),
                forms.end());
    return forms;
}

INSTANTIATE_TEST_SUITE_P(Forms, EveryPanel, testing::ValuesIn(formsWithAPanel()), test::asciiName);

TEST_P(EveryForm, LeavesNoOptionRedOnceTheAnswerIsGiven) {
    for (std::uint64_t seed = 1; seed <= 6; ++seed) {
        const FormDriver form = open(seed);
        for (const OptionButton* option : test::inSight<OptionButton>(form.page())) {
            form.answerWrongly(nameOf(*option));
        }
        if (form.isShown("giveAnswer")) {
            form.click("giveAnswer");
        }
        for (const OptionButton* option : test::inSight<OptionButton>(form.page())) {
            EXPECT_NE(option->backColour(), kRed) << nameOf(*option);
        }
        static_cast<void>(hasFailed());
    }
}

TEST_P(EveryForm, BearsItsNameAndItsTitle) {
    const FormDriver form = open();
    EXPECT_EQ(form.page().objectName().toStdString(), textOf(facts().page));
    EXPECT_EQ(form.page().windowTitle().toStdString().rfind("Tavrune - ", 0), 0U);
}

TEST_P(EveryForm, StartsWithoutVerdictAndAnswer) {
    SeededDraws seeded(1);
    const FormDriver form = FormDriver::unshown(facts().page, seeded);
    EXPECT_FALSE(form.isShown("giveAnswer"));
    EXPECT_FALSE(form.isShown(facts().right()));
    EXPECT_FALSE(form.isShown(facts().wrong()));
    EXPECT_EQ(form.helpPanels(), std::set<std::string>{});
}

TEST_P(EveryForm, HasTheCaptionsOfTheFourButtons) {
    const FormDriver form = open();
    EXPECT_EQ(form.button("newExercise").caption(), "&Ny opgave");
    EXPECT_EQ(form.button("ok").caption(), "&OK");
    EXPECT_EQ(form.button("giveAnswer").caption(), "&Giv svaret");
    EXPECT_EQ(form.button("help").caption(), "&Hjælp");
}

TEST_P(EveryForm, HasTheFourButtonsAtTheSamePlace) {
    const FormDriver form = open();
    double left = 8;
    for (const char* name : {"newExercise", "ok", "giveAnswer", "help"}) {
        EXPECT_EQ(form.button(name).place(), QRectF(left, 413, 76, 25)) << name;
        left += 80;
    }
}

TEST_P(EveryForm, GivesTheWrongVerdictItsFinalColourAtTheOpening) {
    if (facts().hasOneLabel) {
        const FormDriver form = open();
        answerWrongly(form);
        EXPECT_EQ(form.label(facts().wrong()).backColour(), kRed);
        return;
    }
    SeededDraws seeded(1);
    FormDriver form = FormDriver::unshown(facts().page, seeded);
    EXPECT_EQ(form.label(facts().wrong()).backColour(),
              facts().darkUntilTheOpening ? QColor(192, 0, 0) : kRed);
    EXPECT_EQ(form.label(facts().right()).backColour(), kRightOfTwo);
    EXPECT_EQ(form.caption(facts().wrong()), "FORKERT");
    EXPECT_EQ(form.caption(facts().right()), "RIGTIGT");
    form.show();
    EXPECT_EQ(form.label(facts().wrong()).backColour(), kRed);
    EXPECT_EQ(form.label(facts().wrong()).place(), form.label(facts().right()).place());
}

TEST_P(EveryForm, AsksAtItsOpening) {
    const FormDriver form = open();
    EXPECT_TRUE(form.isShown("newExercise"));
    EXPECT_FALSE(form.isShown("giveAnswer"));
    EXPECT_FALSE(form.isShown(facts().right()));
    EXPECT_FALSE(form.isShown(facts().wrong()));
    if (facts().firstBox == test::kByOrder) {
        EXPECT_EQ(form.focus(), nameOf(*form.boxes().front()));
    } else if (!facts().firstBox.empty()) {
        EXPECT_EQ(form.focus(), facts().firstBox);
    }
    chooseOption(form);
    EXPECT_TRUE(form.isShown("ok"));
    expectFreshBoxes(form);
}

TEST_P(EveryForm, OffersTheAnswerAfterAWrongTryAndKeepsOk) {
    const FormDriver form = open();
    for (int again = 0; again < 3; ++again) {
        answerWrongly(form);
        test::expectShown(form, {"ok", "giveAnswer", "newExercise"});
        EXPECT_EQ(form.caption(facts().wrong()), "FORKERT");
    }
}

TEST_P(EveryForm, GivesTheAnswerWithoutAVerdict) {
    const FormDriver form = open();
    answerWrongly(form);
    form.click("giveAnswer");
    test::expectHidden(form, {"ok", "giveAnswer"});
    EXPECT_FALSE(form.isShown(facts().right()));
    EXPECT_FALSE(form.isShown(facts().wrong()));
    EXPECT_EQ(form.focus(), "newExercise");
    for (const AnswerBox* box : form.boxes()) {
        EXPECT_EQ(box->backColour(), kWhite);
    }
}

TEST_P(EveryForm, StartsTheNextExerciseFromEveryState) {
    const FormDriver form = open();
    answerWrongly(form);
    form.click("newExercise");
    EXPECT_FALSE(form.isShown(facts().wrong()));
    EXPECT_FALSE(form.isShown("giveAnswer"));
    answerWrongly(form);
    form.click("giveAnswer");
    form.press("newExercise", Qt::Key_Return);
    chooseOption(form);
    EXPECT_TRUE(form.isShown("ok"));
    expectFreshBoxes(form);
}

TEST_P(EveryPanel, ClosesItsHelpWithTheNextExercise) {
    const FormDriver form = open();
    form.click("help");
    EXPECT_TRUE(form.isShown("helpPanel"));
    form.click("newExercise");
    EXPECT_FALSE(form.isShown("helpPanel"));
}

TEST_P(EveryPanel, KeepsWhatWasTypedWhileHelpComesAndGoes) {
    const FormDriver form = open();
    chooseOption(form);
    std::vector<AnswerBox*> boxes = form.boxes();
    for (AnswerBox* box : boxes) {
        form.type(nameOf(*box), "12");
    }
    form.click("help", "closeHelp");
    EXPECT_FALSE(form.isShown("helpPanel"));
    for (const AnswerBox* box : boxes) {
        EXPECT_EQ(box->content(), "12");
    }
}

TEST_P(EveryForm, TurnsATypedCommaIntoAPointInEveryBox) {
    const FormDriver form = open();
    chooseOption(form);
    for (AnswerBox* box : form.boxes()) {
        form.type(nameOf(*box), "1,5");
        EXPECT_EQ(box->content(), "1.5") << nameOf(*box);
    }
}

TEST_P(EveryForm, LeavesAPastedCommaAlone) {
    const FormDriver form = open();
    chooseOption(form);
    QGuiApplication::clipboard()->setText("1,5");
    for (AnswerBox* box : form.boxes()) {
        box->selectAll();
        QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(box->content(), "1,5") << nameOf(*box);
    }
}

TEST_P(EveryForm, WalksByEnterThroughAllItsBoxesToOk) {
    const FormDriver form = open();
    chooseOption(form);
    const std::size_t boxes = form.boxes().size();
    ASSERT_GT(boxes, 0U);
    // Some chains run against the layout, so the walk starts wherever it covers most.
    std::size_t longest = 0;
    for (AnswerBox* start : form.boxes()) {
        start->setFocus();
        std::size_t steps = 0;
        while (form.focus() != "ok" && steps <= boxes) {
            form.press(form.focus(), Qt::Key_Return);
            ++steps;
        }
        EXPECT_EQ(form.focus(), "ok") << "from " << nameOf(*start);
        longest = std::max(longest, steps);
    }
    EXPECT_EQ(longest, boxes);
}

TEST_P(EveryForm, EndsItsEnterChainByItsKind) {
    const FormDriver form = open();
    AnswerBox& last = facts().lastBox == test::kByOrder ? *form.boxes().back() : form.box(facts().lastBox);
    // Not every exercise asks for it.
    for (int exercise = 0; exercise < 100 && !last.isVisible(); ++exercise) {
        form.click("newExercise");
        chooseOption(form);
    }
    ASSERT_TRUE(last.isVisible());
    answerWrongly(form);
    form.click("giveAnswer");
    last.setFocus();
    const std::string name = nameOf(last);
    form.press(name, Qt::Key_Return);
    EXPECT_EQ(form.focus(), facts().lastBoxGoesOn ? "newExercise" : name);
}

TEST_P(EveryForm, TakesEmptyBoxesForZeros) {
    const FormDriver empty = open();
    chooseOption(empty);
    empty.fillAll("");
    empty.click("ok");
    const FormDriver zeros = open();
    chooseOption(zeros);
    zeros.fillAll("0");
    zeros.click("ok");
    EXPECT_EQ(empty.answerMessage(), zeros.answerMessage());
    EXPECT_EQ(empty.isShown(facts().wrong()), zeros.isShown(facts().wrong()));
    EXPECT_EQ(empty.isShown("giveAnswer"), zeros.isShown("giveAnswer"));
    for (AnswerBox* box : empty.boxes()) {
        const std::string name = nameOf(*box);
        EXPECT_EQ(box->backColour(), zeros.box(name).backColour()) << name;
    }
}

TEST_P(EveryForm, ObeysTheAccessKeysOfItsButtons) {
    const FormDriver form = open();
    answerWrongly(form);

    const auto press = [&form](Qt::Key key) {
        QTest::keyClick(form.page().focusWidget(), key, Qt::AltModifier);
        test::settle();
    };
    press(Qt::Key_G);
    EXPECT_FALSE(form.isShown("ok"));
    press(Qt::Key_N);
    EXPECT_FALSE(form.isShown("giveAnswer"));
    chooseOption(form);
    form.fillAll("98765.25");
    form.boxes().front()->setContent("98");
    press(Qt::Key_O);
    EXPECT_TRUE(form.isShown(facts().wrong()));
    press(Qt::Key_H);
    EXPECT_EQ(form.helpPanels().empty(), facts().except.helpsByMessage);
}

TEST_P(EveryForm, KeepsItsControlsAtTheTopLeftOfALargeWindow) {
    const FormDriver form = open();
    const QPoint before = form.button("newExercise").mapTo(&form.page(), QPoint(0, 0));
    form.page().resize(1600, 1000);
    test::settle();
    EXPECT_EQ(form.button("newExercise").mapTo(&form.page(), QPoint(0, 0)), before);
    EXPECT_EQ(form.button("newExercise").size(), QSize(76, 25));
}

TEST_P(EveryForm, CannotChooseItsOwnTopic) {
    const FormDriver form = open();
    EXPECT_FALSE(form.page().topicMenu().actionFor(facts().page)->isEnabled());
}

TEST_P(EveryForm, NamesEveryAnswerBox) {
    const FormDriver form = open();
    for (const AnswerBox* box : form.page().findChildren<AnswerBox*>()) {
        EXPECT_FALSE(box->accessibleName().isEmpty()) << nameOf(*box);
    }
}

TEST_P(EveryForm, HasNoTextCutOffOrOverAnother) {
    for (const char* mark : {".", ","}) {
        const DecimalMark inUse(mark);
        const FormDriver form = open(2005);
        for (int exercise = 0; exercise < looks(50); ++exercise) {
            ASSERT_EQ(test::flawsOf(form.page()), std::vector<std::string>{}) << "exercise " << exercise;
            answerWrongly(form);
            form.click("giveAnswer");
            ASSERT_EQ(test::flawsOf(form.page()), std::vector<std::string>{}) << "given answer " << exercise;
            ASSERT_EQ(test::overfullBoxesOf(form.page()), std::vector<std::string>{})
                << "answer " << exercise;
            form.click("newExercise");
        }
    }
}

TEST_P(EveryForm, HasNoTextCutOffInItsHelpWithEveryStepShown) {
    const FormDriver form = open(2006);
    for (int exercise = 0; exercise < looks(50); ++exercise) {
        openWholeHelp(form);
        ASSERT_EQ(test::flawsOf(form.page()), std::vector<std::string>{}) << "exercise " << exercise;
        form.click("newExercise");
    }
}

TEST_P(EveryForm, HasNoTextCutOffOrOverAnotherAtAnySize) {
    const FormDriver form = open(2007);
    for (const int percent : kZoomSteps) {
        form.page().setZoom(Zoom(percent));
        for (int exercise = 0; exercise < looks(5); ++exercise) {
            ASSERT_EQ(test::flawsOf(form.page()), std::vector<std::string>{}) << percent << " %";
            openWholeHelp(form);
            ASSERT_EQ(test::flawsOf(form.page()), std::vector<std::string>{}) << percent << " %, help";
            form.click("newExercise");
        }
    }
}

TEST_P(EveryForm, HasNoTextCutOffOrOverAnotherFittedToAnyScreen) {
    const FormDriver form = open(2008);
    form.page().setZoom(Zoom::fitted());
    for (const QSize screen : test::commonScreens()) {
        form.page().resize(screen);
        for (int exercise = 0; exercise < looks(5); ++exercise) {
            ASSERT_EQ(test::flawsOf(form.page()), std::vector<std::string>{}) << screen.width();
            openWholeHelp(form);
            ASSERT_EQ(test::flawsOf(form.page()), std::vector<std::string>{}) << screen.width() << ", help";
            form.click("newExercise");
        }
    }
}

TEST_P(EveryForm, HasNoTextOffItsLineAtAnyFactor) {
    const FormDriver form = open(2008);
    for (const int percent : {110, 137, 173, 220, 261, 330, 400}) {
        form.page().setZoom(Zoom(percent));
        test::settle();
        ASSERT_EQ(test::flawsOf(form.page()), std::vector<std::string>{}) << percent;
        answerWrongly(form);
        form.click("giveAnswer");
        openWholeHelp(form);
        ASSERT_EQ(test::flawsOf(form.page()), std::vector<std::string>{}) << percent << " %, help";
        form.click("newExercise");
    }
}

}  // namespace
}  // namespace tavrune
