#include "controls/reading.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <QRegularExpression>
#include <QWidget>

#include <gtest/gtest.h>

#include "app/pages.h"
#include "conformance/facts.h"
#include "controls/accessible_controls.h"
#include "controls/answer_box.h"
#include "controls/button.h"
#include "controls/label.h"
#include "controls/line_control.h"
#include "controls/panel.h"
#include "controls/table_head.h"
#include "numeric/draws.h"
#include "support/form_driver.h"
#include "support/sheet.h"

namespace tavrune {
namespace {

using test::begin;
using test::FormDriver;
using test::inkOf;
using test::isInSight;
using test::isPanel;
using test::kBit;
using test::Sheet;
using test::Words;
using test::wordsOf;

TEST(Reading, WritesNumbersIntoTheGapsOfAText) {
    Sheet sheet;
    Label& text = sheet.add("P =     Q +        for Q < 5", 10, 10);
    const QFontMetricsF metrics(text.unzoomedFont());
    Label& slope = sheet.add("-2", 10 + metrics.horizontalAdvance("P =  "), 10);
    Label& intercept = sheet.add("7", 10 + metrics.horizontalAdvance("P =     Q +   "), 10);
    const std::vector<Passage> read = sheet.read();
    ASSERT_EQ(wordsOf(read), Words{"P lig med minus 2 Q plus 7 for Q mindre end 5"});
    EXPECT_EQ(read[0].lead, &text);
    EXPECT_EQ(std::set<const QWidget*>(read[0].pieces.begin(), read[0].pieces.end()),
              (std::set<const QWidget*>{&text, &slope, &intercept}));
}

TEST(Reading, WritesIntoTheLineOfAParagraphThatANumberLiesIn) {
    Sheet sheet;
    Label& text =
        sheet.addWrapped("Den ene er\nfunktionen P2=      Q og den\nanden er stejl", {10, 10, 300, 60});
    const QFontMetricsF metrics(text.unzoomedFont());
    sheet.add("α", 10 + metrics.horizontalAdvance("funktionen P2=   "), 10 + metrics.height());
    EXPECT_EQ(sheet.words(), Words{"Den ene er funktionen P2 lig med alfa Q og den anden er stejl"});
}

TEST(Reading, HearsExponentsByTheirHeight) {
    Sheet sheet;
    Label& text = sheet.add("= aQ + bQ + c", 10, 10);
    const QFontMetricsF metrics(text.unzoomedFont());
    sheet.add("3", 10 + metrics.horizontalAdvance("= aQ"), 5, 8);
    sheet.add("n", 10 + metrics.horizontalAdvance("= aQ + bQ"), 5, 8);
    Label& next = sheet.add("Q", text.place().right(), 10);
    sheet.add("2", next.place().right(), 5, 8);
    EXPECT_EQ(sheet.words(), Words{"lig med a Q i tredje plus b Q i n'te plus c Q i anden"});
}

TEST(Reading, PutsBarsIntoWords) {
    Sheet sheet;
    sheet.add("a =", 10, 20);
    sheet.addCentred("P1 - P2", {40, 11, 60, 14});
    LineControl& bar = sheet.addLine({40, 27, 100, 27});
    sheet.addCentred("7/8", {40, 29, 60, 14});
    const std::vector<Passage> ending = sheet.read();
    ASSERT_EQ(wordsOf(ending),
              Words{"a lig med brøk: P1 minus P2 over parentes 7 divideret med 8 parentes slut"});
    EXPECT_EQ(std::count(ending[0].pieces.begin(), ending[0].pieces.end(), &bar), 1);

    sheet.add("= 4", 104, 20);
    EXPECT_EQ(
        sheet.words(),
        Words{"a lig med brøk: P1 minus P2 over parentes 7 divideret med 8 parentes slut, brøk slut, lig "
              "med 4"});
}

TEST(Reading, TakesWhatStandsAboveForAFractionWithoutABarOnlyBesideSomething) {
    Sheet sheet;
    sheet.addCentred("P1", {60, 9, 30, 14});
    sheet.addCentred("P2", {60, 28, 30, 14});
    Label& before = sheet.add("a =", 0, 0);
    before.setLeft(60 - before.place().width() - 2);
    before.setTop(18.5);
    EXPECT_EQ(sheet.words(), Words{"a lig med brøk: P1 over P2"});
    before.setLeft(60 - before.place().width() - 40);
    EXPECT_EQ(sheet.words(), (Words{"P1", "a lig med", "P2"}));
}

TEST(Reading, ReadsTheRowsBesideAParagraphFromTheTop) {
    Sheet sheet;
    sheet.add("nederst", 10, 44);
    sheet.add("øverst", 10, 10);
    sheet.addWrapped("et afsnit på tre linier, som begge rækker står ved siden af", {60, 10, 100, 48});
    EXPECT_EQ(sheet.words(),
              (Words{"øverst", "et afsnit på tre linier, som begge rækker står ved siden af", "nederst"}));
}

TEST(Reading, HearsAFractionInAFraction) {
    Sheet sheet;
    sheet.add("Q =", 10, 38);
    sheet.addCentred("1", {50, 10, 20, 14});
    sheet.addLine({50, 26, 70, 26});
    sheet.addCentred("2", {50, 28, 20, 14});
    sheet.addLine({40, 45, 80, 45});
    sheet.addCentred("3", {40, 47, 40, 14});
    EXPECT_EQ(sheet.words(), Words{"Q lig med brøk: brøk: 1 over 2, brøk slut, over 3"});
}

TEST(Reading, HearsRootsAndIntegrals) {
    Sheet sheet;
    sheet.add("- b +", 10, 10);
    sheet.addLine({40, 18, 43, 24});
    sheet.addLine({43, 24, 49, 9});
    sheet.addLine({49, 9, 80, 9});
    sheet.addCentred("b - c", {50, 10, 30, 14});
    sheet.add("∫", 10, 60, 28);
    sheet.add("5", 20, 62);
    sheet.add("2", 17, 84);
    sheet.add("P1 dQ", 36, 74);
    EXPECT_EQ(sheet.words(), (Words{"minus b plus kvadratroden af parentes b minus c parentes slut",
                                    "integralet fra 2 til 5 af P1 dQ"}));
}

TEST(Reading, EndsAPassageAtFieldsAndButtons) {
    Sheet sheet;
    sheet.add("P=", 10, 10);
    sheet.addAt<AnswerBox>({30, 8, 20, 20});
    sheet.add("Q +", 52, 10);
    sheet.addAt<AnswerBox>({74, 8, 20, 20});
    sheet.add("for", 96, 10);
    sheet.addAt<Button>({114, 8, 10, 20});
    sheet.add(")", 126, 10);
    EXPECT_EQ(sheet.words(), (Words{"P lig med", "Q plus", "for", ""}));
}

TEST(Reading, ReadsColumnAfterColumnWhereWhitePartsThem) {
    Sheet sheet;
    sheet.add("Opgaven har en lang forklaring, der går hen over begge de to spalter, som nu kommer", 10, 10);
    sheet.add("Generel løsning", 10, 40);
    sheet.add("P = a", 10, 60);
    sheet.add("Aktuel løsning", 300, 40);
    sheet.add("P = 4", 300, 60);
    EXPECT_EQ(sheet.words().back(), "P lig med 4");
    EXPECT_EQ(sheet.words()[2], "P lig med a");
    // Beside fields, rows are read.
    sheet.addAt<AnswerBox>({500, 38, 20, 40});
    EXPECT_EQ(sheet.words()[2], "Aktuel løsning");
}

TEST(Reading, SaysANameInsteadOfTheTextAndWhatLiesInIt) {
    Sheet sheet;
    Label& text = sheet.add("for Q  0, P  0", 10, 10);
    text.setAccessibleName("for Q ≥ 0, P ≥ 0");
    Label& sign = sheet.add(">", 33, 10);
    Label& ornament = sheet.add("pynt", 10, 40);
    ornament.setDecorative(true);
    const std::vector<Passage> read = sheet.read();
    ASSERT_EQ(wordsOf(read), Words{"for Q større end eller lig med 0, P større end eller lig med 0"});
    EXPECT_EQ(read[0].pieces, (std::vector<const QWidget*>{&text, &sign}));
}

TEST(Reading, HearsAnUnderlinedSignAndPutsItInItsPlace) {
    Sheet sheet;
    sheet.add("<Q", 10, 10);
    sheet.add("<", 10, 11).setUnderlined(true);
    sheet.add("<", 40, 40).setUnderlined(true);
    EXPECT_EQ(sheet.words(), (Words{"mindre end eller lig med Q", "mindre end eller lig med"}));
}

TEST(Reading, HearsAPauseBehindANumberOfALine) {
    Sheet sheet;
    sheet.add("I   -2*P + 4*(8/6)+1 = 0", 10, 10);
    EXPECT_EQ(sheet.words(),
              Words{"I, minus 2 gange P plus 4 gange parentes 8 divideret med 6 parentes slut plus "
                    "1 lig med 0"});
}

TEST(Reading, JoinsLinesAndNumbersParagraphs) {
    Sheet sheet;
    sheet.add("1)", 10, 10);
    sheet.addWrapped("Find a\nFind b, når\na er fundet.", {26, 10, 200, 60});
    EXPECT_EQ(sheet.words(), Words{"1) Find a. Find b, når a er fundet."});
}

TEST(Reading, GoesIntoBoxesIfAsked) {
    Sheet sheet;
    sheet.add("først", 10, 10);
    auto& inner = sheet.addAt<Panel>({10, 30, 100, 40});
    auto* const label = new Label(&inner);
    label->setPlace({0, 0, 80, 14});
    label->setCaption("så");
    sheet.add("sidst", 10, 90);
    EXPECT_EQ(sheet.words(), (Words{"først", "sidst"}));
    EXPECT_EQ(wordsOf(passages(sheet.panel(), isInSight, isPanel)), (Words{"først", "så", "sidst"}));
    inner.hide();
    EXPECT_EQ(wordsOf(passages(sheet.panel(), isInSight, isPanel)), (Words{"først", "sidst"}));
}

TEST(Reading, PartsARowWhereTheWhiteIsTooWideForTheSizeOfItsLetters) {
    const auto isOne = [](const std::string& left, const std::string& right, double gap, double size) {
        Sheet sheet;
        const Label& first = sheet.addAlong(left, 10, 50, size);
        sheet.addAlong(right, inkOf(first).right() + gap, 50, size);
        return sheet.words().size() == 1;
    };
    const auto expectLongest = [&](const std::string& left, const std::string& right, double gap,
                                   double size) {
        EXPECT_TRUE(isOne(left, right, gap, size)) << left << right << gap;
        EXPECT_FALSE(isOne(left, right, gap + kBit, size)) << left << right << gap;
    };
    expectLongest("a", "b", 28, 11);
    expectLongest("a", "b", 56, 22);
    // A sign at either end joins what is farther apart.
    expectLongest("a =", "b", 84, 11);
    expectLongest("a", "= b", 84, 11);
    expectLongest("a =", "b", 168, 22);
}

TEST(Reading, PartsARowAtWhatStandsBetweenTheMiddlesOfItsTexts) {
    Sheet sheet;
    const Label& left = sheet.addAlong("en", 100, 50);
    const Label& right = sheet.addAlong("to", inkOf(left).right() + 10, 50);
    auto& button = sheet.addAt<Button>({0, 0, 4, 20});
    const auto isParted = [&](double middle, double top) {
        button.setPlace({middle - 2, top, 4, 20});
        return sheet.words().size() == 2;
    };
    const double leftMiddle = inkOf(left).center().x();
    const double rightMiddle = inkOf(right).center().x();
    EXPECT_FALSE(isParted(leftMiddle, 40));
    EXPECT_TRUE(isParted(leftMiddle + kBit, 40));
    EXPECT_TRUE(isParted(rightMiddle - kBit, 40));
    EXPECT_FALSE(isParted(rightMiddle, 40));
    const double between = (leftMiddle + rightMiddle) / 2;
    EXPECT_FALSE(isParted(between, inkOf(left).top() - 20)) << "over the row";
    EXPECT_TRUE(isParted(between, inkOf(left).top() - 20 + kBit));
    EXPECT_TRUE(isParted(between, inkOf(left).bottom() - kBit));
    EXPECT_FALSE(isParted(between, inkOf(left).bottom())) << "under the row";
}

TEST(Reading, SaysVerdictsAndParagraphsApartFromWhatStandsBesideThem) {
    Sheet sheet;
    Label& left = sheet.addAlong("FORKERT", 10, 50);
    const double beside = inkOf(left).right() + 4;
    Label& right = sheet.addAlong("igen", beside, 50);
    EXPECT_EQ(sheet.words(), Words{"FORKERT igen"});
    left.setVerdict(true);
    EXPECT_EQ(sheet.words(), (Words{"FORKERT", "igen"}));
    left.setVerdict(false);
    right.setVerdict(true);
    EXPECT_EQ(sheet.words(), (Words{"FORKERT", "igen"}));
    right.hide();
    sheet.addWrapped("et afsnit", {beside, 43, 100, 14});
    EXPECT_EQ(sheet.words(), (Words{"FORKERT", "et afsnit"}));
    left.setCaption("1)");
    begin(left, beside - 20, 50);
    EXPECT_EQ(sheet.words(), Words{"1) et afsnit"});
    left.setCaption("abc)");
    EXPECT_EQ(sheet.words(), (Words{"abc parentes slut", "et afsnit"}));
}

/// "a" over "b" in a left column, "c" over "d" in a right one, whose letters begin there.
class ReadingOfColumns : public testing::Test {
protected:
    /// Ink that is as wide as its place.
    static void addColumn(Sheet& sheet, const std::string& upper, const std::string& lower, double left,
                          double right) {
        sheet.addWrapped(upper, {left, 40, right - left, 10});
        sheet.addWrapped(lower, {left, 60, right - left, 10});
    }

    [[nodiscard]] static bool areColumns(double width, double leftEnd, double rightStart) {
        Sheet sheet(width);
        addColumn(sheet, "a", "b", 10, leftEnd);
        addColumn(sheet, "c", "d", rightStart, rightStart + 20);
        return sheet.words() == Words{"a", "b", "c", "d"};
    }
};

TEST_F(ReadingOfColumns, TakesThemForColumnsWhereWhitePartsThem) {
    EXPECT_TRUE(areColumns(600, 292, 300));
    EXPECT_FALSE(areColumns(600, 292 + kBit, 300)) << "too narrow";
    EXPECT_FALSE(areColumns(600, 292, 300 - kBit)) << "too narrow";
}

TEST_F(ReadingOfColumns, TakesThemForColumnsInTheMiddleOfTheRegion) {
    // 0.3 and 0.75 of 333 lie just under these.
    EXPECT_TRUE(areColumns(332, 50, 100));
    EXPECT_FALSE(areColumns(332, 50, 99));
    EXPECT_TRUE(areColumns(332, 50, 249));
    EXPECT_FALSE(areColumns(332, 50, 250));
    // 0.3 and 0.75 of 340 are these.
    EXPECT_FALSE(areColumns(339, 50, 102));
    EXPECT_TRUE(areColumns(339, 50, 103));
    EXPECT_TRUE(areColumns(339, 50, 254));
    EXPECT_FALSE(areColumns(339, 50, 255));
}

TEST_F(ReadingOfColumns, PartsThemAtTheWidestWhite) {
    Sheet sheet;
    addColumn(sheet, "a", "b", 10, 190);
    addColumn(sheet, "c", "d", 200, 300);
    addColumn(sheet, "e", "f", 320, 380);
    addColumn(sheet, "g", "h", 390, 500);
    EXPECT_EQ(sheet.words(), (Words{"a", "c", "b", "d", "e", "g", "f", "h"}));
}

TEST_F(ReadingOfColumns, TakesOneRowForNoColumns) {
    Sheet sheet;
    sheet.addAlong("a", 278, 50);
    sheet.addAlong("b", 300, 50);
    EXPECT_EQ(sheet.words(), Words{"a, b"});
}

TEST_F(ReadingOfColumns, TakesRowsThatTouchForMoreThanOne) {
    Sheet sheet;
    sheet.addWrapped("a", {10, 40, 280, 10});
    sheet.addWrapped("b", {10, 50, 280, 10});
    sheet.addWrapped("c", {300, 40, 100, 20});
    sheet.addWrapped("d", {300, 60, 100, 10});
    EXPECT_EQ(sheet.words(), (Words{"a", "b", "c", "d"}));
}

TEST_F(ReadingOfColumns, BeginsThemUnderATitleThatTouchesThem) {
    Sheet sheet;
    sheet.addWrapped("titel", {10, 20, 500, 20});
    addColumn(sheet, "a", "b", 10, 280);
    addColumn(sheet, "c", "d", 300, 400);
    EXPECT_EQ(sheet.words(), (Words{"titel", "a", "b", "c", "d"}));
}

TEST_F(ReadingOfColumns, ReadsRowsAcrossBesideFieldsAndTables) {
    const auto areAcross = [](const QRectF& place, bool isTable) {
        Sheet sheet;
        addColumn(sheet, "a", "b", 10, 280);
        addColumn(sheet, "c", "d", 300, 400);
        if (isTable) {
            sheet.addAt<TableHead>(place);
        } else {
            sheet.addAt<AnswerBox>(place);
        }
        return sheet.words() == Words{"a", "c", "b", "d"};
    };
    for (const bool isTable : {false, true}) {
        EXPECT_TRUE(areAcross({450, 40, 20, 30}, isTable));
        // Beside one of two rows is enough, over and under them is not.
        EXPECT_FALSE(areAcross({450, 20, 20, 20}, isTable));
        EXPECT_TRUE(areAcross({450, 20, 20, 20 + kBit}, isTable));
        EXPECT_TRUE(areAcross({450, 70 - kBit, 20, 20}, isTable));
        EXPECT_FALSE(areAcross({450, 70, 20, 20}, isTable));
    }
}

TEST(Reading, ReadsASmallParagraphAsOneOfItsRow) {
    const auto wordsWith = [](double height) {
        Sheet sheet;
        sheet.addAlong("øverst", 10, 15);
        sheet.addAlong("nederst", 10, 27);
        sheet.addWrapped("afsnit", {60, 10, 100, height});
        return sheet.words();
    };
    EXPECT_EQ(wordsWith(22).back(), "afsnit");
    EXPECT_EQ(wordsWith(22 + kBit), (Words{"øverst", "afsnit", "nederst"}));
}

TEST(Reading, ReadsAMarkerBeforeTheParagraphThatItStandsBeside) {
    Sheet sheet;
    sheet.addWrapped("afsnit", {60, 10, 100, 48});
    sheet.addAlong("1)", 40, 44);
    EXPECT_EQ(sheet.words(), Words{"1) afsnit"});
}

TEST(Reading, TakesForARowWhatSharesTwoFifthsOfItsHeight) {
    const auto wordsWith = [](double top, double height) {
        Sheet sheet;
        sheet.addWrapped("højre", {200, 10, 100, 10});
        sheet.addWrapped("venstre", {10, top, 100, height});
        return sheet.words();
    };
    EXPECT_EQ(wordsWith(16, 10), (Words{"venstre", "højre"}));
    EXPECT_EQ(wordsWith(16 + kBit, 10), (Words{"højre", "venstre"}));
    // Of the smaller of two heights.
    EXPECT_EQ(wordsWith(16, 20), (Words{"venstre", "højre"}));
    EXPECT_EQ(wordsWith(16 + kBit, 20), (Words{"højre", "venstre"}));
}

TEST(Reading, ReadsBoxesOverATextAfterIt) {
    Sheet sheet;
    const auto addBox = [&sheet](const std::string& text, const QRectF& place) -> Panel& {
        auto& box = sheet.addAt<Panel>(place);
        auto* const label = new Label(&box);
        label->setPlace({0, 0, 80, 14});
        label->setCaption(text);
        return box;
    };
    addBox("en", {10, 10, 100, 40});
    addBox("to", {50, 30, 100, 40});
    sheet.addAlong("tre", 10, 90);
    const auto words = [&sheet] {
        return wordsOf(passages(
            sheet.panel(), [](const QWidget& widget) { return !widget.isHidden(); }, isPanel));
    };
    EXPECT_EQ(words(), (Words{"en", "to", "tre"})) << "over each other only";
    sheet.addAlong("fire", 60, 20);
    EXPECT_EQ(words(), (Words{"fire", "to", "tre", "en"}));
}

/// A form with its help open and all of it shown.
class OpenHelp {
public:
    OpenHelp(PageName page, unsigned seed) : draws_(seed), form_(page, draws_) {
        form_.click("help");
        std::set<QString> pressed;
        bool isNew = true;
        while (isNew) {
            isNew = false;
            for (Button* const button : form_.page().findChildren<Button*>()) {
                if (button->objectName().startsWith("show") && button->isVisible() && button->isEnabled() &&
                    pressed.insert(button->objectName()).second) {
                    button->click();
                    isNew = true;
                }
            }
        }
    }

    [[nodiscard]] std::vector<Passage> read(const std::string& panel) const {
        return passages(form_.find(panel), isInSight, isPanel);
    }

    [[nodiscard]] FormDriver& form() { return form_; }

    /// Each of these is read once in a box of the page.
    void expect(const std::string& panel, const Words& expected) const {
        const Words words = wordsOf(read(panel));
        for (const std::string& one : expected) {
            EXPECT_EQ(std::count(words.begin(), words.end(), one), 1) << one;
        }
    }

private:
    SeededDraws draws_;
    FormDriver form_;
};

TEST(ReadingOfForms, GtmHasItsExponentsFractionsAndIntegrals) {
    const OpenHelp help(PageName::Gtm, 3);
    help.expect(
        "mcGivenHelpPanel",
        {"TVC lig med integralet af parentes a Q i anden plus b Q plus c parentes slut",
         "lig med brøk: 1 over 3, brøk slut, a Q i tredje plus brøk: 1 over 2, brøk slut, b Q i anden "
         "plus c Q",
         "lig med a Q i tredje plus b Q i anden plus c Q",
         "AVC lig med parentes a Q i tredje plus b Q i anden plus c Q parentes slut divideret med Q",
         "TVC lig med integralet af parentes 0 Q i anden plus 0 Q plus 7 parentes slut",
         "lig med brøk: 1 over 3, brøk slut, gange 0 Q i tredje plus brøk: 1 over 2, brøk slut, gange 0 "
         "Q i anden plus 7 Q"});
    help.expect("diagramHelpPanel", {"integralet af MC dQ", "brøk: d TVC over dQ", "Gennemsnit (AVC)"});
}

TEST(ReadingOfForms, RoedderHasFractionsWithRoots) {
    const OpenHelp help(PageName::Roedder, 3);
    EXPECT_EQ(
        wordsOf(help.read("helpPanel")),
        (Words{"Generel løsning", "P lig med a Q i anden plus b Q plus c",
               "d lig med b i anden minus 4 gange a gange c",
               "d større end 0: A), d lig med 0: B), d mindre end 0: C)",
               "A) Rod 1 lig med brøk: minus b plus kvadratroden af d over 2 gange a",
               "Rod 2 lig med brøk: minus b minus kvadratroden af d over 2 gange a",
               "B) Rod lig med brøk: minus b over 2 gange a", "C) Ingen rødder", "Aktuel løsning",
               "P lig med minus 4 Q i anden plus 4 Q",
               "d lig med 4 i anden minus 4 gange minus 4 gange 0 lig med 16",
               "d større end 0, der er to rødder",
               "A) Rod 1 lig med brøk: minus 4 plus kvadratroden af 16 over 2 gange minus 4, brøk slut, "
               "lig med 0",
               "Rod 2 lig med brøk: minus 4 minus kvadratroden af 16 over 2 gange minus 4, brøk slut, lig "
               "med 1"}));
}

TEST(ReadingOfForms, IntegralsHaveTheirLimitsAndGreekLetters) {
    const OpenHelp integ(PageName::Integ, 1);
    integ.expect("helpPanel", {"integralet fra v til w af p dQ lig med P af w minus P af v"});
    const OpenHelp integ2(PageName::Integ2, 3);
    integ2.expect(
        "helpPanel",
        {"integralet fra v til k af parentes a Q plus b parentes slut dQ plus integralet fra k til w af "
         "parentes alfa Q plus beta parentes slut dQ lig med",
         "integralet fra 3 til 4 af parentes minus 1 Q plus 3 parentes slut dQ lig med",
         "parentes parentes parentes alfa divideret med 2 parentes slut gange w i anden plus beta gange w "
         "parentes slut minus parentes parentes alfa divideret med 2 parentes slut gange k i anden plus beta "
         "gange k parentes slut parentes slut"});
    const Words words = wordsOf(integ2.read("helpPanel"));
    EXPECT_NE(words.at(1).find("med P2 lig med alfa Q plus beta som funktion."), std::string::npos);
}

TEST(ReadingOfForms, FractionsStandInTheirRows) {
    const OpenHelp brok(PageName::Brok, 3);
    brok.expect("BrokDesign",
                {"brøk: minus 4 over 3, brøk slut, gange brøk: 6 over minus 1, brøk slut, lig med"});
    brok.expect(
        "workedSolution",
        {"brøk: minus 4 over 3, brøk slut, gange brøk: 6 over minus 1, brøk slut, lig med brøk: minus 4 "
         "gange 6 over 3 gange minus 1, brøk slut, lig med brøk: minus 24 over minus 3, brøk slut, lig "
         "med 8"});
    const OpenHelp divided(PageName::Brok, 6);
    divided.expect(
        "helpPanel",
        {"brøk: a over b, brøk slut, divideret med brøk: c over d, brøk slut, lig med brøk: a gange d "
         "over b gange c"});
    const OpenHelp konvert(PageName::Konvert, 7);
    konvert.expect("helpPanel", {"P lig med brøk: minus 1 over 2 gange 2, brøk slut, K plus brøk: 10 over 2, "
                                 "brøk slut, lig med minus 0.25 K plus 5"});
    const OpenHelp topp(PageName::Topp, 3);
    topp.expect("helpPanel",
                {"T: P semikolon Q lig med brøk: minus d over 4 gange a, brøk slut, semikolon brøk: "
                 "minus b over 2 gange a",
                 "T: P semikolon Q lig med 11.33 semikolon 1.33"});
    const OpenHelp lininter(PageName::Lininter, 3);
    lininter.expect("helpPanel", {"brøk: Pb minus Pa over Qb minus Qa, brøk slut, lig med alfa",
                                  "P lig med Pa minus parentes Qa minus Q parentes slut gange alfa"});
    const OpenHelp afsaet(PageName::Afsaet, 1);
    afsaet.expect("AfsaetDesign", {"P lig med", "mindre end Q mindre end"});
}

TEST(ReadingOfForms, GivenFunctionsAreSaidWhole) {
    const OpenHelp laddi(PageName::Laddi2, 3);
    laddi.expect("Laddi2Design",
                 {"P lig med 0 Q plus 2 for 0 mindre end eller lig med Q mindre end eller lig med 6",
                  "for 0 mindre end eller lig med Q mindre end eller lig med"});
    const OpenHelp vaddi(PageName::Vaddi1, 3);
    vaddi.expect("Vaddi1Design", {"P lig med minus 4 Q plus 8 for Q større end eller lig med 0, P større end "
                                  "eller lig med 0",
                                  "P, Q1, Q2, Qtotal"});
    const OpenHelp diff(PageName::Diff, 3);
    diff.expect("helpPanel", {"P mærke af 2 lig med 31"});
}

/// All passages of the page and of its help.
std::vector<Passage> everything(FormDriver& form) {
    std::vector<Passage> all;
    QWidget* const design = form.button("newExercise").parentWidget();
    for (QWidget* const region : design->findChildren<QWidget*>() + QList<QWidget*>{design}) {
        if ((isPanel(*region) || region == design) && region->isVisible() && isInSight(*region)) {
            const std::vector<Passage> read = passages(*region, isInSight);
            all.insert(all.end(), read.begin(), read.end());
        }
    }
    return all;
}

class ReadingOf : public testing::TestWithParam<PageName> {
protected:
    /// No message is left to the next test.
    void TearDown() override { static_cast<void>(test::readFailure()); }
};

TEST_P(ReadingOf, SaysEachLabelOnceInWordsOnly) {
    for (unsigned seed = 1; seed <= 4; ++seed) {
        OpenHelp help(GetParam(), seed);
        std::map<const QWidget*, int> times;
        for (const Passage& passage : everything(help.form())) {
            EXPECT_NE(qobject_cast<const Label*>(passage.lead), nullptr);
            ASSERT_FALSE(passage.pieces.empty());
            EXPECT_EQ(passage.pieces.front(), passage.lead);
            EXPECT_FALSE(passage.words.contains(QRegularExpression("[=²³√∫·*α-ω+≤≥]|  ")))
                << passage.words.toStdString();
            EXPECT_FALSE(passage.words.endsWith("brøk slut")) << passage.words.toStdString();
            for (const QWidget* const piece : passage.pieces) {
                ++times[piece];
            }
        }
        QWidget* const design = help.form().button("newExercise").parentWidget();
        for (const Label* const label : design->findChildren<Label*>()) {
            const QWidget* const box = label->parentWidget();
            if (label->isVisible() && isInSight(*label) && !label->text().trimmed().isEmpty() &&
                !label->isDecorative() && (isPanel(*box) || box == design)) {
                EXPECT_EQ(times[label], 1) << label->objectName().toStdString() << " with seed " << seed;
            }
        }
        EXPECT_TRUE(
            std::all_of(times.begin(), times.end(), [](const auto& time) { return time.second == 1; }));
    }
}

TEST_P(ReadingOf, IsTheSameAtEveryZoom) {
    OpenHelp help(GetParam(), 2);
    const Words before = wordsOf(everything(help.form()));
    help.form().page().resize(1300, 1000);
    test::settle();
    EXPECT_EQ(wordsOf(everything(help.form())), before);
}

std::vector<PageName> pagesWithHelp() {
    std::vector<PageName> pages(kExercisePages.begin(), kExercisePages.end());
    // A message box says where its help is.
    std::erase(pages, PageName::Rogt);
    return pages;
}

INSTANTIATE_TEST_SUITE_P(Forms, ReadingOf, testing::ValuesIn(pagesWithHelp()),
                         [](const auto& page) { return test::asciiNameOf(page.param); });

}  // namespace
}  // namespace tavrune
