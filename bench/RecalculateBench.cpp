#include "bench/PlainComparison.h"

#include "bench/Sample.h"

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

/// Texts in, all label texts out.
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
