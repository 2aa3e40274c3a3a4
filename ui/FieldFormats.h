#pragma once

#include <string>
#include <string_view>

namespace Ledgrove::Module1 {

/// How a field reads and shows its value: "Dollar", "IntRate", "Percent", "Percent2", "Either", "Either2",
/// "String", "Whole" or "WholePercent", compared exactly. Any other name is read as a number and never
/// reformatted.
using FormatType = std::string_view;

/// `text` in the display format of `type`. A text that is no number is shown as 0; "String" and unknown types
/// give the text back unchanged.
std::string FormatFieldText(std::string_view text, FormatType type);

} // namespace Ledgrove::Module1
