#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

// The choices that the rules made, so that a program can explain a figure. A decision that was not reached,
// for example after a fault, keeps its initial value.
namespace Ledgrove {

/// Why a home's figures, or the remaining figures of the cash flow, are 0.
enum class Fault : std::uint8_t {
    None,
    MissingLoanType, ///< no option is chosen, or the loan-type table has no row for the option
    ZeroRatio,       ///< a qualifying ratio of 0
    ZeroBasePrice,   ///< a fixed down payment on a base price of 0
    OutOfRange       ///< a result is not finite or exceeds single precision
};

enum class DownPaymentBase : std::uint8_t {
    None, ///< no price, so no down payment
    FixedAmount,
    OwnPrice,
    BasePrice ///< the upgrade is financed, so the percentage applies to the base home's price
};

/// The band of the down payment as a fraction of the price. A value on an edge belongs to the higher band.
enum class PMIBand : std::uint8_t { None, Below5, Below10, Below15, Below20, NoPMI };

enum class QualifyingRatio : std::uint8_t { None, FrontEnd, BackEnd, Both };

enum class PaymentRule : std::uint8_t {
    None,
    Ordinary,
    Stretched,    ///< the monthly savings count as income
    PlainPartner, ///< the plain option's ratios apply, because the savings are not worth the upgrade
};

enum class LoanRule : std::uint8_t {
    None,
    FromPayment,
    WithSavings,  ///< the present value of the savings is added
    WithAllowance ///< the energy allowance is added
};

enum class AllowanceRule : std::uint8_t {
    Kept, ///< the option sets no allowance, so the last value stays
    ShareOfPrice,
    Least,
    Most
};

enum class SavingsTerms : std::uint8_t {
    None,
    Loan,       ///< the rate and term of the labelled home's loan
    PVVariables ///< the rate and term in the assumptions
};

struct HomeDecisions {
    DownPaymentBase DownPayment = DownPaymentBase::None;
    PMIBand PMI = PMIBand::None;
    QualifyingRatio IncomeNeeded = QualifyingRatio::None; ///< requires more income, in whole dollars
    PaymentRule MaxPayment = PaymentRule::None;
    QualifyingRatio MaxPaymentRatio = QualifyingRatio::None; ///< allows the smaller payment
    LoanRule MaxLoan = LoanRule::None;
    bool PaymentCarriesLoan = false;        ///< MaxPayment was recomputed from MaxLoan
    Fault CaseFault = Fault::None;          ///< set the home's monthly cost to 0
    Fault AffordabilityFault = Fault::None; ///< set MaxPayment, MaxLoan and MaxHome to 0

    bool operator==(const HomeDecisions&) const = default;
};

struct Decisions {
    HomeDecisions Std;
    HomeDecisions GMH;
    SavingsTerms PVSavings = SavingsTerms::None;
    AllowanceRule Allowance = AllowanceRule::Kept;
    std::optional<std::size_t> TaxBracket; ///< index into the schedule, empty when no bracket matches
    bool StaysBeyondTerm = false;          ///< only three quarters of the tax savings count
    Fault CashFlowFault = Fault::None;     ///< results after the fault are 0

    bool operator==(const Decisions&) const = default;
};

} // namespace Ledgrove
