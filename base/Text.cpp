#include "base/Text.h"

#include <algorithm>

namespace Ledgrove {

std::string Quoted(std::string_view text) {
    std::string quoted;
    quoted.reserve(text.size() + 2);
    quoted += '"';
    quoted += text;
    quoted += '"';
    return quoted;
}

std::string Excerpt(std::string_view text) {
    constexpr std::size_t longest = 80;
    std::string shown(text);
    if (text.size() > longest) {
        std::size_t end = longest;
        while (end > 0 && !BeginsCharacter(text[end]))
            --end;
        shown = std::string(text.substr(0, end)) + "...";
    }
    std::replace_if(
        shown.begin(), shown.end(), [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; },
        '?');
    return Quoted(shown);
}

} // namespace Ledgrove
