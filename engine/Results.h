#pragma once

#include "engine/Decisions.h"
#include "engine/Inputs.h"
#include "engine/TypeDeclarations.h"

#include <optional>

namespace Ledgrove {

/// The figures of a comparison.
struct Records {
    HomeCase StdCase;
    HomeCase GMHCase;
    struct Scenario Scenario;

    HomeCase& Home(HomeCode code) { return code == HomeCode::GMH ? GMHCase : StdCase; }
    const HomeCase& Home(HomeCode code) const { return code == HomeCode::GMH ? GMHCase : StdCase; }

    bool operator==(const Records&) const = default;
};

/// All that an evaluation gives.
struct Results : Records {
    std::optional<Inputs> From; ///< what they were computed from; empty before the first evaluation, and when
                                ///< a table of the rules was loaded since
    bool StdQualifies = false;
    bool GMHQualifies = false;
    bool NoticeApplies = false; ///< the EEM notice is due
    struct Decisions Decisions;

    HomeDecisions& Decided(HomeCode code) { return code == HomeCode::GMH ? Decisions.GMH : Decisions.Std; }

    bool operator==(const Results&) const = default;
};

/// What outlives an evaluation, by design.
struct Carried {
    struct Ratios {
        float Front = 0;
        float Back = 0;
    };

    float EEMAllowance = 0; ///< stays when an option sets none
    bool EEMNoticeFlag = false;
    Ratios Std; ///< stay when the home's loan type is missing
    Ratios GMH;
};

Carried CarriedBy(const Records& records);

} // namespace Ledgrove
