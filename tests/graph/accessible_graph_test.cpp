#include "graph/accessible_graph.h"

#include <memory>

#include <QAccessible>

#include <gtest/gtest.h>

#include "controls/label.h"
#include "graph/graph_box.h"

namespace tavrune {
namespace {

QAccessibleInterface& told(GraphBox& box) { return *QAccessible::queryAccessibleInterface(&box); }

TEST(AccessibleGraph, IsAChartThatTellsWhatStandsOnItNow) {
    GraphBox box;
    box.Scale(-10, 10, 10, -10);
    EXPECT_EQ(told(box).role(), QAccessible::Chart);
    const QString empty = told(box).text(QAccessible::Description);
    box.Line(1, 2, 3, 4, kRed);
    EXPECT_TRUE(told(box).text(QAccessible::Description).endsWith("Linie fra (1; 2) til (3; 4), rød."));
    box.Cls();
    EXPECT_EQ(told(box).text(QAccessible::Description), empty);
}

TEST(AccessibleGraph, StaysAGraphWithItsNumbersAndIsNoneAsAFrame) {
    GraphBox box;
    box.setAccessibleName("graf over linien");
    const Label number(&box);
    EXPECT_EQ(told(box).role(), QAccessible::Chart);
    const QObject nothingToSee(&box);
    EXPECT_EQ(told(box).role(), QAccessible::Chart);
    const GraphBox inner(&box);
    // Screen readers read all texts of a group each time that the focus comes into it.
    EXPECT_EQ(told(box).role(), QAccessible::Client);
    EXPECT_EQ(told(box).text(QAccessible::Description), "");
    EXPECT_EQ(told(box).text(QAccessible::Name), "graf over linien");
}

TEST(AccessibleGraph, IsInvisibleBehindACover) {
    QWidget page;
    GraphBox box(&page);
    box.setGeometry(10, 10, 50, 50);
    Label cover(&page);
    cover.setGeometry(0, 0, 100, 100);
    cover.setBackColour(kWhite);
    page.show();
    EXPECT_TRUE(told(box).state().invisible);
    cover.hide();
    EXPECT_FALSE(told(box).state().invisible);
    box.hide();
    EXPECT_TRUE(told(box).state().invisible);
}

TEST(AccessibleGraph, IsMadeOfNothingElse) {
    QWidget other;
    EXPECT_EQ(accessibleGraph("QWidget", &other), nullptr);
}

}  // namespace
}  // namespace tavrune
