#pragma once

#include <optional>

namespace Ledgrove {

/// The seven mortgage options. The number of an option is its pick-list code and its row in the loan-type
/// table, counted from 1.
enum class MortgageOption { Conventional = 1, FannieMaeEEM, FreddieMacEEM, FHA, FHAEEM, VA, VAEEM };

/// What an energy-efficient mortgage (EEM) does with savings that are worth the upgrade.
enum class EEMBenefit {
    None,
    StretchedPayment, ///< they raise the payment that the buyer qualifies for
    FinancedUpgrade   ///< the upgrade needs no down payment of its own, and an allowance raises the largest
                      ///< loan
};

constexpr int CodeOf(MortgageOption option) {
    return static_cast<int>(option);
}

/// The option with this pick-list code, nothing for a code that no option has.
constexpr std::optional<MortgageOption> OptionOfCode(int code) {
    if (code < CodeOf(MortgageOption::Conventional) || code > CodeOf(MortgageOption::VAEEM))
        return std::nullopt;
    return static_cast<MortgageOption>(code);
}

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

/// The option without energy savings of the same group; a plain option is its own.
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
