#include "ui/windows/Pictures.h"

#include <QPainter>
#include <QPainterPath>

namespace Ledgrove {

namespace {

constexpr int sharpness = 4; ///< device pixels per pixel, enough for all usual scale factors
const QColor roofGreen(0x2e, 0x7d, 0x32);
const QColor wallGreen(0x81, 0xc7, 0x84);
const QColor coinGold(0xf9, 0xa8, 0x25);

/// `draw` works on a grid of 32 by 32.
QPixmap Draw(int size, void (*draw)(QPainter&)) {
    QPixmap picture(size * sharpness, size * sharpness);
    picture.setDevicePixelRatio(sharpness);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 32.0, size / 32.0);
    painter.setPen(Qt::NoPen);
    draw(painter);
    return picture;
}

void DrawHouse(QPainter& painter) {
    painter.setBrush(wallGreen);
    painter.drawRect(QRectF(6, 15, 20, 14));
    painter.setBrush(roofGreen);
    painter.drawPolygon(QPolygonF({{16, 3}, {31, 17}, {1, 17}}));
    painter.drawRect(QRectF(13, 20, 6, 9));
}

void DrawFinancing(QPainter& painter) {
    DrawHouse(painter);
    painter.setBrush(coinGold);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.drawEllipse(QRectF(17, 16, 14, 14));
    QFont font = painter.font();
    font.setPixelSize(11);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRectF(17, 16, 14, 14), Qt::AlignCenter, "$");
}

} // namespace

QPixmap HousePicture(int size) {
    return Draw(size, DrawHouse);
}

QPixmap FinancingPicture(int size) {
    return Draw(size, DrawFinancing);
}

} // namespace Ledgrove
