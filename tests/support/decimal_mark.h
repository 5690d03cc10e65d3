#pragma once

#include <string>

#include "numeric/text.h"

namespace tavrune::test {

/// Numbers are written with this mark while it lives.
class DecimalMark {
public:
    explicit DecimalMark(const char* mark) : before_(decimalMark()) { setDecimalMark(mark); }
    ~DecimalMark() { setDecimalMark(before_); }
    DecimalMark(const DecimalMark&) = delete;
    DecimalMark& operator=(const DecimalMark&) = delete;

private:
    std::string before_;
};

/// How a half was written as the program began, before the tests have set a mark of their own.
inline std::string& halfAtStart() {
    static std::string text;
    return text;
}

}  // namespace tavrune::test
