#pragma once

#include <cstddef>
#include <string>

namespace Ledgrove {

/// Writes warnings about an input file to standard error. A list of a million rows may have as many of them:
/// after the first twenty only their number is written, at the end of the object's lifetime.
class Warnings {
public:
    /// `file` is named in each warning, unless it is "-".
    explicit Warnings(const std::string& file);
    ~Warnings();
    Warnings(const Warnings&) = delete;
    Warnings& operator=(const Warnings&) = delete;

    void Add(const std::string& sentence);

private:
    std::string m_prefix;
    std::size_t m_count = 0;
};

} // namespace Ledgrove
