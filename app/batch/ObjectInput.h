#pragma once

#include <optional>
#include <string>

#include "app/batch/Comparison.h"
#include "app/batch/LineReader.h"

namespace Ledgrove {

/// Enters the one JSON object that `lines` hold and recalculates.
std::optional<Refusal> RunObject(LineReader& lines, Comparison& comparison);

struct ObjectInput {
    std::string Unreadable;         ///< a sentence when the file cannot be read, else ""
    std::optional<Refusal> Refused; ///< why its input was refused
};

/// The same from a file, or standard input for "-".
ObjectInput RunObjectFile(const std::string& name, Comparison& comparison);

} // namespace Ledgrove
