#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

// What the command lines of ledgrove-cli and of the programs that it starts have in common.
namespace Ledgrove {

/// Reads the text of an option. Returns a message if the text cannot be used, else "".
using OptionReader = std::function<std::string(const std::string& text)>;

/// Adds an option that `read` understands; the help shows `values`, such as "letter|a4|legal".
CLI::Option* AddRead(CLI::App& app, const std::string& name, OptionReader read, const std::string& values,
                     const std::string& description);

/// Adds --folder, --version of `program` and, at the end of the help, an example and the exit statuses.
void AddCommon(CLI::App& app, const std::string& program, std::string& folder, const std::string& example);

/// Parses the words, which are in their order. Returns the exit status if the program must end now: after
/// the help or the version, and after a fault, which standard error then names.
std::optional<int> Parse(CLI::App& app, std::vector<std::string> words);

/// The words after the program's name.
std::vector<std::string> WordsOf(int argc, char** argv);

/// The message about a word that is not one of `known`, with the nearest one; `what` is "command".
std::string UnknownWord(const std::string& what, const std::string& word,
                        const std::vector<std::string>& known);

} // namespace Ledgrove
