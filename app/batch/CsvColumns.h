#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/batch/InputRecord.h"

// The columns of a price list.
namespace Ledgrove {

struct CsvColumn {
    enum class Kind {
        Input,   ///< its cells are inputs
        Carried, ///< the list's own: its cells are written again
        Result,  ///< of an earlier run: its cells are worked out again
        Nothing  ///< without a heading at the end of the row
    };

    std::string Heading;
    Kind Is = Kind::Carried;
    Input Which = Input::ecIncome; ///< of an input

    bool IsWritten() const { return Is == Kind::Input || Is == Kind::Carried; }
    bool operator==(const CsvColumn&) const = default;
};

/// What a heading row says.
struct CsvHeading {
    std::vector<CsvColumn> Columns;
    std::vector<std::string> Warnings; ///< sentences about headings that are probably meant differently
    std::string Refusal;               ///< why the list cannot be read; empty if it can
};

/// Reads a heading row. An input has its name ("ecStdHome"), its caption ("Sticker Price, Base Home", in any
/// case) or its name in the list of house scenarios ("StdCost"). Any other column is the list's own. Two
/// columns of one heading or one input refuse the list, and so does a row without inputs.
CsvHeading ReadCsvHeading(const std::vector<std::string>& cells);

/// The separator of a list, judged by its first line: of comma, semicolon and tab the one that gives the most
/// inputs, else the one that gives the most columns.
char SeparatorOf(std::string_view firstLine);

} // namespace Ledgrove
