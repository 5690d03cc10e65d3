#include "topics/calculus/diff_exercise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "numeric/text.h"
#include "support/judged.h"
#include "support/proof.h"
#include "support/scripted_draws.h"
#include "topics/calculus/diff_script.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::DiffDraws;
using test::eachIs;
using test::eachTextIs;
using test::kJustPast;
using test::kLargestDraw;
using test::Proof;
using test::readsAsItself;
using test::Script;
using test::ScriptedDraws;

/// P=  1Q², which is accepted.
const DiffDraws kAccepted{.patternCase = 2};

DiffState exercise(const DiffDraws& drawn) { return test::exerciseOf<DiffState>(drawn.script()); }

/// True if just these draws are taken for an exercise, which is then in `state`.
bool isAccepted(const DiffDraws& drawn, DiffState& state) {
    const Script script = drawn.script();
    ScriptedDraws draws(script + kAccepted.script());
    newExercise(state, draws);
    const std::size_t more = kAccepted.script().size();
    EXPECT_TRUE(draws.used() == script.size() || draws.used() == script.size() + more);
    return draws.used() == script.size();
}

bool isAccepted(const DiffDraws& drawn) {
    DiffState state;
    return isAccepted(drawn, state);
}

/// What letters stand for in an expression. One that is not said makes it no number.
struct Letters {
    static constexpr double kNotSaid = std::numeric_limits<double>::quiet_NaN();

    double q = kNotSaid;
    double a = kNotSaid;
    double b = kNotSaid;
    double c = kNotSaid;
    double d = kNotSaid;

    [[nodiscard]] double operator[](char letter) const {
        switch (letter) {
            case 'Q':
                return q;
            case 'a':
                return a;
            case 'b':
                return b;
            case 'c':
                return c;
            case 'd':
                return d;
            default:
                return kNotSaid;
        }
    }
};

/// Reads sums of products as they are written in mathematics, "3·(-2)·4² +2·1·4-5" or "2Q³ -1Q", and
/// evaluates them. Blanks stand around signs and at the end only. What can't be read is no number.
class Reader {
public:
    Reader(std::string_view text, const Letters& letters) : rest_(text), letters_(letters) {}

    [[nodiscard]] double value() {
        const double value = sum();
        return rest_.empty() ? value : Letters::kNotSaid;
    }

private:
    std::string_view rest_;
    const Letters& letters_;

    bool takes(std::string_view token) {
        if (!rest_.starts_with(token)) {
            return false;
        }
        rest_.remove_prefix(token.size());
        return true;
    }

    void skipBlanks() {
        while (takes(" ")) {
        }
    }

    static bool isDigit(char c) { return c >= '0' && c <= '9'; }

    [[nodiscard]] bool beginsFactor() const {
        return !rest_.empty() && (rest_[0] == '(' || rest_[0] == 'Q' || isDigit(rest_[0]));
    }

    double sum() {
        skipBlanks();
        double value = takes("-") ? -product() : product();
        while (true) {
            skipBlanks();
            if (takes("+")) {
                skipBlanks();
                value += product();
            } else if (takes("-")) {
                skipBlanks();
                value -= product();
            } else {
                return value;
            }
        }
    }

    double product() {
        double value = power();
        while (takes("·") || beginsFactor()) {
            value *= power();
        }
        return value;
    }

    double power() {
        const double base = factor();
        if (takes("²")) {
            return base * base;
        }
        return takes("³") ? base * base * base : base;
    }

    double factor() {
        if (takes("(")) {
            const double value = sum();
            return takes(")") ? value : Letters::kNotSaid;
        }
        if (rest_.empty()) {
            return Letters::kNotSaid;
        }
        if (!isDigit(rest_[0])) {
            const double value = letters_[rest_[0]];
            rest_.remove_prefix(1);
            return value;
        }
        double value = 0;
        while (!rest_.empty() && isDigit(rest_[0])) {
            value = 10 * value + (rest_[0] - '0');
            rest_.remove_prefix(1);
        }
        return value;
    }
};

/// The right-hand side of an equation that begins with `name`.
double rightSide(std::string_view equation, std::string_view name, const Letters& letters) {
    if (!equation.starts_with(name)) {
        return Letters::kNotSaid;
    }
    return Reader(equation.substr(name.size()), letters).value();
}

TEST(DiffReader, ReadsProductsPowersAndBrackets) {
    EXPECT_EQ(rightSide("P=  2Q² - 3Q +4 ", "P=", {.q = 5}), 39);
    EXPECT_EQ(rightSide("P'(4)=3·(-2)·4² +2·1·4-5", "P'(4)=", {}), -93);
    EXPECT_EQ(rightSide("P= -10Q³", "P=", {.q = 2}), -80);
    EXPECT_EQ(Reader("-aQ²+bQ-c", {.q = 2, .a = 3, .b = 4, .c = 5}).value(), -9);
}

TEST(DiffReader, TakesNothingThatIsNotThere) {
    for (const char* text : {"", "2Q+", "2+-3", "(2", "2)", "2 3", "x", "2Q^2"}) {
        EXPECT_TRUE(std::isnan(Reader(text, {.q = 1}).value())) << text;
    }
    EXPECT_TRUE(std::isnan(rightSide("P=2", "P'=", {})));
}

/// The four texts of every pattern, written down for a = 2, b = 3, c = 4, d = 5 and Q = 1.
struct PatternRow {
    int patternCase;
    const char* shape;
    const char* polynomial;
    const char* workedPolynomial;
    const char* derivative;
    const char* derivativeAtPoint;
    int slope;
};

// clang-format off
constexpr std::array kRows{
    PatternRow{1, "aQ²+bQ+c", "P=  2Q² +3Q +4 ", "P= 2Q² +3Q +4 ", "P'=2·2Q +3", "P'(1)=2·2·1+3", 7},
    PatternRow{2, "aQ²", "P=  2Q²", "P= 2Q²", "P'=2·2Q", "P'(1)=2·2·1", 4},
    PatternRow{3, "aQ²+bQ", "P=  2Q² +3Q", "P= 2Q² +3Q", "P'=2·2Q + 3", "P'(1)=2·2·1+3", 7},
    PatternRow{4, "aQ²+c", "P=  2Q² +4", "P= 2Q² +4", "P'=2·2Q", "P'(1)=2·2·1", 4},
    PatternRow{5, "aQ²+bQ-c", "P=  2Q² +3Q -4", "P= 2Q² +3Q -4", "P'=2·2Q + 3", "P'(1)=2·2·1+3", 7},
    PatternRow{6, "aQ²-bQ+c", "P=  2Q² -3Q +4", "P= 2Q² -3Q +4", "P'=2·2Q - 3", "P'(1)=2·2·1-3", 1},
    PatternRow{7, "aQ²-c", "P=  2Q² -4", "P= 2Q² -4", "P'=2·2Q", "P'(1)=2·2·1", 4},
    PatternRow{8, "aQ²-bQ", "P=  2Q² - 3Q", "P= 2Q² -3Q", "P'=2·2Q - 3", "P'(1)=2·2·1-3", 1},
    PatternRow{9, "aQ²-bQ-c", "P=  2Q² -3Q -4", "P= 2Q² -3Q -4", "P'=2·2Q - 3", "P'(1)=2·2·1-3", 1},
    PatternRow{10, "-aQ²+bQ+c", "P= -2Q² +3Q +4", "P=-2Q² +3Q +4", "P'=2·(-2)Q + 3", "P'(1)=2·(-2)·1+3", -1},
    PatternRow{11, "-aQ²+bQ", "P= -2Q² +3Q", "P=-2Q² +3Q", "P'=2·(-2)Q + 3", "P'(1)=2·(-2)·1+3", -1},
    PatternRow{12, "-aQ²+bQ-c", "P= -2Q² +3Q -4", "P=-2Q² +3Q -4", "P'=2·(-2)Q + 3", "P'(1)=2·(-2)·1+3", -1},
    PatternRow{13, "-aQ²+c", "P= -2Q² +4", "P=-2Q² +4", "P'=2·(-2)Q", "P'(1)=2·(-2)·1", -4},
    PatternRow{14, "-aQ²-bQ+c", "P= -2Q² -3Q +4", "P=-2Q² -3Q +4", "P'=2·(-2)Q - 3", "P'(1)=2·(-2)·1-3", -7},
    PatternRow{15, "-aQ²-bQ", "P= -2Q² -3Q", "P=-2Q² -3Q", "P'=2·(-2)Q - 3", "P'(1)=2·(-2)·1-3", -7},
    PatternRow{16, "-aQ²-bQ-c", "P= -2Q² -3Q -4", "P=-2Q² -3Q -4", "P'=2·(-2)Q - 3", "P'(1)=2·(-2)·1-3", -7},
    PatternRow{17, "aQ³+bQ²+cQ+d", "P=  2Q³ +3Q² +4Q+5", "P=  2Q³ +3Q² +4Q+5", "P'=3·2Q² +2·3Q + 4", "P'(1)=3·2·1² +2·3·1+4", 16},
    PatternRow{18, "aQ³+bQ²+cQ-d", "P=  2Q³ +3Q² +4Q-5", "P=  2Q³ +3Q² +4Q-5", "P'=3·2Q² +2·3Q + 4", "P'(1)=3·2·1² +2·3·1+4", 16},
    PatternRow{19, "aQ³+bQ²+cQ", "P=  2Q³ +3Q² +4Q", "P=  2Q³ +3Q² +4Q", "P'=3·2Q² +2·3Q + 4", "P'(1)=3·2·1² +2·3·1+4", 16},
    PatternRow{20, "aQ³+bQ²-cQ+d", "P=  2Q³ +3Q² -4Q+5", "P=  2Q³ +3Q² -4Q+5", "P'=3·2Q² +2·3Q - 4", "P'(1)=3·2·1² +2·3·1-4", 8},
    PatternRow{21, "aQ³+bQ²+d", "P=  2Q³ +3Q² +5", "P=  2Q³ +3Q² +5", "P'=3·2Q² +2·3Q  ", "P'(1)=3·2·1² +2·3·1", 12},
    PatternRow{22, "aQ³-bQ²+cQ+d", "P=  2Q³ -3Q² +4Q+5", "P=  2Q³ -3Q² +4Q+5", "P'=3·2Q² -2·3Q + 4", "P'(1)=3·2·1² -2·3·1+4", 4},
    PatternRow{23, "aQ³+cQ+d", "P=  2Q³ +4Q+5", "P=  2Q³ +4Q+5", "P'=3·2Q² + 4", "P'(1)=3·2·1² +4", 10},
    PatternRow{24, "aQ³+bQ²-cQ-d", "P=  2Q³ +3Q² -4Q-5", "P=  2Q³ +3Q² -4Q-5", "P'=3·2Q² +2·3Q - 4", "P'(1)=3·2·1² +2·3·1-4", 8},
    PatternRow{25, "aQ³+bQ²", "P=  2Q³ +3Q²", "P=  2Q³ +3Q²", "P'=3·2Q² +2·3Q  ", "P'(1)=3·2·1² +2·3·1", 12},
    PatternRow{26, "aQ³-bQ²-cQ-d", "P=  2Q³ -3Q² -4Q-5", "P=  2Q³ -3Q² -4Q-5", "P'=3·2Q² -2·3Q - 4", "P'(1)=3·2·1² -2·3·1-4", -4},
    PatternRow{27, "aQ³", "P=  2Q³", "P=  2Q³", "P'=3·2Q²", "P'(1)=3·2·1²", 6},
    PatternRow{28, "aQ³+d", "P=  2Q³ +5", "P=  2Q³ +5", "P'=3·2Q²", "P'(1)=3·2·1²", 6},
    PatternRow{29, "aQ³+bQ²-cQ", "P=  2Q³ +3Q² -4Q", "P=  2Q³ +3Q² -4Q", "P'=3·2Q² +2·3Q - 4", "P'(1)=3·2·1² +2·3·1-4", 8},
    PatternRow{30, "aQ³-cQ", "P=  2Q³ -4Q", "P=  2Q³ -4Q", "P'=3·2Q² - 4", "P'(1)=3·2·1² -4", 2},
    PatternRow{31, "aQ³-bQ²-d", "P=  2Q³ -3Q² -5", "P=  2Q³ -3Q² -5", "P'=3·2Q² -2·3Q", "P'(1)=3·2·1² -2·3·1", 0},
    PatternRow{32, "aQ³-bQ²-cQ", "P=  2Q³ -3Q² -4Q", "P=  2Q³ -3Q² -4Q", "P'=3·2Q² -2·3Q - 4", "P'(1)=3·2·1² -2·3·1-4", -4},
    PatternRow{33, "aQ³-d", "P=  2Q³ -5", "P=  2Q³ -5", "P'=3·2Q²", "P'(1)=3·2·1²", 6},
    PatternRow{34, "aQ³-bQ²", "P=  2Q³ -3Q² ", "P=  2Q³ -3Q² ", "P'=3·2Q² -2·3Q", "P'(1)=3·2·1² -2·3·1", 0},
    PatternRow{35, "aQ³+cQ-d", "P=  2Q³ +4Q-5", "P=  2Q³ +4Q-5", "P'=3·2Q² +4", "P'(1)=3·2·1² +4", 10},
    PatternRow{36, "aQ³-bQ²+d", "P=  2Q³ -3Q² +5", "P=  2Q³ -3Q² +5", "P'=3·2Q² - 2·3Q", "P'(1)=3·2·1² -2·3·1", 0},
    PatternRow{37, "aQ³-bQ²-cQ+d", "P=  2Q³ -3Q² -4Q+5", "P=  2Q³ -3Q² -4Q+5", "P'=3·2Q² - 2·3Q - 4", "P'(1)=3·2·1² -2·3·1-4", -4},
    PatternRow{38, "aQ³-bQ²+cQ-d", "P=  2Q³ -3Q² +4Q-5", "P=  2Q³ -3Q² +4Q-5", "P'=3·2Q² - 2·3Q + 4", "P'(1)=3·2·1² -2·3·1+4", 4},
    PatternRow{39, "-aQ³+bQ²+cQ-d", "P= -2Q³ +3Q² +4Q-5", "P= -2Q³ +3Q² +4Q-5", "P'=3·(-2)Q² + 2·3Q + 4", "P'(1)=3·(-2)·1² +2·3·1+4", 4},
    PatternRow{40, "-aQ³+bQ²+cQ", "P= -2Q³ +3Q² +4Q", "P= -2Q³ +3Q² +4Q", "P'=3·(-2)Q² + 2·3Q + 4", "P'(1)=3·(-2)·1² +2·3·1+4", 4},
    PatternRow{41, "-aQ³+bQ²-cQ-d", "P= -2Q³ +3Q² -4Q-5", "P= -2Q³ +3Q² -4Q-5", "P'=3·(-2)Q² + 2·3Q - 4", "P'(1)=3·(-2)·1² +2·3·1-4", -4},
    PatternRow{42, "-aQ³+bQ²-cQ+d", "P= -2Q³ +3Q² -4Q+5", "P= -2Q³ +3Q² -4Q+5", "P'=3·(-2)Q² + 2·3Q - 4", "P'(1)=3·(-2)·1² +2·3·1-4", -4},
    PatternRow{43, "-aQ³+bQ²+d", "P= -2Q³ +3Q² +5", "P= -2Q³ +3Q² +5", "P'=3·(-2)Q² + 2·3Q", "P'(1)=3·(-2)·1² +2·3·1", 0},
    PatternRow{44, "-aQ³+bQ²", "P= -2Q³ +3Q²", "P= -2Q³ +3Q²", "P'=3·(-2)Q² + 2·3Q", "P'(1)=3·(-2)·1² +2·3·1", 0},
    PatternRow{45, "-aQ³", "P= -2Q³", "P= -2Q³", "P'=3·(-2)Q²", "P'(1)=3·(-2)·1²", -6},
    PatternRow{46, "-aQ³+bQ²-d", "P= -2Q³ +3Q² -5", "P= -2Q³ +3Q² -5", "P'=3·(-2)Q² + 2·3Q", "P'(1)=3·(-2)·1² +2·3·1", 0},
    PatternRow{47, "-aQ³-bQ²", "P= -2Q³ -3Q²", "P= -2Q³ -3Q²", "P'=3·(-2)Q² - 2·3Q", "P'(1)=3·(-2)·1² -2·3·1", -12},
    PatternRow{48, "-aQ³+bQ²+cQ", "P= -2Q³ +3Q² +4Q", "P= -2Q³ +3Q² +4Q", "P'=3·(-2)Q² + 2·3Q + 4", "P'(1)=3·(-2)·1² +2·3·1+4", 4},
    PatternRow{49, "-aQ³-bQ²-cQ-d", "P= -2Q³ -3Q² -4Q-5", "P= -2Q³ -3Q² -4Q-5", "P'=3·(-2)Q² - 2·3Q - 4", "P'(1)=3·(-2)·1² -2·3·1-4", -16},
    PatternRow{50, "-aQ³+bQ²+cQ+d", "P= -2Q³ +3Q² +4Q+5", "P= -2Q³ +3Q² +4Q+5", "P'=3·(-2)Q² + 2·3Q + 4", "P'(1)=3·(-2)·1² +2·3·1+4", 4},
};
// clang-format on

const PatternRow& rowOf(int patternCase) { return kRows.at(static_cast<std::size_t>(patternCase - 1)); }

/// The sign before a letter of a shape; 0 if the letter is not in it.
int signIn(std::string_view shape, char letter) {
    const std::size_t at = shape.find(letter);
    if (at == std::string_view::npos) {
        return 0;
    }
    return at > 0 && shape[at - 1] == '-' ? -1 : 1;
}

class DiffPatterns : public testing::TestWithParam<PatternRow> {
protected:
    [[nodiscard]] static DiffState drawn() {
        return exercise({.a = 2, .b = 3, .c = 4, .d = 5, .x = 1, .patternCase = GetParam().patternCase});
    }
};

INSTANTIATE_TEST_SUITE_P(Rows, DiffPatterns, testing::ValuesIn(kRows),
                         [](const auto& row) { return "Case" + std::to_string(row.param.patternCase); });

TEST_P(DiffPatterns, GiveTheCoefficientsTheirSigns) {
    const PatternRow& row = GetParam();
    const DiffState s = drawn();
    EXPECT_EQ(s.patternCase, row.patternCase);
    EXPECT_EQ(s.coefficientA, 2.0F * static_cast<float>(signIn(row.shape, 'a')));
    EXPECT_EQ(s.coefficientB, 3.0F * static_cast<float>(signIn(row.shape, 'b')));
    EXPECT_EQ(s.coefficientC, 4.0F * static_cast<float>(signIn(row.shape, 'c')));
    EXPECT_EQ(s.coefficientD, 5.0F * static_cast<float>(signIn(row.shape, 'd')));
    EXPECT_EQ(s.slopeAtPoint, row.slope);
}

TEST_P(DiffPatterns, AreWrittenToTheLetter) {
    const PatternRow& row = GetParam();
    const DiffTexts texts = textsOf(drawn());
    EXPECT_EQ(texts.polynomial, row.polynomial);
    EXPECT_EQ(texts.workedPolynomial, row.workedPolynomial);
    EXPECT_EQ(texts.derivative, row.derivative);
    EXPECT_EQ(texts.derivativeAtPoint, row.derivativeAtPoint);
    EXPECT_EQ(texts.atPoint, "For Q = 1 fås");
    EXPECT_EQ(texts.value, "P'(1)=" + std::to_string(row.slope));
}

TEST(DiffTexts, WriteACoefficientOfOneOut) {
    const DiffTexts texts = textsOf(exercise({.a = 1, .b = 1, .c = 1, .d = 1, .x = 3, .patternCase = 41}));
    EXPECT_EQ(texts.polynomial, "P= -1Q³ +1Q² -1Q-1");
    EXPECT_EQ(texts.derivative, "P'=3·(-1)Q² + 2·1Q - 1");
    EXPECT_EQ(texts.derivativeAtPoint, "P'(3)=3·(-1)·3² +2·1·3-1");
    EXPECT_EQ(texts.value, "P'(3)=-22");
    EXPECT_EQ(texts.atPoint, "For Q = 3 fås");
}

TEST(DiffTexts, LeaveCOutOfTheDerivativeOfAQuadratic) {
    const DiffTexts texts = textsOf(exercise({.a = 3, .c = 5, .x = 2, .patternCase = 4}));
    EXPECT_EQ(texts.derivative, "P'=2·3Q");
    EXPECT_EQ(texts.derivativeAtPoint, "P'(2)=2·3·2");
}

TEST(DiffPatternTable, HasItsFortiethPatternTwice) {
    std::set<std::string> shapes;
    for (const PatternRow& row : kRows) {
        shapes.insert(row.shape);
    }
    EXPECT_EQ(shapes.size(), 49U);
    EXPECT_STREQ(rowOf(40).shape, rowOf(48).shape);
}

TEST(DiffGenerator, DrawsFourSizesThenThePointThenThePattern) {
    const DiffState s = exercise({.a = 3, .b = 2, .c = 4, .d = 5, .x = 3, .patternCase = 18});
    EXPECT_EQ(s.coefficientA, 3);
    EXPECT_EQ(s.coefficientB, 2);
    EXPECT_EQ(s.coefficientC, 4);
    EXPECT_EQ(s.coefficientD, -5);
    EXPECT_EQ(s.pointQ, 3);
    EXPECT_EQ(s.patternCase, 18);
    EXPECT_EQ(s.slopeAtPoint, 97);
}

TEST(DiffGenerator, DrawsASecondAFromTheNineteenthPatternOn) {
    EXPECT_EQ((DiffDraws{.patternCase = 18}.script().size()), 6U);
    for (int patternCase = 19; patternCase <= 50; ++patternCase) {
        for (int first = 1; first <= 3; ++first) {
            for (int second = 1; second <= 2; ++second) {
                const DiffState s = exercise({.a = second, .patternCase = patternCase, .dropped = first});
                ASSERT_EQ(std::abs(s.coefficientA), static_cast<float>(second)) << patternCase;
            }
        }
    }
}

TEST(DiffGenerator, ReachesBothEndsOfEachRange) {
    DiffState s = test::exerciseOf<DiffState>({0, 0, 0, 0, 0, 0});
    EXPECT_EQ(textsOf(s).polynomial, "P=  1Q² +1Q +1 ");
    EXPECT_EQ(s.pointQ, 1);

    s = test::exerciseOf<DiffState>(
        {kLargestDraw, kLargestDraw, kLargestDraw, kLargestDraw, cellOf(0, 5), kLargestDraw, kLargestDraw});
    EXPECT_EQ(textsOf(s).polynomial, "P= -2Q³ +4Q² +5Q+5");

    s = test::exerciseOf<DiffState>(
        {kLargestDraw, kLargestDraw, kLargestDraw, kLargestDraw, kLargestDraw, cellOf(11, 50)});
    EXPECT_EQ(textsOf(s).polynomial, "P= -3Q² +4Q -5");
    EXPECT_EQ(s.pointQ, 5);
}

TEST(DiffGenerator, ReseedsBeforeEachTry) {
    DiffState s = test::exerciseOf<DiffState>(kAccepted.script(), test::Reseeds{1});
    EXPECT_EQ(textsOf(s).polynomial, "P=  1Q²");

    const DiffDraws tooHigh{.a = 3, .x = 5, .patternCase = 1};
    const DiffDraws tooLow{.a = 2, .x = 5, .patternCase = 45};
    s = test::exerciseOf<DiffState>(tooHigh.script() + tooLow.script() + kAccepted.script(),
                                    test::Reseeds{3});
    EXPECT_EQ(textsOf(s).polynomial, "P=  1Q²");
}

TEST(DiffGenerator, AllowsACurveAtSixtyAndNoneBeyond) {
    EXPECT_TRUE(isAccepted({.a = 2, .b = 1, .c = 5, .x = 5, .patternCase = 1}));
    EXPECT_FALSE(isAccepted({.a = 2, .b = 2, .c = 1, .x = 5, .patternCase = 1}));
    EXPECT_TRUE(isAccepted({.a = 2, .b = 1, .c = 5, .x = 5, .patternCase = 16}));
    EXPECT_FALSE(isAccepted({.a = 2, .b = 2, .c = 1, .x = 5, .patternCase = 16}));
    // 64 - 4 and 64 - 3; -54 + 27 + 3 and -64.
    EXPECT_TRUE(isAccepted({.a = 1, .d = 4, .x = 4, .patternCase = 33}));
    EXPECT_FALSE(isAccepted({.a = 1, .d = 3, .x = 4, .patternCase = 33}));
    EXPECT_TRUE(isAccepted({.a = 2, .b = 3, .c = 1, .x = 3, .patternCase = 40}));
    EXPECT_FALSE(isAccepted({.a = 1, .x = 4, .patternCase = 45}));
}

TEST(DiffGenerator, MeasuresTheFirstTwoCubicsByTheParabolaOfTheirFirstThreeCoefficients) {
    const DiffDraws steep{.a = 1, .b = 4, .c = 5, .d = 5, .x = 5, .patternCase = 17};
    DiffState s;
    EXPECT_TRUE(isAccepted(steep, s));
    EXPECT_EQ(curveAt(s, 5), 50);
    EXPECT_EQ(textsOf(s).polynomial, "P=  1Q³ +4Q² +5Q+5");
    EXPECT_EQ(s.slopeAtPoint, 120);
    EXPECT_EQ(textsOf(s).derivativeAtPoint, "P'(5)=3·1·5² +2·4·5+5");

    EXPECT_TRUE(isAccepted({.a = 3, .b = 1, .c = 1, .d = 1, .x = 4, .patternCase = 18}, s));
    EXPECT_EQ(curveAt(s, 4), 53);
    EXPECT_EQ(textsOf(s).polynomial, "P=  3Q³ +1Q² +1Q-1");

    EXPECT_FALSE(isAccepted({.a = 1, .b = 4, .c = 5, .d = 5, .x = 5, .patternCase = 19}));
}

TEST(DiffTangent, RunsThroughTheCurveAtThePointWithItsSlope) {
    const DiffState s = exercise({.a = 2, .b = 3, .c = 4, .d = 5, .x = 2, .patternCase = 26});
    EXPECT_EQ(curveAt(s, 2), 16 - 12 - 8 - 5);
    EXPECT_EQ(tangentAt(s, 8, 2), -9);
    EXPECT_EQ(tangentAt(s, 8, 3), -1);
    EXPECT_EQ(tangentAt(s, -0.5, 4), -10);
}

TEST(DiffJudge, TakesTheHalfOpenBandRoundTheSlope) {
    const DiffState s = exercise({.a = 2, .b = 2, .x = 3, .patternCase = 3});
    ASSERT_EQ(s.slopeAtPoint, 14);
    EXPECT_TRUE(eachTextIs(true, s, {"14", "14.0", "14.004", "14.005", "13.9951", "+14", "1.4e1"}));
    EXPECT_TRUE(eachTextIs(false, s, {"14.006", "14.0051", "13.995", "13.994", "-14", "", "abc"}));
}

TEST(DiffJudge, TakesNothingTypedForASlopeOfZero) {
    EXPECT_TRUE(eachTextIs(true, exercise({.a = 2, .b = 3, .x = 1, .patternCase = 34}), {""}));
}

/// A set of draws that is accepted, and what comes of it.
struct SpacePoint {
    DiffDraws drawn;
    DiffState state;
    DiffTexts texts;

    [[nodiscard]] std::string_view shape() const { return rowOf(drawn.patternCase).shape; }
};

Letters lettersOf(const DiffDraws& drawn, double q) {
    return {.q = q,
            .a = static_cast<double>(drawn.a),
            .b = static_cast<double>(drawn.b),
            .c = static_cast<double>(drawn.c),
            .d = static_cast<double>(drawn.d)};
}

/// Calls `visit` with every set of draws that makes a difference: 59,000 of them.
template <class Visit>
void forEachDraw(Visit visit) {
    for (int patternCase = 1; patternCase <= 50; ++patternCase) {
        const int largestA = patternCase > 18 ? 2 : 3;
        for (int i = 0; i < largestA * 4 * 5 * 5 * 5; ++i) {
            visit(DiffDraws{.a = i / 500 + 1,
                            .b = i / 125 % 4 + 1,
                            .c = i / 25 % 5 + 1,
                            .d = i / 5 % 5 + 1,
                            .x = i % 5 + 1,
                            .patternCase = patternCase});
        }
    }
}

double expectedCurve(const DiffDraws& drawn, double q) {
    const bool isTakenForAQuadratic = drawn.patternCase == 17 || drawn.patternCase == 18;
    return Reader(isTakenForAQuadratic ? "aQ²+bQ+c" : rowOf(drawn.patternCase).shape, lettersOf(drawn, q))
        .value();
}

const std::vector<SpacePoint>& acceptedSpace() {
    static const std::vector<SpacePoint> space = [] {
        std::vector<SpacePoint> points;
        forEachDraw([&](const DiffDraws& drawn) {
            if (std::abs(expectedCurve(drawn, drawn.x)) <= 60) {
                const DiffState state = exercise(drawn);
                points.push_back({drawn, state, textsOf(state)});
            }
        });
        return points;
    }();
    return space;
}

TEST(DiffSpace, RejectsJustTheCurvesBeyondSixty) {
    int accepted = 0;
    int rejected = 0;
    forEachDraw([&](const DiffDraws& drawn) {
        const bool isExpected = std::abs(expectedCurve(drawn, drawn.x)) <= 60;
        ++(isExpected ? accepted : rejected);
        ASSERT_EQ(isAccepted(drawn), isExpected) << rowOf(drawn.patternCase).shape << " at " << drawn.x;
    });
    EXPECT_EQ(accepted, 45'733);
    EXPECT_EQ(rejected, 13'267);
}

TEST(DiffSpace, HasEveryPatternAtThePointsUpToThreeAndSomeAtFive) {
    std::set<std::pair<int, int>> found;
    for (const SpacePoint& e : acceptedSpace()) {
        found.insert({e.drawn.patternCase, e.drawn.x});
    }
    for (int patternCase = 1; patternCase <= 50; ++patternCase) {
        for (int x = 1; x <= 3; ++x) {
            EXPECT_TRUE(found.contains({patternCase, x})) << patternCase << " at " << x;
        }
    }
    EXPECT_TRUE(found.contains({18, 5}));
    EXPECT_FALSE(found.contains({19, 4}));
}

TEST(DiffSpace, DrawsTheCurveOfTheTaskButForTheFirstTwoCubics) {
    for (const SpacePoint& e : acceptedSpace()) {
        for (const double q : {-3.0, 0.0, 0.5, 4.0}) {
            ASSERT_EQ(curveAt(e.state, q), expectedCurve(e.drawn, q)) << e.texts.polynomial;
        }
    }
}

TEST(DiffSpace, AsksForTheSlopeOfThePolynomialThatTheTaskShows) {
    constexpr double kStep = 1.0 / 1024;
    for (const SpacePoint& e : acceptedSpace()) {
        const auto shown = [&](double q) { return rightSide(e.texts.polynomial, "P=", {.q = q}); };
        const double q = e.state.pointQ;
        const double slope = (shown(q + kStep) - shown(q - kStep)) / (2 * kStep);
        ASSERT_NEAR(e.state.slopeAtPoint, slope, 1e-4) << e.texts.polynomial << " at " << q;
        ASSERT_EQ(e.state.slopeAtPoint, std::round(slope)) << e.texts.polynomial << " at " << q;
    }
}

TEST(DiffSpace, ShowsThePolynomialThatWasDrawn) {
    for (const SpacePoint& e : acceptedSpace()) {
        for (const double q : {-2.0, 0.0, 1.0, 3.0}) {
            const double expected = Reader(e.shape(), lettersOf(e.drawn, q)).value();
            ASSERT_EQ(rightSide(e.texts.polynomial, "P=", {.q = q}), expected) << e.texts.polynomial;
            ASSERT_EQ(rightSide(e.texts.workedPolynomial, "P=", {.q = q}), expected) << e.texts.polynomial;
        }
    }
}

TEST(DiffSpace, WorksOutTheSlopeInItsTexts) {
    for (const SpacePoint& e : acceptedSpace()) {
        const std::string name = "P'(" + std::to_string(e.drawn.x) + ")=";
        const double slope = e.state.slopeAtPoint;
        ASSERT_EQ(rightSide(e.texts.derivative, "P'=", {.q = e.state.pointQ}), slope) << e.texts.derivative;
        ASSERT_EQ(rightSide(e.texts.derivativeAtPoint, name, {}), slope) << e.texts.derivativeAtPoint;
        ASSERT_EQ(rightSide(e.texts.value, name, {}), slope) << e.texts.value;
    }
}

TEST(DiffSpace, HasItsPointFromOneToFiveAndNeverInBrackets) {
    for (const SpacePoint& e : acceptedSpace()) {
        ASSERT_EQ(e.state.pointQ, std::floor(e.state.pointQ)) << e.texts.atPoint;
        ASSERT_GE(e.state.pointQ, 1) << e.texts.atPoint;
        ASSERT_LE(e.state.pointQ, 5) << e.texts.atPoint;
        const std::string point = std::to_string(e.drawn.x);
        ASSERT_EQ(e.texts.atPoint, "For Q = " + point + " fås");
        // The brackets of P'() and, if it is negative, of the first coefficient.
        const std::string& text = e.texts.derivativeAtPoint;
        ASSERT_EQ(text.rfind("P'(" + point + ")=", 0), 0U) << text;
        ASSERT_EQ(std::count(text.begin(), text.end(), '('), e.state.coefficientA < 0 ? 2 : 1) << text;
        ASSERT_NE(text.find("·" + point), std::string::npos) << text;
        ASSERT_EQ(std::count(e.texts.value.begin(), e.texts.value.end(), '('), 1) << e.texts.value;
    }
}

TEST(DiffSpace, NeverShowsTwoSignsInARow) {
    for (const SpacePoint& e : acceptedSpace()) {
        for (const std::string* text : {&e.texts.polynomial, &e.texts.workedPolynomial, &e.texts.derivative,
                                        &e.texts.derivativeAtPoint}) {
            for (const char* signs : {"+-", "--", "+ -", "- -"}) {
                ASSERT_EQ(text->find(signs), std::string::npos) << *text;
            }
        }
    }
}

TEST(DiffSpace, IsSolvedByItsShownSlopeAndByNothingBesideIt) {
    Proof proof("Diff", 50);
    for (const SpacePoint& e : acceptedSpace()) {
        proof.visit(Proof::From::WholeSpace, e.state.patternCase);
        ASSERT_TRUE(std::isfinite(e.state.slopeAtPoint));
        const double own = Val(NumberText(e.state.slopeAtPoint));
        ASSERT_EQ(own, e.state.slopeAtPoint) << e.texts.value;
        ASSERT_TRUE(readsAsItself(own)) << e.texts.value;
        ASSERT_TRUE(eachIs({true}, e.state, {{own}, {own + 0.004}, {own - 0.004}})) << e.texts.value;
        ASSERT_TRUE(eachIs({false}, e.state, {{own + kJustPast}, {own - kJustPast}})) << e.texts.value;
    }
}

TEST(DiffSeeds, ReachEveryPatternAndStayWithinSixty) {
    SeededDraws draws(4);
    std::set<int> patterns;
    std::set<float> points;
    for (int i = 0; i < 20'000; ++i) {
        DiffState s;
        newExercise(s, draws);
        ASSERT_LE(std::abs(curveAt(s, s.pointQ)), 60);
        patterns.insert(s.patternCase);
        points.insert(s.pointQ);
    }
    EXPECT_EQ(patterns.size(), 50U);
    EXPECT_EQ(points, (std::set<float>{1, 2, 3, 4, 5}));
}

}  // namespace
}  // namespace tavrune
