#pragma once

#include <compare>
#include <cstdint>
#include <numeric>

namespace tavrune::test {

/// A fraction, exact and in lowest terms. Numerators and denominators stay small enough to be multiplied.
class Exact {
public:
    Exact(std::int64_t n = 0, std::int64_t d = 1) {
        const std::int64_t divisor = std::gcd(n, d) * (d < 0 ? -1 : 1);
        n_ = n / divisor;
        d_ = d / divisor;
    }

    friend Exact operator+(Exact a, Exact b) { return {a.n_ * b.d_ + b.n_ * a.d_, a.d_ * b.d_}; }
    friend Exact operator-(Exact a, Exact b) { return {a.n_ * b.d_ - b.n_ * a.d_, a.d_ * b.d_}; }
    friend Exact operator*(Exact a, Exact b) { return {a.n_ * b.n_, a.d_ * b.d_}; }
    friend Exact operator/(Exact a, Exact b) { return {a.n_ * b.d_, a.d_ * b.n_}; }
    friend bool operator==(Exact a, Exact b) { return a.n_ == b.n_ && a.d_ == b.d_; }
    friend std::strong_ordering operator<=>(Exact a, Exact b) { return a.n_ * b.d_ <=> b.n_ * a.d_; }

    [[nodiscard]] double value() const { return static_cast<double>(n_) / static_cast<double>(d_); }

private:
    std::int64_t n_ = 0;
    std::int64_t d_ = 1;
};

}  // namespace tavrune::test
