#include "reports/windows/PreviewHeader.h"

#include "reports/windows/FittedPicture.h"
#include "reports/windows/PrinterBox.h"
#include "reports/windows/StatusLines.h"
#include "ui/windows/FormParts.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

#include <QGridLayout>

namespace Ledgrove {

namespace {

constexpr int statusLines = 3;
constexpr int usualNameLength = 28;
constexpr int shortestNameLength = 14;

QLabel* MakeEmblem(const QImage& emblem) {
    auto* label = new QLabel;
    Identify(*label, "imgHdr", "Ledgrove");
    label->setFixedSize(64, 56);
    label->setAlignment(Qt::AlignCenter);
    ShowFitted(*label, emblem);
    return label;
}

} // namespace

PreviewHeader::PreviewHeader(const QImage& emblem, QWidget* parent)
    : QWidget(parent)
    , m_printers(new PrinterBox)
    , m_orientations(new QComboBox)
    , m_emblem(MakeEmblem(emblem))
    , m_printerCaption(MakeCaption("P&rinter:", m_printers))
    , m_orientationCaption(MakeCaption("&Orientation:", m_orientations))
    , m_size(TextLabel({}))
    , m_status(new StatusLines(statusLines))
    , m_grid(MakeGrid(this)) {
    IdentifyByDescription(*m_printers, "cboPrinter", "Printer");
    IdentifyByDescription(*m_orientations, "cboOrientation", "Orientation");
    IdentifyByDescription(*m_size, "lblSize", "Paper size in inches, width by height");
    IdentifyByDescription(*m_status, "lblStatus", "Printer details");
    m_printers->setMinimumContentsLength(usualNameLength);
    m_printers->setMinimumWidth(m_printers->fontMetrics().averageCharWidth() * shortestNameLength);
    m_grid->setContentsMargins(0, 0, 0, 0);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    Arrange();
}

void PreviewHeader::ShowSize(const QString& size) {
    m_size->setText(size);
}

void PreviewHeader::ShowStatus(const QString& lines) {
    m_status->setText(lines);
    ShowToolTips();
}

void PreviewHeader::SetCompact(bool compact) {
    if (m_compact == compact)
        return;
    m_compact = compact;
    Arrange();
}

void PreviewHeader::Arrange() {
    for (QWidget* part : QList<QWidget*>{m_emblem, m_printerCaption, m_printers, m_orientationCaption,
                                         m_orientations, m_size, m_status})
        m_grid->removeWidget(part);
    const int row = m_compact ? 0 : 1;
    const int column = m_compact ? 4 : 1; // of the orientation
    m_grid->addWidget(m_emblem, 0, 0, 2, 1);
    m_grid->addWidget(m_printerCaption, 0, 1);
    m_grid->addWidget(m_printers, 0, 2, 1, 2);
    m_grid->addWidget(m_orientationCaption, row, column);
    m_grid->addWidget(m_orientations, row, column + 1);
    m_grid->addWidget(m_size, row, column + 2);
    m_grid->addWidget(m_status, 0, 7, 2, 1, Qt::AlignVCenter);
    m_grid->setColumnStretch(7, 1);
    m_emblem->setVisible(!m_compact);
    m_status->setVisible(!m_compact);
    ShowToolTips();
}

void PreviewHeader::ShowToolTips() {
    m_status->setToolTip(PlainToolTip(m_status->text()));
    const QString name = m_printers->currentText();
    m_printers->setToolTip(PlainToolTip(m_compact ? name + '\n' + m_status->text() : name));
}

} // namespace Ledgrove
