#pragma once

#include <QColor>
#include <QPalette>
#include <QWidget>
#include <optional>

#include "engine/MainScreen.h"

namespace Ledgrove {

/// The text colour of the record on this palette's background; nothing for the palette's own colour.
std::optional<QColor> ColourOn(const QPalette& palette, TextColour colour);

/// Sets the colour of the widget's text, or restores the inherited one.
void SetTextColour(QWidget& widget, const std::optional<QColor>& colour);

} // namespace Ledgrove
