#include "controls/accessible_controls.h"

#include <memory>
#include <string>

#include <QAccessible>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include "controls/answer_box.h"
#include "controls/button.h"
#include "controls/fraction.h"
#include "controls/label.h"
#include "controls/line_control.h"
#include "controls/option_button.h"
#include "controls/panel.h"

namespace tavrune {
namespace {

/// A window with whatever a test puts on it.
class AccessibleControls : public testing::Test {
protected:
    static QAccessibleInterface& told(QWidget& widget) {
        return *QAccessible::queryAccessibleInterface(&widget);
    }
    static std::string name(QWidget& widget) { return told(widget).text(QAccessible::Name).toStdString(); }
    static std::string description(QWidget& widget) {
        return told(widget).text(QAccessible::Description).toStdString();
    }
    static bool isTold(QWidget& widget) { return !told(widget).state().invisible; }

    QWidget window;
};

TEST_F(AccessibleControls, ALabelIsItsCaptionWithoutItsGaps) {
    Label label(&window);
    label.setCaption("P=    Q +     for Q ");
    window.show();
    EXPECT_EQ(told(label).role(), QAccessible::StaticText);
    EXPECT_EQ(name(label), "P lig med Q plus for Q");
    EXPECT_TRUE(isTold(label));
    label.setAccessibleName("P = 2Q + 3");
    EXPECT_EQ(name(label), "P lig med 2 Q plus 3");
}

TEST_F(AccessibleControls, AnUnderlinedSignIsWhatItLooksLike) {
    Label label(&window);
    window.show();
    label.show();
    label.setCaption("<");
    EXPECT_EQ(name(label), "mindre end");
    label.setUnderlined(true);
    EXPECT_EQ(name(label), "mindre end eller lig med");
    label.setCaption(">");
    EXPECT_EQ(name(label), "større end eller lig med");
}

TEST_F(AccessibleControls, WhatIsForTheEyeAloneIsNotTold) {
    Label empty(&window);
    Label blank(&window);
    blank.setCaption(" ");
    Label piece(&window);
    piece.setCaption("-2");
    piece.setDecorative(true);
    LineControl line(&window);
    window.show();
    EXPECT_FALSE(isTold(empty));
    EXPECT_FALSE(isTold(blank));
    EXPECT_FALSE(isTold(piece));
    EXPECT_FALSE(isTold(line));
}

TEST_F(AccessibleControls, WhatLiesUnderACoverIsNotToldUntilItGoes) {
    Label text(&window);
    text.setGeometry(10, 10, 50, 14);
    text.setCaption("d = 16");
    Label cover(&window);
    cover.setGeometry(0, 0, 100, 40);
    window.show();
    EXPECT_TRUE(isTold(text)) << "it is transparent";
    cover.setBackColour(kWhite);
    EXPECT_FALSE(isTold(text));
    cover.hide();
    EXPECT_TRUE(isTold(text));
}

TEST_F(AccessibleControls, APanelCoversWhatLiesUnderItAndIsToldIfItHoldsSomething) {
    Label text(&window);
    text.setGeometry(10, 10, 50, 14);
    text.setCaption("d = 16");
    AnswerBox box(&window);
    box.setGeometry(60, 10, 30, 20);
    Button button(&window);
    button.setGeometry(60, 10, 30, 20);
    Panel panel(&window);
    panel.setGeometry(0, 0, 100, 40);
    window.show();
    EXPECT_FALSE(isTold(text));
    EXPECT_FALSE(isTold(panel));
    Label inside(&panel);
    inside.setCaption("Generel løsning");
    inside.show();
    EXPECT_TRUE(isTold(panel));
    EXPECT_TRUE(isTold(inside));
    for (QWidget* covered :
         {static_cast<QWidget*>(&text), static_cast<QWidget*>(&box), static_cast<QWidget*>(&button)}) {
        EXPECT_FALSE(isTold(*covered));
        panel.hide();
        EXPECT_TRUE(isTold(*covered));
        panel.show();
    }
}

TEST_F(AccessibleControls, WhatLiesInACoveredBoxIsCoveredToo) {
    QWidget box(&window);
    box.setGeometry(10, 10, 50, 20);
    Label text(&box);
    text.setCaption("5");
    Panel panel(&window);
    panel.setGeometry(0, 0, 100, 40);
    window.show();
    EXPECT_FALSE(isTold(text));
    panel.hide();
    EXPECT_TRUE(isTold(text));
}

TEST_F(AccessibleControls, AFieldIsReadAndWrittenAsAText) {
    AnswerBox box(&window);
    box.setAccessibleName("hældning");
    box.setContent("12.5");
    window.show();
    QAccessibleInterface& field = told(box);
    EXPECT_EQ(field.role(), QAccessible::EditableText);
    EXPECT_EQ(name(box), "hældning");
    EXPECT_EQ(field.text(QAccessible::Value), "12.5");
    EXPECT_TRUE(field.state().editable);
    QAccessibleTextInterface& text = *field.textInterface();
    EXPECT_EQ(text.characterCount(), 4);
    EXPECT_EQ(text.text(1, 3), "2.");
    EXPECT_EQ(text.text(-5, 99), "12.5");
    EXPECT_EQ(text.text(3, 1), "");
    EXPECT_TRUE(field.state().selectableText);
    text.setCursorPosition(2);
    EXPECT_EQ(text.cursorPosition(), 2);
    EXPECT_EQ(text.selectionCount(), 0);
    text.setSelection(0, 1, 3);
    int start = 0;
    int end = 0;
    text.selection(0, &start, &end);
    EXPECT_EQ((std::pair{start, end}), (std::pair{1, 3}));
    EXPECT_EQ(box.selectedText(), "2.");
    EXPECT_EQ(text.selectionCount(), 1);
    text.setSelection(1, 0, 4);
    EXPECT_EQ(box.selectedText(), "2.") << "there is no other selection";
    text.selection(1, &start, &end);
    EXPECT_EQ((std::pair{start, end}), (std::pair{0, 0}));
    text.removeSelection(0);
    EXPECT_EQ(text.selectionCount(), 0);
    text.selection(0, &start, &end);
    EXPECT_EQ((std::pair{start, end}), (std::pair{0, 0}));
    text.addSelection(2, 4);
    EXPECT_EQ(box.selectedText(), ".5");
    text.scrollToSubstring(0, 1);
    EXPECT_EQ(box.selectedText(), "1");
    text.attributes(2, &start, &end);
    EXPECT_EQ((std::pair{start, end}), (std::pair{0, 4}));
    EXPECT_EQ(text.characterRect(1).left(), text.characterRect(0).right() + 1);
    EXPECT_EQ(text.characterRect(0).width(), box.fontMetrics().horizontalAdvance("1"));
    EXPECT_EQ(text.offsetAtPoint(text.characterRect(2).center()), 2);
    QAccessibleEditableTextInterface& typing = *field.editableTextInterface();
    typing.insertText(99, "0");
    typing.deleteText(-1, 1);
    typing.replaceText(0, 1, "3");
    EXPECT_EQ(box.content(), "3.50");
    typing.replaceText(3, 1, "7");
    EXPECT_EQ(box.content(), "3.570");
    field.setText(QAccessible::Name, "hældning");
    EXPECT_EQ(box.content(), "3.570");
    field.setText(QAccessible::Value, "8");
    EXPECT_EQ(box.content(), "8");
}

TEST_F(AccessibleControls, AFieldHasOneLine) {
    AnswerBox box(&window);
    box.setContent("12 5");
    window.show();
    QAccessibleTextInterface& text = *told(box).textInterface();
    int start = 7;
    int end = 7;
    for (const auto type : {QAccessible::LineBoundary, QAccessible::ParagraphBoundary,
                            QAccessible::SentenceBoundary, QAccessible::NoBoundary}) {
        EXPECT_EQ(text.textAtOffset(4, type, &start, &end), "12 5") << type;
        EXPECT_EQ((std::pair{start, end}), (std::pair{0, 4})) << type;
    }
    EXPECT_EQ(text.textAtOffset(1, QAccessible::CharBoundary, &start, &end), "2");
    EXPECT_EQ(text.textAtOffset(0, QAccessible::WordBoundary, &start, &end), "12");
}

TEST_F(AccessibleControls, ATextCoversNothingButAVerdictAVerdict) {
    Label text(&window);
    Label front(&window);
    for (Label* label : {&text, &front}) {
        label->setGeometry(0, 0, 100, 25);
        label->setCaption("d = 16");
        label->setBackColour(kWhite);
    }
    window.show();
    for (const bool isTextVerdict : {false, true}) {
        for (const bool isFrontVerdict : {false, true}) {
            text.setVerdict(isTextVerdict);
            front.setVerdict(isFrontVerdict);
            EXPECT_EQ(isCovered(text), isTextVerdict && isFrontVerdict);
        }
    }
    front.setGeometry(0, 100, 100, 25);
    EXPECT_FALSE(isCovered(text)) << "it stands elsewhere";
}

TEST_F(AccessibleControls, ALabelWithoutAPageIsItsCaption) {
    Label label;
    label.setCaption(" d =  16");
    label.show();
    EXPECT_EQ(name(label), "d = 16");
    label.setAccessibleName("diskriminanten");
    EXPECT_EQ(name(label), "diskriminanten");
}

TEST_F(AccessibleControls, ALabelThatReplacesOneThatLooksTheSameIsRead) {
    const auto add = [this] {
        auto* const label = new Label(&window);
        label->setCaption("d = 16");
        label->show();
        return label;
    };
    const std::unique_ptr<Label> first(add());
    window.show();
    EXPECT_EQ(passagesOf(window).at(0).lead, first.get());
    const Label* const second = add();
    first->setParent(nullptr);
    EXPECT_EQ(passagesOf(window).at(0).lead, second);
}

TEST_F(AccessibleControls, WhatIsNewIsReadWhilePagesAreStill) {
    Label label(&window);
    label.setCaption("d = 16");
    window.show();
    for (const int root : {4, 5}) {
        label.setCaption("x = " + std::to_string(root));
        const StillPages still;
        EXPECT_EQ(passagesOf(window).at(0).words.toStdString(), "x lig med " + std::to_string(root));
    }
}

TEST_F(AccessibleControls, OfTwoVerdictsAtOnePlaceTheOneInFrontIsTold) {
    Label wrong(&window);
    Label right(&window);
    for (Label* verdict : {&wrong, &right}) {
        verdict->setGeometry(0, 0, 100, 25);
        verdict->setCaption("RIGTIGT");
        verdict->setBackColour(kGreen);
        verdict->setVerdict(true);
    }
    window.show();
    EXPECT_EQ(told(right).role(), QAccessible::StaticText);
    EXPECT_FALSE(isTold(wrong));
    EXPECT_TRUE(isTold(right));
}

TEST_F(AccessibleControls, AButtonIsClickedAtOnce) {
    Button button(&window);
    button.setText("&Giv svaret");
    const QSignalSpy clicked(&button, &QAbstractButton::clicked);
    EXPECT_EQ(told(button).role(), QAccessible::Button);
    EXPECT_EQ(name(button), "Giv svaret");
    EXPECT_EQ(told(button).text(QAccessible::Accelerator), "Alt+G");
    QAccessibleActionInterface& actions = *told(button).actionInterface();
    ASSERT_EQ(actions.actionNames().at(0), QAccessibleActionInterface::pressAction());
    EXPECT_EQ(actions.keyBindingsForAction(QAccessibleActionInterface::pressAction()), QStringList("Alt+G"));
    actions.doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicked.count(), 1);
    const QString focus = QAccessibleActionInterface::setFocusAction();
    EXPECT_TRUE(actions.keyBindingsForAction(focus).isEmpty());
    window.show();
    actions.doAction(focus);
    EXPECT_EQ(window.focusWidget(), &button);
    EXPECT_EQ(clicked.count(), 1);
    button.setAccessibleName("Giv hele svaret");
    EXPECT_EQ(name(button), "Giv hele svaret");
    EXPECT_EQ(description(button), "");
    button.setText("Luk");
    EXPECT_TRUE(actions.keyBindingsForAction(QAccessibleActionInterface::pressAction()).isEmpty());
    button.setEnabled(false);
    EXPECT_FALSE(actions.actionNames().contains(QAccessibleActionInterface::pressAction()));
}

TEST_F(AccessibleControls, AnOptionIsChosenWithAllThatAClickRuns) {
    OptionButton option(&window);
    option.setText("&To rødder");
    const QSignalSpy clicked(&option, &QAbstractButton::clicked);
    EXPECT_EQ(told(option).role(), QAccessible::RadioButton);
    EXPECT_EQ(name(option), "To rødder");
    EXPECT_EQ(description(option), "");
    EXPECT_TRUE(told(option).state().checkable);
    EXPECT_FALSE(told(option).state().checked);
    told(option).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_TRUE(told(option).state().checked);
}

TEST_F(AccessibleControls, ColoursOfStateAreDescribed) {
    AnswerBox box(&window);
    EXPECT_EQ(description(box), "");
    box.mark(true);
    EXPECT_EQ(description(box), "forkert");
    box.mark(false);
    EXPECT_EQ(description(box), "");
    OptionButton option(&window);
    EXPECT_EQ(description(option), "");
    option.setBackColour(kGreen);
    EXPECT_EQ(description(option), "rigtigt svar");
    option.resetBackColour();
    EXPECT_EQ(description(option), "");
}

TEST_F(AccessibleControls, AFractionIsToldAsAWhole) {
    Label numerator(&window);
    LineControl bar(&window);
    Label denominator(&window);
    Fraction(&numerator, &bar, &denominator).setTexts("5 - 1", "7");
    window.show();
    EXPECT_EQ(name(numerator), "brøk: tæller 5 minus 1, nævner 7");
    EXPECT_FALSE(isTold(denominator));
}

TEST_F(AccessibleControls, OtherWidgetsAreLeftToQt) {
    EXPECT_EQ(accessibleControl("QWidget", &window), nullptr);
}

}  // namespace
}  // namespace tavrune
