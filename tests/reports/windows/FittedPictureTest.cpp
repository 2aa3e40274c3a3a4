#include "reports/windows/FittedPicture.h"

#include <QLabel>
#include <QSet>
#include <QtTest>

using namespace Ledgrove;

namespace {

const QRgb roof = qRgb(0x2e, 0x7d, 0x32);

/// Vertical stripes of one pixel by turns in the two colours of the picture's table.
QImage Stripes(const QSize& size, QRgb even, QRgb odd) {
    QImage picture(size, QImage::Format_Indexed8);
    picture.setColorTable({even, odd});
    for (int x = 0; x < size.width(); ++x) {
        for (int y = 0; y < size.height(); ++y)
            picture.setPixel(x, y, static_cast<uint>(x % 2));
    }
    return picture;
}

QSet<QRgb> ColoursOf(const QPixmap& pixmap) {
    const QImage image = pixmap.toImage();
    QSet<QRgb> colours;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            colours += image.pixel(x, y);
    }
    return colours;
}

} // namespace

class FittedPictureTest : public QObject {
    Q_OBJECT

private slots:
    void aPictureWithAColourTableIsSmooth_data();
    void aPictureWithAColourTableIsSmooth();
    void theEmblemIsSmooth_data();
    void theEmblemIsSmooth();
    void proportionsAreKept();
    void transparencyIsKept();
};

void FittedPictureTest::aPictureWithAColourTableIsSmooth_data() {
    QTest::addColumn<qreal>("sharpness");
    for (const qreal sharpness : {1.0, 1.5, 2.0})
        QTest::addRow("%g pixels for each", sharpness) << sharpness;
}

void FittedPictureTest::aPictureWithAColourTableIsSmooth() {
    QFETCH(qreal, sharpness);
    const QPixmap flat = FittedPicture(Stripes({480, 480}, roof, roof), {60, 60}, sharpness);
    QCOMPARE(flat.devicePixelRatio(), sharpness);
    QCOMPARE(flat.size(), (QSizeF(60, 60) * sharpness).toSize());
    QCOMPARE(ColoursOf(flat), QSet<QRgb>{roof});
    // Each pixel gets about as many black stripes as white ones.
    const QPixmap grey =
        FittedPicture(Stripes({480, 480}, qRgb(0, 0, 0), qRgb(255, 255, 255)), {60, 60}, sharpness);
    for (const QRgb colour : ColoursOf(grey))
        QVERIFY2(qRed(colour) > 64 && qRed(colour) < 192, "a pixel has a colour of the table");
}

void FittedPictureTest::theEmblemIsSmooth_data() {
    aPictureWithAColourTableIsSmooth_data();
}

void FittedPictureTest::theEmblemIsSmooth() {
    QFETCH(qreal, sharpness);
    const QImage emblem(LEDGROVE_SOURCE_DIR "/data/LedgroveEmblem.png");
    QCOMPARE(emblem.format(), QImage::Format_Indexed8);
    const QImage fitted = FittedPicture(emblem, {64, 56}, sharpness).toImage();
    // The roof below the middle of the ridge has one colour.
    const QRect place(QPoint(fitted.width() / 2 - 4, fitted.height() / 4), QSize(8, fitted.height() / 8));
    QVERIFY(emblem.pixel(emblem.width() / 2, emblem.height() / 4) == roof);
    QCOMPARE(ColoursOf(QPixmap::fromImage(fitted.copy(place))), QSet<QRgb>{roof});
}

void FittedPictureTest::proportionsAreKept() {
    QCOMPARE(FittedPicture(Stripes({400, 200}, roof, roof), {60, 60}, 1).size(), QSize(60, 30));
    QCOMPARE(FittedPicture(Stripes({200, 400}, roof, roof), {60, 60}, 2).size(), QSize(60, 120));
}

void FittedPictureTest::transparencyIsKept() {
    QImage picture(10, 10, QImage::Format_Indexed8);
    picture.setColorTable({qRgba(0, 0, 0, 0)});
    picture.fill(0);
    QVERIFY(FittedPicture(picture, {5, 5}, 1).hasAlpha());
    QLabel label;
    label.setFixedSize(5, 5);
    ShowFitted(label, picture);
    QCOMPARE(label.pixmap().size(), (QSizeF(5, 5) * label.devicePixelRatioF()).toSize());
    ShowFitted(label, {});
    QVERIFY(label.pixmap().isNull());
}

QTEST_MAIN(FittedPictureTest)
#include "FittedPictureTest.moc"
