#include "shell/running_text.h"

#include <cmath>

#include <gtest/gtest.h>

namespace tavrune {
namespace {

/// A label at (20, 30), with room for a text and no more.
class Running : public testing::Test {
protected:
    Running() { word.setBold(true); }

    void makeRoomFor(const QString& words, double more = 0) {
        label.setPlace({20, 30, widthOf(words) + more, 100});
    }
    static int widthOf(const QString& words) { return QFontMetrics(designFont()).horizontalAdvance(words); }
    /// As a label has its lines.
    static double pitch() {
        const QFontMetricsF metrics(designFont());
        return std::ceil(metrics.ascent()) + std::ceil(metrics.descent());
    }
    [[nodiscard]] QStringList lines() const {
        text.finish();
        return label.text().split('\n');
    }

    QWidget page;
    Label label{&page};
    Label word{&page};
    RunningText text{&label};
};

TEST_F(Running, BreaksWhereAWordHasNoRoom) {
    makeRoomFor("Klik på en");
    text.add("Klik på en opgave");
    EXPECT_EQ(lines(), (QStringList{"Klik på en", "opgave"}));
}

TEST_F(Running, BreaksBeforeAWordThatMissesAUnit) {
    makeRoomFor("Klik på en", -1);
    text.add("Klik på en opgave");
    EXPECT_EQ(lines(), (QStringList{"Klik på", "en", "opgave"}));
}

TEST_F(Running, HasNoBlankBeforeACommaOrAFullStop) {
    makeRoomFor("Klik, og det er slut. Og klik.");
    text.add("Klik");
    text.add(", og det er slut");
    text.add(". Og klik");
    text.add(".");
    EXPECT_EQ(lines(), QStringList("Klik, og det er slut. Og klik."));
    EXPECT_EQ(text.words(), "Klik, og det er slut. Og klik.");
}

TEST_F(Running, PlacesABoldWordInAGapOfItsLine) {
    makeRoomFor("Klik på ", 200);
    word.setCaption("OK");
    text.add("Et afsnit");
    text.endParagraph();
    text.add("Klik på");
    text.addBold(&word);
    text.add("nu");
    ASSERT_EQ(lines().size(), 2);
    EXPECT_EQ(word.place().left(), 20 + widthOf("Klik på "));
    EXPECT_EQ(word.place().top(), 30 + pitch());
    const QString line = lines()[1];
    const double behind = 20 + widthOf(line.left(line.indexOf("nu")));
    EXPECT_GE(behind, word.place().left() + word.textWidth());
    EXPECT_LT(behind, word.place().left() + word.textWidth() + 2 * widthOf(" "));
    EXPECT_EQ(text.words(), "Et afsnit. Klik på OK nu");
}

TEST_F(Running, PlacesABoldWordOnTheNextLineWhereItHasNoRoom) {
    word.setCaption("Ny opgave");
    makeRoomFor("Klik på ", word.textWidth() - 1);
    text.add("Klik på");
    text.addBold(&word);
    ASSERT_EQ(lines().size(), 2);
    EXPECT_EQ(lines()[0], "Klik på");
    EXPECT_EQ(word.place().topLeft(), QPointF(20, 30 + pitch()));
}

TEST_F(Running, PlacesABoldWordThatJustHasRoomOnItsLine) {
    word.setCaption("Ny opgave");
    makeRoomFor("Klik på ", word.textWidth());
    text.add("Klik på");
    text.addBold(&word);
    EXPECT_EQ(lines().size(), 1);
    EXPECT_EQ(word.place().top(), 30);
}

TEST_F(Running, BeginsALineWithABoldWord) {
    makeRoomFor("", 200);
    word.setCaption("OK");
    text.addBold(&word);
    text.add(".");
    EXPECT_EQ(word.place().topLeft(), QPointF(20, 30));
}

TEST_F(Running, EndsAParagraphInWordsByOneFullStop) {
    makeRoomFor("Klik to gange. ", 100);
    text.add("Klik");
    text.endParagraph();
    text.add("Klik to gange.");
    text.endParagraph();
    EXPECT_EQ(lines(), (QStringList{"Klik", "Klik to gange.", ""}));
    EXPECT_EQ(text.words(), "Klik. Klik to gange.");
}

}  // namespace
}  // namespace tavrune
