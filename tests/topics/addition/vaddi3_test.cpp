#include "topics/addition/vaddi3.h"

#include <array>

#include <gtest/gtest.h>

#include "numeric/arithmetic.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/fixed_texts.h"
#include "support/form_driver.h"
#include "support/lines.h"
#include "support/looks.h"
#include "support/strokes.h"
#include "topics/addition/addition_graphs.h"
#include "topics/addition/vaddi3_tasks.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FormDriver;
using test::ScriptedDraws;
using test::scriptOf;
using test::Vaddi3Task;

using Strokes = std::vector<Stroke>;
using Names = std::vector<std::string>;

const test::StrokesIn kGiven{{0, 0, 10, 10}};
const test::StrokesIn kSum{{0, 0, 20, 10}};
const QColor kTeal(0, 200, 200);

/// The offsets of a thick drawing: a running sum, like the strokes themselves.
std::vector<double> offsets(double half) {
    std::vector<double> all;
    for (double offset = -half; offset <= half; offset += 0.05) {
        all.push_back(offset);
    }
    return all;
}

Strokes mark(double q, double p) {
    Strokes strokes;
    for (const double offset : offsets(0.15)) {
        strokes.push_back(kGiven.line(q + offset, 10 - p - 0.15, q + offset, 10 - p + 0.15, kRed));
    }
    return strokes;
}

Strokes band(double q, double p, const QColor& colour) {
    Strokes strokes;
    const double base = p == 0 ? 0 : p - 0.1;
    for (double y = base; y <= base + 0.2; y += 0.05) {
        strokes.push_back(kGiven.line(0, 10 - y, q, 10 - y, colour));
    }
    return strokes;
}

Strokes bar(double from, double to, double p, const QColor& colour) {
    Strokes strokes;
    for (const double offset : offsets(0.1)) {
        strokes.push_back(kSum.line(from, 10 - p - offset, to, 10 - p - offset, colour));
    }
    return strokes;
}

/// A piece of the sum from `from` to `to`.
Stroke piece(double slope, double intercept, double from, double to, const QColor& colour) {
    return kSum.line(from, 10 - (slope * from + intercept), to, 10 - (slope * to + intercept), colour);
}

const std::array<Names, 6> kTable{{{"Text11", "Text17", "Text23", "Text29", "Text35"},
                                   {"Text12", "Text18", "Text24", "Text30", "Text40"},
                                   {"Text13", "Text19", "Text25", "Text31", "Text41"},
                                   {"Text14", "Text20", "Text26", "Text32", "Text42"},
                                   {"Text15", "Text21", "Text27", "Text33", "Text43"},
                                   {"Text16", "Text22", "Text28", "Text34", "Text44"}}};

const Names kAnswerBoxes{"Text1", "Text2",  "Text3",  "Text4",  "Text5",  "Text6",  "Text7", "Text8",
                         "Text9", "Text10", "Text36", "Text37", "Text38", "Text39", "Text47"};

class Vaddi3Form : public testing::Test {
protected:
    FormDriver& open(const Vaddi3Task& task) {
        draws.append(scriptOf(task));
        form = std::make_unique<FormDriver>(PageName::Vaddi3, draws);
        return *form;
    }

    void nextExercise(const Vaddi3Task& task) {
        draws.append(scriptOf(task));
        form->click("Command1");
    }

    [[nodiscard]] const Vaddi3State& state() const {
        return dynamic_cast<const Vaddi3&>(form->page()).state();
    }

    /// Into the boxes of the answer, in the order of their rows; what is not asked is left out.
    void fill(const std::vector<std::pair<std::string, std::string>>& answers) const {
        for (const auto& [box, text] : answers) {
            form->type(box, text);
        }
    }

    [[nodiscard]] const Strokes& strokes(const char* box) const {
        return form->find<GraphBox>(box).strokes();
    }

    [[nodiscard]] Names shownOf(const Names& names) const {
        Names shown;
        for (const std::string& name : names) {
            if (form->isShown(name)) {
                shown.push_back(name);
            }
        }
        return shown;
    }

    [[nodiscard]] Names redBoxes() const {
        Names red;
        for (const std::string& name : kAnswerBoxes) {
            if (form->box(name).backColour() == kRed) {
                red.push_back(name);
            }
        }
        return red;
    }

    [[nodiscard]] std::string column(std::size_t index) const {
        std::string text;
        for (const std::string& name : kTable.at(index)) {
            text += (text.empty() ? "" : "|") + form->box(name).content();
        }
        return text;
    }

    /// Enter by Enter from a box until the focus is no longer on a box.
    [[nodiscard]] Names walkFrom(const std::string& box) const {
        Names walk{box};
        form->box(box).setFocus();
        while (form->isFocusInABox() && walk.size() < 60) {
            form->press(walk.back(), Qt::Key_Return);
            walk.push_back(form->focus());
        }
        return walk;
    }

    ScriptedDraws draws;
    std::unique_ptr<FormDriver> form;
};

const std::vector<std::pair<std::string, std::string>> kAnswerOfTwo{
    {"Text1", "-0,5"},  {"Text2", "9"}, {"Text3", "4"},   {"Text4", "-1,33"},
    {"Text5", "10,33"}, {"Text6", "4"}, {"Text7", "7,75"}};

const std::vector<std::pair<std::string, std::string>> kAnswerOfThree{
    {"Text1", "-0,4"}, {"Text2", "9"},  {"Text3", "5"},  {"Text4", "-2"}, {"Text5", "17"}, {"Text6", "5"},
    {"Text7", "6"},    {"Text8", "-1"}, {"Text9", "11"}, {"Text10", "6"}, {"Text36", "11"}};

const std::vector<std::pair<std::string, std::string>> kAnswerOfFour{
    {"Text1", "-3"},   {"Text2", "9"},     {"Text3", "1,33"}, {"Text4", "-1,2"}, {"Text5", "6,6"},
    {"Text6", "1,33"}, {"Text7", "3"},     {"Text8", "-0,5"}, {"Text9", "7"},    {"Text10", "2"},
    {"Text36", "4"},   {"Text37", "-0,4"}, {"Text38", "6,6"}, {"Text39", "4"},   {"Text47", "16,5"}};

// What the design fixes, and the task.

TEST_F(Vaddi3Form, BearsTheTextsOfItsDesign) {
    const FormDriver& f = open(test::kFourSegments);
    EXPECT_EQ(f.page().windowTitle().toStdString(), "Tavrune - Vandret addition - Niveau 3");
    static constexpr std::array<test::FixedText, 34> kTexts{
        {{"Label59",
          "Adder de ovenstående linier vandret og indtast de nye forskrifter i felterne nederst. Brug evt. "
          "hjælpeskemaet øverst til højre."},
         {"Label26", "P=        Q +        for  0<Q"},
         {"Label30", "P=        Q +        for      Q, P>0"},
         {"Label34", "P=     Q +     for Q>0, P>0"},
         {"Label3", "<"},
         {"Label41", "<"},
         {"Label11", "P="},
         {"Label13", "Q +"},
         {"Label15", " for          0<Q<"},
         {"Label19", "Q +"},
         {"Label20", " for"},
         {"Label22", "P="},
         {"Label23", "Q +"},
         {"Label24", " for"},
         {"Label37", "P="},
         {"Label38", "Q +"},
         {"Label39", " for"},
         {"Label40", "<Q"},
         {"Label45", "FORKERT"},
         {"Label49", "RIGTIGT"},
         {"Label64", ""},
         {"Command1", "&Ny opgave"},
         {"Command2", "&OK"},
         {"Command3", "&Hjælp"},
         {"Command4", "&Giv svaret"},
         {"Vis1", "Vis"},
         {"Vis2", "Vis"},
         {"Vis3", "Vis"},
         {"Luk", "&Luk"},
         {"Label1", ""},
         {"Label2", ""},
         {"Label33", "2"},
         {"Label29", "2"},
         {"Label27", "-3"}}};
    test::expectTexts(f, kTexts);
    EXPECT_TRUE(f.label("Label41").font().underline());
    EXPECT_FALSE(f.label("Label3").font().underline());
    EXPECT_FALSE(f.isShown("Label64"));
}

TEST_F(Vaddi3Form, TellsTheTwoFunctions) {
    const DecimalMark inUse(",");
    const FormDriver& f = open({KinkKind::Flatter, 7, -3, 1, -0.7F, 0, -4, 8});
    EXPECT_EQ(f.caption("Label27"), "-3");
    EXPECT_EQ(f.caption("Label28"), "7");
    EXPECT_EQ(f.caption("Label29"), "1");
    EXPECT_EQ(f.caption("Label31"), "-0,7");
    EXPECT_EQ(f.caption("Label32"), "4,7");
    EXPECT_EQ(f.caption("Label33"), "1");
    EXPECT_EQ(f.caption("Label35"), "-4");
    EXPECT_EQ(f.caption("Label36"), "8");
}

TEST_F(Vaddi3Form, GivesTheKinkToTheFirstPartOnlyWhereThePartsMeet) {
    const FormDriver& f = open(test::kTwoSegments);
    for (const auto& [task, isJump] : {std::pair{test::kTwoSegments, true},
                                       {test::kFourSegments, true},
                                       {test::kSteeper, false},
                                       {test::kFlatter, false}}) {
        nextExercise(task);
        EXPECT_EQ(f.isShown("Label3"), isJump);
        EXPECT_EQ(f.isShown("Label41"), !isJump);
    }
}

TEST_F(Vaddi3Form, ShowsTheWideTableOnlyForAJumpUp) {
    const FormDriver& f = open(test::kFourSegments);
    EXPECT_EQ(f.caption("Label9"), "P          Q1a       Q1b        Q2    Qtotala  Qtotalb");
    EXPECT_EQ(shownOf(kTable[0]), kTable[0]);
    EXPECT_EQ(shownOf(kTable[5]), kTable[5]);
    EXPECT_EQ(f.focus(), "Text11");
    for (const Vaddi3Task& task : {test::kTwoSegments, test::kSteeper, test::kFlatter}) {
        nextExercise(task);
        EXPECT_EQ(f.caption("Label9"), "              P           Q1          Q2     Qtotal");
        EXPECT_EQ(shownOf(kTable[0]), Names{});
        EXPECT_EQ(shownOf(kTable[5]), Names{});
        EXPECT_EQ(shownOf(kTable[1]), kTable[1]);
        EXPECT_EQ(f.focus(), "Text12");
    }
}

TEST_F(Vaddi3Form, BlanksEveryBoxWithOneBlank) {
    const FormDriver& f = open(test::kFourSegments);
    for (const AnswerBox* box : f.page().findChildren<AnswerBox*>()) {
        EXPECT_EQ(box->content(), " ") << box->objectName().toStdString();
    }
    f.click("Vis3");
    nextExercise(test::kTwoSegments);
    for (const AnswerBox* box : f.page().findChildren<AnswerBox*>()) {
        EXPECT_EQ(box->content(), " ") << box->objectName().toStdString();
        EXPECT_EQ(box->backColour(), kWhite);
    }
    EXPECT_EQ(f.caption("Label1"), "");
    EXPECT_EQ(f.caption("Label2"), "");
}

TEST_F(Vaddi3Form, EndsInAFailureForASlopeOfZero) {
    const FormDriver& f = open(test::kTwoSegments);
    draws.append(test::kindOf(KinkKind::JumpDown));
    draws.append({0.5F, 0});
    f.button("Command1").click();
    const test::ProgramEnd end = test::readFailure();
    EXPECT_EQ(end.message, messageFor(ArithmeticFailure::Kind::DivisionByZero));
    EXPECT_EQ(end.status, 1);
}

// The fields.

/// Which controls of the answer rows an exercise shows.
struct RowsCase {
    const char* name;
    Vaddi3Task task;
    Names boxes;
    bool hasFirstRow;
    bool hasThirdRow;
    bool hasFourthRow;
    const char* secondSign;
    const char* thirdSign;
};

class Vaddi3Rows : public Vaddi3Form, public testing::WithParamInterface<RowsCase> {};

INSTANTIATE_TEST_SUITE_P(
    Of, Vaddi3Rows,
    testing::Values(
        RowsCase{
            "OneSegment", test::kOneSegment, {"Text4", "Text5", "Text6"}, false, false, false, "<Q", "<Q"},
        RowsCase{"TwoSegments",
                 test::kTwoSegments,
                 {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"},
                 true,
                 false,
                 false,
                 "<Q<",
                 "<Q"},
        RowsCase{"TwoSegmentsOverALevel",
                 test::kTwoOverALevel,
                 {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6"},
                 true,
                 false,
                 false,
                 "<Q",
                 "<Q"},
        RowsCase{"ThreeSegments",
                 test::kThreeSegments,
                 {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7", "Text8", "Text9", "Text10",
                  "Text36"},
                 true,
                 true,
                 false,
                 "<Q<",
                 "<Q<"},
        RowsCase{"ThreeSegmentsOverALevel",
                 test::kThreeOverALevel,
                 {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7", "Text8", "Text9", "Text10"},
                 true,
                 true,
                 false,
                 "<Q<",
                 "<Q"},
        RowsCase{"FourSegments", test::kFourSegments, kAnswerBoxes, true, true, true, "<Q<", "<Q<"}),
    [](const auto& row) { return row.param.name; });

TEST_P(Vaddi3Rows, ShowsWhatIsAsked) {
    // From an exercise with all rows, and from one with the fewest.
    open(test::kFourSegments);
    for (const Vaddi3Task& before : {test::kFourSegments, test::kOneSegment}) {
        nextExercise(before);
        nextExercise(GetParam().task);
        EXPECT_EQ(shownOf(kAnswerBoxes), GetParam().boxes);
        const Names first{"Label11", "Label13", "Label15"};
        const Names second{"Label19", "Label20", "Label21"};
        const Names third{"Label22", "Label23", "Label24", "Label25"};
        const Names fourth{"Label37", "Label38", "Label39", "Label40", "LabelUpperEnd"};
        EXPECT_EQ(shownOf(first), GetParam().hasFirstRow ? first : Names{});
        EXPECT_EQ(shownOf(second), second);
        EXPECT_EQ(shownOf(third), GetParam().hasThirdRow ? third : Names{});
        EXPECT_EQ(shownOf(fourth), GetParam().hasFourthRow ? fourth : Names{});
        EXPECT_EQ(form->caption("Label21"), GetParam().secondSign);
        EXPECT_EQ(form->caption("Label25"), GetParam().thirdSign);
        EXPECT_EQ(form->caption("Label40"), "<Q");
    }
}

TEST_P(Vaddi3Rows, AreWalkedByEnter) {
    const FormDriver& f = open(GetParam().task);
    const bool isWide = GetParam().task.kind == KinkKind::JumpUp;
    Names expected;
    for (std::size_t row = 0; row < 5; ++row) {
        for (std::size_t column = isWide ? 0 : 1; column < (isWide ? 6 : 5); ++column) {
            expected.push_back(kTable.at(column).at(row));
        }
    }
    expected.insert(expected.end(), GetParam().boxes.begin(), GetParam().boxes.end());
    expected.emplace_back("Command2");
    EXPECT_EQ(walkFrom(isWide ? "Text11" : "Text12"), expected);
    f.click("Vis3");
    expected.back() = "Command1";
    EXPECT_EQ(walkFrom(isWide ? "Text11" : "Text12"), expected);
}

TEST_P(Vaddi3Rows, AreFilledAndWhiteAfterTheAnswer) {
    const FormDriver& f = open(GetParam().task);
    f.click("Command2");
    f.click("Command4");
    EXPECT_EQ(redBoxes(), Names{});
    for (const std::string& box : kAnswerBoxes) {
        EXPECT_EQ(f.box(box).content() != " ", f.isShown(box)) << box;
    }
    // Typed again, it is right; with three segments the verdict wants the upper end in the table.
    if (state().segmentCount() == 3 && state().upperEndAsked) {
        f.type("Text25", f.box("Text36").content());
    }
    f.button("Command2").show();
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label49"));
}

// The graphs.

TEST_F(Vaddi3Form, DrawsTicksRoundItsGraphs) {
    open(test::kTwoSegments);
    nextExercise(test::kFourSegments);
    for (const char* box : {"Picture1", "Picture2"}) {
        const GraphBox& frame = form->find<GraphBox>(box);
        const test::StrokesIn in{frame.scale()};
        Strokes ticks;
        for (double t = 0.2; t <= 8.5; t += 0.8) {
            ticks.push_back(in.line(t + 0.8, 8.2, t + 0.8, 8.4));
            ticks.push_back(in.line(0.8, t, 1, t));
        }
        EXPECT_EQ(frame.strokes(), ticks) << box;
        EXPECT_EQ(ticks.size(), 22U);
    }
    const GraphBox& frame = form->find<GraphBox>("Picture6");
    const test::StrokesIn in{frame.scale()};
    Strokes ticks;
    for (double t = 0.2; t <= 8.5; t += 0.8) {
        ticks.push_back(in.line(0.8, t + 0.8, 1, t + 0.8));
    }
    for (double t = 1; t <= 19.1; t += 0.9) {
        ticks.push_back(in.line(t, 9, t, 9.2));
    }
    EXPECT_EQ(frame.strokes(), ticks);
    EXPECT_EQ(ticks.size(), 32U);
}

TEST_F(Vaddi3Form, DrawsAJumpWithItsUprightAndAKinkWithout) {
    open(test::kTwoSegments);
    EXPECT_EQ(strokes("Picture4"),
              (Strokes{kGiven.line(0, 1, 4, 3), kGiven.line(4, 5, 10, 17), kGiven.line(4, 3, 4, 5)}));
    EXPECT_EQ(strokes("Picture3"), (Strokes{kGiven.line(0, 5, 10, 45)}));
    EXPECT_EQ(strokes("Picture7"), Strokes{});
    nextExercise(test::kFourSegments);
    EXPECT_EQ(strokes("Picture4"),
              (Strokes{kGiven.line(0, 1, 2, 7), kGiven.line(2, 4, 10, 8), kGiven.line(2, 7, 2, 4)}));
    nextExercise(test::kSteeper);
    EXPECT_EQ(strokes("Picture4"), (Strokes{kGiven.line(0, 4, 5, 8), kGiven.line(5, 8, 10, 18)}));
    nextExercise(test::kFlatter);
    EXPECT_EQ(strokes("Picture4"), (Strokes{kGiven.line(0, 1, 1, 5), kGiven.line(1, 5, 10, 9.5)}));
    nextExercise(test::kOneSegment);
    EXPECT_EQ(strokes("Picture3"), (Strokes{kGiven.line(0, 1, 10, 1)}));
}

// The judge.

TEST_F(Vaddi3Form, TakesTheRightAnswerAndDrawsIt) {
    const FormDriver& f = open(test::kTwoSegments);
    fill(kAnswerOfTwo);
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label49"));
    EXPECT_FALSE(f.isShown("Command2"));
    EXPECT_FALSE(f.isShown("Command4"));
    EXPECT_EQ(f.focus(), "Command1");
    // Without a join, which only the given answer has.
    EXPECT_EQ(strokes("Picture7"),
              (Strokes{piece(-0.5, 9, 0, 4, kSumGreen), piece(-1.33, 10.33, 4, 20, kSumGreen)}));
}

TEST_F(Vaddi3Form, DrawsEverySegmentOfFour) {
    const FormDriver& f = open(test::kFourSegments);
    fill(kAnswerOfFour);
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label49"));
    EXPECT_EQ(strokes("Picture7"),
              (Strokes{piece(-3, 9, 0, 1.33, kSumGreen), piece(-1.2, 6.6, 1.33, 3, kSumGreen),
                       piece(-0.5, 7, 2, 4, kSumGreen), piece(-0.4, 6.6, 4, 20, kSumGreen)}));
}

TEST_F(Vaddi3Form, TakesALoneSegmentOnlyFromZero) {
    const FormDriver& f = open(test::kOneSegment);
    fill({{"Text5", "9"}, {"Text6", "0.001"}});
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label45"));
    EXPECT_EQ(redBoxes(), Names{"Text6"});
    EXPECT_EQ(f.focus(), "Text4");
    f.type("Text6", "0");
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label49"));
    EXPECT_EQ(strokes("Picture7"), (Strokes{kSum.line(0, 1, 20, 1, kSumGreen)}));
}

TEST_F(Vaddi3Form, MarksEachFieldThatFailsByItself) {
    const FormDriver& f = open(test::kFourSegments);
    fill(kAnswerOfFour);
    for (const std::string& box : kAnswerBoxes) {
        const std::string right = f.box(box).content();
        f.type(box, "77");
        f.click("Command2");
        EXPECT_TRUE(f.isShown("Label45"));
        EXPECT_TRUE(f.isShown("Command4"));
        EXPECT_TRUE(f.isShown("Command2"));
        EXPECT_EQ(redBoxes(), Names{box});
        EXPECT_EQ(f.focus(), "Text1");
        f.type(box, right);
    }
    f.click("Command2");
    EXPECT_EQ(redBoxes(), Names{});
    EXPECT_TRUE(f.isShown("Label49"));
}

TEST_F(Vaddi3Form, MarksAValueJustAtTheLowerEndOfItsTolerance) {
    const FormDriver& f = open(test::kTwoSegments);
    fill(kAnswerOfTwo);
    f.type("Text2", "8.995");
    f.type("Text7", "7.745");
    f.click("Command2");
    EXPECT_EQ(redBoxes(), Names{"Text2"});
    f.type("Text2", "9.005");
    f.type("Text7", "7.755");
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label49"));
}

TEST_F(Vaddi3Form, ReadsTheUpperEndOfThreeSegmentsFromTheHelpTable) {
    const FormDriver& f = open(test::kThreeSegments);
    fill(kAnswerOfThree);
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label45"));
    EXPECT_EQ(redBoxes(), Names{});
    f.type("Text36", "12");
    f.click("Command2");
    EXPECT_EQ(redBoxes(), Names{"Text36"});
    f.type("Text25", "11");
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label49"));
    EXPECT_EQ(redBoxes(), Names{});
}

TEST_F(Vaddi3Form, ReadsNoUpperEndOfThreeSegmentsOverALevel) {
    const FormDriver& f = open(test::kThreeOverALevel);
    fill({{"Text1", "-3"},
          {"Text2", "9"},
          {"Text3", "1"},
          {"Text4", "-0,4"},
          {"Text5", "8"},
          {"Text6", "1"},
          {"Text7", "7,5"},
          {"Text8", "0"},
          {"Text9", "5"},
          {"Text10", "7,5"}});
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label49"));
}

TEST_F(Vaddi3Form, DoesNotReadTheHelpTableOtherwise) {
    const FormDriver& f = open(test::kFourSegments);
    for (const Names& column : kTable) {
        for (const std::string& box : column) {
            f.box(box).setContent("99");
        }
    }
    fill(kAnswerOfFour);
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label49"));
}

TEST_F(Vaddi3Form, KeepsTheWrongVerdictUnderTheRightOne) {
    const FormDriver& f = open(test::kTwoSegments);
    f.click("Command2");
    fill(kAnswerOfTwo);
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label45"));
    EXPECT_TRUE(f.isShown("Label49"));
}

// The given answer.

TEST_F(Vaddi3Form, DrawsTheTypedSumInRedBeforeTheRightOne) {
    const FormDriver& f = open(test::kTwoSegments);
    fill({{"Text1", "-1"},
          {"Text2", "9"},
          {"Text3", "3"},
          {"Text4", "-2"},
          {"Text5", "8"},
          {"Text6", "3"},
          {"Text7", "5"}});
    f.click("Command2");
    f.click("Command4");
    EXPECT_EQ(strokes("Picture7"),
              (Strokes{kSum.line(0, 1, 3, 4, kRed), kSum.line(3, 8, 5, 12, kRed), kSum.line(3, 4, 3, 8, kRed),
                       piece(-0.5, 9, 0, 4, kSumGreen), piece(-1.33, 10.33, 4, 20, kSumGreen),
                       kSum.line(4, 3, 4, 10 - (-1.33 * 4 + 10.33), kSumGreen)}));
    EXPECT_EQ(f.box("Text1").content(), "-0.5");
    EXPECT_EQ(f.box("Text7").content(), "7.75");
    EXPECT_EQ(column(1), "9|7|5|0| ");
    EXPECT_EQ(column(4), "0|4|4|7.75| ");
    EXPECT_EQ(f.focus(), "Command1");
}

TEST_F(Vaddi3Form, DrawsFourTypedSegmentsAndTheirJoinsAndThenTheRightOnes) {
    const FormDriver& f = open(test::kFourSegments);
    fill({{"Text1", "-1"},
          {"Text2", "9"},
          {"Text3", "2"},
          {"Text4", "-2"},
          {"Text5", "8"},
          {"Text6", "2"},
          {"Text7", "3"},
          {"Text8", "-0,5"},
          {"Text9", "7"},
          {"Text10", "4"},
          {"Text36", "5"},
          {"Text37", "-0,25"},
          {"Text38", "5"},
          {"Text39", "5"},
          {"Text47", "6"}});
    f.click("Command3");
    f.click("Command2");
    f.click("Command4");
    // The third starts elsewhere than the second ends.
    EXPECT_EQ(strokes("Picture7"),
              (Strokes{kSum.line(0, 1, 2, 3, kRed), kSum.line(2, 6, 3, 8, kRed),
                       kSum.line(4, 5, 5, 5.5, kRed), kSum.line(5, 6.25, 6, 6.5, kRed),
                       kSum.line(2, 3, 2, 6, kRed), kSum.line(5, 5.5, 5, 6.25, kRed),
                       piece(-3, 9, 0, 1.33, kSumGreen), piece(-1.2, 6.6, 1.33, 3, kSumGreen),
                       piece(-0.5, 7, 2, 4, kSumGreen), piece(-0.4, 6.6, 4, 20, kSumGreen),
                       kSum.line(1.33, 10 - (-3 * 1.33 + 9), 1.33, 10 - (-1.2 * 1.33 + 6.6), kSumGreen)}));
    EXPECT_FALSE(f.isShown("Picture5"));
    for (const char* hidden : {"Command2", "Command4", "Label45", "Label49"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_EQ(column(0), "9|6|5|3|0");
    EXPECT_EQ(column(4), "0|1|1.33|3|2.5");
    EXPECT_EQ(column(5), "0|2|4|9|16.5");
}

TEST_F(Vaddi3Form, RunsThreeTypedSegmentsToTwentyOverALevel) {
    const FormDriver& f = open(test::kThreeOverALevel);
    fill({{"Text1", "-1"},
          {"Text2", "9"},
          {"Text3", "2"},
          {"Text4", "-2"},
          {"Text5", "8"},
          {"Text6", "2"},
          {"Text7", "3"},
          {"Text9", "4"},
          {"Text10", "3"}});
    f.click("Command2");
    f.click("Command4");
    const Strokes& all = strokes("Picture7");
    // The level one has no join.
    EXPECT_EQ(Strokes(all.begin(), all.begin() + 4),
              (Strokes{kSum.line(0, 1, 2, 3, kRed), kSum.line(2, 6, 3, 8, kRed), kSum.line(3, 6, 20, 6, kRed),
                       kSum.line(2, 3, 2, 6, kRed)}));
    EXPECT_EQ(all[4].colour, kSumGreen);
}

TEST_F(Vaddi3Form, JoinsTypedSegmentsOnlyWhereTheyMeetAndSlope) {
    const auto redJoins = [this](const char* slope, const char* start) {
        nextExercise(test::kTwoSegments);
        fill({{"Text1", "-1"},
              {"Text2", "9"},
              {"Text3", "3"},
              {"Text4", slope},
              {"Text5", "8"},
              {"Text6", start},
              {"Text7", "5"}});
        form->click("Command2");
        form->click("Command4");
        const Strokes& all = strokes("Picture7");
        return std::count_if(all.begin(), all.end(), [](const Stroke& s) { return s.colour == kRed; }) - 2;
    };
    open(test::kTwoSegments);
    EXPECT_EQ(redJoins("-2", "3"), 1);
    EXPECT_EQ(redJoins("-2", "3.01"), 0);
    EXPECT_EQ(redJoins("0", "3"), 0);
}

TEST_F(Vaddi3Form, RunsTheTypedSumToTwentyWhereNoEndIsAsked) {
    const FormDriver& f = open(test::kOneSegment);
    fill({{"Text4", "-0,1"}, {"Text5", "5"}, {"Text6", "2"}});
    f.click("Command2");
    f.click("Command4");
    EXPECT_EQ(strokes("Picture7"), (Strokes{piece(-0.1, 5, 2, 20, kRed), kSum.line(0, 1, 20, 1, kSumGreen)}));
    EXPECT_EQ(f.box("Text4").content(), "0");
    EXPECT_EQ(f.box("Text5").content(), "9");
    EXPECT_EQ(f.box("Text6").content(), "0");
    EXPECT_EQ(f.box("Text7").content(), " ");
}

TEST_F(Vaddi3Form, JoinsTheRightSegmentsAtEveryBoundOfAJumpDown) {
    const FormDriver& f = open(test::kTwoOverALevel);
    f.click("Vis3");
    const Strokes& all = strokes("Picture7");
    EXPECT_EQ(Strokes(all.end() - 3, all.end()),
              (Strokes{piece(-0.5, 9, 0, 4, kSumGreen), kSum.line(4, 4, 20, 4, kSumGreen),
                       kSum.line(4, 3, 4, 4, kSumGreen)}));
    nextExercise(test::kThreeSegments);
    f.click("Vis3");
    EXPECT_EQ(Strokes(all.end() - 2, all.end()),
              (Strokes{kSum.line(5, 3, 5, 3, kSumGreen), kSum.line(6, 5, 6, 5, kSumGreen)}));
}

TEST_F(Vaddi3Form, JoinsOnlyTheFirstTwoSegmentsOfAJumpUpIfTheyMeet) {
    const FormDriver& f = open(test::kThreeOverALevel);
    const Strokes& all = strokes("Picture7");
    f.click("Vis3");
    EXPECT_EQ(Strokes(all.end() - 4, all.end()),
              (Strokes{piece(-3, 9, 0, 1, kSumGreen), piece(-0.4, 8, 1, 7.5, kSumGreen),
                       kSum.line(7.5, 5, 20, 5, kSumGreen), kSum.line(1, 4, 1, 10 - (-0.4 + 8), kSumGreen)}));
    // One part, then level.
    nextExercise({KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, 0, 8});
    f.click("Vis3");
    EXPECT_EQ(all.back(), kSum.line(0.33, 2, 20, 2, kSumGreen));
    // The second part begins before the first has ended.
    nextExercise({KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, -2, 9});
    f.click("Vis3");
    EXPECT_EQ(all.back(), piece(-0.4, 7.4, 3.5, 20, kSumGreen));
}

TEST_F(Vaddi3Form, JoinsNothingAtAKink) {
    const FormDriver& f = open(test::kFlatter);
    f.click("Vis3");
    EXPECT_EQ(strokes("Picture7").back(), piece(-0.4, 5.4, 1, 20, kSumGreen));
}

TEST_F(Vaddi3Form, WritesTheAnswerWithTheDanishMark) {
    const DecimalMark inUse(",");
    const FormDriver& f = open(test::kTwoSegments);
    f.click("Command2");
    f.click("Command4");
    EXPECT_EQ(f.box("Text4").content(), "-1,33");
    EXPECT_EQ(f.box("Text7").content(), "7,75");
    EXPECT_EQ(f.box("Text43").content(), " ");
    EXPECT_EQ(f.box("Text33").content(), "7,75");
}

// The help.

TEST_F(Vaddi3Form, TellsItsStepsInTheWordsOfTheFirstLevelWhereTheyAreTrueOfIt) {
    SeededDraws seeded{1};
    const FormDriver f(PageName::Vaddi3, seeded);
    SeededDraws other{1};
    const FormDriver first(PageName::Vaddi1, other);
    const auto sentences = [](const FormDriver& of, const char* label) {
        return of.label(label).text().simplified().toStdString();
    };
    const std::string prices = sentences(first, "pricesStepText");
    // Of a level function the price stands but once here.
    EXPECT_EQ(sentences(f, "Label252"), prices.substr(0, prices.find("Hvis der er en vandret")) +
                                            "Ens P-værdier indsættes kun én gang.");
    const std::string quantities = sentences(first, "quantitiesStepText");
    EXPECT_TRUE(sentences(f, "Label5")
                    .starts_with(quantities.substr(0, quantities.find(" Hvis der er en vandret linie"))));
    EXPECT_EQ(sentences(f, "Label255"), sentences(first, "sumStepText"));
    for (const auto& [step, beginning] : {std::pair{"Label252", "Hvis funktionerne er voksende"},
                                          {"Label252", "Ens P-værdier"},
                                          {"Label42", "Hvis der er en vandret linie"},
                                          {"Label5", "Hvis der er en vandret linie"}}) {
        EXPECT_TRUE(test::hasALineThatBegins(f.label(step), beginning)) << step << ": " << beginning;
    }
}

TEST_F(Vaddi3Form, HelpsWithTheTextOfTheKind) {
    const FormDriver& f = open(test::kFourSegments);
    f.click("Command3");
    EXPECT_TRUE(f.isShown("Picture5"));
    EXPECT_TRUE(f.isShown("Label42"));
    EXPECT_FALSE(f.isShown("Label5"));
    EXPECT_EQ(f.focus(), "Vis1");
    f.click("Luk");
    EXPECT_FALSE(f.isShown("Picture5"));
    EXPECT_EQ(f.focus(), "Text11");
    for (const Vaddi3Task& task : {test::kTwoSegments, test::kSteeper, test::kFlatter}) {
        nextExercise(task);
        f.click("Command3");
        EXPECT_FALSE(f.isShown("Label42"));
        EXPECT_TRUE(f.isShown("Label5"));
        f.click("Luk");
        EXPECT_EQ(f.focus(), "Text12");
    }
}

TEST_F(Vaddi3Form, ShowsThePricesAndMarksTheirEnds) {
    const FormDriver& f = open(test::kFourSegments);
    f.click("Command3");
    f.click("Vis1");
    EXPECT_EQ(column(0), "9|6|5|3|0");
    EXPECT_EQ(column(1), " | | | | ");
    EXPECT_EQ(f.focus(), "Vis2");
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("Picture4"), 3),
              mark(0, 9) + mark(2, 3) + mark(2, 6) + mark(14, 0));
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("Picture3"), 1), mark(0, 5) + mark(2.5, 0));
    EXPECT_EQ(mark(0, 9).size(), 6U);
    nextExercise(test::kTwoOverALevel);
    f.click("Vis1");
    EXPECT_EQ(column(1), "9|7|6|5|0");
    EXPECT_EQ(column(2), " | | | | ");
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("Picture3"), 1), mark(0, 6) + mark(10, 6));
    nextExercise(test::kFlatter);
    f.click("Vis1");
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("Picture4"), 2), mark(0, 9) + mark(1, 5) + mark(11, 0));
}

TEST_F(Vaddi3Form, ShowsTheQuantitiesOfOneColumn) {
    const FormDriver& f = open(test::kThreeSegments);
    f.click("Command3");
    f.click("Vis2");
    EXPECT_EQ(column(1), "9|7|5|0| ");
    EXPECT_EQ(column(2), "0|4|4|6.5| ");
    EXPECT_EQ(column(3), "0|1|2|4.5| ");
    EXPECT_EQ(column(4), "0|5|6|11| ");
    EXPECT_EQ(f.caption("Label1"), "Her fra ( 0 ; 9 ) til ( 5 ; 7 ), fra ( 5 ; 7 ) til ( 6 ; 5 ) og fra ");
    EXPECT_EQ(f.caption("Label2"), "( 6 ; 5 ) til ( 11 ; 0 ).");
    EXPECT_EQ(f.focus(), "Vis3");
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("Picture4"), 3),
              mark(0, 9) + mark(4, 7) + mark(4, 5) + mark(6.5, 0) + band(4, 7, kBlue) + band(4, 5, kBlue) +
                  band(6.5, 0, kBlue));
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("Picture3"), 1),
              mark(0, 9) + mark(4.5, 0) + band(1, 7, kBandGreen) + band(2, 5, kBandGreen) +
                  band(4.5, 0, kBandGreen));
}

TEST_F(Vaddi3Form, ShowsTheQuantitiesOfBothParts) {
    const FormDriver& f = open(test::kFourSegments);
    f.click("Vis2");
    EXPECT_EQ(column(1), "0|1|1.33|2|0");
    EXPECT_EQ(column(2), "0|2|4|8|14");
    EXPECT_EQ(column(3), " | |0|1|2.5");
    EXPECT_EQ(column(5), "0|2|4|9|16.5");
    const Strokes marks = mark(0, 9) + mark(2, 3) + mark(2, 6) + mark(14, 0);
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("Picture4"), 3),
              marks + band(1, 6, kBlue) + band(2, 6, kBlue) + band(1.33, 5, kBlue) + band(4, 5, kBlue) +
                  band(2, 3, kBlue) + band(8, 3, kBlue) + band(0, 0, kBlue) + band(14, 0, kBlue));
}

TEST_F(Vaddi3Form, HasNoBandForAnyQuantity) {
    const FormDriver& f = open(test::kTwoOverALevel);
    f.click("Vis2");
    EXPECT_EQ(column(3), " | |0|oo|oo");
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("Picture3"), 1),
              mark(0, 6) + mark(10, 6) + band(0, 6, kBandGreen));
}

TEST_F(Vaddi3Form, StacksTheQuantitiesAndFillsTheAnswer) {
    const FormDriver& f = open(test::kThreeSegments);
    f.click("Command2");
    f.click("Command3");
    f.click("Vis3");
    for (const char* hidden : {"Command2", "Command4", "Label45", "Label49"}) {
        EXPECT_FALSE(f.isShown(hidden)) << hidden;
    }
    EXPECT_EQ(f.focus(), "Luk");
    EXPECT_EQ(redBoxes(), Names{});
    EXPECT_EQ(f.box("Text36").content(), "11");
    EXPECT_EQ(f.caption("Label2"), "( 6 ; 5 ) til ( 11 ; 0 ).");
    const Strokes stacks = bar(0, 0, 9, kTeal) + bar(0, 0, 9, kBandGreen) + bar(0, 4, 7, kTeal) +
                           bar(4, 5, 7, kBandGreen) + bar(0, 4, 5, kTeal) + bar(4, 6, 5, kBandGreen) +
                           bar(0, 6.5, 0, kTeal) + bar(6.5, 11, 0, kBandGreen);
    const Strokes sum{piece(-0.4, 9, 0, 5, kSumGreen), piece(-2, 17, 5, 6, kSumGreen),
                      piece(-1, 11, 6, 20, kSumGreen), kSum.line(5, 3, 5, 3, kSumGreen),
                      kSum.line(6, 5, 6, 5, kSumGreen)};
    EXPECT_EQ(strokes("Picture7"), stacks + sum);
}

TEST_F(Vaddi3Form, StacksEachPartOfAJumpUpOverItsOwnPrices) {
    const FormDriver& f = open(test::kFourSegments);
    f.click("Vis3");
    Strokes stacks = strokes("Picture7");
    // Four segments and a join.
    stacks.resize(stacks.size() - 5);
    EXPECT_EQ(stacks, bar(0, 0, 9, kTeal) + bar(0, 2, 6, kTeal) + bar(0, 1.33, 5, kTeal) +
                          bar(1.33, 1.33, 5, kBandGreen) + bar(0, 4, 5, kTeal) + bar(4, 4, 5, kBandGreen) +
                          bar(0, 2, 3, kTeal) + bar(2, 3, 3, kBandGreen) + bar(0, 14, 0, kTeal) +
                          bar(14, 16.5, 0, kBandGreen));
}

TEST_F(Vaddi3Form, StacksFunction2AloneAboveFunction1AndNothingForAnyQuantity) {
    const FormDriver& f = open({KinkKind::Steeper, 6, -0.8F, 5, -2, 0, -1, 8});
    f.click("Vis3");
    Strokes stacks = strokes("Picture7");
    stacks.resize(stacks.size() - 3);
    EXPECT_EQ(stacks, bar(0, 0, 8, kBandGreen) + bar(0, 0, 6, kTeal) + bar(0, 2, 6, kBandGreen) +
                          bar(0, 5, 2, kTeal) + bar(5, 11, 2, kBandGreen) + bar(0, 6, 0, kTeal) +
                          bar(6, 14, 0, kBandGreen));
    nextExercise(test::kOneSegment);
    f.click("Vis3");
    stacks = strokes("Picture7");
    stacks.pop_back();
    EXPECT_EQ(stacks, bar(0, 0, 9, kBandGreen) + bar(0, 0, 8, kTeal) + bar(0, 4, 6, kTeal) +
                          bar(0, 4, 4, kTeal) + bar(0, 6, 0, kTeal));
}

TEST_F(Vaddi3Form, StacksTheFirstFunctionAloneBelowALevel) {
    const FormDriver& f = open(test::kThreeOverALevel);
    f.click("Vis3");
    EXPECT_EQ(column(3), " | | |0|oo");
    Strokes stacks = strokes("Picture7");
    // Three segments and a join.
    stacks.resize(stacks.size() - 4);
    EXPECT_EQ(stacks, bar(0, 0, 9, kTeal) + bar(0, 1, 7.6, kTeal) + bar(0, 1, 6, kTeal) +
                          bar(0, 7.5, 5, kTeal) + bar(7.5, 7.5, 5, kBandGreen) + bar(0, 20, 0, kTeal));
    EXPECT_EQ(bar(0, 1, 6, kTeal).size(), 5U);
    EXPECT_EQ(f.box("Text36").content(), " ");
}

TEST_F(Vaddi3Form, RunsTheStepsBeforeEachStep) {
    open(test::kThreeSegments);
    std::vector<Strokes> seen;
    std::vector<std::string> texts;
    for (const Names& steps : {Names{"Vis3"}, Names{"Vis1", "Vis2", "Vis3"}, Names{"Vis2", "Vis3"}}) {
        nextExercise(test::kThreeSegments);
        form->click("Command3");
        for (const std::string& step : steps) {
            form->click(step);
        }
        seen.push_back(strokes("Picture7"));
        texts.push_back(form->caption("Label1") + column(1) + column(4) + form->box("Text8").content());
    }
    EXPECT_EQ(seen[0], seen[1]);
    EXPECT_EQ(seen[0], seen[2]);
    EXPECT_EQ(texts[0], texts[1]);
    EXPECT_EQ(texts[0], texts[2]);
    // Back to the first step: it only draws its marks again.
    form->click("Vis1");
    EXPECT_EQ(strokes("Picture7"), seen[0]);
    EXPECT_EQ(form->focus(), "Vis2");
}

TEST_F(Vaddi3Form, LeavesOkHiddenAfterTheLastStepUntilTheNextExercise) {
    const FormDriver& f = open(test::kThreeSegments);
    f.click("Vis3");
    f.click("Luk");
    EXPECT_FALSE(f.isShown("Command2"));
    EXPECT_TRUE(f.isShown("Command1"));
    nextExercise(test::kTwoSegments);
    EXPECT_TRUE(f.isShown("Command2"));
    EXPECT_EQ(strokes("Picture7"), Strokes{});
    EXPECT_EQ(strokes("Picture4").size(), 3U);
}

TEST_F(Vaddi3Form, BearsAnythingThatIsTyped) {
    const FormDriver& f = open(test::kFourSegments);
    for (const char* text : {"1e308", "-1e308", "", "abc", "oo", "1e-308", "nan", "-inf"}) {
        nextExercise(test::kFourSegments);
        for (const std::string& box : kAnswerBoxes) {
            f.box(box).setContent(text);
        }
        f.click("Command2");
        EXPECT_TRUE(f.isShown("Label45"));
        f.click("Command4");
        EXPECT_EQ(f.box("Text47").content(), "16.5");
    }
}

TEST_F(Vaddi3Form, FitsTheLongestNumbersOfEachKind) {
    const DecimalMark inUse(",");
    const FormDriver& f = open(test::kFourSegments);
    for (const Vaddi3Task& task : {Vaddi3Task{KinkKind::JumpDown, 8, -0.3F, 7, -4, 0.3F, -3, 9},
                                   Vaddi3Task{KinkKind::JumpDown, 5, -0.1F, 8, -4, 0.1F, -3, 9},
                                   Vaddi3Task{KinkKind::JumpUp, 9, -3, 2, -0.1F, 0.9F, -3, 6},
                                   Vaddi3Task{KinkKind::JumpUp, 9, -4, 1, -0.3F, 0.9F, -3, 5},
                                   Vaddi3Task{KinkKind::Steeper, 5, -0.7F, 5, -4, 0, -3, 7},
                                   Vaddi3Task{KinkKind::Flatter, 8, -5, 1, -0.1F, 0, -3, 7}}) {
        nextExercise(task);
        f.click("Command2");
        f.click("Command3");
        f.click("Vis2");
        EXPECT_EQ(test::flawsOf(f.page()), Names{});
        f.click("Vis3");
        EXPECT_EQ(test::flawsOf(f.page()), Names{});
        f.click("Luk");
        EXPECT_EQ(test::flawsOf(f.page()), Names{});
    }
}

}  // namespace
}  // namespace tavrune
