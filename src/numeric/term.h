#pragma once

namespace tavrune {

/// What a pattern makes of a drawn coefficient: the sign that it gets, or nothing.
enum class Term { Minus = -1, Absent = 0, Plus = 1 };

/// The drawn size with the sign of the term, 0 for an absent one.
[[nodiscard]] constexpr float withSign(Term term, float size) { return static_cast<float>(term) * size; }

}  // namespace tavrune
