#include "app/batch/InputRecord.h"

#include <algorithm>

#include "base/Text.h"

namespace Ledgrove {

namespace {

constexpr bool StandsInOrder() {
    for (std::size_t i = 0; i < std::size(InputTable); ++i) {
        if (static_cast<std::size_t>(InputTable[i].Which) != i)
            return false;
    }
    return true;
}
static_assert(StandsInOrder(), "InputTable must follow the order of Input");

} // namespace

std::optional<Input> InputNamed(std::string_view name) {
    const auto* const found = std::find_if(std::begin(InputTable), std::end(InputTable),
                                           [name](const NamedInput& input) { return input.Name == name; });
    return found == std::end(InputTable) ? std::nullopt : std::optional(found->Which);
}

void InputRecord::Clear() {
    for (InputValue& value : m_values) {
        value.Present = false;
        value.Kind = InputKind::Text;
        value.Text.clear();
    }
}

Refusal UnknownInput(std::string_view name, std::string_view value) {
    std::string message = "This is not the name of an input. The inputs are ";
    for (const NamedInput& known : InputTable) {
        if (&known != std::begin(InputTable))
            message += ", ";
        message += known.Name;
    }
    return {0, std::string(name), std::string(value), message + "."};
}

std::string RefusalSentence(const Refusal& refusal) {
    const std::string place = " (line " + std::to_string(refusal.Line);
    if (refusal.Control.empty())
        return refusal.Message + place + ")";
    return refusal.Message + place + ", " + refusal.Control + " " + Quoted(refusal.Value) + ")";
}

Refusal InputTooLong(std::size_t line) {
    return {line, "", "", "The input is longer than 1 MiB. Write each comparison as one short JSON object."};
}

} // namespace Ledgrove
