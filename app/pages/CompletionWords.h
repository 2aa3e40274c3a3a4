#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/options/CommandTable.h"

// What the completions of all shells have in common.
namespace Ledgrove {

/// A text with every `from` replaced by `to`.
std::string Replaced(std::string_view text, std::string_view from, std::string_view to);

/// "ledgrove-cli" as "ledgrove_cli", which every shell accepts in the name of a function.
std::string FunctionName(std::string_view program);

/// The rows of a program and its commands.
std::vector<const CommandRow*> RowsOf(std::string_view program);

/// The words of a choice separated by blanks: "letter a4 legal".
std::string ChoiceWords(const OptionRow& option);

/// The keys of Ledgrove.ini separated by blanks.
std::string SettingWords();

/// The command that lists the names of saved house scenarios, a line each.
inline constexpr std::string_view listHouses =
    "ledgrove-cli settings houses 2>/dev/null | sed -e 1d -e 's/,[^,]*,[^,]*,[^,]*,[^,]*$//' "
    "-e 's/^\"\\(.*\\)\"$/\\1/' -e 's/\"\"/\"/g'";

/// The command that lists the names of results without blanks, a line each.
inline constexpr std::string_view listResults =
    "ledgrove-cli compare --list-names 2>/dev/null | sed -e 's/  .*//' -e '/ /d'";

} // namespace Ledgrove
