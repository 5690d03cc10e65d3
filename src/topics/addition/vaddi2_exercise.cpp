#include "topics/addition/vaddi2_exercise.h"

#include <algorithm>

#include "numeric/arithmetic.h"
#include "numeric/rounding.h"

namespace tavrune {
namespace {

constexpr float kRisingShare = 0.25F;
/// From here on a quantity counts as unbounded.
constexpr double kManyQ = 1000;

const TableCell kBlank = TableCell::blank();
const TableCell kUnbounded = TableCell::unbounded();

/// A price at which functions start, one or several.
struct Start {
    double price;
    bool isLevel;
};

bool isLevel(const Piece& function) { return function.slope == 0; }

bool isRejected(const Vaddi2State& s) {
    return std::count_if(s.functions.begin(), s.functions.end(), isLevel) > 1 ||
           std::any_of(s.functions.begin(), s.functions.end(), isOnEdge);
}

void drawFunctions(Vaddi2State& s, Draws& draws) {
    draws.Randomize();
    s.direction = draws.Rnd() < kRisingShare ? Direction::Rising : Direction::Falling;
    const double lowest = s.direction == Direction::Rising ? 0 : 5;
    do {
        for (Piece& function : s.functions) {
            const double steepness = Int(draws.Rnd() * 5);
            function = {factorOf(s.direction) * steepness, Int(draws.Rnd() * 5) + lowest};
        }
    } while (isRejected(s));
}

/// Returns the starts, each price once, the outermost first: the lowest of rising functions, the highest of
/// falling ones.
std::vector<Start> startsOf(const Vaddi2State& s) {
    std::vector<Start> all;
    for (const Piece& function : s.functions) {
        all.push_back({function.intercept, isLevel(function)});
    }
    std::ranges::sort(all, {}, [&s](const Start& start) { return factorOf(s.direction) * start.price; });
    std::vector<Start> starts;
    for (const Start& start : all) {
        if (!starts.empty() && starts.back().price == start.price) {
            starts.back().isLevel = starts.back().isLevel || start.isLevel;
        } else {
            starts.push_back(start);
        }
    }
    return starts;
}

/// Returns the quantity of a function at a price; a blank on the far side of its start.
TableCell quantityAt(double price, const Piece& f, Direction direction) {
    if (f.slope == 0) {
        if (factorOf(direction) * f.intercept < factorOf(direction) * price) {
            return kUnbounded;
        }
        return f.intercept == price ? TableCell(0.0) : kBlank;
    }
    const double quantity = (price - f.intercept) / f.slope;
    return quantity < 0 ? kBlank : TableCell(quantity);
}

TableCell plus(const TableCell& total, const TableCell& cell) {
    if (total.isUnbounded() || cell.isUnbounded()) {
        return kUnbounded;
    }
    return cell.isNumeric() ? TableCell(total.number() + cell.number()) : total;
}

void fillRow(Vaddi2State& s, std::size_t row, double price) {
    s.tableP[row] = price;
    TableCell total = 0.0;
    for (std::size_t f = 0; f < Vaddi2State::kFunctions; ++f) {
        s.tableQ[f][row] = quantityAt(price, s.functions[f], s.direction);
        total = plus(total, s.tableQ[f][row]);
    }
    s.tableQtotal[row] = total;
    if (!total.isUnbounded()) {
        return;
    }
    // The price does not go beyond the level function, so the others keep their quantities.
    for (Vaddi2State::Column& column : s.tableQ) {
        if (!column[row].isUnbounded()) {
            column[row] = column[row - 1];
        }
    }
}

void fillTable(Vaddi2State& s, const std::vector<Start>& starts) {
    const auto rows = static_cast<std::size_t>(s.segmentCount) + 1;
    for (std::size_t row = 0; row < s.tableP.size(); ++row) {
        if (row < rows) {
            fillRow(s, row, row < starts.size() ? starts[row].price : endPrice(s.direction));
        } else {
            s.tableP[row] = s.tableQtotal[row] = kBlank;
            for (Vaddi2State::Column& column : s.tableQ) {
                column[row] = kBlank;
            }
        }
    }
}

void joinRows(Vaddi2State& s) {
    for (std::size_t row = 0; row < static_cast<std::size_t>(s.segmentCount); ++row) {
        const double fromP = s.tableP[row].number();
        const double fromQ = s.tableQtotal[row].number();
        const TableCell& to = s.tableQtotal[row + 1];
        double slope = 0;
        if (!to.isUnbounded()) {
            slope = divide(fromP - s.tableP[row + 1].number(), fromQ - to.number());
        }
        s.segments[row] = {slope, fromP - slope * fromQ};
    }
}

void roundColumn(Vaddi2State::Column& column) {
    for (TableCell& cell : column) {
        cell = rounded(cell, RoundSigned2Fine);
        if (cell.isNumeric() && cell.number() >= kManyQ) {
            cell = kUnbounded;
        }
    }
}

}  // namespace

bool Vaddi2State::isAnyLevel() const { return std::any_of(functions.begin(), functions.end(), isLevel); }

void newExercise(Vaddi2State& state, Draws& draws) {
    drawFunctions(state, draws);
    solve(state);
}

void solve(Vaddi2State& s) {
    const std::vector<Start> starts = startsOf(s);
    // A level function ends the sum.
    const auto level =
        std::find_if(starts.begin(), starts.end(), [](const Start& start) { return start.isLevel; });
    const auto end = level == starts.end() ? level : level + 1;
    s.segmentCount = static_cast<int>(end - starts.begin());
    fillTable(s, starts);
    joinRows(s);
    for (Vaddi2State::Column& column : s.tableQ) {
        roundColumn(column);
    }
    roundColumn(s.tableQtotal);
    for (std::size_t row = 0; row < static_cast<std::size_t>(s.segmentCount); ++row) {
        s.segments[row] = rounded(s.segments[row]);
    }
}

std::vector<AnswerField> answerFields(const Vaddi2State& s) {
    std::vector<AnswerField> fields;
    for (int segment = 0; segment < s.segmentCount; ++segment) {
        const int row = rowOf(segment, s.segmentCount);
        fields.push_back({row, Slot::Slope, {s.segments[static_cast<std::size_t>(segment)].slope}});
        fields.push_back({row, Slot::Intercept, {s.segments[static_cast<std::size_t>(segment)].intercept}});
        if (segment > 0) {
            fields.push_back({row, Slot::Start, {s.startOf(segment).number()}});
        } else if (s.segmentCount == 1) {
            fields.push_back({row, Slot::Start, {0, Rule::Exactly}});
        }
        if (segment + 1 < s.segmentCount || s.upperEndAsked()) {
            fields.push_back({row, Slot::End, {s.endOf(segment).number()}});
        }
    }
    return fields;
}

Judgement judge(const Vaddi2State& s, const std::vector<double>& typed) {
    return judge(answerFields(s), typed);
}

std::array<std::string, 2> pathTexts(const Vaddi2State& s) {
    return pathTexts(s.tableQtotal, s.tableP, s.segmentCount);
}

}  // namespace tavrune
