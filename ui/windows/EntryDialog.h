#pragma once

#include <QDialog>
#include <functional>
#include <optional>

#include "settings/SettingsFault.h"
#include "ui/windows/FormFocus.h"
#include "ui/windows/HelpWindow.h"
#include "ui/windows/QtHost.h"
#include "ui/windows/StandardEntry.h"

class QLayout;
class QPushButton;

namespace Ledgrove {

struct DialogIdentity {
    const char* Name; ///< object name
    const char* Title;
    const char* HelpAnchor;
};

/// A modal dialog of entry fields with OK, Cancel and Help, which shows a record. OK accepts; Cancel, Escape
/// and the window's close button reject.
class EntryDialog : public QDialog {
    Q_OBJECT

public:
    /// Shows the record again after a rule changed it.
    virtual void Refresh();

protected:
    /// `session` and `outside` must outlive the dialog.
    EntryDialog(const DialogIdentity& identity, Session& session, Host& outside, QWidget* parent);

    void keyPressEvent(QKeyEvent* event) override;

    /// Puts the controls of `form`, which scroll on a small screen, above the row of buttons, which stays in
    /// view.
    void LayOut(QLayout* form, QLayout* buttons);
    /// The row of buttons `bOK`, `bCancel` and `bHelp`, already connected.
    QLayout* MakeButtonRow();
    void OnClick(QPushButton& button, std::function<void()> action);

    /// Binds the control with this name to `field`, with the handlers that most fields use.
    void BindField(const QString& control, Field& field, const EntryTypes& types);
    void BindField(const QString& control, Field& field, EntryEvents events);
    EntryEvents StandardEvents(Field& field, const EntryTypes& types);

    /// A constructor calls this last, after it has built and bound all controls.
    void Present();

    /// Returns true if there is no fault. Otherwise shows the fault, and the dialog stays open.
    bool Succeeded(const std::optional<SettingsFault>& fault);

    Session& State() { return m_context.State; }
    Host& Outside() { return m_host; }
    EntryContext& Context() { return m_context; }
    RecordShow& Shows() { return m_shows; }

private:
    /// Presses the button with the focus, or moves on from an option, a check box or a list. A field without
    /// a rule for Enter ignores it.
    void TakeEnter();
    void SendHelpKey();

    RecordShow m_shows;
    RefreshingHost m_host;
    FormFocus m_focus;
    EntryContext m_context;
    Help m_help;
    QString m_helpAnchor;
};

} // namespace Ledgrove
