// A long session: types and enters figure after figure, tab after tab, and paints each time. "edits N" or
// "seconds N" gives the length. Prints the number of edits, then heap in use (bytes) and resident memory
// (KiB), after the warm-up and at the end, both with the same figures on the same tab.

#include "bench/RealWindow.h"
#include "ui/windows/FormFont.h"

#include <QElapsedTimer>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <string_view>
#include <unistd.h>

using namespace Ledgrove;

namespace {

/// The two values that are entered into a field in turn.
struct Entry {
    const char* Field;
    const char* Texts[2];
};

constexpr std::array<Entry, 10> entries{{{"ecIncome", {"96000", "72000"}},
                                         {"ecMonthlyDebt", {"125", "350"}},
                                         {"ecPctDown", {"5", "10"}},
                                         {"ecStdHome", {"310,500", "200000"}},
                                         {"ecGMHHome", {"$319000", "206000"}},
                                         {"ecStdUtil", {"3100", "2400"}},
                                         {"ecGMHUtil", {"2050", "1700"}},
                                         {"ecStdRate", {"5.875", "6.5"}},
                                         {"ecGMHRate", {"5.75%", "6.5"}},
                                         {"ecStdStr", {"2", "0"}}}};

/// After one cycle, every field has its first value again.
constexpr long cycle = static_cast<long>(entries.size()) * 2 * TabCount;

struct Memory {
    std::size_t HeapBytes;
    long ResidentKiB;
};

Memory InUse() {
    const struct mallinfo2 heap = mallinfo2();
    std::ifstream statm("/proc/self/statm");
    long pages = 0;
    long resident = 0;
    statm >> pages >> resident;
    return {heap.uordblks + heap.hblkhd, resident * (sysconf(_SC_PAGESIZE) / 1024)};
}

/// Changes every field and changes it back, on each tab.
void RunCycle(Bench::RealWindow& window) {
    for (int tab = 0; tab < TabCount; ++tab) {
        window.ShowTab(tab);
        for (const int turn : {0, 1}) {
            for (const Entry& entry : entries) {
                QLineEdit& field = window.FieldNamed(entry.Field);
                Bench::RealWindow::Type(field, entry.Texts[turn]);
                QTest::keyClick(&field, Qt::Key_Return);
                window.PaintAll();
            }
        }
    }
    window.ShowTab(0);
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    UseFormFont();
    if (argc != 3)
        return 2;
    const bool isTimed = std::string_view(argv[1]) == "seconds";
    const long wanted = std::atol(argv[2]);

    Bench::RealWindow window;
    constexpr int warmUpCycles = 20;
    for (int i = 0; i < warmUpCycles; ++i)
        RunCycle(window);
    const Memory warm = InUse();
    QElapsedTimer timer;
    timer.start();
    long edits = 0;
    while (isTimed ? timer.elapsed() < wanted * 1000 : edits < wanted) {
        RunCycle(window);
        edits += cycle;
    }
    const Memory end = InUse();
    std::printf("%ld %zu %ld %zu %ld\n", edits, warm.HeapBytes, warm.ResidentKiB, end.HeapBytes,
                end.ResidentKiB);
}
