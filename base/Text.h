#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Ledgrove {

/// The text without leading and trailing characters from `blanks`.
constexpr std::string_view Trimmed(std::string_view text, std::string_view blanks = " ") {
    // Every field of every comparison is trimmed here. For one or two blank characters this loop is faster
    // than the library's search.
    const auto isBlank = [blanks](char c) {
        for (const char blank : blanks) {
            if (c == blank)
                return true;
        }
        return false;
    };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// Whether the text is empty or holds only characters from `blanks`.
constexpr bool IsBlank(std::string_view text, std::string_view blanks = " ") {
    return Trimmed(text, blanks).empty();
}

/// Whether this byte of a UTF-8 text is the first byte of a character.
constexpr bool BeginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// The number of characters in a UTF-8 text, which is its width in a text column.
constexpr std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (const char byte : text)
        count += BeginsCharacter(byte) ? 1 : 0;
    return count;
}

/// The text in double quotes, for file names and keys in messages. Quotes inside the text are not escaped.
std::string Quoted(std::string_view text);

/// The same for a UTF-8 text of any length and content: at most 80 bytes of it, with "?" for control
/// characters.
std::string Excerpt(std::string_view text);

} // namespace Ledgrove
