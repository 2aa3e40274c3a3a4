#include "insight/Exit.h"

#include <cmath>

namespace Ledgrove {

namespace {

constexpr int shownYears = 30;

std::optional<double> LeastShare(const Insight& insight, const YearByYear& years) {
    for (int percent = 0; percent <= 100; ++percent) {
        const double share = percent / 100.0;
        if (SaleAfter(insight, years, years.InHome, share).Total() >= EvenFrom)
            return share;
    }
    return std::nullopt;
}

} // namespace

SaleYear SaleAfter(const Insight& insight, const YearByYear& years, int year, double premiumKept) {
    const YearSettings& settings = insight.By().Years;
    const auto price = static_cast<double>(insight.Record().StdCase.Cost);
    const double premium = static_cast<double>(insight.Record().GMHCase.Cost) - price;
    const double left = std::pow(1 + settings.Appreciation, year) * (1 - settings.SellingCost);
    const FlowRow& row = years.Years[static_cast<std::size_t>(year) - 1];
    SaleYear exit;
    exit.Year = year;
    exit.Std = price * left - row.Std.Balance;
    exit.GMH = (price + premiumKept * premium) * left - row.GMH.Balance;
    exit.Cumulative = row.Cumulative;
    return exit;
}

SaleByYear ComputeExit(const Insight& insight, const YearByYear& years) {
    const double kept = insight.By().Years.PremiumKept;
    SaleByYear view;
    for (int year = 1; year <= shownYears; ++year)
        view.Years.push_back(SaleAfter(insight, years, year, kept));
    view.AtEnd = SaleAfter(insight, years, years.InHome, kept);
    view.Share = LeastShare(insight, years);
    return view;
}

} // namespace Ledgrove
