#pragma once

#include <string>

#include "app/batch/ExitStatus.h"
#include "engine/Session.h"

// What the verbs of ledgrove-cli that work on a single comparison have in common.
namespace Ledgrove {

struct OneComparison {
    ExitStatus Status = AllWell;
    std::string Complaint; ///< a sentence unless all is well
    Session State;         ///< with the comparison's figures when all is well
};

/// Runs the comparison of `input`, a file of one JSON object or "-" for standard input, on the settings in
/// `folder`.
OneComparison CompareOne(const std::string& folder, const std::string& input);

} // namespace Ledgrove
