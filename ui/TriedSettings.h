#pragma once

#include "engine/Session.h"
#include "settings/SettingsFault.h"
#include "settings/YearSettingsFile.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Ledgrove {

/// The settings of the views over the years while the Insight window is open: what is tried there holds for
/// its answers until it is kept in Ledgrove.ini or given up.
class TriedSettings {
public:
    /// `session` holds the kept settings and must outlive the object.
    explicit TriedSettings(Session& session)
        : m_session(session) {}

    /// Reads the kept settings again, which another copy of the program or an editor may have changed. If the
    /// file cannot be read, the session's stay in force.
    void Reload();

    /// The kept settings, with those that are tried in their place.
    YearSettings InForce() const;

    bool IsTried(const YearSetting& setting) const;

    /// Tries a typed text; an amount is rounded to whole dollars. A text that cannot be used changes nothing;
    /// the result is a sentence about it, else "". `key` must be one of the table.
    std::string Try(std::string_view key, std::string_view text);

    /// Back to the kept values of these keys.
    void Forget(const std::vector<std::string_view>& keys);

    /// Saves what is tried of these keys, as one save; without any, does nothing. If that fails, the values
    /// stay tried.
    std::optional<SettingsFault> Keep(const std::vector<std::string_view>& keys);

private:
    std::optional<double>& TriedOf(const YearSetting& setting);

    Session& m_session;
    std::array<std::optional<double>, YearSettingTable.size()> m_tried; ///< in the file's unit
};

} // namespace Ledgrove
