#pragma once

#include <QPointer>
#include <QWidget>

#include "engine/Host.h"
#include "engine/Session.h"
#include "ui/windows/HelpFile.h"

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace Ledgrove {

class HelpBrowser;
class HelpPrinter;
class HelpSearch;

/// Shows the help file, an HTML document, with history, search, zoom and printing. Its anchors are
/// "ctx<number>" for the help contexts of the main window's tabs, and "ctxHouses", "ctxAssumptions" and so on
/// for the dialogs.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    /// Prints through its nearest parent window that is a HelpPrinter.
    explicit HelpWindow(QWidget* parent);

    /// Opens the file at the topic of this anchor and comes to the front.
    void ShowTopic(const QString& path, const QString& anchor);
    /// Moves above another window. What it shows, its history, zoom and place on the screen stay, and so does
    /// the focus.
    void MoveAbove(QWidget& window);

private:
    void BuildControls();
    QHBoxLayout* MakeButtonRow();
    QPushButton* AddButton(QHBoxLayout& row, const char* control, const QString& caption,
                           void (HelpWindow::*action)());
    void ConnectKeys();
    void OnKey(const QKeySequence& keys, void (HelpWindow::*action)());
    void GiveNaturalSize();

    void GoBack();
    void GoForward();
    void GoToContents();
    void BeginSearch();
    void FindNext();
    void FindPrevious();
    void LeaveSearchOrClose();
    void CloseWindow();
    void Print();
    void ZoomIn();
    void ZoomOut();
    void ResetZoom();
    void StepZoom(int step);

    void ShowHistory();
    void Tell(const QString& words);
    HelpPrinter* Printer() const;

    HelpBrowser* m_browser;
    HelpSearch* m_search;
    QPushButton* m_back = nullptr;
    QPushButton* m_forward = nullptr;
    QPushButton* m_print = nullptr;
    QLabel* m_status;
};

/// The window in front, or the window below the help if that is the help. A dialog opens above this window,
/// because it would block the help as its own parent.
QWidget* ActiveForm();

/// The help of one window. All windows of the program share one help window. While a modal dialog is open,
/// only the windows above it can be used, so the dialog that opens the help borrows it, and returns it when
/// it closes.
class Help {
public:
    /// The help window opens above `owner`. All three arguments must outlive this object.
    Help(QWidget& owner, const Session& session, Host& outside)
        : m_owner(owner)
        , m_session(session)
        , m_outside(outside) {}

    ~Help();
    Help(const Help&) = delete;
    Help& operator=(const Help&) = delete;

    /// Opens the session's help file at the topic of this anchor, or shows why there is no help.
    void Open(const QString& anchor);

private:
    HelpWindow& Window();

    QWidget& m_owner;
    const Session& m_session;
    Host& m_outside;
    QPointer<HelpWindow> m_window;
    QPointer<QWidget> m_lender; ///< the window below the help before `m_owner` borrowed it
};

} // namespace Ledgrove
