#include "app/files/CsvExport.h"

#include "app/batch/CsvCompare.h"
#include "app/files/ScreenInputs.h"

namespace Ledgrove {

std::string ComparisonCsv(const Session& session) {
    const InputRecord inputs = ScreenInputs(session.Screen);
    std::string out;
    AppendCsvHeading(out, {InputNames.begin(), InputNames.end()});
    for (const std::string_view name : InputNames) {
        if (inputs.At(name).Present)
            AppendCsvCell(out, inputs.At(name).Text);
        out += ',';
    }
    AppendCsvResults(out, session);
    return out += '\n';
}

} // namespace Ledgrove
