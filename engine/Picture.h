#pragma once

#include <cstddef>
#include <string_view>

namespace Ledgrove {

/// A picture such as "$##,###,##0" in parts, as FormatPicture uses it. A constant is read when the program is
/// built.
struct Picture {
    std::string_view Literal; ///< what stands before the digits, "$" or nothing; lives as long as the text
    int RequiredWhole = 0;
    int RequiredPlaces = 0;
    int Places = 0;
    bool Grouped = false;

    constexpr Picture(const char* text)
        : Picture(std::string_view(text)) {}

    constexpr Picture(std::string_view text) {
        std::size_t start = 0;
        while (start < text.size() && text[start] != '#' && text[start] != '0' && text[start] != '.')
            ++start;
        Literal = text.substr(0, start);
        bool afterPoint = false;
        for (const char c : text.substr(start)) {
            if (c == '.')
                afterPoint = true;
            else if (c == ',')
                Grouped = true;
            else if (afterPoint)
                ++Places;
            if (c == '0')
                ++(afterPoint ? RequiredPlaces : RequiredWhole);
        }
    }
};

} // namespace Ledgrove
