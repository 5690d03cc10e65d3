#pragma once

#include <cmath>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tavrune::test {

/// What the letters of a composed text stand for.
struct IntegLetters {
    double Q = 0;
    double w = 0;
    double v = 0;
};

/// Reads a composed text back as arithmetic: whole numbers, letters, + - · /, products without a sign, raised
/// 2 and 3, brackets, blanks anywhere. A text that is none fails the test by a throw.
class IntegReader {
public:
    static double valueOf(std::string_view text, const IntegLetters& letters = {}) {
        IntegReader reader(text, letters);
        const double value = reader.sum();
        if (!reader.rest_.empty()) {
            throw std::invalid_argument("no arithmetic: " + std::string(text));
        }
        return value;
    }

private:
    IntegReader(std::string_view text, const IntegLetters& letters) : rest_(text), letters_(letters) {
        skipBlanks();
    }

    void skipBlanks() {
        while (!rest_.empty() && rest_.front() == ' ') {
            rest_.remove_prefix(1);
        }
    }

    bool take(std::string_view token) {
        if (rest_.substr(0, token.size()) != token) {
            return false;
        }
        rest_.remove_prefix(token.size());
        skipBlanks();
        return true;
    }

    double sum() {
        double value = take("-") ? -product() : product();
        while (true) {
            if (take("+")) {
                value += product();
            } else if (take("-")) {
                value -= product();
            } else {
                return value;
            }
        }
    }

    double product() {
        double value = power();
        while (true) {
            if (take("·")) {
                value *= power();
            } else if (take("/")) {
                value /= power();
            } else if (!rest_.empty() && rest_.front() == 'Q') {
                value *= power();
            } else {
                return value;
            }
        }
    }

    double power() {
        const double base = atom();
        if (take("²")) {
            return base * base;
        }
        return take("³") ? base * base * base : base;
    }

    double atom() {
        if (take("(")) {
            const double value = sum();
            if (!take(")")) {
                throw std::invalid_argument("no closing bracket");
            }
            return value;
        }
        for (const auto& [letter, value] :
             {std::pair{"Q", letters_.Q}, std::pair{"w", letters_.w}, std::pair{"v", letters_.v}}) {
            if (take(letter)) {
                return value;
            }
        }
        return number();
    }

    double number() {
        std::size_t digits = 0;
        double value = 0;
        while (digits < rest_.size() && rest_[digits] >= '0' && rest_[digits] <= '9') {
            value = value * 10 + (rest_[digits++] - '0');
        }
        if (digits == 0) {
            throw std::invalid_argument("no number at " + std::string(rest_));
        }
        rest_.remove_prefix(digits);
        skipBlanks();
        return value;
    }

    std::string_view rest_;
    IntegLetters letters_;
};

}  // namespace tavrune::test
