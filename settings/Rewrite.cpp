#include "settings/Rewrite.h"

#include "settings/LineSyntax.h"
#include "settings/Windows1252.h"

#include <cstddef>
#include <variant>

namespace Ledgrove {
namespace {

constexpr std::string_view lineEnd = "\r\n";

/// Converts a text to the file's bytes in place, or returns the reason why the file cannot hold it.
std::optional<SettingsFault> EncodeText(const SettingsFile& file, std::string& text) {
    const auto refuse = [&](const std::string& reason) {
        return SettingsFault{SettingsFault::Kind::RefusedText, file.Path(), reason, 0, text};
    };
    if (text.find_first_of(lineEnd) != std::string::npos)
        return refuse("a line break");
    auto encoded = EncodeWindows1252(text);
    if (const auto* character = std::get_if<UnencodableCharacter>(&encoded))
        return refuse(character->Name + ", which the file's character set (Windows-1252) does not have");
    text = std::move(std::get<std::string>(encoded));
    return std::nullopt;
}

std::optional<SettingsFault> EncodeTexts(const SettingsFile& file, std::vector<std::string>& texts) {
    for (std::string& text : texts) {
        if (auto refused = EncodeText(file, text))
            return refused;
    }
    return std::nullopt;
}

std::optional<SettingsFault> EncodePlan(const SettingsFile& file, RewritePlan& plan) {
    for (RewriteRule& rule : plan.Rules) {
        if (auto refused = EncodeText(file, rule.Key))
            return refused;
        if (auto refused = EncodeTexts(file, rule.NewLines))
            return refused;
        if (auto refused = EncodeTexts(file, rule.AppendedWhenUnseen))
            return refused;
    }
    return EncodeTexts(file, plan.AppendedAlways);
}

/// Builds the bytes of the new file, line by line.
class Output {
public:
    void Keep(const FileLine& line) {
        FinishLastLine();
        // After a line that ends in CR, an empty line that ends in LF would be read as part of CR LF.
        const bool wouldMerge = m_bytes.ends_with('\r') && line.Text.empty() && line.End == "\n";
        m_bytes += line.Text;
        m_bytes += wouldMerge ? lineEnd : std::string_view(line.End);
    }
    void Add(const std::string& text) {
        FinishLastLine();
        m_bytes += text;
        m_bytes += lineEnd;
    }
    const std::string& Bytes() const { return m_bytes; }

private:
    void FinishLastLine() {
        if (!m_bytes.empty() && m_bytes.back() != '\r' && m_bytes.back() != '\n')
            m_bytes += lineEnd;
    }

    std::string m_bytes;
};

/// The number of lines that each rule of the plan has matched so far.
using SeenCounts = std::vector<std::size_t>;

void CopyLine(const FileLine& line, const RewritePlan& plan, SeenCounts& seen, Output& output) {
    for (std::size_t i = 0; i < plan.Rules.size(); ++i) {
        const RewriteRule& rule = plan.Rules[i];
        if (!BelongsTo(line.Text, rule.Key))
            continue;
        const std::size_t turn = rule.OnMatch == RewriteRule::Match::ReplaceInTurn ? seen[i] : 0;
        ++seen[i];
        if (rule.OnMatch == RewriteRule::Match::Drop)
            return;
        if (turn < rule.NewLines.size())
            output.Add(rule.NewLines[turn]);
        else
            output.Keep(line);
        return;
    }
    output.Keep(line);
}

} // namespace

std::string SettingLine(std::string_view key, std::string_view value) {
    std::string line(key);
    line += '=';
    line += value;
    return line;
}

RewriteRule ReplaceOrAppend(std::string_view key, std::string_view value) {
    RewriteRule rule = ReplaceOnly(key, value);
    rule.AppendedWhenUnseen = rule.NewLines;
    return rule;
}

RewriteRule ReplaceOnly(std::string_view key, std::string_view value) {
    return {std::string(key), RewriteRule::Match::Replace, {SettingLine(key, value)}, {}};
}

RewriteRule DropLines(std::string_view key) {
    return {std::string(key), RewriteRule::Match::Drop, {}, {}};
}

std::string RewrittenBytes(const FileLines& lines, const RewritePlan& plan) {
    Output output;
    SeenCounts seen(plan.Rules.size(), 0);
    for (const FileLine& line : lines)
        CopyLine(line, plan, seen, output);
    for (std::size_t i = 0; i < plan.Rules.size(); ++i) {
        if (seen[i] > 0)
            continue;
        for (const std::string& text : plan.Rules[i].AppendedWhenUnseen)
            output.Add(text);
    }
    for (const std::string& text : plan.AppendedAlways)
        output.Add(text);
    return output.Bytes();
}

std::optional<SettingsFault> Rewrite(const SettingsFile& file, const RewritePlan& plan) {
    RewritePlan encoded = plan;
    if (auto refused = EncodePlan(file, encoded))
        return refused;
    return file.Update([&](const FileLines& lines) { return RewrittenBytes(lines, encoded); });
}

std::optional<SettingsFault> SettingsDraft::Apply(RewritePlan plan) {
    if (auto refused = EncodePlan(m_file, plan))
        return refused;
    m_lines = SplitLines(RewrittenBytes(m_lines, plan));
    return std::nullopt;
}

std::optional<SettingsFault> SettingsDraft::Save() const {
    std::string bytes;
    for (const FileLine& line : m_lines)
        bytes.append(line.Text).append(line.End);
    return m_file.ReplaceContent(bytes);
}

} // namespace Ledgrove
