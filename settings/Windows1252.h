#pragma once

#include <string>
#include <string_view>
#include <variant>

// The settings file uses one byte per character (Windows-1252); all texts in memory are UTF-8.
namespace Ledgrove {

/// A character that the settings file cannot hold.
struct UnencodableCharacter {
    std::string Character; ///< its UTF-8 bytes; a single byte if the text is not UTF-8
    std::string Name;      ///< for messages: the character with its code, or the byte
};

/// Converts the bytes to UTF-8. Every byte has a character: the five that Windows-1252 does not define (81,
/// 8D, 8F, 90 and 9D) become U+0081 and so on, so EncodeWindows1252 restores any byte string exactly.
std::string DecodeWindows1252(std::string_view bytes);

/// Converts the UTF-8 text to bytes, or returns the first character without a byte.
std::variant<std::string, UnencodableCharacter> EncodeWindows1252(std::string_view text);

} // namespace Ledgrove
