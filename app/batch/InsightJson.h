#pragma once

#include "app/batch/JsonValues.h"
#include "insight/Views.h"

// The views as JSON. Each function writes one object.
namespace Ledgrove::Json {

void WriteBreakeven(Writer& json, const Breakeven& breakeven);
void WriteQualify(Writer& json, const Qualification& qualification);
void WriteOptions(Writer& json, const OptionTable& options);
void WriteSensitivity(Writer& json, const Sensitivity& sensitivity);
void WriteMap(Writer& json, const NetMap& map);

/// A limit or a nearest; null without an answer.
void WriteAnswer(Writer& json, const std::optional<Answer>& answer);

} // namespace Ledgrove::Json
