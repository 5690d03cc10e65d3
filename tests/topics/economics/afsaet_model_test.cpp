#include "topics/economics/afsaet_model.h"

#include <cmath>
#include <set>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "topics/economics/afsaet_script.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::kLargestDraw;
using test::Script;
using test::afsaet::exercise;
using test::afsaet::kPrices;
using test::afsaet::kQuantities;
using test::afsaet::numbers;
using test::afsaet::Numbers;
using test::afsaet::Sample;
using test::afsaet::sample;

using Kind = AfsaetKind;

TEST(AfsaetGenerator, DrawsTheKindThenPricesQuantitiesElasticitiesAndSlope) {
    const AfsaetState s =
        exercise(numbers({Kind::TwoPoints, 7, 4, 2, 5, -3, -5, -6}) + Script{kQuantities, 0.9F, 0.5F});
    EXPECT_EQ(s.P1, 7);
    EXPECT_EQ(s.P2, 4);
    EXPECT_EQ(s.Q1, 2);
    EXPECT_EQ(s.Q2, 5);
    EXPECT_EQ(s.Ep, -3);
    EXPECT_EQ(s.Ep2, -5);
    EXPECT_EQ(s.slope, -6);
}

TEST(AfsaetGenerator, PutsTheFirstPointUpAndToTheLeft) {
    const AfsaetState s =
        exercise(numbers({Kind::TwoPoints, 4, 7, 5, 2, -3}) + Script{kQuantities, 0.9F, 0.5F});
    EXPECT_EQ(taskTexts(s).firstFact, "(P1; Q1) = (7;2)");
    EXPECT_EQ(taskTexts(s).secondFact, "(P2; Q2) = (4;5)");
}

TEST(AfsaetGenerator, DrawsElasticitiesAndSlopesFromMinusSixToMinusTwo) {
    std::set<float> drawn;
    for (int value = -6; value <= -2; ++value) {
        const AfsaetState s =
            exercise(numbers({Kind::PointAndSlope, 1, 1, 1, 2, value, value, value}) + Script{kQuantities});
        EXPECT_EQ(s.Ep, value);
        EXPECT_EQ(s.Ep2, value);
        EXPECT_EQ(s.slope, value);
        drawn.insert(s.slope);
    }
    EXPECT_EQ(drawn.size(), 5U);
}

TEST(AfsaetGenerator, DrawsMinusOneFromADrawOfZeroOnly) {
    const auto slopeFrom = [](float u) {
        Script script = numbers({Kind::PointAndSlope, 3, 1, 1, 2});
        script[7] = u;
        return exercise(script + Script{kQuantities}).slope;
    };
    EXPECT_EQ(slopeFrom(0), -1);
    EXPECT_EQ(slopeFrom(1 - kLargestDraw), -2);
    EXPECT_EQ(slopeFrom(0.2F), -2);
    EXPECT_EQ(slopeFrom(0.21F), -3);
    EXPECT_EQ(slopeFrom(kLargestDraw), -6);
}

TEST(AfsaetGenerator, MakesOneOfAFirstQuantityOfZero) {
    const AfsaetState s = exercise(numbers({Kind::PointAndSlope, 4, 1, 0, 5}) + Script{kQuantities});
    EXPECT_EQ(s.Q1, 1);
    EXPECT_EQ(taskTexts(s).firstFact, "(P; Q) = (4;1) ");
}

TEST(AfsaetGenerator, FlipsItsCoinAboveOneHalf) {
    const Script drawn = numbers({Kind::PointAndSlope, 4, 1, 2, 5, -2, -2, -3});
    EXPECT_EQ(exercise(drawn + Script{0.5F}).interval, AfsaetInterval::InQuantities);
    EXPECT_EQ(exercise(drawn + Script{std::nextafter(0.5F, 1.0F), 0}).interval, AfsaetInterval::InPrices);
}

/// Draws that come to no exercise.
struct RejectedRow {
    const char* name;
    Numbers drawn;
    Script rest;
};

class AfsaetRejections : public testing::TestWithParam<RejectedRow> {};

TEST_P(AfsaetRejections, GoBackToTheReseedingWithANewKind) {
    const RejectedRow& row = GetParam();
    const Sample& next =
        sample(row.drawn.kind == Kind::PointAndSlope ? "TwoPointsInQuantities" : "PointAndSlopeInQuantities");
    const AfsaetState s =
        test::exerciseOf<AfsaetState>(numbers(row.drawn) + row.rest + next.script(), test::Reseeds{2});
    EXPECT_EQ(s.kind, next.drawn.kind);
    EXPECT_EQ(answerOf(s), next.answer);
    EXPECT_EQ(taskTexts(s).range, next.range);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AfsaetRejections,
    testing::Values(
        // The denominators, for every kind.
        RejectedRow{"NoQuantityAfterTheSwap", {Kind::PointAndSlope, 4, 1, 5, 0}, {}},
        RejectedRow{"NoQuantityAtAllButOne", {Kind::PointAndElasticityAtPrice, 4, 1, 0, 0}, {}},
        RejectedRow{"NoPrices", {Kind::PointAndSlope, 0, 0, 1, 5}, {}},
        RejectedRow{"NoPricesForAnElasticity", {Kind::PointAndElasticityAtPrice, 0, 0, 1, 5}, {}},
        RejectedRow{"AnElasticityThatLeavesNoDenominator", {Kind::PointAndSlope, 8, 6, 1, 5, -3}, {}},
        RejectedRow{"TheSameForTwoPoints", {Kind::TwoPoints, 8, 6, 1, 5, -3}, {}},
        // Two points.
        RejectedRow{"PointsAboveEachOther", {Kind::TwoPoints, 8, 2, 3, 3}, {}},
        RejectedRow{"PointsBesideEachOther", {Kind::TwoPoints, 8, 8, 3, 5}, {}},
        RejectedRow{"LineTooHigh", {Kind::TwoPoints, 9, 1, 5, 9}, {kPrices, 0, 0}},
        RejectedRow{"LineTooHighForQuantities", {Kind::TwoPoints, 9, 1, 5, 9}, {kQuantities, 0, 0}},
        RejectedRow{"LineTooLow", {Kind::TwoPoints, 2, 1, 1, 5}, {kQuantities, 0, 0}},
        // A point and an elasticity at a price.
        RejectedRow{"AtPointBeyondTheGraph", {Kind::PointAndElasticityAtPrice, 5, 5, 9, 9, -2}, {}},
        RejectedRow{"AtPointTooLow", {Kind::PointAndElasticityAtPrice, 1, 1, 1, 5, -2}, {kQuantities, 0}},
        RejectedRow{"SecondPointToTheLeft", {Kind::PointAndElasticityAtPrice, 9, 1, 1, 5, -2}, {}},
        RejectedRow{"OtherPriceBeyondTheGraph", {Kind::PointAndElasticityAtPrice, 8, 7, 9, 9, -2}, {}},
        RejectedRow{"OtherPriceTooHigh", {Kind::PointAndElasticityAtPrice, 9, 8, 1, 5, -3}, {kPrices, 0}},
        // A point and an elasticity at a quantity.
        RejectedRow{"PointQuantityBeyondTheGraph", {Kind::PointAndElasticityAtQuantity, 7, 4, 4, 4}, {}},
        RejectedRow{"OtherQuantityBeyondTheGraph", {Kind::PointAndElasticityAtQuantity, 6, 1, 1, 9}, {}},
        RejectedRow{"PointQuantityTooHigh", {Kind::PointAndElasticityAtQuantity, 9, 1, 1, 1}, {}},
        // A point and the slope.
        RejectedRow{"SteepLineTooHigh", {Kind::PointAndSlope, 4, 1, 2, 5, -2, -2, -4}, {kPrices, 0}},
        RejectedRow{
            "SteepLineTooHighForQuantities", {Kind::PointAndSlope, 4, 1, 2, 5, -2, -2, -4}, {kQuantities}},
        // Two elasticities.
        RejectedRow{"PricesRightOfTheQuantity", {Kind::TwoElasticities, 3, 1, 1, 5, -4, -6}, {kPrices}},
        RejectedRow{"PricesLeftOfTheQuantity", {Kind::TwoElasticities, 5, 1, 9, 9, -3, -2}, {kPrices}},
        RejectedRow{
            "QuantitiesRightOfThePrice", {Kind::TwoElasticities, 6, 1, 9, 9, -6, -2}, {kQuantities, 0}},
        RejectedRow{
            "QuantitiesLeftOfThePrice", {Kind::TwoElasticities, 4, 1, 9, 9, -2, -6}, {kQuantities, 0}},
        RejectedRow{"TwoElasticitiesTooLow", {Kind::TwoElasticities, 1, 1, 1, 5}, {kQuantities, 0}},
        // An elasticity and the slope.
        RejectedRow{"NoQuantitiesAtAll",
                    {Kind::ElasticityAtPriceAndSlope, 3, 1, 4, 5, -2, -2, -6},
                    {kQuantities, 0.25F}},
        RejectedRow{"ElasticityAtPriceTooLow", {Kind::ElasticityAtPriceAndSlope, 1, 1, 4, 5}, {kPrices}},
        RejectedRow{"ElasticityAtQuantityTooHigh",
                    {Kind::ElasticityAtQuantityAndSlope, 4, 1, 2, 5, -2, -2, -4},
                    {kPrices}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(AfsaetGenerator, AllowsAnInterceptOfThreeAndOfTen) {
    EXPECT_EQ(exercise(numbers({Kind::PointAndSlope, 1, 1, 1, 5}) + Script{kQuantities}).b, 3);
    EXPECT_EQ(exercise(numbers({Kind::PointAndSlope, 8, 1, 1, 5}) + Script{kQuantities}).b, 10);
}

TEST(AfsaetGenerator, AllowsALineThatEndsWithTheGraph) {
    // Q at 0 kroner is 10: just not too far.
    EXPECT_EQ(exercise(numbers({Kind::PointAndElasticityAtPrice, 4, 4, 2, 7, -4}) + Script{kQuantities, 0}).a,
              -0.5);
}

TEST(AfsaetGenerator, PutsTheUpperBoundOneAboveTheSecondPointWhateverIsDrawn) {
    for (const float u : {0.0F, 0.5F, kLargestDraw}) {
        const AfsaetState s =
            exercise(numbers({Kind::TwoPoints, 6, 3, 3, 6}) + Script{kQuantities, cellOf(0, 3), u});
        EXPECT_EQ(s.Qhi, 7);
        EXPECT_EQ(s.Qlo, 3);
    }
    // Even beyond the end of the line, and of the graph.
    const AfsaetState beyond =
        exercise(numbers({Kind::TwoPoints, 8, 0, 1, 9}) + Script{kQuantities, 0, kLargestDraw});
    EXPECT_EQ(beyond.Qhi, 10);
    EXPECT_LT(beyond.a * beyond.Qhi + beyond.b, 0);
}

TEST(AfsaetGenerator, DrawsEachQuantityFromOneToThatOfTheFirstPointForTheLowerBound) {
    for (int below = 0; below < 4; ++below) {
        const AfsaetState s =
            exercise(numbers({Kind::TwoPoints, 6, 3, 4, 7}) + Script{kQuantities, cellOf(below, 4), 0});
        EXPECT_EQ(s.Qlo, 4 - below);
    }
}

TEST(AfsaetGenerator, DrawsTheLowerPriceBeforeTheUpperOne) {
    const AfsaetState s =
        exercise(numbers({Kind::TwoPoints, 7, 4, 2, 5, -3}) + Script{kPrices, cellOf(3, 4), cellOf(0, 3)});
    EXPECT_EQ(s.Plo, 1);
    EXPECT_EQ(s.Phi, 7);
}

struct RepairRow {
    const char* name;
    Script script;
    float Plo, Phi;
    double Qlo, Qhi;
};

class AfsaetRepair : public testing::TestWithParam<RepairRow> {};

TEST_P(AfsaetRepair, BringsABoundThatLeavesTheGraphToItsPoint) {
    const RepairRow& row = GetParam();
    const AfsaetState s = exercise(row.script);
    EXPECT_EQ(s.Plo, row.Plo);
    EXPECT_EQ(s.Phi, row.Phi);
    EXPECT_EQ(s.Qlo, row.Qlo);
    EXPECT_EQ(s.Qhi, row.Qhi);
    EXPECT_EQ(taskTexts(s).range,
              "Funktionen gælder i intervallet " + NumberText(row.Plo) + "<P<" + NumberText(row.Phi));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AfsaetRepair,
    testing::Values(
        // P = -Q + 6, prices from 1 to 9.
        RepairRow{"None",
                  numbers({Kind::TwoPoints, 5, 2, 1, 4}) + Script{kPrices, cellOf(1, 2), cellOf(1, 5)}, 1, 6,
                  0, 5},
        RepairRow{"Lower",
                  numbers({Kind::TwoPoints, 5, 2, 1, 4}) + Script{kPrices, cellOf(1, 2), cellOf(4, 5)}, 1, 5,
                  1, 5},
        // P = -Q/7 + 5.14
        RepairRow{"Upper",
                  numbers({Kind::TwoPoints, 5, 4, 1, 8}) + Script{kPrices, cellOf(3, 4), cellOf(0, 5)}, 4, 5,
                  1, 8},
        RepairRow{"Both",
                  numbers({Kind::TwoPoints, 5, 4, 1, 8}) + Script{kPrices, cellOf(3, 4), cellOf(4, 5)}, 4, 5,
                  1, 8},
        // P = -Q + 8, prices from 2 to 12.
        RepairRow{"ElasticityAtPoint",
                  numbers({Kind::PointAndElasticityAtPrice, 6, 6, 2, 7, -3}) + Script{kPrices, 0.5F, 0.5F}, 2,
                  6, 2, 6},
        // P = -Q/2 + 5: 0.5 kroner less than nothing is sold at 10.
        RepairRow{"ElasticityAtPointBothWays",
                  numbers({Kind::PointAndElasticityAtPrice, 4, 4, 2, 7, -4}) + Script{kPrices, 0.9F, 0.9F}, 1,
                  4, 2, 8},
        RepairRow{"ElasticityBesidePoint",
                  numbers({Kind::PointAndElasticityAtPrice, 7, 6, 1, 9, -3}) + Script{kPrices, cellOf(2, 3)},
                  3, 7, 1, 5}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(AfsaetGenerator, ComparesTheUpperQuantityOfTwoElasticitiesInDoubles) {
    // Where the elasticity at the quantity of the upper bound is the one of the price, a single sees no
    // difference, and a double does.
    const float b = 4 / 3.0F + 4;
    const float a = -b / 36;
    ASSERT_EQ(a * 9.0F + b, 4.0F);
    ASSERT_GT(a * 9.0 + b, 4.0);
    const Script drawn = numbers({Kind::TwoElasticities, 4, 1, 6, 9, -3, -5}) + Script{kQuantities, 0.5F};
    EXPECT_EQ(exercise(drawn + sample("TwoPointsInQuantities").script()).kind, Kind::TwoPoints);
}

TEST(AfsaetGenerator, TellsABoundBelowZeroByTheLargestDraw) {
    const auto rangeFrom = [](float u) {
        return taskTexts(
                   exercise(numbers({Kind::TwoElasticities, 6, 1, 1, 5, -3, -3}) + Script{kQuantities, u}))
            .range;
    };
    EXPECT_EQ(rangeFrom(kLargestDraw), "Funktionen gælder i intervallet -1<Q<3");
    EXPECT_EQ(rangeFrom(kLargestDraw - (1 - kLargestDraw)), "Funktionen gælder i intervallet 0<Q<3");
}

TEST(AfsaetGenerator, FlipsItsCoinForTwoElasticitiesThatFallTooLittle) {
    for (const float coin : {kPrices, kQuantities}) {
        const AfsaetState s =
            exercise(numbers({Kind::TwoElasticities, 6, 1, 8, 9, -6, -6}) + Script{coin, 0.5F});
        EXPECT_EQ(s.interval, AfsaetInterval::InQuantities);
        EXPECT_EQ(s.Qlo, 3);
    }
}

TEST(AfsaetGenerator, TellsPricesAboveWhatTheLineFallsToAtTheEndOfTheGraph) {
    // P = -0.36Q + 7.5 is at 3.93 there.
    const AfsaetState s = exercise(numbers({Kind::TwoElasticities, 6, 1, 7, 9, -4, -2}) + Script{kPrices});
    EXPECT_EQ(taskTexts(s).range, "Funktionen gælder i intervallet 4<P<7");
    EXPECT_EQ(answerOf(s), (AfsaetAnswer{-0.36, 7.5, 1.4, 9.8}));
}

TEST(AfsaetGenerator, CutsTheSlopeOfAnEighthAwayFromZero) {
    EXPECT_EQ(exercise("TwoElasticitiesTooFlatForPrices").a, -0.13);
}

}  // namespace
}  // namespace tavrune
