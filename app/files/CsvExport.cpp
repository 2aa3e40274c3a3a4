#include "app/files/CsvExport.h"

#include "app/batch/CsvCompare.h"
#include "app/files/ScreenInputs.h"

namespace Ledgrove {

std::string ComparisonCsv(const Session& session) {
    const InputRecord inputs = ScreenInputs(session.Screen);
    std::string out;
    std::vector<std::string> heading;
    for (const NamedInput& input : InputTable)
        heading.emplace_back(input.Name);
    AppendCsvHeading(out, heading);
    for (const NamedInput& input : InputTable) {
        if (inputs[input.Which].Present)
            AppendCsvCell(out, inputs[input.Which].Text);
        out += ',';
    }
    AppendCsvResults(out, session);
    return out += '\n';
}

} // namespace Ledgrove
