#pragma once

#include <string>

namespace Ledgrove {

/// The message about a name with characters that no installed font has, so that they do not print; empty if
/// there are none. Needs a QGuiApplication.
std::string NameFault(const std::string& name);

} // namespace Ledgrove
