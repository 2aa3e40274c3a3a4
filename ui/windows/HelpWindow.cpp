#include "ui/windows/HelpWindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "ui/windows/BringToFront.h"
#include "ui/windows/FormParts.h"
#include "ui/windows/HelpBrowser.h"
#include "ui/windows/HelpPrinter.h"
#include "ui/windows/HelpSearch.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"
#include "ui/windows/QtHost.h"

namespace Ledgrove {

namespace {

constexpr std::array zooms{50, 67, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300};

/// The next zoom up or down; stops at the ends.
int SteppedZoom(int percent, int step) {
    const auto here = std::find(zooms.begin(), zooms.end(), percent) - zooms.begin();
    const auto last = static_cast<std::ptrdiff_t>(zooms.size()) - 1;
    return zooms[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(here + step, 0, last))];
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_browser(new HelpBrowser)
    , m_search(new HelpSearch(*m_browser))
    , m_status(new ElidedLabel) {
    setObjectName("HelpWindow");
    setWindowTitle("Ledgrove Help");
    BuildControls();
    ConnectKeys();
    connect(m_browser, &QTextBrowser::historyChanged, this, &HelpWindow::ShowHistory);
    connect(m_browser, &HelpBrowser::ZoomStepped, this, &HelpWindow::StepZoom);
    connect(m_browser, &HelpBrowser::LinkRefused, this, [this](const QString& address) {
        Tell("Not opened, because it is outside the help: " + address);
    });
    ShowHistory();
    GiveNaturalSize();
}

void HelpWindow::ShowTopic(const QString& path, const QString& anchor) {
    const bool found = m_browser->ShowTopic(path, anchor);
    Tell(found ? QString() : "This help file has no topic for that. This is its start.");
    const bool printable = Printer() != nullptr;
    m_print->setEnabled(printable);
    m_print->setToolTip(printable ? QString() : "Printing is not available here");
    BringToFront(*this);
    m_browser->setFocus();
}

void HelpWindow::MoveAbove(QWidget& window) {
    const bool wasShown = isVisible();
    const QPoint place = pos();
    setParent(&window, windowFlags()); // hides it
    move(place);
    if (!wasShown)
        return;
    setAttribute(Qt::WA_ShowWithoutActivating);
    show();
    setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void HelpWindow::BuildControls() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);
    layout->addLayout(MakeButtonRow());
    layout->addWidget(m_search);
    layout->addWidget(m_browser, 1);
    IdentifyByDescription(*m_status, "lblHelpStatus", "Status");
    layout->addWidget(m_status);
    m_status->hide();
}

QHBoxLayout* HelpWindow::MakeButtonRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    m_back = AddButton(*row, "bBack", "&Back", &HelpWindow::GoBack);
    m_forward = AddButton(*row, "bForward", "&Forward", &HelpWindow::GoForward);
    AddButton(*row, "bContents", "&Contents", &HelpWindow::GoToContents);
    row->addStretch();
    m_print = AddButton(*row, "bPrintHelp", "&Print\u2026", &HelpWindow::Print);
    return row;
}

QPushButton* HelpWindow::AddButton(QHBoxLayout& row, const char* control, const QString& caption,
                                   void (HelpWindow::*action)()) {
    QPushButton* button = MakeButton(control, caption);
    // Enter presses the button with the focus, as in the other windows.
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, action);
    row.addWidget(button);
    return button;
}

void HelpWindow::ConnectKeys() {
    OnKey(QKeySequence::Back, &HelpWindow::GoBack);
    OnKey(QKeySequence::Forward, &HelpWindow::GoForward);
    OnKey(Qt::ALT | Qt::Key_Home, &HelpWindow::GoToContents);
    OnKey(Qt::CTRL | Qt::Key_F, &HelpWindow::BeginSearch);
    OnKey(Qt::Key_F3, &HelpWindow::FindNext);
    OnKey(Qt::SHIFT | Qt::Key_F3, &HelpWindow::FindPrevious);
    OnKey(Qt::Key_Escape, &HelpWindow::LeaveSearchOrClose);
    OnKey(Qt::CTRL | Qt::Key_W, &HelpWindow::CloseWindow);
    OnKey(Qt::CTRL | Qt::Key_P, &HelpWindow::Print);
    // Works whether or not the keyboard has "+" on a shifted key.
    OnKey(Qt::CTRL | Qt::Key_Plus, &HelpWindow::ZoomIn);
    OnKey(Qt::CTRL | Qt::Key_Equal, &HelpWindow::ZoomIn);
    OnKey(Qt::CTRL | Qt::Key_Minus, &HelpWindow::ZoomOut);
    OnKey(Qt::CTRL | Qt::Key_0, &HelpWindow::ResetZoom);
}

void HelpWindow::OnKey(const QKeySequence& keys, void (HelpWindow::*action)()) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
}

void HelpWindow::GiveNaturalSize() {
    const QSize room = screen()->availableGeometry().size();
    const QSize natural(fontMetrics().averageCharWidth() * 110, fontMetrics().lineSpacing() * 40);
    resize(natural.boundedTo(room * 9 / 10));
}

void HelpWindow::GoBack() {
    m_browser->backward();
}

void HelpWindow::GoForward() {
    m_browser->forward();
}

void HelpWindow::GoToContents() {
    m_browser->ShowContents();
}

void HelpWindow::BeginSearch() {
    m_search->Begin();
}

void HelpWindow::FindNext() {
    m_search->Step(1);
}

void HelpWindow::FindPrevious() {
    m_search->Step(-1);
}

void HelpWindow::LeaveSearchOrClose() {
    if (m_search->IsEmpty())
        return CloseWindow();
    m_search->Clear();
    m_browser->setFocus();
}

void HelpWindow::CloseWindow() {
    close();
}

void HelpWindow::Print() {
    if (HelpPrinter* printer = Printer())
        printer->PrintHelp(*m_browser->document(), *this);
}

void HelpWindow::ZoomIn() {
    StepZoom(1);
}

void HelpWindow::ZoomOut() {
    StepZoom(-1);
}

void HelpWindow::ResetZoom() {
    m_browser->SetZoom(100);
    Tell("Zoom 100 %");
}

void HelpWindow::StepZoom(int step) {
    m_browser->SetZoom(SteppedZoom(m_browser->Zoom(), step));
    Tell(QString("Zoom %1 %").arg(m_browser->Zoom()));
}

void HelpWindow::ShowHistory() {
    for (const auto& [button, possible] : {std::pair{m_back, m_browser->isBackwardAvailable()},
                                           std::pair{m_forward, m_browser->isForwardAvailable()}}) {
        // If the pressed button becomes disabled, the focus moves to the text.
        if (!possible && button->hasFocus())
            m_browser->setFocus();
        button->setEnabled(possible);
    }
    Tell({});
}

void HelpWindow::Tell(const QString& words) {
    m_status->setText(words);
    m_status->setVisible(!words.isEmpty());
}

HelpPrinter* HelpWindow::Printer() const {
    for (QWidget* above = parentWidget(); above; above = above->parentWidget()) {
        if (auto* printer = dynamic_cast<HelpPrinter*>(above))
            return printer;
    }
    return nullptr;
}

QWidget* ActiveForm() {
    QWidget* active = FrontWindow();
    while (qobject_cast<HelpWindow*>(active))
        active = active->parentWidget();
    return active;
}

void Help::Open(const QString& anchor) {
    if (const auto complaint = HelpComplaint(m_session.Folder, m_session.HelpFile)) {
        m_outside.ShowMessage({ApplicationTitle, *complaint, MessageIcon::Exclamation});
        return;
    }
    Window().ShowTopic(HelpFilePath(m_session.Folder, m_session.HelpFile), anchor);
}

Help::~Help() {
    if (m_window && m_lender && m_window->parentWidget() == &m_owner)
        m_window->MoveAbove(*m_lender);
}

HelpWindow& Help::Window() {
    QWidget* lowest = &m_owner;
    while (lowest->parentWidget())
        lowest = lowest->parentWidget();
    m_window = lowest->findChild<HelpWindow*>();
    if (!m_window)
        m_window = new HelpWindow(lowest);
    if (m_window->parentWidget() != &m_owner) {
        m_lender = m_window->parentWidget();
        m_window->MoveAbove(m_owner);
    }
    return *m_window;
}

} // namespace Ledgrove
