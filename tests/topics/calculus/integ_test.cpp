#include "topics/calculus/integ.h"

#include <cmath>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/calculus/integ_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FixedText;
using test::FormDriver;
using test::IntegDraws;

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

const Names kUpperWithLetters{"workedLettersUpperCubicTerm", "workedLettersUpperCube",
                              "workedLettersUpperQuadraticTerm", "workedLettersUpperSquare",
                              "workedLettersUpperLinearTerm"};
const Names kLowerWithLetters{"workedLettersLowerCubicTerm", "workedLettersLowerCube",
                              "workedLettersLowerQuadraticTerm", "workedLettersLowerSquare",
                              "workedLettersLowerLinearTerm"};
const Names kUpperWithNumbers{"workedNumbersUpperCubicTerm", "workedNumbersUpperCube",
                              "workedNumbersUpperQuadraticTerm", "workedNumbersUpperSquare",
                              "workedNumbersUpperLinearTerm"};
const Names kLowerWithNumbers{"workedNumbersLowerCubicTerm", "workedNumbersLowerCube",
                              "workedNumbersLowerQuadraticTerm", "workedNumbersLowerSquare",
                              "workedNumbersLowerLinearTerm"};
const Names kPrimitive{"workedPrimitiveCubicTerm", "workedPrimitiveCube", "workedPrimitiveQuadraticTerm",
                       "workedPrimitiveSquare", "workedPrimitiveLinearTerm"};

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

test::Script scriptOf(const IntegDraws& drawn) { return drawn.script(); }

class IntegForm : public test::ScriptedForm<const IntegDraws&> {
protected:
    IntegForm() : ScriptedForm(PageName::Integ, scriptOf) {}

    void answer(const std::string& typed) const {
        form->type("integral", typed);
        form->click("ok");
    }

    void giveAfterAWrongTry() const {
        answer("999");
        form->click("giveAnswer");
    }

    [[nodiscard]] std::vector<Stroke> drawnAfterTheAxes() const {
        return test::strokesFrom(graph(), kStrokesOfAxes);
    }
};

TEST_F(IntegForm, HidesTheButtonOfTheNextExerciseUntilItIsOnScreen) {
    const FormDriver unshown = FormDriver::unshown(PageName::Integ, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(),
              "Tavrune - Integralregning - Bestemt integrale - Niveau 1");
    test::expectHidden(unshown, {"newExercise", "giveAnswer", "right", "wrong", "helpPanel"});
    test::expectBlank(unshown, {"givenFunction", "upperLimit", "lowerLimit", "workedFunction", "workedResult",
                                "generalPrimitive", "generalResult"});
}

TEST_F(IntegForm, AsksForTheIntegralBetweenTheLimits) {
    const FormDriver& f = open(kSquare);
    const FixedText texts[]{{"task", "Beregn det bestemte integrale"},
                            {"priceEquals", "p="},
                            {"givenFunction", "1Q²+2Q+3"},
                            {"integralSign", "∫"},
                            {"upperLimit", "4"},
                            {"lowerLimit", "1"},
                            {"integrandEquals", "p  dQ ="}};
    test::expectTexts(f, texts);
    test::expectShown(f, {"ok", "newExercise", "help", "integral", "workedSolutionCover"});
    test::expectHidden(f, {"giveAnswer", "right", "wrong", "helpPanel"});
    EXPECT_EQ(f.focus(), "integral");
    EXPECT_EQ(f.box("integral").content(), "");
    EXPECT_EQ(f.box("integral").backColour(), kWhite);
}

TEST_F(IntegForm, HoldsTheLimitsAboveAndBelowEachSign) {
    const FormDriver& f = open(kSquare);
    const std::array<const char*, 3> signs[]{
        {"integralSign", "upperLimit", "lowerLimit"},
        {"workedNumbersIntegralSign", "workedNumbersUpperLimit", "workedNumbersLowerLimit"}};
    for (const auto& [sign, upper, lower] : signs) {
        EXPECT_EQ(f.caption(upper), "4");
        EXPECT_EQ(f.caption(lower), "1");
        EXPECT_LT(f.label(upper).place().bottom(), f.label(lower).place().top());
        EXPECT_GT(f.label(upper).place().left(), f.label(sign).place().center().x());
        EXPECT_GT(f.label(lower).place().left(), f.label(sign).place().center().x());
    }
}

TEST_F(IntegForm, PrintsANegativeConstantAlone) {
    EXPECT_EQ(open(kNegativeConstant).caption("givenFunction"), "-3");
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
    next(kNegativeConstant);
    EXPECT_EQ(drawnAfterTheAxes(), std::vector{kIn.line(-15, -3, 15, -3)});
}

TEST_F(IntegForm, DrawsItsAxesAndCurveOnceHoweverManyTriesAreThrownAway) {
    draws.append(IntegDraws{1, 1, 1, 2, 5, 1}.scriptOfLimits());
    draws.append(IntegDraws{4, 4, 4, 6, 5, 1}.script());
    const FormDriver& f = open(kLine);
    EXPECT_TRUE(draws.isUsedUp());
    EXPECT_EQ(f.caption("givenFunction"), "2Q-3");
    EXPECT_EQ(graph().strokes().size(), kStrokesOfAxes + 1);
}

TEST_F(IntegForm, IsSolvedByKeysAlone) {
    const FormDriver& f = open(kThirds);
    f.type("integral", "2,33");
    EXPECT_EQ(f.box("integral").content(), "2.33");
    f.press("integral", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "ok");
    f.press("ok", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(f.focus(), "newExercise");
    draws.append(kSquare.script());
    f.press("newExercise", Qt::Key_Return);
    EXPECT_EQ(f.caption("givenFunction"), "1Q²+2Q+3");
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_FALSE(f.isShown("right"));
    EXPECT_EQ(f.box("integral").content(), "");
    EXPECT_EQ(f.focus(), "integral");
}

TEST_F(IntegForm, HatchesTheAreaInBlueAHundredLinesAUnitWhenSolved) {
    const FormDriver& f = open(kSquare);
    answer("1");
    answer("45");
    test::expectSolved(f);
    EXPECT_TRUE(f.isShown("help"));
    EXPECT_EQ(drawnAfterTheAxes(), curve(1, 2, 3, 2000) + hatchOf(1, 2, 3, 1, 4));
    f.box("integral").setFocus();
    f.press("integral", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "integral");
}

TEST_F(IntegForm, HatchesAnAreaBelowTheAxisDownwards) {
    const FormDriver& f = open(kNegativeConstant);
    answer("-6");
    EXPECT_TRUE(f.isShown("right"));
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
        EXPECT_EQ(f.isShown("wrong"), !isRight) << typed;
        EXPECT_EQ(f.isShown("giveAnswer"), !isRight) << typed;
        EXPECT_EQ(f.box("integral").backColour(), isRight ? kWhite : kRed) << typed;
        EXPECT_EQ(f.focus(), isRight ? "newExercise" : "integral") << typed;
    }
}

TEST_F(IntegForm, DrawsNothingForAWrongAnswerAndWhitensWithTheNextExercise) {
    const FormDriver& f = open(kLine);
    answer("1");
    EXPECT_EQ(drawnAfterTheAxes().size(), 1U);
    next(kSquare);
    EXPECT_EQ(f.box("integral").backColour(), kWhite);
    test::expectHidden(f, {"wrong", "giveAnswer"});
}

TEST_F(IntegForm, TakesTheBandThatIsOpenBelowAndClosedAbove) {
    const FormDriver& f = open(kConstant);
    for (const char* wrong : {"5.99", "5.995", "6.0051"}) {
        answer(wrong);
        EXPECT_TRUE(f.isShown("wrong")) << wrong;
    }
    answer("6.005");
    EXPECT_TRUE(f.isShown("right"));
    next(kConstant);
    answer("5.9951");
    EXPECT_TRUE(f.isShown("right"));
}

TEST_F(IntegForm, GivesTheAnswerWithTheCurveAnewAndTheArea) {
    const DecimalMark danish(",");
    const FormDriver& f = open(kThirds);
    giveAfterAWrongTry();
    EXPECT_EQ(f.box("integral").content(), "2,33");
    test::expectGiven(f);
    // The curve drawn anew ends at a lower bound than the one of the task.
    EXPECT_EQ(drawnAfterTheAxes(), curve(1, 0, 0, 2000) + curve(1, 0, 0, 1000) + hatchOf(1, 0, 0, 1, 2));
    next(kLine);
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
    for (const std::string& typed : test::kRoughTexts) {
        f.box("integral").setContent(typed);
        f.click("ok");
        EXPECT_TRUE(f.isShown("wrong"));
        f.click("giveAnswer");
        EXPECT_EQ(f.box("integral").content(), "2.33");
        next(kThirds);
    }
}

TEST_F(IntegForm, ExplainsTheGeneralSolution) {
    const FormDriver& f = open(kSquare);
    f.click("help");
    const FixedText texts[]{
        {"generalHeading", "Generel løsning"},
        {"generalPrimitive", "p=aQ² + bQ + c   =>   P= (a/3)Q³ + (b/2)Q² + (c/1)Q + k"},
        {"generalIntegralSign", "∫"},
        {"generalUpperLimit", "w"},
        {"generalLowerLimit", "v"},
        {"generalIntegrandEquals", "p  dQ ="},
        {"generalPrimitiveDifference", " P(w)-P(v)"},
        {"generalResult", "((a/3)w³ + (b/2)w² +(c/1)w) - ((a/3)v³ + (b/2)v²  +  (c/1)v)"},
        {"workedHeading", "Aktuel løsning"},
        {"workedPriceEquals", "p="},
        {"workedPrimitiveEquals", "   =>   P="},
        {"workedLettersText", "Det bestemte integrale findes, her udtrykt ved v og w."},
        {"workedLettersIntegralSign", "∫"},
        {"workedLettersUpperLimit", "w"},
        {"workedLettersLowerLimit", "v"},
        {"workedLettersIntegrandSquare", "²"},
        {"workedLettersDifferentialEquals", " dQ ="},
        {"workedNumbersText", "Nu findes det bestemte integrale, hvor øvre og nedre værdi indsættes."},
        {"workedNumbersIntegralSign", "∫"},
        {"workedNumbersDifferentialEquals", " dQ ="},
        {"showWorkedSolution", "Vis"},
        {"closeHelp", "&Luk"}};
    test::expectTexts(f, texts);
    EXPECT_EQ(f.caption("generalText")
                  .rfind("Funktionen integreres ledvis ved at dividere ledets koefficient med den "
                         "oprindelige eksponent +1 og lægge 1 til i eksponenten. Herved fås "
                         "det ubestemte integrale.",
                         0),
              0U);
}

TEST_F(IntegForm, WorksTheSolutionOutWithItsNumbers) {
    const DecimalMark danish(",");
    const FormDriver& f = open({2, 3, 5, 3, 2, 20});
    f.click("help");
    EXPECT_EQ(f.caption("workedFunction"), "-2Q²+3Q-5");
    EXPECT_EQ(joined(kPrimitive), "(-2/3)·Q³+(3/2)·Q²-5·Q");
    EXPECT_EQ(
        joined({"workedLettersIntegrandHead", "workedLettersIntegrandSquare", "workedLettersIntegrandTail"}),
        "(-2Q²+3Q -5)");
    EXPECT_EQ(joined(kUpperWithLetters), "((-2/3)·w³+(3/2)·w²-5·w)");
    EXPECT_EQ(joined(kLowerWithLetters), "- ((-2/3)·v³+(3/2)·v²-5·v)");
    EXPECT_EQ(f.caption("workedNumbersIntegrand"), "(-2Q²+3Q-5)");
    EXPECT_EQ(joined(kUpperWithNumbers), "((-2/3)·3³+(3/2)·3²-5·3)");
    EXPECT_EQ(joined(kLowerWithNumbers), "- ((-2/3)·2³+(3/2)·2²-5·2)");
    test::expectTexts(
        f, {{"workedResult", "= -10,17"}, {"workedPrimitiveCube", "³"}, {"workedPrimitiveSquare", "²"}});
}

TEST_F(IntegForm, PutsAConstantAloneInTheMiddleOfTheDifference) {
    const FormDriver& f = open(kNegativeConstant);
    f.click("help");
    const std::map<std::string, std::string> filled{
        {"workedPrimitiveLinearTerm", "-3·Q"},         {"workedLettersUpperLinearTerm", "((-3)·w)"},
        {"workedLettersLowerCubicTerm", "- ((-3)·v)"}, {"workedNumbersUpperLinearTerm", "((-3)·3)"},
        {"workedNumbersLowerCubicTerm", "- ((-3)·1)"},
    };
    for (const std::string& name :
         kPrimitive + kUpperWithLetters + kLowerWithLetters + kUpperWithNumbers + kLowerWithNumbers) {
        EXPECT_EQ(f.caption(name), filled.contains(name) ? filled.at(name) : "") << name;
    }
    next(kConstant);
    test::expectTexts(f, {{"workedLettersUpperLinearTerm", "(3·w)"},
                          {"workedLettersLowerCubicTerm", "-(3·v)"},
                          {"workedNumbersUpperLinearTerm", "(3·3)"},
                          {"workedNumbersLowerCubicTerm", "-(3·1)"},
                          {"workedPrimitiveLinearTerm", "3·Q"}});
}

TEST_F(IntegForm, ShowsARaisedTwoInTheIntegrandForASquareOnly) {
    const FormDriver& f = open(kLine);
    f.click("help");
    EXPECT_EQ(f.caption("workedLettersIntegrandHead"), "(2Q -3)");
    test::expectHidden(f, {"workedLettersIntegrandSquare", "workedLettersIntegrandTail"});
    next(kThirds);
    f.click("help");
    EXPECT_EQ(f.caption("workedLettersIntegrandHead"), "(1Q");
    test::expectShown(f, {"workedLettersIntegrandSquare", "workedLettersIntegrandTail"});
    EXPECT_EQ(f.caption("workedLettersIntegrandTail"), ")");
}

TEST_F(IntegForm, BuildsTheFirstIntegrandAndTheGeneralFormulasWhenHelpOpens) {
    const FormDriver& f = open(kLine);
    test::expectTexts(f,
                      {{"generalPrimitive", ""}, {"generalResult", ""}, {"workedLettersIntegrandHead", ""}});
    f.click("help");
    next(kSquare);
    test::expectTexts(f, {{"workedLettersIntegrandHead", "(2Q -3)"}, {"workedFunction", "1Q²+2Q+3"}});
    f.click("help");
    EXPECT_EQ(f.caption("workedLettersIntegrandHead"), "(1Q");
}

TEST_F(IntegForm, OpensItsHelpCoveredUncoversItAndCoversItAgain) {
    const FormDriver& f = open(kSquare);
    f.click("help");
    test::expectShown(f, {"helpPanel", "workedSolutionCover"});
    EXPECT_EQ(f.focus(), "showWorkedSolution");
    f.press("showWorkedSolution", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("workedSolutionCover"));
    EXPECT_EQ(f.focus(), "closeHelp");
    f.press("closeHelp", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("workedSolutionCover"));
    EXPECT_FALSE(f.isShown("helpPanel"));
}

TEST_F(IntegForm, CoversItsHelpAgainWithTheNextExercise) {
    const FormDriver& f = open(kSquare);
    f.click("help", "showWorkedSolution");
    next(kLine);
    EXPECT_TRUE(f.isShown("workedSolutionCover"));
    EXPECT_FALSE(f.isShown("helpPanel"));
}

TEST_F(IntegForm, LeavesThePanelOpenWhileTheExerciseGoesOn) {
    const FormDriver& f = open(kSquare);
    f.click("help");
    giveAfterAWrongTry();
    EXPECT_TRUE(f.isShown("helpPanel"));
    EXPECT_EQ(f.box("integral").content(), "45");
    f.click("closeHelp", "help");
    EXPECT_TRUE(f.isShown("helpPanel"));
}

TEST_F(IntegForm, SetsEachRowOfItsHelpSideBySide) {
    const FormDriver& f = open(kSquare);
    const Names rows[]{
        Names{"workedPriceEquals", "workedFunction", "workedPrimitiveEquals"} + kPrimitive,
        {"workedLettersIntegrandHead", "workedLettersIntegrandSquare", "workedLettersIntegrandTail",
         "workedLettersDifferentialEquals"},
        kUpperWithLetters + kLowerWithLetters,
        {"workedNumbersIntegrand", "workedNumbersDifferentialEquals"},
        kUpperWithNumbers + kLowerWithNumbers,
    };
    for (int shape = 1; shape <= 26; ++shape) {
        next({2, 3, 4, 5, 2, shape});
        f.click("help");
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
    const Names covered = Names{"workedNumbersText",
                                "workedNumbersIntegralSign",
                                "workedNumbersUpperLimit",
                                "workedNumbersLowerLimit",
                                "workedNumbersIntegrand",
                                "workedNumbersDifferentialEquals",
                                "workedResult"} +
                          kUpperWithNumbers + kLowerWithNumbers;
    const std::set<std::string> solution(covered.begin(), covered.end());
    const auto& cover = f.find<Panel>("workedSolutionCover");
    EXPECT_EQ(cover.backColour(), kWhite);
    const QObjectList& siblings = cover.parent()->children();
    f.click("help");
    std::size_t found = 0;
    for (const QWidget* widget : f.find("helpPanel").findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
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
        next({shape == 2 || shape == 23 ? 3 : 2, 4, 5, 7, 4, shape});
        f.click("help", "showWorkedSolution");
        ASSERT_EQ(test::flawsOf(f.page()), std::vector<std::string>{}) << shape;
    }
}

}  // namespace
}  // namespace tavrune
