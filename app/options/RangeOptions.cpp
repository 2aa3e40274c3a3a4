#include "app/options/RangeOptions.h"

namespace Ledgrove {

void AddRangeOptions(CLI::App& app, std::string& folder, RangeArguments& arguments,
                     const std::string& program) {
    CommandOptions options(app, "ledgrove-cli range", folder, program);
    RangeCommand& command = arguments.Command;
    options.Read("--format",
                 [&command](const std::string& name) { return command.ReadFormat(name, UnknownWord); });
    options.Read("--options",
                 [&command](const std::string& list) { return command.ReadOptions(list, UnknownWord); });
    options.Flag("--no-limits", command.WithoutLimits);
    arguments.Pages.Paper.Orientation = PageOrientation::Landscape;
    options.Take("--output", arguments.Pages.Output);
    AddPaperOptions(options, arguments.Pages);
    options.Take("FILE", arguments.Input);
}

} // namespace Ledgrove
