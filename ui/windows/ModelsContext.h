#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "insight/Sheet.h"

namespace Ledgrove {

/// How far the list of the houses is.
struct ModelsState {
    std::size_t Done = 0; ///< houses
    std::size_t Total = 0;
    bool IsFinished = false;
    std::shared_ptr<const Sheet> Houses = {}; ///< empty until it is finished, and if it was cancelled
};

/// What the list of all saved houses needs from the program.
struct ModelsContext {
    /// The pairs of mortgage options in words, "FHA / FHA EEM".
    std::vector<std::string> Pairs = {};
    /// Begins to list every saved house for the buyer on the screen with these pairs, by their index, or with
    /// the screen's if there are none; an earlier list is given up. Returns a sentence if the houses cannot
    /// be read, else "".
    std::function<std::string(const std::vector<std::size_t>& pairs)> Begin;
    /// Waits at most so many milliseconds for the end.
    std::function<ModelsState(int milliseconds)> Look;
    std::function<void()> Cancel;
    /// Previews the last list for printing.
    std::function<void()> Print;
};

} // namespace Ledgrove
