#include "ui/windows/insight/Hatch.h"

#include <algorithm>
#include <cmath>

namespace Ledgrove {

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

} // namespace Ledgrove
