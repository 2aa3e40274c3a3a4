#pragma once

#include "app/batch/CompareCommand.h"
#include "app/batch/JsonText.h"

#include <string>
#include <utility>

namespace Ledgrove {

/// Compares one line of JSON lines: one object per line, in and out.
class JsonLine {
public:
    /// Refusals name `file`, unless it is empty.
    JsonLine(Comparison& comparison, std::string file)
        : m_comparison(comparison)
        , m_file(std::move(file)) {}

    /// Appends the result or the refusal as a line and counts it. Skips a blank line.
    void Append(std::string& out, const InputLine& line, Tally& tally);

private:
    std::optional<Refusal> Compare(const InputLine& line);

    Comparison& m_comparison;
    std::string m_file;
    InputRecord m_inputs;
    ResultJson m_results;
};

/// Reads JSON lines and compares them one after another.
class JsonLinesReader : public ComparisonReader {
public:
    explicit JsonLinesReader(Comparison& comparison, std::string file = {})
        : m_line(comparison, std::move(file)) {}
    Tally Read(LineReader& lines, OutputBuffer& output) override;

private:
    JsonLine m_line;
};

/// Reads one object, which may span several lines. The result is an object, or a table for people; then a
/// refusal goes to standard error.
class JsonReader : public ComparisonReader {
public:
    enum class Result { Json, Table };

    /// Refusals name `file`, unless it is empty.
    JsonReader(Comparison& comparison, Result result, std::string file = {})
        : m_comparison(comparison)
        , m_result(result)
        , m_file(std::move(file)) {}
    Tally Read(LineReader& lines, OutputBuffer& output) override;

private:
    Comparison& m_comparison;
    Result m_result;
    std::string m_file;
};

} // namespace Ledgrove
