#include "topics/addition/vaddi2_exercise.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "numeric/arithmetic.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/exact.h"
#include "support/scripted_draws.h"
#include "topics/addition/judged_fields.h"

namespace tavrune {
namespace {

using test::cellOf;
using test::Exact;
using test::kLargestDraw;
using test::Proof;
using test::Script;
using test::ScriptedDraws;

struct Given {
    int slope;
    int intercept;
};
using Three = std::array<Given, 3>;

constexpr int kRising = 1;
constexpr int kFalling = -1;

Script directionDraw(int direction) { return {direction == kRising ? 0.1F : 0.9F}; }

Script functionDraws(int direction, const Three& functions) {
    Script script;
    for (const auto& [slope, intercept] : functions) {
        script.push_back(cellOf(std::abs(slope), 5));
        script.push_back(cellOf(intercept - (direction == kRising ? 0 : 5), 5));
    }
    return script;
}

Vaddi2State drawn(int direction, const Three& functions) {
    return test::exerciseOf<Vaddi2State>(directionDraw(direction) + functionDraws(direction, functions),
                                         test::Reseeds{1});
}

std::string textOfRow(const Vaddi2State& s, std::size_t row) {
    return s.tableP[row].text() + "|" + s.tableQ[0][row].text() + "|" + s.tableQ[1][row].text() + "|" +
           s.tableQ[2][row].text() + "|" + s.tableQtotal[row].text();
}

std::vector<std::string> tableOf(const Vaddi2State& s) {
    return {textOfRow(s, 0), textOfRow(s, 1), textOfRow(s, 2), textOfRow(s, 3)};
}

std::vector<std::string> segmentsOf(const Vaddi2State& s) {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < static_cast<std::size_t>(s.segmentCount); ++i) {
        texts.push_back(NumberText(s.segments[i].slope) + "Q+" + NumberText(s.segments[i].intercept));
    }
    return texts;
}

/// "2 Start 5": row, slot and target; an exact target with "=" before it.
std::vector<std::string> fieldsOf(const Vaddi2State& s) {
    const std::map<Slot, std::string> names{
        {Slot::Slope, "Slope"}, {Slot::Intercept, "Intercept"}, {Slot::Start, "Start"}, {Slot::End, "End"}};
    std::vector<std::string> texts;
    for (const auto& [row, slot, target] : answerFields(s)) {
        texts.push_back(std::to_string(row) + " " + names.at(slot) + " " +
                        (target.rule == Rule::Exactly ? "=" : "") + NumberText(target.value));
    }
    return texts;
}

TEST(Vaddi2Draw, TakesTheDirectionThenSlopeAndInterceptOfEachFunction) {
    const Vaddi2State state =
        test::exerciseOf<Vaddi2State>({0.3F, 0.2F, 0.4F, 0.6F, 0.8F, 0.9F, 0.1F}, test::Reseeds{1});
    EXPECT_EQ(state.direction, Direction::Falling);
    EXPECT_EQ(state.functions, (std::array{Piece{-1, 7}, Piece{-3, 9}, Piece{-4, 5}}));
}

TEST(Vaddi2Draw, RisesBelowAQuarter) {
    for (const auto& [draw, direction] : {std::pair{0.0F, Direction::Rising},
                                          {std::nextafter(0.25F, 0.0F), Direction::Rising},
                                          {0.25F, Direction::Falling},
                                          {kLargestDraw, Direction::Falling}}) {
        const Vaddi2State state = test::exerciseOf<Vaddi2State>({draw, 0.2F, 0.4F, 0.6F, 0.8F, 0.9F, 0.1F});
        EXPECT_EQ(state.direction, direction) << draw;
    }
}

TEST(Vaddi2Draw, ReachesFourInSizeAndInterceptsByTheDirection) {
    for (const auto& [direction, lowest] : {std::pair{0.1F, 0}, {0.9F, 5}}) {
        const Vaddi2State state = test::exerciseOf<Vaddi2State>(
            {direction, kLargestDraw, 0, 0.2F, kLargestDraw, kLargestDraw, kLargestDraw});
        const int factor = factorOf(state.direction);
        EXPECT_EQ(state.functions,
                  (std::array{Piece{4.0 * factor, lowest + 0.0}, Piece{1.0 * factor, lowest + 4.0},
                              Piece{4.0 * factor, lowest + 4.0}}));
    }
}

struct RejectedRow {
    const char* name;
    int direction;
    Three functions;
};

class Vaddi2Rejects : public testing::TestWithParam<RejectedRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, Vaddi2Rejects,
    testing::Values(RejectedRow{"FirstAndSecondLevel", kFalling, {{{0, 7}, {0, 6}, {-1, 5}}}},
                    RejectedRow{"FirstAndThirdLevel", kFalling, {{{0, 7}, {-2, 6}, {0, 5}}}},
                    RejectedRow{"SecondAndThirdLevel", kRising, {{{1, 3}, {0, 2}, {0, 4}}}},
                    RejectedRow{"AllLevel", kRising, {{{0, 1}, {0, 2}, {0, 4}}}},
                    RejectedRow{"FirstLevelOnTheAxis", kRising, {{{0, 0}, {1, 2}, {2, 4}}}},
                    RejectedRow{"SecondLevelOnTheAxis", kRising, {{{1, 0}, {0, 0}, {2, 4}}}},
                    RejectedRow{"ThirdLevelOnTheAxis", kRising, {{{1, 0}, {1, 2}, {0, 0}}}}),
    [](const testing::TestParamInfo<RejectedRow>& row) { return row.param.name; });

TEST_P(Vaddi2Rejects, AndDrawsTheFunctionsAgainButNotTheDirection) {
    const auto& [name, direction, functions] = GetParam();
    const Three accepted =
        direction == kRising ? Three{{{1, 0}, {2, 3}, {3, 4}}} : Three{{{-1, 9}, {-2, 7}, {-3, 5}}};
    const Vaddi2State state = test::exerciseOf<Vaddi2State>(
        directionDraw(direction) + functionDraws(direction, functions) + functionDraws(direction, functions) +
            functionDraws(direction, accepted),
        test::Reseeds{1});
    EXPECT_EQ(factorOf(state.direction), direction);
    for (std::size_t f = 0; f < 3; ++f) {
        EXPECT_EQ(state.functions[f].slope, accepted[f].slope);
        EXPECT_EQ(state.functions[f].intercept, accepted[f].intercept);
    }
}

struct SolvedRow {
    const char* name;
    int direction;
    Three functions;
    std::vector<std::string> table;
    std::vector<std::string> segments;
    std::vector<std::string> fields;
    std::array<std::string, 2> path;
};

const std::string kNone = " | | | | ";

const std::vector<SolvedRow> kSolved{
    {"ThreeFalling",
     kFalling,
     {{{-1, 9}, {-2, 7}, {-1, 5}}},
     {"9|0| | |0", "7|2|0| |2", "5|4|1|0|5", "0|9|3.5|5|17.5"},
     {"-1Q+9", "-0.67Q+8.33", "-0.4Q+7"},
     {"0 Slope -1", "0 Intercept 9", "0 End 2", "1 Slope -0.67", "1 Intercept 8.33", "1 Start 2", "1 End 5",
      "2 Slope -0.4", "2 Intercept 7", "2 Start 5", "2 End 17.5"},
     {"Her fra ( 0 ; 9 ) til ( 2 ; 7 ), fra ( 2 ; 7 ) til ( 5 ; 5 ) og fra ", "( 5 ; 5 ) til ( 17.5 ; 0 )."}},
    {"ThreeRisingHaveNoUpperEnd",
     kRising,
     {{{2, 1}, {1, 3}, {4, 4}}},
     {"1|0| | |0", "3|1|0| |1", "4|1.5|1|0|2.5", "10|4.5|7|1.5|13"},
     {"2Q+1", "0.67Q+2.33", "0.57Q+2.57"},
     {"0 Slope 2", "0 Intercept 1", "0 End 1", "1 Slope 0.67", "1 Intercept 2.33", "1 Start 1", "1 End 2.5",
      "2 Slope 0.57", "2 Intercept 2.57", "2 Start 2.5"},
     {"Her fra ( 0 ; 1 ) til ( 1 ; 3 ), fra ( 1 ; 3 ) til ( 2.5 ; 4 ) og fra ",
      "( 2.5 ; 4 ) til ( 13 ; 10 )."}},
    {"LevelInnermostEndsAThirdSegment",
     kFalling,
     {{{-1, 9}, {-2, 7}, {0, 5}}},
     {"9|0| | |0", "7|2|0| |2", "5|4|1|0|5", "0|4|1|oo|oo"},
     {"-1Q+9", "-0.67Q+8.33", "0Q+5"},
     {"0 Slope -1", "0 Intercept 9", "0 End 2", "1 Slope -0.67", "1 Intercept 8.33", "1 Start 2", "1 End 5",
      "2 Slope 0", "2 Intercept 5", "2 Start 5"},
     {"Her fra ( 0 ; 9 ) til ( 2 ; 7 ), fra ( 2 ; 7 ) til ( 5 ; 5 ) og fra ", "( 5 ; 5 ) til ( oo ; 0 )."}},
    {"LevelInTheMiddleBlanksTheLastRow",
     kFalling,
     {{{-1, 9}, {0, 7}, {-1, 5}}},
     {"9|0| | |0", "7|2|0| |2", "5|2|oo| |oo", kNone},
     {"-1Q+9", "0Q+7"},
     {"0 Slope -1", "0 Intercept 9", "0 End 2", "1 Slope 0", "1 Intercept 7", "1 Start 2"},
     {"Her fra ( 0 ; 9 ) til ( 2 ; 7 ) og fra ( 2 ; 7 ) til ( oo ; 5 ).", ""}},
    {"LevelOutermostIsTheWholeSum",
     kFalling,
     {{{-1, 7}, {-2, 5}, {0, 9}}},
     {"9| | |0|0", "7| | |oo|oo", kNone, kNone},
     {"0Q+9"},
     {"1 Slope 0", "1 Intercept 9", "1 Start =0"},
     {"Her fra ( 0 ; 9 ) til ( oo ; 7 ).", ""}},
    {"LevelLowestOfRisingIsTheWholeSum",
     kRising,
     {{{4, 3}, {0, 1}, {2, 2}}},
     {"1| |0| |0", "2| |oo| |oo", kNone, kNone},
     {"0Q+1"},
     {"1 Slope 0", "1 Intercept 1", "1 Start =0"},
     {"Her fra ( 0 ; 1 ) til ( oo ; 2 ).", ""}},
    {"TwoOuterStartsMerge",
     kFalling,
     {{{-1, 9}, {-2, 9}, {-1, 5}}},
     {"9|0|0| |0", "5|4|2|0|6", "0|9|4.5|5|18.5", kNone},
     {"-0.67Q+9", "-0.4Q+7.4"},
     {"0 Slope -0.67", "0 Intercept 9", "0 End 6", "1 Slope -0.4", "1 Intercept 7.4", "1 Start 6",
      "1 End 18.5"},
     {"Her fra ( 0 ; 9 ) til ( 6 ; 5 ) og fra ( 6 ; 5 ) til ( 18.5 ; 0 ).", ""}},
    {"TwoInnerStartsMerge",
     kFalling,
     {{{-3, 6}, {-1, 6}, {-3, 9}}},
     {"9| | |0|0", "6|0|0|1|1", "0|2|6|3|11", kNone},
     {"-3Q+9", "-0.6Q+6.6"},
     {"0 Slope -3", "0 Intercept 9", "0 End 1", "1 Slope -0.6", "1 Intercept 6.6", "1 Start 1", "1 End 11"},
     {"Her fra ( 0 ; 9 ) til ( 1 ; 6 ) og fra ( 1 ; 6 ) til ( 11 ; 0 ).", ""}},
    {"ThreeStartsMerge",
     kFalling,
     {{{-1, 8}, {-2, 8}, {-4, 8}}},
     {"8|0|0|0|0", "0|8|4|2|14", kNone, kNone},
     {"-0.57Q+8"},
     {"1 Slope -0.57", "1 Intercept 8", "1 Start =0", "1 End 14"},
     {"Her fra ( 0 ; 8 ) til ( 14 ; 0 ).", ""}},
    {"TwoOuterStartsOfWhichOneIsLevel",
     kRising,
     {{{3, 2}, {0, 2}, {1, 4}}},
     {"2|0|0| |0", "4|0|oo| |oo", kNone, kNone},
     {"0Q+2"},
     {"1 Slope 0", "1 Intercept 2", "1 Start =0"},
     {"Her fra ( 0 ; 2 ) til ( oo ; 4 ).", ""}},
    {"TwoInnerStartsOfWhichOneIsLevel",
     kRising,
     {{{1, 0}, {2, 4}, {0, 4}}},
     {"0|0| | |0", "4|4|0|0|4", "10|4|0|oo|oo", kNone},
     {"1Q+0", "0Q+4"},
     {"0 Slope 1", "0 Intercept 0", "0 End 4", "1 Slope 0", "1 Intercept 4", "1 Start 4"},
     {"Her fra ( 0 ; 0 ) til ( 4 ; 4 ) og fra ( 4 ; 4 ) til ( oo ; 10 ).", ""}},
    {"TwoOuterStartsMergeBeforeALevelOne",
     kFalling,
     {{{0, 6}, {-1, 8}, {-2, 8}}},
     {"8| |0|0|0", "6|0|2|1|3", "0|oo|2|1|oo", kNone},
     {"-0.67Q+8", "0Q+6"},
     {"0 Slope -0.67", "0 Intercept 8", "0 End 3", "1 Slope 0", "1 Intercept 6", "1 Start 3"},
     {"Her fra ( 0 ; 8 ) til ( 3 ; 6 ) og fra ( 3 ; 6 ) til ( oo ; 0 ).", ""}},
    {"ThreeStartsMergeOfWhichOneIsLevel",
     kFalling,
     {{{-1, 7}, {-2, 7}, {0, 7}}},
     {"7|0|0|0|0", "0|0|0|oo|oo", kNone, kNone},
     {"0Q+7"},
     {"1 Slope 0", "1 Intercept 7", "1 Start =0"},
     {"Her fra ( 0 ; 7 ) til ( oo ; 0 ).", ""}},
    {"QuotientsAreRoundedLast",
     kFalling,
     {{{-3, 9}, {-4, 8}, {-3, 5}}},
     {"9|0| | |0", "8|0.33|0| |0.33", "5|1.33|0.75|0|2.08", "0|3|2|1.67|6.67"},
     {"-3Q+9", "-1.71Q+8.57", "-1.09Q+7.27"},
     {"0 Slope -3", "0 Intercept 9", "0 End 0.33", "1 Slope -1.71", "1 Intercept 8.57", "1 Start 0.33",
      "1 End 2.08", "2 Slope -1.09", "2 Intercept 7.27", "2 Start 2.08", "2 End 6.67"},
     {"Her fra ( 0 ; 9 ) til ( 0.33 ; 8 ), fra ( 0.33 ; 8 ) til ( 2.08 ; 5 ) og fra ",
      "( 2.08 ; 5 ) til ( 6.67 ; 0 )."}},
};

class Vaddi2Solves : public testing::TestWithParam<SolvedRow> {};

INSTANTIATE_TEST_SUITE_P(Rows, Vaddi2Solves, testing::ValuesIn(kSolved),
                         [](const testing::TestParamInfo<SolvedRow>& row) { return row.param.name; });

TEST_P(Vaddi2Solves, WithTableSegmentsFieldsAndPath) {
    const SolvedRow& row = GetParam();
    const Vaddi2State state = drawn(row.direction, row.functions);
    EXPECT_EQ(tableOf(state), row.table);
    EXPECT_EQ(segmentsOf(state), row.segments);
    EXPECT_EQ(fieldsOf(state), row.fields);
    EXPECT_EQ(pathTexts(state), row.path);
    const bool isLevel = std::any_of(row.functions.begin(), row.functions.end(),
                                     [](const Given& given) { return given.slope == 0; });
    EXPECT_EQ(state.upperEndAsked(), row.direction == kFalling && !isLevel);
}

TEST(Vaddi2Path, IsWrittenWithTheMarkInUse) {
    const Vaddi2State state = drawn(kFalling, {{{-3, 9}, {-4, 8}, {-3, 5}}});
    const test::DecimalMark comma(",");
    EXPECT_EQ(pathTexts(state)[1], "( 2,08 ; 5 ) til ( 6,67 ; 0 ).");
}

TEST(Vaddi2State, HasNothingLeftOfTheExerciseBefore) {
    const auto [name, direction, functions, table, segments, fields, path] = kSolved[8];
    ASSERT_EQ(std::string(name), "ThreeStartsMerge");
    ScriptedDraws draws(directionDraw(kFalling) + functionDraws(kFalling, kSolved[0].functions) +
                        directionDraw(direction) + functionDraws(direction, functions));
    Vaddi2State state;
    newExercise(state, draws);
    EXPECT_TRUE(state.upperEndAsked());
    newExercise(state, draws);
    EXPECT_EQ(tableOf(state), table);
    EXPECT_EQ(segmentsOf(state), segments);
    EXPECT_EQ(fieldsOf(state), fields);
}

TEST(Vaddi2UpperEnd, IsNotAskedAgainAfterAnExerciseThatHasOne) {
    ScriptedDraws draws(directionDraw(kFalling) + functionDraws(kFalling, kSolved[0].functions) +
                        directionDraw(kRising) + functionDraws(kRising, kSolved[1].functions));
    Vaddi2State state;
    newExercise(state, draws);
    EXPECT_TRUE(state.upperEndAsked());
    EXPECT_EQ(state.upperEnd().text(), "17.5");
    newExercise(state, draws);
    EXPECT_FALSE(state.upperEndAsked());
}

TEST(Vaddi2Table, ShowsAThousandAsUnbounded) {
    Vaddi2State state;
    state.direction = Direction::Falling;
    state.functions = {Piece{-0.009, 9}, {-1, 9}, {-0.00900005, 9}};
    solve(state);
    // 1000 and 999.994.., which is rounded first.
    EXPECT_EQ(tableOf(state)[1], "0|oo|9|999.99|oo");
    EXPECT_EQ(tableOf(state)[0], "9|0|0|0|0");
}

TEST(Vaddi2Solution, FailsWhereTwoTotalsAreEqual) {
    // Rising functions that start where the table ends; they cannot be drawn.
    Vaddi2State state;
    state.direction = Direction::Rising;
    state.functions = {Piece{1, 10}, {2, 10}, {3, 10}};
    try {
        solve(state);
        FAIL() << "a division by zero went through";
    } catch (const ArithmeticFailure& failure) {
        EXPECT_EQ(failure.kind(), ArithmeticFailure::Kind::Overflow);
    }
}

/// The true sum of three functions, price by price.
class TrueSum {
public:
    TrueSum(int direction, const Three& functions) : direction_(direction), functions_(functions) {
        std::set<int> starts;
        for (const auto& [slope, intercept] : functions) {
            starts.insert(direction * intercept);
            if (slope == 0) {
                level_ = intercept;
            }
        }
        // The market price goes from the outermost start to the level function, or to the edge.
        const int end = level_ ? *level_ : direction == kRising ? 10 : 0;
        for (const int start : starts) {
            if (start < direction * end) {
                prices_.emplace_back(direction * start);
            }
        }
        prices_.emplace_back(end);
    }

    /// What function `f` offers at a price; level ones offer nothing of their own.
    [[nodiscard]] Exact offer(std::size_t f, Exact price) const {
        const auto& [slope, intercept] = functions_[f];
        const Exact beyond = price - Exact(intercept);
        return slope == 0 || !(Exact(0) < beyond * Exact(direction_)) ? Exact(0) : beyond / Exact(slope);
    }

    [[nodiscard]] Exact at(Exact price) const { return offer(0, price) + offer(1, price) + offer(2, price); }

    /// Where pieces begin and end, the outer start first.
    [[nodiscard]] const std::vector<Exact>& prices() const { return prices_; }
    [[nodiscard]] std::optional<int> level() const { return level_; }
    [[nodiscard]] std::size_t pieceCount() const { return prices_.size() - (level_ ? 0 : 1); }

private:
    int direction_;
    Three functions_;
    std::optional<int> level_;
    std::vector<Exact> prices_;
};

/// Half of the last decimal, and what doubles may lose.
constexpr double kHalf = 0.005 + 1e-9;

bool isNear(double rounded, Exact exact) { return std::abs(rounded - exact.value()) <= kHalf; }

/// What is wrong with a solved exercise; empty if it is the true sum.
std::string flawOf(const Vaddi2State& s, int direction, const Three& functions) {
    const TrueSum sum(direction, functions);
    const std::vector<Exact>& prices = sum.prices();
    if (static_cast<std::size_t>(s.segmentCount) != sum.pieceCount()) {
        return "has " + std::to_string(s.segmentCount) + " segments";
    }
    for (std::size_t i = 0; i < prices.size(); ++i) {
        if (s.tableP[i].number() != prices[i].value()) {
            return "has another price in row " + std::to_string(i);
        }
        if (!isNear(s.tableQtotal[i].number(), sum.at(prices[i]))) {
            return "has a piece ending elsewhere in row " + std::to_string(i);
        }
        for (std::size_t f = 0; f < 3; ++f) {
            const TableCell& cell = s.tableQ[f][i];
            const bool isReached = !(direction * prices[i].value() < direction * functions[f].intercept);
            if (cell.isBlank() == isReached ||
                (isReached && !isNear(cell.number(), sum.offer(f, prices[i])))) {
                return "has another quantity in row " + std::to_string(i);
            }
        }
    }
    for (std::size_t i = 0; i + 1 < prices.size(); ++i) {
        const Piece piece = s.segments[i];
        const Exact from = sum.at(prices[i]);
        const Exact slope = (prices[i + 1] - prices[i]) / (sum.at(prices[i + 1]) - from);
        if (!isNear(piece.slope, slope) || !isNear(piece.intercept, prices[i] - slope * from)) {
            return "has another segment " + std::to_string(i);
        }
        // Along the piece, in quarters: slope and intercept are off by half a decimal at most.
        const Exact step = Exact(direction, 4);
        for (Exact price = prices[i]; !(prices[i + 1] == price); price = price + step) {
            const Exact q = sum.at(price);
            if (!(slope * q + prices[i] - slope * from == price) ||
                std::abs(piece.at(q.value()) - price.value()) > kHalf * (q.value() + 1)) {
                return "leaves the sum in segment " + std::to_string(i);
            }
        }
    }
    if (sum.level()) {
        const Piece last = s.segments[static_cast<std::size_t>(s.segmentCount - 1)];
        if (last.slope != 0 || last.intercept != *sum.level()) {
            return "does not end in the level function";
        }
        if (!s.tableQtotal[prices.size()].isUnbounded()) {
            return "ends";
        }
    }
    const std::size_t rows = prices.size() + (sum.level() ? 1 : 0);
    for (std::size_t row = rows; row < s.tableP.size(); ++row) {
        if (textOfRow(s, row) != kNone) {
            return "goes on in row " + std::to_string(row);
        }
    }
    return "";
}

/// What is wrong with how the stored answer is judged.
std::string judgingFlawOf(const Vaddi2State& s) {
    for (const AnswerField& field : answerFields(s)) {
        if (const std::string text = NumberText(field.target.value); text.size() > 5) {
            return "asks for " + text;
        }
    }
    if (!test::isSolvedByTargets(s, answerFields(s))) {
        return "is not solved by its targets";
    }
    return test::flawOfJudging(answerFields(s), [](const AnswerField& f) { return f.target.value; });
}

bool isDrawable(const Three& functions) {
    int levels = 0;
    for (const auto& [slope, intercept] : functions) {
        levels += slope == 0 ? 1 : 0;
        if (slope == 0 && (intercept == 0 || intercept == 10)) {
            return false;
        }
    }
    return levels < 2;
}

/// Runs through all that the draws can give in one direction: 15,625 triples.
template <class Action>
void forEachTriple(int direction, Action action) {
    const int lowest = direction == kRising ? 0 : 5;
    for (int number = 0; number < 15'625; ++number) {
        Three functions{};
        int rest = number;
        for (Given& given : functions) {
            given = {direction * (rest % 5), rest / 5 % 5 + lowest};
            rest /= 25;
        }
        action(functions);
    }
}

TEST(Vaddi2Space, IsTheTrueSumInEveryExerciseThatCanBeDrawn) {
    Proof proof("Vaddi2", 18);
    std::map<std::string, int> reached;
    for (const int direction : {kRising, kFalling}) {
        int accepted = 0;
        forEachTriple(direction, [&](const Three& functions) {
            const Script script = functionDraws(direction, functions);
            const Script spare = functionDraws(direction, kSolved[direction == kRising ? 1 : 0].functions);
            ScriptedDraws draws(directionDraw(direction) + script + spare);
            Vaddi2State state;
            newExercise(state, draws);
            std::ostringstream which;
            which << direction;
            for (const auto& [slope, intercept] : functions) {
                which << " " << slope << "Q+" << intercept;
            }
            ASSERT_EQ(draws.isUsedUp(), !isDrawable(functions)) << which.str();
            if (!isDrawable(functions)) {
                return;
            }
            ++accepted;
            ASSERT_EQ(flawOf(state, direction, functions), "") << which.str();
            ASSERT_EQ(judgingFlawOf(state), "") << which.str();
            std::set<int> starts;
            for (const Given& given : functions) {
                starts.insert(given.intercept);
            }
            proof.visit(Proof::From::WholeSpace,
                        direction * (100 * static_cast<int>(starts.size()) + 10 * state.segmentCount +
                                     (state.isAnyLevel() ? 1 : 0)));
            ++reached[std::to_string(starts.size()) + " starts, " + std::to_string(state.segmentCount) +
                      (state.isAnyLevel() ? " level" : "")];
        });
        // Without a level function 4³·5³; with one 3·4²·5³, but only 4/5 of these off the axis.
        EXPECT_EQ(accepted, direction == kRising ? 8000 + 4800 : 8000 + 6000);
    }
    const std::set<std::string> expected{"1 starts, 1",       "1 starts, 1 level", "2 starts, 1 level",
                                         "2 starts, 2",       "2 starts, 2 level", "3 starts, 1 level",
                                         "3 starts, 2 level", "3 starts, 3",       "3 starts, 3 level"};
    std::set<std::string> kinds;
    for (const auto& [kind, times] : reached) {
        kinds.insert(kind);
    }
    EXPECT_EQ(kinds, expected);
}

TEST(Vaddi2Seeds, PlayOutOfAStreamAsOutOfAScript) {
    SeededDraws draws(73);
    Vaddi2State state;
    int rising = 0;
    for (int exercise = 0; exercise < 100'000; ++exercise) {
        newExercise(state, draws);
        Three functions{};
        for (std::size_t f = 0; f < 3; ++f) {
            const auto& [slope, intercept] = state.functions[f];
            functions[f] = {static_cast<int>(slope), static_cast<int>(intercept)};
        }
        ASSERT_TRUE(isDrawable(functions));
        rising += state.direction == Direction::Rising ? 1 : 0;
        if (exercise % 20 == 0) {
            ASSERT_EQ(flawOf(state, factorOf(state.direction), functions), "") << "exercise " << exercise;
        }
    }
    EXPECT_NEAR(rising, 25'000, 800);
}

TEST(Vaddi2Judging, TakesALoneStartOnlyAsZero) {
    const Vaddi2State state = drawn(kFalling, {{{-1, 8}, {-2, 8}, {-4, 8}}});
    const Target start = answerFields(state)[2].target;
    test::expectJudged(start, {Val(" "), 0}, {0.004, -0.004, 0.001});
}

TEST(Vaddi2Judging, RefusesTheLowerEndOfTheToleranceUnmarked) {
    const Vaddi2State state = drawn(kFalling, {{{-1, 9}, {-2, 7}, {-1, 5}}});
    const Target end = answerFields(state).back().target;
    EXPECT_FALSE(end.isFit(Val("17.495")));
    EXPECT_FALSE(end.isMarked(Val("17.495")));
    test::expectJudged(end, {Val("17.496"), Val("17.505")}, {Val("17.506"), Val("17.494")});
}

}  // namespace
}  // namespace tavrune
