#include "ui/TriedSettings.h"

#include "settings/SettingsFile.h"

#include <cmath>

namespace Ledgrove {

namespace {

std::size_t PlaceOf(const YearSetting& setting) {
    return static_cast<std::size_t>(&setting - YearSettingTable.data());
}

bool IsSaved(const std::optional<SettingsFault>& fault) {
    using Kind = SettingsFault::Kind;
    return !fault || fault->What == Kind::InterruptedSave || fault->What == Kind::Unconfirmed;
}

} // namespace

std::optional<double>& TriedSettings::TriedOf(const YearSetting& setting) {
    return m_tried[PlaceOf(setting)];
}

void TriedSettings::Reload() {
    if (const auto lines = SettingsFile(m_session.Folder).ReadLines())
        m_session.Years = Module1::ReadYearSettings(*lines);
}

YearSettings TriedSettings::InForce() const {
    YearSettings settings = m_session.Years;
    for (const YearSetting& setting : YearSettingTable) {
        if (const auto& tried = m_tried[PlaceOf(setting)])
            settings.*setting.Value = *tried / setting.Divisor;
    }
    return settings;
}

bool TriedSettings::IsTried(const YearSetting& setting) const {
    return m_tried[PlaceOf(setting)].has_value();
}

std::string TriedSettings::Try(std::string_view key, std::string_view text) {
    const YearSetting& setting = *FindYearSetting(key);
    auto number = ReadYearValue(setting, text);
    if (!number)
        return '"' + std::string(text) + "\" is not " + WantedYearValue(setting) + "; " +
               ShownYearValue(setting, InForce()) + " stays in force.";
    // The answers say whole dollars, so the field has them too.
    if (!setting.IsPercent())
        number = std::round(*number);
    TriedOf(setting) = number;
    if (*number / setting.Divisor == m_session.Years.*setting.Value)
        TriedOf(setting).reset();
    return {};
}

void TriedSettings::Forget(const std::vector<std::string_view>& keys) {
    for (const std::string_view key : keys)
        TriedOf(*FindYearSetting(key)).reset();
}

std::optional<SettingsFault> TriedSettings::Keep(const std::vector<std::string_view>& keys) {
    const YearSettings wanted = InForce();
    std::vector<Module1::YearSettingEntry> texts;
    for (const std::string_view key : keys) {
        const YearSetting& setting = *FindYearSetting(key);
        if (IsTried(setting))
            texts.push_back({&setting, ShownYearValue(setting, wanted)});
    }
    if (texts.empty())
        return std::nullopt;
    // Held from the reading to the save, so that no save of another copy of the program is lost.
    const auto held = SettingsFile(m_session.Folder).Hold();
    if (!held)
        return held.Fault();
    const auto lines = held->ReadLines();
    if (!lines)
        return lines.Fault();
    SettingsDraft draft(*held, *lines);
    if (auto refused = Module1::WriteYearSettings(draft, texts))
        return refused;
    auto fault = draft.Save();
    if (!IsSaved(fault))
        return fault;
    m_session.Years = Module1::ReadYearSettings(draft.Lines());
    Forget(keys);
    return fault;
}

} // namespace Ledgrove
