#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iomanip>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "numeric/draws.h"
#include "numeric/judging.h"
#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/record.h"
#include "support/scripted_draws.h"

/// What the proofs of all forms have in common: each shows of one form that every exercise can be solved.
namespace tavrune::test {

/// From a stored number to one that is just no longer near it.
inline constexpr double kJustPast = kTolerance + 1e-6;

/// What a box holds once a shown number is typed into it key by key: the comma key writes a point.
[[nodiscard]] inline double typedAgain(std::string shown) {
    std::replace(shown.begin(), shown.end(), ',', '.');
    return Val(shown);
}

/// True if `holds` returns true with each mark that numbers are written with.
template <class Holds>
[[nodiscard]] bool inBothMarks(Holds holds) {
    constexpr std::array kMarks{".", ","};
    return std::all_of(kMarks.begin(), kMarks.end(), [&](const char* mark) {
        const DecimalMark inUse(mark);
        return holds();
    });
}

/// True if the number comes back as it is, written with either mark and typed again.
[[nodiscard]] inline bool readsAsItself(double number) {
    return inBothMarks([number] { return typedAgain(NumberText(number)) == number; });
}

[[nodiscard]] inline bool endsIn(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// Seeded draws of which many are the ends of what can be drawn, so that extreme values meet. A generator
/// that takes more of them for one exercise than any could need is stopped by a throw.
class ProofDraws final : public SeededDraws {
public:
    /// No extremes, or those from `least` on.
    enum class Ends { None, FromZero, AboveZero };

    ProofDraws(std::uint64_t seed, Ends ends) : SeededDraws(seed), ends_(ends) {}

    void beginExercise() { taken_ = 0; }

    float Rnd() override {
        if (++taken_ > 10'000) {
            throw std::length_error("one exercise takes more than 10,000 draws");
        }
        const float u = SeededDraws::Rnd();
        if (ends_ == Ends::None || u < 0.4F) {
            return SeededDraws::Rnd();
        }
        const float least = ends_ == Ends::FromZero ? 0 : 1 - kLargestDraw;
        return u < 0.7F ? least : kLargestDraw;
    }

private:
    Ends ends_;
    int taken_ = 0;
};

/// 1234567 -> "1,234,567"
[[nodiscard]] inline std::string grouped(int number) {
    std::string text = std::to_string(number);
    for (std::size_t at = text.size(); at > 3;) {
        at -= 3;
        text.insert(at, ",");
    }
    return text;
}

/// What a proof met and does not hold against a form: it is so on purpose.
class Exceptions {
public:
    /// `what` goes on after a number: "negative halves of P".
    void meet(const std::string& what) { ++counts_[what]; }

    /// With their share of `total`; "none" if there are none.
    [[nodiscard]] std::string text(int total) const {
        std::ostringstream text;
        text << std::setprecision(2);
        for (const auto& [what, count] : counts_) {
            text << (text.tellp() > 0 ? "; " : "") << grouped(count) << " " << what << " (";
            // Smaller ones would have an exponent.
            constexpr double kSmallest = 0.0001;
            const double percent = 100.0 * count / total;
            text << (percent < kSmallest ? "less than " : "") << std::max(percent, kSmallest) << " %)";
        }
        return counts_.empty() ? "none" : text.str();
    }

private:
    std::map<std::string, int> counts_;
};

/// How many checks of the test that runs have failed.
[[nodiscard]] inline int failuresSoFar() {
    const testing::TestResult& result = *testing::UnitTest::GetInstance()->current_test_info()->result();
    int failed = 0;
    for (int part = 0; part < result.total_part_count(); ++part) {
        failed += result.GetTestPartResult(part).failed() ? 1 : 0;
    }
    return failed;
}

/// Keeps the book of a proof and records it at the end, for script/prove to collect: what was visited, the
/// whole space or seeded draws ("517,539 whole"); how many kinds were reached ("4 of 4"); what can't be
/// solved, on purpose; failures.
class Proof {
public:
    enum class From { WholeSpace, Seeds };

    /// Fails, when it ends, unless so many kinds were reached.
    Proof(std::string form, std::size_t kinds) : form_(std::move(form)), allKinds_(kinds) {}
    Proof(const Proof&) = delete;
    Proof& operator=(const Proof&) = delete;

    ~Proof() {
        EXPECT_EQ(kinds_.size(), allKinds_) << form_;
        const std::string kinds = std::to_string(kinds_.size()) + " of " + std::to_string(allKinds_);
        record({{"form", form_},
                {"visited", visitedText()},
                {"kinds", kinds},
                {"unsolvable", unsolvable_.text(whole_ + seeded_)},
                {"failures", std::to_string(failuresSoFar())}});
    }

    void visit(From from, int kind) {
        ++(from == From::WholeSpace ? whole_ : seeded_);
        kinds_.insert(kind);
    }

    /// The exercise just visited can't be solved by what it shows, and that is kept so.
    void unsolvable(const char* why) { unsolvable_.meet(why); }

private:
    std::string form_;
    std::size_t allKinds_;
    std::set<int> kinds_;
    int whole_ = 0;
    int seeded_ = 0;
    Exceptions unsolvable_;

    [[nodiscard]] std::string visitedText() const {
        const std::string whole = whole_ > 0 ? grouped(whole_) + " whole" : "";
        const std::string seeded = seeded_ > 0 ? grouped(seeded_) + " seeded" : "";
        return whole + (whole_ > 0 && seeded_ > 0 ? " + " : "") + seeded;
    }
};

}  // namespace tavrune::test
