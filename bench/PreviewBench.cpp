// The time from "&Preview" to the painted first page of the sample's full report: the median of several runs,
// in milliseconds.

#include "bench/Sample.h"
#include "reports/modPrint.h"
#include "reports/windows/cups/CupsServer.h"
#include "reports/windows/frmPrint.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Ledgrove;

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    Session session = Bench::SampleSession();
    CollectingHost host;
    Module1::Recalculate(session, host);
    AssumptionsScreen assumptions;
    Module1::FillAssumptions(assumptions, session);
    CupsServer server;
    const PrintOutside machine = RealOutside(server);
    const auto write = [&](PrintDocument& document) {
        modPrint::WriteReport(
            document, {session, assumptions, {true, true, true, true, true}, session.EmblemFile(), {}});
    };
    std::vector<double> milliseconds;
    for (int round = 0; round < 11; ++round) {
        QElapsedTimer timer;
        timer.start();
        frmPrint window({write, machine}, session, host);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            return 2;
        window.repaint();
        milliseconds.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    std::printf("%.1f\n", milliseconds[milliseconds.size() / 2]);
}
