#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include <QMenuBar>

#include "shell/page_name.h"

namespace tavrune {

/// Every line of the topic menu that can be named: the subjects, their levels, and the way out.
enum class MenuEntry {
    Hjaelp,
    Afsaetningsfunktioner,
    Andengradspolynomiet,
    Roedder,
    Toppunkt,
    RoedderOgToppunkt,
    Broekregning,
    DenRetteLinie,
    Differentialregning,
    Funktionskonvertering,
    GennemsnitTotalMarginal,
    Integralregning,
    IntegralNiveau1,
    IntegralNiveau2,
    LineaerInterpolation,
    LodretAddition,
    LodretNiveau1,
    LodretNiveau2,
    VandretAddition,
    VandretNiveau1,
    VandretNiveau2,
    VandretNiveau3,
    ToLigninger,
    Luk,
};

struct MenuLine {
    MenuEntry entry;
    std::optional<MenuEntry> parent;
    std::string_view caption;
    std::optional<PageName> opens;
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

    /// Disables the entries whose page `isBuilt` denies.
    void disableUnbuilt(const std::function<bool(PageName)>& isBuilt);

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
