#include "graph/description.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "graph/axes.h"
#include "graph/curve.h"
#include "support/decimal_mark.h"

namespace tavrune {
namespace {

/// A box from (-10, 10) to (10, -10), and what is told of it after the axes.
class Told : public testing::Test {
protected:
    void SetUp() override { box.Scale(-10, 10, 10, -10); }

    [[nodiscard]] std::string all() const { return describe(box.strokes(), box.scale()); }

    [[nodiscard]] std::string after(const std::string& start) const {
        const std::string words = all();
        if (words.rfind(start, 0) != 0) {
            return "not so: " + words;
        }
        return words.substr(start.size());
    }

    [[nodiscard]] std::string told() const {
        return after("Vandret akse fra -10 til 10, lodret akse fra -10 til 10. ");
    }

    void repeat(int times, double step, const std::function<void(double)>& draw) const {
        for (int i = 0; i < times; ++i) {
            draw(i * step);
        }
    }

    /// Draws the lines as one figure.
    void draw(Meaning meaning, const std::vector<QLineF>& lines, const QColor& colour) {
        const Figure figure(box, meaning);
        for (const QLineF& line : lines) {
            box.Line(line.x1(), line.y1(), line.x2(), line.y2(), colour);
        }
    }

    /// Draws again and again as one figure, with the multiples of a step.
    void repeat(Meaning meaning, int times, double step, const std::function<void(double)>& draw) {
        const Figure figure(box, meaning);
        repeat(times, step, draw);
    }

    GraphBox box;
};

TEST_F(Told, SaysThatNothingIsThere) { EXPECT_EQ(told(), "Ellers tom."); }

TEST_F(Told, TakesTheAxesFromTheScaleAndNotFromTheirLines) {
    drawAxes(box, {.scale = box.scale(), .level = {-10, 10}, .upright = {10, -10}, .ticks = {}});
    EXPECT_EQ(told(), "Ellers tom.");
    box.Line(0, 20, 0, -20, kRed);
    EXPECT_EQ(told(), "Linie fra (0; 10) til (0; -10), rød.");
}

TEST_F(Told, TellsALineThatLiesOnAnAxis) {
    box.Line(-10, 0, 10, 0);
    EXPECT_EQ(told(), "Linie fra (-10; 0) til (10; 0), sort.");
}

TEST_F(Told, SaysHowFarTheTicksAreApart) {
    drawAxes(box, {.scale = box.scale(),
                   .level = {-10, 10},
                   .upright = {10, -10},
                   .ticks = {{.along = Along::X, .from = -10, .before = 10, .offAxis = {0.1}},
                             {.along = Along::X, .from = -10, .before = 10, .step = 5, .offAxis = {0.2, 0.3}},
                             {.along = Along::Y, .from = -10, .before = 10, .step = 5, .offAxis = {0.05}}}});
    EXPECT_EQ(told(),
              "Mærker for hver 1 på den vandrette akse og for hver 5 på den lodrette akse. Ellers tom.");
}

TEST_F(Told, TellsALineWithItsEndsAndColourInTheOrderDrawn) {
    box.Line(-2, 3, 4.256, -5, kRed);
    box.Line(1, 1, 9, 9, rgb(0, 190, 0));
    EXPECT_EQ(told(), "Linie fra (-2; 3) til (4.26; -5), rød. Linie fra (1; 1) til (9; 9), grøn.");
}

TEST_F(Told, WritesTheDecimalMarkInUse) {
    const test::DecimalMark comma(",");
    box.Line(-2.5, 3, 4.25, -5, kRed);
    EXPECT_EQ(told(), "Linie fra (-2,5; 3) til (4,25; -5), rød.");
}

TEST_F(Told, TellsOnlyWhatIsSeen) {
    box.Line(-20, -40, 20, 40, kRed);
    box.Line(50, 1, 60, 1, kBlue);
    box.PSet(11, 3, kBlue);
    EXPECT_EQ(told(), "Linie fra (-5; -10) til (5; 10), rød.");
}

TEST_F(Told, TakesAnyNumber) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    box.Line(-kInfinity, 2, kInfinity, 2, kRed);
    box.Line(std::nan(""), 2, 3, 4, kRed);
    box.PSet(std::nan(""), 2, kBlue);
    EXPECT_EQ(told(), "Linie fra (-10; 2) til (10; 2), rød.");
}

TEST_F(Told, TellsWhatIsDrawnOverItselfOnce) {
    box.Line(1, 1, 9, 9, kRed);
    box.Line(1, 1, 9, 9, kRed);
    EXPECT_EQ(told(), "Linie fra (1; 1) til (9; 9), rød.");
}

TEST_F(Told, CountsUpFromTheLowerBorderWhereTheScaleRunsDown) {
    box.Scale(0, 0, 20, 15);
    box.setCountsUp(true);
    box.Line(0, 12, 8, 4);
    EXPECT_EQ(all(),
              "Vandret akse fra 0 til 20, lodret akse fra 0 til 15. Linie fra (0; 12) til (8; 4), sort.");
}

TEST_F(Told, CallsADottedLineSo) {
    box.DrawStyle(LineStyle::Dotted);
    box.Line(3, 0, 3, 8);
    EXPECT_EQ(told(), "Stiplet linie fra (3; 0) til (3; 8), sort.");
}

TEST_F(Told, TellsAPoint) {
    box.PSet(3, 4, kBlue);
    EXPECT_EQ(told(), "Punkt i (3; 4), blå.");
}

TEST_F(Told, TellsACross) {
    draw(Meaning::Cross, {{2.5, 4, 3.5, 4}, {3, 3.5, 3, 4.5}}, kRed);
    EXPECT_EQ(told(), "Kryds i (3; 4), rød.");
}

TEST_F(Told, TellsTheMiddleOfACrossOfWhichHalfIsSeen) {
    draw(Meaning::Cross, {{9.75, 4, 10.75, 4}, {10.25, 3.5, 10.25, 4.5}}, kRed);
    EXPECT_EQ(told(), "Kryds i (10.25; 4), rød.");
}

TEST_F(Told, TellsTheHeadOfAnArrow) {
    draw(Meaning::Arrowhead, {{3, 4, 2.5, 3.5}, {3, 4, 3.5, 3.5}}, kGreen);
    EXPECT_EQ(told(), "Pilespids ved (3; 4), grøn.");
}

TEST_F(Told, TellsAMarkByItsMiddle) {
    draw(Meaning::Dash, {{3, -0.5, 3, 0.5}}, kRed);
    EXPECT_EQ(told(), "Mærke i (3; 0), rød.");
}

TEST_F(Told, TellsMarksSideBySideEachByItself) {
    for (const double x : {3.0, 3.1, 3.2}) {
        draw(Meaning::Dash, {{x, -0.5, x, 0.5}}, kRed);
    }
    EXPECT_EQ(told(), "Mærke i (3; 0), rød. Mærke i (3.1; 0), rød. Mærke i (3.2; 0), rød.");
}

TEST_F(Told, TellsAShortLineAsALine) {
    box.Line(3, -0.5, 3, 0.5, kRed);
    EXPECT_EQ(told(), "Linie fra (3; -0.5) til (3; 0.5), rød.");
}

TEST_F(Told, TellsTheEndsOfALongLineOfWhichLittleIsSeen) {
    box.Line(-10, 9.5, 10, 29.5, kRed);
    EXPECT_EQ(told(), "Linie fra (-10; 9.5) til (-9.5; 10), rød.");
    box.Cls();
    box.Line(-20, 0, 0, -20, kRed);
    EXPECT_EQ(told(), "Linie fra (-10; -10) til (-10; -10), rød.");
}

TEST_F(Told, TakesAMarkDrawnTwiceForOne) {
    draw(Meaning::Dash, {{3, -0.5, 3, 0.5}}, kRed);
    draw(Meaning::Dash, {{3, -0.5, 3, 0.5}}, kRed);
    EXPECT_EQ(told(), "Mærke i (3; 0), rød.");
}

TEST_F(Told, TellsTheMarkOfAnEndByItsMiddle) {
    repeat(Meaning::Square, 7, 0.05, [this](double t) { box.Line(2.85, 3.85 + t, 3.15, 3.85 + t, kRed); });
    EXPECT_EQ(told(), "Mærke ved (3; 4), rød.");
}

TEST_F(Told, TellsTheMiddleOfAMarkOfWhichHalfIsSeen) {
    repeat(Meaning::Square, 7, 0.05, [this](double t) { box.Line(9.85, 3.85 + t, 10.15, 3.85 + t, kRed); });
    EXPECT_EQ(told(), "Mærke ved (10; 4), rød.");
}

TEST_F(Told, TellsAThickLineByItsMiddle) {
    repeat(Meaning::ThickLine, 5, 0.05, [this](double t) { box.Line(1, 4.9 + t, 8, 4.9 + t, kBlue); });
    EXPECT_EQ(told(), "Tyk linie fra (1; 5) til (8; 5), blå.");
    box.Cls();
    repeat(Meaning::ThickLine, 5, 0.05, [this](double t) { box.Line(4.9 + t, 1, 4.9 + t, 8, kBlue); });
    EXPECT_EQ(told(), "Tyk linie fra (5; 1) til (5; 8), blå.");
}

TEST_F(Told, TellsAShortThickLineAsALine) {
    repeat(Meaning::ThickLine, 5, 0.05, [this](double t) { box.Line(1, 4.9 + t, 1.5, 4.9 + t, kBlue); });
    EXPECT_EQ(told(), "Tyk linie fra (1; 5) til (1.5; 5), blå.");
}

TEST_F(Told, TakesALineWithoutLengthForAMark) {
    box.Line(3, 4, 3, 4, kRed);
    repeat(Meaning::ThickLine, 5, 0.05, [this](double t) { box.Line(1, 4.9 + t, 1, 4.9 + t, kBlue); });
    EXPECT_EQ(told(), "Mærke i (3; 4), rød. Mærke ved (1; 5), blå.");
}

TEST_F(Told, TellsAHatching) {
    repeat(Meaning::Hatching, 400, 0.01, [this](double t) { box.Line(1 + t, 0, 1 + t, 2 + t, kBlue); });
    EXPECT_EQ(told(), "Skraveret område fra x = 1 til x = 5, mellem y = 0 og y = 5.99, blå.");
}

TEST_F(Told, TellsAFlatHatchingAsAHatching) {
    repeat(Meaning::Hatching, 100, 0.01, [this](double t) { box.Line(2 + t, 0, 2 + t, -0.5, kBlue); });
    EXPECT_EQ(told(), "Skraveret område fra x = 2 til x = 3, mellem y = -0.5 og y = 0, blå.");
}

TEST_F(Told, TellsABrokenLineWithItsCorners) {
    draw(Meaning::Line, {{0, 8, 4, 4}, {4, 4, 10, 1}}, kGreen);
    EXPECT_EQ(told(), "Knækket linie gennem (0; 8), (4; 4) og (10; 1), grøn.");
}

TEST_F(Told, TellsFivePiecesCornerByCornerAndSixAsACurve) {
    std::vector<QLineF> pieces;
    for (int x = 0; x < 5; ++x) {
        pieces.emplace_back(x, x * x % 5, x + 1, (x + 1) * (x + 1) % 5);
    }
    draw(Meaning::Line, pieces, kBlue);
    EXPECT_EQ(told().find("Kurve"), std::string::npos) << told();
    box.Cls();
    pieces.emplace_back(5, 0, 6, 1);
    draw(Meaning::Line, pieces, kBlue);
    EXPECT_EQ(told().find("Kurve af 6 streger"), 0U) << told();
}

TEST_F(Told, PassesByAPieceWithoutLength) {
    draw(Meaning::Line, {{0, 8, 0, 8}, {0, 8, 10, 1}}, kGreen);
    EXPECT_EQ(told(), "Linie fra (0; 8) til (10; 1), grøn.");
}

TEST_F(Told, TellsThePiecesOfALineWithAGapApart) {
    draw(Meaning::Line, {{0, 8, 4, 4}, {4, 3.9, 10, 1}}, kGreen);
    EXPECT_EQ(told(), "Linie fra (0; 8) til (4; 4), grøn. Linie fra (4; 3.9) til (10; 1), grøn.");
}

TEST_F(Told, KeepsTwoLinesApartThatMeet) {
    box.Line(0, 8, 4, 4, kGreen);
    box.Line(4, 4, 10, 1, kGreen);
    EXPECT_EQ(told(), "Linie fra (0; 8) til (4; 4), grøn. Linie fra (4; 4) til (10; 1), grøn.");
}

TEST_F(Told, TellsStrokesThatBelongToNoFigureEachByItself) {
    const GraphScale scale = box.scale();
    EXPECT_EQ(describe({{Stroke::Kind::Line, 1, 2, 3, 4, kRed, LineStyle::Solid, 1, scale},
                        {Stroke::Kind::Line, 5, 6, 7, 8, kBlue, LineStyle::Solid, 1, scale}},
                       scale),
              "Vandret akse fra -10 til 10, lodret akse fra -10 til 10. "
              "Linie fra (1; 2) til (3; 4), rød. Linie fra (5; 6) til (7; 8), blå.");
}

TEST_F(Told, KeepsLinesOfTwoColoursApart) {
    box.Line(0, 8, 4, 4, kGreen);
    box.Line(4, 4, 10, 1, kRed);
    EXPECT_EQ(told(), "Linie fra (0; 8) til (4; 4), grøn. Linie fra (4; 4) til (10; 1), rød.");
}

TEST_F(Told, TellsACurveInOneSentenceWithItsTurns) {
    plotCurve(box, [](double x) { return x * x - 4 * x; }, {.start = -1, .step = 0.5, .largest = 9});
    EXPECT_EQ(told(), "Kurve af 15 streger fra (-1; 5) til (5.73; 10), lavest ved (2; -4), sort.");
}

TEST_F(Told, TellsHowACurveLeavesTheGraphAndComesBack) {
    plotCurve(box, [](double x) { return x * x * x - 12 * x; }, {.start = -4, .step = 0.25, .largest = 25});
    EXPECT_EQ(told(),
              "Kurve af 34 streger fra (-3.82; -10) til (-2.92; 10), fra (-0.9; 10) til (0.9; -10) "
              "og fra (2.92; -10) til (3.82; 10), sort.");
}

TEST_F(Told, TellsADottedCurve) {
    repeat(Meaning::DottedCurve, 300, 0.01, [this](double t) { box.PSet(1 + t, 2 + t); });
    EXPECT_EQ(told(), "Prikket kurve fra (1; 2) til (3.99; 4.99), sort.");
}

TEST_F(Told, TellsTwoDottedCurvesWhereOneJumps) {
    repeat(Meaning::DottedCurve, 100, 0.01, [this](double t) { box.PSet(1 + t, 2 + t); });
    repeat(Meaning::DottedCurve, 100, 0.01, [this](double t) { box.PSet(2 + t, 8 - t); });
    EXPECT_EQ(told(),
              "Prikket kurve fra (1; 2) til (1.99; 2.99), sort. "
              "Prikket kurve fra (2; 8) til (2.99; 7.01), sort.");
}

TEST_F(Told, TellsFourTurnsOfACurve) {
    // Level between a rise and a fall, each by less than 1, by 1 and by more.
    const std::vector<double> heights{0, 0.5, 0.5, -0.5, 1.5, 1, 2, -1, 3, 3};
    std::vector<QLineF> pieces;
    for (std::size_t i = 1; i < heights.size(); ++i) {
        const auto x = static_cast<double>(i);
        pieces.emplace_back(x - 1, heights[i - 1], x, heights[i]);
    }
    draw(Meaning::Line, pieces, kRed);
    EXPECT_EQ(told(),
              "Kurve af 9 streger fra (0; 0) til (9; 3), højest ved (2; 0.5), lavest ved (3; -0.5), "
              "højest ved (4; 1.5), lavest ved (5; 1), rød.");
}

TEST_F(Told, TellsTheFirstFourRunsOfACurve) {
    std::vector<QLineF> pieces;
    for (int x = -9; x < -3; ++x) {
        pieces.emplace_back(x, x, x + 0.5, x);
    }
    draw(Meaning::Line, pieces, kRed);
    EXPECT_EQ(told(),
              "Kurve af 6 streger fra (-9; -9) til (-8.5; -9), fra (-8; -8) til (-7.5; -8), "
              "fra (-7; -7) til (-6.5; -7) og fra (-6; -6) til (-5.5; -6), rød.");
}

TEST_F(Told, TellsAHatchingOfOneLineAndOfTwo) {
    repeat(Meaning::Hatching, 1, 0.5, [this](double t) { box.Line(1 + t, 0, 1 + t, 2, kBlue); });
    EXPECT_EQ(told(), "Skraveret område fra x = 1 til x = 1, mellem y = 0 og y = 2, blå.");
    box.Cls();
    repeat(Meaning::Hatching, 2, 0.5, [this](double t) { box.Line(1 + t, 0, 1 + t, 2, kBlue); });
    EXPECT_EQ(told(), "Skraveret område fra x = 1 til x = 2, mellem y = 0 og y = 2, blå.");
}

TEST_F(Told, TellsTicksFromTwoOn) {
    drawAxes(box, {.scale = box.scale(),
                   .level = {-10, 10},
                   .upright = {10, -10},
                   .ticks = {{.along = Along::X, .from = 3, .before = 8, .step = 4, .offAxis = {0.1}},
                             {.along = Along::Y, .from = 3, .before = 4, .offAxis = {0.1}}}});
    EXPECT_EQ(told(), "Mærker for hver 4 på den vandrette akse. Ellers tom.");
}

TEST_F(Told, TellsAllOfTwentyFourAndOfMoreTheFirstAndTheLast) {
    const auto pointsFrom = [](int first, int last) {
        std::string text;
        for (int i = first; i <= last; ++i) {
            text += "Punkt i (" + std::to_string(i % 10) + "; " + std::to_string(i / 10) + "), rød.";
            text += i < last ? " " : "";
        }
        return text;
    };
    const auto drawUpTo = [this](int last) {
        box.Cls();
        for (int i = 1; i <= last; ++i) {
            box.PSet(i % 10, i / 10, kRed);
        }
    };
    drawUpTo(24);
    EXPECT_EQ(told(), pointsFrom(1, 24));
    drawUpTo(25);
    EXPECT_EQ(told(), pointsFrom(1, 12) + " Derefter 1 andre. " + pointsFrom(14, 25));
    drawUpTo(60);
    EXPECT_EQ(told(), pointsFrom(1, 12) + " Derefter 36 andre. " + pointsFrom(49, 60));
}

TEST_F(Told, LeavesTheMiddleOutOfVeryMany) {
    repeat(500, 1, [this](double t) { box.Line(-9, t / 100, 9, 9 - t / 60, kRed); });
    const std::string words = told();
    EXPECT_LT(words.size(), 1500U);
    EXPECT_NE(words.find(" Derefter "), std::string::npos) << words;
    EXPECT_NE(words.find(" andre. "), std::string::npos) << words;
    EXPECT_EQ(words.rfind("Linie fra (-9; 0) til (9; 9), rød.", 0), 0U) << words;
}

}  // namespace
}  // namespace tavrune
