#include "settings/Windows1252.h"

#include "base/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <optional>

#include <iconv.h>

namespace Ledgrove {
namespace {

constexpr std::string_view undefinedBytes = "\x81\x8d\x8f\x90\x9d";

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// One iconv conversion. On a platform without it, every step stops at its first character: decoding then
/// uses the byte values as character codes, and encoding refuses.
class Conversion {
public:
    Conversion(const char* to, const char* from)
        : m_handle(iconv_open(to, from)) {}
    ~Conversion() {
        if (m_handle != Failed())
            iconv_close(m_handle);
    }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    /// Converts as much of `text` as possible into `out` and returns the rest, from the first character that
    /// does not convert.
    std::string_view Append(std::string_view text, std::string& out) {
        if (m_handle == Failed())
            return text;
        char* in = const_cast<char*>(text.data()); // iconv only reads the text; its signature predates const
        std::size_t left = text.size();
        std::array<char, 512> buffer;
        std::size_t result = 0;
        do {
            char* position = buffer.data();
            std::size_t room = buffer.size();
            const std::size_t leftBefore = left;
            result = iconv(m_handle, &in, &left, &position, &room);
            out.append(buffer.data(), buffer.size() - room);
            if (left == leftBefore)
                break;
        } while (result == static_cast<std::size_t>(-1) && left > 0);
        return text.substr(text.size() - left);
    }

private:
    static iconv_t Failed() { return reinterpret_cast<iconv_t>(-1); }

    iconv_t m_handle;
};

/// Appends the character whose code is the byte's value.
void AppendUtf8(char byte, std::string& out) {
    const auto number = static_cast<unsigned char>(byte);
    if (number < 0x80) {
        out += byte;
        return;
    }
    out += static_cast<char>(0xC0 | (number >> 6));
    out += static_cast<char>(0x80 | (number & 0x3F));
}

struct Utf8Character {
    std::string_view Bytes;
    unsigned long CodePoint = 0;
};

/// The first character of `text`, or nothing if `text` does not begin with a character.
std::optional<Utf8Character> FirstCharacter(std::string_view text) {
    constexpr std::array<unsigned long, 5> smallest = {0, 0, 0x80, 0x800, 0x10000}; // by number of bytes
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead >= 0xF8 ? 0 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
    if (length == 0 || text.size() < length)
        return std::nullopt;
    unsigned long codePoint = lead & (0xFFu >> (length + 1));
    for (const char c : text.substr(1, length - 1)) {
        if (BeginsCharacter(c))
            return std::nullopt;
        codePoint = (codePoint << 6) | (static_cast<unsigned char>(c) & 0x3Fu);
    }
    const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < smallest[length] || codePoint > 0x10FFFF || isSurrogate)
        return std::nullopt;
    return Utf8Character{text.substr(0, length), codePoint};
}

UnencodableCharacter NameFirst(std::string_view text) {
    std::array<char, 32> number{};
    const std::optional<Utf8Character> character = FirstCharacter(text);
    if (!character) {
        std::snprintf(number.data(), number.size(), "%02X",
                      static_cast<unsigned>(static_cast<unsigned char>(text.front())));
        return {std::string(text.substr(0, 1)), std::string("the byte ") + number.data() + " (not UTF-8)"};
    }
    const std::string bytes(character->Bytes);
    std::snprintf(number.data(), number.size(), "U+%04lX", character->CodePoint);
    return {bytes, "the character \"" + bytes + "\" (" + number.data() + ")"};
}

} // namespace

std::string DecodeWindows1252(std::string_view bytes) {
    if (IsAscii(bytes))
        return std::string(bytes);
    Conversion conversion("UTF-8", "CP1252");
    std::string text;
    for (std::string_view left = conversion.Append(bytes, text); !left.empty();
         left = conversion.Append(left.substr(1), text))
        AppendUtf8(left.front(), text);
    return text;
}

std::variant<std::string, UnencodableCharacter> EncodeWindows1252(std::string_view text) {
    if (IsAscii(text))
        return std::string(text);
    Conversion conversion("CP1252", "UTF-8");
    std::string bytes;
    std::string_view left = conversion.Append(text, bytes);
    while (!left.empty()) {
        const bool isControl = left.size() >= 2 && left[0] == '\xC2';
        if (!isControl || undefinedBytes.find(left[1]) == std::string_view::npos)
            return NameFirst(left);
        bytes += left[1];
        left = conversion.Append(left.substr(2), bytes);
    }
    return bytes;
}

} // namespace Ledgrove
