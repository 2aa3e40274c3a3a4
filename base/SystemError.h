#pragma once

#include <string>

namespace Ledgrove {

/// The system's message for `error`, an errno value.
std::string Describe(int error);

} // namespace Ledgrove
