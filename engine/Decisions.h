#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

// Which way each rule went, so that a figure can be explained afterwards. A decision that was not reached, as
// after a fault, keeps its first value.
namespace Ledgrove {

/// Why a home's figures, or the cash flow from there on, are 0.
enum class Fault : std::uint8_t {
    None,
    MissingLoanType, ///< no option is chosen, or the loan-type table has no row for it
    ZeroRatio,       ///< a qualifying ratio of 0
    ZeroBasePrice,   ///< a fixed down payment on a base price of 0
    OutOfRange       ///< a result that is not finite or beyond single precision
};

enum class DownPaymentBase : std::uint8_t {
    None, ///< no price, so no down payment
    FixedAmount,
    OwnPrice,
    BasePrice ///< the upgrade is financed: the percentage is taken of the base home's price
};

/// By the down payment as a fraction of the price; an edge belongs to the band above it.
enum class PMIBand : std::uint8_t { None, Below5, Below10, Below15, Below20, NoPMI };

enum class QualifyingRatio : std::uint8_t { None, FrontEnd, BackEnd };

enum class PaymentRule : std::uint8_t {
    None,
    Ordinary,
    Stretched,    ///< the monthly savings count as income
    PlainPartner, ///< by the ratios of the plain option, since the savings are not worth the upgrade
};

enum class LoanRule : std::uint8_t {
    None,
    FromPayment,
    WithSavings,  ///< the savings' present value is added
    WithAllowance ///< the energy allowance is added
};

enum class AllowanceRule : std::uint8_t {
    Kept, ///< the option sets no allowance, the last one stays
    ShareOfPrice,
    Least,
    Most
};

enum class SavingsTerms : std::uint8_t {
    None,
    Loan,       ///< the labelled loan's rate and term
    PVVariables ///< those of the assumptions
};

struct HomeDecisions {
    DownPaymentBase DownPayment = DownPaymentBase::None;
    PMIBand PMI = PMIBand::None;
    QualifyingRatio IncomeNeeded = QualifyingRatio::None; ///< the ratio that asks for more income
    PaymentRule MaxPayment = PaymentRule::None;
    QualifyingRatio MaxPaymentRatio = QualifyingRatio::None; ///< the ratio that allows less
    LoanRule MaxLoan = LoanRule::None;
    bool PaymentCarriesLoan = false;        ///< MaxPayment was computed again from MaxLoan
    Fault CaseFault = Fault::None;          ///< cleared the monthly cost
    Fault AffordabilityFault = Fault::None; ///< cleared MaxPayment, MaxLoan and MaxHome

    bool operator==(const HomeDecisions&) const = default;
};

struct Decisions {
    HomeDecisions Std;
    HomeDecisions GMH;
    SavingsTerms PVSavings = SavingsTerms::None;
    AllowanceRule Allowance = AllowanceRule::Kept;
    std::optional<std::size_t> TaxBracket; ///< index into the schedule, empty when no bracket matches
    bool StaysBeyondTerm = false;          ///< three quarters of the tax savings count
    Fault CashFlowFault = Fault::None;     ///< results from its place on are 0

    bool operator==(const Decisions&) const = default;
};

} // namespace Ledgrove
