#pragma once

#include "settings/SettingsFile.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// One setting a line: a key in upper case, an equals sign, the value.
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
inline constexpr std::string_view LoanType = "LOANTYPE";
inline constexpr std::string_view HomeList = "HOMELIST";
inline constexpr std::string_view HomeSelectionDialog = "HOMESELECTIONDIALOG";
} // namespace Key

/// Whether the line begins with the key, to the letter. What follows the key is not looked at, so a longer
/// key that begins with this one belongs to it too.
bool BelongsTo(std::string_view line, std::string_view key);

/// Everything behind the key and the one character after it, whatever that is.
std::string_view ValueOf(std::string_view line, std::string_view key);

/// The last line of the key decides; empty where there is none.
std::optional<std::size_t> LastLineOf(const FileLines& lines, std::string_view key);

/// Takes a list value apart, field by field.
class FieldSplitter {
public:
    explicit FieldSplitter(std::string_view value)
        : m_rest(value) {}

    /// The text before the next comma. Behind the last comma the same text comes again for every further
    /// field, so that a short line repeats its last field; empty once nothing is left.
    std::optional<std::string_view> Next();

private:
    std::string_view m_rest;
};

/// A number in single precision; empty where the text is none.
std::optional<float> ToSingle(std::string_view text);

/// A 16-bit whole number; a half goes to the even neighbour. Empty where the text is none or out of range.
std::optional<std::int16_t> ToInteger(std::string_view text);

/// The same, rounded down.
std::optional<std::int16_t> ToIntegerDown(std::string_view text);

/// A fault that names the line; `line` counts from 0 here and from 1 in the fault.
SettingsFault BadLine(const SettingsFile& file, const FileLines& lines, std::size_t line,
                      std::string_view reason);

} // namespace Ledgrove
