#include "base/Text.h"

namespace Ledgrove {

std::string Quoted(std::string_view text) {
    std::string quoted;
    quoted.reserve(text.size() + 2);
    quoted += '"';
    quoted += text;
    quoted += '"';
    return quoted;
}

} // namespace Ledgrove
