#include "ui/windows/HeadedGroup.h"

#include <QLayout>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

namespace Ledgrove {

void HeadedGroup::paintEvent(QPaintEvent*) {
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    QRect heading = style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
    // The heading begins where the captions below it begin.
    heading.setLeft(layout() ? layout()->contentsRect().left() : contentsRect().left());
    heading.setRight(rect().right());
    QStylePainter painter(this);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.drawItemText(heading, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), title().trimmed(),
                         QPalette::WindowText);
}

} // namespace Ledgrove
