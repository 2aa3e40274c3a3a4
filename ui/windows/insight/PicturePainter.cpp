#include "ui/windows/insight/PicturePainter.h"

#include "ui/windows/insight/WaterfallPainter.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

#include "ui/windows/insight/CurvesPainter.h"
#include "ui/windows/insight/StackPainter.h"

namespace Ledgrove {

namespace {

const QColor lowFill(0x2f, 0x6f, 0x83);
const QColor highFill(0xff, 0xc8, 0x57);
// From near zero to the end of the scale.
const QColor gainNear(0xd5, 0xe8, 0xec);
const QColor gainFar(0x2f, 0x6f, 0x83);
const QColor lossNear(0xf8, 0xdf, 0xcf);
const QColor lossFar(0xc2, 0x5a, 0x1c);

QString Words(const std::string& text) {
    return QString::fromStdString(text);
}

QColor Between(const QColor& near, const QColor& far, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return {mix(near.red(), far.red()), mix(near.green(), far.green()), mix(near.blue(), far.blue())};
}

double TitleHeight(const QFontMetricsF& metrics) {
    return std::round(metrics.height()) * 1.4;
}

/// Paints the title; returns the rectangle below it.
QRectF BelowTitle(QPainter& painter, const QRectF& place, const ChartFigures& chart) {
    if (chart.Title.empty())
        return place;
    painter.save();
    QFont bold = painter.font();
    bold.setBold(true);
    painter.setFont(bold);
    const double height = TitleHeight(QFontMetricsF(painter.font()));
    painter.drawText(QRectF(place.topLeft(), QSizeF(place.width(), height)), Qt::AlignCenter,
                     Words(chart.Title));
    painter.restore();
    return place.adjusted(0, height, 0, 0);
}

QFontMetricsF MetricsOf(const QPainter& painter) {
    return QFontMetricsF(painter.font());
}

/// Paints diagonal lines into the boxes, as one continuous hatch. They are lines and not a brush, because on
/// paper a brush has the printer's resolution.
void Hatch(QPainter& painter, const QList<QRectF>& boxes, int opacity) {
    constexpr double step = 5;
    QList<QLineF> lines;
    for (const QRectF& box : boxes) {
        double sum = std::ceil((box.left() + box.top()) / step) * step; // of x and y, the same along a line
        for (; sum <= box.right() + box.bottom(); sum += step) {
            const double left = std::max(box.left(), sum - box.bottom());
            const double right = std::min(box.right(), sum - box.top());
            lines.append({left, sum - left, right, sum - right});
        }
    }
    painter.setPen(QPen(QColor(0, 0, 0, opacity), 0.8));
    painter.drawLines(lines);
}

/// The bars of what moves the result.
class BarsPainter {
public:
    BarsPainter(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette)
        : m_painter(painter)
        , m_chart(chart)
        , m_text(palette.color(QPalette::Text))
        , m_metrics(MetricsOf(painter)) {
        double captions = 0;
        for (const std::string& caption : chart.Categories)
            captions = std::max(captions, m_metrics.horizontalAdvance(Words(caption)));
        captions = std::min(captions, place.width() * 0.4);
        const double line = m_metrics.height();
        m_plot = place.adjusted(captions + line, line * 1.6, -line, -line * 2.6);
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

/// Where the cells of a map are.
QRectF MapPlot(const QRectF& place, const QFontMetricsF& metrics) {
    const double line = metrics.height();
    const double labels = metrics.horizontalAdvance("$000,000") + line / 2;
    return place.adjusted(labels, line * 2.8, -labels / 2, -line * 2.6);
}

/// The map's cells, its scales, the zero line and the point of now.
class MapPainter {
public:
    MapPainter(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette)
        : m_painter(painter)
        , m_chart(chart)
        , m_grid(chart.Grid)
        , m_text(palette.color(QPalette::Text))
        , m_metrics(MetricsOf(painter))
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
            Label(label, "$0 a month");
    }

    /// A text on the cells, on a ground of its own.
    void Label(const QPointF& at, const QString& words) {
        const double width = m_metrics.horizontalAdvance(words) + 8;
        QRectF box(at.x() - width - 4, at.y() + 4, width, m_metrics.height());
        if (box.left() < m_plot.left())
            box.moveLeft(std::min(at.x() + 8, m_plot.right() - width));
        if (box.bottom() > m_plot.bottom())
            box.moveBottom(at.y() - 4);
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
        m_painter.drawText(
            QPointF(m_plot.left() - m_metrics.horizontalAdvance("Saving") - 5, m_plot.top() - line * 0.5),
            "Saving");
        m_painter.drawText(QPointF(m_plot.left() + 3, m_plot.top() - line * 0.5), "a year");
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
        Label(now + QPointF(radius, radius), "now");
    }

    QPainter& m_painter;
    const ChartFigures& m_chart;
    const ChartGrid& m_grid;
    QColor m_text;
    QFontMetricsF m_metrics;
    QRectF m_plot;
    double m_width;
    double m_height;
};

} // namespace

void PaintPicture(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette,
                  const std::optional<MapCell>& cursor) {
    painter.setPen(palette.color(QPalette::Text));
    const QRectF below = BelowTitle(painter, place, chart);
    if (chart.Kind == ChartKind::NetMap)
        MapPainter(painter, below, chart, palette).Paint(cursor);
    else if (chart.Kind == ChartKind::Curves)
        PaintCurves(painter, below, chart, palette);
    else if (chart.Kind == ChartKind::MonthlyCost)
        PaintStacks(painter, below, chart, palette);
    else if (chart.Kind == ChartKind::Waterfall)
        PaintWaterfall(painter, below, chart, palette);
    else
        BarsPainter(painter, below, chart, palette).Paint();
}

std::optional<MapCell> MapCellAt(const QRectF& place, const QFontMetricsF& metrics, const ChartFigures& chart,
                                 const QPointF& point) {
    const QRectF plot = MapPlot(place.adjusted(0, TitleHeight(metrics), 0, 0), metrics);
    if (chart.Grid.Columns.empty() || !plot.contains(point))
        return std::nullopt;
    const auto columns = static_cast<double>(chart.Grid.Columns.size());
    const auto rows = static_cast<double>(chart.Grid.Rows.size());
    const int column = static_cast<int>((point.x() - plot.left()) / plot.width() * columns);
    const int row = static_cast<int>((plot.bottom() - point.y()) / plot.height() * rows);
    return MapCell{std::clamp(column, 0, static_cast<int>(columns) - 1),
                   std::clamp(row, 0, static_cast<int>(rows) - 1)};
}

} // namespace Ledgrove
