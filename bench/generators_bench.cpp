#include <benchmark/benchmark.h>

#include "numeric/arithmetic.h"
#include "numeric/draws.h"
#include "topics/addition/laddi1_exercise.h"
#include "topics/addition/laddi2_exercise.h"
#include "topics/addition/vaddi1_exercise.h"
#include "topics/addition/vaddi2_exercise.h"
#include "topics/addition/vaddi3_exercise.h"
#include "topics/basics/brok_exercise.h"
#include "topics/basics/dlinie_exercise.h"
#include "topics/basics/konvert_exercise.h"
#include "topics/basics/lininter_exercise.h"
#include "topics/basics/tomto_exercise.h"
#include "topics/calculus/diff_exercise.h"
#include "topics/calculus/integ2_exercise.h"
#include "topics/calculus/integ_exercise.h"
#include "topics/economics/afsaet_exercise.h"
#include "topics/economics/gtm_exercise.h"
#include "topics/polynomial/roedder_exercise.h"
#include "topics/polynomial/rogt_exercise.h"
#include "topics/polynomial/topp_exercise.h"

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
BENCHMARK(Generator<BrokState>)->Name("Generator/Brok");
BENCHMARK(Generator<DiffState>)->Name("Generator/Diff");
BENCHMARK(Generator<DlinieState>)->Name("Generator/Dlinie");
BENCHMARK(Generator<IntegState>)->Name("Generator/Integ");
BENCHMARK(Generator<KonvertState>)->Name("Generator/Konvert");
BENCHMARK(Generator<Laddi1State>)->Name("Generator/Laddi1");
BENCHMARK(Generator<Laddi2State>)->Name("Generator/Laddi2");
BENCHMARK(Generator<LininterState>)->Name("Generator/Lininter");
BENCHMARK(Generator<TomtoState>)->Name("Generator/tomto");
BENCHMARK(Generator<Integ2State>)->Name("Generator/Integ2");
BENCHMARK(Generator<AfsaetState>)->Name("Generator/afsaet");
BENCHMARK(Generator<GtmState>)->Name("Generator/Gtm");
BENCHMARK(Generator<RoedderState>)->Name("Generator/Roedder");
BENCHMARK(Generator<RogtState>)->Name("Generator/Rogt");
BENCHMARK(Generator<ToppState>)->Name("Generator/Topp");
BENCHMARK(Generator<Vaddi1State>)->Name("Generator/Vaddi1");
BENCHMARK(Generator<Vaddi2State>)->Name("Generator/Vaddi2");
BENCHMARK(Generator<Vaddi3State>)->Name("Generator/Vaddi3");

}  // namespace
}  // namespace tavrune
