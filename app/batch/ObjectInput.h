#pragma once

#include <optional>
#include <string>

#include "app/batch/Comparison.h"
#include "app/batch/LineReader.h"

namespace Ledgrove {

/// Enters the inputs of the JSON object in `lines` and recalculates.
std::optional<Refusal> RunObject(LineReader& lines, Comparison& comparison);

struct ObjectInput {
    std::string Unreadable;         ///< a message if the file cannot be read, otherwise empty
    std::optional<Refusal> Refused; ///< why its input was refused
};

/// The same for a file; "-" is standard input.
ObjectInput RunObjectFile(const std::string& name, Comparison& comparison);

} // namespace Ledgrove
