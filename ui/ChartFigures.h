#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/Session.h"

// What the charts of the result tabs draw, and the same in words. Amounts are dollars.
namespace Ledgrove {

enum class ChartKind {
    MonthlyCost,   ///< Cash Flow: what each home costs a month, one part on the other
    Affordability, ///< the mortgage beside the largest loan the buyer qualifies for
    Savings        ///< Summary: what the labelled home saves over the years
};

/// The chart of a tab of the main screen; nothing for the tabs without one.
std::optional<ChartKind> ChartOfTab(int tab);

struct ChartSeries {
    std::string Name;
    std::vector<double> Values; ///< one a category, or one a year from 0 on

    bool operator==(const ChartSeries&) const = default;
};

/// A year that is pointed out.
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

struct ChartFigures {
    ChartKind Kind = ChartKind::MonthlyCost;
    std::string Title;
    std::vector<std::string> Categories; ///< the homes; none where years are drawn
    std::vector<ChartSeries> Series;
    std::vector<ChartMark> Marks;
    double Lowest = 0; ///< where the axis of dollars begins and ends
    double Highest = 0;
    std::vector<ChartTick> Ticks; ///< round amounts between those, 0 among them
    std::string Sentence;         ///< what there is to see
    std::string Numbers;          ///< every drawn amount by name

    bool operator==(const ChartFigures&) const = default;
};

/// The last year of the savings' chart.
inline constexpr int ChartYears = 30;

/// The chart of the session's figures as they are. An amount that cannot be computed is drawn as 0.
ChartFigures MakeChart(ChartKind kind, const Session& session);

/// Gives the chart an axis on which everything from `lowest` (0 or below) to `highest` (0 or above) is seen:
/// `mostSteps` round steps at most, the last of them beyond the highest value. Values below 0 get their own
/// room only, since the savings of a month are small beside its cost.
void SetScale(ChartFigures& chart, double lowest, double highest, int mostSteps);

} // namespace Ledgrove
