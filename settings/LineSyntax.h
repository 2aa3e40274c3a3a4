#pragma once

#include "settings/SettingsFile.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The file has one setting per line: a key in upper case, an equals sign, the value.
namespace Ledgrove {

/// The keys that the program reads or writes.
namespace Key {
inline constexpr std::string_view BuilderName = "BUILDERNAME";
inline constexpr std::string_view LogoFile = "LOGOFILE";
inline constexpr std::string_view LogoOption = "LOGOOPTION";
inline constexpr std::string_view HelpFile = "HELPFILE";
inline constexpr std::string_view Feature1 = "FEATURE1";
inline constexpr std::string_view Feature2 = "FEATURE2";
inline constexpr std::string_view TaxCat = "TAXCAT";
inline constexpr std::string_view RealEstateTax = "ASSUMPTION1";
inline constexpr std::string_view Insurance = "ASSUMPTION2";
inline constexpr std::string_view PVRate = "PVSAVINGS_RATE";
inline constexpr std::string_view PVTerm = "PVSAVINGS_TERM";
inline constexpr std::string_view PVFlag = "PVSAVINGS_FLAG";
inline constexpr std::string_view YearsInHome = "YEARS_IN_HOME";
inline constexpr std::string_view PMIMult1 = "PMI_MULT1";
inline constexpr std::string_view PMIMult2 = "PMI_MULT2";
inline constexpr std::string_view PMIMult3 = "PMI_MULT3";
inline constexpr std::string_view PMIMult4 = "PMI_MULT4";
inline constexpr std::string_view GrowthUtilities = "GROWTH_UTILITIES";
inline constexpr std::string_view GrowthHome = "GROWTH_HOME";
inline constexpr std::string_view ExitAppreciation = "EXIT_APPRECIATION";
inline constexpr std::string_view ExitPremiumKept = "EXIT_PREMIUM_KEPT";
inline constexpr std::string_view ExitSellingCost = "EXIT_SELLING_COST";
inline constexpr std::string_view DeductionStandard = "DEDUCTION_STANDARD";
inline constexpr std::string_view DeductionSaltCap = "DEDUCTION_SALT_CAP";
inline constexpr std::string_view DeductionStateTax = "DEDUCTION_STATE_TAX";
inline constexpr std::string_view DeductionOther = "DEDUCTION_OTHER";
inline constexpr std::string_view DeductionDebtCap = "DEDUCTION_DEBT_CAP";
inline constexpr std::string_view LoanType = "LOANTYPE";
inline constexpr std::string_view HomeList = "HOMELIST";
inline constexpr std::string_view HomeSelectionDialog = "HOMESELECTIONDIALOG";
} // namespace Key

/// Whether the line begins with exactly this key. The text after the key is not checked, so a line with a
/// longer key that begins with this one matches too.
bool BelongsTo(std::string_view line, std::string_view key);

/// The text after the key and the next character, which is not checked.
std::string_view ValueOf(std::string_view line, std::string_view key);

/// The index of the key's last line, which is the one that counts; empty if there is none.
std::optional<std::size_t> LastLineOf(const FileLines& lines, std::string_view key);

/// Splits a list value into its fields.
class FieldSplitter {
public:
    explicit FieldSplitter(std::string_view value)
        : m_rest(value) {}

    /// The text before the next comma. The field after the last comma is returned again by every further
    /// call, so a short line repeats its last field. Empty if no text is left.
    std::optional<std::string_view> Next();

private:
    std::string_view m_rest;
};

/// Reads a number in single precision; empty if the text is not a number.
std::optional<float> ToSingle(std::string_view text);

/// Reads a number and rounds it to a 16-bit whole number, halves to even. Empty if the text is not a number
/// or is out of range.
std::optional<std::int16_t> ToInteger(std::string_view text);

/// The same, rounded down.
std::optional<std::int16_t> ToIntegerDown(std::string_view text);

/// A fault that names the line; `line` is counted from 0 here and from 1 in the fault.
SettingsFault BadLine(const SettingsFile& file, const FileLines& lines, std::size_t line,
                      std::string_view reason);

} // namespace Ledgrove
