#include "app/windows/CurrentFile.h"

#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <algorithm>
#include <utility>

#include "app/files/ComparisonFile.h"
#include "app/files/ScreenInputs.h"
#include "base/Text.h"
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

std::string UnreadableVersions(const QString& file, std::size_t count) {
    const std::string what = count == 1 ? "A version" : std::to_string(count) + " versions";
    return what + " in " + Quoted(file.toStdString()) +
           " cannot be read. The comparison and its other versions are open; the next save leaves out what "
           "cannot be read.";
}

} // namespace

std::string UndecodableName(const QString& file) {
    return "\"" + file.toStdString() +
           "\" cannot be opened: its name contains characters that are not UTF-8. Rename the file, then open "
           "it.";
}

bool IsUndecodable(const QString& file) {
    return file.contains(QChar::ReplacementCharacter) && !QFileInfo::exists(file);
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

FileRequest CurrentFile::RequestToOpen(const QString& title) const {
    const QString start = m_name.isEmpty() ? DocumentsFolder() : QFileInfo(m_name).path();
    return {title, start, Filter(), Suffix()};
}

void CurrentFile::New() {
    if (!MayLoseInputs())
        return;
    NewComparison(m_session, m_start, m_outside);
    m_name.clear();
    m_versions.clear();
    TakeSaved();
    m_window.ShowAnew();
    StartEntering();
}

void CurrentFile::Open() {
    const QString file = m_questions.OpenName(m_window, RequestToOpen("Open Comparison"));
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
    TakeSaved();
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
    VersionsOfFile read = VersionsIn(path);
    m_versions = std::move(read.Versions);
    m_window.ShowAnew();
    StartEntering();
    if (read.Unreadable > 0)
        Tell(UnreadableVersions(file, read.Unreadable));
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
    const QString fault =
        WriteWholeFile(file, QByteArray::fromStdString(ComparisonText(m_session.Screen, m_versions)));
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
    TakeSaved();
    m_recent.Add(m_name);
}

void CurrentFile::TakeSaved() {
    m_saved = ScreenInputs(m_session.Screen);
    m_savedVersions = m_versions;
}

bool CurrentFile::KeepVersion() {
    if (!m_window.CommitEntry())
        return false;
    const QString name = AskVersionName();
    if (name.isEmpty())
        return false;
    const QString now = QDateTime::currentDateTime().toString("yyyy-MM-dd hh:mm");
    m_versions.push_back({name.toStdString(), now.toStdString(), ScreenInputs(m_session.Screen)});
    ShowTitle();
    emit VersionKept();
    Save();
    return true;
}

QString CurrentFile::AskVersionName() {
    const auto isTaken = [this](const QString& name) {
        return std::any_of(m_versions.begin(), m_versions.end(), [&name](const KeptVersion& version) {
            return version.Name == name.toStdString();
        });
    };
    auto number = m_versions.size() + 1;
    QString name = QString("Version %1").arg(number);
    while (isTaken(name))
        name = QString("Version %1").arg(++number);
    for (;;) {
        name = m_questions.VersionName(m_window, name).trimmed();
        if (!isTaken(name))
            return name;
        Tell(Quoted(name.toStdString()) + " is already the name of a version. Give this version another "
                                          "name.");
    }
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
    return ScreenInputs(m_session.Screen) != m_saved || m_versions != m_savedVersions;
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
