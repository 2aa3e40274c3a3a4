#include "insight/Views.h"

namespace Ledgrove {

namespace {

template <typename View, typename Compute>
const View& Once(std::optional<View>& view, Compute compute) {
    if (!view)
        view.emplace(compute());
    return *view;
}

} // namespace

const Breakeven& InsightViews::BreakevenView() {
    return Once(m_breakeven, [this] { return ComputeBreakeven(m_insight); });
}

const Qualification& InsightViews::QualifyView() {
    return Once(m_qualify, [this] { return ComputeQualification(m_insight); });
}

const OptionTable& InsightViews::OptionsView() {
    return Once(m_options, [this] { return ComputeOptions(m_insight); });
}

const Sensitivity& InsightViews::SensitivityView() {
    return Once(m_sensitivity, [this] { return ComputeSensitivity(m_insight, m_by); });
}

const NetMap& InsightViews::MapView() {
    return Once(m_map, [this] { return ComputeMap(m_insight, BreakevenView()); });
}

const Explanation& InsightViews::ExplanationView() {
    return Once(m_explanation, [this] { return ComputeExplanation(m_insight); });
}

const Takeaway& InsightViews::TakeawayView() {
    return Once(m_takeaway, [this] {
        return ComputeTakeaway(m_insight, BreakevenView(), QualifyView(), YearsView(), TaxView());
    });
}

const YearByYear& InsightViews::YearsView() {
    return Once(m_years, [this] { return ComputeYears(m_insight); });
}

const EnergyGrowth& InsightViews::EnergyView() {
    return Once(m_energy, [this] { return ComputeEnergy(YearsView()); });
}

const TaxCheck& InsightViews::TaxView() {
    return Once(m_tax, [this] { return ComputeTaxCheck(m_insight, YearsView()); });
}

const SaleByYear& InsightViews::ExitView() {
    return Once(m_exit, [this] { return ComputeExit(m_insight, YearsView()); });
}

} // namespace Ledgrove
