#include "ui/TaxLine.h"

#include <cmath>

#include "insight/TaxCheck.h"

namespace Ledgrove {

bool IsTaxLineOff(const Session& session) {
    constexpr double tolerance = 0.5; // dollars a month
    const Insight insight(session.Screen, session);
    if (!insight.Missing().empty())
        return false;
    const TaxCheck tax =
        CheckTaxLine(insight, PlanOf(insight, HomeCode::Std), PlanOf(insight, HomeCode::GMH));
    return std::fabs(tax.Real - static_cast<double>(tax.Shown)) > tolerance;
}

} // namespace Ledgrove
