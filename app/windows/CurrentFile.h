#pragma once

#include <QObject>
#include <QString>

#include "app/windows/RecentFiles.h"
#include "engine/Host.h"
#include "engine/Session.h"
#include "ui/windows/FileQuestions.h"
#include "ui/windows/frmMain.h"

namespace Ledgrove {

/// The comparison file that the main window shows: new, open, save, and the question before inputs are lost.
/// The window's title tells its name and whether it was changed.
class CurrentFile : public QObject {
    Q_OBJECT

public:
    /// `session` is as loading left it and is what a new comparison starts from. All must outlive this.
    CurrentFile(frmMain& window, Session& session, Host& outside, RecentFiles recent,
                FileQuestions questions);

    /// "" while the comparison was never saved.
    const QString& Name() const { return m_name; }
    RecentFiles& Recent() { return m_recent; }

    /// `name` with this ending, beside the comparison: what an export is suggested to be called.
    QString NameBeside(const QString& ending) const;

public slots:
    void New();
    void Open();
    /// A faulty file is told and leaves everything as it was.
    void OpenNamed(const QString& file);
    /// Fills in the inputs of `file` and leaves the comparison without a name, so that saving does not write
    /// over the original.
    void OpenCopy(const QString& file);
    /// False when it was not saved: no name was chosen, or the fault has been told.
    bool Save();
    bool SaveAs();

protected:
    /// Asks before the window closes over unsaved inputs.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsModified() const;
    bool MayLoseInputs();
    bool Load(const QString& file);
    bool Write(const QString& file);
    void TakeName(const QString& file);
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
    std::string m_saved; ///< the inputs as they are in the file, or as a new comparison has them
};

} // namespace Ledgrove
