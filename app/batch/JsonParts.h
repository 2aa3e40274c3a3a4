#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Host.h"
#include "engine/MainScreen.h"

// The values of results as JSON text. They are inline because a list of a million comparisons spends most of
// its time here.
namespace Ledgrove::Json {

constexpr bool NeedsEscape(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
}

/// Few texts need an escape. Without an early exit, the compiler can vectorise this loop.
inline bool IsPlain(std::string_view text) {
    unsigned char special = 0;
    for (const char c : text)
        special |= static_cast<unsigned char>(NeedsEscape(c));
    return special == 0;
}

inline void AppendEscaped(std::string& out, char c) {
    constexpr std::string_view hex = "0123456789abcdef";
    switch (c) {
    case '"':
        out += "\\\"";
        return;
    case '\\':
        out += "\\\\";
        return;
    case '\r':
        out += "\\r";
        return;
    case '\n':
        out += "\\n";
        return;
    default:
        out += "\\u00";
        out += hex[static_cast<unsigned char>(c) >> 4U];
        out += hex[static_cast<unsigned char>(c) & 0xFU];
    }
}

inline void AppendString(std::string& out, std::string_view text) {
    out += '"';
    if (IsPlain(text)) {
        out.append(text).append("\"");
        return;
    }
    std::size_t plainFrom = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!NeedsEscape(text[at]))
            continue;
        out.append(text.substr(plainFrom, at - plainFrom));
        AppendEscaped(out, text[at]);
        plainFrom = at + 1;
    }
    out.append(text.substr(plainFrom));
    out += '"';
}

inline void AppendKey(std::string& out, std::string_view name, char opening = ',') {
    out += opening;
    out += '"';
    out.append(name);
    out += "\":";
}

inline constexpr std::int64_t tens[] = {1,      10,      100,      1000,      10000,
                                        100000, 1000000, 10000000, 100000000, 1000000000};

/// Appends `digits` with a decimal point before the last `places`, without trailing zeros.
inline void AppendDecimal(std::string& out, std::int64_t digits, int places) {
    for (; places > 0 && digits % 10 == 0; --places)
        digits /= 10;
    std::array<char, 24> text;
    const auto append = [&out, &text](std::int64_t number, bool isFraction) {
        char* const end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
        if (isFraction)
            text[0] = '.';
        out.append(text.data(), end);
    };
    append(digits / tens[places], false);
    // A leading 1 keeps the leading zeros of the fraction. The point then replaces it.
    if (places > 0)
        append(tens[places] + digits % tens[places], true);
}

/// Appends the shortest decimal number that reads back as the same single. If two are equally near, chooses
/// the one further from 0; the library would choose the even one.
inline void AppendNumber(std::string& out, float value) {
    const float magnitude = std::fabs(value);
    if (magnitude == 0 || (magnitude >= 1e-3F && magnitude < 1e6F)) {
        int wholeDigits = 0;
        while (magnitude >= static_cast<float>(tens[wholeDigits]))
            ++wholeDigits;
        for (int places = 7 - wholeDigits; places <= 9 - wholeDigits; ++places) {
            const auto scale = static_cast<double>(tens[places]);
            const auto digits = static_cast<std::int64_t>(static_cast<double>(magnitude) * scale + 0.5);
            if (static_cast<float>(static_cast<double>(digits) / scale) != magnitude)
                continue;
            if (value < 0)
                out += '-';
            return AppendDecimal(out, digits, places);
        }
    }
    std::array<char, 64> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    out.append(text.data(), end.ptr);
}

inline void AppendFlag(std::string& out, bool value) {
    out += value ? "true" : "false";
}

/// The members after a label's text, by colour and visibility.
inline constexpr std::string_view appearances[][2] = {
    {R"(,"color":"#000000","visible":false})", R"(,"color":"#000000","visible":true})"},
    {R"(,"color":"#ff0000","visible":false})", R"(,"color":"#ff0000","visible":true})"},
    {R"(,"color":"#808080","visible":false})", R"(,"color":"#808080","visible":true})"}};

inline std::string_view AppearanceText(const Label& label) {
    static_assert(static_cast<int>(TextColour::Normal) == 0 && static_cast<int>(TextColour::Red) == 1 &&
                  static_cast<int>(TextColour::Grey) == 2);
    return appearances[static_cast<std::size_t>(label.Colour)][label.Visible ? 1 : 0];
}

inline std::string_view IconText(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Information:
        return "information";
    case MessageIcon::Exclamation:
        return "exclamation";
    case MessageIcon::Question:
        return "question";
    case MessageIcon::None:
        break;
    }
    return "none";
}

inline void AppendMessages(std::string& out, const std::vector<Message>& messages) {
    out += '[';
    for (const Message& message : messages) {
        AppendKey(out, "title", '{');
        AppendString(out, message.Title);
        AppendKey(out, "text");
        AppendString(out, message.Text);
        AppendKey(out, "icon");
        AppendString(out, IconText(message.Icon));
        AppendKey(out, "buttons");
        AppendString(out, message.Buttons == MessageButtons::YesNo ? "yesno" : "ok");
        out += &message == &messages.back() ? "}" : "},";
    }
    out += ']';
}

} // namespace Ledgrove::Json
