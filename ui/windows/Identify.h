#pragma once

#include <QString>
#include <QWidget>

namespace Ledgrove {

/// Names a field, button or option: `control` finds it, `humanName` ("Sticker Price, Base Home") is read out.
inline void Identify(QWidget& widget, const QString& control, const QString& humanName) {
    widget.setObjectName(control);
    widget.setAccessibleDescription(control);
    widget.setAccessibleName(humanName);
}

/// Names a pick list or a result label. Their text is what is read out, and an accessible name would hide it,
/// so the human form goes into the description.
inline void IdentifyByDescription(QWidget& widget, const QString& control, const QString& description) {
    widget.setObjectName(control);
    widget.setAccessibleDescription(description);
}

} // namespace Ledgrove
