#include "ui/windows/insight/BarsPainter.h"

#include <QFontMetricsF>
#include <QLocale>
#include <algorithm>
#include <cmath>

#include "ui/windows/insight/Hatch.h"

namespace Ledgrove {

namespace {

const QColor lowFill(0x2f, 0x6f, 0x83);
const QColor highFill(0xff, 0xc8, 0x57);

// In lines of text.
constexpr double legendHeight = 1.6;
constexpr double scaleHeight = 2.6;

QString Words(const std::string& text) {
    return QString::fromStdString(text);
}

/// The bars of what moves the result.
class BarsPainter {
public:
    BarsPainter(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette)
        : m_painter(painter)
        , m_chart(chart)
        , m_text(palette.color(QPalette::Text))
        , m_metrics(painter.font()) {
        double captions = 0;
        for (const std::string& caption : chart.Categories)
            captions = std::max(captions, m_metrics.horizontalAdvance(Words(caption)));
        captions = std::min(captions, place.width() * 0.4);
        const double line = m_metrics.height();
        m_plot = place.adjusted(captions + line, line * legendHeight, -line, -line * scaleHeight);
        m_place = place;
    }

    void Paint() {
        PaintLegend();
        PaintTicks();
        const auto count = static_cast<double>(m_chart.Categories.size());
        m_rowHeight = std::min(m_plot.height() / std::max(count, 1.0), m_metrics.height() * 2);
        for (std::size_t row = 0; row < m_chart.Categories.size(); ++row)
            PaintRow(row);
        PaintLine(m_chart.Middle, "now " + Money(m_chart.Middle), 1.6);
    }

private:
    static QString Money(double amount) {
        const QString digits = QLocale(QLocale::English).toString(std::lround(std::fabs(amount)));
        return (amount <= -0.5 ? "-$" : "$") + digits;
    }

    double At(double value) const {
        return m_plot.left() + (value - m_chart.Lowest) / (m_chart.Highest - m_chart.Lowest) * m_plot.width();
    }

    void PaintLegend() {
        double left = m_plot.left();
        const double size = m_metrics.height() * 0.7;
        for (int side = 0; side < 2; ++side) {
            const QRectF box(left, m_place.top() + m_metrics.height() * 0.4, size, size);
            Fill(box, side == 0);
            const QString words = Words(m_chart.Series[static_cast<std::size_t>(side)].Name);
            m_painter.setPen(m_text);
            m_painter.drawText(QPointF(box.right() + size / 2, box.bottom() - size * 0.1), words);
            left = box.right() + size * 2 + m_metrics.horizontalAdvance(words);
        }
    }

    void PaintTicks() {
        QColor faint = m_text;
        faint.setAlphaF(0.25F);
        for (const ChartTick& tick : m_chart.Ticks) {
            const double x = At(tick.Value);
            m_painter.setPen(QPen(tick.Value == 0 ? m_text : faint, tick.Value == 0 ? 1.2 : 0.8));
            m_painter.drawLine(QPointF(x, m_plot.top()), QPointF(x, m_plot.bottom()));
            m_painter.setPen(m_text);
            const QString words = Words(tick.Text);
            m_painter.drawText(
                QPointF(x - m_metrics.horizontalAdvance(words) / 2, m_plot.bottom() + m_metrics.ascent() + 2),
                words);
        }
    }

    void Fill(const QRectF& box, bool isLow) {
        // A rectangle of no width makes a path that PDF readers complain about.
        if (box.width() == 0)
            return;
        m_painter.setPen(QPen(m_text, 0.6));
        m_painter.setBrush(isLow ? lowFill : highFill);
        m_painter.drawRect(box);
        if (isLow)
            return;
        // The higher value is hatched as well, so that a black and white print tells them apart.
        Hatch(m_painter, {box}, 90);
    }

    void PaintRow(std::size_t row) {
        const double top = m_plot.top() + m_rowHeight * static_cast<double>(row);
        m_painter.setPen(m_text);
        const double captions = m_plot.left() - m_place.left() - m_metrics.height() / 2;
        m_painter.drawText(QRectF(m_place.left(), top, captions, m_rowHeight),
                           Qt::AlignRight | Qt::AlignVCenter,
                           m_metrics.elidedText(Words(m_chart.Categories[row]), Qt::ElideRight, captions));
        for (std::size_t side = 0; side < 2; ++side) {
            const double from = At(m_chart.Middle);
            const double to = At(m_chart.Series[side].Values[row]);
            const double barTop = top + m_rowHeight * (side == 0 ? 0.12 : 0.5);
            Fill(QRectF(std::min(from, to), barTop, std::fabs(to - from), m_rowHeight * 0.38), side == 0);
        }
    }

    void PaintLine(double value, const QString& words, double width) {
        const double x = At(value);
        m_painter.setPen(QPen(m_text, width));
        m_painter.drawLine(QPointF(x, m_plot.top() - 2), QPointF(x, m_plot.bottom()));
        const double advance = m_metrics.horizontalAdvance(words);
        const double left = std::clamp(x - advance / 2, m_plot.left(), m_plot.right() - advance);
        m_painter.drawText(QPointF(left, m_plot.bottom() + m_metrics.height() + m_metrics.ascent() + 4),
                           words);
    }

    QPainter& m_painter;
    const ChartFigures& m_chart;
    QColor m_text;
    QFontMetricsF m_metrics;
    QRectF m_place;
    QRectF m_plot;
    double m_rowHeight = 0;
};

} // namespace

void PaintBars(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette) {
    BarsPainter(painter, place, chart, palette).Paint();
}

double LeastBarsHeight(const ChartFigures& chart, const QFontMetricsF& metrics) {
    return metrics.height() * (static_cast<double>(chart.Categories.size()) + legendHeight + scaleHeight);
}

} // namespace Ledgrove
