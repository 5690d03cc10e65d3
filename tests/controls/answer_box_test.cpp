#include "controls/answer_box.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTest>

#include <gtest/gtest.h>

namespace tavrune {
namespace {

class AnswerBoxKeys : public testing::Test {
protected:
    void SetUp() override {
        box.show();
        QObject::connect(&box, &AnswerBox::enterPressed, &box, [this] { ++entered; });
    }

    void commit(const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(&box, &event);
    }

    AnswerBox box;
    int entered = 0;
};

TEST_F(AnswerBoxKeys, MakeAPointOfATypedComma) {
    QTest::keyClicks(&box, "1,5");
    EXPECT_EQ(box.content(), "1.5");
    EXPECT_EQ(box.value(), 1.5);
}

TEST_F(AnswerBoxKeys, MakeAPointOfTheKeypadsComma) {
    QTest::keyClick(&box, Qt::Key_2);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Comma, Qt::KeypadModifier, ",");
    QCoreApplication::sendEvent(&box, &press);
    EXPECT_EQ(box.content(), "2.");
}

TEST_F(AnswerBoxKeys, MakeAPointOfACommaThatAnInputMethodCommits) {
    commit("3,2");
    EXPECT_EQ(box.content(), "3.2");
}

TEST_F(AnswerBoxKeys, KeepWhatAnInputMethodIsStillComposing) {
    QInputMethodEvent composing("´", {});
    QCoreApplication::sendEvent(&box, &composing);
    EXPECT_EQ(box.content(), "");
    commit("´,");
    EXPECT_EQ(box.content(), "´.");
}

TEST_F(AnswerBoxKeys, LeaveAPastedCommaAlone) {
    QGuiApplication::clipboard()->setText("1,5");
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.content(), "1,5");
    EXPECT_EQ(box.value(), 1);
}

TEST_F(AnswerBoxKeys, NeverShowACommaByUndo) {
    QTest::keyClicks(&box, "1,5");
    for (int step = 0; step < 4; ++step) {
        QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(box.content().find(','), std::string::npos);
    }
    EXPECT_EQ(box.content(), "");
}

TEST_F(AnswerBoxKeys, LetLettersAndAllElseThrough) {
    QTest::keyClicks(&box, "abc/-+ ;");
    EXPECT_EQ(box.content(), "abc/-+ ;");
}

TEST_F(AnswerBoxKeys, SwallowEnterAndTellOfIt) {
    QTest::keyClicks(&box, "7");
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&box, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(box.content(), "7");
    EXPECT_EQ(entered, 2);
}

TEST_F(AnswerBoxKeys, TakeAHeldEnterOnce) {
    QTest::keyPress(&box, Qt::Key_Return);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QCoreApplication::sendEvent(&box, &repeat);
    EXPECT_EQ(entered, 1);
}

TEST_F(AnswerBoxKeys, WriteNothingWithAlt) {
    QTest::keyClick(&box, '1');
    QTest::keyClick(&box, 'o', Qt::AltModifier);
    QTest::keyClick(&box, 'G', Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(box.content(), "1");
    // The two together make a third key on some keyboards.
    QTest::keyClick(&box, '2', Qt::AltModifier | Qt::ControlModifier);
    QTest::keyClick(&box, '3');
    EXPECT_EQ(box.content().back(), '3');
}

TEST_F(AnswerBoxKeys, LeaveToThePageWhatTheBoxDoesNotTake) {
    const auto isTaken = [this](auto&& event) {
        QCoreApplication::sendEvent(&box, &event);
        return event.isAccepted();
    };
    const auto key = [](Qt::Key code, Qt::KeyboardModifiers modifiers, const QString& text) {
        return QKeyEvent(QEvent::KeyPress, code, modifiers, text);
    };
    EXPECT_TRUE(isTaken(key(Qt::Key_Comma, Qt::NoModifier, ",")));
    EXPECT_FALSE(isTaken(key(Qt::Key_O, Qt::AltModifier, "o")));
    box.setReadOnly(true);
    EXPECT_FALSE(isTaken(key(Qt::Key_Comma, Qt::NoModifier, ",")));
    EXPECT_TRUE(isTaken(key(Qt::Key_Return, Qt::NoModifier, "\r")));
}

TEST(AnswerBox, LeavesItsMenuToThePage) {
    class Page : public QWidget {
    public:
        int asked = 0;

    protected:
        void contextMenuEvent(QContextMenuEvent* /*event*/) override { ++asked; }
    } page;
    AnswerBox box(&page);
    page.show();
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), box.mapToGlobal(QPoint(3, 3)));
    QCoreApplication::sendEvent(&box, &event);
    EXPECT_EQ(page.asked, 1);
}

TEST_F(AnswerBoxKeys, TakeATextOfAnyLength) {
    const std::string megabyte(1'000'000, '1');
    QGuiApplication::clipboard()->setText(QString::fromStdString(megabyte));
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.content().size(), megabyte.size());
}

TEST(AnswerBox, IsReadWithOthersInTheirOrder) {
    AnswerBox one;
    AnswerBox other;
    one.setContent("-1.5x");
    EXPECT_EQ(valuesOf({&other, &one}), (std::vector<double>{0, -1.5}));
}

TEST(AnswerBox, IsWhiteUntilItIsMarkedWrong) {
    AnswerBox box;
    EXPECT_EQ(box.backColour(), kWhite);
    box.mark(true);
    EXPECT_TRUE(box.isMarked());
    EXPECT_EQ(box.backColour(), QColor(255, 0, 0));
    box.mark(false);
    EXPECT_EQ(box.backColour(), kWhite);
}

}  // namespace
}  // namespace tavrune
