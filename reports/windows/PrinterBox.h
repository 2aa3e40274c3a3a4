#pragma once

#include <QComboBox>

namespace Ledgrove {

/// The pick list of printers. A name that is too long is elided in the middle, because names of the same kind
/// differ at their ends; its tool tip shows all of it.
class PrinterBox : public QComboBox {
    Q_OBJECT

public:
    explicit PrinterBox(QWidget* parent = nullptr);

    /// Replaces the items without reporting a change.
    void SetPrinters(const QStringList& names, int chosen);

    void showPopup() override;

signals:
    /// The user opens the list, which is not shown yet.
    void Opening();

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A tool tip that shows the text as it is, also if it looks like HTML.
QString PlainToolTip(const QString& text);

} // namespace Ledgrove
