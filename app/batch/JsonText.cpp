#include "app/batch/JsonText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "app/batch/RecordTables.h"

namespace Ledgrove {

namespace {

constexpr bool NeedsEscape(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
}

/// Hardly any text needs an escape; without an early exit the loop looks at many characters at a time.
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

void AppendNumber(std::string& out, float value) {
    std::array<char, 64> text;
    char* const last = text.data() + text.size();
    // Most figures are whole numbers, zero above all, and those are written in a fraction of the time.
    const auto whole = static_cast<std::int32_t>(std::clamp(value, -1e6F, 1e6F));
    const auto end = static_cast<float>(whole) == value
                         ? std::to_chars(text.data(), last, whole)
                         : std::to_chars(text.data(), last, value, std::chars_format::fixed);
    out.append(text.data(), end.ptr);
}

void AppendFlag(std::string& out, bool value) {
    out += value ? "true" : "false";
}

void AppendFields(std::string& out, const MainScreen& screen) {
    char opening = '{';
    for (const auto& [name, member] : FieldTable()) {
        // The mirror of the term and the two rates that are not shown say nothing of their own.
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

/// What follows a label's text.
std::string_view AppearanceText(const Label& label) {
    switch (label.Colour) {
    case TextColour::Red:
        return label.Visible ? R"(,"color":"#ff0000","visible":true})"
                             : R"(,"color":"#ff0000","visible":false})";
    case TextColour::Grey:
        return label.Visible ? R"(,"color":"#808080","visible":true})"
                             : R"(,"color":"#808080","visible":false})";
    case TextColour::Normal:
        break;
    }
    return label.Visible ? R"(,"color":"#000000","visible":true})" : R"(,"color":"#000000","visible":false})";
}

template <typename Record, std::size_t Count>
void AppendFigures(std::string& out, const Record& record, const Figure<Record> (&figures)[Count]) {
    char opening = '{';
    for (const auto& [name, member] : figures) {
        AppendKey(out, name, opening);
        AppendNumber(out, record.*member);
        opening = ',';
    }
}

void AppendScenario(std::string& out, const Session& session) {
    AppendFigures(out, session.Scenario, ScenarioFigures);
    AppendKey(out, "DownAsPercent");
    AppendFlag(out, session.Scenario.DownAsPercent);
    AppendKey(out, "YearsInHome");
    out += std::to_string(session.Assumptions.YearsInHome);
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
    AppendFigures(out, session.StdCase, HomeFigures);
    out += '}';
    AppendKey(out, "GMHCase");
    AppendFigures(out, session.GMHCase, HomeFigures);
    out += '}';
    AppendKey(out, "messages");
    AppendMessages(out, comparison.Messages());
    AppendKey(out, "dataCheck");
    AppendString(out, comparison.DataCheck());
    out += '}';
}

void AppendRefusalJson(std::string& out, const Refusal& refusal) {
    out += "{\"error\":{\"line\":";
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
