#pragma once

#include <QImage>
#include <QWidget>

class QComboBox;
class QGridLayout;
class QLabel;

namespace Ledgrove {

class PrinterBox;
class StatusLines;

/// The controls above the preview: emblem, printer with its details, orientation with the paper's size.
class PreviewHeader : public QWidget {
    Q_OBJECT

public:
    explicit PreviewHeader(const QImage& emblem, QWidget* parent = nullptr);

    PrinterBox& Printers() { return *m_printers; }
    QComboBox& Orientations() { return *m_orientations; }

    void ShowSize(const QString& size);
    /// The lines about the chosen printer.
    void ShowStatus(const QString& lines);

    /// Compact, it is one row without the emblem and the printer's details, which then are a tool tip of the
    /// pick list.
    void SetCompact(bool compact);

private:
    void Arrange();
    void ShowToolTips();

    PrinterBox* m_printers;
    QComboBox* m_orientations;
    QLabel* m_emblem;
    QLabel* m_printerCaption;
    QLabel* m_orientationCaption;
    QLabel* m_size;
    StatusLines* m_status;
    QGridLayout* m_grid;
    bool m_compact = false;
};

} // namespace Ledgrove
