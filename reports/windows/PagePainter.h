#pragma once

#include "reports/PrintItems.h"
#include "reports/windows/Pictures.h"

#include <QFont>
#include <QFontMetricsF>
#include <map>
#include <string>
#include <tuple>
#include <unordered_map>

class QPainter;

namespace Ledgrove {

/// The font of a style in a coordinate system of twips.
QFont PrintFont(const TextStyle& style);

/// Measures text as PaintPage draws it. Needs a QGuiApplication.
class FontMeasure : public TextMeasure {
public:
    Twips Width(std::string_view text, const TextStyle& style) const override;
    Twips Ascent(const TextStyle& style) const override;
    Twips LineHeight(const TextStyle& style) const override;

private:
    using Key = std::tuple<std::string, int, bool, bool>;

    struct Measured {
        QFontMetricsF Metrics; ///< each font is looked up only once
        /// Each cell is measured several times: for its row's height, for its lines and for its position.
        std::unordered_map<std::string, Twips> Widths;
    };

    Measured& Style(const TextStyle& style) const;

    mutable std::map<Key, Measured> m_styles;
};

/// Paints one page for preview, printer and PDF; there is no other way. The painter's units are twips and its
/// origin is the corner of the paper.
void PaintPage(QPainter& painter, const PrintPage& page, PictureStore& pictures);

} // namespace Ledgrove
