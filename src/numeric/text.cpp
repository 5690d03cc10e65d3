#include "numeric/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>

#include "numeric/arithmetic.h"

namespace tavrune {
namespace {

// The double nearest to a number never depends on more digits than this, except on whether any of the further
// ones is not 0. One digit more holds that.
constexpr std::size_t kDigitsKept = 800;

// No text has so many zeros that they could make up for such an exponent, and sums with it do not overflow.
constexpr long long kExponentLimit = 1LL << 58U;

constexpr bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n'; }
constexpr bool isDigit(char c) { return '0' <= c && c <= '9'; }

/// Reads a text character by character and skips blanks.
class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) { skipBlanks(); }

    [[nodiscard]] char peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }
    [[nodiscard]] bool atDigit() const { return at_ < text_.size() && isDigit(text_[at_]); }

    void next() {
        ++at_;
        skipBlanks();
    }

    bool take(char c) {
        if (at_ >= text_.size() || text_[at_] != c) {
            return false;
        }
        next();
        return true;
    }

private:
    void skipBlanks() {
        while (at_ < text_.size() && isBlank(text_[at_])) {
            ++at_;
        }
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

/// The digits without leading zeros: the number is 0.d1d2d3... times ten to the `power`.
struct Significand {
    std::string digits;
    long long power = 0;

    void addWhole(char digit) {
        if (!digits.empty() || digit != '0') {
            ++power;
            keep(digit);
        }
    }

    void addFraction(char digit) {
        if (digits.empty() && digit == '0') {
            --power;
        } else {
            keep(digit);
        }
    }

private:
    void keep(char digit) {
        if (digits.size() < kDigitsKept) {
            digits += digit;
        } else if (digits.size() == kDigitsKept && digit != '0') {
            digits += '1';
        }
    }
};

long long readExponent(Reader& reader) {
    const bool negative = reader.peek() == '-';
    if (negative || reader.peek() == '+') {
        reader.next();
    }
    long long exponent = 0;
    while (reader.atDigit()) {
        exponent = std::min(exponent * 10 + (reader.peek() - '0'), kExponentLimit);
        reader.next();
    }
    return negative ? -exponent : exponent;
}

double valueOf(const Significand& number, long long exponent) {
    if (number.digits.empty()) {
        return 0;
    }
    const long long power = number.power + exponent;
    const std::string text = "." + number.digits + "e" + std::to_string(power);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        return power > 0 ? kLargestTyped : 0;
    }
    return value;
}

std::string& mark() {
    static std::string text = ".";
    return text;
}

template <class Number>
std::string generalText(Number x, int digits) {
    if (x == 0) {
        return "0";
    }
    std::array<char, 32> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), x, std::chars_format::general, digits);
    std::string text(buffer.data(), result.ptr);
    if (const auto e = text.find('e'); e != std::string::npos) {
        text[e] = 'E';
    }
    if (const auto point = text.find('.'); point != std::string::npos) {
        text.replace(point, 1, decimalMark());
    }
    return text;
}

}  // namespace

double Val(std::string_view text) {
    Reader reader(text);
    const bool negative = reader.peek() == '-';
    if (negative || reader.peek() == '+') {
        reader.next();
    }

    Significand number;
    bool anyDigit = false;
    for (; reader.atDigit(); reader.next()) {
        number.addWhole(reader.peek());
        anyDigit = true;
    }
    if (reader.take('.')) {
        for (; reader.atDigit(); reader.next()) {
            number.addFraction(reader.peek());
            anyDigit = true;
        }
    }
    const long long exponent = anyDigit && (reader.take('e') || reader.take('E')) ? readExponent(reader) : 0;
    const double size = valueOf(number, exponent);
    return negative && size != 0 ? -size : size;
}

void setDecimalMark(std::string_view newMark) { mark() = newMark; }

const std::string& decimalMark() { return mark(); }

std::string NumberText(float x) { return generalText(x, 7); }
std::string NumberText(double x) { return generalText(x, 15); }
std::string NumberText(int x) { return std::to_string(x); }

std::string fixedPointText(double x) {
    const std::string whole = std::to_string(static_cast<long long>(Int(x)));
    return x == Int(x) ? whole : whole + ".5";
}

}  // namespace tavrune
