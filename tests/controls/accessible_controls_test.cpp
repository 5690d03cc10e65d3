#include "controls/accessible_controls.h"

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
    EXPECT_EQ(name(label), "P= Q + for Q");
    EXPECT_TRUE(isTold(label));
    label.setAccessibleName("P = 2Q + 3");
    EXPECT_EQ(name(label), "P = 2Q + 3");
}

TEST_F(AccessibleControls, AnUnderlinedSignIsWhatItLooksLike) {
    Label label(&window);
    label.setCaption("<");
    EXPECT_EQ(name(label), "<");
    label.setUnderlined(true);
    EXPECT_EQ(name(label), "≤");
    label.setCaption(">");
    EXPECT_EQ(name(label), "≥");
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

TEST_F(AccessibleControls, APanelCoversOnlyWhileItHoldsNothing) {
    Label text(&window);
    text.setGeometry(10, 10, 50, 14);
    text.setCaption("d = 16");
    Panel panel(&window);
    panel.setGeometry(0, 0, 100, 40);
    window.show();
    EXPECT_FALSE(isTold(text));
    EXPECT_FALSE(isTold(panel));
    Label inside(&panel);
    inside.setCaption("Generel løsning");
    inside.show();
    EXPECT_TRUE(isTold(text));
    EXPECT_TRUE(isTold(panel));
    EXPECT_EQ(told(panel).role(), QAccessible::Grouping);
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
    EXPECT_EQ(told(right).role(), QAccessible::Notification);
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
    button.setEnabled(false);
    EXPECT_FALSE(actions.actionNames().contains(QAccessibleActionInterface::pressAction()));
}

TEST_F(AccessibleControls, AnOptionIsChosenWithAllThatAClickRuns) {
    OptionButton option(&window);
    option.setText("&To rødder");
    const QSignalSpy clicked(&option, &QAbstractButton::clicked);
    EXPECT_EQ(told(option).role(), QAccessible::RadioButton);
    EXPECT_EQ(name(option), "To rødder");
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
    EXPECT_EQ(name(numerator), "brøk: tæller 5 - 1, nævner 7");
    EXPECT_FALSE(isTold(denominator));
}

TEST_F(AccessibleControls, OtherWidgetsAreLeftToQt) {
    EXPECT_EQ(accessibleControl("QWidget", &window), nullptr);
}

}  // namespace
}  // namespace tavrune
