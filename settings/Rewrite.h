#pragma once

#include "settings/SettingsFile.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// All changes to the settings file go through here.
namespace Ledgrove {

/// A rule for the lines that belong to a key. All texts are UTF-8, without line endings.
struct RewriteRule {
    enum class Match {
        Replace,       ///< every line becomes the first of `NewLines`
        ReplaceInTurn, ///< the k-th line becomes the k-th of `NewLines`; further lines do not change
        Drop
    };

    std::string Key;
    Match OnMatch = Match::Replace;
    std::vector<std::string> NewLines;
    std::vector<std::string> AppendedWhenUnseen; ///< if no line belongs to the key
};

/// A writer's changes: its rules in key order, of which the first match applies, and the lines that it always
/// appends.
struct RewritePlan {
    std::vector<RewriteRule> Rules;
    std::vector<std::string> AppendedAlways;
};

/// "KEY=value".
std::string SettingLine(std::string_view key, std::string_view value);

/// Every line of the key becomes "KEY=value"; if there is none, the line is appended.
RewriteRule ReplaceOrAppend(std::string_view key, std::string_view value);

/// Every line of the key becomes "KEY=value"; if there is none, nothing is added.
RewriteRule ReplaceOnly(std::string_view key, std::string_view value);

RewriteRule DropLines(std::string_view key);

/// The bytes of the whole file after the plan. Here the plan's texts are in the file's encoding.
std::string RewrittenBytes(const FileLines& lines, const RewritePlan& plan);

/// Rewrites the settings file by the plan. Lines without a rule keep their bytes and line endings; new lines
/// end in CR LF. A text that the file cannot hold (a line break, a character outside Windows-1252) is refused
/// before anything is written. On every fault except InterruptedSave and Unconfirmed, the old file is
/// complete.
std::optional<SettingsFault> Rewrite(const SettingsFile& file, const RewritePlan& plan);

/// A save of several plans that stands or falls as a whole: each changes the lines that the one before left,
/// and nothing is written before Save.
class SettingsDraft {
public:
    /// `file` should be held until the save, so that no other copy of the program saves in between.
    explicit SettingsDraft(const SettingsFile& file, FileLines lines)
        : m_file(file)
        , m_lines(std::move(lines)) {}

    /// Refuses texts as Rewrite does; the draft is unchanged then.
    std::optional<SettingsFault> Apply(RewritePlan plan);

    /// The lines that Save writes, as a reader will get them.
    const FileLines& Lines() const { return m_lines; }

    std::optional<SettingsFault> Save() const;

private:
    SettingsFile m_file;
    FileLines m_lines;
};

} // namespace Ledgrove
