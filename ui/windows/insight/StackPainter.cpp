#include "ui/windows/insight/StackPainter.h"

#include <QLocale>
#include <algorithm>
#include <array>
#include <cmath>

namespace Ledgrove {

namespace {

enum class Strokes { None, Rising, Falling, Level, Crossed };

struct PartStyle {
    QColor Fill;
    Strokes Pattern;
};

/// From dark to light, with patterns for neighbours that a grey print would not tell apart.
const std::array<PartStyle, 6> partStyles{{{QColor(0x1f, 0x5b, 0x6e), Strokes::None},
                                           {QColor(0x8f, 0xbf, 0xcb), Strokes::Rising},
                                           {QColor(0xf3, 0xf3, 0xf3), Strokes::Falling},
                                           {QColor(0xc2, 0x5a, 0x1c), Strokes::None},
                                           {QColor(0xff, 0xd8, 0x8a), Strokes::Level},
                                           {QColor(0xff, 0xff, 0xff), Strokes::Crossed}}};

QString Words(const std::string& text) {
    return QString::fromStdString(text);
}

QString Money(double amount) {
    const QString digits = QLocale(QLocale::English).toString(std::lround(std::fabs(amount)));
    return (amount <= -0.5 ? "-$" : "$") + digits;
}

/// Lines and not a brush, because on paper a brush has the printer's resolution.
void Stroke(QPainter& painter, const QRectF& box, Strokes pattern) {
    constexpr double step = 4;
    QList<QLineF> lines;
    const double height = box.height();
    if (pattern == Strokes::Rising || pattern == Strokes::Crossed)
        for (double x = box.left(); x < box.right() + height; x += step)
            lines.append({x, box.top(), x - height, box.bottom()});
    if (pattern == Strokes::Falling || pattern == Strokes::Crossed)
        for (double x = box.left() - height; x < box.right(); x += step)
            lines.append({x, box.top(), x + height, box.bottom()});
    if (pattern == Strokes::Level)
        for (double y = box.top() + step / 2; y < box.bottom(); y += step)
            lines.append({box.left(), y, box.right(), y});
    painter.save();
    painter.setClipRect(box);
    painter.setPen(QPen(QColor(0, 0, 0, 130), 0.6));
    painter.drawLines(lines);
    painter.restore();
}

class StackPainter {
public:
    StackPainter(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette)
        : m_painter(painter)
        , m_chart(chart)
        , m_text(palette.color(QPalette::Text))
        , m_metrics(painter.font())
        , m_place(place) {
        double below = 0;
        double above = 0;
        for (std::size_t home = 0; home < chart.Categories.size(); ++home) {
            const Ends ends = EndsOf(home);
            below = std::min(below, ends.Below);
            above = std::max(above, ends.Above);
        }
        m_scale = place.width() / std::max(above - below, 1.0);
        m_zero = place.left() - below * m_scale;
    }

    void Paint() {
        const double line = m_metrics.height();
        const auto bars = static_cast<double>(m_chart.Categories.size());
        const double table = RowHeight() * static_cast<double>(m_chart.Series.size() + 1);
        const double barHeight =
            std::clamp((m_place.height() - table) / std::max(bars, 1.0) - line * 1.7, line * 0.8, line * 2.6);
        double top = m_place.top();
        for (std::size_t home = 0; home < m_chart.Categories.size(); ++home) {
            m_painter.setPen(m_text);
            m_painter.drawText(QPointF(m_place.left(), top + m_metrics.ascent()),
                               Words(m_chart.Categories[home]));
            PaintBar(home, top + line * 1.1, barHeight);
            top += line * 1.7 + barHeight;
        }
        PaintTable(top);
    }

private:
    /// Where a bar ends, in dollars: amounts below 0 and above 0 add up separately.
    struct Ends {
        double Below = 0;
        double Above = 0;
    };

    Ends EndsOf(std::size_t home) const {
        Ends ends;
        for (const ChartSeries& series : m_chart.Series)
            (series.Values[home] < 0 ? ends.Below : ends.Above) += series.Values[home];
        return ends;
    }

    void Fill(const QRectF& box, std::size_t part) {
        const PartStyle& style = partStyles[part % partStyles.size()];
        m_painter.fillRect(box, style.Fill);
        Stroke(m_painter, box, style.Pattern);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(QPen(m_text, 0.6));
        m_painter.drawRect(box);
    }

    void PaintBar(std::size_t home, double top, double height) {
        double right = m_zero;
        double left = m_zero;
        for (std::size_t part = 0; part < m_chart.Series.size(); ++part) {
            const double width = m_chart.Series[part].Values[home] * m_scale;
            if (width > 0)
                Fill(QRectF(right, top, width, height), part);
            else if (width < 0)
                Fill(QRectF(left + width, top, -width, height), part);
            (width > 0 ? right : left) += width;
        }
        m_painter.setPen(QPen(m_text, 1.2));
        m_painter.drawLine(QPointF(m_zero, top - 2), QPointF(m_zero, top + height + 2));
    }

    /// An amount, or the head of its column, in the row of the table that begins at `y`.
    void PaintCell(std::size_t home, double y, const QString& text) {
        const double right =
            m_place.right() - AmountWidth() * static_cast<double>(m_chart.Categories.size() - 1 - home);
        m_painter.drawText(QRectF(right - AmountWidth(), y, AmountWidth(), RowHeight()),
                           Qt::AlignRight | Qt::AlignVCenter, text);
    }

    void PaintTable(double top) {
        const double size = m_metrics.height() * 0.8;
        m_painter.setPen(m_text);
        for (std::size_t home = 0; home < m_chart.Categories.size(); ++home)
            PaintCell(home, top, Words(m_chart.Categories[home]).section(':', 0, 0).section(' ', 0, 0));
        for (std::size_t part = 0; part < m_chart.Series.size(); ++part) {
            const ChartSeries& series = m_chart.Series[part];
            const double y = top + RowHeight() * static_cast<double>(part + 1);
            Fill(QRectF(m_place.left(), y + (RowHeight() - size) / 2, size * 1.6, size), part);
            m_painter.setPen(m_text);
            const double caption = m_place.left() + size * 2.2;
            m_painter.drawText(QRectF(caption, y, m_place.right() - 2 * AmountWidth() - caption, RowHeight()),
                               Qt::AlignLeft | Qt::AlignVCenter, Words(series.Name));
            for (std::size_t home = 0; home < series.Values.size(); ++home)
                PaintCell(home, y,
                          series.Texts.empty() ? Money(series.Values[home]) : Words(series.Texts[home]));
        }
    }

    double RowHeight() const { return m_metrics.height() * 1.25; }
    double AmountWidth() const { return m_place.width() * 0.27; }

    QPainter& m_painter;
    const ChartFigures& m_chart;
    QColor m_text;
    QFontMetricsF m_metrics;
    QRectF m_place;
    double m_scale = 1; ///< from dollars to units of the painter
    double m_zero = 0;
};

} // namespace

void PaintStacks(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette) {
    StackPainter(painter, place, chart, palette).Paint();
}

} // namespace Ledgrove
