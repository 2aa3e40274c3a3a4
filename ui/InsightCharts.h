#pragma once

#include "insight/Map.h"
#include "insight/Sensitivity.h"
#include "ui/ChartFigures.h"

// The pictures of the insight views, as figures and in words.
namespace Ledgrove {

/// Two bars for each input, from the monthly net now to the net with the input's lower and higher value.
/// Inputs that do not move the net are left out.
ChartFigures MakeSensitivityChart(const Insight& insight, const Sensitivity& sensitivity);

/// A cell for each price difference and yearly saving.
ChartFigures MakeMapChart(const NetMap& map);

/// What a cell of the map stands for: "A price difference of $6,000 and a saving of $700 a year leave $12 a
/// month."
std::string MapCellText(const ChartGrid& grid, std::size_t column, std::size_t row);

} // namespace Ledgrove
