#pragma once

#include <string>

namespace Ledgrove {

/// The exit statuses of ledgrove-cli and of the programs that it starts.
enum ExitStatus { AllWell = 0, SomeRefused = 1, CannotRun = 2 };

/// Writes `sentence` to standard error and returns `status`.
ExitStatus Complain(const std::string& sentence, ExitStatus status);

} // namespace Ledgrove
