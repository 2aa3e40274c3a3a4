#pragma once

#include <QStringList>
#include <QWidget>
#include <algorithm>

namespace Ledgrove {

/// The controls of the form as the eye meets them: line by line from the top, and each line from the left.
inline QStringList InReadingOrder(const QWidget& form, QStringList controls) {
    const auto place = [&form](const QString& control) {
        const auto* widget = form.findChild<QWidget*>(control);
        if (!widget)
            qFatal("there is no %s", qPrintable(control));
        return QRect(widget->mapTo(&form, QPoint()), widget->size());
    };
    std::sort(controls.begin(), controls.end(), [&place](const QString& one, const QString& other) {
        const QRect a = place(one);
        const QRect b = place(other);
        const bool onOneLine = a.top() <= b.bottom() && b.top() <= a.bottom();
        return onOneLine ? a.left() < b.left() : a.top() < b.top();
    });
    return controls;
}

} // namespace Ledgrove
