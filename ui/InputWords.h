#pragma once

#include <string_view>

namespace Ledgrove {

/// What messages and screen readers call an input of a comparison: "Sticker Price, Base Home" for
/// "ecStdHome". Empty for a name that is not an input.
std::string_view InputWords(std::string_view control);

} // namespace Ledgrove
