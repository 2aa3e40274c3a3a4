#pragma once

#include "insight/Energy.h"
#include "insight/Exit.h"
#include "insight/Years.h"
#include "ui/ChartFigures.h"

// The pictures of the views over the years, as figures and in words.
namespace Ledgrove {

/// What the buyer is ahead by after each month, with the months in which PMI ends and from which the buyer is
/// ahead.
ChartFigures MakeYearsChart(const YearByYear& years);

/// The same after each year, for each growth of the utility bills and for the one in force, which is drawn
/// thicker. The views must be of the same comparison.
ChartFigures MakeEnergyChart(const YearByYear& years, const EnergyGrowth& energy);

/// What a sale at the end of each year leaves in total, marked at the years in the home.
ChartFigures MakeSaleChart(const SaleByYear& sale);

} // namespace Ledgrove
