#pragma once

#include <QObject>
#include <memory>

#include "engine/Session.h"
#include "reports/windows/InsightPrint.h"
#include "reports/windows/RangePrint.h"
#include "ui/TriedSettings.h"
#include "ui/windows/InsightWindow.h"
#include "ui/windows/frmMain.h"

namespace Ledgrove {

/// Opens the Insight window, which it loads from `modules` with the first question, and keeps it up to date.
class InsightOpener : public QObject {
    Q_OBJECT

public:
    /// What the window prints on.
    struct Printers {
        InsightPrinter Answers;
        RangePrinter Houses;
    };

    /// `session` and `outside` must outlive the object; `folder` is the program's.
    InsightOpener(Session& session, Host& outside, FileQuestions questions, Printers print, QString folder);
    ~InsightOpener() override;

    /// Connects the main window, whose entries the Insight window follows. It must outlive the object.
    void Follow(frmMain& window);

    /// Brings the open window to the front as it is, or opens it with this question.
    void Show(InsightQuestion question);

    /// Shows this question in the window, which it opens or brings to the front. Reports a missing library.
    void Ask(InsightQuestion question);

    /// Opens the window with the explanation of a label's figure; an empty label gives a usual figure.
    void Explain(const std::string& label);

private:
    InsightContext Context();
    bool Open();

    Session& m_session;
    Host& m_outside;
    TriedSettings m_settings;
    FileQuestions m_questions;
    Printers m_print;
    QString m_folder;
    frmMain* m_main = nullptr;
    std::unique_ptr<InsightWindow> m_window;
};

} // namespace Ledgrove
