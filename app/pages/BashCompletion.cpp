#include "app/pages/Completion.h"
#include "app/pages/CompletionWords.h"

namespace Ledgrove {

namespace {

/// The shell command that offers the values of an option or operand.
std::string Offer(const OptionRow& option) {
    const auto lines = [](std::string_view command) {
        return "_ledgrove_lines \"$word\" < <(" + std::string(command) + ")";
    };
    switch (option.Kind) {
    case Value::Choice:
        return "mapfile -t COMPREPLY < <(compgen -W '" + ChoiceWords(option) + "' -- \"$word\")";
    case Value::Folder:
        return "compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- \"$word\")";
    case Value::File:
    case Value::Output:
        return "compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- \"$word\")";
    case Value::Setting:
        return "mapfile -t COMPREPLY < <(compgen -W '" + SettingWords() + "' -- \"$word\")";
    case Value::House:
        return lines(listHouses);
    case Value::Results:
        return "compopt -o nospace; mapfile -t COMPREPLY < <(compgen -P \"${word%\"${word##*,}\"}\" -W "
               "\"$(" +
               std::string(listResults) + ")\" -- \"${word##*,}\")";
    case Value::Text:
    case Value::None:
        break;
    }
    return ":";
}

/// The cases of one command: the values of its options, then its options and the commands below it.
std::string Cases(const CommandRow& command) {
    const std::string path(command.Name);
    std::string cases;
    std::string words;
    std::string operand = ":";
    const auto offerWords = [](const std::string& list) {
        return "mapfile -t COMPREPLY < <(compgen -W '" + list + "' -- \"$word\")";
    };
    std::string commands;
    for (const std::string& below : CommandsBelow(path))
        commands += (commands.empty() ? "" : " ") + below;
    for (const OptionRow& option : command.Options) {
        if (!option.Name.starts_with('-')) {
            if (operand == ":")
                operand = Offer(option);
            continue;
        }
        words.append(option.Name).append(" ");
        if (option.Kind != Value::None)
            cases += "    \"" + path + " " + std::string(option.Name) + "\") " + Offer(option) + " ;;\n";
    }
    for (const OptionRow& option : CommonOptions())
        words.append(option.Name).append(" ");
    words.pop_back();
    // A word without dashes is a command or an operand.
    const std::string plain = commands.empty() ? operand : offerWords(commands);
    return cases + "    \"" + path + " \"*)\n        case $word in\n        -*) " + offerWords(words) +
           " ;;\n        *) " + plain + " ;;\n        esac\n        ;;\n";
}

} // namespace

std::string BashCompletion(std::string_view program) {
    const std::string name = FunctionName(program);
    std::string paths;
    std::string cases = "    *\" --folder\") compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "
                        "\"$word\") ;;\n";
    const auto rows = RowsOf(program);
    for (const CommandRow* const row : rows)
        if (row->Name != program)
            paths += (paths.empty() ? "" : " | ") + ("\"" + std::string(row->Name) + "\"");
    // The first case that matches counts, so a command comes after those below it.
    for (auto row = rows.rbegin(); row != rows.rend(); ++row)
        cases += Cases(**row);
    std::string script = "# Completion of " + std::string(program) +
                         " for bash.\n\n"
                         "_ledgrove_lines() {\n"
                         "    local line\n"
                         "    while IFS= read -r line; do\n"
                         "        [[ $line != \"$1\"* ]] || COMPREPLY+=(\"$(printf '%q' \"$line\")\")\n"
                         "    done\n"
                         "}\n\n_" +
                         name +
                         "() {\n"
                         "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}\n"
                         "    local at path=" +
                         std::string(program) + "\n    COMPREPLY=()\n";
    if (!paths.empty())
        script += "    for ((at = 1; at < COMP_CWORD; at++)); do\n"
                  "        case \"$path ${COMP_WORDS[at]}\" in\n"
                  "        " +
                  paths +
                  ") path=\"$path ${COMP_WORDS[at]}\" ;;\n"
                  "        esac\n"
                  "    done\n";
    return script + "    case \"$path $before\" in\n" + cases + "    esac\n}\n\ncomplete -F _" + name + " " +
           std::string(program) + "\n";
}

} // namespace Ledgrove
