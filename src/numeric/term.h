#pragma once

namespace tavrune {

/// What a pattern does with a drawn coefficient: gives it a sign, or leaves the term out.
enum class Term { Minus = -1, Absent = 0, Plus = 1 };

/// Short names for the tables of patterns.
namespace signs {
inline constexpr Term M = Term::Minus;
inline constexpr Term O = Term::Absent;
inline constexpr Term P = Term::Plus;
}  // namespace signs

/// The signs of the terms of aQ² + bQ + c.
struct Pattern {
    Term a;
    Term b;
    Term c;
};

/// Returns `size` with the sign of the term, or 0 if the term is absent.
[[nodiscard]] constexpr float withSign(Term term, float size) { return static_cast<float>(term) * size; }

}  // namespace tavrune
