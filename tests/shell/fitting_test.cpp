// Pages that fit their window, and windows that are smaller than their page.

#include <map>

#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include "app/program.h"
#include "conformance/facts.h"
#include "shell/opstart.h"
#include "support/event_count.h"
#include "support/form_driver.h"
#include "support/looks.h"

namespace tavrune {
namespace {

using test::FormDriver;
using test::settle;

/// Windows of screens of students, and of no sensible shape at all.
const std::array kWindows{QSize(800, 600),   QSize(1024, 768),  QSize(1366, 768),  QSize(1920, 1080),
                          QSize(2560, 1440), QSize(3840, 2160), QSize(1080, 1920), QSize(700, 2000),
                          QSize(3000, 500),  QSize(1001, 701)};

const QScrollArea& viewOf(const QWidget& window) { return *window.findChild<QScrollArea*>(); }

bool isScrolled(const QWidget& window) {
    const QScrollArea& view = viewOf(window);
    return view.horizontalScrollBar()->isVisible() || view.verticalScrollBar()->isVisible() ||
           view.horizontalScrollBar()->maximum() > 0 || view.verticalScrollBar()->maximum() > 0;
}

/// True if a page of these units is in sight as a whole, and one a hundredth larger would not be.
bool fitsJust(const QWidget& window, double factor, QSizeF units) {
    const QSizeF room = viewOf(window).viewport()->size();
    const QSizeF page = units * factor;
    const auto exceeds = [&room](const QSizeF& size) {
        return size.width() > room.width() + 0.001 || size.height() > room.height() + 0.001;
    };
    return !exceeds(page) && exceeds(page * 1.01);
}

class FittedPage : public testing::Test {
protected:
    void SetUp() override { form.page().setZoom(Zoom::fitted()); }

    void resize(QSize size) {
        form.page().resize(size);
        settle();
    }

    [[nodiscard]] bool fits() const {
        return fitsJust(form.page(), form.page().factor(), {kDesignWidth, kDesignHeight});
    }

    SeededDraws draws{4};
    FormDriver form{PageName::Lininter, draws};
};

TEST_F(FittedPage, IsInSightAsAWholeAndAsLargeAsCanBe) {
    for (const QSize window : kWindows) {
        resize(window);
        if (form.page().factor() < kLargestFit) {
            EXPECT_TRUE(fits()) << window.width() << " x " << window.height() << ": " << form.page().factor();
        }
        EXPECT_FALSE(isScrolled(form.page())) << window.width() << " x " << window.height();
    }
}

TEST_F(FittedPage, FillsItsWindowToAPixelInOneDirection) {
    const auto bar = [this] { return form.page().menuBar()->heightForWidth(form.page().width()); };
    resize({1288, 3000});
    EXPECT_EQ(form.page().factor(), 2);
    resize({4000, 1000});
    EXPECT_EQ(form.page().factor(), (1000 - bar()) / 446.0);
}

TEST_F(FittedPage, HasScrollBarsAgainOnceAnotherSizeIsChosen) {
    resize({700, 600});
    ASSERT_FALSE(isScrolled(form.page()));
    form.page().setZoom(Zoom(300));
    settle();
    EXPECT_TRUE(viewOf(form.page()).horizontalScrollBar()->isVisible());
    EXPECT_TRUE(viewOf(form.page()).verticalScrollBar()->isVisible());
}

TEST_F(FittedPage, IsAtMostFourTimesAsLargeAsItsDesign) {
    resize({4000, 4000});
    EXPECT_EQ(form.page().factor(), 4);
    EXPECT_EQ(form.button("help").width(), 4 * 76);
}

TEST_F(FittedPage, IsNeverSmallerThanItsDesignAndCanBeScrolledThere) {
    resize({500, 300});
    EXPECT_EQ(form.page().factor(), 1);
    EXPECT_GT(viewOf(form.page()).horizontalScrollBar()->maximum(), 0);
    EXPECT_GT(viewOf(form.page()).verticalScrollBar()->maximum(), 0);
    resize({1500, 900});
    EXPECT_FALSE(isScrolled(form.page()));
}

TEST_F(FittedPage, FollowsTheWindowUntilAnotherSizeIsChosen) {
    resize({1300, 1000});
    const double before = form.page().factor();
    resize({1500, 1100});
    EXPECT_GT(form.page().factor(), before);
    resize({1300, 1000});
    EXPECT_EQ(form.page().factor(), before);
    form.page().setZoom(Zoom(150));
    resize({1500, 1100});
    EXPECT_EQ(form.page().factor(), 1.5);
}

TEST_F(FittedPage, HasItsMenuInItsSize) {
    form.page().setZoom(Zoom());
    const int before = form.page().menuBar()->fontMetrics().height();
    form.page().setZoom(Zoom::fitted());
    resize({1400, 1100});
    EXPECT_NEAR(form.page().menuBar()->fontMetrics().height(), form.page().menuFactor() * before, 2);
    EXPECT_NEAR(form.page().menuFactor(), form.page().factor(), 0.05);
}

TEST_F(FittedPage, IsTheSameWhicheverWayItCameToItsWindow) {
    resize({1500, 1000});
    const double grown = form.page().factor();
    resize({3000, 2000});
    resize({1500, 1000});
    EXPECT_EQ(form.page().factor(), grown);
    form.page().setZoom(Zoom(300));
    settle();
    form.page().setZoom(Zoom::fitted());
    settle();
    EXPECT_EQ(form.page().factor(), grown);
}

TEST_F(FittedPage, HasOneSizeInEachWindowAndComesToRestThere) {
    std::map<int, double> factors;
    for (int height = 460; height < 1900; height += 3) {
        resize({3000, height});
        factors[height] = form.page().factor();
    }
    for (const auto& [height, factor] : factors) {
        resize({3000, 2200 - height});
        resize({3000, height});
        EXPECT_EQ(form.page().factor(), factor) << height;
    }
}

TEST_F(FittedPage, KeepsWhatIsTypedAndWhereTheFocusIs) {
    form.type("askedCoordinate", "12");
    resize({1700, 1100});
    EXPECT_EQ(form.box("askedCoordinate").content(), "12");
    EXPECT_EQ(form.focus(), "askedCoordinate");
}

TEST_F(FittedPage, IsPaintedOnceForEachSizeOfTheWindow) {
    resize({1300, 1000});
    const test::EventCount paints(form.button("help"), QEvent::Paint);
    resize({1500, 1100});
    EXPECT_EQ(paints.count(), 1);
}

TEST(FittedStartPage, FillsTheWindowInItsOwnProportions) {
    for (const QSize screen : {QSize(800, 600), QSize(1366, 768), QSize(1920, 1080)}) {
        const ScreenStretch stretch = stretchFor(screen);
        Opstart page(screen);
        page.setZoom(Zoom::fitted());
        for (const QSize window : {screen, screen * 0.9, screen * 1.5, QSize(1500, 900)}) {
            page.resize(window);
            page.show();
            settle();
            EXPECT_TRUE(fitsJust(page, page.factor(), {640 * stretch.x, 440 * stretch.y}))
                << screen.width() << ": " << window.width() << " x " << window.height();
            EXPECT_FALSE(isScrolled(page));
        }
    }
}

TEST(FittedStartPage, HasNoTextCutOffOrOverAnother) {
    for (const QSize screen : {QSize(800, 600), QSize(1366, 768), QSize(1920, 1080), QSize(3840, 2160)}) {
        Opstart page(screen);
        page.setZoom(Zoom::fitted());
        for (const QSize window : test::commonScreens()) {
            page.resize(window);
            page.show();
            settle();
            EXPECT_EQ(test::flawsOf(page), std::vector<std::string>{})
                << screen.width() << ": " << window.width() << " x " << window.height();
        }
    }
}

TEST(FittedStartPage, FillsTheWindowToAPixelInOneDirection) {
    Opstart page(QSize(640, 480));
    page.setZoom(Zoom::fitted());
    page.resize(1280, 3000);
    page.show();
    EXPECT_EQ(page.factor(), 2);
    page.resize(3000, 1000);
    settle();
    EXPECT_EQ(page.factor(), (1000 - page.menuBar()->heightForWidth(3000)) / 440.0);
}

TEST(FittedStartPage, StaysLargeEnoughToBeRead) {
    Opstart page(QSize(1920, 1080));
    page.setZoom(Zoom::fitted());
    page.resize(400, 300);
    page.show();
    settle();
    EXPECT_DOUBLE_EQ(page.factor(), 1 / 1.8);
    EXPECT_TRUE(isScrolled(page));
}

TEST(FittedStartPage, HasItsMenuAsLargeAsThatOfTheOtherPages) {
    SeededDraws draws(1);
    Program program(draws);
    program.open(PageName::Opstart);
    settle();
    // As large as can be seen of it, on whatever screen.
    program.window()->resize(900, 700);
    QTest::keyClick(program.window()->windowHandle(), Qt::Key_9, Qt::ControlModifier);
    settle();
    const double menu = program.page()->menuFactor();
    EXPECT_GT(menu, 1.2);
    program.open(PageName::Brok);
    program.window()->resize(900, 700);
    settle();
    EXPECT_EQ(program.page()->menuFactor(), menu);
}

TEST(FittedHowToUse, HasNoTextCutOffOrOverAnother) {
    SeededDraws draws(1);
    for (const PageName name : {PageName::Form1, PageName::Form2}) {
        const FormDriver form(name, draws);
        form.page().setZoom(Zoom::fitted());
        for (const QSize window : test::commonScreens()) {
            form.page().resize(window);
            settle();
            EXPECT_EQ(test::flawsOf(form.page()), std::vector<std::string>{}) << window.width();
        }
    }
}

TEST(FittedAboutBox, HasNoTextCutOffOrOverAnother) {
    for (double factor = 1; factor <= kLargestFit; factor += 0.37) {
        FrmAbout box;
        box.setFactor(factor);
        box.show();
        EXPECT_EQ(test::flawsOf(box), std::vector<std::string>{}) << factor;
    }
}

TEST(FittedAboutBox, GrowsWithThePagesAndStaysOnTheScreen) {
    SeededDraws draws(1);
    Program program(draws);
    program.open(PageName::Form1);
    program.openAbout();
    settle();
    const QSize before = program.about()->size();
    QTest::keyClick(program.about(), Qt::Key_9, Qt::ControlModifier);
    program.window()->resize(760, 600);
    settle();
    EXPECT_GT(program.page()->menuFactor(), 1.1);
    EXPECT_EQ(program.about()->size(), before * program.page()->menuFactor());
    program.window()->resize(3000, 3000);
    settle();
    EXPECT_EQ(program.page()->menuFactor(), kLargestFit);
    const QSize room = program.about()->screen()->availableSize();
    const QSize frame = program.about()->frameGeometry().size();
    EXPECT_TRUE(program.about()->screen()->availableGeometry().contains(program.about()->frameGeometry()));
    EXPECT_TRUE(room.width() - frame.width() < 4 || room.height() - frame.height() < 4);
}

TEST(AboutBox, IsMovedOntoTheScreenAsLittleAsItTakes) {
    const QRect screen(10, 20, 800, 600);
    EXPECT_EQ(movedOnto(screen, {100, 100, 200, 200}), QRect(100, 100, 200, 200));
    EXPECT_EQ(movedOnto(screen, {700, 500, 200, 200}), QRect(610, 420, 200, 200));
    EXPECT_EQ(movedOnto(screen, {-50, 0, 200, 200}), QRect(10, 20, 200, 200));
    EXPECT_EQ(movedOnto(screen, {50, 60, 1000, 900}), QRect(10, 20, 1000, 900));
}

class SmallWindow : public testing::TestWithParam<PageName> {
protected:
    /// Whether all of the page can be brought into the window.
    static void expectAllInReach(const Page& page) {
        const QScrollArea& view = viewOf(page);
        const QRect all = view.widget()->childrenRect();
        EXPECT_GE(view.viewport()->width() + view.horizontalScrollBar()->maximum(), all.right() + 1);
        EXPECT_GE(view.viewport()->height() + view.verticalScrollBar()->maximum(), all.bottom() + 1);
    }

    /// Whether a control is in sight as a whole; of one that is larger than the window, its middle.
    static bool isInSight(const Page& page, const QWidget& control) {
        const QWidget& port = *viewOf(page).viewport();
        QRect place(control.mapTo(&port, QPoint(0, 0)), control.size());
        const QPoint middle = place.center();
        place.setSize(place.size().boundedTo(port.size()));
        place.moveCenter(middle);
        return port.rect().adjusted(-1, -1, 1, 1).contains(place);
    }
};

TEST_P(SmallWindow, HasAllOfThePageInReachAndTheFocusInSight) {
    SeededDraws draws(3);
    const FormDriver form(GetParam(), draws);
    for (const QSize window : {QSize(800, 600), QSize(600, 800), QSize(640, 400), QSize(320, 480)}) {
        for (const Zoom zoom : {Zoom(), Zoom(200), Zoom(300), Zoom::fitted()}) {
            form.page().resize(window);
            form.page().setZoom(zoom);
            settle();
            EXPECT_EQ(form.page().size(), window);
            expectAllInReach(form.page());
            for (int tabs = 0; tabs < 12; ++tabs) {
                QTest::keyClick(form.page().windowHandle(), Qt::Key_Tab);
                const QWidget* const focused = form.page().focusWidget();
                if (focused == nullptr) {
                    break;
                }
                EXPECT_TRUE(isInSight(form.page(), *focused))
                    << test::nameOf(*focused) << " at " << zoom.percent() << ", " << window.width();
            }
        }
    }
}

TEST_P(SmallWindow, KeepsTheFocusInSightAsItIsResizedOrThePageGrows) {
    SeededDraws draws(3);
    const FormDriver form(GetParam(), draws);
    const QWidget* const focused = form.page().focusWidget();
    if (focused == nullptr) {
        return;
    }
    form.page().resize(700, 600);
    settle();
    form.page().setZoom(Zoom(300));
    EXPECT_TRUE(isInSight(form.page(), *focused));
    form.page().resize(320, 240);
    settle();
    EXPECT_TRUE(isInSight(form.page(), *focused));
}

INSTANTIATE_TEST_SUITE_P(Pages, SmallWindow, testing::ValuesIn(allPages()),
                         [](const auto& row) { return test::asciiNameOf(row.param); });

TEST(Window, IsNeverLargerThanTheScreen) {
    SeededDraws draws(1);
    Program program(draws);
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    for (const PageName name : {PageName::Opstart, PageName::Brok}) {
        program.open(name);
        settle();
        for (const Zoom zoom : {Zoom(), Zoom(300), Zoom::fitted()}) {
            program.page()->setZoom(zoom);
            settle();
            EXPECT_EQ(program.window()->minimumSizeHint().boundedTo({320, 240}),
                      program.window()->minimumSizeHint());
            EXPECT_EQ(program.window()->sizeHint().boundedTo(screen), program.window()->sizeHint());
            EXPECT_EQ(program.window()->size().boundedTo(screen), program.window()->size());
        }
    }
}

}  // namespace
}  // namespace tavrune
