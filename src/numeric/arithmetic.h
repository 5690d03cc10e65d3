#pragma once

#include <cmath>
#include <exception>
#include <type_traits>

namespace tavrune {

/// A failure of the arithmetic that ends the program: nothing catches it but to hand it to the application
/// object, which tells the user and leaves with exit status 1.
class ArithmeticFailure : public std::exception {
public:
    enum class Kind { DivisionByZero, Overflow, TypeMismatch };

    explicit ArithmeticFailure(Kind kind) : kind_(kind) {}

    [[nodiscard]] Kind kind() const { return kind_; }

    /// English, for a debugger; what the user is told is no matter of the numbers.
    [[nodiscard]] const char* what() const noexcept override;

private:
    Kind kind_;
};

/// a / b: a single of two singles or of a single and a whole literal, a double with a double involved. Throws
/// ArithmeticFailure where b is 0: Overflow for 0/0, otherwise DivisionByZero. A quotient beyond the largest
/// number is an infinity.
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

/// x to the n, always a double. power(0.5F, 2) -> 0.25
[[nodiscard]] inline double power(double x, int n) { return std::pow(x, n); }

/// The largest whole number not above x, in the kind of x. Int(-0.5) -> -1
[[nodiscard]] inline float Int(float x) { return std::floor(x); }
[[nodiscard]] inline double Int(double x) { return std::floor(x); }

/// x with its fraction cut off, towards zero, in the kind of x. Fix(-5.9) -> -5
/// The result may be a negative zero, which compares and prints as 0.
[[nodiscard]] inline float Fix(float x) { return std::trunc(x); }
[[nodiscard]] inline double Fix(double x) { return std::trunc(x); }

/// True if `divisor` divides `x` without rest. Both are whole; x may be negative, divisor is not 0.
[[nodiscard]] inline bool isDivisible(double x, double divisor) { return std::fmod(x, divisor) == 0; }

}  // namespace tavrune
