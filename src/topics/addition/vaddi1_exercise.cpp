#include "topics/addition/vaddi1_exercise.h"

#include "numeric/arithmetic.h"
#include "numeric/rounding.h"

namespace tavrune {
namespace {

constexpr float kRisingShare = 0.26F;

const TableCell kBlank = TableCell::blank();
const TableCell kUnbounded = TableCell::unbounded();

/// The level function 1 is the whole sum.
void solveLevelFirst(Vaddi1State& s) {
    const TableCell beside = s.intercept1 == s.intercept2 ? 0.0 : kBlank;
    s.tableP = {s.intercept1, s.intercept1, kBlank};
    s.tableQ1 = {0.0, kUnbounded, kBlank};
    s.tableQ2 = {beside, beside, kBlank};
    s.tableQtotal = {0.0, kUnbounded, kUnbounded};
}

/// Function 2 down, or up, to the level function 1.
void solveSecondThenLevel(Vaddi1State& s) {
    const double k = s.kinkQuantity;
    s.tableP = {s.intercept2, s.intercept1, s.intercept1};
    s.tableQ1 = {kBlank, 0.0, kUnbounded};
    s.tableQ2 = {0.0, k, k};
    s.tableQtotal = {0.0, k, kUnbounded};
}

/// The level function 2 is the whole sum. Not the mirror image of the level function 1.
void solveLevelSecond(Vaddi1State& s) {
    const TableCell beside = s.intercept1 == s.intercept2 ? 0.0 : kBlank;
    s.tableP = {s.intercept2, s.intercept2, kBlank};
    s.tableQ1 = {beside, beside, kBlank};
    s.tableQ2 = {0.0, kUnbounded, kBlank};
    // Kept (vaddi1-stale-total): the second cell is the third one of the exercise before.
    s.tableQtotal = {0.0, s.tableQtotal[Vaddi1State::kLastRow], kBlank};
}

/// Function 1 down, or up, to the level function 2. Not the mirror image either.
void solveFirstThenLevel(Vaddi1State& s) {
    const double k = s.kinkQuantity;
    s.tableP = {s.intercept1, s.intercept2, s.intercept2};
    s.tableQ1 = {0.0, k, k};
    s.tableQ2 = {kBlank, 0.0, kUnbounded};
    s.tableQtotal = {0.0, k, kBlank};
}

void solveLevel(Vaddi1State& s) {
    const bool isFirstLevel = s.slope1 == 0;
    const Piece level = isFirstLevel ? s.function1() : s.function2();
    const Piece other = isFirstLevel ? s.function2() : s.function1();
    s.secondSlope = 0;
    s.secondIntercept = level.intercept;
    if (isOneSegment(s)) {
        s.kinkQuantity = 0;
        s.segmentCount = 1;
        isFirstLevel ? solveLevelFirst(s) : solveLevelSecond(s);
        return;
    }
    s.firstSlope = other.slope;
    s.firstIntercept = other.intercept;
    s.kinkQuantity = RoundUp2((level.intercept - other.intercept) / other.slope);
    s.segmentCount = 2;
    isFirstLevel ? solveSecondThenLevel(s) : solveFirstThenLevel(s);
}

void solveSloping(Vaddi1State& s) {
    const int factor = factorOf(s.direction);
    const bool isFirstOuter = factor * s.intercept1 < factor * s.intercept2;
    const Piece outer = isFirstOuter ? s.function1() : s.function2();
    const double inner = isFirstOuter ? s.intercept2 : s.intercept1;
    const double kink = RoundUp2((inner - outer.intercept) / outer.slope);
    s.kinkQuantity = kink;
    s.firstSlope = outer.slope;
    s.firstIntercept = outer.intercept;

    const auto quantity = [](double price, const Piece& f) { return (price - f.intercept) / f.slope; };
    const double atKink1 = quantity(inner, s.function1());
    const double atKink2 = quantity(inner, s.function2());
    const double end = endPrice(s.direction);
    const double atEnd1 = quantity(end, s.function1());
    const double atEnd2 = quantity(end, s.function2());
    const double sum = atEnd1 + atEnd2;
    // The line goes through the rounded kink.
    if (s.direction == Direction::Rising) {
        s.secondSlope = divide(kTopPrice - inner, sum - kink);
        s.secondIntercept = kTopPrice - s.secondSlope * sum;
    } else {
        s.secondSlope = divide(inner, kink - sum);
        s.secondIntercept = -(s.secondSlope * sum);
    }

    s.segmentCount = 2;
    s.tableP = {outer.intercept, inner, end};
    s.tableQ1 = {isFirstOuter ? TableCell(0.0) : kBlank, RoundUp2(atKink1), RoundUp2(atEnd1)};
    s.tableQ2 = {isFirstOuter ? kBlank : TableCell(0.0), RoundUp2(atKink2), RoundUp2(atEnd2)};
    s.tableQtotal = {0.0, RoundUp2(atKink1 + atKink2), RoundUp2(sum)};
    if (s.intercept1 != s.intercept2) {
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
            s.slope1 = Int(draws.Rnd() * 6);
            s.intercept1 = Int(draws.Rnd() * 6);
            s.slope2 = Int(draws.Rnd() * 6);
        } else {
            s.direction = Direction::Falling;
            s.slope1 = Fix(draws.Rnd() * -6);
            s.intercept1 = Int(draws.Rnd() * 6) + 5;
            s.slope2 = Fix(draws.Rnd() * -6);
        }
        // The same for rising functions: the first never starts above the second.
        s.intercept2 = Int(draws.Rnd() * 6) + 5;
    } while ((s.slope1 == 0 && s.slope2 == 0) || isOnEdge(s.function1()) || isOnEdge(s.function2()));
}

bool isOneSegment(const Vaddi1State& s) {
    const double start1 = s.intercept1 * factorOf(s.direction);
    const double start2 = s.intercept2 * factorOf(s.direction);
    return start1 == start2 || (s.slope1 == 0 && start1 <= start2) || (s.slope2 == 0 && start2 <= start1);
}

bool hasUpperEnd(const Vaddi1State& s) {
    return s.direction == Direction::Falling && s.slope1 * s.slope2 != 0;
}

void solve(Vaddi1State& s) {
    if (s.slope1 == 0 || s.slope2 == 0) {
        solveLevel(s);
    } else {
        solveSloping(s);
    }
    if (hasUpperEnd(s)) {
        const TableCell& last = s.tableQtotal[Vaddi1State::kLastRow];
        s.upperEnd = last.isEmpty() || last.isBlank() ? s.tableQtotal[Vaddi1State::kMiddleRow] : last;
        s.upperEndAsked = true;
    }
    s.secondSlope = RoundSigned2Fine(s.secondSlope);
    s.secondIntercept = RoundUp2(s.secondIntercept);
    s.firstSlope = RoundSigned2Fine(s.firstSlope);
    s.firstIntercept = RoundUp2(s.firstIntercept);
}

std::vector<AnswerField> answerFields(const Vaddi1State& s) {
    std::vector<AnswerField> fields;
    if (s.segmentCount == 2) {
        fields = {{kFirstRow, Slot::Slope, {s.firstSlope}},
                  {kFirstRow, Slot::Intercept, {s.firstIntercept}},
                  {kFirstRow, Slot::End, {s.kinkQuantity}}};
    }
    fields.push_back({kSecondRow, Slot::Slope, {s.secondSlope}});
    fields.push_back({kSecondRow, Slot::Intercept, {s.secondIntercept}});
    fields.push_back({kSecondRow, Slot::Start, {s.kinkQuantity}});
    if (s.upperEndAsked) {
        fields.push_back({kSecondRow, Slot::End, {s.upperEnd.number()}});
    }
    return fields;
}

Judgement judge(const Vaddi1State& s, const std::vector<double>& typed) {
    return judge(answerFields(s), typed);
}

std::string pathText(const Vaddi1State& s) {
    const auto stretch = [&s](std::size_t row) {
        return stretchText(s.tableQtotal[row], s.tableP[row], s.tableQtotal[row + 1], s.tableP[row + 1]);
    };
    return "Her fra " + stretch(Vaddi1State::kStartRow) +
           (s.segmentCount == 2 ? " og fra " + stretch(Vaddi1State::kMiddleRow) : "") + ".";
}

}  // namespace tavrune
