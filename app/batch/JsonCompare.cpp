#include "app/batch/JsonCompare.h"

#include "app/batch/JsonInput.h"
#include "app/batch/ObjectInput.h"
#include "app/batch/TextTable.h"
#include "base/Text.h"

namespace Ledgrove {

std::optional<Refusal> JsonLine::Compare(const InputLine& line) {
    if (line.TooLong)
        return InputTooLong(line.Number);
    auto refusal = ReadJsonObject(line.Text, m_inputs);
    if (!refusal)
        refusal = m_comparison.Run(m_inputs);
    if (refusal)
        refusal->Line = line.Number;
    return refusal;
}

bool JsonLine::Append(std::string& out, const InputLine& line) {
    if (IsBlank(line.Text, " \t\r"))
        return true;
    const auto refusal = Compare(line);
    if (refusal)
        AppendRefusalJson(out, *refusal);
    else
        m_results.Append(out, m_comparison);
    out += '\n';
    return !refusal;
}

bool JsonLinesReader::Read(LineReader& lines, OutputBuffer& output) {
    bool allWell = true;
    while (const auto line = lines.Next()) {
        allWell = m_line.Append(output.Text(), *line) && allWell;
        output.Commit();
        if (!output.Failure().empty())
            break;
    }
    return allWell;
}

bool JsonReader::Read(LineReader& lines, OutputBuffer& output) {
    InputRecord inputs;
    const auto refusal = RunObject(lines, m_comparison, inputs);
    if (!lines.Failure().empty())
        return false;
    std::string& out = output.Text();
    if (m_result == Result::Table) {
        out += refusal ? RefusalText(*refusal) : ResultTable(m_comparison);
    } else {
        refusal ? AppendRefusalJson(out, *refusal) : ResultJson().Append(out, m_comparison);
        out += '\n';
    }
    output.Commit();
    return !refusal;
}

} // namespace Ledgrove
