#include "shell/zoom.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include "app/program.h"
#include "graph/graph_box.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/opstart.h"
#include "support/form_driver.h"
#include "support/looks.h"

namespace tavrune {
namespace {

using test::FormDriver;
using test::settle;

TEST(Zoom, IsThatOfTheDesignAtFirst) {
    EXPECT_EQ(Zoom().percent(), 100);
    EXPECT_EQ(Zoom().factor(), 1);
    EXPECT_FALSE(Zoom().isFitted());
    EXPECT_TRUE(Zoom::fitted().isFitted());
    EXPECT_FALSE(Zoom() == Zoom::fitted());
}

TEST(Zoom, GoesFromStepToStepAndNotBeyondTheLast) {
    Zoom zoom;
    EXPECT_EQ(smallerThan(zoom.factor()), std::nullopt);
    for (const int percent : {125, 150, 175, 200, 250, 300}) {
        const Zoom larger = largerThan(zoom.factor()).value();
        EXPECT_EQ(larger.percent(), percent);
        EXPECT_EQ(smallerThan(larger.factor()), zoom);
        zoom = larger;
    }
    EXPECT_EQ(largerThan(zoom.factor()), std::nullopt);
}

TEST(Zoom, GoesFromBetweenTwoStepsToTheNearestOnEitherSide) {
    EXPECT_EQ(largerThan(2.17), Zoom(250));
    EXPECT_EQ(smallerThan(2.17), Zoom(200));
    EXPECT_EQ(largerThan(0.8), Zoom(100));
    EXPECT_EQ(smallerThan(0.8), std::nullopt);
    EXPECT_EQ(largerThan(3.6), std::nullopt);
    EXPECT_EQ(smallerThan(3.6), Zoom(300));
}

TEST(Zoom, IsSaidInWords) {
    EXPECT_EQ(wordsFor(Zoom()), "100 procent");
    EXPECT_EQ(wordsFor(Zoom(250)), "250 procent");
    EXPECT_EQ(wordsFor(Zoom::fitted()), "tilpasset vinduet");
}

TEST(Zoom, IsThatOfAMenuInTheFontOfTheDesktopWhetherThatIsInPointsOrInPixels) {
    const QFont before = QApplication::font();
    QFont font = before;
    font.setPointSizeF(10);
    QApplication::setFont(font);
    QMenu menu;
    zoomMenu(menu, 1.5);
    EXPECT_EQ(menu.font().pointSizeF(), 15);
    font.setPixelSize(20);
    QApplication::setFont(font);
    zoomMenu(menu, 1.5);
    EXPECT_EQ(menu.font().pixelSize(), 30);
    QApplication::setFont(before);
}

class ZoomedPage : public testing::Test {
protected:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(&form.page(), key, modifiers);
        settle();
    }

    [[nodiscard]] QScrollArea& view() const { return *form.page().findChild<QScrollArea*>(); }

    SeededDraws draws{4};
    FormDriver form{PageName::Lininter, draws};
};

TEST_F(ZoomedPage, StartsAtTheSizeOfItsDesign) { EXPECT_EQ(form.page().zoom().percent(), 100); }

TEST_F(ZoomedPage, GrowsAndShrinksByTheKeysStepByStep) {
    press(Qt::Key_Plus);
    EXPECT_EQ(form.page().zoom().percent(), 125);
    press(Qt::Key_Equal);
    EXPECT_EQ(form.page().zoom().percent(), 150);
    press(Qt::Key_Minus);
    EXPECT_EQ(form.page().zoom().percent(), 125);
    press(Qt::Key_Plus);
    press(Qt::Key_0);
    EXPECT_EQ(form.page().zoom().percent(), 100);
    press(Qt::Key_Minus);
    EXPECT_EQ(form.page().zoom().percent(), 100);
}

TEST_F(ZoomedPage, TakesTheKeysWhileABoxHasTheFocusAndTypesNothing) {
    AnswerBox& box = form.box("askedCoordinate");
    ASSERT_TRUE(box.hasFocus());
    QTest::keyClick(&box, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(box.content(), "");
    QTest::keyClick(&box, Qt::Key_Minus);
    EXPECT_EQ(box.content(), "-");
}

TEST_F(ZoomedPage, ScalesTheMenuAndItsEntries) {
    const QMenuBar& bar = *form.page().menuBar();
    const QList<QMenu*> menus = bar.findChildren<QMenu*>();
    ASSERT_FALSE(menus.empty());
    const int barHeight = bar.fontMetrics().height();
    const int entryHeight = menus.front()->fontMetrics().height();
    for (int step = 0; step < 4; ++step) {
        press(Qt::Key_Plus);
    }
    ASSERT_EQ(form.page().zoom().percent(), 200);
    EXPECT_NEAR(bar.fontMetrics().height(), 2 * barHeight, 2);
    for (const QMenu* menu : menus) {
        EXPECT_NEAR(menu->fontMetrics().height(), 2 * entryHeight, 2);
    }
    press(Qt::Key_0);
    EXPECT_EQ(bar.fontMetrics().height(), barHeight);
    EXPECT_EQ(menus.front()->fontMetrics().height(), entryHeight);
}

TEST_F(ZoomedPage, ScalesEveryControlWithItsText) {
    struct Before {
        Control* control;
        QRect geometry;
        int textHeight;
    };
    std::vector<Before> all;
    for (QWidget* widget : form.page().findChildren<QWidget*>()) {
        if (auto* const control = dynamic_cast<Control*>(widget)) {
            all.push_back({control, widget->geometry(), widget->font().pixelSize()});
        }
    }
    ASSERT_GT(all.size(), 50U);
    form.page().setZoom(Zoom(200));
    for (const Before& before : all) {
        const QRect now = before.control->widget()->geometry();
        // Whole units of the design become whole pixels; what code has placed may lie between them.
        EXPECT_NEAR(now.left(), 2 * before.geometry.left(), 1);
        EXPECT_NEAR(now.top(), 2 * before.geometry.top(), 1);
        EXPECT_NEAR(now.width(), 2 * before.geometry.width(), 2);
        EXPECT_NEAR(now.height(), 2 * before.geometry.height(), 2);
        if (before.textHeight > 0) {
            EXPECT_EQ(before.control->widget()->font().pixelSize(), 2 * before.textHeight)
                << before.control->widget()->objectName().toStdString();
        }
    }
}

TEST_F(ZoomedPage, ComesBackToWhereItWas) {
    const QRect before = form.button("help").geometry();
    for (int times = 0; times < 10; ++times) {
        press(Qt::Key_Plus);
    }
    EXPECT_EQ(form.page().zoom().percent(), 300);
    press(Qt::Key_0);
    EXPECT_EQ(form.button("help").geometry(), before);
}

TEST_F(ZoomedPage, KeepsItsExerciseItsFocusAndItsStrokes) {
    form.type("askedCoordinate", "12");
    const auto strokes = form.find<GraphBox>("graph").strokes();
    press(Qt::Key_Plus);
    EXPECT_EQ(form.box("askedCoordinate").content(), "12");
    EXPECT_EQ(form.focus(), "askedCoordinate");
    EXPECT_EQ(form.find<GraphBox>("graph").strokes(), strokes);
}

TEST_F(ZoomedPage, NeedsNoScrollingAtItsOwnSize) {
    form.page().resize(form.page().sizeHint());
    settle();
    EXPECT_EQ(view().horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(view().verticalScrollBar()->maximum(), 0);
}

TEST_F(ZoomedPage, ScrollsToTheFocusWhereItIsLargerThanTheWindow) {
    form.page().resize(form.page().sizeHint());
    for (int times = 0; times < 6; ++times) {
        press(Qt::Key_Plus);
    }
    EXPECT_GT(view().verticalScrollBar()->maximum(), 0);
    const auto isInSight = [this](const std::string& name) {
        const QWidget& widget = form.find(name);
        return view().viewport()->rect().contains(
            QRect(widget.mapTo(view().viewport(), QPoint(0, 0)), widget.size()));
    };
    focusOn(&form.button("help"));
    EXPECT_TRUE(isInSight("help"));
    EXPECT_FALSE(isInSight("askedCoordinate"));
    focusOn(&form.box("askedCoordinate"));
    EXPECT_TRUE(isInSight("askedCoordinate"));
}

class ZoomedProgram : public testing::Test {
protected:
    void press(Qt::Key key) {
        QTest::keyClick(program.page(), key, Qt::ControlModifier);
        settle();
    }

    SeededDraws draws{1};
    Program program{draws};
};

TEST_F(ZoomedProgram, KeepsItsSizeFromPageToPage) {
    program.open(PageName::Brok);
    settle();
    press(Qt::Key_Plus);
    press(Qt::Key_Plus);
    program.open(PageName::Opstart);
    settle();
    EXPECT_EQ(program.page()->zoom().percent(), 150);
    press(Qt::Key_Minus);
    program.open(PageName::Lininter);
    settle();
    EXPECT_EQ(program.page()->zoom().percent(), 125);
    EXPECT_EQ(program.page()->findChild<Button*>("help")->width(), 95);
}

TEST_F(ZoomedProgram, SizesTheAboutBoxToo) {
    program.open(PageName::Opstart);
    program.openAbout();
    settle();
    const QSize before = program.about()->size();
    press(Qt::Key_Plus);
    EXPECT_EQ(program.about()->size(), before * 1.25);
    QTest::keyClick(program.about(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(program.about()->size(), before);
    EXPECT_EQ(program.page()->zoom().percent(), 100);
}

TEST_F(ZoomedProgram, OpensTheAboutBoxAtTheSizeOfThePages) {
    program.open(PageName::Opstart);
    program.openAbout();
    settle();
    const QSize before = program.about()->size();
    program.about()->close();
    settle();
    program.window()->activateWindow();
    settle();
    press(Qt::Key_Plus);
    program.openAbout();
    settle();
    EXPECT_EQ(program.about()->size(), before * 1.25);
}

TEST_F(ZoomedProgram, StartsAnewAtItsOwnSize) {
    program.open(PageName::Brok);
    settle();
    press(Qt::Key_Plus);
    Program next(draws);
    next.open(PageName::Brok);
    settle();
    EXPECT_EQ(next.page()->zoom().percent(), 100);
}

TEST_F(ZoomedProgram, LetsTheStartPageBeScrolledToItsEnds) {
    program.open(PageName::Opstart);
    settle();
    for (int times = 0; times < 6; ++times) {
        press(Qt::Key_Plus);
    }
    const QWidget* const design = program.page()->findChild<QScrollArea*>()->widget();
    const QRect all = design->childrenRect();
    EXPECT_GE(design->width(), all.right());
    EXPECT_GE(design->height(), all.bottom());
}

void setZoom(Page& page, Zoom zoom) { page.setZoom(zoom); }
void setZoom(FrmAbout& box, Zoom zoom) { box.setFactor(zoom.factor()); }

/// Brings a page, or any other window that can be zoomed, to every size in turn.
template <class Window>
void expectNoFlawsAtAnySize(Window& window) {
    window.show();
    settle();
    for (const int percent : kZoomSteps) {
        setZoom(window, Zoom(percent));
        settle();
        EXPECT_EQ(test::flawsOf(window), std::vector<std::string>{}) << percent << " %";
    }
}

TEST(ZoomedStartPage, HasNoTextCutOffOrOverAnotherAtAnySize) {
    for (const QSize screen : {QSize(640, 480), QSize(1024, 768), QSize(1920, 1080), QSize(3840, 2160)}) {
        Opstart page(screen);
        page.resize(screen);
        expectNoFlawsAtAnySize(page);
    }
}

TEST(ZoomedHowToUse, HasNoTextCutOffOrOverAnotherAtAnySize) {
    Form1 first;
    expectNoFlawsAtAnySize(first);
    Form2 second;
    expectNoFlawsAtAnySize(second);
}

TEST(ZoomedAboutBox, HasNoTextCutOffOrOverAnotherAtAnySize) {
    FrmAbout box;
    box.setAttribute(Qt::WA_DeleteOnClose, false);
    expectNoFlawsAtAnySize(box);
}

}  // namespace
}  // namespace tavrune
