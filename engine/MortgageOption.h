#pragma once

#include <optional>

namespace Ledgrove {

/// The seven mortgage options. Their numbers are the codes of the pick lists and the rows of the loan-type
/// table, counted from 1.
enum class MortgageOption { Conventional = 1, FannieMaeEEM, FreddieMacEEM, FHA, FHAEEM, VA, VAEEM };

/// How an energy-efficient mortgage (EEM) counts savings that are worth the upgrade.
enum class EEMBenefit {
    None,
    StretchedPayment, ///< they raise the payment that the buyer qualifies for
    FinancedUpgrade   ///< the upgrade needs no down payment, and an allowance raises the largest loan
};

/// The option's pick-list code, 1 to 7.
constexpr int CodeOf(MortgageOption option) {
    return static_cast<int>(option);
}

/// The option with this pick-list code; empty for an unknown code.
constexpr std::optional<MortgageOption> OptionOfCode(int code) {
    if (code < CodeOf(MortgageOption::Conventional) || code > CodeOf(MortgageOption::VAEEM))
        return std::nullopt;
    return static_cast<MortgageOption>(code);
}

/// How the option counts savings that are worth the upgrade.
constexpr EEMBenefit BenefitOf(MortgageOption option) {
    switch (option) {
    case MortgageOption::FannieMaeEEM:
    case MortgageOption::FreddieMacEEM:
        return EEMBenefit::StretchedPayment;
    case MortgageOption::FHAEEM:
    case MortgageOption::VAEEM:
        return EEMBenefit::FinancedUpgrade;
    case MortgageOption::Conventional:
    case MortgageOption::FHA:
    case MortgageOption::VA:
        break;
    }
    return EEMBenefit::None;
}

/// The option of the same group that is not an EEM; a plain option is its own partner.
constexpr MortgageOption PlainPartner(MortgageOption option) {
    switch (option) {
    case MortgageOption::FHA:
    case MortgageOption::FHAEEM:
        return MortgageOption::FHA;
    case MortgageOption::VA:
    case MortgageOption::VAEEM:
        return MortgageOption::VA;
    case MortgageOption::Conventional:
    case MortgageOption::FannieMaeEEM:
    case MortgageOption::FreddieMacEEM:
        break;
    }
    return MortgageOption::Conventional;
}

} // namespace Ledgrove
