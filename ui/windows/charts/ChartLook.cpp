#include "ui/windows/charts/ChartLook.h"

#include <QAbstractAxis>
#include <QLegend>
#include <array>

namespace Ledgrove {

namespace {

// From dark to light, with a lightness of about 25, 43, 63, 79 and 90 percent.
const std::array<QColor, 5> fills{QColor(0x17, 0x40, 0x4f), QColor(0x2f, 0x6f, 0x83),
                                  QColor(0x6e, 0xa3, 0xb3), QColor(0xa9, 0xcc, 0xd6),
                                  QColor(0xff, 0xe2, 0xa0)};

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < 128;
}

QColor Faint(const QPalette& palette) {
    QColor colour = palette.color(QPalette::Text);
    colour.setAlphaF(0.2F);
    return colour;
}

} // namespace

QBrush SeriesFill(int index, int count) {
    if (count == 2)
        return fills[index == 0 ? 1 : 3];
    const auto place = static_cast<std::size_t>(index);
    return place < fills.size() ? QBrush(fills[place]) : QBrush(QColor(0x3a, 0x8f, 0x3e), Qt::BDiagPattern);
}

QPen SeriesOutline(const QPalette& palette) {
    return QPen(palette.color(QPalette::Text), 0.8);
}

QPen SavingsPen(const QPalette& palette) {
    return QPen(IsDark(palette) ? fills[3] : fills[1], 2.5);
}

void ApplyLook(QChart& chart, const QPalette& palette, const QFont& font) {
    const QColor text = palette.color(QPalette::Text);
    chart.setTitleBrush(text);
    QFont title = font;
    title.setBold(true);
    chart.setTitleFont(title);
    chart.legend()->setLabelColor(text);
    chart.legend()->setFont(font);
    for (QAbstractAxis* axis : chart.axes()) {
        axis->setLabelsFont(font);
        axis->setLabelsBrush(text);
        axis->setLinePen(QPen(text, 0.8));
        axis->setGridLinePen(QPen(Faint(palette), 0.8));
    }
}

} // namespace Ledgrove
