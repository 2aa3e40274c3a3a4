// The time from Enter in a field of the main window until the Insight window beside it is painted with its
// new answer. Prints a line for each question: its place in the list, the median, the 99th percentile and the
// worst of 300, in milliseconds.

#include "app/windows/InsightOpener.h"
#include "bench/RealWindow.h"
#include "ui/windows/FormFont.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Ledgrove;

namespace {

constexpr int warmUps = 10;
constexpr int rounds = 300;

/// Never repeats a price, so that every answer changes.
QString PriceOf(int round) {
    return QString::number(206100 + (round % 2 ? 400 : 0) + round);
}

/// Counts the paints of the Insight window.
class PaintCounter : public QObject {
public:
    PaintCounter() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && widget && widget->window()->objectName() == "frmInsight")
            ++Paints;
        return false;
    }

    int Paints = 0;
};

/// The time for one change, in milliseconds. Negative if the Insight window was not repainted.
double Change(Bench::RealWindow& window, const PaintCounter& counter, QLineEdit& price, int round) {
    Bench::RealWindow::Type(price, PriceOf(round));
    window.PaintAll();
    const int before = counter.Paints;
    QElapsedTimer timer;
    timer.start();
    QTest::keyClick(&price, Qt::Key_Return);
    window.PaintAll();
    const double elapsed = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    return counter.Paints > before ? elapsed : -1;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    UseFormFont();
    Bench::RealWindow window;
    Bench::SilentHost host;
    const PaintCounter counter;
    InsightOpener insight(window.State(), host, {}, {}, QCoreApplication::applicationDirPath());
    insight.Follow(window.Main());
    QLineEdit& price = window.FieldNamed("ecGMHHome");
    for (const QuestionRow& question : InsightQuestions) {
        insight.Ask(question.Id);
        window.PaintAll();
        std::vector<double> milliseconds;
        for (int round = 0; round < warmUps + rounds; ++round) {
            const double elapsed = Change(window, counter, price, round);
            if (elapsed < 0) {
                std::fprintf(stderr, "The Insight window was not repainted.\n");
                return 1;
            }
            if (round >= warmUps)
                milliseconds.push_back(elapsed);
        }
        std::sort(milliseconds.begin(), milliseconds.end());
        std::printf("%d %.3f %.3f %.3f\n", static_cast<int>(&question - InsightQuestions.data()),
                    milliseconds[rounds / 2], milliseconds[rounds * 99 / 100], milliseconds.back());
    }
}
