#pragma once

#include <string>
#include <vector>

namespace tavrune::bench {

/// What was measured, in one unit, in the order measured.
using Samples = std::vector<double>;

/// The value that `share` of the samples do not pass. Precondition: there are some.
[[nodiscard]] double quantile(Samples samples, double share);
[[nodiscard]] inline double median(const Samples& samples) { return quantile(samples, 0.5); }

/// The one table of figures, in Markdown.
class SpeedTable {
public:
    /// The 95th percentile is held against a bar, in the same unit.
    void addTimes(const std::string& what, const std::string& unit, const Samples& samples, double bar);
    /// The medians of two sides are held against each other.
    void addRatio(const std::string& what, const std::string& unit, const Samples& ours,
                  const Samples& theirs, double bar);
    /// A rate that must not be lower.
    void addRate(const std::string& what, const std::string& unit, double rate, double bar);
    /// A count that must not be higher.
    void addCount(const std::string& what, const std::string& unit, double count, double bar);
    /// Only told.
    void addFact(const std::string& what, const std::string& unit, double value);

    [[nodiscard]] std::string text() const;
    [[nodiscard]] bool areAllMet() const { return missed_ == 0; }

private:
    struct Row {
        std::string what;
        std::string median;
        std::string upper;
        std::string ratio;
        std::string bar;
        std::string met;
    };

    [[nodiscard]] std::string verdict(bool met);

    std::vector<Row> rows_;
    int missed_ = 0;
};

}  // namespace tavrune::bench
