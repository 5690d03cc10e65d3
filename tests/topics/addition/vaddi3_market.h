#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <compare>
#include <cstdint>
#include <functional>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "numeric/text.h"
#include "support/exact.h"
#include "support/proof.h"
#include "topics/addition/judged_fields.h"
#include "topics/addition/vaddi3_exercise.h"

/// A second way to the sum of Vaddi3, in fractions, from what the student reads; and what is wrong with an
/// exercise, seen from there.
namespace tavrune::test {

/// The two functions of an exercise: whole numbers and tenths.
struct Functions {
    KinkKind kind = KinkKind::JumpDown;
    double start1 = 0;
    double slopeBefore = 0;
    double kink = 0;
    double slopeAfter = 0;
    double interceptAfter = 0;
    double slope2 = 0;
    double start2 = 0;

    auto operator<=>(const Functions&) const = default;
};

[[nodiscard]] inline Exact exact(double tenths) { return {std::llround(tenths * 10), 10}; }

/// The functions, and all that can be bought at a price.
struct Market {
    KinkKind kind;
    Exact start1, slopeBefore, kink, slopeAfter, interceptAfter, slope2, start2;
    Exact kinkFirst, kinkSecond;

    /// More than any quantity of a sloping function.
    static constexpr int kUnbounded = 1000;

    /// A stretch of the sum between two prices at which something begins or ends, or a level one.
    struct Stretch {
        Exact startQ, startP, endQ, endP;
        Exact slope = (startP - endP) / (startQ - endQ);
        Exact intercept = startP - slope * startQ;

        [[nodiscard]] bool isAround(Exact p) const { return endP < p && p < startP; }
        [[nodiscard]] Exact at(Exact p) const { return (p - intercept) / slope; }
    };

    explicit Market(const Functions& f)
        : kind(f.kind),
          start1(exact(f.start1)),
          slopeBefore(exact(f.slopeBefore)),
          kink(exact(f.kink)),
          slopeAfter(exact(f.slopeAfter)),
          interceptAfter(exact(f.interceptAfter)),
          slope2(exact(f.slope2)),
          start2(exact(f.start2)),
          kinkFirst(slopeBefore * kink + start1),
          kinkSecond(slopeAfter * kink + interceptAfter) {}

    [[nodiscard]] bool isLevel() const { return slope2 == Exact(0); }
    [[nodiscard]] Exact before(Exact p) const { return (p - start1) / slopeBefore; }
    [[nodiscard]] Exact after(Exact p) const { return (p - interceptAfter) / slopeAfter; }
    [[nodiscard]] Exact second(Exact p) const {
        return isLevel() || p > start2 ? Exact(0) : (p - start2) / slope2;
    }
    /// The prices between which function 1 falls upright.
    [[nodiscard]] bool isJumpedOver(Exact p) const { return kinkSecond < p && p < kinkFirst; }

    /// The quantities of the sum at a price at which nothing begins or ends, read off the functions. A
    /// stretch that runs upright has no function, and over a level function the market ends with the part
    /// of function 1 that comes to it first.
    [[nodiscard]] std::vector<Exact> bought(Exact p) const {
        const bool isOutside = isLevel() ? p < start2 || p > start1 : p > start2 && p > start1;
        if (isOutside || (isJumpedOver(p) && (isLevel() || p > start2))) {
            return {};
        }
        std::vector<Exact> all;
        if (p > start1) {
            all.emplace_back(0);
        } else if (isJumpedOver(p)) {
            all.push_back(kink);
        } else {
            if (p > kinkFirst) {
                all.push_back(before(p));
            }
            const bool isCutBeforeTheJump = kind == KinkKind::JumpUp && isLevel() && start2 >= kinkFirst;
            if (p < kinkSecond && !isCutBeforeTheJump) {
                all.push_back(after(p));
            }
        }
        for (Exact& q : all) {
            q = q + second(p);
        }
        return all;
    }

    /// The pieces of the sum, as the functions and their prices give them; the level one is the last.
    [[nodiscard]] std::vector<Stretch> stretches() const {
        const Exact top = isLevel() ? start1 : std::max(start1, start2);
        const Exact bottom = isLevel() ? start2 : Exact(0);
        std::vector<Stretch> all;
        std::vector<Exact> breaks{start1, start2};
        if (kind != KinkKind::JumpUp) {
            // The parts of a jump up end each in its own run.
            breaks.insert(breaks.end(), {kinkFirst, kinkSecond});
        }
        const auto run = [&](Exact from, Exact to, auto quantity) {
            std::set<Exact, std::greater<>> prices{from, to};
            for (const Exact price : breaks) {
                if (to < price && price < from) {
                    prices.insert(price);
                }
            }
            for (auto price = prices.begin(); from > to && std::next(price) != prices.end(); ++price) {
                const Exact next = *std::next(price);
                const Exact startQ = quantity(*price) + second(*price);
                const Exact endQ = quantity(next) + second(next);
                if (startQ != endQ) {
                    all.push_back(Stretch{startQ, *price, endQ, next});
                }
            }
        };
        const auto first = [this](Exact p) { return p > start1 ? Exact(0) : before(p); };
        if (kind == KinkKind::JumpUp) {
            run(top, std::max(bottom, kinkFirst), first);
            if (bottom < kinkFirst) {
                run(kinkSecond, bottom, [this](Exact p) { return after(p); });
            }
        } else {
            run(top, bottom,
                [&](Exact p) { return p >= kinkFirst ? first(p) : (p >= kinkSecond ? kink : after(p)); });
        }
        if (isLevel()) {
            all.push_back(Stretch{all.empty() ? Exact(0) : all.back().endQ, start2, kUnbounded, start2});
        }
        return all;
    }

    /// The prices at which something begins or ends.
    [[nodiscard]] std::set<Exact, std::greater<>> breaks() const {
        return {start1, kinkFirst, kinkSecond, start2, Exact(0)};
    }
};

/// What a student reads in the captions of the task; the kind is what their numbers say.
[[nodiscard]] inline Functions readOff(const Vaddi3State& s) {
    const auto read = [](auto number) { return typedAgain(NumberText(number)); };
    Functions shown{KinkKind::JumpDown,  read(s.intercept1Before), read(s.slope1Before), read(s.kinkQuantity),
                    read(s.slope1After), read(s.intercept1After),  read(s.slope2),       read(s.intercept2)};
    const Market market(shown);
    if (market.kinkFirst == market.kinkSecond) {
        shown.kind = shown.slopeAfter < shown.slopeBefore ? KinkKind::Steeper : KinkKind::Flatter;
    } else if (market.kinkFirst < market.kinkSecond) {
        shown.kind = KinkKind::JumpUp;
    }
    return shown;
}

/// Half of the last decimal, and what singles may lose.
inline constexpr double kHalf = 0.005 + 1e-5;

/// True if the number was rounded to two decimals.
[[nodiscard]] inline bool isRounded(double rounded, Exact number) {
    return std::abs(rounded - number.value()) <= kHalf && std::round(rounded * 100) / 100 == rounded;
}

/// True if the text shows the quantity or price, rounded: "oo" where it has no bound.
[[nodiscard]] inline bool shows(const std::string& text, Exact number) {
    if (number == Exact(Market::kUnbounded)) {
        return text == "oo";
    }
    return !text.empty() && text != " " && text != "oo" && isRounded(typedAgain(text), number);
}

/// True if the stretches hold all that is bought, and no more, at prices in the middle between two tenths,
/// where nothing begins or ends: at every fourth of them, from another one in each exercise.
[[nodiscard]] inline bool areAllThatIsBought(const std::vector<Market::Stretch>& stretches,
                                             const Market& market, int number) {
    constexpr int kStep = 4;
    for (int tenth = number % kStep; tenth < 100; tenth += kStep) {
        const Exact price(2 * tenth + 1, 20);
        std::vector<Exact> found;
        for (const Market::Stretch& stretch : stretches) {
            if (stretch.isAround(price)) {
                found.push_back(stretch.at(price));
            }
        }
        if (found != market.bought(price)) {
            return false;
        }
    }
    return true;
}

/// What is wrong with the segments, in a word; empty if nothing is.
[[nodiscard]] inline std::string flawOfSum(const Vaddi3State& s,
                                           const std::vector<Market::Stretch>& stretches) {
    if (s.segments.size() != stretches.size()) {
        return "another number of segments";
    }
    for (std::size_t i = 0; i < stretches.size(); ++i) {
        const SumSegment& segment = s.segments[i];
        const Market::Stretch& stretch = stretches[i];
        if (!shows(segment.startQ.text(), stretch.startQ) || !shows(segment.startP.text(), stretch.startP) ||
            !shows(segment.endQ.text(), stretch.endQ) || !shows(segment.endP.text(), stretch.endP)) {
            return "another end";
        }
        if (!isRounded(segment.piece.slope, stretch.slope) ||
            !isRounded(segment.piece.intercept, stretch.intercept)) {
            return "another line";
        }
        // Along the segment: slope and intercept are off by half a decimal at most.
        for (int quarter = 0; quarter <= 4; ++quarter) {
            const Exact q = stretch.startQ + (stretch.endQ - stretch.startQ) * Exact(quarter, 4);
            const Exact p = stretch.slope * q + stretch.intercept;
            if (std::abs(segment.piece.at(q.value()) - p.value()) > kHalf * (q.value() + 1)) {
                return "off the sum";
            }
        }
    }
    return "";
}

/// What a row of the help table has to show, nothing where it is blank.
using Row = std::array<std::optional<Exact>, kTableColumns>;

/// The row at a price: P, Q1a, Q1b, Q2 and the totals with Q1a and with Q1b at a jump up; otherwise P, Q1, Q2
/// and the total, in the columns between.
[[nodiscard]] inline Row rowAt(const Market& market, Exact p) {
    const bool isOnFirst = p >= market.kinkFirst;
    const bool isOnSecond = p <= market.kinkSecond && !(market.kind >= KinkKind::Steeper && isOnFirst);
    const bool isInJump = !isOnFirst && !isOnSecond;
    const Exact first = isOnFirst ? market.before(p) : (isInJump ? market.kink : Exact(0));
    const Exact second = isOnSecond ? market.after(p) : Exact(0);
    const bool isUnbounded = market.isLevel() && p < market.start2;
    const auto own = [&](Exact q) { return p > market.start1 ? std::nullopt : std::optional(q); };
    const auto total = [&](Exact q) {
        return isUnbounded ? Exact(Market::kUnbounded) : own(q).value_or(0) + market.second(p);
    };
    std::optional<Exact> other;
    if (p <= market.start2) {
        other = isUnbounded ? Exact(Market::kUnbounded) : market.second(p);
    }
    if (market.kind == KinkKind::JumpUp) {
        return {p, own(first), own(second), other, total(first), total(second)};
    }
    return {std::nullopt, p, own(first + second), other, total(first + second), std::nullopt};
}

/// True if the price is of this part. One in a jump, where only function 2 can have its start, is of both.
[[nodiscard]] inline bool hasPrice(const Market& market, Part part, Exact p) {
    const bool isAtStart2 = market.kinkFirst <= p && p <= market.kinkSecond && p == market.start2;
    return market.kind != KinkKind::JumpUp || isAtStart2 ||
           (part == Part::BeforeKink ? p > market.kinkSecond || p == market.kinkFirst
                                     : p < market.kinkFirst || p == market.kinkSecond);
}

/// True if the help table has just the prices at which something begins or ends, and all that belongs to
/// them.
[[nodiscard]] inline bool isTableOf(const Vaddi3State& s, const Market& market) {
    std::size_t row = 0;
    const auto has = [&s, &row](const Row& numbers, bool isBefore, bool isAfter) {
        for (std::size_t column = 0; column < kTableColumns; ++column) {
            const std::string text = s.helpTable[column][row].text();
            if (numbers[column] ? !shows(text, *numbers[column]) : text != " ") {
                return false;
            }
        }
        return isRowOf(s, row, Part::BeforeKink) == isBefore && isRowOf(s, row, Part::AfterKink) == isAfter;
    };
    for (const Exact p : market.breaks()) {
        if (!has(rowAt(market, p), hasPrice(market, Part::BeforeKink, p),
                 hasPrice(market, Part::AfterKink, p))) {
            return false;
        }
        ++row;
    }
    for (; row < Vaddi3State::kTableRows; ++row) {
        if (!has({}, false, false)) {
            return false;
        }
    }
    return true;
}

/// The numbers in a text, which stand where its words have a "#"; nothing if it has other words.
[[nodiscard]] inline std::optional<std::vector<std::string>> numbersIn(std::string_view text,
                                                                       std::string_view words) {
    std::vector<std::string> numbers;
    for (const char word : words) {
        const std::size_t length = word == '#' ? std::min(text.find(' '), text.size()) : 1;
        if (text.empty() || (word != '#' && text.front() != word)) {
            return std::nullopt;
        }
        if (word == '#') {
            numbers.emplace_back(text.substr(0, length));
        }
        text.remove_prefix(length);
    }
    return text.empty() ? std::optional(numbers) : std::nullopt;
}

/// True if the sentence of the path, with either mark, leads along the stretches.
[[nodiscard]] inline bool isPathOf(const Vaddi3State& s, const std::vector<Market::Stretch>& stretches) {
    static const std::array<std::array<std::string, 2>, 4> kWords{
        {{"Her fra ( # ; # ) til ( # ; # ).", ""},
         {"Her fra ( # ; # ) til ( # ; # ) og fra ( # ; # ) til ( # ; # ).", ""},
         {"Her fra ( # ; # ) til ( # ; # ), fra ( # ; # ) til ( # ; # ) og fra ", "( # ; # ) til ( # ; # )."},
         {"Her fra ( # ; # ) til ( # ; # ), fra ( # ; # ) til ( # ; # ), fra ",
          "( # ; # ) til ( # ; # ) og fra ( # ; # ) til ( # ; # )."}}};
    std::vector<Exact> ends;
    for (const Market::Stretch& stretch : stretches) {
        ends.insert(ends.end(), {stretch.startQ, stretch.startP, stretch.endQ, stretch.endP});
    }
    return inBothMarks([&] {
        const auto [first, rest] = pathTexts(s);
        const auto& words = kWords.at(stretches.size() - 1);
        std::optional<std::vector<std::string>> numbers = numbersIn(first, words[0]);
        const std::optional<std::vector<std::string>> more = numbersIn(rest, words[1]);
        if (!numbers || !more) {
            return false;
        }
        numbers->insert(numbers->end(), more->begin(), more->end());
        return std::equal(numbers->begin(), numbers->end(), ends.begin(), ends.end(), shows);
    });
}

/// True if just the numbers of the sum are asked for, row by row, under the rules they are judged by.
[[nodiscard]] inline bool areAskedFor(const std::vector<AnswerField>& fields,
                                      const std::vector<Market::Stretch>& stretches) {
    std::vector<AnswerField> asked;
    std::vector<Exact> numbers;
    const bool isLone = stretches.size() == 1;
    for (const Market::Stretch& stretch : stretches) {
        const bool isFirst = asked.empty();
        const bool isLast = &stretch == &stretches.back();
        const int row = isLone ? 1 : static_cast<int>(&stretch - stretches.data());
        const auto ask = [&](Slot slot, Exact number, Rule rule) {
            asked.push_back({row, slot, {0, rule}});
            numbers.push_back(number);
        };
        ask(Slot::Slope, stretch.slope, Rule::NearAllMarked);
        ask(Slot::Intercept, stretch.intercept, Rule::NearAllMarked);
        if (isLone || !isFirst) {
            ask(Slot::Start, stretch.startQ, isLone ? Rule::Exactly : Rule::NearAllMarked);
        }
        if (stretch.endQ != Exact(Market::kUnbounded)) {
            ask(Slot::End, stretch.endQ, isLast ? Rule::NearClosed : Rule::NearAllMarked);
        }
    }
    bool isAll = fields.size() == asked.size();
    for (std::size_t i = 0; isAll && i < fields.size(); ++i) {
        isAll = fields[i].row == asked[i].row && fields[i].slot == asked[i].slot &&
                fields[i].target.rule == asked[i].target.rule &&
                isRounded(fields[i].target.value, numbers[i]);
    }
    return isAll;
}

/// What is wrong with the verdict on the answer: as it is, and with one number at a time at its tolerance,
/// and past it. With three sloping segments the upper end is judged by a cell of the help table, its mark by
/// the field.
[[nodiscard]] inline std::string flawOfVerdict(const Vaddi3State& s,
                                               const std::vector<Market::Stretch>& stretches) {
    std::vector<double> typed;
    for (const AnswerField& field : answerFields(s)) {
        typed.push_back(typedAgain(NumberText(field.target.value)));
    }
    const double upperEnd = typed.back();
    const bool isSloping = stretches.back().slope != Exact(0);
    const bool isByTheTable = stretches.size() == 3 && isSloping;
    const std::vector<bool> all(typed.size(), true);
    if (judge(s, {.typed = typed, .helpCell = upperEnd}) != Judgement{all, true} ||
        judge(s, {.typed = typed, .helpCell = upperEnd + kJustPast}) != Judgement{all, !isByTheTable}) {
        return "refuses its own answer, or takes a wrong cell";
    }
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const bool isUpperEnd = isSloping && i + 1 == typed.size();
        const bool isLoneStart = stretches.size() == 1 && i == 2;
        for (const auto& [off, isTaken] : {std::pair(-kJustPast, false), std::pair(-0.005, isUpperEnd),
                                           std::pair(0.005, !isLoneStart), std::pair(kJustPast, false)}) {
            std::vector<double> moved = typed;
            moved[i] += off;
            std::vector<bool> isRight = all;
            isRight[i] = isTaken;
            const bool isSolved = isTaken || (isUpperEnd && isByTheTable);
            if (judge(s, {.typed = moved, .helpCell = upperEnd}) != Judgement{isRight, isSolved}) {
                return "takes another number, or marks it otherwise";
            }
        }
    }
    return "";
}

/// How often a number just between two of two decimals was shown as the one farther from 0, and how often, by
/// what singles lose, as the other.
struct Halves {
    int away = 0;
    int towards = 0;

    bool operator==(const Halves&) const = default;

    void count(double rounded, Exact number) {
        const Exact doubled = number * 200;
        const std::int64_t whole = std::llround(doubled.value());
        if (Exact(whole) == doubled && whole % 2 != 0) {
            ++(std::abs(rounded) > std::abs(number.value()) ? away : towards);
        }
    }

    /// Counts the numbers of the sum.
    void count(const Vaddi3State& s, const Functions& functions) {
        const std::vector<Market::Stretch> stretches = Market(functions).stretches();
        for (std::size_t i = 0; i < stretches.size(); ++i) {
            count(s.segments[i].piece.slope, stretches[i].slope);
            count(s.segments[i].piece.intercept, stretches[i].intercept);
            count(s.segments[i].startQ.number(), stretches[i].startQ);
        }
    }
};

/// What is wrong with the exercise of these functions, which has this number among the others; empty if
/// nothing is.
[[nodiscard]] inline std::string flawOf(const Vaddi3State& s, const Functions& functions, int number) {
    if (readOff(s) != functions || s.kinkKind != functions.kind) {
        return "shows other functions";
    }
    const Market market(functions);
    constexpr double kOfSingles = 1e-5;
    if (std::abs(s.kinkPriceBefore - market.kinkFirst.value()) > kOfSingles ||
        std::abs(s.kinkPriceAfter - market.kinkSecond.value()) > kOfSingles) {
        return "has other prices at the kink";
    }
    const std::vector<Market::Stretch> stretches = market.stretches();
    if (!areAllThatIsBought(stretches, market, number)) {
        return "not the sum, by the test itself";
    }
    if (!isTableOf(s, market)) {
        return "another help table";
    }
    if (!isPathOf(s, stretches)) {
        return "another path";
    }
    const std::vector<AnswerField> fields = answerFields(s);
    if (!areAskedFor(fields, stretches) || s.upperEndAsked == market.isLevel()) {
        return "asks for something else";
    }
    for (std::string flaw : {flawOfSum(s, stretches), flawOfVerdict(s, stretches),
                             flawOfJudging(fields, [](const AnswerField& f) { return f.target.value; })}) {
        if (!flaw.empty()) {
            return flaw;
        }
    }
    return "";
}

}  // namespace tavrune::test
