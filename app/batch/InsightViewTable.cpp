#include "app/batch/InsightViewTable.h"

#include <array>

#include "app/batch/InsightExplainJson.h"
#include "app/batch/InsightJson.h"
#include "app/batch/InsightYearsJson.h"

namespace Ledgrove {

namespace {

using Views = InsightViews;
using Writer = Json::Writer;

const std::array table{
    InsightView{"takeaway", true,
                [](Writer& json, Views& views) { Json::WriteTakeaway(json, views.TakeawayView()); },
                [](Views& views) { return TakeawaySheet(views.TakeawayView()); }},
    InsightView{"breakeven", true,
                [](Writer& json, Views& views) { Json::WriteBreakeven(json, views.BreakevenView()); },
                [](Views& views) { return BreakevenSheet(views.Of(), views.BreakevenView()); }},
    InsightView{"options", true,
                [](Writer& json, Views& views) { Json::WriteOptions(json, views.OptionsView()); },
                [](Views& views) { return OptionsSheet(views.OptionsView()); }},
    InsightView{"qualify", true,
                [](Writer& json, Views& views) { Json::WriteQualify(json, views.QualifyView()); },
                [](Views& views) { return QualifySheet(views.QualifyView()); }},
    InsightView{"sensitivity", true,
                [](Writer& json, Views& views) { Json::WriteSensitivity(json, views.SensitivityView()); },
                [](Views& views) { return SensitivitySheet(views.Of(), views.SensitivityView()); }},
    InsightView{"map", false, [](Writer& json, Views& views) { Json::WriteMap(json, views.MapView()); },
                [](Views& views) { return MapSheet(views.MapView()); }},
    InsightView{"years", true, [](Writer& json, Views& views) { Json::WriteYears(json, views.YearsView()); },
                [](Views& views) { return YearsSheet(views.YearsView()); }},
    InsightView{"energy", true,
                [](Writer& json, Views& views) { Json::WriteEnergy(json, views.EnergyView()); },
                [](Views& views) { return EnergySheet(views.EnergyView()); }},
    InsightView{"tax", true, [](Writer& json, Views& views) { Json::WriteTax(json, views.TaxView()); },
                [](Views& views) { return TaxCheckSheet(views.TaxView()); }},
    InsightView{"exit", true, [](Writer& json, Views& views) { Json::WriteExit(json, views.ExitView()); },
                [](Views& views) { return ExitSheet(views.Of(), views.ExitView()); }},
    InsightView{"explain", false,
                [](Writer& json, Views& views) { Json::WriteExplanation(json, views.ExplanationView()); },
                [](Views& views) { return ExplainSheet(views.ExplanationView()); }},
};

} // namespace

std::span<const InsightView> InsightViewTable() {
    return table;
}

std::vector<std::string> InsightViewNames() {
    std::vector<std::string> names;
    names.reserve(table.size());
    for (const InsightView& view : table)
        names.emplace_back(view.Name);
    return names;
}

ChosenViews DefaultViews() {
    ChosenViews chosen;
    for (const InsightView& view : table) {
        if (view.ByDefault)
            chosen.push_back(&view);
    }
    return chosen;
}

} // namespace Ledgrove
