#include "topics/addition/vaddi1_exercise.h"

#include <algorithm>
#include <utility>

#include "numeric/arithmetic.h"
#include "numeric/rounding.h"

namespace tavrune {
namespace {

constexpr float kRisingShare = 0.26F;

const TableCell kBlank = TableCell::blank();
const TableCell kUnbounded = TableCell::unbounded();

/// The level function 1 is the whole sum.
void solveLevelFirst(Vaddi1State& s) {
    const TableCell beside = s.function1.intercept == s.function2.intercept ? 0.0 : kBlank;
    s.tableP = {s.function1.intercept, s.function1.intercept, kBlank};
    s.tableQ1 = {0.0, kUnbounded, kBlank};
    s.tableQ2 = {beside, beside, kBlank};
    s.tableQtotal = {0.0, kUnbounded, kUnbounded};
}

/// Function 2 down, or up, to the level function 1.
void solveSecondThenLevel(Vaddi1State& s) {
    const double k = s.kinkQuantity;
    s.tableP = {s.function2.intercept, s.function1.intercept, s.function1.intercept};
    s.tableQ1 = {kBlank, 0.0, kUnbounded};
    s.tableQ2 = {0.0, k, k};
    s.tableQtotal = {0.0, k, kUnbounded};
}

/// The level function 2 is the whole sum. Not the mirror image of the level function 1.
void solveLevelSecond(Vaddi1State& s) {
    const TableCell beside = s.function1.intercept == s.function2.intercept ? 0.0 : kBlank;
    s.tableP = {s.function2.intercept, s.function2.intercept, kBlank};
    s.tableQ1 = {beside, beside, kBlank};
    s.tableQ2 = {0.0, kUnbounded, kBlank};
    // Kept (vaddi1-stale-total): the second cell is the third one of the exercise before.
    s.tableQtotal = {0.0, s.tableQtotal[Vaddi1State::kLastRow], kBlank};
}

/// Function 1 down, or up, to the level function 2. Not the mirror image either.
void solveFirstThenLevel(Vaddi1State& s) {
    const double k = s.kinkQuantity;
    s.tableP = {s.function1.intercept, s.function2.intercept, s.function2.intercept};
    s.tableQ1 = {0.0, k, k};
    s.tableQ2 = {kBlank, 0.0, kUnbounded};
    s.tableQtotal = {0.0, k, kBlank};
}

void solveLevel(Vaddi1State& s) {
    const bool isFirstLevel = s.function1.slope == 0;
    const Piece level = isFirstLevel ? s.function1 : s.function2;
    const Piece other = isFirstLevel ? s.function2 : s.function1;
    s.secondSegment = {0, level.intercept};
    if (isOneSegment(s)) {
        s.kinkQuantity = 0;
        s.segmentCount = 1;
        isFirstLevel ? solveLevelFirst(s) : solveLevelSecond(s);
        return;
    }
    s.firstSegment = other;
    s.kinkQuantity = RoundUp2((level.intercept - other.intercept) / other.slope);
    s.segmentCount = 2;
    isFirstLevel ? solveSecondThenLevel(s) : solveFirstThenLevel(s);
}

void solveSloping(Vaddi1State& s) {
    const int factor = factorOf(s.direction);
    const bool isFirstOuter = factor * s.function1.intercept < factor * s.function2.intercept;
    const Piece outer = isFirstOuter ? s.function1 : s.function2;
    const double inner = isFirstOuter ? s.function2.intercept : s.function1.intercept;
    const double kink = RoundUp2((inner - outer.intercept) / outer.slope);
    s.kinkQuantity = kink;
    s.firstSegment = outer;

    const auto quantity = [](double price, const Piece& f) { return (price - f.intercept) / f.slope; };
    const double atKink1 = quantity(inner, s.function1);
    const double atKink2 = quantity(inner, s.function2);
    const double end = endPrice(s.direction);
    const double atEnd1 = quantity(end, s.function1);
    const double atEnd2 = quantity(end, s.function2);
    const double sum = atEnd1 + atEnd2;
    // The line goes through the rounded kink.
    if (s.direction == Direction::Rising) {
        const double slope = divide(kTopPrice - inner, sum - kink);
        s.secondSegment = {slope, kTopPrice - slope * sum};
    } else {
        const double slope = divide(inner, kink - sum);
        s.secondSegment = {slope, -(slope * sum)};
    }

    s.segmentCount = 2;
    s.tableP = {outer.intercept, inner, end};
    s.tableQ1 = {isFirstOuter ? TableCell(0.0) : kBlank, RoundUp2(atKink1), RoundUp2(atEnd1)};
    s.tableQ2 = {isFirstOuter ? kBlank : TableCell(0.0), RoundUp2(atKink2), RoundUp2(atEnd2)};
    s.tableQtotal = {0.0, RoundUp2(atKink1 + atKink2), RoundUp2(sum)};
    if (s.function1.intercept != s.function2.intercept) {
        return;
    }
    // Both start at one price: the row of the kink falls away.
    s.segmentCount = 1;
    s.tableP = {s.tableP[Vaddi1State::kStartRow], end, kBlank};
    for (Vaddi1State::Column* column : {&s.tableQ1, &s.tableQ2, &s.tableQtotal}) {
        *column = {0.0, (*column)[Vaddi1State::kLastRow], kBlank};
    }
}

}  // namespace

void drawTask(Vaddi1State& s, Draws& draws) {
    draws.Randomize();
    do {
        if (draws.Rnd() < kRisingShare) {
            s.direction = Direction::Rising;
            s.function1 = {Int(draws.Rnd() * 6), Int(draws.Rnd() * 6)};
            s.function2.slope = Int(draws.Rnd() * 6);
        } else {
            s.direction = Direction::Falling;
            s.function1 = {Fix(draws.Rnd() * -6), Int(draws.Rnd() * 6) + 5};
            s.function2.slope = Fix(draws.Rnd() * -6);
        }
        // The same for rising functions: the first never starts above the second.
        s.function2.intercept = Int(draws.Rnd() * 6) + 5;
    } while ((s.function1.slope == 0 && s.function2.slope == 0) || isOnEdge(s.function1) ||
             isOnEdge(s.function2));
}

bool isOneSegment(const Vaddi1State& s) {
    const double start1 = s.function1.intercept * factorOf(s.direction);
    const double start2 = s.function2.intercept * factorOf(s.direction);
    const double slopeOfOuter =
        std::min(std::pair{start1, s.function1.slope}, std::pair{start2, s.function2.slope}).second;
    return start1 == start2 || slopeOfOuter == 0;
}

bool hasUpperEnd(const Vaddi1State& s) {
    return s.direction == Direction::Falling && s.function1.slope * s.function2.slope != 0;
}

void solve(Vaddi1State& s) {
    if (s.function1.slope == 0 || s.function2.slope == 0) {
        solveLevel(s);
    } else {
        solveSloping(s);
    }
    if (hasUpperEnd(s)) {
        const TableCell& last = s.tableQtotal[Vaddi1State::kLastRow];
        s.upperEnd = last.isBlank() ? s.tableQtotal[Vaddi1State::kMiddleRow] : last;
        s.upperEndAsked = true;
    }
    s.firstSegment = rounded(s.firstSegment);
    s.secondSegment = rounded(s.secondSegment);
}

std::vector<AnswerField> answerFields(const Vaddi1State& s) {
    std::vector<AnswerField> fields;
    if (s.segmentCount == 2) {
        fields = {{kFirstRow, Slot::Slope, {s.firstSegment.slope}},
                  {kFirstRow, Slot::Intercept, {s.firstSegment.intercept}},
                  {kFirstRow, Slot::End, {s.kinkQuantity}}};
    }
    fields.push_back({kSecondRow, Slot::Slope, {s.secondSegment.slope}});
    fields.push_back({kSecondRow, Slot::Intercept, {s.secondSegment.intercept}});
    fields.push_back({kSecondRow, Slot::Start, {s.kinkQuantity}});
    if (s.upperEndAsked) {
        fields.push_back({kSecondRow, Slot::End, {s.upperEnd.number()}});
    }
    return fields;
}

Judgement judge(const Vaddi1State& s, const std::vector<double>& typed) {
    return judge(answerFields(s), typed);
}

std::string pathText(const Vaddi1State& s) { return pathTexts(s.tableQtotal, s.tableP, s.segmentCount)[0]; }

}  // namespace tavrune
