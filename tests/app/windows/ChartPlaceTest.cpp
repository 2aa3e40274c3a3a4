#include <QChartView>
#include <QCheckBox>
#include <QClipboard>
#include <QImage>
#include <QLabel>
#include <QLegend>
#include <QLegendMarker>
#include <QMenu>
#include <QScatterSeries>
#include <QTabBar>
#include <QTimer>
#include <QXmlStreamReader>

#include "DesktopDesk.h"
#include "app/windows/ChartLoader.h"
#include "engine/Recalculate.h"
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

/// The labels of the marks are all shown, inside the plot, and meet neither each other nor a marker.
void CheckMarkLabels(QChart& chart, int count) {
    QList<QRectF> labels;
    for (QGraphicsItem* item : chart.childItems()) {
        if (const auto* text = dynamic_cast<QGraphicsSimpleTextItem*>(item); text && text->isVisible())
            labels += text->mapRectToParent(text->boundingRect());
    }
    QCOMPARE(labels.size(), count);
    QList<QRectF> taken;
    for (QAbstractSeries* series : chart.series()) {
        const auto* marks = qobject_cast<QScatterSeries*>(series);
        for (const QPointF& point : marks ? marks->points() : QList<QPointF>()) {
            const qreal half = marks->markerSize() / 2;
            taken +=
                QRectF(chart.mapToPosition(point, series) - QPointF(half, half), QSizeF(2 * half, 2 * half));
        }
    }
    QCOMPARE(taken.size(), count);
    for (const QRectF& label : labels) {
        QVERIFY(chart.plotArea().contains(label));
        for (const QRectF& other : taken)
            QVERIFY2(!label.intersects(other), "a label meets a marker or another label");
        taken += label;
    }
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
    void markLabelsNeverOverlap_data();
    void markLabelsNeverOverlap();
    void lateYearsAreInThePicture();
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

void ChartPlaceTest::markLabelsNeverOverlap_data() {
    QTest::addColumn<QString>("utilities");
    QTest::newRow("savings") << "500";
    QTest::newRow("small savings") << "1700";
    QTest::newRow("small losses") << "2400";
    QTest::newRow("losses") << "6000";
    QTest::newRow("large losses") << "600000";
}

void ChartPlaceTest::markLabelsNeverOverlap() {
    QFETCH(const QString, utilities);
    OpenCharts open;
    open.Enter("ecStdUtil", "2400");
    open.Enter("ecGMHUtil", utilities);
    open.ShowTab(4);
    for (const std::int16_t years :
         std::initializer_list<std::int16_t>{1, 2, 5, 6, 8, 9, 10, 12, 20, 27, 28, 29, 30, 35}) {
        open.State.Assumptions.YearsInHome = years;
        open.State.From.reset();
        Module1::Recalculate(open.State, open.Outside);
        open.Window->Refresh();
        for (const QSize& size : {open.Window->minimumSize(), open.Window->sizeHint(), QSize(1900, 1000)}) {
            open.Window->resize(size);
            QCoreApplication::processEvents();
            const auto chart = open.Place().findChild<QChartView*>()->chart();
            CheckMarkLabels(*chart, years < 30 ? 3 : 2);
        }
    }
}

void ChartPlaceTest::lateYearsAreInThePicture() {
    OpenCharts open;
    open.State.Assumptions.YearsInHome = 35;
    open.State.From.reset();
    Module1::Recalculate(open.State, open.Outside);
    open.ShowTab(4);
    QCOMPARE(open.Place().accessibleName(), "Accumulated Net Savings by Year");
    const auto* chart = open.Place().findChild<QChartView*>()->chart();
    QCOMPARE(chart->title(), "Accumulated Net Savings by Year<br>35 Years: " + open.LabelText("lblExpYrPre"));
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
