#include "ui/windows/TextColours.h"

namespace Ledgrove {

std::optional<QColor> ColourOn(const QPalette& palette, TextColour colour) {
    switch (colour) {
    case TextColour::Red: {
        // Pure red is too faint on a grey background and too dark on a black one.
        const bool dark = palette.color(QPalette::Window).lightness() < 128;
        return dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb7, 0x1c, 0x1c);
    }
    case TextColour::Grey:
        return QColor(128, 128, 128);
    case TextColour::Normal:
        break;
    }
    return std::nullopt;
}

void SetTextColour(QWidget& widget, const std::optional<QColor>& colour) {
    QPalette palette;
    // A new palette sets no role, so the widget inherits all roles.
    palette.setResolveMask(0);
    if (colour) {
        palette.setColor(QPalette::Text, *colour);
        palette.setColor(QPalette::WindowText, *colour);
    }
    widget.setPalette(palette);
}

} // namespace Ledgrove
