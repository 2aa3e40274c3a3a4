#pragma once

#include "ui/OptionsScreen.h"
#include "ui/windows/EntryDialog.h"

namespace Ledgrove {

/// The dialog for the two additional features of the More Home tab.
class frmOptions : public EntryDialog {
    Q_OBJECT

public:
    /// Shows the filled record. The record, `session` and `outside` must outlive the dialog.
    frmOptions(OptionsScreen& record, Session& session, Host& outside, QWidget* parent = nullptr);

    void accept() override;

private:
    void BuildControls();
    void BindFields();

    OptionsScreen& m_record;
};

} // namespace Ledgrove
