#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include <QMenuBar>

#include "shell/page_name.h"

namespace tavrune {

/// What a line of the topic menu does: open a page, open the submenu of a subject, or close the program.
struct MenuEntry {
    std::optional<PageName> page;
    Subject subject = Subject::None;

    constexpr MenuEntry() = default;
    constexpr MenuEntry(PageName opened) : page(opened) {}
    constexpr MenuEntry(Subject with) : subject(with) {}

    [[nodiscard]] constexpr bool isWayOut() const { return !page && subject == Subject::None; }
    constexpr bool operator==(const MenuEntry&) const = default;
};

struct MenuLine {
    MenuEntry entry;
    /// The subject in whose submenu the line is; none for the menu itself.
    Subject parent = Subject::None;
    std::string_view caption;
    bool separatorBefore = false;
};

/// Returns all lines in order, with the wordings that most pages have.
[[nodiscard]] const std::vector<MenuLine>& topicTree();

/// Returns the wording of a line on a page.
[[nodiscard]] std::string_view captionOn(PageName page, const MenuLine& line);

/// Returns whether the menu of `page` shows the entry of `target` disabled, because the user is there
/// already.
[[nodiscard]] bool isOwnEntry(PageName page, PageName target);

/// Selects the first entry that can be chosen; none if there is none.
void selectFirstEntry(QMenu& menu);

/// Fills the menu bar of `page` with the one menu that every page has.
class TopicMenu {
public:
    struct Handlers {
        std::function<void(PageName)> open;
        std::function<void()> close;
    };

    TopicMenu(QMenuBar& bar, PageName page, const Handlers& handlers);

    /// Returns the action that opens a page; null if no entry does.
    [[nodiscard]] QAction* actionFor(PageName target) const;
    [[nodiscard]] QMenu* menu() const { return menu_; }

private:
    struct Leaf {
        PageName target;
        QAction* action;
    };

    QMenu* menu_;
    std::vector<Leaf> leaves_;
};

}  // namespace tavrune
