#include "reports/windows/StatusLines.h"

#include <QPainter>
#include <QStyle>

namespace Ledgrove {

StatusLines::StatusLines(int lines, QWidget* parent)
    : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setMinimumHeight(lines * fontMetrics().lineSpacing());
}

QStringList StatusLines::ShownLines() const {
    QStringList lines = text().split('\n');
    for (QString& line : lines)
        line = fontMetrics().elidedText(line, Qt::ElideMiddle, contentsRect().width());
    return lines;
}

void StatusLines::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
                          palette(), isEnabled(), ShownLines().join('\n'), foregroundRole());
}

} // namespace Ledgrove
