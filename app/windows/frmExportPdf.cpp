#include "app/windows/frmExportPdf.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include "ui/windows/FormParts.h"
#include "ui/windows/Identify.h"

namespace Ledgrove {

namespace {

template <std::size_t Count>
QComboBox* MakeList(const char* control, const char* description, const std::array<const char*, Count>& items,
                    int chosen) {
    auto* list = new QComboBox;
    IdentifyByDescription(*list, control, description);
    for (const char* item : items)
        list->addItem(item);
    list->setCurrentIndex(chosen);
    return list;
}

} // namespace

frmExportPdf::frmExportPdf(const ReportPaper& paper, Session& session, Host& outside, QWidget* parent)
    : EntryDialog({"frmExportPdf", "Export PDF", "ctxExportPdf"}, session, outside, parent) {
    BuildControls(paper);
    ArrangeButtons();
    Present();
}

ReportPaper frmExportPdf::Paper() const {
    return {static_cast<PaperSize>(m_size->currentIndex()),
            static_cast<PageOrientation>(m_orientation->currentIndex())};
}

void frmExportPdf::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && !qobject_cast<QPushButton*>(focusWidget()))
        accept();
    else
        EntryDialog::keyPressEvent(event);
}

void frmExportPdf::BuildControls(const ReportPaper& paper) {
    m_size = MakeList("cboPaper", "Paper", PaperNames, static_cast<int>(paper.Size));
    m_orientation =
        MakeList("cboOrientation", "Orientation", OrientationNames, static_cast<int>(paper.Orientation));
    QGridLayout* grid = MakeGrid(nullptr);
    grid->addWidget(MakeCaption("&Paper:", m_size), 0, 0);
    grid->addWidget(m_size, 0, 1);
    grid->addWidget(MakeCaption("&Orientation:", m_orientation), 1, 0);
    grid->addWidget(m_orientation, 1, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
    LayOut(grid, MakeButtonRow());
}

void frmExportPdf::ArrangeButtons() {
    auto* ok = findChild<QPushButton*>("bOK");
    ok->setText("O&K"); // Alt+O selects the orientation
    // The frame of the default button shows which one Enter presses.
    for (QPushButton* button : findChildren<QPushButton*>())
        button->setAutoDefault(true);
    ok->setDefault(true);
}

} // namespace Ledgrove
