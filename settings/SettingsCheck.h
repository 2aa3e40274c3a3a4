#pragma once

#include "settings/SettingsFile.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Ledgrove {

/// A line that a reader of the settings file cannot use.
struct UnusableLine {
    std::size_t Line = 0; ///< counted from 1
    std::string Key;
    std::string Text;   ///< the whole line, in UTF-8
    std::string Reason; ///< continues "The line cannot be used: it "
    std::string Effect; ///< what is in force instead, as a sentence
};

/// The unusable lines in the order of the file, found by the readers themselves. Lines without a known key
/// are not listed: the program keeps them and does not read them.
std::vector<UnusableLine> UnusableLines(const FileLines& lines);

/// The message for standard error or a message box.
std::string Sentence(const UnusableLine& line);

/// The sentences of the first `most` lines as paragraphs for a message box, and how many more there are.
/// Empty without lines.
std::string WarningOf(const std::vector<UnusableLine>& lines, std::size_t most);

/// Reads the file and checks it; empty for a file that cannot be read, which the other readers report.
std::vector<UnusableLine> CheckSettings(const SettingsFile& file);

} // namespace Ledgrove
