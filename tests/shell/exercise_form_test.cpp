#include "shell/exercise_form.h"

#include <functional>
#include <string>
#include <vector>

#include <QAccessible>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "support/form_driver.h"

namespace tavrune {
namespace {

using test::settle;

enum class VerdictKind { One, Two, TwoDark };

/// A form with two boxes, the four buttons, a verdict and graphs, each in a place of its own, that writes
/// down what it is asked to do.
class Sample : public ExerciseForm {
public:
    Sample(Draws& draws, VerdictKind kind, LastBox last) : ExerciseForm(PageName::Brok, draws) {
        int place = 0;
        for (const auto& [control, name] : std::initializer_list<std::pair<QWidget*, const char*>>{
                 {&newExerciseButton, "newExercise"},
                 {&ok, "ok"},
                 {&giveAnswerButton, "giveAnswer"},
                 {&helpButton, "help"},
                 {&panel, "helpPanel"},
                 {&close, "closeHelp"},
                 {&vis, "vis"},
                 {&first, "first"},
                 {&second, "second"},
                 {&helpGraph, "helpGraph"},
                 {&graph, "graph"},
                 {&nextGraph, "nextGraph"},
                 {&right, kind == VerdictKind::One ? "verdict" : "right"},
                 {&wrong, kind == VerdictKind::One ? "" : "wrong"}}) {
            control->setObjectName(name);
            control->setGeometry(0, place, 80, 20);
            place += 25;
        }
        panel.setGeometry(200, 0, 100, 440);
        panel.hide();
        if (kind == VerdictKind::TwoDark) {
            wrong.setBackColour(QColor(192, 0, 0));
        }
        bindRoles();
        enterChain({&first, &second}, last);
    }

    using ExerciseForm::clearBoxes;
    using ExerciseForm::design;
    using ExerciseForm::enterChainWhileShown;
    using ExerciseForm::enterGoes;
    using ExerciseForm::hideVerdict;
    using ExerciseForm::showAsking;
    using ExerciseForm::showFailed;
    using ExerciseForm::showGiven;
    using ExerciseForm::showJudgement;
    using ExerciseForm::showRight;
    using ExerciseForm::showSolved;
    using ExerciseForm::showWrong;
    using ExerciseForm::tell;

    [[nodiscard]] std::string focus() const {
        return focusWidget() == nullptr ? "" : focusWidget()->objectName().toStdString();
    }

    std::vector<std::string> calls;
    /// What judging does, if anything.
    std::function<void(Sample&)> judging;

    Label right{design()};
    Label wrong{design()};
    AnswerBox first{design()};
    AnswerBox second{design()};
    Button newExerciseButton{design()};
    Button ok{design()};
    Button giveAnswerButton{design()};
    Button helpButton{design()};
    Panel panel{design()};
    Button vis{&panel};
    Button close{&panel};
    GraphBox helpGraph{&panel};
    GraphBox graph{design()};
    GraphBox nextGraph{design()};

protected:
    void newExercise() override {
        calls.emplace_back("new");
        focusOn(&first);
    }
    void judge() override {
        calls.emplace_back("judge");
        if (judging) {
            judging(*this);
        }
    }
    void giveAnswer() override { calls.emplace_back("give"); }
    void help() override {
        calls.emplace_back("help");
        openPanel(&panel, &vis);
    }
};

class LifeCycle : public testing::Test {
protected:
    Sample& open(VerdictKind kind = VerdictKind::One, LastBox last = LastBox::OkOrStay) {
        form = std::make_unique<Sample>(draws, kind, last);
        form->show();
        form->activateWindow();
        settle();
        return *form;
    }

    /// Presses "&OK", which hides all that is named.
    static void hideByOk(Sample& s, std::vector<QWidget*> hidden) {
        s.ok.setFocus();
        s.judging = [&hidden](Sample& /*judged*/) {
            for (QWidget* widget : hidden) {
                widget->hide();
            }
        };
        s.ok.click();
    }

    SeededDraws draws{1};
    std::unique_ptr<Sample> form;
};

using Calls = std::vector<std::string>;

TEST_F(LifeCycle, OpensOnce) {
    Sample& s = open();
    EXPECT_EQ(s.calls, Calls{"new"});
    s.hide();
    s.show();
    settle();
    EXPECT_EQ(s.calls, Calls{"new"});
    EXPECT_EQ(s.focus(), "first");
}

TEST_F(LifeCycle, ShowsTheButtonForNewExercisesBeforeTheFirstOneComes) {
    Sample s(draws, VerdictKind::One, LastBox::OkOrStay);
    s.newExerciseButton.hide();
    s.show();
    EXPECT_TRUE(s.newExerciseButton.isVisible());
    EXPECT_TRUE(s.calls.empty());
}

TEST_F(LifeCycle, LeavesTheButtonForNewExercisesAloneOnceItHasOpened) {
    Sample& s = open();
    s.newExerciseButton.hide();
    s.hide();
    s.show();
    EXPECT_FALSE(s.newExerciseButton.isVisible());
}

TEST_F(LifeCycle, StandsStillBeforeItIsOnScreen) {
    const Sample s(draws, VerdictKind::One, LastBox::OkOrStay);
    settle();
    EXPECT_TRUE(s.calls.empty());
    EXPECT_TRUE(s.giveAnswerButton.isHidden());
    EXPECT_TRUE(s.right.isHidden());
}

TEST_F(LifeCycle, HandsTheFailureOfAnActionToItsHandlerAndStands) {
    class Handler : public FailureHandler {
    public:
        void endAfter(ArithmeticFailure::Kind kind) override { told.push_back(kind); }
        std::vector<ArithmeticFailure::Kind> told;
    };
    Handler handler;
    Sample& s = open();
    s.setFailureHandler(&handler);
    s.judging = [](Sample& /*judged*/) { throw ArithmeticFailure(ArithmeticFailure::Kind::Overflow); };
    s.calls.clear();
    s.ok.click();
    EXPECT_EQ(handler.told, std::vector{ArithmeticFailure::Kind::Overflow});
    s.helpButton.click();
    EXPECT_EQ(s.calls, (Calls{"judge", "help"}));
}

TEST_F(LifeCycle, RunsEachButtonsRole) {
    Sample& s = open();
    s.calls.clear();
    s.giveAnswerButton.show();
    for (Button* button : {&s.newExerciseButton, &s.ok, &s.giveAnswerButton, &s.helpButton}) {
        button->click();
    }
    EXPECT_EQ(s.calls, (Calls{"new", "judge", "give", "help"}));
}

TEST_F(LifeCycle, AskingShowsOkAlone) {
    Sample& s = open(VerdictKind::Two);
    s.showFailed();
    s.ok.hide();
    s.showAsking();
    EXPECT_TRUE(s.ok.isVisible());
    EXPECT_FALSE(s.giveAnswerButton.isVisible());
    EXPECT_FALSE(s.right.isVisible());
    EXPECT_FALSE(s.wrong.isVisible());
}

TEST_F(LifeCycle, WrongKeepsOkAndOffersTheAnswer) {
    Sample& s = open();
    s.showFailed();
    EXPECT_TRUE(s.ok.isVisible());
    EXPECT_TRUE(s.giveAnswerButton.isVisible());
    EXPECT_EQ(s.right.caption(), "FORKERT");
    EXPECT_EQ(s.right.backColour(), QColor(255, 0, 0));
    EXPECT_TRUE(s.right.isVisible());
}

TEST_F(LifeCycle, SolvedLeavesOnlyTheNextExercise) {
    Sample& s = open();
    s.showFailed();
    s.showSolved();
    EXPECT_FALSE(s.ok.isVisible());
    EXPECT_FALSE(s.giveAnswerButton.isVisible());
    EXPECT_EQ(s.right.caption(), "RIGTIGT");
    EXPECT_EQ(s.right.backColour(), QColor(0, 130, 0));
    EXPECT_EQ(s.focus(), "newExercise");
    EXPECT_TRUE(s.helpButton.isVisible());
}

TEST_F(LifeCycle, AWrongJudgementMarksJustWhatIsNotRightAndMovesTheFocus) {
    Sample& s = open();
    s.second.mark(true);
    EXPECT_FALSE(s.showJudgement({{false, true}, false}, {&s.first, &s.second}, &s.second));
    EXPECT_TRUE(s.first.isMarked());
    EXPECT_FALSE(s.second.isMarked());
    EXPECT_EQ(s.right.caption(), "FORKERT");
    EXPECT_TRUE(s.ok.isVisible());
    EXPECT_TRUE(s.giveAnswerButton.isVisible());
    EXPECT_EQ(s.focus(), "second");
    EXPECT_FALSE(s.showJudgement({{false, false}, false}, {&s.second, &s.first}, nullptr));
    EXPECT_TRUE(s.second.isMarked());
    EXPECT_EQ(s.focus(), "second") << "stays where none is told";
    EXPECT_FALSE(s.showJudgement({{true}, false}, {&s.first}, nullptr));
    EXPECT_TRUE(!s.first.isMarked() && s.second.isMarked()) << "what is not asked for stays as it is";
}

TEST_F(LifeCycle, ASolvedJudgementMarksNothingThatIsNotRightEither) {
    Sample& s = open();
    s.first.mark(true);
    EXPECT_TRUE(s.showJudgement({{false, true}, true}, {&s.first, &s.second}, &s.second));
    EXPECT_FALSE(s.first.isMarked());
    EXPECT_FALSE(s.second.isMarked());
    EXPECT_EQ(s.right.caption(), "RIGTIGT");
    EXPECT_FALSE(s.ok.isVisible());
    EXPECT_EQ(s.focus(), "newExercise");
}

TEST_F(LifeCycle, GivenShowsNoVerdict) {
    Sample& s = open(VerdictKind::Two);
    s.showFailed();
    s.showGiven();
    EXPECT_FALSE(s.ok.isVisible());
    EXPECT_FALSE(s.giveAnswerButton.isVisible());
    EXPECT_FALSE(s.right.isVisible());
    EXPECT_FALSE(s.wrong.isVisible());
    EXPECT_EQ(s.focus(), "newExercise");
}

TEST_F(LifeCycle, EnterOnTheNextExerciseStartsIt) {
    Sample& s = open();
    s.showGiven();
    s.calls.clear();
    QTest::keyClick(s.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(s.calls, (Calls{"new"}));
}

TEST_F(LifeCycle, TwoLabelsHaveFixedCaptionsAndColours) {
    const Sample& s = open(VerdictKind::Two);
    EXPECT_EQ(s.right.caption(), "RIGTIGT");
    EXPECT_EQ(s.right.backColour(), QColor(0, 128, 0));
    EXPECT_EQ(s.wrong.caption(), "FORKERT");
    EXPECT_EQ(s.wrong.backColour(), QColor(255, 0, 0));
}

TEST_F(LifeCycle, TheDarkWrongLabelGetsItsFinalColourAtTheOpening) {
    const Sample light(draws, VerdictKind::Two, LastBox::OkOrStay);
    EXPECT_EQ(light.wrong.backColour(), QColor(255, 0, 0)) << "where the design has none";
    const Sample unshown(draws, VerdictKind::TwoDark, LastBox::OkOrStay);
    EXPECT_EQ(unshown.wrong.backColour(), QColor(192, 0, 0));
    EXPECT_EQ(open(VerdictKind::TwoDark).wrong.backColour(), QColor(255, 0, 0));
}

TEST_F(LifeCycle, ARightVerdictDoesNotHideAWrongOneBesideIt) {
    Sample& s = open(VerdictKind::Two);
    s.showWrong();
    s.showRight();
    EXPECT_TRUE(s.wrong.isVisible());
    EXPECT_TRUE(s.right.isVisible());
    s.hideVerdict();
    EXPECT_FALSE(s.wrong.isVisible());
}

TEST_F(LifeCycle, EnterWalksFromBoxToBoxToOk) {
    Sample& s = open();
    QTest::keyClick(&s.first, Qt::Key_Return);
    EXPECT_EQ(s.focus(), "second");
    QTest::keyClick(&s.second, Qt::Key_Enter);
    EXPECT_EQ(s.focus(), "ok");
    EXPECT_EQ(s.calls.back(), "new") << "Enter in a box never judges";
    QTest::keyClick(&s.ok, Qt::Key_Return);
    EXPECT_EQ(s.calls.back(), "judge");
}

TEST_F(LifeCycle, EnterInTheLastBoxOfTheFirstKindStaysWithoutOk) {
    Sample& s = open(VerdictKind::One, LastBox::OkOrStay);
    s.ok.hide();
    s.second.setFocus();
    QTest::keyClick(&s.second, Qt::Key_Return);
    EXPECT_EQ(s.focus(), "second");
}

TEST_F(LifeCycle, EnterInTheLastBoxOfTheSecondKindGoesOnToTheNextExercise) {
    Sample& s = open(VerdictKind::One, LastBox::OkOrNewExercise);
    QTest::keyClick(&s.second, Qt::Key_Return);
    EXPECT_EQ(s.focus(), "ok");
    s.ok.hide();
    QTest::keyClick(&s.second, Qt::Key_Return);
    EXPECT_EQ(s.focus(), "newExercise");
}

TEST_F(LifeCycle, EnterPassesByABoxThatIsHidden) {
    Sample& s = open();
    AnswerBox third(s.design());
    third.setObjectName("third");
    third.show();
    s.enterGoes(&third, {&s.second, &s.ok, &s.newExerciseButton});
    s.second.hide();
    QTest::keyClick(&third, Qt::Key_Return);
    EXPECT_EQ(s.focus(), "ok");
    s.ok.hide();
    QTest::keyClick(&third, Qt::Key_Return);
    EXPECT_EQ(s.focus(), "newExercise");
    s.second.show();
    QTest::keyClick(&third, Qt::Key_Return);
    EXPECT_EQ(s.focus(), "second");
}

TEST_F(LifeCycle, TakesTheLastWordOnWhereEnterGoes) {
    Sample& s = open();
    s.enterGoes(&s.first, {&s.ok});
    s.enterGoes(&s.first, {&s.newExerciseButton});
    QTest::keyClick(&s.first, Qt::Key_Return);
    EXPECT_EQ(s.focus(), "newExercise");
    s.newExerciseButton.hide();
    s.first.setFocus();
    QTest::keyClick(&s.first, Qt::Key_Return);
    EXPECT_EQ(s.focus(), "first");
}

TEST_F(LifeCycle, EnterGoesOverABoxThatIsHiddenToOkAtOnce) {
    Sample& s = open();
    AnswerBox third(s.design());
    third.setObjectName("third");
    third.show();
    s.enterChainWhileShown({&s.first, &s.second, &third}, LastBox::OkOrStay);
    s.first.setFocus();
    for (const char* next : {"second", "third", "ok"}) {
        QTest::keyClick(s.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(s.focus(), next);
    }
    third.hide();
    QTest::keyClick(&s.second, Qt::Key_Return);
    EXPECT_EQ(s.focus(), "ok");
}

TEST_F(LifeCycle, TabComesToGraphsAfterTheFieldsAndToThoseOfTheHelpWhereTheyStand) {
    Sample& s = open();
    s.panel.show();
    s.first.setFocus();
    Calls walk;
    do {
        walk.push_back(s.focus());
        QTest::keyClick(s.focusWidget(), Qt::Key_Tab);
    } while (s.focus() != "first" && walk.size() < 20);
    EXPECT_EQ(walk, (Calls{"first", "second", "graph", "nextGraph", "newExercise", "ok", "help", "vis",
                           "closeHelp", "helpGraph"}));
}

TEST_F(LifeCycle, AButtonThatIsHiddenHandsTheFocusOnToNoGraph) {
    Sample& s = open();
    QWidget::setTabOrder(&s.ok, &s.graph);
    QWidget::setTabOrder(&s.graph, &s.nextGraph);
    hideByOk(s, {&s.ok});
    EXPECT_EQ(s.focus(), "help");
}

TEST_F(LifeCycle, AGraphKeepsTheFocusWhereNothingElseCanHaveIt) {
    Sample& s = open();
    hideByOk(s, {&s.first, &s.second, &s.newExerciseButton, &s.helpButton, &s.nextGraph, &s.ok});
    EXPECT_EQ(s.focus(), "graph");
}

TEST_F(LifeCycle, VerdictsAreWhiteInTheMiddleOfTheirLabels) {
    for (const VerdictKind kind : {VerdictKind::One, VerdictKind::Two}) {
        const Sample unshown(draws, kind, LastBox::OkOrStay);
        for (const Label* label : {&unshown.right, &unshown.wrong}) {
            if (label->objectName().isEmpty()) {
                continue;
            }
            EXPECT_TRUE(label->isHidden());
            EXPECT_TRUE(label->isVerdict());
            EXPECT_EQ(label->alignment(), Qt::AlignCenter);
            EXPECT_EQ(label->textColour(), kWhite);
        }
    }
}

TEST_F(LifeCycle, ClearedBoxesAreEmptyAndWhite) {
    Sample& s = open();
    s.first.setContent("7");
    s.first.mark(true);
    Sample::clearBoxes({&s.first});
    EXPECT_EQ(s.first.content(), "");
    EXPECT_EQ(s.first.backColour(), kWhite);
}

TEST_F(LifeCycle, HelpOpensThePanelWithTheFocusOnItsFirstVis) {
    Sample& s = open();
    s.helpButton.click();
    EXPECT_TRUE(s.panel.isVisible());
    EXPECT_EQ(s.focus(), "vis");
}

TEST_F(LifeCycle, AMessageHasOneButtonAndStandsOverThePageAlone) {
    Sample& s = open();
    s.tell("Hej <b>");
    auto* const box = s.findChild<QMessageBox*>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), "Hej <b>");
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->windowModality(), Qt::ApplicationModal) << "the about box can't be used either";
    ASSERT_EQ(box->buttons().size(), 1);
    EXPECT_EQ(box->buttons().at(0)->text(), "OK");
    QTest::keyClick(box->buttons().at(0), Qt::Key_Return);
    settle();
    EXPECT_EQ(s.findChild<QMessageBox*>(), nullptr);
}

TEST_F(LifeCycle, LukHidesThePanel) {
    Sample& s = open();
    s.helpButton.click();
    s.close.click();
    EXPECT_FALSE(s.panel.isVisible());
}

/// A form whose design lacks one of the controls of the roles.
class Incomplete : public ExerciseForm {
public:
    Incomplete(Draws& draws, const std::string& missing) : ExerciseForm(PageName::Topp, draws) {
        for (const char* name : {"newExercise", "ok", "giveAnswer", "help", "closeHelp"}) {
            if (name != missing) {
                (new Button(design()))->setObjectName(name);
            }
        }
        for (const char* name : {"right", "wrong"}) {
            if (name != missing) {
                (new Label(design()))->setObjectName(name);
            }
        }
        (new Panel(design()))->setObjectName("helpPanel");
        bindRoles();
    }

protected:
    void newExercise() override {}
    void judge() override {}
    void giveAnswer() override {}
    void help() override {}
};

TEST(Roles, NameTheFormAndTheControlThatItLacks) {
    SeededDraws draws(1);
    EXPECT_NO_THROW(Incomplete(draws, "none"));
    for (const std::string missing :
         {"newExercise", "ok", "giveAnswer", "help", "closeHelp", "right", "wrong"}) {
        try {
            const Incomplete form(draws, missing);
            ADD_FAILURE() << missing;
        } catch (const std::logic_error& error) {
            EXPECT_EQ(std::string(error.what()), "Topp has no control named " + missing);
        }
    }
}

class Announcement : public LifeCycle {
protected:
    /// What is said when "&OK" is pressed.
    static QStringList heard(Sample& s) {
        QSignalSpy announced(&Voice::instance(), &Voice::said);
        s.ok.click();
        QStringList words;
        for (const QList<QVariant>& one : announced) {
            words << one.front().toString();
        }
        return words;
    }

    Sample& openNamed(VerdictKind kind) {
        Sample& s = open(kind);
        s.first.setAccessibleName("hældning");
        s.first.move(100, 50);
        s.second.setAccessibleName("skæring");
        s.second.move(20, 80);
        for (QWidget* widget : {static_cast<QWidget*>(&s.first), static_cast<QWidget*>(&s.second)}) {
            widget->show();
        }
        return s;
    }
};

TEST_F(Announcement, NamesTheFieldsThatTurnRedAfterTheVerdictFromTheTop) {
    for (const VerdictKind kind : {VerdictKind::One, VerdictKind::Two}) {
        Sample& s = openNamed(kind);
        s.judging = [](Sample& judged) {
            judged.showFailed();
            judged.second.mark(true);
            judged.first.mark(true);
        };
        EXPECT_EQ(heard(s), QStringList{"FORKERT: hældning; skæring."});
        const Label& verdict = kind == VerdictKind::One ? s.right : s.wrong;
        EXPECT_EQ(verdict.accessibleName(), "FORKERT: hældning; skæring");
        EXPECT_EQ(verdict.caption(), "FORKERT");
        s.second.move(20, 20);
        EXPECT_EQ(heard(s), QStringList{"FORKERT: skæring; hældning."}) << "which stands higher";
        s.second.move(20, 50);
        EXPECT_EQ(heard(s), QStringList{"FORKERT: skæring; hældning."}) << "which stands further left";
    }
}

TEST_F(Announcement, LeavesOutRedFieldsThatAreNotShown) {
    Sample& s = openNamed(VerdictKind::One);
    s.first.mark(true);
    s.first.hide();
    s.judging = [](Sample& judged) { judged.showFailed(); };
    EXPECT_EQ(heard(s), QStringList{"FORKERT."});
}

TEST_F(Announcement, SaysThatAllIsRightAfterAWrongTry) {
    for (const VerdictKind kind : {VerdictKind::One, VerdictKind::Two}) {
        Sample& s = openNamed(kind);
        s.judging = [](Sample& judged) {
            judged.showFailed();
            judged.first.mark(true);
        };
        EXPECT_EQ(heard(s), QStringList{"FORKERT: hældning."});
        s.judging = [](Sample& judged) {
            judged.first.mark(false);
            judged.showSolved();
        };
        EXPECT_EQ(heard(s), QStringList{"RIGTIGT."});
        EXPECT_EQ(s.right.accessibleName(), "RIGTIGT");
    }
}

TEST_F(Announcement, TakesTheWrongVerdictWhereBothAreShown) {
    Sample& s = openNamed(VerdictKind::Two);
    s.judging = [](Sample& judged) {
        judged.showRight();
        judged.showWrong();
        judged.second.mark(true);
    };
    EXPECT_EQ(heard(s), QStringList{"FORKERT: skæring."});
}

TEST_F(Announcement, EndsWithTheFieldInWhichTheFocusStays) {
    Sample& s = openNamed(VerdictKind::One);
    QAccessibleEvent focus(&s.first, QAccessible::Focus);
    Voice::instance().filter(focus);
    s.judging = [](Sample& judged) { judged.showFailed(); };
    EXPECT_EQ(heard(s), QStringList{"FORKERT. hældning."});
    s.judging = [&s](Sample& /*judged*/) { s.newExerciseButton.click(); };
    EXPECT_EQ(heard(s), QStringList{"hældning."});
}

TEST_F(Announcement, IsSilentWhereNothingIsJudged) {
    Sample& s = openNamed(VerdictKind::One);
    s.judging = [](Sample& judged) { judged.showFailed(); };
    EXPECT_EQ(heard(s).size(), 1);
    // The verdict of the last try still stands.
    s.judging = nullptr;
    EXPECT_EQ(heard(s), QStringList{});
}

}  // namespace
}  // namespace tavrune
