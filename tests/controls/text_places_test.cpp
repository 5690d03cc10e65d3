#include "controls/text_places.h"

#include <QFontMetricsF>
#include <QImage>

#include <gtest/gtest.h>

#include "support/sheet.h"

namespace tavrune {
namespace {

using test::Sheet;

/// Where there is anything dark on a label, within its parent.
QRectF paintedOn(Label& label) {
    const QImage image = label.grab().toImage();
    QRect found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 128) {
                found |= QRect(x, y, 1, 1);
            }
        }
    }
    return QRectF(found).translated(label.place().topLeft());
}

class TextPlacesOf : public testing::TestWithParam<Qt::Alignment> {
protected:
    Sheet sheet;
    Label& label = sheet.addCentred("   HH  ", {30, 20, 140, 60});

    void SetUp() override {
        label.setAlignment(GetParam());
        label.setTextSize(24);
    }
};

INSTANTIATE_TEST_SUITE_P(Alignments, TextPlacesOf,
                         testing::Values(Qt::AlignLeft | Qt::AlignTop, Qt::AlignHCenter | Qt::AlignTop,
                                         Qt::AlignRight | Qt::AlignTop, Qt::AlignLeft | Qt::AlignVCenter));

TEST_P(TextPlacesOf, ALabelAreWhereItsLettersArePainted) {
    const QRectF painted = paintedOn(label);
    const QRectF ink = extentOf(label).ink;
    // An H has a little white on both sides, and letters begin at whole pixels.
    EXPECT_NEAR(ink.left(), painted.left(), 3.5);
    EXPECT_NEAR(ink.right(), painted.right(), 3.5);
    EXPECT_NEAR(ink.top(), painted.top(), 1.5);
    EXPECT_NEAR(ink.bottom(), painted.bottom(), 1.5);
}

TEST_P(TextPlacesOf, ALabelHaveRoomForItsBlanksAndForAllLetters) {
    const TextExtent extent = extentOf(label);
    const double blank = QFontMetricsF(label.unzoomedFont()).horizontalAdvance(' ');
    EXPECT_DOUBLE_EQ(extent.ink.left() - extent.line.left(), 3 * blank);
    EXPECT_DOUBLE_EQ(extent.line.right() - extent.ink.right(), 2 * blank);
    EXPECT_LT(extent.line.top(), extent.ink.top());
    EXPECT_GT(extent.line.bottom(), extent.ink.bottom());
    EXPECT_NEAR(extent.line.height(), QFontMetricsF(label.unzoomedFont()).height(), 2);
}

TEST_P(TextPlacesOf, ALabelAreFoundByWhatStandsThere) {
    const TextPlaces places(label);
    const QRectF ink = extentOf(label).ink;
    const QRectF second(ink.center().x(), ink.top(), ink.width() / 2, ink.height());
    EXPECT_EQ(places.at(second).boundary, 4);
    EXPECT_EQ(places.at(second).first, 4);
    EXPECT_FALSE(places.at(second).isBlank);
}

/// A box round a height, as wide as a letter.
QRectF at(double left, double middle) { return {left, middle - 4, 5, 8}; }

TEST(TextPlaces, AreRunsOfBlanksFromEndToEnd) {
    Sheet sheet;
    const Label& label = sheet.add("   Q    R  ", 10, 10);
    const TextPlaces places(label);
    const auto gapAt = [&](const QString& before) {
        const TextPlaces::Gap gap =
            places.at(at(10 + QFontMetricsF(label.unzoomedFont()).horizontalAdvance(before), 17));
        return std::tuple{gap.isBlank, gap.first, gap.length, gap.boundary};
    };
    EXPECT_EQ(gapAt(" "), (std::tuple{true, 0, 3, 1}));
    EXPECT_EQ(gapAt("   "), (std::tuple{false, 3, 0, 3}));
    EXPECT_EQ(gapAt("   Q "), (std::tuple{true, 4, 4, 5}));
    EXPECT_EQ(gapAt("   Q    R"), (std::tuple{true, 9, 2, 9}));
}

TEST(TextPlaces, AreWithinTheTextWhateverStandsBesideIt) {
    Sheet sheet;
    const TextPlaces places(sheet.add(" Q  ", 100, 10));
    const TextPlaces::Gap before = places.at(at(10, 17));
    EXPECT_TRUE(before.isBlank);
    EXPECT_EQ(before.first, 0);
    EXPECT_EQ(before.boundary, 0);
    const TextPlaces::Gap behind = places.at(at(300, 17));
    EXPECT_FALSE(behind.isBlank);
    EXPECT_EQ(behind.boundary, 4);
}

TEST(TextPlaces, AreInTheLineThatIsNearest) {
    Sheet sheet;
    Label& label = sheet.addCentred("Q R\nQ R\nQ R", {10, 10, 200, 100});
    const double pitch = extentOf(sheet.add("Q")).line.height();
    for (const bool isCentred : {false, true}) {
        label.setAlignment(Qt::AlignLeft | (isCentred ? Qt::AlignVCenter : Qt::AlignTop));
        const TextPlaces places(label);
        const double top = isCentred ? 60 - 1.5 * pitch : 10;
        EXPECT_EQ(places.at(at(0, 0)).boundary, 0);
        for (int line = 0; line < 3; ++line) {
            for (const double within : {0.1, 0.9}) {
                EXPECT_EQ(places.at(at(0, top + (line + within) * pitch)).boundary, 4 * line) << line;
            }
        }
        EXPECT_EQ(places.at(at(0, 400)).boundary, 8);
    }
}

TEST(TextPlaces, AreInBrokenLinesOnlyIfTheLabelBreaksThem) {
    Sheet sheet;
    Label& label = sheet.addWrapped("lang lang lang", {10, 10, 40, 60});
    const double pitch = extentOf(sheet.add("Q")).line.height();
    EXPECT_EQ(TextPlaces(label).at(at(10, 10 + 1.5 * pitch)).boundary, 5);
    label.setWordWrap(false);
    EXPECT_EQ(TextPlaces(label).at(at(10, 10 + 1.5 * pitch)).boundary, 0);
}

}  // namespace
}  // namespace tavrune
