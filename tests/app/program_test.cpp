#include "app/program.h"

#include <array>
#include <clocale>
#include <cstdlib>

#include <QAccessible>
#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QPixmapCache>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include "app/application.h"
#include "app/pages.h"
#include "controls/voice.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/event_count.h"
#include "support/form_driver.h"

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace tavrune {
namespace {

using test::settle;

QRect areaInWindow(const QWidget& widget) {
    return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

QRect belowTheMenu(const Window& window) {
    return window.rect().adjusted(0, window.menuBar()->height(), 0, 0);
}

class ProgramRun : public testing::Test {
protected:
    void SetUp() override {
        program.open(PageName::Opstart);
        settle();
    }

    /// Some first exercises fail as they are drawn: no message is left standing.
    void TearDown() override { static_cast<void>(test::readFailure()); }

    void choose(PageName target) {
        program.page()->topicMenu().actionFor(target)->trigger();
        settle();
    }

    [[nodiscard]] static int visibleWindows() {
        int count = 0;
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->windowType() == Qt::Window) {
                ++count;
            }
        }
        return count;
    }

    SeededDraws draws{1};
    Program program{draws};
};

TEST_F(ProgramRun, StartsOnTheStartPageMaximised) {
    EXPECT_EQ(program.page()->name(), PageName::Opstart);
    EXPECT_TRUE(program.window()->isMaximized());
    EXPECT_EQ(visibleWindows(), 1);
}

TEST_F(ProgramRun, ReplacesEachPageByTheNext) {
    QPointer<Page> start = program.page();
    choose(PageName::Brok);
    EXPECT_EQ(program.page()->name(), PageName::Brok);
    EXPECT_TRUE(start.isNull());
    EXPECT_TRUE(program.window()->isMaximized());
    EXPECT_EQ(visibleWindows(), 1);
    choose(PageName::Form1);
    EXPECT_EQ(program.page()->name(), PageName::Form1);
    EXPECT_EQ(visibleWindows(), 1);
}

TEST_F(ProgramRun, KeepsItsWindowWhoseTitleFollowsThePages) {
    const Window* const window = program.window();
    for (const PageName target : {PageName::Brok, PageName::Form1, PageName::Vaddi3}) {
        choose(target);
        EXPECT_EQ(program.window(), window);
        EXPECT_EQ(window->windowTitle(), program.page()->windowTitle());
        EXPECT_EQ(window->page(), program.page());
        EXPECT_EQ(areaInWindow(*program.page()), belowTheMenu(*window));
        EXPECT_EQ(program.page()->findChild<QScrollArea*>()->geometry(), program.page()->rect());
    }
    EXPECT_EQ(window->windowTitle().toStdString(), "Tavrune - Vandret addition - Niveau 3");
}

TEST_F(ProgramRun, MaximisesAWindowAgainForTheNextPage) {
    program.window()->showNormal();
    settle();
    choose(PageName::Brok);
    EXPECT_TRUE(program.window()->isMaximized());
    EXPECT_EQ(areaInWindow(*program.page()), belowTheMenu(*program.window()));
}

TEST_F(ProgramRun, SaysThePageThatHasCome) {
    program.window()->activateWindow();
    settle();
    const QSignalSpy said(&Voice::instance(), &Voice::said);
    choose(PageName::Form1);
    ASSERT_EQ(said.size(), 1);
    const QString words = said[0][0].toString();
    EXPECT_TRUE(words.startsWith(program.page()->windowTitle() + ". ")) << words.toStdString();
    EXPECT_TRUE(words.contains("opgaver inden for emnet")) << words.toStdString();
}

TEST_F(ProgramRun, SaysTheTitleOfAPageAndItsFirstExerciseInOne) {
    program.window()->activateWindow();
    settle();
    const QSignalSpy said(&Voice::instance(), &Voice::said);
    choose(PageName::Lininter);
    ASSERT_EQ(said.size(), 1);
    const QString words = said[0][0].toString();
    EXPECT_TRUE(words.startsWith(program.page()->windowTitle() + ". ")) << words.toStdString();
    EXPECT_GT(words.size(), program.page()->windowTitle().size() + 20) << words.toStdString();
}

TEST_F(ProgramRun, SaysItsFirstPageOnceAsItsWindowBecomesActive) {
    QWidget another;
    another.show();
    const QSignalSpy said(&Voice::instance(), &Voice::said);
    Program next(draws);
    next.open(PageName::Opstart);
    for (int times = 0; times < 2; ++times) {
        next.window()->activateWindow();
        settle();
        another.activateWindow();
        settle();
    }
    ASSERT_EQ(said.size(), 1);
    EXPECT_TRUE(said[0][0].toString().contains("Velkommen til"));
}

TEST_F(ProgramRun, LeavesAPageWithoutMovingTheFocusOnIt) {
    choose(PageName::Brok);
    program.window()->activateWindow();
    settle();
    const QPointer<Page> left = program.page();
    int moves = 0;
    const auto watch = QObject::connect(qApp, &QApplication::focusChanged, qApp,
                                        [&](const QWidget* /*from*/, const QWidget* to) {
                                            moves += !left.isNull() && left->isAncestorOf(to) ? 1 : 0;
                                        });
    choose(PageName::Form1);
    QObject::disconnect(watch);
    EXPECT_EQ(moves, 0);
}

TEST_F(ProgramRun, BringsTheAboutBoxToTheFront) {
    program.page()->menuBar()->findChild<QMenu*>("Om")->actions().constFirst()->trigger();
    settle();
    ASSERT_NE(program.about(), nullptr);
    program.window()->activateWindow();
    settle();
    const test::EventCount raises(*program.about(), QEvent::ZOrderChange);
    program.openAbout();
    settle();
    EXPECT_EQ(QApplication::activeWindow(), program.about());
    EXPECT_EQ(raises.count(), 1);
}

TEST_F(ProgramRun, PutsTheFocusOnThePageThatHasCome) {
    choose(PageName::Brok);
    EXPECT_EQ(QApplication::focusWidget(), program.page()->findChild<AnswerBox*>("numerator"));
    choose(PageName::Form1);
    EXPECT_EQ(QApplication::focusWidget(), program.page()->findChild<Button*>("nextPage"));
    choose(PageName::Laddi1);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_TRUE(program.page()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(ProgramRun, NeverHasAMomentWithoutAWindow) {
    const int stillRunning = 7;
    QTimer::singleShot(0, [this] {
        choose(PageName::Brok);
        choose(PageName::Form1);
        QTimer::singleShot(0, [] { QCoreApplication::exit(stillRunning); });
    });
    EXPECT_EQ(QCoreApplication::exec(), stillRunning);
}

TEST_F(ProgramRun, EndsWithItsLastWindow) {
    choose(PageName::Brok);
    QTimer::singleShot(0, [this] { program.window()->close(); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(program.page(), nullptr);
    EXPECT_EQ(visibleWindows(), 0);
}

TEST_F(ProgramRun, ShowsTheOneAboutBoxHoweverOftenItIsAskedFor) {
    program.openAbout();
    FrmAbout* const about = program.about();
    program.openAbout();
    EXPECT_EQ(program.about(), about);
    EXPECT_TRUE(about->isVisible());
    EXPECT_EQ(program.page()->name(), PageName::Opstart);
    EXPECT_EQ(visibleWindows(), 2);
}

TEST_F(ProgramRun, BringsAMinimisedAboutBoxBack) {
    program.openAbout();
    program.about()->showMinimized();
    program.openAbout();
    EXPECT_FALSE(program.about()->isMinimized());
    EXPECT_TRUE(program.about()->isVisible());
}

TEST_F(ProgramRun, WaitsAsAWholeForAMessageTheAboutBoxToo) {
    program.openAbout();
    choose(PageName::Rogt);
    program.page()->findChild<Button*>("help")->click();
    settle();
    const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->windowModality(), Qt::ApplicationModal);
    // What is done to a blocked window does not reach it.
    QTest::mouseClick(program.about(), Qt::LeftButton);
    EXPECT_NE(QApplication::activeWindow(), program.about());
    QTest::keyClick(box->button(QMessageBox::Ok), Qt::Key_Return);
    settle();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(ProgramRun, OpensAPageAnewInItsDesignState) {
    choose(PageName::Brok);
    program.page()->findChild<Button*>("help")->click();
    program.page()->findChild<AnswerBox*>("denominator")->setContent("7");
    program.page()->findChild<Button*>("ok")->click();
    choose(PageName::Form1);
    choose(PageName::Brok);
    EXPECT_TRUE(program.page()->findChild<Panel*>("helpPanel")->isHidden());
    EXPECT_TRUE(program.page()->findChild<Label*>("verdict")->isHidden());
    EXPECT_EQ(program.page()->findChild<AnswerBox*>("denominator")->content(), "");
}

TEST_F(ProgramRun, LastsUntilTheAboutBoxIsClosedToo) {
    program.openAbout();
    choose(PageName::Brok);
    EXPECT_TRUE(program.about()->isVisible());
    bool lasted = false;
    QTimer::singleShot(0, [this, &lasted] {
        program.window()->close();
        settle();
        QTimer::singleShot(0, [this, &lasted] {
            lasted = program.page() == nullptr && program.about()->isVisible();
            program.about()->close();
        });
    });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_TRUE(lasted);
}

TEST_F(ProgramRun, ClosesAtOnceByLukOnEveryPage) {
    QSignalSpy closeChosen(&program, &Program::closeChosen);
    int expected = 0;
    for (const PageName name : allPages()) {
        program.open(name);
        settle();
        static_cast<void>(test::readFailure());
        program.page()->topicMenu().menu()->findChild<QAction*>("Luk")->trigger();
        EXPECT_EQ(closeChosen.count(), ++expected);
    }
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(ProgramEnd, ComesAtOnceByLukEvenWithTheAboutBoxOpen) {
    SeededDraws draws{1};
    Program program{draws};
    QTimer::singleShot(0, [&program] {
        program.openAbout();
        program.page()->topicMenu().menu()->findChild<QAction*>("Luk")->trigger();
    });
    EXPECT_EQ(program.run(), 0);
}

TEST_F(ProgramRun, IsAsLargeAsTheDesignAreaOnceItIsNotMaximisedAndCanBeMadeSmaller) {
    choose(PageName::Brok);
    EXPECT_GE(program.window()->sizeHint().width(), 644);
    EXPECT_GT(program.window()->sizeHint().height(), 446);
    program.window()->showNormal();
    settle();
    EXPECT_GE(program.window()->width(), 644);
    EXPECT_GT(program.window()->height(), 446);
    program.window()->resize(320, 240);
    settle();
    EXPECT_EQ(program.window()->size(), QSize(320, 240));
}

TEST_F(ProgramRun, OpensEveryBuiltPageFromEveryOther) {
    for (const PageName from : allPages()) {
        for (const PageName to : allPages()) {
            if (to == PageName::Opstart || to == PageName::Form2 || isOwnEntry(from, to)) {
                continue;
            }
            program.open(from);
            settle();
            choose(to);
            EXPECT_EQ(program.page()->name(), to);
        }
    }
}

TEST(Application, ShowsNumbersWithTheMarkOfTheLocale) {
    const test::DecimalMark restored(".");
    Application::useDecimalMarkOf(QLocale("da_DK"));
    EXPECT_EQ(NumberText(2.5), "2,5");
    Application::useDecimalMarkOf(QLocale("en_GB"));
    EXPECT_EQ(NumberText(2.5), "2.5");
}

#ifdef Q_OS_WIN
// Windows knows the user's own mark, whatever the environment tells.
TEST(Application, BeginsWithTheMarkOfTheLocaleThatItIsStartedIn) {
    std::array<wchar_t, 4> mark{};
    ASSERT_GT(GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, mark.data(), mark.size()), 0);
    EXPECT_EQ(test::halfAtStart(), "0" + QString::fromWCharArray(mark.data()).toStdString() + "5");
}
#else
TEST(Application, BeginsWithTheMarkOfTheLocaleThatItIsStartedIn) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const QByteArray before = qgetenv("LC_ALL");
    qputenv("LC_ALL", "da_DK.UTF-8");
    EXPECT_EXIT(std::_Exit(test::halfAtStart() == "0,5" ? EXIT_SUCCESS : EXIT_FAILURE),
                testing::ExitedWithCode(EXIT_SUCCESS), "");
    before.isNull() ? qunsetenv("LC_ALL") : qputenv("LC_ALL", before);
}
#endif

TEST(Application, PassesAllThatReadersAreToldThroughTheVoice) {
    const QAccessible::UpdateHandler handler = QAccessible::installUpdateHandler(nullptr);
    EXPECT_NE(handler, nullptr);
    QAccessible::installUpdateHandler(handler);
}

// On a Danish machine the toolkit switches the C library to commas, but on Windows: the ordinary run plays it
// so, too.
TEST(ProcessLocale, LeavesTheReadingAndWritingOfNumbersAlone) {
#ifdef Q_OS_WIN
    const bool isSwitched = false;
#else
    const bool isSwitched = qEnvironmentVariable("LC_ALL").startsWith("da_DK");
#endif
    EXPECT_STREQ(std::localeconv()->decimal_point, isSwitched ? "," : ".");
    EXPECT_EQ(NumberText(-2.25), "-2.25");
    EXPECT_EQ(Val("1.5"), 1.5);
    EXPECT_EQ(Val("1,5"), 1);
}

TEST(Application, IsKnownToTheDesktopAndToReaders) {
    EXPECT_EQ(QGuiApplication::desktopFileName(), "org.tavrune.Tavrune");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(qApp)->text(QAccessible::Name), "Tavrune");
}

TEST(Application, KeepsFewPicturesOfButtons) { EXPECT_LE(QPixmapCache::cacheLimit(), 1024); }

TEST(Application, ShowsWhatIsSelectedInWhiteOnBlueOnALightGround) {
    const QPalette colours = QApplication::palette();
    EXPECT_EQ(colours.color(QPalette::Window), QColor(239, 239, 239));
    EXPECT_EQ(colours.color(QPalette::HighlightedText), QColor(255, 255, 255));
    EXPECT_EQ(colours.color(QPalette::Highlight), QColor(48, 140, 198));
}

TEST(Application, SpeaksDanishForQt) {
    EXPECT_TRUE(QCoreApplication::translate("QLineEdit", "&Undo").startsWith("&Fortryd"));
}

TEST(Application, HasItsIconAfterTheFirstRoundOfEvents) {
    settle();
    EXPECT_EQ(QApplication::windowIcon().availableSizes(),
              (QList<QSize>{{16, 16}, {32, 32}, {48, 48}, {64, 64}}));
}

TEST(Application, LoadsItsIconAfterTheFirstPictureOfAWindow) {
    // In a process of its own, since in this one the icon may have been loaded.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            QWidget window;
            window.show();
            QCoreApplication::sendPostedEvents();
            const bool isLate = QApplication::windowIcon().isNull();
            const bool comes = QTest::qWaitFor([] { return !QApplication::windowIcon().isNull(); });
            std::_Exit(isLate && comes && window.windowHandle()->isExposed() ? EXIT_SUCCESS : EXIT_FAILURE);
        },
        testing::ExitedWithCode(EXIT_SUCCESS), "");
}

TEST(Application, LoadsItsIconAtOnceWhereNoWindowIsShown) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            QWindow hidden;
            hidden.create();
            settle();
            std::_Exit(QApplication::windowIcon().isNull() ? EXIT_FAILURE : EXIT_SUCCESS);
        },
        testing::ExitedWithCode(EXIT_SUCCESS), "");
}

class Failing : public QObject {
protected:
    bool event(QEvent* /*event*/) override { throw ArithmeticFailure(ArithmeticFailure::Kind::Overflow); }
};

TEST(Application, TellsOfAFailureOfTheArithmeticAndEndsWithStatusOne) {
    Failing failing;
    std::string told;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&told, &answer] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            told = box->text().toStdString();
            answer.stop();
            QTest::keyClick(box->button(QMessageBox::Ok), Qt::Key_Return);
        }
    });
    answer.start(0);
    QCoreApplication::postEvent(&failing, new QEvent(QEvent::User));
    testing::internal::CaptureStderr();
    EXPECT_EQ(QCoreApplication::exec(), 1);
    EXPECT_NE(testing::internal::GetCapturedStderr().find(messageFor(ArithmeticFailure::Kind::Overflow)),
              std::string::npos);
    EXPECT_EQ(told, messageFor(ArithmeticFailure::Kind::Overflow));
}

TEST(Pages, HandAFailureToTheApplicationAndStand) {
    class FailingDraws : public Draws {
    public:
        float Rnd() override { throw ArithmeticFailure(ArithmeticFailure::Kind::Overflow); }
        void Randomize() override {}
    } draws;
    const std::unique_ptr<Page> page = makePage(PageName::Brok, draws);
    EXPECT_NO_THROW(page->findChild<Button*>("newExercise")->click());
    EXPECT_EQ(test::readFailure().status, 1);
}

TEST(Application, TakesAnEventThatFailsForHandledAndTellsOfEachFailure) {
    Failing failing;
    for (int times = 0; times < 2; ++times) {
        QEvent event(QEvent::User);
        EXPECT_TRUE(QCoreApplication::sendEvent(&failing, &event));
        EXPECT_EQ(test::readFailure().status, 1);
    }
}

}  // namespace
}  // namespace tavrune
