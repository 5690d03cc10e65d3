#include "topics/addition/laddi1.h"

#include <set>

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "support/decimal_mark.h"
#include "support/fixed_texts.h"
#include "support/form_driver.h"
#include "support/looks.h"
#include "support/strokes.h"
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
    Laddi1Form() : VerticalForm(PageName::Laddi1, "Label23", 1) {}

    // -3Q+4 and -1Q+2: -4Q+6 up to 4/3, then -1Q+2 up to 2.
    FormDriver& openFalling() { return open({-3, 4}, {-1, 2}); }
    // 2Q+1 and 3Q+0: 5Q+1.
    FormDriver& openRising() { return open({2, 1}, {3, 0}); }
    // -2Q+3 and 1Q+1: -1Q+4 up to 1.5, then 1Q+1.
    FormDriver& openMixed() { return open({-2, 3}, {1, 1}); }
    // -1Q+2 and -2Q+4: -3Q+6 up to 2.
    FormDriver& openEndingAtOnce() { return open({-1, 2}, {-2, 4}); }
};

const Typed kAnswerOfFalling{{"Text1", "-4"}, {"Text2", "6"},    {"Text3", "1.33"}, {"Text4", "-1"},
                             {"Text5", "2"},  {"Text6", "1.33"}, {"Text7", "2"}};
const Typed kAnswerOfMixed{{"Text1", "-1"}, {"Text2", "4"}, {"Text3", "1.5"},
                           {"Text4", "1"},  {"Text5", "1"}, {"Text6", "1.5"}};
const Typed kAnswerOfRising{{"Text4", "5"}, {"Text5", "1"}, {"Text6", "0"}};

Typed with(Typed typed, const std::string& box, const std::string& text) {
    typed[box] = text;
    return typed;
}

TEST_F(Laddi1Form, StartsWithoutHelpAndVerdict) {
    const FormDriver unshown = FormDriver::unshown(PageName::Laddi1, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Lodret addition - Niveau 1");
    for (const char* hidden : {"Command4", "Label22", "Label23", "Picture7", "Picture8", "Picture9"}) {
        EXPECT_FALSE(unshown.isShown(hidden)) << hidden;
    }
    for (const char* blank : {"Label5", "Label3", "Label46", "Label48", "Label51", "Label53", "Label54"}) {
        EXPECT_EQ(unshown.caption(blank), "") << blank;
    }
    EXPECT_TRUE(unshown.isShown("Label53"));
}

TEST_F(Laddi1Form, HidesItsEmptyLabelAtTheFirstTick) { EXPECT_FALSE(openRising().isShown("Label53")); }

TEST_F(Laddi1Form, HasItsFixedTexts) {
    const FixedText texts[]{
        {"Label52_0", "for Q  0, P  0"},
        {"Label52_1", "for Q  0, P  0"},
        {"Label49_0", ">"},
        {"Label49_1", ">"},
        {"Label49_2", ">"},
        {"Label49_3", ">"},
        {"Label21", "Adder de ovenstående linier lodret og skriv de nye forskrifter i rubrikkerne nederst."},
        {"Label9", "P="},
        {"Label11", "Q +"},
        {"Label13", "for          0<Q"},
        {"Label39", "<"},
        {"Label37", "<"},
        {"Label15", "P="},
        {"Label17", "Q +"},
        {"Label19", "for"},
        {"Label20", "<Q"},
        {"Label38", "<"},
        {"Label4", "<"},
        {"Label6_0", "1)"},
        {"Label6_1", "2)"},
        {"Label2",
         "Bestem forskrifterne for de resulterende funktioner ved først at bestemme hvilke af de opgivne "
         "funktioner der er defineret i de fundne intervaller og dernæst lægge deres alfa- og betaværdier "
         "sammen."},
        {"Label47", "Den resulterende funktion bliver:"},
        {"Label50", "De resulterende funktioner bliver:"},
        {"Vis1", "Vis"},
        {"Vis2", "Vis"},
        {"Luk", "&Luk"}};
    test::expectTexts(openFalling(), texts);
    EXPECT_EQ(form->label("Label1").text().simplified().toStdString(),
              "Bestem definitionsintervallerne for de resulterende funktioner: Find vha. de opgivne "
              "definitionsmængder Q-værdierne til de opgivne funktioners endepunkter. Disse Q-værdier ordnes "
              "efter størrelse, og derved fremkommer de resulterende funktioners definitionsintervaller.");
}

TEST_F(Laddi1Form, UnderlinesTheSignsForAtLeastAndAtMost) {
    const FormDriver& f = openFalling();
    for (const char* sign :
         {"Label49_0", "Label49_1", "Label49_2", "Label49_3", "Label39", "Label37", "Label38", "Label4"}) {
        EXPECT_TRUE(f.label(sign).font().underline()) << sign;
    }
    for (const char* plain : {"Label13", "Label20", "Label52_0"}) {
        EXPECT_FALSE(f.label(plain).font().underline()) << plain;
    }
}

TEST_F(Laddi1Form, WritesTheFunctionsWithPlainNumbers) {
    const FormDriver& f = openFalling();
    EXPECT_EQ(f.caption("Label5"), "P= -3Q + 4");
    EXPECT_EQ(f.caption("Label3"), "P= -1Q + 2");
    nextExercise({0, 2}, {0, 0});
    EXPECT_EQ(f.caption("Label5"), "P= 0Q + 2");
    EXPECT_EQ(f.caption("Label3"), "P= 0Q + 0");
}

TEST_F(Laddi1Form, LabelsItsGraphs) {
    const FormDriver& f = openFalling();
    const std::multiset<std::string> both{"0", "0", "2", "2",  "4",  "4", "6",
                                          "6", "8", "8", "10", "10", "P", "Q"};
    EXPECT_EQ(test::axisTexts(f, "Picture1"), both);
    EXPECT_EQ(test::axisTexts(f, "Picture2"), both);
    std::multiset<std::string> tall = both;
    tall.insert({"12", "14", "16", "18", "20", "Resultat"});
    EXPECT_EQ(test::axisTexts(f, "Picture5"), tall);
}

TEST_F(Laddi1Form, KeepsFunctionOneInTheLeftHandGraph) {
    const FormDriver& f = openFalling();
    EXPECT_EQ(f.find("Picture3").parentWidget(), &f.find("Picture2"));
    EXPECT_EQ(f.find("Picture4").parentWidget(), &f.find("Picture1"));
    EXPECT_EQ(f.find("Picture6").parentWidget(), &f.find("Picture5"));
    EXPECT_LT(whereIs(f, "Picture2").right(), whereIs(f, "Picture1").left());
    EXPECT_EQ(strokes("Picture3"), Strokes{kFunction.line(0, 6, 10, 36)});
    EXPECT_EQ(strokes("Picture4"), Strokes{kFunction.line(0, 8, 10, 18)});
    EXPECT_TRUE(strokes("Picture6").empty());
}

TEST_F(Laddi1Form, DrawsTheTicksOfEachFrameOnceForAllItsExercises) {
    openFalling();
    nextExercise({2, 1}, {3, 0});
    nextExercise({-2, 3}, {1, 1});
    for (const char* name : {"Picture1", "Picture2"}) {
        const test::StrokesIn in{form->find<GraphBox>(name).scale()};
        Strokes expected;
        for (double t = 0.2; t <= 8.5; t += 0.8) {
            expected.push_back(in.line(t + 0.8, 8.2, t + 0.8, 8.4));
            expected.push_back(in.line(0.8, t, 1, t));
        }
        EXPECT_EQ(expected.size(), 22U);
        EXPECT_EQ(strokes(name), expected) << name;
    }
    const test::StrokesIn in{form->find<GraphBox>("Picture5").scale()};
    Strokes expected;
    for (double t = 0.2; t <= 8.5; t += 0.8) {
        expected.push_back(in.line(t + 0.8, 19.5, t + 0.8, 19.75));
    }
    for (double t = 1; t <= 19.6; t += 0.925) {
        expected.push_back(in.line(0.8, t, 1, t));
    }
    EXPECT_EQ(expected.size(), 32U);
    EXPECT_EQ(strokes("Picture5"), expected);
}

TEST_F(Laddi1Form, SetsItsFramesSoThatTheTicksMeetTheBoxes) {
    const FormDriver& f = openFalling();
    struct Row {
        const char* frame;
        const char* box;
        double unitX, unitY, top, bottom;
    };
    for (const Row& row : {Row{"Picture2", "Picture3", 280.5, 280.5, 0.2, 8.2},
                           Row{"Picture1", "Picture4", 280.5, 280.5, 0.2, 8.2},
                           Row{"Picture5", "Picture6", 285.64, 242.93, 1, 19.5}}) {
        const QRectF box = whereIs(f, row.box);
        EXPECT_NEAR(box.left(), fromTwips(row.unitX), 0.5) << row.box;
        EXPECT_NEAR(box.right(), 9 * fromTwips(row.unitX), 0.75) << row.box;
        EXPECT_NEAR(box.top(), row.top * fromTwips(row.unitY), 0.5) << row.box;
        EXPECT_NEAR(box.bottom(), row.bottom * fromTwips(row.unitY), 0.7) << row.box;
        const GraphBox& frame = f.find<GraphBox>(row.frame);
        EXPECT_NEAR(whereIs(f, row.frame).width() / frame.scale().x2, fromTwips(row.unitX), 0.005)
            << row.frame;
        EXPECT_NEAR(whereIs(f, row.frame).height() / frame.scale().y2, fromTwips(row.unitY), 0.005)
            << row.frame;
    }
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
    nextExercise(row.function1, row.function2);
    for (const char* name :
         {"Text1", "Text2", "Text3", "Label9", "Label11", "Label13", "Label37", "Label39"}) {
        EXPECT_EQ(form->isShown(name), row.areTwo) << name;
    }
    for (const char* name : {"Text4", "Text5", "Text6", "Label15", "Label17", "Label19", "Label20"}) {
        EXPECT_TRUE(form->isShown(name)) << name;
    }
    EXPECT_EQ(form->isShown("Label38"), !row.areTwo);
    EXPECT_EQ(form->isShown("Text7"), row.isUpperEndAsked);
    EXPECT_EQ(form->isShown("Label4"), row.isUpperEndAsked);
    EXPECT_EQ(form->focus(), row.focus);
}

INSTANTIATE_TEST_SUITE_P(Kinds, Laddi1Rows,
                         testing::Values(RowsRow{"OneWithoutEnd", {2, 1}, {3, 0}, false, false, "Text4"},
                                         RowsRow{"OneWithEnd", {-1, 2}, {-2, 4}, false, true, "Text4"},
                                         RowsRow{"TwoWithoutEnd", {-2, 3}, {1, 1}, true, false, "Text1"},
                                         RowsRow{"TwoWithEnd", {-3, 4}, {-1, 2}, true, true, "Text1"},
                                         RowsRow{"LevelOnes", {0, 2}, {0, 3}, false, false, "Text4"},
                                         RowsRow{"FallingAndTheAxis", {-2, 4}, {0, 0}, true, false, "Text1"}),
                         [](const auto& row) { return row.param.name; });

TEST_F(Laddi1Form, BlanksItsFieldsWithOneBlankEach) {
    openFalling();
    answer({{"Text1", "9"}, {"Text7", "9"}});
    EXPECT_FALSE(redBoxes().empty());
    nextExercise({2, 1}, {3, 0});
    for (const AnswerBox* box : form->page().findChildren<AnswerBox*>()) {
        EXPECT_EQ(box->content(), " ");
    }
    EXPECT_TRUE(redBoxes().empty());
}

TEST_F(Laddi1Form, WalksThroughTheRowsByEnter) {
    const FormDriver& f = openFalling();
    std::vector<std::string> walked{f.focus()};
    while (f.isFocusInABox()) {
        f.press(walked.back(), Qt::Key_Return);
        walked.push_back(f.focus());
    }
    EXPECT_EQ(walked, (std::vector<std::string>{"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7",
                                                "Command2"}));
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
        answer({{"Text4", "99"}});
        form->click("Command4");
    }
    form->box(row.from).setFocus();
    form->press(row.from, Qt::Key_Return);
    EXPECT_EQ(form->focus(), row.to);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Laddi1Enter,
    testing::Values(EnterRow{"ToTheUpperEnd", {-3, 4}, {-1, 2}, false, "Text6", "Text7"},
                    EnterRow{"ToOkWithoutUpperEnd", {-2, 3}, {1, 1}, false, "Text6", "Command2"},
                    EnterRow{"ToTheNextExerciseWithoutUpperEnd", {-2, 3}, {1, 1}, true, "Text6", "Command1"},
                    EnterRow{"FromTheUpperEndToOk", {-3, 4}, {-1, 2}, false, "Text7", "Command2"},
                    EnterRow{"FromTheUpperEndToTheNextExercise", {-3, 4}, {-1, 2}, true, "Text7", "Command1"},
                    EnterRow{"ThroughALoneSegment", {2, 1}, {3, 0}, false, "Text5", "Text6"}),
    [](const auto& row) { return row.param.name; });

struct JudgeRow {
    const char* name;
    DrawnFunction function1, function2;
    Typed typed;
    bool isRight;
    std::set<std::string> red;
};

class Laddi1Judging : public Laddi1Form, public testing::WithParamInterface<JudgeRow> {};

TEST_P(Laddi1Judging, TellsRightFromWrong) {
    const JudgeRow& row = GetParam();
    const FormDriver& f = open(row.function1, row.function2);
    const std::string first = f.focus();
    answer(row.typed);
    EXPECT_EQ(isRight(), row.isRight);
    EXPECT_EQ(f.isShown("Label22"), !row.isRight);
    EXPECT_EQ(f.isShown("Command4"), !row.isRight);
    EXPECT_EQ(f.isShown("Command2"), !row.isRight);
    EXPECT_EQ(f.focus(), row.isRight ? "Command1" : first);
    EXPECT_EQ(redBoxes(), row.red);
    EXPECT_EQ(strokes("Picture6").empty(), !row.isRight);
}

constexpr DrawnFunction kFalling1{-3, 4};
constexpr DrawnFunction kFalling2{-1, 2};

INSTANTIATE_TEST_SUITE_P(
    Rows, Laddi1Judging,
    testing::Values(
        JudgeRow{"TwoSegmentsWithAnEnd", kFalling1, kFalling2, kAnswerOfFalling, true, {}},
        JudgeRow{"TwoSegments", {-2, 3}, {1, 1}, kAnswerOfMixed, true, {}},
        JudgeRow{"OneSegment", {2, 1}, {3, 0}, kAnswerOfRising, true, {}},
        JudgeRow{"OneSegmentFromABlank", {2, 1}, {3, 0}, {{"Text4", "5"}, {"Text5", "1"}}, true, {}},
        JudgeRow{"OneSegmentWithAnEnd",
                 {-1, 2},
                 {-2, 4},
                 {{"Text4", "-3"}, {"Text5", "6"}, {"Text6", "0"}, {"Text7", "2"}},
                 true,
                 {}},
        JudgeRow{"NothingOfOneSegment", {2, 1}, {3, 0}, {}, false, {"Text4", "Text5"}},
        JudgeRow{"NothingOfTwoSegments",
                 kFalling1,
                 kFalling2,
                 {},
                 false,
                 {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"}},
        JudgeRow{"AlmostASlope", {2, 1}, {3, 0}, with(kAnswerOfRising, "Text4", "5.001"), false, {"Text4"}},
        JudgeRow{
            "AlmostAnIntercept", {2, 1}, {3, 0}, with(kAnswerOfRising, "Text5", "0.999"), false, {"Text5"}},
        JudgeRow{"AlmostZero", {2, 1}, {3, 0}, with(kAnswerOfRising, "Text6", "0.001"), false, {"Text6"}},
        JudgeRow{"AlmostTheFirstSlope",
                 kFalling1,
                 kFalling2,
                 with(kAnswerOfFalling, "Text1", "-4.001"),
                 false,
                 {"Text1"}},
        JudgeRow{"AlmostTheFirstIntercept",
                 kFalling1,
                 kFalling2,
                 with(kAnswerOfFalling, "Text2", "6.001"),
                 false,
                 {"Text2"}},
        JudgeRow{"AlmostTheSecondSlope",
                 kFalling1,
                 kFalling2,
                 with(kAnswerOfFalling, "Text4", "-1.001"),
                 false,
                 {"Text4"}},
        JudgeRow{"AlmostTheSecondIntercept",
                 kFalling1,
                 kFalling2,
                 with(kAnswerOfFalling, "Text5", "2.001"),
                 false,
                 {"Text5"}},
        JudgeRow{"TheUpperEndAtItsBound",
                 kFalling1,
                 kFalling2,
                 with(kAnswerOfFalling, "Text7", "2.005"),
                 true,
                 {}},
        JudgeRow{"TheUpperEndAtItsLowerBound",
                 kFalling1,
                 kFalling2,
                 with(kAnswerOfFalling, "Text7", "1.995"),
                 true,
                 {}},
        JudgeRow{"BeyondTheUpperEnd",
                 kFalling1,
                 kFalling2,
                 with(kAnswerOfFalling, "Text7", "2.0051"),
                 false,
                 {"Text7"}},
        JudgeRow{"BeforeTheUpperEnd",
                 kFalling1,
                 kFalling2,
                 with(kAnswerOfFalling, "Text7", "1.9949"),
                 false,
                 {"Text7"}},
        JudgeRow{"TheKinkTypedWrongly",
                 kFalling1,
                 kFalling2,
                 with(with(kAnswerOfFalling, "Text3", "7"), "Text6", "-1"),
                 true,
                 {}},
        JudgeRow{"TheKinkLeftBlank",
                 kFalling1,
                 kFalling2,
                 with(with(kAnswerOfFalling, "Text3", " "), "Text6", " "),
                 true,
                 {}},
        JudgeRow{"TheKinkAndASlopeWrong",
                 kFalling1,
                 kFalling2,
                 with(with(kAnswerOfFalling, "Text3", "1.4"), "Text1", "4"),
                 false,
                 {"Text1", "Text3"}},
        JudgeRow{"TheKinkInItsSecondFieldAndTheEndWrong",
                 kFalling1,
                 kFalling2,
                 with(with(kAnswerOfFalling, "Text6", "1.3"), "Text7", "3"),
                 false,
                 {"Text6", "Text7"}},
        JudgeRow{"TheSegmentsSwapped",
                 {-2, 3},
                 {1, 1},
                 {{"Text1", "1"},
                  {"Text2", "1"},
                  {"Text3", "1.5"},
                  {"Text4", "-1"},
                  {"Text5", "4"},
                  {"Text6", "1.5"}},
                 false,
                 {"Text1", "Text2", "Text4", "Text5"}},
        JudgeRow{"TheAxisAfterTheKink",
                 {-2, 4},
                 {0, 0},
                 {{"Text1", "-2"}, {"Text2", "4"}, {"Text3", "2"}, {"Text6", "2"}},
                 true,
                 {}},
        JudgeRow{"FromThreeToThree",
                 {-1, 0},
                 {-1, 3},
                 {{"Text1", "-2"},
                  {"Text2", "3"},
                  {"Text3", "3"},
                  {"Text4", "-1"},
                  {"Text5", "0"},
                  {"Text6", "3"},
                  {"Text7", "3"}},
                 true,
                 {}}),
    [](const auto& row) { return row.param.name; });

TEST_F(Laddi1Form, TakesAFallingLineThroughTheOriginForOneThatNeverEnds) {
    open({-1, 0}, {2, 1});
    answer({{"Text4", "1"}, {"Text5", "1"}});
    EXPECT_TRUE(isRight());
}

TEST_F(Laddi1Form, MayBeTriedAgainUntilItIsRight) {
    const FormDriver& f = openFalling();
    answer(with(kAnswerOfFalling, "Text1", "4"));
    EXPECT_EQ(redBoxes(), std::set<std::string>{"Text1"});
    answer(with(kAnswerOfFalling, "Text2", "5"));
    EXPECT_EQ(redBoxes(), std::set<std::string>{"Text2"});
    EXPECT_TRUE(f.isShown("Label22"));
    answer(kAnswerOfFalling);
    EXPECT_TRUE(isRight());
    EXPECT_FALSE(f.isShown("Label22"));
    EXPECT_FALSE(f.isShown("Command4"));
    EXPECT_TRUE(redBoxes().empty());
    nextExercise({2, 1}, {3, 0});
    EXPECT_FALSE(isRight());
    EXPECT_TRUE(f.isShown("Command2"));
    EXPECT_TRUE(strokes("Picture6").empty());
}

TEST_F(Laddi1Form, DrawsTheRightSumInGreenToTheEndOfTheAxis) {
    openFalling();
    answer(kAnswerOfFalling);
    const double k = 4.0 / 3;
    EXPECT_EQ(strokes("Picture6"), (Strokes{kSum.line(0, 14, k, 20 - (-4 * k + 6), kSumGreenAsSeen),
                                            kSum.line(k, 20 - (-1 * k + 2), 10, 28, kSumGreenAsSeen)}));
    nextExercise({2, 1}, {3, 0});
    answer(kAnswerOfRising);
    EXPECT_EQ(strokes("Picture6"), Strokes{kSum.line(0, 19, 10, -31, kSumGreenAsSeen)});
    nextExercise({-1, 2}, {-2, 4});
    answer({{"Text4", "-3"}, {"Text5", "6"}, {"Text7", "2"}});
    EXPECT_EQ(strokes("Picture6"), Strokes{kSum.line(0, 14, 10, 44, kSumGreenAsSeen)});
}

TEST_F(Laddi1Form, GivesTheAnswerOfTwoSegmentsOverWhatWasTyped) {
    const DecimalMark danish(",");
    const FormDriver& f = openFalling();
    f.click("Command6");
    f.click("Vis2");
    answer({{"Text1", "2"},
            {"Text2", "3"},
            {"Text3", "4"},
            {"Text4", "-1"},
            {"Text5", "9"},
            {"Text6", "5"},
            {"Text7", "8"}});
    f.click("Command4");
    const Typed expected{{"Text1", "-4"}, {"Text2", "6"},    {"Text3", "1,33"}, {"Text4", "-1"},
                         {"Text5", "2"},  {"Text6", "1,33"}, {"Text7", "2"}};
    for (const auto& [box, text] : expected) {
        EXPECT_EQ(f.box(box).content(), text) << box;
    }
    EXPECT_TRUE(redBoxes().empty());
    for (const char* hidden : {"Picture7", "Label22", "Label23", "Command2", "Command4"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_TRUE(f.isShown("Picture9"));
    EXPECT_EQ(f.focus(), "Command1");
}

TEST_F(Laddi1Form, DrawsTheTypedSumInRedUpToTheTypedEndAndTheRightOneOverIt) {
    openFalling();
    answer({{"Text1", "2"},
            {"Text2", "3"},
            {"Text3", "4"},
            {"Text4", "-1"},
            {"Text5", "9"},
            {"Text6", "5"},
            {"Text7", "8"}});
    form->click("Command4");
    const double k = 4.0 / 3;
    EXPECT_EQ(strokes("Picture6"), (Strokes{kSum.line(0, 17, 4, 9, kRed), kSum.line(5, 16, 8, 19, kRed),
                                            kSum.line(0, 14, k, 20 - (-4 * k + 6), kSumGreenAsSeen),
                                            kSum.line(k, 20 - (-1 * k + 2), 10, 28, kSumGreenAsSeen)}));
}

TEST_F(Laddi1Form, DrawsTheTypedSumToTheEndOfTheAxisWhereNoUpperEndIsAsked) {
    openMixed();
    answer({{"Text1", "2"}, {"Text2", "3"}, {"Text3", "4"}, {"Text4", "-1"}, {"Text5", "9"}, {"Text6", "5"}});
    // What stands in the boxes now counts.
    fill({{"Text2", "1"}});
    form->click("Command4");
    EXPECT_EQ(strokes("Picture6"), (Strokes{kSum.line(0, 19, 4, 11, kRed), kSum.line(5, 16, 10, 21, kRed),
                                            kSum.line(0, 16, 1.5, 17.5, kSumGreenAsSeen),
                                            kSum.line(1.5, 17.5, 10, 9, kSumGreenAsSeen)}));
}

TEST_F(Laddi1Form, GivesTheAnswerOfOneSegmentAndLeavesTheRowAboveIt) {
    const FormDriver& f = openRising();
    answer({{"Text4", "1"}, {"Text5", "2"}, {"Text6", "3"}});
    f.click("Command4");
    EXPECT_EQ(f.box("Text4").content(), "5");
    EXPECT_EQ(f.box("Text5").content(), "1");
    EXPECT_EQ(f.box("Text6").content(), "0");
    for (const char* hidden : {"Text1", "Text2", "Text3"}) {
        EXPECT_EQ(f.box(hidden).content(), " ") << hidden;
    }
    EXPECT_EQ(strokes("Picture6"), (Strokes{kSum.line(0, 20, 0, 20, kRed), kSum.line(3, 15, 10, 8, kRed),
                                            kSum.line(0, 19, 10, -31, kSumGreenAsSeen)}));
}

TEST_F(Laddi1Form, WritesTheUpperEndOfAnEarlierExerciseIntoTheHiddenField) {
    const FormDriver& f = openRising();
    answer({{"Text4", "9"}});
    f.click("Command4");
    EXPECT_EQ(f.box("Text7").content(), "0");
    nextExercise({-3, 4}, {-3, 2});
    nextExercise({2, 1}, {3, 0});
    answer({{"Text4", "9"}});
    EXPECT_EQ(redBoxes(), (std::set<std::string>{"Text4", "Text5"}));
    f.click("Command4");
    EXPECT_FALSE(f.isShown("Text7"));
    EXPECT_EQ(f.box("Text7").content(), "1.33");
}

TEST_F(Laddi1Form, OpensAndClosesItsHelp) {
    const FormDriver& f = openFalling();
    f.click("Command6");
    EXPECT_TRUE(f.isShown("Picture7"));
    EXPECT_EQ(f.focus(), "Vis1");
    f.press("Vis1", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Vis2");
    EXPECT_FALSE(f.isShown("Picture9"));
    f.press("Vis2", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Luk");
    EXPECT_TRUE(f.isShown("Picture9"));
    EXPECT_TRUE(f.isShown("Command2"));
    f.press("Luk", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Text1");
    for (const char* hidden : {"Picture7", "Picture8", "Picture9"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_NE(f.caption("Label46"), "");
    nextExercise({2, 1}, {3, 0});
    f.click("Command6");
    f.click("Vis2");
    EXPECT_TRUE(f.isShown("Picture8"));
    EXPECT_FALSE(f.isShown("Picture9"));
    f.click("Luk");
    EXPECT_EQ(f.focus(), "Text4");
    EXPECT_FALSE(f.isShown("Picture8"));
}

TEST_F(Laddi1Form, TakesItsWorkedSolutionAwayWithTheNextExercise) {
    const FormDriver& f = openFalling();
    f.click("Command6");
    f.click("Vis2");
    nextExercise({-2, 3}, {1, 1});
    for (const char* hidden : {"Picture7", "Picture8", "Picture9"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    for (const char* blank : {"Label46", "Label48", "Label51", "Label54"}) {
        EXPECT_EQ(f.caption(blank), "") << blank;
    }
    EXPECT_TRUE(drawnLater("Picture3").empty());
    EXPECT_TRUE(drawnLater("Picture4").empty());
}

TEST_F(Laddi1Form, MarksTheEndsOfBothFunctionsAndTheInterval) {
    openFalling();
    form->click("Command6");
    form->click("Vis1");
    const Strokes uprights{dotted(4.0 / 3), dotted(2)};
    EXPECT_EQ(drawnLater("Picture3"), mark(0, 4) + mark(4.0 / 3, 0) + uprights);
    EXPECT_EQ(drawnLater("Picture4"), mark(0, 2) + mark(2, 0) + uprights);
    EXPECT_TRUE(strokes("Picture6").empty());
    for (const char* fields : {"Text1", "Text3", "Text7"}) {
        EXPECT_EQ(form->box(fields).content(), " ") << fields;
    }
}

TEST_F(Laddi1Form, MarksARisingFunctionAtItsStartOnlyAndNoUpperEnd) {
    openMixed();
    form->click("Command6");
    form->click("Vis1");
    EXPECT_EQ(drawnLater("Picture3"), mark(0, 3) + mark(1.5, 0) + Strokes{dotted(1.5)});
    EXPECT_EQ(drawnLater("Picture4"), mark(0, 1) + Strokes{dotted(1.5)});
}

TEST_F(Laddi1Form, DotsTheAxisWithOneSegment) {
    openRising();
    form->click("Command6");
    form->click("Vis1");
    EXPECT_EQ(drawnLater("Picture3"), mark(0, 1) + Strokes{dotted(0)});
    EXPECT_EQ(drawnLater("Picture4"), mark(0, 0) + Strokes{dotted(0)});
    nextExercise({-1, 2}, {-2, 4});
    form->click("Command6");
    form->click("Vis1");
    EXPECT_EQ(drawnLater("Picture3"), mark(0, 2) + mark(2, 0) + (Strokes{dotted(0), dotted(2)}));
}

TEST_F(Laddi1Form, MarksAFallingLineThroughTheOriginAtItsZero) {
    open({-1, 0}, {-1, 3});
    form->click("Command6");
    form->click("Vis1");
    EXPECT_EQ(drawnLater("Picture3"), mark(0, 0) + mark(0, 0) + (Strokes{dotted(3), dotted(3)}));
}

TEST_F(Laddi1Form, RunsTheFirstStepAgainWithTheSecondFromTheRoundedKink) {
    openFalling();
    form->click("Command6");
    form->click("Vis1");
    const Strokes once = drawnLater("Picture3");
    form->click("Vis2");
    EXPECT_EQ(drawnLater("Picture3"),
              once + mark(0, 4) + mark(4.0 / 3, 0) + (Strokes{dotted(1.33), dotted(2)}));
}

TEST_F(Laddi1Form, DrawsAndMarksByTheRoundedKinkAfterTheFirstStep) {
    const FormDriver& f = openFalling();
    answer(with(with(kAnswerOfFalling, "Text1", "9"), "Text3", "1.327"));
    EXPECT_EQ(redBoxes(), (std::set<std::string>{"Text1", "Text3"}));
    f.click("Command6");
    f.click("Vis1");
    f.click("Command2");
    EXPECT_EQ(redBoxes(), std::set<std::string>{"Text1"});
    answer(kAnswerOfFalling);
    EXPECT_EQ(strokes("Picture6"), (Strokes{kSum.line(0, 14, 1.33, 20 - (-4 * 1.33 + 6), kSumGreenAsSeen),
                                            kSum.line(1.33, 20 - (-1 * 1.33 + 2), 10, 28, kSumGreenAsSeen)}));
}

TEST_F(Laddi1Form, TellsTheIntervalsAndTheFunctions) {
    const DecimalMark danish(",");
    const FormDriver& f = openFalling();
    f.click("Command6");
    f.click("Vis1");
    EXPECT_EQ(f.caption("Label46"), "Definitionsintervallerne bliver: 0<Q<1,33 og 1,33<Q<2.");
    EXPECT_EQ(f.caption("Label51"), "");
    f.click("Vis2");
    EXPECT_EQ(f.caption("Label51"), "P= (-3 - 1)Q + (4 + 2) = -4Q + 6 for 0<Q<1,33");
    EXPECT_EQ(f.caption("Label54"), "P= -1Q + 2 for 1,33<Q<2");
    EXPECT_EQ(f.caption("Label48"), "");
    nextExercise({-1, 2}, {-2, 4});
    f.click("Vis2");
    EXPECT_EQ(f.caption("Label46"), "Definitionsintervallet bliver: 0<Q<2.");
    EXPECT_EQ(f.caption("Label48"), "P= (-1 - 2)Q + (2 + 4) = -3Q + 6 for 0<Q<2");
    EXPECT_EQ(f.caption("Label51"), "");
    EXPECT_EQ(f.caption("Label54"), "");
    nextExercise({-2, 3}, {1, 1});
    f.click("Vis2");
    EXPECT_EQ(f.caption("Label46"), "Definitionsintervallerne bliver: 0<Q<1,5 og 1,5<Q.");
    EXPECT_EQ(f.caption("Label51"), "P= (-2 + 1)Q + (3 + 1) = -1Q + 4 for 0<Q<1,5");
    EXPECT_EQ(f.caption("Label54"), "P= 1Q + 1 for 1,5<Q");
}

TEST_F(Laddi1Form, TakesAnyTypedText) {
    openFalling();
    for (const std::string& typed :
         {std::string("1e308"), std::string("-1e999"), std::string("æ;"), std::string(100'000, '9')}) {
        for (AnswerBox* box : form->page().findChildren<AnswerBox*>()) {
            box->setContent(typed);
        }
        form->click("Command2");
        form->click("Command4");
        EXPECT_FALSE(form->page().grab().isNull());
        EXPECT_EQ(form->box("Text1").content(), "-4");
        nextExercise({-3, 4}, {-1, 2});
    }
}

TEST_F(Laddi1Form, HasRoomForTheLongestTexts) {
    const DecimalMark danish(",");
    for (const auto& [function1, function2] : {std::pair{DrawnFunction{-3, 2}, DrawnFunction{-3, 4}},
                                               {DrawnFunction{-4, 3}, DrawnFunction{-4, 1}},
                                               {DrawnFunction{-4, 4}, DrawnFunction{-4, 4}}}) {
        const FormDriver& f = open(function1, function2);
        answer({{"Text1", "-9"}, {"Text4", "-9"}});
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
        f.click("Command6");
        f.click("Vis2");
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
                    SCOPED_TRACE(f.caption("Label5") + " after, " + f.caption("Label3") + " before");
                    ++played;
                    // The answer of one exercise is typed into the same one drawn again.
                    draws.append(scriptOf({slope1, intercept1}, {slope2, intercept2}));
                    f.button("Command1").click();
                    f.box("Text5").setContent("99");
                    f.button("Command2").click();
                    ASSERT_TRUE(f.isShown("Label22"));
                    f.button("Command4").click();
                    Typed given;
                    for (const AnswerBox* box : f.page().findChildren<AnswerBox*>()) {
                        given[box->objectName().toStdString()] = box->content();
                    }
                    draws.append(scriptOf({slope1, intercept1}, {slope2, intercept2}));
                    f.button("Command1").click();
                    for (const auto& [box, content] : given) {
                        if (f.isShown(box)) {
                            f.box(box).setContent(content);
                        }
                    }
                    f.button("Command2").click();
                    ASSERT_TRUE(f.isShown("Label23"));
                    ASSERT_EQ(given.at("Text1") == " ", !f.isShown("Text1"));
                    ASSERT_EQ(f.isShown("Text7"), slope1 < 0 && slope2 < 0);
                }
            }
        }
    }
    EXPECT_EQ(played, 1980);
    EXPECT_TRUE(draws.isUsedUp());
}

}  // namespace
}  // namespace tavrune
