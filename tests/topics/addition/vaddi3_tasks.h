#pragma once

#include <cmath>

#include "support/scripted_draws.h"
#include "topics/addition/vaddi3_exercise.h"

namespace tavrune::test {

/// The two functions of an exercise, as they are drawn.
struct Vaddi3Task {
    KinkKind kind;
    int intercept1;
    float slopeBefore;
    int kink;
    float slopeAfter;
    /// The draw of the second part's intercept at a jump; a kink has none.
    float secondDraw;
    int slope2;
    int intercept2;
};

/// True if the first part is flat and the second steep, not the other way round.
[[nodiscard]] inline bool startsFlat(KinkKind kind) {
    return kind == KinkKind::JumpDown || kind == KinkKind::Steeper;
}

[[nodiscard]] inline float drawOfFlatSlope(float slope) {
    return cellOf(static_cast<int>(std::lround(slope * -10)) - 1, 8);
}

/// The draws of the first part alone: intercept, slope, kink.
[[nodiscard]] inline Script firstPartOf(const Vaddi3Task& t) {
    const float zero = static_cast<float>(-t.intercept1) / t.slopeBefore;
    return {
        cellOf(t.intercept1 - 5, 5),
        startsFlat(t.kind) ? drawOfFlatSlope(t.slopeBefore) : cellOf(static_cast<int>(-t.slopeBefore) - 3, 3),
        (static_cast<float>(t.kink) - 0.5F) / (zero - 1)};
}

/// The draws of the second part alone.
[[nodiscard]] inline Script secondPartOf(const Vaddi3Task& t) {
    const bool isJump = t.kind == KinkKind::JumpDown || t.kind == KinkKind::JumpUp;
    Script draws{startsFlat(t.kind) ? cellOf(static_cast<int>(-t.slopeAfter) - 1, 4)
                                    : drawOfFlatSlope(t.slopeAfter)};
    return isJump ? draws + Script{t.secondDraw} : draws;
}

[[nodiscard]] inline Script kindOf(KinkKind kind) { return {cellOf(static_cast<int>(kind), 4)}; }

[[nodiscard]] inline Script secondFunctionOf(const Vaddi3Task& t) {
    return {cellOf(-t.slope2, 5), cellOf(t.intercept2 - 5, 5)};
}

[[nodiscard]] inline Script scriptOf(const Vaddi3Task& t) {
    return kindOf(t.kind) + firstPartOf(t) + secondPartOf(t) + secondFunctionOf(t);
}

// One exercise of each number of segments, and what else the tests ask for by name.
/// P=0Q+9 for 0<Q.
inline constexpr Vaddi3Task kOneSegment{KinkKind::JumpDown, 8, -0.5F, 4, -2, 0.25F, 0, 9};
/// P=-0.5Q+9 for 0<Q<4; P=-1.33Q+10.33 for 4<Q<7.75.
inline constexpr Vaddi3Task kTwoSegments{KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, -4, 5};
/// P=-0.4Q+9 for 0<Q<5; P=-2Q+17 for 5<Q<6; P=-1Q+11 for 6<Q<11.
inline constexpr Vaddi3Task kThreeSegments{KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, -2, 9};
/// P=-3Q+9 for 0<Q<1.33; P=-1.2Q+6.6 for 1.33<Q<3; P=-0.5Q+7 for 2<Q<4; P=-0.4Q+6.6 for 4<Q<16.5.
inline constexpr Vaddi3Task kFourSegments{KinkKind::JumpUp, 9, -3, 2, -0.5F, 0.5F, -2, 5};
/// P=-0.5Q+9 for 0<Q<4; P=0Q+6 for 4<Q.
inline constexpr Vaddi3Task kTwoOverALevel{KinkKind::JumpDown, 9, -0.5F, 4, -2, 0.25F, 0, 6};
/// P=-3Q+9 for 0<Q<1; P=-0.4Q+8 for 1<Q<7.5; P=0Q+5 for 7.5<Q.
inline constexpr Vaddi3Task kThreeOverALevel{KinkKind::JumpUp, 9, -3, 1, -0.4F, 0.6F, 0, 5};
/// P=-0.8Q+6 for 0<Q<1.25; P=-0.57Q+5.71 for 1.25<Q<6.5; P=-1Q+8.5 for 6.5<Q<8.5.
inline constexpr Vaddi3Task kSteeper{KinkKind::Steeper, 6, -0.8F, 5, -2, 0, -2, 5};
/// P=-4Q+9 for 0<Q<1; P=-0.4Q+5.4 for 1<Q<13.5. The kink stands at the start of function 2.
inline constexpr Vaddi3Task kFlatter{KinkKind::Flatter, 9, -4, 1, -0.5F, 0, -2, 5};

}  // namespace tavrune::test
