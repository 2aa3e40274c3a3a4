// The time to compose the sample's full report: the median of many runs, in milliseconds.

#include "app/batch/Comparison.h"
#include "bench/Sample.h"
#include "reports/windows/PagePainter.h"
#include "reports/windows/ReportFile.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Ledgrove;

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    Session session = Bench::SampleSession();
    CollectingHost host;
    Module1::Recalculate(session, host);
    AssumptionsScreen assumptions;
    Module1::FillAssumptions(assumptions, session);
    std::vector<double> milliseconds;
    for (int round = 0; round < 200; ++round) {
        QElapsedTimer timer;
        timer.start();
        const FontMeasure measure;
        PrintDocument document(measure);
        PrepareReport(document, {}, "11/20/2026");
        document.Start();
        modPrint::WriteReport(document, {session, assumptions, {true, true, true, true, true}, {}, {}});
        document.End();
        milliseconds.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    std::printf("%.3f\n", milliseconds[milliseconds.size() / 2]);
}
