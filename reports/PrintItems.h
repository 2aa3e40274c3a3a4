#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// The items on the pages of a print document. Positions and sizes are in twips, 1440 per inch, from the
// top-left corner of the paper; Y grows downward.
namespace Ledgrove {

struct ChartFigures;

using Twips = int;

inline constexpr Twips TwipsPerInch = 1440;

/// 24 bits, with red in the low byte.
using PrintColour = std::uint32_t;

inline constexpr PrintColour PrintBlack = 0x000000;
inline constexpr PrintColour PrintGrey = 0xC0C0C0;
inline constexpr PrintColour PrintWhite = 0xFFFFFF;

struct PrintBox {
    Twips X1 = 0;
    Twips Y1 = 0;
    Twips X2 = 0;
    Twips Y2 = 0;

    bool operator==(const PrintBox&) const = default;
};

struct TextStyle {
    std::string FontName = "Arial";
    int FontSize = 20; ///< points
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    PrintColour Colour = PrintBlack;

    bool operator==(const TextStyle&) const = default;
};

/// One line of UTF-8 text in one style, from its left edge.
struct TextRun {
    Twips X = 0;
    Twips Y = 0; ///< top of the line
    Twips Baseline = 0;
    Twips Width = 0;
    std::string Text;
    TextStyle Style;
};

struct FilledRectangle {
    PrintBox Box;
    PrintColour Colour = PrintBlack;
};

struct RuledLine {
    PrintBox Ends;
    Twips Thickness = 0;
    PrintColour Colour = PrintBlack;
};

/// A picture file, scaled into the box with its proportions kept. A picture that does not load is omitted.
struct PlacedPicture {
    PrintBox Box;
    std::filesystem::path File;
};

/// A picture of the insight views, a sensitivity or a map, drawn as lines and text.
struct PlacedChart {
    PrintBox Box;
    std::shared_ptr<const ChartFigures> Figures;
    TextStyle Style; ///< of its texts
};

using PrintItem = std::variant<TextRun, FilledRectangle, RuledLine, PlacedPicture, PlacedChart>;

/// In drawing order: later items cover earlier ones.
using PrintPage = std::vector<PrintItem>;

/// The width and height of text in a style, in twips. Pages are laid out with it before anything is painted.
class TextMeasure {
public:
    virtual ~TextMeasure() = default;
    virtual Twips Width(std::string_view text, const TextStyle& style) const = 0;
    virtual Twips Ascent(const TextStyle& style) const = 0;
    virtual Twips LineHeight(const TextStyle& style) const = 0;
};

} // namespace Ledgrove
