// What the keyboard needs of every page: access keys that are one control's, a focus that is seen, and a way
// that follows the eye.

#include <algorithm>
#include <map>

#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

#include "conformance/facts.h"
#include "support/form_driver.h"

namespace tavrune {
namespace {

using test::FormDriver;
using test::FormFacts;

using Names = std::vector<std::string>;

std::string nameOf(const QWidget& widget) { return widget.objectName().toStdString(); }

/// All controls of a kind that are in sight and can be used.
template <class Widget>
std::vector<Widget*> usable(const Page& page) {
    std::vector<Widget*> found;
    for (Widget* widget : page.findChildren<Widget*>()) {
        if (widget->isVisible() && widget->isEnabled() && dynamic_cast<Control*>(widget) != nullptr) {
            found.push_back(widget);
        }
    }
    return found;
}

/// The access keys that two things in sight have, with those that have them.
std::map<std::string, Names> clashesOn(const Page& page) {
    std::map<std::string, Names> keys;
    for (const QAction* title : page.menuBar()->actions()) {
        keys[QKeySequence::mnemonic(title->text()).toString().toStdString()].push_back(
            title->text().toStdString());
    }
    for (const QAbstractButton* button : usable<QAbstractButton>(page)) {
        keys[button->shortcut().toString().toStdString()].push_back(button->text().toStdString());
    }
    keys.erase("");
    std::erase_if(keys, [](const auto& key) { return key.second.size() == 1; });
    return keys;
}

class EveryPage : public testing::TestWithParam<PageName> {};

class Keyboard : public testing::TestWithParam<FormFacts> {
protected:
    /// No message of a failure is left standing.
    void TearDown() override { EXPECT_EQ(test::readFailure().message, ""); }

    [[nodiscard]] const FormFacts& facts() const { return GetParam(); }

    void failOnce(const FormDriver& form) const {
        if (!facts().option.empty()) {
            form.click(facts().option);
        }
        int typed = 987654;
        for (AnswerBox* box : usable<AnswerBox>(form.page())) {
            box->setContent(std::to_string(typed += 1013));
        }
        form.click("ok");
        ASSERT_TRUE(form.isShown(facts().wrong()));
    }

    void openHelp(const FormDriver& form) const {
        form.click("help");
        const bool wasTold = !form.answerMessage().empty();
        for (Button* button : usable<Button>(form.page())) {
            if (button->caption() == "Vis") {
                button->click();
            }
        }
        const std::string failure = test::readFailure().message;
        EXPECT_TRUE(failure.empty() || facts().mayFail) << failure;
        if (wasTold || !failure.empty()) {
            form.page().activateWindow();
            test::settle();
        }
    }

    /// Runs `look` in every state in which different things are in sight, in some exercises.
    template <class Look>
    void inEveryState(std::uint64_t seed, int exercises, const Look& look) const {
        SeededDraws draws(seed);
        const FormDriver form(facts().page, draws);
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
    if (GetParam() != PageName::Roedder) {
        EXPECT_TRUE(clashesOn(page.page()).empty());
    }
}

TEST_P(Keyboard, HasAnAccessKeyForEachThingInSight) {
    std::map<std::string, Names> told;
    if (facts().page == PageName::Roedder) {
        // The one pair whose captions ask for it: the button's it is, and F10 is the menu's.
        told["Alt+I"] = {"&Indhold", "&Ingen rødder"};
    }
    inEveryState(3, 4,
                 [&told](const Page& page, const char* state) { EXPECT_EQ(clashesOn(page), told) << state; });
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
    for (QWidget* widget : usable<QWidget>(page)) {
        if (widget->focusPolicy() == Qt::NoFocus) {
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
    SeededDraws draws(1);
    const FormDriver form(facts().page, draws);
    ZoomStep step;
    for (std::size_t size = 0; size < kZoomSteps.size(); ++size) {
        form.page().setZoom(step);
        form.click("newExercise");
        failOnce(form);
        EXPECT_EQ(unseenFocusOn(form.page()), Names{}) << step.percent() << " %";
        openHelp(form);
        EXPECT_EQ(unseenFocusOn(form.page()), Names{}) << step.percent() << " %, help";
        step = step.larger();
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

TEST_P(Keyboard, LeadsByTabAsOneReads) {
    // First the options, then the boxes, the standing buttons, and those of the panels.
    const auto rank = [this](const QWidget& widget) {
        if (qobject_cast<const OptionButton*>(&widget) != nullptr) {
            return 0;
        }
        if (qobject_cast<const AnswerBox*>(&widget) != nullptr) {
            return 1;
        }
        const std::string name = nameOf(widget);
        const Names standing{"newExercise", "ok", "giveAnswer", "help"};
        return std::find(standing.begin(), standing.end(), name) == standing.end() ? 3 : 2;
    };
    inEveryState(5, 3, [&rank](Page& page, const char* state) {
        std::vector<QWidget*> way = tabWay(page);
        ASSERT_FALSE(way.empty());
        const auto first = std::min_element(way.begin(), way.end(), [&](const QWidget* a, const QWidget* b) {
            return rank(*a) != rank(*b) ? rank(*a) < rank(*b) : isReadBefore(page, *a, *b);
        });
        std::rotate(way.begin(), first, way.end());
        for (std::size_t i = 1; i < way.size(); ++i) {
            const QWidget& from = *way[i - 1];
            const QWidget& to = *way[i];
            EXPECT_TRUE(rank(from) != rank(to) ? rank(from) < rank(to) : isReadBefore(page, from, to))
                << nameOf(from) << " -> " << nameOf(to) << ", " << state;
        }
    });
}

}  // namespace
}  // namespace tavrune
