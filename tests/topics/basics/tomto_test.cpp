#include "topics/basics/tomto.h"

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/form_driver.h"
#include "support/looks.h"
#include "support/scripted_draws.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::FormDriver;
using test::ScriptedDraws;

enum Kind { Explicit = 0, Implicit = 1 };

const QColor kGreen(0, 130, 0);
const QColor kBlue(0, 0, 255);
constexpr GraphScale kToTen{0, 10, 10, 0};
constexpr GraphScale kToAHundred{0, 100, 100, 0};

/// One exercise: the coefficients in the order in which they are drawn, and the kind.
struct Task {
    int a1, c1, b1, a2, c2, b2;
    Kind kind;
};

constexpr Task kCrossing{-2, 1, 8, 3, 1, -5, Explicit};             // (2.6; 2.8)
constexpr Task kFarCrossing{1, 1, 1, 2, 1, -10, Explicit};          // (11; 12)
constexpr Task kFarInQOnly{-1, 1, 9, 1, 1, -8, Explicit};           // (8.5; 0.5)
constexpr Task kParallel{4, 1, 3, 4, 2, 8, Explicit};               // needs an old P other than 0
constexpr Task kCoinciding{4, 1, 3, 4, 2, 3, Explicit};             // the same
constexpr Task kCrossingOfThree{-9, -10, 9, -10, -9, 9, Implicit};  // (0.47; 0.47)
constexpr Task kParallelOfThree{2, 3, 4, 4, 6, 5, Implicit};
constexpr Task kCoincidingOfThree{2, 3, 4, 4, 6, -4, Implicit};

class TomtoForm : public testing::Test {
protected:
    void script(const Task& t) {
        const auto coefficient = [](int value) { return cellOf(value + 10, 20); };
        draws.append({coefficient(t.a1), coefficient(t.c1), coefficient(t.b1), coefficient(t.a2),
                      coefficient(t.c2), coefficient(t.b2), cellOf(t.kind, 2)});
    }

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

Stroke line(float y1, float x2, float y2, const QColor& colour, const GraphScale& scale) {
    return {Stroke::Kind::Line, 0, y1, x2, y2, colour, LineStyle::Solid, 1, scale};
}

Stroke point(double x, double y, const GraphScale& scale) {
    const auto sx = static_cast<float>(x);
    const auto sy = static_cast<float>(y);
    return {Stroke::Kind::Point, sx, sy, sx, sy, kBlue, LineStyle::Solid, 3, scale};
}

TEST_F(TomtoForm, StandsReadyBeforeItsFirstTick) {
    const FormDriver f = FormDriver::unshown(PageName::Tomto, draws);
    EXPECT_EQ(f.page().windowTitle().toStdString(), "Tavrune - 2 ligninger med 2 ubekendte");
    EXPECT_EQ(f.caption("Label52"), "Bestem det eventuelle skæringspunkt mellem de to rette linier:");
    EXPECT_EQ(f.caption("Label2") + f.caption("Label3"), "");
    EXPECT_EQ(f.find<Frame>("Frame1").caption(), "Linierne");
    EXPECT_EQ(f.option("Option1").caption(), "skærer hinanden");
    EXPECT_EQ(f.option("Option2").caption(), "er parallelle");
    EXPECT_EQ(f.option("Option3").caption(), "er sammenfaldende");
    EXPECT_EQ(f.caption("Label4"), "Skæringspunktets koordinater: (Q;P) =");
    EXPECT_EQ(f.caption("Label10") + f.caption("Label11") + f.caption("Label12"), "(;)");
    EXPECT_EQ(f.caption("Label8") + f.caption("Label9"), "00");
    EXPECT_EQ(f.caption("Label13") + f.caption("Label14"), "PQ");
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
    for (int i = 17; i <= 26; ++i) {
        const auto& tick = f.find<LineControl>("Line" + std::to_string(i));
        EXPECT_EQ(tick.place().right(), box.left());
    }
    for (int i = 0; i <= 10; ++i) {
        const auto& tick = f.find<LineControl>("Line27_" + std::to_string(i));
        EXPECT_EQ(tick.place().top(), box.bottom());
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
    EXPECT_EQ(graph().scale(), kToTen);
    EXPECT_TRUE(strokes().empty());
}

TEST_F(TomtoForm, ShowsLinesOfThreeTerms) {
    const FormDriver& f = open(kCrossingOfThree);
    EXPECT_EQ(f.caption("Label2"), "-10P - 9Q + 9 =  0");
    EXPECT_EQ(f.caption("Label3"), "-9P - 10Q + 9 =  0");
}

TEST_F(TomtoForm, OpensWithItsOwnReplacementsForZeros) {
    const FormDriver& f = open({0, 0, 0, 0, 0, 0, Explicit});
    EXPECT_EQ(f.caption("Label2"), "l: P = 3Q + 2");
    EXPECT_EQ(f.caption("Label3"), "m: P = 1Q + 5");
    next({0, 0, 0, 0, 0, 0, Explicit});
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
    EXPECT_EQ(strokes(), (std::vector<Stroke>{line(8, 10, -12, kGreen, kToTen),
                                              line(-5, 10, 25, kGreen, kToTen), point(2.6, 2.8, kToTen)}));
    graph().PSet(1, 1);
    EXPECT_EQ(strokes().back().width, 1) << "the width goes back";
}

TEST_F(TomtoForm, DrawsLinesOfThreeTermsInBlackOnceSolved) {
    open(kCrossingOfThree);
    answer("0.47", "0.47");
    ASSERT_TRUE(isRight());
    EXPECT_EQ(strokes(), (std::vector<Stroke>{line(0.9F, 10, 10 * -0.9F + 0.9F, kBlack, kToTen),
                                              line(1, 10, 10 * (10.0F / -9) + 1, kBlack, kToTen),
                                              point(0.47, 0.47, kToTen)}));
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
              (std::vector<Stroke>{line(3, 10, 43, kGreen, kToTen), line(8, 10, 48, kGreen, kToTen)}));
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
              (std::vector<Stroke>{line(3, 10, 43, kGreen, kToTen), line(3, 10, 43, kGreen, kToTen)}));
}

TEST_F(TomtoForm, CountsParallelLinesOfThreeTermsWithOppositeConstantsAsCoinciding) {
    open(kCoincidingOfThree);
    choose("Option2");
    EXPECT_TRUE(isWrong());
    choose("Option3");
    EXPECT_TRUE(isRight());
}

TEST_F(TomtoForm, CountsTheSameLineOfThreeTermsTwiceAsParallel) {
    open({2, 3, 4, 2, 3, 4, Implicit});
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
    EXPECT_EQ(graph().scale(), kToAHundred);
    answer("11", "12");
    EXPECT_TRUE(isRight());
    EXPECT_EQ(strokes(),
              (std::vector<Stroke>{line(1, 100, 101, kGreen, kToAHundred),
                                   line(-10, 100, 190, kGreen, kToAHundred), point(11, 12, kToAHundred)}));
}

TEST_F(TomtoForm, StaysAtTenForACrossingWithinTen) {
    const FormDriver& f = open(kFarInQOnly);
    answer("8.5", "0.5");
    EXPECT_TRUE(isRight());
    EXPECT_EQ(f.caption("Label6"), "5");
    EXPECT_EQ(graph().scale(), kToTen);
}

TEST_F(TomtoForm, LeavesTheNumbersOnTheAxesUntilTheNextJudging) {
    const FormDriver& f = open(kFarCrossing);
    answer("11", "12");
    next(kCrossing);
    EXPECT_EQ(graph().scale(), kToTen);
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
    EXPECT_EQ(strokes(), (std::vector<Stroke>{line(8, 10, -12, kGreen, kToTen),
                                              line(-5, 10, 25, kGreen, kToTen), point(2.6, 2.8, kToTen)}));
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
    EXPECT_EQ(strokes()[0], line(0.9F, 10, 10 * -0.9F + 0.9F, kGreen, kToTen));
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
    EXPECT_EQ(graph().scale(), kToTen);
    EXPECT_EQ(strokes(), (std::vector<Stroke>{line(1, 100, 101, kGreen, kToTen),
                                              line(-10, 100, 190, kGreen, kToTen), point(11, 12, kToTen)}));
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
    EXPECT_EQ(f.caption("Label15"), "De to linier er af typen P = a1*Q + b1");
    EXPECT_EQ(f.caption("Label16"), "P = a2*Q + b2");
    EXPECT_EQ(
        f.caption("D"),
        "Du skal nu finde ud af om de to linier er sammenfaldende, parallele eller om de skærer hinanden. "
        "I sidste tilfælde skal du finde skæringspunktets koordinater");
    EXPECT_EQ(f.caption("Label17"), "Find skæringspunktets koordinater");
    EXPECT_EQ(f.caption("Label29"), "a1Q + b1 = a2Q + b2 =>");
    EXPECT_EQ(f.caption("Label30"), "(a1 - a2) * Q = b2 - b1 =>");
    EXPECT_EQ(f.caption("Label31"), "Q = (b2 - b1)/(a1 - a2)");
    EXPECT_EQ(f.caption("Label32"), "P = a1Q + b1");
    EXPECT_FALSE(f.isShown("Label34"));
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
    const std::pair<const char*, const char*> captions[] = {
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
         "Q Isoleres. Indsæt værdier i udtrykket for Q. Sæt derefter den fundne Q-værdi ind i ligning I "
         "eller "
         "II og løs ligningen mht. P"},
        {"Label54", "Q = "},
    };
    for (const auto& [label, caption] : captions) {
        EXPECT_EQ(f.caption(label), caption);
    }
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
    next({1, 1, -3, -2, 1, -2, Implicit});
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
    const FormDriver& f = open({-10, -10, 6, 7, -10, -4, Implicit});
    f.click("Command7");
    f.click("Command10");
    EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    next({-10, 8, 7, 5, 6, -3, Explicit});
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
