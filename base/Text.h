#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Ledgrove {

/// Without the leading and trailing characters that `blanks` holds.
constexpr std::string_view Trimmed(std::string_view text, std::string_view blanks = " ") {
    // Every field of every comparison comes through here: a loop over two characters costs less than the
    // library's search.
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

/// Whether the text is empty or made of the characters in `blanks` alone.
constexpr bool IsBlank(std::string_view text, std::string_view blanks = " ") {
    return Trimmed(text, blanks).empty();
}

/// Whether this byte of a UTF-8 text begins a character, and does not go on with one.
constexpr bool BeginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// The number of characters of a UTF-8 text: how many places it takes in a column.
constexpr std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (const char byte : text)
        count += BeginsCharacter(byte) ? 1 : 0;
    return count;
}

/// The text in double quotes, as a sentence names a file or a key. What it holds stays as it is.
std::string Quoted(std::string_view text);

} // namespace Ledgrove
