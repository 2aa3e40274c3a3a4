#pragma once

#include "ui/AssumptionsScreen.h"
#include "ui/windows/EntryDialog.h"

namespace Ledgrove {

/// The financial assumptions, qualifying ratios and the income tax rate schedule.
class frmAssumptions : public EntryDialog {
    Q_OBJECT

public:
    /// Shows the filled record. The record, `session` and `outside` must outlive the dialog.
    frmAssumptions(AssumptionsScreen& record, Session& session, Host& outside, QWidget* parent = nullptr);

    void Refresh() override;
    void accept() override;
    void reject() override;

protected:
    bool event(QEvent* event) override;

private:
    void BuildControls();
    void BindTaxRows();
    void BindRates();
    void BindRows();
    void ConnectOptions();

    AssumptionsScreen& m_record;
};

} // namespace Ledgrove
