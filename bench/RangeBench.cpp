// The range of 10,000 saved houses with every pair of mortgage options, and the diff of two comparisons that
// differ in every input. Prints medians in milliseconds: of the range with limits, without them, of the diff.

#include "bench/Sample.h"
#include "insight/Diff.h"
#include "ui/HouseRange.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

using namespace Ledgrove;

namespace {

constexpr int lots = 10'000;

template <typename Work>
double MedianTime(int rounds, const Work& work) {
    std::vector<double> milliseconds;
    for (int round = 0; round < rounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        milliseconds.push_back(taken.count());
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    return milliseconds[milliseconds.size() / 2];
}

HouseList Houses() {
    HouseList houses;
    for (int lot = 0; lot < lots; ++lot) {
        const float price = 120'000 + static_cast<float>(lot % 3'001) * 100;
        const float upgrade = static_cast<float>(lot % 151) * 100;
        houses.push_back({"Lot " + std::to_string(lot), price, 2'400, price + upgrade, 1'000});
    }
    return houses;
}

double RangeTime(const Session& session, const HouseList& houses, bool limits) {
    const auto pairs = OptionPairs();
    return MedianTime(3, [&] {
        const auto range = ComputeHouseRange(session, houses, {{pairs.begin(), pairs.end()}, limits});
        if (!range || range->Rows.size() != houses.size() * pairs.size())
            std::exit(1);
    });
}

/// The sample with another text in each of the twelve inputs that figures depend on.
Session Other(Session session) {
    MainScreen& s = session.Screen;
    s.ecIncome.Text = "$61,000";
    s.ecMonthlyDebt.Text = "$700";
    s.optDownPayment = 1;
    s.ecFixedDown.Text = "$31,000";
    s.ecStdHome.Text = "$190,000";
    s.ecGMHHome.Text = "$199,000";
    s.ecStdUtil.Text = "$2,900";
    s.ecGMHUtil.Text = "$1,500";
    s.ecStdRate.Text = "6.750%";
    s.ecGMHRate.Text = "6.125%";
    s.chkDoTax0 = !s.chkDoTax0;
    Module1::SetTerm(session, "20 years");
    Module1::SetBaseOption(s, "VA");
    Module1::SetLabelledOption(session, "VA EEM");
    return session;
}

double DiffTime(const Session& session) {
    const Session other = Other(session);
    const Insight a(session.Screen, session);
    const Insight b(other.Screen, session);
    return MedianTime(100, [&] {
        if (ComputeDiff(a, b).Inputs.size() != 12)
            std::exit(1);
    });
}

} // namespace

int main() {
    const Session session = Bench::SampleSession();
    const HouseList houses = Houses();
    std::printf("%.1f %.1f %.3f\n", RangeTime(session, houses, true), RangeTime(session, houses, false),
                DiffTime(session));
}
