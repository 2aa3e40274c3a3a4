#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"

// A view's answers as a table with sentences, once for every output: the window, the command line's text, the
// clipboard, CSV and the report.
namespace Ledgrove {

enum class CellUnit : std::uint8_t { Text, Dollars, DollarsPerMonth, Percent, Years };

/// What the window and the report point out about a cell.
enum class CellMark : std::uint8_t {
    None,
    Best,    ///< the best of its column
    Current, ///< what is chosen now
    Bad,     ///< below 0, or does not qualify
    Turn,    ///< something changes here for good
    Idle     ///< moves nothing; see Sheet::IdleWords
};

/// A text to enter into a control of the main window, or to choose there.
struct EntryText {
    std::string_view Control;
    std::string Text;

    bool operator==(const EntryText&) const = default;
};

struct SheetCell {
    std::string Text;
    std::optional<double> Number = std::nullopt; ///< for spreadsheets; empty where the text is not a number
    CellUnit Unit = CellUnit::Text;
    CellMark Mark = CellMark::None;
    std::vector<EntryText> Entries = {}; ///< what the cell proposes to enter; empty for none
};

struct Sheet {
    std::string_view Title;
    std::string Sentence;           ///< the answer in words; may be several sentences
    std::vector<std::string> Heads; ///< of the columns
    std::vector<std::vector<SheetCell>> Rows;
    /// The columns after the first that hold sentences: they begin on the left.
    std::vector<std::size_t> Words = {};
    /// What the mark Idle means in this table.
    std::string_view IdleWords = "does not move the result";
    std::string Note = {}; ///< stands below the table: what the answer assumes, and what it is not
};

/// Whether the column holds words, which begin on the left: the first column and those of `Words`.
inline bool IsWords(const Sheet& sheet, std::size_t column) {
    return column == 0 || std::find(sheet.Words.begin(), sheet.Words.end(), column) != sheet.Words.end();
}

/// Whether the cell may break into lines: it holds words, or it is too long for a figure and so lists
/// several.
inline bool MayBreak(const Sheet& sheet, std::size_t column, const SheetCell& cell) {
    constexpr std::size_t longestFigure = 24; // letters
    return IsWords(sheet, column) || CharacterCount(cell.Text) > longestFigure;
}

/// A text cell.
SheetCell TextCell(std::string text, CellMark mark = CellMark::None);

/// An amount in whole dollars, marked Bad below 0: "$1,234", "-$12".
SheetCell DollarCell(double amount, CellUnit unit = CellUnit::Dollars);

/// Smaller amounts read as $0.
inline constexpr double LeastShown = 0.5;

/// "$1,234" as in a field.
std::string DollarText(double amount);

/// An amount above 0: "$1,234", "less than a dollar".
std::string AmountText(double amount);

} // namespace Ledgrove
