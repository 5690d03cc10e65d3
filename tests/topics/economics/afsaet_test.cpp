#include "topics/economics/afsaet.h"

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/economics/afsaet_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FixedText;
using test::FormDriver;
using test::Script;
using test::afsaet::sample;

using Names = std::vector<std::string>;

constexpr test::StrokesIn kGraph{{0, 0, 10, 10}};
const QColor kLightGreen(0, 190, 0);

constexpr std::array kBoxes{"slope", "intercept", "rangeStart", "rangeEnd"};
constexpr std::array kPanels{
    "twoPointsHelpPanel",         "epAtPointPriceHelpPanel",    "epAtOtherPriceHelpPanel",
    "epAtPointQuantityHelpPanel", "epAtOtherQuantityHelpPanel", "pointAndSlopeHelpPanel",
    "twoElasticitiesHelpPanel",   "epAtPriceAndSlopeHelpPanel", "epAtQuantityAndSlopeHelpPanel"};

/// The line P = a * Q + b between two quantities, P upwards.
Stroke lineOf(double a, double b, double Qlo, double Qhi, const QColor& colour) {
    return kGraph.line(Qlo, 10 - (a * Qlo + b), Qhi, 10 - (a * Qhi + b), colour);
}

Script scriptOf(std::string_view name) { return sample(name).script(); }

class AfsaetForm : public test::ScriptedForm<std::string_view> {
protected:
    AfsaetForm() : ScriptedForm(PageName::Afsaet, scriptOf) {}

    void answer(const std::array<std::string, 4>& typed) const {
        for (std::size_t i = 0; i < typed.size(); ++i) {
            form->type(kBoxes[i], typed[i]);
        }
        form->click("ok");
    }

    void answerRight() const {
        const AfsaetAnswer right = answerOf(dynamic_cast<const Afsaet&>(form->page()).state());
        const DecimalMark point(".");
        answer({NumberText(right.a), NumberText(right.b), NumberText(right.Qlo), NumberText(right.Qhi)});
    }

    [[nodiscard]] std::vector<QColor> colours() const {
        std::vector<QColor> found;
        for (const char* box : kBoxes) {
            found.push_back(form->box(box).backColour());
        }
        return found;
    }

    [[nodiscard]] Names shownPanels() const {
        Names shown;
        for (const char* name : kPanels) {
            if (form->isShown(name)) {
                shown.emplace_back(name);
            }
        }
        return shown;
    }
};

const std::vector<QColor> kAllWhite(4, kWhite);
const std::vector<QColor> kAllRed(4, kRed);

TEST_F(AfsaetForm, IsBlankUntilItsOpening) {
    const FormDriver unshown = FormDriver::unshown(PageName::Afsaet, draws);
    EXPECT_EQ(unshown.page().windowTitle().toStdString(), "Tavrune - Afsætningsfunktioner");
    test::expectBlank(unshown, {"task", "firstFact", "secondFact", "givenRange"});
    test::expectHidden(unshown, {"giveAnswer", "verdict"});
    test::expectHidden(unshown, kPanels);
    EXPECT_TRUE(unshown.find<GraphBox>("graph").strokes().empty());
}

TEST_F(AfsaetForm, AsksInTheFrameOfTheAnswer) {
    const FormDriver& f = open("ElasticityAtOtherPriceInPrices");
    EXPECT_EQ(f.caption("task"),
              "Du kender et punkt på en lineær afsætningsfunktion og priselasticiteten til en bestemt pris "
              "på samme funktion. Bestem afsætningsfunktionens forskrift.");
    test::expectTexts(f, {{"firstFact", "(P1; Q1) = (8;1) "},
                          {"secondFact", "Ep. = -3   P2 = 7"},
                          {"givenRange", "Funktionen gælder i intervallet 4<P<9"}});
    constexpr FixedText kFrame[]{{"priceEquals", "P="},
                                 {"timesQuantityPlus", "Q +"},
                                 {"validFor", "for"},
                                 {"quantityBetween", "< Q <"}};
    test::expectTexts(f, kFrame);
    EXPECT_EQ(f.focus(), "slope");
    EXPECT_EQ(contentsOf(kBoxes), Names(4));
    EXPECT_EQ(colours(), kAllWhite);
    EXPECT_EQ(shownPanels(), Names{});
}

TEST_F(AfsaetForm, ReplacesTheWholeTaskWithTheNextExercise) {
    const FormDriver& f = open("ElasticityAtOtherPriceInPrices");
    answer({"1", "2", "3", "4"});
    next("PointAndSlopeInQuantities");
    test::expectTexts(f, {{"firstFact", "(P; Q) = (4;2) "},
                          {"secondFact", "Hældningskoefficienten(a) = -3"},
                          {"givenRange", "I intervallet 1<Q<3 er funktionen retlinet."}});
    EXPECT_EQ(contentsOf(kBoxes), Names(4));
    EXPECT_EQ(colours(), kAllWhite);
    EXPECT_EQ(strokes(), std::vector<Stroke>{});
    test::expectHidden(f, {"verdict", "giveAnswer"});
    EXPECT_EQ(f.focus(), "slope");
}

TEST_F(AfsaetForm, HasAGraphOfTenByTenUnitsThatIsNeverRescaled) {
    const FormDriver& f = open("TwoPointsInPrices");
    auto& graph = f.find<GraphBox>("graph");
    EXPECT_EQ(graph.scale(), kGraph.scale);
    EXPECT_EQ(graph.Control::place().size(), QSizeF(239, 239)) << "3585 twips";
    EXPECT_EQ(graph.strokes(), std::vector<Stroke>{});
    graph.Scale(0, 1, 1, 0);
    next("TwoPointsInPrices");
    EXPECT_EQ(graph.scale(), (GraphScale{0, 1, 1, 0}));
}

TEST_F(AfsaetForm, NumbersTheGridFromZeroToTen) {
    const FormDriver& f = open("TwoPointsInPrices");
    const QRectF graph = f.find<GraphBox>("graph").Control::place();
    int price = 0;
    for (const char* mark :
         {"priceMark0", "priceMark1", "priceMark2", "priceMark3", "priceMark4", "priceMark5", "priceMark6",
          "priceMark7", "priceMark8", "priceMark9", "priceMark10"}) {
        const Label& label = f.label(mark);
        EXPECT_EQ(label.caption(), std::to_string(price));
        EXPECT_NEAR(label.place().center().y(), graph.bottom() - price * graph.height() / 10, 1.5) << price;
        ++price;
    }
    test::expectTexts(f, {{"priceAxisName", "P"}, {"quantityAxisName", "Q"}});

    // All quantities stand in one caption, each below its tick.
    const Label& quantities = f.label("quantityMarks");
    const QString caption = quantities.text();
    const QFontMetricsF metrics(quantities.font());
    int from = 0;
    for (int quantity = 0; quantity <= 10; ++quantity) {
        const QString number = QString::number(quantity);
        const auto at = caption.indexOf(number, from);
        ASSERT_GE(at, 0) << quantity;
        from = static_cast<int>(at + number.size());
        const double middle =
            (metrics.horizontalAdvance(caption.left(at)) + metrics.horizontalAdvance(caption.left(from))) / 2;
        EXPECT_NEAR(quantities.place().left() + middle, graph.left() + quantity * graph.width() / 10, 3)
            << quantity;
    }
    EXPECT_EQ(from, caption.size());
}

TEST_F(AfsaetForm, IsSolvedByKeysAlone) {
    const FormDriver& f = open("ElasticityAtOtherPriceInPrices");
    const std::array typed{"-1,33", "9,33", ",25", "4"};
    for (std::size_t i = 0; i < typed.size(); ++i) {
        EXPECT_EQ(f.focus(), kBoxes[i]);
        f.type(kBoxes[i], typed[i]);
        f.press(kBoxes[i], Qt::Key_Return);
    }
    EXPECT_EQ(contentsOf(kBoxes), (Names{"-1.33", "9.33", ".25", "4"}));
    EXPECT_EQ(f.focus(), "ok");
    f.press("ok", Qt::Key_Return);
    test::expectSolved(f);
    EXPECT_EQ(strokes(), std::vector{lineOf(-1.33, 9.33, 0.25, 4, kLightGreen)});
    draws.append(sample("TwoPointsInPrices").script());
    f.press("newExercise", Qt::Key_Return);
    EXPECT_EQ(f.caption("firstFact"), "(P1; Q1) = (8;1)");
    EXPECT_EQ(strokes(), std::vector<Stroke>{});
}

TEST_F(AfsaetForm, MarksEachWrongBoxAlone) {
    const FormDriver& f = open("TwoPointsInQuantities");
    const std::array<std::string, 4> right{"-1", "9", "1", "7"};
    for (std::size_t i = 0; i < right.size(); ++i) {
        std::array<std::string, 4> typed = right;
        typed[i] += ".5";
        answer(typed);
        std::vector<QColor> expected = kAllWhite;
        expected[i] = kRed;
        EXPECT_EQ(colours(), expected) << i;
        test::expectWrong(f, "slope");
    }
}

TEST_F(AfsaetForm, PlotsEveryLineOfTheStudentUntilTheNextExercise) {
    const FormDriver& f = open("TwoPointsInQuantities");
    answer({"-2", "8.5", "1", "4"});
    EXPECT_EQ(colours(), (std::vector<QColor>{kRed, kRed, kWhite, kRed}));
    answer({"", "abc", "2x", "1e1"});
    answer({"-1", "9", "1", "7"});
    EXPECT_EQ(colours(), kAllWhite);
    EXPECT_EQ(strokes(), (std::vector{lineOf(-2, 8.5, 1, 4, kRed), lineOf(0, 0, 2, 10, kRed),
                                      lineOf(-1, 9, 1, 7, kLightGreen)}));
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
    next("TwoPointsInQuantities");
    EXPECT_EQ(strokes(), std::vector<Stroke>{});
}

TEST_F(AfsaetForm, PutsAPriceAtTenAtTheTopOfTheGraph) {
    open("PointAndSlopeInQuantities");
    answer({"-1", "10", "0", "10"});
    EXPECT_EQ(strokes(), std::vector{kGraph.line(0, 0, 10, 10, kRed)});
}

TEST_F(AfsaetForm, TakesMinusTwoThirdsWithTwoDecimalsOnly) {
    const FormDriver& f = open("TwoElasticitiesOfALongPmax");
    answer({"-0.666", "9.33", "0", "8"});
    EXPECT_EQ(f.caption("verdict"), "FORKERT");
    EXPECT_EQ(colours(), (std::vector<QColor>{kRed, kWhite, kWhite, kWhite}));
    answer({"-0,67", "9,33", "", "8"});
    EXPECT_EQ(f.box("slope").content(), "-0.67");
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
}

TEST_F(AfsaetForm, WantsTheQuantitiesOfAnIntervalInPricesWithTwoDecimals) {
    const FormDriver& f = open("TwoPointsInPrices");
    answer({"-1.5", "9.5", "1", "9"});
    EXPECT_EQ(colours(), (std::vector<QColor>{kWhite, kWhite, kRed, kRed}));
    answer({"-1.5", "9.5", "0.333", "5.667"});
    EXPECT_EQ(colours(), (std::vector<QColor>{kWhite, kWhite, kRed, kRed}));
    answer({"-1.50", "+9.5", "0,33", "5,67"});
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
}

TEST_F(AfsaetForm, GivesTheStoredNumbersAndTheirLine) {
    const DecimalMark comma(",");
    const FormDriver& f = open("ElasticityAtOtherPriceInPrices");
    answer({"1", "1", "1", "2"});
    EXPECT_EQ(colours(), kAllRed);
    f.click("giveAnswer");
    EXPECT_EQ(contentsOf(kBoxes), (Names{"-1,33", "9,33", "0,25", "4"}));
    EXPECT_EQ(strokes(), (std::vector{lineOf(1, 1, 1, 2, kRed), lineOf(-1.33, 9.33, 0.25, 4, kLightGreen)}));
    test::expectGiven(f);
}

TEST_F(AfsaetForm, EnterInTheLastBoxDoesNothingOnceSolved) {
    const FormDriver& f = open("TwoPointsInPrices");
    answerRight();
    f.box("rangeEnd").setFocus();
    f.press("rangeEnd", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "rangeEnd");
    f.press("rangeStart", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "rangeEnd");
}

TEST_F(AfsaetForm, TellsAnEmptyIntervalAndTakesIt) {
    const FormDriver& f = open("ElasticityAtPriceAndSlopeUpsideDown");
    EXPECT_EQ(f.caption("givenRange"), "Funktionen gælder i intervallet 1<Q<0");
    answer({"-6", "4.5", "1", "0"});
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
    EXPECT_EQ(strokes(), std::vector{lineOf(-6, 4.5, 1, 0, kLightGreen)});
}

TEST_F(AfsaetForm, JudgesAHundredHostileRowsWithOneStrokeEach) {
    const FormDriver& f = open("TwoPointsInPrices");
    const std::string huge(1'000'000, '9');
    const std::array<std::string, 10> hostile{"1e308", "-1e308", "9e99999", "-1e-320", "",
                                              "nan",   "inf",    "1e",      "-",       "٣"};
    std::size_t rows = 0;
    for (const std::string& one : hostile) {
        for (const std::string& other : hostile) {
            const std::array<std::string, 4> typed =
                rows % 2 == 0 ? std::array{one, other, other, one} : std::array{one, one, other, other};
            for (std::size_t i = 0; i < typed.size(); ++i) {
                f.box(kBoxes[i]).setContent(typed[i]);
            }
            f.click("ok");
            ASSERT_EQ(f.caption("verdict"), "FORKERT");
            ASSERT_EQ(strokes().size(), ++rows);
        }
    }
    EXPECT_EQ(rows, 100U);
    EXPECT_FALSE(f.page().grab().isNull());
    f.box("slope").setContent(huge);
    f.box("rangeEnd").setContent("-" + huge);
    f.click("ok");
    EXPECT_EQ(colours(), (std::vector<QColor>(4, kRed)));
    EXPECT_FALSE(f.page().grab().isNull());
    answerRight();
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
}

/// A help panel with all that belongs to it.
struct PanelRow {
    const char* panel;
    const char* sample;
    /// In their order, and what each fills, in the order of the texts.
    std::vector<std::vector<std::string>> steps;
    std::vector<std::string> vis;
    const char* close;
    /// The box of the fraction; empty where there is none.
    std::string box;
    const char* heading;
    const char* equation;
    std::vector<std::string> texts;
};

void PrintTo(const PanelRow& row, std::ostream* out) { *out << row.panel; }

const std::vector<PanelRow>& panelRows() {
    static const std::vector<PanelRow> rows{
        {"twoPointsHelpPanel",
         "TwoPointsInPrices",
         {{"twoPointsWorkedSlopeNumerator", "twoPointsWorkedSlopeDenominator", "twoPointsWorkedSlopeResult"},
          {"twoPointsWorkedIntercept"}},
         {"showTwoPointsSlope", "showTwoPointsIntercept"},
         "closeTwoPointsHelp",
         "twoPointsSlopeStep",
         "twoPointsWorkedResultHeading",
         "twoPointsWorkedResult",
         {"8 - 2", "1 - 5", "= -1.5", "b = 8 - (-1.5)*1 = 9.5", "P = -1.5Q + 9.5"}},
        {"epAtPointPriceHelpPanel",
         "ElasticityAtPointPriceInPrices",
         {{"epAtPointPriceWorkedSlopeNumerator", "epAtPointPriceWorkedSlopeDenominator",
           "epAtPointPriceWorkedSlopeResult"},
          {"epAtPointPriceWorkedIntercept"}},
         {"showEpAtPointPriceSlope", "showEpAtPointPriceIntercept"},
         "closeEpAtPointPriceHelp",
         "epAtPointPriceSlopeStep",
         "epAtPointPriceWorkedResultHeading",
         "epAtPointPriceWorkedResult",
         {"3", "-2*1", "= 3/-2 = -1.5", "b = 3 - (3/-2)*1 = 4.5", "P = -1.5Q + 4.5"}},
        {"epAtOtherPriceHelpPanel",
         "ElasticityAtOtherPriceInPrices",
         {{"epAtOtherPriceWorkedSlopeNumerator", "epAtOtherPriceWorkedSlopeDenominator",
           "epAtOtherPriceWorkedSlopeResult"},
          {"epAtOtherPriceWorkedIntercept"}},
         {"showEpAtOtherPriceSlope", "showEpAtOtherPriceIntercept"},
         "closeEpAtOtherPriceHelp",
         "epAtOtherPriceSlopeStep",
         "epAtOtherPriceWorkedResultHeading",
         "epAtOtherPriceWorkedResult",
         {"8 - 7", "1 - 1.75", "= 1/-0.75 = -1.33", "b = 8 - (1/-0.75)*1 = 9.33", "P = -1.33Q + 9.33"}},
        {"epAtPointQuantityHelpPanel",
         "ElasticityAtPointQuantity",
         {{"epAtPointQuantityWorkedSlopeNumerator", "epAtPointQuantityWorkedSlopeDenominator",
           "epAtPointQuantityWorkedSlopeResult"},
          {"epAtPointQuantityWorkedIntercept"}},
         {"showEpAtPointQuantitySlope", "showEpAtPointQuantityIntercept"},
         "closeEpAtPointQuantityHelp",
         "epAtPointQuantitySlopeStep",
         "epAtPointQuantityWorkedResultHeading",
         "epAtPointQuantityWorkedResult",
         {"7", "-3*1", "= 7/-3 = -2.33", "b = 7 - (7/-3)*1 = 9.33", "P = -2.33Q + 9.33"}},
        {"epAtOtherQuantityHelpPanel",
         "ElasticityAtOtherQuantity",
         {{"epAtOtherQuantityWorkedSlopeNumerator", "epAtOtherQuantityWorkedSlopeDenominator",
           "epAtOtherQuantityWorkedSlopeResult"},
          {"epAtOtherQuantityWorkedIntercept"}},
         {"showEpAtOtherQuantitySlope", "showEpAtOtherQuantityIntercept"},
         "closeEpAtOtherQuantityHelp",
         "epAtOtherQuantitySlopeStep",
         "epAtOtherQuantityWorkedResultHeading",
         "epAtOtherQuantityWorkedResult",
         {"6 - 4.8", "1 - 2", "= 1.2/-1 = -1.2", "b = 6 - (1.2/-1)*1 = 7.2", "P = -1.2Q + 7.2"}},
        {"pointAndSlopeHelpPanel",
         "PointAndSlopeInPrices",
         {{"pointAndSlopeWorkedIntercept"}},
         {"showPointAndSlopeIntercept"},
         "closePointAndSlopeHelp",
         "",
         "pointAndSlopeWorkedResultHeading",
         "pointAndSlopeWorkedResult",
         {"b = 4 - (-3)*2 = 10", "P = -3Q + 10"}},
        {"twoElasticitiesHelpPanel",
         "TwoElasticitiesOfALongPmax",
         {{"twoElasticitiesWorkedMaxPrice"},
          {"twoElasticitiesWorkedMaxQuantity"},
          {"twoElasticitiesWorkedSlope"}},
         {"showTwoElasticitiesMaxPrice", "showTwoElasticitiesMaxQuantity", "showTwoElasticitiesSlope"},
         "closeTwoElasticitiesHelp",
         "",
         "twoElasticitiesWorkedResultHeading",
         "twoElasticitiesWorkedResult",
         {"Pmax = 7 - 7/-3 = -28/-3 = 9.33", "Qmax = 2 - 2*-6 = 14", "a = -(-28/-3)/14 = -0.67",
          "P = -0.67Q + 9.33"}},
        {"epAtPriceAndSlopeHelpPanel",
         "ElasticityAtPriceAndSlopeOfALongQ",
         {{"epAtPriceAndSlopeWorkedQuantity"}, {"epAtPriceAndSlopeWorkedIntercept"}},
         {"showEpAtPriceAndSlopeQuantity", "showEpAtPriceAndSlopeIntercept"},
         "closeEpAtPriceAndSlopeHelp",
         "",
         "epAtPriceAndSlopeWorkedResultHeading",
         "epAtPriceAndSlopeWorkedResult",
         {"Q = 7/(-4*-4) = 7/16 = 0.44", "b = 7 - (-4*(7/16)) = 8.75", "P = -4Q + 8.75"}},
        {"epAtQuantityAndSlopeHelpPanel",
         "ElasticityAtQuantityAndSlopeInPrices",
         {{"epAtQuantityAndSlopeWorkedPrice"}, {"epAtQuantityAndSlopeWorkedIntercept"}},
         {"showEpAtQuantityAndSlopePrice", "showEpAtQuantityAndSlopeIntercept"},
         "closeEpAtQuantityAndSlopeHelp",
         "",
         "epAtQuantityAndSlopeWorkedResultHeading",
         "epAtQuantityAndSlopeWorkedResult",
         {"P = -2*(-3)*1 = 6", "b = 6 - (-2)*1 = 8", "P = -2Q + 8"}},
    };
    return rows;
}

class AfsaetPanels : public AfsaetForm, public testing::WithParamInterface<PanelRow> {
protected:
    FormDriver& openHelp() {
        open(GetParam().sample);
        form->click("help");
        return *form;
    }

    void showEveryStep() const {
        for (const std::string& vis : GetParam().vis) {
            form->click(vis);
        }
    }

    /// What the steps, and the last one besides, make visible.
    [[nodiscard]] std::vector<Names> revealed() const {
        const PanelRow& row = GetParam();
        std::vector<Names> names;
        for (const Names& labels : row.steps) {
            names.push_back({names.empty() && !row.box.empty() ? row.box : labels.back()});
        }
        names.back().emplace_back(row.heading);
        names.back().emplace_back(row.equation);
        return names;
    }

    void expectShown(std::size_t steps) const {
        const std::vector<Names> all = revealed();
        for (std::size_t step = 0; step < all.size(); ++step) {
            for (const std::string& name : all[step]) {
                EXPECT_EQ(form->isShown(name), step < steps) << name << " after " << steps;
            }
        }
    }
};

TEST_P(AfsaetPanels, OpenByKindWithTheFocusOnTheFirstStep) {
    const PanelRow& row = GetParam();
    const FormDriver& f = openHelp();
    EXPECT_EQ(shownPanels(), Names{row.panel});
    EXPECT_EQ(f.focus(), row.vis.front());
    for (const std::string& vis : row.vis) {
        EXPECT_EQ(f.button(vis).caption(), "Vis");
        EXPECT_EQ(f.find(vis).parentWidget(), &f.find(row.panel));
    }
    EXPECT_EQ(f.button(row.close).caption(), "&Luk");
    EXPECT_EQ(f.find(row.close).parentWidget(), &f.find(row.panel));
    expectShown(0);
}

TEST_P(AfsaetPanels, RevealOneStepWithEachVis) {
    const PanelRow& row = GetParam();
    const FormDriver& f = openHelp();
    auto text = row.texts.begin();
    for (std::size_t step = 0; step < row.vis.size(); ++step) {
        f.click(row.vis[step]);
        for (const std::string& label : row.steps[step]) {
            EXPECT_EQ(f.caption(label), *text++) << label;
        }
        expectShown(step + 1);
    }
    EXPECT_EQ(f.caption(row.heading), "Afsætningsfunktionens ligning er:");
    EXPECT_EQ(f.caption(row.equation), *text);
    EXPECT_EQ(&*text, &row.texts.back());
}

TEST_P(AfsaetPanels, RevealTheirLastStepAlsoFirst) {
    const PanelRow& row = GetParam();
    const FormDriver& f = openHelp();
    f.click(row.vis.back());
    const std::vector<Names> all = revealed();
    for (std::size_t step = 0; step < all.size(); ++step) {
        for (const std::string& name : all[step]) {
            EXPECT_EQ(f.isShown(name), step + 1 == all.size()) << name;
        }
    }
    EXPECT_EQ(f.caption(row.equation), row.texts.back());
}

TEST_P(AfsaetPanels, CloseWholeAndLeaveTheExerciseAlone) {
    const PanelRow& row = GetParam();
    const FormDriver& f = openHelp();
    f.type("intercept", "12");
    showEveryStep();
    f.click(row.close);
    EXPECT_EQ(shownPanels(), Names{});
    expectShown(0);
    EXPECT_EQ(f.focus(), "slope");
    EXPECT_EQ(f.box("intercept").content(), "12");
    EXPECT_EQ(strokes(), std::vector<Stroke>{});
    f.click("help");
    EXPECT_EQ(shownPanels(), Names{row.panel});
    expectShown(0);
}

TEST_P(AfsaetPanels, StayThroughJudgingAndTheAnswerAndGoWithTheNextExercise) {
    const PanelRow& row = GetParam();
    const FormDriver& f = openHelp();
    showEveryStep();
    answer({"987", "1", "1", "2"});
    EXPECT_EQ(shownPanels(), Names{row.panel});
    f.click("giveAnswer");
    EXPECT_EQ(shownPanels(), Names{row.panel});
    expectShown(row.vis.size());
    next("TwoPointsInPrices");
    EXPECT_EQ(shownPanels(), Names{});
    expectShown(0);
    EXPECT_EQ(f.focus(), "slope");
}

TEST_P(AfsaetPanels, OpenOnceSolvedToo) {
    const PanelRow& row = GetParam();
    const FormDriver& f = open(row.sample);
    answerRight();
    ASSERT_EQ(f.caption("verdict"), "RIGTIGT");
    f.click("help");
    EXPECT_EQ(shownPanels(), Names{row.panel});
    EXPECT_TRUE(f.isShown("verdict"));
    EXPECT_EQ(strokes().size(), 1U);
}

TEST_P(AfsaetPanels, LeaveTheTaskTheAnswerAndTheButtonsInReach) {
    const PanelRow& row = GetParam();
    const FormDriver& f = open(row.sample);
    const QRectF panel = f.find<Panel>(row.panel).place();
    for (const char* name :
         {"task", "firstFact", "secondFact", "givenRange", "slope", "intercept", "rangeStart", "rangeEnd",
          "newExercise", "ok", "giveAnswer", "help", "verdict"}) {
        EXPECT_FALSE(panel.intersects(QRectF(f.find(name).geometry()))) << name;
    }
    EXPECT_TRUE(panel.contains(f.find<GraphBox>("graph").Control::place()));
    EXPECT_EQ(f.find<Panel>(row.panel).backColour(), kWhite);
}

TEST_P(AfsaetPanels, LookWellWithEveryStep) {
    for (const char* mark : {".", ","}) {
        const DecimalMark inUse(mark);
        const FormDriver& f = openHelp();
        showEveryStep();
        EXPECT_EQ(test::flawsOf(f.page()), Names{});
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, AfsaetPanels, testing::ValuesIn(panelRows()),
                         [](const auto& row) { return std::string(row.param.panel); });

TEST_F(AfsaetForm, RebuildsTheStepsForTheNextExercise) {
    const FormDriver& f = open("TwoPointsInPrices");
    f.click("help", "showTwoPointsSlope", "showTwoPointsIntercept");
    EXPECT_EQ(f.caption("twoPointsWorkedIntercept"), "b = 8 - (-1.5)*1 = 9.5");
    next("TwoPointsInQuantities");
    f.click("help", "showTwoPointsIntercept");
    test::expectTexts(
        f, {{"twoPointsWorkedIntercept", "b = 6 - (-1)*3 = 9"}, {"twoPointsWorkedResult", "P = -1Q + 9"}});
    f.click("showTwoPointsSlope");
    EXPECT_EQ(f.caption("twoPointsWorkedSlopeResult"), "= -1");
}

TEST_F(AfsaetForm, WorksEveryWayOutWithTheNumbersOfAnyExercise) {
    SeededDraws seeded(6);
    for (int exercise = 0; exercise < 30; ++exercise) {
        const FormDriver any(PageName::Afsaet, seeded);
        for (Button* button : any.page().findChildren<Button*>()) {
            if (button->caption() == "Vis") {
                button->click();
            }
        }
        const std::string equation = equationText(dynamic_cast<const Afsaet&>(any.page()).state());
        for (const char* label :
             {"twoPointsWorkedResult", "epAtPointPriceWorkedResult", "epAtOtherPriceWorkedResult",
              "epAtPointQuantityWorkedResult", "epAtOtherQuantityWorkedResult", "pointAndSlopeWorkedResult",
              "twoElasticitiesWorkedResult", "epAtPriceAndSlopeWorkedResult",
              "epAtQuantityAndSlopeWorkedResult"}) {
            EXPECT_EQ(any.caption(label), equation) << label;
        }
    }
}

TEST_F(AfsaetForm, ExplainsEveryWayToTheLetter) {
    const FormDriver& f = open("TwoPointsInPrices");
    for (const auto& [panel, texts] : std::vector<std::pair<const char*, Names>>{
             {"twoPointsHelpPanel",
              {"Generel løsning", "Aktuel løsning", "Du kender to punkter : (P1, Q1) og (P2, Q2). Bestem a. ",
               "a =", "P1 - P2", "Q1 - Q2", "Bestem b ved at indsætte P1, Q1 og a i ligningen",
               "P1 = a*Q1 + b    =>", "b = P1 - a*Q1", "Afsætningsfunktionens ligning er:"}},
             {"epAtPointPriceHelpPanel",
              {"Generel løsning", "Aktuel løsning", "I dette tilfælde er P1 = P2 og a findes nemt:", "a =",
               "P1", "Ep*Q1", "Herefter bestemes b ved at indsætte P1, Q1 og a i ligningen",
               "P1 = a*Q1 + b   =>", "b = P1 - a*Q1", "Afsætningsfunktionens ligning er:"}},
             {"epAtOtherPriceHelpPanel",
              {"Generel løsning",
               "Aktuel løsning",
               "Her er P1 forskellig fra P2, og må vi udnytte, at a kan findes på forskellige måder:",
               "1. Ud fra et punkt og priselasticiteten i punktet:",
               "a =",
               "P2",
               "Ep*Q2",
               "Her kender vi ikke Q2.",
               "2. Ud fra to punkter:",
               "a =",
               "P1 - P2",
               "Q1 - Q2",
               "Her kender vi heller ikke Q2.",
               "Sættes de to udtryk lig hinanden fås:",
               "=>  Q2 = ",
               "P2*Q1",
               "Ep*(P1 - P2) + P2",
               "Find Q2 som vist ovenfor. Du kender nu to punkter (P1; Q1) og (P2; Q2)  og kan finde a:",
               "Indsæt P1, Q1 og a i ligningen",
               "P1 = a*Q1 + b  =>",
               "b = P1 - a*Q1",
               "Afsætningsfunktionens ligning er:"}},
             {"epAtPointQuantityHelpPanel",
              {"Generel løsning", "Aktuel løsning", "I dette tilfælde er Q1 = Q2 og a findes således:", "a =",
               "P1", "Ep*Q1", "Herefter finder du b ved at indsætte P1, Q1 og a i ligningen",
               "P1 = a*Q1 + b   =>", "b = P1 - a*Q1", "Afsætningsfunktionens ligning er:"}},
             {"epAtOtherQuantityHelpPanel",
              {"Generel løsning",
               "Aktuel løsning",
               "Her er Q1 forskellig fra Q2, og vi må udnytte, at a kan findes på forskellige måder:",
               "1. Ud fra et punkt og priselasticiteten i punktet:",
               "a =",
               "P2",
               "Ep*Q2",
               "Her kender vi ikke P2.",
               "2. Ud fra to punkter:   a =",
               "P1 - P2",
               "Q1 - Q2",
               "Her kender vi heller ikke P2.",
               "Sættes de to udtryk lig hinanden fås:",
               "=>  P2 = ",
               "Ep*P1*Q2",
               "Q1 - Q2 + Ep*Q2",
               "Find P2 som vist ovenfor. Du kender nu to punkter (P1; Q1) og (P2; Q2) og kan nu finde a:",
               "Find b ved at indsætte P1, Q1 og a i ligningen ",
               "P1 = a*Q1 + b  =>",
               "b = P1 - a*Q1",
               "Afsætningsfunktionens ligning er:"}},
             {"pointAndSlopeHelpPanel",
              {"Generel løsning", "Aktuel løsning", "Find b ved at indsætte P, Q og a i ligningen",
               "P = a*Q + b   =>", "b = P - a*Q", "Afsætningsfunktionens ligning er:"}},
             {"twoElasticitiesHelpPanel",
              {"Generel løsning", "Aktuel løsning", "Find først Pmax:", "Ep = P/(P - Pmax)  => ",
               "Pmax =  P - P/Ep", "Find derefter Qmax:", "Ep = (Q - Qmax)/Q  =>", "Qmax  = Q - Q*Ep",
               "Pmax svarer til b, da den også angiver skæringen med P-aksen. Nu mangler du altså bare at "
               "finde a. Det er enkelt når du kender de to punkter (Pmax, 0) og (0, Qmax)  ",
               "a =", "Pmax - 0", "0 - Qmax", "=  - Pmax/Qmax", "Afsætningsfunktionens ligning er:"}},
             {"epAtPriceAndSlopeHelpPanel",
              {"Generel løsning", "Aktuel løsning",
               "Find mængden til den opgivne pris ved at indsætte a, P og Ep i ligningen ",
               "a = P/(Ep*Q)   =>", "Q = P/(Ep*a)",
               "Du kender nu et punkt (P,Q) og hældningskoefficienten, a.  Bestem b ved at indsætte P, Q og "
               "a i ligningen",
               "P = a*Q + b   => ", "b = P - a*Q", "Afsætningsfunktionens ligning er:"}},
             {"epAtQuantityAndSlopeHelpPanel",
              {"Generel løsning", "Aktuel løsning", "Find P ved at indsætte a, Q og Ep i ligningen",
               "a = P/(Ep*Q)   =>", "P = a*Ep*Q",
               "Du kender nu et punkt (P,Q) og hældningskoefficienten, a. Bestem b ved at indsætte P, Q og a "
               "i ligningen",
               "P = a*Q + b   =>", "b = P - a*Q", "Afsætningsfunktionens ligning er:"}},
         }) {
        Names found;
        for (const QObject* child : f.find<Panel>(panel).children()) {
            if (const auto* const label = qobject_cast<const Label*>(child);
                label != nullptr && !label->text().isEmpty()) {
                found.push_back(label->caption());
            }
        }
        EXPECT_EQ(found, texts) << panel;
    }
}

}  // namespace
}  // namespace tavrune
