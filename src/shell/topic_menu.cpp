#include "shell/topic_menu.h"

#include <algorithm>
#include <array>
#include <map>

#include <QAction>
#include <QMenu>

#include "controls/text.h"

namespace tavrune {
namespace {

using Entry = MenuEntry;
using Name = PageName;

struct Wording {
    PageName page;
    MenuEntry entry;
    std::string_view caption;
};

// The pages' menus were written one by one. What differs from the tree stays as it is, slips included.
constexpr std::array kWordings{
    Wording{Name::Topp, Entry::Andengradspolynomiet, "Andengradspolynomier"},
    Wording{Name::Topp, Entry::IntegralNiveau2, "Niveau 2: Mestemt integrale af lineære funktioner med knæk"},
    Wording{Name::Rogt, Entry::Andengradspolynomiet, "Andengradspolynomier"},
    Wording{Name::Diff, Entry::Andengradspolynomiet, "Andengradspolynomier"},
    Wording{Name::Diff, Entry::IntegralNiveau2, "Niveau 2: Bestent integrale af lineære funktioner med knæk"},
    Wording{Name::Integ, Entry::Andengradspolynomiet, "Andengradspolynomier"},
    Wording{Name::Integ, Entry::VandretNiveau3,
            "Niveau 3: : Addering af to lineære funktioner, den ene med knæk"},
    Wording{Name::Integ2, Entry::Andengradspolynomiet, "Andengradspolynomier"},
    Wording{Name::Integ2, Entry::IntegralNiveau1,
            "Niveau 1: Betsemt integrale af lineære funktioner og andengradspolynomier"},
    Wording{Name::Integ2, Entry::ToLigninger, "2 linier med 2 ubekendte"},
    Wording{Name::Konvert, Entry::VandretNiveau3,
            "Niveau 3: : Addering af to lineære funktioner, den ene med knæk"},
    Wording{Name::Laddi1, Entry::ToLigninger, "2 ligninger med to ubekendte"},
    Wording{Name::Laddi2, Entry::IntegralNiveau2, "Niveau 2: Bestemt integale af lineære funktioner "},
    Wording{Name::Laddi2, Entry::VandretNiveau1, "Niveau1: Addering af to lineære funktioner"},
    Wording{Name::Laddi2, Entry::VandretNiveau2, "Niveau2: Addering af tre lineære funktioner"},
    Wording{Name::Laddi2, Entry::VandretNiveau3,
            "Niveau3: Addering af to lineære funktioner, den ene med knæk"},
    Wording{Name::Lininter, Entry::ToLigninger, "2 linier med 2 ubekendte"},
    Wording{Name::Roedder, Entry::IntegralNiveau1,
            "Niveau 1: Bestemt integrale af lineære funktioner og andengradaspolynomier"},
    Wording{Name::Vaddi2, Entry::Differentialregning, "Differrentialregning"},
    Wording{Name::Vaddi2, Entry::LodretAddition, "Lodret adddition"},
    Wording{Name::Vaddi3, Entry::IntegralNiveau1, "Niveau 1"},
    Wording{Name::Vaddi3, Entry::IntegralNiveau2, "Niveau 2"},
    Wording{Name::Tomto, Entry::LineaerInterpolation, "Lineær interpolation"},
    Wording{Name::Tomto, Entry::LodretNiveau2, "Niveau 2: Addering af tre lineære funktioner"},
    Wording{Name::Form1, Entry::Funktionskonvertering, "Fuktionskonvertering"},
    Wording{Name::Form1, Entry::IntegralNiveau1,
            "Niveau 1: Bestemet integrale af lineære funktioner og andengradspolynomier"},
    Wording{Name::Form1, Entry::IntegralNiveau2,
            "Niveau 2: Bestemet integrale af lineære funktioner med knæk"},
    Wording{Name::Form2, Entry::IntegralNiveau1,
            "Niveau 1: Bestemet integrale af lineære funktioner og andenegradspolynomier"},
    Wording{Name::Form2, Entry::IntegralNiveau2,
            "Niveau 2: Bestemet integrale af lineære funktioner med knæk"},
    Wording{Name::Form2, Entry::LineaerInterpolation, "Lineær interpolaton/ekstrapolation"},
};

}  // namespace

const std::vector<MenuLine>& topicTree() {
    static const std::vector<MenuLine> tree{
        {Entry::Hjaelp, {}, "&Hjælp", Name::Form1},
        {Entry::Afsaetningsfunktioner, {}, "Afsætningsfunktioner", Name::Afsaet, true},
        {Entry::Andengradspolynomiet, {}, "Andengradspolynomiet", {}},
        {Entry::Roedder, Entry::Andengradspolynomiet, "Rødder", Name::Roedder},
        {Entry::Toppunkt, Entry::Andengradspolynomiet, "Toppunkt", Name::Topp},
        {Entry::RoedderOgToppunkt, Entry::Andengradspolynomiet, "Rødder og toppunkt", Name::Rogt},
        {Entry::Broekregning, {}, "Brøkregning", Name::Brok},
        {Entry::DenRetteLinie, {}, "Den rette linie", Name::Dlinie},
        {Entry::Differentialregning, {}, "Differentialregning", Name::Diff},
        {Entry::Funktionskonvertering, {}, "Funktionskonvertering", Name::Konvert},
        {Entry::GennemsnitTotalMarginal, {}, "Gennemsnit-total-marginal", Name::Gtm},
        {Entry::Integralregning, {}, "Integralregning", {}},
        {Entry::IntegralNiveau1, Entry::Integralregning,
         "Niveau 1: Bestemt integrale af lineære funktioner og andengradspolynomier", Name::Integ},
        {Entry::IntegralNiveau2, Entry::Integralregning,
         "Niveau 2: Bestemt integrale af lineære funktioner med knæk", Name::Integ2},
        {Entry::LineaerInterpolation, {}, "Lineær interpolation/ekstrapolation", Name::Lininter},
        {Entry::LodretAddition, {}, "Lodret addition", {}},
        {Entry::LodretNiveau1, Entry::LodretAddition, "Niveau 1: Addering af to lineære funktioner",
         Name::Laddi1},
        {Entry::LodretNiveau2, Entry::LodretAddition, "Niveau 2: Addering af to lineære funktioner med knæk",
         Name::Laddi2},
        {Entry::VandretAddition, {}, "Vandret addition", {}},
        {Entry::VandretNiveau1, Entry::VandretAddition, "Niveau 1: Addering af to lineære funktioner",
         Name::Vaddi1},
        {Entry::VandretNiveau2, Entry::VandretAddition, "Niveau 2: Addering af tre lineære funktioner",
         Name::Vaddi2},
        {Entry::VandretNiveau3, Entry::VandretAddition,
         "Niveau 3: Addering af to lineære funktioner, den ene med knæk", Name::Vaddi3},
        {Entry::ToLigninger, {}, "2 ligninger med 2 ubekendte", Name::Tomto},
        {Entry::Luk, {}, "Luk", {}, true},
    };
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

TopicMenu::TopicMenu(QMenuBar& bar, PageName page, const Handlers& handlers)
    : menu_(bar.addMenu("&Indhold")) {
    menu_->setObjectName("Indhold");
    std::map<MenuEntry, QMenu*> subjects;
    for (const MenuLine& line : topicTree()) {
        QMenu* const parent = line.parent ? subjects.at(*line.parent) : menu_;
        if (line.separatorBefore) {
            parent->addSeparator();
        }
        const QString caption = fromUtf8(captionOn(page, line));
        if (line.opens) {
            QAction* const action = parent->addAction(caption);
            const PageName target = *line.opens;
            action->setObjectName(fromUtf8(textOf(target)));
            action->setEnabled(!isOwnEntry(page, target));
            QObject::connect(action, &QAction::triggered, &bar,
                             [open = handlers.open, target] { open(target); });
            leaves_.push_back({target, action});
        } else if (line.entry == MenuEntry::Luk) {
            QAction* const action = parent->addAction(caption);
            action->setObjectName("Luk");
            QObject::connect(action, &QAction::triggered, &bar, handlers.close);
        } else {
            subjects[line.entry] = parent->addMenu(caption);
        }
    }
}

void TopicMenu::disableUnbuilt(const std::function<bool(PageName)>& isBuilt) {
    for (const Leaf& leaf : leaves_) {
        if (!isBuilt(leaf.target)) {
            leaf.action->setEnabled(false);
        }
    }
}

QAction* TopicMenu::actionFor(PageName target) const {
    const auto leaf =
        std::find_if(leaves_.begin(), leaves_.end(), [&](const Leaf& l) { return l.target == target; });
    return leaf == leaves_.end() ? nullptr : leaf->action;
}

}  // namespace tavrune
