#pragma once

#include "reports/PrintItems.h"

#include <string>
#include <string_view>
#include <vector>

namespace Ledgrove {

/// `text` in lines no wider than `width`, broken at blanks, within a word only where the word alone is too
/// wide. At least one line; a line break in the text ends a line. Blanks where a line breaks are dropped.
std::vector<std::string> WrapText(std::string_view text, Twips width, const TextStyle& style,
                                  const TextMeasure& measure);

} // namespace Ledgrove
