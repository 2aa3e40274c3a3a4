#include "reports/windows/PrinterBox.h"

#include <QAbstractItemView>
#include <QSignalBlocker>
#include <QStylePainter>
#include <QTextDocument>

namespace Ledgrove {

PrinterBox::PrinterBox(QWidget* parent)
    : QComboBox(parent) {
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    view()->setTextElideMode(Qt::ElideMiddle);
}

void PrinterBox::SetPrinters(const QStringList& names, int chosen) {
    const QSignalBlocker nothingChosen(*this);
    clear();
    for (int i = 0; i < names.size(); ++i) {
        addItem(names[i]);
        setItemData(i, PlainToolTip(names[i]), Qt::ToolTipRole);
    }
    setCurrentIndex(chosen);
}

void PrinterBox::showPopup() {
    emit Opening();
    QComboBox::showPopup();
}

void PrinterBox::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect text =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    constexpr int styleMargin = 2; // styles keep one pixel on both sides
    option.currentText =
        fontMetrics().elidedText(option.currentText, Qt::ElideMiddle, text.width() - styleMargin);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

QString PlainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace Ledgrove
