#pragma once

#include <cstdint>
#include <random>

namespace tavrune {

/// The source of chance that every generator is handed. The program has one; tests hand in a script or a
/// seeded stream.
class Draws {
public:
    Draws() = default;
    Draws(const Draws&) = delete;
    Draws& operator=(const Draws&) = delete;
    virtual ~Draws() = default;

    /// The next draw: a single u with 0 <= u < 1, uniform over the 2^24 multiples of 2^-24.
    virtual float Rnd() = 0;

    /// Stirs the clock into the stream, so that no two runs are alike. Nothing depends on a particular
    /// sequence.
    virtual void Randomize() = 0;
};

/// A stream that is the same for the same seed, in every build and on every processor.
class SeededDraws : public Draws {
public:
    explicit SeededDraws(std::uint64_t seed);

    float Rnd() override;

    /// Does nothing: a seeded stream stays what its seed makes it.
    void Randomize() override {}

protected:
    /// Starts the stream anew from `seed`, mixed with where it stands.
    void stir(std::uint64_t seed);

private:
    // The multiplier and increment are Knuth's for a modulus of 2^64; only the upper, well-mixed bits are
    // used.
    using Engine =
        std::linear_congruential_engine<std::uint64_t, 6364136223846793005U, 1442695040888963407U, 0U>;
    Engine engine_;
};

/// The program's own source: reseeded from the clock by every `Randomize`.
class ClockDraws final : public SeededDraws {
public:
    ClockDraws();
    void Randomize() override;
};

}  // namespace tavrune
