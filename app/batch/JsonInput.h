#pragma once

#include <optional>
#include <string_view>

#include "app/batch/InputRecord.h"

namespace Ledgrove {

/// Reads one JSON object of input controls. The refusal of malformed JSON, an unknown name, or a value that
/// is no text, number or boolean; its line is counted from 1 within `json`.
std::optional<Refusal> ReadJsonObject(std::string_view json, InputRecord& inputs);

} // namespace Ledgrove
