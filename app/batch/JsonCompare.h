#pragma once

#include "app/batch/CompareCommand.h"
#include "app/batch/JsonInput.h"
#include "app/batch/JsonText.h"

#include <string>
#include <utility>

namespace Ledgrove {

struct JsonOptions {
    std::string File; ///< that refusals name; empty for none
    ChosenNames Only; ///< what the results hold; empty for everything
};

/// Compares one line of JSON lines: one object per line, in and out.
class JsonLine {
public:
    JsonLine(Comparison& comparison, const JsonOptions& options)
        : m_comparison(comparison)
        , m_file(options.File)
        , m_results(options.Only) {}

    /// Appends the result or the refusal as a line and counts it. Skips a blank line.
    void Append(std::string& out, const InputLine& line, Tally& tally);

private:
    std::optional<Refusal> Compare(const InputLine& line);

    Comparison& m_comparison;
    std::string m_file;
    JsonObjectReader m_reader;
    InputRecord m_inputs;
    ResultJson m_results;
};

/// Reads JSON lines and compares them one after another.
class JsonLinesReader : public ComparisonReader {
public:
    explicit JsonLinesReader(Comparison& comparison, const JsonOptions& options = {})
        : m_line(comparison, options) {}
    Tally Read(LineReader& lines, OutputBuffer& output) override;

private:
    JsonLine m_line;
};

/// Reads one object, which may span several lines. The result is an object, or a table for people; then a
/// refusal goes to standard error.
class JsonReader : public ComparisonReader {
public:
    enum class Result { Json, Table };

    JsonReader(Comparison& comparison, Result result, JsonOptions options = {})
        : m_comparison(comparison)
        , m_result(result)
        , m_options(std::move(options)) {}
    Tally Read(LineReader& lines, OutputBuffer& output) override;

private:
    Comparison& m_comparison;
    Result m_result;
    JsonOptions m_options;
};

} // namespace Ledgrove
