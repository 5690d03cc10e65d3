#include "topics/calculus/diff.h"

#include <cmath>
#include <limits>
#include <set>

#include <gtest/gtest.h>

#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/calculus/diff_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::DiffDraws;
using test::FormDriver;

const GraphScale kScale{-1, 65, 8, -65};
const test::StrokesIn kIn{kScale};

/// 2Q² +2Q at 3: the height is 24, the slope 14.
const DiffDraws kQuadratic{.a = 2, .b = 2, .x = 3, .patternCase = 3};
/// 1Q³ -2Q² -3Q+4 at 2: the height is -2, the slope 1.
const DiffDraws kCubic{.a = 1, .b = 2, .c = 3, .d = 4, .x = 2, .patternCase = 37};
/// 3Q³ +1Q² +2Q+5 at 3, graphed as 3Q² +1Q +2: the height is 32, the slope 89.
const DiffDraws kMismatched{.a = 3, .b = 1, .c = 2, .d = 5, .x = 3, .patternCase = 17};

std::vector<Stroke> axesAndTicks() {
    std::vector<Stroke> strokes{kIn.line(0, 65, 0, -65), kIn.line(-65, 0, 65, 0)};
    for (const int x : {-10, -5, 0, 5}) {
        strokes.push_back(kIn.point(x, 2));
    }
    for (int x = -2; x < 10; ++x) {
        strokes.push_back(kIn.point(x, 1));
        strokes.push_back(kIn.point(x, 1.5));
    }
    for (int y = -70; y < 70; y += 10) {
        strokes.push_back(kIn.point(0.05, y));
        strokes.push_back(kIn.point(0.1, y));
        strokes.push_back(kIn.point(0.075, y));
    }
    return strokes;
}

template <class Curve>
std::vector<Stroke> pieces(double from, double largest, Curve curve) {
    std::vector<Stroke> strokes;
    double y = 0;
    for (double x = from; std::abs(y) <= largest; x += 0.04) {
        y = curve(x);
        strokes.push_back(kIn.line(x, y, x + 0.04, curve(x + 0.04)));
    }
    return strokes;
}

std::vector<Stroke> parabola(double a, double b, double c) {
    return pieces(-10, 2000, [=](double x) { return a * x * x + b * x + c; });
}

std::vector<Stroke> cubic(double a, double b, double c, double d) {
    return pieces(-7, 5000, [=](double x) { return a * std::pow(x, 3) + b * std::pow(x, 2) + c * x + d; });
}

test::Script scriptOf(const DiffDraws& drawn) { return drawn.script(); }

class DiffForm : public test::ScriptedForm<const DiffDraws&> {
protected:
    DiffForm() : ScriptedForm(PageName::Diff, scriptOf) {}

    FormDriver& open(const DiffDraws& drawn) {
        ScriptedForm::open(drawn);
        strokesOfTask = strokes().size();
        return *form;
    }

    void next(const DiffDraws& drawn) {
        ScriptedForm::next(drawn);
        strokesOfTask = strokes().size();
    }

    void answer(const std::string& slope) const {
        form->type("derivative", slope);
        form->click("ok");
    }

    /// What was drawn after the task.
    [[nodiscard]] std::vector<Stroke> drawnLater() const { return test::strokesFrom(graph(), strokesOfTask); }

    std::size_t strokesOfTask = 0;
};

TEST_F(DiffForm, HidesTheButtonOfTheNextExerciseUntilItIsOnScreen) {
    const FormDriver unshown = FormDriver::unshown(PageName::Diff, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Differentialregning");
    test::expectHidden(unshown, {"newExercise", "giveAnswer", "right", "wrong", "helpPanel"});
    test::expectBlank(unshown, {"givenFunction", "pointQuantity", "workedFunction", "workedDerivative",
                                "workedForQuantity", "workedDerivativeAtPoint", "workedResult"});
}

TEST_F(DiffForm, AsksForTheDerivativeAtAPoint) {
    const FormDriver& f = open(kQuadratic);
    test::expectTexts(f, {{"task", "Bestem differentialkvotienten for Q ="},
                          {"pointQuantity", "3"},
                          {"givenFunction", "P=  2Q² +2Q"},
                          {"derivativeEquals", "Differentialkvotienten ="}});
    EXPECT_EQ(f.box("derivative").content(), "");
    EXPECT_EQ(f.box("derivative").backColour(), kWhite);
    test::expectShown(*form, {"task", "pointQuantity", "givenFunction", "derivativeEquals", "derivative",
                              "ok", "newExercise", "help"});
    test::expectHidden(*form, {"giveAnswer", "right", "wrong", "helpPanel", "workedDerivative",
                               "workedDerivativeAtPoint", "workedResult"});
    test::expectWayByEnter(f, {"derivative", "ok"});
}

TEST_F(DiffForm, SetsThePointRightBehindItsQuestion) {
    const FormDriver& f = open(kQuadratic);
    EXPECT_NEAR(f.label("pointQuantity").place().left(), f.label("task").place().right() + 4, 0.01);
    EXPECT_EQ(f.label("pointQuantity").place().top(), f.label("task").place().top());
}

TEST_F(DiffForm, NumbersItsAxesWhereTheTicksAre) {
    open(kQuadratic);
    std::multiset<std::string> captions;
    for (const Label* label : graph().findChildren<Label*>()) {
        const std::string caption = label->caption();
        captions.insert(caption);
        if (caption == "5") {
            EXPECT_NEAR((graph().leftOf(*label) + graph().rightOf(*label)) / 2, 5, 0.05);
        } else if (caption != "P" && caption != "Q") {
            const double middle = label->place().center().y() / graph().height();
            EXPECT_NEAR(65 - 130 * middle, std::stod(caption), 0.5) << caption;
            EXPECT_LT(graph().rightOf(*label), 0) << caption;
        }
    }
    EXPECT_EQ(captions, (std::multiset<std::string>{"60", "30", "-30", "-60", "5", "Q", "P"}));
    test::expectTexts(*form, {{"quantityAxisName", "Q"}, {"priceAxisName", "P"}});
}

TEST_F(DiffForm, DrawsAxesTicksAndTheParabolaOfAQuadratic) {
    open(kQuadratic);
    EXPECT_EQ(axesAndTicks().size(), 72U);
    EXPECT_EQ(graph().strokes(), axesAndTicks() + parabola(2, 2, 0));
}

TEST_F(DiffForm, DrawsTheCurveOfACubic) {
    open(kCubic);
    EXPECT_EQ(graph().strokes(), axesAndTicks() + cubic(1, -2, -3, 4));
    next({.a = 2, .b = 4, .c = 5, .x = 1, .patternCase = 40});
    EXPECT_EQ(graph().strokes(), axesAndTicks() + cubic(-2, 4, 5, 0));
}

TEST_F(DiffForm, DrawsAParabolaForTheFirstTwoCubics) {
    open(kMismatched);
    EXPECT_EQ(form->caption("givenFunction"), "P=  3Q³ +1Q² +2Q+5");
    EXPECT_EQ(graph().strokes(), axesAndTicks() + parabola(3, 1, 2));
    DiffDraws eighteenth = kMismatched;
    eighteenth.patternCase = 18;
    next(eighteenth);
    EXPECT_EQ(form->caption("givenFunction"), "P=  3Q³ +1Q² +2Q-5");
    EXPECT_EQ(graph().strokes(), axesAndTicks() + parabola(3, 1, 2));
}

TEST_F(DiffForm, EndsAParabolaWithThePieceThatBeginsBeyondTwoThousand) {
    open({.a = 2, .x = 1, .patternCase = 2});
    // 2Q² passes 2000 between the 1041st and the 1042nd point.
    ASSERT_EQ(graph().strokes().size(), 72U + 1042U);
    EXPECT_EQ(graph().strokes()[72].x1, -10);
    EXPECT_NEAR(graph().strokes().back().x1, 31.64, 1e-3);
    EXPECT_GT(graph().strokes().back().y1, 2000);
    EXPECT_LT(graph().strokes()[graph().strokes().size() - 2].y1, 2000);
}

TEST_F(DiffForm, EndsACubicWithThePieceThatBeginsBeyondFiveThousand) {
    open({.a = 1, .x = 1, .patternCase = 45});
    // -1Q³ passes -5000 between the 603rd and the 604th point.
    ASSERT_EQ(graph().strokes().size(), 72U + 604U);
    EXPECT_EQ(graph().strokes()[72].x1, -7);
    EXPECT_NEAR(graph().strokes().back().x1, 17.12, 1e-3);
    EXPECT_LT(graph().strokes().back().y1, -5000);
    EXPECT_GT(graph().strokes()[graph().strokes().size() - 2].y1, -5000);
}

TEST_F(DiffForm, DrawsTheAxesOnceHoweverManyCurvesAreOutOfReach) {
    draws.append(DiffDraws{.a = 3, .x = 5, .patternCase = 1}.script());
    draws.append(DiffDraws{.a = 2, .x = 5, .patternCase = 45}.script());
    const FormDriver& f = open(kQuadratic);
    EXPECT_TRUE(draws.isUsedUp());
    EXPECT_EQ(draws.randomized(), 3);
    EXPECT_EQ(graph().strokes(), axesAndTicks() + parabola(2, 2, 0));
    test::expectTexts(f, {{"givenFunction", "P=  2Q² +2Q"}, {"workedFunction", "P= 2Q² +2Q"}});
}

TEST_F(DiffForm, IsSolvedByKeysAlone) {
    const FormDriver& f = open(kQuadratic);
    f.type("derivative", "14,0");
    EXPECT_EQ(f.box("derivative").content(), "14.0");
    f.press("derivative", Qt::Key_Return);
    f.press("ok", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(f.focus(), "newExercise");
    draws.append(kCubic.script());
    f.press("newExercise", Qt::Key_Return);
    test::expectHidden(*form, {"right", "wrong", "giveAnswer"});
    test::expectShown(*form, {"ok", "newExercise"});
    test::expectTexts(f, {{"givenFunction", "P=  1Q³ -2Q² -3Q+4"}, {"pointQuantity", "2"}});
    EXPECT_EQ(f.box("derivative").content(), "");
    EXPECT_EQ(f.focus(), "derivative");
}

TEST_F(DiffForm, LeavesOnlyTheNextExerciseWhenSolved) {
    const FormDriver& f = open(kQuadratic);
    answer("14");
    test::expectSolved(f);
    EXPECT_EQ(f.box("derivative").content(), "14");
    f.box("derivative").setFocus();
    f.press("derivative", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "derivative");
}

TEST_F(DiffForm, DrawsTheRightTangentThreeToEitherSideOnAParabola) {
    open(kQuadratic);
    answer("14");
    EXPECT_EQ(drawnLater(), (std::vector{kIn.line(6, 66, 0, -18, kGreen)}));
}

TEST_F(DiffForm, DrawsTheRightTangentTwoToEitherSideOnACubic) {
    open(kCubic);
    answer("1");
    EXPECT_EQ(drawnLater(), (std::vector{kIn.line(4, 0, 0, -4, kGreen)}));
}

TEST_F(DiffForm, DrawsTheRightTangentTwoToEitherSideFromTheNineteenthPatternOn) {
    // 1Q³ +1Q² +1Q at 3: the height is 39, the slope 34.
    open({.a = 1, .b = 1, .c = 1, .x = 3, .patternCase = 19});
    answer("34");
    EXPECT_TRUE(form->isShown("right"));
    EXPECT_EQ(drawnLater(), (std::vector{kIn.line(5, 39 + 2 * 34, 1, 39 - 2 * 34, kGreen)}));
}

/// The tangents of the first two cubics: the slope of the cubic, through the parabola.
class DiffFirstCubics : public DiffForm, public testing::WithParamInterface<int> {
protected:
    FormDriver& openMismatched() {
        DiffDraws drawn = kMismatched;
        drawn.patternCase = GetParam();
        return open(drawn);
    }

    [[nodiscard]] static Stroke rightTangent() { return kIn.line(6, 32 + 3 * 89, 0, 32 - 3 * 89, kGreen); }
};

INSTANTIATE_TEST_SUITE_P(Rows, DiffFirstCubics, testing::Values(17, 18),
                         [](const auto& row) { return "Case" + std::to_string(row.param); });

TEST_P(DiffFirstCubics, DrawTheSlopeOfTheCubicThreeToEitherSideThroughTheParabola) {
    openMismatched();
    answer("89");
    EXPECT_TRUE(form->isShown("right"));
    EXPECT_EQ(drawnLater(), (std::vector{rightTangent()}));
}

TEST_P(DiffFirstCubics, DrawATypedSlopeTwoToEitherSideThroughTheParabola) {
    openMismatched();
    // The slope that the parabola has there.
    answer("19");
    EXPECT_TRUE(form->isShown("wrong"));
    EXPECT_EQ(drawnLater(), (std::vector{kIn.line(5, 32 + 2 * 19, 1, 32 - 2 * 19, kRed)}));
}

TEST_P(DiffFirstCubics, DrawBothTangentsThroughTheParabolaWhenTheAnswerIsGiven) {
    const FormDriver& f = openMismatched();
    answer("-1.5");
    f.click("giveAnswer");
    EXPECT_EQ(f.box("derivative").content(), "89");
    const Stroke typed = kIn.line(5, 29, 1, 35, kRed);
    EXPECT_EQ(drawnLater(), (std::vector{typed, rightTangent(), typed}));
}

TEST_F(DiffForm, DrawsTheSlopeThatWasTypedInRed) {
    const FormDriver& f = open(kQuadratic);
    answer("1.5");
    test::expectShown(*form, {"wrong", "ok", "giveAnswer", "newExercise"});
    test::expectHidden(*form, {"right"});
    EXPECT_EQ(f.box("derivative").backColour(), kRed);
    EXPECT_EQ(f.box("derivative").content(), "1.5");
    EXPECT_EQ(f.focus(), "derivative");
    EXPECT_EQ(drawnLater(), (std::vector{kIn.line(5, 27, 1, 21, kRed)}));
}

TEST_F(DiffForm, PilesUpTheTangentsOfAllTriesUntilTheNextExercise) {
    open(kQuadratic);
    answer("1");
    answer("");
    answer("-2.25");
    answer("14");
    EXPECT_EQ(drawnLater(), (std::vector{kIn.line(5, 26, 1, 22, kRed), kIn.line(5, 24, 1, 24, kRed),
                                         kIn.line(5, 19.5, 1, 28.5, kRed), kIn.line(6, 66, 0, -18, kGreen)}));
    next(kCubic);
    EXPECT_EQ(graph().strokes(), axesAndTicks() + cubic(1, -2, -3, 4));
}

TEST_F(DiffForm, ShowsRightInFrontOfAWrongThatStays) {
    const FormDriver& f = open(kQuadratic);
    answer("13");
    answer("14");
    test::expectShown(*form, {"right", "wrong"});
    test::expectHidden(*form, {"ok", "giveAnswer"});
    EXPECT_EQ(f.box("derivative").backColour(), kWhite);
    const Label& right = f.label("right");
    const Label& wrong = f.label("wrong");
    EXPECT_EQ(right.place(), wrong.place());
    ASSERT_EQ(right.parent(), wrong.parent());
    EXPECT_GT(right.parent()->children().indexOf(&right), right.parent()->children().indexOf(&wrong));
    next(kCubic);
    test::expectHidden(*form, {"right", "wrong"});
}

struct TypedRow {
    const char* name;
    const char* typed;
    bool isRight;
};

class DiffTyped : public DiffForm, public testing::WithParamInterface<TypedRow> {};

TEST_P(DiffTyped, IsTakenWithinTheHalfOpenBandRoundFourteen) {
    const FormDriver& f = open(kQuadratic);
    answer(GetParam().typed);
    EXPECT_EQ(f.isShown("right"), GetParam().isRight);
    EXPECT_EQ(f.isShown("wrong"), !GetParam().isRight);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DiffTyped,
    testing::Values(TypedRow{"ALittleMore", "14.004", true}, TypedRow{"TooMuch", "14.006", false},
                    TypedRow{"UpperEnd", "14.005", true}, TypedRow{"LowerEnd", "13.995", false},
                    TypedRow{"ALittleLess", "13.996", true}, TypedRow{"TooLittle", "13.994", false},
                    TypedRow{"Negative", "-14", false}, TypedRow{"WithUnit", "14 kr", true},
                    TypedRow{"Nothing", "", false}),
    [](const auto& row) { return row.param.name; });

TEST_F(DiffForm, TakesAnEmptyBoxForASlopeOfZero) {
    const FormDriver& f = open({.a = 2, .b = 3, .x = 1, .patternCase = 34});
    f.click("ok");
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(drawnLater(), (std::vector{kIn.line(3, -1, -1, -1, kGreen)}));
}

TEST_F(DiffForm, GivesTheAnswerWithTheRightTangentAndThenTheTypedOne) {
    const FormDriver& f = open(kQuadratic);
    answer("1,5");
    f.click("giveAnswer");
    EXPECT_EQ(f.box("derivative").content(), "14");
    EXPECT_TRUE(f.isShown("derivative"));
    test::expectGiven(f);
    EXPECT_EQ(drawnLater(), (std::vector{kIn.line(5, 27, 1, 21, kRed), kIn.line(6, 66, 0, -18, kGreen),
                                         kIn.line(5, 27, 1, 21, kRed)}));
}

TEST_F(DiffForm, DrawsWhatStandsInTheBoxWhenTheAnswerIsAskedFor) {
    const FormDriver& f = open(kCubic);
    answer("7");
    f.type("derivative", "");
    f.click("giveAnswer");
    EXPECT_EQ(f.box("derivative").content(), "1");
    EXPECT_EQ(drawnLater(), (std::vector{kIn.line(4, 12, 0, -16, kRed), kIn.line(4, 0, 0, -4, kGreen),
                                         kIn.line(4, -2, 0, -2, kRed)}));
}

TEST_F(DiffForm, GivesANegativeSlopeWholeInEveryLocale) {
    const DecimalMark danish(",");
    const FormDriver& f = open({.a = 3, .b = 4, .c = 5, .x = 5, .patternCase = 12});
    answer("1");
    f.click("giveAnswer");
    EXPECT_EQ(f.box("derivative").content(), "-26");
    EXPECT_EQ(f.caption("workedResult"), "P'(5)=-26");
}

TEST_F(DiffForm, TakesAnyTypedText) {
    const FormDriver& f = open(kCubic);
    for (const std::string& typed : test::kRoughTexts) {
        f.box("derivative").setContent(typed);
        f.click("ok");
        EXPECT_EQ(f.box("derivative").backColour(), kRed);
        f.click("giveAnswer");
        EXPECT_FALSE(f.page().grab().isNull());
        EXPECT_EQ(f.box("derivative").content(), "1");
        next(kCubic);
    }
}

TEST_F(DiffForm, ExplainsTheGeneralSolution) {
    const FormDriver& f = open(kQuadratic);
    constexpr test::FixedText kTexts[]{
        {"generalHeading", "Generel løsning"},
        {"generalRule",
         "Differentiér funktionen ledvis: Det enkelte led i polynomiet differentieres ved at gange ledet med "
         "den oprindelige eksponent og reducere eksponenten med 1."},
        {"workedHeading", "Aktuel løsning"},
        {"showDerivative", "Vis"},
        {"showDerivativeAtPoint", "Vis"},
        {"closeHelp", "&Luk"}};
    test::expectTexts(f, kTexts);
    f.click("help");
    test::expectTexts(
        f, {{"generalFunction", "P = aQ³ + bQ² + cQ + d"}, {"generalDerivative", "P'= 3aQ³ + 2bQ + c"}});
    test::expectShown(*form, {"generalFunction", "generalRule", "generalDerivative"});
}

TEST_F(DiffForm, WorksTheSolutionOutWithTheNumbersOfTheExercise) {
    const FormDriver& f = open(kMismatched);
    test::expectTexts(f, {{"workedFunction", "P=  3Q³ +1Q² +2Q+5"},
                          {"workedDerivative", "P'=3·3Q² +2·1Q + 2"},
                          {"workedForQuantity", "For Q = 3 fås"},
                          {"workedDerivativeAtPoint", "P'(3)=3·3·3² +2·1·3+2"},
                          {"workedResult", "P'(3)=89"}});
    next({.a = 2, .c = 3, .x = 1, .patternCase = 13});
    test::expectTexts(f, {{"givenFunction", "P= -2Q² +3"},
                          {"workedFunction", "P=-2Q² +3"},
                          {"workedDerivative", "P'=2·(-2)Q"},
                          {"workedForQuantity", "For Q = 1 fås"},
                          {"workedDerivativeAtPoint", "P'(1)=2·(-2)·1"},
                          {"workedResult", "P'(1)=-4"}});
}

TEST_F(DiffForm, OpensItsHelpStepByStep) {
    const FormDriver& f = open(kQuadratic);
    f.click("help");
    test::expectShown(*form, {"helpPanel", "workedFunction", "workedForQuantity"});
    test::expectHidden(*form, {"workedDerivative", "workedDerivativeAtPoint", "workedResult"});
    EXPECT_EQ(f.focus(), "showDerivative");
    f.press("showDerivative", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("workedDerivative"));
    test::expectHidden(*form, {"workedDerivativeAtPoint", "workedResult"});
    EXPECT_EQ(f.focus(), "showDerivativeAtPoint");
    f.press("showDerivativeAtPoint", Qt::Key_Return);
    test::expectShown(*form, {"workedDerivative", "workedDerivativeAtPoint", "workedResult"});
    EXPECT_EQ(f.focus(), "closeHelp");
    f.press("closeHelp", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("helpPanel"));
    EXPECT_EQ(f.focus(), "derivative");
}

TEST_F(DiffForm, ShowsTheFirstStepWithTheSecond) {
    const FormDriver& f = open(kQuadratic);
    f.click("help", "showDerivativeAtPoint");
    test::expectShown(*form, {"workedDerivative", "workedDerivativeAtPoint", "workedResult"});
}

TEST_F(DiffForm, KeepsTheShownStepsUntilTheNextExercise) {
    const FormDriver& f = open(kQuadratic);
    f.click("help", "showDerivativeAtPoint", "closeHelp", "help");
    test::expectShown(*form, {"workedDerivative", "workedDerivativeAtPoint", "workedResult", "generalRule"});
    EXPECT_EQ(f.focus(), "showDerivative");
    next(kCubic);
    test::expectHidden(*form, {"helpPanel", "workedDerivative", "workedDerivativeAtPoint", "workedResult"});
    EXPECT_TRUE(f.isShown("generalRule"));
}

TEST_F(DiffForm, LeavesThePanelOpenWhileTheExerciseGoesOn) {
    const FormDriver& f = open(kQuadratic);
    f.click("help");
    answer("1");
    test::expectShown(*form, {"helpPanel", "wrong"});
    f.click("giveAnswer");
    EXPECT_TRUE(f.isShown("helpPanel"));
    EXPECT_EQ(f.focus(), "newExercise");
}

TEST_F(DiffForm, HasRoomForTheTextsOfEveryPattern) {
    for (int patternCase = 1; patternCase <= 50; ++patternCase) {
        const DiffDraws drawn{.a = 2, .b = 4, .c = 5, .d = 5, .x = 2, .patternCase = patternCase};
        if (form == nullptr) {
            open(drawn);
        } else {
            next(drawn);
        }
        form->click("help", "showDerivativeAtPoint");
        ASSERT_EQ(test::flawsOf(form->page()), std::vector<std::string>{}) << form->caption("givenFunction");
        form->click("closeHelp");
        ASSERT_EQ(test::flawsOf(form->page()), std::vector<std::string>{}) << form->caption("givenFunction");
    }
}

}  // namespace
}  // namespace tavrune
