#include <QTest>

#include "PaintedTexts.h"

namespace Ledgrove {

namespace {

constexpr int steps = 41;

/// Pays where the saving is at least this share of the price difference. Both scales go from 0 to 4,000.
ChartFigures MapWith(double share, double difference, double saving) {
    ChartFigures chart;
    chart.Kind = ChartKind::NetMap;
    chart.Title = "Title";
    chart.Lowest = -100;
    chart.Highest = 100;
    for (int step = 0; step < steps; ++step) {
        chart.Grid.Columns.push_back(step * 100);
        chart.Grid.Rows.push_back(step * 100);
    }
    for (const double row : chart.Grid.Rows) {
        auto& nets = chart.Grid.Nets.emplace_back();
        for (const double column : chart.Grid.Columns)
            nets.emplace_back(static_cast<float>(row - share * column));
    }
    chart.Grid.ColumnNow = difference;
    chart.Grid.RowNow = saving;
    return chart;
}

std::optional<PaintedText> TextOf(const QList<PaintedText>& texts, const QString& words) {
    for (const PaintedText& text : texts)
        if (text.Words == words)
            return text;
    return std::nullopt;
}

QRectF BoxOf(const PaintedText& text, const QFontMetricsF& metrics) {
    return {text.At.x(), text.At.y() - metrics.ascent(), metrics.horizontalAdvance(text.Words),
            metrics.height()};
}

} // namespace

/// What the map of price differences and savings says, and where.
class MapTest : public QObject {
    Q_OBJECT

private slots:
    void theScalesNameStandsAboveItsAmounts();
    void nowLeavesTheZeroLineFree_data();
    void nowLeavesTheZeroLineFree();

private:
    const QFont m_font;
    const QFontMetricsF m_metrics{m_font};
};

void MapTest::theScalesNameStandsAboveItsAmounts() {
    const auto texts = PaintedTexts(MapWith(0.5, 1000, 1000), {600, 240}, m_font);
    const auto name = TextOf(texts, "Saving a year");
    const auto highest = TextOf(texts, "$4,000"); // the last amount of both scales
    QVERIFY(name && highest);
    for (const PaintedText& amount : texts)
        if (amount.Words.startsWith('$'))
            QVERIFY2(!BoxOf(*name, m_metrics).intersects(BoxOf(amount, m_metrics)), qPrintable(amount.Words));
}

void MapTest::nowLeavesTheZeroLineFree_data() {
    QTest::addColumn<double>("share");
    QTest::addColumn<double>("saving");
    for (const double share : {0.3, 0.5, 1.0, 2.0})
        for (const double away : {-600, -300, 300, 600})
            if (const double saving = share * 1500 + away; saving >= 300) // lower, no word has room
                QTest::addRow("%g, %g away", share, away) << share << saving;
}

void MapTest::nowLeavesTheZeroLineFree() {
    QFETCH(double, share);
    QFETCH(double, saving);
    for (const QSize size : {QSize(400, 200), QSize(500, 300), QSize(900, 500)}) {
        const ChartFigures chart = MapWith(share, 1500, saving);
        const auto now = TextOf(PaintedTexts(chart, size, m_font), "now");
        QVERIFY(now);
        const QRectF box = BoxOf(*now, m_metrics);
        const auto pays = [&](const QPointF& corner) {
            const auto cell = MapCellAt(QRectF({0, 0}, QSizeF(size)), m_metrics, chart, corner);
            // A saving of the cell's row against a share of its column's price difference.
            return cell && cell->Row >= share * cell->Column;
        };
        // The line is straight, so that it is free if all corners are on one side.
        for (const QPointF& corner : {box.topRight(), box.bottomLeft(), box.bottomRight()})
            QCOMPARE(pays(corner), pays(box.topLeft()));
    }
}

} // namespace Ledgrove

QTEST_MAIN(Ledgrove::MapTest)
#include "MapTest.moc"
