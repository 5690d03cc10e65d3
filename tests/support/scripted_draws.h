#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <source_location>
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

#include "numeric/draws.h"

namespace tavrune::test {

/// Draws in their order. Scripts are joined by +.
struct Script : std::vector<float> {
    using std::vector<float>::vector;
};

[[nodiscard]] inline Script operator+(Script one, const Script& other) {
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

/// Draws that are written down beforehand. Asking for more than there are fails the test; a generator that
/// goes on for long without finding an exercise in what it then gets is stopped by a throw.
class ScriptedDraws final : public Draws {
public:
    ScriptedDraws() = default;
    ScriptedDraws(std::initializer_list<float> script) : script_(script) {}
    explicit ScriptedDraws(std::vector<float> script) : script_(std::move(script)) {}

    void append(std::initializer_list<float> more) { script_.insert(script_.end(), more); }
    void append(const std::vector<float>& more) { script_.insert(script_.end(), more.begin(), more.end()); }

    float Rnd() override {
        if (next_ < script_.size()) {
            return script_[next_++];
        }
        if (++drawnTooOften_ == 1) {
            ADD_FAILURE() << "the script of draws is used up";
        }
        if (drawnTooOften_ > 10'000) {
            throw std::out_of_range("the script of draws is used up");
        }
        return overrun_.Rnd();
    }

    void Randomize() override { ++randomized_; }

    [[nodiscard]] std::size_t used() const { return next_; }
    [[nodiscard]] bool isUsedUp() const { return next_ == script_.size(); }
    [[nodiscard]] int randomized() const { return randomized_; }

private:
    std::vector<float> script_;
    std::size_t next_ = 0;
    int randomized_ = 0;
    SeededDraws overrun_{1};
    int drawnTooOften_ = 0;
};

/// How often a generator is to reseed until an exercise stands.
struct Reseeds {
    int times;
};

/// The exercise that a script makes of an untouched state, by just its draws and, where they are told, just
/// so many reseedings.
template <class State>
[[nodiscard]] State exerciseOf(const std::vector<float>& script, std::optional<Reseeds> reseeds = {},
                               const std::source_location& where = std::source_location::current()) {
    ScriptedDraws draws(script);
    State state;
    newExercise(state, draws);
    EXPECT_TRUE(draws.isUsedUp()) << where.file_name() << ":" << where.line();
    if (reseeds) {
        EXPECT_EQ(draws.randomized(), reseeds->times) << where.file_name() << ":" << where.line();
    }
    return state;
}

/// A draw that falls into cell `cell` of `cells` equal ones: Int(cellOf(3, 20) * 20) is 3.
[[nodiscard]] constexpr float cellOf(int cell, int cells) {
    return (static_cast<float>(cell) + 0.5F) / static_cast<float>(cells);
}

/// The largest draw there is: 1 - 2^-24.
inline constexpr float kLargestDraw = 1 - 1.0F / (1U << 24U);

}  // namespace tavrune::test
