#include "app/batch/JsonCompare.h"

#include <utility>

#include "app/batch/JsonInput.h"
#include "app/batch/TextTable.h"

namespace Ledgrove {

namespace {

bool IsBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r") == std::string_view::npos;
}

Refusal TooLong(std::size_t line) {
    return {line, "", "", "The input is longer than 1 MiB. Write each comparison as one short JSON object."};
}

std::optional<Refusal> RunObject(std::string_view json, InputRecord& inputs, Comparison& comparison) {
    if (auto refusal = ReadJsonObject(json, inputs))
        return refusal;
    auto refusal = comparison.Run(inputs);
    if (refusal)
        refusal->Line = 1;
    return refusal;
}

} // namespace

std::optional<Refusal> JsonLinesReader::Compare(const InputLine& line) {
    if (line.TooLong)
        return TooLong(line.Number);
    auto refusal = RunObject(line.Text, m_inputs, m_comparison);
    if (refusal)
        refusal->Line = line.Number;
    return refusal;
}

bool JsonLinesReader::Read(LineReader& lines, OutputBuffer& output) {
    bool allWell = true;
    while (const auto line = lines.Next()) {
        if (IsBlank(line->Text))
            continue;
        if (const auto refusal = Compare(*line)) {
            allWell = false;
            AppendRefusalJson(output.Text(), *refusal);
        } else {
            m_results.Append(output.Text(), m_comparison);
        }
        output.Text() += '\n';
        output.Commit();
        if (!output.Failure().empty())
            break;
    }
    return allWell;
}

std::optional<Refusal> JsonReader::Compare(LineReader& lines) {
    std::string json;
    while (const auto line = lines.Next()) {
        if (line->TooLong || json.size() + line->Text.size() > LongestLine)
            return TooLong(line->Number);
        json.append(line->Text).append("\n");
    }
    InputRecord inputs;
    return RunObject(json, inputs, m_comparison);
}

bool JsonReader::Read(LineReader& lines, OutputBuffer& output) {
    const auto refusal = Compare(lines);
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
