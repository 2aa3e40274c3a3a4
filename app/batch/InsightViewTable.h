#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/batch/JsonValues.h"
#include "insight/Sheet.h"
#include "insight/Views.h"

namespace Ledgrove {

/// A view of `ledgrove-cli insight` with its outputs.
struct InsightView {
    std::string_view Name; ///< for --view, and the key in JSON
    bool ByDefault;        ///< without --view
    void (*WriteJson)(Json::Writer& json, InsightViews& views);
    Sheet (*MakeSheet)(InsightViews& views);
};

using ChosenViews = std::vector<const InsightView*>;

/// Every view, in the order of the output.
std::span<const InsightView> InsightViewTable();

/// The names in this order.
std::vector<std::string> InsightViewNames();

/// The views that are computed without --view.
ChosenViews DefaultViews();

} // namespace Ledgrove
