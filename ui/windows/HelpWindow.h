#pragma once

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

/// The help of one window.
class Help {
public:
    /// The help window opens above `owner` and closes with it. All three arguments must outlive this object.
    Help(QWidget& owner, const Session& session, Host& outside)
        : m_owner(owner)
        , m_session(session)
        , m_outside(outside) {}

    /// Opens the session's help file at the topic of this anchor, or shows why there is no help.
    void Open(const QString& anchor);

private:
    QWidget& m_owner;
    const Session& m_session;
    Host& m_outside;
    HelpWindow* m_window = nullptr;
};

} // namespace Ledgrove
