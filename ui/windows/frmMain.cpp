#include "ui/windows/frmMain.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "engine/Recalculate.h"
#include "ui/DataCheck.h"
#include "ui/MainScreenRules.h"
#include "ui/TextEntry.h"
#include "ui/windows/Binding.h"
#include "ui/windows/BringToFront.h"
#include "ui/windows/DownPaymentKeys.h"
#include "ui/windows/EntryField.h"
#include "ui/windows/FigureMark.h"
#include "ui/windows/FormGuard.h"
#include "ui/windows/MainInputs.h"
#include "ui/windows/MainKeys.h"
#include "ui/windows/Pictures.h"
#include "ui/windows/QuestionLink.h"
#include "ui/windows/ResultPanels.h"
#include "ui/windows/ScrolledForm.h"
#include "ui/windows/StandardEntry.h"
#include "ui/windows/WelcomeHint.h"
#include "ui/windows/WindowPlace.h"

namespace Ledgrove {

namespace {

/// The inputs above the tabs. The layout counts the tabs with their smallest height; the natural size does
/// not.
class MainForm : public ScrolledForm {
public:
    using ScrolledForm::ScrolledForm;
    QSize sizeHint() const override {
        const QLayout& layout = *widget()->layout();
        const QMargins margins = layout.contentsMargins();
        const int width = layout.sizeHint().width();
        const int inputs = findChild<MainInputs*>()->sizeHint().height();
        const int tabs = findChild<ResultPanels*>()->NaturalHeight(width - margins.left() - margins.right());
        return {width, margins.top() + inputs + layout.spacing() + tabs + margins.bottom()};
    }
};

} // namespace

frmMain::frmMain(Session& session, Host& outside, MainActions actions, QWidget* parent)
    : QMainWindow(parent)
    , m_session(session)
    , m_shows([this] {
        NoteEntry();
        Refresh();
    })
    , m_host(outside, [this] { Refresh(); })
    , m_focus(*this)
    , m_context{session, m_host, m_focus}
    , m_actions(std::move(actions))
    , m_help(*this, session, m_host) {
    setObjectName("frmMain");
    setWindowTitle(ApplicationTitle);
    BuildControls();
    ConnectFields();
    ConnectPickLists();
    ConnectOptions();
    ConnectTabs();
    ConnectButtons();
    ConnectCharts();
    ConnectWelcome();
    ConnectInsight();
    new FormGuard(*this);
    new MainKeys(*this, m_focus, [this] { OpenHelp(); });
    m_binding = std::make_unique<MainBinding>(m_session.Screen, *this);
    m_downPayment = new DownPaymentKeys(m_session.Screen, *this);
    ShowAnew();
    // The menu bar's actions come after the window is shown.
    CentreOnScreen(*this, fontMetrics().height() + 8);
}

frmMain::~frmMain() = default;

void frmMain::Refresh() {
    m_binding->Refresh();
    m_downPayment->Refresh();
    for (ChartPlace* chart : m_charts)
        chart->Refresh();
    m_hint->Refresh();
    emit Refreshed();
}

/// Not while a message is shown: more texts of the same entry may follow it, or the field may refuse its own.
void frmMain::NoteEntry() {
    const auto* field = qobject_cast<EntryField*>(focusWidget());
    const bool isOpen = field && (field->isModified() ||
                                  Module1::IsRefused(m_session.Screen, field->objectName().toStdString()));
    if (!isOpen)
        m_history.Note(m_session);
}

void frmMain::ShowAnew() {
    m_history.Restart(m_session);
    Refresh();
}

void frmMain::Enter(const std::vector<EntryText>& texts) {
    if (!CommitEntry())
        return;
    m_shows.Run([&] { Module1::EnterTexts(m_context, texts); });
}

void frmMain::Undo() {
    GoThroughHistory(&EntryHistory::Undo);
}

void frmMain::Redo() {
    GoThroughHistory(&EntryHistory::Redo);
}

void frmMain::GoThroughHistory(void (EntryHistory::*step)(Session&)) {
    m_shows.Run([&] { (m_history.*step)(m_session); });
    // The field must not bring back typing that is older than the step.
    if (auto* field = qobject_cast<EntryField*>(focusWidget()))
        field->ForgetTyping();
    // What is typed next replaces the figure.
    m_focus.SelectFieldText();
}

bool frmMain::CommitEntry() {
    auto* field = qobject_cast<EntryField*>(focusWidget());
    return !field || field->CommitInPlace();
}

void frmMain::PrintHelp(const QTextDocument& document, QWidget& above) {
    if (m_actions.PrintHelp)
        m_actions.PrintHelp(document, above);
}

void frmMain::BuildControls() {
    auto* content = new QWidget;
    // Takes the content while it is empty, because Qt would measure all of it.
    auto* form = new MainForm(content);
    auto* layout = new QVBoxLayout(content);
    layout->setSpacing(12);
    layout->addWidget(new MainInputs);
    layout->addWidget(new ResultPanels, 1);
    setCentralWidget(form);
}

void frmMain::ShowPictures() {
    QApplication::setWindowIcon(HousePicture(64));
    auto* const place = findChild<QLabel*>("bFinancing");
    const QPixmap emblem(QString::fromStdString(m_session.EmblemFile().string()));
    if (emblem.isNull())
        return place->setPixmap(FinancingPicture(64));
    const qreal density = devicePixelRatioF();
    QPixmap shown = emblem.scaledToHeight(qRound(EmblemHeight * density), Qt::SmoothTransformation);
    shown.setDevicePixelRatio(density);
    place->setPixmap(shown);
}

void frmMain::ConnectFields() {
    MainScreen& screen = m_session.Screen;
    for (const EntryRule& rule : MainEntryRules()) {
        const QString name = QString::fromUtf8(rule.Name.data(), static_cast<qsizetype>(rule.Name.size()));
        Field& field = screen.*rule.Member;
        EntryEvents events =
            StandardEntryEvents(m_context, field, {rule.Format, rule.Format, rule.After}, m_shows);
        if (rule.Member == &MainScreen::ecPctDown)
            events.Character = [this](char key) {
                bool taken = false;
                m_shows.Run([&] { return taken = Module1::TakePercentDownPoint(m_session, key); });
                return taken;
            };
        findChild<EntryField*>(name)->Bind(field, std::move(events));
    }
}

void frmMain::ConnectPickLists() {
    using Click = void (*)(Session&, Host&, std::string_view);
    const std::pair<const char*, Click> clicks[] = {{"cboMortTerm", Module1::ClickTerm},
                                                    {"cboStdMortOption", Module1::ClickBaseOption},
                                                    {"cboGMHMortOption", Module1::ClickLabelledOption}};
    for (const auto& [name, click] : clicks) {
        auto* list = findChild<QComboBox*>(name);
        // Choosing the current item again is a click too.
        connect(list, &QComboBox::activated, this, [this, list, act = click] {
            m_shows.Run([&] { act(m_session, m_host, list->currentText().toStdString()); });
        });
    }
}

void frmMain::ConnectOptions() {
    connect(findChild<QButtonGroup*>("optDownPayment"), &QButtonGroup::idClicked, this, [this](int option) {
        m_shows.Run([&] { Module1::ClickDownPayment(m_session, m_host, option); });
    });
    connect(findChild<QCheckBox*>("chkDoTax0"), &QCheckBox::clicked, this,
            [this](bool checked) { m_shows.Run([&] { Module1::ClickTaxes(m_session, m_host, checked); }); });
}

void frmMain::ConnectTabs() {
    connect(findChild<ResultPanels*>(), &QTabWidget::currentChanged, this,
            [this](int tab) { m_shows.Run([&] { Module1::ClickTab(m_session, m_host, tab); }); });
}

void frmMain::ConnectButtons() {
    // Enter presses the button with the focus, as in the dialogs.
    for (QPushButton* button : findChildren<QPushButton*>())
        button->setAutoDefault(true);
    connect(findChild<QPushButton*>("bDisclaimer"), &QPushButton::clicked, this,
            [this] { m_host.ShowMessage(Module1::DisclaimerMessage()); });
    connect(findChild<QPushButton*>("bHelp"), &QPushButton::clicked, this, [this] { OpenHelp(); });
    if (m_actions.Houses)
        ConnectAction("bHouses", [this] { OpenHouses(); });
    else
        ConnectAction("bHouses", {});
    ConnectAction("Command1", m_actions.Assumptions);
    ConnectAction("bSysOpt", m_actions.Options);
    if (m_actions.Print)
        ConnectAction("bPrint", [this] { PrintReports(); });
    else
        ConnectAction("bPrint", {});
}

void frmMain::ConnectCharts() {
    m_charts = findChildren<ChartPlace*>();
    for (ChartPlace* chart : m_charts) {
        if (m_actions.Charts)
            chart->Connect({m_session, m_host, m_actions.Charts, m_actions.Questions});
    }
}

void frmMain::ConnectWelcome() {
    m_hint = findChild<WelcomeHint*>();
    m_hint->Connect(m_session.Screen, m_actions.OpenSample);
    connect(m_hint, &WelcomeHint::Chosen, this, &frmMain::GoTo);
}

void frmMain::ConnectInsight() {
    auto* link = findChild<QuestionLink*>();
    if (!m_actions.Ask)
        return link->hide();
    connect(link, &QuestionLink::Asked, this,
            [this](InsightQuestion question) { m_shows.Run([&] { m_actions.Ask(question); }); });
    connect(new FigureMark(*this), &FigureMark::Asked, this, [this](const QString& label) {
        if (CommitEntry())
            m_actions.Explain(label.toStdString());
    });
}

void frmMain::GoToSource(const QString& control, const QString& key) {
    BringToFront(*this);
    if (auto* input = findChild<QWidget*>(control); input && !control.isEmpty())
        return input->setFocus(Qt::OtherFocusReason);
    if (key.isEmpty() || !CommitEntry())
        return;
    auto* assumptions = findChild<QPushButton*>("Command1");
    assumptions->setFocus(Qt::OtherFocusReason);
    assumptions->click();
}

void frmMain::AskInsight() {
    const QuestionRow* const row = QuestionOfTab(m_session.Screen.SSTab1);
    if (CommitEntry() && m_actions.ShowInsight)
        m_actions.ShowInsight(row ? row->Id : InsightQuestion::InShort);
}

void frmMain::GoTo(const QString& control) {
    if (auto* panels = findChild<ResultPanels*>(); panels->objectName() == control) {
        panels->tabBar()->setFocus(Qt::OtherFocusReason);
        panels->setCurrentIndex(TabCount - 1);
        return;
    }
    findChild<QWidget*>(control)->setFocus(Qt::OtherFocusReason);
}

void frmMain::ConnectAction(const char* button, std::function<void()> action) {
    auto* widget = findChild<QPushButton*>(button);
    if (!action)
        return widget->setEnabled(false);
    connect(widget, &QPushButton::clicked, this, [this, act = std::move(action)] { m_shows.Run(act); });
}

void frmMain::OpenHouses() {
    m_actions.Houses();
    Module1::Recalculate(m_session, m_host);
}

void frmMain::PrintReports() {
    Module1::RunDataCheck(m_session.Screen, m_host);
    m_actions.Print();
}

void frmMain::OpenHelp() {
    const int context = TabPages[static_cast<std::size_t>(m_session.Screen.SSTab1)].HelpContext;
    m_help.Open(QString("ctx%1").arg(context));
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    // A dark palette uses a different red.
    if (event->type() == QEvent::PaletteChange && m_binding)
        Refresh();
}

void frmMain::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    // Reading the emblem and drawing the icon is slow, so the window appears first.
    if (!std::exchange(m_painted, true))
        QTimer::singleShot(0, this, &frmMain::ShowPictures);
}

void frmMain::closeEvent(QCloseEvent* event) {
    QMainWindow::closeEvent(event);
    emit Closed();
}

} // namespace Ledgrove
