#include "reports/TextWrap.h"

#include "base/Text.h"

#include <algorithm>

namespace Ledgrove {

namespace {

/// A number of bytes that cannot fit: every character is at least a twip wide and at most 4 bytes long.
std::size_t TooLongFor(Twips width) {
    return static_cast<std::size_t>(std::max(width, 1)) * 4 + 1;
}

/// The longest prefix, in whole characters, that fits; at least one character. The search doubles the length
/// and then halves the interval, so that each line of a megabyte needs only a few measurements.
std::size_t FittingLength(std::string_view text, Twips width, const TextStyle& style,
                          const TextMeasure& measure) {
    const std::size_t most = std::min(text.size() + 1, TooLongFor(width));
    std::size_t fits = 0;
    std::size_t tooLong = std::min<std::size_t>(64, most);
    while (tooLong < most && measure.Width(text.substr(0, tooLong), style) <= width) {
        fits = tooLong;
        tooLong = std::min(2 * tooLong, most);
    }
    while (tooLong - fits > 1) {
        const std::size_t middle = fits + (tooLong - fits) / 2;
        (measure.Width(text.substr(0, middle), style) <= width ? fits : tooLong) = middle;
    }
    while (fits > 0 && fits < text.size() && !BeginsCharacter(text[fits]))
        --fits;
    if (fits == 0)
        for (fits = 1; fits < text.size() && !BeginsCharacter(text[fits]);)
            ++fits;
    return fits;
}

/// The end of a line that can hold `fits` bytes of `text`: after the last complete word.
std::size_t LineEnd(std::string_view text, std::size_t fits) {
    if (fits >= text.size() || text[fits] == ' ')
        return fits;
    const std::size_t blank = text.rfind(' ', fits);
    return blank == std::string_view::npos || text.find_first_not_of(' ') > blank ? fits : blank;
}

void WrapParagraph(std::string_view text, Twips width, const TextStyle& style, const TextMeasure& measure,
                   std::vector<std::string>& lines) {
    do {
        const std::size_t end = LineEnd(text, FittingLength(text, width, style, measure));
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
        const std::size_t next = text.find_first_not_of(' ');
        text.remove_prefix(next == std::string_view::npos ? text.size() : next);
    } while (!text.empty());
}

} // namespace

std::vector<std::string> WrapText(std::string_view text, Twips width, const TextStyle& style,
                                  const TextMeasure& measure) {
    std::vector<std::string> lines;
    for (;;) {
        const std::size_t end = text.find_first_of("\r\n");
        const std::string_view paragraph = text.substr(0, end);
        if (paragraph.size() < TooLongFor(width) && measure.Width(paragraph, style) <= width)
            lines.emplace_back(paragraph);
        else
            WrapParagraph(paragraph, width, style, measure, lines);
        if (end == std::string_view::npos)
            return lines;
        const bool pair = text.substr(end, 2) == "\r\n";
        text.remove_prefix(end + (pair ? 2 : 1));
    }
}

} // namespace Ledgrove
