#include "ui/windows/insight/PicturePainter.h"

#include <QImage>
#include <QPainter>
#include <QTest>

namespace Ledgrove {

namespace {

constexpr int width = 640;
constexpr int height = 320;

/// From 100 down to 60 and up to 120.
ChartFigures Figures() {
    ChartFigures chart;
    chart.Kind = ChartKind::Waterfall;
    chart.Title = "Title";
    chart.Categories = {"In A", "Fall", "Rise", "In B"};
    chart.Series = {{"From", {100, 100, 60, 120}},
                    {"To", {100, 60, 120, 120}, {"$100", "-$40", "+$60", "$120"}}};
    chart.Lowest = 50;
    chart.Highest = 130;
    return chart;
}

QImage Painted(const ChartFigures& chart) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::black);
    PaintPicture(painter, QRectF(0, 0, width, height), chart, palette);
    return image;
}

/// The box around all pixels of this colour.
QRect BoxOf(const QImage& image, const QColor& colour) {
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == colour)
                box |= QRect(x, y, 1, 1);
    return box;
}

} // namespace

class WaterfallTest : public QObject {
    Q_OBJECT

private slots:
    void aRiseBeginsWhereTheFallEnds();
    void barsHaveTheWidthOfTheirChange();
    void totalsBeginAtTheEdge();

private:
    const QImage m_image = Painted(Figures());
    const QRect m_rise = BoxOf(m_image, QColor(0x2f, 0x6f, 0x83));
    const QRect m_fall = BoxOf(m_image, QColor(0xc2, 0x5a, 0x1c));
    const QRect m_totals = BoxOf(m_image, QColor(0x8a, 0x8f, 0x99));
};

void WaterfallTest::aRiseBeginsWhereTheFallEnds() {
    QVERIFY(m_rise.isValid() && m_fall.isValid());
    QVERIFY(m_rise.top() > m_fall.bottom());
    QVERIFY(std::abs(m_rise.left() - m_fall.left()) <= 1);
}

void WaterfallTest::barsHaveTheWidthOfTheirChange() {
    // 60 against 40; the outlines take a pixel or two.
    QVERIFY(std::abs(m_rise.width() * 40 - m_fall.width() * 60) <= 3 * 60);
}

void WaterfallTest::totalsBeginAtTheEdge() {
    QVERIFY(m_totals.left() < m_fall.left());
    QVERIFY(m_totals.top() < m_fall.top());
    QVERIFY(m_totals.bottom() > m_rise.bottom());
    QVERIFY(std::abs(m_totals.right() - m_rise.right()) <= 1);
}

} // namespace Ledgrove

QTEST_MAIN(Ledgrove::WaterfallTest)
#include "WaterfallTest.moc"
