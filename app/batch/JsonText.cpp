#include "app/batch/JsonText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "engine/Figures.h"

namespace Ledgrove {

namespace {

constexpr bool NeedsEscape(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
}

/// Few texts need an escape. Without an early exit, the compiler can vectorise this loop.
bool IsPlain(std::string_view text) {
    unsigned char special = 0;
    for (const char c : text)
        special |= static_cast<unsigned char>(NeedsEscape(c));
    return special == 0;
}

void AppendEscaped(std::string& out, char c) {
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

void AppendString(std::string& out, std::string_view text) {
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

void AppendKey(std::string& out, std::string_view name, char opening = ',') {
    out += opening;
    out += '"';
    out.append(name);
    out += "\":";
}

constexpr std::int64_t tens[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000};

/// Appends `digits` with a decimal point before the last `places`, without trailing zeros.
void AppendDecimal(std::string& out, std::int64_t digits, int places) {
    for (; places > 0 && digits % 10 == 0; --places)
        digits /= 10;
    std::array<char, 24> text;
    auto end = std::to_chars(text.data(), text.data() + text.size(), digits / tens[places]).ptr;
    if (places > 0) {
        // A leading 1 keeps the leading zeros of the fraction. The point then replaces it.
        char* const point = end;
        end = std::to_chars(point, text.data() + text.size(), tens[places] + digits % tens[places]).ptr;
        *point = '.';
    }
    out.append(text.data(), end);
}

/// Appends the shortest decimal number that reads back as the same single. If two are equally near, chooses
/// the one further from 0; the library would choose the even one.
void AppendNumber(std::string& out, float value) {
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

void AppendFlag(std::string& out, bool value) {
    out += value ? "true" : "false";
}

void AppendFields(std::string& out, const MainScreen& screen) {
    char opening = '{';
    for (const auto& [name, member] : FieldTable()) {
        // The remaining fields are not visible and only repeat the term and the rates.
        if (member == &MainScreen::ecRate)
            break;
        AppendKey(out, name, opening);
        AppendString(out, (screen.*member).Text);
        opening = ',';
    }
    for (const auto& [name, member] : PickListTable()) {
        AppendKey(out, name);
        AppendString(out, (screen.*member).Text());
    }
    AppendKey(out, "optDownPayment");
    out += screen.optDownPayment == 0 ? '0' : '1';
    AppendKey(out, "chkDoTax0");
    AppendFlag(out, screen.chkDoTax0);
    out += '}';
}

/// The members after a label's text, by colour and visibility.
constexpr std::string_view appearances[][2] = {
    {R"(,"color":"#000000","visible":false})", R"(,"color":"#000000","visible":true})"},
    {R"(,"color":"#ff0000","visible":false})", R"(,"color":"#ff0000","visible":true})"},
    {R"(,"color":"#808080","visible":false})", R"(,"color":"#808080","visible":true})"}};

std::string_view AppearanceText(const Label& label) {
    static_assert(static_cast<int>(TextColour::Normal) == 0 && static_cast<int>(TextColour::Red) == 1 &&
                  static_cast<int>(TextColour::Grey) == 2);
    return appearances[static_cast<std::size_t>(label.Colour)][label.Visible ? 1 : 0];
}

/// Appends the members of one record, without the closing brace.
void AppendFigures(std::string& out, const Records& records, FigureRecord record) {
    char opening = '{';
    for (const FigureEntry& figure : FiguresOf(record)) {
        AppendKey(out, figure.Name, opening);
        AppendNumber(out, figure.Value(records));
        opening = ',';
    }
}

void AppendScenario(std::string& out, const Session& session) {
    AppendFigures(out, session, FigureRecord::Scenario);
    AppendKey(out, "DownAsPercent");
    AppendFlag(out, session.Scenario.DownAsPercent);
    AppendKey(out, "YearsInHome");
    out += std::to_string(session.Scenario.YearsInHome);
    AppendKey(out, "EEM notice flag");
    AppendFlag(out, session.Scenario.EEMNoticeFlag);
    out += '}';
}

std::string_view IconText(MessageIcon icon) {
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

void AppendMessages(std::string& out, const std::vector<Message>& messages) {
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

} // namespace

ResultJson::ResultJson() {
    for (const auto& [name, member] : ResultLabelTable())
        m_labelKeys.push_back((m_labelKeys.empty() ? "{\"" : ",\"") + std::string(name) + "\":{\"text\":");
}

void ResultJson::AppendLabels(std::string& out, const MainScreen& screen) const {
    auto key = m_labelKeys.begin();
    for (const auto& [name, member] : ResultLabelTable()) {
        const Label& label = screen.*member;
        out += *key++;
        AppendString(out, label.Text);
        out += AppearanceText(label);
    }
    out += '}';
}

void ResultJson::Append(std::string& out, const Comparison& comparison) const {
    const Session& session = comparison.State();
    AppendKey(out, "fields", '{');
    AppendFields(out, session.Screen);
    AppendKey(out, "labels");
    AppendLabels(out, session.Screen);
    AppendKey(out, "Scenario");
    AppendScenario(out, session);
    AppendKey(out, "StdCase");
    AppendFigures(out, session, FigureRecord::StdCase);
    out += '}';
    AppendKey(out, "GMHCase");
    AppendFigures(out, session, FigureRecord::GMHCase);
    out += '}';
    AppendKey(out, "messages");
    AppendMessages(out, comparison.Messages());
    AppendKey(out, "dataCheck");
    AppendString(out, comparison.DataCheck());
    out += '}';
}

void AppendRefusalJson(std::string& out, const Refusal& refusal, std::string_view file) {
    out += "{\"error\":{";
    if (!file.empty()) {
        out += "\"file\":";
        AppendString(out, file);
        out += ',';
    }
    out += "\"line\":";
    out += std::to_string(refusal.Line);
    AppendKey(out, "control");
    AppendString(out, refusal.Control);
    AppendKey(out, "value");
    AppendString(out, refusal.Value);
    AppendKey(out, "message");
    AppendString(out, refusal.Message);
    out += "}}";
}

} // namespace Ledgrove
