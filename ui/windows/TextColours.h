#pragma once

#include <QColor>
#include <QPalette>
#include <QWidget>
#include <optional>

#include "engine/MainScreen.h"

namespace Ledgrove {

/// How a text colour of the record looks on this palette's background; nothing for the palette's own colour.
std::optional<QColor> ColourOn(const QPalette& palette, TextColour colour);

/// Gives the widget's text this colour, or the inherited one back.
void SetTextColour(QWidget& widget, const std::optional<QColor>& colour);

} // namespace Ledgrove
