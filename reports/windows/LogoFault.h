#pragma once

#include "engine/Session.h"

#include <string>

namespace Ledgrove {

/// Why a report of this session lacks the logo of this option, as a sentence for the user. "" if it has the
/// logo, or if the option is for none.
std::string LogoFault(const Session& session, int logoOption);

} // namespace Ledgrove
