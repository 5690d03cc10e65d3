#include "numeric/text.h"

#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "support/decimal_mark.h"

namespace tavrune {
namespace {

using test::DecimalMark;

struct ValRow {
    const char* name;
    std::string typed;
    double expected;
};

class ValOf : public testing::TestWithParam<ValRow> {};

TEST_P(ValOf, ReadsTheNumberThatTheTextBeginsWith) { EXPECT_EQ(Val(GetParam().typed), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    Rows, ValOf,
    testing::Values(
        ValRow{"Empty", "", 0}, ValRow{"Letters", "abc", 0}, ValRow{"LettersBehind", "12abc", 12},
        ValRow{"CommaEndsIt", "1,5", 1}, ValRow{"SlashEndsIt", "2/3", 2}, ValRow{"NoWholePart", ".5", 0.5},
        ValRow{"NoFraction", "5.", 5}, ValRow{"PointAlone", ".", 0}, ValRow{"TwoPoints", "1.2.3", 1.2},
        ValRow{"Exponent", "1e1", 10}, ValRow{"CapitalExponent", "2E-1", 0.2},
        ValRow{"HalfAnExponent", "1e", 1}, ValRow{"ExponentSignAlone", "1e-", 1},
        ValRow{"ExponentWithNoNumber", "e5", 0}, ValRow{"ExponentAfterPoint", ".e5", 0},
        ValRow{"Plus", "+7", 7}, ValRow{"Minus", "-7", -7}, ValRow{"SignAlone", "-", 0},
        ValRow{"TwoSigns", "--7", 0}, ValRow{"BlankAfterMinus", "- 7", -7},
        ValRow{"BlanksBetweenDigits", " 1 2\t3\n4 ", 1234}, ValRow{"BlanksRoundThePoint", "1 . 5", 1.5},
        ValRow{"BlanksInTheExponent", "1 e 1", 10}, ValRow{"CarriageReturnEndsIt", "1\r2", 1},
        ValRow{"NotANumber", "nan", 0}, ValRow{"Infinity", "inf", 0}, ValRow{"Hexadecimal", "0x10", 0},
        ValRow{"NulEndsIt",
               std::string("1\0"
                           "2",
                           3),
               1},
        ValRow{"OtherDigitsEndIt", "1\xd9\xa2", 1},
        ValRow{"UnicodeMinus",
               "\xe2\x88\x92"
               "5",
               0},
        ValRow{"Huge", "1e999", kLargestTyped}, ValRow{"HugeNegative", "-1e999", -kLargestTyped},
        ValRow{"JustTooLarge", "1.8e308", kLargestTyped}, ValRow{"Largest", "1e308", 1e308},
        ValRow{"Tiny", "1e-999", 0}, ValRow{"TinyNegative", "-1e-999", 0},
        ValRow{"JustTooSmall", "1e-330", 0},
        ValRow{"EndlessExponent", "1e" + std::string(100'000, '9'), kLargestTyped},
        ValRow{"EndlessNegativeExponent", "1e-" + std::string(100'000, '9'), 0},
        ValRow{"ZeroWithEndlessExponent", "0e" + std::string(100'000, '9'), 0},
        ValRow{"MegabyteOfDigits", std::string(1'000'000, '7'), kLargestTyped},
        ValRow{"MegabyteOfZeros", std::string(1'000'000, '0') + "5", 5},
        ValRow{"ZerosBalancedByTheExponent", "0." + std::string(1'000'000, '0') + "1e1000001", 1},
        ValRow{"DigitsBalancedByTheExponent", "1" + std::string(1'000'000, '0') + "e-1000000", 1},
        ValRow{"LongTailRoundsRight",
               "1.00000000000000011102230246251565404236316680908203125" + std::string(2000, '0') + "1",
               std::nextafter(1.0, 2.0)}),
    [](const auto& row) { return row.param.name; });

TEST(Val, NeverGivesAMinusZero) {
    EXPECT_FALSE(std::signbit(Val("-0")));
    EXPECT_FALSE(std::signbit(Val("-1e-999")));
}

RC_GTEST_PROP(Val, IsFiniteForAnyBytes, (const std::string& bytes)) {
    const double v = Val(bytes);
    RC_ASSERT(std::isfinite(v));
    RC_ASSERT(std::abs(v) <= kLargestTyped);
}

RC_GTEST_PROP(Val, IsFiniteForAnyMixOfItsOwnCharacters, ()) {
    const auto text =
        *rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789.,eE+- \t")));
    RC_ASSERT(std::isfinite(Val(text)));
}

RC_GTEST_PROP(Val, ReadsWholeNumbersBack, (int n)) { RC_ASSERT(Val(std::to_string(n)) == n); }

RC_GTEST_PROP(Val, IsBlindToBlanksAnywhere, (int n)) {
    std::string spaced;
    for (const char c : std::to_string(n)) {
        spaced += std::string(" \t") + c + "\n";
    }
    RC_ASSERT(Val(spaced) == n);
}

TEST(NumberText, HoldsSevenDigitsOfASingleAndFifteenOfADouble) {
    const DecimalMark point(".");
    EXPECT_EQ(NumberText(1.0F / 3), "0.3333333");
    EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(NumberText(2.0F / 3), "0.6666667");
}

TEST(NumberText, HasNoTrailingZerosAndNoPlus) {
    const DecimalMark point(".");
    EXPECT_EQ(NumberText(2.50), "2.5");
    EXPECT_EQ(NumberText(7.0F), "7");
    EXPECT_EQ(NumberText(-0.25F), "-0.25");
    EXPECT_EQ(NumberText(100), "100");
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
}

TEST(NumberText, WritesTheMarkOfTheLocale) {
    const DecimalMark comma(",");
    EXPECT_EQ(NumberText(2.5), "2,5");
    EXPECT_EQ(NumberText(-0.33F), "-0,33");
}

TEST(NumberText, NeverShowsAMinusZero) {
    EXPECT_EQ(NumberText(-0.0), "0");
    EXPECT_EQ(NumberText(-0.0F), "0");
}

TEST(NumberText, TurnsToExponentsOnlyOutsideThePlainRange) {
    const DecimalMark point(".");
    EXPECT_EQ(NumberText(1234567.0F), "1234567");
    EXPECT_EQ(NumberText(12345678.0F), "1.234568E+07");
    EXPECT_EQ(NumberText(123456789012345.0), "123456789012345");
    EXPECT_EQ(NumberText(1e15), "1E+15");
    EXPECT_EQ(NumberText(0.0001), "0.0001");
    EXPECT_EQ(NumberText(0.00001), "1E-05");
}

RC_GTEST_PROP(NumberText, IsReadBackByValWithAPoint, (int hundredths)) {
    const DecimalMark point(".");
    const double x = hundredths / 100.0;
    RC_ASSERT(Val(NumberText(x)) == x);
}

TEST(FixedPointText, KeepsThePointInEveryLocale) {
    const DecimalMark comma(",");
    EXPECT_EQ(fixedPointText(2.5), "2.5");
    EXPECT_EQ(fixedPointText(0.5), "0.5");
    EXPECT_EQ(fixedPointText(3), "3");
    EXPECT_EQ(fixedPointText(0), "0");
}

TEST(FixedPointText, IsReadBackInHalfSteps) {
    const DecimalMark comma(",");
    for (int halves = 0; halves < 40; ++halves) {
        EXPECT_EQ(Val(fixedPointText(halves / 2.0)), halves / 2.0);
    }
}

TEST(Bracketed, HoldsOnlyANegativeNumber) {
    EXPECT_EQ(bracketed(-7.0F), "(-7)");
    EXPECT_EQ(bracketed(0.0F), "0");
    EXPECT_EQ(bracketed(-0.0F), "0");
    EXPECT_EQ(bracketed(4), "4");
}

TEST(SignAndSize, MakeUpTheNumber) {
    EXPECT_EQ(signOf(-3.0F) + " " + sizeText(-3.0F), "- 3");
    EXPECT_EQ(signOf(0.0F) + sizeText(0.0F), "+0");
    EXPECT_EQ(signOf(2) + sizeText(2), "+2");
}

}  // namespace
}  // namespace tavrune
