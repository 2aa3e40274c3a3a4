#pragma once

#include "app/batch/CompareCommand.h"
#include "app/batch/JsonText.h"

namespace Ledgrove {

/// One object of a line in, one object of a line out.
class JsonLine {
public:
    explicit JsonLine(Comparison& comparison)
        : m_comparison(comparison) {}

    /// Appends the result, or why there is none, as a line. A blank line is passed over. False when it was
    /// refused.
    bool Append(std::string& out, const InputLine& line);

private:
    std::optional<Refusal> Compare(const InputLine& line);

    Comparison& m_comparison;
    InputRecord m_inputs;
    ResultJson m_results;
};

/// JSON lines, one after the other.
class JsonLinesReader : public ComparisonReader {
public:
    explicit JsonLinesReader(Comparison& comparison)
        : m_line(comparison) {}
    bool Read(LineReader& lines, OutputBuffer& output) override;

private:
    JsonLine m_line;
};

/// One object, over as many lines as it likes; the result is an object too, or a table for people.
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
