#include "topics/basics/tomto.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/fixed_texts.h"
#include "support/form_driver.h"
#include "support/looks.h"
#include "support/strokes.h"
#include "topics/basics/tomto_script.h"

namespace tavrune {
namespace {

using test::FormDriver;
using test::ScriptedDraws;
using test::tomto::Coefficients;
using test::tomto::Explicit;
using test::tomto::Implicit;
using test::tomto::Kind;

constexpr test::StrokesIn kToTen{{0, 10, 10, 0}};
constexpr test::StrokesIn kToAHundred{{0, 100, 100, 0}};
constexpr int kThick = 3;

struct Task {
    Coefficients coefficients;
    Kind kind;
};

constexpr Task kCrossing{{-2, 1, 8, 3, 1, -5}, Explicit};             // (2.6; 2.8)
constexpr Task kFarCrossing{{1, 1, 1, 2, 1, -10}, Explicit};          // (11; 12)
constexpr Task kNearCrossing{{-1, 1, 9, 1, 1, -8}, Explicit};         // (8.5; 0.5)
constexpr Task kFarInQOnly{{-1, 2, 4, -2, 5, 4}, Implicit};           // (12; 4)
constexpr Task kFarInPOnly{{2, 1, 7, 5, 1, 1}, Explicit};             // (2; 11)
constexpr Task kParallel{{4, 1, 3, 4, 2, 8}, Explicit};               // needs an old P other than 0
constexpr Task kCoinciding{{4, 1, 3, 4, 2, 3}, Explicit};             // the same
constexpr Task kCrossingOfThree{{-9, -10, 9, -10, -9, 9}, Implicit};  // (0.47; 0.47)
constexpr Task kParallelOfThree{{2, 3, 4, 4, 6, 5}, Implicit};
constexpr Task kCoincidingOfThree{{2, 3, 4, 4, 6, -4}, Implicit};

class TomtoForm : public testing::Test {
protected:
    void script(const Task& t) { draws.append(test::tomto::script(t.coefficients, t.kind)); }

    FormDriver& open(const Task& task) {
        script(task);
        form = std::make_unique<FormDriver>(PageName::Tomto, draws);
        return *form;
    }

    /// Opens with a crossing, so that lines of two terms that do not cross can follow.
    FormDriver& openThen(const Task& task) {
        open(kCrossing);
        next(task);
        return *form;
    }

    void next(const Task& task) {
        script(task);
        form->click("Command1");
    }

    void answer(const std::string& q, const std::string& p) const {
        form->click("Option1");
        form->type("Text1", q);
        form->type("Text2", p);
        form->click("Command2");
    }

    void choose(const std::string& option) const {
        form->click(option);
        form->click("Command2");
    }

    [[nodiscard]] QColor colour(const std::string& box) const { return form->box(box).backColour(); }
    [[nodiscard]] GraphBox& graph() const { return form->find<GraphBox>("Picture1"); }
    [[nodiscard]] const std::vector<Stroke>& strokes() const { return graph().strokes(); }

    [[nodiscard]] std::string choices() const {
        std::string chosen;
        for (const char* option : {"Option1", "Option2", "Option3"}) {
            chosen += form->option(option).isChosen() ? 'x' : '-';
        }
        return chosen;
    }

    [[nodiscard]] bool isRight() const {
        return form->isShown("Label5") && form->caption("Label5") == "RIGTIGT";
    }
    [[nodiscard]] bool isWrong() const {
        return form->isShown("Label5") && form->caption("Label5") == "FORKERT";
    }

    ScriptedDraws draws;
    std::unique_ptr<FormDriver> form;
};

constexpr test::FixedText kFixedTexts[]{
    {"Label52", "Bestem det eventuelle skæringspunkt mellem de to rette linier:"},
    {"Frame1", "Linierne"},
    {"Option1", "skærer hinanden"},
    {"Option2", "er parallelle"},
    {"Option3", "er sammenfaldende"},
    {"Label4", "Skæringspunktets koordinater: (Q;P) ="},
    {"Label10", "("},
    {"Label11", ";"},
    {"Label12", ")"},
    {"Label8", "0"},
    {"Label9", "0"},
    {"Label13", "P"},
    {"Label14", "Q"},
    {"Command1", "&Ny opgave"},
    {"Command2", "&OK"},
    {"Command3", "&Giv svaret"},
    {"Command7", "&Hjælp"},
    // Lines of two terms, with the table of decisions.
    {"Label15", "De to linier er af typen P = a1*Q + b1"},
    {"Label16", "P = a2*Q + b2"},
    {"D",
     "Du skal nu finde ud af om de to linier er sammenfaldende, parallele eller om de skærer hinanden. "
     "I sidste tilfælde skal du finde skæringspunktets koordinater"},
    {"Label201", "a1 ≠ a2"},
    {"Label202", "=>"},
    {"Label203", "linierne skærer  hinanden"},
    {"Label204", "a1 = a2"},
    {"Label205", "b1 ≠ b2"},
    {"Label206", "=>"},
    {"Label207", "linierne er parallelle"},
    {"Label208", "b1 = b2"},
    {"Label209", "=>"},
    {"Label210", "linierne er sammenfaldende"},
    {"Label211", "Teoretisk løsning"},
    {"Label212", "Aktuel løsning"},
    {"Label17", "Find skæringspunktets koordinater"},
    {"Label29", "a1Q + b1 = a2Q + b2 =>"},
    {"Label30", "(a1 - a2) * Q = b2 - b1 =>"},
    {"Label31", "Q = (b2 - b1)/(a1 - a2)"},
    {"Label32", "P = a1Q + b1"},
    {"Command5", "Vis"},
    {"Command6", "Luk"},
    // Lines of three terms.
    {"Label38", "De to linier er af typen   c1*P + a1*Q + b1 = 0"},
    {"Label39", "c2*P + a2*Q + b2 = 0"},
    {"Label41", "a1/a2    c1/c2  => linierne  skærer hinanden"},
    {"Label42", "a1/a2 = c1/c2    b1/b2  => linierne er parallelle"},
    {"Label43", "a1/a2 = c1/c2 = b1/b2  => linierne er sammenfaldende   "},
    {"Label44", "≠"},
    {"Label45", "≠"},
    {"Label48", "Skæringspunktets koordinater findes først generelt.                 "},
    {"Label66", "Ligning I ganges igennem med c2 og ligning II med c1"},
    {"Label49", "I   c2*c1*P+c2*a1*Q+c2*b1=0"},
    {"Label40", "II  c1*c2*P+c1*a2*Q+c1*b2=0 "},
    {"Label67", "Ligning II trækkes fra ligning I"},
    {"Label68", "(a1*c2-a2*c1)*Q+b1*c2-b2*c1=0"},
    {"Label50", "Q ="},
    {"Label51", "b1*c2 - b2*c1         "},
    {"Label55", "a2*c1 - a1*c2"},
    {"Label69",
     "Q Isoleres. Indsæt værdier i udtrykket for Q. Sæt derefter den fundne Q-værdi ind i ligning I eller "
     "II og løs ligningen mht. P"},
    {"Label54", "Q = "},
    {"Command10", "Vis"},
    {"Command4", "&Luk"},
};

TEST_F(TomtoForm, StandsReadyBeforeItsFirstTick) {
    const FormDriver f = FormDriver::unshown(PageName::Tomto, draws);
    EXPECT_EQ(f.page().windowTitle().toStdString(), "Tavrune - 2 ligninger med 2 ubekendte");
    EXPECT_EQ(f.caption("Label2") + f.caption("Label3"), "");
    test::expectTexts(f, kFixedTexts);
    for (const char* hidden : {"Label4", "Picture2", "Label5", "Command3", "Picture3", "Picture4", "Picture5",
                               "Picture6", "Label34", "Label35", "Label36", "Label37", "Label54", "Label56",
                               "Label57", "Label58", "Label59", "Label60", "Line10"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
}

TEST_F(TomtoForm, HasAGraphOfItsSizeWithTicksBesideIt) {
    const FormDriver& f = open(kCrossing);
    const QRectF box = static_cast<const Control&>(graph()).place();
    EXPECT_EQ(box.size(), QSizeF(fromTwips(3645), fromTwips(3645)));
    EXPECT_EQ(graph().backColour(), kWhite);
    // A tenth of the box apart, on whole units; the last one stands on the box's own edge.
    const auto offset = [&box](int part) {
        return std::min(std::round(box.width() * part / 10), box.width() - 1);
    };
    int tenths = 0;
    for (const char* name : {"Line17", "Line18", "Line19", "Line20", "Line21", "Line22", "Line23", "Line24",
                             "Line25", "Line26"}) {
        const QRectF tick = f.find<LineControl>(name).place();
        EXPECT_EQ(tick.right(), box.left()) << name;
        EXPECT_EQ(tick.top() - box.top(), offset(tenths++)) << name;
    }
    tenths = 0;
    for (const char* name : {"Line27_0", "Line27_1", "Line27_2", "Line27_3", "Line27_4", "Line27_5",
                             "Line27_6", "Line27_7", "Line27_8", "Line27_9", "Line27_10"}) {
        const QRectF tick = f.find<LineControl>(name).place();
        EXPECT_EQ(tick.top(), box.bottom()) << name;
        EXPECT_EQ(tick.left() - box.left(), offset(tenths++)) << name;
    }
}

TEST_F(TomtoForm, ShowsTheTwoLinesAndAsksForTheirRelationFirst) {
    const FormDriver& f = open(kCrossing);
    EXPECT_EQ(f.caption("Label2"), "l: P = -2Q + 8");
    EXPECT_EQ(f.caption("Label3"), "m: P = 3Q - 5");
    EXPECT_EQ(choices(), "---");
    EXPECT_FALSE(f.isShown("Picture2"));
    EXPECT_FALSE(f.isShown("Label4"));
    EXPECT_TRUE(f.isShown("Command2"));
    EXPECT_TRUE(f.isShown("Label1"));
    EXPECT_EQ(f.caption("Label6") + f.caption("Label7"), "55");
    EXPECT_EQ(graph().scale(), kToTen.scale);
    EXPECT_TRUE(strokes().empty());
}

TEST_F(TomtoForm, ShowsLinesOfThreeTerms) {
    const FormDriver& f = open(kCrossingOfThree);
    EXPECT_EQ(f.caption("Label2"), "-10P - 9Q + 9 =  0");
    EXPECT_EQ(f.caption("Label3"), "-9P - 10Q + 9 =  0");
}

TEST_F(TomtoForm, OpensWithItsOwnReplacementsForZeros) {
    const FormDriver& f = open({{0, 0, 0, 0, 0, 0}, Explicit});
    EXPECT_EQ(f.caption("Label2"), "l: P = 3Q + 2");
    EXPECT_EQ(f.caption("Label3"), "m: P = 1Q + 5");
    next({{0, 0, 0, 0, 0, 0}, Explicit});
    EXPECT_EQ(f.caption("Label2"), "l: P = 7Q + 3");
    EXPECT_EQ(f.caption("Label3"), "m: P = 1Q + 5");
}

TEST_F(TomtoForm, RepeatsTheDrawWhereItWouldOpenWithParallelLinesOfTwoTerms) {
    script(kParallel);
    const FormDriver& f = open(kCrossing);
    EXPECT_EQ(f.caption("Label2"), "l: P = -2Q + 8");
    EXPECT_EQ(draws.randomized(), 2);
}

TEST_F(TomtoForm, OpensTheFieldsForACrossingAndStartsInTheRightHandOne) {
    const FormDriver& f = open(kCrossing);
    f.click("Option1");
    EXPECT_TRUE(f.isShown("Picture2"));
    EXPECT_TRUE(f.isShown("Label4"));
    EXPECT_EQ(f.focus(), "Text2");
    EXPECT_LT(f.box("Text1").place().left(), f.box("Text2").place().left());
}

TEST_F(TomtoForm, ClosesTheFieldsForTheOtherRelations) {
    const FormDriver& f = open(kCrossing);
    for (const char* other : {"Option2", "Option3"}) {
        f.click("Option1");
        f.click(other);
        EXPECT_FALSE(f.isShown("Picture2")) << other;
        EXPECT_FALSE(f.isShown("Label4")) << other;
    }
}

TEST_F(TomtoForm, IsSolvedByKeysAloneFromRightToLeft) {
    const FormDriver& f = open(kCrossing);
    f.press("Option1", Qt::Key_Space);
    EXPECT_EQ(f.focus(), "Text2");
    f.type("Text2", "2,8");
    f.press("Text2", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Text1");
    f.type("Text1", "2,6");
    f.press("Text1", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Command2");
    f.press("Command2", Qt::Key_Return);
    EXPECT_TRUE(isRight());
    EXPECT_EQ(f.label("Label5").backColour(), kGreen);
    EXPECT_EQ(f.focus(), "Command1");
    EXPECT_FALSE(f.isShown("Command2"));
    EXPECT_FALSE(f.isShown("Command3"));
}

TEST_F(TomtoForm, EnterInTheLastBoxDoesNothingOnceSolved) {
    const FormDriver& f = open(kCrossing);
    answer("2.6", "2.8");
    f.box("Text1").setFocus();
    f.press("Text1", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Text1");
}

TEST_F(TomtoForm, DrawsTheTrueLinesAndTheirCrossing) {
    open(kCrossing);
    answer("2.6", "2.8");
    EXPECT_EQ(strokes(),
              (std::vector<Stroke>{kToTen.line(0, 8, 10, -12, kGreen), kToTen.line(0, -5, 10, 25, kGreen),
                                   kToTen.point(2.6, 2.8, kBlue, kThick)}));
    graph().PSet(1, 1);
    EXPECT_EQ(strokes().back().width, 1) << "the width goes back";
}

TEST_F(TomtoForm, DrawsLinesOfThreeTermsInBlackOnceSolved) {
    open(kCrossingOfThree);
    answer("0.47", "0.47");
    ASSERT_TRUE(isRight());
    EXPECT_EQ(strokes(), (std::vector<Stroke>{kToTen.line(0, 0.9F, 10, 10 * -0.9F + 0.9F, kBlack),
                                              kToTen.line(0, 1, 10, 10 * (10.0F / -9) + 1, kBlack),
                                              kToTen.point(0.47, 0.47, kBlue, kThick)}));
}

TEST_F(TomtoForm, MarksEachWrongCoordinateByItself) {
    const FormDriver& f = open(kCrossing);
    answer("2.6", "2.9");
    EXPECT_TRUE(isWrong());
    EXPECT_EQ(f.label("Label5").backColour(), kRed);
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_EQ(colour("Text2"), kRed);
    EXPECT_EQ(f.focus(), "Text2");
    EXPECT_TRUE(f.isShown("Command2"));
    EXPECT_TRUE(f.isShown("Command3"));
    answer("2.61", "2.8");
    EXPECT_EQ(colour("Text1"), kRed);
    EXPECT_EQ(colour("Text2"), kWhite);
    EXPECT_TRUE(strokes().empty());
}

TEST_F(TomtoForm, IsWrongWithoutAChoice) {
    const FormDriver& f = open(kCrossing);
    f.click("Command2");
    EXPECT_TRUE(isWrong());
    EXPECT_EQ(f.focus(), "Command2") << "the fields are hidden";
    EXPECT_EQ(colour("Text1"), kRed) << "and marked all the same";
    EXPECT_EQ(colour("Text2"), kRed);
}

TEST_F(TomtoForm, MarksHiddenFieldsByTheirNumbersWhateverIsChosen) {
    const FormDriver& f = open(kCrossing);
    f.click("Option1");
    f.type("Text1", "2.6");
    f.type("Text2", "2.8");
    for (const char* other : {"Option2", "Option3"}) {
        choose(other);
        EXPECT_TRUE(isWrong()) << other;
        EXPECT_EQ(colour("Text1"), kWhite);
        EXPECT_EQ(colour("Text2"), kWhite);
    }
    EXPECT_FALSE(f.isShown("Picture2"));
}

TEST_F(TomtoForm, TakesParallelLinesByTheChoiceAlone) {
    const FormDriver& f = openThen(kParallel);
    EXPECT_EQ(f.caption("Label2"), "l: P = 4Q + 3");
    EXPECT_EQ(f.caption("Label3"), "m: P = 4Q + 8");
    answer("5", "5");
    EXPECT_TRUE(isWrong());
    EXPECT_EQ(colour("Text1"), kRed);
    choose("Option2");
    EXPECT_TRUE(isRight());
    EXPECT_FALSE(f.isShown("Picture2"));
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_EQ(colour("Text2"), kWhite);
    EXPECT_EQ(f.box("Text1").content(), "5");
    EXPECT_EQ(strokes(),
              (std::vector<Stroke>{kToTen.line(0, 3, 10, 43, kGreen), kToTen.line(0, 8, 10, 48, kGreen)}));
    graph().PSet(1, 1);
    EXPECT_EQ(strokes().back().width, 1);
}

TEST_F(TomtoForm, ClearsWhatAWrongTryLeftInHiddenFields) {
    const FormDriver& f = openThen(kParallel);
    answer("5", "5");
    choose("Option3");
    EXPECT_TRUE(isWrong());
    EXPECT_EQ(colour("Text1"), kRed);
    next(kCrossing);
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_EQ(f.box("Text1").content() + f.box("Text2").content(), "");
}

TEST_F(TomtoForm, TakesCoincidingLinesByTheChoiceAlone) {
    openThen(kCoinciding);
    choose("Option2");
    EXPECT_TRUE(isWrong());
    choose("Option3");
    EXPECT_TRUE(isRight());
    EXPECT_EQ(strokes(),
              (std::vector<Stroke>{kToTen.line(0, 3, 10, 43, kGreen), kToTen.line(0, 3, 10, 43, kGreen)}));
}

TEST_F(TomtoForm, CountsParallelLinesOfThreeTermsWithOppositeConstantsAsCoinciding) {
    open(kCoincidingOfThree);
    choose("Option2");
    EXPECT_TRUE(isWrong());
    choose("Option3");
    EXPECT_TRUE(isRight());
}

TEST_F(TomtoForm, CountsTheSameLineOfThreeTermsTwiceAsParallel) {
    open({{2, 3, 4, 2, 3, 4}, Implicit});
    choose("Option3");
    EXPECT_TRUE(isWrong());
    choose("Option2");
    EXPECT_TRUE(isRight());
}

TEST_F(TomtoForm, ReachesToAHundredForACrossingBeyondTen) {
    const FormDriver& f = open(kFarCrossing);
    EXPECT_EQ(f.caption("Label6"), "5");
    answer("1", "1");
    EXPECT_EQ(f.caption("Label6"), "50") << "at a wrong try too";
    EXPECT_EQ(f.caption("Label7"), "50");
    EXPECT_EQ(graph().scale(), kToAHundred.scale);
    answer("11", "12");
    EXPECT_TRUE(isRight());
    EXPECT_EQ(strokes(), (std::vector<Stroke>{kToAHundred.line(0, 1, 100, 101, kGreen),
                                              kToAHundred.line(0, -10, 100, 190, kGreen),
                                              kToAHundred.point(11, 12, kBlue, kThick)}));
}

TEST_F(TomtoForm, ReachesToAHundredForACrossingBeyondTenInQAlone) {
    const FormDriver& f = open(kFarInQOnly);
    answer("12", "4");
    EXPECT_TRUE(isRight());
    EXPECT_EQ(f.caption("Label6") + f.caption("Label7"), "5050");
    EXPECT_EQ(graph().scale(), kToAHundred.scale);
    EXPECT_EQ(strokes(), (std::vector<Stroke>{kToAHundred.line(0, -2, 100, 48),
                                              kToAHundred.line(0, -0.8F, 100, 100 * 0.4F - 0.8F),
                                              kToAHundred.point(12, 4, kBlue, kThick)}));
}

TEST_F(TomtoForm, ReachesToAHundredForACrossingBeyondTenInPAlone) {
    const FormDriver& f = open(kFarInPOnly);
    answer("2", "11");
    EXPECT_TRUE(isRight());
    EXPECT_EQ(f.caption("Label6") + f.caption("Label7"), "5050");
    EXPECT_EQ(graph().scale(), kToAHundred.scale);
    EXPECT_EQ(strokes(), (std::vector<Stroke>{kToAHundred.line(0, 7, 100, 207, kGreen),
                                              kToAHundred.line(0, 1, 100, 501, kGreen),
                                              kToAHundred.point(2, 11, kBlue, kThick)}));
}

TEST_F(TomtoForm, StaysAtTenForACrossingWithinTen) {
    const FormDriver& f = open(kNearCrossing);
    answer("8.5", "0.5");
    EXPECT_TRUE(isRight());
    EXPECT_EQ(f.caption("Label6"), "5");
    EXPECT_EQ(graph().scale(), kToTen.scale);
}

TEST_F(TomtoForm, LeavesTheNumbersOnTheAxesUntilTheNextJudging) {
    const FormDriver& f = open(kFarCrossing);
    answer("11", "12");
    next(kCrossing);
    EXPECT_EQ(graph().scale(), kToTen.scale);
    EXPECT_EQ(f.caption("Label6") + f.caption("Label7"), "5050");
    f.click("Command2");
    EXPECT_EQ(f.caption("Label6") + f.caption("Label7"), "55");
}

TEST_F(TomtoForm, GivesACrossing) {
    const FormDriver& f = open(kCrossing);
    choose("Option2");
    f.click("Command3");
    EXPECT_EQ(choices(), "x--");
    EXPECT_EQ(f.option("Option1").backColour(), kGreen);
    EXPECT_NE(f.option("Option2").backColour(), kGreen);
    EXPECT_TRUE(f.isShown("Picture2"));
    EXPECT_TRUE(f.isShown("Label4"));
    EXPECT_EQ(f.box("Text1").content(), "2.6");
    EXPECT_EQ(f.box("Text2").content(), "2.8");
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_EQ(colour("Text2"), kWhite);
    EXPECT_FALSE(f.isShown("Label5"));
    EXPECT_FALSE(f.isShown("Command2"));
    EXPECT_FALSE(f.isShown("Command3"));
    EXPECT_EQ(f.focus(), "Command1");
    EXPECT_EQ(strokes(),
              (std::vector<Stroke>{kToTen.line(0, 8, 10, -12, kGreen), kToTen.line(0, -5, 10, 25, kGreen),
                                   kToTen.point(2.6, 2.8, kBlue, kThick)}));
}

TEST_F(TomtoForm, WritesAGivenCrossingWithTheLocalesMark) {
    const test::DecimalMark inUse(",");
    const FormDriver& f = open(kCrossing);
    answer("1", "1");
    f.click("Command3");
    EXPECT_EQ(f.box("Text1").content(), "2,6");
}

TEST_F(TomtoForm, GivesParallelLinesAndLeavesTheFieldsAsTheyAre) {
    const FormDriver& f = openThen(kParallel);
    answer("5", "6");
    f.click("Command3");
    EXPECT_EQ(choices(), "-x-");
    EXPECT_EQ(f.option("Option2").backColour(), kGreen);
    EXPECT_TRUE(f.isShown("Picture2")) << "setting an option is no click";
    EXPECT_EQ(f.box("Text1").content(), "5");
    EXPECT_EQ(colour("Text1"), kWhite);
    EXPECT_EQ(strokes().size(), 2U);
}

TEST_F(TomtoForm, GivesCoincidingLines) {
    const FormDriver& f = openThen(kCoinciding);
    choose("Option2");
    f.click("Command3");
    EXPECT_EQ(choices(), "--x");
    EXPECT_EQ(f.option("Option3").backColour(), kGreen);
    EXPECT_FALSE(f.isShown("Picture2"));
}

TEST_F(TomtoForm, DrawsGivenLinesOfThreeTermsInGreen) {
    open(kCrossingOfThree);
    answer("1", "1");
    form->click("Command3");
    ASSERT_EQ(strokes().size(), 3U);
    EXPECT_EQ(strokes()[0], kToTen.line(0, 0.9F, 10, 10 * -0.9F + 0.9F, kGreen));
    EXPECT_EQ(strokes()[1].colour, kGreen);
}

TEST_F(TomtoForm, KeepsThePenWideFromAGivenAnswerToTheNextExercise) {
    open(kParallelOfThree);
    choose("Option3");
    form->click("Command3");
    graph().PSet(1, 1);
    EXPECT_EQ(strokes().back().width, 3);
    next(kCrossing);
    EXPECT_TRUE(strokes().empty());
    graph().PSet(1, 1);
    EXPECT_EQ(strokes().back().width, 1);
}

TEST_F(TomtoForm, GivesAFarCrossingUnjudgedOnAxesThatStillEndAtTen) {
    const FormDriver& f = open(kFarCrossing);
    f.button("Command3").click();
    EXPECT_EQ(f.caption("Label6") + f.caption("Label7"), "5050");
    EXPECT_EQ(graph().scale(), kToTen.scale);
    EXPECT_EQ(strokes(),
              (std::vector<Stroke>{kToTen.line(0, 1, 100, 101, kGreen), kToTen.line(0, -10, 100, 190, kGreen),
                                   kToTen.point(11, 12, kBlue, kThick)}));
}

TEST_F(TomtoForm, ForgetsEverythingWithTheNextExercise) {
    const FormDriver& f = open(kCrossing);
    const QColor face = f.option("Option1").backColour();
    answer("1", "1");
    f.click("Command3");
    f.click("Command7");
    f.click("Command5");
    next(kCrossingOfThree);
    EXPECT_EQ(choices(), "---");
    EXPECT_EQ(f.option("Option1").backColour(), face);
    for (const char* hidden : {"Picture2", "Label4", "Label5", "Command3", "Picture3", "Picture4", "Label34",
                               "Label35", "Label36", "Label37"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_TRUE(f.isShown("Command2"));
    EXPECT_EQ(f.box("Text1").content() + f.box("Text2").content(), "");
    EXPECT_TRUE(strokes().empty());
    EXPECT_EQ(f.focus(), "Command1") << "the focus stays where it is";
}

TEST_F(TomtoForm, TeachesLinesOfTwoTerms) {
    const FormDriver& f = open(kCrossing);
    f.click("Command7");
    EXPECT_TRUE(f.isShown("Picture3"));
    EXPECT_TRUE(f.isShown("Picture4"));
    EXPECT_FALSE(f.isShown("Picture5"));
    EXPECT_EQ(f.focus(), "Command5");
    EXPECT_FALSE(f.isShown("Label34"));
    test::expectTexts(f, kFixedTexts);
}

TEST_F(TomtoForm, WorksLinesOfTwoTermsOut) {
    const FormDriver& f = open(kCrossing);
    f.click("Command7");
    f.press("Command5", Qt::Key_Return);
    EXPECT_EQ(f.caption("Label34"), "-2Q + 8 = 3Q - 5 =>");
    EXPECT_EQ(f.caption("Label35"), "(-2 - 3) * Q = -5 - 8 =>");
    EXPECT_EQ(f.caption("Label36"), "Q = 13/5 = 2.6");
    EXPECT_EQ(f.caption("Label37"), "P = -2*(13/5) + 8 = 2.8");
    for (const char* shown : {"Label34", "Label35", "Label36", "Label37"}) {
        EXPECT_TRUE(f.isShown(shown)) << shown;
    }
    f.click("Command6");
    for (const char* hidden : {"Picture3", "Picture4", "Label34", "Label35", "Label36", "Label37"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
}

TEST_F(TomtoForm, TeachesNoDerivationForEqualSlopes) {
    const FormDriver& f = openThen(kParallel);
    f.click("Command7");
    EXPECT_TRUE(f.isShown("Picture3"));
    EXPECT_FALSE(f.isShown("Picture4"));
    EXPECT_EQ(f.focus(), "Command7");
    next(kParallelOfThree);
    f.click("Command7");
    EXPECT_TRUE(f.isShown("Picture5"));
    EXPECT_FALSE(f.isShown("Picture6"));
    EXPECT_EQ(f.focus(), "Command7");
}

TEST_F(TomtoForm, TeachesLinesOfThreeTerms) {
    const FormDriver& f = open(kCrossingOfThree);
    f.click("Command7");
    EXPECT_TRUE(f.isShown("Picture5"));
    EXPECT_TRUE(f.isShown("Picture6"));
    EXPECT_FALSE(f.isShown("Picture3"));
    EXPECT_EQ(f.focus(), "Command10");
    test::expectTexts(f, kFixedTexts);
}

TEST_F(TomtoForm, WorksLinesOfThreeTermsOut) {
    const FormDriver& f = open(kCrossingOfThree);
    f.click("Command7");
    f.press("Command10", Qt::Key_Return);
    EXPECT_EQ(f.caption("Label56"), "9*(-9) - 9*(-10)");
    EXPECT_EQ(f.caption("Label57"), "-10*(-10) - (-9)*(-9)");
    EXPECT_EQ(f.caption("Label58"), "= 9/19 = 0.47");
    EXPECT_EQ(f.caption("Label59"), "I   -10*P - 9*(9/19)+9 = 0 ");
    EXPECT_EQ(f.caption("Label60"), "=> P = 0.47");
    const char* const revealed[] = {"Label54", "Label56", "Label57", "Label58",
                                    "Label59", "Label60", "Line10"};
    for (const char* shown : revealed) {
        EXPECT_TRUE(f.isShown(shown)) << shown;
    }
    f.click("Command4");
    for (const char* hidden : revealed) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_FALSE(f.isShown("Picture5"));
    EXPECT_FALSE(f.isShown("Picture6"));
}

TEST_F(TomtoForm, RunsTheBarToTheEndOfTheWiderNumber) {
    const FormDriver& f = open(kCrossingOfThree);
    f.click("Command7");
    f.click("Command10");
    EXPECT_EQ(f.find<LineControl>("Line10").ends().x2(), f.label("Label57").place().right());
    EXPECT_EQ(f.label("Label57").place().width(), f.label("Label57").textWidth()) << "the wider one";
    // The shorter texts that follow are not measured by the longer ones.
    next({{1, 1, -3, -2, 1, -2}, Implicit});
    f.click("Command7");
    f.click("Command10");
    EXPECT_EQ(f.caption("Label56"), "-3*1 - (-2)*1");
    EXPECT_EQ(f.find<LineControl>("Line10").ends().x2(),
              f.label("Label56").place().left() + f.label("Label56").textWidth());
}

TEST_F(TomtoForm, ClosesHelpOfThreeTermsWithTheNextExercise) {
    const FormDriver& f = open(kCrossingOfThree);
    f.click("Command7");
    f.click("Command10");
    next(kCrossing);
    for (const char* hidden : {"Picture5", "Picture6", "Label54", "Label56", "Line10"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
}

TEST_F(TomtoForm, KeepsWhatWasTypedWhileHelpComesAndGoes) {
    const FormDriver& f = open(kCrossing);
    f.click("Option1");
    f.type("Text1", "4");
    f.click("Command7");
    f.click("Command6");
    EXPECT_EQ(f.box("Text1").content(), "4");
    EXPECT_EQ(choices(), "x--");
    EXPECT_TRUE(f.isShown("Picture2"));
}

TEST_F(TomtoForm, TakesAnyTypedText) {
    const FormDriver& f = open(kCrossing);
    for (const char* text : {"", "abc", "1e308", "-1e308", "2.6.6"}) {
        answer(text, text);
        EXPECT_TRUE(isWrong()) << text;
    }
    f.box("Text1").setContent(std::string(1'000'000, '9'));
    f.click("Command2");
    EXPECT_TRUE(isWrong());
}

TEST_F(TomtoForm, HasRoomForTheLongestNumbers) {
    const FormDriver& f = open({{-10, -10, 6, 7, -10, -4}, Implicit});
    f.click("Command7");
    f.click("Command10");
    EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    next({{-10, 8, 7, 5, 6, -3}, Explicit});
    f.click("Command7");
    f.click("Command5");
    EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    f.click("Command6");
    answer("11.11", "111.11");
    f.click("Command3");
    EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
}

}  // namespace
}  // namespace tavrune
