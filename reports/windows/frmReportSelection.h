#pragma once

#include "reports/modPrint.h"
#include "reports/windows/PrintOutside.h"
#include "ui/windows/EntryDialog.h"

namespace Ledgrove {

/// Asks which sections of the report to print, beginning with those of the last preview; opens the report
/// header's dialog and the preview.
class frmReportSelection : public EntryDialog {
    Q_OBJECT

public:
    /// `session`, `outside` and `machine` must outlive the dialog.
    frmReportSelection(Session& session, Host& outside, const PrintOutside& machine,
                       QWidget* parent = nullptr);

    /// The sections whose boxes are ticked.
    ReportSections Sections() const;

protected:
    /// Enter previews, except on another button.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Tick(const ReportSections& sections);
    void BuildControls();
    QWidget* MakeBoxes();
    QLayout* MakeButtons();
    void OpenHeaderOptions();
    void Preview();

    const PrintOutside& m_machine;
};

} // namespace Ledgrove
