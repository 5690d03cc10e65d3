// Every exercise of Laddi2, against sums in whole numbers that know the drawn functions alone.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include <gtest/gtest.h>

#include "numeric/judging.h"
#include "numeric/rounding.h"
#include "numeric/text.h"
#include "support/lot.h"
#include "topics/addition/judged_fields.h"
#include "topics/addition/laddi2_order.h"

namespace tavrune {
namespace {

using test::afterScriptOf;
using test::beforeScriptOf;
using test::DrawnKinked;
using test::drawnOf;
using test::DrawnPiece;
using test::kinkScriptOf;
using test::kNever;
using test::kTwelfths;
using test::lotSize;
using test::Order;
using test::orderOf;
using test::Proof;
using test::ProofDraws;
using test::Script;
using test::ScriptedDraws;

// No piece ends on an odd 24th.
constexpr int kUnit = 24;
// No function that ends does so beyond 16.
constexpr int kLastQ = 17;

/// The price of a piece in 24ths, at q 24ths.
int priceAt(const DrawnPiece& piece, int q) { return piece.slope * q + piece.intercept * kUnit; }

/// The piece of a function at q 24ths, none where the function has ended.
const DrawnPiece* pieceAt(const DrawnKinked& f, int q) {
    const DrawnPiece& piece = q < f.kink * kUnit ? f.before : f.after;
    return priceAt(piece, q) > 0 ? &piece : nullptr;
}

std::optional<int> trueSum(const DrawnKinked& f1, const DrawnKinked& f2, int q) {
    std::optional<int> sum;
    for (const DrawnKinked* const f : {&f1, &f2}) {
        if (const DrawnPiece* const piece = pieceAt(*f, q)) {
            sum = sum.value_or(0) + priceAt(*piece, q);
        }
    }
    return sum;
}

std::string described(const DrawnKinked& f) {
    const auto piece = [](const DrawnPiece& p) {
        return std::to_string(p.slope) + "Q+" + std::to_string(p.intercept);
    };
    return piece(f.before) + " to " + std::to_string(f.kink) + ", then " + piece(f.after) + "; ";
}

/// The first quantity, in 24ths, at which the segments are not the true sum.
std::optional<int> firstDeviation(const Laddi2State& s, const DrawnKinked& f1, const DrawnKinked& f2) {
    std::size_t at = 0;
    for (int q = 1; q < kLastQ * kUnit; q += 2) {
        while (at < s.sum.breaks.size() && q > s.sum.breaks[at] * kUnit) {
            ++at;
        }
        std::optional<int> answer = priceAt(drawnOf(s.sum.segments[at]), q);
        if (s.sum.upperEndAsked && q > s.breakPoints.back() * kUnit) {
            answer = std::nullopt;
        }
        if (answer != trueSum(f1, f2, q)) {
            return q;
        }
    }
    return std::nullopt;
}

bool isWithinTheDrawnRanges(const DrawnKinked& f) {
    const int price = f.after.slope * f.kink + f.after.intercept;
    const auto isIn = [](int x, int least, int most) { return least <= x && x <= most; };
    return isIn(f.kink, 3, 7) && isIn(f.before.slope, -1, 4) && isIn(f.before.intercept, 0, 4) &&
           isIn(f.after.slope, -4, 4) && isIn(price, f.after.slope < 0 ? 5 : 1, f.after.slope > 0 ? 5 : 9);
}

/// A quantity with two decimals, as it is shown. No twelfth lies midway between two of them.
double shownOf(int twelfths) {
    const int hundredths = (100 * twelfths + kTwelfths / 2) / kTwelfths;
    return hundredths / 100.0;
}

/// A segment of a sum, between two ends in twelfths, and the pieces that are added there.
struct TrueSegment {
    int from = 0;
    int to = 0;
    const DrawnPiece* of1 = nullptr;
    const DrawnPiece* of2 = nullptr;

    [[nodiscard]] DrawnPiece sum() const {
        constexpr DrawnPiece kNothing{0, 0};
        const DrawnPiece& one = of1 != nullptr ? *of1 : kNothing;
        const DrawnPiece& other = of2 != nullptr ? *of2 : kNothing;
        return {one.slope + other.slope, one.intercept + other.intercept};
    }
};

/// The segments of the sum of two functions, which have to outlive it.
struct TrueSum {
    Order order;
    std::size_t count = 0;
    std::array<TrueSegment, 4> segments;

    TrueSum(const DrawnKinked& f1, const DrawnKinked& f2) : order(orderOf(f1, f2)) {
        int from = 0;
        for (const int to : order.ends) {
            if (from != to) {
                // Nothing ends within a 24th of an end.
                const int within = kUnit / kTwelfths * from + 1;
                segments.at(count++) = {from, to, pieceAt(f1, within), pieceAt(f2, within)};
                from = to;
            }
        }
    }

    [[nodiscard]] int kind() const { return 100 * order.orderCase + order.merged(); }
    [[nodiscard]] int end() const { return order.ends.back(); }
    [[nodiscard]] bool isLast(std::size_t at) const { return at + 1 == count; }
};

bool isSame(const Piece& piece, const DrawnPiece& drawn) {
    return piece.slope == drawn.slope && piece.intercept == drawn.intercept;
}

bool isSame(const KinkedFunction& f, const DrawnKinked& drawn) {
    return f.kink == drawn.kink && isSame(f.before, drawn.before) && isSame(f.after, drawn.after);
}

double quantityOf(int twelfths) { return static_cast<double>(twelfths) / kTwelfths; }

/// What is wrong with the numbers of a solved exercise; empty if they are the true sum.
std::string flawOfSum(const Laddi2State& s, const TrueSum& sum) {
    if (s.breakPoints.size() != sum.count || s.sum.segments.size() != sum.count ||
        s.sum.breaks.size() + 1 != sum.count) {
        return "has another number of segments";
    }
    for (std::size_t at = 0; at < sum.count; ++at) {
        const double end = quantityOf(sum.segments[at].to);
        if (s.breakPoints[at] != end || (!sum.isLast(at) && s.sum.breaks[at] != end)) {
            return "ends elsewhere in segment " + std::to_string(at);
        }
        if (!isSame(s.sum.segments[at], sum.segments[at].sum())) {
            return "adds up otherwise in segment " + std::to_string(at);
        }
    }
    const bool ends = sum.end() != kNever;
    return s.sum.upperEndAsked == ends && (!ends || s.sum.upperEnd == shownOf(sum.end())) ? ""
                                                                                          : "ends otherwise";
}

/// What "&Giv svaret" writes into a field.
double shownAnswer(const AnswerField& field) {
    const double value = field.target.value;
    return field.slot == Slot::Start || field.slot == Slot::End ? RoundUp2(value) : value;
}

/// The fields that are to be judged.
std::vector<AnswerField> fieldsOf(const TrueSum& sum) {
    std::vector<AnswerField> fields;
    for (std::size_t at = 0; at < sum.count; ++at) {
        const auto ask = [&fields, row = static_cast<int>(at)](Slot slot, Rule rule, double value) {
            fields.push_back({row, slot, {value, rule}});
        };
        const TrueSegment& segment = sum.segments.at(at);
        ask(Slot::Slope, Rule::Exactly, segment.sum().slope);
        ask(Slot::Intercept, Rule::Exactly, segment.sum().intercept);
        if (at > 0) {
            ask(Slot::Start, Rule::Chained, quantityOf(segment.from));
        }
        if (!sum.isLast(at)) {
            ask(Slot::End, Rule::Chained, quantityOf(segment.to));
        } else if (segment.to != kNever) {
            ask(Slot::End, Rule::NearClosed, shownOf(segment.to));
        }
    }
    return fields;
}

/// True if the last values within its tolerance, where it has one, are right and stay white.
bool takesItsBounds(const AnswerField& field) {
    const auto& [value, rule] = field.target;
    const double tolerance = rule == Rule::Exactly ? 0 : kTolerance;
    return field.target.isFit(value - tolerance) && !field.target.isMarked(value - tolerance) &&
           field.target.isFit(value + tolerance) && !field.target.isMarked(value + tolerance);
}

/// What is wrong with what is asked for, and with how it is judged.
std::string flawOfFields(const Laddi2State& s, const TrueSum& sum) {
    const std::vector<AnswerField> fields = answerFields(s.sum);
    const std::vector<AnswerField> expected = fieldsOf(sum);
    const auto isAsked = [](const AnswerField& one, const AnswerField& other) {
        return one.row == other.row && one.slot == other.slot && one.target.rule == other.target.rule &&
               one.target.value == other.target.value;
    };
    if (!std::equal(fields.begin(), fields.end(), expected.begin(), expected.end(), isAsked)) {
        return "asks for something else";
    }
    if (!std::all_of(fields.begin(), fields.end(), takesItsBounds)) {
        return "refuses a bound";
    }
    return test::isSolvedByTargets(s, fields) ? test::flawOfJudging(fields, shownAnswer)
                                              : "is not solved by its targets";
}

/// Reads a text from its front.
class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool take(std::string_view expected) {
        const bool isThere = rest_.substr(0, expected.size()) == expected;
        if (isThere) {
            rest_.remove_prefix(expected.size());
        }
        return isThere;
    }

    /// Takes it, or remembers that it was not there.
    void want(std::string_view expected) { isGood_ = take(expected) && isGood_; }

    double number() {
        const std::size_t length = std::min(rest_.find_first_not_of("-0123456789."), rest_.size());
        isGood_ = length > 0 && isGood_;
        const double value = Val(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return value;
    }

    /// A number behind a sign that stands apart: " - 3".
    double apart() {
        const bool isNegative = take(" - ");
        if (!isNegative) {
            want(" + ");
        }
        const double size = number();
        isGood_ = size >= 0 && isGood_;
        return isNegative ? -size : size;
    }

    [[nodiscard]] bool isReadUp() const { return isGood_ && rest_.empty(); }

private:
    std::string_view rest_;
    bool isGood_ = true;
};

/// "0<X<3", with its upper bound if it has one.
struct Range {
    double from = 0;
    std::optional<double> to;

    bool operator==(const Range&) const = default;
};

Range readRange(Reader& reader) {
    Range range;
    range.from = reader.number();
    reader.want("<X");
    if (reader.take("<")) {
        range.to = reader.number();
    }
    return range;
}

/// Where a segment is to be the sum.
Range shownRange(const TrueSegment& segment) {
    return {shownOf(segment.from), segment.to == kNever ? std::nullopt : std::optional(shownOf(segment.to))};
}

struct ReadSegment {
    std::vector<Piece> addends;
    Piece sum;
    Range range;
    bool isGood;
};

ReadSegment readSegment(const std::string& text) {
    Reader reader(text);
    ReadSegment read{};
    reader.want("P = ");
    if (reader.take("(")) {
        Piece one;
        Piece other;
        one.slope = reader.number();
        other.slope = reader.apart();
        reader.want(")Q + (");
        one.intercept = reader.number();
        other.intercept = reader.apart();
        reader.want(") = ");
        read.sum.slope = reader.number();
        reader.want("Q + ");
        read.sum.intercept = reader.number();
        read.addends = {one, other};
    } else {
        read.sum.slope = reader.number();
        reader.want("Q");
        read.sum.intercept = reader.apart();
        read.addends = {read.sum};
    }
    reader.want(" for ");
    read.range = readRange(reader);
    read.isGood = reader.isReadUp();
    return read;
}

/// True if it tells the pieces that are added, the sum and where it is one.
bool tells(const ReadSegment& read, const TrueSegment& segment) {
    std::vector<DrawnPiece> addends;
    for (const DrawnPiece* const addend : {segment.of1, segment.of2}) {
        if (addend != nullptr) {
            addends.push_back(*addend);
        }
    }
    const auto same = [](const Piece& one, const DrawnPiece& other) { return isSame(one, other); };
    return read.isGood && read.range == shownRange(segment) && isSame(read.sum, segment.sum()) &&
           std::equal(read.addends.begin(), read.addends.end(), addends.begin(), addends.end(), same);
}

/// What is wrong with the texts that a student is shown.
std::string flawOfTexts(const Laddi2State& s, const TrueSum& sum) {
    for (const Piece& after : {s.function1.after, s.function2.after}) {
        if ((secondPieceText(after).find('-') != std::string::npos) != (after.intercept < 0)) {
            return "has another sign in " + secondPieceText(after);
        }
    }
    const auto [first, second] = intervalsTexts(s.sum);
    const std::string intervals = first + second;
    Reader list(intervals);
    for (std::size_t at = 0; at < sum.count; ++at) {
        const TrueSegment& segment = sum.segments.at(at);
        if (at > 0) {
            list.want(sum.isLast(at) ? " og " : ", ");
        }
        if (readRange(list) != shownRange(segment)) {
            return "has other intervals: " + intervals;
        }
        if (const std::string text = segmentText(s, at); !tells(readSegment(text), segment)) {
            return "tells of another segment: " + text;
        }
    }
    const bool isTwoInTheFirst = std::count(first.begin(), first.end(), 'X') == 2;
    const bool isHeaded = intervalsHeading(s.sum) == "Definitonsintervallerne bliver:";
    return list.isReadUp() && isTwoInTheFirst && isHeaded ? "" : "has other intervals: " + intervals;
}

/// Remembers the segments that were met, each by its pieces, its ends and its place. What is asked for,
/// judged and told of a segment depends on these alone, so that to read each once is to read them all; in the
/// seeded exercises each is read again beside others.
class MetSegments {
public:
    /// True if any of them is new.
    [[nodiscard]] bool meets(const TrueSum& sum) {
        bool isAnyNew = false;
        for (std::size_t at = 0; at < sum.count; ++at) {
            const TrueSegment& segment = sum.segments[at];
            std::uint64_t key = 4 * sum.count + at;
            key = key << 11U | numberOf(segment.of1);
            key = key << 11U | numberOf(segment.of2);
            key = key << 11U | static_cast<std::uint64_t>(segment.from);
            key = key << 11U | static_cast<std::uint64_t>(segment.to);
            isAnyNew = met_.insert(key).second || isAnyNew;
        }
        return isAnyNew;
    }

private:
    std::unordered_set<std::uint64_t> met_;

    /// Below 2^11. Slopes are -4..4, intercepts -27..37.
    static std::uint64_t numberOf(const DrawnPiece* piece) {
        return piece == nullptr
                   ? 0
                   : static_cast<std::uint64_t>(128 * (piece->slope + 5) + piece->intercept + 32);
    }
};

// The space. A function has one of 5 kinks; a first piece of 2 sides of a coin, 5 sizes and 5 intercepts, of
// which 28 are taken at a kink, 29 at the first one, and the others drawn again; a second piece of 2 sides, 5
// sizes and 5 prices, of which all are taken: 141·50 draws. There are as many of the other function.

/// A piece as it can be drawn.
struct PieceDraw {
    DrawnPiece piece;
    Script script;
};

/// Calls with the side of the coin, and with the cells of the slope's size and of the place.
template <class Visit>
void forEachPieceDraw(Visit visit) {
    for (const bool isFalling : {true, false}) {
        for (int size = 0; size < 5; ++size) {
            for (int cell = 0; cell < 5; ++cell) {
                visit(isFalling, size, cell);
            }
        }
    }
}

bool isAxis(const DrawnPiece& piece) { return piece == DrawnPiece{0, 0}; }

bool endsEarly(const DrawnPiece& piece, int kink) {
    return piece.slope < 0 && piece.slope * kink + piece.intercept <= 0;
}

/// Those of a first piece that are taken at a kink, or those that are drawn again.
std::vector<PieceDraw> firstPieces(int kink, bool isTaken) {
    std::vector<PieceDraw> pieces;
    forEachPieceDraw([&](bool isFalling, int size, int intercept) {
        const DrawnPiece piece{isFalling ? -size : size, intercept};
        if ((!isAxis(piece) && !endsEarly(piece, kink)) == isTaken) {
            pieces.push_back({piece, beforeScriptOf(isFalling, size, intercept)});
        }
    });
    return pieces;
}

std::vector<PieceDraw> secondPieces(int kink) {
    std::vector<PieceDraw> pieces;
    forEachPieceDraw([&](bool isFalling, int size, int place) {
        const int slope = isFalling ? -size : size;
        const int price = place + (isFalling ? 5 : 1);
        pieces.push_back({{slope, price - kink * slope}, afterScriptOf(isFalling, size, place)});
    });
    return pieces;
}

struct KinkedDraw {
    DrawnKinked function;
    /// Of its two pieces.
    Script script;
};

std::vector<KinkedDraw> allFunctions() {
    std::vector<KinkedDraw> functions;
    for (int kink = 3; kink <= 7; ++kink) {
        const std::vector<PieceDraw> seconds = secondPieces(kink);
        for (const auto& [before, beforeScript] : firstPieces(kink, true)) {
            for (const auto& [after, afterScript] : seconds) {
                functions.push_back({{kink, before, after}, beforeScript + afterScript});
            }
        }
    }
    return functions;
}

constexpr int kFirstPieces = 29 + 4 * 28;
constexpr int kRejectedPieces = 5 * 50 - kFirstPieces;
constexpr int kFunctions = kFirstPieces * 50;
/// 49,702,500 exercises.
constexpr int kSpace = kFunctions * kFunctions;

/// What is wrong with an exercise that is to be of these functions, by all that can be seen of it.
std::string flawOf(const Laddi2State& s, const TrueSum& sum) {
    std::string flaw = flawOfSum(s, sum);
    if (flaw.empty()) {
        flaw = flawOfFields(s, sum);
    }
    return flaw.empty() ? flawOfTexts(s, sum) : flaw;
}

/// Walks the space, or a part that is spread over it.
void walkTheSpace(Proof& proof) {
    const std::vector<KinkedDraw> functions = allFunctions();
    ASSERT_EQ(functions.size(), kFunctions);
    MetSegments met;
    Laddi2State s;
    // The step has no divisor in common with the number of functions, so that each is met in either place.
    const int step = kSpace / lotSize(10'001, kSpace);
    ASSERT_EQ(std::gcd(step, kFunctions), 1);
    for (int at = 0; at < kSpace; at += step) {
        const auto& [f1, script1] = functions[static_cast<std::size_t>(at / kFunctions)];
        const auto& [f2, script2] = functions[static_cast<std::size_t>(at % kFunctions)];
        ScriptedDraws draws(kinkScriptOf(f1.kink, f2.kink) + script1 + script2);
        newExercise(s, draws);
        const TrueSum sum(f1, f2);
        proof.visit(Proof::From::WholeSpace, sum.kind());
        const bool isDrawn =
            draws.isUsedUp() && draws.randomized() == 1 && isSame(s.function1, f1) && isSame(s.function2, f2);
        ASSERT_TRUE(isDrawn) << described(f1) << described(f2);
        ASSERT_EQ(met.meets(sum) ? flawOf(s, sum) : flawOfSum(s, sum), "") << described(f1) << described(f2);
    }
}

/// Plays a stream of draws.
void playSeeded(Proof& proof, ProofDraws& draws, int count) {
    Laddi2State s;
    for (int n = 0; n < count; ++n) {
        draws.beginExercise();
        newExercise(s, draws);
        const DrawnKinked f1 = drawnOf(s.function1);
        const DrawnKinked f2 = drawnOf(s.function2);
        const auto told = [&] { return described(f1) + described(f2) + "exercise " + std::to_string(n); };
        const TrueSum sum(f1, f2);
        proof.visit(Proof::From::Seeds, sum.kind());
        ASSERT_TRUE(isSame(s.function1, f1) && isWithinTheDrawnRanges(f1)) << told();
        ASSERT_TRUE(isSame(s.function2, f2) && isWithinTheDrawnRanges(f2)) << told();
        ASSERT_EQ(flawOf(s, sum), "") << told();
        ASSERT_EQ(firstDeviation(s, f1, f2), std::nullopt) << told();
    }
}

TEST(Laddi2Space, IsTheTrueSumInEveryExerciseAndIsSolvedByItsAnswerAlone) {
    Proof proof("Laddi2", 13);
    walkTheSpace(proof);
    for (const auto& [ends, count] : {std::pair{ProofDraws::Ends::None, lotSize(20'000)},
                                      {ProofDraws::Ends::FromZero, lotSize(5'000, 200'000)}}) {
        ProofDraws draws(71, ends);
        playSeeded(proof, draws, count);
    }
}

// The walk has one draw of each cell; the first and the last draw of a cell give the same exercise.
TEST(Laddi2Space, HasAnExerciseOfEachCellOfEachDraw) {
    const Script fifths{0, 0.2F, 0.4F, 0.6F, 0.8F, 1};
    const std::vector<Script> pieces{{0, 0.7F, 1}, fifths, fifths, {0, 0.5F, 1}, fifths, fifths};
    std::vector<Script> cells{fifths, fifths};
    cells.insert(cells.end(), pieces.begin(), pieces.end());
    cells.insert(cells.end(), pieces.begin(), pieces.end());
    const Script rising = beforeScriptOf(false, 1, 4) + afterScriptOf(false, 2, 1);
    const Script script = kinkScriptOf(3, 3) + rising + rising;
    for (std::size_t at = 0; at < cells.size(); ++at) {
        const auto exerciseWith = [&script, at](float draw) {
            Script changed = script;
            changed[at] = draw;
            const auto s = test::exerciseOf<Laddi2State>(changed, test::Reseeds{1});
            return described(drawnOf(s.function1)) + described(drawnOf(s.function2));
        };
        std::set<std::string> met;
        for (std::size_t cell = 0; cell + 1 < cells[at].size(); ++cell) {
            const std::string exercise = exerciseWith(cells[at][cell]);
            EXPECT_EQ(exerciseWith(std::nextafter(cells[at][cell + 1], 0.0F)), exercise) << at;
            EXPECT_TRUE(met.insert(exercise).second) << at << ": " << exercise;
        }
    }
}

/// What can be drawn of a function with its kink at one place.
struct PiecesAt {
    int kink;
    std::vector<PieceDraw> taken = firstPieces(kink, true);
    std::vector<PieceDraw> rejected = firstPieces(kink, false);
    std::vector<PieceDraw> second = secondPieces(kink);
};

// Each rejected piece of the one function with each of the other, and each after each of its own.
TEST(Laddi2Space, DrawsARejectedPieceAgainFromItsPlace) {
    const std::vector<PiecesAt> kinks{{3}, {4}, {5}, {6}, {7}};
    std::size_t turn = 0;
    const auto next = [&turn](const std::vector<PieceDraw>& pieces) {
        return pieces[turn++ % pieces.size()];
    };
    int walked = 0;
    const auto walk = [&](const PiecesAt& at1, const PiecesAt& at2, std::size_t i, std::size_t j) {
        const std::size_t further = i + j;
        const PieceDraw before1 = next(at1.taken);
        PieceDraw after1 = next(at1.second);
        Script script = kinkScriptOf(at1.kink, at2.kink) + at1.rejected[i].script +
                        at1.rejected[further % at1.rejected.size()].script + before1.script + after1.script;
        for (const std::size_t which : {j, further % at2.rejected.size()}) {
            const PieceDraw& again = at2.rejected[which];
            script = script + again.script;
            if (endsEarly(again.piece, at2.kink)) {
                after1 = next(at1.second);
                script = script + after1.script;
            }
        }
        const PieceDraw before2 = next(at2.taken);
        const PieceDraw after2 = next(at2.second);
        const auto s =
            test::exerciseOf<Laddi2State>(script + before2.script + after2.script, test::Reseeds{1});
        const DrawnKinked f1{at1.kink, before1.piece, after1.piece};
        const DrawnKinked f2{at2.kink, before2.piece, after2.piece};
        ASSERT_TRUE(isSame(s.function1, f1) && isSame(s.function2, f2)) << described(f1) << described(f2);
        ASSERT_EQ(flawOfSum(s, TrueSum(f1, f2)), "") << described(f1) << described(f2);
        ++walked;
    };
    for (const PiecesAt& at1 : kinks) {
        for (const PiecesAt& at2 : kinks) {
            for (std::size_t i = 0; i < at1.rejected.size(); ++i) {
                for (std::size_t j = 0; j < at2.rejected.size(); ++j) {
                    walk(at1, at2, i, j);
                }
            }
        }
    }
    EXPECT_EQ(walked, kRejectedPieces * kRejectedPieces);
}

// Numbers that a field can hold: each reads as itself once it is written and typed again.
TEST(Laddi2Lot, HasOnlyAnswersThatReadAsThemselves) {
    for (int whole = -100; whole <= 100; ++whole) {
        ASSERT_EQ(Val(NumberText(static_cast<double>(whole))), whole);
    }
    for (int twelfths = 0; twelfths <= kLastQ * kTwelfths; ++twelfths) {
        const double shown = RoundUp2(static_cast<double>(twelfths) / kTwelfths);
        ASSERT_EQ(Val(NumberText(shown)), shown);
        ASSERT_EQ(RoundUp2(shown), shown);
    }
}

// Two segments to four, in each order that the ends can have, with each pair of equal ones that it allows.
TEST(Laddi2Lot, ReachesEveryOrderWithEveryWayOfMerging) {
    SeededDraws draws(72);
    Laddi2State s;
    std::set<std::pair<int, int>> kinds;
    std::set<std::pair<std::size_t, bool>> counts;
    for (int n = 0; n < lotSize(); ++n) {
        newExercise(s, draws);
        const Order order = orderOf(drawnOf(s.function1), drawnOf(s.function2));
        kinds.insert({order.orderCase, order.merged()});
        counts.insert({s.sum.segments.size(), s.sum.upperEndAsked});
    }
    const std::set<std::pair<int, int>> expected{{1, 0}, {2, 0}, {2, 2}, {3, 0}, {3, 3},  {4, 0}, {5, 0},
                                                 {5, 1}, {5, 2}, {6, 0}, {6, 1}, {6, 13}, {6, 3}};
    EXPECT_EQ(kinds, expected);
    EXPECT_EQ(counts, (std::set<std::pair<std::size_t, bool>>{
                          {2, false}, {2, true}, {3, false}, {3, true}, {4, false}, {4, true}}));
}

TEST(Laddi2Seeds, AreFrozenForAllBuildsAndProcessors) {
    SeededDraws draws(2024);
    Laddi2State s;
    std::string functions;
    for (int n = 0; n < 2; ++n) {
        newExercise(s, draws);
        functions += described(drawnOf(s.function1)) + described(drawnOf(s.function2));
    }
    EXPECT_EQ(functions,
              "2Q+2 to 6, then 0Q+6; 0Q+2 to 3, then -2Q+12; "
              "3Q+0 to 4, then -1Q+9; 1Q+2 to 3, then -2Q+13; ");
}
}  // namespace
}  // namespace tavrune
