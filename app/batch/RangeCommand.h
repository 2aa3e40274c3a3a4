#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "app/batch/WordFault.h"
#include "engine/Session.h"
#include "insight/Range.h"

namespace Ledgrove {

/// The command `ledgrove-cli range`: every saved house for the buyer of one comparison.
class RangeCommand {
public:
    // Each reads the text of an option. Returns a message if the text cannot be used, else "".
    std::string ReadFormat(const std::string& name, const WordFault& fault);
    std::string ReadOptions(const std::string& list, const WordFault& fault);

    bool WithoutLimits = false;

    /// The rows of the houses for the session's buyer.
    Range Compute(const Session& session, const HouseList& houses) const;

    /// Writes the range of the comparison in `file` ("-" is standard input) with the settings in `folder` to
    /// standard output. Returns the exit status.
    int Run(const std::filesystem::path& folder, const std::string& file) const;

private:
    enum class Format { Text, Json, Csv };

    int Write(const Range& range) const;

    Format m_format = Format::Text;
    std::vector<OptionPair> m_pairs; ///< empty for the pair of the comparison
};

/// Reads the saved houses. Returns a message if that failed, else "".
std::string LoadHouses(const std::filesystem::path& folder, HouseList& houses);

/// Says on standard error how many rows have no figures, and names the first. Returns the exit status.
int TellRowsWithout(const Range& range);

} // namespace Ledgrove
