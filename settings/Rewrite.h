#pragma once

#include "settings/SettingsFile.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The one way in which the settings file is changed.
namespace Ledgrove {

/// What becomes of the lines that belong to a key. All texts are UTF-8, lines stand without their ends.
struct RewriteRule {
    enum class Match {
        Replace,       ///< every line becomes the first of `NewLines`
        ReplaceInTurn, ///< the k-th line becomes the k-th of `NewLines`; lines beyond those stay
        Drop
    };

    std::string Key;
    Match OnMatch = Match::Replace;
    std::vector<std::string> NewLines;
    std::vector<std::string> AppendedWhenUnseen; ///< where no line belonged to the key
};

/// A writer: its rules in its key order, the first that matches deciding, and the lines it always appends.
struct RewritePlan {
    std::vector<RewriteRule> Rules;
    std::vector<std::string> AppendedAlways;
};

/// "KEY=value".
std::string SettingLine(std::string_view key, std::string_view value);

/// Every line of the key becomes "KEY=value"; without one, the same line is appended.
RewriteRule ReplaceOrAppend(std::string_view key, std::string_view value);

/// Every line of the key becomes "KEY=value"; without one, nothing is added.
RewriteRule ReplaceOnly(std::string_view key, std::string_view value);

RewriteRule DropLines(std::string_view key);

/// The whole file that the plan makes of these lines. The plan's texts are bytes here, as the file holds
/// them.
std::string RewrittenBytes(const FileLines& lines, const RewritePlan& plan);

/// Rewrites the settings file by the plan. Lines of no rule keep their bytes and their ends, new lines end in
/// CR LF. A text that the file cannot hold (a line break, a character outside Windows-1252) is refused before
/// anything is written; on every fault but InterruptedSave and Unconfirmed the old file is whole.
std::optional<SettingsFault> Rewrite(const SettingsFile& file, const RewritePlan& plan);

} // namespace Ledgrove
