// The time from Enter in a field until every label and the chart of the current tab are painted. Prints a
// line for each tab that has a chart: its number, the median, the 99th percentile and the worst of 1,000, in
// milliseconds.

#include "bench/RealWindow.h"
#include "ui/windows/FormFont.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Ledgrove;

namespace {

constexpr int warmUps = 20;
constexpr int rounds = 1000;

/// Alternates high and low prices and never repeats one, so every label, bar and scale changes.
QString PriceOf(int round) {
    return QString::number((round % 2 ? 240000 : 180000) + round);
}

/// The time for one change, in milliseconds. Negative when the chart was not repainted.
double Change(Bench::RealWindow& window, QLineEdit& price, int round) {
    Bench::RealWindow::Type(price, PriceOf(round));
    window.PaintAll();
    const int before = window.ChartPaints();
    QElapsedTimer timer;
    timer.start();
    QTest::keyClick(&price, Qt::Key_Return);
    window.PaintAll();
    const double elapsed = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    return window.ChartPaints() > before ? elapsed : -1;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    UseFormFont();
    Bench::RealWindow window;
    QLineEdit& price = window.FieldNamed("ecStdHome");
    for (const int tab : {1, 3, 4}) {
        window.ShowTab(tab);
        std::vector<double> milliseconds;
        for (int round = 0; round < warmUps + rounds; ++round) {
            const double elapsed = Change(window, price, round);
            if (elapsed < 0) {
                std::fprintf(stderr, "The chart of tab %d was not repainted.\n", tab);
                return 1;
            }
            if (round >= warmUps)
                milliseconds.push_back(elapsed);
        }
        std::sort(milliseconds.begin(), milliseconds.end());
        std::printf("%d %.3f %.3f %.3f\n", tab, milliseconds[rounds / 2], milliseconds[rounds * 99 / 100],
                    milliseconds.back());
    }
}
