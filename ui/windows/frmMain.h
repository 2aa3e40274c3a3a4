#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

#include "ui/windows/ChartPlace.h"
#include "ui/windows/FormFocus.h"
#include "ui/windows/HelpPrinter.h"
#include "ui/windows/HelpWindow.h"
#include "ui/windows/QtHost.h"
#include "ui/windows/RecordShow.h"

class QPushButton;

namespace Ledgrove {

class MainBinding;
class WelcomeHint;

/// What the main window opens and shows that comes from elsewhere. An empty dialog leaves its button
/// disabled.
struct MainActions {
    std::function<void()> Houses;
    std::function<void()> Assumptions;
    std::function<void()> Options;
    std::function<void()> Print;
    std::function<void(const QTextDocument&, QWidget& above)> PrintHelp;
    std::function<void()> OpenSample;    ///< fills in a sample comparison, where there is one
    std::function<ChartSource()> Charts; ///< without it there are none
    FileQuestions Questions;             ///< asked where a chart is saved
};

/// The main window: a view of the session's screen record. Events go to the rules, and what the rules wrote
/// is shown again.
class frmMain : public QMainWindow, public HelpPrinter {
    Q_OBJECT

public:
    /// Shows the screen as it stands; loading it is done before. `session` and `outside` must outlive the
    /// window.
    frmMain(Session& session, Host& outside, MainActions actions = {}, QWidget* parent = nullptr);
    ~frmMain() override;

    /// Shows the record again after it was changed elsewhere.
    void Refresh();

    /// Takes what is being typed into the focused field as leaving it would. False when it was refused.
    bool CommitEntry();

    void PrintHelp(const QTextDocument& document, QWidget& above) override;

signals:
    /// The record was shown again: any of its texts may have changed.
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
    void GoTo(const QString& control);
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
    std::unique_ptr<MainBinding> m_binding;
    QList<ChartPlace*> m_charts;
    WelcomeHint* m_hint = nullptr;
    bool m_painted = false;
    Help m_help;
};

} // namespace Ledgrove
