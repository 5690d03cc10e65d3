#pragma once

#include <cmath>
#include <exception>
#include <type_traits>

namespace tavrune {

/// A failure of the arithmetic. It ends the program: whoever catches it hands it to the application object,
/// which tells the user and exits with status 1.
class ArithmeticFailure : public std::exception {
public:
    enum class Kind { DivisionByZero, Overflow, TypeMismatch };

    explicit ArithmeticFailure(Kind kind) : kind_(kind) {}

    [[nodiscard]] Kind kind() const { return kind_; }

    /// Returns an English text for debuggers; `messageFor` has what the user reads.
    [[nodiscard]] const char* what() const noexcept override;

private:
    Kind kind_;
};

/// Returns a / b: a double if a or b is one, otherwise a single. Throws ArithmeticFailure if b is 0: Overflow
/// for 0/0, otherwise DivisionByZero. A quotient that is too large for its type is an infinity.
template <class A, class B>
[[nodiscard]] auto divide(A a, B b) {
    using Quotient = std::common_type_t<A, B>;
    static_assert(std::is_floating_point_v<Quotient>, "whole numbers divide as doubles here");
    if (b == 0) {
        throw ArithmeticFailure(a == 0 ? ArithmeticFailure::Kind::Overflow
                                       : ArithmeticFailure::Kind::DivisionByZero);
    }
    return static_cast<Quotient>(a) / static_cast<Quotient>(b);
}

/// Returns x to the power of n, always a double. power(0.5F, 2) -> 0.25
[[nodiscard]] inline double power(double x, int n) { return std::pow(x, n); }

/// Returns the largest whole number not above x, in the type of x. Int(-0.5) -> -1
[[nodiscard]] inline float Int(float x) { return std::floor(x); }
[[nodiscard]] inline double Int(double x) { return std::floor(x); }

/// Returns x without its fraction, in the type of x. Fix(-5.9) -> -5
/// The result can be a negative zero, which equals 0 and is shown as "0".
[[nodiscard]] inline float Fix(float x) { return std::trunc(x); }
[[nodiscard]] inline double Fix(double x) { return std::trunc(x); }

/// Returns whether `x` is a multiple of `divisor`. Precondition: both are whole, and `divisor` is not 0.
[[nodiscard]] inline bool isDivisible(double x, double divisor) { return std::fmod(x, divisor) == 0; }

}  // namespace tavrune
