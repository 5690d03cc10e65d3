#include "topics/addition/vaddi1.h"

#include <set>

#include <QTest>

#include <gtest/gtest.h>

#include "app/program.h"
#include "numeric/text.h"
#include "shell/failure.h"
#include "support/decimal_mark.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/addition/addition_frames.h"
#include "topics/addition/axis_texts.h"
#include "topics/addition/step_sentences.h"
#include "topics/addition/vaddi1_tasks.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FormDriver;
using test::ScriptedDraws;
using test::scriptOf;
using Task = test::Vaddi1Task;
using Strokes = std::vector<Stroke>;

constexpr Task kFalling{-1, -4, 8, -3, 10};  // -3Q+10 to 0.67, then -1.72Q+9.15 to 5.33
constexpr Task kRising{1, 2, 1, 5, 6};       // 2Q+1 to 2.5, then 1.43Q+2.43
constexpr Task kLevelFirst{-1, 0, 8, -2, 5};
constexpr Task kSecondThenLevel{-1, 0, 6, -3, 10};
constexpr Task kLevelSecond{-1, -2, 5, 0, 8};
constexpr Task kFirstThenLevel{1, 4, 0, 0, 7};  // 4Q+0 to 1.75, then 7
constexpr Task kSameStart{-1, -3, 7, -3, 7};    // -1.5Q+7 to 4.67
constexpr Task kStartAtTen{1, 3, 0, 2, 10};     // 3Q+0 to 3.33, then 10
constexpr Task kOverflow{1, 5, 3, 2, 10};

const test::StrokesIn kGiven{{0, 0, 10, 10}};
const test::StrokesIn kResult{{0, 0, 20, 10}};
const QColor kSum(0, 190, 0);
const QColor kFirstBand(0, 0, 255);
const QColor kSecondBand(0, 255, 0);

const std::vector<std::string> kTableBoxes{
    "price1", "function1Quantity1", "function2Quantity1", "totalQuantity1",
    "price2", "function1Quantity2", "function2Quantity2", "totalQuantity2",
    "price3", "function1Quantity3", "function2Quantity3", "totalQuantity3"};
using Column = std::array<const char*, 3>;
constexpr Column kPrices{"price1", "price2", "price3"};
constexpr Column kQuantities1{"function1Quantity1", "function1Quantity2", "function1Quantity3"};
constexpr Column kQuantities2{"function2Quantity1", "function2Quantity2", "function2Quantity3"};
constexpr Column kTotals{"totalQuantity1", "totalQuantity2", "totalQuantity3"};
const std::vector<std::string> kAnswerBoxes{"segment1Slope", "segment1Intercept", "segment1End",
                                            "segment2Slope", "segment2Intercept", "segment2Start",
                                            "segment2End"};

/// `count` upright strokes from `left` on.
Strokes mark(double left, double price, int count) {
    Strokes strokes;
    double x = left;
    for (int i = 0; i < count; ++i) {
        strokes.push_back(kGiven.line(x, 10 - price - 0.15, x, 10 - price + 0.15, kRed));
        x += 0.05;
    }
    return strokes;
}

constexpr double kOff = -5;
constexpr double kAtOo = 9.85;
Strokes markAt(double q, double price, int count) { return mark(q - 0.15, price, count); }
Strokes markOff(double price) { return mark(kOff, price, 7); }

/// `count` level strokes from `base` on.
Strokes band(const test::StrokesIn& in, double from, double to, double base, int count,
             const QColor& colour) {
    Strokes strokes;
    double y = base;
    for (int i = 0; i < count; ++i) {
        strokes.push_back(in.line(from, 10 - y, to, 10 - y, colour));
        y += 0.05;
    }
    return strokes;
}

Strokes bandAt(const test::StrokesIn& in, double from, double to, int price, const QColor& colour) {
    return band(in, from, to, price == 0 ? 0 : price - 0.1, price >= 8 ? 4 : 5, colour);
}

class Vaddi1Form : public test::ScriptedForm<const Task&> {
protected:
    Vaddi1Form() : ScriptedForm(PageName::Vaddi1, scriptOf) {}

    /// What stands on the box of a function after the function itself.
    [[nodiscard]] Strokes later(const std::string& name) const { return test::strokesFrom(graph(name), 1); }

    [[nodiscard]] const Strokes& result() const { return graph("resultGraph").strokes(); }

    [[nodiscard]] std::string textOf(const std::string& name) const { return form->box(name).content(); }

    /// The contents of a column of boxes, from the top.
    [[nodiscard]] std::string column(const Column& boxes) const {
        return textOf(boxes[0]) + "|" + textOf(boxes[1]) + "|" + textOf(boxes[2]);
    }

    /// Types into the boxes of the answer; empty texts are passed over.
    void type(const std::vector<std::string>& texts) const {
        ASSERT_EQ(texts.size(), kAnswerBoxes.size());
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (!texts[i].empty()) {
                form->type(kAnswerBoxes[i], texts[i]);
            }
        }
    }

    void answer(const std::vector<std::string>& texts) const {
        type(texts);
        form->click("ok");
    }

    /// Types the form's own answer, key by key, into the boxes that are shown.
    void typeOwnAnswer() const {
        const Vaddi1State& s = dynamic_cast<const Vaddi1&>(form->page()).state();
        const double targets[]{s.firstSegment.slope,  s.firstSegment.intercept,  s.kinkQuantity,
                               s.secondSegment.slope, s.secondSegment.intercept, s.kinkQuantity,
                               s.upperEnd.number()};
        for (std::size_t i = 0; i < kAnswerBoxes.size(); ++i) {
            if (form->isShown(kAnswerBoxes[i])) {
                form->type(kAnswerBoxes[i], NumberText(targets[i]));
            }
        }
    }
};

const std::vector<std::string> kFallingAnswer{"-3", "10", "0.67", "-1.72", "9.15", "0.67", "5.33"};
const std::vector<std::string> kRisingAnswer{"2", "1", "2.5", "1.43", "2.43", "2.5", ""};
const std::vector<std::string> kSameStartAnswer{"", "", "", "-1.5", "7", "0", "4.67"};
const std::vector<std::string> kLevelAnswer{"", "", "", "0", "8", "0", ""};

const Strokes kFallingSum{kResult.line(0, 0, 0.67, 10 - (-3 * 0.67 + 10), kSum),
                          kResult.line(0.67, 10 - (-1.72 * 0.67 + 9.15), 20, 10 - (-1.72 * 20 + 9.15), kSum)};
const Strokes kRisingSum{kResult.line(0, 9, 2.5, 4, kSum),
                         kResult.line(2.5, 10 - (1.43 * 2.5 + 2.43), 20, 10 - (1.43 * 20 + 2.43), kSum)};

// What is on the page.

TEST_F(Vaddi1Form, StartsWithoutAnswer) {
    const FormDriver unshown = FormDriver::unshown(PageName::Vaddi1, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Vandret addition - Niveau 1");
    test::expectHidden(unshown, {"giveAnswer", "wrong", "right", "helpPanel"});
    test::expectBlank(unshown, {"function1Slope", "function1Intercept", "function2Slope",
                                "function2Intercept", "quantitiesResult"});
    EXPECT_EQ(unshown.label("wrong").backColour(), QColor(192, 0, 0));
}

TEST_F(Vaddi1Form, FinishesTheRedOfForkertAtItsOpening) {
    const FormDriver& f = open(kFalling);
    EXPECT_EQ(f.label("wrong").backColour(), kRed);
    EXPECT_EQ(f.label("right").backColour(), QColor(0, 128, 0));
}

TEST_F(Vaddi1Form, BearsItsFixedTexts) {
    const FormDriver& f = open(kFalling);
    constexpr test::FixedText kTexts[]{
        {"function1Text", "P=    Q +     for Q  0, P  0"},
        {"function2Text", "P=    Q +     for Q  0, P  0"},
        {"segment1EndLessOrEqual", "<"},
        {"segment2EndLessOrEqual", "<"},
        {"function1QuantityAtLeast", ">"},
        {"function1PriceAtLeast", ">"},
        {"function2QuantityAtLeast", ">"},
        {"function2PriceAtLeast", ">"},
        {"segment1StartLessOrEqual", "<"},
        {"segment2StartLessOrEqual", "<"},
        {"tableHead", "   P             Q1           Q2         Qtotal"},
        {"task",
         "Adder de ovenstående linier vandret og indtast de nye forskrifter i felterne nederst. Brug evt. "
         "hjælpeskemaet øverst til højre."},
        {"segment1PriceEquals", "P="},
        {"segment1TimesQuantityPlus", "Q +"},
        {"segment1ZeroLessThanQuantity", "for         0<Q"},
        {"segment2PriceEquals", "P="},
        {"segment2TimesQuantityPlus", "Q +"},
        {"segment2ValidFor", "for"},
        {"segment2LessThanQuantity", "<Q"},
        {"pricesStepNumber", "1)"},
        {"quantitiesStepNumber", "2)"},
        {"sumStepNumber", "3)"},
        {"showPrices", "Vis"},
        {"showQuantities", "Vis"},
        {"showSum", "Vis"},
        {"closeHelp", "&Luk"},
    };
    test::expectTexts(f, kTexts);
}

TEST_F(Vaddi1Form, TellsTheMethodInThreeSteps) { test::expectSharedMethod(open(kFalling)); }

TEST_F(Vaddi1Form, BeginsEverySentenceInItsStepsOnALineOfItsOwn) {
    test::expectSentencesOnLinesOfTheirOwn(open(kFalling), test::kSharedStepSentences);
}

TEST_F(Vaddi1Form, StandsAtItsPlacesToTheUnit) {
    const FormDriver& f = open(kFalling);
    for (const char* ofTheGivenFunctions :
         {"function1Text", "function1Slope", "function1Intercept", "function2Text", "function2Slope",
          "function2Intercept", "function1QuantityAtLeast", "function1PriceAtLeast",
          "function2QuantityAtLeast", "function2PriceAtLeast"}) {
        EXPECT_EQ(f.label(ofTheGivenFunctions).place().top(), 176) << ofTheGivenFunctions;
    }
    EXPECT_EQ(f.label("function1Text").place().left(), 29);
    EXPECT_EQ(f.label("function2Text").place().left(), 227);
    for (const auto& [box, left, top] : {std::tuple{"segment1Slope", 24, 272},
                                         {"segment1Intercept", 80, 272},
                                         {"segment1End", 184, 272},
                                         {"segment2Slope", 24, 296},
                                         {"segment2Intercept", 80, 296},
                                         {"segment2Start", 128, 296},
                                         {"segment2End", 184, 296}}) {
        EXPECT_EQ(f.box(box).place().topLeft(), QPointF(left, top)) << box;
    }
    const auto& panel = f.find<Panel>("helpPanel");
    EXPECT_EQ(panel.Control::place(), QRectF(224, 192, 409, 217));
    EXPECT_EQ(f.label("quantitiesResult").place().topLeft(), QPointF(16, 184));
}

TEST_F(Vaddi1Form, NumbersTheAxesInSteps) {
    const FormDriver& f = open(kFalling);
    const std::multiset<std::string> given{"0", "2", "4", "6", "8",  "10", "0",
                                           "2", "4", "6", "8", "10", "P",  "Q"};
    EXPECT_EQ(test::axisTexts(f, "function1GraphFrame"), given);
    EXPECT_EQ(test::axisTexts(f, "function2GraphFrame"), given);
    EXPECT_EQ(test::axisTexts(f, "resultGraphFrame"),
              (std::multiset<std::string>{"0", "2",  "4",  "6",  "8",  "10", "0",  "2", "4", "6",
                                          "8", "10", "12", "14", "16", "18", "20", "P", "Q", "Resultat"}));
}

TEST_F(Vaddi1Form, LaysItsAxesOverTheTicksOfItsFrames) {
    open(kFalling);
    const auto corners = [this](const char* outer, const char* inner) {
        const GraphBox& frame = graph(outer);
        const QRectF place = graph(inner).Control::place();
        const double perX = frame.Control::place().width() / frame.scale().x2;
        const double perY = frame.Control::place().height() / frame.scale().y2;
        return QRectF(place.left() / perX, place.top() / perY, place.width() / perX, place.height() / perY);
    };
    const auto expectNear = [](const QRectF& a, const QRectF& b) {
        EXPECT_NEAR(a.left(), b.left(), 0.05);
        EXPECT_NEAR(a.top(), b.top(), 0.05);
        EXPECT_NEAR(a.right(), b.right(), 0.05);
        EXPECT_NEAR(a.bottom(), b.bottom(), 0.05);
    };
    expectNear(corners("function1GraphFrame", "function1Graph"), QRectF(1, 0.2, 8, 8));
    expectNear(corners("function2GraphFrame", "function2Graph"), QRectF(1, 0.2, 8, 8));
    expectNear(corners("resultGraphFrame", "resultGraph"), QRectF(1, 1, 18, 8));
}

TEST_F(Vaddi1Form, AsksWithBlankWhiteBoxesAndTheFocusInTheTable) {
    const DecimalMark danish(",");
    const FormDriver& f = open(kFalling);
    test::expectTexts(f, {{"function1Slope", "-4"},
                          {"function1Intercept", "8"},
                          {"function2Slope", "-3"},
                          {"function2Intercept", "10"}});
    for (const AnswerBox* each : f.page().findChildren<AnswerBox*>()) {
        EXPECT_EQ(each->content(), " ");
        EXPECT_EQ(each->backColour(), kWhite);
    }
    EXPECT_EQ(f.focus(), "price1");
    next(kFirstThenLevel);
    test::expectTexts(f, {{"function1Slope", "4"},
                          {"function1Intercept", "0"},
                          {"function2Slope", "0"},
                          {"function2Intercept", "7"}});
}

TEST_F(Vaddi1Form, WritesALevelFallingLineWithoutAMinus) {
    const FormDriver& f = open(kLevelFirst);
    EXPECT_EQ(f.caption("function1Slope"), "0");
}

struct RowsRow {
    const char* name;
    Task task;
    bool hasFirstRow;
    bool hasUpperEnd;
};

class Vaddi1Rows : public Vaddi1Form, public testing::WithParamInterface<RowsRow> {};

TEST_P(Vaddi1Rows, AreShownByTheSegmentsAndTheDirection) {
    const RowsRow& row = GetParam();
    const FormDriver& f = open(row.hasFirstRow ? kLevelSecond : kFalling);
    next(row.task);
    test::expectShown(f,
                      {"segment1PriceEquals", "segment1TimesQuantityPlus", "segment1ZeroLessThanQuantity",
                       "segment1EndLessOrEqual", "segment1Slope", "segment1Intercept", "segment1End",
                       "segment1StartLessOrEqual"},
                      row.hasFirstRow);
    EXPECT_EQ(f.isShown("segment2StartLessOrEqual"), !row.hasFirstRow);
    EXPECT_EQ(f.isShown("segment2End"), row.hasUpperEnd);
    EXPECT_EQ(f.isShown("segment2EndLessOrEqual"), row.hasUpperEnd);
    test::expectShown(f, {"segment2PriceEquals", "segment2TimesQuantityPlus", "segment2ValidFor",
                          "segment2LessThanQuantity", "segment2Slope", "segment2Intercept", "segment2Start"});
}

INSTANTIATE_TEST_SUITE_P(Rows, Vaddi1Rows,
                         testing::Values(RowsRow{"TwoFallingOnes", kFalling, true, true},
                                         RowsRow{"TwoRisingOnes", kRising, true, false},
                                         RowsRow{"OneStartFalling", kSameStart, false, true},
                                         RowsRow{"OneStartRising", {1, 1, 5, 5, 5}, false, false},
                                         RowsRow{"LevelDemandFirstAbove", kLevelFirst, false, false},
                                         RowsRow{"LevelDemandFirstBelow", kSecondThenLevel, true, false},
                                         RowsRow{"LevelDemandSecondAbove", kLevelSecond, false, false},
                                         RowsRow{"LevelDemandSecondBelow", {-1, -3, 10, 0, 6}, true, false},
                                         RowsRow{"LevelSupplyFirst", {1, 0, 3, 2, 7}, false, false},
                                         RowsRow{"LevelSupplySecondAbove", kFirstThenLevel, true, false},
                                         RowsRow{
                                             "LevelSupplySecondAtTheStart", {1, 2, 5, 0, 5}, false, false}),
                         [](const auto& row) { return row.param.name; });

// The graphs.

TEST_F(Vaddi1Form, TicksItsFramesOnceHoweverManyExercisesThereAre) {
    open(kFalling);
    for (int exercise = 0; exercise < 50; ++exercise) {
        test::expectTicks(*form, {"function1GraphFrame", "function2GraphFrame"}, test::Ticks::Wide);
        ASSERT_FALSE(HasFailure());
        draws.append(scriptOf(kRising));
        form->button("newExercise").click();
    }
}

TEST_F(Vaddi1Form, DrawsEachFunctionInItsBoxAndNoResult) {
    open(kFalling);
    EXPECT_EQ(graph("function1Graph").strokes(), (Strokes{kGiven.line(0, 2, 10, 42)}));
    EXPECT_EQ(graph("function2Graph").strokes(), (Strokes{kGiven.line(0, 0, 10, 30)}));
    EXPECT_TRUE(result().empty());
    next(kFirstThenLevel);
    EXPECT_EQ(graph("function1Graph").strokes(), (Strokes{kGiven.line(0, 10, 10, -30)}));
    EXPECT_EQ(graph("function2Graph").strokes(), (Strokes{kGiven.line(0, 3, 10, 3)}));
}

TEST_F(Vaddi1Form, ClearsTheThreeGraphsForTheNextExercise) {
    const FormDriver& f = open(kFalling);
    f.click("help", "showSum");
    next(kRising);
    EXPECT_EQ(graph("function1Graph").strokes().size(), 1U);
    EXPECT_EQ(graph("function2Graph").strokes().size(), 1U);
    EXPECT_TRUE(result().empty());
}

// The focus.

TEST_F(Vaddi1Form, WalksThroughTheTableRowByRowAndThenTheAnswer) {
    const FormDriver& f = open(kFalling);
    std::vector<std::string> chain = kTableBoxes;
    chain.insert(chain.end(), kAnswerBoxes.begin(), kAnswerBoxes.end());
    chain.emplace_back("ok");
    for (std::size_t i = 0; i + 1 < chain.size(); ++i) {
        f.press(chain[i], Qt::Key_Return);
        EXPECT_EQ(f.focus(), chain[i + 1]) << "from " << chain[i];
    }
}

TEST_F(Vaddi1Form, PassesTheRowsOverThatAreNotShown) {
    const FormDriver& f = open(kLevelFirst);
    f.press("totalQuantity3", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "segment2Slope");
    f.press("segment2Start", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "ok");
    next(kSameStart);
    f.press("totalQuantity3", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "segment2Slope");
    f.press("segment2Start", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "segment2End");
}

TEST_F(Vaddi1Form, WalksOnToTheNextExerciseWhereOkIsGone) {
    const FormDriver& f = open(kFalling);
    answer(kFallingAnswer);
    f.press("segment2Start", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "segment2End");
    f.press("segment2End", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "newExercise");
    f.press("totalQuantity3", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "segment1Slope");
    form = nullptr;
    const FormDriver& rising = open(kRising);
    answer(kRisingAnswer);
    ASSERT_TRUE(rising.isShown("right"));
    rising.press("segment2Start", Qt::Key_Return);
    EXPECT_EQ(rising.focus(), "newExercise");
}

TEST_F(Vaddi1Form, GoesStraightFromTheTableToTheAnswer) {
    const FormDriver& f = open(kFalling);
    f.box("totalQuantity3").setFocus();
    std::vector<std::string> visited;
    QObject::connect(qApp, &QApplication::focusChanged, &f.page(), [&visited](QWidget*, QWidget* now) {
        if (now != nullptr) {
            visited.push_back(now->objectName().toStdString());
        }
    });
    f.press("totalQuantity3", Qt::Key_Return);
    EXPECT_EQ(visited, std::vector<std::string>{"segment1Slope"});
}

// The verdict.

TEST_F(Vaddi1Form, JudgesTwoSegmentsRightAndDrawsThemGreen) {
    const FormDriver& f = open(kFalling);
    answer(kFallingAnswer);
    test::expectSolved(f);
    EXPECT_EQ(result(), kFallingSum);
}

TEST_F(Vaddi1Form, JudgesTwoRisingSegmentsRight) {
    open(kRising);
    answer(kRisingAnswer);
    EXPECT_TRUE(form->isShown("right"));
    EXPECT_EQ(result(), kRisingSum);
}

TEST_F(Vaddi1Form, DrawsALoneSegmentFromZeroToTwenty) {
    open(kSameStart);
    answer(kSameStartAnswer);
    EXPECT_TRUE(form->isShown("right"));
    EXPECT_EQ(result(), (Strokes{kResult.line(0, 3, 20, 10 - (-1.5 * 20 + 7), kSum)}));
    form = nullptr;
    open(kLevelFirst);
    answer(kLevelAnswer);
    EXPECT_TRUE(form->isShown("right"));
    EXPECT_EQ(result(), (Strokes{kResult.line(0, 2, 20, 2, kSum)}));
}

TEST_F(Vaddi1Form, TakesABlankStartForZero) {
    open(kSameStart);
    std::vector<std::string> typed = kSameStartAnswer;
    typed[5] = "";
    answer(typed);
    EXPECT_EQ(textOf("segment2Start"), " ");
    EXPECT_TRUE(form->isShown("right"));
}

TEST_F(Vaddi1Form, PaysNoHeedToTheTable) {
    const FormDriver& f = open(kFalling);
    for (const std::string& name : kTableBoxes) {
        f.type(name, "99");
    }
    answer(kFallingAnswer);
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(textOf("price1"), "99");
}

TEST_F(Vaddi1Form, LeavesForkertBehindRigtigt) {
    const FormDriver& f = open(kFalling);
    f.click("ok");
    EXPECT_TRUE(f.isShown("wrong"));
    answer(kFallingAnswer);
    test::expectShown(f, {"wrong", "right"});
    const QObjectList& siblings = f.label("right").parent()->children();
    EXPECT_GT(siblings.indexOf(&f.label("right")), siblings.indexOf(&f.label("wrong")));
    EXPECT_EQ(f.label("wrong").place(), f.label("right").place());
    next(kRising);
    test::expectHidden(f, {"wrong", "right"});
}

struct NudgeRow {
    const char* name;
    std::size_t field;
    const char* typed;
    bool isRed;
};

class Vaddi1Nudge : public Vaddi1Form, public testing::WithParamInterface<NudgeRow> {};

TEST_P(Vaddi1Nudge, IsWrong) {
    const NudgeRow& row = GetParam();
    const FormDriver& f = open(kFalling);
    std::vector<std::string> typed = kFallingAnswer;
    typed[row.field] = row.typed;
    answer(typed);
    test::expectWrong(f, "segment1Slope");
    const std::set<std::string> marked{kAnswerBoxes[row.field]};
    EXPECT_EQ(redBoxes(), row.isRed ? marked : std::set<std::string>{});
    EXPECT_TRUE(result().empty());
}

INSTANTIATE_TEST_SUITE_P(Rows, Vaddi1Nudge,
                         testing::Values(NudgeRow{"InTheFirstSlope", 0, "-3.01", true},
                                         NudgeRow{"InTheFirstIntercept", 1, "10.01", true},
                                         NudgeRow{"InTheEndOfTheFirst", 2, "0.68", true},
                                         NudgeRow{"InTheSecondSlope", 3, "-1.73", true},
                                         NudgeRow{"InTheSecondIntercept", 4, "9.14", true},
                                         NudgeRow{"InTheStartOfTheSecond", 5, "0.66", true},
                                         NudgeRow{"InTheUpperEnd", 6, "5.34", true},
                                         NudgeRow{"JustAtTheLowerEndAndWhite", 2, "0.665", false},
                                         NudgeRow{"JustBelowTheLowerEnd", 2, "0.66499", true},
                                         NudgeRow{"JustAboveTheUpperEnd", 2, "0.67501", true}),
                         [](const auto& row) { return row.param.name; });

TEST_F(Vaddi1Form, TakesTheUpperEndOfTheBand) {
    open(kFalling);
    std::vector<std::string> typed = kFallingAnswer;
    typed[2] = "0.675";
    typed[5] = "0.66501";
    answer(typed);
    EXPECT_TRUE(form->isShown("right"));
}

TEST_F(Vaddi1Form, WantsTheSegmentsInTheirOrder) {
    open(kRising);
    answer({"1.43", "2.43", "2.5", "2", "1", "2.5", ""});
    EXPECT_TRUE(form->isShown("wrong"));
    EXPECT_EQ(redBoxes(), (std::set<std::string>{"segment1Slope", "segment1Intercept", "segment2Slope",
                                                 "segment2Intercept"}));
}

TEST_F(Vaddi1Form, SendsTheFocusToTheFirstRowThatIsShown) {
    const FormDriver& f = open(kLevelFirst);
    f.click("ok");
    EXPECT_EQ(f.focus(), "segment2Slope");
    EXPECT_EQ(redBoxes(), std::set<std::string>{"segment2Intercept"});
    next(kRising);
    f.click("ok");
    EXPECT_EQ(f.focus(), "segment1Slope");
}

TEST_F(Vaddi1Form, WhitensTheBoxesAtEachJudgingAndInTheNextExercise) {
    const FormDriver& f = open(kRising);
    f.click("ok");
    EXPECT_EQ(redBoxes(), (std::set<std::string>{"segment1Slope", "segment1Intercept", "segment1End",
                                                 "segment2Slope", "segment2Intercept", "segment2Start"}));
    answer({"2", "1", "2.5", "9", "2.43", "2.5", ""});
    EXPECT_EQ(redBoxes(), std::set<std::string>{"segment2Slope"});
    next(kRising);
    EXPECT_TRUE(redBoxes().empty());
}

TEST_F(Vaddi1Form, IsSolvedByItsOwnAnswerKeyByKey) {
    int number = 0;
    test::forEachVaddi1Draw([&](const Task& t) {
        // Some fifty, spread over the space of draws by a stride that divides none of its ranges.
        if (++number % 53 != 0 || !t.isAccepted() || (t.direction == 1 && t.intercept2 == 10)) {
            return;
        }
        const FormDriver& f = open(t);
        typeOwnAnswer();
        f.click("ok");
        ASSERT_TRUE(f.isShown("right")) << nameOf(t);
        ASSERT_TRUE(redBoxes().empty()) << nameOf(t);
        form = nullptr;
    });
    EXPECT_EQ(number, 2592);
}

// The upper end of an earlier exercise.

TEST_F(Vaddi1Form, CannotBeSolvedWithoutAnUpperEndAfterOneWasAskedFor) {
    const FormDriver& f = open(kFalling);
    for (const Task& t : {kRising, kLevelFirst, kSecondThenLevel, kLevelSecond, kFirstThenLevel}) {
        next(t);
        EXPECT_FALSE(f.isShown("segment2End"));
        EXPECT_EQ(textOf("segment2End"), " ");
        typeOwnAnswer();
        f.click("ok");
        EXPECT_TRUE(f.isShown("wrong")) << nameOf(t);
        EXPECT_FALSE(f.isShown("right")) << nameOf(t);
        EXPECT_EQ(redBoxes(), std::set<std::string>{"segment2End"}) << nameOf(t);
        f.click("giveAnswer");
        EXPECT_EQ(textOf("segment2End"), "5.33") << nameOf(t);
        EXPECT_FALSE(f.isShown("segment2End"));
        EXPECT_TRUE(redBoxes().empty());
    }
}

TEST_F(Vaddi1Form, CanBeSolvedAgainWithTheNextUpperEnd) {
    open(kFalling);
    next(kRising);
    next(kSameStart);
    answer(kSameStartAnswer);
    EXPECT_TRUE(form->isShown("right"));
}

TEST_F(Vaddi1Form, ForgetsTheUpperEndWhenItIsOpenedAnew) {
    open(kFalling);
    form = nullptr;
    open(kRising);
    answer(kRisingAnswer);
    EXPECT_TRUE(form->isShown("right"));
}

TEST_F(Vaddi1Form, EndsTheTypedLineAtTheHiddenUpperEndAfterOneWasAskedFor) {
    const FormDriver& f = open(kFalling);
    next(kRising);
    answer({"1", "2", "3", "0.5", "4", "6", ""});
    f.click("giveAnswer");
    const Strokes typed{kResult.line(0, 8, 3, 5, kRed), kResult.line(6, 3, 0, 6, kRed)};
    EXPECT_EQ(result(), typed + kRisingSum);
}

// The given answer.

TEST_F(Vaddi1Form, GivesTheWholeAnswerOverTheTypedLines) {
    const DecimalMark danish(",");
    const FormDriver& f = open(kFalling);
    answer({"-1", "9", "2", "-2", "8", "1", "4"});
    f.click("help", "giveAnswer");
    test::expectHidden(f, {"helpPanel", "ok", "giveAnswer", "wrong", "right"});
    EXPECT_EQ(f.focus(), "newExercise");
    EXPECT_EQ(column(kPrices), "10|8|0");
    EXPECT_EQ(column(kQuantities1), " |0|2");
    EXPECT_EQ(column(kQuantities2), "0|0,67|3,33");
    EXPECT_EQ(column(kTotals), "0|0,67|5,33");
    const std::vector<std::string> shown{"-3", "10", "0,67", "-1,72", "9,15", "0,67", "5,33"};
    for (std::size_t i = 0; i < shown.size(); ++i) {
        EXPECT_EQ(textOf(kAnswerBoxes[i]), shown[i]) << kAnswerBoxes[i];
    }
    EXPECT_TRUE(redBoxes().empty());
    const Strokes typed{kResult.line(0, 1, 2, 3, kRed), kResult.line(1, 4, 4, 10, kRed)};
    EXPECT_EQ(result(), typed + kFallingSum);
}

TEST_F(Vaddi1Form, RunsTheTypedLineToTwentyWhereNoUpperEndIsAskedFor) {
    const FormDriver& f = open(kRising);
    answer({"1", "2", "3", "0.5", "4", "6", ""});
    f.click("giveAnswer");
    const Strokes typed{kResult.line(0, 8, 3, 5, kRed), kResult.line(6, 3, 20, -4, kRed)};
    EXPECT_EQ(result(), typed + kRisingSum);
}

TEST_F(Vaddi1Form, DrawsTheHiddenRowToOfALoneSegment) {
    const FormDriver& f = open(kSameStart);
    answer({"", "", "", "-1", "6", "", "6"});
    f.click("giveAnswer");
    const Strokes strokes{
        kResult.line(0, 10, 0, 10, kRed),
        kResult.line(0, 4, 6, 10, kRed),
        // The first segment collapses to a dot at the start of the outer function.
        kResult.line(0, 3, 0, 3, kSum),
        kResult.line(0, 3, 20, 10 - (-1.5 * 20 + 7), kSum),
    };
    EXPECT_EQ(result(), strokes);
    EXPECT_EQ(textOf("segment1Slope"), "-3");
    EXPECT_EQ(textOf("segment1Intercept"), "7");
    EXPECT_EQ(textOf("segment1End"), "0");
    EXPECT_EQ(textOf("segment2Start"), "0");
    EXPECT_EQ(column(kPrices), "7|0| ");
    EXPECT_EQ(column(kTotals), "0|4.67| ");
}

TEST_F(Vaddi1Form, GivesWhatNoExerciseHasSetAsZeroOrNothing) {
    const FormDriver& f = open(kLevelSecond);
    f.click("ok", "giveAnswer");
    EXPECT_EQ(column(kPrices), "8|8| ");
    EXPECT_EQ(column(kQuantities1), " | | ");
    EXPECT_EQ(column(kQuantities2), "0|oo| ");
    EXPECT_EQ(column(kTotals), "0|| ");
    EXPECT_EQ(textOf("segment1Slope"), "0");
    EXPECT_EQ(textOf("segment1Intercept"), "0");
    EXPECT_EQ(textOf("segment1End"), "0");
    EXPECT_EQ(textOf("segment2Slope"), "0");
    EXPECT_EQ(textOf("segment2Intercept"), "8");
    EXPECT_EQ(textOf("segment2Start"), "0");
    EXPECT_EQ(textOf("segment2End"), "");
    const Strokes strokes{kResult.line(0, 10, 0, 10, kRed), kResult.line(0, 10, 20, 10, kRed),
                          kResult.line(0, 10, 0, 10, kSum), kResult.line(0, 2, 20, 2, kSum)};
    EXPECT_EQ(result(), strokes);
}

TEST_F(Vaddi1Form, ShowsTheThirdTotalOfTheExerciseBeforeForALevelSecondFunction) {
    const FormDriver& f = open(kFalling);
    for (const auto& [before, total] : {std::pair{kRising, "0|5.3| "}, {kLevelFirst, "0|oo| "}}) {
        next(before);
        next(kLevelSecond);
        f.click("ok", "giveAnswer");
        EXPECT_EQ(column(kTotals), total);
    }
}

TEST_F(Vaddi1Form, GivesTheAnswerWhateverIsTyped) {
    const FormDriver& f = open(kFalling);
    for (const std::string& typed : test::kRoughTexts) {
        for (const std::string& name : kAnswerBoxes) {
            f.box(name).setContent(typed);
        }
        f.click("ok", "giveAnswer");
        EXPECT_FALSE(f.page().grab().isNull());
        EXPECT_EQ(textOf("segment2Slope"), "-1.72");
        EXPECT_EQ(result().size(), 4U);
        next(kFalling);
    }
}

// The help.

TEST_F(Vaddi1Form, OpensItsHelpAtTheFirstStepAndClosesItToTheTable) {
    const FormDriver& f = open(kFalling);
    f.click("help");
    EXPECT_TRUE(f.isShown("helpPanel"));
    test::expectWayByEnter(f, {"showPrices", "showQuantities", "showSum", "closeHelp"});
    f.press("closeHelp", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("helpPanel"));
    EXPECT_EQ(f.focus(), "price1");
    f.click("help");
    next(kRising);
    EXPECT_FALSE(f.isShown("helpPanel"));
}

struct StepsRow {
    const char* name;
    Task task;
    Strokes marks1;
    Strokes marks2;
    Strokes bands1;
    Strokes bands2;
    const char* text;
};

Strokes first(double to, int price) { return bandAt(kGiven, 0, to, price, kFirstBand); }
Strokes second(double to, int price) { return bandAt(kGiven, 0, to, price, kSecondBand); }

class Vaddi1Steps : public Vaddi1Form, public testing::WithParamInterface<StepsRow> {};

TEST_P(Vaddi1Steps, MarkTheEndsAndThenTheQuantities) {
    const StepsRow& row = GetParam();
    const FormDriver& f = open(row.task);
    f.click("help", "showPrices");
    EXPECT_EQ(later("function1Graph"), row.marks1);
    EXPECT_EQ(later("function2Graph"), row.marks2);
    EXPECT_EQ(column(kQuantities1), " | | ");
    EXPECT_EQ(f.caption("quantitiesResult"), "");
    f.click("showQuantities");
    EXPECT_EQ(later("function1Graph"), row.marks1 + row.marks1 + row.bands1);
    EXPECT_EQ(later("function2Graph"), row.marks2 + row.marks2 + row.bands2);
    EXPECT_EQ(f.caption("quantitiesResult"), row.text);
    EXPECT_TRUE(result().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Vaddi1Steps,
    testing::Values(StepsRow{"Falling", kFalling, markOff(10) + markAt(0, 8, 6) + markAt(2, 0, 7),
                             markAt(0, 10, 6) + markAt(3.33, 0, 7), first(0, 8) + first(2, 0),
                             second(0.67, 8) + second(3.33, 0),
                             "Her fra ( 0 ; 10 ) til ( 0.67 ; 8 ) og fra ( 0.67 ; 8 ) til ( 5.33 ; 0 )."},
                    StepsRow{"Rising", kRising, markAt(0, 1, 6) + markAt(4.5, 10, 7),
                             markOff(1) + markAt(0, 6, 6) + markAt(0.8, 10, 6),
                             first(2.5, 6) + first(4.5, 10), second(0, 6) + second(0.8, 10),
                             "Her fra ( 0 ; 1 ) til ( 2.5 ; 6 ) og fra ( 2.5 ; 6 ) til ( 5.3 ; 10 )."},
                    StepsRow{"LevelFirstAlone",
                             kLevelFirst,
                             markAt(0, 8, 6) + mark(kAtOo, 8, 6) + markOff(-5),
                             markOff(8) + markOff(8) + markOff(-5),
                             {},
                             {},
                             "Her fra ( 0 ; 8 ) til ( oo ; 8 )."},
                    StepsRow{"LevelSecondAlone",
                             kLevelSecond,
                             markOff(8) + markOff(8) + markOff(-5),
                             markAt(0, 8, 6) + mark(kAtOo, 8, 6) + markOff(-5),
                             {},
                             {},
                             "Her fra ( 0 ; 8 ) til (  ; 8 )."},
                    StepsRow{"SecondThenLevel", kSecondThenLevel,
                             markOff(10) + markAt(0, 6, 6) + mark(kAtOo, 6, 6), markAt(0, 10, 6), first(0, 6),
                             second(1.33, 6) + second(1.33, 6),
                             "Her fra ( 0 ; 10 ) til ( 1.33 ; 6 ) og fra ( 1.33 ; 6 ) til ( oo ; 6 )."},
                    StepsRow{"FirstThenLevel", kFirstThenLevel, markAt(0, 0, 6),
                             markOff(0) + markAt(0, 7, 6) + mark(kAtOo, 7, 6),
                             first(1.75, 7) + first(1.75, 7), second(0, 7),
                             "Her fra ( 0 ; 0 ) til ( 1.75 ; 7 ) og fra ( 1.75 ; 7 ) til (   ; 7 )."},
                    StepsRow{"OneStart", kSameStart, markAt(0, 7, 6) + markAt(2.33, 0, 7) + markOff(-5),
                             markAt(0, 7, 6) + markAt(2.33, 0, 7) + markOff(-5), first(2.33, 0),
                             second(2.33, 0), "Her fra ( 0 ; 7 ) til ( 4.67 ; 0 )."},
                    StepsRow{"StartAtTen", kStartAtTen, markAt(0, 0, 6), markOff(0) + markAt(0, 10, 6),
                             first(3.33, 10) + first(3.33, 10), second(0, 10) + second(0, 10),
                             "Her fra ( 0 ; 0 ) til ( 3.33 ; 10 ) og fra ( 3.33 ; 10 ) til ( 3.33 ; 10 )."}),
    [](const auto& row) { return row.param.name; });

struct StackRow {
    const char* name;
    Task task;
    Strokes stack;
    Strokes sum;
};

Strokes blue(double to, int price) { return bandAt(kResult, 0, to, price, kFirstBand); }
Strokes green(double from, double to, int price) { return bandAt(kResult, from, to, price, kSecondBand); }

class Vaddi1Stack : public Vaddi1Form, public testing::WithParamInterface<StackRow> {};

TEST_P(Vaddi1Stack, PutsTheSecondQuantityOnTheFirst) {
    const StackRow& row = GetParam();
    const FormDriver& f = open(row.task);
    f.click("help", "showSum");
    EXPECT_EQ(result(), row.stack + row.sum);
    EXPECT_EQ(f.focus(), "closeHelp");
    EXPECT_TRUE(f.isShown("helpPanel"));
    EXPECT_FALSE(f.isShown("ok"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Vaddi1Stack,
    testing::Values(
        StackRow{"Falling", kFalling, blue(0, 8) + green(0, 0.67, 8) + blue(2, 0) + green(2, 5.33, 0),
                 kFallingSum},
        StackRow{"RisingWithoutTheRowAtTen", kRising, blue(2.5, 6) + green(2.5, 2.5, 6), kRisingSum},
        StackRow{"SecondThenLevel",
                 kSecondThenLevel,
                 blue(0, 6) + green(0, 1.33, 6) + green(0, 1.33, 6),
                 {kResult.line(0, 0, 1.33, 10 - (-3 * 1.33 + 10), kSum), kResult.line(1.33, 4, 20, 4, kSum)}},
        StackRow{"FirstThenLevel",
                 kFirstThenLevel,
                 blue(1.75, 7) + green(1.75, 1.75, 7) + blue(1.75, 7),
                 {kResult.line(0, 10, 1.75, 3, kSum), kResult.line(1.75, 3, 20, 3, kSum)}},
        StackRow{"StartAtTen",
                 kStartAtTen,
                 blue(3.33, 10) + green(3.33, 3.33, 10),
                 {kResult.line(0, 10, 3.33, 10 - 3 * 3.33, kSum), kResult.line(3.33, 0, 20, 0, kSum)}}),
    [](const auto& row) { return row.param.name; });

TEST_F(Vaddi1Form, WritesItsPricesAtTheFirstStepAndTheRestAtTheSecond) {
    const DecimalMark danish(",");
    const FormDriver& f = open(kFalling);
    f.click("help", "showPrices");
    EXPECT_EQ(column(kPrices), "10|8|0");
    for (const Column& blank : {kQuantities1, kQuantities2, kTotals}) {
        EXPECT_EQ(column(blank), " | | ") << blank.front();
    }
    f.click("showQuantities");
    EXPECT_EQ(column(kQuantities1), " |0|2");
    EXPECT_EQ(column(kQuantities2), "0|0,67|3,33");
    EXPECT_EQ(column(kTotals), "0|0,67|5,33");
    EXPECT_EQ(f.caption("quantitiesResult"),
              "Her fra ( 0 ; 10 ) til ( 0,67 ; 8 ) og fra ( 0,67 ; 8 ) til ( 5,33 ; 0 ).");
    EXPECT_EQ(textOf("segment2Slope"), " ");
    EXPECT_TRUE(f.isShown("ok"));
    next(kRising);
    EXPECT_EQ(f.caption("quantitiesResult"), "");
    EXPECT_EQ(column(kPrices), " | | ");
}

TEST_F(Vaddi1Form, RunsTheStepsBeforeWhicheverIsPressedFirst) {
    const FormDriver& f = open(kFalling);
    f.click("help", "showSum");
    EXPECT_EQ(column(kPrices), "10|8|0");
    EXPECT_EQ(column(kQuantities2), "0|0.67|3.33");
    EXPECT_NE(f.caption("quantitiesResult"), "");
    const Strokes once = later("function1Graph");
    EXPECT_EQ(once.size(), 7U + 6U + 7U + 4U + 5U);
    f.click("showQuantities");
    EXPECT_EQ(later("function1Graph"), once + once);
    EXPECT_EQ(f.focus(), "showSum");
    f.click("showPrices");
    EXPECT_EQ(f.focus(), "showQuantities");
    EXPECT_EQ(later("function1Graph").size(), 2 * once.size() + 7U + 6U + 7U);
    f.click("showSum");
    EXPECT_EQ(result().size(), 2 * (4U + 4U + 5U + 5U + 2U));
}

TEST_F(Vaddi1Form, FillsTheAnswerAtTheThirdStepAndLeavesTheVerdictAlone) {
    const FormDriver& f = open(kFalling);
    f.click("help", "showSum");
    for (std::size_t i = 0; i < kAnswerBoxes.size(); ++i) {
        EXPECT_EQ(textOf(kAnswerBoxes[i]), kFallingAnswer[i]) << kAnswerBoxes[i];
    }
    test::expectHidden(f, {"giveAnswer", "wrong"});

    next(kFalling);
    f.click("ok");
    EXPECT_FALSE(redBoxes().empty());
    f.click("help", "showSum");
    EXPECT_TRUE(redBoxes().empty());
    test::expectShown(f, {"giveAnswer", "wrong"});
    EXPECT_FALSE(f.isShown("ok"));
    // What was filled in is drawn as if it had been typed.
    const std::size_t before = result().size();
    f.click("giveAnswer");
    EXPECT_EQ(result().size(), before + 4);
    EXPECT_EQ(result()[before], kResult.line(0, 0, 0.67, 10 - (0.67 * -3 + 10), kRed));
    EXPECT_EQ(result()[before + 1],
              kResult.line(0.67, 10 - (0.67 * -1.72 + 9.15), 5.33, 10 - (-1.72 * 5.33 + 9.15), kRed));
}

TEST_F(Vaddi1Form, LeavesWhatIsDrawnUntilTheNextExercise) {
    const FormDriver& f = open(kRising);
    f.click("help", "showQuantities");
    const Strokes drawn = graph("function1Graph").strokes();
    f.click("closeHelp");
    answer(kRisingAnswer);
    EXPECT_EQ(graph("function1Graph").strokes(), drawn);
    EXPECT_TRUE(f.isShown("right"));
}

// The two failures that end the program.

/// What is told of the failure that a click ends in.
std::string failureOf(Button& button) {
    button.click();
    return test::readFailure().message;
}

const std::string kTypeMismatch = messageFor(ArithmeticFailure::Kind::TypeMismatch);
const std::string kTooLarge = messageFor(ArithmeticFailure::Kind::Overflow);

TEST_F(Vaddi1Form, FailsAtTheThirdStepOnABlankPriceAfterItHasStackedTheSecondRow) {
    const FormDriver& f = open(kSameStart);
    f.click("ok", "help");
    EXPECT_EQ(failureOf(f.button("showSum")), kTypeMismatch);
    EXPECT_EQ(column(kPrices), "7|0| ");
    EXPECT_EQ(column(kQuantities1), "0|2.33| ");
    EXPECT_EQ(column(kQuantities2), "0|2.33| ");
    EXPECT_EQ(column(kTotals), "0|4.67| ");
    EXPECT_EQ(f.caption("quantitiesResult"), "Her fra ( 0 ; 7 ) til ( 4.67 ; 0 ).");
    EXPECT_EQ(later("function1Graph"), markAt(0, 7, 6) + markAt(2.33, 0, 7) + markOff(-5) + first(2.33, 0));
    test::expectShown(f, {"giveAnswer", "wrong"});
    EXPECT_FALSE(f.isShown("ok"));
    EXPECT_EQ(f.focus(), "closeHelp");
    EXPECT_EQ(result(), blue(2.33, 0) + green(2.33, 2.33 + 2.33, 0));
    EXPECT_EQ(textOf("segment2Slope"), " ");
    EXPECT_EQ(redBoxes(), (std::set<std::string>{"segment2Slope", "segment2Intercept", "segment2End"}));
}

TEST_F(Vaddi1Form, FailsAtTheThirdStepInEveryExerciseWithOneSegment) {
    const FormDriver& f = open(kFalling);
    for (const Task& t : {kLevelFirst, kLevelSecond, kSameStart, Task{1, 1, 5, 5, 5}}) {
        next(t);
        f.click("help");
        EXPECT_EQ(failureOf(f.button("showSum")), kTypeMismatch) << nameOf(t);
        EXPECT_FALSE(f.isShown("ok")) << nameOf(t);
        if (!t.isSloping()) {
            EXPECT_TRUE(result().empty()) << nameOf(t);
        }
    }
}

TEST_F(Vaddi1Form, LeavesTheBandWithoutLengthOutWhereALevelFirstFunctionIsTheWholeSum) {
    const FormDriver& f = open({-1, 0, 8, -2, 8});
    f.click("help");
    EXPECT_EQ(failureOf(f.button("showSum")), kTypeMismatch);
    EXPECT_EQ(column(kQuantities1), "0|oo| ");
    EXPECT_EQ(column(kQuantities2), "0|0| ");
    EXPECT_EQ(result(), Strokes{});
    EXPECT_EQ(later("function2Graph"), markAt(0, 8, 6) + markAt(0, 8, 6) + markOff(-5) + second(0, 8));
}

TEST_F(Vaddi1Form, OverflowsAfterTheTaskIsShownDrawnAndHasTheFocus) {
    const FormDriver& f = open(kFalling);
    f.click("ok", "help", "showQuantities");
    draws.append(scriptOf(kOverflow));
    EXPECT_EQ(failureOf(f.button("newExercise")), kTooLarge);
    test::expectTexts(f, {{"function1Slope", "5"},
                          {"function1Intercept", "3"},
                          {"function2Slope", "2"},
                          {"function2Intercept", "10"},
                          {"quantitiesResult", ""}});
    for (const AnswerBox* each : f.page().findChildren<AnswerBox*>()) {
        EXPECT_EQ(each->content(), " ");
    }
    EXPECT_TRUE(redBoxes().empty());
    test::expectHidden(
        f, {"helpPanel", "wrong", "right", "giveAnswer", "segment2End", "segment2EndLessOrEqual"});
    test::expectShown(f, {"segment1Slope", "ok"});
    EXPECT_EQ(graph("function1Graph").strokes(), (Strokes{kGiven.line(0, 7, 10, -43)}));
    EXPECT_EQ(graph("function2Graph").strokes(), (Strokes{kGiven.line(0, 0, 10, -20)}));
    EXPECT_TRUE(result().empty());
    EXPECT_EQ(f.focus(), "price1");
}

TEST_F(Vaddi1Form, TellsOfABlankPriceAndEndsTheProgramWithStatusOne) {
    const FormDriver& f = open(kLevelFirst);
    f.click("help", "showSum");
    const test::ProgramEnd end = test::readFailure();
    EXPECT_EQ(end.message,
              "Der blev regnet med et felt, som ikke er et tal. Tavrune kan ikke fortsætte og lukker nu.");
    EXPECT_EQ(end.status, 1);
}

TEST_F(Vaddi1Form, TellsOfTheOverflowAndEndsTheProgramWithStatusOne) {
    const FormDriver& f = open(kFalling);
    draws.append(scriptOf(kOverflow));
    f.press("newExercise", Qt::Key_Return);
    const test::ProgramEnd end = test::readFailure();
    EXPECT_EQ(end.message,
              "Et tal blev for stort til at regne med. Tavrune kan ikke fortsætte og lukker nu.");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(f.focus(), "price1");
}

TEST_F(Vaddi1Form, MayOverflowAtItsOpeningBeforeTheRestOfIt) {
    const FormDriver& f = open(kOverflow);
    EXPECT_EQ(f.caption("function2Intercept"), "10");
    EXPECT_EQ(f.focus(), "price1");
    EXPECT_EQ(f.label("wrong").backColour(), QColor(192, 0, 0));
    const test::ProgramEnd end = test::readFailure();
    EXPECT_EQ(end.message, messageFor(ArithmeticFailure::Kind::Overflow));
    EXPECT_EQ(end.status, 1);
}

TEST(Vaddi1Failure, EndsTheWholeRunOfTheProgramWithStatusOne) {
    ScriptedDraws draws(scriptOf(kOverflow));
    Program program(draws);
    QTimer::singleShot(0, [&program] { program.open(PageName::Vaddi1); });
    std::string told;
    QTimer reader;
    reader.callOnTimeout([&told, &reader] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            reader.stop();
            told = box->text().toStdString();
            QTest::keyClick(box->button(QMessageBox::Ok), Qt::Key_Return);
        }
    });
    reader.start(0);
    EXPECT_EQ(program.run(), 1);
    EXPECT_EQ(told, messageFor(ArithmeticFailure::Kind::Overflow));
    test::settle();
}

}  // namespace
}  // namespace tavrune
