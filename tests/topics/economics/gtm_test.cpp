#include "topics/economics/gtm.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/looks.h"
#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/economics/gtm_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FormDriver;
using test::gtm::Avc;
using test::gtm::firstScript;
using test::gtm::Kind;
using test::gtm::Mc;
using test::gtm::Numbers;
using test::gtm::Tvc;

constexpr test::StrokesIn kGraph{{0, 20, 10, 0}};

const QColor kAvcRight(0, 190, 0);
const QColor kAvcWrong(255, 190, 0);
const QColor kTvcRight(0, 0, 255);
const QColor kTvcWrong(255, 0, 255);
const QColor kMcRight(200, 90, 0);
const QColor kMcWrong(255, 90, 0);

using Strokes = std::vector<Stroke>;
using Nine = std::array<const char*, 9>;

double parabola(const Numbers& k, double q) { return k.a * q * q + k.b * q + k.c; }
double cubic(const Numbers& k, double q) { return q * parabola(k, q); }

/// A curve of `height` from `start` on in steps of 0.1, as long as `goesOn` to the next point, and to that
/// point too where `drawsLast`.
template <class Height, class GoesOn>
Strokes chain(const Height& height, double start, const QColor& colour, GoesOn goesOn) {
    Strokes strokes;
    double q = start;
    do {
        const double next = q + 0.1;
        strokes.push_back(kGraph.line(q, height(q), next, height(next), colour));
        q = next;
    } while (goesOn(q, height(q)));
    return strokes;
}

/// Coordinates are compared as singles; what is computed in another order may differ in its last digit.
void expectAlike(const Strokes& drawn, const Strokes& expected) {
    ASSERT_EQ(drawn.size(), expected.size());
    const auto isNear = [](float x, float y) {
        return std::abs(x - y) <= 1e-5F * std::max(1.0F, std::abs(y));
    };
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        const Stroke& d = drawn[i];
        const Stroke& e = expected[i];
        Stroke alike = d;
        alike.x1 = e.x1;
        alike.y1 = e.y1;
        alike.x2 = e.x2;
        alike.y2 = e.y2;
        ASSERT_EQ(alike, e) << i;
        ASSERT_TRUE(isNear(d.x1, e.x1) && isNear(d.y1, e.y1) && isNear(d.x2, e.x2) && isNear(d.y2, e.y2))
            << i << testing::PrintToString(d) << testing::PrintToString(e);
        ASSERT_TRUE(i == 0 || d.colour != drawn[i - 1].colour || d.x1 == drawn[i - 1].x2) << i;
    }
}

constexpr std::array kBoxes{"avcQuadraticCoefficient", "avcLinearCoefficient",    "avcConstant",
                            "tvcCubicCoefficient",     "tvcQuadraticCoefficient", "tvcLinearCoefficient",
                            "mcQuadraticCoefficient",  "mcLinearCoefficient",     "mcConstant"};

/// The lines of the four ways of the diagram.
constexpr std::array<std::array<const char*, 4>, 4> kWays{{
    {"wayFromMarginalToTotalStartLeg", "wayFromMarginalToTotalEndLeg", "wayFromMarginalToTotalUpperBarb",
     "wayFromMarginalToTotalLowerBarb"},
    {"wayFromTotalToMarginalStartLeg", "wayFromTotalToMarginalEndLeg", "wayFromTotalToMarginalUpperBarb",
     "wayFromTotalToMarginalLowerBarb"},
    {"wayFromTotalToAverageStartLeg", "wayFromTotalToAverageEndLeg", "wayFromTotalToAverageLeftBarb",
     "wayFromTotalToAverageRightBarb"},
    {"wayFromAverageToTotalStartLeg", "wayFromAverageToTotalEndLeg", "wayFromAverageToTotalLeftBarb",
     "wayFromAverageToTotalRightBarb"},
}};

class GtmForm : public test::ScriptedForm<const Numbers&, Kind> {
protected:
    GtmForm() : ScriptedForm(PageName::Gtm, test::gtm::script) {}

    FormDriver& open(const Numbers& k, Kind kind) { return openBy(firstScript(k, kind)); }

    /// AVC = Q² - 2Q + 4.
    FormDriver& openPlain() { return open({1, -2, 4}, Avc); }

    void fill(const Nine& typed) const {
        for (std::size_t i = 0; i < typed.size(); ++i) {
            form->box(kBoxes.at(i)).setContent(typed.at(i));
        }
    }

    void answer(const Nine& typed) const {
        fill(typed);
        form->click("ok");
    }

    /// The numbers of the red boxes.
    [[nodiscard]] std::set<int> redBoxes() const {
        std::set<int> red;
        for (int i = 1; i <= 9; ++i) {
            const QColor colour = form->box(kBoxes.at(static_cast<std::size_t>(i - 1))).backColour();
            EXPECT_TRUE(colour == kRed || colour == kWhite);
            if (colour == kRed) {
                red.insert(i);
            }
        }
        return red;
    }

    [[nodiscard]] Strokes drawnAfter(std::size_t strokes) const {
        return test::strokesFrom(graph(), strokes);
    }

    /// The digits of the ways of the diagram that are red; a way is red as a whole or not at all.
    [[nodiscard]] std::string redWays() const {
        std::string red;
        char way = '1';
        for (const auto& lines : kWays) {
            int redLines = 0;
            for (const char* line : lines) {
                const QColor colour = form->find<LineControl>(line).colour();
                EXPECT_TRUE(colour == kRed || colour == kBlack);
                redLines += colour == kRed ? 1 : 0;
            }
            EXPECT_TRUE(redLines == 0 || redLines == 4) << way;
            if (redLines == 4) {
                red += way;
            }
            ++way;
        }
        return red;
    }

    [[nodiscard]] std::set<std::string> redNames() const {
        std::set<std::string> red;
        for (const char* name : {"diagramMarginal", "diagramTotal", "diagramAverage"}) {
            const QColor colour = form->label(name).textColour();
            EXPECT_TRUE(colour == kRed || colour == kBlack);
            if (colour == kRed) {
                red.insert(name);
            }
        }
        return red;
    }

    [[nodiscard]] std::vector<std::string> shownSteps() const {
        return shownOf({"avcGivenTvcStep", "avcGivenMcStep", "tvcGivenAvcStep", "tvcGivenMcStep",
                        "mcGivenTvcStep", "mcGivenAvcStep"});
    }
};

TEST_F(GtmForm, StartsEmptyWithItsTitle) {
    const FormDriver f = FormDriver::unshown(PageName::Gtm, draws);
    EXPECT_EQ(f.page().windowTitle().toStdString(), "Tavrune - Gennemsnit-total-marginal");
    for (const char* box : kBoxes) {
        EXPECT_EQ(f.box(box).content(), "");
    }
    test::expectHidden(f, {"giveAnswer", "verdict", "diagramHelpPanel", "avcGivenHelpPanel",
                           "tvcGivenHelpPanel", "mcGivenHelpPanel", "avcGivenTvcStep", "avcGivenMcStep",
                           "tvcGivenAvcStep", "tvcGivenMcStep", "mcGivenTvcStep", "mcGivenAvcStep"});
    EXPECT_TRUE(f.find<GraphBox>("graph").strokes().empty());
}

/// All captions within a control, blanks and all.
std::multiset<std::string> captionsIn(const QWidget& widget) {
    std::multiset<std::string> captions;
    for (const Label* label : widget.findChildren<Label*>()) {
        captions.insert(label->caption());
    }
    return captions;
}

void expectCaptions(const QWidget& widget, const std::vector<std::string>& expected) {
    const std::multiset<std::string> captions = captionsIn(widget);
    for (const std::string& caption : expected) {
        EXPECT_EQ(captions.count(caption), std::count(expected.begin(), expected.end(), caption)) << caption;
    }
}

TEST_F(GtmForm, NamesItsRowsAndTheRimOfItsGraph) {
    const FormDriver& f = openPlain();
    const std::multiset<std::string> captions = captionsIn(f.page());
    for (const char* caption : {"Bestem koeficienterne til forskrifterne for de to manglende funktioner.",
                                "Gennemsnit:", "AVC=", "Total:", "TVC=", "Marginal:", "MC=", "0", "Q³ +"}) {
        EXPECT_EQ(captions.count(caption), 1U) << caption;
    }
    EXPECT_EQ(captions.count("Q² +"), 3U);
    EXPECT_EQ(captions.count("Q +"), 2U);
    // Along Q, and up the costs.
    EXPECT_EQ(captions.count("5"), 2U);
    EXPECT_EQ(captions.count("10"), 2U);
}

struct ShownRow {
    const char* name;
    Numbers drawn;
    Kind kind;
    std::vector<std::string> contents;
};

class GtmTasks : public GtmForm, public testing::WithParamInterface<ShownRow> {};

TEST_P(GtmTasks, FillTheBoxesOfTheGivenFunctionOnly) {
    const DecimalMark danish(",");
    const ShownRow& row = GetParam();
    const FormDriver& f = open(row.drawn, row.kind);
    EXPECT_EQ(contentsOf(kBoxes), row.contents);
    EXPECT_EQ(f.focus(), "avcQuadraticCoefficient");
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_FALSE(f.isShown("giveAnswer"));
    answer({"1", "2", "3", "4", "5", "6", "7", "8", "9"});
    EXPECT_FALSE(redBoxes().empty());
    next(row.drawn, row.kind);
    EXPECT_EQ(contentsOf(kBoxes), row.contents);
    EXPECT_EQ(f.focus(), "avcQuadraticCoefficient");
    EXPECT_EQ(redBoxes(), std::set<int>{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, GtmTasks,
    testing::Values(ShownRow{"Average", {1.5, -3, 8}, Avc, {"1.5", "-3", "8", "", "", "", "", "", ""}},
                    ShownRow{"Total", {2, -3, 8}, Tvc, {"", "", "", "2", "-3", "8", "", "", ""}},
                    ShownRow{"Marginal", {0.5, 0, 9}, Mc, {"", "", "", "", "", "", "0.5", "0", "9"}},
                    ShownRow{"Constant", {0, 0, 7}, Tvc, {"", "", "", "0", "0", "7", "", "", ""}}),
    [](const auto& row) { return row.param.name; });

TEST_F(GtmForm, LeavesNoTextOfARejectedFirstTryBehind) {
    // MC = 3Q² - 8Q + 4 crosses the axis.
    draws.append(test::gtm::script({1, -4, 4}, Avc));
    open({2, -3, 8}, Mc);
    EXPECT_EQ(contentsOf(kBoxes), (std::vector<std::string>{"", "", "", "", "", "", "2", "-3", "8"}));
    EXPECT_EQ(graph().strokes().size(), 171U);
}

TEST_F(GtmForm, PlotsAGivenParabolaToFifteenAtTheOpeningAndToElevenLater) {
    for (const Kind kind : {Avc, Mc}) {
        const Numbers k{1, -2, 4};
        const auto height = [&](double q) { return parabola(k, q); };
        open(k, kind);
        EXPECT_EQ(graph().strokes().size(), 171U);
        expectAlike(graph().strokes(), chain(height, -2, kBlack, [](double q, double) { return q <= 15; }));
        next(k, kind);
        EXPECT_EQ(graph().strokes().size(), 131U);
        expectAlike(graph().strokes(), chain(height, -2, kBlack, [](double q, double) { return q <= 11; }));
    }
}

TEST_F(GtmForm, PlotsAGivenCubicUpToFourHundredEachTime) {
    const Numbers k{1.5, -3, 8};
    const auto height = [&](double q) { return cubic(k, q); };
    const Strokes expected =
        chain(height, -2, kBlack, [&](double q, double) { return height(q + 0.1) <= 400; });
    open(k, Tvc);
    expectAlike(graph().strokes(), expected);
    next(k, Tvc);
    expectAlike(graph().strokes(), expected);
}

TEST_F(GtmForm, KeepsTheScaleOfTheOpening) {
    EXPECT_NE(FormDriver::unshown(PageName::Gtm, draws).find<GraphBox>("graph").scale(), kGraph.scale);
    openPlain();
    EXPECT_EQ(graph().scale(), kGraph.scale);
    next({1, -2, 4}, Avc);
    EXPECT_EQ(graph().scale(), kGraph.scale);
}

TEST_F(GtmForm, DrawsAvcThenTvcThenMcInTheColoursOfARightAnswer) {
    const FormDriver& f = openPlain();
    answer({"1", "-2", "4", "1", "-2", "4", "3", "-4", "4"});
    const Numbers avc{1, -2, 4};
    const Numbers mc{3, -4, 4};
    const auto total = [&](double q) { return cubic(avc, q); };
    expectAlike(
        drawnAfter(171),
        chain([&](double q) { return parabola(avc, q); }, -3, kAvcRight,
              [](double q, double y) { return q <= 15.05 && y <= 400; }) +
            chain(total, -3, kTvcRight, [&](double q, double) { return std::abs(total(q + 0.1)) <= 400; }) +
            chain([&](double q) { return parabola(mc, q); }, -3, kMcRight,
                  [](double q, double y) { return q <= 15 && y <= 210; }));
    test::expectSolved(f);
}

TEST_F(GtmForm, DrawsWholeLevelCurvesOfATry) {
    open({0, 0, 5}, Avc);
    answer({"0", "0", "5", "0", "0", "5", "0", "0", "5"});
    const std::map<QRgb, std::size_t> expected{
        {kAvcRight.rgb(), 181}, {kTvcRight.rgb(), 230}, {kMcRight.rgb(), 181}};
    std::map<QRgb, std::size_t> counts;
    for (const Stroke& stroke : drawnAfter(171)) {
        ++counts[stroke.colour.rgb()];
    }
    EXPECT_EQ(counts, expected);
}

struct MarkRow {
    const char* name;
    Nine typed;
    std::set<int> red;
    std::vector<QColor> colours;
};

class GtmMarks : public GtmForm, public testing::WithParamInterface<MarkRow> {};

/// The colours of the curves in the order drawn.
std::vector<QColor> coloursOf(const Strokes& strokes) {
    std::vector<QColor> colours;
    for (const Stroke& stroke : strokes) {
        if (colours.empty() || colours.back() != stroke.colour) {
            colours.push_back(stroke.colour);
        }
    }
    return colours;
}

TEST_P(GtmMarks, ReddenEachWrongBoxAndColourTheCurveOfItsFunction) {
    const MarkRow& row = GetParam();
    const FormDriver& f = openPlain();
    answer(row.typed);
    EXPECT_EQ(redBoxes(), row.red);
    EXPECT_EQ(coloursOf(drawnAfter(171)), row.colours);
    test::expectWrong(f, "avcQuadraticCoefficient");
    EXPECT_EQ(contentsOf(kBoxes), std::vector<std::string>(row.typed.begin(), row.typed.end()));
}

INSTANTIATE_TEST_SUITE_P(Rows, GtmMarks,
                         testing::Values(MarkRow{"OnlyAvc",
                                                 {"1", "-2", "5", "1", "-2", "4", "3", "-4", "4"},
                                                 {3},
                                                 {kAvcWrong, kTvcRight, kMcRight}},
                                         MarkRow{"OnlyTvc",
                                                 {"1", "-2", "4", "1.1", "2", "4", "3", "-4", "4"},
                                                 {4, 5},
                                                 {kAvcRight, kTvcWrong, kMcRight}},
                                         MarkRow{"OnlyMc",
                                                 {"1", "-2", "4", "1", "-2", "4", "3.01", "-4", "4"},
                                                 {7},
                                                 {kAvcRight, kTvcRight, kMcWrong}},
                                         MarkRow{"NothingIsTyped",
                                                 {"", "", "", "", "", "", "", "", ""},
                                                 {1, 2, 3, 4, 5, 6, 7, 8, 9},
                                                 {kAvcWrong, kTvcWrong, kMcWrong}},
                                         MarkRow{"AHugeNumberDrawsNothing",
                                                 {"1", "-2", "4", "1", "-2", "4", "3", "-4", "1e308"},
                                                 {9},
                                                 {kAvcRight, kTvcRight}},
                                         MarkRow{"FourHundredForFourDrawsNoMc",
                                                 {"1", "-2", "4", "1", "-2", "4", "3", "-4", "400"},
                                                 {9},
                                                 {kAvcRight, kTvcRight}}),
                         [](const auto& row) { return row.param.name; });

TEST_F(GtmForm, TakesAnAlteredBoxOfTheGivenFunctionForWrong) {
    const FormDriver& f = openPlain();
    answer({"2", "-2", "4", "1", "-2", "4", "3", "-4", "4"});
    EXPECT_EQ(f.caption("verdict"), "FORKERT");
    EXPECT_EQ(redBoxes(), std::set<int>{1});
    answer({"1", "-2", "4", "1", "-2", "4", "3", "-4", "4"});
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
    EXPECT_EQ(redBoxes(), std::set<int>{});
}

TEST_F(GtmForm, WantsSeventeenHundredthsForTheThirdOfAHalf) {
    const FormDriver& f = open({0.5, -4, 9}, Mc);
    EXPECT_EQ(f.box("mcQuadraticCoefficient").content(), "0.5");
    answer({"0.1667", "-2", "9", "0.17", "-2", "9", "0.5", "-4", "9"});
    EXPECT_EQ(redBoxes(), std::set<int>{1});
    f.type("avcQuadraticCoefficient", "0,17");
    f.click("ok");
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
}

TEST_F(GtmForm, IsSolvedByKeysAlone) {
    const FormDriver& f = openPlain();
    for (const char* given : {"avcQuadraticCoefficient", "avcLinearCoefficient", "avcConstant"}) {
        f.press(given, Qt::Key_Return);
    }
    const std::array<const char*, 6> typed{"1", "-2", "4", "3,0", "-4", "4"};
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const std::string box = kBoxes.at(i + 3);
        ASSERT_EQ(f.focus(), box);
        f.type(box, typed.at(i));
        f.press(box, Qt::Key_Return);
    }
    EXPECT_EQ(f.box("mcQuadraticCoefficient").content(), "3.0");
    EXPECT_EQ(f.focus(), "ok");
    f.press("ok", Qt::Key_Return);
    EXPECT_EQ(f.caption("verdict"), "RIGTIGT");
    f.press("mcConstant", Qt::Key_Return);
    EXPECT_EQ(f.focus(), "newExercise");
}

TEST_F(GtmForm, PilesUpTriesAndAnswerUntilTheNextExercise) {
    const FormDriver& f = openPlain();
    std::size_t before = graph().strokes().size();
    for (const char* tried : {"1", "2", "3"}) {
        answer({"1", "-2", "4", tried, "-2", "4", "3", "-4", "1"});
        EXPECT_GT(graph().strokes().size(), before);
        before = graph().strokes().size();
    }
    f.click("giveAnswer");
    EXPECT_GT(graph().strokes().size(), before);
    next({1, -2, 4}, Avc);
    EXPECT_EQ(graph().strokes().size(), 131U);
}

TEST_F(GtmForm, GivesTheCoefficientsAndDrawsAvcThenMcThenTvc) {
    const DecimalMark danish(",");
    const FormDriver& f = open({0.5, -3, 9}, Mc);
    answer({"", "", "", "", "", "", "", "", ""});
    const std::size_t before = graph().strokes().size();
    f.click("giveAnswer");
    EXPECT_EQ(contentsOf(kBoxes),
              (std::vector<std::string>{"0,17", "-1,5", "9", "0,17", "-1,5", "9", "0,5", "-3", "9"}));
    test::expectGiven(f);
    const auto avc = [](double q) { return 0.17 * q * q - 1.5 * q + 9; };
    const auto mc = [](double q) { return 0.5 * q * q - 3 * q + 9; };
    const auto tvc = [&](double q) { return q * avc(q); };
    expectAlike(drawnAfter(before), chain(avc, -4, kAvcRight, [](double q, double) {
                                        return q <= 15.05;
                                    }) + chain(mc, -2, kMcRight, [](double q, double y) {
                                        return q <= 21 && std::abs(y) <= 110;
                                    }) + chain(tvc, -4, kTvcRight, [&](double q, double) {
                                        return q <= 20 && std::abs(tvc(q + 0.1)) <= 400;
                                    }));
}

TEST_F(GtmForm, PlotsTheFunctionsThatAreTypedAndNotThoseThatAreRight) {
    openPlain();
    answer({"2", "-1", "3", "0.5", "-1", "2", "1", "-1", "5"});
    const auto avc = [](double q) { return 2 * q * q - q + 3; };
    const auto tvc = [](double q) { return 0.5 * q * q * q - q * q + 2 * q; };
    const auto mc = [](double q) { return q * q - q + 5; };
    expectAlike(drawnAfter(171),
                chain(avc, -3, kAvcWrong, [](double q, double y) {
                    return q <= 15.05 && y <= 400;
                }) + chain(tvc, -3, kTvcWrong, [&](double q, double) {
                    return q <= 20 && std::abs(tvc(q + 0.1)) <= 400;
                }) + chain(mc, -3, kMcWrong, [](double q, double y) { return q <= 15 && y <= 210; }));
}

TEST_F(GtmForm, JudgesAHundredHostileRowsWithBoundedCurves) {
    const FormDriver& f = openPlain();
    const std::array<std::string, 12> hostile{"1e308", "-1e999", "æ;",    std::string(10'000, '9'),
                                              "400",   "1e39",   "-1e20", "1e-308",
                                              "nan",   "inf",    "0x1p9", "-123456.75"};
    for (const char* box : kBoxes) {
        for (const std::string& typed : hostile) {
            fill({"1", "-2", "4", "1", "-2", "4", "3", "-4", "4"});
            f.box(box).setContent(typed);
            const std::size_t before = graph().strokes().size();
            f.click("ok");
            EXPECT_EQ(f.caption("verdict"), "FORKERT");
            EXPECT_LE(graph().strokes().size() - before, 181U + 230U + 181U);
        }
    }
    EXPECT_FALSE(f.page().grab().isNull());
}

struct GuideRow {
    const char* name;
    Kind kind;
    const char* given;
    const char* ways;
    const char* panel;
    const char* firstVis;
    const char* secondVis;
    const char* close;
    const char* firstStep;
    const char* secondStep;
    const char* firstText;
    const char* secondText;
};

void PrintTo(const GuideRow& row, std::ostream* out) { *out << row.name; }

constexpr const char* kDifferentiate =
    " Når du skal fra TVC til MC skal du differentiere TVC-funktionen. Det gøres ved ledvis at gange "
    "koefficienten "
    "med eksponenten og derefter trække én fra eksponenten (se evt differentialregning).";

class GtmGuides : public GtmForm, public testing::WithParamInterface<GuideRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, GtmGuides,
    testing::Values(
        GuideRow{
            "Average", Avc, "diagramAverage", "24", "avcGivenHelpPanel", "showAvcGivenTvc", "showAvcGivenMc",
            "closeAvcGivenHelp", "avcGivenTvcStep", "avcGivenMcStep",
            " Du kender her AVC-funktionen. Du skal nu først finde TVC-funktionen og derefter MC-funktionen. "
            "Metoden er vist i diagrammet ovenfor. Først skal du gange AVC med mængden(Q).Derved får du TVC.",
            kDifferentiate},
        GuideRow{"Total", Tvc, "diagramTotal", "23", "tvcGivenHelpPanel", "showTvcGivenAvc", "showTvcGivenMc",
                 "closeTvcGivenHelp", "tvcGivenAvcStep", "tvcGivenMcStep",
                 " Du kender her TVC-funktionen og skal finde AVC-funktionen samt MC-funktonen. Som det "
                 "fremgår af "
                 "diagrammet ovenfor findes AVC-funktionen ved at dividere TVC-funktionen med antallet(Q).",
                 kDifferentiate},
        GuideRow{"Marginal", Mc, "diagramMarginal", "13", "mcGivenHelpPanel", "showMcGivenTvc",
                 "showMcGivenAvc", "closeMcGivenHelp", "mcGivenTvcStep", "mcGivenAvcStep",
                 " Du kender MC-funktionen og skal, som det fremgår af diagrammet ovenfor, først finde "
                 "TVC-funktionen og derefter AVC-funktionen. TVC-funktionen finder du ved at integrere "
                 "MC-funktionen (se evt. integralregning).",
                 " AVC-funktionen findes nu ved at dividere TVC-funktionen med antallet (Q)."}),
    [](const auto& row) { return row.param.name; });

TEST_P(GtmGuides, LightUpTheWayOfTheExerciseAndOpenItsPanel) {
    const GuideRow& row = GetParam();
    const FormDriver& f = open({1, -2, 4}, row.kind);
    EXPECT_EQ(redWays(), "");
    EXPECT_EQ(redNames(), std::set<std::string>{});
    f.click("help");
    EXPECT_EQ(redWays(), row.ways);
    EXPECT_EQ(redNames(), std::set<std::string>{row.given});
    EXPECT_EQ(form->helpPanels(), (std::set<std::string>{"diagramHelpPanel", row.panel}));
    EXPECT_EQ(shownSteps(), std::vector<std::string>{});
    EXPECT_EQ(f.caption("diagramStep1Text"), row.firstText);
    EXPECT_EQ(f.caption("diagramStep2Text"), row.secondText);
    EXPECT_EQ(f.focus(), row.firstVis);
}

TEST_P(GtmGuides, RevealTheirTwoStepsAndHideThemWithThePanel) {
    const GuideRow& row = GetParam();
    const FormDriver& f = open({1, -2, 4}, row.kind);
    f.click("help");
    f.press(row.firstVis, Qt::Key_Return);
    EXPECT_EQ(shownSteps(), std::vector<std::string>{row.firstStep});
    f.press(row.secondVis, Qt::Key_Return);
    EXPECT_EQ(shownSteps(), (std::vector<std::string>{row.firstStep, row.secondStep}));
    f.click(row.close);
    EXPECT_EQ(shownSteps(), std::vector<std::string>{});
    EXPECT_EQ(form->helpPanels(), std::set<std::string>{});
    EXPECT_EQ(redWays(), "");
    f.click("help");
    EXPECT_EQ(shownSteps(), std::vector<std::string>{});
}

TEST_P(GtmGuides, BlackenTheNamesOnlyWhereMcIsGiven) {
    const GuideRow& row = GetParam();
    const FormDriver& f = open({1, -2, 4}, row.kind);
    f.click("help", row.close);
    EXPECT_EQ(redNames(), row.kind == Mc ? std::set<std::string>{} : std::set<std::string>{row.given});
}

TEST_P(GtmGuides, CloseWithTheNextExerciseAndStayRed) {
    const GuideRow& row = GetParam();
    const FormDriver& f = open({1, -2, 4}, row.kind);
    f.click("help", row.firstVis, row.secondVis);
    next({1, -2, 4}, row.kind);
    EXPECT_EQ(form->helpPanels(), std::set<std::string>{});
    EXPECT_EQ(shownSteps(), std::vector<std::string>{});
    EXPECT_EQ(redWays(), row.ways);
    EXPECT_EQ(redNames(), std::set<std::string>{row.given});
}

TEST_F(GtmForm, LetsTheRedOfEarlierHelpStandUntilALuk) {
    const FormDriver& f = open({1, -2, 4}, Avc);
    f.click("help");
    next({1, -2, 4}, Tvc);
    f.click("help");
    EXPECT_EQ(redWays(), "234");
    EXPECT_EQ(redNames(), (std::set<std::string>{"diagramTotal", "diagramAverage"}));
    next({1, -2, 4}, Mc);
    f.click("help");
    EXPECT_EQ(redWays(), "1234");
    EXPECT_EQ(redNames(), (std::set<std::string>{"diagramMarginal", "diagramTotal", "diagramAverage"}));
    f.click("closeMcGivenHelp");
    EXPECT_EQ(redWays(), "");
    EXPECT_EQ(redNames(), std::set<std::string>{});
}

TEST_F(GtmForm, LeavesPanelsAndBoxesAsTheyAreWhileTheHelpIsOpen) {
    const FormDriver& f = openPlain();
    f.click("help", "showAvcGivenTvc");
    answer({"1", "-2", "4", "1", "-2", "4", "3", "-4", "1"});
    EXPECT_EQ(form->helpPanels(), (std::set<std::string>{"diagramHelpPanel", "avcGivenHelpPanel"}));
    EXPECT_EQ(shownSteps(), std::vector<std::string>{"avcGivenTvcStep"});
    f.click("giveAnswer");
    EXPECT_EQ(form->helpPanels(), (std::set<std::string>{"diagramHelpPanel", "avcGivenHelpPanel"}));
    f.click("help");
    EXPECT_EQ(shownSteps(), std::vector<std::string>{"avcGivenTvcStep"});
}

TEST_F(GtmForm, KeepsTheTryItsVerdictAndItsCurvesWhenTheHelpIsClosed) {
    const FormDriver& f = openPlain();
    const Nine typed{"1", "-2", "4", "1", "-2", "4", "3", "-4", "1"};
    answer(typed);
    const Strokes strokes = graph().strokes();
    f.click("help", "showAvcGivenTvc", "closeAvcGivenHelp");
    EXPECT_EQ(contentsOf(kBoxes), std::vector<std::string>(typed.begin(), typed.end()));
    EXPECT_EQ(redBoxes(), std::set<int>{9});
    EXPECT_TRUE(f.isShown("verdict"));
    EXPECT_EQ(f.caption("verdict"), "FORKERT");
    EXPECT_EQ(graph().strokes(), strokes);
}

TEST_F(GtmForm, NamesTheFunctionsAndTheWaysOfItsDiagram) {
    const FormDriver& f = openPlain();
    test::expectTexts(f, std::array{test::FixedText{"diagramMarginal", "Marginal    (MC)"},
                                    test::FixedText{"diagramTotal", "Total (TVC)"},
                                    test::FixedText{"diagramAverage", "Gennem- snit (AVC)"}});
    expectCaptions(f.find("diagramHelpPanel"), {"d(TVC)", "dQ", "dQ", "∫", "(MC)", "TVC", "Q", "AVC*Q"});
}

TEST_F(GtmForm, ExplainsTheGeneralSolutions) {
    const FormDriver& f = openPlain();
    expectCaptions(f.find("avcGivenHelpPanel"),
                   {"Generel løsning", "Aktuel løsning", "Gang AVC-funktionen med Q", "TVC = Q*(aQ + bQ +c)",
                    "=   aQ + bQ +cQ ", "Differentiér TVC-funktionen", "TVC = aQ + bQ +cQ",
                    "MC = d(TVC)/dQ =", "3*aQ + 2*bQ + c", "2", "2", "2", "2", "3", "3"});
    expectCaptions(
        f.find("tvcGivenHelpPanel"),
        {"Generel løsning", "Aktuel løsning", "Divider TVC-fuktionen med Q", "AVC = (aQ + bQ + cQ)/Q ",
         "= aQ + bQ + c", "Differentiér TVC-funktionen", "TVC = aQ + bQ + cQ",
         "MC = d(TVC)/dQ = ", "3*aQ + 2*bQ + c", "3", "3", "2", "2", "2", "2"});
    expectCaptions(f.find("mcGivenHelpPanel"),
                   {"Generel løsning", "Aktuel løsning", "Integrér MC-funktionen", "TVC = ", "∫",
                    "(aQ + bQ + c)", "aQ + ", "bQ + cQ", "= aQ + bQ + c", "= aQ + bQ + c",
                    "Dividér TVC-funktionen med Q", "AVC = (aQ + bQ +cQ)/Q", "1", "1", "Q"});
    for (const char* vis : {"showAvcGivenTvc", "showAvcGivenMc", "showTvcGivenAvc", "showTvcGivenMc",
                            "showMcGivenTvc", "showMcGivenAvc"}) {
        EXPECT_EQ(f.button(vis).caption(), "Vis") << vis;
    }
    for (const char* close : {"closeAvcGivenHelp", "closeTvcGivenHelp", "closeMcGivenHelp"}) {
        EXPECT_EQ(f.button(close).caption(), "&Luk") << close;
    }
}

/// The labels of a step, as they stand: rows from above, each from left to right, exponents apart.
struct StepText {
    std::vector<std::vector<const Label*>> rows;
    std::vector<const Label*> exponents;

    explicit StepText(const QWidget& box) {
        std::map<double, std::vector<const Label*>> byTop;
        for (const Label* label : box.findChildren<Label*>(Qt::FindDirectChildrenOnly)) {
            if (label->textSize() == 8) {
                exponents.push_back(label);
            } else {
                byTop[label->place().top()].push_back(label);
            }
        }
        for (auto& [top, row] : byTop) {
            std::sort(row.begin(), row.end(), [](const Label* one, const Label* other) {
                return one->place().left() < other->place().left();
            });
            rows.push_back(row);
        }
    }

    [[nodiscard]] std::vector<std::string> texts() const {
        std::vector<std::string> texts;
        for (const auto& row : rows) {
            std::string text;
            for (const Label* label : row) {
                text += label->caption();
            }
            texts.push_back(text);
        }
        return texts;
    }
};

using Texts = std::vector<std::string>;

TEST_F(GtmForm, SetsEachPieceWhereTheOneBeforeItEnds) {
    const DecimalMark danish(",");
    const FormDriver& f = open({1.5, -3, 8}, Avc);
    f.click("help", "showAvcGivenTvc", "showAvcGivenMc");
    const StepText product(f.find("avcGivenTvcStep"));
    EXPECT_EQ(product.texts(), (Texts{"TVC = Q*(1,5Q -3Q +8)", "= 1,5Q -3Q +8Q"}));
    EXPECT_EQ(product.exponents.size(), 3U);
    const StepText derivative(f.find("avcGivenMcStep"));
    EXPECT_EQ(derivative.texts(), (Texts{"TVC = 1,5Q -3Q +8Q", "3 * 1,5Q + 2 * -3Q +8", "= 4,5Q -6Q +8"}));
    EXPECT_EQ(derivative.exponents.size(), 4U);
    for (const auto& row : product.rows) {
        double right = 0;
        for (const Label* label : row) {
            EXPECT_EQ(label->place().left(), right) << label->caption();
            EXPECT_EQ(label->place().width(), label->textWidth()) << label->caption();
            right = label->place().right();
        }
    }
}

/// From the left of the Q before an exponent to the left of the exponent, in twips, for each exponent.
std::vector<double> exponentOffsets(const StepText& step) {
    std::vector<double> offsets;
    for (const Label* exponent : step.exponents) {
        double offset = 1e9;
        for (const auto& row : step.rows) {
            for (const Label* label : row) {
                const QPointF apart = exponent->place().topLeft() - label->place().topLeft();
                const bool isAboveIt = -10 < apart.y() && apart.y() < 0;
                if (label->caption() == "Q " && isAboveIt && apart.x() > 0) {
                    offset = std::min(offset, apart.x() * 15);
                }
            }
        }
        offsets.push_back(std::round(offset * 100) / 100);
    }
    return offsets;
}

TEST_F(GtmForm, RaisesExponentsBehindTheirQ) {
    const FormDriver& f = open({1.5, -3, 8}, Mc);
    f.click("help", "showMcGivenTvc", "showMcGivenAvc");
    const StepText integral(f.find("mcGivenTvcStep"));
    EXPECT_EQ(integral.exponents.size(), 5U);
    EXPECT_EQ(exponentOffsets(integral), (std::vector<double>{120, 100, 100, 120, 120}));
    EXPECT_EQ(exponentOffsets(StepText(f.find("mcGivenAvcStep"))), (std::vector<double>{100, 100, 120}));
    next({1.5, -3, 8}, Tvc);
    f.click("help", "showTvcGivenAvc");
    EXPECT_EQ(exponentOffsets(StepText(f.find("tvcGivenAvcStep"))), (std::vector<double>{120, 120, 120}));
}

TEST_F(GtmForm, SetsExponentsNearerInTwoRows) {
    struct Step {
        Kind given;
        const char* vis;
        const char* box;
        std::vector<double> offsets;
    };
    // Of each row: two exponents in a cubic, one in a parabola.
    const std::vector<double> twoRows{120, 120, 120};
    const std::vector<double> derivative{120, 120, 120, 120};
    const FormDriver& f = openPlain();
    for (const auto& [given, vis, box, offsets] :
         {Step{Avc, "showAvcGivenTvc", "avcGivenTvcStep", twoRows},
          Step{Avc, "showAvcGivenMc", "avcGivenMcStep", derivative},
          Step{Tvc, "showTvcGivenAvc", "tvcGivenAvcStep", twoRows},
          Step{Tvc, "showTvcGivenMc", "tvcGivenMcStep", derivative},
          Step{Mc, "showMcGivenTvc", "mcGivenTvcStep", {120, 100, 100, 120, 120}},
          Step{Mc, "showMcGivenAvc", "mcGivenAvcStep", {100, 100, 120}}}) {
        next({0.5, -3, 9}, given);
        f.click("help", vis);
        EXPECT_EQ(exponentOffsets(StepText(f.find(box))), offsets) << vis;
    }
}

TEST_F(GtmForm, SetsItsFractionsWithBarsIntoTheRow) {
    const FormDriver& f = open({1.5, -3, 8}, Mc);
    f.click("help", "showMcGivenTvc");
    const QWidget& box = f.find("mcGivenTvcStep");
    const auto bars = box.findChildren<LineControl*>();
    ASSERT_EQ(bars.size(), 2);
    for (const LineControl* bar : bars) {
        EXPECT_FALSE(bar->isHidden());
        std::string texts;
        for (const Label* label : box.findChildren<Label*>()) {
            const QRectF place = label->place();
            if (place.left() == bar->place().left() &&
                std::abs(place.center().y() - bar->place().top()) < 9) {
                EXPECT_EQ(place.width(), bar->place().width());
                texts += label->caption();
            }
        }
        EXPECT_EQ(texts, bar == bars.front() ? "13" : "12");
    }
}

TEST_F(GtmForm, RewritesAStepWithTheNumbersOfTheNextExercise) {
    const FormDriver& f = open({1.5, -3, 8}, Tvc);
    f.click("help", "showTvcGivenAvc", "showTvcGivenAvc");
    EXPECT_EQ(StepText(f.find("tvcGivenAvcStep")).texts(),
              (Texts{"AVC = (1.5Q -3Q +8Q)/Q", "= 1.5Q -3Q +8"}));
    next({2, 0, 5}, Tvc);
    f.click("help", "showTvcGivenAvc", "showTvcGivenMc");
    EXPECT_EQ(StepText(f.find("tvcGivenAvcStep")).texts(), (Texts{"AVC = (2Q +0Q +5Q)/Q", "= 2Q +0Q +5"}));
    EXPECT_EQ(StepText(f.find("tvcGivenMcStep")).texts(),
              (Texts{"TVC = 2Q +0Q +5Q", "3 * 2Q + 2 * 0Q +5", "= 6Q +0Q +5"}));
}

TEST_F(GtmForm, HasRoomForTheLongestNumbers) {
    const DecimalMark danish(",");
    const FormDriver& f = openPlain();
    const std::vector<std::pair<Numbers, Kind>> longest{
        {{4.5, -7, 9}, Avc}, {{4.5, -7, 9}, Tvc}, {{3.5, -9, 9}, Mc}};
    for (const auto& [numbers, kind] : longest) {
        next(numbers, kind);
        f.click("help");
        for (const Button* button : f.page().findChildren<Button*>()) {
            if (button->caption() == "Vis" && button->isVisible()) {
                f.click(button->objectName().toStdString());
            }
        }
        EXPECT_EQ(test::flawsOf(f.page()), std::vector<std::string>{});
    }
}

}  // namespace
}  // namespace tavrune
