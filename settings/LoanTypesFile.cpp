#include "settings/LoanTypesFile.h"

#include "engine/NumberText.h"
#include "settings/LineSyntax.h"
#include "settings/Rewrite.h"
#include "settings/Windows1252.h"

#include <array>
#include <string>
#include <string_view>

namespace Ledgrove::Module1 {
namespace {

/// Reads the fields of one line in order into a record. A missing field keeps the record's default.
class RecordReader {
public:
    explicit RecordReader(std::string_view value)
        : m_fields(value) {}

    void Text(std::string& target) {
        if (const auto field = m_fields.Next())
            target = DecodeWindows1252(*field);
    }
    void Ratio(float& target) {
        if (const auto field = m_fields.Next())
            Store(ToSingle(*field), target);
    }
    void Number(std::int16_t& target) {
        if (const auto field = m_fields.Next())
            Store(ToInteger(*field), target);
    }
    void Flag(bool& target) {
        if (const auto field = m_fields.Next())
            target = *field == "TRUE";
    }
    bool Converted() const { return m_converted; }

private:
    template <typename Value>
    void Store(std::optional<Value> value, Value& target) {
        if (value)
            target = *value;
        else
            m_converted = false;
    }

    FieldSplitter m_fields;
    bool m_converted = true;
};

bool ReadLoanType(std::string_view value, LoanType& loanType) {
    RecordReader reader(value);
    reader.Number(loanType.Number);
    reader.Text(loanType.Name);
    reader.Text(loanType.Text3);
    reader.Ratio(loanType.FrontRatio);
    reader.Ratio(loanType.BackRatio);
    reader.Text(loanType.Text6);
    reader.Text(loanType.Text7);
    reader.Text(loanType.Text8);
    reader.Flag(loanType.IsEEM);
    return reader.Converted();
}

std::string LoanTypeLine(const LoanType& loanType) {
    constexpr std::string_view ratioPicture = "##0.000";
    const std::array<std::string, 9> fields = {std::to_string(loanType.Number),
                                               loanType.Name,
                                               loanType.Text3,
                                               FormatPicture(loanType.FrontRatio, ratioPicture),
                                               FormatPicture(loanType.BackRatio, ratioPicture),
                                               loanType.Text6,
                                               loanType.Text7,
                                               loanType.Text8,
                                               loanType.IsEEM ? "TRUE" : "FALSE"};
    std::string value = fields.front();
    for (std::size_t i = 1; i < fields.size(); ++i)
        value += ',' + fields[i];
    return SettingLine(Key::LoanType, value);
}

} // namespace

std::optional<SettingsFault> LoadLoanTypes(const SettingsFile& file, LoanTypeList& loanTypes) {
    loanTypes.clear();
    const Outcome<FileLines> lines = file.ReadLines();
    if (!lines)
        return lines.Fault();
    return ReadLoanTypes(file, *lines, loanTypes);
}

std::optional<SettingsFault> ReadLoanTypes(const SettingsFile& file, const FileLines& lines,
                                           LoanTypeList& loanTypes) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string_view line = lines[i].Text;
        if (!BelongsTo(line, Key::LoanType))
            continue;
        if (!ReadLoanType(ValueOf(line, Key::LoanType), loanTypes.emplace_back()))
            return BadLine(file, lines, i, "its number and its two ratios must be numbers");
    }
    return std::nullopt;
}

std::optional<SettingsFault> WriteLoanTypes(SettingsDraft& draft, const LoanTypeList& loanTypes) {
    RewritePlan plan;
    plan.Rules = {DropLines(Key::LoanType)};
    if (loanTypes.empty())
        plan.AppendedAlways.push_back(LoanTypeLine(LoanType{}));
    for (const LoanType& loanType : loanTypes)
        plan.AppendedAlways.push_back(LoanTypeLine(loanType));
    return draft.Apply(std::move(plan));
}

} // namespace Ledgrove::Module1
