#pragma once

#include "reports/PrintItems.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace Ledgrove {

/// A line of text in a row, measured from the row's top-left corner.
struct BandText {
    std::size_t Column = 0;
    TextRun Run;
};

/// A row of a table that is laid out but not yet on a page.
struct TableBand {
    enum class Kind {
        Row,
        More,    ///< further lines of the row above, which may go on the next page
        Title,   ///< the table's title bar, which is repeated where the table continues
        Heading, ///< names the columns of the rows below it, and is repeated with them
        Blank    ///< empty, for spacing
    };

    Kind Is = Kind::Row;
    Twips Height = 0;
    Twips Width = 0;
    bool Framed = false;
    bool BeginsPart = false; ///< the first row that an AddTable wrote
    bool MayBreak = false;   ///< here the table may continue on the next page although it would fit on one
    std::optional<PrintColour> Shade;
    std::vector<BandText> Texts;
};

/// The rows of one page, as indexes of the bands, from top to bottom.
using BandsOfPage = std::vector<std::size_t>;

/// The heights that a table may use, in twips.
struct TableRoom {
    Twips Here = 0;        ///< on the current page
    Twips Page = 0;        ///< on each further page
    bool KeepWhole = true; ///< a table that fits on a page is not torn
};

/// Distributes the rows of a table over the current page, whose element stays empty if the table begins on
/// the next, and further pages. A torn table repeats its titles and headings on each page, and leaves at
/// least two rows on each page if two rows fit. Empty rows at the end of a page need no room.
std::vector<BandsOfPage> BreakTable(const std::vector<TableBand>& bands, const TableRoom& room);

} // namespace Ledgrove
