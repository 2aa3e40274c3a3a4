#pragma once

#include <span>

#include "ui/HouseScenarios.h"
#include "ui/windows/EntryDialog.h"

class QListView;

namespace Ledgrove {

class HouseListModel;

/// The saved house scenarios: list, view mode and edit mode. Both ways to close it save the list. A double
/// click or Enter in the list chooses a house, as OK does.
class frmHomeSelection : public EntryDialog {
    Q_OBJECT

public:
    /// Shows the opened record. The record, `session` and `outside` must outlive the dialog.
    frmHomeSelection(HouseScenarios& record, Session& session, Host& outside, QWidget* parent = nullptr);

    void Refresh() override;
    void accept() override;
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    using ControlNames = std::span<const char* const>;
    using Action = void (frmHomeSelection::*)();

    void BuildControls();
    QLayout* MakeHouses();
    QLayout* MakeAmounts();
    QPushButton* MakeAction(const char* control, const QString& caption, Action action);
    void ConnectList();
    void BindFields();

    void Add();
    void Edit();
    void DoneEdit();
    void CancelEdit();
    void Delete();

    void ShowSelection();
    void ShowMode();
    void SwitchMode(ControlNames opening, ControlNames closing);

    HouseScenarios& m_record;
    HouseListModel* m_houses;
    QListView* m_list = nullptr;
};

} // namespace Ledgrove
