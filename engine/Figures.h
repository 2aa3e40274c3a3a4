#pragma once

#include "engine/Results.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

// Every figure of the records by name, in the order of the records. All lists of figures use this table.
namespace Ledgrove {

enum class FigureUnit : std::uint8_t { Dollars, DollarsPerMonth, DollarsPerYear, Fraction, FractionPerYear };

// One row per figure: its name and its unit.
#define LEDGROVE_HOME_FIGURES(X)                                                                             \
    X(Cost, Dollars)                                                                                         \
    X(DownPayment, Dollars)                                                                                  \
    X(LoanAmount, Dollars)                                                                                   \
    X(UtilAnnual, DollarsPerYear)                                                                            \
    X(UtilMonthly, DollarsPerMonth)                                                                          \
    X(IntRate, FractionPerYear)                                                                              \
    X(Stretch, Fraction)                                                                                     \
    X(MortPayment, DollarsPerMonth)                                                                          \
    X(InsMonthly, DollarsPerMonth)                                                                           \
    X(TaxMonthly, DollarsPerMonth)                                                                           \
    X(PMIMonthly, DollarsPerMonth)                                                                           \
    X(PITI, DollarsPerMonth)                                                                                 \
    X(PITIU, DollarsPerMonth)                                                                                \
    X(IncomeNeeded, DollarsPerYear)                                                                          \
    X(MaxPayment, DollarsPerMonth)                                                                           \
    X(MaxLoan, Dollars)                                                                                      \
    X(MaxHome, Dollars)                                                                                      \
    X(TIPMonthly, DollarsPerMonth)                                                                           \
    X(PVSavings, Dollars)                                                                                    \
    X(FrontRatio, Fraction)                                                                                  \
    X(BackRatio, Fraction)

#define LEDGROVE_SCENARIO_FIGURES(X)                                                                         \
    X(AnnualIncome, DollarsPerYear)                                                                          \
    X(MarginalTaxRate, Fraction)                                                                             \
    X(MonthlyDebt, DollarsPerMonth)                                                                          \
    X(PctDown, Fraction)                                                                                     \
    X(FixedDown, Dollars)                                                                                    \
    X(CostDifference, Dollars)                                                                               \
    X(ClosingCostAdjust, Dollars)                                                                            \
    X(EEMAllowance, Dollars)                                                                                 \
    X(MortgageSavings, DollarsPerMonth)                                                                      \
    X(UtilitySavings, DollarsPerMonth)                                                                       \
    X(TaxSavings, DollarsPerMonth)                                                                           \
    X(ShownTaxSavings, DollarsPerMonth)                                                                      \
    X(NetBeforeTax, DollarsPerMonth)                                                                         \
    X(NetMonthlyCashFlow, DollarsPerMonth)                                                                   \
    X(ExtraCashToday, Dollars)                                                                               \
    X(PriceDifference, Dollars)                                                                              \
    X(PVNetBeforeTax, Dollars)                                                                               \
    X(PVNetCashFlow, Dollars)                                                                                \
    X(SavingsAfter7Years, Dollars)                                                                           \
    X(SavingsAfterYearsInHome, Dollars)                                                                      \
    X(SavingsAfter30Years, Dollars)

// clang-format off
#define LEDGROVE_STD_NAME(name, unit) Std##name,
#define LEDGROVE_GMH_NAME(name, unit) GMH##name,
#define LEDGROVE_OWN_NAME(name, unit) name,
/// The figures of a home begin with "Std" or "GMH", like the names of the controls.
enum class Figure : std::uint8_t {
    LEDGROVE_HOME_FIGURES(LEDGROVE_STD_NAME)
    LEDGROVE_HOME_FIGURES(LEDGROVE_GMH_NAME)
    LEDGROVE_SCENARIO_FIGURES(LEDGROVE_OWN_NAME)
};
#undef LEDGROVE_STD_NAME
#undef LEDGROVE_GMH_NAME
#undef LEDGROVE_OWN_NAME
// clang-format on

enum class FigureRecord : std::uint8_t { StdCase, GMHCase, Scenario };

struct FigureEntry {
    Figure Id;
    FigureRecord Record;
    std::string_view Name;     ///< "Cost"
    std::string_view FullName; ///< with the name of its record, "StdCase.Cost"
    FigureUnit Unit;
    float (*Value)(const Records& records);
};

/// Every figure, in the order of `Figure`.
std::span<const FigureEntry> FigureTable();

/// The figures of one record.
std::span<const FigureEntry> FiguresOf(FigureRecord record);

/// The table's entry for a figure.
inline const FigureEntry& EntryOf(Figure figure) {
    return FigureTable()[static_cast<std::size_t>(figure)];
}

} // namespace Ledgrove
