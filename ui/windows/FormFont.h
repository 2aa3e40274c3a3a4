#pragma once

#include <QApplication>
#include <QFont>

namespace Ledgrove {

/// Sets the letters of the whole program side by side: kerning and ligatures, which short captions and
/// figures do without, would take a twentieth of the start. Call it before the first window.
inline void UseFormFont() {
    QFont font = QApplication::font();
    font.setStyleStrategy(QFont::PreferNoShaping);
    QApplication::setFont(font);
}

} // namespace Ledgrove
