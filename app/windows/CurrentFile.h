#pragma once

#include <QObject>
#include <QString>

#include "app/batch/InputRecord.h"
#include "app/files/KeptVersions.h"
#include "app/windows/RecentFiles.h"
#include "engine/Host.h"
#include "engine/Session.h"
#include "ui/windows/FileQuestions.h"
#include "ui/windows/frmMain.h"

namespace Ledgrove {

/// The message for a file name that is not UTF-8. The window shows such a name with marks in place of its
/// bytes and cannot find the file by it.
std::string UndecodableName(const QString& file);

/// Whether a window shows this name for a file whose name is not UTF-8.
bool IsUndecodable(const QString& file);

/// The comparison file that the main window shows: new, open, save, and the question before unsaved inputs
/// are lost. The window's title shows its name and whether it has changed.
class CurrentFile : public QObject {
    Q_OBJECT

public:
    /// `session` must be in its state after loading; a new comparison starts from that state. All arguments
    /// must outlive this object.
    CurrentFile(frmMain& window, Session& session, Host& outside, RecentFiles recent,
                FileQuestions questions);

    /// "" until the comparison is saved.
    const QString& Name() const { return m_name; }
    RecentFiles& Recent() { return m_recent; }

    /// The versions that were kept, oldest first.
    const KeptVersions& Versions() const { return m_versions; }
    /// The state that comparisons start from.
    const Session& Start() const { return m_start; }

    /// The suggested name for an export: `name` with this ending, in the comparison's folder.
    QString NameBeside(const QString& ending) const;
    /// What to ask for the name of a comparison: it begins in the folder of this one.
    FileRequest RequestToOpen(const QString& title) const;

public slots:
    void New();
    void Open();
    /// Reports a faulty file and then changes nothing.
    void OpenNamed(const QString& file);
    /// Fills in the inputs of `file` and leaves the comparison without a name, so that a save does not
    /// overwrite the original.
    void OpenCopy(const QString& file);
    /// False if nothing was saved: the user chose no name, or the fault has been reported.
    bool Save();
    bool SaveAs();
    /// Asks for a name, keeps the inputs under it in the comparison's file, and saves. False if nothing was
    /// kept. A version that could not be saved stays for the next save.
    bool KeepVersion();

signals:
    void VersionKept();

protected:
    /// Asks before the window closes with unsaved inputs.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsModified() const;
    bool MayLoseInputs();
    bool Load(const QString& file);
    bool Write(const QString& file);
    void TakeName(const QString& file);
    void TakeSaved();
    QString AskVersionName();
    void StartEntering();
    void ShowTitle();
    void Tell(const std::string& sentence);

    frmMain& m_window;
    Session& m_session;
    Host& m_outside;
    const Session m_start;
    RecentFiles m_recent;
    FileQuestions m_questions;
    QString m_name;
    InputRecord m_saved; ///< the inputs in the file, or those of a new comparison
    KeptVersions m_versions;
    KeptVersions m_savedVersions;
};

} // namespace Ledgrove
