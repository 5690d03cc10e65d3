#include "topics/economics/afsaet_exercise.h"

#include <array>
#include <cfenv>
#include <cmath>
#include <optional>
#include <set>
#include <utility>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/lot.h"
#include "support/proof.h"
#include "topics/economics/afsaet_script.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::DecimalMark;
using test::kLargestDraw;
using test::lotSize;
using test::Proof;
using test::ProofDraws;
using test::readsAsItself;
using test::Script;
using test::ScriptedDraws;
using test::afsaet::kPrices;
using test::afsaet::kQuantities;
using test::afsaet::Numbers;
using test::afsaet::numbers;
using test::afsaet::Sample;
using test::afsaet::sample;
using test::afsaet::samples;

using Kind = AfsaetKind;

/// A number of the answer, and whether it is right.
struct Field {
    double AfsaetAnswer::*number;
    bool AfsaetFields<bool>::*isRight;
};

constexpr std::array kFields{
    Field{&AfsaetAnswer::a, &AfsaetFields<bool>::a}, Field{&AfsaetAnswer::b, &AfsaetFields<bool>::b},
    Field{&AfsaetAnswer::Qlo, &AfsaetFields<bool>::Qlo}, Field{&AfsaetAnswer::Qhi, &AfsaetFields<bool>::Qhi}};

/// All are right but that one.
AfsaetFields<bool> allRightBut(const Field& wrong) {
    AfsaetFields<bool> right = kAfsaetAllRight;
    right.*wrong.isRight = false;
    return right;
}

/// The exercise that comes of just these draws.
AfsaetState exercise(const Script& script) {
    ScriptedDraws draws(script);
    AfsaetState state;
    newExercise(state, draws);
    EXPECT_TRUE(draws.isUsedUp());
    return state;
}

AfsaetState exercise(const char* name) { return exercise(sample(name).script()); }

std::vector<std::string> stepTexts(const AfsaetState& state) {
    std::vector<std::string> texts;
    for (const AfsaetStep& step : workedSteps(state, helpFor(state))) {
        EXPECT_EQ(step.numerator.empty(), step.denominator.empty());
        if (!step.denominator.empty()) {
            texts.push_back(step.numerator);
            texts.push_back(step.denominator);
        }
        texts.push_back(step.text);
    }
    texts.push_back(equationText(state));
    return texts;
}

class AfsaetSamples : public testing::TestWithParam<Sample> {};

TEST_P(AfsaetSamples, ComeOfJustTheirDraws) {
    const Sample& row = GetParam();
    ScriptedDraws draws(row.script());
    AfsaetState s;
    newExercise(s, draws);
    EXPECT_TRUE(draws.isUsedUp());
    EXPECT_EQ(draws.randomized(), 1);
    EXPECT_EQ(s.kind, row.drawn.kind);
    EXPECT_EQ(answerOf(s), row.answer);
    const AfsaetTask task = taskTexts(s);
    EXPECT_EQ(task.firstFact, row.firstFact);
    EXPECT_EQ(task.secondFact, row.secondFact);
    EXPECT_EQ(task.range, row.range);
    EXPECT_EQ(judge(s, row.answer), kAfsaetAllRight);
}

INSTANTIATE_TEST_SUITE_P(Rows, AfsaetSamples, testing::ValuesIn(samples()),
                         [](const auto& row) { return std::string(row.param.name); });

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
    ScriptedDraws draws(numbers(row.drawn) + row.rest + next.script());
    AfsaetState s;
    newExercise(s, draws);
    EXPECT_TRUE(draws.isUsedUp());
    EXPECT_EQ(draws.randomized(), 2);
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

TEST(AfsaetJudge, WantsEachOfTheFourToTheLastDecimal) {
    const AfsaetState s = exercise("ElasticityAtOtherPriceInPrices");
    const AfsaetAnswer own{Val("-1.33"), Val("9.33"), Val(".25"), Val("4.00")};
    EXPECT_EQ(judge(s, own), kAfsaetAllRight);
    for (const Field& field : kFields) {
        for (const double nudge : {0.01, -0.01, 0.001, 1e-9}) {
            AfsaetAnswer typed = own;
            typed.*field.number += nudge;
            EXPECT_EQ(judge(s, typed), allRightBut(field)) << own.*field.number << " by " << nudge;
        }
    }
}

TEST(AfsaetJudge, TakesNothingTypedForALowerBoundOfZero) {
    const AfsaetState s = exercise("TwoElasticitiesInPrices");
    EXPECT_EQ(judge(s, {-2, 8, Val(""), 3.5}), kAfsaetAllRight);
    EXPECT_EQ(judge(s, {-2, 8, Val("-0"), 3.5}), kAfsaetAllRight);
    EXPECT_EQ(judge(s, {0, 0, 0, 0}), (AfsaetFields<bool>{false, false, true, false}));
}

struct SentenceRow {
    Kind kind;
    const char* sentence;
};

TEST(AfsaetTexts, AskByKind) {
    for (const auto& [kind, sentence] : {
             SentenceRow{Kind::TwoPoints,
                         "Bestem forskriften for den lineære afsætningsfunktion gennem følgende to punkter:"},
             SentenceRow{Kind::PointAndElasticityAtPrice,
                         "Du kender et punkt på en lineær afsætningsfunktion og priselasticiteten til en "
                         "bestemt pris på samme funktion. Bestem afsætningsfunktionens forskrift."},
             SentenceRow{Kind::PointAndElasticityAtQuantity,
                         "Du kender et punkt på en lineær afsætnigsfunktion og priselasticiteten ved en "
                         "bestemt mængde på samme funktion. Bestem afsætningsfunktionens forskrift."},
             SentenceRow{Kind::PointAndSlope,
                         "Du kender et punkt på en lineær afsætningsfunktion samt dens "
                         "hældningskoefficient. Bestem afsætningsfunktionens forskrift."},
             SentenceRow{Kind::TwoElasticities,
                         "På en lineær afsætningsfunktion kender du priselasticiteten ved en bestemt pris "
                         "samt priselasticiteten ved en bestemt mængde. Bestem afsætningsfunktionens "
                         "forskrift."},
             SentenceRow{Kind::ElasticityAtPriceAndSlope,
                         "På en lineær afsætningsfunktion kender du priselasticiteten ved en bestemt pris "
                         "og afsætningsfunktionens hældningskoefficient. Bestem afsætningsfunktionens "
                         "forskrift."},
             SentenceRow{Kind::ElasticityAtQuantityAndSlope,
                         "På en lineær afsætningsfunktion kender du priselasticiteten ved en bestemt "
                         "mængde samt afsætningsfuktionens hældningskoefficient. Bestem "
                         "afsætningsfunktionens forskrift."},
         }) {
        AfsaetState s;
        s.kind = kind;
        EXPECT_EQ(taskTexts(s).sentence, sentence);
    }
}

struct WorkedRow {
    const char* sample;
    AfsaetHelp help;
    std::vector<std::string> texts;
};

TEST(AfsaetWorked, IsWrittenStepByStep) {
    const DecimalMark danish(",");
    for (const auto& [name, help, texts] : {
             WorkedRow{"TwoPointsInPrices",
                       AfsaetHelp::TwoPoints,
                       {"8 - 2", "1 - 5", "= -1,5", "b = 8 - (-1,5)*1 = 9,5", "P = -1,5Q + 9,5"}},
             WorkedRow{"ElasticityAtPointPriceInPrices",
                       AfsaetHelp::ElasticityAtPointPrice,
                       {"3", "-2*1", "= 3/-2 = -1,5", "b = 3 - (3/-2)*1 = 4,5", "P = -1,5Q + 4,5"}},
             WorkedRow{"ElasticityAtPointPriceInQuantities",
                       AfsaetHelp::ElasticityAtPointPrice,
                       {"6", "-3*2", "= 6/-6 = -1", "b = 6 - (6/-6)*2 = 8", "P = -1Q + 8"}},
             WorkedRow{"ElasticityAtOtherPriceInPrices",
                       AfsaetHelp::ElasticityAtOtherPrice,
                       {"8 - 7", "1 - 1,75", "= 1/-0,75 = -1,33", "b = 8 - (1/-0,75)*1 = 9,33",
                        "P = -1,33Q + 9,33"}},
             WorkedRow{"ElasticityAtPointQuantity",
                       AfsaetHelp::ElasticityAtPointQuantity,
                       {"7", "-3*1", "= 7/-3 = -2,33", "b = 7 - (7/-3)*1 = 9,33", "P = -2,33Q + 9,33"}},
             WorkedRow{
                 "ElasticityAtOtherQuantity",
                 AfsaetHelp::ElasticityAtOtherQuantity,
                 {"6 - 4,8", "1 - 2", "= 1,2/-1 = -1,2", "b = 6 - (1,2/-1)*1 = 7,2", "P = -1,2Q + 7,2"}},
             WorkedRow{
                 "PointAndSlopeInPrices", AfsaetHelp::PointAndSlope, {"b = 4 - (-3)*2 = 10", "P = -3Q + 10"}},
             WorkedRow{
                 "TwoElasticitiesInPrices",
                 AfsaetHelp::TwoElasticities,
                 {"Pmax = 6 - 6/-3 = -24/-3 = 8", "Qmax = 1 - 1*-3 = 4", "a = -8/4 = -2", "P = -2Q + 8"}},
             WorkedRow{"TwoElasticitiesOfALongPmax",
                       AfsaetHelp::TwoElasticities,
                       {"Pmax = 7 - 7/-3 = -28/-3 = 9,33", "Qmax = 2 - 2*-6 = 14", "a = -(-28/-3)/14 = -0,67",
                        "P = -0,67Q + 9,33"}},
             WorkedRow{"ElasticityAtPriceAndSlopeInPrices",
                       AfsaetHelp::ElasticityAtPriceAndSlope,
                       {"Q = 6/(-3*-2) = 1", "b = 6 - (-2*1) = 8", "P = -2Q + 8"}},
             WorkedRow{"ElasticityAtPriceAndSlopeUpsideDown",
                       AfsaetHelp::ElasticityAtPriceAndSlope,
                       {"Q = 3/(-2*-6) = 0,25", "b = 3 - (-6*0,25) = 4,5", "P = -6Q + 4,5"}},
             WorkedRow{"ElasticityAtPriceAndSlopeOfALongQ",
                       AfsaetHelp::ElasticityAtPriceAndSlope,
                       {"Q = 7/(-4*-4) = 7/16 = 0,44", "b = 7 - (-4*(7/16)) = 8,75", "P = -4Q + 8,75"}},
             WorkedRow{"ElasticityAtQuantityAndSlopeInPrices",
                       AfsaetHelp::ElasticityAtQuantityAndSlope,
                       {"P = -2*(-3)*1 = 6", "b = 6 - (-2)*1 = 8", "P = -2Q + 8"}},
         }) {
        const AfsaetState s = exercise(name);
        EXPECT_EQ(helpFor(s), help) << name;
        EXPECT_EQ(stepTexts(s), texts) << name;
    }
}

TEST(AfsaetWorked, IsFoundByWhatAStepFinds) {
    const AfsaetState s = exercise("TwoElasticitiesInPrices");
    EXPECT_EQ(workedStep(s, AfsaetHelp::TwoElasticities, AfsaetUnknown::MaxPrice).text,
              "Pmax = 6 - 6/-3 = -24/-3 = 8");
    EXPECT_EQ(workedStep(s, AfsaetHelp::TwoElasticities, AfsaetUnknown::Slope).text, "a = -8/4 = -2");
    EXPECT_EQ(workedStep(s, AfsaetHelp::TwoElasticities, AfsaetUnknown::Quantity).text, "");
}

/// What the student is told, read back from the texts: enough to fix a line, two facts of any kind.
struct Facts {
    std::vector<std::pair<double, double>> points;  // P; Q
    std::optional<double> slope;
    std::optional<double> b;     // from an elasticity at a price: Ep = P/(P - b)
    std::optional<double> Qmax;  // from an elasticity at a quantity: Ep = (Q - Qmax)/Q
};

void read(const std::string& fact, Facts& facts) {
    const auto valueFrom = [&fact](std::size_t at) { return Val(fact.substr(at)); };
    const std::size_t equals = fact.find('=');
    if (fact.front() == '(') {
        const std::size_t open = fact.find('(', equals);
        facts.points.emplace_back(valueFrom(open + 1), valueFrom(fact.find(';', open) + 1));
    } else if (fact.front() == 'H') {
        facts.slope = valueFrom(equals + 1);
    } else {
        const double Ep = valueFrom(equals + 1);
        const double at = valueFrom(fact.rfind('=') + 1);
        if (fact.find('P', equals) != std::string::npos) {
            facts.b = at - at / Ep;
        } else {
            facts.Qmax = at * (1 - Ep);
        }
    }
}

/// Slope and intercept of the one line that the facts allow.
std::pair<double, double> solve(const Facts& facts) {
    if (facts.b && facts.Qmax) {
        return {-*facts.b / *facts.Qmax, *facts.b};
    }
    if (facts.slope && facts.b) {
        return {*facts.slope, *facts.b};
    }
    if (facts.slope && facts.Qmax) {
        return {*facts.slope, -*facts.slope * *facts.Qmax};
    }
    const auto [P, Q] = facts.points.at(0);
    if (facts.slope) {
        return {*facts.slope, P - *facts.slope * Q};
    }
    if (facts.b) {
        return {(P - *facts.b) / Q, *facts.b};
    }
    if (facts.Qmax) {
        const double a = P / (Q - *facts.Qmax);
        return {a, -a * *facts.Qmax};
    }
    const auto [P2, Q2] = facts.points.at(1);
    const double a = (P2 - P) / (Q2 - Q);
    return {a, P - a * Q};
}

/// The four numbers that the task determines, unrounded.
AfsaetAnswer solved(const AfsaetTask& task) {
    Facts facts;
    read(task.firstFact, facts);
    read(task.secondFact, facts);
    const auto [a, b] = solve(facts);
    const std::size_t mark = task.range.find('<');
    const double lower = Val(task.range.substr(task.range.rfind(' ', mark) + 1));
    const double upper = Val(task.range.substr(mark + 3));
    return task.range.at(mark + 1) == 'P' ? AfsaetAnswer{a, b, (upper - b) / a, (lower - b) / a}
                                          : AfsaetAnswer{a, b, lower, upper};
}

TEST(AfsaetReader, SolvesTheTextsOfEverySample) {
    for (const Sample& row : samples()) {
        const AfsaetAnswer found = solved({"", row.firstFact, row.secondFact, row.range});
        for (const Field& field : kFields) {
            EXPECT_NEAR(found.*field.number, row.answer.*field.number, 0.00501) << row.name;
        }
    }
}

bool isWhole(double x) { return x == std::floor(x); }

bool hasTwoDecimals(double x) { return x == std::round(x * 100) / 100; }

/// What must hold of an exercise, whatever was drawn; the first thing that does not, or nothing.
const char* flawOf(const AfsaetState& s) {
    const AfsaetAnswer answer = answerOf(s);
    const AfsaetTask task = taskTexts(s);
    const AfsaetAnswer told = solved(task);
    // What single precision makes of a bound where the line is flattest is less than this.
    constexpr double kSlack = 1e-4;
    for (const auto& [number, isRight] : kFields) {
        if (!std::isfinite(answer.*number) || std::abs(answer.*number - told.*number) > 0.005 + kSlack) {
            return "the texts do not determine the answer";
        }
        if (!hasTwoDecimals(answer.*number)) {
            return "the answer is not rounded";
        }
    }
    if (!(s.a < 0 && 3 <= s.b && s.b <= 10)) {
        return "the line is not one to ask for";
    }
    const bool isInPrices = s.interval == AfsaetInterval::InPrices;
    if (isInPrices ? !isWhole(s.Plo) || !isWhole(s.Phi) : !isWhole(s.Qlo) || !isWhole(s.Qhi)) {
        return "a bound is not whole";
    }
    const bool isRepaired = s.kind == Kind::TwoPoints || s.kind == Kind::PointAndElasticityAtPrice;
    if (isRepaired && isInPrices && (s.Qlo < 0 || s.Qhi > 10 || s.Phi < s.P1 || s.Plo > s.P2)) {
        return "the bounds leave the graph, or do not hold the points";
    }
    if (s.kind == Kind::TwoPoints && !isInPrices && s.Qhi != s.Q2 + 1) {
        return "the upper bound is not one above the second point";
    }
    for (const float drawn : {s.Ep, s.Ep2, s.slope}) {
        // -1 comes of a draw of just 0, which a long run can meet.
        if (drawn < -6 || drawn > -1 || !isWhole(drawn)) {
            return "an elasticity or slope is out of its range";
        }
    }
    if (judge(s, answer) != kAfsaetAllRight) {
        return "the answer is judged wrong";
    }
    for (const Field& field : kFields) {
        if (!readsAsItself(answer.*field.number)) {
            return "the answer does not read as itself";
        }
        for (const double beside : {-0.001, 0.001}) {
            AfsaetAnswer nudged = answer;
            nudged.*field.number += beside;
            if (judge(s, nudged) != allRightBut(field)) {
                return "another number is judged right, or not it alone wrong";
            }
        }
    }
    const AfsaetHelp help = helpFor(s);
    const double last = help == AfsaetHelp::TwoElasticities ? s.a : s.b;
    if (equationText(s) != "P = " + NumberText(s.a) + "Q + " + NumberText(s.b) ||
        !test::endsIn(workedSteps(s, help).back().text, "= " + NumberText(last))) {
        return "the worked solution does not end in the answer";
    }
    return nullptr;
}

TEST(AfsaetProperties, HoldOverManyExercises) {
    // Each of the nine helps both ways, but for an elasticity at a quantity beside a point.
    Proof proof("afsæt", 16);
    AfsaetState s;
    std::feclearexcept(FE_ALL_EXCEPT);
    for (const auto ends : {ProofDraws::Ends::None, ProofDraws::Ends::AboveZero}) {
        ProofDraws draws(61, ends);
        for (int i = 0; i < lotSize(ends == ProofDraws::Ends::None ? 100'000 : 20'000); ++i) {
            draws.beginExercise();
            newExercise(s, draws);
            proof.visit(Proof::From::Seeds, 2 * static_cast<int>(helpFor(s)) + static_cast<int>(s.interval));
            const char* const flaw = flawOf(s);
            ASSERT_EQ(flaw, nullptr) << flaw << ": " << taskTexts(s).firstFact << " "
                                     << taskTexts(s).secondFact << " " << taskTexts(s).range;
        }
    }
    EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO | FE_INVALID), 0) << "also in what was rejected";
}

TEST(AfsaetProperties, HaveNoLongNumberInAnyWorkedStep) {
    // 1/-0.75 and the like could come with fifteen digits.
    SeededDraws draws(62);
    AfsaetState s;
    for (int i = 0; i < 20'000; ++i) {
        newExercise(s, draws);
        for (const std::string& text : stepTexts(s)) {
            ASSERT_LE(text.size(), 36U) << text;
        }
    }
}

TEST(AfsaetProperties, TellAnAnswerThatIsTypedAsItIsShown) {
    SeededDraws draws(63);
    AfsaetState s;
    for (int i = 0; i < 20'000; ++i) {
        newExercise(s, draws);
        AfsaetAnswer typed = answerOf(s);
        for (const Field& field : kFields) {
            typed.*field.number = Val(NumberText(typed.*field.number));
        }
        ASSERT_EQ(judge(s, typed), kAfsaetAllRight);
    }
}

RC_GTEST_PROP(AfsaetGeneratorProperty, GivesASolvableExerciseForEverySeed, (std::uint64_t seed)) {
    SeededDraws draws(seed);
    AfsaetState s;
    for (int i = 0; i < 20; ++i) {
        newExercise(s, draws);
        RC_ASSERT(flawOf(s) == nullptr);
    }
}

}  // namespace
}  // namespace tavrune
