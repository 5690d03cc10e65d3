#include "numeric/draws.h"

#include <array>
#include <set>

#include <gtest/gtest.h>

namespace tavrune {
namespace {

TEST(Draws, LieBetweenZeroAndOneWithOneLeftOut) {
    SeededDraws draws(1);
    for (int i = 0; i < 100'000; ++i) {
        const float u = draws.Rnd();
        ASSERT_GE(u, 0.0F);
        ASSERT_LT(u, 1.0F);
    }
}

TEST(Draws, HaveTwentyFourBits) {
    SeededDraws draws(2);
    bool anyOddMultiple = false;
    for (int i = 0; i < 1000; ++i) {
        const double multiple = static_cast<double>(draws.Rnd()) * (1U << 24U);
        ASSERT_EQ(multiple, static_cast<unsigned>(multiple));
        anyOddMultiple = anyOddMultiple || static_cast<unsigned>(multiple) % 2 == 1;
    }
    EXPECT_TRUE(anyOddMultiple);
}

TEST(Draws, FillTwentyCellsEvenly) {
    SeededDraws draws(3);
    std::array<int, 20> hits{};
    const int rounds = 200'000;
    for (int i = 0; i < rounds; ++i) {
        ++hits.at(static_cast<std::size_t>(draws.Rnd() * 20));
    }
    for (const int hit : hits) {
        EXPECT_NEAR(hit, rounds / 20.0, 500);
    }
}

TEST(Draws, AreTheSameForTheSameSeed) {
    SeededDraws one(42);
    SeededDraws other(42);
    for (int i = 0; i < 100; ++i) {
        other.Randomize();
        ASSERT_EQ(one.Rnd(), other.Rnd());
    }
}

TEST(Draws, AreFrozenForAllBuildsAndProcessors) {
    SeededDraws draws(2005);
    const std::array<unsigned, 4> frozen{16739392U, 10049966U, 16441424U, 1653016U};
    for (const unsigned expected : frozen) {
        EXPECT_EQ(static_cast<unsigned>(draws.Rnd() * static_cast<float>(1U << 24U)), expected);
    }
}

TEST(Draws, OfNeighbouringSeedsDiffer) {
    std::set<float> first;
    for (std::uint64_t seed = 0; seed < 1000; ++seed) {
        first.insert(SeededDraws(seed).Rnd());
    }
    EXPECT_GT(first.size(), 995U);
}

TEST(Draws, MoveOnWhenReseededWithinOneTickOfTheClock) {
    ClockDraws draws;
    std::set<float> seen;
    for (int i = 0; i < 1000; ++i) {
        draws.Randomize();
        seen.insert(draws.Rnd());
    }
    EXPECT_GT(seen.size(), 995U);
}

}  // namespace
}  // namespace tavrune
