#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

// The questions of the Insight window.
namespace Ledgrove {

enum class InsightQuestion : std::uint8_t {
    InShort,
    HowFar,
    WhichLoan,
    WhoQualifies,
    WhatMatters,
    PriceAndSavings,
    YearByYear,
    EnergyPrices,
    TaxSaving,
    Sale,
    Assumed,
    WhereFrom
};

struct QuestionRow {
    InsightQuestion Id;
    std::string_view Words; ///< in people's words
    int Tab;                ///< the tab of the main window whose link asks it; 0 for none
    std::string_view View;  ///< the name of the view that answers it; empty if none does
};

/// The questions in the order of the window's list.
inline constexpr std::array InsightQuestions{
    QuestionRow{InsightQuestion::InShort, "In short", 0, "takeaway"},
    QuestionRow{InsightQuestion::HowFar, "How far can the price go?", 1, "breakeven"},
    QuestionRow{InsightQuestion::WhichLoan, "Which loan is best?", 2, "options"},
    QuestionRow{InsightQuestion::WhoQualifies, "Do we qualify, and what would help?", 3, "qualify"},
    QuestionRow{InsightQuestion::WhatMatters, "What matters most?", 4, "sensitivity"},
    QuestionRow{InsightQuestion::PriceAndSavings, "Price against savings", 0, "map"},
    QuestionRow{InsightQuestion::YearByYear, "Year by year", 0, "years"},
    QuestionRow{InsightQuestion::EnergyPrices, "If energy prices rise", 0, "energy"},
    QuestionRow{InsightQuestion::TaxSaving, "Is the tax saving real?", 0, "tax"},
    QuestionRow{InsightQuestion::Sale, "If we sell", 0, "exit"},
    QuestionRow{InsightQuestion::Assumed, "What is assumed", 0, ""},
    QuestionRow{InsightQuestion::WhereFrom, "Where does this number come from?", 0, "explain"},
};

/// The question of a tab of the main window; null if it has none.
constexpr const QuestionRow* QuestionOfTab(int tab) {
    const auto found = std::ranges::find_if(
        InsightQuestions, [tab](const QuestionRow& row) { return tab != 0 && row.Tab == tab; });
    return found == InsightQuestions.end() ? nullptr : &*found;
}

} // namespace Ledgrove
