#pragma once

#include "engine/YearSettings.h"
#include "settings/LineSyntax.h"
#include "settings/Rewrite.h"
#include "settings/SettingsFile.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// The settings of the views over the years in the settings file.
namespace Ledgrove {

/// A setting as the file holds it.
struct YearSetting {
    std::string_view Key;
    double YearSettings::*Value;
    double Divisor; ///< 100 for a percentage, of which the record holds the fraction
    double Least;   ///< in the file's unit, like Most
    double Most;

    bool IsPercent() const { return Divisor != 1; }
};

inline constexpr double MostYearAmount = 1'000'000'000;

inline constexpr std::array<YearSetting, 10> YearSettingTable{
    {{Key::GrowthUtilities, &YearSettings::UtilityGrowth, 100, -20, 20},
     {Key::GrowthHome, &YearSettings::HomeGrowth, 100, -20, 20},
     {Key::ExitAppreciation, &YearSettings::Appreciation, 100, -20, 20},
     {Key::ExitPremiumKept, &YearSettings::PremiumKept, 100, 0, 100},
     {Key::ExitSellingCost, &YearSettings::SellingCost, 100, 0, 100},
     {Key::DeductionStandard, &YearSettings::StandardDeduction, 1, 0, MostYearAmount},
     {Key::DeductionSaltCap, &YearSettings::SaltCap, 1, 0, MostYearAmount},
     {Key::DeductionStateTax, &YearSettings::StateTax, 1, 0, MostYearAmount},
     {Key::DeductionOther, &YearSettings::OtherDeductions, 1, 0, MostYearAmount},
     {Key::DeductionDebtCap, &YearSettings::DebtCap, 1, 0, MostYearAmount}}};

/// The table's row for a key; nullptr for any other key.
const YearSetting* FindYearSetting(std::string_view key);

/// The number of a value in the file's unit; empty if it is not a number or not in the range. A percentage
/// may end in "%", and a comma in it is refused, because "6,5" would be 65.
std::optional<double> ReadYearValue(const YearSetting& setting, std::string_view value);

/// The value without a line, as plain text in the file's unit.
std::string DefaultYearText(const YearSetting& setting);

/// The value in force as a field shows it: "6.00%", "$32,200". A percentage has at least two decimals.
std::string ShownYearValue(const YearSetting& setting, const YearSettings& settings);

/// What the value has to be: "a percentage from 0 to 100".
std::string WantedYearValue(const YearSetting& setting);

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// The last line of a key counts. A key without a line, or whose value cannot be used, has its initial value.
YearSettings ReadYearSettings(const FileLines& lines);

/// The same from the file; on a fault the settings do not change.
std::optional<SettingsFault> LoadYearSettings(const SettingsFile& file, YearSettings& settings);

/// A setting with its new text, as a field shows it: "6.00%", "$32,200".
struct YearSettingEntry {
    const YearSetting* Setting = nullptr;
    std::string Text;
};

/// Replaces or appends these keys, without "%", "$" and commas, and changes no other line.
std::optional<SettingsFault> WriteYearSettings(SettingsDraft& draft, std::span<const YearSettingEntry> texts);

/// The key's value in force, plain and in the file's unit. A last line that cannot be used is a fault.
Outcome<std::string> YearSettingText(const SettingsFile& file, const FileLines& lines,
                                     const YearSetting& setting);

} // namespace Ledgrove::Module1
