#pragma once

#include <string>

namespace Ledgrove {

/// The system's words for an error; `error` is an errno.
std::string Describe(int error);

} // namespace Ledgrove
