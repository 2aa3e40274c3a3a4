#include "base/SystemError.h"

#include <system_error>

namespace Ledgrove {

std::string Describe(int error) {
    return std::generic_category().message(error);
}

} // namespace Ledgrove
