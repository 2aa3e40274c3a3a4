#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

// Every program, command and option in words. The parsers, the help, the manual pages and the shells'
// completion are made from this table.
namespace Ledgrove {

/// What follows an option.
enum class Value {
    None,    ///< the option is a flag
    Text,    ///< any text
    Choice,  ///< one of the words in `Values`, which "|" separates
    Folder,  ///< an existing folder
    File,    ///< a file to read
    Output,  ///< a file to write
    Setting, ///< a key of Ledgrove.ini
    House,   ///< the name of a saved house scenario
    Results, ///< names of results, separated by commas
};

struct OptionRow {
    std::string_view Name; ///< "--paper"; an operand has no dashes: "FILE"
    Value Kind;            ///< of what follows it
    std::string_view
        Values; ///< what the help shows after it: "letter|a4|legal"; empty for flags and operands
    std::string_view Meaning; ///< without a full stop
    bool IsRequired = false;
    bool IsList = false; ///< an operand that may be given several times
};

struct CommandRow {
    std::string_view Name;    ///< in full: "ledgrove-cli settings set"
    std::string_view Summary; ///< a sentence without its full stop
    std::span<const OptionRow> Options;
    std::string_view Example;
};

/// The programs `ledgrove` and `ledgrove-cli` and every command, a command after the one that it belongs to.
std::span<const CommandRow> CommandTable();

/// The row of a command, such as "ledgrove-cli report"; the command must be in the table.
const CommandRow& CommandNamed(std::string_view name);

/// The last words of the commands directly below this one: "compare", "report" … for "ledgrove-cli".
std::vector<std::string> CommandsBelow(std::string_view name);

/// The row of an option or operand of this command; it must be in the table.
const OptionRow& OptionOf(const CommandRow& command, std::string_view name);

/// The options that every command has: --folder, --version and --help.
std::span<const OptionRow> CommonOptions();

struct StatusRow {
    int Status;
    std::string_view Meaning;
};

/// The exit statuses of ledgrove-cli.
std::span<const StatusRow> StatusTable();

} // namespace Ledgrove
