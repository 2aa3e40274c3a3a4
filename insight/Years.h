#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "insight/Insight.h"
#include "insight/Sheet.h"
#include "insight/YearsHome.h"

// Both homes month by month and year by year: the loans as they are paid off, PMI until it ends, and bills
// and taxes that may grow.
namespace Ledgrove {

/// Both homes in a month or a year.
struct FlowRow {
    int Number = 0; ///< of the month or the year, counted from 1
    HomeFlow Std;
    HomeFlow GMH;
    double Saving = 0;     ///< base cost less labelled cost
    double Cumulative = 0; ///< the savings to the end, less the extra cash today
};

struct YearByYear {
    YearSettings By;      ///< the settings that the years go by
    double ExtraCash = 0; ///< what the labelled home takes more on the first day, in dollars
    int InHome = 1;       ///< the years in the home, at least 1 and at most the number of rows
    HomePlan Std;
    HomePlan GMH;
    std::vector<FlowRow> Years;  ///< as many as the term has, at least 30
    std::vector<FlowRow> Months; ///< of the same time
    /// The first month, 0 being today, from which the buyer stays ahead while in the home; empty for none.
    std::optional<int> Ahead;
    std::optional<double> NPV;            ///< worth of extra cash and savings today; empty beyond numbers
    std::optional<double> IRROnExtraCash; ///< per year, fraction, of the extra cash alone
    std::optional<double> IRRWithSale;    ///< the same, with both homes sold after the years in the home
    std::string Sentence;                 ///< why the Summary tab differs
};

/// The insight must not be missing.
YearByYear ComputeYears(const Insight& insight);

/// The twelve months of a year, which must have a row.
std::span<const FlowRow> MonthsOf(const YearByYear& years, int year);

/// Where nothing is lost any more: a cumulative amount within half a cent of 0.
inline constexpr double EvenFrom = -0.005;

/// Where something changes for good: mortgage insurance ends, or the buyer is ahead from then on.
struct YearsEvent {
    int Month = 0;    ///< 0 is today
    std::string Text; ///< "base: no PMI from month 93"
};

/// What changes in the months from `first` to `last`, in their order.
std::vector<YearsEvent> EventsBetween(const YearByYear& years, int first, int last);

enum class FlowColumns : std::uint8_t {
    Main, ///< what fits on paper
    All   ///< every figure of both homes
};

Sheet YearsSheet(const YearByYear& years, FlowColumns columns = FlowColumns::Main);

/// The months of one year, which must have a row, in the columns of YearsSheet.
Sheet YearMonthsSheet(const YearByYear& years, int year, FlowColumns columns = FlowColumns::Main);

} // namespace Ledgrove
