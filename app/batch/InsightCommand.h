#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "app/batch/InsightViewTable.h"
#include "app/batch/ParallelJson.h"
#include "app/batch/WordFault.h"

namespace Ledgrove {

/// Answers the questions that a comparison raises, as text or JSON.
class InsightAnswers {
public:
    /// `by` is the percentage of the sensitivity.
    InsightAnswers(ChosenViews views, double by)
        : m_views(std::move(views))
        , m_by(by) {}

    /// Appends one object: a key for each view, or "missing" with the reason. No line ending. Returns whether
    /// there are answers.
    bool AppendJson(std::string& out, const Session& session) const;

    /// Appends a sheet for each view. Returns the reason if a comparison has none, else "".
    std::string AppendText(std::string& out, const Session& session) const;

private:
    ChosenViews m_views;
    double m_by;
};

/// The command `ledgrove-cli insight`.
class InsightCommand {
public:
    InsightCommand();

    // Each reads the text of an option. Returns a message if the text cannot be used, else "".
    std::string ReadFormat(const std::string& name, const WordFault& fault);
    std::string ReadViews(const std::string& list, const WordFault& fault);
    std::string ReadBy(const std::string& percent);

    const ChosenViews& Views() const { return m_views; }
    double By() const { return m_by; }

    /// Answers the comparison in `file` ("-" is standard input), or each line of it for jsonl, with the
    /// settings in `folder`. Writes the answers to standard output and returns the exit status.
    int Run(const std::filesystem::path& folder, const std::string& file) const;

private:
    enum class Format { Text, Json, JsonLines };

    Tally ReadObject(LineReader& lines, OutputBuffer& output, const Session& start,
                     const std::string& file) const;

    Format m_format = Format::Text;
    ChosenViews m_views;
    double m_by;
};

/// The work of `insight` on JSON lines. `start` must outlive it.
MakeLineWork InsightWork(const Session& start, const InsightAnswers& answers, const std::string& file);

} // namespace Ledgrove
