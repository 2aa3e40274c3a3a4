#include "insight/YearsReturn.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <vector>

namespace Ledgrove {

namespace {

/// A sum of payments and its slope, at the factor that a month's delay takes from a payment.
struct Valued {
    double Sum = 0;
    double Slope = 0;
};

Valued ValueAt(std::span<const double> payments, double factor) {
    Valued valued;
    for (std::size_t month = payments.size(); month-- > 0;) {
        const double later = valued.Sum + payments[month];
        valued.Slope = valued.Slope * factor + later;
        valued.Sum = later * factor;
    }
    return valued;
}

/// Goes from factor 1 (rate 0) downwards to the first factor at which the worth is 0. Gains and losses apart
/// only rise with the factor, and so do their slopes, which bounds the slope of the worth over a stretch: no
/// step passes a root.
class Descent {
public:
    Descent(double paid, std::span<const double> received)
        : m_paid(paid) {
        for (const double payment : received) {
            m_gains.push_back(std::max(0.0, payment));
            m_losses.push_back(std::max(0.0, -payment));
            m_hasLosses = m_hasLosses || payment < 0;
        }
    }

    std::optional<double> Root() const {
        constexpr int patience = 5'000;
        double factor = 1;
        for (int round = 0; round < patience; ++round) {
            const Valued gains = ValueAt(m_gains, factor);
            const double worth = gains.Sum - LossesAt(factor).Sum - m_paid;
            if (!(worth > 0))
                return factor;
            const double step = SafeStep(factor, gains.Slope, worth);
            if (step <= factor * std::numeric_limits<double>::epsilon())
                return factor;
            factor -= step;
        }
        return std::nullopt;
    }

private:
    Valued LossesAt(double factor) const { return m_hasLosses ? ValueAt(m_losses, factor) : Valued{}; }

    /// A step down over which the worth stays at least 0.
    double SafeStep(double factor, double gainSlope, double worth) const {
        double step = worth / gainSlope;
        while (m_hasLosses && 2 * step < factor) {
            const double slope = gainSlope - LossesAt(factor - 2 * step).Slope;
            if (slope * 2 * step >= worth)
                return std::max(step, worth / slope);
            step *= 2;
        }
        return step;
    }

    double m_paid;
    std::vector<double> m_gains;
    std::vector<double> m_losses;
    bool m_hasLosses = false;
};

} // namespace

std::optional<double> LeastReturn(double paid, std::span<const double> received) {
    if (!(paid > 0) || !(std::accumulate(received.begin(), received.end(), 0.0) > paid))
        return std::nullopt;
    const auto factor = Descent(paid, received).Root();
    if (!factor)
        return std::nullopt;
    return (1 - *factor) / *factor;
}

double WorthToday(std::span<const double> received, double rate) {
    return ValueAt(received, 1 / (1 + rate)).Sum;
}

} // namespace Ledgrove
