#include "insight/Map.h"

#include <algorithm>
#include <cmath>

namespace Ledgrove {

namespace {

double BaseOf(const Insight& insight, Varied base) {
    return insight.Steps(base).Now();
}

/// Twice the larger of the value now and the value at which the home just pays.
double TopOf(double now, const std::optional<Answer>& limit, double (*valueAt)(double, double), double base,
             double otherwise) {
    double larger = now;
    if (limit && limit->State == AnswerState::Found)
        larger = std::max(larger, valueAt(base, limit->ToValue));
    return larger > 0 ? 2 * larger : otherwise;
}

std::array<double, MapSize> ScaleTo(double top) {
    std::array<double, MapSize> scale{};
    for (std::size_t i = 0; i < MapSize; ++i)
        scale[i] = std::floor(static_cast<double>(i) * top / (MapSize - 1) + 0.5);
    return scale;
}

} // namespace

NetMap ComputeMap(const Insight& insight, const Breakeven& breakeven) {
    constexpr double priceOtherwise = 20'000;
    constexpr double savingsOtherwise = 2'000;
    const double basePrice = BaseOf(insight, Varied::StdPrice);
    const double baseBill = BaseOf(insight, Varied::StdBill);
    NetMap map;
    map.PriceNow = BaseOf(insight, Varied::GMHPrice) - basePrice;
    map.SavingsNow = baseBill - BaseOf(insight, Varied::GMHBill);
    map.NetNow = insight.ShownNet(insight.Record());
    map.Price = ScaleTo(TopOf(
        map.PriceNow, breakeven.Price, [](double base, double price) { return price - base; }, basePrice,
        priceOtherwise));
    map.Savings = ScaleTo(TopOf(
        map.SavingsNow, breakeven.Bill, [](double base, double bill) { return base - bill; }, baseBill,
        savingsOtherwise));
    Inputs inputs = insight.Now();
    for (std::size_t row = 0; row < MapSize; ++row) {
        const double bill = baseBill - map.Savings[row];
        if (bill < 0)
            continue;
        inputs.GMH.UtilAnnual = static_cast<float>(bill);
        for (std::size_t column = 0; column < MapSize; ++column) {
            inputs.GMH.Cost = static_cast<float>(basePrice + map.Price[column]);
            map.Net[row][column] = insight.ShownNet(insight.At(inputs));
        }
    }
    return map;
}

} // namespace Ledgrove
