#include <string>

#include <benchmark/benchmark.h>

#include "numeric/draws.h"
#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

void Rnd(benchmark::State& state) {
    ClockDraws draws;
    for (auto _ : state) {
        benchmark::DoNotOptimize(draws.Rnd());
    }
}
BENCHMARK(Rnd);

void Randomize(benchmark::State& state) {
    ClockDraws draws;
    for (auto _ : state) {
        draws.Randomize();
    }
}
BENCHMARK(Randomize);

void ValOfAShortNumber(benchmark::State& state) {
    const std::string typed = "-12.34";
    for (auto _ : state) {
        benchmark::DoNotOptimize(Val(typed));
    }
}
BENCHMARK(ValOfAShortNumber);

void ValOfAMegabyte(benchmark::State& state) {
    const std::string typed(1'000'000, '7');
    for (auto _ : state) {
        benchmark::DoNotOptimize(Val(typed));
    }
}
BENCHMARK(ValOfAMegabyte);

void NumberTextOfASingle(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(NumberText(-1.0F / 3));
    }
}
BENCHMARK(NumberTextOfASingle);

void NumberTextOfADouble(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(NumberText(-0.33));
    }
}
BENCHMARK(NumberTextOfADouble);

void RoundSignedTwo(benchmark::State& state) {
    double x = -1.0 / 3;
    for (auto _ : state) {
        benchmark::DoNotOptimize(x);
        benchmark::DoNotOptimize(RoundSigned2(x));
    }
}
BENCHMARK(RoundSignedTwo);

}  // namespace
}  // namespace tavrune
