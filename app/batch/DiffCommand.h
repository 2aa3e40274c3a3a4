#pragma once

#include <filesystem>
#include <string>

#include "app/batch/WordFault.h"
#include "insight/Diff.h"

namespace Ledgrove {

/// The command `ledgrove-cli diff`: what differs between two comparisons, and what that changes.
class DiffCommand {
public:
    /// Reads the text of the option. Returns a message if it cannot be used, else "".
    std::string ReadFormat(const std::string& name, const WordFault& fault);

    /// Writes the diff of the comparisons in two files, of which one may be "-" for standard input, with the
    /// settings in `folder`. Returns the exit status.
    int Run(const std::filesystem::path& folder, const std::string& a, const std::string& b) const;

private:
    enum class Format { Text, Json };

    Format m_format = Format::Text;
};

/// Appends one object with "inputs" and "figures". No line ending.
void AppendDiffJson(std::string& out, const Diff& diff);

/// Appends the diff for people: the inputs, the figures, and the parts of the main figure.
void AppendDiffText(std::string& out, const Diff& diff);

} // namespace Ledgrove
