#pragma once

#include <QString>
#include <QWidget>

namespace Ledgrove {

/// Changes the name that screen readers speak. An unchanged name stays silent: Qt reports every call as a
/// change.
inline void SetSpokenName(QWidget& widget, const QString& name) {
    if (widget.accessibleName() != name)
        widget.setAccessibleName(name);
}

/// Changes the description that screen readers speak after the name. An unchanged one stays silent.
inline void SetSpokenDescription(QWidget& widget, const QString& description) {
    if (widget.accessibleDescription() != description)
        widget.setAccessibleDescription(description);
}

/// Names a field, button or option. `control` is its object name, which nobody hears; screen readers speak
/// `humanName` ("Sticker Price, Base Home").
inline void Identify(QWidget& widget, const QString& control, const QString& humanName) {
    widget.setObjectName(control);
    SetSpokenName(widget, humanName);
}

/// Names a pick list or a result label. Screen readers read its text, which an accessible name would hide, so
/// the human name becomes the description.
inline void IdentifyByDescription(QWidget& widget, const QString& control, const QString& description) {
    widget.setObjectName(control);
    SetSpokenDescription(widget, description);
}

} // namespace Ledgrove
