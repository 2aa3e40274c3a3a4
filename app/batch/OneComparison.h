#pragma once

#include <string>

#include "app/batch/ExitStatus.h"
#include "engine/Session.h"

// Shared by the commands of ledgrove-cli that use a single comparison.
namespace Ledgrove {

struct OneComparison {
    ExitStatus Status = AllWell;
    std::string Complaint; ///< a message if `Status` is not AllWell
    Session State;         ///< the session with the figures if `Status` is AllWell
};

/// Runs the comparison in `input`, a file with one JSON object or "-" for standard input, with the settings
/// in `folder`.
OneComparison CompareOne(const std::string& folder, const std::string& input);

} // namespace Ledgrove
