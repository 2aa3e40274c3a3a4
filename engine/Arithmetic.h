#pragma once

#include <cmath>

namespace Ledgrove {

/// Carries a fault from the step of a calculation that made it to the place that says what follows. Floating
/// point raises nothing by itself, so the steps that can fault go through here.
class Arithmetic {
public:
    bool Faulted() const { return m_faulted; }

    /// A fault that is no arithmetic, such as a missing loan type.
    void Fault() { m_faulted = true; }

    /// `dividend` / `divisor`; a divisor of 0 is a fault and gives 0.
    double Quotient(double dividend, double divisor) {
        if (divisor == 0) {
            m_faulted = true;
            return 0;
        }
        return dividend / divisor;
    }

    /// The rounding of a result to single precision, done once, when it is stored. A result that is not
    /// finite or beyond single precision is a fault and gives 0.
    float Single(double value) {
        const auto single = static_cast<float>(value);
        if (std::isfinite(single))
            return single;
        m_faulted = true;
        return 0;
    }

private:
    bool m_faulted = false;
};

} // namespace Ledgrove
