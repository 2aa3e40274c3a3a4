#pragma once

#include "engine/Decisions.h"

#include <cmath>

namespace Ledgrove {

/// Records the first fault of a calculation, so that the caller can handle it once at the end. Floating-point
/// arithmetic raises no errors, so every step that can fault goes through this class.
class Arithmetic {
public:
    bool Faulted() const { return m_fault != Fault::None; }
    Fault What() const { return m_fault; }

    /// Records the fault, unless an earlier one is recorded.
    void Fail(Fault fault) {
        if (!Faulted())
            m_fault = fault;
    }

    /// `dividend` / `divisor`. If the divisor is 0, records the fault `whenZero` and returns 0.
    double Quotient(double dividend, double divisor, Fault whenZero) {
        if (divisor == 0) {
            Fail(whenZero);
            return 0;
        }
        return dividend / divisor;
    }

    /// Rounds a result to single precision; call it once, when the result is stored. If the result is not
    /// finite or exceeds single precision, records OutOfRange and returns 0.
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
