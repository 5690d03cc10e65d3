#include "topics/addition/vaddi3_exercise.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <optional>

#include "numeric/arithmetic.h"
#include "numeric/rounding.h"

namespace tavrune {
namespace {

/// A number with its precision: what comes of singles alone is a single, a double makes a double.
class Carried {
public:
    Carried(float single) : value_(single), isSingle_(true) {}
    Carried(double number) : value_(number), isSingle_(false) {}

    [[nodiscard]] double value() const { return value_; }

    // A double holds more than twice the digits of a single, so that rounding its result gives just the
    // single one.
    friend Carried operator+(Carried a, Carried b) { return {a.value_ + b.value_, a, b}; }
    friend Carried operator-(Carried a, Carried b) { return {a.value_ - b.value_, a, b}; }
    friend Carried operator*(Carried a, Carried b) { return {a.value_ * b.value_, a, b}; }
    friend Carried operator/(Carried a, Carried b) { return {divide(a.value_, b.value_), a, b}; }

    friend bool operator==(Carried a, Carried b) { return a.value_ == b.value_; }
    friend bool operator<(Carried a, Carried b) { return a.value_ < b.value_; }
    friend bool operator>(Carried a, Carried b) { return a.value_ > b.value_; }

private:
    Carried(double result, Carried a, Carried b)
        : value_(a.isSingle_ && b.isSingle_ ? static_cast<double>(static_cast<float>(result)) : result),
          isSingle_(a.isSingle_ && b.isSingle_) {}

    double value_;
    bool isSingle_;
};

const Carried kNone = 0.0F;

/// Stands for any quantity. It is shown as "oo", and so is its sum with another quantity.
const Carried kUnboundedQuantity = std::numeric_limits<float>::infinity();

/// Nothing where a function does not exist.
using Quantity = std::optional<Carried>;

/// Returns the sum, or the one of them that is there.
Quantity sum(const Quantity& a, const Quantity& b) { return a && b ? *a + *b : (a ? a : b); }

TableCell shown(const Quantity& quantity) {
    if (!quantity) {
        return TableCell::blank();
    }
    return *quantity == kUnboundedQuantity ? TableCell::unbounded() : RoundUp2(quantity->value());
}

bool haveCommonPart(Parts one, Parts other) {
    return (static_cast<unsigned>(one) & static_cast<unsigned>(other)) != 0;
}

bool isIn(Part part, Parts parts) {
    return haveCommonPart(parts, part == Part::BeforeKink ? Parts::BeforeKink : Parts::AfterKink);
}

struct PriceRow {
    Carried price;
    Parts parts;
};

struct Quantities {
    Quantity before;
    Quantity after;
    Quantity of2;
};

struct Point {
    Carried quantity;
    Carried price;
};

// The draw.

/// Returns whether function 1 is flat before the kink and steep after it, not the other way round.
bool startsFlat(const Vaddi3State& s) {
    return s.kinkKind == KinkKind::JumpDown || s.kinkKind == KinkKind::Steeper;
}

float flatSlope(Draws& draws) { return Int(draws.Rnd() * -8) / 10; }

/// Returns false if the part is to be drawn again.
bool drawPartBefore(Vaddi3State& s, Draws& draws) {
    s.intercept1Before = Int(draws.Rnd() * 5) + 5;
    s.slope1Before = startsFlat(s) ? flatSlope(draws) : Int(draws.Rnd() * -3) - 2;
    const float zero = divide(-s.intercept1Before, s.slope1Before);
    const float farthest = s.kinkKind == KinkKind::JumpDown ? 50 : 8;
    if (zero <= 1 || zero > farthest) {
        return false;
    }
    s.kinkQuantity = Int(draws.Rnd() * (zero - 1)) + 1;
    if (s.kinkKind == KinkKind::JumpDown) {
        s.kinkQuantity = std::min(s.kinkQuantity, 8.0F);
    }
    s.kinkPriceBefore = s.slope1Before * s.kinkQuantity + s.intercept1Before;
    return !startsFlat(s) || s.kinkPriceBefore > 1;
}

/// Returns false if both parts are to be drawn again.
bool drawPartAfter(Vaddi3State& s, Draws& draws) {
    const float p = s.kinkPriceBefore;
    s.slope1After = startsFlat(s) ? Int(draws.Rnd() * -4) : flatSlope(draws);
    const float drop = s.slope1After * s.kinkQuantity;
    switch (s.kinkKind) {
        case KinkKind::JumpDown:
            s.intercept1After = Int(p - draws.Rnd() * (p - 2) - 0.5 - drop);
            break;
        case KinkKind::JumpUp:
            s.intercept1After = Int((s.intercept1Before - p - 1.5) * draws.Rnd() + p - drop + 1.5);
            break;
        case KinkKind::Steeper:
        case KinkKind::Flatter:
            s.intercept1After = RoundUp1(p - drop);
            s.kinkPriceAfter = p;
            return true;
    }
    s.kinkPriceAfter = drop + s.intercept1After;
    return s.kinkPriceAfter > 0;
}

void drawTask(Vaddi3State& s, Draws& draws) {
    draws.Randomize();
    s.kinkKind = static_cast<KinkKind>(Int(draws.Rnd() * 4));
    while (!drawPartBefore(s, draws) || !drawPartAfter(s, draws)) {
    }
    s.slope2 = Fix(draws.Rnd() * -5);
    s.intercept2 = Int(draws.Rnd() * 5) + 5;
}

// The sum.

/// Returns the quantity of function 1 before the kink, 0 for a price below this part. At a jump down it has
/// the prices that are jumped over. It counts only where function 1 does not start below the price.
Carried quantityBefore(const Vaddi3State& s, Carried price) {
    const Carried kink = s.kinkPriceBefore;
    if (price > kink) {
        return (price - s.intercept1Before) / s.slope1Before;
    }
    return price == kink || price > s.kinkPriceAfter ? s.kinkQuantity : kNone;
}

/// Returns the quantity of function 1 after the kink, 0 for a price that this part does not have, and for the
/// price at which it meets the part before.
Carried quantityAfter(const Vaddi3State& s, Carried price) {
    // Kept (vaddi3-zero-slope): a slope of 0 fails for every price, also for one that this part does not
    // have.
    const Carried onLine = (price - s.intercept1After) / s.slope1After;
    const bool isMeeting = price == s.kinkPriceBefore && price == s.kinkPriceAfter;
    return price > s.kinkPriceAfter || isMeeting ? kNone : onLine;
}

/// Returns the quantity of function 2.
Carried quantity2(const Vaddi3State& s, Carried price) {
    if (s.slope2 == 0) {
        return price < s.intercept2 ? kUnboundedQuantity : kNone;
    }
    return (price - s.intercept2) / s.slope2;
}

/// Returns the quantities at a price; nothing for a function that starts below it.
Quantities quantitiesAt(const Vaddi3State& s, Carried price) {
    Quantities found{quantityBefore(s, price), quantityAfter(s, price), quantity2(s, price)};
    if (price > s.intercept1Before) {
        found.before = found.after = std::nullopt;
    }
    if (price > s.intercept2) {
        found.of2 = std::nullopt;
    }
    return found;
}

Parts partsAtIntercept2(const Vaddi3State& s) {
    const auto [lower, higher] = std::minmax({double{s.kinkPriceBefore}, s.kinkPriceAfter});
    if (s.intercept2 < lower) {
        return Parts::AfterKink;
    }
    return s.intercept2 > higher ? Parts::BeforeKink : Parts::Both;
}

/// The prices at which something begins or ends, falling, each once.
std::vector<PriceRow> priceRows(const Vaddi3State& s) {
    std::vector<PriceRow> rows{{s.intercept1Before, Parts::BeforeKink},
                               {s.kinkPriceBefore, Parts::BeforeKink},
                               {s.kinkPriceAfter, Parts::AfterKink},
                               {s.intercept2, partsAtIntercept2(s)},
                               {kNone, Parts::AfterKink}};
    // Of equal ones the first is kept: where the parts meet, the single.
    std::ranges::stable_sort(rows, std::greater<>{}, &PriceRow::price);
    for (auto row = rows.begin(); row + 1 != rows.end();) {
        const auto next = row + 1;
        if (row->price == next->price) {
            // A price on both parts stays on both.
            row->parts = std::max(row->parts, next->parts);
            rows.erase(next);
        } else {
            ++row;
        }
    }
    return rows;
}

void fillTable(Vaddi3State& s, const std::vector<PriceRow>& rows) {
    for (Vaddi3State::Column& column : s.helpTable) {
        column.fill(TableCell::blank());
    }
    s.partsOfRows.fill(Parts::None);
    const ColumnRoles columns = columnRoles(s);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const Quantities q = quantitiesAt(s, rows[row].price);
        s.column(columns.price)[row] = RoundUp2(rows[row].price.value());
        s.column(columns.quantity2)[row] = shown(q.of2);
        for (const auto& [part, quantity, total] : columns.function1) {
            const Quantity ofPart = part == Part::BeforeKink ? q.before : q.after;
            const Quantity of1 = s.isJumpUp() ? ofPart : sum(q.before, q.after);
            s.column(quantity)[row] = shown(of1);
            s.column(total)[row] = shown(sum(of1, q.of2));
        }
        s.partsOfRows[row] = rows[row].parts;
    }
    s.upperEndAsked = s.slope2 != 0;
    s.upperEnd = s.column(columns.function1.back().total)[rows.size() - 1];
}

SumSegment segmentBetween(const Point& from, const Point& to, Carried slope, Carried intercept) {
    return {rounded({slope.value(), intercept.value()}), shown(from.quantity), RoundUp2(from.price.value()),
            shown(to.quantity), RoundUp2(to.price.value())};
}

/// Adds a segment between each point and the next; none between two points of one quantity.
void addSegments(Vaddi3State& s, const std::vector<Point>& points) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        const Point& from = points[i - 1];
        const Point& to = points[i];
        if (from.quantity == to.quantity) {
            continue;
        }
        const Carried slope = (from.price - to.price) / (from.quantity - to.quantity);
        s.segments.push_back(segmentBetween(from, to, slope, from.price - slope * from.quantity));
    }
}

void addUp(Vaddi3State& s, const std::vector<PriceRow>& rows) {
    // At a jump up each part is added to function 2 by itself, over its own prices.
    for (const Parts run :
         s.isJumpUp() ? std::vector{Parts::BeforeKink, Parts::AfterKink} : std::vector{Parts::Both}) {
        std::vector<Point> points;
        for (const PriceRow& row : rows) {
            if (!haveCommonPart(row.parts, run)) {
                continue;
            }
            const Quantities q = quantitiesAt(s, row.price);
            const Quantity before = isIn(Part::BeforeKink, run) ? q.before : std::nullopt;
            const Quantity after = isIn(Part::AfterKink, run) ? q.after : std::nullopt;
            points.push_back({sum(sum(before, after), q.of2).value(), row.price});
        }
        addSegments(s, points);
    }
}

/// Adds the segments of function 1 down to a level function 2, and that of function 2, which has no end.
void addUpOverLevel(Vaddi3State& s) {
    const Carried level = s.intercept2;
    const Carried kink = s.kinkPriceBefore;
    Point end{kNone, s.intercept1Before};
    const auto runTo = [&s, &end](const Point& to, Carried slope, Carried intercept) {
        s.segments.push_back(segmentBetween(end, to, slope, intercept));
        end = to;
    };
    if (level < s.intercept1Before) {
        const Carried lowest = std::max(level, kink);
        runTo({quantityBefore(s, lowest), lowest}, s.slope1Before, s.intercept1Before);
    }
    if (level < kink && level < s.kinkPriceAfter) {
        end.price = s.kinkPriceAfter;
        runTo({quantityAfter(s, level), level}, s.slope1After, s.intercept1After);
    }
    end.price = level;
    runTo({kUnboundedQuantity, level}, kNone, level);
}

void solve(Vaddi3State& s) {
    const std::vector<PriceRow> rows = priceRows(s);
    fillTable(s, rows);
    s.segments.clear();
    if (s.slope2 == 0) {
        addUpOverLevel(s);
    } else {
        addUp(s, rows);
    }
}

}  // namespace

ColumnRoles columnRoles(const Vaddi3State& s) {
    using enum TableColumn;
    if (s.isJumpUp()) {
        return {WidePrice,
                {{Part::BeforeKink, Part1QuantityOrPrice, TotalOrPart1Total},
                 {Part::AfterKink, Function1OrPart2Quantity, Part2Total}},
                Function2Quantity};
    }
    return {Part1QuantityOrPrice,
            {{Part::BeforeKink, Function1OrPart2Quantity, TotalOrPart1Total}},
            Function2Quantity};
}

void newExercise(Vaddi3State& s, Draws& draws) {
    drawTask(s, draws);
    solve(s);
}

bool isRowOf(const Vaddi3State& s, std::size_t row, Part part) {
    const Parts parts = s.partsOfRows[row];
    return s.isJumpUp() ? isIn(part, parts) : parts != Parts::None;
}

std::vector<AnswerField> answerFields(const Vaddi3State& s) {
    const int count = s.segmentCount();
    std::vector<AnswerField> fields;
    for (int i = 0; i < count; ++i) {
        const SumSegment& segment = s.segments[static_cast<std::size_t>(i)];
        const int row = rowOf(i, count);
        fields.push_back({row, Slot::Slope, {segment.piece.slope, Rule::NearAllMarked}});
        fields.push_back({row, Slot::Intercept, {segment.piece.intercept, Rule::NearAllMarked}});
        if (count == 1) {
            fields.push_back({row, Slot::Start, {0, Rule::Exactly}});
        } else if (i > 0) {
            fields.push_back({row, Slot::Start, {segment.startQ.number(), Rule::NearAllMarked}});
        }
        if (i + 1 < count) {
            fields.push_back({row, Slot::End, {segment.endQ.number(), Rule::NearAllMarked}});
        } else if (s.upperEndAsked) {
            fields.push_back({row, Slot::End, {s.upperEnd.number(), Rule::NearClosed}});
        }
    }
    return fields;
}

Judgement judge(const Vaddi3State& s, const Vaddi3Answer& answer) {
    const std::vector<AnswerField> fields = answerFields(s);
    std::vector<double> decisive = answer.typed;
    if (s.upperEndAsked && s.segmentCount() == 3) {
        // Kept (vaddi3-help-cell): with three segments the verdict goes by a box of the help table; the red
        // mark goes by the field.
        decisive.back() = answer.helpCell;
    }
    return {judge(fields, answer.typed).isRight, judge(fields, decisive).isSolved};
}

std::array<std::string, 2> pathTexts(const Vaddi3State& s) {
    std::vector<std::string> stretches;
    for (const auto& [piece, startQ, startP, endQ, endP] : s.segments) {
        stretches.push_back(stretchText(startQ, startP, endQ, endP));
    }
    return pathTexts(stretches);
}

}  // namespace tavrune
