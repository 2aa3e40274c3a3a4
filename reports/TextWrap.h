#pragma once

#include "reports/PrintItems.h"

#include <string>
#include <string_view>
#include <vector>

namespace Ledgrove {

/// Splits `text` into lines no wider than `width`. Lines break at blanks, and within a word only if the word
/// alone is too wide. There is at least one line, and a line break in the text ends a line. Blanks at a break
/// are dropped.
std::vector<std::string> WrapText(std::string_view text, Twips width, const TextStyle& style,
                                  const TextMeasure& measure);

} // namespace Ledgrove
