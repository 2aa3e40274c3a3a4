#include "insight/Energy.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace Ledgrove {

namespace {

/// What the buyer is ahead by at the end of each year, with bills that grow at `rate`. Only the bills change.
std::vector<double> CumulativeAt(const YearByYear& years, double rate, int count) {
    const double bills = 12 * (years.Std.Utilities - years.GMH.Utilities);
    double cumulative = -years.ExtraCash;
    std::vector<double> sums;
    sums.reserve(static_cast<std::size_t>(count));
    for (const FlowRow& year : std::span(years.Years).first(static_cast<std::size_t>(count))) {
        const double otherSaving = year.Saving - (year.Std.Utilities - year.GMH.Utilities);
        cumulative += otherSaving + bills * std::pow(1 + rate, year.Number - 1);
        sums.push_back(cumulative);
    }
    return sums;
}

/// With growth, savings on bills only rise, so what holds at a rate holds at every higher one; if the
/// labelled home's bills are the higher ones, growth never helps.
std::optional<double> NeededGrowth(const YearByYear& years) {
    constexpr int steps = 2'000;
    const auto rateOf = [](int step) { return step / 10'000.0; };
    const auto loses = [&](int step) {
        return !(CumulativeAt(years, rateOf(step), years.InHome).back() >= EvenFrom);
    };
    if (!loses(0))
        return 0.0;
    if (loses(steps))
        return std::nullopt;
    int losing = 0;
    int enough = steps;
    while (enough - losing > 1) {
        const int middle = (losing + enough) / 2;
        (loses(middle) ? losing : enough) = middle;
    }
    return rateOf(enough);
}

} // namespace

EnergyGrowth ComputeEnergy(const YearByYear& years) {
    EnergyGrowth view;
    for (std::size_t i = 0; i < EnergyRates.size(); ++i)
        view.Cumulative[i] = CumulativeAt(years, EnergyRates[i], static_cast<int>(years.Years.size()));
    if (std::ranges::count(EnergyRates, years.By.UtilityGrowth) == 0)
        view.Own = CumulativeAt(years, years.By.UtilityGrowth, static_cast<int>(years.Years.size()));
    view.Needed = NeededGrowth(years);
    view.ExtraCash = years.ExtraCash;
    view.InHome = years.InHome;
    view.By = years.By;
    return view;
}

} // namespace Ledgrove
