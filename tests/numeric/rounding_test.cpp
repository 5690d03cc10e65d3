#include "numeric/rounding.h"

#include <cmath>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"

namespace tavrune {
namespace {

struct Row {
    const char* name;
    double (*idiom)(double);
    double x;
    double expected;
};

class Rounding : public testing::TestWithParam<Row> {};

TEST_P(Rounding, GivesTheDoubleNearestToTheDecimal) {
    EXPECT_EQ(GetParam().idiom(GetParam().x), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Rounding,
    testing::Values(Row{"Signed2TakesAPositiveHalfUp", RoundSigned2, 0.125, 0.13},
                    Row{"Signed2TakesANegativeHalfAwayFromZero", RoundSigned2, -0.125, -0.13},
                    Row{"Signed2OfZero", RoundSigned2, 0, 0},
                    Row{"Signed2OfAThird", RoundSigned2, 1.0 / 3, 0.33},
                    Row{"Signed2OfAMinusThird", RoundSigned2, -1.0 / 3, -0.33},
                    Row{"Signed2OfASingleThird", RoundSigned2, -1.0F / 3, -0.33},
                    Row{"Signed2BelowANegativeHalf", RoundSigned2, -0.12499995, -0.13},
                    Row{"Signed2FineBelowANegativeHalf", RoundSigned2Fine, -0.12499995, -0.12},
                    Row{"Signed2FineTakesANegativeHalfAwayFromZero", RoundSigned2Fine, -0.125, -0.13},
                    Row{"Signed3TakesANegativeHalfAwayFromZero", RoundSigned3, -2.0005, -2.001},
                    Row{"Signed3OfASixteenth", RoundSigned3, 0.0625, 0.063},
                    Row{"Signed3OfTwoThirds", RoundSigned3, -2.0 / 3, -0.667},
                    Row{"Up2TakesAPositiveHalfUp", RoundUp2, 0.125, 0.13},
                    Row{"Up2TakesANegativeHalfTowardsZero", RoundUp2, -0.125, -0.12},
                    Row{"Up3TakesAPositiveHalfUp", RoundUp3, 0.0625, 0.063},
                    Row{"Up3TakesANegativeHalfTowardsZero", RoundUp3, -0.0625, -0.062},
                    Row{"Up1TakesAPositiveHalfUp", RoundUp1, 0.25, 0.3},
                    Row{"Up1TakesANegativeHalfTowardsZero", RoundUp1, -0.25, -0.2}),
    [](const auto& row) { return row.param.name; });

TEST(RoundSigned2, IsReadBackExactlyFromItsOwnText) {
    const test::DecimalMark point(".");
    for (int i = -40'000; i <= 40'000; ++i) {
        const double rounded = RoundSigned2(i / 177.0);
        ASSERT_EQ(Val(NumberText(rounded)), rounded) << i;
    }
}

TEST(RoundSigned2, OfAThousandthIsNeverAMinusZero) {
    EXPECT_FALSE(std::signbit(RoundSigned2(-0.001)));
    EXPECT_FALSE(std::signbit(RoundUp2(-0.001)));
}

}  // namespace
}  // namespace tavrune
