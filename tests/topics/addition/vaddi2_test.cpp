#include "topics/addition/vaddi2.h"

#include <array>
#include <cmath>
#include <map>
#include <set>
#include <span>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/addition/addition_frames.h"
#include "topics/addition/step_sentences.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::DecimalMark;
using test::FormDriver;
using test::Script;

using Strokes = std::vector<Stroke>;

/// The help table, column by column, and the fields of the answer.
const std::vector<std::string> kTable{"price1",
                                      "price2",
                                      "price3",
                                      "price4",
                                      "function1Quantity1",
                                      "function1Quantity2",
                                      "function1Quantity3",
                                      "function1Quantity4",
                                      "function2Quantity1",
                                      "function2Quantity2",
                                      "function2Quantity3",
                                      "function2Quantity4",
                                      "function3Quantity1",
                                      "function3Quantity2",
                                      "function3Quantity3",
                                      "function3Quantity4",
                                      "totalQuantity1",
                                      "totalQuantity2",
                                      "totalQuantity3",
                                      "totalQuantity4"};
const std::vector<std::string> kAnswer{"segment1Slope", "segment1Intercept", "segment1End",
                                       "segment2Slope", "segment2Intercept", "segment2Start",
                                       "segment2End",   "segment3Slope",     "segment3Intercept",
                                       "segment3Start", "segment3End"};

struct Exercise {
    const char* name;
    int direction;
    std::array<std::pair<int, int>, 3> functions;
    int segments;
    bool isEndAsked;
};

// -1Q+9, -0.67Q+8.33 from 2, -0.4Q+7 from 5 to 17.5.
const Exercise kThree{"ThreeWithAnEnd", -1, {{{-1, 9}, {-2, 7}, {-1, 5}}}, 3, true};
// 2Q+1, 0.67Q+2.33 from 1, 0.57Q+2.57 from 2.5.
const Exercise kThreeRising{"ThreeRising", 1, {{{2, 1}, {1, 3}, {4, 4}}}, 3, false};
// -1Q+9, -0.67Q+8.33 from 2, 5 from 5.
const Exercise kThreeLevel{"ThreeOfWhichTheLastIsLevel", -1, {{{-1, 9}, {-2, 7}, {0, 5}}}, 3, false};
// -0.67Q+9, -0.4Q+7.4 from 6 to 18.5.
const Exercise kTwo{"TwoWithAnEnd", -1, {{{-1, 9}, {-2, 9}, {-1, 5}}}, 2, true};
// -1Q+9, 7 from 2.
const Exercise kTwoLevel{"TwoOfWhichTheLastIsLevel", -1, {{{-1, 9}, {0, 7}, {-1, 5}}}, 2, false};
// -0.57Q+8 to 14.
const Exercise kOne{"OneWithAnEnd", -1, {{{-1, 8}, {-2, 8}, {-4, 8}}}, 1, true};
// 1.
const Exercise kOneLevel{"OneLevel", 1, {{{4, 3}, {0, 1}, {2, 2}}}, 1, false};

const std::array kAll{kThree, kThreeRising, kThreeLevel, kTwo, kTwoLevel, kOne, kOneLevel};

Script scriptOf(const Exercise& exercise) {
    Script script{exercise.direction == 1 ? 0.1F : 0.9F};
    for (const auto& [slope, intercept] : exercise.functions) {
        script.push_back(cellOf(std::abs(slope), 5));
        script.push_back(cellOf(intercept - (exercise.direction == 1 ? 0 : 5), 5));
    }
    return script;
}

const GraphScale kScale{0, 0, 10, 10};
const GraphScale kSumScale{0, 0, 20, 10};
const QColor kSum(0, 190, 0);
const QColor kBand1(0, 0, 255);
const QColor kBand2(0, 255, 0);

/// P = slope·Q + intercept with prices running down from 10.
Stroke piece(const GraphScale& scale, double slope, double intercept, double from, double to,
             const QColor& colour = kBlack) {
    return test::StrokesIn{scale}.line(from, 10 - (slope * from + intercept), to,
                                       10 - (slope * to + intercept), colour);
}

Stroke green(double slope, double intercept, double from, double to) {
    return piece(kSumScale, slope, intercept, from, to, kSum);
}

Stroke red(double slope, double intercept, double from, double to) {
    return piece(kSumScale, slope, intercept, from, to, kRed);
}

/// Six upright strokes at a price, the first at x.
Strokes mark(double first, double last, double price) {
    Strokes strokes;
    for (double x = first; x <= last; x += 0.05) {
        strokes.push_back(test::StrokesIn{kScale}.line(x, 10 - price - 0.15, x, 10 - price + 0.15, kRed));
    }
    EXPECT_EQ(strokes.size(), 6U);
    return strokes;
}

Strokes startMark(double price) { return mark(-0.15, 0.15, price); }
Strokes rightMark(double price) { return mark(9.85, 10.15, price); }

/// Five level strokes round a price, the lowest first; above the axis for the price 0.
Strokes band(const GraphScale& scale, double from, double to, double price, const QColor& colour) {
    const double middle = price == 0 ? 9.9 : 10 - price;
    Strokes strokes;
    for (const double t : {-0.1, -0.05, 0.0, 0.05, 0.1}) {
        strokes.push_back(test::StrokesIn{scale}.line(from, middle - t, to, middle - t, colour));
    }
    return strokes;
}

Strokes band1(double to, double price) { return band(kScale, 0, to, price, kBand1); }
Strokes band2(double to, double price) { return band(kScale, 0, to, price, kBand2); }
Strokes band3(double to, double price) { return band(kScale, 0, to, price, kBlack); }

Strokes stack(double from, double to, double price, const QColor& colour) {
    return band(kSumScale, from, to, price, colour);
}

/// Texts for the boxes of the answer, in their order; an empty one is left out.
std::map<std::string, std::string> inOrder(const std::vector<std::string>& texts) {
    std::map<std::string, std::string> result;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!texts[i].empty()) {
            result[kAnswer[i]] = texts[i];
        }
    }
    return result;
}

class Vaddi2Form : public test::ScriptedForm<const Exercise&> {
protected:
    Vaddi2Form() : ScriptedForm(PageName::Vaddi2, scriptOf) {}

    void type(const std::map<std::string, std::string>& texts) const {
        for (const auto& [box, text] : texts) {
            form->type(box, text);
        }
    }

    void answer(const std::map<std::string, std::string>& texts) const {
        type(texts);
        form->click("ok");
    }

    [[nodiscard]] const Strokes& sum() const { return graph("resultGraph").strokes(); }

    /// What stands on the graph of a function besides the function.
    [[nodiscard]] Strokes drawnOn(const std::string& name) const { return test::strokesFrom(graph(name), 1); }

    /// One of the five columns of the help table.
    [[nodiscard]] static std::span<const std::string> column(std::size_t place) {
        return std::span(kTable).subspan(4 * place, 4);
    }
};

const std::map<std::string, std::string> kRightOfThree{
    {"segment1Slope", "-1"},    {"segment1Intercept", "9"},    {"segment1End", "2"},
    {"segment2Slope", "-0.67"}, {"segment2Intercept", "8.33"}, {"segment2Start", "2"},
    {"segment2End", "5"},       {"segment3Slope", "-0.4"},     {"segment3Intercept", "7"},
    {"segment3Start", "5"},     {"segment3End", "17.5"}};
const std::map<std::string, std::string> kRightOfTwo{{"segment1Slope", "-0.67"},   {"segment1Intercept", "9"},
                                                     {"segment1End", "6"},         {"segment2Slope", "-0.4"},
                                                     {"segment2Intercept", "7.4"}, {"segment2Start", "6"},
                                                     {"segment2End", "18.5"}};
const std::map<std::string, std::string> kRightOfOne{
    {"segment2Slope", "-0.57"}, {"segment2Intercept", "8"}, {"segment2End", "14"}};

TEST_F(Vaddi2Form, HasTheTextsOfItsDesign) {
    const FormDriver unshown = FormDriver::unshown(PageName::Vaddi2, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Vandret addition - Niveau 2");
    const test::FixedText texts[]{
        {"function1Text", "P=    Q +    for Q>0, P>0"},
        {"function2Text", "P=    Q +    for Q>0, P>0"},
        {"function3Text", "P=    Q +    for Q>0, P>0"},
        {"tableHead", "    P             Q1         Q2         Q3        Qtotal"},
        {"segment1PriceEquals", "P="},
        {"segment1TimesQuantityPlus", "Q +"},
        {"segment1ZeroLessThanQuantity", " for          0<Q"},
        {"segment1StartLessOrEqual", "<"},
        {"segment1EndLessOrEqual", "<"},
        {"segment2PriceEquals", "P="},
        {"segment2TimesQuantityPlus", "Q +"},
        {"segment2ValidFor", " for"},
        {"segment2LessThanQuantity", "<Q"},
        {"segment2StartLessOrEqual", "<"},
        {"segment2EndLessOrEqual", "<"},
        {"segment3PriceEquals", "P="},
        {"segment3TimesQuantityPlus", "Q +"},
        {"segment3ValidFor", " for"},
        {"segment3LessThanQuantity", "<Q"},
        {"segment3EndLessOrEqual", "<"},
        {"pricesStepNumber", "1)"},
        {"quantitiesStepNumber", "2)"},
        {"sumStepNumber", "3)"},
        {"quantitiesResult", ""},
        {"quantitiesResultRest", ""},
        {"showPrices", "Vis"},
        {"showQuantities", "Vis"},
        {"showSum", "Vis"},
        {"closeHelp", "&Luk"},
    };
    test::expectTexts(unshown, texts);
    EXPECT_FALSE(unshown.isShown("helpPanel"));
}

TEST_F(Vaddi2Form, TellsTheMethodInItsHelp) { test::expectSharedMethod(open(kThree)); }

TEST_F(Vaddi2Form, BeginsEverySentenceInItsStepsOnALineOfItsOwn) {
    test::expectSentencesOnLinesOfTheirOwn(open(kThree), test::kSharedStepSentences);
}

TEST_F(Vaddi2Form, StandsAtItsPlacesToTheUnit) {
    const FormDriver& f = open(kThree);
    for (const char* ofTheGivenFunctions :
         {"function1Text", "function1Slope", "function1Intercept", "function2Text", "function2Slope",
          "function2Intercept", "function3Text", "function3Slope", "function3Intercept",
          "function1QuantityAtLeast", "function1PriceAtLeast", "function2QuantityAtLeast",
          "function2PriceAtLeast", "function3QuantityAtLeast", "function3PriceAtLeast"}) {
        EXPECT_EQ(f.label(ofTheGivenFunctions).place().top(), 176) << ofTheGivenFunctions;
    }
    for (const auto& [box, left, top] : {std::tuple{"segment1End", 184, 312},
                                         {"segment2Start", 128, 336},
                                         {"segment2End", 184, 336},
                                         {"segment3Start", 128, 360},
                                         {"segment3End", 184, 360}}) {
        EXPECT_EQ(f.box(box).place().topLeft(), QPointF(left, top)) << box;
    }
    EXPECT_EQ(f.find<GraphBox>("resultGraphFrame").Control::place().topLeft(), QPointF(328, 192));
    // Eight units lower it would lie over the standing buttons.
    EXPECT_EQ(f.find<Panel>("helpPanel").Control::place(), QRectF(224, 192, 409, 217));
}

TEST_F(Vaddi2Form, HidesTheNameOfTheAxisThatWouldStandHalfBesideItsPanel) {
    SeededDraws seeded{1};
    const FormDriver f(PageName::Vaddi2, seeded);
    EXPECT_TRUE(f.isShown("resultQuantityAxisName"));
    f.click("help");
    EXPECT_FALSE(f.isShown("resultQuantityAxisName"));
    f.click("closeHelp");
    EXPECT_TRUE(f.isShown("resultQuantityAxisName"));
    f.click("help", "newExercise");
    EXPECT_TRUE(f.isShown("resultQuantityAxisName"));
}

TEST_F(Vaddi2Form, UnderlinesTheSignsOfAtLeast) {
    const FormDriver& f = open(kThree);
    for (const char* name : {"function1QuantityAtLeast", "function1PriceAtLeast", "function2QuantityAtLeast",
                             "function2PriceAtLeast", "function3QuantityAtLeast", "function3PriceAtLeast"}) {
        EXPECT_EQ(f.caption(name), ">") << name;
        EXPECT_TRUE(f.label(name).font().underline()) << name;
    }
    test::expectUnderlined(f,
                           {"segment1StartLessOrEqual", "segment1EndLessOrEqual", "segment2StartLessOrEqual",
                            "segment2EndLessOrEqual", "segment3EndLessOrEqual"});
}

TEST_F(Vaddi2Form, TellsTheThreeFunctions) {
    const FormDriver& f = open(kThreeLevel);
    const test::FixedText texts[]{{"function1Slope", "-1"}, {"function1Intercept", "9"},
                                  {"function2Slope", "-2"}, {"function2Intercept", "7"},
                                  {"function3Slope", "0"},  {"function3Intercept", "5"}};
    test::expectTexts(f, texts);
}

TEST_F(Vaddi2Form, StartsEveryExerciseBlankAndWhite) {
    const FormDriver& f = open(kThree);
    f.click("help", "showSum", "closeHelp");
    f.type("segment1Slope", "5");
    next(kOne);
    EXPECT_EQ(contentsOf(kTable), std::vector<std::string>(20, " "));
    EXPECT_EQ(contentsOf(kAnswer), std::vector<std::string>(11, " "));
    EXPECT_EQ(redBoxes(), std::set<std::string>{});
    test::expectTexts(f, {{"quantitiesResult", ""}, {"quantitiesResultRest", ""}});
    EXPECT_EQ(f.focus(), "price1");
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_EQ(draws.randomized(), 2);
    EXPECT_TRUE(draws.isUsedUp());
}

/// What is shown of the answer rows, by the exercise.
class Vaddi2Rows : public Vaddi2Form, public testing::WithParamInterface<Exercise> {};

INSTANTIATE_TEST_SUITE_P(Exercises, Vaddi2Rows, testing::ValuesIn(kAll),
                         [](const testing::TestParamInfo<Exercise>& row) { return row.param.name; });

TEST_P(Vaddi2Rows, ShowWhatTheExerciseAsksFor) {
    const std::set<std::string> firstRow{"segment1PriceEquals",          "segment1Slope",
                                         "segment1TimesQuantityPlus",    "segment1Intercept",
                                         "segment1ZeroLessThanQuantity", "segment1StartLessOrEqual",
                                         "segment1EndLessOrEqual",       "segment1End"};
    const std::set<std::string> secondRow{
        "segment2PriceEquals", "segment2Slope", "segment2TimesQuantityPlus", "segment2Intercept",
        "segment2ValidFor",    "segment2Start", "segment2LessThanQuantity"};
    const std::set<std::string> secondEnd{"segment2EndLessOrEqual", "segment2End"};
    const std::set<std::string> loneStart{"segment2StartLessOrEqual"};
    const std::set<std::string> thirdRow{
        "segment3PriceEquals", "segment3Slope", "segment3TimesQuantityPlus", "segment3Intercept",
        "segment3ValidFor",    "segment3Start", "segment3LessThanQuantity"};
    const std::set<std::string> thirdEnd{"segment3EndLessOrEqual", "segment3End"};
    std::set<std::string> every;
    std::set<std::string> expected;
    const auto add = [&](const std::set<std::string>& names, bool isShown) {
        every.insert(names.begin(), names.end());
        if (isShown) {
            expected.insert(names.begin(), names.end());
        }
    };
    const auto& [name, direction, functions, segments, isEndAsked] = GetParam();
    add(firstRow, segments > 1);
    add(secondRow, true);
    add(secondEnd, segments == 3 || isEndAsked);
    add(loneStart, segments == 1);
    add(thirdRow, segments == 3);
    add(thirdEnd, segments == 3 && isEndAsked);

    open(GetParam());
    const std::vector<std::string> shown(expected.begin(), expected.end());
    EXPECT_EQ(shownOf(every), shown);
    // Whatever came before.
    for (const Exercise& before : {kThree, kOne}) {
        next(before);
        next(GetParam());
        EXPECT_EQ(shownOf(every), shown) << before.name;
    }
}

TEST_P(Vaddi2Rows, AreWalkedByEnterAfterTheTable) {
    const FormDriver& f = open(GetParam());
    std::vector<std::string> expected;
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t place = 0; place < 5; ++place) {
            expected.push_back(column(place)[row]);
        }
    }
    std::copy_if(kAnswer.begin(), kAnswer.end(), std::back_inserter(expected),
                 [&f](const std::string& box) { return f.isShown(box); });
    expected.emplace_back("ok");
    EXPECT_EQ(walkByEnter(), expected);
}

TEST_P(Vaddi2Rows, LeadToTheNextExerciseWithoutOk) {
    const FormDriver& f = open(GetParam());
    const auto& [name, direction, functions, segments, isEndAsked] = GetParam();
    f.click("help", "showSum", "closeHelp");
    const std::string last = segments == 3 ? (isEndAsked ? "segment3End" : "segment3Start")
                             : isEndAsked  ? "segment2End"
                                           : "segment2Start";
    f.box(last).setFocus();
    f.press(last, Qt::Key_Return);
    EXPECT_EQ(f.focus(), "newExercise");
}

TEST_P(Vaddi2Rows, TakeTheAnswerThatTheyAreGiven) {
    const FormDriver& f = open(GetParam());
    f.click("ok", "giveAnswer");
    std::map<std::string, std::string> given;
    for (const std::string& name : kAnswer) {
        if (f.isShown(name)) {
            EXPECT_NE(f.box(name).content(), " ") << name;
            given[name] = f.box(name).content();
        } else {
            EXPECT_EQ(f.box(name).content(), " ") << name;
        }
    }
    next(GetParam());
    answer(given);
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(redBoxes(), std::set<std::string>{});
}

TEST_P(Vaddi2Rows, HaveRoomInEveryState) {
    const DecimalMark danish(",");
    const FormDriver& f = open(GetParam());
    for (const AnswerBox* box : f.page().findChildren<AnswerBox*>()) {
        if (box->isVisible()) {
            f.type(box->objectName().toStdString(), "-99.75");
        }
    }
    f.click("ok");
    EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    f.click("giveAnswer");
    EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    f.click("help", "showSum");
    EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
}

TEST_F(Vaddi2Form, DrawsTheTicksOfItsFramesOnce) {
    open(kThree);
    next(kOne);
    test::expectTicks(*form, {"function1GraphFrame", "function2GraphFrame", "function3GraphFrame"},
                      test::Ticks::Wide);
}

TEST_F(Vaddi2Form, NumbersTheQuantitiesOfTheSumInOneLabelUnderTheirTicks) {
    const FormDriver& f = open(kThree);
    const Label& numbers = f.label("resultQuantityMarks");
    EXPECT_EQ(f.label("resultQuantityMarks").text().simplified().toStdString(),
              "0 2 4 6 8 10 12 14 16 18 20");
    const GraphBox& frame = graph("resultGraphFrame");
    const QString text = numbers.text();
    const QFontMetricsF metrics(numbers.font());
    qsizetype at = 0;
    for (int q = 0; q <= 20; q += 2) {
        const QString number = QString::number(q);
        at = text.indexOf(number, at);
        const double left = numbers.place().left() + metrics.horizontalAdvance(text.left(at));
        const double middle = left + metrics.horizontalAdvance(number) / 2;
        const double tick =
            (1 + 0.9 * q) * frame.Control::place().width() / static_cast<double>(frame.scale().x2);
        EXPECT_NEAR(middle, tick, 4) << q;
        at += number.size();
    }
}

TEST_F(Vaddi2Form, DrawsTheFunctionsAndClearsWhatWasDrawn) {
    const FormDriver& f = open(kThree);
    f.click("help", "showSum");
    next(kThreeRising);
    EXPECT_EQ(graph("function1Graph").strokes(), Strokes{piece(kScale, 2, 1, 0, 10)});
    EXPECT_EQ(graph("function2Graph").strokes(), Strokes{piece(kScale, 1, 3, 0, 10)});
    EXPECT_EQ(graph("function3Graph").strokes(), Strokes{piece(kScale, 4, 4, 0, 10)});
    EXPECT_EQ(sum(), Strokes{});
    EXPECT_EQ(graph("resultGraph").scale(), kSumScale);
}

TEST_F(Vaddi2Form, IsSolvedByKeysAlone) {
    const FormDriver& f = open(kTwo);
    while (f.focus() != "segment1Slope") {
        f.press(f.focus(), Qt::Key_Return);
    }
    for (const char* keys : {"-0,67", "9", "6", "-0,4", "7,4", "6", "18,5"}) {
        const std::string box = f.focus();
        f.type(box, keys);
        f.press(box, Qt::Key_Return);
    }
    EXPECT_EQ(f.focus(), "ok");
    f.press("ok", Qt::Key_Return);
    test::expectSolved(f);
}

TEST_F(Vaddi2Form, DrawsThreeRightSegmentsToTheEdgeOfTheGraph) {
    open(kThree);
    answer(kRightOfThree);
    EXPECT_TRUE(form->isShown("right"));
    EXPECT_EQ(sum(), (Strokes{green(-1, 9, 0, 2), green(-0.67, 8.33, 2, 5), green(-0.4, 7, 5, 20)}));
}

TEST_F(Vaddi2Form, DrawsTwoRightSegmentsToTheEdgeOfTheGraph) {
    open(kTwo);
    answer(kRightOfTwo);
    EXPECT_EQ(sum(), (Strokes{green(-0.67, 9, 0, 6), green(-0.4, 7.4, 6, 20)}));
    next(kTwoLevel);
    answer(inOrder({"-1", "9", "2", "", "7", "2"}));
    EXPECT_EQ(sum(), (Strokes{green(-1, 9, 0, 2), green(0, 7, 2, 20)}));
}

TEST_F(Vaddi2Form, DrawsOneRightSegmentToTheEdgeOfTheGraph) {
    open(kOne);
    answer(kRightOfOne);
    EXPECT_TRUE(form->isShown("right"));
    EXPECT_EQ(sum(), Strokes{green(-0.57, 8, 0, 20)});
}

TEST_F(Vaddi2Form, DoesNotReadItsTable) {
    open(kThree);
    for (const std::string& box : kTable) {
        form->type(box, "99");
    }
    answer(kRightOfThree);
    EXPECT_TRUE(form->isShown("right"));
    EXPECT_EQ(contentsOf(kTable), std::vector<std::string>(20, "99"));
}

TEST_F(Vaddi2Form, MarksEachFieldThatIsOffAndNoOther) {
    const auto expectEachMarked = [this](const Exercise& exercise,
                                         const std::map<std::string, std::string>& right) {
        open(exercise);
        for (const auto& [box, text] : right) {
            std::map<std::string, std::string> typed = right;
            typed[box] = text + "9";
            answer(typed);
            EXPECT_EQ(redBoxes(), std::set<std::string>{box}) << exercise.name;
            test::expectShown(*form, {"wrong", "giveAnswer", "ok"});
        }
    };
    // A 9 after 7.4 or 0.4 is off by 0.09, after 8.33 by 0.009.
    expectEachMarked(kThree, kRightOfThree);
    expectEachMarked(kTwo, kRightOfTwo);
    expectEachMarked(kOne, kRightOfOne);
}

TEST_F(Vaddi2Form, GivesTheFocusToTheFirstFieldAfterAWrongTry) {
    for (const Exercise& exercise : kAll) {
        const FormDriver& f = open(exercise);
        f.click("ok");
        EXPECT_EQ(f.focus(), exercise.segments == 1 ? "segment2Slope" : "segment1Slope") << exercise.name;
    }
}

TEST_F(Vaddi2Form, LeavesTheLowerEndOfTheToleranceWrongAndWhite) {
    open(kThree);
    std::map<std::string, std::string> typed = kRightOfThree;
    typed["segment3End"] = "17.495";
    answer(typed);
    EXPECT_TRUE(form->isShown("wrong"));
    EXPECT_EQ(redBoxes(), std::set<std::string>{});
    answer({{"segment3End", "17.505"}});
    EXPECT_TRUE(form->isShown("right"));
}

TEST_F(Vaddi2Form, WantsALoneSegmentToStartAtZeroExactly) {
    open(kOne);
    std::map<std::string, std::string> typed = kRightOfOne;
    for (const char* start : {"0.004", "-0.001"}) {
        typed["segment2Start"] = start;
        answer(typed);
        EXPECT_TRUE(form->isShown("wrong")) << start;
        EXPECT_EQ(redBoxes(), std::set<std::string>{"segment2Start"}) << start;
    }
    form->box("segment2Start").setContent("");
    form->click("ok");
    EXPECT_TRUE(form->isShown("right"));
}

TEST_F(Vaddi2Form, FitsABlankStartOfThreeEqualIntercepts) {
    open(kOne);
    EXPECT_EQ(form->box("segment2Start").content(), " ");
    answer(kRightOfOne);
    EXPECT_EQ(form->box("segment2Start").content(), " ");
    EXPECT_TRUE(form->isShown("right"));
}

TEST_F(Vaddi2Form, LeavesTheWrongVerdictUnderTheRightOne) {
    const FormDriver& f = open(kOne);
    f.click("ok");
    answer(kRightOfOne);
    test::expectShown(f, {"wrong", "right"});
    EXPECT_FALSE(f.isShown("giveAnswer"));
    const QObjectList& siblings = f.label("right").parent()->children();
    EXPECT_GT(siblings.indexOf(&f.label("right")), siblings.indexOf(&f.label("wrong")));
}

TEST_F(Vaddi2Form, DoesNotAskForAnEndAgainAfterOneThatHadIt) {
    open(kOne);
    answer(kRightOfOne);
    next(kOneLevel);
    answer({{"segment2Intercept", "1"}});
    EXPECT_TRUE(form->isShown("right"));
    EXPECT_EQ(sum(), Strokes{green(0, 1, 0, 20)});
}

TEST_F(Vaddi2Form, GivesTheAnswerInAllItsFields) {
    const FormDriver& f = open(kThree);
    f.click("help", "ok", "giveAnswer");
    EXPECT_EQ(contentsOf(kTable), (std::vector<std::string>{"9", "7", "5", "0",    //
                                                            "0", "2", "4", "9",    //
                                                            " ", "0", "1", "3.5",  //
                                                            " ", " ", "0", "5",    //
                                                            "0", "2", "5", "17.5"}));
    EXPECT_EQ(contentsOf(kAnswer), (std::vector<std::string>{"-1", "9", "2", "-0.67", "8.33", "2", "5",
                                                             "-0.4", "7", "5", "17.5"}));
    EXPECT_EQ(redBoxes(), std::set<std::string>{});
    test::expectHidden(f, {"helpPanel", "ok", "giveAnswer", "wrong", "right"});
    EXPECT_EQ(f.focus(), "newExercise");
}

TEST_F(Vaddi2Form, BlanksTheThirdRowOfTheTableForALevelFunctionInTheMiddle) {
    const FormDriver& f = open(kTwoLevel);
    f.click("ok", "giveAnswer");
    EXPECT_EQ(contentsOf(kTable), (std::vector<std::string>{"9", "7", "5",  " ",  //
                                                            "0", "2", "2",  " ",  //
                                                            " ", "0", "oo", " ",  //
                                                            " ", " ", " ",  " ",  //
                                                            "0", "2", "oo", " "}));
    EXPECT_EQ(contentsOf(kAnswer),
              (std::vector<std::string>{"-1", "9", "2", "0", "7", "2", " ", " ", " ", " ", " "}));
}

TEST_F(Vaddi2Form, GivesZeroForTheStartOfALoneSegment) {
    const FormDriver& f = open(kOne);
    answer({{"segment2Start", "3"}});
    f.click("giveAnswer");
    EXPECT_EQ(contentsOf(kAnswer),
              (std::vector<std::string>{" ", " ", " ", "-0.57", "8", "0", "14", " ", " ", " ", " "}));
}

TEST_F(Vaddi2Form, DrawsThreeTypedSegmentsInRedBeforeTheRightOnes) {
    const FormDriver& f = open(kThree);
    answer(inOrder({"-2", "8", "3", "-0.5", "7", "3.5", "6", "-0.25", "6", "6.5", "16"}));
    EXPECT_EQ(sum(), Strokes{});
    f.click("giveAnswer");
    EXPECT_EQ(sum(), (Strokes{red(-2, 8, 0, 3), red(-0.5, 7, 3.5, 6), red(-0.25, 6, 6.5, 16),
                              green(-1, 9, 0, 2), green(-0.67, 8.33, 2, 5), green(-0.4, 7, 5, 17.5)}));
}

TEST_F(Vaddi2Form, DrawsThreeSegmentsWithoutAnEndPastTheGraph) {
    const FormDriver& f = open(kThreeRising);
    answer(inOrder({"1", "2", "3", "0.5", "1", "4", "5", "0.25", "2", "6"}));
    f.click("giveAnswer");
    EXPECT_EQ(sum(), (Strokes{red(1, 2, 0, 3), red(0.5, 1, 4, 5), red(0.25, 2, 6, 50), green(2, 1, 0, 1),
                              green(0.67, 2.33, 1, 2.5), green(0.57, 2.57, 2.5, 50)}));
}

TEST_F(Vaddi2Form, DrawsTwoTypedSegmentsToTheTypedEndOrPastTheGraph) {
    const FormDriver& f = open(kTwo);
    const std::map<std::string, std::string> typed{{"segment1Slope", "-2"},     {"segment1Intercept", "8"},
                                                   {"segment1End", "3"},        {"segment2Slope", "-1"},
                                                   {"segment2Intercept", "12"}, {"segment2Start", "4"}};
    type(typed);
    answer({{"segment2End", "15"}});
    f.click("giveAnswer");
    EXPECT_EQ(sum(), (Strokes{red(-2, 8, 0, 3), red(-1, 12, 4, 15), green(-0.67, 9, 0, 6),
                              green(-0.4, 7.4, 6, 18.5)}));
    next(kTwoLevel);
    answer(typed);
    f.click("giveAnswer");
    EXPECT_EQ(sum(), (Strokes{red(-2, 8, 0, 3), red(-1, 12, 4, 50), green(-1, 9, 0, 2), green(0, 7, 2, 50)}));
}

TEST_F(Vaddi2Form, DrawsALoneTypedSegmentAsIfItsFarEndHadNoIntercept) {
    const FormDriver& f = open(kOne);
    const test::StrokesIn in{kSumScale};
    answer(inOrder({"", "", "", "-0.5", "6", "2", "12"}));
    f.click("giveAnswer");
    // From 5 at the typed start to -6 at the typed end.
    EXPECT_EQ(sum(), (Strokes{in.line(2, 5, 12, 16, kRed), green(-0.57, 8, 0, 14)}));
    next(kOneLevel);
    answer({{"segment2Slope", "0.5"}, {"segment2Intercept", "6"}, {"segment2Start", "2"}});
    f.click("giveAnswer");
    EXPECT_EQ(sum(), (Strokes{in.line(2, 3, 50, -15, kRed), green(0, 1, 0, 50)}));
}

TEST_F(Vaddi2Form, OpensAndClosesItsHelp) {
    const FormDriver& f = open(kThree);
    f.click("help");
    EXPECT_TRUE(f.isShown("helpPanel"));
    test::expectWayByEnter(f, {"showPrices", "showQuantities", "showSum", "closeHelp"});
    f.press("closeHelp", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("helpPanel"));
    EXPECT_EQ(f.focus(), "price1");
}

TEST_F(Vaddi2Form, WritesThePricesAndMarksTheEndsOfSlopingFunctions) {
    const FormDriver& f = open(kThree);
    f.click("help", "showPrices");
    EXPECT_EQ(contentsOf(column(0)), (std::vector<std::string>{"9", "7", "5", "0"}));
    EXPECT_EQ(contentsOf(std::span(kTable).subspan(4)), std::vector<std::string>(16, " "));
    EXPECT_EQ(contentsOf(kAnswer), std::vector<std::string>(11, " "));
    EXPECT_EQ(drawnOn("function1Graph"), startMark(9) + startMark(0));
    EXPECT_EQ(drawnOn("function2Graph"), startMark(7) + startMark(0));
    EXPECT_EQ(drawnOn("function3Graph"), startMark(5) + startMark(0));
    EXPECT_EQ(sum(), Strokes{});
    EXPECT_EQ(f.caption("quantitiesResult"), "");
}

TEST_F(Vaddi2Form, MarksTheUpperEdgeForRisingFunctions) {
    const FormDriver& f = open(kThreeRising);
    f.click("help", "showPrices");
    EXPECT_EQ(drawnOn("function1Graph"), startMark(1) + startMark(10));
    EXPECT_EQ(drawnOn("function2Graph"), startMark(3) + startMark(10));
    EXPECT_EQ(drawnOn("function3Graph"), startMark(4) + startMark(10));
}

TEST_F(Vaddi2Form, MarksALevelFunctionAtBothSidesAndNoEdge) {
    const FormDriver& f = open(kThreeLevel);
    f.click("help", "showPrices");
    EXPECT_EQ(drawnOn("function1Graph"), startMark(9));
    EXPECT_EQ(drawnOn("function2Graph"), startMark(7));
    EXPECT_EQ(drawnOn("function3Graph"), startMark(5) + rightMark(5));
}

TEST_F(Vaddi2Form, DoesNotMarkAFunctionThatTheSumDoesNotReach) {
    const FormDriver& f = open(kTwoLevel);
    f.click("help", "showPrices");
    EXPECT_EQ(drawnOn("function1Graph"), startMark(9));
    EXPECT_EQ(drawnOn("function2Graph"), startMark(7) + rightMark(7));
    EXPECT_EQ(drawnOn("function3Graph"), Strokes{});
    next(kOneLevel);
    f.click("showPrices");
    EXPECT_EQ(drawnOn("function1Graph"), Strokes{});
    EXPECT_EQ(drawnOn("function2Graph"), startMark(1) + rightMark(1));
    EXPECT_EQ(drawnOn("function3Graph"), Strokes{});
}

TEST_F(Vaddi2Form, DrawsABandForEachQuantityAndTellsThePath) {
    const FormDriver& f = open(kThree);
    f.click("help", "showQuantities");
    EXPECT_EQ(f.focus(), "showSum");
    EXPECT_EQ(drawnOn("function1Graph"),
              startMark(9) + startMark(0) + band1(0, 9) + band1(2, 7) + band1(4, 5) + band1(9, 0));
    EXPECT_EQ(drawnOn("function2Graph"),
              startMark(7) + startMark(0) + band2(0, 7) + band2(1, 5) + band2(3.5, 0));
    EXPECT_EQ(drawnOn("function3Graph"), startMark(5) + startMark(0) + band3(0, 5) + band3(5, 0));
    EXPECT_EQ(sum(), Strokes{});
    EXPECT_EQ(f.caption("quantitiesResult"),
              "Her fra ( 0 ; 9 ) til ( 2 ; 7 ), fra ( 2 ; 7 ) til ( 5 ; 5 ) og fra ");
    EXPECT_EQ(f.caption("quantitiesResultRest"), "( 5 ; 5 ) til ( 17.5 ; 0 ).");
    EXPECT_EQ(contentsOf(column(4)), (std::vector<std::string>{"0", "2", "5", "17.5"}));
    EXPECT_EQ(contentsOf(kAnswer), std::vector<std::string>(11, " "));
    EXPECT_TRUE(f.isShown("ok"));
}

TEST_F(Vaddi2Form, DrawsNoBandForAnUnboundedQuantity) {
    const FormDriver& f = open(kTwoLevel);
    f.click("help", "showQuantities");
    EXPECT_EQ(drawnOn("function1Graph"), startMark(9) + band1(0, 9) + band1(2, 7) + band1(2, 5));
    EXPECT_EQ(drawnOn("function2Graph"), startMark(7) + rightMark(7) + band2(0, 7));
    EXPECT_EQ(drawnOn("function3Graph"), Strokes{});
    EXPECT_EQ(f.caption("quantitiesResult"),
              "Her fra ( 0 ; 9 ) til ( 2 ; 7 ) og fra ( 2 ; 7 ) til ( oo ; 5 ).");
    EXPECT_EQ(f.caption("quantitiesResultRest"), "");
}

TEST_F(Vaddi2Form, StacksTheQuantitiesAndDrawsTheSum) {
    const FormDriver& f = open(kThree);
    f.click("help", "showSum");
    EXPECT_EQ(sum(), (stack(0, 2, 7, kBand1) + stack(2, 2, 7, kBand2) +                           //
                      stack(0, 4, 5, kBand1) + stack(4, 5, 5, kBand2) + stack(5, 5, 5, kBlack) +  //
                      stack(0, 9, 0, kBand1) + stack(9, 12.5, 0, kBand2) + stack(12.5, 17.5, 0, kBlack) +
                      Strokes{green(-1, 9, 0, 2), green(-0.67, 8.33, 2, 5), green(-0.4, 7, 5, 50)}));
    EXPECT_EQ(contentsOf(kAnswer), (std::vector<std::string>{"-1", "9", "2", "-0.67", "8.33", "2", "5",
                                                             "-0.4", "7", "5", "17.5"}));
    EXPECT_FALSE(f.isShown("ok"));
    EXPECT_EQ(f.focus(), "closeHelp");
}

TEST_F(Vaddi2Form, StacksOnlyNumbers) {
    const FormDriver& f = open(kOneLevel);
    f.click("help", "showSum");
    EXPECT_EQ(sum(), Strokes{green(0, 1, 0, 50)});
    EXPECT_EQ(f.box("segment2Start").content(), "0");
    next(kThreeLevel);
    f.click("showSum");
    EXPECT_EQ(sum(), (stack(0, 2, 7, kBand1) + stack(2, 2, 7, kBand2) +                           //
                      stack(0, 4, 5, kBand1) + stack(4, 5, 5, kBand2) + stack(5, 5, 5, kBlack) +  //
                      stack(0, 4, 0, kBand1) + stack(4, 5, 0, kBand2) +
                      Strokes{green(-1, 9, 0, 2), green(-0.67, 8.33, 2, 5), green(0, 5, 5, 50)}));
    next(kOne);
    f.click("showSum");
    EXPECT_EQ(sum(), (stack(0, 8, 0, kBand1) + stack(8, 12, 0, kBand2) + stack(12, 14, 0, kBlack) +
                      Strokes{green(-0.57, 8, 0, 50)}));
    EXPECT_EQ(f.box("segment2Start").content(), "0");
}

TEST_F(Vaddi2Form, DrawsTheStepsOnTopOfOneAnother) {
    const FormDriver& f = open(kTwo);
    f.click("help", "showPrices", "showQuantities", "showSum");
    const Strokes marks = startMark(9) + startMark(0);
    const Strokes bands = band1(0, 9) + band1(4, 5) + band1(9, 0);
    EXPECT_EQ(drawnOn("function1Graph"), marks + marks + bands + marks + bands);
    const std::size_t once = sum().size();
    f.click("showSum");
    EXPECT_EQ(sum().size(), 2 * once);
}

TEST_F(Vaddi2Form, KeepsTheOfferOfTheAnswerAfterItsLastStep) {
    const FormDriver& f = open(kThree);
    f.click("ok");
    EXPECT_FALSE(redBoxes().empty());
    f.click("help", "showSum");
    EXPECT_EQ(redBoxes(), std::set<std::string>{});
    test::expectShown(f, {"wrong", "giveAnswer"});
    EXPECT_FALSE(f.isShown("ok"));
    // What stands in the boxes by now is the right answer.
    f.click("giveAnswer");
    EXPECT_EQ(test::strokesFrom(graph("resultGraph"), sum().size() - 6),
              (Strokes{red(-1, 9, 0, 2), red(-0.67, 8.33, 2, 5), red(-0.4, 7, 5, 17.5), green(-1, 9, 0, 2),
                       green(-0.67, 8.33, 2, 5), green(-0.4, 7, 5, 17.5)}));
}

TEST_F(Vaddi2Form, KeepsThePanelOpenWhileTheExerciseGoesOn) {
    const FormDriver& f = open(kOne);
    f.click("help");
    answer(kRightOfOne);
    test::expectShown(f, {"right", "helpPanel"});
    f.click("showSum");
    EXPECT_TRUE(f.isShown("right"));
}

TEST_F(Vaddi2Form, TakesAnyTypedNumber) {
    const FormDriver& f = open(kOne);
    for (const char* text : {"1e308", "-1e308", "abc", "", "1e999"}) {
        for (const char* box : {"segment2Slope", "segment2Intercept", "segment2Start", "segment2End"}) {
            f.box(box).setContent(text);
        }
        f.click("ok");
        EXPECT_TRUE(f.isShown("wrong")) << text;
        f.click("giveAnswer");
        EXPECT_EQ(sum().size(), 2U) << text;
        next(kOne);
    }
}

TEST(Vaddi2Play, IsSolvedByItsOwnAnswerThroughManyExercises) {
    SeededDraws draws(11);
    const FormDriver f(PageName::Vaddi2, draws);
    for (int exercise = 0; exercise < 200; ++exercise) {
        const auto& state = dynamic_cast<const Vaddi2&>(f.page()).state();
        std::size_t asked = 0;
        for (const AnswerField& field : answerFields(state)) {
            constexpr std::array<std::array<const char*, 4>, 3> kNames{
                {{"segment1Slope", "segment1Intercept", "", "segment1End"},
                 {"segment2Slope", "segment2Intercept", "segment2Start", "segment2End"},
                 {"segment3Slope", "segment3Intercept", "segment3Start", "segment3End"}}};
            const std::size_t slot = field.slot == Slot::Slope       ? 0
                                     : field.slot == Slot::Intercept ? 1
                                     : field.slot == Slot::Start     ? 2
                                                                     : 3;
            const std::string name = kNames.at(static_cast<std::size_t>(field.row)).at(slot);
            ASSERT_TRUE(f.isShown(name)) << "exercise " << exercise;
            f.box(name).setContent(NumberText(field.target.value));
            ++asked;
        }
        const auto shown = std::count_if(kAnswer.begin(), kAnswer.end(),
                                         [&f](const std::string& box) { return f.isShown(box); });
        ASSERT_EQ(static_cast<std::size_t>(shown), asked) << "exercise " << exercise;
        f.button("ok").click();
        ASSERT_TRUE(f.isShown("right")) << "exercise " << exercise;
        f.button("help").click();
        f.button("showSum").click();
        f.button("newExercise").click();
    }
}

}  // namespace
}  // namespace tavrune
