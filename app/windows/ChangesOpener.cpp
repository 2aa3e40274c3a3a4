#include "app/windows/ChangesOpener.h"

#include <QPluginLoader>
#include <utility>

#include "app/batch/InsightText.h"
#include "ui/windows/BringToFront.h"
#include "ui/windows/InsightWindow.h"
#include "ui/windows/SafeFile.h"

namespace Ledgrove {

namespace {

void Report(Host& outside, const std::string& sentence) {
    if (!sentence.empty())
        outside.ShowMessage({ApplicationTitle, sentence, MessageIcon::Exclamation});
}

std::string AskAndAdd(const ChangesSource& source, QWidget& above) {
    const QString file = source.Questions.OpenName(above, source.File.RequestToOpen("Compare With"));
    if (file.isEmpty())
        return {};
    const ChangesList::Added added = source.List.Add(file);
    Report(source.Outside, added.Fault);
    Report(source.Outside, added.Note);
    return added.Id;
}

} // namespace

ChangesContext MakeChangesContext(const ChangesSource& source, ChangesPrinter print) {
    ChangesContext context;
    context.Choices = [source] { return source.List.Choices(); };
    context.Answer = [source](const ChangesAsk& ask) { return source.List.Answer(ask); };
    context.AddFile = [source](QWidget& above) { return AskAndAdd(source, above); };
    context.Print = [source, print = std::move(print)](const ChangesAsk& ask) {
        print(source.List.Answer(ask));
    };
    context.Text = &SheetText;
    context.Questions = source.Questions;
    context.Write = [source](const QString& file, const QByteArray& content) {
        Report(source.Outside, WriteWholeFile(file, content).toStdString());
    };
    return context;
}

ChangesOpener::ChangesOpener(Session& session, Host& outside, FileQuestions questions, ChangesPrinter print,
                             QString folder)
    : m_session(session)
    , m_outside(outside)
    , m_questions(std::move(questions))
    , m_print(std::move(print))
    , m_folder(std::move(folder)) {}

ChangesOpener::~ChangesOpener() = default;

void ChangesOpener::Follow(frmMain& window, CurrentFile& file) {
    m_main = &window;
    m_file = &file;
    const auto follow = [this] {
        if (m_window)
            m_window->Follow();
    };
    connect(&window, &frmMain::Refreshed, this, follow);
    connect(&file, &CurrentFile::VersionKept, this, follow);
    connect(&window, &frmMain::Closed, this, [this] { m_window.reset(); });
}

bool ChangesOpener::Load() {
    if (m_window)
        return true;
    QPluginLoader loader(m_folder + "/modules/ledgrove-insight.so");
    auto* factory = qobject_cast<InsightFactory*>(loader.instance());
    if (!factory) {
        Report(m_outside,
               "The window \"What changed?\" cannot be opened: " + loader.errorString().toStdString());
        return false;
    }
    m_list.emplace(m_session, *m_file);
    ChangesContext context = MakeChangesContext({*m_list, *m_file, m_outside, m_questions}, m_print);
    context.Help = [this] { m_main->OpenHelpAt("ctxChanges"); };
    m_window.reset(factory->MakeChanges(std::move(context)));
    return true;
}

void ChangesOpener::Open() {
    if (!Load())
        return;
    BringToFront(*m_window);
    m_window->Begin();
}

} // namespace Ledgrove
