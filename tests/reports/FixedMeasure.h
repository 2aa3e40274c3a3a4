#pragma once

#include "reports/PrintDocument.h"

#include <string>
#include <vector>

namespace Ledgrove::Testing {

/// All characters have the same width, by default ten twips per point, and a line is twenty twips per point
/// high. So tests can calculate positions by hand.
class FixedMeasure : public TextMeasure {
public:
    explicit FixedMeasure(Twips widthPerPoint = 10)
        : m_widthPerPoint(widthPerPoint) {}

    Twips Width(std::string_view text, const TextStyle& style) const override {
        Twips characters = 0;
        for (const char c : text)
            characters += (static_cast<unsigned char>(c) & 0xC0U) == 0x80U ? 0 : 1;
        return characters * m_widthPerPoint * style.FontSize;
    }
    Twips Ascent(const TextStyle& style) const override { return 15 * style.FontSize; }
    Twips LineHeight(const TextStyle& style) const override { return 20 * style.FontSize; }

private:
    Twips m_widthPerPoint;
};

template <typename Item>
std::vector<Item> ItemsOf(const PrintPage& page) {
    std::vector<Item> items;
    for (const PrintItem& item : page)
        if (const auto* wanted = std::get_if<Item>(&item))
            items.push_back(*wanted);
    return items;
}

/// The texts of a page in drawing order.
inline std::vector<std::string> TextsOf(const PrintPage& page) {
    std::vector<std::string> texts;
    for (const TextRun& run : ItemsOf<TextRun>(page))
        texts.push_back(run.Text);
    return texts;
}

/// The first run with exactly this text, on any page; an empty run if there is none.
inline TextRun FindText(const PrintDocument& document, std::string_view text) {
    for (std::size_t number = 1; number <= document.PageCount(); ++number)
        for (const TextRun& run : ItemsOf<TextRun>(document.Page(number)))
            if (run.Text == text)
                return run;
    return {};
}

} // namespace Ledgrove::Testing
