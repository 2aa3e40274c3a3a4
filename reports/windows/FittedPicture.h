#pragma once

#include <QImage>
#include <QLabel>

namespace Ledgrove {

/// The picture in the largest size that fits into `room`, in logical pixels, with its proportions kept, for a
/// screen with `sharpness` pixels per logical pixel. `picture` must not be null.
inline QPixmap FittedPicture(const QImage& picture, const QSize& room, qreal sharpness) {
    // With a colour table, the scaled picture could only dither the table's few colours.
    const QImage coloured = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPixmap fitted = QPixmap::fromImage(
        coloured.scaled((QSizeF(room) * sharpness).toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
    fitted.setDevicePixelRatio(sharpness);
    return fitted;
}

/// Shows the picture in a label of fixed size, scaled to fit with its proportions kept. A null picture clears
/// the label.
inline void ShowFitted(QLabel& label, const QImage& picture) {
    if (picture.isNull())
        return label.clear();
    label.setPixmap(FittedPicture(picture, label.size(), label.devicePixelRatioF()));
}

} // namespace Ledgrove
