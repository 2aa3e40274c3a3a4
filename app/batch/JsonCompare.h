#pragma once

#include "app/batch/CompareCommand.h"
#include "app/batch/JsonText.h"

namespace Ledgrove {

/// Compares one line of JSON lines: one object per line, in and out.
class JsonLine {
public:
    explicit JsonLine(Comparison& comparison)
        : m_comparison(comparison) {}

    /// Appends the result or the refusal as a line. Skips a blank line. Returns false if the line was
    /// refused.
    bool Append(std::string& out, const InputLine& line);

private:
    std::optional<Refusal> Compare(const InputLine& line);

    Comparison& m_comparison;
    InputRecord m_inputs;
    ResultJson m_results;
};

/// Reads JSON lines and compares them one after another.
class JsonLinesReader : public ComparisonReader {
public:
    explicit JsonLinesReader(Comparison& comparison)
        : m_line(comparison) {}
    bool Read(LineReader& lines, OutputBuffer& output) override;

private:
    JsonLine m_line;
};

/// Reads one object, which may span several lines. The result is an object, or a table for people.
class JsonReader : public ComparisonReader {
public:
    enum class Result { Json, Table };

    JsonReader(Comparison& comparison, Result result)
        : m_comparison(comparison)
        , m_result(result) {}
    bool Read(LineReader& lines, OutputBuffer& output) override;

private:
    Comparison& m_comparison;
    Result m_result;
};

} // namespace Ledgrove
