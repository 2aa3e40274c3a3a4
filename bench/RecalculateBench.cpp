#include "bench/PlainComparison.h"

#include "app/batch/Comparison.h"
#include "engine/Recalculate.h"
#include "ui/Entry.h"
#include "ui/MainScreenRules.h"
#include "ui/StartUp.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>

namespace {

using namespace Ledgrove;

/// The sample comparison on the shipped settings, as a person would have typed it.
Session SampleSession() {
    Session session;
    CollectingHost host;
    if (const auto fault = Module1::LoadMainScreen(session, host, LEDGROVE_DATA_DIR)) {
        std::cerr << Sentence(*fault) << '\n';
        std::exit(2);
    }
    MainScreen& screen = session.Screen;
    screen.ecIncome.Text = "$72,000";
    screen.ecMonthlyDebt.Text = "$350";
    screen.ecPctDown.Text = "10.00%";
    screen.ecStdHome.Text = "$200,000";
    screen.ecGMHHome.Text = "$206,000";
    screen.ecStdUtil.Text = "$2,400";
    screen.ecGMHUtil.Text = "$1,700";
    Module1::SetBaseOption(screen, "FHA");
    Module1::SetLabelledOption(session, "FHA EEM");
    return session;
}

void PlainLoop(benchmark::State& state) {
    Bench::PlainInput input{72000, 350, 0.10, 200000, 206000, 2400, 1700, 0.065};
    for (auto _ : state) {
        benchmark::DoNotOptimize(input);
        benchmark::DoNotOptimize(Bench::ComparePlainly(input));
        input.GMHCost += 1;
    }
}
BENCHMARK(PlainLoop);

/// Texts in, all label texts out.
void Recalculation(benchmark::State& state) {
    Session session = SampleSession();
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
