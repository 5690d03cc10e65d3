#include "topics/polynomial/rogt.h"

#include <cmath>

#include <QTest>

#include <gtest/gtest.h>

#include "numeric/rounding.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "topics/polynomial/all_polynomials.h"
#include "topics/polynomial/curve.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::FormDriver;

const QColor kGreen(0, 130, 0);
constexpr GraphScale kScale{-15, 15, 15, -15};
constexpr test::StrokesIn kIn{kScale};
/// Two axes, three rows of points along each.
constexpr std::size_t kAxesAndTicks = 2 + 2 * (30 + 6 + 6);
constexpr const char* kBoxes[] = {"rootOne", "rootTwo", "vertexQuantity", "vertexPrice"};
constexpr const char* kOptions[] = {"twoRoots", "doubleRoot", "noRoots"};

/// The sizes in the order in which they are drawn, and the pattern.
struct Task {
    int a, b, c, patternCase;
};

constexpr Task kTwo{1, 3, 2, 6};        // 1Q²-3Q+2: roots 2 and 1, vertex (1.5; -0.25)
constexpr Task kDownward{1, 3, 4, 10};  // -1Q²+3Q+4: roots -1 and 4, vertex (1.5; 6.25)
constexpr Task kDouble{1, 2, 1, 1};     // 1Q²+2Q+1: root -1, vertex (-1; 0)
constexpr Task kNone{1, 1, 1, 1};       // 1Q²+1Q+1: vertex (-0.5; 0.75)
constexpr Task kSquare{3, 5, 4, 2};     // 3Q²: root 0, vertex (0; 0)
constexpr Task kHalf{4, 1, 1, 3};       // 4Q²+1Q: roots 0 and -0.25, vertex (-0.125; -0.0625)

/// What is typed, empty where nothing is.
struct Typed {
    std::string rootOne;
    std::string rootTwo;
    std::string q;
    std::string p;
};

test::Script scriptOf(const Task& t) {
    return {cellOf(t.a - 1, 5), cellOf(t.b - 1, 5), cellOf(t.c - 1, 5), cellOf(t.patternCase - 1, 18)};
}

class RogtForm : public test::ScriptedForm<const Task&> {
protected:
    RogtForm() : ScriptedForm(PageName::Rogt, scriptOf) {}

    /// Fills the boxes, hidden ones too, and leaves the focus alone.
    void fill(const Typed& typed) const {
        form->box("rootOne").setContent(typed.rootOne);
        form->box("rootTwo").setContent(typed.rootTwo);
        form->box("vertexQuantity").setContent(typed.q);
        form->box("vertexPrice").setContent(typed.p);
    }

    void answer(const std::string& option, const Typed& typed) const {
        form->click(option);
        fill(typed);
        form->click("ok");
    }

    /// The names of the boxes for which this holds, one after another.
    template <class Predicate>
    [[nodiscard]] std::string boxesThat(Predicate holds) const {
        std::string names;
        for (const char* name : kBoxes) {
            if (holds(form->box(name))) {
                names += (names.empty() ? "" : " ") + std::string(name);
            }
        }
        return names;
    }

    /// The others are white.
    [[nodiscard]] std::string redBoxes() const {
        return boxesThat([](const AnswerBox& box) {
            const bool isRed = box.backColour() == kRed;
            EXPECT_TRUE(isRed || box.backColour() == kWhite) << box.backColour().name().toStdString();
            return isRed;
        });
    }
    [[nodiscard]] std::string shownBoxes() const {
        return boxesThat([](const AnswerBox& box) { return !box.isHidden(); });
    }

    /// Those of these controls that are shown.
    [[nodiscard]] std::string shown(std::initializer_list<const char*> names) const {
        std::string list;
        for (const char* name : names) {
            if (form->isShown(name)) {
                list += (list.empty() ? "" : " ") + std::string(name);
            }
        }
        return list;
    }
    [[nodiscard]] std::string shownRootLabels() const {
        return shown({"rootOneCaption", "rootTwoCaption", "doubleRootCaption"});
    }
    [[nodiscard]] std::string verdicts() const { return shown({"right", "wrong"}); }
    [[nodiscard]] std::string judgeButtons() const { return shown({"ok", "giveAnswer"}); }

    /// The others have the button face.
    [[nodiscard]] std::string greenOptions() const {
        std::string names;
        for (const char* name : kOptions) {
            const QColor colour = form->option(name).backColour();
            if (colour == kGreen) {
                names += name;
            } else {
                EXPECT_EQ(colour, QApplication::palette().color(QPalette::Button)) << name;
            }
        }
        return names;
    }
    [[nodiscard]] std::string chosenOption() const {
        std::string names;
        for (const char* name : kOptions) {
            names += form->option(name).isChosen() ? name : "";
        }
        return names;
    }

    /// Where ticks of wrong roots stand.
    [[nodiscard]] std::vector<float> redTicks() const {
        std::vector<float> places;
        for (const Stroke& s : strokes()) {
            if (s.colour == kRed) {
                EXPECT_EQ(s, kIn.line(s.x1, -0.5, s.x1, 0.5, kRed));
                places.push_back(s.x1);
            }
        }
        return places;
    }

    /// Expects the curve of aQ²+bQ+c, and nothing but it, after `before` other strokes.
    void expectCurve(const Polynomial& p, std::size_t before) const {
        EXPECT_EQ(test::strokesFrom(graph(), before), test::curveIn(kIn, p.a, p.b, p.c));
    }
};

TEST_F(RogtForm, StandsReadyBeforeItsOpening) {
    const FormDriver f = FormDriver::unshown(PageName::Rogt, draws);
    EXPECT_EQ(f.page().windowTitle().toStdString(), "Tavrune - Andengradspolynomiet - Rødder og toppunkt");
    test::expectTexts(f, {{"task", "Bestem rødder og toppunktet i følgende andengradspolynomium"},
                          {"priceEquals", "P ="},
                          {"givenFunction", ""}});
    EXPECT_EQ(f.find<Frame>("rootCountChoice").caption(), "Rødder");
    EXPECT_EQ(f.option("twoRoots").caption(), "&To rødder");
    EXPECT_EQ(f.option("doubleRoot").caption(), "&Dobbelt rod");
    EXPECT_EQ(f.option("noRoots").caption(), "Ingen &rødder");
    test::expectTexts(f, {{"rootOneCaption", "Rod 1"},
                          {"rootTwoCaption", "Rod 2"},
                          {"doubleRootCaption", "Rod"},
                          {"vertexEquals", "Toppunkt: (Q;P)=("},
                          {"vertexSemicolon", " ;"},
                          {"vertexClosingBracket", ")"}});
    EXPECT_EQ(f.caption("quantityAxisName") + f.caption("priceAxisName"), "QP");
    test::expectHidden(f, {"newExercise", "ok", "giveAnswer", "right", "wrong", "rootOne", "rootTwo",
                           "rootOneCaption", "rootTwoCaption", "doubleRootCaption"});
}

TEST_F(RogtForm, PutsTheWrongVerdictInFrontOfTheRightOne) {
    const FormDriver& f = open(kTwo);
    const QObjectList& siblings = f.label("wrong").parentWidget()->children();
    EXPECT_GT(siblings.indexOf(&f.label("wrong")), siblings.indexOf(&f.label("right")));
}

TEST_F(RogtForm, NumbersItsAxesWhereTheyAre) {
    open(kTwo);
    int numbers = 0;
    for (const Label* label : graph().findChildren<Label*>()) {
        const std::string caption = label->caption();
        if (caption == "Q" || caption == "P") {
            continue;
        }
        ++numbers;
        const QPointF middle = label->place().center();
        const double pixels = graph().width() / 30.0;
        const double along = std::stod(caption);
        const bool isOnQ = std::abs(middle.x() - (along + 15) * pixels) < 1;
        const bool isOnP = std::abs(middle.y() - (15 - along) * pixels) < 1;
        EXPECT_TRUE(isOnQ != isOnP) << caption;
    }
    EXPECT_EQ(numbers, 8);
    EXPECT_EQ(graph().width(), graph().height());
}

TEST_F(RogtForm, ShowsThePolynomialAndAsksForTheNumberOfRootsFirst) {
    const FormDriver& f = open(kTwo);
    EXPECT_EQ(f.caption("givenFunction"), "1Q²-3Q+2");
    EXPECT_EQ(chosenOption() + greenOptions(), "");
    EXPECT_EQ(shownBoxes(), "vertexQuantity vertexPrice");
    EXPECT_EQ(shownRootLabels() + verdicts() + judgeButtons(), "");
    EXPECT_TRUE(f.isShown("newExercise"));
    test::expectShown(f, {"vertexEquals", "vertexSemicolon", "vertexClosingBracket", "priceEquals", "task",
                          "givenFunction", "rootCountChoice", "twoRoots", "doubleRoot", "noRoots"});
}

TEST_F(RogtForm, DrawsAxesAndSixRowsOfPointsInOrder) {
    open(kTwo);
    EXPECT_EQ(graph().scale(), kScale);
    ASSERT_EQ(strokes().size(), kAxesAndTicks);
    EXPECT_EQ(strokes()[0], kIn.line(0, 15, 0, -15));
    EXPECT_EQ(strokes()[1], kIn.line(-15, 0, 15, 0));
    struct Row {
        bool alongQ;
        double offAxis;
        int step;
    };
    std::size_t at = 2;
    for (const Row& row : {Row{true, 0.2, 1}, Row{false, 0.1, 1}, Row{true, 0.3, 5}, Row{false, 0.2, 5},
                           Row{true, 0.4, 5}, Row{false, 0.3, 5}}) {
        for (int along = -15; along < 15; along += row.step) {
            ASSERT_EQ(strokes()[at++],
                      row.alongQ ? kIn.point(along, row.offAxis) : kIn.point(row.offAxis, along));
        }
    }
    EXPECT_EQ(at, strokes().size());
}

TEST_F(RogtForm, SetsNoFocusWithANewExercise) {
    const FormDriver& f = open(kTwo);
    f.box("vertexQuantity").setFocus();
    script(kNone);
    f.button("newExercise").click();
    EXPECT_EQ(f.caption("givenFunction"), "1Q²+1Q+1");
    EXPECT_EQ(f.focus(), "vertexQuantity");
}

TEST_F(RogtForm, AsksForTwoRootsAndTheVertex) {
    const FormDriver& f = open(kTwo);
    f.click("doubleRoot", "twoRoots");
    EXPECT_EQ(shownBoxes(), "rootOne rootTwo vertexQuantity vertexPrice");
    EXPECT_EQ(shownRootLabels(), "rootOneCaption rootTwoCaption");
    EXPECT_EQ(judgeButtons(), "ok");
    EXPECT_TRUE(f.isShown("newExercise"));
    EXPECT_EQ(f.focus(), "rootOne");
}

TEST_F(RogtForm, AsksForADoubleRootAndTheVertex) {
    const FormDriver& f = open(kTwo);
    f.click("twoRoots", "doubleRoot");
    EXPECT_EQ(shownBoxes(), "rootTwo vertexQuantity vertexPrice");
    EXPECT_EQ(shownRootLabels(), "doubleRootCaption");
    EXPECT_EQ(judgeButtons(), "ok");
    EXPECT_TRUE(f.isShown("newExercise"));
    EXPECT_EQ(f.focus(), "rootTwo");
}

TEST_F(RogtForm, AsksForTheVertexAloneWithoutRoots) {
    const FormDriver& f = open(kTwo);
    f.click("twoRoots", "noRoots");
    EXPECT_EQ(shownBoxes(), "vertexQuantity vertexPrice");
    EXPECT_EQ(shownRootLabels(), "");
    EXPECT_EQ(judgeButtons(), "ok");
    EXPECT_TRUE(f.isShown("newExercise"));
    EXPECT_EQ(f.focus(), "vertexPrice");
}

TEST_F(RogtForm, KeepsTextsAndColoursWhenAnOptionIsPicked) {
    const FormDriver& f = open(kTwo);
    answer("twoRoots", {"7", "8", "9", "10"});
    for (const char* option : {"doubleRoot", "noRoots", "twoRoots"}) {
        f.click(option);
        EXPECT_EQ(redBoxes(), "rootOne rootTwo vertexQuantity vertexPrice") << option;
        EXPECT_EQ(f.box("rootOne").content() + f.box("rootTwo").content(), "78");
        EXPECT_EQ(f.box("vertexQuantity").content() + f.box("vertexPrice").content(), "910");
    }
}

TEST_F(RogtForm, TakesVerdictAndOfferAwayWhenAnOptionIsPicked) {
    for (const char* option : kOptions) {
        const FormDriver& f = open(kTwo);
        answer("twoRoots", {"2", "1", "9", "10"});
        EXPECT_EQ(verdicts(), "right wrong");
        EXPECT_EQ(judgeButtons(), "ok giveAnswer");
        f.click(option);
        EXPECT_EQ(verdicts(), "") << option;
        EXPECT_EQ(judgeButtons(), "ok") << option;
    }
}

TEST_F(RogtForm, LetsAnOptionBePickedAfterTheEnd) {
    const FormDriver& f = open(kDouble);
    answer("doubleRoot", {"", "-1", "-1", "0"});
    EXPECT_EQ(judgeButtons(), "");
    f.click("twoRoots");
    EXPECT_EQ(verdicts(), "");
    EXPECT_EQ(judgeButtons(), "ok");
    EXPECT_EQ(greenOptions(), "doubleRoot");
}

TEST_F(RogtForm, WalksByEnterFromTheRightHandVertexBoxToTheLeftOne) {
    const FormDriver& f = open(kTwo);
    f.click("twoRoots");
    for (const char* box : {"rootTwo", "vertexPrice", "vertexQuantity", "ok"}) {
        f.press(f.focus(), Qt::Key_Return);
        EXPECT_EQ(f.focus(), box);
    }
}

TEST_F(RogtForm, StaysInTheLastBoxWhileThereIsNothingToJudge) {
    const FormDriver& f = open(kTwo);
    f.box("vertexQuantity").setFocus();
    f.press("vertexQuantity", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "vertexQuantity");
}

TEST_F(RogtForm, TakesTwoRootsInEitherOrderAndColoursNoOption) {
    for (const Typed& typed : {Typed{"2", "1", "1.5", "-0.25"}, Typed{"1", "2", "1.5", "-0.25"}}) {
        const FormDriver& f = open(kTwo);
        answer("twoRoots", typed);
        EXPECT_EQ(verdicts(), "right");
        EXPECT_EQ(judgeButtons(), "");
        EXPECT_EQ(greenOptions() + redBoxes(), "");
        EXPECT_EQ(f.focus(), "newExercise");
        expectCurve({1, -3, 2}, kAxesAndTicks);
    }
}

TEST_F(RogtForm, TakesADoubleRootAndColoursItsOption) {
    const FormDriver& f = open(kDouble);
    answer("doubleRoot", {"77", "-1", "-1", "0"});
    EXPECT_EQ(verdicts(), "right");
    EXPECT_EQ(judgeButtons(), "");
    EXPECT_EQ(greenOptions(), "doubleRoot");
    EXPECT_EQ(redBoxes(), "");
    EXPECT_EQ(f.focus(), "newExercise");
    expectCurve({1, 2, 1}, kAxesAndTicks);
}

TEST_F(RogtForm, TakesNoRootsAndColoursItsOption) {
    const FormDriver& f = open(kNone);
    answer("noRoots", {"77", "78", "-0.5", "0.75"});
    EXPECT_EQ(verdicts(), "right");
    EXPECT_EQ(judgeButtons(), "");
    EXPECT_EQ(greenOptions(), "noRoots");
    EXPECT_EQ(redBoxes(), "");
    EXPECT_EQ(f.focus(), "newExercise");
    expectCurve({1, 1, 1}, kAxesAndTicks);
}

TEST_F(RogtForm, TakesEmptyBoxesForTheRootAndTheVertexOfASquare) {
    const FormDriver& f = open(kSquare);
    EXPECT_EQ(f.caption("givenFunction"), "3Q²");
    answer("doubleRoot", {});
    EXPECT_EQ(verdicts(), "right");
    EXPECT_EQ(greenOptions(), "doubleRoot");
}

TEST_F(RogtForm, DrawsADownwardParabola) {
    open(kDownward);
    answer("twoRoots", {"4", "-1", "1.5", "6.25"});
    EXPECT_EQ(verdicts(), "right");
    expectCurve({-1, 3, 4}, kAxesAndTicks);
}

TEST_F(RogtForm, JudgesEverythingAgainAfterRightRootsWithAWrongVertex) {
    const FormDriver& f = open(kTwo);
    answer("twoRoots", {"2", "1", "1.5", "7"});
    EXPECT_EQ(verdicts(), "right wrong");
    EXPECT_EQ(judgeButtons(), "ok giveAnswer");
    EXPECT_EQ(redBoxes(), "vertexPrice");
    EXPECT_EQ(f.focus(), "vertexPrice");
    EXPECT_EQ(f.box("rootOne").content() + f.box("rootTwo").content(), "21");
    EXPECT_EQ(strokes().size(), kAxesAndTicks);

    fill({"2", "8", "1.5", "-0.25"});
    f.click("ok");
    EXPECT_EQ(verdicts(), "right wrong");
    EXPECT_EQ(redBoxes(), "rootTwo");

    fill({"2", "1", "1.5", "-0.25"});
    f.click("ok");
    EXPECT_EQ(verdicts(), "right");
    EXPECT_EQ(judgeButtons() + redBoxes(), "");
    EXPECT_EQ(f.focus(), "newExercise");
}

TEST_F(RogtForm, ShowsWrongRootsAsWrongThoughTheVertexIsRight) {
    const FormDriver& f = open(kTwo);
    answer("twoRoots", {"7", "8", "1.5", "-0.25"});
    EXPECT_EQ(verdicts(), "right wrong");
    EXPECT_EQ(judgeButtons(), "ok giveAnswer");
    EXPECT_EQ(redBoxes(), "rootOne rootTwo");
    EXPECT_EQ(f.focus(), "rootOne");
    EXPECT_EQ(strokes().size(), kAxesAndTicks + 2);
    EXPECT_EQ(redTicks(), (std::vector<float>{7, 8}));
}

TEST_F(RogtForm, ShowsOneVerdictWhereRootsAndVertexAreWrong) {
    open(kTwo);
    answer("twoRoots", {"7", "8", "9", "10"});
    EXPECT_EQ(verdicts(), "wrong");
    EXPECT_EQ(judgeButtons(), "ok giveAnswer");
}

struct VertexRow {
    const char* name;
    const char* q;
    const char* p;
    const char* red;
    const char* focus;
};

class RogtVertexRows : public RogtForm, public testing::WithParamInterface<VertexRow> {};

TEST_P(RogtVertexRows, MarkTheWrongCoordinates) {
    const FormDriver& f = open(kNone);
    answer("noRoots", {"", "", GetParam().q, GetParam().p});
    EXPECT_EQ(redBoxes(), GetParam().red);
    EXPECT_EQ(f.focus(), GetParam().focus);
    EXPECT_EQ(verdicts(), "right wrong");
    // The number of roots is right and says so.
    EXPECT_EQ(greenOptions(), "noRoots");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RogtVertexRows,
    testing::Values(VertexRow{"OnlyQ", "-0.5", "3", "vertexPrice", "vertexPrice"},
                    VertexRow{"OnlyP", "3", "0.75", "vertexQuantity", "vertexQuantity"},
                    VertexRow{"Neither", "3", "3", "vertexQuantity vertexPrice", "vertexPrice"},
                    VertexRow{"OpenBelow", "-0.505", "0.75", "vertexQuantity", "vertexQuantity"}),
    [](const auto& row) { return row.param.name; });

struct RootRow {
    const char* name;
    const char* option;
    Typed typed;
    const char* red;
    const char* focus;
    std::vector<float> ticks;
};

class RogtRootRows : public RogtForm, public testing::WithParamInterface<RootRow> {};

// The vertex is typed wrong in Q where the focus has to be taken over from it.
TEST_P(RogtRootRows, MarkTheWrongRootsOfTwo) {
    const FormDriver& f = open(kTwo);
    answer(GetParam().option, GetParam().typed);
    EXPECT_EQ(redBoxes(), GetParam().red);
    EXPECT_EQ(f.focus(), GetParam().focus);
    EXPECT_EQ(redTicks(), GetParam().ticks);
    EXPECT_EQ(judgeButtons(), "ok giveAnswer");
    EXPECT_EQ(greenOptions(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RogtRootRows,
    testing::Values(
        RootRow{"FirstHoldsRoot1", "twoRoots", {"2", "7", "1.5", "-0.25"}, "rootTwo", "rootTwo", {2, 7}},
        RootRow{"SecondHoldsRoot1", "twoRoots", {"7", "2", "1.5", "-0.25"}, "rootOne", "rootOne", {7, 2}},
        RootRow{"FirstHoldsRoot2", "twoRoots", {"1", "7", "1.5", "-0.25"}, "rootTwo", "rootTwo", {1, 7}},
        RootRow{"SecondHoldsRoot2", "twoRoots", {"7", "1", "1.5", "-0.25"}, "rootOne", "rootOne", {7, 1}},
        RootRow{"OneRootTwice", "twoRoots", {"2", "2", "1.5", "-0.25"}, "rootTwo", "rootTwo", {2, 2}},
        RootRow{"Neither", "twoRoots", {"7", "8", "1.5", "-0.25"}, "rootOne rootTwo", "rootOne", {7, 8}},
        RootRow{"TakesTheFocusFromTheVertex",
                "twoRoots",
                {"2", "7", "9", "9"},
                "rootTwo vertexQuantity vertexPrice",
                "rootTwo",
                {2, 7}},
        RootRow{"DoubleChosen", "doubleRoot", {"7", "2", "1.5", "-0.25"}, "rootOne", "ok", {2}},
        RootRow{"DoubleChosenAndHiddenRootRight",
                "doubleRoot",
                {"2", "7", "1.5", "-0.25"},
                "rootTwo",
                "rootTwo",
                {7}},
        RootRow{"DoubleChosenAndVertexWrong",
                "doubleRoot",
                {"7", "2", "9", "-0.25"},
                "rootOne vertexQuantity",
                "vertexQuantity",
                {2}},
        RootRow{"NoneChosen", "noRoots", {"2", "1", "1.5", "-0.25"}, "rootTwo", "ok", {}},
        RootRow{"NoneChosenAndVertexWrong",
                "noRoots",
                {"", "", "9", "9"},
                "rootOne rootTwo vertexQuantity vertexPrice",
                "vertexPrice",
                {}}),
    [](const auto& row) { return row.param.name; });

TEST_F(RogtForm, MarksBothRootBoxesWhereThereAreFewerThanTwoRoots) {
    // The vertex is that of the double root.
    for (const auto& [task, red] : {std::pair{kDouble, "rootOne rootTwo"},
                                    std::pair{kNone, "rootOne rootTwo vertexQuantity vertexPrice"}}) {
        const FormDriver& f = open(task);
        answer("twoRoots", {"-1", "-1", "-1", "0"});
        EXPECT_EQ(redBoxes(), red);
        EXPECT_EQ(f.focus(), "rootOne");
        answer("doubleRoot", {"-1", "5", "-1", "0"});
        EXPECT_EQ(redBoxes(), red);
        EXPECT_EQ(f.focus(), "rootTwo");
    }
}

TEST_F(RogtForm, TakesNoOptionThatIsNotTheRightOneForADoubleRoot) {
    const FormDriver& f = open(kDouble);
    answer("noRoots", {"-1", "-1", "-1", "0"});
    EXPECT_EQ(verdicts(), "right wrong");
    EXPECT_EQ(redBoxes(), "rootOne rootTwo");
    // Neither of them is shown, so that "&OK" keeps the focus.
    EXPECT_EQ(f.focus(), "ok");
    EXPECT_TRUE(redTicks().empty());
}

TEST_F(RogtForm, WhitensAllBoxesBeforeItMarksThem) {
    const FormDriver& f = open(kTwo);
    answer("twoRoots", {"7", "8", "9", "10"});
    EXPECT_EQ(redBoxes(), "rootOne rootTwo vertexQuantity vertexPrice");
    fill({"2", "8", "9", "-0.25"});
    f.click("ok");
    EXPECT_EQ(redBoxes(), "rootTwo vertexQuantity");
    EXPECT_EQ(f.focus(), "rootTwo");
}

TEST_F(RogtForm, KeepsTheTicksOfSeveralTriesUntilTheNextExercise) {
    open(kTwo);
    answer("twoRoots", {"7", "8", "9", "10"});
    answer("doubleRoot", {"7", "-3.5", "9", "10"});
    answer("twoRoots", {"2", "1", "9", "10"});
    EXPECT_EQ(redTicks(), (std::vector<float>{7, 8, -3.5}));
    answer("twoRoots", {"2", "1", "1.5", "-0.25"});
    expectCurve({1, -3, 2}, kAxesAndTicks + 3);
    next(kNone);
    EXPECT_EQ(strokes().size(), kAxesAndTicks);
}

TEST_F(RogtForm, LeavesTheGreenOfARightOptionWhenTheNextTryIsWrong) {
    const FormDriver& f = open(kNone);
    answer("noRoots", {"", "", "9", "9"});
    answer("twoRoots", {"", "", "9", "9"});
    EXPECT_EQ(greenOptions(), "noRoots");
    f.click("giveAnswer");
    EXPECT_EQ(greenOptions(), "noRoots");
    next(kTwo);
    EXPECT_EQ(greenOptions() + chosenOption(), "");
}

TEST_F(RogtForm, GivesTwoRootsAndTheVertexWhateverIsChosen) {
    const test::DecimalMark comma(",");
    for (const char* option : kOptions) {
        const FormDriver& f = open(kTwo);
        answer(option, {"7", "8", "9", "10"});
        const std::size_t before = strokes().size();
        f.click("giveAnswer");
        EXPECT_EQ(shownBoxes(), "rootOne rootTwo vertexQuantity vertexPrice");
        EXPECT_EQ(shownRootLabels(), "rootOneCaption rootTwoCaption");
        test::expectContents(
            f, {{"rootOne", "2"}, {"rootTwo", "1"}, {"vertexQuantity", "1,5"}, {"vertexPrice", "-0,25"}});
        EXPECT_EQ(verdicts() + judgeButtons() + redBoxes() + greenOptions(), "");
        EXPECT_EQ(chosenOption(), option);
        EXPECT_EQ(f.focus(), "newExercise");
        expectCurve({1, -3, 2}, before);
    }
}

TEST_F(RogtForm, GivesADoubleRootAndTheVertexWhateverIsChosen) {
    for (const char* option : kOptions) {
        const FormDriver& f = open(kDouble);
        answer(option, {"7", "8", "9", "10"});
        const std::size_t before = strokes().size();
        f.click("giveAnswer");
        EXPECT_EQ(shownBoxes(), "rootTwo vertexQuantity vertexPrice");
        EXPECT_EQ(shownRootLabels(), "doubleRootCaption");
        // The hidden box keeps what was typed.
        test::expectContents(
            f, {{"rootOne", "7"}, {"rootTwo", "-1"}, {"vertexQuantity", "-1"}, {"vertexPrice", "0"}});
        EXPECT_EQ(verdicts() + judgeButtons() + redBoxes(), "");
        EXPECT_EQ(greenOptions(), "doubleRoot");
        EXPECT_EQ(chosenOption(), option);
        EXPECT_EQ(f.focus(), "newExercise");
        expectCurve({1, 2, 1}, before);
    }
}

TEST_F(RogtForm, GivesTheVertexAloneWhereThereAreNoRoots) {
    const test::DecimalMark comma(",");
    for (const char* option : kOptions) {
        const FormDriver& f = open(kNone);
        answer(option, {"7", "8", "9", "10"});
        const std::size_t before = strokes().size();
        f.click("giveAnswer");
        EXPECT_EQ(shownBoxes(), "vertexQuantity vertexPrice");
        EXPECT_EQ(shownRootLabels(), "");
        EXPECT_EQ(f.box("rootOne").content() + f.box("rootTwo").content(), "78");
        test::expectContents(f, {{"vertexQuantity", "-0,5"}, {"vertexPrice", "0,75"}});
        EXPECT_EQ(verdicts() + judgeButtons() + redBoxes(), "");
        EXPECT_EQ(greenOptions(), "noRoots");
        EXPECT_EQ(f.focus(), "newExercise");
        expectCurve({1, 1, 1}, before);
    }
}

TEST_F(RogtForm, GivesANegativeHalfThatItWouldJudgeWrong) {
    const test::DecimalMark point(".");
    const FormDriver& f = open(kHalf);
    answer("twoRoots", {"0", "-0.25", "9", "9"});
    f.click("giveAnswer");
    test::expectContents(f, {{"vertexQuantity", "-0.13"}, {"vertexPrice", "-0.06"}});
    f.click("twoRoots", "ok");
    EXPECT_EQ(redBoxes(), "vertexQuantity");
}

TEST_F(RogtForm, EmptiesAndWhitensEverythingForTheNextExercise) {
    const FormDriver& f = open(kNone);
    answer("twoRoots", {"7", "8", "9", "10"});
    next(kTwo);
    EXPECT_EQ(boxesThat([](const AnswerBox& box) { return !box.content().empty(); }), "");
    EXPECT_EQ(redBoxes() + verdicts() + judgeButtons() + shownRootLabels() + chosenOption(), "");
    EXPECT_EQ(shownBoxes(), "vertexQuantity vertexPrice");
    EXPECT_EQ(f.caption("givenFunction"), "1Q²-3Q+2");
}

TEST_F(RogtForm, TellsInAMessageWhereHelpIsFoundAndChangesNothing) {
    const FormDriver& f = open(kTwo);
    answer("twoRoots", {"7", "8", "9", "10"});
    const std::size_t before = strokes().size();
    f.click("help");
    EXPECT_EQ(f.answerMessage(), "Ønsker du hjælp, bør du søge den i 'Rødder' eller 'Toppunkt'");
    EXPECT_EQ(f.answerMessage(), "");
    EXPECT_EQ(verdicts(), "wrong");
    EXPECT_EQ(judgeButtons(), "ok giveAnswer");
    EXPECT_EQ(redBoxes(), "rootOne rootTwo vertexQuantity vertexPrice");
    EXPECT_EQ(strokes().size(), before);
}

TEST_F(RogtForm, ObeysTheAccessKeysOfItsOptions) {
    const FormDriver& f = open(kTwo);
    const std::pair<Qt::Key, const char*> keys[] = {
        {Qt::Key_T, "twoRoots"}, {Qt::Key_D, "doubleRoot"}, {Qt::Key_R, "noRoots"}};
    for (const auto& [key, option] : keys) {
        QTest::keyClick(f.page().focusWidget(), key, Qt::AltModifier);
        test::settle();
        EXPECT_EQ(chosenOption(), option);
        EXPECT_TRUE(f.isShown("ok"));
    }
}

TEST_F(RogtForm, TakesAnyTextForAWrongAnswer) {
    const FormDriver& f = open(kTwo);
    for (const std::string& text :
         {std::string("1e308"), std::string("-1e400"), std::string("abc"), std::string(1U << 14U, '9')}) {
        answer("twoRoots", {text, text, text, text});
        EXPECT_EQ(redBoxes(), "rootOne rootTwo vertexQuantity vertexPrice");
        EXPECT_EQ(verdicts(), "wrong");
        static_cast<void>(f.page().grab());
    }
    f.click("giveAnswer");
    EXPECT_EQ(f.box("rootOne").content(), "2");
}

TEST_F(RogtForm, LooksWellWithEveryNumberOfRoots) {
    for (const Task& task : {kTwo, kDouble, kNone, Task{3, 5, 4, 18}}) {
        const FormDriver& f = open(task);
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
        for (const char* option : kOptions) {
            answer(option, {"7", "8", "9", "10"});
            EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
        }
        f.click("giveAnswer");
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    }
}

/// Every polynomial, one after another on the same form.
class RogtSpaceShown : public RogtForm {
protected:
    RogtSpaceShown() { form = std::make_unique<FormDriver>(PageName::Rogt, all_); }

    void press(const char* name) const { form->find<QAbstractButton>(name).click(); }

    void tryAnswer(const Typed& typed) const {
        fill(typed);
        press("ok");
    }

private:
    test::AllPolynomials all_;
};

/// The polynomial as the student reads it: "-1Q²+3Q-4", where the terms after the first may be missing.
Polynomial readPolynomial(const std::string& text) {
    static const std::string square = "Q²";
    const std::size_t endOfSquare = text.find(square) + square.size();
    Polynomial p{.a = std::stof(text)};
    std::string rest = text.substr(endOfSquare);
    if (const std::size_t endOfB = rest.find('Q'); endOfB != std::string::npos) {
        p.b = std::stof(rest);
        rest = rest.substr(endOfB + 1);
    }
    if (!rest.empty()) {
        p.c = std::stof(rest);
    }
    return p;
}

std::string exactly(double x) { return QString::number(x, 'f', 9).toStdString(); }
std::string rounded(double x) { return NumberText(RoundSigned2(x)); }

TEST_F(RogtSpaceShown, IsTriedGivenAndSolvedThroughout) {
    const char* const boxesOfCount[] = {"rootOne rootTwo vertexQuantity vertexPrice",
                                        "rootTwo vertexQuantity vertexPrice", "vertexQuantity vertexPrice"};
    // Two roots get no green.
    const char* const greenOfCount[] = {"", "doubleRoot", "noRoots"};
    for (int exercise = 0; exercise < test::kPolynomials; ++exercise) {
        const std::string task = form->caption("givenFunction");
        SCOPED_TRACE(task);
        const auto& [a, b, c] = readPolynomial(task);
        const double d = b * b - 4 * a * c;
        const std::size_t count = d > 0 ? 0 : d == 0 ? 1 : 2;
        const double rootOne = d < 0 ? 0 : (-b + std::sqrt(d)) / (2 * a);
        const double rootTwo = d < 0 ? 0 : (-b - std::sqrt(d)) / (2 * a);
        const float q = -b / (2 * a);
        const double p = -d / (4 * a);
        const Typed right{exactly(rootOne), exactly(rootTwo), exactly(q), exactly(p)};
        Typed wrong = right;
        wrong.q = exactly(q + 0.01);

        press(kOptions[count]);
        tryAnswer(wrong);
        ASSERT_EQ(verdicts(), "right wrong");
        ASSERT_EQ(judgeButtons(), "ok giveAnswer");
        ASSERT_EQ(redBoxes(), "vertexQuantity");

        press("giveAnswer");
        ASSERT_EQ(verdicts() + judgeButtons() + redBoxes(), "");
        ASSERT_EQ(shownBoxes(), boxesOfCount[count]);
        ASSERT_EQ(greenOptions(), greenOfCount[count]);
        ASSERT_EQ(form->box("vertexQuantity").content(), rounded(q));
        ASSERT_EQ(form->box("vertexPrice").content(), rounded(p));
        if (count < 2) {
            ASSERT_EQ(form->box("rootTwo").content(), rounded(count == 0 ? rootTwo : rootOne));
        }
        if (count == 0) {
            ASSERT_EQ(form->box("rootOne").content(), rounded(rootOne));
        }

        press(kOptions[count]);
        tryAnswer(right);
        ASSERT_EQ(verdicts(), "right");
        ASSERT_EQ(judgeButtons() + redBoxes(), "");
        ASSERT_EQ(greenOptions(), greenOfCount[count]);
        press("newExercise");
    }
    EXPECT_EQ(form->caption("givenFunction"), "1Q²+1Q+1");
}

}  // namespace
}  // namespace tavrune
