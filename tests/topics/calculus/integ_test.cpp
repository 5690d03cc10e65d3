#include "topics/calculus/integ.h"

#include <cmath>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "support/decimal_mark.h"
#include "support/fixed_texts.h"
#include "support/form_driver.h"
#include "support/looks.h"
#include "support/strokes.h"
#include "topics/calculus/integ_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FixedText;
using test::FormDriver;
using test::IntegDraws;
using test::ScriptedDraws;

using Names = std::vector<std::string>;

const test::StrokesIn kIn{{-1, 65, 8, -65}};
// Two axes, 30 ticks and 6 times 3 on Q, 14 times 3 on p.
constexpr std::size_t kStrokesOfAxes = 2 + 30 + 18 + 42;

/// 1Q²+2Q+3 from 1 to 4: 45.
constexpr IntegDraws kSquare{1, 2, 3, 4, 1, 1};
/// 1Q² from 1 to 2: 7/3.
constexpr IntegDraws kThirds{1, 2, 3, 2, 1, 2};
/// 3 from 1 to 3: 6.
constexpr IntegDraws kConstant{1, 2, 3, 3, 1, 11};
/// -3 from 1 to 3: -6.
constexpr IntegDraws kNegativeConstant{1, 2, 3, 3, 1, 12};
/// 2Q-3 from 1 to 4: 6.
constexpr IntegDraws kLine{1, 2, 3, 4, 1, 6};

const Names kUpperWithLetters{"Label53", "Label54", "Label55", "Label56", "Label57",
                              "Label58", "Label59", "Label60", "Label61"};
const Names kLowerWithLetters{"Label62", "Label63", "Label64", "Label65", "Label66"};
const Names kUpperWithNumbers{"Label77", "Label78", "Label79", "Label80", "Label81"};
const Names kLowerWithNumbers{"Label82", "Label83", "Label84", "Label85", "Label86"};
const Names kPrimitive{"Label94", "Label95", "Label96", "Label97", "Label98"};

Names operator+(Names one, const Names& other) {
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

std::vector<Stroke> curve(double a, double b, double c, double largest) {
    const auto p = [=](double q) { return a * q * q + b * q + c; };
    std::vector<Stroke> pieces;
    double y = 0;
    for (double q = -10; std::abs(y) <= largest; q += 0.05) {
        y = p(q);
        pieces.push_back(kIn.line(q, y, q + 0.05, p(q + 0.05)));
    }
    return pieces;
}

std::vector<Stroke> hatchOf(double a, double b, double c, int v, int w) {
    std::vector<Stroke> lines;
    double q = v;
    for (int i = 0; i < 100 * (w - v); ++i) {
        lines.push_back(kIn.line(q, 0, q, a * q * q + b * q + c, kBlue));
        q += 0.01;
    }
    return lines;
}

class IntegForm : public testing::Test {
protected:
    FormDriver& open(const IntegDraws& drawn) {
        draws.append(drawn.script());
        form = std::make_unique<FormDriver>(PageName::Integ, draws);
        return *form;
    }

    void nextExercise(const IntegDraws& drawn) {
        draws.append(drawn.script());
        form->click("Command8");
    }

    void answer(const std::string& typed) const {
        form->type("Text22", typed);
        form->click("Command4");
    }

    void giveAfterAWrongTry() const {
        answer("999");
        form->click("Command12");
    }

    [[nodiscard]] const GraphBox& graph() const { return form->find<GraphBox>("Picture1"); }

    [[nodiscard]] std::vector<Stroke> drawnAfterTheAxes() const {
        return test::strokesFrom(graph(), kStrokesOfAxes);
    }

    [[nodiscard]] std::string joined(const Names& labels) const {
        std::string text;
        for (const std::string& name : labels) {
            text += form->caption(name);
        }
        return text;
    }

    ScriptedDraws draws;
    std::unique_ptr<FormDriver> form;
};

TEST_F(IntegForm, HidesTheButtonOfTheNextExerciseUntilItIsOnScreen) {
    const FormDriver unshown = FormDriver::unshown(PageName::Integ, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(),
              "Tavrune - Integralregning - Bestemt integrale - Niveau 1");
    for (const char* hidden : {"Command8", "Command12", "Label10", "Label27", "Picture2"}) {
        EXPECT_FALSE(unshown.isShown(hidden)) << hidden;
    }
    for (const char* blank : {"Label6", "Label11", "Label12", "Label48", "Label87", "Label1", "Label44"}) {
        EXPECT_EQ(unshown.caption(blank), "") << blank;
    }
}

TEST_F(IntegForm, AsksForTheIntegralBetweenTheLimits) {
    const FormDriver& f = open(kSquare);
    const FixedText texts[]{{"Label201", "Beregn det bestemte integrale"},
                            {"Label202", "p="},
                            {"Label6", "1Q²+2Q+3"},
                            {"Label51", "∫"},
                            {"Label11", "4"},
                            {"Label12", "1"},
                            {"Label13", "p  dQ ="}};
    test::expectTexts(f, texts);
    for (const char* shown : {"Command4", "Command8", "Command1", "Text22", "Picture3"}) {
        EXPECT_TRUE(f.isShown(shown)) << shown;
    }
    for (const char* hidden : {"Command12", "Label10", "Label27", "Picture2"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_EQ(f.focus(), "Text22");
    EXPECT_EQ(f.box("Text22").content(), "");
    EXPECT_EQ(f.box("Text22").backColour(), kWhite);
}

TEST_F(IntegForm, HoldsTheLimitsAboveAndBelowEachSign) {
    const FormDriver& f = open(kSquare);
    const std::array<const char*, 3> signs[]{{"Label51", "Label11", "Label12"},
                                             {"Label242", "Label46", "Label47"}};
    for (const auto& [sign, upper, lower] : signs) {
        EXPECT_EQ(f.caption(upper), "4");
        EXPECT_EQ(f.caption(lower), "1");
        EXPECT_LT(f.label(upper).place().bottom(), f.label(lower).place().top());
        EXPECT_GT(f.label(upper).place().left(), f.label(sign).place().center().x());
        EXPECT_GT(f.label(lower).place().left(), f.label(sign).place().center().x());
    }
}

TEST_F(IntegForm, PrintsANegativeConstantAlone) {
    EXPECT_EQ(open(kNegativeConstant).caption("Label6"), "-3");
}

TEST_F(IntegForm, NamesTheAxesAndTheirTicks) {
    open(kSquare);
    std::multiset<std::string> captions;
    for (const Label* label : graph().findChildren<Label*>()) {
        captions.insert(label->caption());
    }
    EXPECT_EQ(captions, (std::multiset<std::string>{"60", "40", "20", "-20", "-40", "-60", "5", "p", "Q"}));
}

TEST_F(IntegForm, HasItsAxisNumbersBesideTheirTicks) {
    open(kSquare);
    for (const Label* label : graph().findChildren<Label*>()) {
        const QRectF place = label->place();
        const std::string text = label->caption();
        if (text == "5") {
            EXPECT_NEAR(place.center().x() / graph().width() * 9 - 1, 5, 0.1);
        } else if (text != "p" && text != "Q") {
            EXPECT_NEAR(65 - place.center().y() / graph().height() * 130, std::stod(text), 1) << text;
        }
    }
}

TEST_F(IntegForm, DrawsAxesThenDotsThenTheCurve) {
    open(kSquare);
    std::vector<Stroke> axes{kIn.line(0, 65, 0, -65), kIn.line(-15, 0, 15, 0)};
    for (int x = -15; x <= 14; ++x) {
        axes.push_back(kIn.point(x, 0.25));
    }
    for (const int x : {-15, -10, -5, 0, 5, 10}) {
        for (const double height : {0.5, 0.7, 0.9}) {
            axes.push_back(kIn.point(x, height));
        }
    }
    for (int y = -70; y <= 60; y += 10) {
        for (const double off : {0.05, 0.075, 0.1}) {
            axes.push_back(kIn.point(off, y));
        }
    }
    ASSERT_EQ(axes.size(), kStrokesOfAxes);
    EXPECT_EQ(graph().strokes(), axes + curve(1, 2, 3, 2000));
}

TEST_F(IntegForm, DrawsAFallingCurveDownToTwoThousandBelow) {
    open({4, 3, 2, 3, 1, 26});
    const std::vector<Stroke> pieces = drawnAfterTheAxes();
    EXPECT_EQ(pieces, curve(-4, -3, -2, 2000));
    EXPECT_LT(pieces.back().y1, -2000);
}

TEST_F(IntegForm, DrawsAConstantOrLinearFunctionAsOneLine) {
    open(kLine);
    EXPECT_EQ(drawnAfterTheAxes(), std::vector{kIn.line(-15, -33, 15, 27)});
    nextExercise(kNegativeConstant);
    EXPECT_EQ(drawnAfterTheAxes(), std::vector{kIn.line(-15, -3, 15, -3)});
}

TEST_F(IntegForm, DrawsItsAxesAndCurveOnceHoweverManyTriesAreThrownAway) {
    draws.append(IntegDraws{1, 1, 1, 2, 5, 1}.scriptOfLimits());
    draws.append(IntegDraws{4, 4, 4, 6, 5, 1}.script());
    const FormDriver& f = open(kLine);
    EXPECT_TRUE(draws.isUsedUp());
    EXPECT_EQ(f.caption("Label6"), "2Q-3");
    EXPECT_EQ(graph().strokes().size(), kStrokesOfAxes + 1);
}

TEST_F(IntegForm, IsSolvedByKeysAlone) {
    const FormDriver& f = open(kThirds);
    f.type("Text22", "2,33");
    EXPECT_EQ(f.box("Text22").content(), "2.33");
    f.press("Text22", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Command4");
    f.press("Command4", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("Label10"));
    EXPECT_EQ(f.focus(), "Command8");
    draws.append(kSquare.script());
    f.press("Command8", Qt::Key_Return);
    EXPECT_EQ(f.caption("Label6"), "1Q²+2Q+3");
    EXPECT_FALSE(f.isShown("Label10"));
    EXPECT_TRUE(f.isShown("Command4"));
    EXPECT_EQ(f.box("Text22").content(), "");
    EXPECT_EQ(f.focus(), "Text22");
}

TEST_F(IntegForm, HatchesTheAreaInBlueAHundredLinesAUnitWhenSolved) {
    const FormDriver& f = open(kSquare);
    answer("1");
    answer("45");
    EXPECT_TRUE(f.isShown("Label10"));
    for (const char* hidden : {"Label27", "Command4", "Command12"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_TRUE(f.isShown("Command1"));
    EXPECT_EQ(f.box("Text22").backColour(), kWhite);
    EXPECT_EQ(f.focus(), "Command8");
    EXPECT_EQ(drawnAfterTheAxes(), curve(1, 2, 3, 2000) + hatchOf(1, 2, 3, 1, 4));
    f.box("Text22").setFocus();
    f.press("Text22", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Text22");
}

TEST_F(IntegForm, HatchesAnAreaBelowTheAxisDownwards) {
    const FormDriver& f = open(kNegativeConstant);
    answer("-6");
    EXPECT_TRUE(f.isShown("Label10"));
    const std::vector<Stroke> lines = test::strokesFrom(graph(), kStrokesOfAxes + 1);
    EXPECT_EQ(lines, hatchOf(0, 0, -3, 1, 3));
    EXPECT_EQ(lines.front(), kIn.line(1, 0, 1, -3, kBlue));
    EXPECT_EQ(lines.size(), 200U);
}

TEST_F(IntegForm, HatchesOverTheLongestInterval) {
    open({1, 1, 1, 7, 1, 10});
    answer("24");
    EXPECT_EQ(test::strokesFrom(graph(), kStrokesOfAxes + 1), hatchOf(0, 1, 0, 1, 7));
}

TEST_F(IntegForm, MarksAWrongAnswerAndAsksAgain) {
    const FormDriver& f = open(kSquare);
    for (const char* typed : {"44", "", "abc", "45,0"}) {
        answer(typed);
        const bool isRight = std::string(typed) == "45,0";
        EXPECT_EQ(f.isShown("Label27"), !isRight) << typed;
        EXPECT_EQ(f.isShown("Command12"), !isRight) << typed;
        EXPECT_EQ(f.box("Text22").backColour(), isRight ? kWhite : kRed) << typed;
        EXPECT_EQ(f.focus(), isRight ? "Command8" : "Text22") << typed;
    }
}

TEST_F(IntegForm, DrawsNothingForAWrongAnswerAndWhitensWithTheNextExercise) {
    const FormDriver& f = open(kLine);
    answer("1");
    EXPECT_EQ(drawnAfterTheAxes().size(), 1U);
    nextExercise(kSquare);
    EXPECT_EQ(f.box("Text22").backColour(), kWhite);
    EXPECT_FALSE(f.isShown("Label27"));
    EXPECT_FALSE(f.isShown("Command12"));
}

TEST_F(IntegForm, TakesTheBandThatIsOpenBelowAndClosedAbove) {
    const FormDriver& f = open(kConstant);
    for (const char* wrong : {"5.99", "5.995", "6.0051"}) {
        answer(wrong);
        EXPECT_TRUE(f.isShown("Label27")) << wrong;
    }
    answer("6.005");
    EXPECT_TRUE(f.isShown("Label10"));
    nextExercise(kConstant);
    answer("5.9951");
    EXPECT_TRUE(f.isShown("Label10"));
}

TEST_F(IntegForm, GivesTheAnswerWithTheCurveAnewAndTheArea) {
    const DecimalMark danish(",");
    const FormDriver& f = open(kThirds);
    giveAfterAWrongTry();
    EXPECT_EQ(f.box("Text22").content(), "2,33");
    EXPECT_EQ(f.box("Text22").backColour(), kWhite);
    for (const char* hidden : {"Command4", "Command12", "Label10", "Label27"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_EQ(f.focus(), "Command8");
    // The curve drawn anew ends at a lower bound than the one of the task.
    EXPECT_EQ(drawnAfterTheAxes(), curve(1, 0, 0, 2000) + curve(1, 0, 0, 1000) + hatchOf(1, 0, 0, 1, 2));
    nextExercise(kLine);
    EXPECT_EQ(drawnAfterTheAxes().size(), 1U);
}

TEST_F(IntegForm, GivesTheAnswerWithTheLineAnewAndTheArea) {
    open(kLine);
    giveAfterAWrongTry();
    const std::vector<Stroke> line{kIn.line(-15, -33, 15, 27)};
    EXPECT_EQ(drawnAfterTheAxes(), line + line + hatchOf(0, 2, -3, 1, 4));
}

TEST_F(IntegForm, TakesAnyTypedText) {
    const FormDriver& f = open(kThirds);
    for (const std::string& typed :
         {std::string("1e308"), std::string("-1e999"), std::string("æ;"), std::string(100'000, '9')}) {
        f.box("Text22").setContent(typed);
        f.click("Command4");
        EXPECT_TRUE(f.isShown("Label27"));
        f.click("Command12");
        EXPECT_EQ(f.box("Text22").content(), "2.33");
        nextExercise(kThirds);
    }
}

TEST_F(IntegForm, ExplainsTheGeneralSolution) {
    const FormDriver& f = open(kSquare);
    f.click("Command1");
    const FixedText texts[]{
        {"Label221", "Generel løsning"},
        {"Label1", "p=aQ² + bQ + c   =>   P= (a/3)Q³ + (b/2)Q² + (c/1)Q + k"},
        {"Label223", "∫"},
        {"Label224", "w"},
        {"Label225", "v"},
        {"Label226", "p  dQ ="},
        {"Label227", " P(w)-P(v)"},
        {"Label44", "((a/3)w³ + (b/2)w² +(c/1)w) - ((a/3)v³ + (b/2)v²  +  (c/1)v)"},
        {"Label231", "Aktuel løsning"},
        {"Label203", "p="},
        {"Label204", "   =>   P="},
        {"Label232", "Det bestemte integrale findes, her udtrykt ved v og w."},
        {"Label233", "∫"},
        {"Label234", "w"},
        {"Label235", "v"},
        {"Label31", "²"},
        {"Label33", " dQ ="},
        {"Label241", "Nu findes det bestemte integrale, hvor øvre og nedre værdi indsættes."},
        {"Label242", "∫"},
        {"Label205", " dQ ="},
        {"Command2", "Vis"},
        {"Command3", "&Luk"}};
    test::expectTexts(f, texts);
    EXPECT_EQ(f.caption("Label222")
                  .rfind("Funktionen integreres ledvis ved at dividere ledets koefficient med den "
                         "oprindelige eksponent +1 og lægge 1 til i eksponenten. Herved fås "
                         "det ubestemte integrale.",
                         0),
              0U);
}

TEST_F(IntegForm, WorksTheSolutionOutWithItsNumbers) {
    const DecimalMark danish(",");
    const FormDriver& f = open({2, 3, 5, 3, 2, 20});
    f.click("Command1");
    EXPECT_EQ(f.caption("Label48"), "-2Q²+3Q-5");
    EXPECT_EQ(joined(kPrimitive), "(-2/3)·Q³+(3/2)·Q²-5·Q");
    EXPECT_EQ(joined({"Label30", "Label31", "Label32"}), "(-2Q²+3Q -5)");
    EXPECT_EQ(joined(kUpperWithLetters), "((-2/3)·w³+(3/2)·w²-5·w)");
    EXPECT_EQ(joined(kLowerWithLetters), "- ((-2/3)·v³+(3/2)·v²-5·v)");
    EXPECT_EQ(f.caption("Label72"), "(-2Q²+3Q-5)");
    EXPECT_EQ(joined(kUpperWithNumbers), "((-2/3)·3³+(3/2)·3²-5·3)");
    EXPECT_EQ(joined(kLowerWithNumbers), "- ((-2/3)·2³+(3/2)·2²-5·2)");
    EXPECT_EQ(f.caption("Label87"), "= -10,17");
    EXPECT_EQ(f.caption("Label95"), "³");
    EXPECT_EQ(f.caption("Label97"), "²");
}

TEST_F(IntegForm, PutsAConstantAloneInTheMiddleOfTheDifference) {
    const FormDriver& f = open(kNegativeConstant);
    f.click("Command1");
    const std::map<std::string, std::string> filled{
        {"Label98", "-3·Q"},     {"Label61", "((-3)·w)"},   {"Label62", "- ((-3)·v)"},
        {"Label81", "((-3)·3)"}, {"Label82", "- ((-3)·1)"},
    };
    for (const std::string& name :
         kPrimitive + kUpperWithLetters + kLowerWithLetters + kUpperWithNumbers + kLowerWithNumbers) {
        EXPECT_EQ(f.caption(name), filled.contains(name) ? filled.at(name) : "") << name;
    }
    nextExercise(kConstant);
    EXPECT_EQ(f.caption("Label61"), "(3·w)");
    EXPECT_EQ(f.caption("Label62"), "-(3·v)");
    EXPECT_EQ(f.caption("Label81"), "(3·3)");
    EXPECT_EQ(f.caption("Label82"), "-(3·1)");
    EXPECT_EQ(f.caption("Label98"), "3·Q");
}

TEST_F(IntegForm, ShowsARaisedTwoInTheIntegrandForASquareOnly) {
    const FormDriver& f = open(kLine);
    f.click("Command1");
    EXPECT_EQ(f.caption("Label30"), "(2Q -3)");
    EXPECT_FALSE(f.isShown("Label31"));
    EXPECT_FALSE(f.isShown("Label32"));
    nextExercise(kThirds);
    f.click("Command1");
    EXPECT_EQ(f.caption("Label30"), "(1Q");
    EXPECT_TRUE(f.isShown("Label31"));
    EXPECT_TRUE(f.isShown("Label32"));
    EXPECT_EQ(f.caption("Label32"), ")");
}

TEST_F(IntegForm, BuildsTheFirstIntegrandAndTheGeneralFormulasWhenHelpOpens) {
    const FormDriver& f = open(kLine);
    EXPECT_EQ(f.caption("Label1"), "");
    EXPECT_EQ(f.caption("Label44"), "");
    EXPECT_EQ(f.caption("Label30"), "");
    f.click("Command1");
    nextExercise(kSquare);
    EXPECT_EQ(f.caption("Label30"), "(2Q -3)");
    EXPECT_EQ(f.caption("Label48"), "1Q²+2Q+3");
    f.click("Command1");
    EXPECT_EQ(f.caption("Label30"), "(1Q");
}

TEST_F(IntegForm, OpensItsHelpCoveredUncoversItAndCoversItAgain) {
    const FormDriver& f = open(kSquare);
    f.click("Command1");
    EXPECT_TRUE(f.isShown("Picture2"));
    EXPECT_TRUE(f.isShown("Picture3"));
    EXPECT_EQ(f.focus(), "Command2");
    f.press("Command2", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("Picture3"));
    EXPECT_EQ(f.focus(), "Command3");
    f.press("Command3", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("Picture2"));
    EXPECT_TRUE(f.isShown("Picture3"));
}

TEST_F(IntegForm, CoversItsHelpAgainWithTheNextExercise) {
    const FormDriver& f = open(kSquare);
    f.click("Command1");
    f.click("Command2");
    nextExercise(kLine);
    EXPECT_FALSE(f.isShown("Picture2"));
    EXPECT_TRUE(f.isShown("Picture3"));
}

TEST_F(IntegForm, LeavesThePanelOpenWhileTheExerciseGoesOn) {
    const FormDriver& f = open(kSquare);
    f.click("Command1");
    giveAfterAWrongTry();
    EXPECT_TRUE(f.isShown("Picture2"));
    EXPECT_EQ(f.box("Text22").content(), "45");
    f.click("Command3");
    f.click("Command1");
    EXPECT_TRUE(f.isShown("Picture2"));
}

TEST_F(IntegForm, SetsEachRowOfItsHelpSideBySide) {
    const FormDriver& f = open(kSquare);
    const Names rows[]{
        Names{"Label203", "Label48", "Label204"} + kPrimitive,
        {"Label30", "Label31", "Label32", "Label33"},
        kUpperWithLetters + kLowerWithLetters,
        {"Label72", "Label205"},
        kUpperWithNumbers + kLowerWithNumbers,
    };
    for (int shape = 1; shape <= 26; ++shape) {
        nextExercise({2, 3, 4, 5, 2, shape});
        f.click("Command1");
        for (const Names& row : rows) {
            double next = f.label(row.front()).place().left();
            const double top = f.label(row.front()).place().top();
            for (const std::string& name : row) {
                const Label& label = f.label(name);
                ASSERT_EQ(label.place().left(), next) << name << " of shape " << shape;
                ASSERT_EQ(label.place().top(), top) << name;
                ASSERT_EQ(label.place().width(), label.textWidth()) << name;
                next = label.place().right();
            }
        }
    }
}

TEST_F(IntegForm, CoversTheRowsWithTheNumbersOfTheLimitsAndNothingElse) {
    const FormDriver& f = open({2, 4, 5, 7, 4, 26});
    const Names covered =
        Names{"Label241", "Label242", "Label46", "Label47", "Label72", "Label205", "Label87"} +
        kUpperWithNumbers + kLowerWithNumbers;
    const std::set<std::string> solution(covered.begin(), covered.end());
    const auto& cover = f.find<Panel>("Picture3");
    EXPECT_EQ(cover.backColour(), kWhite);
    const QObjectList& siblings = cover.parent()->children();
    f.click("Command1");
    std::size_t found = 0;
    for (const QWidget* widget : f.find("Picture2").findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const std::string name = widget->objectName().toStdString();
        if (solution.contains(name)) {
            ++found;
            EXPECT_TRUE(cover.geometry().contains(widget->geometry())) << name;
            EXPECT_GT(siblings.indexOf(&cover), siblings.indexOf(widget)) << name;
        } else if (widget != &cover) {
            EXPECT_FALSE(cover.geometry().intersects(widget->geometry())) << name;
        }
    }
    EXPECT_EQ(found, solution.size());
}

TEST_F(IntegForm, HasRoomForTheLongestNumbersOfEveryShape) {
    const DecimalMark danish(",");
    const FormDriver& f = open(kSquare);
    for (int shape = 1; shape <= 26; ++shape) {
        // Where all signs are alike p is beyond 60 sooner.
        nextExercise({shape == 2 || shape == 23 ? 3 : 2, 4, 5, 7, 4, shape});
        f.click("Command1");
        f.click("Command2");
        ASSERT_EQ(test::flawsOf(f.page()), std::vector<std::string>{}) << shape;
    }
}

}  // namespace
}  // namespace tavrune
