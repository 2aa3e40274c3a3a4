#pragma once

#include <string>
#include <vector>

#include "app/batch/Comparison.h"

// Results as JSON text, appended to a buffer: a tree of two hundred values for each comparison would cost
// more than the comparison, and a writer that keeps account of what is open nearly as much.
namespace Ledgrove {

/// Writes results. What is the same in all of them is put together once.
class ResultJson {
public:
    ResultJson();

    /// One object: fields, labels, Scenario, StdCase, GMHCase, messages, dataCheck. No line end.
    void Append(std::string& out, const Comparison& comparison) const;

private:
    void AppendLabels(std::string& out, const MainScreen& screen) const;

    std::vector<std::string> m_labelKeys; ///< of ResultLabelTable, up to the text's opening
};

/// {"error": {"line", "control", "value", "message"}}. No line end.
void AppendRefusalJson(std::string& out, const Refusal& refusal);

} // namespace Ledgrove
