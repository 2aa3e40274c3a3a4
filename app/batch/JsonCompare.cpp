#include "app/batch/JsonCompare.h"

#include "app/batch/ExitStatus.h"
#include "app/batch/ObjectInput.h"
#include "app/batch/TextTable.h"
#include "base/Text.h"

namespace Ledgrove {

std::optional<Refusal> JsonLine::Compare(const InputLine& line) {
    if (line.TooLong)
        return InputTooLong(line.Number);
    auto refusal = m_reader.Read(line.Text, m_inputs);
    if (!refusal)
        refusal = m_comparison.Run(m_inputs);
    if (refusal)
        refusal->Line = line.Number;
    return refusal;
}

void JsonLine::Append(std::string& out, const InputLine& line, Tally& tally) {
    if (IsBlank(line.Text, " \t\r"))
        return;
    const auto refusal = Compare(line);
    if (refusal)
        AppendRefusalJson(out, *refusal, m_file);
    else
        m_results.Append(out, m_comparison);
    out += '\n';
    tally.Count(refusal.has_value(), line.Number);
}

Tally JsonLinesReader::Read(LineReader& lines, OutputBuffer& output) {
    Tally tally;
    while (const auto line = lines.Next()) {
        m_line.Append(output.Text(), *line, tally);
        output.Commit();
        if (!output.Failure().empty())
            break;
    }
    return tally;
}

Tally JsonReader::Read(LineReader& lines, OutputBuffer& output) {
    InputRecord inputs;
    const auto refusal = RunObject(lines, m_comparison, inputs);
    Tally tally;
    if (!lines.Failure().empty())
        return tally;
    std::string& out = output.Text();
    if (m_result == Result::Json) {
        refusal ? AppendRefusalJson(out, *refusal, m_options.File)
                : ResultJson(m_options.Only).Append(out, m_comparison);
        out += '\n';
    } else if (refusal) {
        Complain((m_options.File.empty() ? "" : m_options.File + ": ") + RefusalSentence(*refusal),
                 SomeRefused);
    } else {
        out += ResultTable(m_comparison);
    }
    output.Commit();
    tally.Count(refusal.has_value(), refusal ? refusal->Line : 1);
    return tally;
}

} // namespace Ledgrove
