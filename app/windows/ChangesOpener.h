#pragma once

#include <QObject>
#include <memory>
#include <optional>

#include "app/windows/ChangesList.h"
#include "reports/windows/ChangesPrint.h"

namespace Ledgrove {

/// What the window "What changed?" needs of the program. All must outlive the window.
struct ChangesSource {
    ChangesList& List;
    const CurrentFile& File;
    Host& Outside; ///< shows why a file cannot be read or written
    FileQuestions Questions;
};

/// The context of the window, all but its help.
ChangesContext MakeChangesContext(const ChangesSource& source, ChangesPrinter print);

/// Opens the window "What changed?", which it loads from `modules` when it is first needed, and keeps it up
/// to date.
class ChangesOpener : public QObject {
    Q_OBJECT

public:
    /// `session` and `outside` must outlive the object; `folder` is the program's.
    ChangesOpener(Session& session, Host& outside, FileQuestions questions, ChangesPrinter print,
                  QString folder);
    ~ChangesOpener() override;

    /// Connects the main window and its file, which the window follows. Both must outlive the object.
    void Follow(frmMain& window, CurrentFile& file);

    /// Opens the window or brings it to the front. Reports a missing library.
    void Open();

private:
    bool Load();

    Session& m_session;
    Host& m_outside;
    FileQuestions m_questions;
    ChangesPrinter m_print;
    QString m_folder;
    frmMain* m_main = nullptr;
    CurrentFile* m_file = nullptr;
    std::optional<ChangesList> m_list;
    std::unique_ptr<ChangesWindow> m_window;
};

} // namespace Ledgrove
