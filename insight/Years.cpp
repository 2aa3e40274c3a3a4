#include "insight/Years.h"

#include <algorithm>
#include <cmath>

#include "insight/Exit.h"
#include "insight/YearsReturn.h"

namespace Ledgrove {

namespace {

constexpr int leastRows = 30;

FlowRow MonthRow(const YearByYear& years, int month, double utilityFactor, double homeFactor) {
    FlowRow row;
    row.Number = month;
    row.Std = MonthOf(years.Std, month, utilityFactor, homeFactor);
    row.GMH = MonthOf(years.GMH, month, utilityFactor, homeFactor);
    row.Saving = row.Std.Cost - row.GMH.Cost;
    return row;
}

void AppendYear(YearByYear& years, int number, double& cumulative) {
    const double utilityFactor = std::pow(1 + years.By.UtilityGrowth, number - 1);
    const double homeFactor = std::pow(1 + years.By.HomeGrowth, number - 1);
    FlowRow& year = years.Years.emplace_back();
    year.Number = number;
    for (int month = 12 * number - 11; month <= 12 * number; ++month) {
        FlowRow& row = years.Months.emplace_back(MonthRow(years, month, utilityFactor, homeFactor));
        cumulative += row.Saving;
        row.Cumulative = cumulative;
        AddMonth(year.Std, row.Std);
        AddMonth(year.GMH, row.GMH);
        year.Saving += row.Saving;
    }
    year.Cumulative = cumulative;
}

std::span<const FlowRow> MonthsInHome(const YearByYear& years) {
    return std::span(years.Months).first(static_cast<std::size_t>(years.InHome) * 12);
}

std::optional<int> AheadFrom(const YearByYear& years) {
    const auto months = MonthsInHome(years);
    const auto isBehind = [](const FlowRow& row) { return !(row.Cumulative >= EvenFrom); };
    const auto afterLast = std::find_if(months.rbegin(), months.rend(), isBehind).base();
    if (afterLast == months.begin())
        return -years.ExtraCash >= EvenFrom ? 0 : 1;
    if (afterLast == months.end())
        return std::nullopt;
    return static_cast<int>(afterLast - months.begin()) + 1;
}

double DiscountRate(const Insight& insight) {
    const AssumptionSet& assumptions = insight.By().Assumptions;
    return static_cast<double>(assumptions.UsePVVars ? assumptions.PVRate : insight.Record().GMHCase.IntRate);
}

std::optional<double> AYear(std::optional<double> monthly) {
    return monthly ? std::optional(12 * *monthly) : std::nullopt;
}

void ComputeReturns(const Insight& insight, YearByYear& years) {
    std::vector<double> savings;
    for (const FlowRow& month : MonthsInHome(years))
        savings.push_back(month.Saving);
    const double worth = WorthToday(savings, DiscountRate(insight) / 12) - years.ExtraCash;
    if (std::isfinite(worth))
        years.NPV = worth;
    years.IRROnExtraCash = AYear(LeastReturn(years.ExtraCash, savings));
    savings.back() += SaleAfter(insight, years, years.InHome, insight.By().Years.PremiumKept).Difference();
    years.IRRWithSale = AYear(LeastReturn(years.ExtraCash, savings));
}

} // namespace

YearByYear ComputeYears(const Insight& insight) {
    const int rows = std::max(leastRows, int{insight.Now().TermYears});
    YearByYear years;
    years.By = insight.By().Years;
    years.ExtraCash = static_cast<double>(insight.Record().Scenario.ExtraCashToday);
    years.InHome = std::clamp(int{insight.By().Assumptions.YearsInHome}, 1, rows);
    years.Std = PlanOf(insight, HomeCode::Std);
    years.GMH = PlanOf(insight, HomeCode::GMH);
    years.Years.reserve(static_cast<std::size_t>(rows));
    years.Months.reserve(static_cast<std::size_t>(rows) * 12);
    double cumulative = -years.ExtraCash;
    for (int year = 1; year <= rows; ++year)
        AppendYear(years, year, cumulative);
    years.Ahead = AheadFrom(years);
    ComputeReturns(insight, years);
    years.Sentence =
        "The expected savings on the Summary tab differ: they put each month's saving to interest at the "
        "mortgage rate, and keep mortgage insurance, taxes and bills as they are in the first month. While "
        "taxes are included, both count every dollar of interest as deductible; the income-tax view checks "
        "that.";
    return years;
}

std::span<const FlowRow> MonthsOf(const YearByYear& years, int year) {
    return std::span(years.Months).subspan(static_cast<std::size_t>(year - 1) * 12, 12);
}

} // namespace Ledgrove
