#pragma once

#include <QString>
#include <QWidget>

namespace Ledgrove {

/// Names a field, button or option. `control` is its object name; screen readers read `humanName` ("Sticker
/// Price, Base Home").
inline void Identify(QWidget& widget, const QString& control, const QString& humanName) {
    widget.setObjectName(control);
    widget.setAccessibleDescription(control);
    widget.setAccessibleName(humanName);
}

/// Names a pick list or a result label. Screen readers read its text, which an accessible name would hide, so
/// the human name becomes the description.
inline void IdentifyByDescription(QWidget& widget, const QString& control, const QString& description) {
    widget.setObjectName(control);
    widget.setAccessibleDescription(description);
}

} // namespace Ledgrove
