// What screen readers are told of every form: names that make sense alone, and graphs in words.

#include <algorithm>
#include <set>

#include <QRegularExpression>

#include <gtest/gtest.h>

#include "conformance/form_suite.h"
#include "controls/spoken.h"
#include "support/blind_student.h"

namespace tavrune {
namespace {

using test::BlindStudent;
using test::FormDriver;

/// However much is drawn, nobody has to listen to more than this.
constexpr std::size_t kLongestDescription = 3000;

bool makesSense(const QString& name) {
    static const QRegularExpression letters("^[A-Za-zÆØÅæøå][^&]+$");
    static const QRegularExpression control(
        "^(Text|Label|Command|Picture|Option|Frame|Line|Vis|Luk|Hjaelp)\\d*(_\\d+)?$");
    return letters.match(name).hasMatch() && !control.match(name).hasMatch();
}

/// What is wrong with the names on a page as it stands.
std::vector<std::string> flawsOfNames(const BlindStudent& student) {
    std::vector<std::string> flaws;
    std::set<QString> told;
    for (const QAccessibleInterface* thing : student.things()) {
        const bool isNamed = thing->state().focusable || thing->role() == QAccessible::Chart ||
                             thing->role() == QAccessible::Notification;
        if (!isNamed) {
            continue;
        }
        const QString name = thing->text(QAccessible::Name);
        if (!makesSense(name)) {
            flaws.push_back("no sense: '" + name.toStdString() + "' on " +
                            thing->object()->objectName().toStdString());
        }
        if (!told.insert(name).second) {
            flaws.push_back("told twice: " + name.toStdString());
        }
    }
    return flaws;
}

class EveryFormInWords : public test::FormSuite {
protected:
    static void expectWords(const BlindStudent& student) {
        EXPECT_EQ(flawsOfNames(student), std::vector<std::string>{});
        for (const QAccessibleInterface* graph : student.things(QAccessible::Chart)) {
            const std::string words = test::descriptionOf(*graph);
            EXPECT_EQ(words.rfind("Vandret akse fra ", 0), 0U) << words;
            EXPECT_LT(words.size(), kLongestDescription) << words;
        }
    }

    static void typeEverywhere(const BlindStudent& student, const std::string& text) {
        std::map<std::string, std::string> fields = student.fields();
        for (auto& [field, value] : fields) {
            value = text;
        }
        student.type(fields);
    }

    static void openAllSteps(const BlindStudent& student) {
        student.press("Hjælp");
        for (const QAccessibleInterface* button : student.things(QAccessible::Button)) {
            const std::string name = test::nameOf(*button);
            if (name.rfind("Vis ", 0) == 0 && button->state().disabled == 0) {
                student.press(name);
            }
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Forms, EveryFormInWords, testing::ValuesIn(test::allForms()), test::asciiName);

TEST_P(EveryFormInWords, HasNamesOfSenseInEveryState) {
    const FormDriver form = open(7);
    const BlindStudent student(form.page());
    for (int exercise = 0; exercise < 8; ++exercise) {
        expectWords(student);
        for (const std::string& option : student.names(QAccessible::RadioButton)) {
            student.choose(option);
            expectWords(student);
        }
        typeEverywhere(student, "7654.25");
        student.press("OK");
        expectWords(student);
        // One of the options may have been right.
        if (student.hears(QAccessible::Button, "Giv svaret")) {
            student.press("Giv svaret");
        }
        expectWords(student);
        openAllSteps(student);
        static_cast<void>(form.answerMessage());
        expectWords(student);
        student.press("Ny opgave");
    }
}

TEST_P(EveryFormInWords, TellsOfItsGraphsInBoundedWordsWhateverIsTyped) {
    const FormDriver form = open(8);
    const BlindStudent student(form.page());
    if (const auto options = student.names(QAccessible::RadioButton); !options.empty()) {
        student.choose(options.front());
    }
    for (const char* hostile : {"1e308", "-1e308", "1e38", "1e-300", "3.3333333", "-.1"}) {
        typeEverywhere(student, hostile);
        student.press("OK");
        expectWords(student);
    }
    for (int tried = 0; tried < 30; ++tried) {
        typeEverywhere(student, std::to_string(tried) + ".0625");
        if (student.hears(QAccessible::Button, "OK")) {
            student.press("OK");
        }
    }
    expectWords(student);
}

/// Boxes that mean another thing in another exercise.
TEST(NamesInWords, FollowTheNumberOfRoots) {
    for (const PageName page : {PageName::Roedder, PageName::Rogt}) {
        SeededDraws draws(3);
        const FormDriver form(page, draws);
        const BlindStudent student(form.page());
        student.choose("To rødder");
        EXPECT_TRUE(student.hears(QAccessible::EditableText, "rod 1"));
        EXPECT_TRUE(student.hears(QAccessible::EditableText, "rod 2"));
        student.choose("Dobbelt rod");
        EXPECT_TRUE(student.hears(QAccessible::EditableText, "dobbelt rod"));
        EXPECT_FALSE(student.hears(QAccessible::EditableText, "rod 2"));
    }
}

TEST(NamesInWords, FollowTheCoordinateThatIsAskedFor) {
    SeededDraws draws(3);
    const FormDriver form(PageName::Lininter, draws);
    const BlindStudent student(form.page());
    std::set<std::string> names;
    for (int exercise = 0; exercise < 20; ++exercise) {
        const std::string letter = form.caption("askedLetter");
        EXPECT_TRUE(student.hears(QAccessible::EditableText, "det nye punkts " + letter + "-koordinat"));
        names.insert(letter);
        student.press("Ny opgave");
    }
    EXPECT_EQ(names, (std::set<std::string>{"P", "Q"}));
}

std::string inWords(const std::string& text) { return spoken(QString::fromStdString(text)).toStdString(); }

/// Tasks that are laid out in pieces are told as a whole.
TEST(NamesInWords, TellAnIntegralAsAWhole) {
    SeededDraws draws(3);
    const FormDriver form(PageName::Integ, draws);
    EXPECT_TRUE(BlindStudent(form.page())
                    .hears(QAccessible::StaticText, "integralet fra " + form.caption("lowerLimit") + " til " +
                                                        form.caption("upperLimit") + " af p dQ lig med"));
}

TEST(NamesInWords, TellAFunctionInTwoPiecesAsAWhole) {
    SeededDraws draws(3);
    const FormDriver form(PageName::Integ2, draws);
    const BlindStudent student(form.page());
    const auto text = [&form](const char* label) { return form.caption(label); };
    EXPECT_TRUE(student.hears(QAccessible::StaticText,
                              inWords("P1 = " + text("segment1Slope") + "Q + " + text("segment1Intercept") +
                                      " for 0 < Q < " + text("segment1End"))));
    EXPECT_TRUE(student.hears(QAccessible::StaticText,
                              inWords("P2 = " + text("segment2Slope") + "Q + " + text("segment2Intercept") +
                                      " for " + text("segment2Start") + " < Q < 10")));
    EXPECT_TRUE(student.hears(QAccessible::StaticText, "integralet fra " + text("segment1LowerLimit") +
                                                           " til " + text("segment1UpperLimit") +
                                                           " af P1 dQ, plus integralet fra " +
                                                           text("segment2LowerLimit") + " til " +
                                                           text("segment2UpperLimit") + " af P2 dQ lig med"));
}

TEST(NamesInWords, TellTheGivenFunctionsOfAnAdditionAsAWhole) {
    struct Row {
        PageName page;
        const char* slope;
        const char* intercept;
        const char* kink;
        const char* before;
        const char* after;
    };
    for (const auto& [page, slope, intercept, kink, before, after] :
         {Row{PageName::Vaddi1, "function1Slope", "function1Intercept", "", "Q ≥ 0, P ≥ 0", ""},
          {PageName::Vaddi2, "function1Slope", "function1Intercept", "", "Q ≥ 0, P ≥ 0", ""},
          {PageName::Laddi2, "function1Part1Slope", "function1Part1Intercept", "function1Part1End",
           "0 ≤ Q ≤ ", ""},
          {PageName::Vaddi3, "function1Part2Slope", "function1Part2Intercept", "function1Part2Start", "",
           " < Q, P > 0"},
          {PageName::Vaddi3, "function2Slope", "function2Intercept", "", "Q > 0, P > 0", ""}}) {
        SeededDraws draws(3);
        const FormDriver form(page, draws);
        const std::string where = before + (*kink == 0 ? "" : form.caption(kink)) + after;
        const std::string whole =
            inWords("P = " + form.caption(slope) + "Q + " + form.caption(intercept) + " for " + where);
        EXPECT_TRUE(BlindStudent(form.page()).hears(QAccessible::StaticText, whole)) << whole;
    }
}

TEST(NamesInWords, FollowTheColumnsOfTheHelpTable) {
    SeededDraws draws(3);
    const FormDriver form(PageName::Vaddi3, draws);
    const BlindStudent student(form.page());
    std::set<bool> kinds;
    for (int exercise = 0; exercise < 20; ++exercise) {
        const bool isWide = form.isShown("wideTablePrice1");
        kinds.insert(isWide);
        for (const char* column : {"Q1a", "Qtotalb"}) {
            EXPECT_EQ(student.hears(QAccessible::EditableText,
                                    std::string(column) + " i anden række af hjælpeskemaet"),
                      isWide);
        }
        EXPECT_EQ(student.hears(QAccessible::EditableText, "Q1 i anden række af hjælpeskemaet"), !isWide);
        EXPECT_TRUE(student.hears(QAccessible::EditableText, "pris i femte række af hjælpeskemaet"));
        student.press("Ny opgave");
    }
    EXPECT_EQ(kinds.size(), 2U);
}

TEST(NamesInWords, KeepAWorkedSolutionFromAllUntilItIsUncovered) {
    SeededDraws draws(3);
    const FormDriver form(PageName::Roedder, draws);
    const BlindStudent student(form.page());
    student.press("Hjælp");
    const std::string worked = inWords(form.caption("workedDiscriminant"));
    EXPECT_FALSE(student.hears(QAccessible::StaticText, worked));
    student.press("Vis diskriminanten");
    EXPECT_TRUE(student.hears(QAccessible::StaticText, worked));
}

}  // namespace
}  // namespace tavrune
