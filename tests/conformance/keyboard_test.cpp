// What the keyboard needs of every page: access keys that are one control's, a focus that is seen, and a way
// that follows the eye.

#include <algorithm>
#include <map>

#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

#include "conformance/form_suite.h"
#include "controls/accessible_controls.h"

namespace tavrune {
namespace {

using test::FormDriver;
using test::inSight;
using test::nameOf;

using Names = std::vector<std::string>;
using Keys = std::map<std::string, Names>;

/// The access keys that two things in sight have, with those that have them.
Keys clashesOn(const Page& page) {
    Keys keys;
    for (const QAction* title : page.menuBar()->actions()) {
        keys[QKeySequence::mnemonic(title->text()).toString().toStdString()].push_back(
            title->text().toStdString());
    }
    for (const QAbstractButton* button : inSight<QAbstractButton>(page)) {
        if (button->isEnabled()) {
            keys[button->shortcut().toString().toStdString()].push_back(button->text().toStdString());
        }
    }
    keys.erase("");
    std::erase_if(keys, [](const auto& key) { return key.second.size() == 1; });
    return keys;
}

class EveryPage : public testing::TestWithParam<PageName> {};

class Keyboard : public test::FormSuite {
protected:
    /// No message of a failure is left standing.
    void TearDown() override { EXPECT_FALSE(hasFailed()); }

    void failOnce(const FormDriver& form) const {
        form.answerWrongly(facts().option);
        ASSERT_EQ(form.verdict(), "FORKERT");
    }

    void openHelp(const FormDriver& form) const {
        form.click("help");
        const bool wasTold = !form.answerMessage().empty();
        form.showAllSteps();
        if (hasFailed() || wasTold) {
            form.page().activateWindow();
            test::settle();
        }
    }

    /// Runs `look` in every state in which different things are in sight, in some exercises.
    template <class Look>
    void inEveryState(std::uint64_t seed, int exercises, const Look& look) {
        const FormDriver form = open(seed);
        for (int exercise = 0; exercise < exercises && !HasFailure(); ++exercise) {
            look(form.page(), "asking");
            for (const OptionButton* option : form.page().findChildren<OptionButton*>()) {
                form.click(nameOf(*option));
                look(form.page(), "with an option chosen");
            }
            openHelp(form);
            look(form.page(), "help while asking");
            form.click("newExercise");
            failOnce(form);
            look(form.page(), "after a wrong try");
            openHelp(form);
            look(form.page(), "help after a wrong try");
            form.click("giveAnswer");
            look(form.page(), "given");
            form.click("newExercise");
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Pages, EveryPage, testing::ValuesIn(allPages()),
                         [](const auto& row) { return test::asciiNameOf(row.param); });
INSTANTIATE_TEST_SUITE_P(Forms, Keyboard, testing::ValuesIn(test::allForms()), test::asciiName);

TEST_P(EveryPage, OpensWithAnAccessKeyForEachThing) {
    SeededDraws draws(1);
    const FormDriver page(GetParam(), draws);
    const test::FormFacts* const facts = test::factsOf(GetParam());
    EXPECT_EQ(clashesOn(page.page()), facts == nullptr ? Keys{} : facts->except.sharedKeys);
}

TEST_P(Keyboard, HasAnAccessKeyForEachThingInSight) {
    inEveryState(3, 4, [](const Page& page, const char* state) {
        EXPECT_EQ(clashesOn(page), facts().except.sharedKeys) << state;
    });
}

TEST(RoedderKeyboard, ChoosesTheOptionByTheKeyThatTheMenuHasTooAndOpensTheMenuByF10) {
    SeededDraws draws(1);
    const FormDriver form(PageName::Roedder, draws);
    for (int times = 0; times < 3; ++times) {
        QTest::keyClick(form.page().windowHandle(), Qt::Key_T, Qt::AltModifier);
        EXPECT_TRUE(form.option("twoRoots").isChosen());
        QTest::keyClick(form.page().windowHandle(), Qt::Key_I, Qt::AltModifier);
        EXPECT_TRUE(form.option("noRoots").isChosen());
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    }
    QTest::keyClick(form.page().windowHandle(), Qt::Key_F10);
    EXPECT_EQ(QApplication::activePopupWidget(), form.page().topicMenu().menu());
    QTest::keyClick(form.page().windowHandle(), Qt::Key_Escape);
}

TEST_P(EveryPage, OpensItsMenuByF10) {
    SeededDraws draws(1);
    const FormDriver page(GetParam(), draws);
    QTest::keyClick(page.page().windowHandle(), Qt::Key_F10);
    EXPECT_EQ(QApplication::activePopupWidget(), page.page().topicMenu().menu());
    QTest::keyClick(page.page().windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

/// The names of the controls that look the same with the focus as without it.
Names unseenFocusOn(const Page& page) {
    Names unseen;
    for (QWidget* widget : inSight<QWidget>(page)) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isEnabled()) {
            continue;
        }
        widget->clearFocus();
        const QImage without = widget->grab().toImage();
        widget->setFocus(Qt::OtherFocusReason);
        if (widget->grab().toImage() == without) {
            unseen.push_back(nameOf(*widget));
        }
    }
    return unseen;
}

TEST_P(Keyboard, ShowsWhereTheFocusStandsAtEverySize) {
    const FormDriver form = open();
    for (const int percent : kZoomSteps) {
        form.page().setZoom(Zoom(percent));
        form.click("newExercise");
        failOnce(form);
        EXPECT_EQ(unseenFocusOn(form.page()), Names{}) << percent << " %";
        openHelp(form);
        EXPECT_EQ(unseenFocusOn(form.page()), Names{}) << percent << " %, help";
    }
}

/// Where Tab leads from the start of the page, once round.
std::vector<QWidget*> tabWay(Page& page) {
    std::vector<QWidget*> way;
    const auto press = [&page] {
        QTest::keyClick(page.windowHandle(), Qt::Key_Tab);
        return page.focusWidget();
    };
    for (QWidget* at = press(); at != nullptr && std::find(way.begin(), way.end(), at) == way.end();
         at = press()) {
        way.push_back(at);
    }
    return way;
}

/// As one reads: from row to row, in a row from left to right. Controls are in one row if their middles are
/// as good as level.
bool isReadBefore(const Page& page, const QWidget& one, const QWidget& other) {
    constexpr int kLevel = 9;
    const QPoint a = one.mapTo(&page, one.rect().center());
    const QPoint b = other.mapTo(&page, other.rect().center());
    return std::abs(a.y() - b.y()) > kLevel ? a.y() < b.y() : a.x() < b.x();
}

bool isOnTheHelpPanel(const Page& page, const QWidget& widget) {
    const auto* const panel = page.findChild<QWidget*>("helpPanel");
    return panel != nullptr && panel->isAncestorOf(&widget);
}

TEST_P(Keyboard, PassesByWhatLiesUnderTheHelp) {
    inEveryState(31, 3, [](Page& page, const char* state) {
        for (const QWidget* stop : tabWay(page)) {
            EXPECT_FALSE(isCovered(*stop)) << nameOf(*stop) << ", " << state;
        }
    });
}

TEST_P(Keyboard, LeadsByTabAsOneReads) {
    // First the options, then the boxes, the graphs, the standing buttons, those of the panels, and their
    // graphs.
    const auto rank = [](const Page& page, const QWidget& widget) {
        if (qobject_cast<const OptionButton*>(&widget) != nullptr) {
            return 0;
        }
        if (qobject_cast<const AnswerBox*>(&widget) != nullptr) {
            return 1;
        }
        if (qobject_cast<const GraphBox*>(&widget) != nullptr) {
            return isOnTheHelpPanel(page, widget) ? 4 : 2;
        }
        const std::string name = nameOf(widget);
        const Names standing{"newExercise", "ok", "giveAnswer", "help"};
        return std::find(standing.begin(), standing.end(), name) == standing.end() ? 4 : 3;
    };
    inEveryState(5, 3, [&rank](Page& page, const char* state) {
        const auto isBefore = [&](const QWidget& a, const QWidget& b) {
            const int one = rank(page, a);
            const int other = rank(page, b);
            return one != other ? one < other : isReadBefore(page, a, b);
        };
        std::vector<QWidget*> way = tabWay(page);
        ASSERT_FALSE(way.empty());
        const auto first = std::min_element(
            way.begin(), way.end(), [&](const QWidget* a, const QWidget* b) { return isBefore(*a, *b); });
        std::rotate(way.begin(), first, way.end());
        for (std::size_t i = 1; i < way.size(); ++i) {
            EXPECT_TRUE(isBefore(*way[i - 1], *way[i]))
                << nameOf(*way[i - 1]) << " -> " << nameOf(*way[i]) << ", " << state;
        }
    });
}

}  // namespace
}  // namespace tavrune
