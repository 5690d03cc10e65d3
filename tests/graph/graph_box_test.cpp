#include "graph/graph_box.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

#include "controls/label.h"
#include "support/painting.h"
#include "support/strokes.h"

namespace tavrune {
namespace {

/// A box of 100 by 100 units, scaled from (-10, 10) to (10, -10): 5 units to one of the scale.
class Box : public testing::Test {
protected:
    void SetUp() override {
        box.setPlace({0, 0, 100, 100});
        box.Scale(-10, 10, 10, -10);
    }

    [[nodiscard]] QImage picture() { return box.grab().toImage(); }

    [[nodiscard]] int inked(const QColor& colour) {
        const QImage image = picture();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixelColor(x, y) == colour ? 1 : 0;
            }
        }
        return count;
    }

    GraphBox box;
};

TEST_F(Box, KeepsALineWithAllThatItWasDrawnWith) {
    box.DrawStyle(LineStyle::Dotted);
    box.DrawWidth(3);
    box.Line(1, 2, 3, 4, kGreen);
    ASSERT_EQ(box.strokes().size(), 1U);
    const Stroke& s = box.strokes().at(0);
    EXPECT_EQ(s, (Stroke{Stroke::Kind::Line, 1, 2, 3, 4, kGreen, LineStyle::Dotted, 3, {-10, 10, 10, -10}}));
}

TEST_F(Box, KeepsAPoint) {
    box.PSet(1.5, -2);
    EXPECT_EQ(
        box.strokes().at(0),
        (Stroke{Stroke::Kind::Point, 1.5, -2, 1.5, -2, kBlack, LineStyle::Solid, 1, {-10, 10, 10, -10}}));
}

TEST_F(Box, DrawsBlackAndThinAndSolidUntilToldOtherwise) {
    box.Line(0, 0, 1, 1);
    const Stroke& s = box.strokes().at(0);
    EXPECT_EQ(s.colour, kBlack);
    EXPECT_EQ(s.width, 1);
    EXPECT_EQ(s.style, LineStyle::Solid);
}

TEST_F(Box, DrawsAChannelOf256As255) {
    box.Line(0, 10, 0, -10, rgb(0, 256, 0));
    EXPECT_EQ(box.strokes().at(0).colour, QColor(0, 255, 0));
    EXPECT_EQ(inked(QColor(0, 255, 0)), 100);
}

TEST_F(Box, TakesCoordinatesAsSingles) {
    box.PSet(0.1, 1.0 / 3);
    EXPECT_EQ(box.strokes().at(0).x1, 0.1F);
    EXPECT_EQ(box.strokes().at(0).y1, 1.0F / 3);
}

TEST_F(Box, KeepsItsScaleWhenCleared) {
    box.DrawWidth(3);
    box.Line(0, 0, 1, 1);
    box.Cls();
    EXPECT_TRUE(box.strokes().empty());
    EXPECT_EQ(box.scale(), (GraphScale{-10, 10, 10, -10}));
    box.Line(0, 0, 1, 1);
    EXPECT_EQ(box.strokes().at(0).width, 3);
}

TEST_F(Box, KeepsWhatWasDrawnWhenScaledAnew) {
    box.Line(0, 0, 1, 1);
    box.Scale(0, 100, 100, 0);
    box.Line(0, 0, 1, 1);
    EXPECT_EQ(box.strokes().at(0).scale, (GraphScale{-10, 10, 10, -10}));
    EXPECT_EQ(box.strokes().at(1).scale, (GraphScale{0, 100, 100, 0}));
}

TEST_F(Box, HasTheScaleOfItsTwipsUntilItIsScaled) {
    GraphBox plain;
    plain.setPlace({0, 0, 187, 10});
    EXPECT_EQ(plain.scale(), (GraphScale{0, 0, 2805, 150}));
}

TEST_F(Box, HasTheScaleOfItsDesign) {
    box.setDesignScale(QRectF(0, 0, 20, 15));
    EXPECT_EQ(box.scale(), (GraphScale{0, 0, 20, 15}));
}

TEST_F(Box, CountsUpFromTheLowerBorderWhereItIsToldTo) {
    box.Scale(0, 0, 20, 15);
    box.setCountsUp(true);
    box.Line(1, 12.3, 8, 4);
    box.PSet(3, 2, kBlue);
    box.Line({1, 5, 0.15}, {2, 5, -0.15}, kRed);
    const test::StrokesIn in{{0, 0, 20, 15}};
    EXPECT_EQ(box.scale(), in.scale);
    EXPECT_EQ(box.strokes(), (std::vector<Stroke>{in.line(1, 15 - 12.3, 8, 11), in.point(3, 13, kBlue),
                                                  in.line(1, 9.85, 2, 10.15, kRed)}));
    Label number(&box);
    box.place(number, 10, 12);
    EXPECT_EQ(number.place().topLeft(), QPointF(50, 20));
}

TEST_F(Box, MovesAnEndUpByTheLastDigitsOfItsOwnScale) {
    box.Scale(0, 0, 10, 10);
    box.setCountsUp(true);
    constexpr double kTiny = 0x1p-56;
    box.Line({1, 10, kTiny}, {2, 10, kTiny}, kRed);
    EXPECT_EQ(box.strokes().back().y1, -0x1p-56F);
}

TEST_F(Box, MovesAnEndUpWhereYGrowsUpwards) {
    box.Line({1, 5, 0.5}, {2, 5, -0.5}, kRed);
    EXPECT_EQ(box.strokes(), std::vector{(test::StrokesIn{box.scale()}.line(1, 5.5, 2, 4.5, kRed))});
}

TEST_F(Box, TakesWhatIsNoFigureForALineOrAPointOfItsOwn) {
    box.Line(1, 2, 3, 4);
    box.PSet(1, 2);
    EXPECT_EQ(box.strokes().at(0).meaning, Meaning::Line);
    EXPECT_EQ(box.strokes().at(0).figure, 0U);
    EXPECT_EQ(box.strokes().at(1).meaning, Meaning::Point);
    EXPECT_EQ(box.strokes().at(1).figure, 0U);
}

TEST_F(Box, KnowsTheFigureOfEachStroke) {
    for (const Meaning meaning : {Meaning::Cross, Meaning::Hatching}) {
        const Figure figure(box, meaning);
        box.Line(1, 2, 3, 4);
        box.PSet(1, 2);
    }
    box.Line(1, 2, 3, 4);
    const std::vector<Stroke>& strokes = box.strokes();
    ASSERT_EQ(strokes.size(), 5U);
    EXPECT_EQ(strokes[0].meaning, Meaning::Cross);
    EXPECT_EQ(strokes[1].meaning, Meaning::Cross);
    EXPECT_EQ(strokes[2].meaning, Meaning::Hatching);
    EXPECT_EQ(strokes[4].meaning, Meaning::Line);
    EXPECT_EQ(strokes[0].figure, strokes[1].figure);
    EXPECT_NE(strokes[1].figure, strokes[2].figure);
    EXPECT_EQ(strokes[2].figure, strokes[3].figure);
    EXPECT_EQ(strokes[4].figure, 0U);
}

TEST_F(Box, TakesAFigureWithinAnotherForAPartOfIt) {
    {
        const Figure whole(box, Meaning::Hatching);
        {
            const Figure part(box, Meaning::Cross);
            box.Line(1, 2, 3, 4);
        }
        box.Line(3, 4, 5, 6);
    }
    EXPECT_EQ(box.strokes().at(0).meaning, Meaning::Hatching);
    EXPECT_EQ(box.strokes().at(1).meaning, Meaning::Hatching);
    EXPECT_EQ(box.strokes().at(0).figure, box.strokes().at(1).figure);
}

TEST_F(Box, FindsStrokesEqualThatLookTheSameWhateverTheyMean) {
    const Stroke line{Stroke::Kind::Line, 1, 2, 3, 4, kRed, LineStyle::Solid, 1, {0, 1, 1, 0}};
    Stroke other = line;
    other.meaning = Meaning::Cross;
    other.figure = 7;
    EXPECT_EQ(line, other);
    const auto differs = [&line](auto change) {
        Stroke changed = line;
        change(changed);
        return changed != line;
    };
    EXPECT_TRUE(differs([](Stroke& s) { s.kind = Stroke::Kind::Point; }));
    EXPECT_TRUE(differs([](Stroke& s) { s.x1 = 9; }));
    EXPECT_TRUE(differs([](Stroke& s) { s.y1 = 9; }));
    EXPECT_TRUE(differs([](Stroke& s) { s.x2 = 9; }));
    EXPECT_TRUE(differs([](Stroke& s) { s.y2 = 9; }));
    EXPECT_TRUE(differs([](Stroke& s) { s.colour = kBlue; }));
    EXPECT_TRUE(differs([](Stroke& s) { s.style = LineStyle::Dotted; }));
    EXPECT_TRUE(differs([](Stroke& s) { s.width = 2; }));
    EXPECT_TRUE(differs([](Stroke& s) { s.scale.y2 = 9; }));
}

TEST_F(Box, KeepsADoubledTickOnceWhereItIsToldTo) {
    box.setKeepsOnce(true);
    for (int exercise = 0; exercise < 1000; ++exercise) {
        box.Line(0, 1, 0, 2);
        box.Line(1, 1, 1, 2);
    }
    EXPECT_EQ(box.strokes().size(), 2U);
}

/// Few strokes are painted anew each time, of more a picture is kept: what is seen is the same.
class PaintedBox : public Box, public testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        Box::SetUp();
        fillUp();
    }

    /// Draws so much beside the box that it keeps a picture, if it is to.
    void fillUp() {
        for (std::size_t i = 0; GetParam() && i <= kFewStrokes; ++i) {
            box.Line(20, 20, 21, 20, kBlue);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Ways, PaintedBox, testing::Bool(),
                         [](const auto& way) { return way.param ? "FromAPicture" : "Anew"; });

TEST_P(PaintedBox, PaintsAnUprightLineOnePixelWide) {
    box.Line(0, 10, 0, -10, kGreen);
    EXPECT_EQ(inked(kGreen), 100);
    EXPECT_EQ(picture().pixelColor(50, 20), kGreen);
}

TEST_P(PaintedBox, PaintsALineOnItsOwnBorder) {
    box.Line(-10, -10, 10, -10, kGreen);
    EXPECT_EQ(inked(kGreen), 100);
    EXPECT_EQ(picture().pixelColor(20, 99), kGreen);
}

TEST_P(PaintedBox, PaintsOnlyTheVisiblePartOfALine) {
    box.Line(-1000, 0, 1000, 0, kGreen);
    EXPECT_EQ(inked(kGreen), 100);
}

TEST_P(PaintedBox, PaintsTheSmallPiecesOfACurveAsOneSmoothLine) {
    // 400 pieces, each a quarter of a pixel wide, look like the one line that they make up.
    for (int piece = 0; piece < 400; ++piece) {
        const float x = -10 + 0.05F * static_cast<float>(piece);
        const float next = -10 + 0.05F * static_cast<float>(piece + 1);
        box.Line(x, x / 2, next, next / 2, kGreen);
    }
    const QImage curve = picture();
    box.Cls();
    fillUp();
    box.Line(-10, -5, 10, 5, kGreen);
    const QImage line = picture();
    int unlike = 0;
    for (int y = 0; y < line.height(); ++y) {
        for (int x = 0; x < line.width(); ++x) {
            unlike += std::abs(curve.pixelColor(x, y).red() - line.pixelColor(x, y).red()) > 64 ? 1 : 0;
        }
    }
    EXPECT_LT(unlike, 10);
}

TEST_P(PaintedBox, PaintsAPointAsWideAsItsPen) {
    box.PSet(2, 2, kGreen);
    EXPECT_EQ(inked(kGreen), 1);
    box.DrawWidth(3);
    box.PSet(-5, 5, kGreen);
    EXPECT_EQ(inked(kGreen), 10);
    EXPECT_EQ(picture().pixelColor(25, 25), kGreen);
}

TEST_P(PaintedBox, PaintsDotsWithGaps) {
    box.DrawStyle(LineStyle::Dotted);
    box.Line(0, 10, 0, -10, kGreen);
    const int ink = inked(kGreen);
    EXPECT_GT(ink, 20);
    EXPECT_LT(ink, 80);
}

TEST_P(PaintedBox, OverdrawsTheOldByTheNew) {
    box.Line(0, 10, 0, -10, kRed);
    box.Line(0, 10, 0, -10, kGreen);
    EXPECT_EQ(inked(kRed), 0);
    EXPECT_EQ(inked(kGreen), 100);
}

TEST_P(PaintedBox, PaintsWhatIsAddedAfterAPaintAndNothingAfterClearing) {
    box.Line(0, 10, 0, -10, kGreen);
    EXPECT_EQ(inked(kGreen), 100);
    box.Line(5, 10, 5, -10, kGreen);
    EXPECT_EQ(inked(kGreen), 200);
    box.Cls();
    EXPECT_EQ(inked(kGreen), 0);
    EXPECT_EQ(inked(kWhite), 100 * 100);
}

TEST_P(PaintedBox, TakesNumbersOfAnySize) {
    const double infinity = std::numeric_limits<double>::infinity();
    const std::size_t before = box.strokes().size();
    for (const double x : {1e300, -1e300, 1e38, infinity, -infinity, std::nan("")}) {
        box.Line(x, x, 0, 0, kGreen);
        box.Line(0, -x, x, 3, kGreen);
        box.PSet(x, 0, kGreen);
    }
    box.Line(0, 0, infinity, 0, kRed);
    EXPECT_EQ(box.strokes().size(), before + 19);
    EXPECT_EQ(inked(kRed), 50);
}

TEST_P(PaintedBox, TakesAScaleWithoutAnExtent) {
    box.Scale(0, 0, 0, 0);
    box.Line(0, 0, 1, 1, kGreen);
    box.PSet(0, 0, kGreen);
    EXPECT_FALSE(picture().isNull());
}

TEST_P(PaintedBox, PaintsCrisplyAtEveryPixelRatio) {
    box.Line(0, 10, 0, -10, kGreen);
    box.setZoom(2);
    EXPECT_EQ(picture().width(), 200);
    // Twice as long and twice as wide, in just its colour.
    EXPECT_EQ(inked(kGreen), 400);
}

TEST_P(PaintedBox, FillsWholePixelsOfTheScreenAtEveryRatio) {
    box.Line(0, 10, 0, -10, kGreen);
    const double ratio = box.devicePixelRatioF();
    const int side = qRound(100 * ratio);
    EXPECT_EQ(picture().height(), side);
    EXPECT_EQ(inked(kGreen), side * qRound(ratio));
    EXPECT_EQ(inked(kWhite), side * (side - qRound(ratio)));
    box.setZoom(1.73);
    EXPECT_EQ(inked(kGreen), picture().height() * qRound(1.73 * ratio));
}

TEST_P(PaintedBox, LooksTheSameEitherWay) {
    const auto draw = [this] {
        box.Line(-10, 0, 10, 0);
        box.Line(-3, 10, -3, -10, kRed);
        box.DrawWidth(3);
        box.Line(-9, 4, 9, 4, kGreen);
        box.PSet(5, -5, kBlue);
        box.DrawWidth(1);
        box.setFramed(true);
    };
    for (const double zoom : {1.0, 1.37, 3.0}) {
        box.Cls();
        box.setZoom(zoom);
        draw();
        const QImage few = picture();
        fillUp();
        EXPECT_EQ(picture(), few) << zoom;
    }
}

TEST_F(Box, PlacesTextByItsScale) {
    Label label(&box);
    label.setPlace({0, 0, 20, 10});
    box.place(label, 4.7, -0.2);
    EXPECT_NEAR(label.place().left(), 73.5, 1e-4);
    EXPECT_NEAR(label.place().top(), 51, 1e-4);
    EXPECT_NEAR(box.leftOf(label), 4.7, 1e-6);
    EXPECT_NEAR(box.widthOf(label), 4, 1e-6);
    EXPECT_NEAR(box.rightOf(label), 8.7, 1e-6);
    box.setWidthOf(label, 1);
    EXPECT_NEAR(label.place().width(), 5, 1e-6);
    box.placeLeft(label, 0);
    EXPECT_NEAR(label.place().left(), 50, 1e-6);
    EXPECT_NEAR(label.place().top(), 51, 1e-4);
}

TEST_F(Box, KeepsAPictureOfMoreThanAFewStrokes) {
    const auto isPicture = [this] {
        const std::vector<std::string> painted = test::painting(box);
        return std::ranges::any_of(painted,
                                   [](const std::string& line) { return line.starts_with("picture"); });
    };
    for (std::size_t i = 0; i < kFewStrokes; ++i) {
        box.PSet(1, 1);
    }
    EXPECT_FALSE(isPicture());
    box.PSet(1, 1);
    EXPECT_TRUE(isPicture());
}

TEST_P(PaintedBox, IsPaintedFromTheFirstStrokeOnWhereItsSizeHasChanged) {
    box.Cls();
    box.Line(0, 10, 0, -10, kGreen);
    fillUp();
    EXPECT_GT(inked(kGreen), 0);
    box.setZoom(2);
    EXPECT_GT(inked(kGreen), 0);
}

TEST_F(Box, IsPaintedAnewOnceSomethingIsDrawnOrClearedOrFramed) {
    box.show();
    EXPECT_FALSE(test::isPaintedAfter(box, [] {}));
    EXPECT_TRUE(test::isPaintedAfter(box, [this] { box.Line(0, 0, 1, 1); }));
    EXPECT_TRUE(test::isPaintedAfter(box, [this] { box.Cls(); }));
    EXPECT_TRUE(test::isPaintedAfter(box, [this] { box.setFramed(true); }));
}

/// What stands on a box at such a place of a page, in pixels of the screen, but for its edge.
QImage pictureAt(int place) {
    QWidget page;
    GraphBox box(&page);
    page.resize(140, 140);
    box.setPlace({0, 0, 100, 100});
    box.move(place, place);
    box.Scale(-10, 10, 10, -10);
    box.Line(0, 10, 0, -10, kGreen);
    box.Line(-10, 3, 10, 3, kRed);
    box.Line(-10, -10, 10, 10, kBlue);
    box.PSet(-5, 5);
    const QImage whole = page.grab().toImage();
    const double ratio = whole.devicePixelRatio();
    QImage part = whole.copy(qRound(place * ratio) + 3, qRound(place * ratio) + 3, qFloor(90 * ratio),
                             qFloor(90 * ratio));
    part.setDevicePixelRatio(1);
    return part;
}

TEST(BoxOnAPage, LooksTheSameWhereverItStandsAtEveryRatio) {
    for (const int place : {1, 2, 3, 7}) {
        EXPECT_EQ(pictureAt(place), pictureAt(0)) << place;
    }
}

TEST(BoxOnAPage, KeepsClicksFromWhatIsBehindIt) {
    class Page : public QWidget {
    public:
        int pressed = 0;

    protected:
        void mousePressEvent(QMouseEvent* /*event*/) override { ++pressed; }
    } page;
    GraphBox box(&page);
    page.show();
    for (const bool isBare : {false, true}) {
        box.setBare(isBare);
        QTest::mousePress(&box, Qt::LeftButton);
        EXPECT_EQ(page.pressed, 0) << isBare;
    }
}

class NumberOverAnArea : public Box {
protected:
    void SetUp() override {
        Box::SetUp();
        box.DrawWidth(200);
        box.Line(-10, 0, 10, 0, kBlue);
        number.setPlace({30, 40, 60, 20});
        number.setTextSize(16);
        number.setCaption("55555");
    }

    void expectNoHalo() {
        box.show();
        EXPECT_GT(inked(kBlack), 0);
        EXPECT_EQ(inked(kWhite), 0);
    }

    Label number{&box};
};

TEST_F(NumberOverAnArea, IsReadableByItsHalo) {
    box.show();
    EXPECT_GT(inked(kBlack), 0);
    EXPECT_GT(inked(kWhite), 10);
}

TEST_F(NumberOverAnArea, HasNoHaloOnABareFrame) {
    box.setBare(true);
    expectNoHalo();
}

TEST_F(NumberOverAnArea, HasNoHaloInAHelpPanel) {
    box.setPanel(true);
    expectNoHalo();
}

TEST_F(NumberOverAnArea, HasNoHaloAsARunningText) {
    number.setWordWrap(true);
    expectNoHalo();
}

}  // namespace
}  // namespace tavrune
