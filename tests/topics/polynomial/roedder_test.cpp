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

#include "graph/graph_box.h"
#include "numeric/rounding.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/form_driver.h"
#include "support/looks.h"
#include "support/scripted_draws.h"
#include "support/strokes.h"
#include "topics/polynomial/all_polynomials.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::DecimalMark;
using test::FormDriver;
using test::ScriptedDraws;

const QColor kGreen(0, 130, 0);
const GraphScale kScale{-15, 15, 15, -15};
using Names = std::vector<std::string>;

/// Everything of the current solution but the numbers in it.
const Names kPieces{"Label54", "Label55", "Label56", "Label57", "Label58", "Label59", "Label61",
                    "Label72", "Label65", "Label66", "Label68", "Label73", "Label76", "Label77",
                    "Label83", "Label81", "Label82", "Line10",  "Line11",  "Line12",  "Line13",
                    "Line14",  "Line15",  "Line16",  "Line17",  "Line18"};
const Names kNumbers{"Label60", "Label62", "Label64", "Label74", "Label67", "Label69",
                     "Label71", "Label75", "Label78", "Label80", "Label84"};

/// Those of them that stand with two roots, a double root and none.
const Names kPiecesOfTwo{"Label54", "Label57", "Label58", "Label59", "Label61", "Label72",
                         "Label65", "Label66", "Label68", "Label73", "Line10",  "Line11",
                         "Line12",  "Line13",  "Line14",  "Line15",  "Line16",  "Line17"};
const Names kPiecesOfDouble{"Label55", "Label76", "Label77", "Label83", "Line18"};
const Names kPiecesOfNone{"Label56", "Label81", "Label82"};

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

class RoedderForm : public testing::Test {
protected:
    void script(int a, int b, int c, int patternCase) {
        draws.append({cellOf(a - 1, 5), cellOf(b - 1, 5), cellOf(c - 1, 5), cellOf(patternCase - 1, 18)});
    }

    FormDriver& open(int a, int b, int c, int patternCase) {
        script(a, b, c, patternCase);
        form = std::make_unique<FormDriver>(PageName::Roedder, draws);
        return *form;
    }

    /// Q² - Q - 6: the roots are 3 and -2.
    FormDriver& openTwo() { return open(1, 1, 6, 9); }
    /// Q² + 4Q + 4: the root is -2.
    FormDriver& openDouble() { return open(1, 4, 4, 1); }
    /// Q² + Q + 1.
    FormDriver& openNone() { return open(1, 1, 1, 1); }

    void next(int a, int b, int c, int patternCase) {
        script(a, b, c, patternCase);
        form->click("Command6");
    }

    void answerTwo(const std::string& first, const std::string& second) const {
        form->type("Text8", first);
        form->type("Text9", second);
        form->click("Command2");
    }

    /// What was drawn since the axes.
    [[nodiscard]] std::vector<Stroke> drawn() const {
        const auto& graph = form->find<GraphBox>("Picture1");
        const std::vector<Stroke> first = axes();
        const std::vector<Stroke> later = test::strokesFrom(graph, first.size());
        EXPECT_TRUE(std::equal(first.begin(), first.end(), graph.strokes().begin()));
        return later;
    }

    [[nodiscard]] Names shown(const Names& of) const {
        Names names;
        for (const std::string& name : of) {
            if (form->isShown(name)) {
                names.push_back(name);
            }
        }
        return names;
    }

    /// The boxes, their labels, the verdicts and the buttons that come and go.
    [[nodiscard]] Names shownAnswer() const {
        return shown({"Label3_0", "Text8", "Label4_0", "Label1_0", "Text9", "Label2_0", "Label9", "Command6",
                      "Command2", "Command10"});
    }

    [[nodiscard]] Names greenOptions() const {
        Names names;
        for (const char* name : {"Option1", "Option2", "Option3"}) {
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
        for (const char* name : {"Option1", "Option2", "Option3"}) {
            if (form->option(name).isChosen()) {
                return name;
            }
        }
        return "";
    }

    [[nodiscard]] Names redBoxes() const {
        Names names;
        for (const char* name : {"Text8", "Text9"}) {
            if (form->box(name).backColour() == kRed) {
                names.emplace_back(name);
            } else {
                EXPECT_EQ(form->box(name).backColour(), kWhite) << name;
            }
        }
        return names;
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

    ScriptedDraws draws;
    std::unique_ptr<FormDriver> form;
};

TEST_F(RoedderForm, HidesWhatIsNotAskedForUntilItsFirstTick) {
    FormDriver unshown = FormDriver::unshown(PageName::Roedder, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Andengradspolynomiet - Rødder");
    for (const char* hidden : {"Command2", "Command6", "Command10", "Label2_0", "Label9", "Picture2", "Text8",
                               "Text9", "Label1_0", "Label3_0", "Label4_0"}) {
        EXPECT_FALSE(unshown.isShown(hidden)) << hidden;
    }
    for (const char* blank : {"Label91", "Label92", "Label45", "Label88", "Label89", "Label90"}) {
        EXPECT_EQ(unshown.caption(blank), "") << blank;
    }
    for (const std::string& number : kNumbers) {
        EXPECT_EQ(unshown.caption(number), "") << number;
    }
    for (const char* box : {"Text8", "Text9"}) {
        EXPECT_EQ(unshown.box(box).content(), "") << box;
    }
    EXPECT_TRUE(unshown.find<GraphBox>("Picture1").strokes().empty());
    script(1, 1, 1, 1);
    unshown.show();
    EXPECT_TRUE(unshown.isShown("Command6"));
}

TEST_F(RoedderForm, AsksForTheRootsOfAPolynomial) {
    const FormDriver& f = open(5, 2, 3, 12);
    EXPECT_EQ(f.caption("Label22"), "Bestem rødderne i følgende andengradspolynomium:");
    EXPECT_EQ(f.caption("Label5_0"), "P =");
    EXPECT_EQ(f.caption("Label91"), "-5Q²+2Q-3");
    EXPECT_EQ(f.find<Frame>("Frame1").caption(), "Rødder");
    EXPECT_EQ(f.option("Option1").caption(), "&To rødder");
    EXPECT_EQ(f.option("Option2").caption(), "&Dobbelt rod");
    EXPECT_EQ(f.option("Option3").caption(), "&Ingen rødder");
    EXPECT_EQ(f.caption("Label3_0"), "Rod 1");
    EXPECT_EQ(f.caption("Label4_0"), "Rod 2");
    EXPECT_EQ(f.caption("Label1_0"), "Rod");
    EXPECT_EQ(shownAnswer(), Names{"Command6"});
    EXPECT_EQ(chosen(), "");
    EXPECT_EQ(greenOptions(), Names{});
    for (const char* stays : {"Label22", "Label5_0", "Label5_1", "Frame1", "Option1", "Option2", "Option3"}) {
        EXPECT_TRUE(f.isShown(stays)) << stays;
    }
}

TEST_F(RoedderForm, WritesACoefficientOfOneOut) {
    const FormDriver& f = open(1, 3, 3, 2);
    EXPECT_EQ(f.caption("Label91"), "1Q²");
    EXPECT_EQ(f.caption("Label92"), "1Q²");
}

TEST_F(RoedderForm, DrawsAxesAndTicksWithEveryExercise) {
    const FormDriver& f = openTwo();
    const GraphBox& graph = f.find<GraphBox>("Picture1");
    EXPECT_EQ(graph.scale(), kScale);
    EXPECT_EQ(graph.strokes(), axes());
    EXPECT_EQ(graph.strokes().size(), 2U + 2 * 30 + 4 * 6);
    f.click("Option1");
    answerTwo("1", "2");
    EXPECT_GT(graph.strokes().size(), axes().size());
    next(2, 2, 2, 2);
    EXPECT_EQ(graph.strokes(), axes());
}

TEST_F(RoedderForm, NamesItsAxesAndTheirTicks) {
    const FormDriver& f = openTwo();
    const auto& graph = f.find<GraphBox>("Picture1");
    EXPECT_EQ(f.caption("Label25"), "Q");
    EXPECT_EQ(f.caption("Label24"), "P");
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
    f.button("Command1").setFocus();
    script(1, 1, 1, 1);
    f.button("Command6").click();
    test::settle();
    EXPECT_EQ(f.caption("Label91"), "1Q²+1Q+1");
    EXPECT_EQ(f.focus(), "Command1");
}

TEST_F(RoedderForm, AsksForTwoRootsInEmptyWhiteBoxes) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    EXPECT_EQ(shownAnswer(), (Names{"Label3_0", "Text8", "Label4_0", "Text9", "Command6", "Command2"}));
    EXPECT_EQ(f.focus(), "Text8");
    answerTwo("7", "8");
    EXPECT_EQ(redBoxes(), (Names{"Text8", "Text9"}));
    f.click("Option1");
    EXPECT_EQ(f.box("Text8").content(), "");
    EXPECT_EQ(f.box("Text9").content(), "");
    EXPECT_EQ(redBoxes(), Names{});
    EXPECT_EQ(shownAnswer(), (Names{"Label3_0", "Text8", "Label4_0", "Text9", "Command6", "Command2"}))
        << "the verdict and \"&Giv svaret\" go: the student must fail once more";
}

TEST_F(RoedderForm, AsksForADoubleRootInTheSecondBoxAndKeepsTheFirst) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    answerTwo("7", "8");
    f.click("Option2");
    EXPECT_EQ(shownAnswer(), (Names{"Label1_0", "Text9", "Command6", "Command2"}));
    EXPECT_EQ(f.focus(), "Text9");
    EXPECT_EQ(f.box("Text8").content(), "7");
    EXPECT_EQ(f.box("Text9").content(), "");
    EXPECT_EQ(redBoxes(), Names{});
}

TEST_F(RoedderForm, AsksForNothingMoreWithoutRoots) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    answerTwo("7", "8");
    f.click("Option3");
    EXPECT_EQ(shownAnswer(), (Names{"Command6", "Command2"}));
    EXPECT_EQ(f.focus(), "Command2");
    EXPECT_EQ(f.box("Text8").content(), "7");
    EXPECT_EQ(f.box("Text9").content(), "8");
    EXPECT_EQ(redBoxes(), (Names{"Text8", "Text9"})) << "hidden, they keep text and colour";
}

TEST_F(RoedderForm, LeavesTextAndColourOfTheBoxesToTheOptions) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    answerTwo("7", "8");
    next(1, 1, 1, 1);
    EXPECT_EQ(shownAnswer(), Names{"Command6"});
    EXPECT_EQ(chosen(), "");
    EXPECT_EQ(f.box("Text8").content(), "7");
    EXPECT_EQ(f.box("Text9").content(), "8");
    EXPECT_EQ(redBoxes(), (Names{"Text8", "Text9"}));
    f.click("Option2");
    EXPECT_EQ(f.box("Text8").content(), "7");
    EXPECT_EQ(redBoxes(), Names{});
}

TEST_F(RoedderForm, IsSolvedByKeysAlone) {
    const FormDriver& f = openTwo();
    const auto access = [&f](Qt::Key key) {
        QTest::keyClick(&f.page(), key, Qt::AltModifier);
        test::settle();
    };
    access(Qt::Key_D);
    EXPECT_EQ(chosen(), "Option2");
    EXPECT_EQ(f.focus(), "Text9");
    access(Qt::Key_T);
    EXPECT_EQ(chosen(), "Option1");
    EXPECT_EQ(f.focus(), "Text8");
    f.type("Text8", "3,00");
    EXPECT_EQ(f.box("Text8").content(), "3.00");
    f.press("Text8", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Text9");
    f.type("Text9", "-2,00");
    f.press("Text9", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Command2");
    f.press("Command2", Qt::Key_Return);
    EXPECT_EQ(shownAnswer(), (Names{"Label3_0", "Text8", "Label4_0", "Text9", "Label2_0", "Command6"}));
    EXPECT_EQ(f.focus(), "Command6");
    EXPECT_EQ(greenOptions(), Names{"Option1"});
    EXPECT_EQ(redBoxes(), Names{});
    EXPECT_EQ(drawn(), curve(1, -1, -6));
    script(1, 1, 1, 1);
    f.press("Command6", Qt::Key_Return);
    EXPECT_EQ(f.caption("Label91"), "1Q²+1Q+1");
    EXPECT_EQ(shownAnswer(), Names{"Command6"});
    EXPECT_EQ(greenOptions(), Names{});
    EXPECT_EQ(drawn(), std::vector<Stroke>{});
}

TEST_F(RoedderForm, StaysInTheLastBoxWhereOkIsHidden) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    answerTwo("3", "-2");
    f.box("Text9").setFocus();
    f.press("Text9", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "Text9");
}

TEST_F(RoedderForm, TakesTheRootsInEitherOrder) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    answerTwo("-2", "3");
    EXPECT_TRUE(f.isShown("Label2_0"));
    EXPECT_EQ(drawn(), curve(1, -1, -6));
}

TEST_F(RoedderForm, DrawsTheWholeCurveForARightAnswerWithANegativeA) {
    const FormDriver& f = open(2, 3, 1, 12);
    f.click("Option1");
    answerTwo("0.5", "1");
    EXPECT_TRUE(f.isShown("Label2_0"));
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
    f.click("Option2");
    EXPECT_EQ(f.box("Text9").content(), "");
    f.click("Command2");
    EXPECT_EQ(shownAnswer(), (Names{"Label1_0", "Text9", "Label2_0", "Command6"}));
    EXPECT_EQ(f.focus(), "Command6");
    EXPECT_EQ(greenOptions(), Names{"Option2"});
    EXPECT_EQ(drawn(), curve(4, 0, 0));
}

TEST_F(RoedderForm, TakesNoRootsForRight) {
    const FormDriver& f = openNone();
    f.click("Option3");
    f.click("Command2");
    EXPECT_EQ(shownAnswer(), (Names{"Label2_0", "Command6"}));
    EXPECT_EQ(greenOptions(), Names{"Option3"});
    EXPECT_EQ(drawn(), curve(1, 1, 1));
}

TEST_F(RoedderForm, TicksBothRootsOfAWrongTryAndMovesNoFocus) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    f.type("Text8", "1.5");
    f.type("Text9", "-4");
    f.press("Text9", Qt::Key_Return);
    f.press("Command2", Qt::Key_Return);
    EXPECT_EQ(shownAnswer(), (Names{"Label3_0", "Text8", "Label4_0", "Text9", "Label9", "Command6",
                                    "Command2", "Command10"}));
    EXPECT_EQ(f.focus(), "Command2");
    EXPECT_EQ(drawn(), (std::vector{tick(1.5), tick(-4)}));
    EXPECT_EQ(greenOptions(), Names{});
}

TEST_F(RoedderForm, KeepsTheTicksOfSeveralTriesSideBySide) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    answerTwo("1", "2");
    answerTwo("abc", "");
    f.click("Option2");
    f.type("Text9", "9");
    f.click("Command2");
    f.click("Option1");
    answerTwo("3", "-2");
    const std::vector<Stroke> ticks{tick(1), tick(2), tick(0), tick(0), tick(9)};
    EXPECT_EQ(drawn(), ticks + curve(1, -1, -6));
    next(1, 1, 1, 1);
    EXPECT_EQ(drawn(), std::vector<Stroke>{});
}

TEST_F(RoedderForm, ClipsATickOutsideThePicture) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    auto& graph = f.find<GraphBox>("Picture1");
    const QImage before = graph.grab().toImage();
    answerTwo("20", "-20");
    EXPECT_EQ(drawn(), (std::vector{tick(20), tick(-20)}));
    EXPECT_EQ(graph.grab().toImage(), before);
    answerTwo("14", "-20");
    EXPECT_NE(graph.grab().toImage(), before) << "a tick inside is seen";
}

TEST_F(RoedderForm, ShowsTheRightVerdictInFrontOfAnOldWrongOne) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    answerTwo("1", "2");
    answerTwo("3", "-2");
    EXPECT_TRUE(f.isShown("Label9"));
    EXPECT_TRUE(f.isShown("Label2_0"));
    EXPECT_EQ(redBoxes(), Names{});
    const Label& right = f.label("Label2_0");
    const Label& wrong = f.label("Label9");
    EXPECT_EQ(right.place(), wrong.place());
    const QObjectList& siblings = right.parent()->children();
    EXPECT_GT(siblings.indexOf(&right), siblings.indexOf(&wrong));
    EXPECT_EQ(test::flawsOf(f.page()), Names{});
}

struct ColourRow {
    const char* name;
    const char* first;
    const char* second;
    Names red;
};

class RoedderColours : public RoedderForm, public testing::WithParamInterface<ColourRow> {};

TEST_P(RoedderColours, FollowTheFirstBoxThatHoldsARoot) {
    openTwo();
    form->click("Option1");
    answerTwo(GetParam().first, GetParam().second);
    EXPECT_TRUE(form->isShown("Label9"));
    EXPECT_EQ(redBoxes(), GetParam().red);
}

INSTANTIATE_TEST_SUITE_P(Rows, RoedderColours,
                         testing::Values(ColourRow{"FirstHoldsRoot1", "3", "7", {"Text9"}},
                                         ColourRow{"SecondHoldsRoot1", "7", "3", {"Text8"}},
                                         ColourRow{"FirstHoldsRoot2", "-2", "7", {"Text9"}},
                                         ColourRow{"SecondHoldsRoot2", "7", "-2", {"Text8"}},
                                         ColourRow{"TheSameRootTwice", "3", "3", {"Text9"}},
                                         ColourRow{"TheOtherRootTwice", "-2", "-2", {"Text9"}},
                                         ColourRow{"NoRoot", "7", "8", {"Text8", "Text9"}},
                                         ColourRow{"JustBelow", "2.99", "-2", {"Text8"}},
                                         ColourRow{"JustAbove", "3.006", "-2", {"Text8"}}),
                         [](const auto& row) { return row.param.name; });

TEST_F(RoedderForm, MarksBothBoxesWhereThereAreFewerThanTwoRoots) {
    const FormDriver& f = openDouble();
    f.click("Option1");
    answerTwo("-2", "-2");
    EXPECT_EQ(redBoxes(), (Names{"Text8", "Text9"})) << "the wrong option is a wrong answer";
    f.click("Option2");
    f.type("Text9", "2");
    f.click("Command2");
    EXPECT_EQ(redBoxes(), (Names{"Text8", "Text9"}));
    next(1, 1, 1, 1);
    f.click("Option2");
    f.click("Command2");
    EXPECT_EQ(redBoxes(), (Names{"Text8", "Text9"}));
    EXPECT_EQ(drawn(), std::vector{tick(0)});
}

TEST_F(RoedderForm, MarksByTheHiddenBoxToo) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    f.type("Text8", "3");
    f.click("Option2");
    f.type("Text9", "-2");
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label9"));
    EXPECT_EQ(redBoxes(), Names{"Text9"}) << "the hidden first box holds a root";
    EXPECT_EQ(drawn(), std::vector{tick(-2)});
    f.click("Option3");
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label9"));
    EXPECT_EQ(redBoxes(), Names{"Text9"});
    EXPECT_EQ(drawn(), std::vector{tick(-2)}) << "no roots, no ticks";
}

TEST_F(RoedderForm, BearsAnythingTyped) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    answerTwo("1e308", "-1e999");
    EXPECT_EQ(redBoxes(), (Names{"Text8", "Text9"}));
    EXPECT_EQ(drawn().size(), 2U);
    f.box("Text9").setContent(std::string(100'000, '9'));
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label9"));
    f.page().grab();
}

TEST_F(RoedderForm, GivesTwoRootsAndLeavesTheStudentsChoice) {
    const DecimalMark comma(",");
    const FormDriver& f = open(5, 5, 5, 9);
    f.click("Option2");
    f.type("Text9", "4");
    f.click("Command2");
    f.click("Command10");
    EXPECT_EQ(shownAnswer(), (Names{"Label3_0", "Text8", "Label4_0", "Text9", "Command6"}));
    EXPECT_EQ(f.box("Text8").content(), "1,62");
    EXPECT_EQ(f.box("Text9").content(), "-0,62");
    EXPECT_EQ(redBoxes(), Names{});
    EXPECT_EQ(greenOptions(), Names{"Option1"});
    EXPECT_EQ(chosen(), "Option2");
    EXPECT_EQ(f.focus(), "Command6");
    EXPECT_EQ(drawn(), std::vector{tick(4)} + curve(5, -5, -5));
}

TEST_F(RoedderForm, GivesADoubleRootInTheSecondBox) {
    const FormDriver& f = openDouble();
    f.click("Option1");
    answerTwo("7", "8");
    f.click("Command10");
    EXPECT_EQ(shownAnswer(), (Names{"Label1_0", "Text9", "Command6"}));
    EXPECT_EQ(f.box("Text8").content(), "7");
    EXPECT_EQ(f.box("Text9").content(), "-2");
    EXPECT_EQ(redBoxes(), Names{});
    EXPECT_EQ(greenOptions(), Names{"Option2"});
    EXPECT_EQ(f.focus(), "Command6");
    EXPECT_EQ(drawn(), (std::vector{tick(7), tick(8)} + curve(1, 4, 4)));
}

TEST_F(RoedderForm, GivesNoRoots) {
    const FormDriver& f = openNone();
    f.click("Option1");
    answerTwo("7", "8");
    f.click("Command10");
    EXPECT_EQ(shownAnswer(), Names{"Command6"});
    EXPECT_EQ(f.box("Text9").content(), "8");
    EXPECT_EQ(greenOptions(), Names{"Option3"});
    EXPECT_EQ(f.focus(), "Command6");
    EXPECT_EQ(drawn(), (std::vector{tick(7), tick(8)} + curve(1, 1, 1)));
}

TEST_F(RoedderForm, BeginsTheCurveOfAGivenAnswerAtTheSamePlaceForANegativeA) {
    const FormDriver& f = open(2, 3, 4, 12);
    f.click("Option1");
    f.click("Command2");
    f.click("Command10");
    const std::vector<Stroke> pieces = curve(-2, 3, -4);
    EXPECT_EQ(pieces.front().x1, -10);
    EXPECT_GT(pieces.back().x1, 7) << "the end of 7 is never met";
    EXPECT_EQ(drawn(), (std::vector{tick(0), tick(0)} + pieces));
}

TEST_F(RoedderForm, LeavesItsOptionsAliveAfterTheAnswer) {
    const FormDriver& f = openDouble();
    f.click("Option2");
    f.type("Text9", "-2");
    f.click("Command2");
    f.click("Option1");
    EXPECT_EQ(shownAnswer(), (Names{"Label3_0", "Text8", "Label4_0", "Text9", "Command6", "Command2"}));
    EXPECT_EQ(greenOptions(), Names{"Option2"});
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label9"));
    EXPECT_EQ(greenOptions(), Names{"Option2"});
    f.click("Command10");
    EXPECT_EQ(greenOptions(), Names{"Option2"});
    f.click("Option3");
    EXPECT_EQ(shownAnswer(), (Names{"Command6", "Command2"}));
}

TEST_F(RoedderForm, TellsTheGeneralSolution) {
    const FormDriver& f = openTwo();
    f.click("Command1");
    EXPECT_EQ(f.caption("Label86"), "Generel løsning");
    EXPECT_EQ(f.caption("Label87"), "Aktuel løsning");
    EXPECT_EQ(f.caption("Label26"), "P = aQ² + bQ + c");
    EXPECT_EQ(f.caption("Label6"), "d = b ² - 4 · a · c ");
    for (const char* denominator : {"Label34", "Label38", "Label42"}) {
        EXPECT_EQ(f.caption(denominator), "2 · a") << denominator;
    }
    EXPECT_EQ(f.caption("Label202"), "Rod 1=");
    EXPECT_EQ(f.caption("Label203"), "- b+");
    EXPECT_EQ(f.caption("Label204"), "d");
    EXPECT_EQ(f.caption("Label205"), "Rod 2=");
    EXPECT_EQ(f.caption("Label206"), "- b -");
    EXPECT_EQ(f.caption("Label207"), "d");
    EXPECT_EQ(f.caption("Label209"), "Rod =");
    EXPECT_EQ(f.caption("Label210"), "- b");
    EXPECT_EQ(f.caption("Label220"), "Ingen rødder");
    for (const char* button : {"Command5", "Command4", "Command7"}) {
        EXPECT_EQ(f.button(button).caption(), "Vis") << button;
    }
    EXPECT_EQ(f.button("Command3").caption(), "&Luk");
}

TEST_F(RoedderForm, WorksOutTwoRoots) {
    const DecimalMark comma(",");
    const FormDriver& f = open(5, 5, 5, 16);
    EXPECT_EQ(shown(kPieces), Names{});
    EXPECT_EQ(numbers(), Names{});
    f.click("Command1");
    EXPECT_TRUE(f.isShown("Picture2"));
    EXPECT_EQ(f.focus(), "Command5");
    EXPECT_EQ(f.caption("Label5_1"), "P =");
    EXPECT_EQ(f.caption("Label92"), "-5Q²-5Q+5");
    EXPECT_EQ(f.caption("Label45"), "d = (-5) ² - 4 · (-5) · 5 = 125");
    EXPECT_EQ(f.caption("Label54"), "d > 0, der er to rødder");
    EXPECT_EQ(shown(kPieces), kPiecesOfTwo);
    EXPECT_EQ(f.caption("Label57"), "A)");
    EXPECT_EQ(numbers(), (Names{"Label60 (-5)", "Label62 125", "Label64 2 · (-5)", "Label74 -1,62",
                                "Label67 (-5)", "Label69 125", "Label71 2 · (-5)", "Label75 0,62"}));
    EXPECT_EQ(f.caption("Label58"), "Rod 1=");
    EXPECT_EQ(f.caption("Label59"), "-");
    EXPECT_EQ(f.caption("Label61"), "+");
    EXPECT_EQ(f.caption("Label65"), "Rod 2=");
    EXPECT_EQ(f.caption("Label66"), "-");
    EXPECT_EQ(f.caption("Label68"), "-");
    EXPECT_EQ(f.caption("Label72"), "=");
    EXPECT_EQ(f.caption("Label73"), "=");
}

TEST_F(RoedderForm, WorksOutADoubleRoot) {
    const FormDriver& f = open(1, 4, 4, 18);
    f.click("Command1");
    EXPECT_EQ(f.caption("Label45"), "d = (-4) ² - 4 · (-1) · (-4) = 0");
    EXPECT_EQ(f.caption("Label55"), "d = 0, der er en dobbelt rod");
    EXPECT_EQ(shown(kPieces), kPiecesOfDouble);
    EXPECT_EQ(f.caption("Label76"), "B)");
    EXPECT_EQ(numbers(), (Names{"Label78 - (-4)", "Label80 2 · (-1)", "Label84 -2"}));
    EXPECT_EQ(f.caption("Label77"), "Rod=");
    EXPECT_EQ(f.caption("Label83"), "=");
    next(3, 1, 1, 2);
    f.click("Command1");
    EXPECT_EQ(numbers(), (Names{"Label78 - 0", "Label80 2 · 3", "Label84 0"}));
}

TEST_F(RoedderForm, WorksOutThatThereAreNoRoots) {
    const FormDriver& f = openNone();
    f.click("Command1");
    EXPECT_EQ(f.caption("Label45"), "d = 1 ² - 4 ·1·1=-3");
    EXPECT_EQ(f.caption("Label56"), "d < 0, der er ingen rødder");
    EXPECT_EQ(f.caption("Label82"), "Ingen rødder");
    EXPECT_EQ(shown(kPieces), kPiecesOfNone);
    EXPECT_EQ(f.caption("Label81"), "C)");
    EXPECT_EQ(numbers(), Names{});
}

TEST_F(RoedderForm, UncoversTheSolutionStepByStep) {
    const Names covers{"Label90", "Label89", "Label88"};
    const FormDriver& f = openTwo();
    f.click("Command1");
    EXPECT_EQ(shown(covers), covers);
    f.press("Command5", Qt::Key_Return);
    EXPECT_EQ(shown(covers), (Names{"Label89", "Label88"}));
    EXPECT_EQ(f.focus(), "Command4");
    f.press("Command4", Qt::Key_Return);
    EXPECT_EQ(shown(covers), Names{"Label88"});
    EXPECT_EQ(f.focus(), "Command7");
    f.press("Command7", Qt::Key_Return);
    EXPECT_EQ(shown(covers), Names{});
    EXPECT_EQ(f.focus(), "Command3");
    f.press("Command3", Qt::Key_Return);
    EXPECT_FALSE(f.isShown("Picture2"));

    f.click("Command1");
    EXPECT_EQ(shown(covers), Names{}) << "closing does not cover the solution again";
    next(1, 1, 1, 1);
    EXPECT_FALSE(f.isShown("Picture2"));
    EXPECT_EQ(shown(covers), covers);
}

TEST_F(RoedderForm, UncoversWhatCameBeforeALaterStep) {
    const Names covers{"Label90", "Label89", "Label88"};
    const FormDriver& f = openTwo();
    f.click("Command1");
    f.click("Command4");
    EXPECT_EQ(shown(covers), Names{"Label88"});
    next(1, 1, 1, 1);
    f.click("Command1");
    f.click("Command7");
    EXPECT_EQ(shown(covers), Names{});
}

TEST_F(RoedderForm, EmptiesTheWorkedSolutionWithEveryExercise) {
    const FormDriver& f = openTwo();
    f.click("Command1");
    EXPECT_EQ(numbers().size(), 8U);
    next(1, 4, 4, 1);
    EXPECT_EQ(shown(kPieces), Names{});
    EXPECT_EQ(numbers(), Names{});
    EXPECT_EQ(shown(kNumbers), kNumbers) << "the places of the numbers stay";
}

TEST_F(RoedderForm, LeavesTheExerciseAloneWhileHelpIsOpen) {
    const FormDriver& f = openTwo();
    f.click("Option1");
    answerTwo("3", "9");
    const Names before = shownAnswer();
    f.click("Command1");
    f.click("Command7");
    EXPECT_EQ(shownAnswer(), before);
    EXPECT_EQ(f.box("Text9").content(), "9");
    EXPECT_EQ(redBoxes(), Names{"Text9"});
    f.type("Text9", "-2");
    f.click("Command2");
    EXPECT_TRUE(f.isShown("Label2_0"));
    EXPECT_TRUE(f.isShown("Picture2"));
    f.click("Command3");
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
        {"Label90", {"Label45"}}, {"Label89", {"Label54", "Label55", "Label56"}}, {"Label88", solution}};
    for (const auto& [name, step] : steps) {
        const Label& cover = f.label(name);
        EXPECT_EQ(cover.caption(), "");
        EXPECT_TRUE(cover.autoFillBackground());
        EXPECT_EQ(cover.backColour(), kWhite);
        for (const QWidget* widget : f.find("Picture2").findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
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
    f.click("Command1");
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
    testing::Values(RootSign{"General1", "Line1", "Line2", "Line3", "Label204", "Line4", "Label34"},
                    RootSign{"General2", "Line5", "Line6", "Line7", "Label207", "Line8", "Label38"},
                    RootSign{"Current1", "Line10", "Line11", "Line12", "Label62", "Line13", "Label64"},
                    RootSign{"Current2", "Line14", "Line15", "Line16", "Label69", "Line17", "Label71"}),
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
        numbers["Label78"] = "- " + inBrackets(b);
        numbers["Label80"] = denominator;
        numbers["Label84"] = root(1);
        return {kPiecesOfDouble, numbers};
    }
    numbers["Label60"] = numbers["Label67"] = inBrackets(b);
    numbers["Label62"] = numbers["Label69"] = NumberText(d);
    numbers["Label64"] = numbers["Label71"] = denominator;
    numbers["Label74"] = root(1);
    numbers["Label75"] = root(-1);
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
        labels_ = form.find("Picture2").findChildren<Label*>();
    }

    void press(const char* name) const { form.find<QAbstractButton>(name).click(); }

    void tryRoots(const std::string& first, const std::string& second) const {
        form.box("Text8").setContent(first);
        form.box("Text9").setContent(second);
        press("Command2");
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
    const char* const options[] = {"Option1", "Option2", "Option3"};
    for (int exercise = 0; exercise < test::kPolynomials; ++exercise) {
        SCOPED_TRACE(state.polynomial);
        const auto count = static_cast<std::size_t>(rootCountOf(state.discriminant));
        press(options[(count + 1) % 3]);
        press("Command2");
        ASSERT_TRUE(form.isShown("Label9"));
        ASSERT_FALSE(form.isShown("Label2_0"));

        press("Command1");
        expectWork(expectedWork(state.coefficients));
        if (HasFatalFailure()) {
            return;
        }
        press("Command3");

        press("Command10");
        const std::string first = form.box("Text8").content();
        const std::string second = form.box("Text9").content();
        ASSERT_EQ(form.option(options[count]).backColour(), kGreen);
        press(options[count]);
        tryRoots(first, second);
        ASSERT_TRUE(form.isShown("Label2_0")) << first << " and " << second;
        if (count == 0) {
            press(options[count]);
            ASSERT_FALSE(form.isShown("Label2_0"));
            tryRoots(second, first);
            ASSERT_TRUE(form.isShown("Label2_0")) << second << " and " << first;
        }
        press("Command6");
    }
    EXPECT_EQ(state.polynomial, "1Q²+1Q+1");
}

}  // namespace
}  // namespace tavrune
