#pragma once

#include <string>

#include "app/batch/RangeCommand.h"
#include "app/options/PaperOptions.h"

namespace Ledgrove {

/// The command line of `range`, which ledgrove-cli and the program that writes its PDF both read.
struct RangeArguments {
    RangeCommand Command;
    PaperArguments Pages; ///< in landscape without --orientation
    std::string Input = "-";
};

/// Adds the options of `range`. `folder` and `arguments` must outlive the parser.
void AddRangeOptions(CLI::App& app, std::string& folder, RangeArguments& arguments,
                     const std::string& program);

} // namespace Ledgrove
