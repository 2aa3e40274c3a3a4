#pragma once

#include <optional>
#include <span>

namespace Ledgrove {

/// The least positive rate per month, as a fraction, at which payments received at the end of months 1, 2,
/// ... are worth `paid` today. Empty unless `paid` is above 0 and the payments add up to more. Payments may
/// be negative, so there may be more than one such rate.
std::optional<double> LeastReturn(double paid, std::span<const double> received);

/// What the payments are worth today at a rate per month.
double WorthToday(std::span<const double> received, double rate);

} // namespace Ledgrove
