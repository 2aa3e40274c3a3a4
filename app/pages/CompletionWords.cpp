#include "app/pages/CompletionWords.h"

#include <algorithm>

#include "settings/SettingsText.h"

namespace Ledgrove {

std::string Replaced(std::string_view text, std::string_view from, std::string_view to) {
    std::string replaced;
    for (std::size_t at = 0; at < text.size();) {
        const bool isHere = text.substr(at).starts_with(from);
        replaced += isHere ? to : text.substr(at, 1);
        at += isHere ? from.size() : 1;
    }
    return replaced;
}

std::string FunctionName(std::string_view program) {
    return Replaced(program, "-", "_");
}

std::vector<const CommandRow*> RowsOf(std::string_view program) {
    std::vector<const CommandRow*> rows;
    for (const CommandRow& row : CommandTable())
        if (row.Name == program || row.Name.starts_with(std::string(program) + " "))
            rows.push_back(&row);
    return rows;
}

std::string ChoiceWords(const OptionRow& option) {
    return Replaced(option.Values, "|", " ");
}

std::string SettingWords() {
    std::string words;
    for (const std::string_view key : KnownKeys())
        words.append(words.empty() ? "" : " ").append(key);
    return words;
}

} // namespace Ledgrove
