#include "topics/addition/vertical_model.h"

#include <gtest/gtest.h>

#include "support/decimal_mark.h"
#include "support/scripted_draws.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::DecimalMark;
using test::kLargestDraw;
using test::ScriptedDraws;

/// How a field reads where a test compares it.
std::string described(const AnswerField& field) {
    const char* const slots[]{"slope", "intercept", "start", "end"};
    const char* const rules[]{"near", "all marked", "closed", "exactly", "chained"};
    return std::to_string(field.row) + " " + slots[static_cast<int>(field.slot)] + " " +
           rules[static_cast<int>(field.target.rule)] + " " + std::to_string(field.target.value).substr(0, 4);
}

std::vector<std::string> described(const std::vector<AnswerField>& fields) {
    std::vector<std::string> texts;
    texts.reserve(fields.size());
    for (const AnswerField& field : fields) {
        texts.push_back(described(field));
    }
    return texts;
}

TEST(VerticalDraw, TakesASlopeByOneDrawOnTheSideAskedFor) {
    for (int size = 0; size <= 4; ++size) {
        ScriptedDraws draws{cellOf(size, 5), cellOf(size, 5)};
        EXPECT_EQ(drawSlope(draws, true), -size);
        EXPECT_EQ(drawSlope(draws, false), size);
        EXPECT_TRUE(draws.isUsedUp());
    }
    ScriptedDraws largest{kLargestDraw, kLargestDraw};
    EXPECT_EQ(drawSlope(largest, true), -4);
    EXPECT_EQ(drawSlope(largest, false), 4);
}

TEST(VerticalDraw, TakesAPieceByThreeDraws) {
    ScriptedDraws draws{0.69F, cellOf(3, 5), cellOf(2, 5), 0.7F, cellOf(4, 5), cellOf(0, 5)};
    EXPECT_EQ(drawPieceFromAxis(draws, 0.7F), (Piece{-3, 2}));
    EXPECT_EQ(drawPieceFromAxis(draws, 0.7F), (Piece{4, 0}));
    EXPECT_TRUE(draws.isUsedUp());
}

TEST(VerticalEdges, AreLevelLinesAtTheBottomAndTheTop) {
    EXPECT_TRUE(isOnEdge({0, 0}));
    EXPECT_TRUE(isOnEdge({-0.0, 0}));
    EXPECT_TRUE(isOnEdge({0, 10}));
    EXPECT_FALSE(isOnEdge({0, 4}));
    EXPECT_FALSE(isOnEdge({1, 0}));
    EXPECT_FALSE(isOnEdge({-1, 10}));
}

TEST(VerticalZero, LiesWhereALineMeetsTheAxisOnEitherSide) {
    EXPECT_EQ(zeroOf({-3, 4}), 4.0 / 3);
    EXPECT_EQ(zeroOf({2, 3}), -1.5);
    EXPECT_EQ(zeroOf({-2, 0}), 0);
}

TEST(VerticalFields, AskALoneSegmentInTheSecondRowFromJustZero) {
    EXPECT_EQ(described(answerFields(VerticalSum{{{5, 1}}, {}, false, 7})),
              (std::vector<std::string>{"1 slope exactly 5.00", "1 intercept exactly 1.00",
                                        "1 start exactly 0.00"}));
    EXPECT_EQ(described(answerFields(VerticalSum{{{5, 1}}, {}, true, 7})).back(), "1 end closed 7.00");
}

TEST(VerticalFields, AskEachBreakAtTheEndOfOneRowAndTheStartOfTheNext) {
    const std::vector<Piece> four{{1, 2}, {3, 4}, {5, 6}, {7, 8}};
    const std::vector<double> breaks{1.25, 2.25, 3.25};
    for (std::size_t count = 2; count <= 4; ++count) {
        const auto segments = static_cast<std::ptrdiff_t>(count);
        const VerticalSum sum{{four.begin(), four.begin() + segments},
                              {breaks.begin(), breaks.begin() + segments - 1},
                              true,
                              9};
        std::vector<std::string> expected;
        for (std::size_t row = 0; row < count; ++row) {
            const std::string at = std::to_string(row);
            expected.push_back(at + " slope exactly " + std::to_string(2 * row + 1) + ".00");
            expected.push_back(at + " intercept exactly " + std::to_string(2 * row + 2) + ".00");
            if (row > 0) {
                expected.push_back(at + " start chained " + std::to_string(row) + ".25");
            }
            expected.push_back(row + 1 < count ? at + " end chained " + std::to_string(row + 1) + ".25"
                                               : at + " end closed 9.00");
        }
        EXPECT_EQ(described(answerFields(sum)), expected) << count;
    }
}

TEST(VerticalTexts, TellTheRangeOfEachSegment) {
    const DecimalMark danish(",");
    VerticalSum sum{{{1, 1}, {2, 2}, {3, 3}}, {4.0 / 3, 3}, false, 20.0 / 3};
    EXPECT_EQ(rangeText(sum, 0, "Q"), "0<Q<1,33");
    EXPECT_EQ(rangeText(sum, 1, "Q"), "1,33<Q<3");
    EXPECT_EQ(rangeText(sum, 2, "X"), "3<X");
    sum.upperEndAsked = true;
    EXPECT_EQ(rangeText(sum, 2, "X"), "3<X<6,67");
    EXPECT_EQ(rangeText(VerticalSum{{{1, 1}}, {}, false, 5}, 0, "Q"), "0<Q");
    EXPECT_EQ(rangeText(VerticalSum{{{1, 1}}, {}, true, 5}, 0, "Q"), "0<Q<5");
}

TEST(VerticalTexts, WorkASumOutWithTheSignsOfTheSecondFunction) {
    EXPECT_EQ(workedSumText({-3, 4}, {-1, 2}), "(-3 - 1)Q + (4 + 2) = -4Q + 6");
    EXPECT_EQ(workedSumText({2, 0}, {0, 4}), "(2 + 0)Q + (0 + 4) = 2Q + 4");
    EXPECT_EQ(workedSumText({-0.0, 1}, {-0.0, 0}), "(0 + 0)Q + (1 + 0) = 0Q + 1");
    EXPECT_EQ(workedSumText({1, 5}, {2, -3}), "(1 + 2)Q + (5 - 3) = 3Q + 2");
}

}  // namespace
}  // namespace tavrune
