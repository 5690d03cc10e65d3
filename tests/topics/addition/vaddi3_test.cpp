#include "topics/addition/vaddi3.h"

#include <array>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "shell/failure.h"
#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/addition/addition_frames.h"
#include "topics/addition/addition_graphs.h"
#include "topics/addition/step_sentences.h"
#include "topics/addition/vaddi3_tasks.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FormDriver;
using test::scriptOf;
using test::Vaddi3Task;

using Strokes = std::vector<Stroke>;
using Names = std::vector<std::string>;
using Red = std::set<std::string>;

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

const std::array<Names, 6> kTable{
    {{"wideTablePrice1", "wideTablePrice2", "wideTablePrice3", "wideTablePrice4", "wideTablePrice5"},
     {"part1QuantityOrPrice1", "part1QuantityOrPrice2", "part1QuantityOrPrice3", "part1QuantityOrPrice4",
      "part1QuantityOrPrice5"},
     {"function1OrPart2Quantity1", "function1OrPart2Quantity2", "function1OrPart2Quantity3",
      "function1OrPart2Quantity4", "function1OrPart2Quantity5"},
     {"function2Quantity1", "function2Quantity2", "function2Quantity3", "function2Quantity4",
      "function2Quantity5"},
     {"totalOrPart1TotalQuantity1", "totalOrPart1TotalQuantity2", "totalOrPart1TotalQuantity3",
      "totalOrPart1TotalQuantity4", "totalOrPart1TotalQuantity5"},
     {"part2TotalQuantity1", "part2TotalQuantity2", "part2TotalQuantity3", "part2TotalQuantity4",
      "part2TotalQuantity5"}}};

const Names kAnswerBoxes{"segment1Slope",     "segment1Intercept", "segment1End", "segment2Slope",
                         "segment2Intercept", "segment2Start",     "segment2End", "segment3Slope",
                         "segment3Intercept", "segment3Start",     "segment3End", "segment4Slope",
                         "segment4Intercept", "segment4Start",     "segment4End"};

/// Texts for the boxes of the answer, in their order; an empty one is left out.
std::vector<std::pair<std::string, std::string>> inOrder(const std::vector<std::string>& texts) {
    std::vector<std::pair<std::string, std::string>> result;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!texts[i].empty()) {
            result.emplace_back(kAnswerBoxes[i], texts[i]);
        }
    }
    return result;
}

class Vaddi3Form : public test::ScriptedForm<const Vaddi3Task&> {
protected:
    Vaddi3Form() : ScriptedForm(PageName::Vaddi3, scriptOf) {}

    [[nodiscard]] const Vaddi3State& state() const {
        return dynamic_cast<const Vaddi3&>(form->page()).state();
    }

    /// Into the boxes of the answer, in the order of their rows; what is not asked is left out.
    void fill(const std::vector<std::pair<std::string, std::string>>& answers) const {
        for (const auto& [box, text] : answers) {
            form->type(box, text);
        }
    }

    /// Enter by Enter from a box until the focus is no longer in one.
    [[nodiscard]] Names walkFrom(const std::string& box) const {
        form->box(box).setFocus();
        return walkByEnter();
    }

    [[nodiscard]] std::string column(std::size_t index) const {
        std::string text;
        for (const std::string& name : kTable.at(index)) {
            text += (text.empty() ? "" : "|") + form->box(name).content();
        }
        return text;
    }
};

const std::vector<std::pair<std::string, std::string>> kAnswerOfTwo{
    {"segment1Slope", "-0,5"},  {"segment1Intercept", "9"},     {"segment1End", "4"},
    {"segment2Slope", "-1,33"}, {"segment2Intercept", "10,33"}, {"segment2Start", "4"},
    {"segment2End", "7,75"}};

const std::vector<std::pair<std::string, std::string>> kAnswerOfThree{
    {"segment1Slope", "-0,4"},   {"segment1Intercept", "9"}, {"segment1End", "5"}, {"segment2Slope", "-2"},
    {"segment2Intercept", "17"}, {"segment2Start", "5"},     {"segment2End", "6"}, {"segment3Slope", "-1"},
    {"segment3Intercept", "11"}, {"segment3Start", "6"},     {"segment3End", "11"}};

const std::vector<std::pair<std::string, std::string>> kAnswerOfFour{
    {"segment1Slope", "-3"},      {"segment1Intercept", "9"},   {"segment1End", "1,33"},
    {"segment2Slope", "-1,2"},    {"segment2Intercept", "6,6"}, {"segment2Start", "1,33"},
    {"segment2End", "3"},         {"segment3Slope", "-0,5"},    {"segment3Intercept", "7"},
    {"segment3Start", "2"},       {"segment3End", "4"},         {"segment4Slope", "-0,4"},
    {"segment4Intercept", "6,6"}, {"segment4Start", "4"},       {"segment4End", "16,5"}};

// What the design fixes, and the task.

TEST_F(Vaddi3Form, BearsTheTextsOfItsDesign) {
    const FormDriver& f = open(test::kFourSegments);
    EXPECT_EQ(f.page().windowTitle().toStdString(), "Tavrune - Vandret addition - Niveau 3");
    static constexpr std::array<test::FixedText, 33> kTexts{
        {{"task",
          "Adder de ovenstående linier vandret og indtast de nye forskrifter i felterne nederst. Brug evt. "
          "hjælpeskemaet øverst til højre."},
         {"function1Part1Text", "P=        Q +        for  0<Q"},
         {"function1Part2Text", "P=        Q +        for      Q, P>0"},
         {"function2Text", "P=     Q +     for Q>0, P>0"},
         {"function1Part1EndLess", "<"},
         {"function1Part1EndLessOrEqual", "<"},
         {"segment1PriceEquals", "P="},
         {"segment1TimesQuantityPlus", "Q +"},
         {"segment1ZeroLessThanQuantity", " for          0<Q<"},
         {"segment2TimesQuantityPlus", "Q +"},
         {"segment2ValidFor", " for"},
         {"segment3PriceEquals", "P="},
         {"segment3TimesQuantityPlus", "Q +"},
         {"segment3ValidFor", " for"},
         {"segment4PriceEquals", "P="},
         {"segment4TimesQuantityPlus", "Q +"},
         {"segment4ValidFor", " for"},
         {"segment4LessThanQuantity", "<Q"},
         {"wrong", "FORKERT"},
         {"right", "RIGTIGT"},
         {"newExercise", "&Ny opgave"},
         {"ok", "&OK"},
         {"help", "&Hjælp"},
         {"giveAnswer", "&Giv svaret"},
         {"showPrices", "Vis"},
         {"showQuantities", "Vis"},
         {"showSum", "Vis"},
         {"closeHelp", "&Luk"},
         {"quantitiesResult", ""},
         {"quantitiesResultRest", ""},
         {"function1Part2Start", "2"},
         {"function1Part1End", "2"},
         {"function1Part1Slope", "-3"}}};
    test::expectTexts(f, kTexts);
    EXPECT_TRUE(f.label("function1Part1EndLessOrEqual").font().underline());
    EXPECT_FALSE(f.label("function1Part1EndLess").font().underline());
}

TEST_F(Vaddi3Form, TellsTheTwoFunctions) {
    const DecimalMark inUse(",");
    const FormDriver& f = open({KinkKind::Flatter, 7, -3, 1, -0.7F, 0, -4, 8});
    test::expectTexts(f, {{"function1Part1Slope", "-3"},
                          {"function1Part1Intercept", "7"},
                          {"function1Part1End", "1"},
                          {"function1Part2Slope", "-0,7"},
                          {"function1Part2Intercept", "4,7"},
                          {"function1Part2Start", "1"},
                          {"function2Slope", "-4"},
                          {"function2Intercept", "8"}});
}

TEST_F(Vaddi3Form, GivesTheKinkToTheFirstPartOnlyWhereThePartsMeet) {
    const FormDriver& f = open(test::kTwoSegments);
    for (const auto& [task, isJump] : {std::pair{test::kTwoSegments, true},
                                       {test::kFourSegments, true},
                                       {test::kSteeper, false},
                                       {test::kFlatter, false}}) {
        next(task);
        EXPECT_EQ(f.isShown("function1Part1EndLess"), isJump);
        EXPECT_EQ(f.isShown("function1Part1EndLessOrEqual"), !isJump);
    }
}

TEST_F(Vaddi3Form, ShowsTheWideTableOnlyForAJumpUp) {
    const FormDriver& f = open(test::kFourSegments);
    EXPECT_EQ(f.caption("tableHead"), "P          Q1a       Q1b        Q2    Qtotala  Qtotalb");
    EXPECT_EQ(shownOf(kTable[0]), kTable[0]);
    EXPECT_EQ(shownOf(kTable[5]), kTable[5]);
    EXPECT_EQ(f.focus(), "wideTablePrice1");
    for (const Vaddi3Task& task : {test::kTwoSegments, test::kSteeper, test::kFlatter}) {
        next(task);
        EXPECT_EQ(f.caption("tableHead"), "              P           Q1          Q2     Qtotal");
        EXPECT_EQ(shownOf(kTable[0]), Names{});
        EXPECT_EQ(shownOf(kTable[5]), Names{});
        EXPECT_EQ(shownOf(kTable[1]), kTable[1]);
        EXPECT_EQ(f.focus(), "part1QuantityOrPrice1");
    }
}

TEST_F(Vaddi3Form, BlanksEveryBoxWithOneBlank) {
    const FormDriver& f = open(test::kFourSegments);
    for (const AnswerBox* box : f.page().findChildren<AnswerBox*>()) {
        EXPECT_EQ(box->content(), " ") << box->objectName().toStdString();
    }
    f.click("showSum");
    next(test::kTwoSegments);
    for (const AnswerBox* box : f.page().findChildren<AnswerBox*>()) {
        EXPECT_EQ(box->content(), " ") << box->objectName().toStdString();
        EXPECT_EQ(box->backColour(), kWhite);
    }
    test::expectTexts(f, {{"quantitiesResult", ""}, {"quantitiesResultRest", ""}});
}

TEST_F(Vaddi3Form, EndsInAFailureForASlopeOfZero) {
    const FormDriver& f = open(test::kTwoSegments);
    draws.append(test::kindOf(KinkKind::JumpDown));
    draws.append({0.5F, 0});
    f.button("newExercise").click();
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
        RowsCase{"OneSegment",
                 test::kOneSegment,
                 {"segment2Slope", "segment2Intercept", "segment2Start"},
                 false,
                 false,
                 false,
                 "<Q",
                 "<Q"},
        RowsCase{"TwoSegments",
                 test::kTwoSegments,
                 {"segment1Slope", "segment1Intercept", "segment1End", "segment2Slope", "segment2Intercept",
                  "segment2Start", "segment2End"},
                 true,
                 false,
                 false,
                 "<Q<",
                 "<Q"},
        RowsCase{"TwoSegmentsOverALevel",
                 test::kTwoOverALevel,
                 {"segment1Slope", "segment1Intercept", "segment1End", "segment2Slope", "segment2Intercept",
                  "segment2Start"},
                 true,
                 false,
                 false,
                 "<Q",
                 "<Q"},
        RowsCase{"ThreeSegments",
                 test::kThreeSegments,
                 {"segment1Slope", "segment1Intercept", "segment1End", "segment2Slope", "segment2Intercept",
                  "segment2Start", "segment2End", "segment3Slope", "segment3Intercept", "segment3Start",
                  "segment3End"},
                 true,
                 true,
                 false,
                 "<Q<",
                 "<Q<"},
        RowsCase{"ThreeSegmentsOverALevel",
                 test::kThreeOverALevel,
                 {"segment1Slope", "segment1Intercept", "segment1End", "segment2Slope", "segment2Intercept",
                  "segment2Start", "segment2End", "segment3Slope", "segment3Intercept", "segment3Start"},
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
        next(before);
        next(GetParam().task);
        EXPECT_EQ(shownOf(kAnswerBoxes), GetParam().boxes);
        const Names first{"segment1PriceEquals", "segment1TimesQuantityPlus", "segment1ZeroLessThanQuantity"};
        const Names second{"segment2TimesQuantityPlus", "segment2ValidFor", "segment2LessThanQuantity"};
        const Names third{"segment3PriceEquals", "segment3TimesQuantityPlus", "segment3ValidFor",
                          "segment3LessThanQuantity"};
        const Names fourth{"segment4PriceEquals", "segment4TimesQuantityPlus", "segment4ValidFor",
                           "segment4LessThanQuantity", "segment4EndLess"};
        EXPECT_EQ(shownOf(first), GetParam().hasFirstRow ? first : Names{});
        EXPECT_EQ(shownOf(second), second);
        EXPECT_EQ(shownOf(third), GetParam().hasThirdRow ? third : Names{});
        EXPECT_EQ(shownOf(fourth), GetParam().hasFourthRow ? fourth : Names{});
        EXPECT_EQ(form->caption("segment2LessThanQuantity"), GetParam().secondSign);
        EXPECT_EQ(form->caption("segment3LessThanQuantity"), GetParam().thirdSign);
        EXPECT_EQ(form->caption("segment4LessThanQuantity"), "<Q");
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
    expected.emplace_back("ok");
    EXPECT_EQ(walkFrom(isWide ? "wideTablePrice1" : "part1QuantityOrPrice1"), expected);
    f.click("showSum");
    expected.back() = "newExercise";
    EXPECT_EQ(walkFrom(isWide ? "wideTablePrice1" : "part1QuantityOrPrice1"), expected);
}

TEST_P(Vaddi3Rows, AreFilledAndWhiteAfterTheAnswer) {
    const FormDriver& f = open(GetParam().task);
    f.click("ok", "giveAnswer");
    EXPECT_EQ(redBoxes(), Red{});
    for (const std::string& box : kAnswerBoxes) {
        EXPECT_EQ(f.box(box).content() != " ", f.isShown(box)) << box;
    }
    // Typed again, it is right; with three segments the verdict wants the upper end in the table.
    if (state().segmentCount() == 3 && state().upperEndAsked) {
        f.type("function1OrPart2Quantity3", f.box("segment3End").content());
    }
    f.button("ok").show();
    f.click("ok");
    EXPECT_TRUE(f.isShown("right"));
}

// The graphs.

TEST_F(Vaddi3Form, DrawsTicksRoundItsGraphs) {
    open(test::kTwoSegments);
    next(test::kFourSegments);
    test::expectTicks(*form, {"function1GraphFrame", "function2GraphFrame"}, test::Ticks::Wide);
}

TEST_F(Vaddi3Form, DrawsAJumpWithItsUprightAndAKinkWithout) {
    open(test::kTwoSegments);
    EXPECT_EQ(strokes("function1Graph"),
              (Strokes{kGiven.line(0, 1, 4, 3), kGiven.line(4, 5, 10, 17), kGiven.line(4, 3, 4, 5)}));
    EXPECT_EQ(strokes("function2Graph"), (Strokes{kGiven.line(0, 5, 10, 45)}));
    EXPECT_EQ(strokes("resultGraph"), Strokes{});
    next(test::kFourSegments);
    EXPECT_EQ(strokes("function1Graph"),
              (Strokes{kGiven.line(0, 1, 2, 7), kGiven.line(2, 4, 10, 8), kGiven.line(2, 7, 2, 4)}));
    next(test::kSteeper);
    EXPECT_EQ(strokes("function1Graph"), (Strokes{kGiven.line(0, 4, 5, 8), kGiven.line(5, 8, 10, 18)}));
    next(test::kFlatter);
    EXPECT_EQ(strokes("function1Graph"), (Strokes{kGiven.line(0, 1, 1, 5), kGiven.line(1, 5, 10, 9.5)}));
    next(test::kOneSegment);
    EXPECT_EQ(strokes("function2Graph"), (Strokes{kGiven.line(0, 1, 10, 1)}));
}

// The judge.

TEST_F(Vaddi3Form, TakesTheRightAnswerAndDrawsIt) {
    const FormDriver& f = open(test::kTwoSegments);
    fill(kAnswerOfTwo);
    f.click("ok");
    test::expectSolved(f);
    // Without a join, which only the given answer has.
    EXPECT_EQ(strokes("resultGraph"),
              (Strokes{piece(-0.5, 9, 0, 4, kSumGreen), piece(-1.33, 10.33, 4, 20, kSumGreen)}));
}

TEST_F(Vaddi3Form, DrawsEverySegmentOfFour) {
    const FormDriver& f = open(test::kFourSegments);
    fill(kAnswerOfFour);
    f.click("ok");
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(strokes("resultGraph"),
              (Strokes{piece(-3, 9, 0, 1.33, kSumGreen), piece(-1.2, 6.6, 1.33, 3, kSumGreen),
                       piece(-0.5, 7, 2, 4, kSumGreen), piece(-0.4, 6.6, 4, 20, kSumGreen)}));
}

TEST_F(Vaddi3Form, TakesALoneSegmentOnlyFromZero) {
    const FormDriver& f = open(test::kOneSegment);
    fill({{"segment2Intercept", "9"}, {"segment2Start", "0.001"}});
    f.click("ok");
    EXPECT_TRUE(f.isShown("wrong"));
    EXPECT_EQ(redBoxes(), Red{"segment2Start"});
    EXPECT_EQ(f.focus(), "segment2Slope");
    f.type("segment2Start", "0");
    f.click("ok");
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(strokes("resultGraph"), (Strokes{kSum.line(0, 1, 20, 1, kSumGreen)}));
}

TEST_F(Vaddi3Form, MarksEachFieldThatFailsByItself) {
    const FormDriver& f = open(test::kFourSegments);
    fill(kAnswerOfFour);
    for (const std::string& box : kAnswerBoxes) {
        const std::string right = f.box(box).content();
        f.type(box, "77");
        f.click("ok");
        test::expectWrong(f, "segment1Slope");
        EXPECT_EQ(redBoxes(), Red{box});
        f.type(box, right);
    }
    f.click("ok");
    EXPECT_EQ(redBoxes(), Red{});
    EXPECT_TRUE(f.isShown("right"));
}

TEST_F(Vaddi3Form, MarksAValueJustAtTheLowerEndOfItsTolerance) {
    const FormDriver& f = open(test::kTwoSegments);
    fill(kAnswerOfTwo);
    f.type("segment1Intercept", "8.995");
    f.type("segment2End", "7.745");
    f.click("ok");
    EXPECT_EQ(redBoxes(), Red{"segment1Intercept"});
    f.type("segment1Intercept", "9.005");
    f.type("segment2End", "7.755");
    f.click("ok");
    EXPECT_TRUE(f.isShown("right"));
}

TEST_F(Vaddi3Form, ReadsTheUpperEndOfThreeSegmentsFromTheHelpTable) {
    const FormDriver& f = open(test::kThreeSegments);
    fill(kAnswerOfThree);
    f.click("ok");
    EXPECT_TRUE(f.isShown("wrong"));
    EXPECT_EQ(redBoxes(), Red{});
    f.type("segment3End", "12");
    f.click("ok");
    EXPECT_EQ(redBoxes(), Red{"segment3End"});
    f.type("function1OrPart2Quantity3", "11");
    f.click("ok");
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(redBoxes(), Red{});
}

TEST_F(Vaddi3Form, ReadsNoUpperEndOfThreeSegmentsOverALevel) {
    const FormDriver& f = open(test::kThreeOverALevel);
    fill(inOrder({"-3", "9", "1", "-0,4", "8", "1", "7,5", "0", "5", "7,5"}));
    f.click("ok");
    EXPECT_TRUE(f.isShown("right"));
}

TEST_F(Vaddi3Form, DoesNotReadTheHelpTableOtherwise) {
    const FormDriver& f = open(test::kFourSegments);
    for (const Names& column : kTable) {
        for (const std::string& box : column) {
            f.box(box).setContent("99");
        }
    }
    fill(kAnswerOfFour);
    f.click("ok");
    EXPECT_TRUE(f.isShown("right"));
}

TEST_F(Vaddi3Form, KeepsTheWrongVerdictUnderTheRightOne) {
    const FormDriver& f = open(test::kTwoSegments);
    f.click("ok");
    fill(kAnswerOfTwo);
    f.click("ok");
    test::expectShown(f, {"wrong", "right"});
}

// The given answer.

TEST_F(Vaddi3Form, DrawsTheTypedSumInRedBeforeTheRightOne) {
    const FormDriver& f = open(test::kTwoSegments);
    fill(inOrder({"-1", "9", "3", "-2", "8", "3", "5"}));
    f.click("ok", "giveAnswer");
    EXPECT_EQ(strokes("resultGraph"),
              (Strokes{kSum.line(0, 1, 3, 4, kRed), kSum.line(3, 8, 5, 12, kRed), kSum.line(3, 4, 3, 8, kRed),
                       piece(-0.5, 9, 0, 4, kSumGreen), piece(-1.33, 10.33, 4, 20, kSumGreen),
                       kSum.line(4, 3, 4, 10 - (-1.33 * 4 + 10.33), kSumGreen)}));
    test::expectContents(f, {{"segment1Slope", "-0.5"}, {"segment2End", "7.75"}});
    EXPECT_EQ(column(1), "9|7|5|0| ");
    EXPECT_EQ(column(4), "0|4|4|7.75| ");
    EXPECT_EQ(f.focus(), "newExercise");
}

TEST_F(Vaddi3Form, DrawsFourTypedSegmentsAndTheirJoinsAndThenTheRightOnes) {
    const FormDriver& f = open(test::kFourSegments);
    fill(inOrder({"-1", "9", "2", "-2", "8", "2", "3", "-0,5", "7", "4", "5", "-0,25", "5", "5", "6"}));
    f.click("help", "ok", "giveAnswer");
    // The third starts elsewhere than the second ends.
    EXPECT_EQ(strokes("resultGraph"),
              (Strokes{kSum.line(0, 1, 2, 3, kRed), kSum.line(2, 6, 3, 8, kRed),
                       kSum.line(4, 5, 5, 5.5, kRed), kSum.line(5, 6.25, 6, 6.5, kRed),
                       kSum.line(2, 3, 2, 6, kRed), kSum.line(5, 5.5, 5, 6.25, kRed),
                       piece(-3, 9, 0, 1.33, kSumGreen), piece(-1.2, 6.6, 1.33, 3, kSumGreen),
                       piece(-0.5, 7, 2, 4, kSumGreen), piece(-0.4, 6.6, 4, 20, kSumGreen),
                       kSum.line(1.33, 10 - (-3 * 1.33 + 9), 1.33, 10 - (-1.2 * 1.33 + 6.6), kSumGreen)}));
    EXPECT_FALSE(f.isShown("helpPanel"));
    test::expectHidden(f, {"ok", "giveAnswer", "wrong", "right"});
    EXPECT_EQ(column(0), "9|6|5|3|0");
    EXPECT_EQ(column(4), "0|1|1.33|3|2.5");
    EXPECT_EQ(column(5), "0|2|4|9|16.5");
}

TEST_F(Vaddi3Form, RunsThreeTypedSegmentsToTwentyOverALevel) {
    const FormDriver& f = open(test::kThreeOverALevel);
    fill(inOrder({"-1", "9", "2", "-2", "8", "2", "3", "", "4", "3"}));
    f.click("ok", "giveAnswer");
    const Strokes& all = strokes("resultGraph");
    // The level one has no join.
    EXPECT_EQ(Strokes(all.begin(), all.begin() + 4),
              (Strokes{kSum.line(0, 1, 2, 3, kRed), kSum.line(2, 6, 3, 8, kRed), kSum.line(3, 6, 20, 6, kRed),
                       kSum.line(2, 3, 2, 6, kRed)}));
    EXPECT_EQ(all[4].colour, kSumGreen);
}

TEST_F(Vaddi3Form, JoinsTypedSegmentsOnlyWhereTheyMeetAndSlope) {
    const auto redJoins = [this](const char* slope, const char* start) {
        next(test::kTwoSegments);
        fill({{"segment1Slope", "-1"},
              {"segment1Intercept", "9"},
              {"segment1End", "3"},
              {"segment2Slope", slope},
              {"segment2Intercept", "8"},
              {"segment2Start", start},
              {"segment2End", "5"}});
        form->click("ok", "giveAnswer");
        const Strokes& all = strokes("resultGraph");
        return std::count_if(all.begin(), all.end(), [](const Stroke& s) { return s.colour == kRed; }) - 2;
    };
    open(test::kTwoSegments);
    EXPECT_EQ(redJoins("-2", "3"), 1);
    EXPECT_EQ(redJoins("-2", "3.01"), 0);
    EXPECT_EQ(redJoins("0", "3"), 0);
}

TEST_F(Vaddi3Form, RunsTheTypedSumToTwentyWhereNoEndIsAsked) {
    const FormDriver& f = open(test::kOneSegment);
    fill({{"segment2Slope", "-0,1"}, {"segment2Intercept", "5"}, {"segment2Start", "2"}});
    f.click("ok", "giveAnswer");
    EXPECT_EQ(strokes("resultGraph"),
              (Strokes{piece(-0.1, 5, 2, 20, kRed), kSum.line(0, 1, 20, 1, kSumGreen)}));
    test::expectContents(
        f,
        {{"segment2Slope", "0"}, {"segment2Intercept", "9"}, {"segment2Start", "0"}, {"segment2End", " "}});
}

TEST_F(Vaddi3Form, JoinsTheRightSegmentsAtEveryBoundOfAJumpDown) {
    const FormDriver& f = open(test::kTwoOverALevel);
    f.click("showSum");
    const Strokes& all = strokes("resultGraph");
    EXPECT_EQ(Strokes(all.end() - 3, all.end()),
              (Strokes{piece(-0.5, 9, 0, 4, kSumGreen), kSum.line(4, 4, 20, 4, kSumGreen),
                       kSum.line(4, 3, 4, 4, kSumGreen)}));
    next(test::kThreeSegments);
    f.click("showSum");
    EXPECT_EQ(Strokes(all.end() - 2, all.end()),
              (Strokes{kSum.line(5, 3, 5, 3, kSumGreen), kSum.line(6, 5, 6, 5, kSumGreen)}));
}

TEST_F(Vaddi3Form, JoinsOnlyTheFirstTwoSegmentsOfAJumpUpIfTheyMeet) {
    const FormDriver& f = open(test::kThreeOverALevel);
    const Strokes& all = strokes("resultGraph");
    f.click("showSum");
    EXPECT_EQ(Strokes(all.end() - 4, all.end()),
              (Strokes{piece(-3, 9, 0, 1, kSumGreen), piece(-0.4, 8, 1, 7.5, kSumGreen),
                       kSum.line(7.5, 5, 20, 5, kSumGreen), kSum.line(1, 4, 1, 10 - (-0.4 + 8), kSumGreen)}));
    // One part, then level.
    next({KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, 0, 8});
    f.click("showSum");
    EXPECT_EQ(all.back(), kSum.line(0.33, 2, 20, 2, kSumGreen));
    // The second part begins before the first has ended.
    next({KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, -2, 9});
    f.click("showSum");
    EXPECT_EQ(all.back(), piece(-0.4, 7.4, 3.5, 20, kSumGreen));
}

TEST_F(Vaddi3Form, JoinsNothingAtAKink) {
    const FormDriver& f = open(test::kFlatter);
    f.click("showSum");
    EXPECT_EQ(strokes("resultGraph").back(), piece(-0.4, 5.4, 1, 20, kSumGreen));
}

TEST_F(Vaddi3Form, WritesTheAnswerWithTheDanishMark) {
    const DecimalMark inUse(",");
    const FormDriver& f = open(test::kTwoSegments);
    f.click("ok", "giveAnswer");
    test::expectContents(f, {{"segment2Slope", "-1,33"},
                             {"segment2End", "7,75"},
                             {"totalOrPart1TotalQuantity5", " "},
                             {"totalOrPart1TotalQuantity4", "7,75"}});
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
    EXPECT_EQ(sentences(f, "pricesStepText"), prices.substr(0, prices.find("Hvis der er en vandret")) +
                                                  "Ens P-værdier indsættes kun én gang.");
    const std::string quantities = sentences(first, "quantitiesStepText");
    EXPECT_TRUE(sentences(f, "quantitiesStepText")
                    .starts_with(quantities.substr(0, quantities.find(" Hvis der er en vandret linie"))));
    EXPECT_EQ(sentences(f, "sumStepText"), sentences(first, "sumStepText"));
    test::expectSentencesOnLinesOfTheirOwn(f, {{"pricesStepText", "Hvis funktionerne er voksende"},
                                               {"pricesStepText", "Ens P-værdier"},
                                               {"jumpUpQuantitiesStepText", "Hvis der er en vandret linie"},
                                               {"quantitiesStepText", "Hvis der er en vandret linie"}});
}

TEST_F(Vaddi3Form, HelpsWithTheTextOfTheKind) {
    const FormDriver& f = open(test::kFourSegments);
    f.click("help");
    test::expectShown(f, {"helpPanel", "jumpUpQuantitiesStepText"});
    EXPECT_FALSE(f.isShown("quantitiesStepText"));
    EXPECT_EQ(f.focus(), "showPrices");
    f.click("closeHelp");
    EXPECT_FALSE(f.isShown("helpPanel"));
    EXPECT_EQ(f.focus(), "wideTablePrice1");
    for (const Vaddi3Task& task : {test::kTwoSegments, test::kSteeper, test::kFlatter}) {
        next(task);
        f.click("help");
        EXPECT_TRUE(f.isShown("quantitiesStepText"));
        EXPECT_FALSE(f.isShown("jumpUpQuantitiesStepText"));
        f.click("closeHelp");
        EXPECT_EQ(f.focus(), "part1QuantityOrPrice1");
    }
}

TEST_F(Vaddi3Form, ShowsThePricesAndMarksTheirEnds) {
    const FormDriver& f = open(test::kFourSegments);
    f.click("help", "showPrices");
    EXPECT_EQ(column(0), "9|6|5|3|0");
    EXPECT_EQ(column(1), " | | | | ");
    EXPECT_EQ(f.focus(), "showQuantities");
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("function1Graph"), 3),
              mark(0, 9) + mark(2, 3) + mark(2, 6) + mark(14, 0));
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("function2Graph"), 1), mark(0, 5) + mark(2.5, 0));
    EXPECT_EQ(mark(0, 9).size(), 6U);
    next(test::kTwoOverALevel);
    f.click("showPrices");
    EXPECT_EQ(column(1), "9|7|6|5|0");
    EXPECT_EQ(column(2), " | | | | ");
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("function2Graph"), 1), mark(0, 6) + mark(10, 6));
    next(test::kFlatter);
    f.click("showPrices");
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("function1Graph"), 2),
              mark(0, 9) + mark(1, 5) + mark(11, 0));
}

TEST_F(Vaddi3Form, ShowsTheQuantitiesOfOneColumn) {
    const FormDriver& f = open(test::kThreeSegments);
    f.click("help", "showQuantities");
    EXPECT_EQ(column(1), "9|7|5|0| ");
    EXPECT_EQ(column(2), "0|4|4|6.5| ");
    EXPECT_EQ(column(3), "0|1|2|4.5| ");
    EXPECT_EQ(column(4), "0|5|6|11| ");
    EXPECT_EQ(f.caption("quantitiesResult"),
              "Her fra ( 0 ; 9 ) til ( 5 ; 7 ), fra ( 5 ; 7 ) til ( 6 ; 5 ) og fra ");
    EXPECT_EQ(f.caption("quantitiesResultRest"), "( 6 ; 5 ) til ( 11 ; 0 ).");
    EXPECT_EQ(f.focus(), "showSum");
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("function1Graph"), 3),
              mark(0, 9) + mark(4, 7) + mark(4, 5) + mark(6.5, 0) + band(4, 7, kBlue) + band(4, 5, kBlue) +
                  band(6.5, 0, kBlue));
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("function2Graph"), 1),
              mark(0, 9) + mark(4.5, 0) + band(1, 7, kBandGreen) + band(2, 5, kBandGreen) +
                  band(4.5, 0, kBandGreen));
}

TEST_F(Vaddi3Form, ShowsTheQuantitiesOfBothParts) {
    const FormDriver& f = open(test::kFourSegments);
    f.click("showQuantities");
    EXPECT_EQ(column(1), "0|1|1.33|2|0");
    EXPECT_EQ(column(2), "0|2|4|8|14");
    EXPECT_EQ(column(3), " | |0|1|2.5");
    EXPECT_EQ(column(5), "0|2|4|9|16.5");
    const Strokes marks = mark(0, 9) + mark(2, 3) + mark(2, 6) + mark(14, 0);
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("function1Graph"), 3),
              marks + band(1, 6, kBlue) + band(2, 6, kBlue) + band(1.33, 5, kBlue) + band(4, 5, kBlue) +
                  band(2, 3, kBlue) + band(8, 3, kBlue) + band(0, 0, kBlue) + band(14, 0, kBlue));
}

TEST_F(Vaddi3Form, HasNoBandForAnyQuantity) {
    const FormDriver& f = open(test::kTwoOverALevel);
    f.click("showQuantities");
    EXPECT_EQ(column(3), " | |0|oo|oo");
    EXPECT_EQ(test::strokesFrom(f.find<GraphBox>("function2Graph"), 1),
              mark(0, 6) + mark(10, 6) + band(0, 6, kBandGreen));
}

TEST_F(Vaddi3Form, StacksTheQuantitiesAndFillsTheAnswer) {
    const FormDriver& f = open(test::kThreeSegments);
    f.click("ok", "help", "showSum");
    test::expectHidden(f, {"ok", "giveAnswer", "wrong", "right"});
    EXPECT_EQ(f.focus(), "closeHelp");
    EXPECT_EQ(redBoxes(), Red{});
    EXPECT_EQ(f.box("segment3End").content(), "11");
    EXPECT_EQ(f.caption("quantitiesResultRest"), "( 6 ; 5 ) til ( 11 ; 0 ).");
    const Strokes stacks = bar(0, 0, 9, kTeal) + bar(0, 0, 9, kBandGreen) + bar(0, 4, 7, kTeal) +
                           bar(4, 5, 7, kBandGreen) + bar(0, 4, 5, kTeal) + bar(4, 6, 5, kBandGreen) +
                           bar(0, 6.5, 0, kTeal) + bar(6.5, 11, 0, kBandGreen);
    const Strokes sum{piece(-0.4, 9, 0, 5, kSumGreen), piece(-2, 17, 5, 6, kSumGreen),
                      piece(-1, 11, 6, 20, kSumGreen), kSum.line(5, 3, 5, 3, kSumGreen),
                      kSum.line(6, 5, 6, 5, kSumGreen)};
    EXPECT_EQ(strokes("resultGraph"), stacks + sum);
}

TEST_F(Vaddi3Form, StacksEachPartOfAJumpUpOverItsOwnPrices) {
    const FormDriver& f = open(test::kFourSegments);
    f.click("showSum");
    Strokes stacks = strokes("resultGraph");
    // Four segments and a join.
    stacks.resize(stacks.size() - 5);
    EXPECT_EQ(stacks, bar(0, 0, 9, kTeal) + bar(0, 2, 6, kTeal) + bar(0, 1.33, 5, kTeal) +
                          bar(1.33, 1.33, 5, kBandGreen) + bar(0, 4, 5, kTeal) + bar(4, 4, 5, kBandGreen) +
                          bar(0, 2, 3, kTeal) + bar(2, 3, 3, kBandGreen) + bar(0, 14, 0, kTeal) +
                          bar(14, 16.5, 0, kBandGreen));
}

TEST_F(Vaddi3Form, StacksFunction2AloneAboveFunction1AndNothingForAnyQuantity) {
    const FormDriver& f = open({KinkKind::Steeper, 6, -0.8F, 5, -2, 0, -1, 8});
    f.click("showSum");
    Strokes stacks = strokes("resultGraph");
    stacks.resize(stacks.size() - 3);
    EXPECT_EQ(stacks, bar(0, 0, 8, kBandGreen) + bar(0, 0, 6, kTeal) + bar(0, 2, 6, kBandGreen) +
                          bar(0, 5, 2, kTeal) + bar(5, 11, 2, kBandGreen) + bar(0, 6, 0, kTeal) +
                          bar(6, 14, 0, kBandGreen));
    next(test::kOneSegment);
    f.click("showSum");
    stacks = strokes("resultGraph");
    stacks.pop_back();
    EXPECT_EQ(stacks, bar(0, 0, 9, kBandGreen) + bar(0, 0, 8, kTeal) + bar(0, 4, 6, kTeal) +
                          bar(0, 4, 4, kTeal) + bar(0, 6, 0, kTeal));
}

TEST_F(Vaddi3Form, StacksTheFirstFunctionAloneBelowALevel) {
    const FormDriver& f = open(test::kThreeOverALevel);
    f.click("showSum");
    EXPECT_EQ(column(3), " | | |0|oo");
    Strokes stacks = strokes("resultGraph");
    // Three segments and a join.
    stacks.resize(stacks.size() - 4);
    EXPECT_EQ(stacks, bar(0, 0, 9, kTeal) + bar(0, 1, 7.6, kTeal) + bar(0, 1, 6, kTeal) +
                          bar(0, 7.5, 5, kTeal) + bar(7.5, 7.5, 5, kBandGreen) + bar(0, 20, 0, kTeal));
    EXPECT_EQ(bar(0, 1, 6, kTeal).size(), 5U);
    EXPECT_EQ(f.box("segment3End").content(), " ");
}

TEST_F(Vaddi3Form, RunsTheStepsBeforeEachStep) {
    open(test::kThreeSegments);
    std::vector<Strokes> seen;
    std::vector<std::string> texts;
    for (const Names& steps : {Names{"showSum"}, Names{"showPrices", "showQuantities", "showSum"},
                               Names{"showQuantities", "showSum"}}) {
        next(test::kThreeSegments);
        form->click("help");
        for (const std::string& step : steps) {
            form->click(step);
        }
        seen.push_back(strokes("resultGraph"));
        texts.push_back(form->caption("quantitiesResult") + column(1) + column(4) +
                        form->box("segment3Slope").content());
    }
    EXPECT_EQ(seen[0], seen[1]);
    EXPECT_EQ(seen[0], seen[2]);
    EXPECT_EQ(texts[0], texts[1]);
    EXPECT_EQ(texts[0], texts[2]);
    // Back to the first step: it only draws its marks again.
    form->click("showPrices");
    EXPECT_EQ(strokes("resultGraph"), seen[0]);
    EXPECT_EQ(form->focus(), "showQuantities");
}

TEST_F(Vaddi3Form, LeavesOkHiddenAfterTheLastStepUntilTheNextExercise) {
    const FormDriver& f = open(test::kThreeSegments);
    f.click("showSum", "closeHelp");
    EXPECT_TRUE(f.isShown("newExercise"));
    EXPECT_FALSE(f.isShown("ok"));
    next(test::kTwoSegments);
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_EQ(strokes("resultGraph"), Strokes{});
    EXPECT_EQ(strokes("function1Graph").size(), 3U);
}

TEST_F(Vaddi3Form, BearsAnythingThatIsTyped) {
    const FormDriver& f = open(test::kFourSegments);
    for (const char* text : {"1e308", "-1e308", "", "abc", "oo", "1e-308", "nan", "-inf"}) {
        next(test::kFourSegments);
        for (const std::string& box : kAnswerBoxes) {
            f.box(box).setContent(text);
        }
        f.click("ok");
        EXPECT_TRUE(f.isShown("wrong"));
        f.click("giveAnswer");
        EXPECT_EQ(f.box("segment4End").content(), "16.5");
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
        next(task);
        f.click("ok", "help", "showQuantities");
        EXPECT_EQ(test::flawsOf(f.page()), Names{});
        f.click("showSum");
        EXPECT_EQ(test::flawsOf(f.page()), Names{});
        f.click("closeHelp");
        EXPECT_EQ(test::flawsOf(f.page()), Names{});
    }
}

}  // namespace
}  // namespace tavrune
