#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include <QMenuBar>

#include "shell/page_name.h"

namespace tavrune {

/// What a line of the topic menu stands for: a page that it opens, a subject with a submenu, or the way out.
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
    /// The subject in whose submenu the line stands.
    Subject parent = Subject::None;
    std::string_view caption;
    bool separatorBefore = false;
};

/// The tree, in order, with the wordings that most pages have.
[[nodiscard]] const std::vector<MenuLine>& topicTree();

/// The wording of one line on one page: the pages differ, and each keeps its own.
[[nodiscard]] std::string_view captionOn(PageName page, const MenuLine& line);

/// True if a page's own menu shows this target as disabled: it is there already.
[[nodiscard]] bool isOwnEntry(PageName page, PageName target);

/// Fills the menu bar of `page` with the one menu that every page has.
class TopicMenu {
public:
    struct Handlers {
        std::function<void(PageName)> open;
        std::function<void()> close;
    };

    TopicMenu(QMenuBar& bar, PageName page, const Handlers& handlers);

    /// The action of an entry; null for a subject that only opens a submenu.
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
