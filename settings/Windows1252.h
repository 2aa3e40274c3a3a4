#pragma once

#include <string>
#include <string_view>
#include <variant>

// The settings file holds one byte a character (Windows-1252); everything in memory is UTF-8.
namespace Ledgrove {

/// A character that the settings file cannot hold.
struct UnencodableCharacter {
    std::string Character; ///< its UTF-8 bytes; a single byte where the text is not UTF-8 at all
    std::string Name;      ///< for sentences: the character with its number, or the byte
};

/// The bytes as UTF-8. Every byte has a character: the five that Windows-1252 leaves undefined (81, 8D, 8F,
/// 90 and 9D) become U+0081 and so on, so that each byte string comes back from EncodeWindows1252 unchanged.
std::string DecodeWindows1252(std::string_view bytes);

/// The UTF-8 text as bytes, or the first character that has none.
std::variant<std::string, UnencodableCharacter> EncodeWindows1252(std::string_view text);

} // namespace Ledgrove
