#include "topics/addition/addition_model.h"

#include <array>
#include <limits>

#include <gtest/gtest.h>

#include "numeric/arithmetic.h"
#include "numeric/rounding.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "topics/addition/judged_fields.h"

namespace tavrune {
namespace {

const TableCell kBlank = TableCell::blank();
const TableCell kUnbounded = TableCell::unbounded();

TEST(TableCell, ReadsAsWhatItHolds) {
    EXPECT_EQ(TableCell().text(), "");
    EXPECT_EQ(kBlank.text(), " ");
    EXPECT_EQ(kUnbounded.text(), "oo");
    EXPECT_EQ(TableCell(10.0).text(), "10");
    EXPECT_EQ(TableCell(-0.0).text(), "0");
    const test::DecimalMark danish(",");
    EXPECT_EQ(TableCell(2.5).text(), "2,5");
}

TEST(TableCell, IsNumericUnlessItIsBlankOrUnbounded) {
    EXPECT_TRUE(TableCell(0.0).isNumeric());
    EXPECT_TRUE(TableCell().isNumeric());
    EXPECT_FALSE(kBlank.isNumeric());
    EXPECT_FALSE(kUnbounded.isNumeric());
}

TEST(TableCell, KnowsWhichKindItIs) {
    EXPECT_TRUE(TableCell().isEmpty());
    EXPECT_TRUE(kBlank.isBlank());
    EXPECT_TRUE(kUnbounded.isUnbounded());
    for (const TableCell& cell : {TableCell(0.0), kBlank, kUnbounded}) {
        EXPECT_FALSE(cell.isEmpty()) << cell.text();
    }
    for (const TableCell& cell : {TableCell(0.0), TableCell(), kUnbounded}) {
        EXPECT_FALSE(cell.isBlank()) << cell.text();
    }
    for (const TableCell& cell : {TableCell(0.0), TableCell(), kBlank}) {
        EXPECT_FALSE(cell.isUnbounded()) << cell.text();
    }
}

TEST(TableCell, CountsAsZeroUntilItIsFilled) {
    EXPECT_EQ(TableCell().number(), 0);
    EXPECT_EQ(TableCell(2.5).number(), 2.5);
}

TEST(TableCell, FailsWithATypeMismatchWhereANumberIsWantedOfAText) {
    for (const TableCell& cell : {kBlank, kUnbounded}) {
        try {
            static_cast<void>(cell.number());
            ADD_FAILURE() << "'" << cell.text() << "' counts as a number";
        } catch (const ArithmeticFailure& failure) {
            EXPECT_EQ(failure.kind(), ArithmeticFailure::Kind::TypeMismatch);
        }
    }
}

TEST(TableCell, EqualsWhatReadsTheSame) {
    const std::array cells{TableCell(), kBlank, kUnbounded, TableCell(0.0), TableCell(2.5)};
    for (std::size_t i = 0; i < cells.size(); ++i) {
        for (std::size_t j = 0; j < cells.size(); ++j) {
            EXPECT_EQ(cells.at(i) == cells.at(j), i == j) << i << " and " << j;
        }
    }
    EXPECT_EQ(TableCell(0.0), TableCell(-0.0));
}

TEST(TableCell, IsRoundedWhereItHoldsANumber) {
    EXPECT_EQ(rounded(1.0 / 3, RoundUp2), TableCell(0.33));
    EXPECT_EQ(rounded(kBlank, RoundUp2), kBlank);
    EXPECT_EQ(rounded(kUnbounded, RoundUp2), kUnbounded);
    EXPECT_TRUE(rounded(TableCell(), RoundUp2).isEmpty());
}

TEST(StretchText, TellsTheQuantityBeforeThePrice) {
    EXPECT_EQ(stretchText(0.0, 10.0, 2.5, 5.0), "( 0 ; 10 ) til ( 2.5 ; 5 )");
    EXPECT_EQ(stretchText(0.0, 8.0, kUnbounded, 8.0), "( 0 ; 8 ) til ( oo ; 8 )");
    EXPECT_EQ(stretchText(0.0, 8.0, kBlank, 8.0), "( 0 ; 8 ) til (   ; 8 )");
    EXPECT_EQ(stretchText(0.0, 8.0, TableCell(), 8.0), "( 0 ; 8 ) til (  ; 8 )");
}

TEST(PathTexts, BreakAfterTwoSegments) {
    using Lines = std::array<std::string, 2>;
    EXPECT_EQ(pathTexts({"a"}), (Lines{"Her fra a.", ""}));
    EXPECT_EQ(pathTexts({"a", "b"}), (Lines{"Her fra a og fra b.", ""}));
    EXPECT_EQ(pathTexts({"a", "b", "c"}), (Lines{"Her fra a, fra b og fra ", "c."}));
    EXPECT_EQ(pathTexts({"a", "b", "c", "d"}), (Lines{"Her fra a, fra b, fra ", "c og fra d."}));
}

TEST(PathTexts, GoFromRowToRowOfAHelpTable) {
    const std::array<TableCell, 3> quantities{0.0, 2.5, kUnbounded};
    const std::array<TableCell, 3> prices{10.0, 5.0, 4.0};
    EXPECT_EQ(pathTexts(quantities, prices, 1)[0], "Her fra ( 0 ; 10 ) til ( 2.5 ; 5 ).");
    EXPECT_EQ(pathTexts(quantities, prices, 2)[0],
              "Her fra ( 0 ; 10 ) til ( 2.5 ; 5 ) og fra ( 2.5 ; 5 ) til ( oo ; 4 ).");
}

TEST(Piece, IsRoundedBesideZeroInItsSlopeAndUpInItsIntercept) {
    EXPECT_EQ(rounded(Piece{-0.125, -0.125}), (Piece{-0.13, -0.12}));
    EXPECT_EQ(rounded(Piece{-0.12499995, 0.125}), (Piece{-0.12, 0.13}));
}

TEST(Piece, HasAPriceAtEachQuantity) {
    const Piece piece{-2, 10};
    EXPECT_EQ(piece.at(0), 10);
    EXPECT_EQ(piece.at(2.5), 5);
    EXPECT_EQ(piece.at(20), -30);
}

TEST(Direction, HasAFactorAndAnEdgeWhereTheSumEnds) {
    EXPECT_EQ(factorOf(Direction::Rising), 1);
    EXPECT_EQ(factorOf(Direction::Falling), -1);
    EXPECT_EQ(endPrice(Direction::Rising), 10);
    EXPECT_EQ(endPrice(Direction::Falling), 0);
}

constexpr double above(double x) { return x + 1e-9; }
constexpr double below(double x) { return x - 1e-9; }

TEST(Target, NearTakesTheHalfOpenBandAndLeavesItsLowerEndUnmarked) {
    const Target target{3.25, Rule::Near};
    test::expectJudged(target, {3.25, above(3.25 - 0.005), 3.25 + 0.005},
                       {below(3.25 - 0.005), above(3.25 + 0.005), 0.0, -3.25});
    EXPECT_FALSE(target.isFit(3.25 - 0.005));
    EXPECT_FALSE(target.isMarked(3.25 - 0.005));
}

TEST(Target, NearAllMarkedTakesTheHalfOpenBandAndMarksItsLowerEnd) {
    test::expectJudged({3.25, Rule::NearAllMarked}, {3.25, above(3.25 - 0.005), 3.25 + 0.005},
                       {3.25 - 0.005, below(3.25 - 0.005), above(3.25 + 0.005), 0.0, -3.25});
}

TEST(Target, IsNearUnlessItIsToldOtherwise) {
    const Target target{3.25};
    EXPECT_EQ(target.rule, Rule::Near);
}

TEST(Target, NearClosedTakesBothEnds) {
    test::expectJudged({-1.5, Rule::NearClosed}, {-1.5, -1.5 - 0.005, -1.5 + 0.005},
                       {below(-1.5 - 0.005), above(-1.5 + 0.005)});
}

TEST(Target, ExactlyTakesNothingBeside) {
    test::expectJudged({-3, Rule::Exactly}, {-3}, {above(-3), below(-3), 3.0});
}

TEST(Target, ChainedTakesAnythingForATargetFromZeroUpButMarksByTheTrueBounds) {
    for (const double value : {0.0, 0.67, 10.0}) {
        const Target target{value, Rule::Chained};
        for (const double typed : {-1e300, 0.0, 0.67, 9.31, 1e300}) {
            EXPECT_TRUE(target.isFit(typed)) << typed << " for " << value;
            EXPECT_EQ(target.isMarked(typed), typed != value) << typed << " for " << value;
        }
        EXPECT_FALSE(target.isMarked(value + 0.005));
        EXPECT_FALSE(target.isMarked(value - 0.005));
    }
}

TEST(Target, ChainedComparesATruthBelowZero) {
    // True is -1, false is 0.
    const Target half{-0.5, Rule::Chained};
    EXPECT_TRUE(half.isFit(99));
    EXPECT_FALSE(half.isFit(-0.505));
    const Target two{-2, Rule::Chained};
    EXPECT_FALSE(two.isFit(-2));
    EXPECT_FALSE(two.isFit(99));
}

TEST(Target, TakesTheLargestNumbers) {
    constexpr double kLargest = std::numeric_limits<double>::max();
    for (const Rule rule : {Rule::Near, Rule::NearAllMarked, Rule::NearClosed, Rule::Exactly}) {
        EXPECT_FALSE((Target{2, rule}.isFit(kLargest)));
        EXPECT_TRUE((Target{2, rule}.isMarked(-kLargest)));
    }
}

TEST(AnswerFields, AreSolvedOnlyIfEachIsFit) {
    const std::vector<AnswerField> fields{{0, Slot::Slope, {-2}}, {1, Slot::End, {5.33}}};
    EXPECT_EQ(judge(fields, {0, 0}), (Judgement{{false, false}, false}));
    EXPECT_EQ(judge(fields, {-2, 0}), (Judgement{{true, false}, false}));
    EXPECT_EQ(judge(fields, {0, 5.33}), (Judgement{{false, true}, false}));
    EXPECT_EQ(judge(fields, {-2, 5.33}), (Judgement{{true, true}, true}));
}

TEST(AnswerFields, CanBeWrongWithoutAMarkAndSolvedWithOne) {
    EXPECT_EQ(judge({{0, Slot::Slope, {0.67}}}, {Val("0.665")}), (Judgement{{true}, false}));
    EXPECT_EQ(judge({{0, Slot::End, {0.67, Rule::Chained}}}, {5}), (Judgement{{false}, true}));
}

TEST(AnswerRow, OfALoneSegmentIsTheSecondOne) {
    EXPECT_EQ(rowOf(0, 1), 1);
    EXPECT_EQ(rowOf(0, 2), 0);
    EXPECT_EQ(rowOf(1, 2), 1);
    EXPECT_EQ(rowOf(2, 3), 2);
}

}  // namespace
}  // namespace tavrune
