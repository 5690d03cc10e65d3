#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "numeric/draws.h"
#include "topics/addition/addition_model.h"

namespace tavrune {

/// Stands for the end of a function that never comes down to P = 0.
inline constexpr double kNeverEnds = 100;

/// The sum of two functions by their prices, as it is asked for: segments from Q = 0 on, each up to the next
/// break.
struct VerticalSum {
    std::vector<Piece> segments;
    /// Where one segment gives way to the next: one fewer than there are segments.
    std::vector<double> breaks;
    /// The last segment ends at `upperEnd`, and that is asked for.
    bool upperEndAsked = false;
    double upperEnd = 0;

    [[nodiscard]] std::size_t last() const { return segments.size() - 1; }
    [[nodiscard]] int rowOfSegment(std::size_t segment) const {
        return rowOf(static_cast<int>(segment), static_cast<int>(segments.size()));
    }
};

/// 0..-4 where it is to fall, otherwise 0..4.
[[nodiscard]] double drawSlope(Draws& draws, bool isFalling);

/// Where a sloping line meets P = 0, on either side of Q = 0.
[[nodiscard]] double zeroOf(const Piece& piece);

[[nodiscard]] Piece addedUp(const Piece& one, const Piece& other);

/// The fields that are judged: slopes and intercepts exactly, breaks by the chained comparison, the upper end
/// with both bounds. A lone segment begins at just 0.
[[nodiscard]] std::vector<AnswerField> answerFields(const VerticalSum& sum);

/// "-3Q + 4": plain numbers, negative ones too.
[[nodiscard]] std::string termsText(const Piece& piece);

/// "(-3 - 1)Q + (4 + 2) = -4Q + 6": the sum of two functions, worked out.
[[nodiscard]] std::string workedSumText(const Piece& one, const Piece& other);

/// "0<Q", "0<Q<1.33", "1.33<Q", "1.33<Q<2": where a segment is the sum, by the name of the quantity.
[[nodiscard]] std::string rangeText(const VerticalSum& sum, std::size_t segment, const std::string& quantity);

}  // namespace tavrune
