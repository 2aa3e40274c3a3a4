#pragma once

#include <string>
#include <vector>

#include "app/batch/Comparison.h"
#include "app/batch/ResultNames.h"

namespace Ledgrove {

/// Writes results with some of their members: the shape is that of the whole result.
class ChosenJson {
public:
    /// The order of the names does not matter.
    explicit ChosenJson(const ChosenNames& names);

    /// Appends one object. No line ending.
    void Append(std::string& out, const Comparison& comparison) const;

private:
    struct Piece {
        std::string Before; ///< the text up to the value
        const ResultName* What;
    };

    std::vector<Piece> m_pieces;
    std::string m_end;
};

} // namespace Ledgrove
