#include "topics/addition/vaddi3_exercise.h"

#include <algorithm>
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

/// Stands for any quantity; shown as "oo", with whatever is added to it.
const Carried kUnboundedQuantity = 1000.0F;
constexpr double kLargestShown = 999;

/// Of the path of the sum.
constexpr std::size_t kSegmentsInALine = 2;

/// Nothing where a function does not exist.
using Quantity = std::optional<Carried>;

/// What is missing leaves the other alone.
Quantity sum(const Quantity& a, const Quantity& b) { return a && b ? *a + *b : (a ? a : b); }

TableCell shown(const Quantity& quantity) {
    if (!quantity) {
        return TableCell::blank();
    }
    return quantity->value() > kLargestShown ? TableCell::unbounded() : RoundUp2(quantity->value());
}

bool haveCommonPart(Parts one, Parts other) {
    return (static_cast<unsigned>(one) & static_cast<unsigned>(other)) != 0;
}

bool isIn(Part part, Parts parts) {
    return haveCommonPart(parts, part == Part::First ? Parts::First : Parts::Second);
}

struct PriceRow {
    Carried price;
    Parts parts;
};

struct Quantities {
    Quantity first;
    Quantity second;
    Quantity other;
};

struct Point {
    Carried quantity;
    Carried price;
};

// The draw.

/// Flat, then steep.
bool startsFlat(const Vaddi3State& s) {
    return s.kinkKind == KinkKind::JumpDown || s.kinkKind == KinkKind::Steeper;
}

float flatSlope(Draws& draws) { return Int(draws.Rnd() * -8) / 10; }

/// False if the part does not suit.
bool drawFirstPart(Vaddi3State& s, Draws& draws) {
    s.firstIntercept = Int(draws.Rnd() * 5) + 5;
    s.firstSlope = startsFlat(s) ? flatSlope(draws) : Int(draws.Rnd() * -3) - 2;
    const float zero = divide(-s.firstIntercept, s.firstSlope);
    const float nearest = startsFlat(s) ? 2 : 1;
    const float farthest = s.kinkKind == KinkKind::JumpDown ? 50 : 8;
    if (zero <= nearest || zero > farthest) {
        return false;
    }
    s.kinkQuantity = Int(draws.Rnd() * (zero - 1)) + 1;
    if (s.kinkKind == KinkKind::JumpDown) {
        s.kinkQuantity = std::min(s.kinkQuantity, 8.0F);
    }
    s.priceAtKinkFirst = s.firstSlope * s.kinkQuantity + s.firstIntercept;
    return !startsFlat(s) || s.priceAtKinkFirst > 1;
}

/// False if the part does not suit.
bool drawSecondPart(Vaddi3State& s, Draws& draws) {
    const float p = s.priceAtKinkFirst;
    s.secondSlope = startsFlat(s) ? Int(draws.Rnd() * -4) : flatSlope(draws);
    const float drop = s.secondSlope * s.kinkQuantity;
    switch (s.kinkKind) {
        case KinkKind::JumpDown:
            s.secondIntercept = Int(p - draws.Rnd() * (p - 2) - 0.5 - drop);
            break;
        case KinkKind::JumpUp:
            s.secondIntercept = Int((s.firstIntercept - p - 1.5) * draws.Rnd() + p - drop + 1.5);
            break;
        case KinkKind::Steeper:
        case KinkKind::Flatter:
            s.secondIntercept = RoundUp1(p - drop);
            s.priceAtKinkSecond = p;
            return true;
    }
    s.priceAtKinkSecond = drop + s.secondIntercept;
    return s.isJumpUp() || s.priceAtKinkSecond > 0.5;
}

void drawTask(Vaddi3State& s, Draws& draws) {
    draws.Randomize();
    s.kinkKind = static_cast<KinkKind>(Int(draws.Rnd() * 4));
    while (!drawFirstPart(s, draws) || !drawSecondPart(s, draws)) {
    }
    s.slope2 = Fix(draws.Rnd() * -5);
    s.intercept2 = Int(draws.Rnd() * 5) + 5;
}

// The sum.

/// The quantity of the first part of function 1, 0 beside its own prices; at a jump down also for the prices
/// that are jumped over.
Carried firstQuantity(const Vaddi3State& s, Carried price) {
    const Carried onLine = (price - s.firstIntercept) / s.firstSlope;
    const Carried kink = s.priceAtKinkFirst;
    if (price == kink || (price > s.priceAtKinkSecond && price < kink)) {
        return s.kinkQuantity;
    }
    return price < kink || onLine < kNone ? kNone : onLine;
}

/// The quantity of the second part of function 1, 0 beside its own prices and where it only touches the
/// first.
Carried secondQuantity(const Vaddi3State& s, Carried price) {
    const Carried onLine = (price - s.secondIntercept) / s.secondSlope;
    const bool isTouching = price == s.priceAtKinkFirst && price == s.priceAtKinkSecond;
    return price > s.priceAtKinkSecond || isTouching || onLine < kNone ? kNone : onLine;
}

/// The quantity of function 2.
Carried otherQuantity(const Vaddi3State& s, Carried price) {
    if (s.slope2 == 0) {
        return price < s.intercept2 ? kUnboundedQuantity : kNone;
    }
    return (price - s.intercept2) / s.slope2;
}

/// All that can be bought at a price; nothing above the start of a function.
Quantities quantitiesAt(const Vaddi3State& s, Carried price) {
    Quantities found{firstQuantity(s, price), secondQuantity(s, price), otherQuantity(s, price)};
    if (price > s.firstIntercept) {
        found.first = found.second = std::nullopt;
    }
    if (price > s.intercept2) {
        found.other = std::nullopt;
    }
    return found;
}

Parts partsAtIntercept2(const Vaddi3State& s) {
    const auto [lower, higher] = std::minmax({double{s.priceAtKinkFirst}, s.priceAtKinkSecond});
    if (s.intercept2 < lower) {
        return Parts::Second;
    }
    return s.intercept2 > higher ? Parts::First : Parts::Both;
}

/// The prices at which something begins or ends, falling, each once.
std::vector<PriceRow> priceRows(const Vaddi3State& s) {
    const bool isKink = s.kinkKind == KinkKind::Steeper || s.kinkKind == KinkKind::Flatter;
    const Carried secondKink = isKink ? Carried(s.priceAtKinkFirst) : Carried(s.priceAtKinkSecond);
    std::vector<PriceRow> rows{{s.firstIntercept, Parts::First},
                               {s.priceAtKinkFirst, Parts::First},
                               {secondKink, Parts::Second},
                               {s.intercept2, partsAtIntercept2(s)},
                               {kNone, Parts::Second}};
    std::stable_sort(rows.begin(), rows.end(),
                     [](const PriceRow& a, const PriceRow& b) { return a.price > b.price; });
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
    const HelpColumns columns = helpColumns(s);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const Quantities q = quantitiesAt(s, rows[row].price);
        s.column(columns.price)[row] = RoundUp2(rows[row].price.value());
        s.column(columns.quantity2)[row] = shown(q.other);
        for (const auto& [part, quantity, total] : columns.function1) {
            const Quantity ofPart = part == Part::First ? q.first : q.second;
            const Quantity own = s.isJumpUp() ? ofPart : sum(q.first, q.second);
            s.column(quantity)[row] = shown(own);
            s.column(total)[row] = shown(sum(own, q.other));
        }
        s.partsOfRows[row] = rows[row].parts;
    }
    s.upperEndAsked = s.slope2 != 0;
    s.upperEnd = s.column(columns.function1.back().total)[rows.size() - 1];
}

SumSegment segmentBetween(const Point& from, const Point& to, Carried slope, Carried intercept) {
    return {{RoundSigned2Fine(slope.value()), RoundUp2(intercept.value())},
            shown(from.quantity),
            RoundUp2(from.price.value()),
            shown(to.quantity),
            RoundUp2(to.price.value())};
}

/// A segment between each point and the next; none where the sum falls upright.
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
         s.isJumpUp() ? std::vector{Parts::First, Parts::Second} : std::vector{Parts::Both}) {
        std::vector<Point> points;
        for (const PriceRow& row : rows) {
            if (!haveCommonPart(row.parts, run)) {
                continue;
            }
            const Quantities q = quantitiesAt(s, row.price);
            const Quantity first = isIn(Part::First, run) ? q.first : std::nullopt;
            const Quantity second = isIn(Part::Second, run) ? q.second : std::nullopt;
            points.push_back({sum(sum(first, second), q.other).value(), row.price});
        }
        addSegments(s, points);
    }
}

/// Function 1 down to a level function 2, which takes any quantity from there on.
void addUpOverLevel(Vaddi3State& s) {
    const Carried level = s.intercept2;
    const Carried kink = s.priceAtKinkFirst;
    Point end{kNone, s.firstIntercept};
    const auto runTo = [&s, &end](const Point& to, Carried slope, Carried intercept) {
        s.segments.push_back(segmentBetween(end, to, slope, intercept));
        end = to;
    };
    if (level < s.firstIntercept) {
        const Point atKink{s.kinkQuantity, kink};
        runTo(level < kink ? atKink : Point{firstQuantity(s, level), level}, s.firstSlope, s.firstIntercept);
    }
    if (level < kink && level < s.priceAtKinkSecond) {
        end.price = s.priceAtKinkSecond;
        runTo({secondQuantity(s, level), level}, s.secondSlope, s.secondIntercept);
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

HelpColumns helpColumns(const Vaddi3State& s) {
    using enum TableColumn;
    if (s.isJumpUp()) {
        return {WidePrice,
                {{Part::First, Part1QuantityOrPrice, TotalOrPart1Total},
                 {Part::Second, Function1OrPart2Quantity, Part2Total}},
                Function2Quantity};
    }
    return {Part1QuantityOrPrice,
            {{Part::First, Function1OrPart2Quantity, TotalOrPart1Total}},
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
    std::array<std::string, 2> lines{"Her fra ", ""};
    const std::size_t count = s.segments.size();
    for (std::size_t i = 0; i < count; ++i) {
        const SumSegment& segment = s.segments[i];
        std::string& line = lines.at(i / kSegmentsInALine);
        line += stretchText(segment.startQ, segment.startP, segment.endQ, segment.endP);
        line += i + 1 == count ? "." : (i + 2 == count ? " og fra " : ", fra ");
    }
    return lines;
}

}  // namespace tavrune
