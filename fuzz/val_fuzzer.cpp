// `Val` against another reading of the same grammar, and against what `NumberText` writes.

#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "numeric/text.h"

namespace {

[[noreturn]] void complain(const char* what, const std::string& text, double expected, double actual) {
    std::fprintf(stderr, "%s: \"%.200s\" should be %.17g and is %.17g\n", what, text.c_str(), expected,
                 actual);
    std::abort();
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Without blanks, the longest beginning that the C library takes for a decimal number.
double otherReading(const std::string& text) {
    std::string number;
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\n') {
            number += c;
        }
    }
    std::size_t end = 0;
    const auto pass = [&](auto isPart) {
        const std::size_t from = end;
        while (end < number.size() && isPart(number[end])) {
            ++end;
        }
        return end - from;
    };
    const auto passOne = [&](const char* either) {
        const bool isThere =
            end < number.size() && std::strchr(either, number[end]) != nullptr && number[end] != '\0';
        end += isThere ? 1 : 0;
        return isThere;
    };
    passOne("+-");
    std::size_t digits = pass(isDigit);
    if (passOne(".")) {
        digits += pass(isDigit);
    }
    if (digits == 0) {
        return 0;
    }
    const std::size_t significand = end;
    if (passOne("eE")) {
        passOne("+-");
        if (pass(isDigit) == 0) {
            end = significand;
        }
    }
    const double value = std::strtod(number.substr(0, end).c_str(), nullptr);
    return std::isinf(value) ? std::copysign(tavrune::kLargestTyped, value) : value;
}

void checkReading(const std::string& text) {
    const double actual = tavrune::Val(text);
    const double expected = otherReading(text);
    // A zero has no sign here.
    if (actual != expected || std::isnan(actual) || (actual == 0 && std::signbit(actual))) {
        complain("Val", text, expected, actual);
    }
}

/// What is written can be read back, to the digits that are written.
void checkWriting(double x) {
    if (!std::isfinite(x)) {
        return;
    }
    const std::string text = tavrune::NumberText(x);
    const double read = tavrune::Val(text);
    // The largest numbers may be rounded up beyond what there is.
    if (std::abs(read - x) > 1e-14 * std::abs(x) && std::abs(x) > 1e-300) {
        complain("NumberText", text, x, read);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    checkReading(std::string(bytes, bytes + size));
    double x = 0;
    if (size >= sizeof x) {
        std::memcpy(&x, bytes, sizeof x);
        checkWriting(x);
    }
    return 0;
}
