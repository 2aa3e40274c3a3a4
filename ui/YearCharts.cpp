#include "ui/YearCharts.h"

#include <algorithm>

#include "insight/YearsWords.h"

namespace Ledgrove {

namespace {

constexpr int mostSteps = 5;
constexpr int yearsApart = 5; ///< of the amounts in words

/// "After 5 years $320, after 10 years $1,640."
std::string AmountsInWords(const std::string& name, const std::vector<double>& values, int first,
                           int perYear) {
    std::string text;
    for (int year = yearsApart; year * perYear - first < static_cast<int>(values.size()); year += yearsApart)
        text += (text.empty() ? name + ": after " : ", after ") + YearsText(year) + ' ' +
                DollarText(values[static_cast<std::size_t>(year * perYear - first)]);
    return text + '.';
}

/// The axis includes 0, because what matters is on which side of it a curve is.
void SetAxis(ChartFigures& chart) {
    double lowest = 0;
    double highest = 0;
    for (const ChartSeries& series : chart.Series) {
        const auto [least, most] = std::minmax_element(series.Values.begin(), series.Values.end());
        lowest = std::min(lowest, *least);
        highest = std::max(highest, *most);
    }
    const double margin = std::max((highest - lowest) * 0.04, 0.5);
    SetSpan(chart, lowest - margin, highest + margin, mostSteps);
    for (ChartTick& tick : chart.Ticks)
        if (tick.Value == 0)
            tick.Text = "even: $0";
}

void AddMark(ChartFigures& chart, double at, double value, std::string text) {
    chart.Curves.Marks.push_back({at, value, std::move(text)});
}

/// The marks after the sentence.
void DescribeMarks(ChartFigures& chart) {
    for (const CurveMark& mark : chart.Curves.Marks)
        chart.Numbers += " Marked: " + mark.Text + '.';
}

std::string AfterYears(int years, double amount) {
    return "after " + YearsText(years) + ": " + DollarText(amount);
}

} // namespace

ChartFigures MakeYearsChart(const YearByYear& years) {
    ChartFigures chart;
    chart.Kind = ChartKind::Curves;
    chart.Title = "How Far Ahead the Buyer Is";
    chart.Curves.Step = 1.0 / 12;
    ChartSeries ahead{"Ahead by", {-years.ExtraCash}};
    for (const FlowRow& month : years.Months)
        ahead.Values.push_back(month.Cumulative);
    for (const YearsEvent& event : EventsBetween(years, 0, static_cast<int>(years.Months.size())))
        AddMark(chart, event.Month / 12.0, ahead.Values[static_cast<std::size_t>(event.Month)], event.Text);
    chart.Sentence = YearsSheet(years).Sentence;
    chart.Numbers = AmountsInWords(ahead.Name, ahead.Values, 0, 12);
    chart.Series = {std::move(ahead)};
    chart.Curves.Main = 0;
    DescribeMarks(chart);
    SetAxis(chart);
    return chart;
}

ChartFigures MakeEnergyChart(const YearByYear& years, const EnergyGrowth& energy) {
    ChartFigures chart;
    chart.Kind = ChartKind::Curves;
    chart.Title = "How Far Ahead the Buyer Is If Bills Rise";
    for (std::size_t i = 0; i < EnergyRates.size(); ++i) {
        ChartSeries& curve =
            chart.Series.emplace_back(ChartSeries{RateText(EnergyRates[i]), {-energy.ExtraCash}});
        curve.Values.insert(curve.Values.end(), energy.Cumulative[i].begin(), energy.Cumulative[i].end());
        if (EnergyRates[i] == years.By.UtilityGrowth)
            chart.Curves.Main = i;
    }
    if (!chart.Curves.Main) {
        chart.Curves.Main = chart.Series.size();
        ChartSeries& now =
            chart.Series.emplace_back(ChartSeries{RateText(years.By.UtilityGrowth), {-years.ExtraCash}});
        for (const FlowRow& year : years.Years)
            now.Values.push_back(year.Cumulative);
    }
    ChartSeries& main = chart.Series[*chart.Curves.Main];
    for (const ChartSeries& curve : chart.Series)
        chart.Numbers +=
            (chart.Numbers.empty() ? "" : " ") + AmountsInWords(curve.Name + " a year", curve.Values, 0, 1);
    const double end = main.Values[static_cast<std::size_t>(years.InHome)];
    AddMark(chart, years.InHome, end, main.Name + ", " + AfterYears(years.InHome, end));
    main.Name += " now";
    chart.Note = NeededText(energy);
    chart.Sentence = EnergySheet(energy).Sentence;
    DescribeMarks(chart);
    SetAxis(chart);
    return chart;
}

ChartFigures MakeSaleChart(const SaleByYear& sale) {
    ChartFigures chart;
    chart.Kind = ChartKind::Curves;
    chart.Title = "How Much More the Buyer Has After a Sale";
    chart.Curves.First = 1;
    ChartSeries total{"Total", {}};
    for (const SaleYear& year : sale.Years)
        total.Values.push_back(year.Total());
    const int inHome = sale.AtEnd.Year;
    const std::string atEnd = AfterYears(inHome, sale.AtEnd.Total());
    if (inHome <= static_cast<int>(sale.Years.size()))
        AddMark(chart, inHome, sale.AtEnd.Total(), atEnd);
    else
        chart.Note = atEnd;
    chart.Numbers = AmountsInWords(total.Name, total.Values, 1, 1);
    chart.Series = {std::move(total)};
    chart.Curves.Main = 0;
    chart.Sentence = SaleSentence(sale);
    DescribeMarks(chart);
    SetAxis(chart);
    return chart;
}

} // namespace Ledgrove
