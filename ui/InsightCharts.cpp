#include "ui/InsightCharts.h"

#include <algorithm>
#include <cmath>

namespace Ledgrove {

namespace {

constexpr int mostSteps = 5;

std::string CaptionOf(const Sheet& sheet, std::size_t row) {
    return sheet.Rows[row].front().Text;
}

double NetOf(const std::optional<SensitivitySide>& side, double now) {
    return side ? static_cast<double>(side->ShownNet) : now;
}

} // namespace

ChartFigures MakeSensitivityChart(const Insight& insight, const Sensitivity& sensitivity) {
    const Sheet sheet = SensitivitySheet(insight, sensitivity);
    ChartFigures chart;
    chart.Kind = ChartKind::Sensitivity;
    chart.Title = "Monthly Net When an Input Changes";
    chart.Middle = static_cast<double>(insight.ShownNet(insight.Record()));
    chart.Series = {{"Lower value", {}}, {"Higher value", {}}};
    double lowest = chart.Middle;
    double highest = chart.Middle;
    for (std::size_t row = 0; row < sensitivity.Rows.size(); ++row) {
        const SensitivityRow& input = sensitivity.Rows[row];
        if (input.NetMove == 0)
            continue;
        const double low = NetOf(input.Low, chart.Middle);
        const double high = NetOf(input.High, chart.Middle);
        chart.Categories.push_back(CaptionOf(sheet, row));
        chart.Series[0].Values.push_back(low);
        chart.Series[1].Values.push_back(high);
        lowest = std::min({lowest, low, high});
        highest = std::max({highest, low, high});
        chart.Numbers += (chart.Numbers.empty() ? "" : " ") + chart.Categories.back() + ": " +
                         DollarText(low) + " to " + DollarText(high) + ".";
    }
    chart.Sentence = sheet.Sentence;
    // The scale spans the bars, not zero, which may be far away.
    const double margin = std::max((highest - lowest) * 0.04, 0.5);
    SetSpan(chart, lowest - margin, highest + margin, mostSteps);
    return chart;
}

ChartFigures MakeMapChart(const NetMap& map) {
    ChartFigures chart;
    chart.Kind = ChartKind::NetMap;
    chart.Title = "What Is Left Each Month";
    ChartGrid& grid = chart.Grid;
    grid.Columns.assign(map.Price.begin(), map.Price.end());
    grid.Rows.assign(map.Savings.begin(), map.Savings.end());
    for (const auto& row : map.Net)
        grid.Nets.emplace_back(row.begin(), row.end());
    grid.ColumnNow = map.PriceNow;
    grid.RowNow = map.SavingsNow;
    for (const auto& row : grid.Nets) {
        for (const auto& net : row) {
            chart.Lowest = std::min(chart.Lowest, net ? static_cast<double>(*net) : 0.0);
            chart.Highest = std::max(chart.Highest, net ? static_cast<double>(*net) : 0.0);
        }
    }
    chart.Sentence = MapSheet(map).Sentence;
    chart.Numbers =
        "The cells reach from " + DollarText(chart.Lowest) + " to " + DollarText(chart.Highest) + " a month.";
    return chart;
}

std::string MapCellText(const ChartGrid& grid, std::size_t column, std::size_t row) {
    const std::string where = "A price difference of " + DollarText(grid.Columns[column]) +
                              " and a saving of " + DollarText(grid.Rows[row]) + " a year ";
    const auto& net = grid.Nets[row][column];
    if (!net)
        return where + "are not possible: the utility bill would be below $0.";
    return where + "leave " + DollarText(static_cast<double>(*net)) + " a month.";
}

} // namespace Ledgrove
