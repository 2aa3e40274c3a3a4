#include "ui/windows/insight/FlowLayout.h"

#include <algorithm>

namespace Ledgrove {

FlowLayout::FlowLayout(QWidget* parent)
    : QLayout(parent) {}

FlowLayout::~FlowLayout() {
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem* item) {
    m_items.append(item);
}

QLayoutItem* FlowLayout::takeAt(int index) {
    return index >= 0 && index < count() ? m_items.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const {
    return Arrange({0, 0, width, 0}, false);
}

QSize FlowLayout::sizeHint() const {
    int width = 0;
    for (const QLayoutItem* item : m_items)
        width += item->isEmpty() ? 0 : item->sizeHint().width() + std::max(spacing(), 0);
    return {width, heightForWidth(width)};
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const QLayoutItem* item : m_items)
        size = size.expandedTo(item->isEmpty() ? QSize() : item->minimumSize());
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect& place) {
    QLayout::setGeometry(place);
    Arrange(place, true);
}

int FlowLayout::Arrange(const QRect& place, bool moves) const {
    const QRect room = place.marginsRemoved(contentsMargins());
    const int gap = std::max(spacing(), 0);
    int left = room.left();
    int top = room.top();
    int rowHeight = 0;
    for (QLayoutItem* item : m_items) {
        if (item->isEmpty())
            continue;
        const int width = std::min(item->sizeHint().width(), room.width());
        const int height =
            item->hasHeightForWidth() ? item->heightForWidth(width) : item->sizeHint().height();
        if (left > room.left() && left + width > room.right() + 1) {
            left = room.left();
            top += rowHeight + gap / 2;
            rowHeight = 0;
        }
        if (moves)
            item->setGeometry({left, top, width, height});
        left += width + gap;
        rowHeight = std::max(rowHeight, height);
    }
    return top + rowHeight - place.top() + contentsMargins().bottom();
}

} // namespace Ledgrove
