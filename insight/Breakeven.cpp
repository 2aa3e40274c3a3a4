#include "insight/Breakeven.h"

#include <algorithm>

#include "insight/Conditions.h"
#include "insight/Search.h"

namespace Ledgrove {

namespace {

constexpr SearchDirections upThenDown{Direction::Up, Direction::Down};

std::optional<double> SavingsShareOf(const Insight& insight, const std::optional<Answer>& bill) {
    const double base = insight.Steps(Varied::StdBill).Now();
    const double saving = base - insight.Steps(Varied::GMHBill).Now();
    if (!(saving > 0) || !bill || bill->State != AnswerState::Found)
        return std::nullopt;
    return std::max(0.0, (base - bill->ToValue) / saving);
}

} // namespace

std::optional<Answer> BreakevenPrice(const Insight& insight) {
    return LimitOrNearest(insight, insight.Steps(Varied::GMHPrice), upThenDown,
                          NetCondition(insight.Now().IncludeTaxes));
}

Breakeven ComputeBreakeven(const Insight& insight) {
    const Lattice price = insight.Steps(Varied::GMHPrice);
    const NetCondition shownNet(insight.Now().IncludeTaxes);
    const auto limit = [&](const Lattice& steps, const Condition& condition) {
        return LimitOrNearest(insight, steps, upThenDown, condition);
    };
    Breakeven result;
    result.Price = BreakevenPrice(insight);
    result.PriceBeforeTax = limit(price, NetCondition(false));
    result.SavingsPrice = limit(price, SavingsCondition());
    result.Bill = limit(insight.Steps(Varied::GMHBill), shownNet);
    result.Rate = limit(insight.Steps(Varied::GMHRate), shownNet);
    result.SavingsShare = SavingsShareOf(insight, result.Bill);
    return result;
}

} // namespace Ledgrove
