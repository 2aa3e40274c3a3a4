#include "ui/windows/TightForm.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <algorithm>

namespace Ledgrove {

namespace {

void TightenMargins(QLayout& layout, Qt::Orientation direction) {
    QMargins margins = layout.contentsMargins();
    if (direction == Qt::Horizontal) {
        margins.setLeft(margins.left() / 2);
        margins.setRight(margins.right() / 2);
    } else {
        margins.setTop(margins.top() / 2);
        margins.setBottom(margins.bottom() / 2);
    }
    layout.setContentsMargins(margins);
}

void TightenGrid(QGridLayout& grid, Qt::Orientation direction) {
    if (direction == Qt::Vertical)
        return grid.setVerticalSpacing(grid.verticalSpacing() / 2);
    grid.setHorizontalSpacing(grid.horizontalSpacing() / 2);
    for (int column = 0; column < grid.columnCount(); ++column)
        grid.setColumnMinimumWidth(column, grid.columnMinimumWidth(column) / 2);
}

void TightenBox(QBoxLayout& box, Qt::Orientation direction) {
    const bool isRow =
        box.direction() == QBoxLayout::LeftToRight || box.direction() == QBoxLayout::RightToLeft;
    if (isRow == (direction == Qt::Horizontal))
        box.setSpacing(box.spacing() / 2);
}

/// Lets a control become this narrow; a control that may be narrower stays so.
void AllowWidth(QWidget& control, int width) {
    const int now = control.minimumWidth() > 0 ? control.minimumWidth() : control.minimumSizeHint().width();
    control.setMinimumWidth(std::min(now, width));
}

} // namespace

void Tighten(QWidget& form, Qt::Orientation direction) {
    for (QLayout* layout : form.findChildren<QLayout*>()) {
        TightenMargins(*layout, direction);
        if (auto* grid = qobject_cast<QGridLayout*>(layout))
            TightenGrid(*grid, direction);
        else if (auto* box = qobject_cast<QBoxLayout*>(layout))
            TightenBox(*box, direction);
    }
    if (direction == Qt::Horizontal) {
        const int figure = form.fontMetrics().horizontalAdvance("$888,888") + 20;
        for (QLineEdit* field : form.findChildren<QLineEdit*>())
            AllowWidth(*field, figure);
        for (QComboBox* list : form.findChildren<QComboBox*>())
            AllowWidth(*list, 3 * figure / 2);
    }
    // Layouts keep the sizes of what is in them, and learn of a change only while they are shown.
    for (QLayout* layout : form.findChildren<QLayout*>())
        layout->invalidate();
    for (QWidget* part : form.findChildren<QWidget*>())
        part->updateGeometry();
}

} // namespace Ledgrove
