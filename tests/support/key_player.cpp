#include "support/key_player.h"

#include <algorithm>
#include <set>

#include <QTest>

#include <gtest/gtest.h>

#include "controls/text.h"

namespace tavrune::test {
namespace {

constexpr int kLongestWay = 200;

/// Down, until the entry with this caption is the one that Enter would choose.
void goToEntry(const QMenu& menu, std::string_view caption) {
    for (int step = 0; step < kLongestWay; ++step) {
        if (menu.activeAction() != nullptr && menu.activeAction()->text() == fromUtf8(caption)) {
            return;
        }
        KeyPlayer::press(Qt::Key_Down);
    }
    ADD_FAILURE() << "no way to the entry " << caption;
}

QMenu* menuInSight() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

const MenuLine& lineOf(std::optional<PageName> target) {
    const std::vector<MenuLine>& tree = topicTree();
    return *std::find_if(tree.begin(), tree.end(), [target](const MenuLine& line) {
        return target ? line.entry.page == target : line.entry.isWayOut();
    });
}

}  // namespace

void KeyPlayer::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    ASSERT_NE(QGuiApplication::focusWindow(), nullptr) << "no window has the keyboard";
    QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
    settle();
}

bool KeyPlayer::goTo(const QWidget& target) {
    for (int step = 0; step < kLongestWay && QApplication::focusWidget() != &target; ++step) {
        press(Qt::Key_Tab);
    }
    EXPECT_EQ(QApplication::focusWidget(), &target) << nameOf(target);
    return QApplication::focusWidget() == &target;
}

void KeyPlayer::choose(const OptionButton& option) {
    // Tab leads into a group of options, the arrows through it.
    const auto isInGroup = [&option] {
        const QWidget* const focused = QApplication::focusWidget();
        return qobject_cast<const OptionButton*>(focused) != nullptr &&
               focused->parentWidget() == option.parentWidget();
    };
    for (int step = 0; step < kLongestWay && !isInGroup(); ++step) {
        press(Qt::Key_Tab);
    }
    ASSERT_TRUE(isInGroup()) << option.caption();
    for (int step = 0; step < 10 && QApplication::focusWidget() != &option; ++step) {
        press(Qt::Key_Down);
    }
    press(Qt::Key_Space);
    ASSERT_TRUE(option.isChosen()) << option.caption();
}

void KeyPlayer::write(const std::string& text) {
    QWindow* const window = QGuiApplication::focusWindow();
    QTest::keyClick(window, Qt::Key_Home);
    QTest::keyClick(window, Qt::Key_End, Qt::ShiftModifier);
    QTest::keyClick(window, Qt::Key_Delete);
    for (const char key : text) {
        QTest::keyClick(window, key);
    }
}

void KeyPlayer::chooseInMenu(const Page& page, std::optional<PageName> target) {
    press(Qt::Key_F10);
    ASSERT_NE(menuInSight(), nullptr);
    const MenuLine& line = lineOf(target);
    if (line.parent != Subject::None) {
        const std::vector<MenuLine>& tree = topicTree();
        const auto subject = std::find_if(
            tree.begin(), tree.end(), [&line](const MenuLine& other) { return other.entry == line.parent; });
        goToEntry(*menuInSight(), captionOn(page.name(), *subject));
        press(Qt::Key_Right);
        ASSERT_NE(menuInSight(), nullptr);
    }
    goToEntry(*menuInSight(), captionOn(page.name(), line));
    press(Qt::Key_Return);
}

int KeyPlayer::showAllSteps(const Student& seen) {
    std::set<const Button*> pressed;
    while (const Button* const vis = seen.nextStep(pressed)) {
        // A failure of the arithmetic has a message of its own.
        if (QApplication::activeModalWidget() != nullptr) {
            break;
        }
        pressed.insert(vis);
        if (!goTo(*vis)) {
            return 0;
        }
        press(Qt::Key_Return);
    }
    return static_cast<int>(pressed.size());
}

}  // namespace tavrune::test
