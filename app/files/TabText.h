#pragma once

#include <string>
#include <vector>

#include "engine/MainScreen.h"

// The contents of a result tab for the clipboard.
namespace Ledgrove {

struct TabRow {
    std::string Caption;
    std::vector<std::string> Cells;
};

/// The table of a tab with its column heads, and the sentences around the table.
struct TabTable {
    std::vector<std::string> Heads;
    std::vector<TabRow> Rows;
    std::vector<std::string> Sentences;
};

/// The current contents of the tab. `tab` is 0 to TabCount - 1; tab 0, Welcome, has only sentences.
TabTable TabContent(const MainScreen& screen, int tab);

/// For a letter or an email: columns aligned with blanks, figures on the right. Lines end in LF.
std::string AlignedText(const TabTable& table);

/// For a spreadsheet: cells separated by tabs. DefusedCell makes texts safe that would run as formulas.
std::string SpreadsheetText(const TabTable& table);

} // namespace Ledgrove
