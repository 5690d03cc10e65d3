#include "topics/polynomial/roedder.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

#include "numeric/rounding.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "topics/polynomial/all_polynomials.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::DecimalMark;
using test::FormDriver;

const QColor kGreen(0, 130, 0);
const GraphScale kScale{-15, 15, 15, -15};
using Names = std::vector<std::string>;
using Red = std::set<std::string>;

/// Everything of the current solution but the numbers in it.
const Names kPieces{"workedTwoRootsConclusion",  "workedDoubleRootConclusion", "workedNoRootsConclusion",
                    "workedTwoRootsCase",        "workedRootOneEquals",        "workedRootOneLeadingMinus",
                    "workedRootOnePlus",         "workedRootOneResultEquals",  "workedRootTwoEquals",
                    "workedRootTwoLeadingMinus", "workedRootTwoMinus",         "workedRootTwoResultEquals",
                    "workedDoubleRootCase",      "workedDoubleRootEquals",     "workedDoubleRootResultEquals",
                    "workedNoRootsCase",         "workedNoRootsText",          "workedRootOneRootSignHook",
                    "workedRootOneRootSignRise", "workedRootOneRootSignBar",   "workedRootOneBar",
                    "workedRootTwoRootSignHook", "workedRootTwoRootSignRise",  "workedRootTwoRootSignBar",
                    "workedRootTwoBar",          "workedDoubleRootBar"};
const Names kNumbers{"workedRootOneCoefficientB",   "workedRootOneDiscriminant", "workedRootOneDenominator",
                     "workedRootOneResult",         "workedRootTwoCoefficientB", "workedRootTwoDiscriminant",
                     "workedRootTwoDenominator",    "workedRootTwoResult",       "workedDoubleRootNumerator",
                     "workedDoubleRootDenominator", "workedDoubleRootResult"};

/// Those of them that stand with two roots, a double root and none.
const Names kPiecesOfTwo{
    "workedTwoRootsConclusion",  "workedTwoRootsCase",        "workedRootOneEquals",
    "workedRootOneLeadingMinus", "workedRootOnePlus",         "workedRootOneResultEquals",
    "workedRootTwoEquals",       "workedRootTwoLeadingMinus", "workedRootTwoMinus",
    "workedRootTwoResultEquals", "workedRootOneRootSignHook", "workedRootOneRootSignRise",
    "workedRootOneRootSignBar",  "workedRootOneBar",          "workedRootTwoRootSignHook",
    "workedRootTwoRootSignRise", "workedRootTwoRootSignBar",  "workedRootTwoBar"};
const Names kPiecesOfDouble{"workedDoubleRootConclusion", "workedDoubleRootCase", "workedDoubleRootEquals",
                            "workedDoubleRootResultEquals", "workedDoubleRootBar"};
const Names kPiecesOfNone{"workedNoRootsConclusion", "workedNoRootsCase", "workedNoRootsText"};

const test::StrokesIn kIn{kScale};

Stroke tick(double root) { return kIn.line(root, -0.5, root, 0.5, kRed); }

std::vector<Stroke> axes() {
    std::vector<Stroke> strokes{kIn.line(0, 15, 0, -15), kIn.line(-15, 0, 15, 0)};
    for (int x = -15; x <= 14; ++x) {
        strokes.push_back(kIn.point(x, 0.2));
    }
    for (int y = -15; y <= 14; ++y) {
        strokes.push_back(kIn.point(0.1, y));
    }
    for (const double off : {0.2, 0.3}) {
        for (int x = -15; x <= 10; x += 5) {
            strokes.push_back(kIn.point(x, off));
        }
        for (int y = -15; y <= 10; y += 5) {
            strokes.push_back(kIn.point(off, y));
        }
    }
    return strokes;
}

std::vector<Stroke> curve(int a, int b, int c) {
    const auto p = [=](double q) { return a * std::pow(q, 2) + b * q + c; };
    std::vector<Stroke> strokes;
    double x = -10;
    double y = 0;
    while (std::abs(y) <= 2000) {
        y = p(x);
        strokes.push_back(kIn.line(x, y, x + 0.05, p(x + 0.05)));
        x += 0.05;
    }
    return strokes;
}

test::Script scriptOf(int a, int b, int c, int patternCase) {
    return {cellOf(a - 1, 5), cellOf(b - 1, 5), cellOf(c - 1, 5), cellOf(patternCase - 1, 18)};
}

class RoedderForm : public test::ScriptedForm<int, int, int, int> {
protected:
    RoedderForm() : ScriptedForm(PageName::Roedder, scriptOf) {}

    /// Q² - Q - 6: the roots are 3 and -2.
    FormDriver& openTwo() { return open(1, 1, 6, 9); }
    /// Q² + 4Q + 4: the root is -2.
    FormDriver& openDouble() { return open(1, 4, 4, 1); }
    /// Q² + Q + 1.
    FormDriver& openNone() { return open(1, 1, 1, 1); }

    void answerTwo(const std::string& first, const std::string& second) const {
        form->type("rootOne", first);
        form->type("rootTwo", second);
        form->click("ok");
    }

    /// What was drawn since the axes.
    [[nodiscard]] std::vector<Stroke> drawn() const {
        const auto& graph = form->find<GraphBox>("graph");
        const std::vector<Stroke> first = axes();
        const std::vector<Stroke> later = test::strokesFrom(graph, first.size());
        EXPECT_TRUE(std::equal(first.begin(), first.end(), graph.strokes().begin()));
        return later;
    }

    /// The boxes, their labels, the verdicts and the buttons that come and go.
    [[nodiscard]] Names shownAnswer() const {
        return shownOf({"rootOneCaption", "rootOne", "rootTwoCaption", "doubleRootCaption", "rootTwo",
                        "right", "wrong", "newExercise", "ok", "giveAnswer"});
    }

    [[nodiscard]] Names greenOptions() const {
        Names names;
        for (const char* name : {"twoRoots", "doubleRoot", "noRoots"}) {
            const QColor colour = form->option(name).backColour();
            if (colour == kGreen) {
                names.emplace_back(name);
            } else {
                EXPECT_EQ(colour, QApplication::palette().color(QPalette::Button)) << name;
            }
        }
        return names;
    }

    [[nodiscard]] std::string chosen() const {
        for (const char* name : {"twoRoots", "doubleRoot", "noRoots"}) {
            if (form->option(name).isChosen()) {
                return name;
            }
        }
        return "";
    }

    [[nodiscard]] Names numbers() const {
        Names texts;
        for (const std::string& name : kNumbers) {
            if (!form->caption(name).empty()) {
                texts.push_back(name + " " + form->caption(name));
            }
        }
        return texts;
    }
};

TEST_F(RoedderForm, HidesWhatIsNotAskedForUntilItsOpening) {
    FormDriver unshown = FormDriver::unshown(PageName::Roedder, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Andengradspolynomiet - Rødder");
    test::expectHidden(unshown, {"ok", "newExercise", "giveAnswer", "right", "wrong", "helpPanel", "rootOne",
                                 "rootTwo", "doubleRootCaption", "rootOneCaption", "rootTwoCaption"});
    test::expectBlank(unshown, {"givenFunction", "workedFunction", "workedDiscriminant", "rootsCover",
                                "rootCountCover", "discriminantCover"});
    for (const std::string& number : kNumbers) {
        EXPECT_EQ(unshown.caption(number), "") << number;
    }
    for (const char* box : {"rootOne", "rootTwo"}) {
        EXPECT_EQ(unshown.box(box).content(), "") << box;
    }
    EXPECT_TRUE(unshown.find<GraphBox>("graph").strokes().empty());
    script(1, 1, 1, 1);
    unshown.show();
    EXPECT_TRUE(unshown.isShown("newExercise"));
}

TEST_F(RoedderForm, AsksForTheRootsOfAPolynomial) {
    const FormDriver& f = open(5, 2, 3, 12);
    test::expectTexts(f, {{"task", "Bestem rødderne i følgende andengradspolynomium:"},
                          {"priceEquals", "P ="},
                          {"givenFunction", "-5Q²+2Q-3"}});
    EXPECT_EQ(f.find<Frame>("rootCountChoice").caption(), "Rødder");
    EXPECT_EQ(f.option("twoRoots").caption(), "&To rødder");
    EXPECT_EQ(f.option("doubleRoot").caption(), "&Dobbelt rod");
    EXPECT_EQ(f.option("noRoots").caption(), "&Ingen rødder");
    test::expectTexts(
        f, {{"rootOneCaption", "Rod 1"}, {"rootTwoCaption", "Rod 2"}, {"doubleRootCaption", "Rod"}});
    EXPECT_EQ(shownAnswer(), Names{"newExercise"});
    EXPECT_EQ(chosen(), "");
    EXPECT_EQ(greenOptions(), Names{});
    test::expectShown(f, {"task", "priceEquals", "workedPriceEquals", "rootCountChoice", "twoRoots",
                          "doubleRoot", "noRoots"});
}

TEST_F(RoedderForm, WritesACoefficientOfOneOut) {
    const FormDriver& f = open(1, 3, 3, 2);
    test::expectTexts(f, {{"givenFunction", "1Q²"}, {"workedFunction", "1Q²"}});
}

TEST_F(RoedderForm, DrawsAxesAndTicksWithEveryExercise) {
    const FormDriver& f = openTwo();
    const GraphBox& graph = f.find<GraphBox>("graph");
    EXPECT_EQ(graph.scale(), kScale);
    EXPECT_EQ(graph.strokes(), axes());
    EXPECT_EQ(graph.strokes().size(), 2U + 2 * 30 + 4 * 6);
    f.click("twoRoots");
    answerTwo("1", "2");
    EXPECT_GT(graph.strokes().size(), axes().size());
    next(2, 2, 2, 2);
    EXPECT_EQ(graph.strokes(), axes());
}

TEST_F(RoedderForm, NamesItsAxesAndTheirTicks) {
    const FormDriver& f = openTwo();
    const auto& graph = f.find<GraphBox>("graph");
    test::expectTexts(f, {{"quantityAxisName", "Q"}, {"priceAxisName", "P"}});
    EXPECT_EQ(graph.backColour(), kWhite);
    const double unit = graph.Control::place().width() / 30;
    std::multiset<std::string> captions;
    for (const Label* label : graph.findChildren<Label*>()) {
        captions.insert(label->caption());
        if (label->caption() == "P" || label->caption() == "Q") {
            continue;
        }
        const double value = std::stod(label->caption());
        const QPointF centre = label->place().center();
        const bool isOnQ = std::abs(centre.x() / unit - 15 - value) < 0.11 && centre.y() > 15 * unit;
        const bool isOnP = std::abs(15 - centre.y() / unit - value) < 0.11 && centre.x() < 15 * unit;
        EXPECT_TRUE(isOnQ || isOnP) << label->caption();
    }
    EXPECT_EQ(captions,
              (std::multiset<std::string>{"-10", "-5", "5", "10", "-10", "-5", "5", "10", "P", "Q"}));
}

TEST_F(RoedderForm, SetsNoFocusWithANewExercise) {
    const FormDriver& f = openTwo();
    f.button("help").setFocus();
    script(1, 1, 1, 1);
    f.button("newExercise").click();
    test::settle();
    EXPECT_EQ(f.caption("givenFunction"), "1Q²+1Q+1");
    EXPECT_EQ(f.focus(), "help");
}

TEST_F(RoedderForm, AsksForTwoRootsInEmptyWhiteBoxes) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    EXPECT_EQ(shownAnswer(),
              (Names{"rootOneCaption", "rootOne", "rootTwoCaption", "rootTwo", "newExercise", "ok"}));
    EXPECT_EQ(f.focus(), "rootOne");
    answerTwo("7", "8");
    EXPECT_EQ(redBoxes(), (Red{"rootOne", "rootTwo"}));
    f.click("twoRoots");
    test::expectContents(f, {{"rootOne", ""}, {"rootTwo", ""}});
    EXPECT_EQ(redBoxes(), Red{});
    EXPECT_EQ(shownAnswer(),
              (Names{"rootOneCaption", "rootOne", "rootTwoCaption", "rootTwo", "newExercise", "ok"}))
        << "the verdict and \"&Giv svaret\" go: the student must fail once more";
}

TEST_F(RoedderForm, AsksForADoubleRootInTheSecondBoxAndKeepsTheFirst) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    answerTwo("7", "8");
    f.click("doubleRoot");
    EXPECT_EQ(shownAnswer(), (Names{"doubleRootCaption", "rootTwo", "newExercise", "ok"}));
    EXPECT_EQ(f.focus(), "rootTwo");
    test::expectContents(f, {{"rootOne", "7"}, {"rootTwo", ""}});
    EXPECT_EQ(redBoxes(), Red{});
}

TEST_F(RoedderForm, AsksForNothingMoreWithoutRoots) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    answerTwo("7", "8");
    f.click("noRoots");
    EXPECT_EQ(shownAnswer(), (Names{"newExercise", "ok"}));
    EXPECT_EQ(f.focus(), "ok");
    test::expectContents(f, {{"rootOne", "7"}, {"rootTwo", "8"}});
    EXPECT_EQ(redBoxes(), (Red{"rootOne", "rootTwo"})) << "hidden, they keep text and colour";
}

TEST_F(RoedderForm, LeavesTextAndColourOfTheBoxesToTheOptions) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    answerTwo("7", "8");
    next(1, 1, 1, 1);
    EXPECT_EQ(shownAnswer(), Names{"newExercise"});
    EXPECT_EQ(chosen(), "");
    test::expectContents(f, {{"rootOne", "7"}, {"rootTwo", "8"}});
    EXPECT_EQ(redBoxes(), (Red{"rootOne", "rootTwo"}));
    f.click("doubleRoot");
    EXPECT_EQ(f.box("rootOne").content(), "7");
    EXPECT_EQ(redBoxes(), Red{});
}

TEST_F(RoedderForm, IsSolvedByKeysAlone) {
    const FormDriver& f = openTwo();
    const auto access = [&f](Qt::Key key) {
        QTest::keyClick(&f.page(), key, Qt::AltModifier);
        test::settle();
    };
    access(Qt::Key_D);
    EXPECT_EQ(chosen(), "doubleRoot");
    EXPECT_EQ(f.focus(), "rootTwo");
    access(Qt::Key_T);
    EXPECT_EQ(chosen(), "twoRoots");
    EXPECT_EQ(f.focus(), "rootOne");
    f.type("rootOne", "3,00");
    EXPECT_EQ(f.box("rootOne").content(), "3.00");
    f.press("rootOne", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "rootTwo");
    f.type("rootTwo", "-2,00");
    f.press("rootTwo", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "ok");
    f.press("ok", Qt::Key_Return);
    EXPECT_EQ(shownAnswer(),
              (Names{"rootOneCaption", "rootOne", "rootTwoCaption", "rootTwo", "right", "newExercise"}));
    EXPECT_EQ(f.focus(), "newExercise");
    EXPECT_EQ(greenOptions(), Names{"twoRoots"});
    EXPECT_EQ(redBoxes(), Red{});
    EXPECT_EQ(drawn(), curve(1, -1, -6));
    script(1, 1, 1, 1);
    f.press("newExercise", Qt::Key_Return);
    EXPECT_EQ(f.caption("givenFunction"), "1Q²+1Q+1");
    EXPECT_EQ(shownAnswer(), Names{"newExercise"});
    EXPECT_EQ(greenOptions(), Names{});
    EXPECT_EQ(drawn(), std::vector<Stroke>{});
}

TEST_F(RoedderForm, StaysInTheLastBoxWhereOkIsHidden) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    answerTwo("3", "-2");
    f.box("rootTwo").setFocus();
    f.press("rootTwo", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "rootTwo");
}

TEST_F(RoedderForm, TakesTheRootsInEitherOrder) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    answerTwo("-2", "3");
    EXPECT_TRUE(f.isShown("right"));
    EXPECT_EQ(drawn(), curve(1, -1, -6));
}

TEST_F(RoedderForm, DrawsTheWholeCurveForARightAnswerWithANegativeA) {
    const FormDriver& f = open(2, 3, 1, 12);
    f.click("twoRoots");
    answerTwo("0.5", "1");
    EXPECT_TRUE(f.isShown("right"));
    const std::vector<Stroke> pieces = drawn();
    EXPECT_EQ(pieces, curve(-2, 3, -1));
    ASSERT_FALSE(pieces.empty());
    EXPECT_EQ(pieces.front().x1, -10);
    EXPECT_GT(pieces.back().x1, 10);
    EXPECT_LT(pieces.back().y1, -2000);
    EXPECT_GE(pieces[pieces.size() - 2].y1, -2000);
}

TEST_F(RoedderForm, TakesNothingForTheDoubleRootZero) {
    const FormDriver& f = open(4, 3, 3, 2);
    f.click("doubleRoot");
    EXPECT_EQ(f.box("rootTwo").content(), "");
    f.click("ok");
    EXPECT_EQ(shownAnswer(), (Names{"doubleRootCaption", "rootTwo", "right", "newExercise"}));
    EXPECT_EQ(f.focus(), "newExercise");
    EXPECT_EQ(greenOptions(), Names{"doubleRoot"});
    EXPECT_EQ(drawn(), curve(4, 0, 0));
}

TEST_F(RoedderForm, TakesNoRootsForRight) {
    const FormDriver& f = openNone();
    f.click("noRoots", "ok");
    EXPECT_EQ(shownAnswer(), (Names{"right", "newExercise"}));
    EXPECT_EQ(greenOptions(), Names{"noRoots"});
    EXPECT_EQ(drawn(), curve(1, 1, 1));
}

TEST_F(RoedderForm, TicksBothRootsOfAWrongTryAndMovesNoFocus) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    f.type("rootOne", "1.5");
    f.type("rootTwo", "-4");
    f.press("rootTwo", Qt::Key_Return);
    f.press("ok", Qt::Key_Return);
    EXPECT_EQ(shownAnswer(), (Names{"rootOneCaption", "rootOne", "rootTwoCaption", "rootTwo", "wrong",
                                    "newExercise", "ok", "giveAnswer"}));
    EXPECT_EQ(f.focus(), "ok");
    EXPECT_EQ(drawn(), (std::vector{tick(1.5), tick(-4)}));
    EXPECT_EQ(greenOptions(), Names{});
}

TEST_F(RoedderForm, KeepsTheTicksOfSeveralTriesSideBySide) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    answerTwo("1", "2");
    answerTwo("abc", "");
    f.click("doubleRoot");
    f.type("rootTwo", "9");
    f.click("ok", "twoRoots");
    answerTwo("3", "-2");
    const std::vector<Stroke> ticks{tick(1), tick(2), tick(0), tick(0), tick(9)};
    EXPECT_EQ(drawn(), ticks + curve(1, -1, -6));
    next(1, 1, 1, 1);
    EXPECT_EQ(drawn(), std::vector<Stroke>{});
}

TEST_F(RoedderForm, ClipsATickOutsideThePicture) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    auto& graph = f.find<GraphBox>("graph");
    const QImage before = graph.grab().toImage();
    answerTwo("20", "-20");
    EXPECT_EQ(drawn(), (std::vector{tick(20), tick(-20)}));
    EXPECT_EQ(graph.grab().toImage(), before);
    answerTwo("14", "-20");
    EXPECT_NE(graph.grab().toImage(), before) << "a tick inside is seen";
}

TEST_F(RoedderForm, ShowsTheRightVerdictInFrontOfAnOldWrongOne) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    answerTwo("1", "2");
    answerTwo("3", "-2");
    test::expectShown(f, {"wrong", "right"});
    EXPECT_EQ(redBoxes(), Red{});
    const Label& right = f.label("right");
    const Label& wrong = f.label("wrong");
    EXPECT_EQ(right.place(), wrong.place());
    const QObjectList& siblings = right.parent()->children();
    EXPECT_GT(siblings.indexOf(&right), siblings.indexOf(&wrong));
    EXPECT_EQ(test::flawsOf(f.page()), Names{});
}

struct ColourRow {
    const char* name;
    const char* first;
    const char* second;
    Red red;
};

class RoedderColours : public RoedderForm, public testing::WithParamInterface<ColourRow> {};

TEST_P(RoedderColours, FollowTheFirstBoxThatHoldsARoot) {
    openTwo();
    form->click("twoRoots");
    answerTwo(GetParam().first, GetParam().second);
    EXPECT_TRUE(form->isShown("wrong"));
    EXPECT_EQ(redBoxes(), GetParam().red);
}

INSTANTIATE_TEST_SUITE_P(Rows, RoedderColours,
                         testing::Values(ColourRow{"FirstHoldsRoot1", "3", "7", {"rootTwo"}},
                                         ColourRow{"SecondHoldsRoot1", "7", "3", {"rootOne"}},
                                         ColourRow{"FirstHoldsRoot2", "-2", "7", {"rootTwo"}},
                                         ColourRow{"SecondHoldsRoot2", "7", "-2", {"rootOne"}},
                                         ColourRow{"TheSameRootTwice", "3", "3", {"rootTwo"}},
                                         ColourRow{"TheOtherRootTwice", "-2", "-2", {"rootTwo"}},
                                         ColourRow{"NoRoot", "7", "8", {"rootOne", "rootTwo"}},
                                         ColourRow{"JustBelow", "2.99", "-2", {"rootOne"}},
                                         ColourRow{"JustAbove", "3.006", "-2", {"rootOne"}}),
                         [](const auto& row) { return row.param.name; });

TEST_F(RoedderForm, MarksBothBoxesWhereThereAreFewerThanTwoRoots) {
    const FormDriver& f = openDouble();
    f.click("twoRoots");
    answerTwo("-2", "-2");
    EXPECT_EQ(redBoxes(), (Red{"rootOne", "rootTwo"})) << "the wrong option is a wrong answer";
    f.click("doubleRoot");
    f.type("rootTwo", "2");
    f.click("ok");
    EXPECT_EQ(redBoxes(), (Red{"rootOne", "rootTwo"}));
    next(1, 1, 1, 1);
    f.click("doubleRoot", "ok");
    EXPECT_EQ(redBoxes(), (Red{"rootOne", "rootTwo"}));
    EXPECT_EQ(drawn(), std::vector{tick(0)});
}

TEST_F(RoedderForm, MarksByTheHiddenBoxToo) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    f.type("rootOne", "3");
    f.click("doubleRoot");
    f.type("rootTwo", "-2");
    f.click("ok");
    EXPECT_TRUE(f.isShown("wrong"));
    EXPECT_EQ(redBoxes(), Red{"rootTwo"}) << "the hidden first box holds a root";
    EXPECT_EQ(drawn(), std::vector{tick(-2)});
    f.click("noRoots", "ok");
    EXPECT_TRUE(f.isShown("wrong"));
    EXPECT_EQ(redBoxes(), Red{"rootTwo"});
    EXPECT_EQ(drawn(), std::vector{tick(-2)}) << "no roots, no ticks";
}

TEST_F(RoedderForm, BearsAnythingTyped) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    answerTwo("1e308", "-1e999");
    EXPECT_EQ(redBoxes(), (Red{"rootOne", "rootTwo"}));
    EXPECT_EQ(drawn().size(), 2U);
    f.box("rootTwo").setContent(std::string(100'000, '9'));
    f.click("ok");
    EXPECT_TRUE(f.isShown("wrong"));
    f.page().grab();
}

TEST_F(RoedderForm, GivesTwoRootsAndLeavesTheStudentsChoice) {
    const DecimalMark comma(",");
    const FormDriver& f = open(5, 5, 5, 9);
    f.click("doubleRoot");
    f.type("rootTwo", "4");
    f.click("ok", "giveAnswer");
    EXPECT_EQ(shownAnswer(),
              (Names{"rootOneCaption", "rootOne", "rootTwoCaption", "rootTwo", "newExercise"}));
    test::expectContents(f, {{"rootOne", "1,62"}, {"rootTwo", "-0,62"}});
    EXPECT_EQ(redBoxes(), Red{});
    EXPECT_EQ(greenOptions(), Names{"twoRoots"});
    EXPECT_EQ(chosen(), "doubleRoot");
    EXPECT_EQ(f.focus(), "newExercise");
    EXPECT_EQ(drawn(), std::vector{tick(4)} + curve(5, -5, -5));
}

TEST_F(RoedderForm, GivesADoubleRootInTheSecondBox) {
    const FormDriver& f = openDouble();
    f.click("twoRoots");
    answerTwo("7", "8");
    f.click("giveAnswer");
    EXPECT_EQ(shownAnswer(), (Names{"doubleRootCaption", "rootTwo", "newExercise"}));
    test::expectContents(f, {{"rootOne", "7"}, {"rootTwo", "-2"}});
    EXPECT_EQ(redBoxes(), Red{});
    EXPECT_EQ(greenOptions(), Names{"doubleRoot"});
    EXPECT_EQ(f.focus(), "newExercise");
    EXPECT_EQ(drawn(), (std::vector{tick(7), tick(8)} + curve(1, 4, 4)));
}

TEST_F(RoedderForm, GivesNoRoots) {
    const FormDriver& f = openNone();
    f.click("twoRoots");
    answerTwo("7", "8");
    f.click("giveAnswer");
    EXPECT_EQ(shownAnswer(), Names{"newExercise"});
    EXPECT_EQ(f.box("rootTwo").content(), "8");
    EXPECT_EQ(greenOptions(), Names{"noRoots"});
    EXPECT_EQ(f.focus(), "newExercise");
    EXPECT_EQ(drawn(), (std::vector{tick(7), tick(8)} + curve(1, 1, 1)));
}

TEST_F(RoedderForm, BeginsTheCurveOfAGivenAnswerAtTheSamePlaceForANegativeA) {
    const FormDriver& f = open(2, 3, 4, 12);
    f.click("twoRoots", "ok", "giveAnswer");
    const std::vector<Stroke> pieces = curve(-2, 3, -4);
    EXPECT_EQ(pieces.front().x1, -10);
    EXPECT_GT(pieces.back().x1, 7) << "the end of 7 is never met";
    EXPECT_EQ(drawn(), (std::vector{tick(0), tick(0)} + pieces));
}

TEST_F(RoedderForm, LeavesItsOptionsAliveAfterTheAnswer) {
    const FormDriver& f = openDouble();
    f.click("doubleRoot");
    f.type("rootTwo", "-2");
    f.click("ok", "twoRoots");
    EXPECT_EQ(shownAnswer(),
              (Names{"rootOneCaption", "rootOne", "rootTwoCaption", "rootTwo", "newExercise", "ok"}));
    EXPECT_EQ(greenOptions(), Names{"doubleRoot"});
    f.click("ok");
    EXPECT_TRUE(f.isShown("wrong"));
    EXPECT_EQ(greenOptions(), Names{"doubleRoot"});
    f.click("giveAnswer");
    EXPECT_EQ(greenOptions(), Names{"doubleRoot"});
    f.click("noRoots");
    EXPECT_EQ(shownAnswer(), (Names{"newExercise", "ok"}));
}

TEST_F(RoedderForm, TellsTheGeneralSolution) {
    const FormDriver& f = openTwo();
    f.click("help");
    test::expectTexts(f, {{"generalHeading", "Generel løsning"},
                          {"workedHeading", "Aktuel løsning"},
                          {"generalFunction", "P = aQ² + bQ + c"},
                          {"generalDiscriminant", "d = b ² - 4 · a · c "}});
    for (const char* denominator :
         {"generalRootOneDenominator", "generalRootTwoDenominator", "generalDoubleRootDenominator"}) {
        EXPECT_EQ(f.caption(denominator), "2 · a") << denominator;
    }
    test::expectTexts(f, {{"generalRootOneEquals", "Rod 1="},
                          {"generalRootOneMinusBPlus", "- b+"},
                          {"generalRootOneDiscriminant", "d"},
                          {"generalRootTwoEquals", "Rod 2="},
                          {"generalRootTwoMinusBMinus", "- b -"},
                          {"generalRootTwoDiscriminant", "d"},
                          {"generalDoubleRootEquals", "Rod ="},
                          {"generalDoubleRootNumerator", "- b"},
                          {"generalNoRootsText", "Ingen rødder"}});
    for (const char* button : {"showDiscriminant", "showRootCount", "showRoots"}) {
        EXPECT_EQ(f.button(button).caption(), "Vis") << button;
    }
    EXPECT_EQ(f.button("closeHelp").caption(), "&Luk");
}

TEST_F(RoedderForm, WorksOutTwoRoots) {
    const DecimalMark comma(",");
    const FormDriver& f = open(5, 5, 5, 16);
    EXPECT_EQ(shownOf(kPieces), Names{});
    EXPECT_EQ(numbers(), Names{});
    f.click("help");
    EXPECT_TRUE(f.isShown("helpPanel"));
    EXPECT_EQ(f.focus(), "showDiscriminant");
    test::expectTexts(f, {{"workedPriceEquals", "P ="},
                          {"workedFunction", "-5Q²-5Q+5"},
                          {"workedDiscriminant", "d = (-5) ² - 4 · (-5) · 5 = 125"},
                          {"workedTwoRootsConclusion", "d > 0, der er to rødder"}});
    EXPECT_EQ(shownOf(kPieces), kPiecesOfTwo);
    EXPECT_EQ(f.caption("workedTwoRootsCase"), "A)");
    EXPECT_EQ(numbers(), (Names{"workedRootOneCoefficientB (-5)", "workedRootOneDiscriminant 125",
                                "workedRootOneDenominator 2 · (-5)", "workedRootOneResult -1,62",
                                "workedRootTwoCoefficientB (-5)", "workedRootTwoDiscriminant 125",
                                "workedRootTwoDenominator 2 · (-5)", "workedRootTwoResult 0,62"}));
    test::expectTexts(f, {{"workedRootOneEquals", "Rod 1="},
                          {"workedRootOneLeadingMinus", "-"},
                          {"workedRootOnePlus", "+"},
                          {"workedRootTwoEquals", "Rod 2="},
                          {"workedRootTwoLeadingMinus", "-"},
                          {"workedRootTwoMinus", "-"},
                          {"workedRootOneResultEquals", "="},
                          {"workedRootTwoResultEquals", "="}});
}

TEST_F(RoedderForm, WorksOutADoubleRoot) {
    const FormDriver& f = open(1, 4, 4, 18);
    f.click("help");
    test::expectTexts(f, {{"workedDiscriminant", "d = (-4) ² - 4 · (-1) · (-4) = 0"},
                          {"workedDoubleRootConclusion", "d = 0, der er en dobbelt rod"}});
    EXPECT_EQ(shownOf(kPieces), kPiecesOfDouble);
    EXPECT_EQ(f.caption("workedDoubleRootCase"), "B)");
    EXPECT_EQ(numbers(), (Names{"workedDoubleRootNumerator - (-4)", "workedDoubleRootDenominator 2 · (-1)",
                                "workedDoubleRootResult -2"}));
    test::expectTexts(f, {{"workedDoubleRootEquals", "Rod="}, {"workedDoubleRootResultEquals", "="}});
    next(3, 1, 1, 2);
    f.click("help");
    EXPECT_EQ(numbers(), (Names{"workedDoubleRootNumerator - 0", "workedDoubleRootDenominator 2 · 3",
                                "workedDoubleRootResult 0"}));
}

TEST_F(RoedderForm, WorksOutThatThereAreNoRoots) {
    const FormDriver& f = openNone();
    f.click("help");
    test::expectTexts(f, {{"workedDiscriminant", "d = 1 ² - 4 ·1·1=-3"},
                          {"workedNoRootsConclusion", "d < 0, der er ingen rødder"},
                          {"workedNoRootsText", "Ingen rødder"}});
    EXPECT_EQ(shownOf(kPieces), kPiecesOfNone);
    EXPECT_EQ(f.caption("workedNoRootsCase"), "C)");
    EXPECT_EQ(numbers(), Names{});
}

TEST_F(RoedderForm, UncoversTheSolutionStepByStep) {
    const Names covers{"discriminantCover", "rootCountCover", "rootsCover"};
    const FormDriver& f = openTwo();
    f.click("help");
    EXPECT_EQ(shownOf(covers), covers);
    f.press("showDiscriminant", Qt::Key_Return);
    EXPECT_EQ(shownOf(covers), (Names{"rootCountCover", "rootsCover"}));
    EXPECT_EQ(f.focus(), "showRootCount");
    f.press("showRootCount", Qt::Key_Return);
    EXPECT_EQ(shownOf(covers), Names{"rootsCover"});
    EXPECT_EQ(f.focus(), "showRoots");
    f.press("showRoots", Qt::Key_Return);
    EXPECT_EQ(shownOf(covers), Names{});
    EXPECT_EQ(f.focus(), "closeHelp");
    f.press("closeHelp", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("helpPanel"));

    f.click("help");
    EXPECT_EQ(shownOf(covers), Names{}) << "closing does not cover the solution again";
    next(1, 1, 1, 1);
    EXPECT_FALSE(f.isShown("helpPanel"));
    EXPECT_EQ(shownOf(covers), covers);
}

TEST_F(RoedderForm, UncoversWhatCameBeforeALaterStep) {
    const Names covers{"discriminantCover", "rootCountCover", "rootsCover"};
    const FormDriver& f = openTwo();
    f.click("help", "showRootCount");
    EXPECT_EQ(shownOf(covers), Names{"rootsCover"});
    next(1, 1, 1, 1);
    f.click("help", "showRoots");
    EXPECT_EQ(shownOf(covers), Names{});
}

TEST_F(RoedderForm, EmptiesTheWorkedSolutionWithEveryExercise) {
    const FormDriver& f = openTwo();
    f.click("help");
    EXPECT_EQ(numbers().size(), 8U);
    next(1, 4, 4, 1);
    EXPECT_EQ(shownOf(kPieces), Names{});
    EXPECT_EQ(numbers(), Names{});
    EXPECT_EQ(shownOf(kNumbers), kNumbers) << "the places of the numbers stay";
}

TEST_F(RoedderForm, LeavesTheExerciseAloneWhileHelpIsOpen) {
    const FormDriver& f = openTwo();
    f.click("twoRoots");
    answerTwo("3", "9");
    const Names before = shownAnswer();
    f.click("help", "showRoots");
    EXPECT_EQ(shownAnswer(), before);
    EXPECT_EQ(f.box("rootTwo").content(), "9");
    EXPECT_EQ(redBoxes(), Red{"rootTwo"});
    f.type("rootTwo", "-2");
    f.click("ok");
    test::expectShown(f, {"right", "helpPanel"});
    f.click("closeHelp");
    EXPECT_EQ(drawn().back(), curve(1, -1, -6).back());
}

/// True if `cover` hides all of `covered`.
bool covers(const Label& cover, const QWidget& covered) {
    const QObjectList& siblings = cover.parent()->children();
    return cover.geometry().contains(covered.geometry()) &&
           siblings.indexOf(&cover) > siblings.indexOf(&covered);
}

TEST_F(RoedderForm, CoversEachStepAndNothingElse) {
    const FormDriver& f = openTwo();
    Names solution(kPieces.begin() + 3, kPieces.end());
    solution.insert(solution.end(), kNumbers.begin(), kNumbers.end());
    const std::map<std::string, Names> steps{
        {"discriminantCover", {"workedDiscriminant"}},
        {"rootCountCover",
         {"workedTwoRootsConclusion", "workedDoubleRootConclusion", "workedNoRootsConclusion"}},
        {"rootsCover", solution}};
    for (const auto& [name, step] : steps) {
        const Label& cover = f.label(name);
        EXPECT_EQ(cover.caption(), "");
        EXPECT_TRUE(cover.autoFillBackground());
        EXPECT_EQ(cover.backColour(), kWhite);
        for (const QWidget* widget : f.find("helpPanel").findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            const std::string other = widget->objectName().toStdString();
            if (std::find(step.begin(), step.end(), other) != step.end()) {
                EXPECT_TRUE(covers(cover, *widget)) << name << " over " << other;
            } else if (widget != &cover) {
                EXPECT_FALSE(cover.geometry().intersects(widget->geometry())) << name << " over " << other;
            }
        }
    }
}

struct RootSign {
    const char* name;
    const char* down;
    const char* up;
    const char* roof;
    const char* under;
    const char* bar;
    const char* denominator;
};

class RoedderRootSigns : public RoedderForm, public testing::WithParamInterface<RootSign> {};

TEST_P(RoedderRootSigns, StandOverTheDiscriminantAndABar) {
    const FormDriver& f = open(5, 5, 5, 16);
    f.click("help");
    const auto& [name, downLine, upLine, roofLine, under, barLine, denominator] = GetParam();
    const QLineF down = f.find<LineControl>(downLine).ends();
    const QLineF up = f.find<LineControl>(upLine).ends();
    const QLineF roof = f.find<LineControl>(roofLine).ends();
    const QLineF bar = f.find<LineControl>(barLine).ends();
    const QRectF d = f.label(under).place();
    const QRectF below = f.label(denominator).place();
    EXPECT_GT(down.dx(), 0);
    EXPECT_GT(down.dy(), 0);
    EXPECT_NEAR(down.p2().x(), up.p1().x(), 1);
    EXPECT_NEAR(down.p2().y(), up.p1().y(), 1);
    EXPECT_GT(up.dx(), 0);
    EXPECT_LT(up.dy(), -down.dy());
    EXPECT_NEAR(up.p2().x(), roof.p1().x(), 1);
    EXPECT_NEAR(up.p2().y(), roof.p1().y(), 1);
    EXPECT_EQ(roof.dy(), 0);
    EXPECT_LE(roof.p1().x(), d.left());
    EXPECT_GE(roof.p2().x(), d.right());
    EXPECT_LE(roof.p1().y(), d.top());
    EXPECT_GE(f.label(under).place().width(), f.label(under).textWidth());
    EXPECT_GE(bar.p1().y(), d.bottom());
    EXPECT_LE(bar.p1().x(), down.p1().x());
    EXPECT_GE(bar.p2().x(), roof.p2().x());
    EXPECT_LE(bar.p1().y(), below.top());
    EXPECT_EQ(below.left(), bar.p1().x());
    EXPECT_EQ(below.right(), bar.p2().x());
}

INSTANTIATE_TEST_SUITE_P(
    Formulas, RoedderRootSigns,
    testing::Values(RootSign{"General1", "generalRootOneRootSignHook", "generalRootOneRootSignRise",
                             "generalRootOneRootSignBar", "generalRootOneDiscriminant", "generalRootOneBar",
                             "generalRootOneDenominator"},
                    RootSign{"General2", "generalRootTwoRootSignHook", "generalRootTwoRootSignRise",
                             "generalRootTwoRootSignBar", "generalRootTwoDiscriminant", "generalRootTwoBar",
                             "generalRootTwoDenominator"},
                    RootSign{"Current1", "workedRootOneRootSignHook", "workedRootOneRootSignRise",
                             "workedRootOneRootSignBar", "workedRootOneDiscriminant", "workedRootOneBar",
                             "workedRootOneDenominator"},
                    RootSign{"Current2", "workedRootTwoRootSignHook", "workedRootTwoRootSignRise",
                             "workedRootTwoRootSignBar", "workedRootTwoDiscriminant", "workedRootTwoBar",
                             "workedRootTwoDenominator"}),
    [](const auto& row) { return row.param.name; });

std::string inBrackets(float n) { return n < 0 ? "(" + NumberText(n) + ")" : NumberText(n); }

/// The shown pieces and filled numbers of the worked solution, and what is written in these.
struct Worked {
    Names pieces;
    std::map<std::string, std::string> numbers;
};

/// As `polynomial` wants it.
Worked expectedWork(const Polynomial& polynomial) {
    const auto& [a, b, c] = polynomial;
    const double d = b * b - 4 * a * c;
    std::map<std::string, std::string> numbers;
    for (const std::string& name : kNumbers) {
        numbers[name] = "";
    }
    if (d < 0) {
        return {kPiecesOfNone, numbers};
    }
    const std::string denominator = "2 · " + inBrackets(a);
    const auto root = [&, a = a, b = b](double sign) {
        return NumberText(RoundSigned2((-b + sign * std::sqrt(d)) / (2 * a)));
    };
    if (d == 0) {
        numbers["workedDoubleRootNumerator"] = "- " + inBrackets(b);
        numbers["workedDoubleRootDenominator"] = denominator;
        numbers["workedDoubleRootResult"] = root(1);
        return {kPiecesOfDouble, numbers};
    }
    numbers["workedRootOneCoefficientB"] = numbers["workedRootTwoCoefficientB"] = inBrackets(b);
    numbers["workedRootOneDiscriminant"] = numbers["workedRootTwoDiscriminant"] = NumberText(d);
    numbers["workedRootOneDenominator"] = numbers["workedRootTwoDenominator"] = denominator;
    numbers["workedRootOneResult"] = root(1);
    numbers["workedRootTwoResult"] = root(-1);
    return {kPiecesOfTwo, numbers};
}

class RoedderSpaceShown : public testing::Test {
protected:
    RoedderSpaceShown() : form(PageName::Roedder, draws) {
        for (const std::string& name : kPieces) {
            pieces_.push_back(&form.find(name));
        }
        for (const std::string& name : kNumbers) {
            numbers_[name] = &form.label(name);
        }
        labels_ = form.find("helpPanel").findChildren<Label*>();
    }

    void press(const char* name) const { form.find<QAbstractButton>(name).click(); }

    void tryRoots(const std::string& first, const std::string& second) const {
        form.box("rootOne").setContent(first);
        form.box("rootTwo").setContent(second);
        press("ok");
    }

    void expectWork(const Worked& expected) const {
        std::set<std::string> shown;
        for (const QWidget* piece : pieces_) {
            if (!piece->isHidden()) {
                shown.insert(piece->objectName().toStdString());
            }
        }
        ASSERT_EQ(shown, std::set<std::string>(expected.pieces.begin(), expected.pieces.end()));
        for (const auto& [name, label] : numbers_) {
            ASSERT_EQ(label->caption(), expected.numbers.at(name)) << name;
        }
        for (const Label* label : labels_) {
            if (label->isShown()) {
                ASSERT_LE(label->textWidth(), label->place().width()) << label->caption();
            }
        }
    }

    test::AllPolynomials draws;
    FormDriver form;

private:
    std::vector<const QWidget*> pieces_;
    std::map<std::string, const Label*> numbers_;
    QList<Label*> labels_;
};

TEST_F(RoedderSpaceShown, IsGivenWorkedOutAndSolvedThroughout) {
    const RoedderState& state = dynamic_cast<const Roedder&>(form.page()).state();
    const char* const options[] = {"twoRoots", "doubleRoot", "noRoots"};
    for (int exercise = 0; exercise < test::kPolynomials; ++exercise) {
        SCOPED_TRACE(state.polynomialText);
        const auto count = static_cast<std::size_t>(rootCountOf(state.discriminant));
        press(options[(count + 1) % 3]);
        press("ok");
        ASSERT_TRUE(form.isShown("wrong"));
        ASSERT_FALSE(form.isShown("right"));

        press("help");
        expectWork(expectedWork(state.coefficients));
        if (HasFatalFailure()) {
            return;
        }
        press("closeHelp");

        press("giveAnswer");
        const std::string first = form.box("rootOne").content();
        const std::string second = form.box("rootTwo").content();
        ASSERT_EQ(form.option(options[count]).backColour(), kGreen);
        press(options[count]);
        tryRoots(first, second);
        ASSERT_TRUE(form.isShown("right")) << first << " and " << second;
        if (count == 0) {
            press(options[count]);
            ASSERT_FALSE(form.isShown("right"));
            tryRoots(second, first);
            ASSERT_TRUE(form.isShown("right")) << second << " and " << first;
        }
        press("newExercise");
    }
    EXPECT_EQ(state.polynomialText, "1Q²+1Q+1");
}

}  // namespace
}  // namespace tavrune
