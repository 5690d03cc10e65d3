#pragma once

#include <cstdint>
#include <iterator>
#include <span>

#include "numeric/draws.h"

namespace tavrune::test {

/// Where rough hands take their decisions from.
class Choices {
public:
    Choices() = default;
    Choices(const Choices&) = delete;
    Choices& operator=(const Choices&) = delete;
    virtual ~Choices() = default;

    /// 0 to n - 1. Precondition: n > 0.
    virtual int below(int n) = 0;

    bool onceIn(int n) { return below(n) == 0; }

    template <class Container>
    decltype(auto) oneOf(Container&& from) {
        return *std::next(std::begin(from), below(static_cast<int>(std::size(from))));
    }
};

/// The same decisions for the same seed.
class SeededChoices final : public Choices {
public:
    explicit SeededChoices(std::uint64_t seed) : draws_(seed) {}

    int below(int n) override { return static_cast<int>(static_cast<double>(draws_.Rnd()) * n); }

private:
    SeededDraws draws_;
};

/// Decisions spelled by bytes, two for each; the first of several once the bytes are used up.
class ByteChoices final : public Choices {
public:
    explicit ByteChoices(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    int below(int n) override {
        const int high = next();
        return (high * 256 + next()) % n;
    }

    [[nodiscard]] bool areUsedUp() const { return bytes_.empty(); }

    /// The next byte; 0 once they are used up.
    int next() {
        if (bytes_.empty()) {
            return 0;
        }
        const int byte = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return byte;
    }

private:
    std::span<const std::uint8_t> bytes_;
};

}  // namespace tavrune::test
