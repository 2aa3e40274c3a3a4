#pragma once

#include <optional>

#include "insight/Breakeven.h"
#include "insight/Energy.h"
#include "insight/Exit.h"
#include "insight/Explain.h"
#include "insight/Insight.h"
#include "insight/Map.h"
#include "insight/Options.h"
#include "insight/Qualify.h"
#include "insight/Sensitivity.h"
#include "insight/Takeaway.h"
#include "insight/TaxCheck.h"
#include "insight/Years.h"

namespace Ledgrove {

/// The views of one comparison. Each is computed when it is first asked for, and once.
class InsightViews {
public:
    /// `insight` must outlive the object and must not be missing. `by` is the percentage of the sensitivity.
    InsightViews(const Insight& insight, double by)
        : m_insight(insight)
        , m_by(by) {}

    const Insight& Of() const { return m_insight; }
    const Breakeven& BreakevenView();
    const Qualification& QualifyView();
    const OptionTable& OptionsView();
    const Sensitivity& SensitivityView();
    const NetMap& MapView();
    const Explanation& ExplanationView();
    const Takeaway& TakeawayView();
    const YearByYear& YearsView();
    const EnergyGrowth& EnergyView();
    const TaxCheck& TaxView();
    const SaleByYear& ExitView();

private:
    const Insight& m_insight;
    double m_by;
    std::optional<Breakeven> m_breakeven;
    std::optional<Qualification> m_qualify;
    std::optional<OptionTable> m_options;
    std::optional<Sensitivity> m_sensitivity;
    std::optional<NetMap> m_map;
    std::optional<Explanation> m_explanation;
    std::optional<Takeaway> m_takeaway;
    std::optional<YearByYear> m_years;
    std::optional<EnergyGrowth> m_energy;
    std::optional<TaxCheck> m_tax;
    std::optional<SaleByYear> m_exit;
};

} // namespace Ledgrove
