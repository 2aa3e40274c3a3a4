#include "app/files/CsvExport.h"

#include "app/batch/CsvResults.h"
#include "app/batch/CsvText.h"
#include "app/files/ScreenInputs.h"

namespace Ledgrove {

std::string ComparisonCsv(const Session& session) {
    const InputRecord inputs = ScreenInputs(session.Screen);
    std::string out;
    for (const NamedInput& input : InputTable)
        out.append(input.Name).append(",");
    const CsvResults results;
    results.AppendHeadings(out);
    out += '\n';
    for (const NamedInput& input : InputTable) {
        if (inputs[input.Which].Present)
            AppendCsvCell(out, inputs[input.Which].Text);
        out += ',';
    }
    results.Append(out, session, {});
    return out += '\n';
}

} // namespace Ledgrove
