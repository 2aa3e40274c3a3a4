#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "insight/Answer.h"
#include "insight/Sheet.h"

// Limits and nearests in the words of a buyer.
namespace Ledgrove {

/// The unit of the field that the answer is about.
CellUnit UnitOf(const Answer& answer);

/// The change without its sign: "$6,660", "0.277 points", "5 years"; empty without a change.
std::string ChangeSize(const Answer& answer);

/// "more" or "less", "longer" or "shorter".
std::string_view ChangeWord(const Answer& answer);

/// The value that the answer arrives at, as a cell: "$214,300", "any, to 0.00%", "does not help"; `whenNone`
/// without an answer. The cell proposes to enter a value that was found.
SheetCell AnswerCell(const std::optional<Answer>& answer, std::string_view whenNone);

/// The change with its sign, as a cell: "+$6,660"; empty without a change.
SheetCell ChangeCell(const std::optional<Answer>& answer);

/// Why a limit stops at an edge: "one step further puts ..."; empty if it does not.
std::string EdgePhrase(const Answer& answer);

/// "a, b and c"; `last` stands before the last one.
std::string Joined(const std::vector<std::string>& texts, std::string_view last = " and ");

/// What an empty field of dollars counts as.
inline constexpr const char* EmptyFieldText = "$0";

/// A fraction: 54% for 0.5335. It is rounded up, because less is not enough, but never to all: 99.1% for
/// 0.9904, "nearly 100%" for 0.9999.
std::string ShareText(double share);

} // namespace Ledgrove
