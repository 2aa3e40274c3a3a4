#include "ui/windows/HeadedGroup.h"

#include <QLayout>
#include <QStyleOptionGroupBox>
#include <QStylePainter>
#include <algorithm>

namespace Ledgrove {

namespace {

/// Where the leftmost control of the group begins; some styles put room around a layout's controls.
int LeftOfControls(const QWidget& group) {
    int left = group.width();
    for (int i = 0; group.layout() && i < group.layout()->count(); ++i) {
        // A hidden control has no place.
        if (const QLayoutItem* item = group.layout()->itemAt(i); !item->isEmpty())
            left = std::min(left, item->geometry().left());
    }
    return left < group.width() ? left : group.contentsRect().left();
}

} // namespace

void HeadedGroup::paintEvent(QPaintEvent*) {
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    QRect heading = style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
    heading.setLeft(LeftOfControls(*this));
    heading.setRight(rect().right());
    QStylePainter painter(this);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.drawItemText(heading, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), title().trimmed(),
                         QPalette::WindowText);
}

} // namespace Ledgrove
