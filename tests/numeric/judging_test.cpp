#include "numeric/judging.h"

#include <gtest/gtest.h>

#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

TEST(IsExactly, WantsTheTwoDecimalsAndNoMore) {
    const double stored = RoundSigned2(1.0 / 3);
    EXPECT_TRUE(isExactly(Val("0.33"), stored));
    EXPECT_FALSE(isExactly(Val("0.333"), stored));
    EXPECT_TRUE(isExactly(Val("0.50"), RoundSigned2(0.5)));
}

TEST(IsHalfOpenNear, LeavesOutItsLowerEnd) {
    EXPECT_FALSE(isHalfOpenNear(3.12, 3.125));
    EXPECT_TRUE(isHalfOpenNear(3.12001, 3.125));
    EXPECT_TRUE(isHalfOpenNear(3.13, 3.125));
    EXPECT_FALSE(isHalfOpenNear(3.1301, 3.125));
    EXPECT_FALSE(isHalfOpenNear(2.5 - 0.005, 2.5));
    EXPECT_TRUE(isHalfOpenNear(2.5 + 0.005, 2.5));
}

TEST(IsClosedNear, HoldsBothItsEnds) {
    EXPECT_TRUE(isClosedNear(2.5 - 0.005, 2.5));
    EXPECT_TRUE(isClosedNear(2.5 + 0.005, 2.5));
    EXPECT_FALSE(isClosedNear(2.4949, 2.5));
    EXPECT_FALSE(isClosedNear(2.5051, 2.5));
}

TEST(Tolerance, IsAbsolute) {
    EXPECT_FALSE(isHalfOpenNear(1000.006, 1000));
    EXPECT_FALSE(isClosedNear(1000.006, 1000));
}

TEST(Tolerance, TakesAnEmptyBoxForZero) {
    EXPECT_TRUE(isHalfOpenNear(Val(""), 0));
    EXPECT_TRUE(isClosedNear(Val("abc"), 0));
    EXPECT_TRUE(isExactly(Val(" "), 0));
}

}  // namespace
}  // namespace tavrune
