#include "app/pages.h"

#include <algorithm>
#include <array>

#include <QGuiApplication>
#include <QScreen>

#include "shell/how_to_use.h"
#include "shell/opstart.h"
#include "topics/addition/laddi1.h"
#include "topics/addition/laddi2.h"
#include "topics/addition/vaddi1.h"
#include "topics/addition/vaddi2.h"
#include "topics/addition/vaddi3.h"
#include "topics/basics/brok.h"
#include "topics/basics/dlinie.h"
#include "topics/basics/konvert.h"
#include "topics/basics/lininter.h"
#include "topics/basics/tomto.h"
#include "topics/calculus/diff.h"
#include "topics/calculus/integ.h"
#include "topics/calculus/integ2.h"
#include "topics/economics/afsaet.h"
#include "topics/economics/gtm.h"
#include "topics/polynomial/roedder.h"
#include "topics/polynomial/rogt.h"
#include "topics/polynomial/topp.h"

namespace tavrune {
namespace {

struct Entry {
    PageName name;
    std::unique_ptr<Page> (*make)(Draws&);
};

template <class Form>
std::unique_ptr<Page> form(Draws& draws) {
    return std::make_unique<Form>(draws);
}

template <class Passive>
std::unique_ptr<Page> passive(Draws& /*draws*/) {
    return std::make_unique<Passive>();
}

std::unique_ptr<Page> startPage(Draws& /*draws*/) {
    return std::make_unique<Opstart>(QGuiApplication::primaryScreen()->size());
}

// The one list of pages: the menu, the tests and the program go through it.
// One page a line.
// clang-format off
constexpr std::array kPages{
    Entry{PageName::Opstart, startPage},
    Entry{PageName::Form1, passive<Form1>},
    Entry{PageName::Form2, passive<Form2>},
    Entry{PageName::Brok, form<Brok>},
    Entry{PageName::Konvert, form<Konvert>},
    Entry{PageName::Dlinie, form<Dlinie>},
    Entry{PageName::Lininter, form<Lininter>},
    Entry{PageName::Tomto, form<Tomto>},
    Entry{PageName::Integ2, form<Integ2>},
    Entry{PageName::Afsaet, form<Afsaet>},
    Entry{PageName::Gtm, form<Gtm>},
    Entry{PageName::Laddi1, form<Laddi1>},
    Entry{PageName::Laddi2, form<Laddi2>},
    Entry{PageName::Vaddi1, form<Vaddi1>},
    Entry{PageName::Vaddi2, form<Vaddi2>},
    Entry{PageName::Vaddi3, form<Vaddi3>},
    Entry{PageName::Topp, form<Topp>},
    Entry{PageName::Roedder, form<Roedder>},
    Entry{PageName::Rogt, form<Rogt>},
    Entry{PageName::Diff, form<Diff>},
    Entry{PageName::Integ, form<Integ>},
};
// clang-format on

const Entry* find(PageName name) {
    const auto* const entry =
        std::find_if(kPages.begin(), kPages.end(), [name](const Entry& e) { return e.name == name; });
    return entry == kPages.end() ? nullptr : entry;
}

}  // namespace

std::vector<PageName> builtPages() {
    std::vector<PageName> names;
    names.reserve(kPages.size());
    for (const Entry& entry : kPages) {
        names.push_back(entry.name);
    }
    return names;
}

bool isBuilt(PageName name) { return find(name) != nullptr; }

std::unique_ptr<Page> makePage(PageName name, Draws& draws) {
    std::unique_ptr<Page> page = find(name)->make(draws);
    page->topicMenu().disableUnbuilt(isBuilt);
    return page;
}

}  // namespace tavrune
