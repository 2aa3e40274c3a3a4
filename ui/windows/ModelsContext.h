#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

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
    /// Begins to list every saved house for the buyer on the screen, with the screen's mortgage options or
    /// with all; an earlier list is given up. Returns a sentence if the houses cannot be read, else "".
    std::function<std::string(bool allOptions)> Begin;
    /// Waits at most so many milliseconds for the end.
    std::function<ModelsState(int milliseconds)> Look;
    std::function<void()> Cancel;
    /// Previews the last list for printing.
    std::function<void()> Print;
};

} // namespace Ledgrove
