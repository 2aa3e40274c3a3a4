#pragma once

#include <optional>
#include <string>

#include "app/batch/Comparison.h"
#include "app/batch/LineReader.h"

namespace Ledgrove {

/// Reads the inputs of the JSON object in `lines`, enters them and recalculates.
std::optional<Refusal> RunObject(LineReader& lines, Comparison& comparison, InputRecord& inputs);

struct ObjectInput {
    std::string Unreadable;         ///< the system's reason if the file cannot be read, otherwise empty
    std::optional<Refusal> Refused; ///< why its input was refused
    InputRecord Inputs;
};

/// The same for a file; "-" is standard input.
ObjectInput RunObjectFile(const std::string& name, Comparison& comparison);

} // namespace Ledgrove
