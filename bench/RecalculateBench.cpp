#include "bench/PlainComparison.h"

#include "bench/Sample.h"
#include "engine/Evaluate.h"
#include "engine/ReadScreen.h"

#include <benchmark/benchmark.h>

namespace {

using namespace Ledgrove;

void PlainLoop(benchmark::State& state) {
    Bench::PlainInput input{72000, 350, 0.10, 200000, 206000, 2400, 1700, 0.065, 0.065};
    double years = 30;
    double yearsInHome = 7;
    for (auto _ : state) {
        benchmark::DoNotOptimize(input);
        benchmark::DoNotOptimize(years);
        benchmark::DoNotOptimize(yearsInHome);
        benchmark::DoNotOptimize(Bench::ComparePlainly(input, years, yearsInHome));
    }
}
BENCHMARK(PlainLoop);

/// The same figures and all others as values, with records, faults and decisions.
void Evaluation(benchmark::State& state) {
    const Session session = Bench::SampleSession();
    Inputs inputs = Module1::ReadInputs(session.Screen);
    Carried carried;
    for (auto _ : state) {
        benchmark::DoNotOptimize(inputs);
        benchmark::DoNotOptimize(Module1::Evaluate(inputs, session, carried));
    }
}
BENCHMARK(Evaluation);

/// From the input texts to all label texts.
void Recalculation(benchmark::State& state) {
    Session session = Bench::SampleSession();
    CollectingHost host;
    for (auto _ : state) {
        Module1::Recalculate(session, host);
        benchmark::DoNotOptimize(session.Screen.lblNetCashMo.Text.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(Recalculation);

} // namespace

BENCHMARK_MAIN();
