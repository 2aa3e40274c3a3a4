#pragma once

#include <cstdint>
#include <string>
#include <vector>

// The records that several layers share. Amounts are dollars in single precision, rounded once when stored;
// rates are fractions (0.075 is 7.5 %) unless a comment says percent.
namespace Ledgrove {

enum class HomeCode { Std, GMH };

/// One of the two homes. `StdCase` is the base home, `GMHCase` the energy-efficiency-labelled one.
struct HomeCase {
    float Cost = 0; ///< sticker price
    float DownPayment = 0;
    float LoanAmount = 0; ///< Cost less DownPayment
    float UtilAnnual = 0; ///< utility bill per year, as entered
    float UtilMonthly = 0;
    float IntRate = 0;      ///< per year, fraction
    float Stretch = 0;      ///< mortgage stretch, fraction
    float MortPayment = 0;  ///< principal and interest per month
    float InsMonthly = 0;   ///< home-owner's insurance per month
    float TaxMonthly = 0;   ///< real-estate tax per month
    float PMIMonthly = 0;   ///< private mortgage insurance per month
    float PITI = 0;         ///< principal, interest, taxes and insurance (PMI included) per month
    float PITIU = 0;        ///< PITI and utilities per month
    float IncomeNeeded = 0; ///< per year, whole dollars
    float MaxPayment = 0;   ///< largest monthly payment the buyer qualifies for
    float MaxLoan = 0;      ///< largest loan the buyer qualifies for
    float MaxHome = 0;      ///< MaxLoan plus DownPayment
    float TIPMonthly = 0;   ///< taxes, insurance and PMI per month
    float PVSavings = 0;    ///< present value of the monthly utility savings, labelled home only
    float FrontRatio = 0;   ///< front-end (housing) qualifying ratio, fraction
    float BackRatio = 0;    ///< back-end (total debt) qualifying ratio, fraction

    bool operator==(const HomeCase&) const = default;
};

/// The buyer's inputs and the comparison's results; savings and cash flow are per month.
struct Scenario {
    float AnnualIncome = 0;
    float MarginalTaxRate = 0; ///< fraction
    float MonthlyDebt = 0;
    float PctDown = 0; ///< fraction
    float FixedDown = 0;
    float CostDifference = 0;    ///< labelled price less base price, as typed
    float ClosingCostAdjust = 0; ///< always 0, because nothing sets it
    float EEMAllowance = 0;      ///< FHA or VA energy allowance; keeps its last value, by design
    float MortgageSavings = 0;   ///< negative when the labelled home costs more
    float UtilitySavings = 0;
    float TaxSavings = 0;
    float ShownTaxSavings = 0; ///< TaxSavings, or 0 while the tax box is not checked
    float NetBeforeTax = 0;
    float NetMonthlyCashFlow = 0; ///< includes TaxSavings even if the tax box is not checked
    float ExtraCashToday = 0;
    float PriceDifference = 0;
    float PVNetBeforeTax = 0;
    float PVNetCashFlow = 0;
    float SavingsAfter7Years = 0;
    float SavingsAfterYearsInHome = 0;
    float SavingsAfter30Years = 0;
    bool DownAsPercent = true;    ///< true: the percent field applies, false: the fixed amount
    bool EEMNoticeFlag = false;   ///< set by edits that can change the EEM eligibility, cleared once checked
    std::int16_t YearsInHome = 0; ///< the assumption used for the results

    bool operator==(const Scenario&) const = default;
};

/// The financial assumptions. There are no built-in defaults: a value is 0 until it is read from the settings
/// file.
struct AssumptionSet {
    float RealEstateTaxPct = 0; ///< percent of the price per year
    float InsurancePct = 0;     ///< percent of the price per year
    float PVRate = 0;           ///< per year, fraction
    float PVTerm = 0;           ///< years
    bool UsePVVars = false; ///< true: PVRate and PVTerm; false: the labelled home's mortgage rate and term
    std::int16_t YearsInHome = 0;
    float PMIMult1 = 0; ///< annual PMI premium as a fraction of the loan, below 5 % down
    float PMIMult2 = 0; ///< below 10 % down
    float PMIMult3 = 0; ///< below 15 % down
    float PMIMult4 = 0; ///< below 20 % down
};

/// One `LOANTYPE` line. The texts 3, 6, 7 and 8 are only kept for saving; no computation uses them.
struct LoanType {
    std::int16_t Number = 0;
    std::string Name;
    std::string Text3;
    float FrontRatio = 0; ///< fraction
    float BackRatio = 0;  ///< fraction
    std::string Text6;
    std::string Text7;
    std::string Text8;
    bool IsEEM = false;
};

/// The loan types in file order. The pick-list code k selects the k-th record, counted from 1.
using LoanTypeList = std::vector<LoanType>;

/// One income tax bracket, in dollars per year. It applies to incomes above LowEnd, up to and including
/// HighEnd.
struct TaxBracket {
    float LowEnd = -1;
    float HighEnd = 0; ///< -1: no upper limit
    float Rate = 0;    ///< percent
};

using TaxSchedule = std::vector<TaxBracket>;

/// A saved pair of homes.
struct House {
    std::string Name;
    float StdCost = 0;
    float StdUtil = 0; ///< per year
    float GMHCost = 0;
    float GMHUtil = 0; ///< per year
};

using HouseList = std::vector<House>;

/// The two additional features of the More Home tab.
struct FeatureTexts {
    std::string Feature1 = " ";
    std::string Feature2 = " ";
};

} // namespace Ledgrove
