#include "numeric/arithmetic.h"

namespace tavrune {

const char* ArithmeticFailure::what() const noexcept {
    switch (kind_) {
        case Kind::DivisionByZero:
            return "division by zero";
        case Kind::Overflow:
            return "overflow";
        case Kind::TypeMismatch:
            return "type mismatch";
    }
    return "arithmetic failure";
}

}  // namespace tavrune
