#include <benchmark/benchmark.h>

#include "app/exercises.h"
#include "numeric/arithmetic.h"
#include "numeric/draws.h"
#include "shell/page_table.h"

namespace tavrune {
namespace {

// Drawn and solved in two steps.
void newExercise(Vaddi1State& state, Draws& draws) {
    drawTask(state, draws);
    solve(state);
}

/// One exercise with its solution, drawn as the program draws it: reseeded from the clock.
template <class State>
void Generator(benchmark::State& bench) {
    ClockDraws draws;
    State state;
    for (auto _ : bench) {
        try {
            newExercise(state, draws);
        } catch (const ArithmeticFailure& failure) {
            // Some exercises of Vaddi1 have no solution, and one in a million of Vaddi3.
            benchmark::DoNotOptimize(failure);
        }
        benchmark::DoNotOptimize(state);
    }
    bench.SetItemsProcessed(bench.iterations());
}
#define TAVRUNE_BENCHMARK(form, text, ...) BENCHMARK(Generator<form##State>)->Name("Generator/" text);
TAVRUNE_EXERCISES(TAVRUNE_BENCHMARK)
#undef TAVRUNE_BENCHMARK

}  // namespace
}  // namespace tavrune
