#pragma once

#include <optional>
#include <span>
#include <string>

#include "engine/Inputs.h"
#include "engine/MainScreen.h"
#include "engine/Results.h"

// The pairs of mortgage options that the lists allow.
namespace Ledgrove {

struct OptionPair {
    PickItem Base;
    PickItem Labelled;
};

/// Each base option with each labelled option of its list, in the order of the lists.
std::span<const OptionPair> OptionPairs();

/// The inputs with other options.
Inputs WithOptions(Inputs inputs, const OptionPair& pair);

/// Chooses a pair in the lists of the screen.
void ChoosePair(MainScreen& screen, const OptionPair& pair);

/// The pair that is chosen in the lists of the screen; empty if none is.
std::optional<OptionPair> ChosenPair(const MainScreen& screen);

/// Why the monthly costs of a home are unknown with this pair; empty if they are known.
std::string HomeFault(const Results& results, const OptionPair& pair, HomeCode home);

/// The same for the first of both homes at fault.
std::string PairFault(const Results& results, const OptionPair& pair);

} // namespace Ledgrove
