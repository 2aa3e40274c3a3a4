#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace Ledgrove {

/// The message about a word that is not one of `known`; `what` is "format".
using WordFault = std::function<std::string(const std::string& what, const std::string& word,
                                            const std::vector<std::string>& known)>;

/// Reads the name of a format as an enumerator: `names` are in its order. Returns a message for another name,
/// else "".
template <typename Format>
std::string ReadFormatName(const std::string& name, const std::vector<std::string>& names, Format& format,
                           const WordFault& fault) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        return fault("format", name, names);
    format = static_cast<Format>(found - names.begin());
    return {};
}

} // namespace Ledgrove
