#pragma once

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace tavrune {

/// What an exercise says of an answer.
struct Judgement {
    /// Of each typed value, in the order in which it is handed in, whether it is right. A wrong try marks
    /// those that are not.
    std::vector<bool> isRight;
    /// Mostly where all are right; an exercise may ask for less, or for more.
    bool isSolved = false;

    bool operator==(const Judgement&) const = default;
};

/// The common case: solved where all are right.
[[nodiscard]] inline Judgement solvedIfAllRight(std::vector<bool> isRight) {
    const bool isSolved = std::find(isRight.begin(), isRight.end(), false) == isRight.end();
    return {std::move(isRight), isSolved};
}

/// An answer that begins with the choice of an option.
template <class Option>
struct ChosenAnswer {
    /// Nothing as long as none is chosen.
    std::optional<Option> chosen;
    /// In the order of the boxes, the hidden ones too.
    std::vector<double> typed;
};

}  // namespace tavrune
