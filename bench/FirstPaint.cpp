// Preloaded into an X program: when the program sends its first picture to the display, this writes the
// milliseconds since START_NS (of the monotonic clock) and the peak memory in KiB, and ends the program. So
// all programs are measured in the same way, without changes to them.

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>

#include <unistd.h>

namespace {

long long Now() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
}

/// In KiB. The system's usage record is not used, because it includes the peak of the parent process.
long PeakMemory() {
    std::ifstream status("/proc/self/status");
    const std::string wanted = "VmHWM:";
    for (std::string line; std::getline(status, line);) {
        if (line.compare(0, wanted.size(), wanted) == 0)
            return std::atol(line.c_str() + wanted.size());
    }
    return 0;
}

[[noreturn]] void Tell() {
    const long long now = Now();
    const char* const start = std::getenv("START_NS");
    const double elapsed = start ? static_cast<double>(now - std::atoll(start)) / 1e6 : 0;
    std::printf("%.3f %ld\n", elapsed, PeakMemory());
    std::fflush(stdout);
    _exit(0);
}

} // namespace

// The two ways in which a program sends a window's content: through shared memory and through the connection.
extern "C" void xcb_shm_put_image() {
    Tell();
}
extern "C" void xcb_put_image() {
    Tell();
}
