#include "app/pages/Completion.h"
#include "app/pages/CompletionWords.h"

namespace Ledgrove {

namespace {

/// Text inside '…[text]…' of a specification of _arguments.
std::string Escaped(std::string_view text) {
    std::string escaped = Replaced(text, "\\", "\\\\");
    for (const std::string_view special : {"[", "]", ":"})
        escaped = Replaced(escaped, special, "\\" + std::string(special));
    return Replaced(escaped, "'", "'\\''");
}

/// What may follow an option or stand in place of an operand.
std::string Action(const OptionRow& option) {
    switch (option.Kind) {
    case Value::Choice:
        return "(" + ChoiceWords(option) + ")";
    case Value::Folder:
        return "_files -/";
    case Value::File:
    case Value::Output:
        return "_files";
    case Value::Setting:
        return "(" + SettingWords() + ")";
    case Value::House:
        return "_ledgrove_houses";
    case Value::Results:
        return "_ledgrove_results";
    case Value::Text:
    case Value::None:
        break;
    }
    return " ";
}

std::string Specification(const OptionRow& option) {
    const std::string meaning = Escaped(option.Meaning);
    if (!option.Name.starts_with('-'))
        return "'" + std::string(option.IsList ? "*" : "") + ":" + Escaped(option.Name) + ":" +
               Action(option) + "'";
    std::string text = "'" + std::string(option.Name) + "[" + meaning + "]";
    if (option.Kind != Value::None)
        text += ":" + Escaped(option.Kind == Value::Choice ? option.Name.substr(2) : option.Values) + ":" +
                Action(option);
    return text + "'";
}

/// The function that completes the words after a command.
std::string Function(const CommandRow& command) {
    const std::string name = "_" + Replaced(FunctionName(command.Name), " ", "_");
    std::string body = name + "() {\n    local curcontext=$curcontext state line\n    _arguments -C";
    for (const OptionRow& option : CommonOptions())
        body += " \\\n        " + Specification(option);
    for (const OptionRow& option : command.Options)
        body += " \\\n        " + Specification(option);
    const auto below = CommandsBelow(command.Name);
    if (below.empty())
        return body + "\n}\n\n";
    body += " \\\n        '1: :->command' '*:: :->words'\n    case $state in\n    command)\n        local -a "
            "commands=(";
    for (const std::string& one : below)
        body += "\n            '" + one + ":" +
                Replaced(CommandNamed(std::string(command.Name) + " " + one).Summary, "'", "'\\''") + "'";
    return body + "\n        )\n        _describe command commands\n        ;;\n    words)\n        " +
           "(( $+functions[" + name + "_$words[1]] )) && " + name + "_$words[1]\n        ;;\n    esac\n}\n\n";
}

} // namespace

std::string ZshCompletion(std::string_view program) {
    std::string script = "#compdef " + std::string(program) + "\n# Completion of " + std::string(program) +
                         " for zsh.\n\n"
                         "_ledgrove_houses() {\n"
                         "    local -a houses=(${(f)\"$(" +
                         std::string(listHouses) +
                         ")\"})\n"
                         "    compadd -a houses\n"
                         "}\n\n"
                         "_ledgrove_results() {\n"
                         "    local -a names=(${(f)\"$(" +
                         std::string(listResults) +
                         ")\"})\n"
                         "    compset -P '*,'\n"
                         "    compadd -q -S , -a names\n"
                         "}\n\n";
    for (const CommandRow* const row : RowsOf(program))
        script += Function(*row);
    return script + "_" + FunctionName(program) + " \"$@\"\n";
}

} // namespace Ledgrove
