#include "app/batch/InputRecord.h"

#include <algorithm>

#include "base/Text.h"

namespace Ledgrove {

void InputRecord::Clear() {
    for (InputValue& value : m_values)
        value.Present = false;
}

InputValue* InputRecord::Find(std::string_view name) {
    const auto found = std::find(InputNames.begin(), InputNames.end(), name);
    return found == InputNames.end() ? nullptr
                                     : &m_values[static_cast<std::size_t>(found - InputNames.begin())];
}

const InputValue& InputRecord::At(std::string_view name) const {
    return m_values[static_cast<std::size_t>(std::find(InputNames.begin(), InputNames.end(), name) -
                                             InputNames.begin())];
}

Refusal UnknownInput(std::string_view name, std::string_view value) {
    std::string message = "There is no input of this name. The inputs are ";
    for (const std::string_view known : InputNames) {
        if (known != InputNames.front())
            message += ", ";
        message += known;
    }
    return {0, std::string(name), std::string(value), message + "."};
}

std::string RefusalSentence(const Refusal& refusal) {
    return refusal.Message + " (line " + std::to_string(refusal.Line) + ", " + refusal.Control + " " +
           Quoted(refusal.Value) + ")";
}

Refusal InputTooLong(std::size_t line) {
    return {line, "", "", "The input is longer than 1 MiB. Write each comparison as one short JSON object."};
}

} // namespace Ledgrove
