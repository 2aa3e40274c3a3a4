#include "insight/Sensitivity.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <limits>
#include <tuple>
#include <utility>

namespace Ledgrove {

namespace {

enum class Side : std::uint8_t { Low, High };

constexpr double SignOf(Side side) {
    return side == Side::High ? 1 : -1;
}

/// The decimal number that a person typed for a single: 0.35 for 0.35F.
double AsDecimal(float value) {
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value);
    double decimal = 0;
    std::from_chars(text.data(), end.ptr, decimal);
    return decimal;
}

/// The rows share the copies of inputs and rules that they change and restore.
class SensitivityRun {
public:
    SensitivityRun(const Insight& insight, double by)
        : m_insight(insight)
        , m_by(by)
        , m_rules(insight.By()) {}

    Sensitivity Compute();

private:
    using Change = std::function<bool(Side side, std::vector<PutValue>& values)>;

    std::optional<SensitivitySide> SideOf(Side side, const Change& change);
    double MoveOf(const SensitivityRow& row, float SensitivitySide::*figure, float now) const;
    void Sort(std::vector<SensitivityRow>& rows) const;

    /// `amount` x (1 - by/100) or x (1 + by/100).
    double Scaled(double amount, Side side) const { return amount * (100 + SignOf(side) * m_by) / 100; }
    void Put(const Lattice& steps, double valueInSteps, std::vector<PutValue>& values);
    /// An input of its own: scaled, or moved by `whenZero` steps if it is 0.
    Change Field(const Lattice& steps, double whenZero);
    Change Assumptions(std::vector<float AssumptionSet::*> members);
    bool PutUpgrade(Side side, std::vector<PutValue>& values);
    bool PutSavings(Side side, std::vector<PutValue>& values);
    bool PutRates(Side side, std::vector<PutValue>& values);
    bool PutTerm(Side side, std::vector<PutValue>& values);
    bool PutYears(Side side, std::vector<PutValue>& values);
    double BasePrice() const { return m_insight.Steps(Varied::StdPrice).Now(); }

    const Insight& m_insight;
    double m_by;
    Inputs m_inputs;
    Rules m_rules;
};

void SensitivityRun::Put(const Lattice& steps, double valueInSteps, std::vector<PutValue>& values) {
    const Step step = steps.Nearest(valueInSteps);
    steps.Put(step, m_inputs);
    values.push_back({steps.TextOf(step), 0, true});
}

SensitivityRun::Change SensitivityRun::Field(const Lattice& steps, double whenZero) {
    return [this, steps, whenZero](Side side, std::vector<PutValue>& values) {
        if (!steps.HasSteps())
            return false;
        const double now = steps.NowInSteps();
        Put(steps, now == 0 ? SignOf(side) * whenZero : Scaled(now, side), values);
        return true;
    };
}

bool SensitivityRun::PutUpgrade(Side side, std::vector<PutValue>& values) {
    const Lattice steps = m_insight.Steps(Varied::GMHPrice);
    if (!steps.HasSteps())
        return false;
    const double upgrade = steps.Now() - BasePrice();
    const double put = upgrade == 0 ? SignOf(side) * BasePrice() / 100 : Scaled(upgrade, side);
    Put(steps, BasePrice() + put, values);
    return true;
}

bool SensitivityRun::PutSavings(Side side, std::vector<PutValue>& values) {
    const Lattice steps = m_insight.Steps(Varied::GMHBill);
    if (!steps.HasSteps())
        return false;
    const double baseBill = m_insight.Steps(Varied::StdBill).Now();
    Put(steps, baseBill - Scaled(baseBill - steps.Now(), side), values);
    return true;
}

bool SensitivityRun::PutRates(Side side, std::vector<PutValue>& values) {
    constexpr double point = 1000; // steps of a rate
    for (const Varied rate : {Varied::StdRate, Varied::GMHRate}) {
        const Lattice steps = m_insight.Steps(rate);
        if (!steps.HasSteps())
            return false;
        Put(steps, steps.NowInSteps() + SignOf(side) * point, values);
    }
    return true;
}

bool SensitivityRun::PutTerm(Side side, std::vector<PutValue>& values) {
    const PickList& list = m_insight.Screen().cboMortTerm;
    const int index = list.Selected + (side == Side::High ? 1 : -1);
    if (list.Selected < 0 || index < 0 || index >= static_cast<int>(list.Items.size()))
        return false;
    const PickItem& term = list.Items[static_cast<std::size_t>(index)];
    m_inputs.TermYears = term.Code;
    values.push_back({std::string(term.Text), 0, true});
    return true;
}

bool SensitivityRun::PutYears(Side side, std::vector<PutValue>& values) {
    constexpr int most = std::numeric_limits<std::int16_t>::max();
    const int years = m_insight.By().Assumptions.YearsInHome + (side == Side::High ? 2 : -2);
    m_rules.Assumptions.YearsInHome = static_cast<std::int16_t>(std::clamp(years, 0, most));
    values.push_back({{}, static_cast<double>(m_rules.Assumptions.YearsInHome), false});
    return true;
}

SensitivityRun::Change SensitivityRun::Assumptions(std::vector<float AssumptionSet::*> members) {
    return [this, members = std::move(members)](Side side, std::vector<PutValue>& values) {
        for (float AssumptionSet::*const member : members) {
            const double value = Scaled(AsDecimal(m_insight.By().Assumptions.*member), side);
            m_rules.Assumptions.*member = static_cast<float>(value);
            values.push_back({{}, value, false});
        }
        return true;
    };
}

std::optional<SensitivitySide> SensitivityRun::SideOf(Side side, const Change& change) {
    m_inputs = m_insight.Now();
    m_rules.Assumptions = m_insight.By().Assumptions;
    SensitivitySide result;
    if (!change(side, result.Values))
        return std::nullopt;
    const Results results = Insight::At(m_inputs, m_rules);
    if (FaultOf(results.Decisions.Std) != Fault::None || FaultOf(results.Decisions.GMH) != Fault::None)
        return std::nullopt;
    result.IsList = result.Values.size() > 1;
    result.ShownNet = m_insight.ShownNet(results);
    result.PVSavings = results.GMHCase.PVSavings;
    if (results.Decisions.CashFlowFault == Fault::None)
        result.SavingsAfterYearsInHome = results.Scenario.SavingsAfterYearsInHome;
    result.GMHMargin = MarginOf(results.GMHCase);
    return result;
}

double SensitivityRun::MoveOf(const SensitivityRow& row, float SensitivitySide::*figure, float now) const {
    const float low = row.Low ? (*row.Low).*figure : now;
    const float high = row.High ? (*row.High).*figure : now;
    return std::fabs(static_cast<double>(high) - static_cast<double>(low));
}

void SensitivityRun::Sort(std::vector<SensitivityRow>& rows) const {
    const float savings = m_insight.Record().GMHCase.PVSavings;
    std::sort(rows.begin(), rows.end(), [&](const SensitivityRow& a, const SensitivityRow& b) {
        const double movesA = MoveOf(a, &SensitivitySide::PVSavings, savings);
        const double movesB = MoveOf(b, &SensitivitySide::PVSavings, savings);
        return std::tie(b.NetMove, movesB, a.Input) < std::tie(a.NetMove, movesA, b.Input);
    });
}

Sensitivity SensitivityRun::Compute() {
    Sensitivity result;
    result.By = m_by;
    const auto add = [&](std::string_view name, const Change& change) {
        SensitivityRow row{name, SideOf(Side::Low, change), SideOf(Side::High, change)};
        row.NetMove = MoveOf(row, &SensitivitySide::ShownNet, m_insight.ShownNet(m_insight.Record()));
        result.Rows.push_back(std::move(row));
    };
    const auto own = [this](bool (SensitivityRun::*put)(Side, std::vector<PutValue>&)) {
        return [this, put](Side side, std::vector<PutValue>& values) { return (this->*put)(side, values); };
    };
    using A = AssumptionSet;
    constexpr double debtWhenZero = 100;
    constexpr double pointOfPercent = 100;
    const bool percent = m_insight.Now().DownAsPercent;
    add("upgrade", own(&SensitivityRun::PutUpgrade));
    add("savings", own(&SensitivityRun::PutSavings));
    add("rates", own(&SensitivityRun::PutRates));
    add("down", Field(m_insight.DownSteps(HomeCode::Std), percent ? pointOfPercent : BasePrice() / 100));
    add("income", Field(m_insight.Steps(Varied::Income), 0));
    add("debt", Field(m_insight.Steps(Varied::Debt), debtWhenZero));
    add("term", own(&SensitivityRun::PutTerm));
    add("yearsInHome", own(&SensitivityRun::PutYears));
    add("propertyTax", Assumptions({&A::RealEstateTaxPct}));
    add("insurance", Assumptions({&A::InsurancePct}));
    add("pmi", Assumptions({&A::PMIMult1, &A::PMIMult2, &A::PMIMult3, &A::PMIMult4}));
    Sort(result.Rows);
    return result;
}

} // namespace

Sensitivity ComputeSensitivity(const Insight& insight, double by) {
    return SensitivityRun(insight, by).Compute();
}

} // namespace Ledgrove
