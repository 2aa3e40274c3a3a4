#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/Session.h"

// The contents of the charts on the result tabs, as figures and as text. Amounts are dollars.
namespace Ledgrove {

enum class ChartKind {
    MonthlyCost,   ///< Cash Flow: the monthly cost of each home, its parts stacked
    Affordability, ///< the mortgage next to the largest loan that the buyer qualifies for
    Savings,       ///< Summary: the savings of the labelled home over the years
    Sensitivity,   ///< what moves the result: bars on both sides of the monthly net as it is now
    NetMap,        ///< the monthly net for many price differences and yearly savings
    Curves,        ///< amounts over the years, one curve or several
    Waterfall      ///< how inputs lead a figure from one comparison to another, a bar for each
};

/// The chart of a tab of the main screen; empty for a tab without a chart.
std::optional<ChartKind> ChartOfTab(int tab);

struct ChartSeries {
    std::string Name;
    std::vector<double> Values; ///< one per category, or one per year, beginning with year 0
    /// The amounts in words where they differ from the drawn values; empty for the values themselves.
    std::vector<std::string> Texts = {};

    bool operator==(const ChartSeries&) const = default;
};

/// A labelled year on the savings curve.
struct ChartMark {
    int Year = 0;
    double Value = 0;
    std::string Text;

    bool operator==(const ChartMark&) const = default;
};

struct ChartTick {
    double Value = 0;
    std::string Text;

    bool operator==(const ChartTick&) const = default;
};

/// A chart of coloured cells. Rows count from the smallest saving upwards.
struct ChartGrid {
    std::vector<double> Columns;                         ///< price differences
    std::vector<double> Rows;                            ///< yearly savings
    std::vector<std::vector<std::optional<float>>> Nets; ///< a row for each saving; empty: not possible
    double ColumnNow = 0;
    double RowNow = 0;

    bool operator==(const ChartGrid&) const = default;
};

/// A labelled point of a curve.
struct CurveMark {
    double At = 0; ///< in years
    double Value = 0;
    std::string Text;

    bool operator==(const CurveMark&) const = default;
};

/// Where the values of curves stand. The series have the same places.
struct ChartCurves {
    double First = 0;                ///< of the first value, in years
    double Step = 1;                 ///< from value to value, in years
    std::vector<CurveMark> Marks;    ///< in the order of their years
    std::optional<std::size_t> Main; ///< the series that is drawn thicker

    bool operator==(const ChartCurves&) const = default;
};

struct ChartFigures {
    ChartKind Kind = ChartKind::MonthlyCost;
    std::string Title;
    std::string Note;                    ///< stands after the title in the picture: an amount beyond the plot
    std::vector<std::string> Categories; ///< the homes; empty if the chart shows years
    std::vector<ChartSeries> Series;
    std::vector<ChartMark> Marks;
    double Middle = 0; ///< where the bars of the sensitivity begin
    ChartGrid Grid;    ///< of the map
    ChartCurves Curves;
    double Lowest = 0; ///< the lower end of the dollar axis; `Highest` is the upper end
    double Highest = 0;
    std::vector<ChartTick> Ticks; ///< round amounts within the axis, including 0
    std::string Sentence;         ///< describes the chart for a screen reader
    std::string Numbers;          ///< lists every amount of the chart by name

    bool operator==(const ChartFigures&) const = default;
};

/// The last year of the savings chart.
inline constexpr int ChartYears = 30;

/// Makes the chart of a tab from the session's current figures. An amount that cannot be computed is drawn as
/// 0.
ChartFigures MakeChart(ChartKind kind, const Session& session);

/// Sets the axis to reach from `lowest` to `highest`, with at most `mostSteps` round steps between them.
void SetSpan(ChartFigures& chart, double lowest, double highest, int mostSteps);

/// Sets the chart's axis so that it shows all values from `lowest` (0 or below) to `highest` (0 or above),
/// with at most `mostSteps` round steps. The axis ends at a round step above `highest`, but just below
/// `lowest`, because a month's savings are small compared with its cost.
void SetScale(ChartFigures& chart, double lowest, double highest, int mostSteps);

} // namespace Ledgrove
