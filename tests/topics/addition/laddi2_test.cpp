#include "topics/addition/laddi2.h"

#include <set>

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "support/decimal_mark.h"
#include "support/fixed_texts.h"
#include "support/form_driver.h"
#include "support/looks.h"
#include "support/strokes.h"
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
    Laddi2Form() : VerticalForm(PageName::Laddi2, "Label40", 2) {}

    // 1Q+6 up to 3, -4Q+21 up to 4.25, 0Q+4 up to 5, -1Q+10 up to 10.
    FormDriver& openFour() { return open(kAt3EndsAt4And4th, kAt5EndsAt10); }
    // 1Q+6 up to 3, 1Q+2 up to 5, 3Q-11.
    FormDriver& openThree() { return open(kAt3Rises, kAt5Rises); }
    // 3Q+4 up to 4, 4Q-12.
    FormDriver& openTwo() { return open(kAt4Rises, kAt4IsLevel); }
    // 1Q+5 up to 3, -2Q+19 up to 4, -6Q+36 up to 16/3, -3Q+20 up to 20/3.
    FormDriver& openThirds() { return open(kAt3EndsInThirds, kAt4EndsInThirds); }
};

const Typed kAnswerOfFour{{"Text1", "1"},   {"Text2", "6"},     {"Text3", "3"},    {"Text4", "-4"},
                          {"Text5", "21"},  {"Text6", "3"},     {"Text7", "4.25"}, {"Text8", "0"},
                          {"Text9", "4"},   {"Text10", "4.25"}, {"Text11", "5"},   {"Text12", "-1"},
                          {"Text13", "10"}, {"Text14", "5"},    {"Text15", "10"}};
const Typed kAnswerOfThree{{"Text1", "1"}, {"Text2", "6"}, {"Text3", "3"}, {"Text4", "1"},   {"Text5", "2"},
                           {"Text6", "3"}, {"Text7", "5"}, {"Text8", "3"}, {"Text9", "-11"}, {"Text10", "5"}};
const Typed kAnswerOfTwo{{"Text1", "3"}, {"Text2", "4"},   {"Text3", "4"},
                         {"Text4", "4"}, {"Text5", "-12"}, {"Text6", "4"}};
const Typed kAnswerOfThirds{{"Text1", "1"},   {"Text2", "5"},     {"Text3", "3"},     {"Text4", "-3"},
                            {"Text5", "19"},  {"Text6", "3"},     {"Text7", "4"},     {"Text8", "-6"},
                            {"Text9", "36"},  {"Text10", "4"},    {"Text11", "5.33"}, {"Text12", "-3"},
                            {"Text13", "20"}, {"Text14", "5.33"}, {"Text15", "6.67"}};

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
    for (const char* hidden : {"Command4", "Label39", "Label40", "Picture7"}) {
        EXPECT_FALSE(unshown.isShown(hidden)) << hidden;
    }
    for (const char* blank : {"Label2", "Label41", "Label50", "Label70", "Label71", "Label72", "Label73",
                              "Label74", "Label75", "Label76", "Label83"}) {
        EXPECT_EQ(unshown.caption(blank), "") << blank;
    }
    EXPECT_TRUE(unshown.isShown("Label83"));
}

TEST_F(Laddi2Form, HidesItsEmptyLabelAtTheFirstTick) { EXPECT_FALSE(openTwo().isShown("Label83")); }

TEST_F(Laddi2Form, HasItsFixedTexts) {
    const FixedText texts[]{
        {"Label1", "P=    Q +      for  0<Q"},
        {"Label43", "P=    Q +      for  0<Q"},
        {"Label38", "Adder de ovenstående linier lodret og skriv de nye forskrifter i rubrikkerne nederst."},
        {"Label303", "for          0<Q"},
        {"Label314", "<Q"},
        {"Label79",
         "Bestem forskrifterne for de resulterende funktioner ved først at bestemme hvilke grafer der er "
         "defineret i de fundne intervaller og dernæst lægge deres alfa- og betaværdier sammen."},
        {"Vis1", "Vis"},
        {"Vis2", "Vis"},
        {"Luk", "&Luk"}};
    test::expectTexts(openFour(), texts);
    EXPECT_EQ(form->label("Label81").text().simplified().toStdString(),
              "Bestem definitionsintervallerne for de resulterende funktioner: Find vha. de opgivne "
              "definitionsmængder Q-værdierne til de opgivne funktioners endepunkter. Disse Q-værdier ordnes "
              "efter størrelse, og derved fremkommer de resulterende funktioners definitionsintervaller.");
}

TEST_F(Laddi2Form, UnderlinesTheSignsForAtMost) {
    const FormDriver& f = openFour();
    for (const char* sign : {"Label341", "Label342", "Label351", "Label352", "Label304", "Label305",
                             "Label315", "Label325", "Label335"}) {
        EXPECT_TRUE(f.label(sign).font().underline()) << sign;
        EXPECT_EQ(f.caption(sign), "<") << sign;
    }
    for (const char* plain : {"Label1", "Label5", "Label303", "Label314", "Label324", "Label334"}) {
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
    expect({{"Label2", "-1"}, {"Label3", "4"}, {"Label4", "3"}});
    expect(
        {{"Label5", "P=    Q +      for    <Q, P>0"}, {"Label6", "-4"}, {"Label41", "21"}, {"Label42", "3"}});
    expect({{"Label44", "0"}, {"Label45", "4"}, {"Label46", "5"}});
    expect({{"Label47", "P=    Q -       for    <Q, P>0"},
            {"Label48", "2"},
            {"Label49", "9"},
            {"Label50", "5"}});
    // The line changes back with the sign.
    nextExercise({7, {4, 4}, {4, -27}}, {3, {1, 2}, {1, 0}});
    expect(
        {{"Label5", "P=    Q -       for    <Q, P>0"}, {"Label6", "4"}, {"Label41", "27"}, {"Label42", "7"}});
    expect(
        {{"Label47", "P=    Q +      for    <Q, P>0"}, {"Label48", "1"}, {"Label49", "0"}, {"Label50", "3"}});
}

TEST_F(Laddi2Form, ShowsTheSlopeOfALevelPieceThatWasDrawnAsFallingWithoutASign) {
    const FormDriver& f = open(kAt5IsLevel, {4, {0, 3}, {0, 9}});
    EXPECT_EQ(f.caption("Label6"), "0");
    EXPECT_EQ(f.caption("Label48"), "0");
    answer({{"Text1", "9"}});
    f.click("Command4");
    EXPECT_EQ(f.box("Text7").content(), "5");
    EXPECT_EQ(f.box("Text8").content(), "0");
    EXPECT_EQ(f.box("Text9").content(), "16");
}

// A jump at a kink is normal: the pieces are not joined.
TEST_F(Laddi2Form, DrawsBothPiecesOfEachFunctionWithoutJoiningThem) {
    const FormDriver& f = openFour();
    EXPECT_EQ(f.find("Picture3").parentWidget(), &f.find("Picture2"));
    EXPECT_EQ(f.find("Picture4").parentWidget(), &f.find("Picture1"));
    EXPECT_EQ(f.find("Picture6").parentWidget(), &f.find("Picture5"));
    EXPECT_LT(whereIs(f, "Picture2").right(), whereIs(f, "Picture1").left());
    EXPECT_EQ(strokes("Picture3"), (Strokes{kFunction.line(0, 8, 3, 5), kFunction.line(3, 5, 10, 33)}));
    EXPECT_EQ(strokes("Picture4"), (Strokes{kFunction.line(0, 6, 5, 6), kFunction.line(5, 5, 10, 10)}));
    EXPECT_TRUE(strokes("Picture6").empty());
    nextExercise(kAt4Rises, kAt4IsLevel);
    EXPECT_EQ(strokes("Picture3"), (Strokes{kFunction.line(0, 9, 4, -3), kFunction.line(4, 9, 10, -15)}));
    EXPECT_EQ(strokes("Picture4"), (Strokes{kFunction.line(0, 7, 4, 7), kFunction.line(4, 7, 10, 7)}));
}

TEST_F(Laddi2Form, DrawsTheTicksOfEachFrameOnceForAllItsExercises) {
    openFour();
    nextExercise(kAt4Rises, kAt4IsLevel);
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

TEST_F(Laddi2Form, SetsItsFramesSoThatTheTicksMeetTheBoxes) {
    const FormDriver& f = openFour();
    struct Row {
        const char* frame;
        const char* box;
        double unitX, unitY, top, bottom;
    };
    for (const Row& row : {Row{"Picture2", "Picture3", 280.5, 280.5, 0.2, 8.2},
                           Row{"Picture1", "Picture4", 280.5, 280.5, 0.2, 8.2},
                           Row{"Picture5", "Picture6", 285.64, 242.93, 1, 19.5}}) {
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

const std::vector<std::string> kBoxes{"Text1",  "Text2",  "Text3",  "Text4",  "Text5",
                                      "Text6",  "Text7",  "Text8",  "Text9",  "Text10",
                                      "Text11", "Text12", "Text13", "Text14", "Text15"};

/// The captions of a row of the answer, and the sign before its end.
struct RowNames {
    std::array<const char*, 4> captions;
    const char* beforeEnd;
};

constexpr std::array kRowNames{RowNames{{"Label301", "Label302", "Label303", "Label304"}, "Label305"},
                               RowNames{{"Label311", "Label312", "Label313", "Label314"}, "Label315"},
                               RowNames{{"Label321", "Label322", "Label323", "Label324"}, "Label325"},
                               RowNames{{"Label331", "Label332", "Label333", "Label334"}, "Label335"}};

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
    EXPECT_EQ(form->focus(), "Text1");
}

TEST_P(Laddi2Kinds, WalkThroughTheFieldsByEnter) {
    std::vector<std::string> walked{form->focus()};
    while (form->isFocusInABox()) {
        form->press(walked.back(), Qt::Key_Return);
        walked.push_back(form->focus());
    }
    std::vector<std::string> expected = boxesOf(GetParam());
    expected.emplace_back("Command2");
    EXPECT_EQ(walked, expected);
}

TEST_P(Laddi2Kinds, LeadFromTheLastFieldToTheNextExerciseOnceTheAnswerIsGiven) {
    answer({{"Text1", "99"}});
    form->click("Command4");
    const std::string last = boxesOf(GetParam()).back();
    form->box(last).setFocus();
    form->press(last, Qt::Key_Return);
    EXPECT_EQ(form->focus(), "Command1");
}

TEST_P(Laddi2Kinds, CloseTheirHelpTowardsTheFirstField) {
    form->click("Command3");
    EXPECT_TRUE(form->isShown("Picture7"));
    EXPECT_EQ(form->focus(), "Vis1");
    form->press("Vis1", Qt::Key_Return);
    EXPECT_EQ(form->focus(), "Vis2");
    form->press("Vis2", Qt::Key_Return);
    EXPECT_EQ(form->focus(), "Luk");
    EXPECT_TRUE(form->isShown("Command2"));
    form->press("Luk", Qt::Key_Return);
    EXPECT_FALSE(form->isShown("Picture7"));
    EXPECT_EQ(form->focus(), "Text1");
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
    answer({{"Text1", "9"}, {"Text15", "9"}});
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
    EXPECT_EQ(isRight(), row.isRight);
    EXPECT_EQ(f.isShown("Label39"), !row.isRight);
    EXPECT_EQ(f.isShown("Command4"), !row.isRight);
    EXPECT_EQ(f.isShown("Command2"), !row.isRight);
    EXPECT_EQ(f.focus(), row.isRight ? "Command1" : "Text1");
    EXPECT_EQ(redBoxes(), row.red);
    EXPECT_EQ(strokes("Picture6").empty(), !row.isRight);
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
                 {{"Text1", "3"},
                  {"Text2", "4"},
                  {"Text3", "4"},
                  {"Text4", "-7"},
                  {"Text5", "42"},
                  {"Text6", "4"},
                  {"Text7", "6"}},
                 true,
                 {}},
        JudgeRow{"ThreeSegments", kAt3Rises, kAt5Rises, kAnswerOfThree, true, {}},
        JudgeRow{"ThreeSegmentsWithAnEnd",
                 kAt4EndsAt10,
                 kAt4EndsAt6,
                 {{"Text1", "3"},
                  {"Text2", "4"},
                  {"Text3", "4"},
                  {"Text4", "-5"},
                  {"Text5", "34"},
                  {"Text6", "4"},
                  {"Text7", "6"},
                  {"Text8", "-1"},
                  {"Text9", "10"},
                  {"Text10", "6"},
                  {"Text11", "10"}},
                 true,
                 {}},
        ofFour("FourSegmentsWithAnEnd", {}, true, {}),
        JudgeRow{"FourSegments",
                 kAt3EndsAt4And4th,
                 kAt5Rises,
                 with(kAnswerOfFour, {{"Text12", "2"}, {"Text13", "-9"}, {"Text15", " "}}),
                 true,
                 {}},
        JudgeRow{"FourSegmentsInThirds", kAt3EndsInThirds, kAt4EndsInThirds, kAnswerOfThirds, true, {}},
        // Its third slope is 0, which a blank fits.
        JudgeRow{"NothingOfFourSegments",
                 kAt3EndsAt4And4th,
                 kAt5EndsAt10,
                 {},
                 false,
                 {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7", "Text9", "Text10", "Text11",
                  "Text12", "Text13", "Text14", "Text15"}},
        JudgeRow{"NothingOfThreeSegments", kAt3Rises, kAt5Rises, {}, false, boxesOf(kAnswerOfThree)},
        JudgeRow{"NothingOfTwoSegments", kAt4Rises, kAt4IsLevel, {}, false, boxesOf(kAnswerOfTwo)},
        ofFour("AlmostTheFirstSlope", {{"Text1", "1.001"}}, false, {"Text1"}),
        ofFour("AlmostTheFirstIntercept", {{"Text2", "5.999"}}, false, {"Text2"}),
        ofFour("AlmostTheSecondSlope", {{"Text4", "-4.001"}}, false, {"Text4"}),
        ofFour("AlmostTheSecondIntercept", {{"Text5", "21.001"}}, false, {"Text5"}),
        ofFour("AlmostTheThirdSlope", {{"Text8", "0.001"}}, false, {"Text8"}),
        ofFour("AlmostTheThirdIntercept", {{"Text9", "3.999"}}, false, {"Text9"}),
        ofFour("AlmostTheFourthSlope", {{"Text12", "-0.999"}}, false, {"Text12"}),
        ofFour("AlmostTheFourthIntercept", {{"Text13", "10.001"}}, false, {"Text13"}),
        ofFour("TheUpperEndAtItsBound", {{"Text15", "10.005"}}, true, {}),
        ofFour("TheUpperEndAtItsLowerBound", {{"Text15", "9.995"}}, true, {}),
        ofFour("BeyondTheUpperEnd", {{"Text15", "10.0051"}}, false, {"Text15"}),
        ofFour("BeforeTheUpperEnd", {{"Text15", "9.9949"}}, false, {"Text15"}),
        ofFour("EveryBreakTypedWrongly",
               {{"Text3", "9"},
                {"Text6", "-1"},
                {"Text7", " "},
                {"Text10", "x"},
                {"Text11", "1e308"},
                {"Text14", "-1e308"}},
               true, {}),
        ofFour("ABreakAndASlopeWrong", {{"Text8", "1"}, {"Text3", "3.006"}}, false, {"Text3", "Text8"}),
        ofFour("TheSecondBreakInBothItsFields", {{"Text8", "1"}, {"Text7", "4.2"}, {"Text10", "4.3"}}, false,
               {"Text7", "Text8", "Text10"}),
        ofFour("TheThirdBreakInBothItsFields", {{"Text8", "1"}, {"Text11", "4.99"}, {"Text14", "5.01"}},
               false, {"Text8", "Text11", "Text14"}),
        ofFour(
            "BreaksAtTheirBounds",
            {{"Text8", "1"}, {"Text3", "3.005"}, {"Text6", "2.995"}, {"Text7", "4.255"}, {"Text10", "4.245"}},
            false, {"Text8"}),
        JudgeRow{"BreaksByTheirUnroundedValue",
                 kAt3EndsInThirds,
                 kAt4EndsInThirds,
                 with(kAnswerOfThirds, {{"Text1", "9"}, {"Text11", "5.338"}, {"Text14", "5.327"}}),
                 false,
                 {"Text1", "Text14"}},
        JudgeRow{"TheUpperEndByItsRoundedValue",
                 kAt3EndsInThirds,
                 kAt4EndsInThirds,
                 with(kAnswerOfThirds, {{"Text15", "6.674"}}),
                 true,
                 {}},
        JudgeRow{"BeforeTheRoundedUpperEnd",
                 kAt3EndsInThirds,
                 kAt4EndsInThirds,
                 with(kAnswerOfThirds, {{"Text15", "6.664"}}),
                 false,
                 {"Text15"}},
        JudgeRow{"TheSegmentsSwapped",
                 kAt4Rises,
                 kAt4IsLevel,
                 {{"Text1", "4"},
                  {"Text2", "-12"},
                  {"Text3", "4"},
                  {"Text4", "3"},
                  {"Text5", "4"},
                  {"Text6", "4"}},
                 false,
                 {"Text1", "Text2", "Text4", "Text5"}}),
    [](const auto& row) { return row.param.name; });

TEST_F(Laddi2Form, MayBeTriedAgainUntilItIsRight) {
    const FormDriver& f = openFour();
    answer(with(kAnswerOfFour, {{"Text1", "4"}}));
    EXPECT_EQ(redBoxes(), std::set<std::string>{"Text1"});
    answer(with(kAnswerOfFour, {{"Text13", "5"}}));
    EXPECT_EQ(redBoxes(), std::set<std::string>{"Text13"});
    EXPECT_TRUE(f.isShown("Label39"));
    answer(kAnswerOfFour);
    EXPECT_TRUE(isRight());
    EXPECT_FALSE(f.isShown("Label39"));
    EXPECT_FALSE(f.isShown("Command4"));
    EXPECT_TRUE(redBoxes().empty());
    nextExercise(kAt4Rises, kAt4IsLevel);
    EXPECT_FALSE(isRight());
    EXPECT_TRUE(f.isShown("Command2"));
    EXPECT_TRUE(strokes("Picture6").empty());
}

TEST_F(Laddi2Form, DrawsALineOfTheRightSumPerSegmentAndTheLastToTheEndOfTheAxis) {
    openFour();
    answer(kAnswerOfFour);
    EXPECT_EQ(strokes("Picture6"), (Strokes{sumLine(0, 6, 3, 9), sumLine(3, 9, 4.25, 4),
                                            sumLine(4.25, 4, 5, 4), sumLine(5, 5, 10, 0)}));
    nextExercise(kAt3Rises, kAt5Rises);
    answer(kAnswerOfThree);
    EXPECT_EQ(strokes("Picture6"),
              (Strokes{sumLine(0, 6, 3, 9), sumLine(3, 5, 5, 7), sumLine(5, 4, 10, 19)}));
    nextExercise(kAt4Rises, kAt4IsLevel);
    answer(kAnswerOfTwo);
    EXPECT_EQ(strokes("Picture6"), (Strokes{sumLine(0, 4, 4, 16), sumLine(4, 4, 10, 28)}));
    nextExercise(kAt3EndsInThirds, kAt4EndsInThirds);
    answer(kAnswerOfThirds);
    EXPECT_EQ(strokes("Picture6"), (Strokes{sumLine(0, 5, 3, 8), sumLine(3, 10, 4, 7),
                                            sumLine(4, 12, kThirds1, -6 * kThirds1 + 36),
                                            sumLine(kThirds1, -3 * kThirds1 + 20, 10, -10)}));
}

// A last segment that begins beyond the axis runs back to its end.
TEST_F(Laddi2Form, DrawsTheLastSegmentBackToTheEndOfTheAxisWhereItBeginsBeyondIt) {
    open(kAt3EndsAt12, kAt5Rises);
    answer({{"Text1", "1"},
            {"Text2", "6"},
            {"Text4", "-1"},
            {"Text5", "16"},
            {"Text8", "1"},
            {"Text9", "3"},
            {"Text12", "2"},
            {"Text13", "-9"}});
    ASSERT_TRUE(isRight());
    EXPECT_EQ(strokes("Picture6"), (Strokes{sumLine(0, 6, 3, 9), sumLine(3, 13, 5, 11), sumLine(5, 8, 12, 15),
                                            sumLine(12, 15, 10, 11)}));
}

const Typed kTypedSomehow{{"Text1", "2"},  {"Text2", "3"},  {"Text3", "4"},  {"Text4", "-1"},
                          {"Text5", "9"},  {"Text6", "5"},  {"Text7", "8"},  {"Text8", "0"},
                          {"Text9", "7"},  {"Text10", "6"}, {"Text11", "9"}, {"Text12", "3"},
                          {"Text13", "1"}, {"Text14", "2"}, {"Text15", "5"}};

TEST_F(Laddi2Form, DrawsTheTypedSumInRedAndTheRightOneOverIt) {
    openFour();
    answer(kTypedSomehow);
    form->click("Command4");
    EXPECT_EQ(strokes("Picture6"),
              (Strokes{sumLine(0, 3, 4, 11, kRed), sumLine(5, 4, 8, 1, kRed), sumLine(6, 7, 9, 7, kRed),
                       sumLine(2, 7, 5, 16, kRed), sumLine(0, 6, 3, 9), sumLine(3, 9, 4.25, 4),
                       sumLine(4.25, 4, 5, 4), sumLine(5, 5, 10, 0)}));
}

TEST_F(Laddi2Form, DrawsTheTypedSumToTheEndOfTheAxisWhereNoUpperEndIsAsked) {
    openThree();
    answer(kTypedSomehow);
    // What stands in the boxes now counts.
    fill({{"Text9", "6"}});
    form->click("Command4");
    EXPECT_EQ(strokes("Picture6"),
              (Strokes{sumLine(0, 3, 4, 11, kRed), sumLine(5, 4, 8, 1, kRed), sumLine(6, 6, 10, 6, kRed),
                       sumLine(0, 6, 3, 9), sumLine(3, 5, 5, 7), sumLine(5, 4, 10, 19)}));
    nextExercise(kAt4Rises, kAt4IsLevel);
    answer(kTypedSomehow);
    form->click("Command4");
    EXPECT_EQ(strokes("Picture6"), (Strokes{sumLine(0, 3, 4, 11, kRed), sumLine(5, 4, 10, -1, kRed),
                                            sumLine(0, 4, 4, 16), sumLine(4, 4, 10, 28)}));
}

TEST_F(Laddi2Form, GivesTheAnswerWithRoundedBreaks) {
    const DecimalMark danish(",");
    const FormDriver& f = openThirds();
    f.click("Command3");
    answer(kTypedSomehow);
    f.click("Command4");
    const Typed expected =
        with(kAnswerOfThirds, {{"Text11", "5,33"}, {"Text14", "5,33"}, {"Text15", "6,67"}});
    for (const auto& [box, text] : expected) {
        EXPECT_EQ(f.box(box).content(), text) << box;
    }
    EXPECT_TRUE(redBoxes().empty());
    for (const char* hidden : {"Picture7", "Label39", "Label40", "Command2", "Command4"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_EQ(f.focus(), "Command1");
}

TEST_F(Laddi2Form, GivesAShorterAnswerAndLeavesTheRowsBelowIt) {
    const FormDriver& f = openThree();
    answer({{"Text1", "9"}});
    f.click("Command4");
    for (const auto& [box, text] : kAnswerOfThree) {
        EXPECT_EQ(f.box(box).content(), text) << box;
    }
    for (const char* hidden : {"Text12", "Text13", "Text14", "Text15"}) {
        EXPECT_EQ(f.box(hidden).content(), " ") << hidden;
    }
}

TEST_F(Laddi2Form, WritesTheUpperEndOfAnEarlierExerciseIntoTheHiddenFieldOfTheLastRow) {
    const FormDriver& f = openThree();
    const auto given = [&](const char* box) {
        answer({{"Text1", "99"}});
        f.click("Command4");
        EXPECT_FALSE(f.isShown(box)) << box;
        return f.box(box).content();
    };
    EXPECT_EQ(given("Text11"), "0");
    nextExercise(kAt3EndsInThirds, kAt4EndsInThirds);
    nextExercise(kAt4Rises, kAt4IsLevel);
    EXPECT_EQ(given("Text7"), "6.67");
    nextExercise(kAt3Rises, kAt5Rises);
    EXPECT_EQ(given("Text11"), "6.67");
    nextExercise(kAt3EndsAt8, kAt5IsLevel);
    EXPECT_EQ(given("Text15"), "6.67");
}

TEST_F(Laddi2Form, MarksBothSidesOfEachKinkAndTheEndsAndDotsEveryBreak) {
    openFour();
    form->click("Command3");
    form->click("Vis1");
    // The upper end stands on the last break.
    const Strokes uprights = dotted({3, 4.25, 5, 10, 10});
    EXPECT_EQ(drawnLater("Picture3"), mark(0, 2) + mark(3, 5) + mark(3, 5) + mark(4.25, 0) + uprights);
    EXPECT_EQ(drawnLater("Picture4"), mark(0, 4) + mark(5, 4) + mark(5, 5) + mark(10, 0) + uprights);
    EXPECT_TRUE(strokes("Picture6").empty());
    for (const char* field : {"Text1", "Text3", "Text15"}) {
        EXPECT_EQ(form->box(field).content(), " ") << field;
    }
}

TEST_F(Laddi2Form, MarksNoEndOfAPieceThatDoesNotFallAndDotsItsPlaceBesideTheBox) {
    openThree();
    form->click("Command3");
    form->click("Vis1");
    const Strokes uprights = dotted({3, 5, 100});
    EXPECT_EQ(drawnLater("Picture3"), mark(0, 2) + mark(3, 5) + mark(3, 1) + uprights);
    EXPECT_EQ(drawnLater("Picture4"), mark(0, 4) + mark(5, 4) + mark(5, 1) + uprights);
    nextExercise(kAt4Rises, kAt4IsLevel);
    form->click("Vis1");
    EXPECT_EQ(drawnLater("Picture3"), mark(0, 1) + mark(4, 13) + mark(4, 1) + dotted({4, 100}));
    EXPECT_EQ(drawnLater("Picture4"), mark(0, 3) + mark(4, 3) + mark(4, 3) + dotted({4, 100}));
}

TEST_F(Laddi2Form, DotsTheBreaksUnroundedAndTheUpperEndRoundedHoweverOftenAsked) {
    openThirds();
    form->click("Command3");
    form->click("Vis1");
    const Strokes once =
        mark(0, 2) + mark(3, 5) + mark(3, 7) + mark(kThirds1, 0) + dotted({3, 4, kThirds1, kThirds2, 6.67});
    EXPECT_EQ(drawnLater("Picture3"), once);
    form->click("Vis2");
    EXPECT_EQ(drawnLater("Picture3"), once + once);
    answer(with(kAnswerOfThirds, {{"Text1", "9"}, {"Text11", "5.338"}}));
    EXPECT_EQ(redBoxes(), std::set<std::string>{"Text1"});
}

TEST_F(Laddi2Form, TellsTheIntervalsThenTheSegments) {
    const DecimalMark danish(",");
    const FormDriver& f = openThirds();
    const auto lines = [&f] {
        std::vector<std::string> captions;
        for (const char* line :
             {"Label70", "Label71", "Label72", "Label73", "Label74", "Label75", "Label76"}) {
            captions.push_back(f.caption(line));
        }
        return captions;
    };
    f.click("Command3");
    EXPECT_EQ(lines(), std::vector<std::string>(7));
    f.click("Vis1");
    std::vector<std::string> expected{
        "Definitonsintervallerne bliver:", "0<X<3, 3<X<4, ", "4<X<5,33 og 5,33<X<6,67", "", "", "", ""};
    EXPECT_EQ(lines(), expected);
    f.click("Vis2");
    expected[3] = "P = (1 + 0)Q + (2 + 3) = 1Q + 5 for 0<X<3";
    expected[4] = "P = (-3 + 0)Q + (16 + 3) = -3Q + 19 for 3<X<4";
    expected[5] = "P = (-3 - 3)Q + (16 + 20) = -6Q + 36 for 4<X<5,33";
    expected[6] = "P = -3Q + 20 for 5,33<X<6,67";
    EXPECT_EQ(lines(), expected);
    // The rest stays empty.
    nextExercise(kAt4Rises, kAt4IsLevel);
    EXPECT_FALSE(f.isShown("Picture7"));
    EXPECT_EQ(lines(), std::vector<std::string>(7));
    EXPECT_TRUE(drawnLater("Picture3").empty());
    EXPECT_TRUE(drawnLater("Picture4").empty());
    f.click("Vis2");
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
        form->click("Command2");
        form->click("Command4");
        EXPECT_FALSE(form->page().grab().isNull());
        EXPECT_EQ(form->box("Text13").content(), "10");
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
        answer({{"Text1", "-9"}, {"Text4", "-9"}});
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
        f.click("Command3");
        f.click("Vis2");
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
        f.click("Command4");
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
    return scriptOf(
        {shown("Label4"), {shown("Label2"), shown("Label3")}, after("Label5", "Label6", "Label41")},
        {shown("Label46"), {shown("Label44"), shown("Label45")}, after("Label47", "Label48", "Label49")});
}

// Seeded exercises, each read off the page: the answer of one is typed into the same one drawn again.
TEST(Laddi2Plays, SolvesWhatItShowsByTheGivenAnswer) {
    SeededDraws seeded(81);
    const FormDriver source(PageName::Laddi2, seeded);
    ScriptedDraws draws(scriptOf(kAt4Rises, kAt4IsLevel));
    const FormDriver f(PageName::Laddi2, draws);
    std::set<std::pair<bool, bool>> kinds;
    for (int played = 0; played < 150; ++played) {
        source.button("Command1").click();
        const test::Script script = scriptOfShown(source);
        SCOPED_TRACE(played);
        draws.append(script);
        f.button("Command1").click();
        for (const char* box : {"Picture3", "Picture4"}) {
            ASSERT_EQ(f.find<GraphBox>(box).strokes(), source.find<GraphBox>(box).strokes());
        }
        f.box("Text1").setContent("99");
        f.button("Command2").click();
        ASSERT_TRUE(f.isShown("Label39"));
        f.button("Command4").click();
        Typed given;
        for (const AnswerBox* box : f.page().findChildren<AnswerBox*>()) {
            given[box->objectName().toStdString()] = box->content();
        }
        draws.append(script);
        f.button("Command1").click();
        for (const auto& [box, content] : given) {
            if (f.isShown(box)) {
                f.box(box).setContent(content);
            }
        }
        f.button("Command2").click();
        ASSERT_TRUE(f.isShown("Label40"));
        kinds.insert({f.isShown("Text8"), f.isShown("Text12")});
    }
    EXPECT_EQ(kinds.size(), 3U);
    EXPECT_TRUE(draws.isUsedUp());
}

}  // namespace
}  // namespace tavrune
