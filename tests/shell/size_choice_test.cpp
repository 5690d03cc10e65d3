#include "shell/size_choice.h"

#include <limits>

#include <QApplication>
#include <QPointer>
#include <QPointingDevice>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "app/program.h"
#include "controls/voice.h"
#include "support/form_driver.h"

namespace tavrune {
namespace {

using test::FormDriver;
using test::settle;

using Lines = std::vector<std::string>;

/// An entry with its key, in brackets if it is disabled; a line for a separator.
std::string lineOf(const QAction& entry) {
    if (entry.isSeparator()) {
        return "-";
    }
    const QKeySequence key = entry.isShortcutVisibleInContextMenu() ? entry.shortcut() : QKeySequence();
    const std::string line =
        entry.text().toStdString() + ": " + key.toString(QKeySequence::PortableText).toStdString();
    return entry.isEnabled() ? line : "(" + line + ")";
}

Lines linesOf(const QMenu* menu) {
    Lines lines;
    for (const QAction* entry : menu == nullptr ? QList<QAction*>() : menu->actions()) {
        lines.push_back(lineOf(*entry));
    }
    return lines;
}

QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

void closeMenu() {
    while (QWidget* const popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    settle();
}

const Lines kAtDesignSize{"Større: Ctrl++", "(Mindre: Ctrl+-)", "Tilpas til vinduet: Ctrl+9",
                          "(Som før (100 %): Ctrl+0)"};

class Sizes : public testing::Test {
protected:
    void TearDown() override { closeMenu(); }

    /// What the desktop sends for the right button, or for the menu key.
    void askAt(QWidget& widget, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse) {
        const QPoint at = widget.rect().center();
        QContextMenuEvent event(reason, at, widget.mapToGlobal(at));
        QApplication::sendEvent(&widget, &event);
        EXPECT_TRUE(event.isAccepted());
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(form.page().windowHandle(), key, modifiers);
        settle();
    }

    /// Chooses an entry of the open menu by keys.
    void choose(int place) {
        QMenu* const menu = openMenu();
        ASSERT_NE(menu, nullptr);
        menu->setActiveAction(menu->actions().at(place));
        QTest::keyClick(menu, Qt::Key_Return);
        settle();
    }

    void turnWheel(QWidget& over, int delta, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        const QPointF at = over.rect().center();
        QWheelEvent event(at, over.mapToGlobal(at), {}, {0, delta}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        // Only those that come from outside go on to the widgets behind.
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(&over, &event);
        settle();
    }

    /// Returns whether anything has taken it for its own.
    bool pinch(Qt::NativeGestureType type, double value = 0) {
        QWidget& over = form.find("askedCoordinate");
        const QPointF at = over.rect().center();
        QNativeGestureEvent event(type, QPointingDevice::primaryPointingDevice(), 2, at, at,
                                  over.mapToGlobal(at), value, {});
        const bool isTaken = QApplication::sendEvent(&over, &event);
        settle();
        return isTaken;
    }

    [[nodiscard]] int percent() const { return form.page().zoom().percent(); }

    SeededDraws draws{4};
    FormDriver form{PageName::Lininter, draws};
};

TEST_F(Sizes, AreOfferedByTheRightButtonOnAnyGroundLabelButtonAndGraph) {
    for (const char* name : {"LininterDesign", "givenPointsHeading", "newExercise", "graph"}) {
        QWidget* const there = form.page().findChild<QWidget*>(name);
        ASSERT_NE(there, nullptr) << name;
        askAt(*there);
        EXPECT_EQ(linesOf(openMenu()), kAtDesignSize) << name;
        closeMenu();
    }
}

TEST_F(Sizes, AreOfferedWhereTheRightButtonIsPressed) {
    QWidget& heading = form.find("givenPointsHeading");
    askAt(heading);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(openMenu()->pos(), heading.mapToGlobal(heading.rect().center()));
}

TEST_F(Sizes, AreOfferedBelowTheOwnEntriesOfABox) {
    AnswerBox& box = form.box("askedCoordinate");
    const std::unique_ptr<QMenu> own(box.createStandardContextMenu());
    Lines expected = linesOf(own.get());
    ASSERT_GT(expected.size(), 5U);
    expected.push_back("-");
    expected.insert(expected.end(), kAtDesignSize.begin(), kAtDesignSize.end());
    for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
        askAt(box, reason);
        EXPECT_EQ(linesOf(openMenu()), expected);
        closeMenu();
    }
}

TEST_F(Sizes, LeaveTheOwnEntriesOfABoxWorking) {
    form.type("askedCoordinate", "12");
    askAt(form.box("askedCoordinate"));
    ASSERT_NE(openMenu(), nullptr);
    // "Fortryd", wherever the words come from.
    openMenu()->actions().front()->trigger();
    EXPECT_NE(form.box("askedCoordinate").content(), "12");
}

TEST_F(Sizes, AreOfferedByKeyWithTheFirstEntryChosen) {
    form.button("newExercise").setFocus();
    press(Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(linesOf(openMenu()), kAtDesignSize);
    EXPECT_EQ(lineOf(*openMenu()->activeAction()), kAtDesignSize.front());
    const QWidget& button = form.button("newExercise");
    EXPECT_EQ(openMenu()->pos(), button.mapToGlobal(button.rect().bottomLeft()));
    QTest::keyClick(openMenu(), Qt::Key_Return);
    settle();
    EXPECT_EQ(percent(), 125);
    EXPECT_EQ(form.focus(), "newExercise");
}

TEST_F(Sizes, AreOfferedByTheMenuKeyWithTheFirstEntryChosen) {
    form.button("newExercise").setFocus();
    askAt(form.button("newExercise"), QContextMenuEvent::Keyboard);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(lineOf(*openMenu()->activeAction()), kAtDesignSize.front());
}

TEST_F(Sizes, AreOfferedByKeyInABoxWithTheFirstEntryThatCanBeChosen) {
    // Nothing to undo, to copy or to select: all of the box's own entries are disabled, the lines between
    // them are not.
    form.button("newExercise").setFocus();
    form.box("askedCoordinate").setFocus();
    press(Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(openMenu(), nullptr);
    ASSERT_NE(openMenu()->activeAction(), nullptr);
    EXPECT_TRUE(openMenu()->activeAction()->isEnabled());
    EXPECT_FALSE(openMenu()->activeAction()->isSeparator());
}

TEST_F(Sizes, AreOfferedByKeyOnAPageWithoutFocus) {
    Program program(draws);
    program.open(PageName::Opstart);
    settle();
    QTest::keyClick(program.window()->windowHandle(), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(linesOf(openMenu()), kAtDesignSize);
}

TEST_F(Sizes, AreChosenInTheMenuAndThoseThatChangeNothingAreDisabled) {
    QWidget& ground = form.find("givenPointsHeading");
    askAt(ground);
    choose(0);
    EXPECT_EQ(percent(), 125);
    askAt(ground);
    EXPECT_EQ(linesOf(openMenu()), (Lines{"Større: Ctrl++", "Mindre: Ctrl+-", "Tilpas til vinduet: Ctrl+9",
                                          "Som før (100 %): Ctrl+0"}));
    choose(1);
    EXPECT_EQ(percent(), 100);
    form.page().setZoom(Zoom(300));
    askAt(ground);
    EXPECT_EQ(linesOf(openMenu()), (Lines{"(Større: Ctrl++)", "Mindre: Ctrl+-", "Tilpas til vinduet: Ctrl+9",
                                          "Som før (100 %): Ctrl+0"}));
    choose(3);
    EXPECT_EQ(percent(), 100);
    form.page().resize(1000, 1000);
    settle();
    askAt(ground);
    choose(2);
    EXPECT_TRUE(form.page().zoom().isFitted());
    askAt(ground);
    EXPECT_EQ(linesOf(openMenu()), (Lines{"Større: Ctrl++", "Mindre: Ctrl+-", "(Tilpas til vinduet: Ctrl+9)",
                                          "Som før (100 %): Ctrl+0"}));
}

TEST_F(Sizes, HaveTheirMenuInTheSizeOfThePage) {
    QWidget& ground = form.find("givenPointsHeading");
    askAt(ground);
    const int before = openMenu()->fontMetrics().height();
    closeMenu();
    form.page().setZoom(Zoom(200));
    askAt(ground);
    EXPECT_NEAR(openMenu()->fontMetrics().height(), 2 * before, 2);
}

TEST_F(Sizes, AreChosenByTheWheelWithCtrlWhereverThePointerIs) {
    for (const char* name :
         {"LininterDesign", "givenPointsHeading", "askedCoordinate", "newExercise", "graph"}) {
        turnWheel(form.find(name), 120);
        EXPECT_EQ(percent(), 125) << name;
        turnWheel(form.find(name), -120);
        EXPECT_EQ(percent(), 100) << name;
    }
    turnWheel(form.page(), 240);
    EXPECT_EQ(percent(), 150);
}

TEST_F(Sizes, AreChosenByTheWheelWhereThePageCanBeScrolledToo) {
    form.page().resize(400, 300);
    settle();
    const QScrollBar& bar = *form.page().findChild<QScrollArea*>()->verticalScrollBar();
    const int before = bar.value();
    turnWheel(form.find("graph"), 120);
    EXPECT_EQ(percent(), 125);
    turnWheel(form.find("graph"), -120);
    EXPECT_EQ(percent(), 100);
    EXPECT_EQ(bar.value(), before);
    turnWheel(form.find("graph"), -120, Qt::NoModifier);
    EXPECT_EQ(percent(), 100);
    EXPECT_GT(bar.value(), before);
}

TEST_F(Sizes, WaitForAWholeNotchOfAFineWheel) {
    turnWheel(form.page(), 50);
    turnWheel(form.page(), 50);
    EXPECT_EQ(percent(), 100);
    turnWheel(form.page(), 50);
    EXPECT_EQ(percent(), 125);
    // Back: what was left over of the other direction does not count.
    turnWheel(form.page(), -60);
    EXPECT_EQ(percent(), 125);
    turnWheel(form.page(), -60);
    EXPECT_EQ(percent(), 100);
}

TEST_F(Sizes, AreCountedFromNothingAfterAWheelWithoutCtrlAndNotAfterOneToTheSide) {
    turnWheel(form.page(), 119);
    EXPECT_EQ(percent(), 100);
    turnWheel(form.page(), 0);
    turnWheel(form.page(), 1);
    EXPECT_EQ(percent(), 125);
    turnWheel(form.page(), 60);
    turnWheel(form.page(), 60, Qt::NoModifier);
    turnWheel(form.page(), 119);
    EXPECT_EQ(percent(), 125);
    turnWheel(form.page(), 1);
    EXPECT_EQ(percent(), 150);
}

TEST_F(Sizes, EndAtTheLastStepHoweverFarTheWheelIsTurned) {
    turnWheel(form.page(), std::numeric_limits<int>::max());
    EXPECT_EQ(percent(), 300);
    turnWheel(form.page(), std::numeric_limits<int>::min());
    EXPECT_EQ(percent(), 100);
}

TEST_F(Sizes, AreNotChosenByTheWheelAlone) {
    turnWheel(form.page(), 120, Qt::NoModifier);
    turnWheel(form.page(), 120, Qt::ShiftModifier);
    turnWheel(form.page(), 120, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(percent(), 100);
}

TEST_F(Sizes, AreChosenByFingersThatMoveApartOrTogether) {
    EXPECT_FALSE(pinch(Qt::BeginNativeGesture));
    EXPECT_TRUE(pinch(Qt::ZoomNativeGesture, 0.1));
    EXPECT_EQ(percent(), 100);
    pinch(Qt::ZoomNativeGesture, 0.1);
    EXPECT_EQ(percent(), 125);
    pinch(Qt::ZoomNativeGesture, 0.15);
    EXPECT_FALSE(pinch(Qt::EndNativeGesture));
    pinch(Qt::BeginNativeGesture);
    pinch(Qt::ZoomNativeGesture, 0.15);
    EXPECT_EQ(percent(), 125) << "half a step of each of two pinches is none";
    pinch(Qt::EndNativeGesture);
    pinch(Qt::BeginNativeGesture);
    pinch(Qt::ZoomNativeGesture, -0.1);
    pinch(Qt::ZoomNativeGesture, -0.1);
    EXPECT_EQ(percent(), 100);
    EXPECT_FALSE(pinch(Qt::RotateNativeGesture, 2));
    EXPECT_EQ(percent(), 100);
}

TEST_F(Sizes, AreChosenAsSoonAsFingersHaveMovedByAFifthAndNotAgainBefore) {
    pinch(Qt::ZoomNativeGesture, 0.1);
    EXPECT_EQ(percent(), 100);
    pinch(Qt::BeginNativeGesture);
    pinch(Qt::ZoomNativeGesture, 0.2);
    EXPECT_EQ(percent(), 125);
    pinch(Qt::ZoomNativeGesture, 0.19);
    EXPECT_EQ(percent(), 125);
    pinch(Qt::BeginNativeGesture);
    pinch(Qt::ZoomNativeGesture, 1 / 1.2 - 1);
    EXPECT_EQ(percent(), 100);
    pinch(Qt::ZoomNativeGesture, 0.19);
    EXPECT_EQ(percent(), 100);
}

TEST_F(Sizes, LeaveNoMenuBehind) {
    askAt(form.find("givenPointsHeading"));
    const QPointer<QMenu> menu = openMenu();
    ASSERT_FALSE(menu.isNull());
    closeMenu();
    EXPECT_TRUE(menu.isNull());
}

TEST_F(Sizes, AreChosenByKeysWhileABoxHasTheFocusAndTypeNothing) {
    form.page().resize(1000, 1000);
    settle();
    ASSERT_EQ(form.focus(), "askedCoordinate");
    press(Qt::Key_9);
    EXPECT_TRUE(form.page().zoom().isFitted());
    press(Qt::Key_0);
    EXPECT_EQ(percent(), 100);
    press(Qt::Key_Plus);
    EXPECT_EQ(percent(), 125);
    EXPECT_EQ(form.box("askedCoordinate").content(), "");
    EXPECT_EQ(form.focus(), "askedCoordinate");
}

TEST_F(Sizes, AreReachedFromAFittedPageByTheNextStepOnEitherSide) {
    form.page().resize(1100, 1100);
    settle();
    press(Qt::Key_9);
    ASSERT_GT(form.page().factor(), 1.5);
    ASSERT_LT(form.page().factor(), 1.75);
    press(Qt::Key_Plus);
    EXPECT_EQ(percent(), 175);
    press(Qt::Key_9);
    press(Qt::Key_Minus);
    EXPECT_EQ(percent(), 150);
}

TEST_F(Sizes, AreSaidAlsoWhereThereIsNoMore) {
    const QSignalSpy said(&Voice::instance(), &Voice::said);
    const auto last = [&said] { return said.isEmpty() ? QString() : said.last().front().toString(); };
    press(Qt::Key_Plus);
    EXPECT_EQ(last(), "125 procent");
    press(Qt::Key_9);
    EXPECT_EQ(last(), "tilpasset vinduet");
    press(Qt::Key_0);
    EXPECT_EQ(last(), "100 procent");
    const auto count = said.size();
    press(Qt::Key_Minus);
    EXPECT_EQ(said.size(), count + 1);
    EXPECT_EQ(last(), "100 procent");
    askAt(form.find("givenPointsHeading"));
    choose(0);
    EXPECT_EQ(last(), "125 procent");
}

class SizesOfAll : public Sizes {
protected:
    SizesOfAll() { program.open(PageName::Opstart); }

    Program program{draws};
};

TEST_F(SizesOfAll, CanBeChosenOnTheAboutBox) {
    program.openAbout();
    settle();
    const QSize before = program.about()->size();
    turnWheel(*program.about()->findChild<QWidget*>("rights"), 120);
    EXPECT_EQ(program.about()->size(), before * 1.25);
    EXPECT_EQ(program.page()->zoom(), Zoom(125));
    askAt(*program.about()->findChild<QWidget*>("rights"));
    EXPECT_EQ(linesOf(openMenu()).size(), 4U);
    choose(3);
    EXPECT_EQ(program.about()->size(), before);
}

TEST_F(SizesOfAll, AreKeptFromPageToPageAndBack) {
    settle();
    QTest::keyClick(program.window()->windowHandle(), Qt::Key_9, Qt::ControlModifier);
    program.open(PageName::Brok);
    EXPECT_TRUE(program.page()->zoom().isFitted());
    const double fitted = program.page()->factor();
    program.open(PageName::Opstart);
    program.open(PageName::Diff);
    settle();
    EXPECT_EQ(program.page()->factor(), fitted);
}

TEST_F(SizesOfAll, OfTheAboutBoxAloneAreChosenToo) {
    program.openAbout();
    settle();
    const QSize before = program.about()->size();
    delete program.window();
    settle();
    ASSERT_EQ(program.page(), nullptr);
    QTest::keyClick(program.about(), Qt::Key_9, Qt::ControlModifier);
    EXPECT_EQ(program.about()->size(), before);
    QTest::keyClick(program.about(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(program.about()->size(), before * 1.25);
    QTest::keyClick(program.about(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(program.about()->size(), before);
}

}  // namespace
}  // namespace tavrune
