#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/batch/ResultNames.h"
#include "engine/Host.h"
#include "engine/Session.h"

// The result columns of a price list.
namespace Ledgrove {

/// Whether a column with this heading is a result, so that an earlier run's output can be an input.
bool IsResultColumn(std::string_view heading);

/// The result columns of a price list without --columns.
ChosenNames MainResults();

/// Writes the result columns. "error" always comes last.
class CsvResults {
public:
    /// These columns, or the main results if there are none.
    explicit CsvResults(ChosenNames columns = {});

    /// Appends the headings, with a separator between them.
    void AppendHeadings(std::string& out, char separator = ',') const;

    /// Appends the results of an accepted comparison, up to the empty error.
    void Append(std::string& out, const Session& session, const std::vector<Message>& messages,
                char separator = ',') const;

    /// Appends empty results and the error.
    void AppendError(std::string& out, std::string_view error, char separator = ',') const;

private:
    ChosenNames m_columns;
};

} // namespace Ledgrove
