#pragma once

#include "insight/Range.h"

namespace Ledgrove {

/// ComputeRange with the houses as the house scenarios dialog copies them to the main screen.
std::optional<Range> ComputeHouseRange(const Session& start, const HouseList& houses,
                                       const RangeChoice& choice = {});

} // namespace Ledgrove
