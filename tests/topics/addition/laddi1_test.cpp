#include "topics/addition/laddi1.h"

#include <set>

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "support/decimal_mark.h"
#include "support/expect.h"
#include "support/form_driver.h"
#include "support/looks.h"
#include "support/strokes.h"
#include "support/verdict.h"
#include "topics/addition/axis_texts.h"
#include "topics/addition/laddi1_script.h"
#include "topics/addition/vertical_fixture.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::DrawnFunction;
using test::FixedText;
using test::FormDriver;
using test::kFunction;
using test::kSum;
using test::kSumGreenAsSeen;
using test::mark;
using test::ScriptedDraws;
using test::scriptOf;
using test::Strokes;
using test::Typed;
using test::whereIs;

Stroke dotted(double q) { return kFunction.line(q, 0, q, 10, kBlack, LineStyle::Dotted); }

class Laddi1Form : public test::VerticalForm<DrawnFunction> {
protected:
    Laddi1Form() : VerticalForm(PageName::Laddi1, 1) {}

    // -3Q+4 and -1Q+2: -4Q+6 up to 4/3, then -1Q+2 up to 2.
    FormDriver& openFalling() { return open({-3, 4}, {-1, 2}); }
    // 2Q+1 and 3Q+0: 5Q+1.
    FormDriver& openRising() { return open({2, 1}, {3, 0}); }
    // -2Q+3 and 1Q+1: -1Q+4 up to 1.5, then 1Q+1.
    FormDriver& openMixed() { return open({-2, 3}, {1, 1}); }
    // -1Q+2 and -2Q+4: -3Q+6 up to 2.
    FormDriver& openEndingAtOnce() { return open({-1, 2}, {-2, 4}); }
};

const Typed kAnswerOfFalling{{"segment1Slope", "-4"}, {"segment1Intercept", "6"}, {"segment1End", "1.33"},
                             {"segment2Slope", "-1"}, {"segment2Intercept", "2"}, {"segment2Start", "1.33"},
                             {"segment2End", "2"}};
const Typed kAnswerOfMixed{{"segment1Slope", "-1"}, {"segment1Intercept", "4"}, {"segment1End", "1.5"},
                           {"segment2Slope", "1"},  {"segment2Intercept", "1"}, {"segment2Start", "1.5"}};
const Typed kAnswerOfRising{{"segment2Slope", "5"}, {"segment2Intercept", "1"}, {"segment2Start", "0"}};

TEST_F(Laddi1Form, StartsWithoutHelpAndVerdict) {
    const FormDriver unshown = FormDriver::unshown(PageName::Laddi1, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Lodret addition - Niveau 1");
    test::expectHidden(unshown,
                       {"giveAnswer", "wrong", "right", "helpPanel", "loneSegmentStep", "twoSegmentsStep"});
    test::expectBlank(unshown, {"function1Formula", "function2Formula", "intervalsResult",
                                "loneSegmentResult", "segment1Result", "segment2Result"});
}

TEST_F(Laddi1Form, HasItsFixedTexts) {
    const FixedText texts[]{
        {"function1Domain", "for Q  0, P  0"},
        {"function2Domain", "for Q  0, P  0"},
        {"function1QuantityAtLeast", ">"},
        {"function1PriceAtLeast", ">"},
        {"function2QuantityAtLeast", ">"},
        {"function2PriceAtLeast", ">"},
        {"segment1PriceEquals", "P="},
        {"segment1TimesQuantityPlus", "Q +"},
        {"segment1StartLessOrEqual", "<"},
        {"segment1EndLessOrEqual", "<"},
        {"segment2PriceEquals", "P="},
        {"segment2TimesQuantityPlus", "Q +"},
        {"segment2ValidFor", "for"},
        {"segment2StartLessOrEqual", "<"},
        {"segment2EndLessOrEqual", "<"},
        {"intervalsStepNumber", "1)"},
        {"functionsStepNumber", "2)"},
        {"functionsStepText",
         "Bestem forskrifterne for de resulterende funktioner ved først at bestemme hvilke af de opgivne "
         "funktioner der er defineret i de fundne intervaller og dernæst lægge deres alfa- og betaværdier "
         "sammen."},
        {"loneSegmentHeading", "Den resulterende funktion bliver:"},
        {"twoSegmentsHeading", "De resulterende funktioner bliver:"}};
    test::expectTexts(openFalling(), texts);
    expectSharedTexts();
}

TEST_F(Laddi1Form, UnderlinesTheSignsForAtLeastAndAtMost) {
    const FormDriver& f = openFalling();
    test::expectUnderlined(f,
                           {"function1QuantityAtLeast", "function1PriceAtLeast", "function2QuantityAtLeast",
                            "function2PriceAtLeast", "segment1StartLessOrEqual", "segment1EndLessOrEqual",
                            "segment2StartLessOrEqual", "segment2EndLessOrEqual"});
    test::expectUnderlined(f, {"segment1ZeroLessThanQuantity", "segment2LessThanQuantity", "function1Domain"},
                           false);
}

TEST_F(Laddi1Form, WritesTheFunctionsWithPlainNumbers) {
    const FormDriver& f = openFalling();
    test::expectTexts(f, {{"function1Formula", "P= -3Q + 4"}, {"function2Formula", "P= -1Q + 2"}});
    next({0, 2}, {0, 0});
    test::expectTexts(f, {{"function1Formula", "P= 0Q + 2"}, {"function2Formula", "P= 0Q + 0"}});
}

TEST_F(Laddi1Form, LabelsItsGraphs) {
    const FormDriver& f = openFalling();
    const std::multiset<std::string> both{"0", "0", "2", "2",  "4",  "4", "6",
                                          "6", "8", "8", "10", "10", "P", "Q"};
    EXPECT_EQ(test::axisTexts(f, "function2GraphFrame"), both);
    EXPECT_EQ(test::axisTexts(f, "function1GraphFrame"), both);
    std::multiset<std::string> tall = both;
    tall.insert({"12", "14", "16", "18", "20", "Resultat"});
    EXPECT_EQ(test::axisTexts(f, "resultGraphFrame"), tall);
}

TEST_F(Laddi1Form, KeepsFunctionOneInTheLeftHandGraph) {
    const FormDriver& f = openFalling();
    EXPECT_EQ(f.find("function1Graph").parentWidget(), &f.find("function1GraphFrame"));
    EXPECT_EQ(f.find("function2Graph").parentWidget(), &f.find("function2GraphFrame"));
    EXPECT_EQ(f.find("resultGraph").parentWidget(), &f.find("resultGraphFrame"));
    EXPECT_LT(whereIs(f, "function1GraphFrame").right(), whereIs(f, "function2GraphFrame").left());
    EXPECT_EQ(strokes("function1Graph"), Strokes{kFunction.line(0, 6, 10, 36)});
    EXPECT_EQ(strokes("function2Graph"), Strokes{kFunction.line(0, 8, 10, 18)});
    EXPECT_TRUE(strokes("resultGraph").empty());
}

TEST_F(Laddi1Form, DrawsTheTicksOfEachFrameOnceForAllItsExercises) {
    openFalling();
    next({2, 1}, {3, 0});
    next({-2, 3}, {1, 1});
    test::expectTicks(*form, {"function2GraphFrame", "function1GraphFrame"}, test::Ticks::Tall);
}

TEST_F(Laddi1Form, SetsItsFramesSoThatTheTicksMeetTheBoxes) {
    openFalling();
    expectBoxesOnTheirTicks();
}

struct RowsRow {
    const char* name;
    DrawnFunction function1, function2;
    bool areTwo;
    bool isUpperEndAsked;
    const char* focus;
};

class Laddi1Rows : public Laddi1Form, public testing::WithParamInterface<RowsRow> {};

TEST_P(Laddi1Rows, ShowTheFieldsOfTheExercise) {
    const RowsRow& row = GetParam();
    // Another kind before it leaves nothing behind.
    const bool isOther = row.areTwo;
    open(isOther ? DrawnFunction{2, 1} : DrawnFunction{-3, 4},
         isOther ? DrawnFunction{3, 0} : DrawnFunction{-1, 2});
    next(row.function1, row.function2);
    test::expectShown(*form,
                      {"segment1Slope", "segment1Intercept", "segment1End", "segment1PriceEquals",
                       "segment1TimesQuantityPlus", "segment1ZeroLessThanQuantity", "segment1EndLessOrEqual",
                       "segment1StartLessOrEqual"},
                      row.areTwo);
    test::expectShown(*form, {"segment2Slope", "segment2Intercept", "segment2Start", "segment2PriceEquals",
                              "segment2TimesQuantityPlus", "segment2ValidFor", "segment2LessThanQuantity"});
    EXPECT_EQ(form->isShown("segment2StartLessOrEqual"), !row.areTwo);
    EXPECT_EQ(form->isShown("segment2End"), row.isUpperEndAsked);
    EXPECT_EQ(form->isShown("segment2EndLessOrEqual"), row.isUpperEndAsked);
    EXPECT_EQ(form->focus(), row.focus);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, Laddi1Rows,
    testing::Values(RowsRow{"OneWithoutEnd", {2, 1}, {3, 0}, false, false, "segment2Slope"},
                    RowsRow{"OneWithEnd", {-1, 2}, {-2, 4}, false, true, "segment2Slope"},
                    RowsRow{"TwoWithoutEnd", {-2, 3}, {1, 1}, true, false, "segment1Slope"},
                    RowsRow{"TwoWithEnd", {-3, 4}, {-1, 2}, true, true, "segment1Slope"},
                    RowsRow{"LevelOnes", {0, 2}, {0, 3}, false, false, "segment2Slope"},
                    RowsRow{"FallingAndTheAxis", {-2, 4}, {0, 0}, true, false, "segment1Slope"}),
    [](const auto& row) { return row.param.name; });

TEST_F(Laddi1Form, BlanksItsFieldsWithOneBlankEach) {
    openFalling();
    answer({{"segment1Slope", "9"}, {"segment2End", "9"}});
    EXPECT_FALSE(redBoxes().empty());
    next({2, 1}, {3, 0});
    for (const AnswerBox* box : form->page().findChildren<AnswerBox*>()) {
        EXPECT_EQ(box->content(), " ");
    }
    EXPECT_TRUE(redBoxes().empty());
}

TEST_F(Laddi1Form, WalksThroughTheRowsByEnter) {
    openFalling();
    EXPECT_EQ(walkByEnter(),
              (std::vector<std::string>{"segment1Slope", "segment1Intercept", "segment1End", "segment2Slope",
                                        "segment2Intercept", "segment2Start", "segment2End", "ok"}));
}

struct EnterRow {
    const char* name;
    DrawnFunction function1, function2;
    /// "&OK" is hidden after the answer was given.
    bool isGiven;
    const char* from;
    const char* to;
};

class Laddi1Enter : public Laddi1Form, public testing::WithParamInterface<EnterRow> {};

TEST_P(Laddi1Enter, GoesOnFromALastField) {
    const EnterRow& row = GetParam();
    open(row.function1, row.function2);
    if (row.isGiven) {
        answer({{"segment2Slope", "99"}});
        form->click("giveAnswer");
    }
    form->box(row.from).setFocus();
    form->press(row.from, Qt::Key_Return);
    EXPECT_EQ(form->focus(), row.to);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Laddi1Enter,
    testing::Values(
        EnterRow{"ToTheUpperEnd", {-3, 4}, {-1, 2}, false, "segment2Start", "segment2End"},
        EnterRow{"ToOkWithoutUpperEnd", {-2, 3}, {1, 1}, false, "segment2Start", "ok"},
        EnterRow{"ToTheNextExerciseWithoutUpperEnd", {-2, 3}, {1, 1}, true, "segment2Start", "newExercise"},
        EnterRow{"FromTheUpperEndToOk", {-3, 4}, {-1, 2}, false, "segment2End", "ok"},
        EnterRow{"FromTheUpperEndToTheNextExercise", {-3, 4}, {-1, 2}, true, "segment2End", "newExercise"},
        EnterRow{"ThroughALoneSegment", {2, 1}, {3, 0}, false, "segment2Intercept", "segment2Start"}),
    [](const auto& row) { return row.param.name; });

using Row = test::JudgeRow<DrawnFunction>;

class Laddi1Judging : public Laddi1Form, public testing::WithParamInterface<Row> {};

TEST_P(Laddi1Judging, TellsRightFromWrong) { expectJudged(GetParam()); }

constexpr DrawnFunction kFalling1{-3, 4};
constexpr DrawnFunction kFalling2{-1, 2};

/// The answer of two falling functions, but for some boxes.
Row ofFalling(const char* name, const Typed& others, const std::set<std::string>& red) {
    return {name, kFalling1, kFalling2, test::with(kAnswerOfFalling, others), red};
}

/// The same of two rising ones.
Row ofRising(const char* name, const Typed& others, const std::set<std::string>& red) {
    return {name, {2, 1}, {3, 0}, test::with(kAnswerOfRising, others), red};
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Laddi1Judging,
    testing::Values(
        Row{"TwoSegmentsWithAnEnd", kFalling1, kFalling2, kAnswerOfFalling, {}},
        Row{"TwoSegments", {-2, 3}, {1, 1}, kAnswerOfMixed, {}},
        Row{"OneSegment", {2, 1}, {3, 0}, kAnswerOfRising, {}},
        Row{"OneSegmentFromABlank", {2, 1}, {3, 0}, {{"segment2Slope", "5"}, {"segment2Intercept", "1"}}, {}},
        Row{"OneSegmentWithAnEnd",
            {-1, 2},
            {-2, 4},
            {{"segment2Slope", "-3"},
             {"segment2Intercept", "6"},
             {"segment2Start", "0"},
             {"segment2End", "2"}},
            {}},
        Row{"NothingOfOneSegment", {2, 1}, {3, 0}, {}, {"segment2Slope", "segment2Intercept"}},
        Row{"NothingOfTwoSegments",
            kFalling1,
            kFalling2,
            {},
            {"segment1Slope", "segment1Intercept", "segment1End", "segment2Slope", "segment2Intercept",
             "segment2Start", "segment2End"}},
        ofRising("AlmostASlope", {{"segment2Slope", "5.001"}}, {"segment2Slope"}),
        ofRising("AlmostAnIntercept", {{"segment2Intercept", "0.999"}}, {"segment2Intercept"}),
        ofRising("AlmostZero", {{"segment2Start", "0.001"}}, {"segment2Start"}),
        ofFalling("AlmostTheFirstSlope", {{"segment1Slope", "-4.001"}}, {"segment1Slope"}),
        ofFalling("AlmostTheFirstIntercept", {{"segment1Intercept", "6.001"}}, {"segment1Intercept"}),
        ofFalling("AlmostTheSecondSlope", {{"segment2Slope", "-1.001"}}, {"segment2Slope"}),
        ofFalling("AlmostTheSecondIntercept", {{"segment2Intercept", "2.001"}}, {"segment2Intercept"}),
        ofFalling("TheUpperEndAtItsBound", {{"segment2End", "2.005"}}, {}),
        ofFalling("TheUpperEndAtItsLowerBound", {{"segment2End", "1.995"}}, {}),
        ofFalling("BeyondTheUpperEnd", {{"segment2End", "2.0051"}}, {"segment2End"}),
        ofFalling("BeforeTheUpperEnd", {{"segment2End", "1.9949"}}, {"segment2End"}),
        ofFalling("TheKinkTypedWrongly", {{"segment1End", "7"}, {"segment2Start", "-1"}}, {}),
        ofFalling("TheKinkLeftBlank", {{"segment1End", " "}, {"segment2Start", " "}}, {}),
        ofFalling("TheKinkAndASlopeWrong", {{"segment1End", "1.4"}, {"segment1Slope", "4"}},
                  {"segment1Slope", "segment1End"}),
        ofFalling("TheKinkInItsSecondFieldAndTheEndWrong", {{"segment2Start", "1.3"}, {"segment2End", "3"}},
                  {"segment2Start", "segment2End"}),
        Row{"TheSegmentsSwapped",
            {-2, 3},
            {1, 1},
            {{"segment1Slope", "1"},
             {"segment1Intercept", "1"},
             {"segment1End", "1.5"},
             {"segment2Slope", "-1"},
             {"segment2Intercept", "4"},
             {"segment2Start", "1.5"}},
            {"segment1Slope", "segment1Intercept", "segment2Slope", "segment2Intercept"}},
        Row{"TheAxisAfterTheKink",
            {-2, 4},
            {0, 0},
            {{"segment1Slope", "-2"},
             {"segment1Intercept", "4"},
             {"segment1End", "2"},
             {"segment2Start", "2"}},
            {}},
        Row{"FromThreeToThree",
            {-1, 0},
            {-1, 3},
            {{"segment1Slope", "-2"},
             {"segment1Intercept", "3"},
             {"segment1End", "3"},
             {"segment2Slope", "-1"},
             {"segment2Intercept", "0"},
             {"segment2Start", "3"},
             {"segment2End", "3"}},
            {}}),
    [](const auto& row) { return row.param.name; });

TEST_F(Laddi1Form, TakesAFallingLineThroughTheOriginForOneThatNeverEnds) {
    open({-1, 0}, {2, 1});
    answer({{"segment2Slope", "1"}, {"segment2Intercept", "1"}});
    EXPECT_TRUE(isRight());
}

TEST_F(Laddi1Form, MayBeTriedAgainUntilItIsRight) {
    const FormDriver& f = openFalling();
    expectTriesUntilItIsRight(kAnswerOfFalling, {{"segment1Slope", "4"}, {"segment1Intercept", "5"}});
    next({2, 1}, {3, 0});
    EXPECT_FALSE(isRight());
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_TRUE(strokes("resultGraph").empty());
}

TEST_F(Laddi1Form, DrawsTheRightSumInGreenToTheEndOfTheAxis) {
    openFalling();
    answer(kAnswerOfFalling);
    const double k = 4.0 / 3;
    EXPECT_EQ(strokes("resultGraph"), (Strokes{kSum.line(0, 14, k, 20 - (-4 * k + 6), kSumGreenAsSeen),
                                               kSum.line(k, 20 - (-1 * k + 2), 10, 28, kSumGreenAsSeen)}));
    next({2, 1}, {3, 0});
    answer(kAnswerOfRising);
    EXPECT_EQ(strokes("resultGraph"), Strokes{kSum.line(0, 19, 10, -31, kSumGreenAsSeen)});
    next({-1, 2}, {-2, 4});
    answer({{"segment2Slope", "-3"}, {"segment2Intercept", "6"}, {"segment2End", "2"}});
    EXPECT_EQ(strokes("resultGraph"), Strokes{kSum.line(0, 14, 10, 44, kSumGreenAsSeen)});
}

TEST_F(Laddi1Form, GivesTheAnswerOfTwoSegmentsOverWhatWasTyped) {
    const DecimalMark danish(",");
    const FormDriver& f = openFalling();
    f.click("help", "showFunctions");
    answer({{"segment1Slope", "2"},
            {"segment1Intercept", "3"},
            {"segment1End", "4"},
            {"segment2Slope", "-1"},
            {"segment2Intercept", "9"},
            {"segment2Start", "5"},
            {"segment2End", "8"}});
    f.click("giveAnswer");
    const Typed expected{{"segment1Slope", "-4"}, {"segment1Intercept", "6"}, {"segment1End", "1,33"},
                         {"segment2Slope", "-1"}, {"segment2Intercept", "2"}, {"segment2Start", "1,33"},
                         {"segment2End", "2"}};
    test::expectContents(f, expected);
    EXPECT_TRUE(redBoxes().empty());
    test::expectHidden(f, {"helpPanel", "wrong", "right", "ok", "giveAnswer"});
    EXPECT_TRUE(f.isShown("twoSegmentsStep"));
    EXPECT_EQ(f.focus(), "newExercise");
}

TEST_F(Laddi1Form, DrawsTheTypedSumInRedUpToTheTypedEndAndTheRightOneOverIt) {
    openFalling();
    answer({{"segment1Slope", "2"},
            {"segment1Intercept", "3"},
            {"segment1End", "4"},
            {"segment2Slope", "-1"},
            {"segment2Intercept", "9"},
            {"segment2Start", "5"},
            {"segment2End", "8"}});
    form->click("giveAnswer");
    const double k = 4.0 / 3;
    EXPECT_EQ(strokes("resultGraph"), (Strokes{kSum.line(0, 17, 4, 9, kRed), kSum.line(5, 16, 8, 19, kRed),
                                               kSum.line(0, 14, k, 20 - (-4 * k + 6), kSumGreenAsSeen),
                                               kSum.line(k, 20 - (-1 * k + 2), 10, 28, kSumGreenAsSeen)}));
}

TEST_F(Laddi1Form, DrawsTheTypedSumToTheEndOfTheAxisWhereNoUpperEndIsAsked) {
    openMixed();
    answer({{"segment1Slope", "2"},
            {"segment1Intercept", "3"},
            {"segment1End", "4"},
            {"segment2Slope", "-1"},
            {"segment2Intercept", "9"},
            {"segment2Start", "5"}});
    // What stands in the boxes now counts.
    fill({{"segment1Intercept", "1"}});
    form->click("giveAnswer");
    EXPECT_EQ(strokes("resultGraph"), (Strokes{kSum.line(0, 19, 4, 11, kRed), kSum.line(5, 16, 10, 21, kRed),
                                               kSum.line(0, 16, 1.5, 17.5, kSumGreenAsSeen),
                                               kSum.line(1.5, 17.5, 10, 9, kSumGreenAsSeen)}));
}

TEST_F(Laddi1Form, GivesTheAnswerOfOneSegmentAndLeavesTheRowAboveIt) {
    const FormDriver& f = openRising();
    answer({{"segment2Slope", "1"}, {"segment2Intercept", "2"}, {"segment2Start", "3"}});
    f.click("giveAnswer");
    test::expectContents(f, {{"segment2Slope", "5"}, {"segment2Intercept", "1"}, {"segment2Start", "0"}});
    for (const char* hidden : {"segment1Slope", "segment1Intercept", "segment1End"}) {
        EXPECT_EQ(f.box(hidden).content(), " ") << hidden;
    }
    EXPECT_EQ(strokes("resultGraph"), (Strokes{kSum.line(0, 20, 0, 20, kRed), kSum.line(3, 15, 10, 8, kRed),
                                               kSum.line(0, 19, 10, -31, kSumGreenAsSeen)}));
}

TEST_F(Laddi1Form, WritesTheUpperEndOfAnEarlierExerciseIntoTheHiddenField) {
    const FormDriver& f = openRising();
    answer({{"segment2Slope", "9"}});
    f.click("giveAnswer");
    EXPECT_EQ(f.box("segment2End").content(), "0");
    next({-3, 4}, {-3, 2});
    next({2, 1}, {3, 0});
    answer({{"segment2Slope", "9"}});
    EXPECT_EQ(redBoxes(), (std::set<std::string>{"segment2Slope", "segment2Intercept"}));
    f.click("giveAnswer");
    EXPECT_FALSE(f.isShown("segment2End"));
    EXPECT_EQ(f.box("segment2End").content(), "1.33");
}

TEST_F(Laddi1Form, OpensAndClosesItsHelp) {
    const FormDriver& f = openFalling();
    f.click("help");
    EXPECT_TRUE(f.isShown("helpPanel"));
    test::expectWayByEnter(f, {"showIntervals", "showFunctions"});
    EXPECT_FALSE(f.isShown("twoSegmentsStep"));
    f.press("showFunctions", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "closeHelp");
    test::expectShown(f, {"twoSegmentsStep", "ok"});
    f.press("closeHelp", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "segment1Slope");
    test::expectHidden(f, {"helpPanel", "loneSegmentStep", "twoSegmentsStep"});
    EXPECT_NE(f.caption("intervalsResult"), "");
    next({2, 1}, {3, 0});
    f.click("help", "showFunctions");
    EXPECT_TRUE(f.isShown("loneSegmentStep"));
    EXPECT_FALSE(f.isShown("twoSegmentsStep"));
    f.click("closeHelp");
    EXPECT_EQ(f.focus(), "segment2Slope");
    EXPECT_FALSE(f.isShown("loneSegmentStep"));
}

TEST_F(Laddi1Form, TakesItsWorkedSolutionAwayWithTheNextExercise) {
    const FormDriver& f = openFalling();
    f.click("help", "showFunctions");
    next({-2, 3}, {1, 1});
    test::expectHidden(f, {"helpPanel", "loneSegmentStep", "twoSegmentsStep"});
    test::expectBlank(f, {"intervalsResult", "loneSegmentResult", "segment1Result", "segment2Result"});
    EXPECT_TRUE(drawnLater("function1Graph").empty());
    EXPECT_TRUE(drawnLater("function2Graph").empty());
}

TEST_F(Laddi1Form, MarksTheEndsOfBothFunctionsAndTheInterval) {
    openFalling();
    form->click("help", "showIntervals");
    const Strokes uprights{dotted(4.0 / 3), dotted(2)};
    EXPECT_EQ(drawnLater("function1Graph"), mark(0, 4) + mark(4.0 / 3, 0) + uprights);
    EXPECT_EQ(drawnLater("function2Graph"), mark(0, 2) + mark(2, 0) + uprights);
    EXPECT_TRUE(strokes("resultGraph").empty());
    for (const char* fields : {"segment1Slope", "segment1End", "segment2End"}) {
        EXPECT_EQ(form->box(fields).content(), " ") << fields;
    }
}

TEST_F(Laddi1Form, MarksARisingFunctionAtItsStartOnlyAndNoUpperEnd) {
    openMixed();
    form->click("help", "showIntervals");
    EXPECT_EQ(drawnLater("function1Graph"), mark(0, 3) + mark(1.5, 0) + Strokes{dotted(1.5)});
    EXPECT_EQ(drawnLater("function2Graph"), mark(0, 1) + Strokes{dotted(1.5)});
}

TEST_F(Laddi1Form, DotsTheAxisWithOneSegment) {
    openRising();
    form->click("help", "showIntervals");
    EXPECT_EQ(drawnLater("function1Graph"), mark(0, 1) + Strokes{dotted(0)});
    EXPECT_EQ(drawnLater("function2Graph"), mark(0, 0) + Strokes{dotted(0)});
    next({-1, 2}, {-2, 4});
    form->click("help", "showIntervals");
    EXPECT_EQ(drawnLater("function1Graph"), mark(0, 2) + mark(2, 0) + (Strokes{dotted(0), dotted(2)}));
}

TEST_F(Laddi1Form, MarksAFallingLineThroughTheOriginAtItsZero) {
    open({-1, 0}, {-1, 3});
    form->click("help", "showIntervals");
    EXPECT_EQ(drawnLater("function1Graph"), mark(0, 0) + mark(0, 0) + (Strokes{dotted(3), dotted(3)}));
}

TEST_F(Laddi1Form, RunsTheFirstStepAgainWithTheSecondFromTheRoundedKink) {
    openFalling();
    form->click("help", "showIntervals");
    const Strokes once = drawnLater("function1Graph");
    form->click("showFunctions");
    EXPECT_EQ(drawnLater("function1Graph"),
              once + mark(0, 4) + mark(4.0 / 3, 0) + (Strokes{dotted(1.33), dotted(2)}));
}

TEST_F(Laddi1Form, DrawsAndMarksByTheRoundedKinkAfterTheFirstStep) {
    const FormDriver& f = openFalling();
    answer(test::with(kAnswerOfFalling, {{"segment1Slope", "9"}, {"segment1End", "1.327"}}));
    EXPECT_EQ(redBoxes(), (std::set<std::string>{"segment1Slope", "segment1End"}));
    f.click("help", "showIntervals", "ok");
    EXPECT_EQ(redBoxes(), std::set<std::string>{"segment1Slope"});
    answer(kAnswerOfFalling);
    EXPECT_EQ(strokes("resultGraph"),
              (Strokes{kSum.line(0, 14, 1.33, 20 - (-4 * 1.33 + 6), kSumGreenAsSeen),
                       kSum.line(1.33, 20 - (-1 * 1.33 + 2), 10, 28, kSumGreenAsSeen)}));
}

TEST_F(Laddi1Form, TellsTheIntervalsAndTheFunctions) {
    const DecimalMark danish(",");
    const FormDriver& f = openFalling();
    f.click("help", "showIntervals");
    test::expectTexts(f, {{"intervalsResult", "Definitionsintervallerne bliver: 0<Q<1,33 og 1,33<Q<2."},
                          {"segment1Result", ""}});
    f.click("showFunctions");
    test::expectTexts(f, {{"segment1Result", "P= (-3 - 1)Q + (4 + 2) = -4Q + 6 for 0<Q<1,33"},
                          {"segment2Result", "P= -1Q + 2 for 1,33<Q<2"},
                          {"loneSegmentResult", ""}});
    next({-1, 2}, {-2, 4});
    f.click("showFunctions");
    test::expectTexts(f, {{"intervalsResult", "Definitionsintervallet bliver: 0<Q<2."},
                          {"loneSegmentResult", "P= (-1 - 2)Q + (2 + 4) = -3Q + 6 for 0<Q<2"},
                          {"segment1Result", ""},
                          {"segment2Result", ""}});
    next({-2, 3}, {1, 1});
    f.click("showFunctions");
    test::expectTexts(f, {{"intervalsResult", "Definitionsintervallerne bliver: 0<Q<1,5 og 1,5<Q."},
                          {"segment1Result", "P= (-2 + 1)Q + (3 + 1) = -1Q + 4 for 0<Q<1,5"},
                          {"segment2Result", "P= 1Q + 1 for 1,5<Q"}});
}

TEST_F(Laddi1Form, TakesAnyTypedText) { expectAnyTypedTextTaken({-3, 4}, {-1, 2}, "segment1Slope", "-4"); }

TEST_F(Laddi1Form, HasRoomForTheLongestTexts) {
    const DecimalMark danish(",");
    for (const auto& [function1, function2] : {std::pair{DrawnFunction{-3, 2}, DrawnFunction{-3, 4}},
                                               {DrawnFunction{-4, 3}, DrawnFunction{-4, 1}},
                                               {DrawnFunction{-4, 4}, DrawnFunction{-4, 4}}}) {
        const FormDriver& f = open(function1, function2);
        answer({{"segment1Slope", "-9"}, {"segment2Slope", "-9"}});
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
        f.click("help", "showFunctions");
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    }
}

// Every exercise that can be drawn, played through one form.
TEST(Laddi1Plays, SolvesEachExerciseByTheGivenAnswerAndShowsItsFields) {
    ScriptedDraws draws(scriptOf({1, 1}, {1, 1}));
    const FormDriver f(PageName::Laddi1, draws);
    int played = 0;
    for (int slope1 = -4; slope1 <= 4; ++slope1) {
        for (int intercept1 = 0; intercept1 <= 4; ++intercept1) {
            for (int slope2 = -4; slope2 <= 4; ++slope2) {
                for (int intercept2 = 0; intercept2 <= 4; ++intercept2) {
                    if (slope1 == 0 && intercept1 == 0) {
                        continue;
                    }
                    SCOPED_TRACE(f.caption("function1Formula") + " after, " + f.caption("function2Formula") +
                                 " before");
                    ++played;
                    const Typed given = test::solveByGivenAnswer(
                        f, draws, scriptOf({slope1, intercept1}, {slope2, intercept2}), "segment2Intercept",
                        [] {});
                    ASSERT_FALSE(HasFailure());
                    ASSERT_EQ(given.at("segment1Slope") == " ", !f.isShown("segment1Slope"));
                    ASSERT_EQ(f.isShown("segment2End"), slope1 < 0 && slope2 < 0);
                }
            }
        }
    }
    EXPECT_EQ(played, 1980);
    EXPECT_TRUE(draws.isUsedUp());
}

}  // namespace
}  // namespace tavrune
