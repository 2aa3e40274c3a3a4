#include "ui/windows/QuestionLink.h"

#include <QEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <algorithm>

namespace Ledgrove {

QuestionLink::QuestionLink(QWidget* parent)
    : QPushButton(parent) {
    setObjectName("bQuestion");
    setFlat(true);
    setCursor(Qt::PointingHandCursor);
    setToolTip("Opens Insight, which says what the figures mean");
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    TakeLinkColour();
    connect(this, &QPushButton::clicked, this, [this] { emit Asked(m_row->Id); });
    ShowTab(0);
}

void QuestionLink::ShowTab(int tab) {
    m_row = QuestionOfTab(tab);
    setEnabled(m_row);
    if (m_row)
        setText(QString::fromUtf8(m_row->Words.data(), static_cast<qsizetype>(m_row->Words.size())));
    else
        setText({});
}

/// The width does not depend on the tab, so that the tabs do not move.
QSize QuestionLink::sizeHint() const {
    const int line = fontMetrics().height();
    return {m_longest + line, line + 4};
}

/// On the right of its place, whatever the question's length.
void QuestionLink::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::ButtonText));
    const QRect place = rect().adjusted(2, 0, -fontMetrics().height() / 2, -2);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, text());
    if (!hasFocus() || !m_row)
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(QPalette::Window);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void QuestionLink::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        TakeLinkColour();
    else if (event->type() == QEvent::FontChange)
        MeasureQuestions();
}

/// Not in sizeHint, which the tabs ask for some sixty times at the start.
void QuestionLink::MeasureQuestions() {
    m_longest = 0;
    for (const QuestionRow& row : InsightQuestions) {
        if (row.Tab == 0)
            continue;
        const QString words = QString::fromUtf8(row.Words.data(), static_cast<qsizetype>(row.Words.size()));
        m_longest = std::max(m_longest, fontMetrics().horizontalAdvance(words));
    }
    updateGeometry();
}

void QuestionLink::TakeLinkColour() {
    const QColor link = palette().color(QPalette::Link);
    if (palette().color(QPalette::ButtonText) == link)
        return;
    QPalette linked = palette();
    linked.setColor(QPalette::ButtonText, link);
    setPalette(linked);
}

} // namespace Ledgrove
