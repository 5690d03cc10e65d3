#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "numeric/text.h"
#include "topics/economics/afsaet_exercise.h"

/// Reads back what the student is told of a demand function, with the point as decimal mark, and solves it.
namespace tavrune::test::afsaet {

/// Enough to fix a line: two facts of any kind.
struct Facts {
    std::vector<std::pair<double, double>> points{};  // P; Q
    std::optional<double> slope{};
    std::optional<double> b{};     // from an elasticity at a price: Ep = P/(P - b)
    std::optional<double> Qmax{};  // from an elasticity at a quantity: Ep = (Q - Qmax)/Q

    bool operator==(const Facts&) const = default;
};

inline void read(const std::string& fact, Facts& facts) {
    const auto valueFrom = [&fact](std::size_t at) { return Val(fact.substr(at)); };
    const std::size_t equals = fact.find('=');
    if (fact.front() == '(') {
        const std::size_t open = fact.find('(', equals);
        facts.points.emplace_back(valueFrom(open + 1), valueFrom(fact.find(';', open) + 1));
    } else if (fact.front() == 'H') {
        facts.slope = valueFrom(equals + 1);
    } else {
        const double Ep = valueFrom(equals + 1);
        const double at = valueFrom(fact.rfind('=') + 1);
        if (fact.find('P', equals) != std::string::npos) {
            facts.b = at - at / Ep;
        } else {
            facts.Qmax = at * (1 - Ep);
        }
    }
}

[[nodiscard]] inline Facts factsOf(const AfsaetTask& task) {
    Facts facts;
    read(task.firstFact, facts);
    read(task.secondFact, facts);
    return facts;
}

/// Slope and intercept of the one line that the facts allow.
[[nodiscard]] inline std::pair<double, double> solve(const Facts& facts) {
    if (facts.b && facts.Qmax) {
        return {-*facts.b / *facts.Qmax, *facts.b};
    }
    if (facts.slope && facts.b) {
        return {*facts.slope, *facts.b};
    }
    if (facts.slope && facts.Qmax) {
        return {*facts.slope, -*facts.slope * *facts.Qmax};
    }
    const auto [P, Q] = facts.points.at(0);
    if (facts.slope) {
        return {*facts.slope, P - *facts.slope * Q};
    }
    if (facts.b) {
        return {(P - *facts.b) / Q, *facts.b};
    }
    if (facts.Qmax) {
        const double a = P / (Q - *facts.Qmax);
        return {a, -a * *facts.Qmax};
    }
    const auto [P2, Q2] = facts.points.at(1);
    const double a = (P2 - P) / (Q2 - Q);
    return {a, P - a * Q};
}

/// The four numbers that the task determines, unrounded.
[[nodiscard]] inline AfsaetAnswer solved(const AfsaetTask& task) {
    const auto [a, b] = solve(factsOf(task));
    const std::size_t mark = task.range.find('<');
    const double lower = Val(task.range.substr(task.range.rfind(' ', mark) + 1));
    const double upper = Val(task.range.substr(mark + 3));
    return task.range.at(mark + 1) == 'P' ? AfsaetAnswer{a, b, (upper - b) / a, (lower - b) / a}
                                          : AfsaetAnswer{a, b, lower, upper};
}

/// Reads a side of an equation as arithmetic: numbers of at most 2 decimals, + - * /, brackets. A text that
/// is none fails the test by a throw.
class SideReader {
public:
    static double valueOf(std::string_view text) {
        SideReader reader(text);
        const double value = reader.sum();
        if (!reader.rest_.empty()) {
            throw std::invalid_argument("no arithmetic: " + std::string(text));
        }
        return value;
    }

private:
    explicit SideReader(std::string_view text) : rest_(text) { skipBlanks(); }

    void skipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size())); }

    bool take(char sign) {
        if (rest_.empty() || rest_.front() != sign) {
            return false;
        }
        rest_.remove_prefix(1);
        skipBlanks();
        return true;
    }

    double sum() {
        double value = product();
        while (true) {
            if (take('+')) {
                value += product();
            } else if (take('-')) {
                value -= product();
            } else {
                return value;
            }
        }
    }

    double product() {
        double value = factor();
        while (true) {
            if (take('*')) {
                value *= factor();
            } else if (take('/')) {
                value /= factor();
            } else {
                return value;
            }
        }
    }

    double factor() {
        if (take('-')) {
            return -factor();
        }
        if (take('(')) {
            const double value = sum();
            if (!take(')')) {
                throw std::invalid_argument("a bracket stays open");
            }
            return value;
        }
        const std::size_t digits = std::min(rest_.find_first_not_of("0123456789."), rest_.size());
        const std::string_view number = rest_.substr(0, digits);
        if (number.empty() || number.size() - std::min(number.find('.'), number.size()) > 3) {
            throw std::invalid_argument("no number of 2 decimals: " + std::string(rest_));
        }
        rest_.remove_prefix(digits);
        skipBlanks();
        return Val(number);
    }

    std::string_view rest_;
};

/// What all sides of a worked step come to, but for its name, in their order.
[[nodiscard]] inline std::vector<double> sidesOf(const AfsaetStep& step) {
    std::vector<double> values;
    if (!step.denominator.empty()) {
        values.push_back(SideReader::valueOf(step.numerator) / SideReader::valueOf(step.denominator));
    }
    for (std::size_t equals = step.text.find('='); equals != std::string::npos;) {
        const std::size_t next = step.text.find('=', equals + 1);
        values.push_back(SideReader::valueOf(step.text.substr(equals + 1, next - equals - 1)));
        equals = next;
    }
    return values;
}

}  // namespace tavrune::test::afsaet
