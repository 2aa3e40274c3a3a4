#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/batch/ChosenJson.h"
#include "app/batch/Comparison.h"

// Appends results as JSON text to a buffer. A document tree of two hundred values would take longer than the
// comparison, and a general JSON writer nearly as long.
namespace Ledgrove {

/// Writes results. The parts that are the same in all of them are built once.
class ResultJson {
public:
    /// Whole results, or only those parts of them that have names here.
    explicit ResultJson(const ChosenNames& only = {});

    /// Appends one object: fields, labels, Scenario, StdCase, GMHCase, messages, dataCheck. No line ending.
    void Append(std::string& out, const Comparison& comparison) const;

private:
    void AppendLabels(std::string& out, const MainScreen& screen) const;

    std::optional<ChosenJson> m_chosen;
    std::vector<std::string> m_labelKeys; ///< for ResultLabelTable, up to the opening of the text
};

/// Appends {"error": {"file", "line", "control", "value", "message"}}, without "file" if `file` is empty. No
/// line ending.
void AppendRefusalJson(std::string& out, const Refusal& refusal, std::string_view file = {});

} // namespace Ledgrove
