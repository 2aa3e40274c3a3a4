#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "engine/MainScreen.h"

// The result tables, described once for every output: the tabs, copied text, the command line's table and the
// report.
namespace Ledgrove {

/// A total is bold, with a line above it.
enum class RowWeight : std::uint8_t { Plain, Total };

using LabelMember = Label MainScreen::*;

struct SheetRow {
    std::string_view Caption = {}; ///< fixed text, empty if CaptionLabel supplies it
    LabelMember CaptionLabel = nullptr;
    /// If the row is read on its own, this label's text up to the colon precedes the text of CaptionLabel.
    LabelMember Stem = nullptr;
    LabelMember First = nullptr;  ///< the base home's figure, or the monthly one; nullptr for an empty cell
    LabelMember Second = nullptr; ///< the labelled home's figure, or the yearly one
    RowWeight Weight = RowWeight::Plain;
    std::string_view Meaning = {};       ///< what the figure includes, if the caption does not say it
    std::string_view ReportCaption = {}; ///< the caption in the report, if different
    std::string_view TextCaption = {};   ///< the caption in the command line's table, if different
};

enum class SheetKind : std::uint8_t {
    CashFlow,
    Purchase,    ///< More Home: the net cash flow and the amount it buys
    HouseValues, ///< More Home: two houses at the same monthly cost
    Affordability,
    SummaryHomes,  ///< Summary: both homes side by side
    SummarySavings ///< Summary: the savings of the labelled home
};

struct ResultSheet {
    SheetKind Kind;
    int Tab; ///< of the main screen, 0 to TabCount - 1
    std::array<std::string_view, 2> Heads;
    std::span<const SheetRow> Rows;
};

const ResultSheet& SheetOf(SheetKind kind);

/// A row's caption when it is read on its own: `own`, after the text of `stem` up to its colon. Both are
/// trimmed; an empty stem leaves `own`.
std::string WholeCaption(std::string_view stem, std::string_view own);

/// The row's caption for reading the row on its own, trimmed.
std::string CaptionOf(const SheetRow& row, const MainScreen& screen);

/// The text of a cell of the row; empty for an empty cell.
std::string_view CellOf(LabelMember cell, const MainScreen& screen);

/// Whether the screen shows the row. A hidden figure hides its row.
bool IsShown(const SheetRow& row, const MainScreen& screen);

} // namespace Ledgrove
