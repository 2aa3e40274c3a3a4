#pragma once

#include "app/batch/CompareCommand.h"
#include "app/batch/JsonText.h"

namespace Ledgrove {

/// One object a line in, one object a line out. Blank lines are passed over.
class JsonLinesReader : public ComparisonReader {
public:
    explicit JsonLinesReader(Comparison& comparison)
        : m_comparison(comparison) {}
    bool Read(LineReader& lines, OutputBuffer& output) override;

private:
    std::optional<Refusal> Compare(const InputLine& line);

    Comparison& m_comparison;
    InputRecord m_inputs;
    ResultJson m_results;
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
