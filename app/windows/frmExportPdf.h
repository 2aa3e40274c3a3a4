#pragma once

#include "reports/ReportChoices.h"
#include "ui/windows/EntryDialog.h"

class QComboBox;
class QGridLayout;

namespace Ledgrove {

/// Asks for the paper of a report that is written as PDF.
class frmExportPdf : public EntryDialog {
    Q_OBJECT

public:
    /// Begins with `paper`. `session` and `outside` must outlive the dialog.
    frmExportPdf(const ReportPaper& paper, Session& session, Host& outside, QWidget* parent = nullptr);

    /// The chosen paper.
    ReportPaper Paper() const;

protected:
    /// Enter is OK, except on another button.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void BuildControls(const ReportPaper& paper);
    void ArrangeButtons();

    QComboBox* m_size = nullptr;
    QComboBox* m_orientation = nullptr;
};

} // namespace Ledgrove
