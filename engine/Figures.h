#pragma once

#include "engine/Results.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

// Every figure of the records by name, in the order of the records. All lists of figures use this table.
namespace Ledgrove {

enum class FigureUnit : std::uint8_t { Dollars, DollarsPerMonth, DollarsPerYear, Fraction, FractionPerYear };

// clang-format off
// One row per figure: its name, its unit and what it is.
#define LEDGROVE_HOME_FIGURES(X) \
    X(Cost, Dollars, "sticker price") \
    X(DownPayment, Dollars, "down payment") \
    X(LoanAmount, Dollars, "mortgage amount: the price less the down payment") \
    X(UtilAnnual, DollarsPerYear, "utility bills") \
    X(UtilMonthly, DollarsPerMonth, "utility bills") \
    X(IntRate, FractionPerYear, "interest rate") \
    X(Stretch, Fraction, "mortgage stretch; no formula uses it") \
    X(MortPayment, DollarsPerMonth, "principal and interest") \
    X(InsMonthly, DollarsPerMonth, "homeowner's insurance") \
    X(TaxMonthly, DollarsPerMonth, "real estate tax") \
    X(PMIMonthly, DollarsPerMonth, "private mortgage insurance (PMI)") \
    X(PITI, DollarsPerMonth, "principal, interest, taxes, insurance and PMI") \
    X(PITIU, DollarsPerMonth, "PITI and utility bills") \
    X(IncomeNeeded, DollarsPerYear, "income that both qualifying ratios require, in whole dollars") \
    X(MaxPayment, DollarsPerMonth, "largest payment that the buyer qualifies for") \
    X(MaxLoan, Dollars, "largest loan that the buyer qualifies for") \
    X(MaxHome, Dollars, "MaxLoan plus DownPayment") \
    X(TIPMonthly, DollarsPerMonth, "taxes, insurance and PMI") \
    X(PVSavings, Dollars, "present value of the utility savings; labelled home only") \
    X(FrontRatio, Fraction, "front-end qualifying ratio of the mortgage option") \
    X(BackRatio, Fraction, "back-end qualifying ratio of the mortgage option")

#define LEDGROVE_SCENARIO_FIGURES(X) \
    X(AnnualIncome, DollarsPerYear, "the buyer's income") \
    X(MarginalTaxRate, Fraction, "income tax rate of the buyer's bracket") \
    X(MonthlyDebt, DollarsPerMonth, "the buyer's debt payments") \
    X(PctDown, Fraction, "down payment as a share of the price") \
    X(FixedDown, Dollars, "down payment as an amount") \
    X(CostDifference, Dollars, "labelled price less base price, as typed") \
    X(ClosingCostAdjust, Dollars, "always 0") \
    X(EEMAllowance, Dollars, "energy allowance of an FHA or VA energy-efficient mortgage") \
    X(MortgageSavings, DollarsPerMonth, "base PITI less labelled PITI; negative if the labelled home costs more")\
    X(UtilitySavings, DollarsPerMonth, "base utility bills less labelled ones") \
    X(TaxSavings, DollarsPerMonth, "income tax saved by the labelled home") \
    X(ShownTaxSavings, DollarsPerMonth, "TaxSavings, or 0 if taxes are not included") \
    X(NetBeforeTax, DollarsPerMonth, "MortgageSavings plus UtilitySavings") \
    X(NetMonthlyCashFlow, DollarsPerMonth, "NetBeforeTax plus TaxSavings") \
    X(ExtraCashToday, Dollars, "labelled down payment less base down payment") \
    X(PriceDifference, Dollars, "labelled price less base price: the value of the energy efficiency upgrade") \
    X(PVNetBeforeTax, Dollars, "present value of NetBeforeTax over the term") \
    X(PVNetCashFlow, Dollars, "present value of NetMonthlyCashFlow over the term") \
    X(SavingsAfter7Years, Dollars, "future value of NetMonthlyCashFlow after 7 years") \
    X(SavingsAfterYearsInHome, Dollars, "the same after the expected years in the home") \
    X(SavingsAfter30Years, Dollars, "the same after 30 years")

#define LEDGROVE_STD_NAME(name, unit, meaning) Std##name,
#define LEDGROVE_GMH_NAME(name, unit, meaning) GMH##name,
#define LEDGROVE_OWN_NAME(name, unit, meaning) name,
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
    std::string_view Meaning; ///< "sticker price"
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
