#include "ui/windows/insight/MapPainter.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/windows/insight/Hatch.h"

namespace Ledgrove {

namespace {

// From near zero to the end of the scale.
const QColor gainNear(0xd5, 0xe8, 0xec);
const QColor gainFar(0x2f, 0x6f, 0x83);
const QColor lossNear(0xf8, 0xdf, 0xcf);
const QColor lossFar(0xc2, 0x5a, 0x1c);

QColor Between(const QColor& near, const QColor& far, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return {mix(near.red(), far.red()), mix(near.green(), far.green()), mix(near.blue(), far.blue())};
}

/// The width of the amounts on the left.
double ScaleWidth(const QFontMetricsF& metrics) {
    return metrics.horizontalAdvance("$000,000") + metrics.height() / 2;
}

/// The map's cells, its scales, the zero line and the point of now.
class MapPainter {
public:
    MapPainter(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette)
        : m_painter(painter)
        , m_chart(chart)
        , m_grid(chart.Grid)
        , m_text(palette.color(QPalette::Text))
        , m_metrics(painter.font())
        , m_plot(MapPlot(place, m_metrics))
        , m_width(m_plot.width() / static_cast<double>(m_grid.Columns.size()))
        , m_height(m_plot.height() / static_cast<double>(m_grid.Rows.size())) {}

    void Paint(const std::optional<MapCell>& cursor) {
        PaintCells();
        PaintZeroLine();
        PaintScales();
        PaintNow();
        if (cursor) {
            m_painter.setBrush(Qt::NoBrush);
            m_painter.setPen(QPen(Qt::white, 3.5));
            m_painter.drawRect(BoxOf(cursor->Column, cursor->Row));
            m_painter.setPen(QPen(Qt::black, 1.5));
            m_painter.drawRect(BoxOf(cursor->Column, cursor->Row));
        }
    }

private:
    QRectF BoxOf(int column, int row) const {
        return {m_plot.left() + column * m_width, m_plot.bottom() - (row + 1) * m_height, m_width, m_height};
    }

    const std::optional<float>& Net(int column, int row) const {
        return m_grid.Nets[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }

    int ColumnCount() const { return static_cast<int>(m_grid.Columns.size()); }
    int RowCount() const { return static_cast<int>(m_grid.Rows.size()); }

    void PaintCells() {
        m_painter.save();
        // Neighbours without seams.
        m_painter.setRenderHint(QPainter::Antialiasing, false);
        m_painter.setPen(Qt::NoPen);
        for (int row = 0; row < RowCount(); ++row)
            for (int column = 0; column < ColumnCount(); ++column)
                PaintCell(column, row);
        m_painter.restore();
        // A loss is hatched as well, for people and prints without colours.
        Hatch(m_painter, Losses(), 70);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(QPen(m_text, 0.8));
        m_painter.drawRect(m_plot);
    }

    void PaintCell(int column, int row) {
        const QRectF box = BoxOf(column, row);
        const auto& net = Net(column, row);
        if (!net) {
            m_painter.fillRect(box, QBrush(QColor(0x88, 0x88, 0x88), Qt::Dense6Pattern));
            return;
        }
        const double amount = static_cast<double>(*net);
        const double end = amount < 0 ? m_chart.Lowest : m_chart.Highest;
        const double share = end == 0 ? 0 : std::min(std::fabs(amount / end), 1.0);
        m_painter.fillRect(box, amount < 0 ? Between(lossNear, lossFar, share)
                                           : Between(gainNear, gainFar, share));
    }

    bool IsLoss(int column, int row) const { return Net(column, row) && *Net(column, row) < 0; }

    /// Each row's neighbouring cells with a loss as one box.
    QList<QRectF> Losses() const {
        QList<QRectF> boxes;
        for (int row = 0; row < RowCount(); ++row)
            for (int column = 0; column < ColumnCount(); ++column)
                if (IsLoss(column, row) && column > 0 && IsLoss(column - 1, row))
                    boxes.last().setRight(BoxOf(column, row).right());
                else if (IsLoss(column, row))
                    boxes.append(BoxOf(column, row));
        return boxes;
    }

    bool Pays(int column, int row) const {
        const auto& net = Net(column, row);
        return net && *net >= 0;
    }

    void PaintZeroLine() {
        m_painter.setPen(QPen(Qt::black, 2));
        QPointF label;
        for (int row = 0; row < RowCount(); ++row) {
            for (int column = 0; column < ColumnCount(); ++column) {
                const QRectF box = BoxOf(column, row);
                if (!Net(column, row))
                    continue;
                const bool pays = Pays(column, row);
                if (column + 1 < ColumnCount() && Net(column + 1, row) && pays != Pays(column + 1, row)) {
                    m_painter.drawLine(box.topRight(), box.bottomRight());
                    label = box.topRight();
                }
                if (row + 1 < RowCount() && Net(column, row + 1) && pays != Pays(column, row + 1)) {
                    m_painter.drawLine(box.topLeft(), box.topRight());
                    label = box.topRight();
                }
            }
        }
        if (!label.isNull())
            LabelZeroLine(label, "$0 a month");
    }

    void LabelZeroLine(const QPointF& at, const QString& words) {
        QRectF box({at.x() - LabelSize(words).width() - 4, at.y() + 4}, LabelSize(words));
        if (box.left() < m_plot.left())
            box.moveLeft(std::min(at.x() + 8, m_plot.right() - box.width()));
        if (box.bottom() > m_plot.bottom())
            box.moveBottom(at.y() - 4);
        m_zeroLabel = box;
        PaintLabel(box, words);
    }

    QSizeF LabelSize(const QString& words) const {
        return {m_metrics.horizontalAdvance(words) + 8, m_metrics.height()};
    }

    /// A text on the cells, on a ground of its own.
    void PaintLabel(const QRectF& box, const QString& words) {
        m_painter.fillRect(box, QColor(255, 255, 255, 220));
        m_painter.setPen(Qt::black);
        m_painter.drawText(box, Qt::AlignCenter, words);
    }

    static QString Money(double amount) {
        return "$" + QLocale(QLocale::English).toString(std::lround(amount));
    }

    void PaintScales() {
        m_painter.setPen(m_text);
        constexpr int step = 10;
        const double line = m_metrics.height();
        for (int column = 0; column < ColumnCount(); column += step) {
            const QString words = Money(m_grid.Columns[static_cast<std::size_t>(column)]);
            const double x = BoxOf(column, 0).center().x() - m_metrics.horizontalAdvance(words) / 2;
            m_painter.drawText(QPointF(x, m_plot.bottom() + m_metrics.ascent() + 3), words);
        }
        for (int row = 0; row < RowCount(); row += step) {
            const QString words = Money(m_grid.Rows[static_cast<std::size_t>(row)]);
            const double y = BoxOf(0, row).center().y() + m_metrics.ascent() / 2 - 1;
            m_painter.drawText(QPointF(m_plot.left() - m_metrics.horizontalAdvance(words) - 5, y), words);
        }
        m_painter.drawText(QRectF(m_plot.left(), m_plot.bottom() + line * 1.2, m_plot.width(), line * 1.3),
                           Qt::AlignCenter, "Price difference");
        // A line above the highest amount.
        m_painter.drawText(QPointF(m_plot.left() - ScaleWidth(m_metrics), m_plot.top() - line),
                           "Saving a year");
    }

    void PaintNow() {
        const auto at = [](double value, const std::vector<double>& scale) {
            return scale.back() == 0 ? 0 : value / scale.back() * static_cast<double>(scale.size() - 1) + 0.5;
        };
        const QPointF now(m_plot.left() + at(m_grid.ColumnNow, m_grid.Columns) * m_width,
                          m_plot.bottom() - at(m_grid.RowNow, m_grid.Rows) * m_height);
        if (!m_plot.contains(now))
            return;
        const double radius = std::max(m_width, m_height) * 0.8;
        for (const auto& [colour, width] : {std::pair(Qt::white, 4.0), std::pair(Qt::black, 1.8)}) {
            m_painter.setPen(QPen(colour, width));
            m_painter.setBrush(Qt::NoBrush);
            m_painter.drawEllipse(now, radius, radius);
            m_painter.drawLine(now - QPointF(radius * 1.6, 0), now + QPointF(radius * 1.6, 0));
            m_painter.drawLine(now - QPointF(0, radius * 1.6), now + QPointF(0, radius * 1.6));
        }
        LabelNow(now, radius);
    }

    /// Beside the cross, where the words hide neither the zero line nor its label. Without such a place,
    /// where they are on the map.
    void LabelNow(const QPointF& now, double radius) {
        const QString words = "now";
        const QSizeF size = LabelSize(words);
        const double right = radius;
        const double left = -radius - size.width();
        const double below = radius;
        const double above = -radius - size.height();
        const double beyond = radius; // the arms of the cross
        const double middle = -size.height() / 2;
        std::optional<QRectF> place;
        for (const QPointF& corner :
             {QPointF(left, below), QPointF(right, below), QPointF(left, above), QPointF(right, above),
              QPointF(right + beyond, middle), QPointF(left - beyond, middle)}) {
            const QRectF box(now + corner, size);
            if (!m_plot.contains(box))
                continue;
            if (!place)
                place = box;
            if (IsFree(box)) {
                place = box;
                break;
            }
        }
        if (place)
            PaintLabel(*place, words);
    }

    /// Whether the box hides neither the zero line nor its label.
    bool IsFree(const QRectF& box) const {
        constexpr double lineWidth = 2;
        const QRectF around = box.adjusted(-lineWidth, -lineWidth, lineWidth, lineWidth);
        const auto cell = [](double distance, double size, int count) {
            return std::clamp(static_cast<int>(distance / size), 0, count - 1);
        };
        const int first = cell(around.left() - m_plot.left(), m_width, ColumnCount());
        const int last = cell(around.right() - m_plot.left(), m_width, ColumnCount());
        const int lowest = cell(m_plot.bottom() - around.bottom(), m_height, RowCount());
        const int highest = cell(m_plot.bottom() - around.top(), m_height, RowCount());
        for (int row = lowest; row <= highest; ++row)
            for (int column = first; column <= last; ++column)
                if (Pays(column, row) != Pays(first, lowest))
                    return false;
        return !around.intersects(m_zeroLabel);
    }

    QPainter& m_painter;
    const ChartFigures& m_chart;
    const ChartGrid& m_grid;
    QColor m_text;
    QFontMetricsF m_metrics;
    QRectF m_plot;
    QRectF m_zeroLabel; ///< empty if there is no zero line
    double m_width;
    double m_height;
};

} // namespace

QRectF MapPlot(const QRectF& place, const QFontMetricsF& metrics) {
    const double line = metrics.height();
    const double labels = ScaleWidth(metrics);
    return place.adjusted(labels, line * 2.8, -labels / 2, -line * 2.6);
}

void PaintMap(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette,
              const std::optional<MapCell>& cursor) {
    MapPainter(painter, place, chart, palette).Paint(cursor);
}

} // namespace Ledgrove
