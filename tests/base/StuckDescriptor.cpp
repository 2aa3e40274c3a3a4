#include "tests/base/StuckDescriptor.h"

#include <cstddef>
#include <cstdlib>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

int stuckWrites = 0;

} // namespace

/// Replaces the C library's function, because no device returns 0 on request.
extern "C" ssize_t write(int number, const void* bytes, std::size_t size) {
    if (number != Ledgrove::Testing::StuckDescriptor)
        return syscall(SYS_write, number, bytes, size);
    // Fails the test if the code under test loops without end, instead of hanging.
    if (++stuckWrites > 1000)
        std::abort();
    return 0;
}

namespace Ledgrove::Testing {

int StuckWrites() {
    return stuckWrites;
}

} // namespace Ledgrove::Testing
