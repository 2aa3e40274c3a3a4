#include "reports/windows/PagePainter.h"

#include "ui/windows/insight/PicturePainter.h"

#include <QPainter>
#include <cmath>

namespace Ledgrove {

namespace {

QString Shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QColor ColourOf(PrintColour colour) {
    return {static_cast<int>(colour & 0xFFU), static_cast<int>(colour >> 8U & 0xFFU),
            static_cast<int>(colour >> 16U & 0xFFU)};
}

QRectF RectOf(const PrintBox& box) {
    return {QPointF(box.X1, box.Y1), QPointF(box.X2, box.Y2)};
}

/// The most pixels of a picture in the box that good printers show, 600 to the inch. More would only make the
/// document larger and slower.
QSize PixelsOf(const QRectF& box) {
    constexpr int dotsPerInch = 600;
    return (box.size() * dotsPerInch / TwipsPerInch).toSize();
}

/// The lines of charts are as thin as on a screen with 96 dots per inch.
constexpr int twipsPerPixel = TwipsPerInch / 96;

QPalette BlackOnWhite() {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

/// Draws each kind of item on a page.
class ItemPainter {
public:
    ItemPainter(QPainter& painter, PictureStore& pictures)
        : m_painter(painter)
        , m_pictures(pictures) {}

    void operator()(const TextRun& run) {
        m_painter.setFont(PrintFont(run.Style));
        m_painter.setPen(ColourOf(run.Style.Colour));
        m_painter.drawText(QPointF(run.X, run.Baseline), Shown(run.Text));
    }

    void operator()(const FilledRectangle& rectangle) {
        m_painter.fillRect(RectOf(rectangle.Box), ColourOf(rectangle.Colour));
    }

    void operator()(const RuledLine& line) {
        m_painter.setPen(QPen(ColourOf(line.Colour), line.Thickness));
        m_painter.drawLine(QPointF(line.Ends.X1, line.Ends.Y1), QPointF(line.Ends.X2, line.Ends.Y2));
    }

    void operator()(const PlacedPicture& picture) {
        const QRectF box = RectOf(picture.Box);
        const QImage& image = m_pictures.Load(picture.File, PixelsOf(box));
        if (image.isNull())
            return;
        QRectF target({}, QSizeF(image.size()).scaled(box.size(), Qt::KeepAspectRatio));
        target.moveCenter(box.center());
        m_painter.drawImage(target, image);
    }

    void operator()(const PlacedChart& chart) {
        m_painter.save();
        m_painter.translate(chart.Box.X1, chart.Box.Y1);
        m_painter.scale(twipsPerPixel, twipsPerPixel);
        QFont font = PrintFont(chart.Style);
        font.setPixelSize(font.pixelSize() / twipsPerPixel);
        m_painter.setFont(font);
        const QRectF place(0, 0, (chart.Box.X2 - chart.Box.X1) / static_cast<double>(twipsPerPixel),
                           (chart.Box.Y2 - chart.Box.Y1) / static_cast<double>(twipsPerPixel));
        PaintPicture(m_painter, place, *chart.Figures, BlackOnWhite());
        m_painter.restore();
    }

private:
    QPainter& m_painter;
    PictureStore& m_pictures;
};

} // namespace

QFont PrintFont(const TextStyle& style) {
    constexpr int twipsPerPoint = TwipsPerInch / 72;
    QFont font(QString::fromStdString(style.FontName));
    font.setPixelSize(style.FontSize * twipsPerPoint);
    font.setBold(style.Bold);
    font.setItalic(style.Italic);
    font.setUnderline(style.Underline);
    // Without hinting, text has the same width on every device, whatever its resolution.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

FontMeasure::Measured& FontMeasure::Style(const TextStyle& style) const {
    const Key key{style.FontName, style.FontSize, style.Bold, style.Italic};
    auto found = m_styles.find(key);
    if (found == m_styles.end())
        found = m_styles.emplace(key, Measured{QFontMetricsF(PrintFont(style)), {}}).first;
    return found->second;
}

Twips FontMeasure::Width(std::string_view text, const TextStyle& style) const {
    constexpr std::size_t longestKept = 256;
    constexpr std::size_t mostKept = 1024;
    Measured& measured = Style(style);
    const auto measure = [&] {
        return static_cast<Twips>(std::ceil(measured.Metrics.horizontalAdvance(Shown(text))));
    };
    if (text.size() > longestKept)
        return measure();
    if (measured.Widths.size() >= mostKept)
        measured.Widths.clear();
    const auto [kept, isNew] = measured.Widths.try_emplace(std::string(text));
    if (isNew)
        kept->second = measure();
    return kept->second;
}

Twips FontMeasure::Ascent(const TextStyle& style) const {
    return static_cast<Twips>(std::ceil(Style(style).Metrics.ascent()));
}

Twips FontMeasure::LineHeight(const TextStyle& style) const {
    return static_cast<Twips>(std::ceil(Style(style).Metrics.lineSpacing()));
}

void PaintPage(QPainter& painter, const PrintPage& page, PictureStore& pictures) {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
    // A wrapped name must not change its direction with the first letter of each line.
    painter.setLayoutDirection(Qt::LeftToRight);
    ItemPainter paint(painter, pictures);
    for (const PrintItem& item : page)
        std::visit(paint, item);
}

} // namespace Ledgrove
