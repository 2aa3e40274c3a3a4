#include "app/windows/InsightOpener.h"

#include <QPluginLoader>
#include <QPushButton>
#include <utility>

#include "app/windows/EditMenu.h"
#include "app/windows/InsightAnswering.h"
#include "app/windows/ModelsAnswering.h"
#include "app/windows/TaxLineTip.h"
#include "ui/windows/BringToFront.h"
#include "ui/windows/SafeFile.h"

namespace Ledgrove {

InsightOpener::InsightOpener(Session& session, Host& outside, FileQuestions questions, Printers print,
                             QString folder)
    : m_session(session)
    , m_outside(outside)
    , m_settings(session)
    , m_questions(std::move(questions))
    , m_print(std::move(print))
    , m_folder(std::move(folder)) {}

InsightOpener::~InsightOpener() = default;

void InsightOpener::Follow(frmMain& window) {
    m_main = &window;
    PointOutTaxLine(window, m_session);
    connect(&window, &frmMain::Refreshed, this, [this] {
        PointOutTaxLine(*m_main, m_session);
        if (m_window)
            m_window->Follow();
    });
    connect(&window, &frmMain::Closed, this, [this] { m_window.reset(); });
}

InsightContext InsightOpener::Context() {
    InsightContext context;
    const auto committed = [this] { return m_main->Committed(); };
    // What is being typed is entered first, so that the paper and the window agree.
    const auto print = [this](const InsightRequest& request) {
        if (m_main->CommitEntry())
            m_print.Answers(request);
    };
    ConnectAnswers(context, {committed, m_settings, m_outside}, print);
    context.Models = MakeModelsContext(committed, m_print.Houses);
    context.Keep = [this, keep = context.Keep](InsightQuestion question) {
        keep(question);
        PointOutTaxLine(*m_main, m_session);
    };
    context.GoTo = [this](const QString& control, const QString& key) { m_main->GoToSource(control, key); };
    context.Enter = [this](const std::vector<EntryText>& texts) { m_main->Enter(texts); };
    if (auto* edit = m_main->findChild<EditMenu*>()) {
        context.Undo = [edit] { edit->Undo(); };
        context.Redo = [edit] { edit->Redo(); };
    }
    context.Help = [this] { m_main->OpenHelpAt("ctxInsight"); };
    context.Questions = m_questions;
    context.Write = [this](const QString& file, const QByteArray& content) {
        const QString fault = WriteWholeFile(file, content);
        if (!fault.isEmpty())
            m_outside.ShowMessage({ApplicationTitle, fault.toStdString(), MessageIcon::Exclamation});
    };
    return context;
}

bool InsightOpener::Open() {
    if (m_window)
        return true;
    QPluginLoader loader(m_folder + "/modules/ledgrove-insight.so");
    auto* factory = qobject_cast<InsightFactory*>(loader.instance());
    if (factory)
        m_window.reset(factory->Make(Context()));
    else
        m_outside.ShowMessage({ApplicationTitle,
                               "Insight cannot be opened: " + loader.errorString().toStdString(),
                               MessageIcon::Exclamation});
    return factory;
}

void InsightOpener::Show(InsightQuestion question) {
    if (m_window && m_window->isVisible())
        BringToFront(*m_window);
    else
        Ask(question);
}

void InsightOpener::Ask(InsightQuestion question) {
    if (!Open())
        return;
    m_window->show();
    m_window->Ask(question);
    BringToFront(*m_window);
}

void InsightOpener::Explain(const std::string& label) {
    if (!Open())
        return;
    m_window->show();
    m_window->Explain(label);
    BringToFront(*m_window);
}

} // namespace Ledgrove
