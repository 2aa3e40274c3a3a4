#include "ui/windows/insight/WaterfallPainter.h"

#include <QFontMetricsF>
#include <algorithm>

namespace Ledgrove {

namespace {

const QColor riseFill(0x2f, 0x6f, 0x83);
const QColor fallFill(0xc2, 0x5a, 0x1c);
const QColor totalFill(0x8a, 0x8f, 0x99);

QString Words(const std::string& text) {
    return QString::fromStdString(text);
}

class WaterfallPainter {
public:
    WaterfallPainter(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QColor& text)
        : m_painter(painter)
        , m_chart(chart)
        , m_text(text)
        , m_metrics(painter.font())
        , m_place(place) {
        const double line = m_metrics.height();
        const double captions = std::min(Widest(chart.Categories), place.width() * 0.4);
        // The amounts stand in a column of their own, where no line crosses them.
        const double amounts = Widest(chart.Series[1].Texts) + line;
        m_plot = place.adjusted(captions + line, line * 0.5, -amounts, -line * 1.6);
        const auto count = static_cast<double>(chart.Categories.size());
        m_rowHeight = std::min(m_plot.height() / std::max(count, 1.0), line * 2);
        m_plot.setHeight(m_rowHeight * count);
    }

    void Paint() {
        PaintTicks();
        for (std::size_t row = 0; row < m_chart.Categories.size(); ++row) {
            PaintCaption(row);
            PaintBar(row);
            PaintStep(row);
        }
    }

private:
    double Widest(const std::vector<std::string>& texts) const {
        double widest = 0;
        for (const std::string& text : texts)
            widest = std::max(widest, m_metrics.horizontalAdvance(Words(text)));
        return widest;
    }

    double At(double value) const {
        return m_plot.left() + (value - m_chart.Lowest) / (m_chart.Highest - m_chart.Lowest) * m_plot.width();
    }

    double From(std::size_t row) const { return m_chart.Series[0].Values[row]; }
    double To(std::size_t row) const { return m_chart.Series[1].Values[row]; }
    double Top(std::size_t row) const { return m_plot.top() + m_rowHeight * static_cast<double>(row); }

    QColor FaintText() const {
        QColor faint = m_text;
        faint.setAlphaF(0.25F);
        return faint;
    }

    void PaintTicks() {
        double end = m_place.left(); // of the amounts so far
        for (const ChartTick& tick : m_chart.Ticks) {
            const double x = At(tick.Value);
            m_painter.setPen(QPen(tick.Value == 0 ? m_text : FaintText(), tick.Value == 0 ? 1.2 : 0.8));
            m_painter.drawLine(QPointF(x, m_plot.top()), QPointF(x, m_plot.bottom()));
            const QString words = Words(tick.Text);
            const double begin = x - m_metrics.horizontalAdvance(words) / 2;
            if (begin < end)
                continue;
            m_painter.setPen(m_text);
            m_painter.drawText(QPointF(begin, m_plot.bottom() + m_metrics.ascent() + 2), words);
            end = begin + m_metrics.horizontalAdvance(words + ' ');
        }
    }

    /// On two lines where the width makes that necessary and the height allows it.
    void PaintCaption(std::size_t row) {
        constexpr int flags = Qt::AlignRight | Qt::AlignVCenter | Qt::TextWordWrap;
        const QString caption = Words(m_chart.Categories[row]);
        const QRectF place(m_place.left(), Top(row), m_plot.left() - m_place.left() - m_metrics.height() / 2,
                           m_rowHeight);
        const QSizeF needed = m_metrics.boundingRect(place, flags, caption).size();
        const bool fits = needed.height() <= place.height() + 1 && needed.width() <= place.width() + 1;
        m_painter.setPen(m_text);
        m_painter.drawText(place, flags,
                           fits ? caption : m_metrics.elidedText(caption, Qt::ElideRight, place.width()));
    }

    QRectF BoxOf(std::size_t row) const {
        const bool isTotal = From(row) == To(row);
        const double begin = isTotal ? std::clamp(0.0, m_chart.Lowest, m_chart.Highest) : From(row);
        const double left = At(std::min(begin, To(row)));
        const double right = At(std::max(begin, To(row)));
        return {left, Top(row) + m_rowHeight * 0.2, right - left, m_rowHeight * 0.6};
    }

    void PaintBar(std::size_t row) {
        const QRectF box = BoxOf(row);
        const bool isTotal = From(row) == To(row);
        m_painter.setPen(QPen(m_text, 0.6));
        m_painter.setBrush(isTotal ? totalFill : To(row) > From(row) ? riseFill : fallFill);
        m_painter.drawRect(box);
        m_painter.setPen(m_text);
        // The sign tells a rise from a fall without colours.
        const QString amount = Words(m_chart.Series[1].Texts[row]);
        m_painter.drawText(QPointF(m_place.right() - m_metrics.horizontalAdvance(amount) - 2,
                                   box.center().y() + (m_metrics.ascent() - m_metrics.descent()) / 2),
                           amount);
    }

    /// A line from the end of the bar to the next row.
    void PaintStep(std::size_t row) {
        if (row + 1 == m_chart.Categories.size())
            return;
        const double x = At(To(row));
        m_painter.setPen(QPen(m_text, 0.8, Qt::DotLine));
        m_painter.drawLine(QPointF(x, BoxOf(row).bottom()), QPointF(x, BoxOf(row + 1).top()));
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

void PaintWaterfall(QPainter& painter, const QRectF& place, const ChartFigures& chart,
                    const QPalette& palette) {
    WaterfallPainter(painter, place, chart, palette.color(QPalette::Text)).Paint();
}

} // namespace Ledgrove
