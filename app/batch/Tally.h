#pragma once

#include <cstddef>

namespace Ledgrove {

/// What became of the comparisons in an input.
struct Tally {
    std::size_t Compared = 0; ///< including the refused ones
    std::size_t Refused = 0;
    std::size_t FirstRefused = 0; ///< its line, counted from 1
    bool Empty = true;            ///< the input has no text
    bool ListRefused = false;     ///< its heading row cannot be used

    void Count(bool refused, std::size_t line) {
        Empty = false;
        ++Compared;
        if (refused && ++Refused == 1)
            FirstRefused = line;
    }

    /// Adds what came after this.
    void Add(const Tally& later) {
        if (Refused == 0)
            FirstRefused = later.FirstRefused;
        Compared += later.Compared;
        Refused += later.Refused;
        Empty = Empty && later.Empty;
        ListRefused = ListRefused || later.ListRefused;
    }

    bool AllWell() const { return Refused == 0 && !ListRefused && !Empty; }
};

} // namespace Ledgrove
