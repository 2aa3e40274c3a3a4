#include "engine/Figures.h"

#include <array>

namespace Ledgrove {

namespace {

// clang-format off
#define LEDGROVE_ENTRY(record, id, name, unit, meaning) \
    FigureEntry{Figure::id, FigureRecord::record, #name, #record "." #name, FigureUnit::unit, meaning, \
                [](const Records& records) { return records.record.name; }},
#define LEDGROVE_STD_ENTRY(name, unit, meaning) LEDGROVE_ENTRY(StdCase, Std##name, name, unit, meaning)
#define LEDGROVE_GMH_ENTRY(name, unit, meaning) LEDGROVE_ENTRY(GMHCase, GMH##name, name, unit, meaning)
#define LEDGROVE_OWN_ENTRY(name, unit, meaning) LEDGROVE_ENTRY(Scenario, name, name, unit, meaning)
constexpr std::array table{
    LEDGROVE_HOME_FIGURES(LEDGROVE_STD_ENTRY)
    LEDGROVE_HOME_FIGURES(LEDGROVE_GMH_ENTRY)
    LEDGROVE_SCENARIO_FIGURES(LEDGROVE_OWN_ENTRY)
};
#undef LEDGROVE_ENTRY
#undef LEDGROVE_STD_ENTRY
#undef LEDGROVE_GMH_ENTRY
#undef LEDGROVE_OWN_ENTRY
// clang-format on

} // namespace

std::span<const FigureEntry> FigureTable() {
    return table;
}

std::span<const FigureEntry> FiguresOf(FigureRecord record) {
    constexpr auto firstGMH = static_cast<std::size_t>(Figure::GMHCost);
    constexpr auto firstOwn = static_cast<std::size_t>(Figure::AnnualIncome);
    switch (record) {
    case FigureRecord::StdCase:
        return FigureTable().first(firstGMH);
    case FigureRecord::GMHCase:
        return FigureTable().subspan(firstGMH, firstOwn - firstGMH);
    case FigureRecord::Scenario:
        break;
    }
    return FigureTable().subspan(firstOwn);
}

} // namespace Ledgrove
