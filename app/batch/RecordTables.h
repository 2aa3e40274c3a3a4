#pragma once

#include <string_view>

#include "engine/TypeDeclarations.h"

// The records' figures by name, for output that lists them all.
namespace Ledgrove {

template <typename Record>
struct Figure {
    std::string_view Name;
    float Record::*Member;
};

#define LEDGROVE_FIGURE(record, name)                                                                        \
    { #name, &record::name }

inline constexpr Figure<HomeCase> HomeFigures[] = {
    LEDGROVE_FIGURE(HomeCase, Cost),        LEDGROVE_FIGURE(HomeCase, DownPayment),
    LEDGROVE_FIGURE(HomeCase, LoanAmount),  LEDGROVE_FIGURE(HomeCase, UtilAnnual),
    LEDGROVE_FIGURE(HomeCase, UtilMonthly), LEDGROVE_FIGURE(HomeCase, IntRate),
    LEDGROVE_FIGURE(HomeCase, Stretch),     LEDGROVE_FIGURE(HomeCase, MortPayment),
    LEDGROVE_FIGURE(HomeCase, InsMonthly),  LEDGROVE_FIGURE(HomeCase, TaxMonthly),
    LEDGROVE_FIGURE(HomeCase, PMIMonthly),  LEDGROVE_FIGURE(HomeCase, PITI),
    LEDGROVE_FIGURE(HomeCase, PITIU),       LEDGROVE_FIGURE(HomeCase, IncomeNeeded),
    LEDGROVE_FIGURE(HomeCase, MaxPayment),  LEDGROVE_FIGURE(HomeCase, MaxLoan),
    LEDGROVE_FIGURE(HomeCase, MaxHome),     LEDGROVE_FIGURE(HomeCase, TIPMonthly),
    LEDGROVE_FIGURE(HomeCase, PVSavings),   LEDGROVE_FIGURE(HomeCase, FrontRatio),
    LEDGROVE_FIGURE(HomeCase, BackRatio),
};

inline constexpr Figure<Scenario> ScenarioFigures[] = {
    LEDGROVE_FIGURE(Scenario, AnnualIncome),        LEDGROVE_FIGURE(Scenario, MarginalTaxRate),
    LEDGROVE_FIGURE(Scenario, MonthlyDebt),         LEDGROVE_FIGURE(Scenario, PctDown),
    LEDGROVE_FIGURE(Scenario, FixedDown),           LEDGROVE_FIGURE(Scenario, CostDifference),
    LEDGROVE_FIGURE(Scenario, ClosingCostAdjust),   LEDGROVE_FIGURE(Scenario, EEMAllowance),
    LEDGROVE_FIGURE(Scenario, MortgageSavings),     LEDGROVE_FIGURE(Scenario, UtilitySavings),
    LEDGROVE_FIGURE(Scenario, TaxSavings),          LEDGROVE_FIGURE(Scenario, ShownTaxSavings),
    LEDGROVE_FIGURE(Scenario, NetBeforeTax),        LEDGROVE_FIGURE(Scenario, NetMonthlyCashFlow),
    LEDGROVE_FIGURE(Scenario, ExtraCashToday),      LEDGROVE_FIGURE(Scenario, PriceDifference),
    LEDGROVE_FIGURE(Scenario, PVNetBeforeTax),      LEDGROVE_FIGURE(Scenario, PVNetCashFlow),
    LEDGROVE_FIGURE(Scenario, SavingsAfter7Years),  LEDGROVE_FIGURE(Scenario, SavingsAfterYearsInHome),
    LEDGROVE_FIGURE(Scenario, SavingsAfter30Years),
};

#undef LEDGROVE_FIGURE

} // namespace Ledgrove
