#pragma once

#include <QString>

namespace tavrune {

/// A line of text as a Danish voice is to say it: the signs of mathematics become words, "-2Q²+3" is "minus 2
/// Q i anden plus 3". A bracket is said where the mathematics would be another without it, and left out round
/// a point or a single number. Prose stays as it is, hyphens and brackets too, but for runs of blanks, which
/// become one. Any text will do.
[[nodiscard]] QString spoken(const QString& text);

}  // namespace tavrune
