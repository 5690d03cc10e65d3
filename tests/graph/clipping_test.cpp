#include "graph/clipping.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace tavrune {
namespace {

const QRectF kBox(0, 0, 100, 50);
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Clipped, KeepsALineInside) { EXPECT_EQ(clipped({10, 10, 90, 40}, kBox), QLineF(10, 10, 90, 40)); }

TEST(Clipped, CutsALineAtTheBorder) {
    EXPECT_EQ(clipped({-100, 25, 200, 25}, kBox), QLineF(0, 25, 100, 25));
    EXPECT_EQ(clipped({50, -10, 50, 500}, kBox), QLineF(50, 0, 50, 50));
    EXPECT_EQ(clipped({-50, -50, 150, 150}, kBox), QLineF(0, 0, 50, 50));
}

TEST(Clipped, KeepsALineOnTheBorder) {
    for (const QLineF& line :
         {QLineF(0, 0, 0, 50), {100, 0, 100, 50}, {0, 0, 100, 0}, {0, 50, 100, 50}, {0, 0, 100, 50}}) {
        EXPECT_EQ(clipped(line, kBox), line);
    }
}

TEST(Clipped, KeepsTheDirectionOfALine) {
    EXPECT_EQ(clipped({200, 25, -100, 25}, kBox), QLineF(100, 25, 0, 25));
}

TEST(Clipped, LeavesNothingOfALineThatPassesBy) {
    EXPECT_EQ(clipped({-10, 0, -10, 50}, kBox), std::nullopt);
    EXPECT_EQ(clipped({0, 60, 100, 60}, kBox), std::nullopt);
    EXPECT_EQ(clipped({-60, 0, 0, 60}, kBox), std::nullopt);
}

TEST(Clipped, TakesEndsOfAnySize) {
    const auto steep = clipped({50, 25, 50, 1e300}, kBox);
    ASSERT_TRUE(steep);
    EXPECT_EQ(*steep, QLineF(50, 25, 50, 50));
    EXPECT_EQ(clipped({-kInfinity, 10, kInfinity, 10}, kBox), QLineF(0, 10, 100, 10));
    EXPECT_EQ(clipped({1e300, 1e300, 2e300, 3e300}, kBox), std::nullopt);
}

TEST(Clipped, KeepsWhatIsSeenOfAHugeSlantedLineOnTheBox) {
    const auto line = clipped({0, 0, 3.4e38, 1.7e38}, kBox);
    ASSERT_TRUE(line);
    EXPECT_NEAR(line->x2(), 100, 1);
    EXPECT_NEAR(line->y2(), 50, 1);
}

TEST(Clipped, LeavesNothingOfANan) {
    const double nan = std::nan("");
    for (const QLineF& line : {QLineF(nan, 0, 10, 10), {0, nan, 10, 10}, {0, 0, nan, 10}, {0, 0, 10, nan}}) {
        EXPECT_EQ(clipped(line, kBox), std::nullopt);
    }
}

}  // namespace
}  // namespace tavrune
