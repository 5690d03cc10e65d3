#include "topics/addition/laddi2.h"

#include <set>

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "support/decimal_mark.h"
#include "support/fixed_texts.h"
#include "support/form_driver.h"
#include "support/looks.h"
#include "support/strokes.h"
#include "support/verdict.h"
#include "topics/addition/laddi2_script.h"
#include "topics/addition/vertical_fixture.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::DrawnKinked;
using test::DrawnPiece;
using test::FixedText;
using test::FormDriver;
using test::kAt3EndsAt12;
using test::kAt3EndsAt4And4th;
using test::kAt3EndsAt8;
using test::kAt3Rises;
using test::kAt4EndsAt10;
using test::kAt4EndsAt6;
using test::kAt4EndsAt6Too;
using test::kAt4IsLevel;
using test::kAt4Rises;
using test::kAt5EndsAt10;
using test::kAt5EndsAt6And4th;
using test::kAt5IsLevel;
using test::kAt5Rises;
using test::kFunction;
using test::kSum;
using test::kSumGreenAsSeen;
using test::mark;
using test::ScriptedDraws;
using test::scriptOf;
using test::Strokes;
using test::Typed;
using test::whereIs;

// Ends in thirds: 3, 4, 16/3 and 20/3.
constexpr DrawnKinked kAt3EndsInThirds{3, {1, 2}, {-3, 16}};
constexpr DrawnKinked kAt4EndsInThirds{4, {0, 3}, {-3, 20}};
constexpr double kThirds1 = 16.0 / 3;
constexpr double kThirds2 = 20.0 / 3;

Strokes dotted(std::initializer_list<double> quantities) {
    Strokes strokes;
    for (const double q : quantities) {
        strokes.push_back(kFunction.line(q, 0, q, 10, kBlack, LineStyle::Dotted));
    }
    return strokes;
}

/// A line of the sum, from one point to another by quantity and price.
Stroke sumLine(double fromQ, double fromP, double toQ, double toP, const QColor& colour = kSumGreenAsSeen) {
    return kSum.line(fromQ, 20 - fromP, toQ, 20 - toP, colour);
}

class Laddi2Form : public test::VerticalForm<DrawnKinked> {
protected:
    Laddi2Form() : VerticalForm(PageName::Laddi2, "right", 2) {}

    // 1Q+6 up to 3, -4Q+21 up to 4.25, 0Q+4 up to 5, -1Q+10 up to 10.
    FormDriver& openFour() { return open(kAt3EndsAt4And4th, kAt5EndsAt10); }
    // 1Q+6 up to 3, 1Q+2 up to 5, 3Q-11.
    FormDriver& openThree() { return open(kAt3Rises, kAt5Rises); }
    // 3Q+4 up to 4, 4Q-12.
    FormDriver& openTwo() { return open(kAt4Rises, kAt4IsLevel); }
    // 1Q+5 up to 3, -2Q+19 up to 4, -6Q+36 up to 16/3, -3Q+20 up to 20/3.
    FormDriver& openThirds() { return open(kAt3EndsInThirds, kAt4EndsInThirds); }
};

const Typed kAnswerOfFour{
    {"segment1Slope", "1"},      {"segment1Intercept", "6"}, {"segment1End", "3"},    {"segment2Slope", "-4"},
    {"segment2Intercept", "21"}, {"segment2Start", "3"},     {"segment2End", "4.25"}, {"segment3Slope", "0"},
    {"segment3Intercept", "4"},  {"segment3Start", "4.25"},  {"segment3End", "5"},    {"segment4Slope", "-1"},
    {"segment4Intercept", "10"}, {"segment4Start", "5"},     {"segment4End", "10"}};
const Typed kAnswerOfThree{{"segment1Slope", "1"}, {"segment1Intercept", "6"}, {"segment1End", "3"},
                           {"segment2Slope", "1"}, {"segment2Intercept", "2"}, {"segment2Start", "3"},
                           {"segment2End", "5"},   {"segment3Slope", "3"},     {"segment3Intercept", "-11"},
                           {"segment3Start", "5"}};
const Typed kAnswerOfTwo{{"segment1Slope", "3"}, {"segment1Intercept", "4"},   {"segment1End", "4"},
                         {"segment2Slope", "4"}, {"segment2Intercept", "-12"}, {"segment2Start", "4"}};
const Typed kAnswerOfThirds{
    {"segment1Slope", "1"},      {"segment1Intercept", "5"}, {"segment1End", "3"},    {"segment2Slope", "-3"},
    {"segment2Intercept", "19"}, {"segment2Start", "3"},     {"segment2End", "4"},    {"segment3Slope", "-6"},
    {"segment3Intercept", "36"}, {"segment3Start", "4"},     {"segment3End", "5.33"}, {"segment4Slope", "-3"},
    {"segment4Intercept", "20"}, {"segment4Start", "5.33"},  {"segment4End", "6.67"}};

Typed with(Typed typed, const Typed& others) {
    for (const auto& [box, text] : others) {
        typed[box] = text;
    }
    return typed;
}

std::set<std::string> boxesOf(const Typed& typed) {
    std::set<std::string> boxes;
    for (const auto& [box, text] : typed) {
        boxes.insert(box);
    }
    return boxes;
}

TEST_F(Laddi2Form, StartsWithoutHelpAndVerdict) {
    const FormDriver unshown = FormDriver::unshown(PageName::Laddi2, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Lodret addition - Niveau 2");
    for (const char* hidden : {"giveAnswer", "wrong", "right", "helpPanel"}) {
        EXPECT_FALSE(unshown.isShown(hidden)) << hidden;
    }
    for (const char* blank : {"function1Part1Slope", "function1Part2Intercept", "function2Part2Start",
                              "intervalsHeading", "intervalsResult", "intervalsResultRest", "segment1Result",
                              "segment2Result", "segment3Result", "segment4Result"}) {
        EXPECT_EQ(unshown.caption(blank), "") << blank;
    }
}

TEST_F(Laddi2Form, HasItsFixedTexts) {
    const FixedText texts[]{
        {"function1Part1Text", "P=    Q +      for  0<Q"},
        {"function2Part1Text", "P=    Q +      for  0<Q"},
        {"task", "Adder de ovenstående linier lodret og skriv de nye forskrifter i rubrikkerne nederst."},
        {"segment1ZeroLessThanQuantity", "for          0<Q"},
        {"segment2LessThanQuantity", "<Q"},
        {"functionsStepText",
         "Bestem forskrifterne for de resulterende funktioner ved først at bestemme hvilke grafer der er "
         "defineret i de fundne intervaller og dernæst lægge deres alfa- og betaværdier sammen."},
        {"showIntervals", "Vis"},
        {"showFunctions", "Vis"},
        {"closeHelp", "&Luk"}};
    test::expectTexts(openFour(), texts);
    EXPECT_EQ(form->label("intervalsStepText").text().simplified().toStdString(),
              "Bestem definitionsintervallerne for de resulterende funktioner: Find vha. de opgivne "
              "definitionsmængder Q-værdierne til de opgivne funktioners endepunkter. Disse Q-værdier ordnes "
              "efter størrelse, og derved fremkommer de resulterende funktioners definitionsintervaller.");
}

TEST_F(Laddi2Form, UnderlinesTheSignsForAtMost) {
    const FormDriver& f = openFour();
    for (const char* sign :
         {"function1Part1StartLessOrEqual", "function1Part1EndLessOrEqual", "function2Part1StartLessOrEqual",
          "function2Part1EndLessOrEqual", "segment1StartLessOrEqual", "segment1EndLessOrEqual",
          "segment2EndLessOrEqual", "segment3EndLessOrEqual", "segment4EndLessOrEqual"}) {
        EXPECT_TRUE(f.label(sign).font().underline()) << sign;
        EXPECT_EQ(f.caption(sign), "<") << sign;
    }
    for (const char* plain :
         {"function1Part1Text", "function1Part2Text", "segment1ZeroLessThanQuantity",
          "segment2LessThanQuantity", "segment3LessThanQuantity", "segment4LessThanQuantity"}) {
        EXPECT_FALSE(f.label(plain).font().underline()) << plain;
    }
}

TEST_F(Laddi2Form, WritesTheFunctionsIntoTheirLines) {
    const FormDriver& f = open({3, {-1, 4}, {-4, 21}}, kAt5Rises);
    const auto expect = [&f](std::initializer_list<FixedText> captions) {
        for (const auto& [label, caption] : captions) {
            EXPECT_EQ(f.caption(label), caption) << label;
        }
    };
    expect({{"function1Part1Slope", "-1"}, {"function1Part1Intercept", "4"}, {"function1Part1End", "3"}});
    expect({{"function1Part2Text", "P=    Q +      for    <Q, P>0"},
            {"function1Part2Slope", "-4"},
            {"function1Part2Intercept", "21"},
            {"function1Part2Start", "3"}});
    expect({{"function2Part1Slope", "0"}, {"function2Part1Intercept", "4"}, {"function2Part1End", "5"}});
    expect({{"function2Part2Text", "P=    Q -       for    <Q, P>0"},
            {"function2Part2Slope", "2"},
            {"function2Part2Intercept", "9"},
            {"function2Part2Start", "5"}});
    // The line changes back with the sign.
    nextExercise({7, {4, 4}, {4, -27}}, {3, {1, 2}, {1, 0}});
    expect({{"function1Part2Text", "P=    Q -       for    <Q, P>0"},
            {"function1Part2Slope", "4"},
            {"function1Part2Intercept", "27"},
            {"function1Part2Start", "7"}});
    expect({{"function2Part2Text", "P=    Q +      for    <Q, P>0"},
            {"function2Part2Slope", "1"},
            {"function2Part2Intercept", "0"},
            {"function2Part2Start", "3"}});
}

TEST_F(Laddi2Form, ShowsTheSlopeOfALevelPieceThatWasDrawnAsFallingWithoutASign) {
    const FormDriver& f = open(kAt5IsLevel, {4, {0, 3}, {0, 9}});
    EXPECT_EQ(f.caption("function1Part2Slope"), "0");
    EXPECT_EQ(f.caption("function2Part2Slope"), "0");
    answer({{"segment1Slope", "9"}});
    f.click("giveAnswer");
    EXPECT_EQ(f.box("segment2End").content(), "5");
    EXPECT_EQ(f.box("segment3Slope").content(), "0");
    EXPECT_EQ(f.box("segment3Intercept").content(), "16");
}

// A jump at a kink is normal: the pieces are not joined.
TEST_F(Laddi2Form, DrawsBothPiecesOfEachFunctionWithoutJoiningThem) {
    const FormDriver& f = openFour();
    EXPECT_EQ(f.find("function1Graph").parentWidget(), &f.find("function1GraphFrame"));
    EXPECT_EQ(f.find("function2Graph").parentWidget(), &f.find("function2GraphFrame"));
    EXPECT_EQ(f.find("resultGraph").parentWidget(), &f.find("resultGraphFrame"));
    EXPECT_LT(whereIs(f, "function1GraphFrame").right(), whereIs(f, "function2GraphFrame").left());
    EXPECT_EQ(strokes("function1Graph"), (Strokes{kFunction.line(0, 8, 3, 5), kFunction.line(3, 5, 10, 33)}));
    EXPECT_EQ(strokes("function2Graph"), (Strokes{kFunction.line(0, 6, 5, 6), kFunction.line(5, 5, 10, 10)}));
    EXPECT_TRUE(strokes("resultGraph").empty());
    nextExercise(kAt4Rises, kAt4IsLevel);
    EXPECT_EQ(strokes("function1Graph"),
              (Strokes{kFunction.line(0, 9, 4, -3), kFunction.line(4, 9, 10, -15)}));
    EXPECT_EQ(strokes("function2Graph"), (Strokes{kFunction.line(0, 7, 4, 7), kFunction.line(4, 7, 10, 7)}));
}

TEST_F(Laddi2Form, DrawsTheTicksOfEachFrameOnceForAllItsExercises) {
    openFour();
    nextExercise(kAt4Rises, kAt4IsLevel);
    for (const char* name : {"function2GraphFrame", "function1GraphFrame"}) {
        const test::StrokesIn in{form->find<GraphBox>(name).scale()};
        Strokes expected;
        for (double t = 0.2; t <= 8.5; t += 0.8) {
            expected.push_back(in.line(t + 0.8, 8.2, t + 0.8, 8.4));
            expected.push_back(in.line(0.8, t, 1, t));
        }
        EXPECT_EQ(expected.size(), 22U);
        EXPECT_EQ(strokes(name), expected) << name;
    }
    const test::StrokesIn in{form->find<GraphBox>("resultGraphFrame").scale()};
    Strokes expected;
    for (double t = 0.2; t <= 8.5; t += 0.8) {
        expected.push_back(in.line(t + 0.8, 19.5, t + 0.8, 19.75));
    }
    for (double t = 1; t <= 19.6; t += 0.925) {
        expected.push_back(in.line(0.8, t, 1, t));
    }
    EXPECT_EQ(expected.size(), 32U);
    EXPECT_EQ(strokes("resultGraphFrame"), expected);
}

TEST_F(Laddi2Form, SetsItsFramesSoThatTheTicksMeetTheBoxes) {
    const FormDriver& f = openFour();
    struct Row {
        const char* frame;
        const char* box;
        double unitX, unitY, top, bottom;
    };
    for (const Row& row : {Row{"function1GraphFrame", "function1Graph", 280.5, 280.5, 0.2, 8.2},
                           Row{"function2GraphFrame", "function2Graph", 280.5, 280.5, 0.2, 8.2},
                           Row{"resultGraphFrame", "resultGraph", 285.64, 242.93, 1, 19.5}}) {
        const GraphBox& frame = f.find<GraphBox>(row.frame);
        const QRectF box = whereIs(f, row.box);
        EXPECT_NEAR(box.left(), fromTwips(row.unitX), 0.5) << row.box;
        EXPECT_NEAR(box.right(), 9 * fromTwips(row.unitX), 0.75) << row.box;
        EXPECT_NEAR(box.top(), row.top * fromTwips(row.unitY), 0.5) << row.box;
        EXPECT_NEAR(box.bottom(), row.bottom * fromTwips(row.unitY), 0.7) << row.box;
        EXPECT_NEAR(whereIs(f, row.frame).width() / frame.scale().x2, fromTwips(row.unitX), 0.005)
            << row.frame;
        EXPECT_NEAR(whereIs(f, row.frame).height() / frame.scale().y2, fromTwips(row.unitY), 0.005)
            << row.frame;
    }
}

struct KindRow {
    const char* name;
    DrawnKinked function1, function2;
    int segments;
    bool isUpperEndAsked;
};

const std::vector<std::string> kBoxes{
    "segment1Slope", "segment1Intercept", "segment1End",       "segment2Slope",     "segment2Intercept",
    "segment2Start", "segment2End",       "segment3Slope",     "segment3Intercept", "segment3Start",
    "segment3End",   "segment4Slope",     "segment4Intercept", "segment4Start",     "segment4End"};

/// The captions of a row of the answer, and the sign before its end.
struct RowNames {
    std::array<const char*, 4> captions;
    const char* beforeEnd;
};

constexpr std::array kRowNames{
    RowNames{{"segment1PriceEquals", "segment1TimesQuantityPlus", "segment1ZeroLessThanQuantity",
              "segment1StartLessOrEqual"},
             "segment1EndLessOrEqual"},
    RowNames{
        {"segment2PriceEquals", "segment2TimesQuantityPlus", "segment2ValidFor", "segment2LessThanQuantity"},
        "segment2EndLessOrEqual"},
    RowNames{
        {"segment3PriceEquals", "segment3TimesQuantityPlus", "segment3ValidFor", "segment3LessThanQuantity"},
        "segment3EndLessOrEqual"},
    RowNames{
        {"segment4PriceEquals", "segment4TimesQuantityPlus", "segment4ValidFor", "segment4LessThanQuantity"},
        "segment4EndLessOrEqual"}};

void PrintTo(const KindRow& row, std::ostream* out) { *out << row.name; }

/// The boxes that a kind shows.
std::vector<std::string> boxesOf(const KindRow& row) {
    const int whole[]{0, 3, 6, 10, 14};
    return {kBoxes.begin(), kBoxes.begin() + whole[row.segments] + (row.isUpperEndAsked ? 1 : 0)};
}

class Laddi2Kinds : public Laddi2Form, public testing::WithParamInterface<KindRow> {
protected:
    void SetUp() override {
        // Another kind before it leaves nothing behind.
        if (GetParam().segments == 4) {
            openTwo();
        } else {
            openFour();
        }
        nextExercise(GetParam().function1, GetParam().function2);
    }
};

TEST_P(Laddi2Kinds, ShowTheFieldsOfTheExercise) {
    const std::vector<std::string> shown = boxesOf(GetParam());
    for (const std::string& name : kBoxes) {
        EXPECT_EQ(form->isShown(name), std::count(shown.begin(), shown.end(), name) == 1) << name;
    }
    int row = 0;
    for (const RowNames& names : kRowNames) {
        ++row;
        for (const char* caption : names.captions) {
            EXPECT_EQ(form->isShown(caption), row <= GetParam().segments) << caption;
        }
        EXPECT_EQ(form->isShown(names.beforeEnd),
                  row < GetParam().segments || (row == GetParam().segments && GetParam().isUpperEndAsked))
            << names.beforeEnd;
    }
    EXPECT_EQ(form->focus(), "segment1Slope");
}

TEST_P(Laddi2Kinds, WalkThroughTheFieldsByEnter) {
    std::vector<std::string> walked{form->focus()};
    while (form->isFocusInABox()) {
        form->press(walked.back(), Qt::Key_Return);
        walked.push_back(form->focus());
    }
    std::vector<std::string> expected = boxesOf(GetParam());
    expected.emplace_back("ok");
    EXPECT_EQ(walked, expected);
}

TEST_P(Laddi2Kinds, LeadFromTheLastFieldToTheNextExerciseOnceTheAnswerIsGiven) {
    answer({{"segment1Slope", "99"}});
    form->click("giveAnswer");
    const std::string last = boxesOf(GetParam()).back();
    form->box(last).setFocus();
    form->press(last, Qt::Key_Return);
    EXPECT_EQ(form->focus(), "newExercise");
}

TEST_P(Laddi2Kinds, CloseTheirHelpTowardsTheFirstField) {
    form->click("help");
    EXPECT_TRUE(form->isShown("helpPanel"));
    EXPECT_EQ(form->focus(), "showIntervals");
    form->press("showIntervals", Qt::Key_Return);
    EXPECT_EQ(form->focus(), "showFunctions");
    form->press("showFunctions", Qt::Key_Return);
    EXPECT_EQ(form->focus(), "closeHelp");
    EXPECT_TRUE(form->isShown("ok"));
    form->press("closeHelp", Qt::Key_Return);
    EXPECT_FALSE(form->isShown("helpPanel"));
    EXPECT_EQ(form->focus(), "segment1Slope");
}

INSTANTIATE_TEST_SUITE_P(Kinds, Laddi2Kinds,
                         testing::Values(KindRow{"TwoWithoutEnd", kAt4Rises, kAt4IsLevel, 2, false},
                                         KindRow{"TwoWithEnd", kAt4EndsAt6, kAt4EndsAt6Too, 2, true},
                                         KindRow{"ThreeWithoutEnd", kAt3Rises, kAt5Rises, 3, false},
                                         KindRow{"ThreeWithEnd", kAt4EndsAt10, kAt4EndsAt6, 3, true},
                                         KindRow{"FourWithoutEnd", kAt3EndsAt4And4th, kAt5IsLevel, 4, false},
                                         KindRow{"FourWithEnd", kAt3EndsAt8, kAt5EndsAt10, 4, true}),
                         [](const auto& row) { return row.param.name; });

TEST_F(Laddi2Form, BlanksItsFieldsWithOneBlankEach) {
    openFour();
    answer({{"segment1Slope", "9"}, {"segment4End", "9"}});
    EXPECT_FALSE(redBoxes().empty());
    nextExercise(kAt4Rises, kAt4IsLevel);
    for (const AnswerBox* box : form->page().findChildren<AnswerBox*>()) {
        EXPECT_EQ(box->content(), " ");
    }
    EXPECT_TRUE(redBoxes().empty());
}

struct JudgeRow {
    const char* name;
    DrawnKinked function1, function2;
    Typed typed;
    bool isRight;
    std::set<std::string> red;
};

void PrintTo(const JudgeRow& row, std::ostream* out) { *out << row.name; }

class Laddi2Judging : public Laddi2Form, public testing::WithParamInterface<JudgeRow> {};

TEST_P(Laddi2Judging, TellsRightFromWrong) {
    const JudgeRow& row = GetParam();
    const FormDriver& f = open(row.function1, row.function2);
    answer(row.typed);
    row.isRight ? test::expectSolved(f) : test::expectWrong(f, "segment1Slope");
    EXPECT_EQ(redBoxes(), row.red);
    EXPECT_EQ(strokes("resultGraph").empty(), !row.isRight);
}

JudgeRow ofFour(const char* name, const Typed& others, bool isRight, const std::set<std::string>& red) {
    return {name, kAt3EndsAt4And4th, kAt5EndsAt10, with(kAnswerOfFour, others), isRight, red};
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Laddi2Judging,
    testing::Values(
        JudgeRow{"TwoSegments", kAt4Rises, kAt4IsLevel, kAnswerOfTwo, true, {}},
        JudgeRow{"TwoSegmentsWithAnEnd",
                 kAt4EndsAt6,
                 kAt4EndsAt6Too,
                 {{"segment1Slope", "3"},
                  {"segment1Intercept", "4"},
                  {"segment1End", "4"},
                  {"segment2Slope", "-7"},
                  {"segment2Intercept", "42"},
                  {"segment2Start", "4"},
                  {"segment2End", "6"}},
                 true,
                 {}},
        JudgeRow{"ThreeSegments", kAt3Rises, kAt5Rises, kAnswerOfThree, true, {}},
        JudgeRow{"ThreeSegmentsWithAnEnd",
                 kAt4EndsAt10,
                 kAt4EndsAt6,
                 {{"segment1Slope", "3"},
                  {"segment1Intercept", "4"},
                  {"segment1End", "4"},
                  {"segment2Slope", "-5"},
                  {"segment2Intercept", "34"},
                  {"segment2Start", "4"},
                  {"segment2End", "6"},
                  {"segment3Slope", "-1"},
                  {"segment3Intercept", "10"},
                  {"segment3Start", "6"},
                  {"segment3End", "10"}},
                 true,
                 {}},
        ofFour("FourSegmentsWithAnEnd", {}, true, {}),
        JudgeRow{
            "FourSegments",
            kAt3EndsAt4And4th,
            kAt5Rises,
            with(kAnswerOfFour, {{"segment4Slope", "2"}, {"segment4Intercept", "-9"}, {"segment4End", " "}}),
            true,
            {}},
        JudgeRow{"FourSegmentsInThirds", kAt3EndsInThirds, kAt4EndsInThirds, kAnswerOfThirds, true, {}},
        // Its third slope is 0, which a blank fits.
        JudgeRow{"NothingOfFourSegments",
                 kAt3EndsAt4And4th,
                 kAt5EndsAt10,
                 {},
                 false,
                 {"segment1Slope", "segment1Intercept", "segment1End", "segment2Slope", "segment2Intercept",
                  "segment2Start", "segment2End", "segment3Intercept", "segment3Start", "segment3End",
                  "segment4Slope", "segment4Intercept", "segment4Start", "segment4End"}},
        JudgeRow{"NothingOfThreeSegments", kAt3Rises, kAt5Rises, {}, false, boxesOf(kAnswerOfThree)},
        JudgeRow{"NothingOfTwoSegments", kAt4Rises, kAt4IsLevel, {}, false, boxesOf(kAnswerOfTwo)},
        ofFour("AlmostTheFirstSlope", {{"segment1Slope", "1.001"}}, false, {"segment1Slope"}),
        ofFour("AlmostTheFirstIntercept", {{"segment1Intercept", "5.999"}}, false, {"segment1Intercept"}),
        ofFour("AlmostTheSecondSlope", {{"segment2Slope", "-4.001"}}, false, {"segment2Slope"}),
        ofFour("AlmostTheSecondIntercept", {{"segment2Intercept", "21.001"}}, false, {"segment2Intercept"}),
        ofFour("AlmostTheThirdSlope", {{"segment3Slope", "0.001"}}, false, {"segment3Slope"}),
        ofFour("AlmostTheThirdIntercept", {{"segment3Intercept", "3.999"}}, false, {"segment3Intercept"}),
        ofFour("AlmostTheFourthSlope", {{"segment4Slope", "-0.999"}}, false, {"segment4Slope"}),
        ofFour("AlmostTheFourthIntercept", {{"segment4Intercept", "10.001"}}, false, {"segment4Intercept"}),
        ofFour("TheUpperEndAtItsBound", {{"segment4End", "10.005"}}, true, {}),
        ofFour("TheUpperEndAtItsLowerBound", {{"segment4End", "9.995"}}, true, {}),
        ofFour("BeyondTheUpperEnd", {{"segment4End", "10.0051"}}, false, {"segment4End"}),
        ofFour("BeforeTheUpperEnd", {{"segment4End", "9.9949"}}, false, {"segment4End"}),
        ofFour("EveryBreakTypedWrongly",
               {{"segment1End", "9"},
                {"segment2Start", "-1"},
                {"segment2End", " "},
                {"segment3Start", "x"},
                {"segment3End", "1e308"},
                {"segment4Start", "-1e308"}},
               true, {}),
        ofFour("ABreakAndASlopeWrong", {{"segment3Slope", "1"}, {"segment1End", "3.006"}}, false,
               {"segment1End", "segment3Slope"}),
        ofFour("TheSecondBreakInBothItsFields",
               {{"segment3Slope", "1"}, {"segment2End", "4.2"}, {"segment3Start", "4.3"}}, false,
               {"segment2End", "segment3Slope", "segment3Start"}),
        ofFour("TheThirdBreakInBothItsFields",
               {{"segment3Slope", "1"}, {"segment3End", "4.99"}, {"segment4Start", "5.01"}}, false,
               {"segment3Slope", "segment3End", "segment4Start"}),
        ofFour("BreaksAtTheirBounds",
               {{"segment3Slope", "1"},
                {"segment1End", "3.005"},
                {"segment2Start", "2.995"},
                {"segment2End", "4.255"},
                {"segment3Start", "4.245"}},
               false, {"segment3Slope"}),
        JudgeRow{"BreaksByTheirUnroundedValue",
                 kAt3EndsInThirds,
                 kAt4EndsInThirds,
                 with(kAnswerOfThirds,
                      {{"segment1Slope", "9"}, {"segment3End", "5.338"}, {"segment4Start", "5.327"}}),
                 false,
                 {"segment1Slope", "segment4Start"}},
        JudgeRow{"TheUpperEndByItsRoundedValue",
                 kAt3EndsInThirds,
                 kAt4EndsInThirds,
                 with(kAnswerOfThirds, {{"segment4End", "6.674"}}),
                 true,
                 {}},
        JudgeRow{"BeforeTheRoundedUpperEnd",
                 kAt3EndsInThirds,
                 kAt4EndsInThirds,
                 with(kAnswerOfThirds, {{"segment4End", "6.664"}}),
                 false,
                 {"segment4End"}},
        JudgeRow{"TheSegmentsSwapped",
                 kAt4Rises,
                 kAt4IsLevel,
                 {{"segment1Slope", "4"},
                  {"segment1Intercept", "-12"},
                  {"segment1End", "4"},
                  {"segment2Slope", "3"},
                  {"segment2Intercept", "4"},
                  {"segment2Start", "4"}},
                 false,
                 {"segment1Slope", "segment1Intercept", "segment2Slope", "segment2Intercept"}}),
    [](const auto& row) { return row.param.name; });

TEST_F(Laddi2Form, MayBeTriedAgainUntilItIsRight) {
    const FormDriver& f = openFour();
    answer(with(kAnswerOfFour, {{"segment1Slope", "4"}}));
    EXPECT_EQ(redBoxes(), std::set<std::string>{"segment1Slope"});
    answer(with(kAnswerOfFour, {{"segment4Intercept", "5"}}));
    EXPECT_EQ(redBoxes(), std::set<std::string>{"segment4Intercept"});
    EXPECT_TRUE(f.isShown("wrong"));
    answer(kAnswerOfFour);
    EXPECT_TRUE(isRight());
    EXPECT_FALSE(f.isShown("wrong"));
    EXPECT_FALSE(f.isShown("giveAnswer"));
    EXPECT_TRUE(redBoxes().empty());
    nextExercise(kAt4Rises, kAt4IsLevel);
    EXPECT_FALSE(isRight());
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_TRUE(strokes("resultGraph").empty());
}

TEST_F(Laddi2Form, DrawsALineOfTheRightSumPerSegmentAndTheLastToTheEndOfTheAxis) {
    openFour();
    answer(kAnswerOfFour);
    EXPECT_EQ(strokes("resultGraph"), (Strokes{sumLine(0, 6, 3, 9), sumLine(3, 9, 4.25, 4),
                                               sumLine(4.25, 4, 5, 4), sumLine(5, 5, 10, 0)}));
    nextExercise(kAt3Rises, kAt5Rises);
    answer(kAnswerOfThree);
    EXPECT_EQ(strokes("resultGraph"),
              (Strokes{sumLine(0, 6, 3, 9), sumLine(3, 5, 5, 7), sumLine(5, 4, 10, 19)}));
    nextExercise(kAt4Rises, kAt4IsLevel);
    answer(kAnswerOfTwo);
    EXPECT_EQ(strokes("resultGraph"), (Strokes{sumLine(0, 4, 4, 16), sumLine(4, 4, 10, 28)}));
    nextExercise(kAt3EndsInThirds, kAt4EndsInThirds);
    answer(kAnswerOfThirds);
    EXPECT_EQ(strokes("resultGraph"), (Strokes{sumLine(0, 5, 3, 8), sumLine(3, 10, 4, 7),
                                               sumLine(4, 12, kThirds1, -6 * kThirds1 + 36),
                                               sumLine(kThirds1, -3 * kThirds1 + 20, 10, -10)}));
}

// A last segment that begins beyond the axis runs back to its end.
TEST_F(Laddi2Form, DrawsTheLastSegmentBackToTheEndOfTheAxisWhereItBeginsBeyondIt) {
    open(kAt3EndsAt12, kAt5Rises);
    answer({{"segment1Slope", "1"},
            {"segment1Intercept", "6"},
            {"segment2Slope", "-1"},
            {"segment2Intercept", "16"},
            {"segment3Slope", "1"},
            {"segment3Intercept", "3"},
            {"segment4Slope", "2"},
            {"segment4Intercept", "-9"}});
    ASSERT_TRUE(isRight());
    EXPECT_EQ(strokes("resultGraph"), (Strokes{sumLine(0, 6, 3, 9), sumLine(3, 13, 5, 11),
                                               sumLine(5, 8, 12, 15), sumLine(12, 15, 10, 11)}));
}

const Typed kTypedSomehow{{"segment1Slope", "2"},     {"segment1Intercept", "3"}, {"segment1End", "4"},
                          {"segment2Slope", "-1"},    {"segment2Intercept", "9"}, {"segment2Start", "5"},
                          {"segment2End", "8"},       {"segment3Slope", "0"},     {"segment3Intercept", "7"},
                          {"segment3Start", "6"},     {"segment3End", "9"},       {"segment4Slope", "3"},
                          {"segment4Intercept", "1"}, {"segment4Start", "2"},     {"segment4End", "5"}};

TEST_F(Laddi2Form, DrawsTheTypedSumInRedAndTheRightOneOverIt) {
    openFour();
    answer(kTypedSomehow);
    form->click("giveAnswer");
    EXPECT_EQ(strokes("resultGraph"),
              (Strokes{sumLine(0, 3, 4, 11, kRed), sumLine(5, 4, 8, 1, kRed), sumLine(6, 7, 9, 7, kRed),
                       sumLine(2, 7, 5, 16, kRed), sumLine(0, 6, 3, 9), sumLine(3, 9, 4.25, 4),
                       sumLine(4.25, 4, 5, 4), sumLine(5, 5, 10, 0)}));
}

TEST_F(Laddi2Form, DrawsTheTypedSumToTheEndOfTheAxisWhereNoUpperEndIsAsked) {
    openThree();
    answer(kTypedSomehow);
    // What stands in the boxes now counts.
    fill({{"segment3Intercept", "6"}});
    form->click("giveAnswer");
    EXPECT_EQ(strokes("resultGraph"),
              (Strokes{sumLine(0, 3, 4, 11, kRed), sumLine(5, 4, 8, 1, kRed), sumLine(6, 6, 10, 6, kRed),
                       sumLine(0, 6, 3, 9), sumLine(3, 5, 5, 7), sumLine(5, 4, 10, 19)}));
    nextExercise(kAt4Rises, kAt4IsLevel);
    answer(kTypedSomehow);
    form->click("giveAnswer");
    EXPECT_EQ(strokes("resultGraph"), (Strokes{sumLine(0, 3, 4, 11, kRed), sumLine(5, 4, 10, -1, kRed),
                                               sumLine(0, 4, 4, 16), sumLine(4, 4, 10, 28)}));
}

TEST_F(Laddi2Form, GivesTheAnswerWithRoundedBreaks) {
    const DecimalMark danish(",");
    const FormDriver& f = openThirds();
    f.click("help");
    answer(kTypedSomehow);
    f.click("giveAnswer");
    const Typed expected =
        with(kAnswerOfThirds, {{"segment3End", "5,33"}, {"segment4Start", "5,33"}, {"segment4End", "6,67"}});
    for (const auto& [box, text] : expected) {
        EXPECT_EQ(f.box(box).content(), text) << box;
    }
    EXPECT_TRUE(redBoxes().empty());
    for (const char* hidden : {"helpPanel", "wrong", "right", "ok", "giveAnswer"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_EQ(f.focus(), "newExercise");
}

TEST_F(Laddi2Form, GivesAShorterAnswerAndLeavesTheRowsBelowIt) {
    const FormDriver& f = openThree();
    answer({{"segment1Slope", "9"}});
    f.click("giveAnswer");
    for (const auto& [box, text] : kAnswerOfThree) {
        EXPECT_EQ(f.box(box).content(), text) << box;
    }
    for (const char* hidden : {"segment4Slope", "segment4Intercept", "segment4Start", "segment4End"}) {
        EXPECT_EQ(f.box(hidden).content(), " ") << hidden;
    }
}

TEST_F(Laddi2Form, WritesTheUpperEndOfAnEarlierExerciseIntoTheHiddenFieldOfTheLastRow) {
    const FormDriver& f = openThree();
    const auto given = [&](const char* box) {
        answer({{"segment1Slope", "99"}});
        f.click("giveAnswer");
        EXPECT_FALSE(f.isShown(box)) << box;
        return f.box(box).content();
    };
    EXPECT_EQ(given("segment3End"), "0");
    nextExercise(kAt3EndsInThirds, kAt4EndsInThirds);
    nextExercise(kAt4Rises, kAt4IsLevel);
    EXPECT_EQ(given("segment2End"), "6.67");
    nextExercise(kAt3Rises, kAt5Rises);
    EXPECT_EQ(given("segment3End"), "6.67");
    nextExercise(kAt3EndsAt8, kAt5IsLevel);
    EXPECT_EQ(given("segment4End"), "6.67");
}

TEST_F(Laddi2Form, MarksBothSidesOfEachKinkAndTheEndsAndDotsEveryBreak) {
    openFour();
    form->click("help");
    form->click("showIntervals");
    // The upper end stands on the last break.
    const Strokes uprights = dotted({3, 4.25, 5, 10, 10});
    EXPECT_EQ(drawnLater("function1Graph"), mark(0, 2) + mark(3, 5) + mark(3, 5) + mark(4.25, 0) + uprights);
    EXPECT_EQ(drawnLater("function2Graph"), mark(0, 4) + mark(5, 4) + mark(5, 5) + mark(10, 0) + uprights);
    EXPECT_TRUE(strokes("resultGraph").empty());
    for (const char* field : {"segment1Slope", "segment1End", "segment4End"}) {
        EXPECT_EQ(form->box(field).content(), " ") << field;
    }
}

TEST_F(Laddi2Form, MarksNoEndOfAPieceThatDoesNotFallAndDotsItsPlaceBesideTheBox) {
    openThree();
    form->click("help");
    form->click("showIntervals");
    const Strokes uprights = dotted({3, 5, 100});
    EXPECT_EQ(drawnLater("function1Graph"), mark(0, 2) + mark(3, 5) + mark(3, 1) + uprights);
    EXPECT_EQ(drawnLater("function2Graph"), mark(0, 4) + mark(5, 4) + mark(5, 1) + uprights);
    nextExercise(kAt4Rises, kAt4IsLevel);
    form->click("showIntervals");
    EXPECT_EQ(drawnLater("function1Graph"), mark(0, 1) + mark(4, 13) + mark(4, 1) + dotted({4, 100}));
    EXPECT_EQ(drawnLater("function2Graph"), mark(0, 3) + mark(4, 3) + mark(4, 3) + dotted({4, 100}));
}

TEST_F(Laddi2Form, DotsTheBreaksUnroundedAndTheUpperEndRoundedHoweverOftenAsked) {
    openThirds();
    form->click("help");
    form->click("showIntervals");
    const Strokes once =
        mark(0, 2) + mark(3, 5) + mark(3, 7) + mark(kThirds1, 0) + dotted({3, 4, kThirds1, kThirds2, 6.67});
    EXPECT_EQ(drawnLater("function1Graph"), once);
    form->click("showFunctions");
    EXPECT_EQ(drawnLater("function1Graph"), once + once);
    answer(with(kAnswerOfThirds, {{"segment1Slope", "9"}, {"segment3End", "5.338"}}));
    EXPECT_EQ(redBoxes(), std::set<std::string>{"segment1Slope"});
}

TEST_F(Laddi2Form, TellsTheIntervalsThenTheSegments) {
    const DecimalMark danish(",");
    const FormDriver& f = openThirds();
    const auto lines = [&f] {
        std::vector<std::string> captions;
        for (const char* line : {"intervalsHeading", "intervalsResult", "intervalsResultRest",
                                 "segment1Result", "segment2Result", "segment3Result", "segment4Result"}) {
            captions.push_back(f.caption(line));
        }
        return captions;
    };
    f.click("help");
    EXPECT_EQ(lines(), std::vector<std::string>(7));
    f.click("showIntervals");
    std::vector<std::string> expected{
        "Definitonsintervallerne bliver:", "0<X<3, 3<X<4, ", "4<X<5,33 og 5,33<X<6,67", "", "", "", ""};
    EXPECT_EQ(lines(), expected);
    f.click("showFunctions");
    expected[3] = "P = (1 + 0)Q + (2 + 3) = 1Q + 5 for 0<X<3";
    expected[4] = "P = (-3 + 0)Q + (16 + 3) = -3Q + 19 for 3<X<4";
    expected[5] = "P = (-3 - 3)Q + (16 + 20) = -6Q + 36 for 4<X<5,33";
    expected[6] = "P = -3Q + 20 for 5,33<X<6,67";
    EXPECT_EQ(lines(), expected);
    // The rest stays empty.
    nextExercise(kAt4Rises, kAt4IsLevel);
    EXPECT_FALSE(f.isShown("helpPanel"));
    EXPECT_EQ(lines(), std::vector<std::string>(7));
    EXPECT_TRUE(drawnLater("function1Graph").empty());
    EXPECT_TRUE(drawnLater("function2Graph").empty());
    f.click("showFunctions");
    EXPECT_EQ(lines(), (std::vector<std::string>{"Definitonsintervallerne bliver:", "0<X<4 og 4<X", "",
                                                 "P = (3 + 0)Q + (1 + 3) = 3Q + 4 for 0<X<4",
                                                 "P = (4 + 0)Q + (-15 + 3) = 4Q + -12 for 4<X", "", ""}));
}

TEST_F(Laddi2Form, TakesAnyTypedText) {
    openFour();
    for (const std::string& typed :
         {std::string("1e308"), std::string("-1e999"), std::string("æ;"), std::string(100'000, '9')}) {
        for (AnswerBox* box : form->page().findChildren<AnswerBox*>()) {
            box->setContent(typed);
        }
        form->click("ok");
        form->click("giveAnswer");
        EXPECT_FALSE(form->page().grab().isNull());
        EXPECT_EQ(form->box("segment4Intercept").content(), "10");
        nextExercise(kAt3EndsAt4And4th, kAt5EndsAt10);
    }
}

TEST_F(Laddi2Form, HasRoomForTheLongestTexts) {
    const DecimalMark danish(",");
    const DrawnKinked lowest{7, {4, 4}, {4, -27}};
    const DrawnKinked highest{7, {4, 4}, {-4, 37}};
    const DrawnKinked longest{7, {4, 4}, {-3, 29}};
    const DrawnKinked earlier{6, {4, 4}, {-3, 23}};
    for (const auto& [function1, function2] : {std::pair{lowest, lowest},
                                               {lowest, highest},
                                               {highest, lowest},
                                               {earlier, longest},
                                               {longest, earlier},
                                               {{6, {4, 4}, {4, -23}}, longest},
                                               {{3, {-1, 4}, {-4, 19}}, {7, {0, 4}, {-4, 33}}}}) {
        const FormDriver& f = open(function1, function2);
        answer({{"segment1Slope", "-9"}, {"segment2Slope", "-9"}});
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
        f.click("help");
        f.click("showFunctions");
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
        f.click("giveAnswer");
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    }
}

/// The script of the exercise that stands on a form.
test::Script scriptOfShown(const FormDriver& f) {
    const auto shown = [&f](const char* label) { return std::stoi(f.caption(label)); };
    const auto after = [&](const char* line, const char* slope, const char* intercept) {
        const bool isNegative = f.caption(line).find('-') != std::string::npos;
        return DrawnPiece{shown(slope), isNegative ? -shown(intercept) : shown(intercept)};
    };
    return scriptOf({shown("function1Part1End"),
                     {shown("function1Part1Slope"), shown("function1Part1Intercept")},
                     after("function1Part2Text", "function1Part2Slope", "function1Part2Intercept")},
                    {shown("function2Part1End"),
                     {shown("function2Part1Slope"), shown("function2Part1Intercept")},
                     after("function2Part2Text", "function2Part2Slope", "function2Part2Intercept")});
}

// Seeded exercises, each read off the page: the answer of one is typed into the same one drawn again.
TEST(Laddi2Plays, SolvesWhatItShowsByTheGivenAnswer) {
    SeededDraws seeded(81);
    const FormDriver source(PageName::Laddi2, seeded);
    ScriptedDraws draws(scriptOf(kAt4Rises, kAt4IsLevel));
    const FormDriver f(PageName::Laddi2, draws);
    std::set<std::pair<bool, bool>> kinds;
    for (int played = 0; played < 150; ++played) {
        source.button("newExercise").click();
        const test::Script script = scriptOfShown(source);
        SCOPED_TRACE(played);
        draws.append(script);
        f.button("newExercise").click();
        for (const char* box : {"function1Graph", "function2Graph"}) {
            ASSERT_EQ(f.find<GraphBox>(box).strokes(), source.find<GraphBox>(box).strokes());
        }
        f.box("segment1Slope").setContent("99");
        f.button("ok").click();
        ASSERT_TRUE(f.isShown("wrong"));
        f.button("giveAnswer").click();
        Typed given;
        for (const AnswerBox* box : f.page().findChildren<AnswerBox*>()) {
            given[box->objectName().toStdString()] = box->content();
        }
        draws.append(script);
        f.button("newExercise").click();
        for (const auto& [box, content] : given) {
            if (f.isShown(box)) {
                f.box(box).setContent(content);
            }
        }
        f.button("ok").click();
        ASSERT_TRUE(f.isShown("right"));
        kinds.insert({f.isShown("segment3Slope"), f.isShown("segment4Slope")});
    }
    EXPECT_EQ(kinds.size(), 3U);
    EXPECT_TRUE(draws.isUsedUp());
}

}  // namespace
}  // namespace tavrune
