#include "settings/LineSyntax.h"

#include "engine/NumberText.h"
#include "settings/Windows1252.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Ledgrove {
namespace {

std::optional<std::int16_t> InRange(double whole) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (whole < Limits::min() || whole > Limits::max())
        return std::nullopt;
    return static_cast<std::int16_t>(whole);
}

} // namespace

bool BelongsTo(std::string_view line, std::string_view key) {
    return line.starts_with(key);
}

std::string_view ValueOf(std::string_view line, std::string_view key) {
    return line.substr(std::min(line.size(), key.size() + 1));
}

std::optional<std::size_t> LastLineOf(const FileLines& lines, std::string_view key) {
    for (std::size_t i = lines.size(); i-- > 0;) {
        if (BelongsTo(lines[i].Text, key))
            return i;
    }
    return std::nullopt;
}

std::optional<std::string_view> FieldSplitter::Next() {
    if (m_rest.empty())
        return std::nullopt;
    const std::size_t comma = m_rest.find(',');
    if (comma == std::string_view::npos)
        return m_rest;
    const std::string_view field = m_rest.substr(0, comma);
    m_rest.remove_prefix(comma + 1);
    return field;
}

std::optional<float> ToSingle(std::string_view text) {
    const std::optional<double> number = Module1::ReadNumber(text);
    if (!number)
        return std::nullopt;
    return static_cast<float>(*number);
}

std::optional<std::int16_t> ToInteger(std::string_view text) {
    const std::optional<double> number = Module1::ReadNumber(text);
    if (!number)
        return std::nullopt;
    return InRange(std::nearbyint(*number));
}

std::optional<std::int16_t> ToIntegerDown(std::string_view text) {
    const std::optional<double> number = Module1::ReadNumber(text);
    if (!number)
        return std::nullopt;
    return InRange(std::floor(*number));
}

SettingsFault BadLine(const SettingsFile& file, const FileLines& lines, std::size_t line,
                      std::string_view reason) {
    return {SettingsFault::Kind::BadLine, file.Path(), std::string(reason), line + 1,
            DecodeWindows1252(lines[line].Text)};
}

} // namespace Ledgrove
