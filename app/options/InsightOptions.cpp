#include "app/options/InsightOptions.h"

namespace Ledgrove {

void AddInsightOptions(CLI::App& app, std::string& folder, InsightArguments& arguments,
                       const std::string& program) {
    CommandOptions options(app, "ledgrove-cli insight", folder, program);
    InsightCommand& command = arguments.Command;
    options.Read("--format",
                 [&command](const std::string& name) { return command.ReadFormat(name, UnknownWord); });
    options.Read("--view",
                 [&command](const std::string& list) { return command.ReadViews(list, UnknownWord); });
    options.Read("--by", [&command](const std::string& percent) { return command.ReadBy(percent); });
    options.Take("--output", arguments.Pages.Output);
    AddPaperOptions(options, arguments.Pages);
    options.Take("FILE", arguments.Input);
}

} // namespace Ledgrove
