#include "numeric/arithmetic.h"

#include <map>
#include <type_traits>

#include <gtest/gtest.h>

#include "support/scripted_draws.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::kLargestDraw;
using Kind = ArithmeticFailure::Kind;

TEST(Int, IsTheFloor) {
    EXPECT_EQ(Int(-0.5), -1);
    EXPECT_EQ(Int(-0.0001), -1);
    EXPECT_EQ(Int(2.9), 2);
    EXPECT_EQ(Int(-3.0), -3);
}

TEST(Fix, CutsTowardsZero) {
    EXPECT_EQ(Fix(-5.9), -5);
    EXPECT_EQ(Fix(-0.0001), 0);
    EXPECT_EQ(Fix(5.9), 5);
}

TEST(Arithmetic, KeepsTheKindOfItsOperands) {
    static_assert(std::is_same_v<decltype(Int(1.5F)), float>);
    static_assert(std::is_same_v<decltype(Int(1.5)), double>);
    static_assert(std::is_same_v<decltype(Fix(1.5F)), float>);
    static_assert(std::is_same_v<decltype(1.5F * 100), float>);
    static_assert(std::is_same_v<decltype(1.5F - 0.001), double>);
    static_assert(std::is_same_v<decltype(1.5F * 1.5F), float>);
    static_assert(std::is_same_v<decltype(1.5F + 1.0), double>);
    static_assert(std::is_same_v<decltype(1.5F / 3), float>);
    static_assert(std::is_same_v<decltype(divide(1.0F, 3.0F)), float>);
    static_assert(std::is_same_v<decltype(divide(1.0F, 3)), float>);
    static_assert(std::is_same_v<decltype(divide(1.0F, 3.0)), double>);
    static_assert(std::is_same_v<decltype(power(1.5F, 2)), double>);
    EXPECT_EQ(power(0.1F, 2), static_cast<double>(0.1F) * 0.1F);
    EXPECT_EQ(divide(1.0F, 3.0F), 1.0F / 3.0F);
    EXPECT_EQ(divide(1.0, 3.0), 1.0 / 3.0);
}

struct DrawIdiom {
    const char* name;
    float (*idiom)(float);
    float lowest;
    float highest;
};

class DrawIdioms : public testing::TestWithParam<DrawIdiom> {};

TEST_P(DrawIdioms, ReachJustTheirRange) {
    std::map<float, int> hits;
    const int cells = 4200;
    for (int cell = 0; cell < cells; ++cell) {
        ++hits[GetParam().idiom(cellOf(cell, cells))];
    }
    EXPECT_EQ(hits.begin()->first, GetParam().lowest);
    EXPECT_EQ(hits.rbegin()->first, GetParam().highest);
    EXPECT_LE(GetParam().idiom(kLargestDraw), GetParam().highest);
    for (const auto& [value, count] : hits) {
        EXPECT_NEAR(count, static_cast<double>(cells) / static_cast<double>(hits.size()), 1) << value;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DrawIdioms,
    testing::Values(DrawIdiom{"FromZero", [](float u) { return Int(u * 8); }, 0, 7},
                    DrawIdiom{"Shifted", [](float u) { return Int(u * 8) + 1; }, 1, 8},
                    DrawIdiom{"LopsidedTen", [](float u) { return Int(u * 20 - 10); }, -10, 9},
                    DrawIdiom{"LopsidedFive", [](float u) { return Int(u * 10 - 5); }, -5, 4},
                    DrawIdiom{"CutNegative", [](float u) { return Fix(u * -6); }, -5, 0},
                    DrawIdiom{"OneOrTwo", [](float u) { return Int(u * 2) + 1; }, 1, 2},
                    DrawIdiom{"FairCoin", [](float u) { return 0.5 > u ? 1.0F : 0.0F; }, 0, 1},
                    DrawIdiom{"FairBit", [](float u) { return Int(u * 2); }, 0, 1},
                    DrawIdiom{"HalfSteps", [](float u) { return Int(u * 10) / 2; }, 0, 4.5F}),
    [](const auto& row) { return row.param.name; });

TEST(DrawIdioms, NegativeFloorReachesMinusOneOnlyAtZero) {
    EXPECT_EQ(Int(-0.0F * 5) - 1, -1);
    EXPECT_EQ(Int(-(1.0F / (1U << 24U)) * 5) - 1, -2);
    EXPECT_EQ(Int(-kLargestDraw * 5) - 1, -6);
}

TEST(DrawIdioms, FiveKindsWithTheRareZero) {
    const auto kind = [](float u) { return Int(u * 5 - 0.001) + 1; };
    EXPECT_EQ(kind(0), 0);
    EXPECT_EQ(kind(0.000199F), 0);
    EXPECT_EQ(kind(0.000201F), 1);
    EXPECT_EQ(kind(kLargestDraw), 5);
}

TEST(Divide, ThrowsWhereTheDenominatorIsZero) {
    try {
        static_cast<void>(divide(1.0, 0.0));
        FAIL() << "no failure";
    } catch (const ArithmeticFailure& failure) {
        EXPECT_EQ(failure.kind(), Kind::DivisionByZero);
        EXPECT_STREQ(failure.what(), "division by zero");
    }
}

TEST(Divide, CallsZeroByZeroAnOverflow) {
    try {
        static_cast<void>(divide(0.0F, 0.0F));
        FAIL() << "no failure";
    } catch (const ArithmeticFailure& failure) {
        EXPECT_EQ(failure.kind(), Kind::Overflow);
    }
}

TEST(IsDivisible, HoldsForNegativeNumbersToo) {
    EXPECT_TRUE(isDivisible(-12, 3));
    EXPECT_TRUE(isDivisible(0, 7));
    EXPECT_FALSE(isDivisible(-7, 2));
    EXPECT_FALSE(isDivisible(-1, 2));
}

}  // namespace
}  // namespace tavrune
