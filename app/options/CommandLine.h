#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "app/options/CommandTable.h"

// What the command lines of ledgrove-cli and of the programs that it starts have in common.
namespace Ledgrove {

/// Reads the text of an option. Returns a message if the text cannot be used, else "".
using OptionReader = std::function<std::string(const std::string& text)>;

/// Gives a parser the options of a command, with the words of the table. An option that is given twice
/// counts as it was given last.
class CommandOptions {
public:
    /// `name` is a row of the table, such as "ledgrove-cli report". Adds --folder, --version and --help and,
    /// at the end of the help, the example and the exit statuses. --version names `program`.
    CommandOptions(CLI::App& app, std::string_view name, std::string& folder,
                   const std::string& program = "ledgrove-cli");

    /// An option or operand whose text `target` gets.
    template <typename Text>
    void Take(std::string_view name, Text& target) {
        Described(m_app.add_option(std::string(name), target), OptionOf(m_command, name));
    }

    /// An option that `read` understands.
    void Read(std::string_view name, OptionReader read);

    /// An option with a whole number from `least` to `most`.
    void Number(std::string_view name, int& target, int least, int most);

    void Flag(std::string_view name, bool& target);

private:
    static void Described(CLI::Option* option, const OptionRow& row);

    CLI::App& m_app;
    const CommandRow& m_command;
};

/// The summary of a command as a sentence.
std::string SummaryOf(std::string_view name);

/// Parses the words, which are in their order. Returns the exit status if the program must end now: after
/// the help or the version, and after a fault, which standard error then names.
std::optional<int> Parse(CLI::App& app, std::vector<std::string> words);

/// The words after the program's name.
std::vector<std::string> WordsOf(int argc, char** argv);

/// The message about a word that is not one of `known`, with the nearest one; `what` is "command".
std::string UnknownWord(const std::string& what, const std::string& word,
                        const std::vector<std::string>& known);

} // namespace Ledgrove
