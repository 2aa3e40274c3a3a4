#pragma once

#include <string>

namespace Ledgrove {

/// Exit statuses of ledgrove-cli and of the programs that it hands over to.
enum ExitStatus { AllWell = 0, SomeRefused = 1, CannotRun = 2 };

/// Writes `sentence` to standard error and gives `status`.
ExitStatus Complain(const std::string& sentence, ExitStatus status);

} // namespace Ledgrove
