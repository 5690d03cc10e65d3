#include "shell/topic_menu.h"

#include <map>
#include <set>
#include <string>

#include <QCoreApplication>
#include <QMenuBar>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include "app/pages.h"
#include "controls/voice.h"

namespace tavrune {
namespace {

using Name = PageName;

const MenuLine& line(MenuEntry entry) {
    for (const MenuLine& l : topicTree()) {
        if (l.entry == entry) {
            return l;
        }
    }
    throw std::invalid_argument("no such entry");
}

/// A menu bar with the menu of one page, and what it was asked for.
struct MenuOf {
    explicit MenuOf(PageName page)
        : menu(bar, page, {.open = [this](PageName n) { opened.insert(n); }, .close = [this] { ++closed; }}) {
    }

    QMenuBar bar;
    std::set<PageName> opened;
    int closed = 0;
    TopicMenu menu;
};

std::string outline(const QMenu& menu, const std::string& indent = "") {
    std::string text;
    for (const QAction* action : menu.actions()) {
        text += indent + (action->isSeparator() ? "--" : action->text().toStdString()) + "\n";
        if (action->menu() != nullptr) {
            text += outline(*action->menu(), indent + "  ");
        }
    }
    return text;
}

TEST(TopicTree, IsTheMenuOfTheStartPage) {
    const MenuOf start(Name::Opstart);
    EXPECT_EQ(start.bar.actions().at(0)->text().toStdString(), "&Indhold");
    EXPECT_EQ(outline(*start.menu.menu()),
              "&Hjælp\n"
              "--\n"
              "Afsætningsfunktioner\n"
              "Andengradspolynomiet\n"
              "  Rødder\n"
              "  Toppunkt\n"
              "  Rødder og toppunkt\n"
              "Brøkregning\n"
              "Den rette linie\n"
              "Differentialregning\n"
              "Funktionskonvertering\n"
              "Gennemsnit-total-marginal\n"
              "Integralregning\n"
              "  Niveau 1: Bestemt integrale af lineære funktioner og andengradspolynomier\n"
              "  Niveau 2: Bestemt integrale af lineære funktioner med knæk\n"
              "Lineær interpolation/ekstrapolation\n"
              "Lodret addition\n"
              "  Niveau 1: Addering af to lineære funktioner\n"
              "  Niveau 2: Addering af to lineære funktioner med knæk\n"
              "Vandret addition\n"
              "  Niveau 1: Addering af to lineære funktioner\n"
              "  Niveau 2: Addering af tre lineære funktioner\n"
              "  Niveau 3: Addering af to lineære funktioner, den ene med knæk\n"
              "2 ligninger med 2 ubekendte\n"
              "--\n"
              "Luk\n");
}

TEST(TopicTree, HasOneEntryForEachFormAndOneForTheUseOfTheProgram) {
    std::size_t working = 0;
    std::set<PageName> targets;
    for (const MenuLine& l : topicTree()) {
        if (l.entry.page) {
            ++working;
            targets.insert(*l.entry.page);
        }
    }
    EXPECT_EQ(working, kExercisePages.size() + 1);
    EXPECT_EQ(targets.size(), working);
    for (const PageName exercise : kExercisePages) {
        EXPECT_EQ(targets.count(exercise), 1U);
    }
}

TEST(TopicTree, HasNamesForItsEntriesAndItself) {
    const MenuOf start(Name::Opstart);
    EXPECT_EQ(start.menu.menu()->objectName(), "Indhold");
    for (const PageName exercise : kExercisePages) {
        EXPECT_EQ(start.menu.actionFor(exercise)->objectName().toStdString(), textOf(exercise));
    }
}

TEST(TopicTree, SaysOfAnEntryThatItOpensAnotherMenu) {
    const MenuOf start(Name::Opstart);
    QSignalSpy said(&Voice::instance(), &Voice::said);
    for (QAction* entry : start.menu.menu()->actions()) {
        said.clear();
        entry->hover();
        QCoreApplication::processEvents();
        EXPECT_EQ(said.size(), entry->menu() == nullptr ? 0 : 1) << entry->text().toStdString();
        EXPECT_TRUE(said.isEmpty() || said[0][0] == "undermenu");
    }
}

TEST(TopicTree, AsksForThePageOfEachEntry) {
    MenuOf start(Name::Opstart);
    for (const MenuLine& l : topicTree()) {
        if (l.entry.page) {
            start.menu.actionFor(*l.entry.page)->trigger();
        }
    }
    EXPECT_EQ(start.opened.size(), kExercisePages.size() + 1);
    start.menu.menu()->findChild<QAction*>("Luk")->trigger();
    EXPECT_EQ(start.closed, 1);
}

struct WordingRow {
    const char* name;
    PageName page;
    MenuEntry entry;
    const char* caption;
};

class Wordings : public testing::TestWithParam<WordingRow> {};

TEST_P(Wordings, AreKeptAsThePageHasThem) {
    EXPECT_EQ(captionOn(GetParam().page, line(GetParam().entry)), GetParam().caption);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Wordings,
    testing::Values(
        WordingRow{"Topp1", Name::Topp, Subject::Andengradspolynomiet, "Andengradspolynomier"},
        WordingRow{"Topp2", Name::Topp, Name::Integ2,
                   "Niveau 2: Mestemt integrale af lineære funktioner med knæk"},
        WordingRow{"Rogt", Name::Rogt, Subject::Andengradspolynomiet, "Andengradspolynomier"},
        WordingRow{"Diff1", Name::Diff, Subject::Andengradspolynomiet, "Andengradspolynomier"},
        WordingRow{"Diff2", Name::Diff, Name::Integ2,
                   "Niveau 2: Bestent integrale af lineære funktioner med knæk"},
        WordingRow{"Integ1", Name::Integ, Subject::Andengradspolynomiet, "Andengradspolynomier"},
        WordingRow{"Integ2", Name::Integ, Name::Vaddi3,
                   "Niveau 3: : Addering af to lineære funktioner, den ene med knæk"},
        WordingRow{"Integ2a", Name::Integ2, Subject::Andengradspolynomiet, "Andengradspolynomier"},
        WordingRow{"Integ2b", Name::Integ2, Name::Integ,
                   "Niveau 1: Betsemt integrale af lineære funktioner og andengradspolynomier"},
        WordingRow{"Integ2c", Name::Integ2, Name::Tomto, "2 linier med 2 ubekendte"},
        WordingRow{"Konvert", Name::Konvert, Name::Vaddi3,
                   "Niveau 3: : Addering af to lineære funktioner, den ene med knæk"},
        WordingRow{"Laddi1", Name::Laddi1, Name::Tomto, "2 ligninger med to ubekendte"},
        WordingRow{"Laddi2a", Name::Laddi2, Name::Integ2,
                   "Niveau 2: Bestemt integale af lineære funktioner "},
        WordingRow{"Laddi2b", Name::Laddi2, Name::Vaddi1, "Niveau1: Addering af to lineære funktioner"},
        WordingRow{"Laddi2c", Name::Laddi2, Name::Vaddi2, "Niveau2: Addering af tre lineære funktioner"},
        WordingRow{"Laddi2d", Name::Laddi2, Name::Vaddi3,
                   "Niveau3: Addering af to lineære funktioner, den ene med knæk"},
        WordingRow{"Lininter", Name::Lininter, Name::Tomto, "2 linier med 2 ubekendte"},
        WordingRow{"Roedder", Name::Roedder, Name::Integ,
                   "Niveau 1: Bestemt integrale af lineære funktioner og andengradaspolynomier"},
        WordingRow{"Vaddi2a", Name::Vaddi2, Name::Diff, "Differrentialregning"},
        WordingRow{"Vaddi2b", Name::Vaddi2, Subject::LodretAddition, "Lodret adddition"},
        WordingRow{"Vaddi3a", Name::Vaddi3, Name::Integ, "Niveau 1"},
        WordingRow{"Vaddi3b", Name::Vaddi3, Name::Integ2, "Niveau 2"},
        WordingRow{"Tomto1", Name::Tomto, Name::Lininter, "Lineær interpolation"},
        WordingRow{"Tomto2", Name::Tomto, Name::Laddi2, "Niveau 2: Addering af tre lineære funktioner"},
        WordingRow{"Form1a", Name::Form1, Name::Konvert, "Fuktionskonvertering"},
        WordingRow{"Form1b", Name::Form1, Name::Integ,
                   "Niveau 1: Bestemet integrale af lineære funktioner og andengradspolynomier"},
        WordingRow{"Form1c", Name::Form1, Name::Integ2,
                   "Niveau 2: Bestemet integrale af lineære funktioner med knæk"},
        WordingRow{"Form2a", Name::Form2, Name::Integ,
                   "Niveau 1: Bestemet integrale af lineære funktioner og andenegradspolynomier"},
        WordingRow{"Form2b", Name::Form2, Name::Integ2,
                   "Niveau 2: Bestemet integrale af lineære funktioner med knæk"},
        WordingRow{"Form2c", Name::Form2, Name::Lininter, "Lineær interpolaton/ekstrapolation"}),
    [](const auto& row) { return row.param.name; });

TEST(Wordings, DifferFromTheTreeInThirtyPlacesAndNoMore) {
    int differing = 0;
    for (int page = 0; page <= static_cast<int>(Name::Tomto); ++page) {
        for (const MenuLine& l : topicTree()) {
            if (captionOn(static_cast<PageName>(page), l) != l.caption) {
                ++differing;
            }
        }
    }
    EXPECT_EQ(differing, 30);
}

TEST(TopicMenu, DisablesThePagesOwnEntryAndNoOther) {
    for (const PageName page : kExercisePages) {
        const MenuOf own(page);
        for (const PageName target : kExercisePages) {
            EXPECT_EQ(own.menu.actionFor(target)->isEnabled(), target != page) << textOf(page);
        }
        EXPECT_TRUE(own.menu.actionFor(Name::Form1)->isEnabled());
    }
}

TEST(TopicMenu, DisablesHelpOnBothHowToUsePages) {
    EXPECT_FALSE(MenuOf(Name::Form1).menu.actionFor(Name::Form1)->isEnabled());
    EXPECT_FALSE(MenuOf(Name::Form2).menu.actionFor(Name::Form1)->isEnabled());
    EXPECT_TRUE(MenuOf(Name::Opstart).menu.actionFor(Name::Form1)->isEnabled());
}

}  // namespace
}  // namespace tavrune
