#include "topics/calculus/integ2.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <set>
#include <string>

#include <QTest>
#include <QTextLayout>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/calculus/integ2_script.h"
#include "topics/calculus/integ2_space.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FixedText;
using test::FormDriver;
using test::integ2::Family;
using test::integ2::Numbers;

constexpr Family kFall = Family::FallThenRise;
constexpr Family kRise = Family::RiseThenFall;
constexpr Family kTwoFalls = Family::TwoFalls;

// P1 = -1Q+6 up to 3 and P2 = 1Q+2 after it; the integral from 0 to 6 is 13.5 + 19.5.
const Numbers kPlain{.a1 = 1, .b1 = 6, .a2 = 1, .b2 = 2, .k = 3, .back = 3, .forth = 3};
// P1 = -2Q+6 up to 4 and P2 = 3Q+2 after it, which leaves the graph; from 3 to 7 it is -1 + 55.5.
const Numbers kSteep{.a1 = 2, .b1 = 6, .a2 = 3, .b2 = 2, .k = 4, .back = 1, .forth = 3};
// P1 = 1.5Q+2 up to 5 and P2 = -1.5Q+7 after it; from 2 to 8 it is 21.75 - 8.25.
const Numbers kHalves{.a1 = 3, .b1 = 2, .a2 = 3, .b2 = 7, .k = 5, .back = 3, .forth = 3};
// P1 = -1Q+1 up to 6 and P2 = -0.5Q+1 after it; from 5 to 9 it is -4.5 - 8.25.
const Numbers kBelow{.a1 = 2, .b1 = 1, .a2 = 1, .b2 = 1, .k = 6, .back = 1, .forth = 3};

const test::StrokesIn kIn{{0, 20, 10, -10}};
// Two axes, 27 ticks along one of them, 30 times 3 along the other.
constexpr std::size_t kStrokesOfAxes = 119;

/// A piece of the function by its own numbers.
struct Line {
    double a;
    double b;

    [[nodiscard]] double at(double q) const { return a * q + b; }
};

/// A hundred strokes for each unit from `from` to `to`.
template <class Draw>
std::vector<Stroke> each(int from, int to, Draw draw) {
    std::vector<Stroke> strokes;
    double x = from;
    for (int i = 0; i < (to - from) * 100; ++i) {
        strokes.push_back(draw(x));
        x += 0.01;
    }
    return strokes;
}

std::vector<Stroke> dots(const Line& line, int from, int to) {
    return each(from, to, [&line](double x) { return kIn.point(x, line.at(x)); });
}

std::vector<Stroke> hatched(const Line& line, int from, int to, const QColor& colour) {
    return each(from, to, [&](double x) { return kIn.line(x, 0, x, line.at(x), colour); });
}

class Integ2Form : public test::ScriptedForm<Family, const Numbers&> {
protected:
    Integ2Form() : ScriptedForm(PageName::Integ2, test::integ2::script) {}

    FormDriver& openPlain() { return open(kFall, kPlain); }

    void answer(const std::string& typed) const {
        form->type("integral", typed);
        form->click("ok");
    }

    void openHelp(int times = 1) const {
        for (int i = 0; i < times; ++i) {
            form->click("help");
        }
    }

    [[nodiscard]] std::vector<Stroke> plotOf(const std::string& box) const {
        return test::strokesFrom(graph(box), kStrokesOfAxes);
    }

    /// What the last row of the worked solution reads.
    [[nodiscard]] std::string lastRow() const {
        return form->caption("workedSumSegment1") + form->caption("workedSumPlus") +
               form->caption("workedSumSegment2") + form->caption("workedResult");
    }
};

TEST_F(Integ2Form, StandsCoveredAndEmptyUntilItIsOnScreen) {
    const FormDriver unshown = FormDriver::unshown(PageName::Integ2, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(),
              "Tavrune - Integralregning - Bestemt integrale - Niveau 2");
    test::expectHidden(unshown, {"giveAnswer", "right", "wrong", "helpPanel"});
    EXPECT_TRUE(unshown.isShown("newExercise"));
    test::expectBlank(
        unshown, {"segment1Slope", "segment1Intercept", "segment1End", "segment2Slope", "segment2Intercept",
                  "segment2Start", "segment1LowerLimit", "segment1UpperLimit", "segment2LowerLimit",
                  "segment2UpperLimit", "workedSegment1Result", "workedSegment2Result", "workedResult"});
}

TEST_F(Integ2Form, HasItsFixedTextsToTheLetter) {
    constexpr FixedText kTexts[]{
        {"task", "Beregn det bestemte integrale"},
        {"segment1PriceEquals", "P1="},
        {"segment1TimesQuantity", "Q"},
        {"segment1Plus", "+"},
        {"segment1ZeroLessThanQuantity", "for 0<Q<"},
        {"segment2PriceEquals", "P2="},
        {"segment2TimesQuantity", "Q"},
        {"segment2Plus", "+"},
        {"segment2ValidFor", "for"},
        {"segment2QuantityBelowTen", "<Q<10"},
        {"segment1IntegralSign", "∫"},
        {"segment1IntegrandPlus", "P1  dQ+"},
        {"segment2IntegralSign", "∫"},
        {"segment2IntegrandEquals", "P2  dQ ="},
        {"yAxisName", "Y"},
        {"xAxisName", "X"},
        {"generalHeading", "Generel løsning"},
        {"generalText",
         "Denne opgave er du nødt til at dele op i to dele. Først skal du beregne det bestemte integrale fra "
         "Q=v til Q=k med P1=aQ+b som funktion. Dernæst skal du beregne det bestemte integrale fra Q=k til "
         "Q=w , med  P2=    Q+    som funktion. Til sidst lægger du disse to integraler sammen. "},
        {"generalSegment1Integrand", "(aQ + b) dQ"},
        {"generalSegment2Integrand", "Q+    dQ"},
        {"generalSumSegment1IntegrandPlus", "(aQ+b) dQ +"},
        {"generalSumSegment2Integrand", "Q+    dQ"},
        {"generalSegment1Terms", " ( (a/2)·k  + b·k ) - ( (a/2)·v  + b·v ) )+  "},
        {"generalSegment2Terms", "( ( (   /2)·w  +   ·w ) - ( (   /2) ·k  +    ·k)"},
        {"workedHeading", "Aktuel løsning"},
        {"workedSegment1Text", "Først beregner du det med rødt markerede integrale."},
        {"workedSegment1Heading", "Rødt integrale:"},
        {"workedSegment1DifferentialEquals", "dQ ="},
        {"workedSegment2Text", "Dernæst beregner du det med grønt markerede integrale."},
        {"workedSegment2Heading", "Grønt integrale:"},
        {"workedSegment2DifferentialEquals", "dQ ="},
        {"workedSumText", "Til sidst lægger du de to integraler sammen."},
        {"workedSumPlus", "+"},
        {"right", "RIGTIGT"},
        {"wrong", "FORKERT"},
        {"showWorkedSolution", "Vis"},
        {"closeHelp", "&Luk"},
    };
    test::expectTexts(openPlain(), kTexts);
    for (const char* red : {"workedSegment1Text", "workedSegment1Heading"}) {
        EXPECT_EQ(form->label(red).textColour(), kRed);
    }
    for (const char* green : {"workedSegment2Text", "workedSegment2Heading"}) {
        EXPECT_EQ(form->label(green).textColour(), kGreen);
    }
}

TEST_F(Integ2Form, AsksForTheSumOfTwoIntegrals) {
    const DecimalMark danish(",");
    const FormDriver& f = open(kRise, kHalves);
    EXPECT_EQ(joined({"segment1PriceEquals", "segment1Slope", "segment1TimesQuantity", "segment1Plus",
                      "segment1Intercept", "segment1ZeroLessThanQuantity", "segment1End"}),
              "P1=1,5Q+2for 0<Q<5");
    EXPECT_EQ(joined({"segment2PriceEquals", "segment2Slope", "segment2TimesQuantity", "segment2Plus",
                      "segment2Intercept", "segment2ValidFor", "segment2Start", "segment2QuantityBelowTen"}),
              "P2=-1,5Q+7for5<Q<10");
    EXPECT_EQ(
        joined({"segment1LowerLimit", "segment1UpperLimit", "segment2LowerLimit", "segment2UpperLimit"}),
        "2558");
    test::expectHidden(f, {"giveAnswer", "right", "wrong", "helpPanel"});
    test::expectShown(
        f, {"ok", "newExercise", "help", "workedSolutionCover", "segment1Slope", "segment2UpperLimit"});
    EXPECT_EQ(f.focus(), "integral");
}

TEST_F(Integ2Form, DrawsAxesAndTicksOnBothBoxesFirst) {
    openPlain();
    std::vector<Stroke> expected{kIn.line(0, 20, 0, -10), kIn.line(0, 0, 20, 0)};
    for (int x = -7; x <= 19; ++x) {
        expected.push_back(kIn.point(x, 0.1));
    }
    for (int y = -10; y <= 19; ++y) {
        expected.push_back(kIn.point(0.05, y));
        expected.push_back(kIn.point(0.075, y));
        expected.push_back(kIn.point(0.1, y));
    }
    ASSERT_EQ(expected.size(), kStrokesOfAxes);
    for (const char* box : {"graph", "helpGraph"}) {
        const std::vector<Stroke>& strokes = graph(box).strokes();
        ASSERT_GT(strokes.size(), kStrokesOfAxes) << box;
        EXPECT_EQ(std::vector<Stroke>(strokes.begin(), strokes.begin() + kStrokesOfAxes), expected) << box;
    }
}

struct PlotRow {
    const char* name;
    Family family;
    Numbers numbers;
    Line first;
    Line second;
};

void PrintTo(const PlotRow& row, std::ostream* out) { *out << row.name; }

class Integ2Plot : public Integ2Form, public testing::WithParamInterface<PlotRow> {};

TEST_P(Integ2Plot, DotsBothPiecesToTheRightEndOnBothBoxes) {
    const PlotRow& row = GetParam();
    open(row.family, row.numbers);
    const int k = row.numbers.k;
    for (const char* box : {"graph", "helpGraph"}) {
        EXPECT_EQ(plotOf(box).size(), 1000U);
        EXPECT_EQ(plotOf(box), dots(row.first, 0, k) + dots(row.second, k, 10)) << box;
    }
    EXPECT_EQ(form->focus(), "integral");
}

INSTANTIATE_TEST_SUITE_P(Rows, Integ2Plot,
                         testing::Values(PlotRow{"OfAFallAndARise", kFall, kPlain, {-1, 6}, {1, 2}},
                                         PlotRow{"OfARiseAndAFall", kRise, kHalves, {1.5, 2}, {-1.5, 7}},
                                         PlotRow{"OfTwoFalls", kTwoFalls, kBelow, {-1, 1}, {-0.5, 1}}),
                         [](const auto& row) { return row.param.name; });

struct SteepRow {
    const char* name;
    Numbers numbers;
    Line second;
    /// The dot that is the first beyond 20, counted in hundredths from the kink.
    int lastDot;
};

void PrintTo(const SteepRow& row, std::ostream* out) { *out << row.name; }

class Integ2Steep : public Integ2Form, public testing::WithParamInterface<SteepRow> {};

TEST_P(Integ2Steep, EndsItsPlotWithTheFirstDotAboveTwenty) {
    const SteepRow& row = GetParam();
    open(kFall, row.numbers);
    const int k = row.numbers.k;
    const double lastX = k + row.lastDot / 100.0;
    ASSERT_LE(row.second.at(lastX - 0.01), 20 + 1e-9);
    ASSERT_GT(row.second.at(lastX), 20 + 1e-9);
    std::vector<Stroke> second = dots(row.second, k, 10);
    second.resize(static_cast<std::size_t>(row.lastDot) + 1);
    for (const char* box : {"graph", "helpGraph"}) {
        EXPECT_EQ(plotOf(box), dots({-static_cast<double>(row.numbers.a1), 6}, 0, k) + second) << box;
        EXPECT_FLOAT_EQ(plotOf(box).back().x1, static_cast<float>(lastX));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Integ2Steep,
    testing::Values(SteepRow{"WithinTheGraph", kSteep, {3, 2}, 201},
                    // At 9.5 it is just 20 high.
                    SteepRow{"OneDotAfterJustTwenty", {.b1 = 6, .a2 = 2, .b2 = 1, .k = 2}, {2, 1}, 751},
                    SteepRow{"NearTheRightEnd", {.b1 = 6, .a2 = 2, .b2 = 1, .k = 6}, {2, 1}, 351},
                    SteepRow{"FromTheHighestKink", {.b1 = 6, .a2 = 3, .b2 = 3, .k = 4}, {3, 3}, 167}),
    [](const auto& row) { return row.param.name; });

TEST_F(Integ2Form, LeavesTheFocusWhereItWasIfThePlotLeavesTheGraph) {
    openPlain();
    next(kFall, kSteep);
    EXPECT_EQ(form->focus(), "newExercise");
    script(kFall, kPlain);
    form->press("newExercise", Qt::Key_Return);
    EXPECT_EQ(form->focus(), "integral");
    next(kTwoFalls, kBelow);
    EXPECT_EQ(form->focus(), "integral");
}

TEST_F(Integ2Form, LeavesTheFocusWhereItWasAtTheOpeningToo) {
    script(kFall, kSteep);
    FormDriver f = FormDriver::unshown(PageName::Integ2, draws);
    f.button("help").setFocus();
    f.show();
    ASSERT_EQ(f.caption("segment1Intercept"), "6");
    EXPECT_EQ(f.focus(), "help");
}

TEST_F(Integ2Form, TakesTheFocusAtTheOpeningIfThePlotStaysOnTheGraph) {
    script(kFall, kPlain);
    FormDriver f = FormDriver::unshown(PageName::Integ2, draws);
    f.button("help").setFocus();
    f.show();
    EXPECT_EQ(f.focus(), "integral");
}

TEST_F(Integ2Form, ShowsPiecesApartAtTheKinkAndWantsTheirSumAllTheSame) {
    openPlain();
    const std::vector<Stroke> plot = plotOf("graph");
    ASSERT_EQ(plot.size(), 1000U);
    EXPECT_NEAR(plot[299].x1, 2.99, 1e-5);
    EXPECT_NEAR(plot[299].y1, 3.01, 1e-5);
    EXPECT_EQ(plot[300].x1, 3);
    EXPECT_EQ(plot[300].y1, 5);
    answer("33");
    EXPECT_TRUE(form->isShown("right"));
}

TEST_F(Integ2Form, ClearsBothBoxesWithEachExercise) {
    openPlain();
    answer("33");
    openHelp();
    form->click("showWorkedSolution");
    EXPECT_EQ(plotOf("graph").size(), 1600U);
    EXPECT_EQ(plotOf("helpGraph").size(), 1600U);
    next(kTwoFalls, kBelow);
    for (const char* box : {"graph", "helpGraph"}) {
        EXPECT_EQ(plotOf(box), dots({-1, 1}, 0, 6) + dots({-0.5, 1}, 6, 10)) << box;
    }
}

TEST_F(Integ2Form, IsSolvedByKeysAlone) {
    const FormDriver& f = open(kRise, kHalves);
    f.type("integral", "13,5");
    EXPECT_EQ(f.box("integral").content(), "13.5");
    f.press("integral", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "ok");
    f.press("ok", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(f.focus(), "newExercise");
    script(kFall, kPlain);
    f.press("newExercise", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_FALSE(f.isShown("right"));
    EXPECT_EQ(f.box("integral").content(), "");
    EXPECT_EQ(f.focus(), "integral");
}

TEST_F(Integ2Form, HatchesBothPiecesInBlueWhenSolved) {
    const FormDriver& f = open(kRise, kHalves);
    answer("1");
    answer("13.5");
    test::expectSolved(f);
    EXPECT_EQ(f.box("integral").content(), "13.5");
    const std::vector<Stroke> plot = dots({1.5, 2}, 0, 5) + dots({-1.5, 7}, 5, 10);
    EXPECT_EQ(plotOf("graph"), plot + hatched({1.5, 2}, 2, 5, kBlue) + hatched({-1.5, 7}, 5, 8, kBlue));
    EXPECT_EQ(plotOf("helpGraph"), plot);
}

TEST_F(Integ2Form, HatchesDownwardBelowTheAxis) {
    openPlain();
    next(kTwoFalls, kBelow);
    answer("-12.75");
    const std::vector<Stroke> hatch = test::strokesFrom(graph("graph"), kStrokesOfAxes + 1000);
    EXPECT_EQ(hatch, hatched({-1, 1}, 5, 6, kBlue) + hatched({-0.5, 1}, 6, 9, kBlue));
    EXPECT_TRUE(std::all_of(hatch.begin(), hatch.end(), [](const Stroke& s) { return s.y2 < 0; }));
}

TEST_F(Integ2Form, MarksAWrongAnswerAndLetsTheStudentGoOn) {
    const FormDriver& f = openPlain();
    for (const char* wrong : {"1", "", "-33"}) {
        answer(wrong);
        test::expectWrong(f, "integral");
        EXPECT_EQ(f.box("integral").backColour(), kRed);
        EXPECT_EQ(f.box("integral").content(), wrong);
    }
    EXPECT_EQ(plotOf("graph").size(), 1000U);
}

TEST_F(Integ2Form, TakesABandThatIsOpenBelowAndClosedAbove) {
    openPlain();
    for (const char* wrong : {"32.995", "32.99", "33.0051"}) {
        answer(wrong);
        EXPECT_TRUE(form->isShown("wrong")) << wrong;
    }
    for (const char* right : {"33.005", "32.9951"}) {
        next(kFall, kPlain);
        answer(right);
        EXPECT_TRUE(form->isShown("right")) << right;
    }
}

TEST_F(Integ2Form, GivesTheAnswerWithTheHatchAndWithoutAVerdict) {
    const DecimalMark danish(",");
    const FormDriver& f = open(kFall, kSteep);
    answer("1");
    f.click("giveAnswer");
    EXPECT_EQ(f.box("integral").content(), "54,5");
    test::expectGiven(f);
    // 400 and 202 dots before it.
    EXPECT_EQ(test::strokesFrom(graph("graph"), kStrokesOfAxes + 602),
              hatched({-2, 6}, 3, 4, kBlue) + hatched({3, 2}, 4, 7, kBlue));
    EXPECT_EQ(plotOf("helpGraph").size(), 602U);
    f.box("integral").setFocus();
    f.press("integral", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "integral") << "Enter goes nowhere while OK is hidden";
}

TEST_F(Integ2Form, HatchesFromTheAxisToTheLastWholeNumber) {
    openPlain();
    answer("33");
    EXPECT_EQ(test::strokesFrom(graph("graph"), kStrokesOfAxes + 1000),
              hatched({-1, 6}, 0, 3, kBlue) + hatched({1, 2}, 3, 6, kBlue));
    next(kTwoFalls, kBelow);
    answer("-12.75");
    EXPECT_NEAR(graph("graph").strokes().back().x1, 8.99, 1e-5);
}

TEST_F(Integ2Form, TakesAnyTypedText) {
    openPlain();
    for (const std::string& typed : test::kRoughTexts) {
        form->box("integral").setContent(typed);
        form->click("ok");
        EXPECT_TRUE(form->isShown("wrong"));
        form->click("giveAnswer");
        EXPECT_FALSE(form->page().grab().isNull());
        EXPECT_EQ(form->box("integral").content(), "33");
        next(kFall, kPlain);
    }
}

TEST_F(Integ2Form, WorksTheRedAndTheGreenIntegralOut) {
    const DecimalMark danish(",");
    open(kRise, kHalves);
    openHelp();
    EXPECT_EQ(joined({"workedSegment1UpperLimit", "workedSegment1LowerLimit"}), "52");
    EXPECT_EQ(joined({"workedSegment1Integrand", "workedSegment1DifferentialEquals"}), "(1,5Q+2)dQ =");
    EXPECT_EQ(joined({"workedSegment1UpperQuadraticTerm", "workedSegment1UpperSquare",
                      "workedSegment1UpperLinearTerm", "workedSegment1LowerQuadraticTerm",
                      "workedSegment1LowerSquare", "workedSegment1LowerLinearTerm", "workedSegment1Result"}),
              "((1,5/2)*5²+2*5)-((1,5/2)*2²+2*2) = 21,75");
    EXPECT_EQ(joined({"workedSegment2UpperLimit", "workedSegment2LowerLimit"}), "85");
    EXPECT_EQ(joined({"workedSegment2Integrand", "workedSegment2DifferentialEquals"}), "(-1,5Q+7)dQ =");
    EXPECT_EQ(joined({"workedSegment2UpperQuadraticTerm", "workedSegment2UpperSquare",
                      "workedSegment2UpperLinearTerm", "workedSegment2LowerQuadraticTerm",
                      "workedSegment2LowerSquare", "workedSegment2LowerLinearTerm", "workedSegment2Result"}),
              "((-1,5/2)*8²+7*8)-((-1,5/2)*5²+7*5) = -8,25");
    EXPECT_EQ(form->caption("workedResult"), " = 13,5");
}

TEST_F(Integ2Form, ShowsBothIntegralsAndTheirSumForAllPairsOfFalls) {
    const DecimalMark danish(",");
    openPlain();
    int exercises = 0;
    test::integ2::forEachTry(kTwoFalls, [&](const test::integ2::Point& p) {
        if (p.fate() != test::integ2::Fate::Taken) {
            return;
        }
        SCOPED_TRACE(testing::PrintToString(p));
        // Without letting the page be painted in between: that is most of the time.
        script(p.family, p.n);
        form->button("newExercise").click();
        form->button("help").click();
        ASSERT_EQ(form->caption("workedSegment1Result"), " = " + NumberText(p.first() / 4.0));
        ASSERT_EQ(form->caption("workedSegment2Result"), " = " + NumberText(p.second() / 4.0));
        ASSERT_EQ(form->caption("workedResult"), " = " + NumberText((p.first() + p.second()) / 4.0));
        ++exercises;
    });
    EXPECT_EQ(exercises, 1512);
}

TEST_F(Integ2Form, ComposesItsRowsWithTheExerciseButItsResultsOnlyWhenHelpIsOpened) {
    openPlain();
    EXPECT_EQ(form->caption("workedSegment1UpperQuadraticTerm"), "((-1/2)*3");
    EXPECT_EQ(joined({"workedSegment1Result", "workedSegment2Result", "workedResult"}), "");
    openHelp();
    EXPECT_EQ(joined({"workedSegment1Result", "workedSegment2Result", "workedResult"}),
              " = 13.5 = 19.5 = 33");
    next(kTwoFalls, kBelow);
    EXPECT_EQ(form->caption("workedSegment1UpperQuadraticTerm"), "((-1/2)*6");
    EXPECT_EQ(joined({"workedSegment1Result", "workedSegment2Result", "workedResult"}),
              " = 13.5 = 19.5 = 33");
    EXPECT_EQ(lastRow(), "13.5+19.5 = 33");
}

TEST_F(Integ2Form, AddsTwoPositiveIntegralsInItsLastRow) {
    openPlain();
    openHelp(2);
    EXPECT_EQ(lastRow(), "13.5+19.5 = 33");
}

TEST_F(Integ2Form, BracketsTheOldTermOfTheLastRowForAnIntegralThatIsNotPositive) {
    const DecimalMark danish(",");
    open(kTwoFalls, kBelow);
    EXPECT_EQ(lastRow(), "rødt integrale+grønt integrale");
    openHelp();
    EXPECT_EQ(lastRow(), "(rødt integrale)+(grønt integrale) = -12,75");
    openHelp();
    EXPECT_EQ(lastRow(), "((rødt integrale))+((grønt integrale)) = -12,75");
    next(kFall, kSteep);
    EXPECT_EQ(lastRow(), "((rødt integrale))+((grønt integrale)) = -12,75");
    openHelp();
    EXPECT_EQ(lastRow(), "(((rødt integrale)))+55,5 = 54,5");
    next(kRise, kHalves);
    openHelp();
    EXPECT_EQ(lastRow(), "21,75+(55,5) = 13,5");
    openHelp();
    EXPECT_EQ(lastRow(), "21,75+((55,5)) = 13,5");
}

TEST_F(Integ2Form, BracketsTheOldTermForAnIntegralOfZero) {
    // -2Q+6 from 2 to 4.
    open(kFall, {.a1 = 2, .b1 = 6, .a2 = 1, .b2 = 1, .k = 4, .back = 2, .forth = 1});
    openHelp();
    EXPECT_EQ(lastRow(), "(rødt integrale)+5.5 = 5.5");
    EXPECT_EQ(form->caption("workedSegment1Result"), " = 0");
}

TEST_F(Integ2Form, OpensItsHelpCoveredAndUncoversItWithARedAndAGreenHatch) {
    const FormDriver& f = open(kRise, kHalves);
    openHelp();
    test::expectShown(f, {"helpPanel", "workedSolutionCover"});
    EXPECT_EQ(f.focus(), "showWorkedSolution");
    const std::vector<Stroke> plot = plotOf("helpGraph");
    EXPECT_EQ(plot.size(), 1000U);
    f.press("showWorkedSolution", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("workedSolutionCover"));
    EXPECT_EQ(f.focus(), "closeHelp");
    const std::vector<Stroke> hatch =
        hatched({1.5, 2}, 2, 5, kRed) + hatched({-1.5, 7}, 5, 8, rgb(0, 130, 0));
    EXPECT_EQ(plotOf("helpGraph"), plot + hatch);
    EXPECT_EQ(plotOf("graph"), plot);
    f.click("showWorkedSolution");
    EXPECT_EQ(plotOf("helpGraph"), plot + hatch + hatch) << "each Vis hatches once more";
    f.press("closeHelp", Qt::Key_Return);
    EXPECT_TRUE(f.isShown("workedSolutionCover"));
    EXPECT_FALSE(f.isShown("helpPanel"));
    EXPECT_NE(f.focus(), "closeHelp");
}

TEST_F(Integ2Form, IsCoveredAgainWheneverItsHelpIsOpened) {
    openPlain();
    openHelp();
    form->click("showWorkedSolution", "closeHelp");
    openHelp();
    EXPECT_TRUE(form->isShown("workedSolutionCover"));
    form->click("showWorkedSolution");
    next(kTwoFalls, kBelow);
    EXPECT_TRUE(form->isShown("workedSolutionCover"));
    EXPECT_FALSE(form->isShown("helpPanel"));
}

TEST_F(Integ2Form, LeavesThePanelOpenWhileTheExerciseGoesOn) {
    openPlain();
    openHelp();
    form->click("showWorkedSolution");
    answer("1");
    form->click("giveAnswer");
    EXPECT_TRUE(form->isShown("helpPanel"));
    EXPECT_FALSE(form->isShown("workedSolutionCover"));
    EXPECT_EQ(plotOf("graph").size(), 1600U);
}

TEST_F(Integ2Form, LeavesTheTaskAndItsBoxInSightOfTheHelp) {
    openPlain();
    openHelp();
    const QRectF panel = form->find<Panel>("helpPanel").place();
    for (const char* name : {"segment1PriceEquals", "segment2PriceEquals", "segment1LowerLimit",
                             "segment2LowerLimit", "segment2IntegrandEquals"}) {
        EXPECT_FALSE(panel.intersects(form->label(name).place())) << name;
    }
    EXPECT_FALSE(panel.intersects(form->box("integral").place()));
}

TEST_F(Integ2Form, CoversTheWholeOfTheActualColumnButNotItsGraph) {
    SeededDraws seeded(7);
    const FormDriver f(PageName::Integ2, seeded);
    const Panel& cover = f.find<Panel>("workedSolutionCover");
    EXPECT_EQ(cover.backColour(), kWhite);
    const auto& siblings = f.find("helpPanel").children();
    const qsizetype first = siblings.indexOf(&f.label("workedSegment1Text"));
    const qsizetype last = siblings.indexOf(&f.label("workedResult"));
    ASSERT_LT(first, last);
    ASSERT_LT(last, siblings.indexOf(&cover));
    ASSERT_GT(siblings.indexOf(&f.find("helpGraph")), siblings.indexOf(&cover));
    for (int exercise = 0; exercise < 60; ++exercise) {
        f.button("help").click();
        for (qsizetype i = 0; i <= last; ++i) {
            const auto* const label = qobject_cast<Label*>(siblings[i]);
            if (label == nullptr) {
                continue;
            }
            const bool isCovered = i >= first;
            ASSERT_EQ(cover.place().intersects(label->place()), isCovered) << label->caption();
            ASSERT_EQ(cover.place().contains(label->place()), isCovered) << label->caption();
        }
        f.button("newExercise").click();
    }
}

TEST_F(Integ2Form, SetsItsRowsSideBySide) {
    open(kRise, kHalves);
    openHelp();
    const auto rightOf = [this](const char* name) { return form->label(name).place().right(); };
    const auto leftOf = [this](const char* name) { return form->label(name).place().left(); };
    // 4200 and 20 twips.
    EXPECT_EQ(leftOf("workedSegment1Integrand"), 280);
    EXPECT_DOUBLE_EQ(leftOf("workedSegment1DifferentialEquals"),
                     form->label("workedSegment1Integrand").place().width() + 4220 / 15.0);
    EXPECT_DOUBLE_EQ(leftOf("workedSegment2DifferentialEquals"),
                     form->label("workedSegment2Integrand").place().width() + 4220 / 15.0);
    const std::vector<std::vector<const char*>> rows{
        {"segment1PriceEquals", "segment1Slope", "segment1TimesQuantity", "segment1Plus",
         "segment1Intercept"},
        {"segment1ZeroLessThanQuantity", "segment1End"},
        {"segment2PriceEquals", "segment2Slope", "segment2TimesQuantity", "segment2Plus",
         "segment2Intercept"},
        {"segment2Start", "segment2QuantityBelowTen"},
        {"workedSegment1UpperQuadraticTerm", "workedSegment1UpperSquare", "workedSegment1UpperLinearTerm",
         "workedSegment1LowerQuadraticTerm", "workedSegment1LowerSquare", "workedSegment1LowerLinearTerm",
         "workedSegment1Result"},
        {"workedSegment2UpperQuadraticTerm", "workedSegment2UpperSquare", "workedSegment2UpperLinearTerm",
         "workedSegment2LowerQuadraticTerm", "workedSegment2LowerSquare", "workedSegment2LowerLinearTerm",
         "workedSegment2Result"},
        {"workedSumSegment1", "workedSumPlus", "workedSumSegment2", "workedResult"}};
    for (const std::vector<const char*>& row : rows) {
        for (std::size_t i = 1; i < row.size(); ++i) {
            EXPECT_DOUBLE_EQ(leftOf(row[i]), rightOf(row[i - 1])) << row[i];
        }
    }
}

/// Where a gap of a label's text stands on its parent: the blanks at `at`, as the text is laid out in the
/// label's width. Gives their place in one line, with the height of the label's text.
QRectF gapIn(const Label& label, qsizetype at, int blanks) {
    QTextLayout layout(label.text(), label.font());
    QTextOption option;
    option.setWrapMode(label.wordWrap() ? QTextOption::WordWrap : QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    // What is painted has lines of whole pixels, without the font's leading.
    const QFontMetricsF metrics(label.font());
    const double lineHeight = std::ceil(metrics.ascent()) + std::ceil(metrics.descent());
    QRectF gap;
    double y = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(label.wordWrap() ? label.place().width() : 1e6);
        const int first = static_cast<int>(at);
        if (first >= line.textStart() && first + blanks < line.textStart() + line.textLength()) {
            const double left = line.cursorToX(first);
            gap = {left, y, line.cursorToX(first + blanks) - left, lineHeight};
        }
        y += lineHeight;
    }
    layout.endLayout();
    return gap.translated(label.place().topLeft());
}

struct GapRow {
    const char* name;
    const char* sentence;
    /// What stands before the gap.
    const char* before;
    int blanks;
    const char* letter;
    const char* caption;
};

void PrintTo(const GapRow& row, std::ostream* out) { *out << row.name; }

class Integ2Gaps : public Integ2Form, public testing::WithParamInterface<GapRow> {};

TEST_P(Integ2Gaps, HoldTheirLetters) {
    const GapRow& row = GetParam();
    openPlain();
    openHelp();
    const Label& sentence = form->label(row.sentence);
    const Label& letter = form->label(row.letter);
    EXPECT_EQ(letter.caption(), row.caption);
    const QString before = QString::fromUtf8(row.before);
    const qsizetype at = sentence.text().indexOf(before);
    ASSERT_GE(at, 0);
    ASSERT_EQ(sentence.text().mid(at + before.size(), row.blanks), QString(row.blanks, ' '));
    const QRectF gap = gapIn(sentence, at + before.size(), row.blanks);
    ASSERT_GT(gap.width(), 0) << "the gap is broken between two lines";
    EXPECT_GE(letter.place().left(), gap.left() - 0.5);
    EXPECT_LE(letter.place().left() + letter.textWidth(), gap.right() + 1);
    EXPECT_NEAR(letter.place().top(), gap.top(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Integ2Gaps,
    testing::Values(
        GapRow{"SlopeOfP2", "generalText", "P2=", 4, "generalTextSlope", "α"},
        GapRow{"ConstantOfP2", "generalText", "P2=    Q+", 4, "generalTextIntercept", "β"},
        GapRow{"SecondIntegral", "generalSegment2Integrand", "Q+", 4, "generalSegment2Intercept", "β)"},
        GapRow{"SecondTermOfTheSum", "generalSumSegment2Integrand", "Q+", 4, "generalSumSegment2Intercept",
               "β)"},
        GapRow{"SquareOfK", "generalSegment1Terms", " ( (a/2)·k", 2, "generalSegment1UpperSquare", "²"},
        GapRow{"SquareOfV", "generalSegment1Terms", " ( (a/2)·k  + b·k ) - ( (a/2)·v", 2,
               "generalSegment1LowerSquare", "²"},
        GapRow{"SlopeAtW", "generalSegment2Terms", "( ( (", 3, "generalSegment2UpperSlope", "α"},
        GapRow{"SquareOfW", "generalSegment2Terms", "( ( (   /2)·w", 2, "generalSegment2UpperSquare", "²"},
        GapRow{"ConstantAtW", "generalSegment2Terms", "( ( (   /2)·w  +", 3, "generalSegment2UpperIntercept",
               "β"},
        GapRow{"SlopeAtK", "generalSegment2Terms", "·w ) - ( (", 3, "generalSegment2LowerSlope", "α"},
        GapRow{"SecondSquareOfK", "generalSegment2Terms", "/2) ·k", 2, "generalSegment2LowerSquare", "²"},
        GapRow{"ConstantAtK", "generalSegment2Terms", "/2) ·k  +", 4, "generalSegment2LowerIntercept", "β"}),
    [](const auto& row) { return row.param.name; });

TEST_F(Integ2Form, HasRoomForTheLongestNumbers) {
    const DecimalMark danish(",");
    for (const auto& [family, numbers] :
         {std::pair{kTwoFalls, Numbers{.a1 = 1, .b1 = 5, .a2 = 1, .b2 = 1, .k = 6, .back = 1, .forth = 3}},
          std::pair{kTwoFalls, kBelow}, std::pair{kRise, kHalves}, std::pair{kFall, kSteep}}) {
        open(family, numbers);
        EXPECT_EQ(test::flawsOf(form->page()), std::vector<std::string>{});
        openHelp(8);
        form->click("showWorkedSolution");
        EXPECT_EQ(test::flawsOf(form->page()), std::vector<std::string>{});
    }
}

TEST_F(Integ2Form, KeepsItsSumInSightHoweverOftenTheHelpWasOpened) {
    open(kTwoFalls, kBelow);
    openHelp(300);
    form->click("showWorkedSolution");
    const std::string brackets(300, '(');
    EXPECT_EQ(form->caption("workedSumSegment1").rfind(brackets + "rødt", 0), 0U);
    const QRectF first = form->label("workedSumSegment1").place();
    const QRectF second = form->label("workedSumSegment2").place();
    const QRectF sum = form->label("workedResult").place();
    EXPECT_EQ(first.width(), 140);
    EXPECT_LE(first.right(), form->label("workedSumPlus").place().left());
    EXPECT_LE(form->label("workedSumPlus").place().right(), second.left());
    EXPECT_LE(second.right(), sum.left());
    EXPECT_LT(sum.right(), form->find<Panel>("helpPanel").place().width());
}

}  // namespace
}  // namespace tavrune
