#include "app/windows/CurrentFile.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <utility>

#include "app/files/ComparisonFile.h"
#include "app/files/ScreenInputs.h"
#include "ui/FirstSteps.h"
#include "ui/windows/SafeFile.h"
#include "ui/windows/UsersFolder.h"

namespace Ledgrove {

namespace {

QString Suffix() {
    return QString::fromUtf8(ComparisonSuffix.data(), static_cast<qsizetype>(ComparisonSuffix.size()));
}

QString Filter() {
    return QString("Comparisons (*%1 *.json);;All files (*)").arg(Suffix());
}

QString DocumentsFolder() {
    return UsersFolder(QStandardPaths::DocumentsLocation);
}

bool IsUndecodable(const QString& file) {
    return file.contains(QChar::ReplacementCharacter) && !QFileInfo::exists(file);
}

} // namespace

std::string UndecodableName(const QString& file) {
    return "\"" + file.toStdString() +
           "\" cannot be opened: its name contains characters that are not UTF-8. Rename the file, then open "
           "it.";
}

CurrentFile::CurrentFile(frmMain& window, Session& session, Host& outside, RecentFiles recent,
                         FileQuestions questions)
    : QObject(&window)
    , m_window(window)
    , m_session(session)
    , m_outside(outside)
    , m_start(session)
    , m_recent(std::move(recent))
    , m_questions(std::move(questions))
    , m_saved(ScreenInputs(session.Screen)) {
    connect(&window, &frmMain::Refreshed, this, &CurrentFile::ShowTitle);
    window.installEventFilter(this);
    // The record follows each typed character, but the window refreshes only when the entry is committed.
    for (const QLineEdit* field : window.findChildren<QLineEdit*>())
        connect(field, &QLineEdit::textChanged, this, [this] { m_window.setWindowModified(IsModified()); });
    ShowTitle();
}

QString CurrentFile::NameBeside(const QString& ending) const {
    if (m_name.isEmpty())
        return QDir(DocumentsFolder()).filePath("comparison" + ending);
    const QFileInfo file(m_name);
    QString base = file.fileName();
    for (const QString& known : {Suffix(), QString(".json")}) {
        if (base.endsWith(known, Qt::CaseInsensitive)) {
            base.chop(known.size());
            break;
        }
    }
    return file.dir().filePath(base + ending);
}

void CurrentFile::New() {
    if (!MayLoseInputs())
        return;
    NewComparison(m_session, m_start, m_outside);
    m_name.clear();
    m_saved = ScreenInputs(m_session.Screen);
    m_window.ShowAnew();
    StartEntering();
}

void CurrentFile::Open() {
    const QString start = m_name.isEmpty() ? DocumentsFolder() : QFileInfo(m_name).path();
    const QString file = m_questions.OpenName(m_window, {"Open Comparison", start, Filter(), Suffix()});
    if (!file.isEmpty())
        OpenNamed(file);
}

void CurrentFile::OpenNamed(const QString& file) {
    if (!MayLoseInputs() || !Load(file))
        return;
    TakeName(file);
    ShowTitle();
}

void CurrentFile::OpenCopy(const QString& file) {
    if (!MayLoseInputs() || !Load(file))
        return;
    m_name.clear();
    m_saved = ScreenInputs(m_session.Screen);
    ShowTitle();
}

bool CurrentFile::Load(const QString& file) {
    if (IsUndecodable(file)) {
        Tell(UndecodableName(file));
        return false;
    }
    const std::filesystem::path path = QFile::encodeName(file).toStdString();
    if (const auto fault = OpenComparison(path, m_session, m_start, m_outside)) {
        m_recent.Remove(file);
        Tell(*fault);
        return false;
    }
    m_window.ShowAnew();
    StartEntering();
    return true;
}

bool CurrentFile::Save() {
    return m_name.isEmpty() ? SaveAs() : Write(m_name);
}

bool CurrentFile::SaveAs() {
    const QString suggested = m_name.isEmpty() ? NameBeside(Suffix()) : m_name;
    const QString file = m_questions.SaveName(m_window, {"Save Comparison", suggested, Filter(), Suffix()});
    return !file.isEmpty() && Write(file);
}

bool CurrentFile::Write(const QString& file) {
    if (!m_window.CommitEntry())
        return false;
    const QString fault = WriteWholeFile(file, QByteArray::fromStdString(ComparisonText(m_session.Screen)));
    if (!fault.isEmpty()) {
        Tell(fault.toStdString());
        return false;
    }
    TakeName(file);
    ShowTitle();
    return true;
}

void CurrentFile::TakeName(const QString& file) {
    m_name = QFileInfo(file).absoluteFilePath();
    m_saved = ScreenInputs(m_session.Screen);
    m_recent.Add(m_name);
}

void CurrentFile::StartEntering() {
    auto* first = m_window.findChild<QLineEdit*>("ecIncome");
    first->setFocus(Qt::OtherFocusReason);
    first->selectAll();
}

bool CurrentFile::IsModified() const {
    // A new comparison without any figures needs no question.
    if (m_name.isEmpty() && IsUntouched(m_session.Screen))
        return false;
    return ScreenInputs(m_session.Screen) != m_saved;
}

bool CurrentFile::MayLoseInputs() {
    if (!IsModified())
        return true;
    const QString name = m_name.isEmpty() ? "this comparison" : '"' + QFileInfo(m_name).fileName() + '"';
    switch (m_questions.Unsaved(m_window, name)) {
    case SaveAnswer::Save:
        return Save();
    case SaveAnswer::Discard:
        return true;
    case SaveAnswer::Cancel:
        break;
    }
    return false;
}

void CurrentFile::ShowTitle() {
    // "[*]" marks the place of the change mark; doubled, it stands for itself. Without a file, the mark
    // follows the program's name.
    const QString name = QFileInfo(m_name).fileName().replace("[*]", "[*][*]");
    m_window.setWindowTitle(name.isEmpty() ? QString(ApplicationTitle) + "[*]"
                                           : name + "[*] - " + ApplicationTitle);
    m_window.setWindowModified(IsModified());
}

void CurrentFile::Tell(const std::string& sentence) {
    m_outside.ShowMessage({ApplicationTitle, sentence, MessageIcon::Exclamation});
}

bool CurrentFile::eventFilter(QObject* watched, QEvent* event) {
    if (watched != &m_window || event->type() != QEvent::Close || MayLoseInputs())
        return false;
    event->ignore();
    return true;
}

} // namespace Ledgrove
