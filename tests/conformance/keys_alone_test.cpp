// Every form that is in the menu, from the start page to "Luk", without a pointer.

#include <QMessageBox>

#include <gtest/gtest.h>

#include "app/program.h"
#include "conformance/form_suite.h"
#include "support/key_player.h"

namespace tavrune {
namespace {

using test::Answer;
using test::FormDriver;
using test::KeyPlayer;
using test::nameOf;
using test::settle;
using test::Student;

constexpr int kExercises = 3;

class KeysAlone : public test::FormSuite {
protected:
    static void bringToFront(Page& page) {
        page.activateWindow();
        settle();
    }

    /// Answers with what is no exercise's answer, and presses "&OK".
    static void answerWrongly(const Student& seen) {
        if (!facts().option.empty()) {
            KeyPlayer::choose(seen.option(facts().option));
        }
        int place = 0;
        KeyPlayer::fill(seen, [&place](const AnswerBox& /*box*/) { return test::wrongText(place++); });
        KeyPlayer::pressAccessKey(Qt::Key_O);
        ASSERT_EQ(seen.verdict(), "FORKERT");
    }

    /// Gives up on the exercise, and reads what was right.
    [[nodiscard]] static Answer giveUp(const Student& seen) {
        answerWrongly(seen);
        KeyPlayer::pressAccessKey(Qt::Key_G);
        return seen.answerShown();
    }

    static void write(const Student& seen, const Answer& answer) {
        if (!answer.option.empty()) {
            KeyPlayer::choose(seen.option(answer.option));
        }
        KeyPlayer::fill(seen, [&answer](const AnswerBox& box) {
            const auto known = answer.boxes.find(nameOf(box));
            return known == answer.boxes.end() ? box.content() : known->second;
        });
        // Enter has led from the last box to "&OK", or it is a key away.
        if (seen.focus() == "ok") {
            KeyPlayer::press(Qt::Key_Return);
        } else {
            KeyPlayer::pressAccessKey(Qt::Key_O);
        }
    }

    /// Opens the help, shows every step, and closes it again.
    void useHelp(const Student& seen) {
        KeyPlayer::pressAccessKey(Qt::Key_H);
        if (facts().except.helpsByMessage) {
            ASSERT_NE(QApplication::activeModalWidget(), nullptr);
            KeyPlayer::press(Qt::Key_Return);
            ASSERT_EQ(QApplication::activeModalWidget(), nullptr);
            bringToFront(seen.page());
            return;
        }
        steps += KeyPlayer::showAllSteps(seen);
        if (hasEnded()) {
            return;
        }
        const Button* close = seen.closeButton();
        ASSERT_NE(close, nullptr);
        KeyPlayer::goTo(*close);
        KeyPlayer::press(Qt::Key_Return);
        EXPECT_FALSE(close->isVisible());
    }

    /// True if a failure of the arithmetic has ended the program.
    [[nodiscard]] bool hasEnded() {
        ended = ended || hasFailed();
        return ended;
    }

    /// From the start page to "Luk".
    void play(std::uint64_t seed) {
        ended = false;
        SeededDraws asked(seed);
        SeededDraws known(seed);
        Program program(asked);
        int closed = 0;
        QObject::connect(&program, &Program::closeChosen, [&closed] { ++closed; });
        program.open(PageName::Opstart);
        settle();
        KeyPlayer::chooseInMenu(*program.page(), facts().page);
        ASSERT_EQ(program.page()->name(), facts().page);
        const FormDriver teacher(facts().page, known);

        for (int exercise = 0; exercise < kExercises && !hasEnded() && !HasFailure(); ++exercise) {
            bringToFront(teacher.page());
            const Answer answer = giveUp(teacher);
            KeyPlayer::press(Qt::Key_Return);
            if (hasEnded()) {
                return;
            }
            const Student student(*program.page());
            bringToFront(student.page());
            write(student, answer);
            const bool isRight = student.verdict() == "RIGTIGT";
            EXPECT_TRUE(isRight || isRefusedOnPurpose(student, answer)) << "exercise " << exercise;
            ++answered;
            solved += isRight ? 1 : 0;
            useHelp(student);
            if (!ended) {
                KeyPlayer::pressAccessKey(Qt::Key_N);
            }
        }
        if (hasEnded()) {
            return;
        }
        const Student student(*program.page());
        answerWrongly(student);
        KeyPlayer::pressAccessKey(Qt::Key_G);
        EXPECT_FALSE(student.isShown("ok"));

        const PageName other = facts().page == PageName::Brok ? PageName::Dlinie : PageName::Brok;
        KeyPlayer::chooseInMenu(*program.page(), other);
        ASSERT_EQ(program.page()->name(), other);
        KeyPlayer::chooseInMenu(*program.page(), std::nullopt);
        EXPECT_EQ(closed, 1);
    }

    int answered = 0;
    int solved = 0;
    int steps = 0;
    bool ended = false;
};

INSTANTIATE_TEST_SUITE_P(Forms, KeysAlone, testing::ValuesIn(test::allForms()), test::asciiName);

TEST_P(KeysAlone, DoForAWholeSession) {
    constexpr int kSessions = 3;
    for (std::uint64_t seed = 1; seed <= kSessions && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        play(seed);
    }
    EXPECT_GE(answered, kSessions);
    if (facts().except.refusal == test::Refusal::HelpTableCell) {
        // Nearly every other exercise has three segments; few are played here.
        EXPECT_GT(solved, 0);
    } else {
        EXPECT_GT(2 * solved, answered);
    }
    EXPECT_EQ(steps == 0, facts().except.helpsByMessage);
}

}  // namespace
}  // namespace tavrune
