#include "shell/topic_menu.h"

#include <algorithm>
#include <array>
#include <map>

#include <QAction>
#include <QMenu>
#include <QTimer>

#include "controls/text.h"
#include "controls/voice.h"

namespace tavrune {
namespace {

using Name = PageName;

struct Wording {
    PageName page;
    MenuEntry entry;
    std::string_view caption;
};

// Kept (shell-menu-wordings): where a page words an entry in its own way, it stays so, misspelt or not.
constexpr std::array kWordings{
    Wording{Name::Topp, Subject::Andengradspolynomiet, "Andengradspolynomier"},
    Wording{Name::Topp, Name::Integ2, "Niveau 2: Mestemt integrale af lineære funktioner med knæk"},
    Wording{Name::Rogt, Subject::Andengradspolynomiet, "Andengradspolynomier"},
    Wording{Name::Diff, Subject::Andengradspolynomiet, "Andengradspolynomier"},
    Wording{Name::Diff, Name::Integ2, "Niveau 2: Bestent integrale af lineære funktioner med knæk"},
    Wording{Name::Integ, Subject::Andengradspolynomiet, "Andengradspolynomier"},
    Wording{Name::Integ, Name::Vaddi3, "Niveau 3: : Addering af to lineære funktioner, den ene med knæk"},
    Wording{Name::Integ2, Subject::Andengradspolynomiet, "Andengradspolynomier"},
    Wording{Name::Integ2, Name::Integ,
            "Niveau 1: Betsemt integrale af lineære funktioner og andengradspolynomier"},
    Wording{Name::Integ2, Name::Tomto, "2 linier med 2 ubekendte"},
    Wording{Name::Konvert, Name::Vaddi3, "Niveau 3: : Addering af to lineære funktioner, den ene med knæk"},
    Wording{Name::Laddi1, Name::Tomto, "2 ligninger med to ubekendte"},
    Wording{Name::Laddi2, Name::Integ2, "Niveau 2: Bestemt integale af lineære funktioner "},
    Wording{Name::Laddi2, Name::Vaddi1, "Niveau1: Addering af to lineære funktioner"},
    Wording{Name::Laddi2, Name::Vaddi2, "Niveau2: Addering af tre lineære funktioner"},
    Wording{Name::Laddi2, Name::Vaddi3, "Niveau3: Addering af to lineære funktioner, den ene med knæk"},
    Wording{Name::Lininter, Name::Tomto, "2 linier med 2 ubekendte"},
    Wording{Name::Roedder, Name::Integ,
            "Niveau 1: Bestemt integrale af lineære funktioner og andengradaspolynomier"},
    Wording{Name::Vaddi2, Name::Diff, "Differrentialregning"},
    Wording{Name::Vaddi2, Subject::LodretAddition, "Lodret adddition"},
    Wording{Name::Vaddi3, Name::Integ, "Niveau 1"},
    Wording{Name::Vaddi3, Name::Integ2, "Niveau 2"},
    Wording{Name::Tomto, Name::Lininter, "Lineær interpolation"},
    Wording{Name::Tomto, Name::Laddi2, "Niveau 2: Addering af tre lineære funktioner"},
    Wording{Name::Form1, Name::Konvert, "Fuktionskonvertering"},
    Wording{Name::Form1, Name::Integ,
            "Niveau 1: Bestemet integrale af lineære funktioner og andengradspolynomier"},
    Wording{Name::Form1, Name::Integ2, "Niveau 2: Bestemet integrale af lineære funktioner med knæk"},
    Wording{Name::Form2, Name::Integ,
            "Niveau 1: Bestemet integrale af lineære funktioner og andenegradspolynomier"},
    Wording{Name::Form2, Name::Integ2, "Niveau 2: Bestemet integrale af lineære funktioner med knæk"},
    Wording{Name::Form2, Name::Lininter, "Lineær interpolaton/ekstrapolation"},
};

std::string_view captionOf(Subject subject) {
    switch (subject) {
        case Subject::None:
            break;
        case Subject::Andengradspolynomiet:
            return "Andengradspolynomiet";
        case Subject::Integralregning:
            return "Integralregning";
        case Subject::LodretAddition:
            return "Lodret addition";
        case Subject::VandretAddition:
            return "Vandret addition";
    }
    return "";
}

}  // namespace

const std::vector<MenuLine>& topicTree() {
    struct FormLine {
        PageName page;
        Subject subject;
        std::string_view caption;
    };
#define TAVRUNE_LINE(form, text, subject, caption) FormLine{PageName::form, Subject::subject, caption},
    static constexpr std::array kForms{TAVRUNE_EXERCISES(TAVRUNE_LINE)};
#undef TAVRUNE_LINE
    static const std::vector<MenuLine> tree = [] {
        std::vector<MenuLine> lines{{PageName::Form1, Subject::None, "&Hjælp"}};
        for (const auto& [page, subject, caption] : kForms) {
            if (subject != Subject::None && lines.back().parent != subject) {
                lines.push_back({subject, Subject::None, captionOf(subject)});
            }
            // One separator above the topics, one below.
            lines.push_back({page, subject, caption, page == kForms.front().page});
        }
        lines.push_back({{}, Subject::None, "Luk", true});
        return lines;
    }();
    return tree;
}

std::string_view captionOn(PageName page, const MenuLine& line) {
    const auto* const own = std::find_if(kWordings.begin(), kWordings.end(), [&](const Wording& wording) {
        return wording.page == page && wording.entry == line.entry;
    });
    return own == kWordings.end() ? line.caption : own->caption;
}

bool isOwnEntry(PageName page, PageName target) {
    return page == target || (page == PageName::Form2 && target == PageName::Form1);
}

void selectFirstEntry(QMenu& menu) {
    const QList<QAction*> entries = menu.actions();
    const auto first = std::find_if(entries.begin(), entries.end(), [](const QAction* entry) {
        return entry->isEnabled() && !entry->isSeparator();
    });
    if (first != entries.end()) {
        menu.setActiveAction(*first);
    }
}

TopicMenu::TopicMenu(QMenuBar& bar, PageName page, const Handlers& handlers)
    : menu_(bar.addMenu("&Indhold")) {
    menu_->setObjectName("Indhold");
    QObject::connect(menu_, &QMenu::hovered, menu_, [](const QAction* entry) {
        if (entry->menu() != nullptr) {
            // After its name, which comes with the focus.
            QTimer::singleShot(0, &Voice::instance(), [] { Voice::instance().say("undermenu"); });
        }
    });
    std::map<Subject, QMenu*> subjects{{Subject::None, menu_}};
    for (const MenuLine& line : topicTree()) {
        QMenu* const parent = subjects.at(line.parent);
        if (line.separatorBefore) {
            parent->addSeparator();
        }
        const QString caption = fromUtf8(captionOn(page, line));
        if (line.entry.page) {
            QAction* const action = parent->addAction(caption);
            const PageName target = *line.entry.page;
            action->setObjectName(fromUtf8(textOf(target)));
            action->setEnabled(!isOwnEntry(page, target));
            QObject::connect(action, &QAction::triggered, &bar,
                             [open = handlers.open, target] { open(target); });
            leaves_.push_back({target, action});
        } else if (line.entry.isWayOut()) {
            QAction* const action = parent->addAction(caption);
            action->setObjectName("Luk");
            QObject::connect(action, &QAction::triggered, &bar, handlers.close);
        } else {
            subjects[line.entry.subject] = parent->addMenu(caption);
        }
    }
}

QAction* TopicMenu::actionFor(PageName target) const {
    const auto leaf =
        std::find_if(leaves_.begin(), leaves_.end(), [&](const Leaf& l) { return l.target == target; });
    return leaf == leaves_.end() ? nullptr : leaf->action;
}

}  // namespace tavrune
