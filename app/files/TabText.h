#pragma once

#include <string>
#include <vector>

#include "engine/MainScreen.h"

// What a result tab shows, to be pasted elsewhere.
namespace Ledgrove {

struct TabRow {
    std::string Caption;
    std::vector<std::string> Cells;
};

/// A tab's table under the heads of its columns, and the sentences around it.
struct TabTable {
    std::vector<std::string> Heads;
    std::vector<TabRow> Rows;
    std::vector<std::string> Sentences;
};

/// What the tab shows now. `tab` is 0 to TabCount - 1; the first, Welcome, holds sentences only.
TabTable TabContent(const MainScreen& screen, int tab);

/// For a letter or a mail: columns aligned by blanks, figures to the right. Lines end in LF.
std::string AlignedText(const TabTable& table);

/// For a spreadsheet: cells separated by tabs. A text that a spreadsheet would run as a formula is defused.
std::string SpreadsheetText(const TabTable& table);

} // namespace Ledgrove
