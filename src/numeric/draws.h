#pragma once

#include <cstdint>
#include <random>

namespace tavrune {

/// The random numbers that exercises are made from. The program has one source; tests use a script of draws
/// or a seeded stream.
class Draws {
public:
    Draws() = default;
    Draws(const Draws&) = delete;
    Draws& operator=(const Draws&) = delete;
    virtual ~Draws() = default;

    /// Returns the next draw u, 0 <= u < 1: each of the 2^24 multiples of 2^-24 is as likely as any other.
    virtual float Rnd() = 0;

    /// Reseeds from the clock, so that no two runs are alike.
    virtual void Randomize() = 0;
};

/// A stream that depends on its seed alone: it is the same in every build and on every processor.
class SeededDraws : public Draws {
public:
    explicit SeededDraws(std::uint64_t seed);

    float Rnd() override;

    /// Does nothing, so that the seed alone decides what is drawn.
    void Randomize() override {}

protected:
    /// Reseeds the stream from `seed` and its own next number.
    void stir(std::uint64_t seed);

private:
    // Multiplier and increment are Knuth's for a modulus of 2^64. Only the upper bits are used, since the
    // lower ones repeat soon.
    using Engine =
        std::linear_congruential_engine<std::uint64_t, 6364136223846793005U, 1442695040888963407U, 0U>;
    Engine engine_;
};

/// The source that the program uses: every `Randomize` reseeds it from the clock.
class ClockDraws final : public SeededDraws {
public:
    ClockDraws();
    void Randomize() override;
};

}  // namespace tavrune
