#pragma once

#include <optional>

#include "insight/Diff.h"
#include "ui/ChartFigures.h"

namespace Ledgrove {

/// How the inputs lead a figure from A to B, a step for each input that moves it, between the two totals. The
/// first series is where each bar begins, the second where it ends, with the amount as its text. Empty for a
/// figure without parts, and for whether the buyer qualifies, which is not an amount.
std::optional<ChartFigures> MakeWaterfall(const Diff& diff, const DiffFigure& figure,
                                          const DiffNames& names = {});

} // namespace Ledgrove
