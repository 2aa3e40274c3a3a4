#pragma once

#include "reports/HeaderOptions.h"
#include "reports/windows/PrintOutside.h"
#include "ui/windows/EntryDialog.h"

class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;

namespace Ledgrove {

/// The objects that the report's windows work on.
struct ReportDesk {
    Session& State;
    Host& Outside;
    const PrintOutside& Machine;
};

/// The report header's dialog: builder or partner name, home buyer, and the logo at the top right.
class FrmPrintOptions : public EntryDialog {
    Q_OBJECT

public:
    /// Shows the filled record. The record and `desk`'s members must outlive the dialog.
    FrmPrintOptions(HeaderOptions& record, const ReportDesk& desk, QWidget* parent = nullptr);

    void accept() override;

private:
    void BuildControls();
    QGroupBox* MakeHeaderGroup();
    void AddNames(QGridLayout& grid);
    void AddLogo(QGridLayout& grid);
    void Bind(const char* control, Field& field);
    void ShowLogo();
    void ChooseLogoFile();

    HeaderOptions& m_record;
    const PrintOutside& m_machine;
    QComboBox* m_choice = nullptr;
    QLabel* m_picture = nullptr;
};

} // namespace Ledgrove
