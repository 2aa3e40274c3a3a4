#include "tests/base/StuckDescriptor.h"

#include <cstddef>
#include <cstdlib>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

int stuckWrites = 0;

} // namespace

/// Stands before the C library's: no device of the system can be made to give 0 on request.
extern "C" ssize_t write(int number, const void* bytes, std::size_t size) {
    if (number != Ledgrove::Testing::StuckDescriptor)
        return syscall(SYS_write, number, bytes, size);
    // A loop without an end fails the test here, and does not keep it waiting.
    if (++stuckWrites > 1000)
        std::abort();
    return 0;
}

namespace Ledgrove::Testing {

int StuckWrites() {
    return stuckWrites;
}

} // namespace Ledgrove::Testing
