#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "support/expect.h"
#include "support/strokes.h"

namespace tavrune::test {

/// How the axes of a frame round a graph are marked, in the units of the frame.
enum class Ticks {
    /// Ten by ten, of a given function.
    Square,
    /// To 10 by 20, of the sum by prices.
    Tall,
    /// To 20 by 10, of the sum by quantities.
    Wide,
};

/// The strokes of a frame; running sums, like the strokes themselves.
[[nodiscard]] inline std::vector<Stroke> ticksOf(const GraphBox& frame, Ticks ticks) {
    const StrokesIn in{frame.scale()};
    std::vector<Stroke> strokes;
    for (double t = 0.2; t <= 8.5; t += 0.8) {
        if (ticks == Ticks::Wide) {
            strokes.push_back(in.line(0.8, t + 0.8, 1, t + 0.8));
            continue;
        }
        const double foot = ticks == Ticks::Square ? 8.4 : 19.75;
        strokes.push_back(in.line(t + 0.8, ticks == Ticks::Square ? 8.2 : 19.5, t + 0.8, foot));
        if (ticks == Ticks::Square) {
            strokes.push_back(in.line(0.8, t, 1, t));
        }
    }
    for (double t = 1; ticks == Ticks::Tall && t <= 19.6; t += 0.925) {
        strokes.push_back(in.line(0.8, t, 1, t));
    }
    for (double t = 1; ticks == Ticks::Wide && t <= 19.1; t += 0.9) {
        strokes.push_back(in.line(t, 9, t, 9.2));
    }
    EXPECT_EQ(strokes.size(), ticks == Ticks::Square ? 22U : 32U);
    return strokes;
}

/// The frames of the given functions, and the one of the sum, have their ticks and nothing else.
inline void expectTicks(const Student& form, std::initializer_list<const char*> functions, Ticks ofSum,
                        const Where& where = Where::current()) {
    const testing::ScopedTrace asked(where.file_name(), static_cast<int>(where.line()), "asked here");
    for (const char* name : functions) {
        const auto& frame = form.find<GraphBox>(name);
        EXPECT_EQ(frame.strokes(), ticksOf(frame, Ticks::Square)) << name;
    }
    const auto& frame = form.find<GraphBox>("resultGraphFrame");
    EXPECT_EQ(frame.strokes(), ticksOf(frame, ofSum));
}

}  // namespace tavrune::test
