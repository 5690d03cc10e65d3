#include "controls/part.h"

#include <gtest/gtest.h>

#include "support/sheet.h"

namespace tavrune {
namespace {

using test::inkOf;
using test::kBit;
using test::Sheet;
using test::Words;

/// Read of two texts beside each other: with so much white between them, the second so much higher.
Words wordsOfRow(const std::string& left, const std::string& right, double gap, double rise = 0,
                 double size = 11) {
    Sheet sheet;
    const Label& first = sheet.addAlong(left, 10, 50, size);
    sheet.addAlong(right, inkOf(first).right() + gap, 50 - rise, size);
    return sheet.words();
}

TEST(PartsOfARow, HaveAnExponentWhereItIsHigherThanAFifthOfTheLetters) {
    EXPECT_EQ(wordsOfRow("Q", "2", 0, 2, 10), Words{"Q 2"});
    EXPECT_EQ(wordsOfRow("Q", "2", 0, 2 + kBit, 10), Words{"Q i anden"});
}

TEST(PartsOfARow, HaveAnExponentWhereItTouchesWhatItBelongsTo) {
    EXPECT_EQ(wordsOfRow("Q", "2", 3 - kBit, 3, 10), Words{"Q i anden"});
    EXPECT_EQ(wordsOfRow("Q", "2", 3, 3, 10), Words{"Q 2"});
}

TEST(PartsOfARow, SayEachExponent) {
    const auto raised = [](const std::string& exponent) { return wordsOfRow("Q", exponent, 0, 3, 10); };
    EXPECT_EQ(raised("2"), Words{"Q i anden"});
    EXPECT_EQ(raised("²"), Words{"Q i anden"});
    EXPECT_EQ(raised("3"), Words{"Q i tredje"});
    EXPECT_EQ(raised("³"), Words{"Q i tredje"});
    EXPECT_EQ(raised("n"), Words{"Q i n'te"});
    EXPECT_EQ(raised("4"), Words{"Q i 4'te"});
    EXPECT_EQ(raised("12"), Words{"Q i 12'te"});
    EXPECT_EQ(raised("123"), Words{"Q 123"}) << "too long for one";
}

TEST(PartsOfARow, HaveAPauseWhereTheWhiteIsWideForTheSizeOfTheLetters) {
    EXPECT_EQ(wordsOfRow("a", "b", 14), Words{"a b"});
    EXPECT_EQ(wordsOfRow("a", "b", 14 + kBit), Words{"a, b"});
    EXPECT_EQ(wordsOfRow("a", "b", 28, 0, 22), Words{"a b"});
    EXPECT_EQ(wordsOfRow("a", "b", 28 + kBit, 0, 22), Words{"a, b"});
}

TEST(PartsOfARow, HaveNoPauseAtASign) {
    EXPECT_EQ(wordsOfRow("a =", "b", 20), Words{"a lig med b"});
    EXPECT_EQ(wordsOfRow("a", "= b", 20), Words{"a lig med b"});
    EXPECT_EQ(wordsOfRow("a,", "b", 20), Words{"a, b"});
    EXPECT_EQ(wordsOfRow("a:", "b", 20), Words{"a: b"});
}

TEST(PartsInGaps, HaveTheirOwnExponents) {
    Sheet sheet;
    const Label& sum = sheet.addAlong("P =          + 3", 10, 50);
    const double gap = inkOf(sum).left() + QFontMetricsF(sum.font()).horizontalAdvance("P =  ");
    const Label& term = sheet.addAlong("4Q", gap, 50);
    sheet.addAlong("2", inkOf(term).right(), 50 - 3, 8);
    EXPECT_EQ(sheet.words(), Words{"P lig med 4 Q i anden plus 3"});
}

TEST(PartsInGaps, BeginWithinTheTextThatTheyAreWrittenInto) {
    const auto isIn = [](double width, double left) {
        Sheet sheet;
        sheet.addWrapped("P", {10, 10, width, 14});
        sheet.addAlong("123", left, 17);
        return sheet.words().size() == 1;
    };
    Sheet sheet;
    const double inner = inkOf(sheet.add("123")).width();
    EXPECT_TRUE(isIn(100, 109 - kBit));
    EXPECT_FALSE(isIn(100, 109)) << "at its end";
    EXPECT_TRUE(isIn(inner, 11 + kBit));
    EXPECT_FALSE(isIn(inner, 11)) << "beside its beginning";
    EXPECT_TRUE(isIn(100, 9 + kBit));
    EXPECT_FALSE(isIn(100, 9)) << "before its beginning";
    EXPECT_TRUE(isIn(inner + 1 + kBit, 10));
    EXPECT_FALSE(isIn(inner + 1, 10)) << "as wide";
}

TEST(PartsInGaps, ShareAThirdOfTheirHeightWithTheText) {
    // A size whose height can be shared to the bit.
    double size = 8;
    const auto heightOf = [](double its) {
        Sheet sheet;
        return extentOf(sheet.add("123", 0, 0, its)).line.height();
    };
    while (heightOf(size) != 10 && heightOf(size) != 20 && size < 40) {
        ++size;
    }
    const double height = heightOf(size);
    ASSERT_TRUE(height == 10 || height == 20);
    const auto isIn = [&](double hostHeight) {
        Sheet sheet;
        sheet.addWrapped("P", {0, 0, 200, hostHeight});
        sheet.add("123", 50, 0, size);
        return sheet.words().size() == 1;
    };
    EXPECT_FALSE(isIn(0.3 * height));
    EXPECT_TRUE(isIn(0.3 * height + kBit));
}

TEST(PartsInGaps, ReachOverTheEndOnlyAsSmallExponents) {
    const auto wordsWith = [](double size, double way) {
        Sheet sheet;
        const Label& host = sheet.addAlong("Q  ", 10, 50, 10);
        sheet.addAlong("2", extentOf(host).line.right() + way, 47, size);
        return sheet.words();
    };
    EXPECT_EQ(wordsWith(8, 3 - kBit), Words{"Q i anden"});
    EXPECT_EQ(wordsWith(8, 3), Words{"Q 2"});
    EXPECT_EQ(wordsWith(9, -kBit), Words{"Q i anden"});
    EXPECT_EQ(wordsWith(9, 0), Words{"Q 2"}) << "as large as the text";
}

TEST(PartsInGaps, AreExponentsOnlyWithinTheHeightOfALetter) {
    const auto wordsWith = [](double rise) {
        Sheet sheet;
        Label& host = sheet.add("P=  Q\nslut");
        host.setAutoSize(false);
        host.setPlace({10, 10, 120, 28});
        sheet.addAlong("2", 10 + QFontMetricsF(host.unzoomedFont()).horizontalAdvance("P= "), 24 - rise);
        return sheet.words();
    };
    EXPECT_EQ(wordsWith(11), Words{"P lig med 2 Q slut"});
    EXPECT_EQ(wordsWith(11 - kBit), Words{"P lig med i anden Q slut"});
}

TEST(PartsInGaps, AreNoExponentsInAParagraph) {
    Sheet sheet;
    const Label& host = sheet.addWrapped("P=    Q", {10, 10, 120, 14});
    sheet.addAlong("2", 10 + QFontMetricsF(host.unzoomedFont()).horizontalAdvance("P= "), 14);
    EXPECT_EQ(sheet.words(), Words{"P lig med 2 Q"});
}

TEST(PartsInGaps, AreNoParagraphs) {
    Sheet sheet;
    sheet.add("P hører med til den lange tekst", 10, 10);
    sheet.addWrapped("afsnit", {40, 10, 60, 14});
    EXPECT_EQ(sheet.words(), (Words{"P hører med til den lange tekst", "afsnit"}));
}

TEST(PartsInGaps, ReplaceTheSignThatTheyAre) {
    const auto wordsOf = [](const std::string& host, const std::string& sign) {
        Sheet sheet;
        sheet.add(host, 10, 10);
        sheet.add(sign, 10, 10);
        return sheet.words();
    };
    EXPECT_EQ(wordsOf("<Q", "≤"), Words{"mindre end eller lig med Q"});
    EXPECT_EQ(wordsOf(">Q", "≥"), Words{"større end eller lig med Q"});
    EXPECT_EQ(wordsOf("<Q", "≥"), Words{"større end eller lig med mindre end Q"});
    EXPECT_EQ(wordsOf(">Q", "≤"), Words{"mindre end eller lig med større end Q"});
    EXPECT_EQ(wordsOf("<Q", "7"), Words{"7 mindre end Q"});
    EXPECT_EQ(wordsOf(">Q", "7"), Words{"7 større end Q"});
}

TEST(PartsInGaps, AreWrittenIntoTheFirstOfTwoTextsAlikeWhicheverIsMadeFirst) {
    Sheet sheet;
    sheet.addAlong("7", 60, 24);
    sheet.addWrapped("først", {10, 10, 100, 14});
    sheet.addWrapped("så", {10, 24, 100, 14});
    EXPECT_EQ(sheet.words(), (Words{"først 7", "så"}));
}

TEST(Parts, AreUnderlinedSignsOnlyIfTheyAreUnderlined) {
    const auto wordsOf = [](const std::string& text) {
        Sheet sheet;
        sheet.add(text, 10, 10).setUnderlined(true);
        return sheet.words();
    };
    EXPECT_EQ(wordsOf("<"), Words{"mindre end eller lig med"});
    EXPECT_EQ(wordsOf(" > "), Words{"større end eller lig med"});
    EXPECT_EQ(wordsOf("="), Words{"lig med"});
    EXPECT_EQ(wordsOf("Q"), Words{"Q"});
}

}  // namespace
}  // namespace tavrune
