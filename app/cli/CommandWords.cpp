#include "app/cli/CommandWords.h"

#include <algorithm>
#include <string_view>

#include "app/options/CommandLine.h"

namespace Ledgrove {

namespace {

bool LooksLikeOption(std::string_view word) {
    return word.starts_with('-') && word != "--";
}

/// The index of the first word from `at` on that is neither an option nor the value of one.
std::size_t AfterOptions(const std::vector<std::string>& words, std::size_t at) {
    while (at < words.size() && LooksLikeOption(words[at]))
        at += words[at] == "--folder" ? 2 : 1;
    return std::min(at, words.size());
}

/// The index of KEY in "settings set KEY VALUE", otherwise `words.size()`.
std::size_t SetKey(const std::vector<std::string>& words) {
    if (words.empty() || words.front() != "settings")
        return words.size();
    const std::size_t verb = AfterOptions(words, 1);
    const bool sets = verb < words.size() && words[verb] == "set";
    return sets ? AfterOptions(words, verb + 1) : words.size();
}

} // namespace

std::vector<std::string> Commands() {
    return CommandsBelow("ledgrove-cli");
}

std::vector<std::string> CommandFirst(std::vector<std::string> words) {
    const auto command = words.begin() + static_cast<std::ptrdiff_t>(AfterOptions(words, 0));
    if (command != words.end())
        std::rotate(words.begin(), command, command + 1);
    if (words.empty() || words.front() != "help")
        return words;
    words.erase(words.begin());
    words.emplace_back("--help");
    return words;
}

std::string CommandFault(const std::vector<std::string>& words) {
    const auto isKnown = [](const std::string& word, const std::vector<std::string>& known) {
        return std::find(known.begin(), known.end(), word) != known.end();
    };
    if (words.empty())
        return "Give a command: compare, insight, range, diff, report, brief, chart or settings. "
               "\"ledgrove-cli --help\" explains them.";
    if (LooksLikeOption(words.front()))
        return {};
    if (!isKnown(words.front(), Commands()))
        return UnknownWord("command", words.front(), Commands());
    if (words.front() != "settings")
        return {};
    const std::vector<std::string> verbs = CommandsBelow("ledgrove-cli settings");
    const std::size_t verb = AfterOptions(words, 1);
    const bool asks = std::any_of(words.begin(), words.end(), [](const std::string& word) {
        return word == "--help" || word == "-h" || word == "--version";
    });
    if (verb == words.size())
        return asks ? ""
                    : "Give a command after settings: get, set, check or houses. \"ledgrove-cli settings "
                      "--help\" "
                      "explains them.";
    return isKnown(words[verb], verbs) ? "" : UnknownWord("command", words[verb], verbs);
}

std::vector<std::string> ParserWords(std::vector<std::string> words) {
    const std::size_t key = SetKey(words);
    if (key + 1 < words.size()) {
        const std::string& value = words[key + 1];
        const bool isOption = value == "--help" || value == "-h" || value == "--version" ||
                              value == "--force" || value.starts_with("--folder");
        if (LooksLikeOption(value) && !isOption) {
            const auto first = words.begin() + static_cast<std::ptrdiff_t>(key);
            std::rotate(first, first + 2, words.end());
            words.insert(words.end() - 2, "--");
        }
    }
    return words;
}

} // namespace Ledgrove
