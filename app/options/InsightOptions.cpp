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

std::string InsightChoiceFault(const CLI::App& app) {
    const bool writesPages = app.count("--output") > 0;
    if (writesPages && app.count("--format") > 0)
        return "--output writes the answers as PDF, and --format prints them. Give one of them.";
    for (const char* option : {"--paper", "--orientation", "--logo", "--builder", "--buyer"})
        if (!writesPages && app.count(option) > 0)
            return std::string(option) +
                   " is for the PDF that --output names. Give --output OUT.pdf as well.";
    return {};
}

} // namespace Ledgrove
