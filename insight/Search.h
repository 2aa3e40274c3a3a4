#pragma once

#include <optional>

#include "insight/Answer.h"
#include "insight/Conditions.h"
#include "insight/Insight.h"
#include "insight/Vary.h"

// Limits and nearests over the steps of an input. A search halves the range and leaves out a stretch only if
// the condition is certain for every step in it, so it finds what trying every step would find, although
// conditions are not monotone.
namespace Ledgrove {

/// The directions to search in.
struct SearchDirections {
    Direction WhereHolds; ///< for the limit of a condition that holds now
    Direction WhereFails; ///< for the nearest of a condition that fails now
};

/// The limit or the nearest of a condition, with all other inputs as they are now. Empty if the input has no
/// steps, or if the answer is not certain after very many evaluations, which only senseless rules need.
std::optional<Answer> LimitOrNearest(const Insight& insight, const Lattice& steps,
                                     SearchDirections directions, const Condition& condition);

/// The least step of the whole range at which the condition holds with `inputs`; empty if it holds at none or
/// is not certain.
std::optional<Step> LeastStep(const Insight& insight, const Lattice& steps, const Inputs& inputs,
                              const Condition& condition);

} // namespace Ledgrove
