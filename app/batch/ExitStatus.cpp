#include "app/batch/ExitStatus.h"

#include <iostream>

namespace Ledgrove {

ExitStatus Complain(const std::string& sentence, ExitStatus status) {
    std::cerr << "ledgrove-cli: " << sentence << '\n';
    return status;
}

} // namespace Ledgrove
