// From Enter in a field to every label of the window updated and painted, in milliseconds.

#include "bench/Sample.h"
#include "ui/windows/frmMain.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Ledgrove;

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    Session session = Bench::SampleSession();
    CollectingHost host;
    frmMain window(session, host);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return 2;
    auto* const price = window.findChild<QLineEdit*>("ecGMHHome");

    constexpr int rounds = 1000;
    std::vector<double> milliseconds;
    for (int round = 0; round < rounds; ++round) {
        price->setFocus();
        price->selectAll();
        QTest::keyClicks(price, QString::number(200000 + round));
        QElapsedTimer timer;
        timer.start();
        QTest::keyClick(price, Qt::Key_Return);
        window.repaint();
        QCoreApplication::processEvents();
        milliseconds.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    std::printf("%.3f %.3f %.3f\n", milliseconds[rounds / 2], milliseconds[rounds * 99 / 100],
                milliseconds.back());
}
