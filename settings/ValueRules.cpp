#include "settings/ValueRules.h"

#include "base/Text.h"
#include "engine/NumberText.h"
#include "settings/LineSyntax.h"
#include "settings/NotesFile.h"
#include "settings/YearSettingsFile.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Ledgrove {

namespace {

enum class Unit { Percent, Fraction, Years, WholeYears, Choice };

struct NumberRule {
    std::string_view Key;
    Unit What;
    double Most; ///< the least is 0
};

constexpr NumberRule numberRules[] = {
    {Key::RealEstateTax, Unit::Percent, 100},  {Key::Insurance, Unit::Percent, 100},
    {Key::PVRate, Unit::Percent, 100},         {Key::PVTerm, Unit::Years, 100},
    {Key::YearsInHome, Unit::WholeYears, 100}, {Key::PMIMult1, Unit::Fraction, 1},
    {Key::PMIMult2, Unit::Fraction, 1},        {Key::PMIMult3, Unit::Fraction, 1},
    {Key::PMIMult4, Unit::Fraction, 1},        {Key::LogoOption, Unit::Choice, 2}};

const NumberRule* RuleOf(std::string_view key) {
    const auto* const found = std::find_if(std::begin(numberRules), std::end(numberRules),
                                           [key](const NumberRule& rule) { return rule.Key == key; });
    return found == std::end(numberRules) ? nullptr : found;
}

std::string_view Wanted(Unit unit) {
    switch (unit) {
    case Unit::Percent:
        return "a percentage from 0 to 100, such as 0.9";
    case Unit::Fraction:
        return "a fraction from 0 to 1, such as 0.0087";
    case Unit::Years:
        return "a number of years from 0 to 100, such as 30";
    case Unit::WholeYears:
        return "a whole number of years from 0 to 100, such as 7";
    case Unit::Choice:
        return "0 (no logo), 1 (the generic house) or 2 (your own logo)";
    }
    return {};
}

bool IsPercent(std::string_view key) {
    if (const YearSetting* const setting = FindYearSetting(key))
        return setting->IsPercent();
    const NumberRule* const rule = RuleOf(key);
    return rule && rule->What == Unit::Percent;
}

bool IsUsable(const NumberRule& rule, const std::string& text) {
    // The readers take commas for thousands separators, so "0,9" would be 9.
    if (text.find(',') != std::string::npos)
        return false;
    const std::optional<double> number = ToSingle(text);
    const bool isWhole = rule.What == Unit::WholeYears || rule.What == Unit::Choice;
    return number && *number >= 0 && *number <= rule.Most && (!isWhole || *number == std::floor(*number));
}

} // namespace

std::string StoredValue(std::string_view key, std::string_view value) {
    if (!RuleOf(key) && !FindYearSetting(key))
        return std::string(value);
    std::string_view number = Trimmed(value);
    if (IsPercent(key) && number.ends_with('%'))
        number = Trimmed(number.substr(0, number.size() - 1));
    return std::string(number);
}

std::optional<std::string> CheckValue(std::string_view key, std::string_view value) {
    const auto refuse = [&](std::string_view wanted) {
        return "The value " + Quoted(value) + " cannot be used for " + std::string(key) + ". Give " +
               std::string(wanted) + ".";
    };
    if (key == Key::PVFlag)
        return value == "TRUE" || value == "FALSE" ? std::nullopt : std::optional(refuse("TRUE or FALSE"));
    const NumberRule* const rule = RuleOf(key);
    if (rule && !IsUsable(*rule, StoredValue(key, value)))
        return refuse(Wanted(rule->What));
    if (const YearSetting* const setting = FindYearSetting(key)) {
        const bool hasComma = value.find(',') != std::string_view::npos;
        if (hasComma || !ReadYearValue(*setting, value))
            return refuse(WantedYearValue(*setting) + ", such as " + DefaultYearText(*setting));
    }
    const bool isNoted = std::any_of(NotedKeys.begin(), NotedKeys.end(),
                                     [key](const NotedKey& noted) { return noted.Note == key; });
    if (isNoted && !IsNote(value))
        return refuse("a value, its date (such as 2026-01-31, 2026 or nothing) and its source, separated by "
                      "\"|\"");
    return std::nullopt;
}

} // namespace Ledgrove
