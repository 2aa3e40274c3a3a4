#pragma once

#include <string>

#include "app/batch/InsightCommand.h"
#include "app/options/PaperOptions.h"

namespace Ledgrove {

/// The command line of `insight`, which ledgrove-cli and the program that writes its PDF both read.
struct InsightArguments {
    InsightCommand Command;
    PaperArguments Pages;
    std::string Input = "-";
};

/// Adds the options of `insight`. `folder` and `arguments` must outlive the parser.
void AddInsightOptions(CLI::App& app, std::string& folder, InsightArguments& arguments,
                       const std::string& program);

} // namespace Ledgrove
