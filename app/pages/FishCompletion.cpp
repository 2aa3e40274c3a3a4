#include "app/pages/Completion.h"
#include "app/pages/CompletionWords.h"

namespace Ledgrove {

namespace {

std::string Quoted(std::string_view text) {
    return "'" + Replaced(Replaced(text, "\\", "\\\\"), "'", "\\'") + "'";
}

/// The arguments of `complete` for what may follow an option.
std::string Offer(const OptionRow& option) {
    switch (option.Kind) {
    case Value::Choice:
        return " -x -a " + Quoted(ChoiceWords(option));
    case Value::Folder:
        return " -x -a '(__fish_complete_directories)'";
    case Value::File:
    case Value::Output:
        return " -r -F";
    case Value::Setting:
        return " -x -a " + Quoted(SettingWords());
    case Value::House:
        return " -x -a " + Quoted("(" + std::string(listHouses) + ")");
    case Value::Results:
        return " -x -a " + Quoted("(__fish_append , (" + std::string(listResults) + "))");
    case Value::Text:
        return " -x";
    case Value::None:
        break;
    }
    return {};
}

std::string Lines(const CommandRow& command, std::string_view program) {
    const std::string path(command.Name.substr(program.size()));
    const std::string beginning =
        "complete -c " + std::string(program) + " -n '__" + FunctionName(program) + "_at \"" + path + "\"'";
    std::string lines;
    for (const std::string& below : CommandsBelow(command.Name)) {
        const CommandRow& row = CommandNamed(std::string(command.Name) + " " + below);
        lines += beginning + " -f -a " + below + " -d " + Quoted(row.Summary) + "\n";
    }
    for (const OptionRow& option : command.Options) {
        if (option.Name.starts_with("--"))
            lines += beginning + " -l " + std::string(option.Name.substr(2)) + Offer(option) + " -d " +
                     Quoted(option.Meaning) + "\n";
        else if (option.Kind == Value::File)
            lines += beginning + " -F\n";
        else if (option.Kind == Value::Setting)
            lines += beginning + " -f -a " + Quoted(SettingWords()) + "\n";
    }
    return lines;
}

} // namespace

std::string FishCompletion(std::string_view program) {
    std::string words;
    for (const CommandRow* const row : RowsOf(program))
        if (row->Name != program)
            words += " " + Quoted(row->Name.substr(program.size()));
    const std::string name(program);
    std::string script = "# Completion of " + name + " for fish.\n\nfunction __" + FunctionName(program) +
                         "_at\n"
                         "    set -l path ''\n"
                         "    for word in (commandline -opc)[2..]\n"
                         "        contains -- \"$path $word\"" +
                         words +
                         "\n"
                         "        and set path \"$path $word\"\n"
                         "    end\n"
                         "    test \"$path\" = \"$argv\"\n"
                         "end\n\n"
                         "complete -c " +
                         name + " -f\n";
    for (const OptionRow& option : CommonOptions())
        script += "complete -c " + name + " -l " + std::string(option.Name.substr(2)) + Offer(option) +
                  " -d " + Quoted(option.Meaning) + "\n";
    for (const CommandRow* const row : RowsOf(program))
        script += Lines(*row, program);
    return script;
}

} // namespace Ledgrove
