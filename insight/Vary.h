#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/Inputs.h"
#include "engine/MainScreen.h"

// An input as the steps that its field can show, so that a view can try others.
namespace Ledgrove {

/// The number inputs that a view varies.
enum class Varied : std::uint8_t {
    Income,
    Debt,
    PctDown,
    FixedDown,
    StdPrice,
    GMHPrice,
    StdBill,
    GMHBill,
    StdRate,
    GMHRate
};

/// A value counted in steps of its field: dollars, hundredths of a percent for the down payment, thousandths
/// of a percent for a rate.
using Step = std::int64_t;

enum class Direction : std::uint8_t { Down, Up };

/// The steps of one input: its range, its value now, and what the field shows at each step.
class Lattice {
public:
    /// `screen` supplies the text now. `fixedDownEnd` is the largest fixed down payment in dollars; the other
    /// inputs do not use it.
    Lattice(Varied input, const MainScreen& screen, double fixedDownEnd = 0);

    /// False if the amount now is too large for steps, so that there is nothing to search.
    bool HasSteps() const { return m_hasSteps; }

    Varied Which() const { return m_which; }
    std::string_view Control() const; ///< "ecGMHHome"

    /// The ends of the range, widened to the value now.
    Step Least() const { return m_least; }
    Step Most() const { return m_most; }
    Step End(Direction direction) const { return direction == Direction::Up ? m_most : m_least; }
    /// The step of the value now; for a value between two steps the one against `direction`.
    Step Start(Direction direction) const { return direction == Direction::Up ? m_floor : m_ceiling; }
    /// The nearest step to `steps`, halves up, within the range.
    Step Nearest(double steps) const;

    double Now() const { return m_now; } ///< in the field's unit: dollars or percent
    double NowInSteps() const;
    const std::string& NowText() const { return m_nowText; }
    double ValueOf(Step step) const; ///< in the field's unit
    /// The text of the field at a step; the text now where that is the value now.
    std::string TextOf(Step step) const;
    /// Writes what the engine reads from that text.
    void Put(Step step, Inputs& inputs) const;

private:
    Varied m_which;
    std::string m_nowText;
    double m_now;
    bool m_hasSteps;
    Step m_floor = 0;
    Step m_ceiling = 0;
    Step m_least = 0;
    Step m_most = 0;
};

} // namespace Ledgrove
