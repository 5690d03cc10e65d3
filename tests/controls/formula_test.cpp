#include "controls/formula.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "support/sheet.h"

namespace tavrune {
namespace {

using test::centre;
using test::inkOf;
using test::kBit;
using test::Sheet;
using test::Words;

/// Its letters stand round this, with so much white between them and a bar.
void putOver(Label& label, double middle, double bar, double white) {
    centre(label, {middle, bar - white - inkOf(label).height() / 2});
}

void putUnder(Label& label, double middle, double bar, double white) {
    centre(label, {middle, bar + white + inkOf(label).height() / 2});
}

/// "a" over "b" with a bar between them.
class FractionWithBar : public testing::Test {
protected:
    Sheet sheet;
    Label& above = sheet.add("a");
    Label& below = sheet.add("b");
    LineControl& bar = sheet.addLine({50, 50, 80, 50});

    void SetUp() override {
        putOver(above, 65, 50, 3);
        putUnder(below, 65, 50, 3);
    }

    [[nodiscard]] bool isMade() const {
        const Words words = sheet.words();
        return std::any_of(words.begin(), words.end(),
                           [](const std::string& one) { return one.starts_with("brøk"); });
    }
};

TEST_F(FractionWithBar, HasWhatStandsOverAndUnderTheBar) {
    EXPECT_EQ(sheet.words(), Words{"brøk: a over b"});
    for (const auto put : {putOver, putUnder}) {
        Label& label = put == putOver ? above : below;
        for (const double outside : {48.0, 82.0}) {
            put(label, outside, 50, 3);
            EXPECT_FALSE(isMade()) << outside;
            put(label, outside + (outside < 65 ? kBit : -kBit), 50, 3);
            EXPECT_TRUE(isMade()) << outside;
        }
        put(label, 65, 50, 3);
    }
}

TEST_F(FractionWithBar, HasOnlyWhatIsCloseToTheBarForItsSize) {
    for (const auto put : {putOver, putUnder}) {
        Label& label = put == putOver ? above : below;
        // The other far enough, so that none is written into the other.
        put == putOver ? putUnder(below, 65, 50, 11) : putOver(above, 65, 50, 11);
        for (const double size : {11, 22}) {
            label.setTextSize(size);
            const double reach = 12 * size / 11;
            put(label, 65, 50, reach);
            EXPECT_FALSE(isMade()) << size;
            put(label, 65, 50, reach - kBit);
            EXPECT_TRUE(isMade()) << size;
            put(label, 65, 50, -2);
            EXPECT_FALSE(isMade()) << size;
            put(label, 65, 50, -2 + kBit);
            EXPECT_TRUE(isMade()) << size;
        }
        label.setTextSize(11);
        put(label, 65, 50, 3);
    }
}

TEST_F(FractionWithBar, HasNothingMuchWiderThanTheBar) {
    above.hide();
    Label& wide = sheet.addWrapped("a", {42, 30, 46, 14});
    EXPECT_FALSE(isMade());
    wide.setWidth(46 - kBit);
    EXPECT_TRUE(isMade());
}

TEST_F(FractionWithBar, HasALevelBarThatIsNotTooShort) {
    bar.setEnds({63, 50, 66, 50});
    EXPECT_FALSE(isMade());
    bar.setEnds({63, 50, 66 + kBit, 50});
    EXPECT_TRUE(isMade());
    bar.setEnds({50, 49.5, 80, 51});
    EXPECT_FALSE(isMade());
}

TEST_F(FractionWithBar, HasBothANumeratorAndADenominator) {
    above.hide();
    EXPECT_EQ(sheet.words(), Words{"b"});
    above.show();
    below.hide();
    EXPECT_EQ(sheet.words(), Words{"a"});
}

TEST_F(FractionWithBar, HasADivisionInBracketsWhereItHasNoneYet) {
    const auto wordsWith = [this](const std::string& numerator) {
        above.setCaption(numerator);
        putOver(above, 65, 50, 3);
        return sheet.words();
    };
    EXPECT_EQ(wordsWith("7/8"), Words{"brøk: parentes 7 divideret med 8 parentes slut over b"});
    EXPECT_EQ(wordsWith("(7/8)"), Words{"brøk: parentes 7 divideret med 8 parentes slut over b"});
    EXPECT_EQ(wordsWith("7-8"), Words{"brøk: 7 minus 8 over b"});
}

TEST_F(FractionWithBar, NeedsNoBracketsRoundADivisionOfAFraction) {
    Label& one = sheet.add("1");
    Label& two = sheet.add("2");
    bar.setEnds({40, 50, 90, 50});
    sheet.addLine({50, 38, 60, 38});
    putOver(one, 55, 38, 2);
    putUnder(two, 55, 38, 2);
    above.setCaption("/3");
    test::begin(above, 64, 38);
    EXPECT_EQ(sheet.words(), Words{"brøk: brøk: 1 over 2, brøk slut, divideret med 3 over b"});
}

/// How far over and under a height its row reaches, by what is read of a neighbour there.
void expectRow(Sheet& sheet, double left, double middle, double half, const std::string& row) {
    Label& next = sheet.add("P");
    const double height = inkOf(next).height();
    const double shared = 0.4 * std::min(height, 2 * half);
    for (const int side : {-1, 1}) {
        // Its middle, where it shares as little as a neighbour can.
        const double farthest = middle + side * (half - shared + height / 2);
        test::begin(next, left, farthest - side * kBit);
        EXPECT_EQ(sheet.words(), Words{row}) << side;
        test::begin(next, left, farthest + side * kBit);
        EXPECT_EQ(sheet.words().size(), 2U) << side;
    }
}

TEST_F(FractionWithBar, IsReadWithTheRowOfItsBar) {
    expectRow(sheet, 84, 50, 4, "brøk: a over b, brøk slut, P");
}

TEST_F(FractionWithBar, IsReadWithALargerRowWhereItIsLarger) {
    above.setTextSize(22);
    putOver(above, 65, 50, 3);
    expectRow(sheet, 84, 50, 8, "brøk: a over b, brøk slut, P");
}

/// "b" under a root sign.
class RootSign : public testing::Test {
protected:
    Sheet sheet;
    LineControl& hook = sheet.addLine({40, 48, 43, 54});
    LineControl& rise = sheet.addLine({43, 54, 49, 39});
    LineControl& bar = sheet.addLine({49, 39, 80, 39});
    Label& under = sheet.add("b");

    void SetUp() override { centre(under, {65, 46}); }

    [[nodiscard]] bool isMade() const { return sheet.words() == Words{"kvadratroden af b"}; }
};

TEST_F(RootSign, HasWhatStandsUnderIt) {
    EXPECT_TRUE(isMade());
    const std::vector<std::pair<QPointF, QPointF>> edges{
        {{48, 46}, {kBit, 0}}, {{81, 46}, {-kBit, 0}}, {{65, 39}, {0, kBit}}, {{65, 57}, {0, -kBit}}};
    for (const auto& [outside, inwards] : edges) {
        centre(under, outside);
        EXPECT_EQ(sheet.words(), Words{"b"}) << outside.x() << " " << outside.y();
        centre(under, outside + inwards);
        EXPECT_TRUE(isMade()) << outside.x() << " " << outside.y();
    }
}

TEST_F(RootSign, RisesToItsBar) {
    const std::vector<std::pair<QLineF, bool>> rises{
        {{40, 54, 46, 39}, false},        {{40, 54, 46 + kBit, 39}, true}, {{43, 41, 49, 39}, true},
        {{43, 41 - kBit, 49, 39}, false}, {{47, 54, 49, 39}, true},        {{47 + kBit, 54, 49, 39}, false},
        {{43, 24, 49, 39}, false}};
    for (const auto& [ends, isRise] : rises) {
        rise.setEnds(ends);
        // Near the bar, so that it is under each.
        centre(under, {65, 40});
        EXPECT_EQ(isMade(), isRise) << ends.x1() << " " << ends.y1() << " " << ends.x2();
    }
}

TEST_F(RootSign, IsMadeOfItsLines) {
    const auto isPiece = [this](const QWidget& widget) {
        const std::vector<Passage> read = sheet.read();
        return std::count(read.at(0).pieces.begin(), read.at(0).pieces.end(), &widget) == 1;
    };
    const LineControl& stray = sheet.addLine({200, 200, 220, 220});
    const LineControl& level = sheet.addLine({200, 300, 220, 300});
    EXPECT_TRUE(isPiece(rise));
    EXPECT_TRUE(isPiece(bar));
    EXPECT_FALSE(isPiece(stray));
    EXPECT_FALSE(isPiece(level));
    const std::vector<std::pair<QLineF, bool>> hooks{
        {{40, 48, 43, 54}, true},        {{36, 48, 40, 54}, false},        {{36, 48, 40 + kBit, 54}, true},
        {{41, 48, 43, 54}, true},        {{41 + kBit, 48, 43, 54}, false}, {{40, 52, 43, 54}, true},
        {{40, 52 + kBit, 43, 54}, false}};
    for (const auto& [ends, isHook] : hooks) {
        hook.setEnds(ends);
        EXPECT_EQ(isPiece(hook), isHook) << ends.x1() << " " << ends.y1() << " " << ends.x2();
    }
}

TEST_F(RootSign, BeginsWhereItRises) {
    // Farther from the letters under it than a pause is.
    Label& before = sheet.add("a");
    test::begin(before, 43 - 10 - inkOf(before).width(), 46);
    test::begin(under, 54, 46);
    EXPECT_EQ(sheet.words(), Words{"a kvadratroden af b"});
}

/// An integral sign with "5" over "2" at it.
class IntegralSign : public testing::Test {
protected:
    Sheet sheet;
    Label& sign = sheet.add("∫", 10, 0, 15);
    Label& upper = sheet.add("5");
    Label& lower = sheet.add("2");
    QRectF room;

    void SetUp() override {
        // A size whose height has whole fifths and tenths.
        for (double size = 20; static_cast<int>(extentOf(sign).line.height()) % 10 != 0 && size < 60;
             ++size) {
            sign.setTextSize(size);
        }
        sign.setTop(100 - extentOf(sign).line.height() / 2);
        room = extentOf(sign).line;
        ASSERT_EQ(static_cast<int>(room.height()) % 10, 0);
        put(upper, 2, -0.4);
        put(lower, 2, 0.4);
    }

    /// So far from the left edge, round a height in heights of the sign below its middle.
    void put(Label& limit, double left, double height, double further = 0) const {
        test::begin(limit, room.left() + left, 100 + height * room.height() + further);
    }

    [[nodiscard]] bool hasLimits() const { return sheet.words() == Words{"integralet fra 2 til 5 af"}; }
};

TEST_F(IntegralSign, HasLimitsBesideItsEnds) {
    EXPECT_TRUE(hasLimits());
    for (const int side : {-1, 1}) {
        Label& limit = side < 0 ? upper : lower;
        for (const double edge : {0.2, 0.7}) {
            const double inwards = edge < 0.5 ? kBit : -kBit;
            put(limit, 2, side * edge);
            EXPECT_FALSE(hasLimits()) << side * edge;
            put(limit, 2, side * edge, side * inwards);
            EXPECT_TRUE(hasLimits()) << side * edge;
        }
        put(limit, 0, side * 0.4);
        EXPECT_FALSE(hasLimits()) << side;
        put(limit, kBit, side * 0.4);
        EXPECT_TRUE(hasLimits()) << side;
        put(limit, room.width() + 6, side * 0.4);
        EXPECT_FALSE(hasLimits()) << side;
        put(limit, room.width() + 6 - kBit, side * 0.4);
        EXPECT_TRUE(hasLimits()) << side;
        put(limit, 2, side * 0.4);
    }
}

TEST_F(IntegralSign, HasBothLimitsOrNone) {
    upper.hide();
    EXPECT_EQ(sheet.words(), (Words{"integralet af", "2"}));
    upper.show();
    lower.hide();
    EXPECT_EQ(sheet.words(), (Words{"5", "integralet af"}));
}

TEST_F(IntegralSign, IsReadWithTheRowOfItsMiddle) {
    expectRow(sheet, room.right() + 12, 100, 4, "integralet fra 2 til 5 af P");
}

TEST_F(IntegralSign, ReachesAsFarAsItsLimits) {
    upper.setCaption("maksimum");
    put(upper, 2, -0.4);
    const double end = inkOf(upper).right();
    // Wide of the sign, so that there would be a pause.
    ASSERT_GT(end, room.right() + 14 * sign.textSize() / 11);
    sheet.addAlong("P", end + 10, 100);
    EXPECT_EQ(sheet.words(), Words{"integralet fra 2 til maksimum af P"});
}

/// "a =" beside "P1" over "P2", with no bar between these.
class FractionWithoutBar : public testing::Test {
protected:
    static constexpr double kWhite = 20;
    Sheet sheet;
    Label& upper = sheet.addCentred("P1", {100, 10, 30, 14});
    Label& lower = sheet.addCentred("P2", {100, 0, 30, 14});
    Label& beside = sheet.add("a =");

    void SetUp() override {
        separate(kWhite);
        stand(2, 0);
    }

    void separate(double white) {
        lower.setTop(0);
        lower.setTop(inkOf(upper).bottom() + white - inkOf(lower).top());
    }

    /// So far left of the upper, and so much below the middle.
    void stand(double left, double below) {
        test::begin(beside, extentOf(upper).line.left() - left - inkOf(beside).width(),
                    (inkOf(upper).bottom() + inkOf(lower).top()) / 2 + below);
    }

    [[nodiscard]] bool isMade() const { return sheet.words() == Words{"a lig med brøk: P1 over P2"}; }
};

TEST_F(FractionWithoutBar, HasOneLabelUnderTheOther) {
    EXPECT_TRUE(isMade());
    for (const int side : {-1, 1}) {
        lower.setLeft(100 + side * 2);
        EXPECT_FALSE(isMade()) << side;
        lower.setLeft(100 + side * (2 - kBit));
        EXPECT_TRUE(isMade()) << side;
        lower.setLeft(100);
        lower.setWidth(30 + side * 2);
        EXPECT_FALSE(isMade()) << side;
        lower.setWidth(30 + side * (2 - kBit));
        EXPECT_TRUE(isMade()) << side;
        lower.setWidth(30);
    }
}

TEST_F(FractionWithoutBar, HasCentredLabels) {
    for (Label* const label : {&upper, &lower}) {
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        EXPECT_FALSE(isMade());
        label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
}

TEST_F(FractionWithoutBar, HasRoomForABarButNotMuchMore) {
    const auto isMadeWith = [this](double white) {
        separate(white);
        stand(4, 0);
        return isMade();
    };
    EXPECT_FALSE(isMadeWith(3));
    EXPECT_TRUE(isMadeWith(3 + kBit));
    EXPECT_TRUE(isMadeWith(24 - kBit));
    EXPECT_FALSE(isMadeWith(24));
    upper.setTextSize(22);
    EXPECT_TRUE(isMadeWith(48 - kBit));
    EXPECT_FALSE(isMadeWith(48));
}

TEST_F(FractionWithoutBar, HasSomethingCloseBesideItsMiddle) {
    for (const int side : {-1, 1}) {
        stand(2, side * 3);
        EXPECT_FALSE(isMade()) << side;
        stand(2, side * (3 - kBit));
        EXPECT_TRUE(isMade()) << side;
    }
    stand(42, 0);
    EXPECT_EQ(sheet.words().size(), 3U);
    stand(42 - kBit, 0);
    EXPECT_EQ(sheet.words().size(), 1U);
    stand(-42, 0);
    EXPECT_EQ(sheet.words().size(), 3U);
    stand(-42 + kBit, 0);
    EXPECT_NE(sheet.words().size(), 3U);
}

TEST_F(FractionWithoutBar, MayBeFollowedByAnother) {
    const auto addBeside = [&](const std::string& caption, const Label& like, double left) {
        QRectF place = like.place();
        place.moveLeft(left);
        sheet.addCentred(caption, place);
    };
    sheet.addAlong("+", 134, inkOf(beside).center().y());
    addBeside("P3", upper, 144);
    addBeside("P4", lower, 144);
    EXPECT_EQ(sheet.words(), Words{"a lig med brøk: P1 over P2, brøk slut, plus brøk: P3 over P4"});
}

TEST(Formula, WhatLiesInALabelWithANameIsSaidByTheName) {
    Sheet sheet;
    Label& first = sheet.addAlong("5", 40, 30);
    sheet.addAlong("før", 10, 5);
    Label& named = sheet.addCentred("P", {10, 20, 100, 60});
    named.setAccessibleName("en figur");
    Label& second = sheet.addAlong("2", 40, 70);
    Label& below = sheet.addAlong("under", 10, 90);
    const std::vector<Passage> read = sheet.read();
    ASSERT_EQ(test::wordsOf(read), (Words{"før", "en figur", "under"}));
    EXPECT_EQ(read[1].pieces, (std::vector<const QWidget*>{&named, &first, &second}));
    EXPECT_EQ(read[2].pieces, std::vector<const QWidget*>{&below});
}

TEST(Formula, ANameSaysItAllWhereItIsOfTheFirstLabel) {
    Sheet sheet;
    sheet.addCentred("P", {10, 20, 100, 60}).setAccessibleName("en figur");
    sheet.addAlong("2", 40, 70);
    EXPECT_EQ(sheet.words(), Words{"en figur"});
}

}  // namespace
}  // namespace tavrune
