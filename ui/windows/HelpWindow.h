#pragma once

#include <QTextBrowser>
#include <QWidget>
#include <filesystem>
#include <optional>
#include <string>

namespace Ledgrove {

/// The help file, an HTML document with an anchor "ctx<number>" for each help context.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    /// Opens the file at the context's topic and comes to the front.
    void ShowTopic(const QString& path, int context);

private:
    QTextBrowser* m_browser;
};

/// Where the help file is looked for: `name` in `folder`.
QString HelpFilePath(const std::filesystem::path& folder, const std::string& name);

/// A sentence that says why there is no help, with the file's name and where it was looked for; nothing when
/// the file can be read.
std::optional<std::string> HelpComplaint(const std::filesystem::path& folder, const std::string& name);

} // namespace Ledgrove
