#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/Decisions.h"

namespace Ledgrove {

/// A limit is the last step up to which a condition that holds now keeps holding at every step. A nearest is
/// the first step at which a condition that fails now begins to hold.
enum class AnswerKind : std::uint8_t { Limit, Nearest };

enum class AnswerState : std::uint8_t {
    Found,  ///< the condition changes between `To` and the step beside it
    Always, ///< a limit that holds up to the end of the range, which is `To`
    Never   ///< a nearest that begins nowhere in the range
};

/// The rule that changes with the condition, so that the limit stands at an edge.
enum class AnswerEdge : std::uint8_t {
    None,
    PMIBand,      ///< the down payment enters another band of PMI
    SavingsWorth, ///< the savings are no longer worth the upgrade, so they do not raise the largest loan
};

/// A limit or a nearest of one input.
struct Answer {
    AnswerKind Kind = AnswerKind::Limit;
    AnswerState State = AnswerState::Found;
    std::string_view Input;        ///< the control, "ecGMHHome"
    std::string From;              ///< the text now
    std::optional<std::string> To; ///< empty for Never
    std::optional<double> Change;  ///< `To` less `From`, in the field's unit
    double ToValue = 0;            ///< of `To`, in the field's unit
    AnswerEdge Edge = AnswerEdge::None;
    PMIBand Beyond = PMIBand::None; ///< at the edge of a PMI band: the band one step further
};

} // namespace Ledgrove
