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

/// The results of an evaluation.
struct Results : Records {
    std::optional<Inputs> From; ///< the inputs of these results; empty before the first evaluation and after
                                ///< a table of the rules was reloaded
    bool StdQualifies = false;
    bool GMHQualifies = false;
    bool NoticeApplies = false;   ///< the EEM notice is due
    bool NoticeFlagAfter = false; ///< the notice flag as the evaluation left it; an edit may set it again
    struct Decisions Decisions;

    HomeDecisions& Decided(HomeCode code) { return code == HomeCode::GMH ? Decisions.GMH : Decisions.Std; }

    bool operator==(const Results&) const = default;
};

/// The state that one evaluation passes on to the next, by design.
struct Carried {
    struct Ratios {
        float Front = 0;
        float Back = 0;
    };

    float EEMAllowance = 0; ///< stays if the option sets none
    bool EEMNoticeFlag = false;
    Ratios Std; ///< fractions; stay if the home's loan type is missing
    Ratios GMH;
};

/// The state that these records pass on to the next evaluation.
Carried CarriedBy(const Records& records);

} // namespace Ledgrove
