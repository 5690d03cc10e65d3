#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include <QApplication>

#include "support/student.h"

namespace tavrune::test {

/// Someone who has a keyboard and nothing else. Keys go to the window that has them, whichever that is; of
/// the page the player sees what every student sees.
class KeyPlayer {
public:
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void pressAccessKey(Qt::Key key) { press(key, Qt::AltModifier); }

    /// Tab by Tab, until `target` has the focus; false, and the test fails, if the way never comes there.
    static bool goTo(const QWidget& target);

    /// Goes to `option` and chooses it.
    static void choose(const OptionButton& option);

    /// Replaces what the box that has the focus holds.
    static void write(const std::string& text);

    /// Fills the boxes that are in sight, from the one that has the focus on: Enter after each, Tab
    /// where Enter leads to none that is still to be filled. `textFor` gives the text of a box.
    template <class TextFor>
    static void fill(const Student& seen, const TextFor& textFor) {
        std::vector<AnswerBox*> left = seen.boxes();
        while (!left.empty()) {
            const auto at = std::find(left.begin(), left.end(), QApplication::focusWidget());
            if (at == left.end()) {
                if (!goTo(*left.front())) {
                    return;
                }
                continue;
            }
            write(textFor(**at));
            left.erase(at);
            press(Qt::Key_Return);
        }
    }

    /// Through the menu of `page` to the entry of another page, or to "Luk" if there is none.
    static void chooseInMenu(const Page& page, std::optional<PageName> target);

    /// Presses every "Vis" in sight, those that come up by it included; how many it were.
    static int showAllSteps(const Student& seen);
};

}  // namespace tavrune::test
