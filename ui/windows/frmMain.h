#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

#include "insight/Sheet.h"
#include "ui/EntryHistory.h"
#include "ui/InsightQuestions.h"
#include "ui/windows/ChartPlace.h"
#include "ui/windows/FormFocus.h"
#include "ui/windows/HelpPrinter.h"
#include "ui/windows/HelpWindow.h"
#include "ui/windows/QtHost.h"
#include "ui/windows/RecordShow.h"

class QPushButton;

namespace Ledgrove {

class DownPaymentKeys;
class MainBinding;
class WelcomeHint;

/// The dialogs, samples and charts that other layers provide. If a dialog's function is empty, its button is
/// disabled.
struct MainActions {
    std::function<void()> Houses;
    std::function<void()> Assumptions;
    std::function<void()> Options;
    std::function<void()> Print;
    std::function<void(const QTextDocument&, QWidget& above)> PrintHelp;
    std::function<void()> OpenSample;    ///< fills in a sample comparison; empty if there is none
    std::function<ChartSource()> Charts; ///< empty: the tabs have no charts
    /// Opens the Insight window with this question; empty: there is none.
    std::function<void(InsightQuestion)> Ask;
    /// Brings an open Insight window to the front as it is, or opens it with this question.
    std::function<void(InsightQuestion)> ShowInsight;
    /// Explains the figure of a label there; empty label: a usual figure.
    std::function<void(const std::string& label)> Explain;
    FileQuestions Questions; ///< asks where to save a chart
};

/// The main window: a view of the session's screen record. It passes events to the rules and then shows the
/// changed record.
class frmMain : public QMainWindow, public HelpPrinter {
    Q_OBJECT

public:
    /// Shows the loaded session. `session` and `outside` must outlive the window.
    frmMain(Session& session, Host& outside, MainActions actions = {}, QWidget* parent = nullptr);
    ~frmMain() override;

    /// Shows the record again after code outside the window changed it.
    void Refresh();

    /// Shows a record whose inputs were replaced as a whole: nothing before it can be undone.
    void ShowAnew();

    /// Enters texts as if they were typed and chosen in this window; one step for Undo. Does nothing if the
    /// field with the focus refuses its own text.
    void Enter(const std::vector<EntryText>& texts);

    /// The session as after the last entry. A text that is being typed, or is refused, is not in it.
    Session Committed() const { return m_history.Committed(m_session); }

    bool CanUndo() const { return m_history.CanUndo(); }
    bool CanRedo() const { return m_history.CanRedo(); }

    /// Commits the text in the focused field as if the user left it. Returns false if the text was refused.
    bool CommitEntry();

    void PrintHelp(const QTextDocument& document, QWidget& above) override;

    /// Opens the help at a topic, such as "ctxInsight".
    void OpenHelpAt(const QString& anchor) { m_help.Open(anchor); }

    /// Goes to where an input is typed, or to the dialog that holds an assumption.
    void GoToSource(const QString& control, const QString& key);

    /// Shows the Insight window. One that is not open asks the question of the shown tab, or "In short".
    void AskInsight();
    bool HasInsight() const { return static_cast<bool>(m_actions.ShowInsight); }

public slots:
    /// Takes back the last entry, or brings it again.
    void Undo();
    void Redo();

signals:
    /// The record was shown again; any of its texts may have changed.
    void Refreshed();
    void Closed();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void BuildControls();
    void ShowPictures();
    void ConnectFields();
    void ConnectPickLists();
    void ConnectOptions();
    void ConnectTabs();
    void ConnectButtons();
    void ConnectCharts();
    void ConnectWelcome();
    void ConnectInsight();
    void GoTo(const QString& control);
    void NoteEntry();
    void GoThroughHistory(void (EntryHistory::*step)(Session&));
    void ConnectAction(const char* button, std::function<void()> action);
    void OpenHelp();
    void OpenHouses();
    void PrintReports();

    Session& m_session;
    RecordShow m_shows;
    RefreshingHost m_host;
    FormFocus m_focus;
    EntryContext m_context;
    MainActions m_actions;
    EntryHistory m_history;
    std::unique_ptr<MainBinding> m_binding;
    QList<ChartPlace*> m_charts;
    WelcomeHint* m_hint = nullptr;
    DownPaymentKeys* m_downPayment = nullptr;
    bool m_painted = false;
    Help m_help;
};

} // namespace Ledgrove
