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
    /// The quantities at which one segment ends and the next begins, one fewer than there are segments.
    std::vector<double> breaks;
    /// The last segment ends at `upperEnd`, and that is asked for.
    bool upperEndAsked{};
    double upperEnd{};

    [[nodiscard]] std::size_t last() const { return segments.size() - 1; }
    [[nodiscard]] int rowOfSegment(std::size_t segment) const {
        return rowOf(static_cast<int>(segment), static_cast<int>(segments.size()));
    }
};

/// Draws a slope: 0..-4 if it is to fall, otherwise 0..4.
[[nodiscard]] double drawSlope(Draws& draws, bool isFalling);

/// Draws a piece with an intercept of 0..4. It falls where its first draw is below `fallingShare`.
[[nodiscard]] Piece drawPieceFromAxis(Draws& draws, float fallingShare);

/// Returns where the line of a piece meets P = 0, on either side of Q = 0. Throws ArithmeticFailure for a
/// level piece.
[[nodiscard]] double zeroOf(const Piece& piece);

/// Returns the sum by prices of two pieces.
[[nodiscard]] Piece addedUp(const Piece& one, const Piece& other);

/// Returns the fields that are judged: slopes and intercepts exactly, breaks by the chained comparison, the
/// upper end with both bounds. The start of a lone segment has to be just 0.
[[nodiscard]] std::vector<AnswerField> answerFields(const VerticalSum& sum);

/// Returns "-3Q + 4", or "-3Q + -4" for a negative intercept.
[[nodiscard]] std::string termsText(const Piece& piece);

/// Returns the sum of two functions worked out: "(-3 - 1)Q + (4 + 2) = -4Q + 6".
[[nodiscard]] std::string workedSumText(const Piece& one, const Piece& other);

/// Returns where a segment is the sum, with the name of the quantity: "0<Q", "0<Q<1.33", "1.33<Q",
/// "1.33<Q<2".
[[nodiscard]] std::string rangeText(const VerticalSum& sum, std::size_t segment, const std::string& quantity);

}  // namespace tavrune
