#pragma once

#include <optional>
#include <string>

#include "app/options/CommandLine.h"
#include "reports/ReportChoices.h"

namespace Ledgrove {

/// What the commands that write pages as PDF have in common.
struct PaperArguments {
    std::string Output;
    ReportPaper Paper;
    std::optional<int> LogoOption;      ///< empty: as in the settings file
    std::optional<std::string> Builder; ///< empty: as in the settings file
    std::string Buyer;
};

/// Adds --paper, --logo, --builder and --buyer, which the command's row must have. `arguments` must outlive
/// the parser.
void AddPageOptions(CommandOptions& options, PaperArguments& arguments);

/// The same with --orientation.
void AddPaperOptions(CommandOptions& options, PaperArguments& arguments);

/// For a command that prints or writes PDF: why the options that were given do not fit each other, as a
/// message; empty if they do.
std::string PaperChoiceFault(const CLI::App& app);

} // namespace Ledgrove
