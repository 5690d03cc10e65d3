#include "speed_table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace tavrune::bench {
namespace {

std::string number(double x) {
    // The same in every locale.
    std::array<char, 64> text{};
    const auto end =
        std::to_chars(text.begin(), text.end(), x, std::chars_format::fixed, std::abs(x) >= 1000 ? 0 : 2);
    return {text.begin(), end.ptr};
}

}  // namespace

double quantile(Samples samples, double share) {
    std::sort(samples.begin(), samples.end());
    const auto rank = static_cast<std::size_t>(std::ceil(share * static_cast<double>(samples.size())));
    return samples[std::clamp<std::size_t>(rank, 1, samples.size()) - 1];
}

std::string SpeedTable::verdict(bool met) {
    missed_ += met ? 0 : 1;
    return met ? "yes" : "NO";
}

void SpeedTable::addTimes(const std::string& what, const std::string& unit, const Samples& samples,
                          double bar) {
    const double upper = quantile(samples, 0.95);
    rows_.push_back({what, number(median(samples)) + " " + unit, number(upper) + " " + unit, "",
                     "p95 <= " + number(bar) + " " + unit, verdict(upper <= bar)});
}

void SpeedTable::addRatio(const std::string& what, const std::string& unit, const Samples& ours,
                          const Samples& theirs, double bar) {
    const double ratio = median(ours) / median(theirs);
    rows_.push_back({what, number(median(ours)) + " : " + number(median(theirs)) + " " + unit,
                     number(quantile(ours, 0.95)) + " : " + number(quantile(theirs, 0.95)) + " " + unit,
                     number(ratio), "ratio <= " + number(bar), verdict(ratio <= bar)});
}

void SpeedTable::addRate(const std::string& what, const std::string& unit, double rate, double bar) {
    rows_.push_back(
        {what, number(rate) + " " + unit, "", "", ">= " + number(bar) + " " + unit, verdict(rate >= bar)});
}

void SpeedTable::addCount(const std::string& what, const std::string& unit, double count, double bar) {
    rows_.push_back({what, number(count) + " " + unit, "", "", "<= " + number(bar), verdict(count <= bar)});
}

void SpeedTable::addFact(const std::string& what, const std::string& unit, double value) {
    rows_.push_back({what, number(value) + " " + unit, "", "", "", ""});
}

std::string SpeedTable::text() const {
    std::string text =
        "| What | Median | 95th percentile | Ratio | Bar | Met |\n|---|---:|---:|---:|---|---|\n";
    for (const Row& row : rows_) {
        text += "| " + row.what + " | " + row.median + " | " + row.upper + " | " + row.ratio + " | " +
                row.bar + " | " + row.met + " |\n";
    }
    return text;
}

}  // namespace tavrune::bench
