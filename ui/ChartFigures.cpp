#include "ui/ChartFigures.h"

#include <algorithm>
#include <cmath>

#include "engine/FinancialFunctions.h"
#include "engine/NumberText.h"

namespace Ledgrove {

namespace {

constexpr const char* baseHome = "Base Home";
constexpr const char* labelledHome = "GREENMARK Home";
constexpr int fineSteps = 5;
constexpr int coarseSteps = 3;

double Amount(float value) {
    return static_cast<double>(value);
}

std::string Money(double value) {
    return Module1::MoneyText(static_cast<float>(value));
}

/// "Taxes: Base Home $150, GREENMARK Home $155."
std::string SeriesText(const ChartSeries& series, const std::vector<std::string>& categories) {
    std::string text = series.Name + ':';
    for (std::size_t i = 0; i < categories.size(); ++i)
        text += (i == 0 ? " " : ", ") + categories[i] + ' ' +
                (series.Texts.empty() ? Money(series.Values[i]) : series.Texts[i]);
    return text + '.';
}

std::string AllSeries(const ChartFigures& chart) {
    std::string text;
    for (const ChartSeries& series : chart.Series)
        text += (text.empty() ? "" : " ") + SeriesText(series, chart.Categories);
    return text;
}

struct Range {
    double Lowest = 0;  ///< never above 0
    double Highest = 0; ///< never below 0
};

/// The range of the stacks: in each, values above 0 and values below 0 add up separately.
Range RangeOfStacks(const ChartFigures& chart) {
    Range range;
    for (std::size_t home = 0; home < chart.Categories.size(); ++home) {
        double above = 0;
        double below = 0;
        for (const ChartSeries& series : chart.Series)
            (series.Values[home] < 0 ? below : above) += series.Values[home];
        range.Lowest = std::min(range.Lowest, below);
        range.Highest = std::max(range.Highest, above);
    }
    return range;
}

Range RangeOfValues(const ChartFigures& chart) {
    Range range;
    for (const ChartSeries& series : chart.Series) {
        const auto [least, most] = std::minmax_element(series.Values.begin(), series.Values.end());
        range.Lowest = std::min(range.Lowest, *least);
        range.Highest = std::max(range.Highest, *most);
    }
    return range;
}

/// "$13 less", "$5 more" or "the same".
std::string Difference(double base, double labelled) {
    const std::string amount = Money(std::fabs(base - labelled));
    if (amount == "$0")
        return "the same";
    return amount + (labelled < base ? " less" : " more");
}

/// The tax savings as the table of the tab names and signs them. The bar is the other way up: savings are
/// below zero. The labelled home saves taxes compared with the base home, so only its stack has this part.
ChartSeries TaxSavingsSeries(const Session& session) {
    const MainScreen& screen = session.Screen;
    return {screen.lbltaxsavingstext.Text,
            {0, -Amount(session.Scenario.ShownTaxSavings)},
            {Money(0), screen.lblTaxSavMo.Text}};
}

ChartFigures MonthlyCostChart(const Session& session) {
    const HomeCase& base = session.StdCase;
    const HomeCase& labelled = session.GMHCase;
    ChartFigures chart;
    chart.Kind = ChartKind::MonthlyCost;
    chart.Title = "Monthly Cost of Both Homes";
    const auto add = [&](const char* name, float HomeCase::*part) {
        chart.Series.push_back({name, {Amount(base.*part), Amount(labelled.*part)}});
    };
    add("Principal and Interest", &HomeCase::MortPayment);
    add("Taxes", &HomeCase::TaxMonthly);
    add("Insurance", &HomeCase::InsMonthly);
    add("PMI", &HomeCase::PMIMonthly);
    add("Utilities", &HomeCase::UtilMonthly);
    if (session.Screen.chkDoTax0)
        chart.Series.push_back(TaxSavingsSeries(session));

    double baseCost = 0;
    double labelledCost = 0;
    for (const ChartSeries& series : chart.Series) {
        baseCost += series.Values[0];
        labelledCost += series.Values[1];
    }
    chart.Categories = {baseHome, labelledHome};
    chart.Sentence = std::string("Monthly cost: ") + baseHome + ' ' + Money(baseCost) + ", " + labelledHome +
                     ' ' + Money(labelledCost) + ", " + Difference(baseCost, labelledCost) + '.';
    chart.Numbers = AllSeries(chart);
    const Range range = RangeOfStacks(chart);
    SetScale(chart, range.Lowest, range.Highest, fineSteps);
    return chart;
}

/// "With the Base Home the mortgage of $180,000 is within the maximum loan of $242,484."
std::string LoanSentence(const char* home, const HomeCase& figures, bool qualifies) {
    return std::string("With the ") + home + " the mortgage of " + Money(Amount(figures.LoanAmount)) +
           (qualifies ? " is within" : " is not within") + " the maximum loan of " +
           Money(Amount(figures.MaxLoan)) + '.';
}

ChartFigures AffordabilityChart(const Session& session) {
    const HomeCase& base = session.StdCase;
    const HomeCase& labelled = session.GMHCase;
    ChartFigures chart;
    chart.Kind = ChartKind::Affordability;
    chart.Title = "Mortgage and Maximum Loan";
    chart.Categories = {baseHome, labelledHome};
    chart.Series = {{"Mortgage Amount", {Amount(base.LoanAmount), Amount(labelled.LoanAmount)}},
                    {"Maximum Loan Value", {Amount(base.MaxLoan), Amount(labelled.MaxLoan)}}};
    chart.Sentence = LoanSentence(baseHome, base, session.StdQualifies) + ' ' +
                     LoanSentence(labelledHome, labelled, session.GMHQualifies);
    chart.Numbers = AllSeries(chart);
    const Range range = RangeOfValues(chart);
    SetScale(chart, range.Lowest, range.Highest, fineSteps);
    return chart;
}

/// The net cash flow saved each month at the labelled home's interest rate, as in the savings after 7 and 30
/// years.
double SavingsAfter(int years, const Session& session) {
    const double rate = Amount(session.GMHCase.IntRate) / 12;
    const double savings = Module1::FV(rate, years * 12.0, -Amount(session.Scenario.NetMonthlyCashFlow));
    return std::isfinite(savings) && std::fabs(savings) < 1e30 ? savings : 0;
}

std::string YearsText(int years) {
    return std::to_string(years) + (years == 1 ? " Year" : " Years");
}

/// "$1,399 after 7 years".
std::string AmountAfter(float amount, int years) {
    return Money(Amount(amount)) + " after " + std::to_string(years) + (years == 1 ? " year" : " years");
}

/// The savings after the years in the home, if the chart ends before them.
std::string LateSavings(const Scenario& scenario) {
    if (scenario.YearsInHome <= ChartYears)
        return {};
    return YearsText(scenario.YearsInHome) + ": " + Money(Amount(scenario.SavingsAfterYearsInHome));
}

void AddMark(ChartFigures& chart, int year, float value) {
    const bool known = std::any_of(chart.Marks.begin(), chart.Marks.end(),
                                   [year](const ChartMark& mark) { return mark.Year == year; });
    if (year >= 1 && year <= ChartYears && !known)
        chart.Marks.push_back({year, Amount(value), YearsText(year) + ": " + Money(Amount(value))});
}

/// Every fifth year. `Sentence` lists the labelled years.
std::string SavingsNumbers(const ChartSeries& series) {
    std::string text = "Accumulated net savings after";
    for (int year = 5; year <= ChartYears; year += 5)
        text += (year == 5 ? " " : ", ") + YearsText(year) + ' ' +
                Money(series.Values[static_cast<std::size_t>(year)]);
    return text + '.';
}

ChartFigures SavingsChart(const Session& session) {
    const Scenario& scenario = session.Scenario;
    const int yearsInHome = scenario.YearsInHome;
    ChartFigures chart;
    chart.Kind = ChartKind::Savings;
    chart.Title = "Accumulated Net Savings by Year";
    chart.Note = LateSavings(scenario);
    ChartSeries savings{"Accumulated Net Savings", {}};
    for (int year = 0; year <= ChartYears; ++year)
        savings.Values.push_back(SavingsAfter(year, session));
    chart.Series = {std::move(savings)};
    AddMark(chart, 7, scenario.SavingsAfter7Years);
    AddMark(chart, yearsInHome, scenario.SavingsAfterYearsInHome);
    AddMark(chart, ChartYears, scenario.SavingsAfter30Years);
    std::sort(chart.Marks.begin(), chart.Marks.end(),
              [](const ChartMark& a, const ChartMark& b) { return a.Year < b.Year; });

    chart.Sentence = std::string("Net savings with the ") + labelledHome + ": " +
                     AmountAfter(scenario.SavingsAfter7Years, 7) + ", " +
                     AmountAfter(scenario.SavingsAfterYearsInHome, yearsInHome) + " in the home, " +
                     AmountAfter(scenario.SavingsAfter30Years, ChartYears) + '.';
    chart.Numbers = SavingsNumbers(chart.Series.front());
    const Range range = RangeOfValues(chart);
    // Leaves room for the label at the highest point, because this chart is the flattest.
    SetScale(chart, range.Lowest, range.Highest * 1.15, coarseSteps);
    return chart;
}

/// The smallest step of 1, 2, 2.5 or 5 times a power of ten that covers `range` in at most `mostSteps`. It is
/// whole, because the ticks are written in whole dollars.
double RoundStep(double range, int mostSteps) {
    const double power = std::pow(10, std::floor(std::log10(range / mostSteps)));
    for (const double factor : {1.0, 2.0, 2.5, 5.0}) {
        // The tolerance keeps a range of exactly `mostSteps` steps from failing because of rounding.
        const double step = factor * power;
        if (step == std::floor(step) && range <= step * mostSteps * (1 + 1e-9))
            return step;
    }
    return 10 * power;
}

} // namespace

std::optional<ChartKind> ChartOfTab(int tab) {
    switch (tab) {
    case 1:
        return ChartKind::MonthlyCost;
    case 3:
        return ChartKind::Affordability;
    case 4:
        return ChartKind::Savings;
    default:
        return std::nullopt;
    }
}

void SetScale(ChartFigures& chart, double lowest, double highest, int mostSteps) {
    // A range below 5 is too small to divide into whole dollars.
    const double step = RoundStep(std::max(highest - lowest, 5.0), mostSteps);
    constexpr double belowLowest = 1.05;
    chart.Lowest = lowest * belowLowest;
    chart.Highest = std::max(std::ceil(highest / step) * step, lowest < 0 ? 0 : step);
    chart.Ticks.clear();
    for (double i = std::ceil(chart.Lowest / step); i * step <= chart.Highest; ++i)
        chart.Ticks.push_back({i * step, Money(i * step)});
}

void SetSpan(ChartFigures& chart, double lowest, double highest, int mostSteps) {
    const double step = RoundStep(std::max(highest - lowest, 5.0), mostSteps);
    chart.Lowest = lowest;
    chart.Highest = highest;
    chart.Ticks.clear();
    for (double i = std::ceil(lowest / step); i * step <= highest; ++i)
        chart.Ticks.push_back({i * step, Money(i * step)});
}

ChartFigures MakeChart(ChartKind kind, const Session& session) {
    switch (kind) {
    case ChartKind::MonthlyCost:
        return MonthlyCostChart(session);
    case ChartKind::Affordability:
        return AffordabilityChart(session);
    default:
        return SavingsChart(session);
    }
}

} // namespace Ledgrove
