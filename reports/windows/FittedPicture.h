#pragma once

#include <QImage>
#include <QLabel>

namespace Ledgrove {

/// Shows the picture in a label of fixed size, scaled to fit with its proportions kept. A null picture clears
/// the label.
inline void ShowFitted(QLabel& label, const QImage& picture) {
    if (picture.isNull())
        return label.clear();
    const qreal sharpness = label.devicePixelRatioF();
    QPixmap fitted = QPixmap::fromImage(picture.scaled((QSizeF(label.size()) * sharpness).toSize(),
                                                       Qt::KeepAspectRatio, Qt::SmoothTransformation));
    fitted.setDevicePixelRatio(sharpness);
    label.setPixmap(fitted);
}

} // namespace Ledgrove
