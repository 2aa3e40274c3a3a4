#pragma once

#include <string>
#include <vector>

#include "insight/Breakeven.h"
#include "insight/Insight.h"
#include "insight/Qualify.h"
#include "insight/Sheet.h"
#include "insight/TaxCheck.h"
#include "insight/Years.h"

// The comparison in a few plain sentences for the buyer.
namespace Ledgrove {

struct Takeaway {
    /// Three to seven. Each says only what the other views found; a figure that is not known has no sentence.
    std::vector<std::string> Sentences;
};

/// The views are the insight's; the insight must not be missing.
Takeaway ComputeTakeaway(const Insight& insight, const Breakeven& breakeven,
                         const Qualification& qualification, const YearByYear& years, const TaxCheck& tax);

/// One row a sentence.
Sheet TakeawaySheet(const Takeaway& takeaway);

} // namespace Ledgrove
