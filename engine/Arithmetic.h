#pragma once

#include "engine/Decisions.h"

#include <cmath>

namespace Ledgrove {

/// Carries the first fault of a calculation from the step that made it to the place that says what follows.
/// Floating point raises nothing by itself, so the steps that can fault go through here.
class Arithmetic {
public:
    bool Faulted() const { return m_fault != Fault::None; }
    Fault What() const { return m_fault; }

    void Fail(Fault fault) {
        if (!Faulted())
            m_fault = fault;
    }

    /// `dividend` / `divisor`; a divisor of 0 is the fault `whenZero` and gives 0.
    double Quotient(double dividend, double divisor, Fault whenZero) {
        if (divisor == 0) {
            Fail(whenZero);
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
        Fail(Fault::OutOfRange);
        return 0;
    }

private:
    Fault m_fault = Fault::None;
};

} // namespace Ledgrove
