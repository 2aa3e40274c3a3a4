#include "insight/Vary.h"

#include <algorithm>
#include <cmath>

#include "engine/NumberText.h"

namespace Ledgrove {

namespace {

/// From here on, the field's text no longer shows single dollars.
constexpr double mostSteps = 1e15;

/// From here on, single precision no longer holds every dollar.
constexpr double mostPrice = 16'777'216;

struct Unit {
    double StepsPerUnit;
    std::string_view Picture;
    std::string_view After;
    double Divisor; ///< of the field's unit, for the value in `Inputs`
};

constexpr Unit dollars{1, "$###,##0", "", 1};
constexpr Unit percents{100, "#0.00", "%", 100};
constexpr Unit rates{1000, "#0.000", "%", 100};

struct InputRow {
    Varied Which;
    std::string_view Control;
    Field MainScreen::*Member;
    const Unit& In;
    float Inputs::*Buyer; ///< nullptr for an input of a home
    HomeInputs Inputs::*Home;
    float HomeInputs::*OfHome;
};

// clang-format off
const InputRow rows[] = {
    {Varied::Income, "ecIncome", &MainScreen::ecIncome, dollars, &Inputs::AnnualIncome, nullptr, nullptr},
    {Varied::Debt, "ecMonthlyDebt", &MainScreen::ecMonthlyDebt, dollars, &Inputs::MonthlyDebt, nullptr, nullptr},
    {Varied::PctDown, "ecPctDown", &MainScreen::ecPctDown, percents, &Inputs::PctDown, nullptr, nullptr},
    {Varied::FixedDown, "ecFixedDown", &MainScreen::ecFixedDown, dollars, &Inputs::FixedDown, nullptr, nullptr},
    {Varied::StdPrice, "ecStdHome", &MainScreen::ecStdHome, dollars, nullptr, &Inputs::Std, &HomeInputs::Cost},
    {Varied::GMHPrice, "ecGMHHome", &MainScreen::ecGMHHome, dollars, nullptr, &Inputs::GMH, &HomeInputs::Cost},
    {Varied::StdBill, "ecStdUtil", &MainScreen::ecStdUtil, dollars, nullptr, &Inputs::Std, &HomeInputs::UtilAnnual},
    {Varied::GMHBill, "ecGMHUtil", &MainScreen::ecGMHUtil, dollars, nullptr, &Inputs::GMH, &HomeInputs::UtilAnnual},
    {Varied::StdRate, "ecStdRate", &MainScreen::ecStdRate, rates, nullptr, &Inputs::Std, &HomeInputs::IntRate},
    {Varied::GMHRate, "ecGMHRate", &MainScreen::ecGMHRate, rates, nullptr, &Inputs::GMH, &HomeInputs::IntRate},
};
// clang-format on

const InputRow& RowOf(Varied input) {
    return rows[static_cast<std::size_t>(input)];
}

struct Range {
    double Least, Most; ///< in steps
};

Range RangeOf(Varied input, double now, double fixedDownEnd) {
    switch (input) {
    case Varied::Income:
        return {0, 10'000'000};
    case Varied::Debt:
        return {0, 1'000'000};
    case Varied::PctDown:
        return {0, 100 * percents.StepsPerUnit};
    case Varied::FixedDown:
        return {0, std::min(fixedDownEnd, mostSteps)};
    case Varied::StdPrice:
    case Varied::GMHPrice:
        return {1, std::min(now * 10, mostPrice)};
    case Varied::StdBill:
    case Varied::GMHBill:
        return {0, std::clamp(now * 10, 10'000.0, mostSteps)};
    case Varied::StdRate:
    case Varied::GMHRate:
        return {1, 25 * rates.StepsPerUnit};
    }
    return {0, 0};
}

} // namespace

Lattice::Lattice(Varied input, const MainScreen& screen, double fixedDownEnd)
    : m_which(input)
    , m_nowText((screen.*RowOf(input).Member).Text)
    , m_now(Module1::ReadStrippedNumber(m_nowText).value_or(0))
    , m_hasSteps(std::fabs(NowInSteps()) <= mostSteps) {
    if (!m_hasSteps)
        return;
    m_floor = m_ceiling = std::llround(NowInSteps());
    if (ValueOf(m_floor) > m_now)
        --m_floor;
    else if (ValueOf(m_floor) < m_now)
        ++m_ceiling;
    const Range range = RangeOf(input, m_now, fixedDownEnd);
    m_least = std::min(static_cast<Step>(range.Least), m_ceiling);
    m_most = std::max({static_cast<Step>(range.Most), m_floor, m_least});
}

std::string_view Lattice::Control() const {
    return RowOf(m_which).Control;
}

Step Lattice::Nearest(double steps) const {
    // Products such as 0.95 x 12,350 may lie just below the half that they are in decimal numbers.
    constexpr double productError = 1e-6;
    const double nearest = std::floor(steps + 0.5 + productError);
    return static_cast<Step>(std::clamp(nearest, static_cast<double>(m_least), static_cast<double>(m_most)));
}

double Lattice::NowInSteps() const {
    return m_now * RowOf(m_which).In.StepsPerUnit;
}

double Lattice::ValueOf(Step step) const {
    return static_cast<double>(step) / RowOf(m_which).In.StepsPerUnit;
}

std::string Lattice::TextOf(Step step) const {
    if (ValueOf(step) == m_now)
        return m_nowText;
    const Unit& unit = RowOf(m_which).In;
    return Module1::FormatPicture(ValueOf(step), unit.Picture).append(unit.After);
}

void Lattice::Put(Step step, Inputs& inputs) const {
    const InputRow& row = RowOf(m_which);
    const auto value = static_cast<float>(ValueOf(step) / row.In.Divisor);
    (row.Home ? inputs.*row.Home.*row.OfHome : inputs.*row.Buyer) = value;
}

} // namespace Ledgrove
