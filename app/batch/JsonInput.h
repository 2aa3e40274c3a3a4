#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "app/batch/InputRecord.h"

namespace Ledgrove {

/// Reads JSON objects of input controls one after another, and keeps its memory between them.
class JsonObjectReader {
public:
    JsonObjectReader();
    ~JsonObjectReader();

    /// As ReadJsonObject.
    std::optional<Refusal> Read(std::string_view json, InputRecord& inputs);

private:
    struct Memory;
    std::unique_ptr<Memory> m_memory;
};

/// Reads one JSON object of input controls, or a result of an earlier run, whose fields are the inputs.
/// Refuses invalid JSON, an unknown name, and a value that is not a text, a number or a boolean. The
/// refusal's line is counted from 1 within `json`.
std::optional<Refusal> ReadJsonObject(std::string_view json, InputRecord& inputs);

} // namespace Ledgrove
