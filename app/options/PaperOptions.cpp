#include "app/options/PaperOptions.h"

namespace Ledgrove {

namespace {

std::string ReadPaper(const std::string& name, PaperSize& size) {
    const auto named = PaperNamed(name);
    if (!named)
        return "The paper must be letter, a4 or legal.";
    size = *named;
    return {};
}

std::string ReadOrientation(const std::string& name, PageOrientation& orientation) {
    const auto named = OrientationNamed(name);
    if (!named)
        return "The orientation must be portrait or landscape.";
    orientation = *named;
    return {};
}

std::string ReadLogo(const std::string& name, std::optional<int>& option) {
    constexpr std::string_view names[] = {"none", "generic", "user"};
    for (int index = 0; index < 3; ++index)
        if (name == names[index])
            option = index;
    return option ? "" : "The logo must be none, generic or user.";
}

} // namespace

void AddPageOptions(CommandOptions& options, PaperArguments& arguments) {
    options.Read("--paper", [&](const std::string& name) { return ReadPaper(name, arguments.Paper.Size); });
    options.Read("--logo", [&](const std::string& name) { return ReadLogo(name, arguments.LogoOption); });
    options.Take("--builder", arguments.Builder);
    options.Take("--buyer", arguments.Buyer);
}

void AddPaperOptions(CommandOptions& options, PaperArguments& arguments) {
    AddPageOptions(options, arguments);
    options.Read("--orientation",
                 [&](const std::string& name) { return ReadOrientation(name, arguments.Paper.Orientation); });
}

std::string PaperChoiceFault(const CLI::App& app) {
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
