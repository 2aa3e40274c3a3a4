#include "ui/windows/HeadedGroup.h"

#include <QDir>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>

using namespace Ledgrove;

namespace {

/// A group around one caption, which is empty so that only the heading is drawn.
struct Form {
    explicit Form(const QPalette& palette) {
        Group.setPalette(palette);
        auto* layout = new QVBoxLayout(&Group);
        layout->addWidget(Caption);
        Group.resize(300, 120);
    }
    QImage Painted() { return Group.grab().toImage().convertToFormat(QImage::Format_RGB32); }

    HeadedGroup Group{"Buyer"};
    QLabel* Caption = new QLabel;
};

/// The smallest rectangle that holds every pixel that is not the background's.
QRect Drawn(const QImage& picture, const QColor& background) {
    QRect drawn;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) != background)
                drawn = drawn.united({x, y, 1, 1});
        }
    }
    return drawn;
}

QPalette Dark() {
    QPalette palette(QColor(60, 60, 60), QColor(45, 45, 45));
    palette.setColor(QPalette::WindowText, Qt::white);
    return palette;
}

} // namespace

class HeadedGroupTest : public QObject {
    Q_OBJECT

private slots:
    void showsItsHeadingAndNoFrame_data();
    void showsItsHeadingAndNoFrame();
    void theHeadingBeginsWhereTheCaptionsBegin();
    void paintingStartsNoThread();
};

void HeadedGroupTest::showsItsHeadingAndNoFrame_data() {
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << QPalette(QColor(240, 240, 240), QColor(239, 239, 239));
    QTest::newRow("dark") << Dark();
}

void HeadedGroupTest::showsItsHeadingAndNoFrame() {
    QFETCH(QPalette, palette);
    Form form(palette);
    const QImage picture = form.Painted();
    const QRect drawn = Drawn(picture, palette.color(QPalette::Window));
    QVERIFY(!drawn.isEmpty());
    QVERIFY(drawn.bottom() < form.Caption->geometry().top());
    QVERIFY(drawn.width() < 100);
    bool inTextColour = false;
    for (int x = drawn.left(); x <= drawn.right() && !inTextColour; ++x) {
        for (int y = drawn.top(); y <= drawn.bottom(); ++y)
            inTextColour = inTextColour || picture.pixelColor(x, y) == palette.color(QPalette::WindowText);
    }
    QVERIFY(inTextColour);
}

void HeadedGroupTest::theHeadingBeginsWhereTheCaptionsBegin() {
    Form form(Dark());
    auto* hidden = new QLabel("Annual Income");
    form.Group.layout()->addWidget(hidden);
    hidden->hide();
    const QRect drawn = Drawn(form.Painted(), form.Group.palette().color(QPalette::Window));
    QVERIFY(std::abs(drawn.left() - form.Caption->geometry().left()) <= 2); // a letter's own edge
}

void HeadedGroupTest::paintingStartsNoThread() {
    const auto threads = [] {
        return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
    };
    Form form(Dark());
    const qsizetype before = threads();
    form.Painted();
    QCOMPARE(threads(), before);
}

QTEST_MAIN(HeadedGroupTest)
#include "HeadedGroupTest.moc"
