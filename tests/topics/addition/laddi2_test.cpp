#include "topics/addition/laddi2.h"

#include <set>

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "support/decimal_mark.h"
#include "support/expect.h"
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
using test::with;

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
    Laddi2Form() : VerticalForm(PageName::Laddi2, 2) {}

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
    test::expectHidden(unshown, {"giveAnswer", "wrong", "right", "helpPanel"});
    test::expectBlank(unshown, {"function1Part1Slope", "function1Part2Intercept", "function2Part2Start",
                                "intervalsHeading", "intervalsResult", "intervalsResultRest",
                                "segment1Result", "segment2Result", "segment3Result", "segment4Result"});
}

TEST_F(Laddi2Form, HasItsFixedTexts) {
    const FixedText texts[]{
        {"function1Part1Text", "P=    Q +      for  0<Q"},
        {"function2Part1Text", "P=    Q +      for  0<Q"},
        {"functionsStepText",
         "Bestem forskrifterne for de resulterende funktioner ved først at bestemme hvilke grafer der er "
         "defineret i de fundne intervaller og dernæst lægge deres alfa- og betaværdier sammen."}};
    test::expectTexts(openFour(), texts);
    expectSharedTexts();
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
    test::expectUnderlined(
        f,
        {"function1Part1Text", "function1Part2Text", "segment1ZeroLessThanQuantity",
         "segment2LessThanQuantity", "segment3LessThanQuantity", "segment4LessThanQuantity"},
        false);
}

TEST_F(Laddi2Form, WritesTheFunctionsIntoTheirLines) {
    const FormDriver& f = open({3, {-1, 4}, {-4, 21}}, kAt5Rises);
    test::expectTexts(f, {{"function1Part1Slope", "-1"},
                          {"function1Part1Intercept", "4"},
                          {"function1Part1End", "3"},
                          {"function1Part2Text", "P=    Q +      for    <Q, P>0"},
                          {"function1Part2Slope", "-4"},
                          {"function1Part2Intercept", "21"},
                          {"function1Part2Start", "3"},
                          {"function2Part1Slope", "0"},
                          {"function2Part1Intercept", "4"},
                          {"function2Part1End", "5"},
                          {"function2Part2Text", "P=    Q -       for    <Q, P>0"},
                          {"function2Part2Slope", "2"},
                          {"function2Part2Intercept", "9"},
                          {"function2Part2Start", "5"}});
    // The line changes back with the sign.
    next({7, {4, 4}, {4, -27}}, {3, {1, 2}, {1, 0}});
    test::expectTexts(f, {{"function1Part2Text", "P=    Q -       for    <Q, P>0"},
                          {"function1Part2Slope", "4"},
                          {"function1Part2Intercept", "27"},
                          {"function1Part2Start", "7"},
                          {"function2Part2Text", "P=    Q +      for    <Q, P>0"},
                          {"function2Part2Slope", "1"},
                          {"function2Part2Intercept", "0"},
                          {"function2Part2Start", "3"}});
}

TEST_F(Laddi2Form, ShowsTheSlopeOfALevelPieceThatWasDrawnAsFallingWithoutASign) {
    const FormDriver& f = open(kAt5IsLevel, {4, {0, 3}, {0, 9}});
    test::expectTexts(f, {{"function1Part2Slope", "0"}, {"function2Part2Slope", "0"}});
    answer({{"segment1Slope", "9"}});
    f.click("giveAnswer");
    test::expectContents(f, {{"segment2End", "5"}, {"segment3Slope", "0"}, {"segment3Intercept", "16"}});
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
    next(kAt4Rises, kAt4IsLevel);
    EXPECT_EQ(strokes("function1Graph"),
              (Strokes{kFunction.line(0, 9, 4, -3), kFunction.line(4, 9, 10, -15)}));
    EXPECT_EQ(strokes("function2Graph"), (Strokes{kFunction.line(0, 7, 4, 7), kFunction.line(4, 7, 10, 7)}));
}

TEST_F(Laddi2Form, DrawsTheTicksOfEachFrameOnceForAllItsExercises) {
    openFour();
    next(kAt4Rises, kAt4IsLevel);
    test::expectTicks(*form, {"function2GraphFrame", "function1GraphFrame"}, test::Ticks::Tall);
}

TEST_F(Laddi2Form, SetsItsFramesSoThatTheTicksMeetTheBoxes) {
    openFour();
    expectBoxesOnTheirTicks();
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
        next(GetParam().function1, GetParam().function2);
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
    std::vector<std::string> expected = boxesOf(GetParam());
    expected.emplace_back("ok");
    EXPECT_EQ(walkByEnter(), expected);
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
    test::expectWayByEnter(*form, {"showIntervals", "showFunctions", "closeHelp"});
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
    next(kAt4Rises, kAt4IsLevel);
    for (const AnswerBox* box : form->page().findChildren<AnswerBox*>()) {
        EXPECT_EQ(box->content(), " ");
    }
    EXPECT_TRUE(redBoxes().empty());
}

using Row = test::JudgeRow<DrawnKinked>;

class Laddi2Judging : public Laddi2Form, public testing::WithParamInterface<Row> {};

TEST_P(Laddi2Judging, TellsRightFromWrong) { expectJudged(GetParam()); }

/// The answers of four segments, and of four that end in thirds, but for some boxes.
Row ofFour(const char* name, const Typed& others, const std::set<std::string>& red) {
    return {name, kAt3EndsAt4And4th, kAt5EndsAt10, with(kAnswerOfFour, others), red};
}

Row ofThirds(const char* name, const Typed& others, const std::set<std::string>& red) {
    return {name, kAt3EndsInThirds, kAt4EndsInThirds, with(kAnswerOfThirds, others), red};
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Laddi2Judging,
    testing::Values(
        Row{"TwoSegments", kAt4Rises, kAt4IsLevel, kAnswerOfTwo, {}},
        Row{"TwoSegmentsWithAnEnd",
            kAt4EndsAt6,
            kAt4EndsAt6Too,
            {{"segment1Slope", "3"},
             {"segment1Intercept", "4"},
             {"segment1End", "4"},
             {"segment2Slope", "-7"},
             {"segment2Intercept", "42"},
             {"segment2Start", "4"},
             {"segment2End", "6"}},
            {}},
        Row{"ThreeSegments", kAt3Rises, kAt5Rises, kAnswerOfThree, {}},
        Row{"ThreeSegmentsWithAnEnd",
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
            {}},
        ofFour("FourSegmentsWithAnEnd", {}, {}),
        Row{"FourSegments",
            kAt3EndsAt4And4th,
            kAt5Rises,
            with(kAnswerOfFour, {{"segment4Slope", "2"}, {"segment4Intercept", "-9"}, {"segment4End", " "}}),
            {}},
        Row{"FourSegmentsInThirds", kAt3EndsInThirds, kAt4EndsInThirds, kAnswerOfThirds, {}},
        // Its third slope is 0, which a blank fits.
        Row{"NothingOfFourSegments",
            kAt3EndsAt4And4th,
            kAt5EndsAt10,
            {},
            {"segment1Slope", "segment1Intercept", "segment1End", "segment2Slope", "segment2Intercept",
             "segment2Start", "segment2End", "segment3Intercept", "segment3Start", "segment3End",
             "segment4Slope", "segment4Intercept", "segment4Start", "segment4End"}},
        Row{"NothingOfThreeSegments", kAt3Rises, kAt5Rises, {}, boxesOf(kAnswerOfThree)},
        Row{"NothingOfTwoSegments", kAt4Rises, kAt4IsLevel, {}, boxesOf(kAnswerOfTwo)},
        ofFour("AlmostTheFirstSlope", {{"segment1Slope", "1.001"}}, {"segment1Slope"}),
        ofFour("AlmostTheFirstIntercept", {{"segment1Intercept", "5.999"}}, {"segment1Intercept"}),
        ofFour("AlmostTheSecondSlope", {{"segment2Slope", "-4.001"}}, {"segment2Slope"}),
        ofFour("AlmostTheSecondIntercept", {{"segment2Intercept", "21.001"}}, {"segment2Intercept"}),
        ofFour("AlmostTheThirdSlope", {{"segment3Slope", "0.001"}}, {"segment3Slope"}),
        ofFour("AlmostTheThirdIntercept", {{"segment3Intercept", "3.999"}}, {"segment3Intercept"}),
        ofFour("AlmostTheFourthSlope", {{"segment4Slope", "-0.999"}}, {"segment4Slope"}),
        ofFour("AlmostTheFourthIntercept", {{"segment4Intercept", "10.001"}}, {"segment4Intercept"}),
        ofFour("TheUpperEndAtItsBound", {{"segment4End", "10.005"}}, {}),
        ofFour("TheUpperEndAtItsLowerBound", {{"segment4End", "9.995"}}, {}),
        ofFour("BeyondTheUpperEnd", {{"segment4End", "10.0051"}}, {"segment4End"}),
        ofFour("BeforeTheUpperEnd", {{"segment4End", "9.9949"}}, {"segment4End"}),
        ofFour("EveryBreakTypedWrongly",
               {{"segment1End", "9"},
                {"segment2Start", "-1"},
                {"segment2End", " "},
                {"segment3Start", "x"},
                {"segment3End", "1e308"},
                {"segment4Start", "-1e308"}},
               {}),
        ofFour("ABreakAndASlopeWrong", {{"segment3Slope", "1"}, {"segment1End", "3.006"}},
               {"segment1End", "segment3Slope"}),
        ofFour("TheSecondBreakInBothItsFields",
               {{"segment3Slope", "1"}, {"segment2End", "4.2"}, {"segment3Start", "4.3"}},
               {"segment2End", "segment3Slope", "segment3Start"}),
        ofFour("TheThirdBreakInBothItsFields",
               {{"segment3Slope", "1"}, {"segment3End", "4.99"}, {"segment4Start", "5.01"}},
               {"segment3Slope", "segment3End", "segment4Start"}),
        ofFour("BreaksAtTheirBounds",
               {{"segment3Slope", "1"},
                {"segment1End", "3.005"},
                {"segment2Start", "2.995"},
                {"segment2End", "4.255"},
                {"segment3Start", "4.245"}},
               {"segment3Slope"}),
        ofThirds("BreaksByTheirUnroundedValue",
                 {{"segment1Slope", "9"}, {"segment3End", "5.338"}, {"segment4Start", "5.327"}},
                 {"segment1Slope", "segment4Start"}),
        ofThirds("TheUpperEndByItsRoundedValue", {{"segment4End", "6.674"}}, {}),
        ofThirds("BeforeTheRoundedUpperEnd", {{"segment4End", "6.664"}}, {"segment4End"}),
        Row{"TheSegmentsSwapped",
            kAt4Rises,
            kAt4IsLevel,
            {{"segment1Slope", "4"},
             {"segment1Intercept", "-12"},
             {"segment1End", "4"},
             {"segment2Slope", "3"},
             {"segment2Intercept", "4"},
             {"segment2Start", "4"}},
            {"segment1Slope", "segment1Intercept", "segment2Slope", "segment2Intercept"}}),
    [](const auto& row) { return row.param.name; });

TEST_F(Laddi2Form, MayBeTriedAgainUntilItIsRight) {
    const FormDriver& f = openFour();
    expectTriesUntilItIsRight(kAnswerOfFour, {{"segment1Slope", "4"}, {"segment4Intercept", "5"}});
    next(kAt4Rises, kAt4IsLevel);
    EXPECT_FALSE(isRight());
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_TRUE(strokes("resultGraph").empty());
}

TEST_F(Laddi2Form, DrawsALineOfTheRightSumPerSegmentAndTheLastToTheEndOfTheAxis) {
    openFour();
    answer(kAnswerOfFour);
    EXPECT_EQ(strokes("resultGraph"), (Strokes{sumLine(0, 6, 3, 9), sumLine(3, 9, 4.25, 4),
                                               sumLine(4.25, 4, 5, 4), sumLine(5, 5, 10, 0)}));
    next(kAt3Rises, kAt5Rises);
    answer(kAnswerOfThree);
    EXPECT_EQ(strokes("resultGraph"),
              (Strokes{sumLine(0, 6, 3, 9), sumLine(3, 5, 5, 7), sumLine(5, 4, 10, 19)}));
    next(kAt4Rises, kAt4IsLevel);
    answer(kAnswerOfTwo);
    EXPECT_EQ(strokes("resultGraph"), (Strokes{sumLine(0, 4, 4, 16), sumLine(4, 4, 10, 28)}));
    next(kAt3EndsInThirds, kAt4EndsInThirds);
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
    next(kAt4Rises, kAt4IsLevel);
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
    test::expectContents(f, expected);
    EXPECT_TRUE(redBoxes().empty());
    test::expectHidden(f, {"helpPanel", "wrong", "right", "ok", "giveAnswer"});
    EXPECT_EQ(f.focus(), "newExercise");
}

TEST_F(Laddi2Form, GivesAShorterAnswerAndLeavesTheRowsBelowIt) {
    const FormDriver& f = openThree();
    answer({{"segment1Slope", "9"}});
    f.click("giveAnswer");
    test::expectContents(f, kAnswerOfThree);
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
    next(kAt3EndsInThirds, kAt4EndsInThirds);
    next(kAt4Rises, kAt4IsLevel);
    EXPECT_EQ(given("segment2End"), "6.67");
    next(kAt3Rises, kAt5Rises);
    EXPECT_EQ(given("segment3End"), "6.67");
    next(kAt3EndsAt8, kAt5IsLevel);
    EXPECT_EQ(given("segment4End"), "6.67");
}

TEST_F(Laddi2Form, MarksBothSidesOfEachKinkAndTheEndsAndDotsEveryBreak) {
    openFour();
    form->click("help", "showIntervals");
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
    form->click("help", "showIntervals");
    const Strokes uprights = dotted({3, 5, 100});
    EXPECT_EQ(drawnLater("function1Graph"), mark(0, 2) + mark(3, 5) + mark(3, 1) + uprights);
    EXPECT_EQ(drawnLater("function2Graph"), mark(0, 4) + mark(5, 4) + mark(5, 1) + uprights);
    next(kAt4Rises, kAt4IsLevel);
    form->click("showIntervals");
    EXPECT_EQ(drawnLater("function1Graph"), mark(0, 1) + mark(4, 13) + mark(4, 1) + dotted({4, 100}));
    EXPECT_EQ(drawnLater("function2Graph"), mark(0, 3) + mark(4, 3) + mark(4, 3) + dotted({4, 100}));
}

TEST_F(Laddi2Form, DotsTheBreaksUnroundedAndTheUpperEndRoundedHoweverOftenAsked) {
    openThirds();
    form->click("help", "showIntervals");
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
    next(kAt4Rises, kAt4IsLevel);
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
    expectAnyTypedTextTaken(kAt3EndsAt4And4th, kAt5EndsAt10, "segment4Intercept", "10");
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
        f.click("help", "showFunctions");
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
        const auto expectSameFunctions = [&] {
            for (const char* box : {"function1Graph", "function2Graph"}) {
                ASSERT_EQ(f.find<GraphBox>(box).strokes(), source.find<GraphBox>(box).strokes());
            }
        };
        static_cast<void>(test::solveByGivenAnswer(f, draws, script, "segment1Slope", expectSameFunctions));
        ASSERT_FALSE(HasFailure());
        kinds.insert({f.isShown("segment3Slope"), f.isShown("segment4Slope")});
    }
    EXPECT_EQ(kinds.size(), 3U);
    EXPECT_TRUE(draws.isUsedUp());
}

}  // namespace
}  // namespace tavrune
