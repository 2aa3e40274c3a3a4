#include "app/cli/CommandWords.h"

#include <algorithm>
#include <string_view>

namespace Ledgrove {

namespace {

bool LooksLikeOption(std::string_view word) {
    return word.starts_with('-') && word != "--";
}

/// The index of the first word from `at` on that is neither an option nor the value of one.
std::size_t BehindOptions(const std::vector<std::string>& words, std::size_t at) {
    while (at < words.size() && LooksLikeOption(words[at]))
        at += words[at] == "--folder" ? 2 : 1;
    return std::min(at, words.size());
}

/// The index of KEY in "settings set KEY VALUE", otherwise `words.size()`.
std::size_t SetKey(const std::vector<std::string>& words) {
    if (words.empty() || words.front() != "settings")
        return words.size();
    const std::size_t verb = BehindOptions(words, 1);
    const bool sets = verb < words.size() && words[verb] == "set";
    return sets ? BehindOptions(words, verb + 1) : words.size();
}

} // namespace

std::vector<std::string> ParserWords(int argc, char** argv) {
    std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
    const std::size_t key = SetKey(words);
    if (key + 1 < words.size()) {
        const std::string& value = words[key + 1];
        const bool isOption =
            value == "--help" || value == "-h" || value == "--force" || value.starts_with("--folder");
        if (LooksLikeOption(value) && !isOption) {
            const auto first = words.begin() + static_cast<std::ptrdiff_t>(key);
            std::rotate(first, first + 2, words.end());
            words.insert(words.end() - 2, "--");
        }
    }
    std::reverse(words.begin(), words.end());
    return words;
}

} // namespace Ledgrove
