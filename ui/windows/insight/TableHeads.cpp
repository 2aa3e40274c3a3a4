#include "ui/windows/insight/TableHeads.h"

#include <QStyleOptionHeader>
#include <algorithm>

namespace Ledgrove {

namespace {

/// The width of the text in two lines, broken where the longer line is shortest.
int WidthInTwoLines(const QString& text, const QFontMetrics& metrics) {
    int least = metrics.horizontalAdvance(text);
    for (qsizetype blank = text.indexOf(' '); blank >= 0; blank = text.indexOf(' ', blank + 1))
        least = std::min(least, std::max(metrics.horizontalAdvance(text.left(blank)),
                                         metrics.horizontalAdvance(text.mid(blank + 1))));
    return least;
}

} // namespace

TableHeads::TableHeads(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(true);
}

void TableHeads::SetBreaking(bool isBreaking) {
    if (m_isBreaking == isBreaking)
        return;
    m_isBreaking = isBreaking;
    // The height is kept until a head changes.
    if (count() > 0)
        headerDataChanged(Qt::Horizontal, 0, count() - 1);
}

QSize TableHeads::sectionSizeFromContents(int section) const {
    const QSize whole = QHeaderView::sectionSizeFromContents(section);
    const QString text = model()->headerData(section, Qt::Horizontal).toString();
    const int saved =
        m_isBreaking ? fontMetrics().horizontalAdvance(text) - WidthInTwoLines(text, fontMetrics()) : 0;
    // A width of fractions of a pixel is rounded when the text is painted.
    return saved > 1 ? QSize(whole.width() - saved + 1, whole.height() + fontMetrics().lineSpacing()) : whole;
}

void TableHeads::initStyleOptionForIndex(QStyleOptionHeader* option, int section) const {
    QHeaderView::initStyleOptionForIndex(option, section);
    if (m_isBreaking)
        option->textAlignment =
            Qt::Alignment::fromInt(static_cast<Qt::Alignment::Int>(option->textAlignment) | Qt::TextWordWrap);
}

} // namespace Ledgrove
