#pragma once

#include <string>
#include <string_view>

#include "insight/Diff.h"

// The sentences of the window "What changed?".
namespace Ledgrove {

/// The name of a side in a table: without the quotes of a sentence, and at most 40 characters.
std::string ShortName(const std::string& name);

/// The monthly net as the More Home tab shows it.
std::string ShownNetText(const Insight& insight);

/// Which comparison lacks what. `missing` is the reason that its insight gives.
std::string MissingSentence(const std::string& name, const Inputs& inputs, const std::string& missing);

struct ChangesNames {
    std::string From; ///< the sides within a sentence
    std::string To;
    std::string NetText; ///< the monthly net of `From`
};

/// How the monthly net changes, and which input that comes from.
std::string ChangesSentence(const Diff& diff, const ChangesNames& names);

} // namespace Ledgrove
