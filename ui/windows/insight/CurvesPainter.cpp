#include "ui/windows/insight/CurvesPainter.h"

#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace Ledgrove {

namespace {

const QColor mainOnLight(0x1f, 0x5f, 0x73);
const QColor mainOnDark(0x7f, 0xc8, 0xdc);
constexpr double yearsApart = 5;

QString Words(const std::string& text) {
    return QString::fromStdString(text);
}

/// Where the label of a mark stands.
struct Flag {
    double X = 0; ///< of its line
    double Left = 0;
    int Row = 0;
};

class CurvesPainter {
public:
    CurvesPainter(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette)
        : m_painter(painter)
        , m_chart(chart)
        , m_text(palette.color(QPalette::Text))
        , m_ground(palette.color(QPalette::Window))
        , m_main(m_text.lightness() < 128 ? mainOnLight : mainOnDark)
        , m_metrics(painter.font()) {
        double ticks = 0;
        for (const ChartTick& tick : chart.Ticks)
            ticks = std::max(ticks, m_metrics.horizontalAdvance(Words(tick.Text)));
        double names = m_metrics.height();
        if (HasNames()) {
            for (const ChartSeries& series : chart.Series)
                names = std::max(names, m_metrics.horizontalAdvance(Words(series.Name)));
            names += m_metrics.height() * 1.2;
        }
        m_plot =
            place.adjusted(ticks + m_metrics.height() * 0.6, NoteHeight(), -names, -m_metrics.height() * 2.5);
        m_top = place.top();
        SetFlags();
        m_plot.setTop(m_plot.top() + m_metrics.height() * FlagRows());
    }

    void Paint() {
        PaintNote();
        PaintScales();
        PaintFlags();
        for (std::size_t i = 0; i < m_chart.Series.size(); ++i)
            if (i != m_chart.Curves.Main)
                PaintCurve(i);
        if (m_chart.Curves.Main)
            PaintCurve(*m_chart.Curves.Main);
        PaintPoints();
        if (HasNames())
            PaintNames();
    }

private:
    bool HasNames() const { return m_chart.Series.size() > 1; }
    double NoteHeight() const {
        return m_chart.Note.empty() ? m_metrics.height() * 0.4 : m_metrics.height() * 1.3;
    }

    double LastYear() const {
        const std::size_t count = m_chart.Series.front().Values.size();
        return m_chart.Curves.First + m_chart.Curves.Step * static_cast<double>(count - 1);
    }

    double XAt(double year) const {
        const double first = m_chart.Curves.First;
        return m_plot.left() + (year - first) / (LastYear() - first) * m_plot.width();
    }

    double YAt(double amount) const {
        return m_plot.bottom() -
               (amount - m_chart.Lowest) / (m_chart.Highest - m_chart.Lowest) * m_plot.height();
    }

    /// A label stands on the right of its line, where there is room. Each further row is nearer to the plot,
    /// so that no line of an earlier mark goes through the label of a later one.
    void SetFlags() {
        double end = -1;
        int row = -1;
        for (const CurveMark& mark : m_chart.Curves.Marks) {
            const double width = m_metrics.horizontalAdvance(Words(mark.Text));
            const double x = XAt(mark.At);
            const double left = std::max(m_plot.left(), std::min(x + 3, m_plot.right() - width));
            row = left > end ? 0 : row + 1;
            end = std::max(end, left + width + m_metrics.height() / 2);
            m_flags.append({x, left, row});
        }
    }

    int FlagRows() const {
        int rows = 0;
        for (const Flag& flag : m_flags)
            rows = std::max(rows, flag.Row + 1);
        return rows;
    }

    void PaintNote() {
        m_painter.setPen(m_text);
        m_painter.drawText(QRectF(m_plot.left(), m_top, m_plot.width(), m_metrics.height()), Qt::AlignCenter,
                           Words(m_chart.Note));
    }

    void PaintScales() {
        QColor faint = m_text;
        faint.setAlphaF(0.25F);
        for (const ChartTick& tick : m_chart.Ticks) {
            const double y = YAt(tick.Value);
            m_painter.setPen(QPen(tick.Value == 0 ? m_text : faint, tick.Value == 0 ? 1.4 : 0.8));
            m_painter.drawLine(QPointF(m_plot.left(), y), QPointF(m_plot.right(), y));
            m_painter.setPen(m_text);
            const QString words = Words(tick.Text);
            m_painter.drawText(QPointF(m_plot.left() - m_metrics.horizontalAdvance(words) - 5,
                                       y + m_metrics.ascent() / 2 - 1),
                               words);
        }
        m_painter.setPen(m_text);
        const double first = std::ceil(m_chart.Curves.First / yearsApart) * yearsApart;
        for (double year = first; year <= LastYear() + 1e-9; year += yearsApart) {
            const QString words = QString::number(std::lround(year));
            const double x = XAt(year);
            m_painter.drawLine(QPointF(x, m_plot.bottom()), QPointF(x, m_plot.bottom() + 3));
            m_painter.drawText(
                QPointF(x - m_metrics.horizontalAdvance(words) / 2, m_plot.bottom() + m_metrics.ascent() + 4),
                words);
        }
        m_painter.drawText(QRectF(m_plot.left(), m_plot.bottom() + m_metrics.height() * 1.3, m_plot.width(),
                                  m_metrics.height()),
                           Qt::AlignCenter, "Years");
    }

    /// No line goes through a label: all lines come first, and each label covers what is under it.
    void PaintFlags() {
        const double line = m_metrics.height();
        const double top = m_plot.top() - line * FlagRows();
        m_painter.setPen(QPen(m_text, 0.9, Qt::DotLine));
        for (const Flag& flag : m_flags)
            m_painter.drawLine(QPointF(flag.X, top + line * flag.Row), QPointF(flag.X, m_plot.bottom()));
        m_painter.setPen(m_text);
        for (qsizetype i = 0; i < m_flags.size(); ++i) {
            const Flag& flag = m_flags[i];
            const QString words = Words(m_chart.Curves.Marks[static_cast<std::size_t>(i)].Text);
            const QRectF place(flag.Left, top + line * flag.Row, m_metrics.horizontalAdvance(words), line);
            m_painter.fillRect(place, m_ground);
            m_painter.drawText(QPointF(place.left(), place.top() + m_metrics.ascent()), words);
        }
    }

    QPen PenOf(std::size_t index) const {
        if (index == m_chart.Curves.Main)
            return QPen(m_main, 2.6, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        static const std::array<QList<qreal>, 7> dashes{
            {{1, 3}, {3, 3}, {6, 3}, {6, 3, 1, 3}, {6, 3, 1, 3, 1, 3}, {10, 3}, {10, 3, 3, 3}}};
        QPen pen(m_text, 1.2, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        pen.setDashPattern(dashes[index % dashes.size()]);
        return pen;
    }

    QPointF PointOf(const std::vector<double>& values, std::size_t at) const {
        return {XAt(m_chart.Curves.First + m_chart.Curves.Step * static_cast<double>(at)), YAt(values[at])};
    }

    void PaintCurve(std::size_t index) {
        const std::vector<double>& values = m_chart.Series[index].Values;
        QPainterPath path(PointOf(values, 0));
        for (std::size_t at = 1; at < values.size(); ++at)
            path.lineTo(PointOf(values, at));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(PenOf(index));
        m_painter.drawPath(path);
    }

    void PaintPoints() {
        m_painter.setPen(QPen(m_text, 1));
        m_painter.setBrush(m_main);
        for (const CurveMark& mark : m_chart.Curves.Marks)
            m_painter.drawEllipse(QPointF(XAt(mark.At), YAt(mark.Value)), 3.5, 3.5);
    }

    /// Names whose curves end close together move apart; a thin line leads to each.
    void PaintNames() {
        std::vector<std::size_t> order(m_chart.Series.size());
        std::iota(order.begin(), order.end(), 0U);
        std::stable_sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) {
            return m_chart.Series[a].Values.back() > m_chart.Series[b].Values.back();
        });
        const double line = m_metrics.height() * 0.95;
        const double lead = m_metrics.height() * 0.9;
        const double room = line * static_cast<double>(order.size() - 1);
        double lowest = std::max(m_plot.top(), m_plot.bottom() - room);
        double y = m_plot.top() - line;
        for (const std::size_t index : order) {
            const ChartSeries& series = m_chart.Series[index];
            const double end = YAt(series.Values.back());
            y = std::max(y + line, std::min(end, lowest));
            lowest += line;
            const QPointF from(m_plot.right(), end);
            m_painter.setPen(QPen(m_text, 0.7));
            m_painter.drawLine(from + QPointF(2, 0), QPointF(from.x() + lead, y));
            m_painter.setPen(index == m_chart.Curves.Main ? m_main : m_text);
            m_painter.drawText(QPointF(from.x() + lead + 3, y + m_metrics.ascent() / 2 - 1),
                               Words(series.Name));
        }
    }

    QPainter& m_painter;
    const ChartFigures& m_chart;
    QColor m_text;
    QColor m_ground; ///< that the picture is painted on
    QColor m_main;
    QFontMetricsF m_metrics;
    QRectF m_plot;
    double m_top = 0;
    QList<Flag> m_flags;
};

} // namespace

void PaintCurves(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette) {
    painter.save();
    CurvesPainter(painter, place, chart, palette).Paint();
    painter.restore();
}

} // namespace Ledgrove
