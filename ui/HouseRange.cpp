#include "ui/HouseRange.h"

#include "ui/HouseScenarios.h"

namespace Ledgrove {

std::optional<Range> ComputeHouseRange(const Session& start, const HouseList& houses,
                                       const RangeChoice& choice) {
    return ComputeRange(start, houses, &Module1::TakeHouse, choice);
}

} // namespace Ledgrove
