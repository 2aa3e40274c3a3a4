#pragma once

#include <QTextBrowser>
#include <QWidget>
#include <filesystem>
#include <optional>
#include <string>

#include "engine/Host.h"
#include "engine/Session.h"

namespace Ledgrove {

/// The help file, an HTML document. Its anchors are "ctx<number>" for the help contexts of the main window's
/// tabs and "ctxHouses", "ctxAssumptions", "ctxOptions" for the dialogs.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    /// Opens the file at the topic of this anchor and comes to the front.
    void ShowTopic(const QString& path, const QString& anchor);

private:
    QTextBrowser* m_browser;
};

/// Where the help file is looked for: `name` in `folder`.
QString HelpFilePath(const std::filesystem::path& folder, const std::string& name);

/// A sentence that says why there is no help, with the file's name and where it was looked for; nothing when
/// the file can be read.
std::optional<std::string> HelpComplaint(const std::filesystem::path& folder, const std::string& name);

/// The help of one window.
class Help {
public:
    /// `owner`'s help opens above it and closes with it. All three must outlive this.
    Help(QWidget& owner, const Session& session, Host& outside)
        : m_owner(owner)
        , m_session(session)
        , m_outside(outside) {}

    /// Opens the session's help file at the topic of this anchor, or tells why there is no help.
    void Open(const QString& anchor);

private:
    QWidget& m_owner;
    const Session& m_session;
    Host& m_outside;
    HelpWindow* m_window = nullptr;
};

} // namespace Ledgrove
