#include <QChartView>
#include <QCheckBox>
#include <QClipboard>
#include <QImage>
#include <QLabel>
#include <QLegend>
#include <QLegendMarker>
#include <QMenu>
#include <QTabBar>
#include <QTimer>
#include <QXmlStreamReader>

#include "DesktopDesk.h"
#include "app/windows/ChartLoader.h"
#include "ui/windows/ResultPanels.h"

using namespace Ledgrove;

namespace {

ChartPlace& ShownPlace(const QWidget& window) {
    for (ChartPlace* place : window.findChildren<ChartPlace*>()) {
        if (place->isVisible())
            return *place;
    }
    qFatal("no chart is shown");
}

/// The window with charts, and a count of the requests for the chart library.
struct OpenCharts : OpenDesktop {
    OpenCharts()
        : OpenDesktop(Actions()) {
        Enter("ecStdHome", "200000");
        Enter("ecGMHHome", "206000");
        Enter("ecPctDown", "10");
    }

    static MainActions Actions() {
        MainActions actions;
        actions.Charts = [] { return LoadCharts(LEDGROVE_PROGRAM_FOLDER); };
        return actions;
    }

    void ShowTab(int tab) const {
        Find<ResultPanels>("SSTab1").setCurrentIndex(tab);
        QCoreApplication::processEvents();
    }

    ChartPlace& Place() const { return ShownPlace(*Window); }
};

/// Chooses the entry of the context menu that opens next.
void ChooseFromMenu(const QString& text, ChartPlace& place) {
    QTimer::singleShot(0, [text] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        for (QAction* action : menu->actions()) {
            if (QString(action->text()).remove('&') == text)
                action->trigger();
        }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(&place, &event);
}

} // namespace

class ChartPlaceTest : public QObject {
    Q_OBJECT

private slots:
    void chartsComeWithTheirTab();
    void descriptionFollowsTheFigures();
    void pictureIsSaved_data();
    void pictureIsSaved();
    void numbersAreCopied();
    void failedSaveIsReported();
    void missingLibraryIsReported();
    void chartIsReachedByTab();
    void coloursFollowThePalette();
    void unchangedFiguresAreNotRedrawn();
    void taxSavingsComeAndGo();
    void namesAreWords();
};

void ChartPlaceTest::chartsComeWithTheirTab() {
    OpenCharts open;
    QVERIFY(open.Window->findChildren<QWidget*>("Chart").isEmpty());
    open.ShowTab(1);
    QCOMPARE(open.Window->findChildren<QWidget*>("Chart").size(), 1);
    open.ShowTab(3);
    open.ShowTab(4);
    open.ShowTab(1);
    QCOMPARE(open.Window->findChildren<QWidget*>("Chart").size(), 3);
}

void ChartPlaceTest::descriptionFollowsTheFigures() {
    OpenCharts open;
    open.ShowTab(3);
    QVERIFY(open.Place().accessibleDescription().contains("Mortgage Amount: Base Home $180,000"));
    QCOMPARE(open.Place().accessibleName(), "Mortgage and Maximum Loan");
    open.Enter("ecStdHome", "300000");
    QVERIFY(open.Place().accessibleDescription().contains("Mortgage Amount: Base Home $270,000"));
    QVERIFY(open.Place().findChild<QWidget*>("Chart")->toolTip().contains("Base Home $270,000"));
}

void ChartPlaceTest::pictureIsSaved_data() {
    QTest::addColumn<int>("tab");
    for (const int tab : {1, 3, 4})
        QTest::addRow("tab %d", tab) << tab;
}

void ChartPlaceTest::pictureIsSaved() {
    QFETCH(const int, tab);
    OpenCharts open;
    open.ShowTab(tab);
    open.NameToGive = open.PathOf("chart.png");
    ChooseFromMenu("Save as PNG…", open.Place());
    const QImage image(open.NameToGive);
    QCOMPARE(image.size(), QSize(1920, 1200));
    QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white));

    open.NameToGive = open.PathOf("chart.svg");
    ChooseFromMenu("Save as SVG…", open.Place());
    QXmlStreamReader svg(BytesOf(open.NameToGive));
    QVERIFY(svg.readNextStartElement());
    QCOMPARE(svg.name(), u"svg");
    QString words;
    while (!svg.atEnd()) {
        svg.readNext();
        words += svg.text();
    }
    QVERIFY(!svg.hasError());
    QVERIFY(words.contains(open.Place().accessibleName()));
}

void ChartPlaceTest::numbersAreCopied() {
    OpenCharts open;
    open.ShowTab(1);
    ChooseFromMenu("Copy Numbers", open.Place());
    QVERIFY(QGuiApplication::clipboard()->text().contains("Taxes: Base Home $150"));
    ChooseFromMenu("Copy Picture", open.Place());
    QCOMPARE(QGuiApplication::clipboard()->image().size(), QSize(1920, 1200));
}

void ChartPlaceTest::failedSaveIsReported() {
    OpenCharts open;
    open.ShowTab(1);
    open.Outside.Messages.clear();
    open.NameToGive = open.PathOf("none/chart.png");
    ChooseFromMenu("Save as PNG…", open.Place());
    QVERIFY(open.Outside.TakeTexts().front().find("none/chart.png") != std::string::npos);
}

void ChartPlaceTest::missingLibraryIsReported() {
    MainActions actions;
    actions.Charts = [] { return LoadCharts("/nowhere"); };
    OpenDesktop open(actions);
    open.Find<ResultPanels>("SSTab1").setCurrentIndex(1);
    QCoreApplication::processEvents();
    QVERIFY(ShownPlace(*open.Window).findChild<QLabel*>()->text().startsWith("The chart cannot be shown: "));
}

void ChartPlaceTest::chartIsReachedByTab() {
    OpenCharts open;
    open.ShowTab(1);
    open.Find<ResultPanels>("SSTab1").tabBar()->setFocus();
    open.Press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), &open.Place());
    open.Press(Qt::Key_Tab);
    QCOMPARE(open.Focused(), "ecIncome");
}

void ChartPlaceTest::coloursFollowThePalette() {
    OpenCharts open;
    open.ShowTab(1);
    const auto titleColour = [&open] {
        return open.Place().findChild<QChartView*>()->chart()->titleBrush().color();
    };
    QPalette dark;
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    open.Window->setPalette(dark);
    QCOMPARE(titleColour(), QColor(Qt::white));
}

void ChartPlaceTest::unchangedFiguresAreNotRedrawn() {
    OpenCharts open;
    open.ShowTab(4);
    auto* view = open.Place().findChild<QChartView*>();
    int changes = 0;
    connect(view->scene(), &QGraphicsScene::changed, view, [&changes] { ++changes; });
    QTest::qWait(20);
    changes = 0;
    open.Window->Refresh();
    QTest::qWait(20);
    QCOMPARE(changes, 0);
    open.Enter("ecGMHUtil", "500");
    QTRY_VERIFY(changes > 0);
}

void ChartPlaceTest::taxSavingsComeAndGo() {
    OpenCharts open;
    open.ShowTab(1);
    const auto legend = [&open] {
        QMap<QString, QBrush> entries;
        for (const QLegendMarker* marker :
             open.Place().findChild<QChartView*>()->chart()->legend()->markers())
            entries[marker->label()] = marker->brush();
        return entries;
    };
    const auto all = legend();
    QVERIFY(all.contains("Tax Savings"));
    QCOMPARE(all.size(), 6);
    open.Find<QCheckBox>("chkDoTax0").click();
    auto fewer = all;
    fewer.remove("Tax Savings");
    QCOMPARE(legend(), fewer);
    QVERIFY(!open.Place().accessibleDescription().contains("Tax Savings"));
    open.Find<QCheckBox>("chkDoTax0").click();
    QCOMPARE(legend(), all);
}

void ChartPlaceTest::namesAreWords() {
    OpenCharts open;
    for (int tab = 0; tab < TabCount; ++tab) {
        open.ShowTab(tab);
        QCOMPARE(SpokenCodeNames(*open.Window), QStringList());
    }
}

QTEST_MAIN(ChartPlaceTest)
#include "ChartPlaceTest.moc"
