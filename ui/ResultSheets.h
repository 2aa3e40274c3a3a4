#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "engine/MainScreen.h"

// The tables of the results, described once for all places that show them: the tabs, what is copied from
// them, the table of the command line, the report.
namespace Ledgrove {

/// A total stands bold under a line.
enum class RowWeight : std::uint8_t { Plain, Total };

using LabelMember = Label MainScreen::*;

struct SheetRow {
    std::string_view Caption = {}; ///< fixed words, "" where CaptionLabel holds them
    LabelMember CaptionLabel = nullptr;
    /// The label whose words up to the colon go before CaptionLabel's where the row is read alone.
    LabelMember Stem = nullptr;
    LabelMember First = nullptr;  ///< the base home's figure, or the monthly one; none leaves the cell empty
    LabelMember Second = nullptr; ///< the labelled home's figure, or the yearly one
    RowWeight Weight = RowWeight::Plain;
    std::string_view Meaning = {};       ///< what the figure consists of, where the caption leaves that open
    std::string_view ReportCaption = {}; ///< the report's words where they differ
    std::string_view TextCaption = {};   ///< those of the command line's table where they differ
};

enum class SheetKind : std::uint8_t {
    CashFlow,
    Purchase,    ///< More Home: the net cash flow and what it buys
    HouseValues, ///< More Home: the same monthly cost, two houses
    Affordability,
    SummaryHomes,  ///< Summary: both homes side by side
    SummarySavings ///< Summary: what the labelled home brings
};

struct ResultSheet {
    SheetKind Kind;
    int Tab; ///< of the main screen, 0 to TabCount - 1
    std::array<std::string_view, 2> Heads;
    std::span<const SheetRow> Rows;
};

const ResultSheet& SheetOf(SheetKind kind);

/// The row's caption as it reads alone, without blanks around it.
std::string CaptionOf(const SheetRow& row, const MainScreen& screen);

/// The text of one of the row's cells, "" for an empty one.
std::string_view CellOf(LabelMember cell, const MainScreen& screen);

/// Whether the screen shows the row: a hidden figure hides it.
bool IsShown(const SheetRow& row, const MainScreen& screen);

} // namespace Ledgrove
