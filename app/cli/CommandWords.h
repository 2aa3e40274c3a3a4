#pragma once

#include <string>
#include <vector>

namespace Ledgrove {

/// The commands of ledgrove-cli.
std::vector<std::string> Commands();

/// The words with the command first, also after options for all commands, and with "help COMMAND" as
/// "COMMAND --help".
std::vector<std::string> CommandFirst(std::vector<std::string> words);

/// The message about the first word that should be a command but is not; empty if there is none.
std::string CommandFault(const std::vector<std::string>& words);

/// The words for the parser. The word after "set KEY" is the value even if it begins with "-": both then move
/// to the end, after "--".
std::vector<std::string> ParserWords(std::vector<std::string> words);

} // namespace Ledgrove
